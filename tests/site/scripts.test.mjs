// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT

// The scripts and styles of the templates, tried in a browser on a published site opened from disk, where every page counts as
// a foreign one to every other.

import assert from "node:assert/strict";
import fs from "node:fs";
import path from "node:path";
import { after, before, test } from "node:test";
import { pathToFileURL } from "node:url";
import { discard, publish } from "./published.mjs";
import { launch, openSite, screens, share, showInCentre } from "./support.mjs";

// A GEDCOM text: each of the first twelve individuals is the parent of the next, and the first also of all further ones.
function treeOf(surnames) {
    const people = surnames.map((surname, place) => `0 @I${place + 1}@ INDI\n1 NAME Given /${surname}/\n1 BIRT\n2 DATE 12 MAR 18${10 + place % 90}\n` +
        `2 PLAC Kirkby Lonsdale, Westmorland, the House by the River\n${place < 11 ? `1 FAMS @F${place + 1}@\n` : ""}`);
    const families = Array.from({ length: 11 }, (_, place) => [`0 @F${place + 1}@ FAM\n1 HUSB @I${place + 1}@\n1 CHIL @I${place + 2}@\n`,
        ...(place ? [] : surnames.slice(12).map((_, further) => `1 CHIL @I${further + 13}@\n`))].join(""));
    return `0 HEAD\n1 CHAR UTF-8\n${people.join("")}${families.join("")}0 TRLR\n`;
}

const surnames = Array.from({ length: 30 }, (_, place) => `${"ABDFM"[place % 5]}name${place}`);
surnames[5] = "\u0410\u043d\u043d\u0430 \u041a\u0430\u0440\u0435\u043d\u0438\u043d\u0430";
surnames[7] = "J\u00e9r\u00f4me & S\u00f8nner";
const indexed = surnames.map((surname) => `${surname}, Given`);
const nameOf = (id) => `Given ${surnames[id - 1]}`;
const title = "Family Tree and Photo Album";

const styles = ["OldBook", "Memories"];
const sites = {};
let browser;

before(async () => {
    for (const [PageStyle, style] of styles.entries()) {
        sites[style] = publish({ gedcom: treeOf(surnames), settings: { PageStyle, PersPages: 1, MaxGenOnPage: 2, SiteTitle: title },
            trees: [{ head: 1, display: "Outline" }, { head: 1, display: "CollapsiTree" }] });
    }
    browser = await launch();
});

after(async () => {
    await browser?.close();
    Object.values(sites).forEach(discard);
});

async function visit(t, { style = "OldBook", screen = screens.desktop, page = "index.html" } = {}) {
    const opened = await openSite(browser, sites[style], screen, page);
    t.after(() => opened.context().close());
    return opened;
}

const textOf = (frame, id) => frame.locator(`#${id}`).textContent();
const ownerIs = (page, text) => page.frame("frmTopLeft").locator("#DocOwner").getByText(text, { exact: true }).waitFor({ timeout: 5000 });

for (const style of styles) {
    for (const [screenName, screen] of Object.entries(screens)) {
        test(`the top left frame shows path and icon: ${style}, ${screenName}`, async (t) => {
            const page = await visit(t, { style, screen });
            const centre = await showInCentre(page, "Outline_1_11.html");
            await ownerIs(page, `Descendants of ${nameOf(11)}`);
            const path = page.frame("frmTopLeft");
            assert.equal(await textOf(path, "DocRoots"), [1, 3, 5, 7, 9].map((id) => `${nameOf(id)} \u203a `).join(""));
            const drawn = await path.locator("#Icon img").evaluate((icon) => [icon.naturalWidth > 0, icon.offsetWidth > 0]);
            assert.deepEqual(drawn, [true, true]);
            await path.locator("#DocRoots a").first().click();
            await centre.waitForURL(/Outline_1_1\.html$/);
            await ownerIs(page, `Descendants of ${nameOf(1)}`);
            assert.equal(await textOf(path, "DocRoots"), "");
            assert.deepEqual(page.complaints, []);
        });
    }
    test(`the small frames leave a phone its page: ${style}`, async (t) => {
        for (const [width, height] of [[390, 844], [844, 390], [320, 568]]) {
            const page = await visit(t, { style, screen: { ...screens.phone, viewport: { width, height } } });
            const box = await page.locator("frame[name=frmCenter]").boundingBox();
            assert.ok(box.height >= 0.75 * height && box.width >= 0.9 * width, `${width} x ${height}: page has ${box.width} x ${box.height}`);
            for (const name of ["frmTopRight", "frmCenter"]) {
                const across = await page.frame(name).evaluate(() => document.documentElement.scrollWidth - innerWidth);
                assert.ok(across <= 0, `${name} is ${across} too wide at ${width} x ${height}`);
            }
            const smallest = await page.frame("frmTopRight").evaluate(() => Math.min(...[...document.links].map((link) => link.offsetHeight)));
            assert.ok(smallest >= 40, `a link of the upper frame is ${smallest} high`);
        }
    });
}

