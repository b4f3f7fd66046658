// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT

// The pages of pictures, published by the program and tried as visitors use them: by mouse, keyboard and finger.

import assert from "node:assert/strict";
import fs from "node:fs";
import { after, before, test } from "node:test";
import { data, discard, publish } from "./published.mjs";
import { launch, openSite, screens, showInCentre } from "./support.mjs";

// Both pictures show a red square at 380,120 and a green one at 60,250; the second one is stored lying on its side, as a camera does it.
const red = { at: "380,120,90,70", colour: [255, 0, 0] };
const green = { at: "60,250,80,100", colour: [0, 200, 0] };
const arrow = [214, 40, 32];
const album = [
    ["picture", "add", "FILE", `${data}squares.gif`, "--title", "Squares", "--names", "left", "--marks", "rectangle"],
    ["picture", "add", "FILE", `${data}squares-turned.jpg`, "--names", "above", "--marks", "rectangle"],
    ["picture", "add", "FILE", `${data}squares.gif`, "--names", "left", "--marks", "arrow"],
    ...[1, 2].flatMap((id) => [["mark", "add", "FILE", `${id}`, "--person", "1", "--at", red.at], ["mark", "add", "FILE", `${id}`, "--name", "Green", "--at", green.at],
        ["mark", "add", "FILE", `${id}`, "--name", "Nowhere"]]),
    ["mark", "add", "FILE", "3", "--name", "Above", "--at", "200,100"], ["mark", "add", "FILE", "3", "--person", "2", "--at", "590,390"],
];
// They are as red as what is looked for.
const hidesIcons = "img[src$='arrow_icon.gif'] { opacity: 0 }";
const sites = {};
let browser;

before(async () => {
    for (const [PageStyle, style] of ["OldBook", "Memories"].entries()) {
        sites[style] = publish({ gedcom: "thornbury.ged", settings: { PageStyle, PersPages: 1, Pictures4ThisTreeOnly: 0 }, album,
            trees: [{ head: 1, display: "Outline" }, { head: 1, display: "CollapsiTree" }] });
    }
    browser = await launch();
});

after(async () => {
    await browser?.close();
    Object.values(sites).forEach(discard);
});

async function visit(t, page, { style = "OldBook", screen = screens.desktop } = {}) {
    const opened = await openSite(browser, sites[style], screen, page);
    t.after(() => opened.context().close());
    return opened;
}

// The box, in pixels of the page, round all that the page shows in a colour.
async function boxOfColour(page, colour) {
    const shot = (await page.screenshot({ scale: "css" })).toString("base64");
    const blank = await page.context().newPage();
    const box = await blank.evaluate(async ([png, wanted]) => {
        const image = new Image();
        image.src = `data:image/png;base64,${png}`;
        await image.decode();
        const canvas = new OffscreenCanvas(image.width, image.height).getContext("2d");
        canvas.drawImage(image, 0, 0);
        const { data: bytes } = canvas.getImageData(0, 0, image.width, image.height);
        const found = { left: Infinity, top: Infinity, right: -1, bottom: -1 };
        for (let place = 0; place < bytes.length; place += 4) {
            if (wanted.every((value, channel) => Math.abs(bytes[place + channel] - value) < 14)) {
                const [x, y] = [place / 4 % image.width, Math.floor(place / 4 / image.width)];
                Object.assign(found, { left: Math.min(found.left, x), top: Math.min(found.top, y), right: Math.max(found.right, x + 1), bottom: Math.max(found.bottom, y + 1) });
            }
        }
        return found;
    }, [shot, colour]);
    await blank.close();
    return box;
}

function assertNear(actual, expected, tolerance, what) {
    for (const [side, place] of Object.entries(expected)) {
        assert.ok(Math.abs(actual[side] - place) <= tolerance, `${what}: ${side} is ${actual[side]} instead of ${place}`);
    }
}

const boxOf = (page, selector) => page.locator(selector).evaluate((element) => {
    const { left, top, right, bottom } = element.getBoundingClientRect();
    return { left, top, right, bottom };
});
// A script in a link's address runs some time after the click.
const arrowPointsTo = (page, number) => page.waitForFunction((wanted) => [...document.querySelectorAll("a[href^='javascript:showArrow']")]
    .findIndex((link) => link.parentNode.classList.contains("lit")) === wanted, number);
const visible = (page, n) => page.locator(`#R${n}`).evaluate((layer) => getComputedStyle(layer).visibility === "visible");