test("the frames follow a phone that is turned", async (t) => {
    const page = await visit(t, { screen: screens.phone });
    await page.setViewportSize({ width: 844, height: 390 });
    await page.waitForFunction(() => document.querySelector("frame[name=frmCenter]").offsetHeight >= 0.75 * innerHeight);
});

test("pages written for a phone do not run off its side", async (t) => {
    const page = await visit(t, { screen: screens.phone });
    for (const file of ["main.html", "Outline_1_1.html", "Outline_1_11.html", "NameIndex.html", "TreeList.html", "PersPage_9.html"]) {
        const centre = await showInCentre(page, file);
        const across = await centre.evaluate(() => document.documentElement.scrollWidth - innerWidth);
        assert.ok(across <= 0, `${file} is ${across} too wide`);
    }
});

test("the top left frame lets only text, local links and tree icons through, and only from its frameset", async (t) => {
    const page = await visit(t);
    const path = page.frame("frmTopLeft");
    const centre = page.frame("frmCenter");
    await ownerIs(page, title);
    const post = (sender, message) => sender.evaluate((sent) => {
        for (let i = 0; i < window.top.frames.length; i++) { window.top.frames[i].postMessage(sent, "*"); }
    }, message);
    const settled = () => path.evaluate(() => new Promise((done) => setTimeout(done, 100)));

    const attempts = [
        ["<b>bold</b>", "<span>bold</span>"],
        ["<A HREF='Outline_3_12.html#5'>x</A>->", "<a href=\"Outline_3_12.html#5\">x</a> \u203a "],
        ["<IMG SRC='graphics/icons_tree_12.gif' onload='hacked=1'>", "<img src=\"graphics/icons_tree_12.gif\" alt=\"\">"],
        ["<a href='javascript:hacked=1'>x</a><a href='//example.org/a.html'>y</a><a href='../a.html'>z</a><a href='a.html.exe'>e</a>", "<span>x</span><span>y</span><span>z</span><span>e</span>"],
        ["<img src='x' onerror='hacked=1'><svg onload='hacked=1'></svg><iframe srcdoc='x'></iframe>", "<span></span><span></span><span></span>"],
        ["<script>hacked=1</script><style>*{color:red}</style>", ""],
    ];
    for (const [sent, shown] of attempts) {
        await post(centre, { place: "DocRoots", text: sent });
        await settled();
        assert.equal(await path.locator("#DocRoots").innerHTML(), shown);
    }
    const refused = [{ place: "other", text: "x" }, { place: "DocOwner", text: 5 }, { place: "DocOwner", text: "x".repeat(100001) }, "x", null];
    for (const message of refused) {
        await post(centre, message);
    }
    await post(path, { place: "DocOwner", text: "from itself" });
    await post(page.mainFrame(), { place: "DocOwner", text: "from the frameset" });
    // A page within a page of the site, as an advertisement would be.
    await centre.evaluate(() => {
        const inner = document.body.appendChild(document.createElement("IFRAME"));
        inner.srcdoc = "<script>for (let i = 0; i < top.frames.length; i++) top.frames[i].postMessage({ place: 'DocOwner', text: 'from within' }, '*')</script>";
    });
    // Another window that opened the site.
    const foreign = await page.context().newPage();
    const popup = foreign.waitForEvent("popup");
    await foreign.goto(pathToFileURL(`${sites.OldBook}/main.html`).href);
    await foreign.evaluate((address) => { window.opened = window.open(address); }, page.url());
    const second = await popup;
    await second.waitForLoadState();
    await ownerIs(second, title);
    await foreign.evaluate(() => {
        for (let i = 0; i < window.opened.length; i++) { window.opened[i].postMessage({ place: "DocOwner", text: "from a foreign window" }, "*"); }
    });
    await settled();
    assert.equal(await textOf(second.frame("frmTopLeft"), "DocOwner"), title);
    assert.equal(await textOf(path, "DocOwner"), title);
    assert.equal(await path.evaluate(() => window.hacked), undefined);
});

test("a top left frame that loads late still gets the path", async (t) => {
    const page = await visit(t);
    await showInCentre(page, "Outline_1_11.html");
    await ownerIs(page, `Descendants of ${nameOf(11)}`);
    await page.frame("frmTopLeft").goto(new URL("topleft.html", page.url()).href);
    await ownerIs(page, `Descendants of ${nameOf(11)}`);
});

test("the path shows on a web server too", async (t) => {
    const context = await browser.newContext();
    t.after(() => context.close());
    await context.route("http://site.example/**", (route) => route.fulfill({ path: path.join(sites.OldBook, new URL(route.request().url()).pathname) }));
    const page = await context.newPage();
    await page.goto("http://site.example/index.html#Outline_1_11.html");
    await ownerIs(page, `Descendants of ${nameOf(11)}`);
    assert.equal(await page.frame("frmTopLeft").locator("#DocRoots a").count(), 5);
});

test("a page opened on its own works and leads to its site", async (t) => {
    for (const file of ["Outline_1_11.html#12", "CTree_2_1.html", "PersPage_4.html", "NameIndex.html", "TreeList.html", "main.html"]) {
        const page = await visit(t, { page: file });
        assert.deepEqual(page.complaints, [], file);
        await page.locator(".in-site").click();
        await page.waitForURL(/index\.html/);
        const centre = page.frame("frmCenter");
        await centre.waitForURL((address) => address.href.endsWith(`/${file}`));
        assert.equal(await centre.locator(".in-site").count(), 0);
    }
    const page = await visit(t, { page: "index.html#javascript:hacked=1.html" });
    assert.match(page.frame("frmCenter").url(), /main\.html$/);
});

test("a page without a path shows its title in place of it", async (t) => {
    fs.writeFileSync(path.join(sites.OldBook, "PicPage1.html"), "<TITLE>Picnic &lt;1912&gt;</TITLE><SCRIPT SRC='sniffer.js'></SCRIPT><SCRIPT SRC='picpage.js'></SCRIPT><BODY>");
    const page = await visit(t);
    await showInCentre(page, "Outline_1_11.html");
    await ownerIs(page, `Descendants of ${nameOf(11)}`);
    for (const [file, title] of [["PicPage1", "Picnic <1912>"], ["NameIndex", "Index of names"], ["TreeList", "Family trees"], ["PersPage_3", nameOf(3)]]) {
        await showInCentre(page, `${file}.html`);
        await ownerIs(page, title);
        assert.equal(await textOf(page.frame("frmTopLeft"), "DocRoots"), "");
    }
});

test("blocks of a collapsible tree open and close by mouse and keyboard", async (t) => {
    const page = await visit(t);
    const tree = await showInCentre(page, "CTree_2_1.html");
    const state = (id) => tree.locator(`#OUT${id}`).evaluate((image) => [
        getComputedStyle(document.getElementById(`${image.id}D`)).display, image.getAttribute("src"), image.getAttribute("aria-expanded")]);
    const open = ["block", "graphics/collapse.gif", "true"];
    const closed = ["none", "graphics/expand.gif", "false"];
    const expander = tree.locator("#OUT2");
    const press = (name) => tree.getByRole("button", { name }).click();
    for (const [act, id, expected] of [
        [() => {}, 1, open], [() => {}, 2, closed], [() => expander.click(), 2, open], [() => expander.click(), 2, closed],
        [() => expander.press("Enter"), 2, open], [() => page.keyboard.press("Space"), 2, closed],
        [() => press("Open all"), 11, open], [() => press("Close all"), 1, closed],
    ]) {
        await act();
        assert.deepEqual(await state(id), expected, `${act}`);
    }
    // No empty lines stand between the lines, open or closed.
    await press("Open all");
    const lines = await tree.evaluate(() => [...document.querySelectorAll("NOBR B")].map((name) => name.getBoundingClientRect().top));
    const gaps = lines.slice(1).map((top, place) => top - lines[place]);
    assert.ok(Math.max(...gaps) < 1.6 * Math.min(...gaps), `line distances ${gaps}`);
    assert.equal(await tree.title(), `Descendants of ${nameOf(1)}`);
});