for (const [style, screenName, file] of ["OldBook", "Memories"].flatMap((style) => ["desktop", "phone"].flatMap((screen) => [1, 2].map((id) => [style, screen, `PicPage${id}.html`])))) {
    test(`rectangles cover the marked persons: ${file}, ${style}, ${screenName}`, async (t) => {
        const page = await visit(t, file, { style, screen: screens[screenName] });
        await page.addStyleTag({ content: hidesIcons });
        for (const [n, mark] of [[1, red], [2, green]]) {
            const seen = await boxOfColour(page, mark.colour);
            assert.ok(seen.right - seen.left > 30, "the square was not seen");
            assert.equal(await visible(page, n), false);
            await page.evaluate((number) => overName(document.getElementById(`N${number}`), String(number)), n);
            assert.equal(await visible(page, n), true);
            assertNear(await boxOf(page, `#R${n}`), seen, 2, `R${n}`);
            await page.evaluate((number) => outofName(document.getElementById(`N${number}`), String(number)), n);
            assert.equal(await visible(page, n), false);
        }
        assert.ok(await page.evaluate(() => document.documentElement.scrollWidth <= innerWidth), "the page runs off the side");
        const size = await page.locator("#picture").evaluate((picture) => [picture.naturalWidth, picture.naturalHeight, picture.getAttribute("width"), picture.getAttribute("height")].join(" "));
        assert.equal(size, "600 400 600 400");
        assert.deepEqual(page.complaints, []);
    });
}

test("the arrow's tip is at the marked point, from whichever side it comes", async (t) => {
    for (const [style, screen] of [["OldBook", screens.desktop], ["Memories", screens.phone]]) {
        const page = await visit(t, "PicPage3.html", { style, screen });
        const picture = await boxOf(page, "#picture");
        const scale = (picture.right - picture.left) / 600;
        const links = page.locator("a[href^='javascript:showArrow']");
        await page.addStyleTag({ content: `${hidesIcons} #picture { opacity: 0 }` });
        await links.nth(0).click();
        await arrowPointsTo(page, 0);
        const above = await boxOfColour(page, arrow);
        assertNear(above, { left: picture.left + 200 * scale, top: picture.top + 100 * scale }, 4, style);
        await links.nth(1).click();
        await arrowPointsTo(page, 1);
        const corner = await boxOfColour(page, arrow);
        assertNear(corner, { right: picture.left + 590 * scale, bottom: picture.top + 390 * scale }, 4, style);
        await page.getByText("Hide Arrow").click();
        await arrowPointsTo(page, -1);
        assert.equal((await boxOfColour(page, arrow)).right, -1);
        await links.nth(0).focus();
        assertNear(await boxOfColour(page, arrow), above, 1, "by focus");
    }
});

test("a rectangle shows by pointing, stays when locked, and answers to the keyboard", async (t) => {
    const page = await visit(t, "PicPage1.html");
    const icon = page.locator("#N2 img");
    for (const [what, act, shown] of [
        ["pointing at the name", () => page.locator("#N2").hover(), true], ["leaving it", () => page.locator("h1").hover(), false],
        ["focus", () => icon.focus(), true], ["leaving it by Tab", () => page.keyboard.press("Tab"), false],
        ["Enter", () => icon.press("Enter"), true], ["leaving the locked one", () => page.locator("h1").click(), true],
        ["Space", () => icon.press("Space"), false],
        ["clicking the icon", () => icon.click(), true], ["leaving it again", () => page.locator("h1").click(), true],
        ["clicking once more", () => icon.click(), false],
        ["pointing at the person", () => boxOf(page, "#picture").then(({ left, top }) => page.mouse.move(left + 100, top + 300)), true],
        ["leaving the person", () => page.locator("h1").hover(), false],
    ]) {
        await act();
        assert.equal(await visible(page, 2), shown, what);
        assert.equal(await page.locator("#N2").evaluate((name) => name.classList.contains("lit")), shown, what);
    }
    assert.equal(await page.locator("#N3").count(), 0, "a name without a mark points nowhere");
});

test("a tap shows a rectangle and hides it, on the name, its icon or the person", async (t) => {
    const page = await visit(t, "PicPage2.html", { screen: screens.phone });
    const person = async () => {
        const picture = await boxOf(page, "#picture");
        const scale = (picture.right - picture.left) / 600;
        await page.touchscreen.tap(picture.left + 100 * scale, picture.top + 300 * scale);
    };
    for (const tap of [() => page.locator("#N2").tap(), () => page.locator("#N2 img").tap(), person]) {
        await tap();
        assert.equal(await visible(page, 2), true, `${tap}`);
        await tap();
        assert.equal(await visible(page, 2), false, `${tap}`);
    }
});

test("from the tree to a picture, to its person, and back to the tree", async (t) => {
    for (const tree of ["Outline_1_1.html", "CTree_2_1.html"]) {
        const page = await visit(t, "index.html");
        const centre = await showInCentre(page, tree);
        for (const [selector, next] of [["a[href='PicList1.html']", /PicList1/], ["a[href='PicPage1.html']", /PicPage1/], ["#L1", /PersPage_1/], ["h3 a[href^='CTree']", /CTree_2_1/],
            ["a[href='PicPage3.html']", /PicPage3/], ["a[href='Thumbs_All_1.html']", /Thumbs_All_1/], ["td a[href='PicPage2.html']", /PicPage2/]]) {
            await centre.locator(selector).first().click();
            await centre.waitForURL(next);
        }
        await page.frame("frmTopLeft").locator("#DocOwner").getByText("<No title>").waitFor({ timeout: 5000 });
        assert.deepEqual(page.complaints, []);
    }
    assert.ok(!fs.existsSync(`${sites.OldBook}/PicList2.html`), "who is in one picture has no list");
});