test("an anchor inside closed blocks opens them and marks the person", async (t) => {
    for (const screen of Object.values(screens)) {
        const page = await visit(t, { screen });
        const tree = await showInCentre(page, "CTree_2_1.html#11");
        const found = tree.locator(".found");
        await found.getByText(nameOf(11), { exact: true }).waitFor();
        await tree.waitForFunction(() => {
            const box = document.querySelector(".found").getBoundingClientRect();
            return box.left >= 0 && box.left < innerWidth * 0.7 && box.top >= 0 && box.bottom <= innerHeight;
        });
        await tree.evaluate(() => { location.hash = "3"; });
        await found.getByText(nameOf(3), { exact: true }).waitFor();
        assert.equal(await found.count(), 1);
    }
});

test("the index offers its letters and finds names as one types", async (t) => {
    const page = await visit(t);
    const index = await showInCentre(page, "NameIndex.html");
    const letters = await index.locator("#letters > *").evaluateAll((all) => all.map((letter) => [letter.textContent, letter.nodeName]));
    assert.equal(letters.length, 26);
    for (const [letter, node] of letters) {
        const heading = await index.locator(`a[name=index_${letter}]`).count();
        assert.equal(node === "A", heading === 1, letter);
    }
    const visible = () => index.locator("section > div:visible a[href^=PersPage]").allTextContents();
    assert.equal((await visible()).length, indexed.length);
    const cases = [["name2", indexed.filter((name) => name.includes("name2"))], ["jerome", [indexed[7]]],
        ["\u043a\u0430\u0440\u0435\u043d\u0438\u043d\u0430", [indexed[5]]], ["given name29", [indexed[29]]], ["nobody", []], ["", indexed]];
    for (const [typed, expected] of cases) {
        await index.locator("#filter").fill(typed);
        await index.locator("#count").getByText(expected.length === 1 ? "1 entry" : `${expected.length} entries`, { exact: true }).waitFor();
        assert.deepEqual((await visible()).sort(), [...expected].sort(), typed);
    }
    // Every entry keeps its icon links, and the icons keep their place behind the name.
    assert.equal(await index.locator("section > div:has(a[href^=PersPage]):has(img)").count(), indexed.length);
});

test("a keystroke in an index of 3,000 names is answered at once", async (t) => {
    const many = Array.from({ length: 3000 }, (_, place) => `${String.fromCharCode(65 + place % 26)}name${place}`);
    const folder = publish({ gedcom: treeOf(many), settings: { PersPages: 0 }, trees: [{ head: 1, display: "Outline" }] });
    t.after(() => discard(folder));
    const page = await openSite(browser, folder, screens.desktop, "NameIndex.html");
    t.after(() => page.context().close());
    const milliseconds = await page.evaluate(() => new Promise((done) => {
        const start = performance.now();
        const box = document.getElementById("filter");
        new MutationObserver(() => done(performance.now() - start)).observe(document.getElementById("count"), { childList: true });
        box.value = "name29";
        box.dispatchEvent(new Event("input"));
    }));
    assert.ok(milliseconds < 150, `${milliseconds} ms`);
    assert.equal(await page.locator("#count").textContent(), "111 entries");
});

test("text and links stand out from every shade of their ground", async (t) => {
    const luminance = (colour) => colour.map((value) => value / 255).map((value) => (value <= 0.04045 ? value / 12.92 : ((value + 0.055) / 1.055) ** 2.4))
        .reduce((sum, value, place) => sum + value * [0.2126, 0.7152, 0.0722][place], 0);
    for (const style of styles) {
        const page = await visit(t, { style });
        const picture = (name) => `data:image/gif;base64,${fs.readFileSync(path.join(share, "BgStyles", style, "graphics", name)).toString("base64")}`;
        const band = style === "OldBook" ? "leather.gif" : "table.gif";
        for (const [ground, frame, names] of [["center.gif", "frmCenter", ["ink", "link", "visited", "faint"]], [band, "frmTopLeft", ["band-ink", "band-link"]]]) {
            const shades = await page.frame(frame).evaluate(async ({ source, names }) => {
                const image = new Image();
                image.src = source;
                await image.decode();
                const canvas = Object.assign(document.createElement("canvas"), { width: image.width, height: image.height });
                const context = canvas.getContext("2d", { willReadFrequently: true });
                context.drawImage(image, 0, 0);
                const pixels = context.getImageData(0, 0, image.width, image.height).data;
                const grounds = new Set();
                for (let i = 0; i < pixels.length; i += 4) { grounds.add(pixels.slice(i, i + 3).join()); }
                const colours = names.map((name) => {
                    context.fillStyle = getComputedStyle(document.documentElement).getPropertyValue(`--${name}`).trim();
                    context.fillRect(0, 0, 1, 1);
                    return [...context.getImageData(0, 0, 1, 1).data.slice(0, 3)];
                });
                return { grounds: [...grounds].map((ground) => ground.split(",").map(Number)), colours };
            }, { source: picture(ground), names });
            shades.colours.forEach((colour, place) => {
                const worst = Math.min(...shades.grounds.map((shade) => {
                    const [dark, light] = [luminance(colour), luminance(shade)].sort((one, other) => one - other);
                    return (light + 0.05) / (dark + 0.05);
                }));
                assert.ok(worst >= 4.5, `${style}: ${names[place]} on ${ground} has a contrast of ${worst.toFixed(2)}`);
            });
        }
    }
});

test("pages print black on white", async (t) => {
    for (const style of styles) {
        const page = await visit(t, { style, page: "PersPage_4.html" });
        await page.emulateMedia({ media: "print" });
        const colours = await page.evaluate(() => ["H3", "TD", "A[HREF^=PersPage]", "B"].map((name) => getComputedStyle(document.querySelector(name)).color)
            .concat(getComputedStyle(document.body).backgroundColor, getComputedStyle(document.documentElement).backgroundImage));
        assert.deepEqual(colours, [...Array(4).fill("rgb(0, 0, 0)"), "rgb(255, 255, 255)", "none"], style);
    }
});

test("the templates hold plain ASCII and no placeholders but their own", () => {
    const own = { "ctreetop.html": ["TreeHeadName", "TreeIconFile"], "bottom.html": ["HomeLink", "Version", "Year"], "topright.html": ["CommonAncestor", "ListOfPicsLink", "Title4TreesIcon"],
        "main.html": ["EmblemFilename", "SiteTitle", "StartYourTour", "TitleStory"],
        "piclist.html": ["IndiId", "Name"], "thumbgalltop.html": ["ListPage", "PageOfPages", "PageOwner"], "picpagetop_rec.html": ["Title"], "picpagetop_arr.html": ["Title"] };
    own["picpagebot_nl.html"] = own["picpagebot_na.html"] = ["ModificationDate", "PicDescr", "PicHeight", "PicId", "PicWidth", "PictureDate", "PictureFilename", "Place", "Title"];
    for (const folder of ["html", ...styles.map((style) => `BgStyles/${style}`)]) {
        for (const name of fs.readdirSync(path.join(share, folder)).filter((file) => /\.(html|js)$/.test(file))) {
            const text = fs.readFileSync(path.join(share, folder, name), "latin1");
            assert.deepEqual([...new Set([...text.matchAll(/\$([A-Za-z][A-Za-z0-9]*)/g)].map((match) => match[1]))].sort(), own[name] ?? [], name);
            assert.doesNotMatch(text, /[^\x09\x0a\x0d\x20-\x7e]/, name);
        }
    }
});
