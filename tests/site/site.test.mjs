// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT

// Sites that the program published, opened from disk as their visitors open them.

import assert from "node:assert/strict";
import fs from "node:fs";
import path from "node:path";
import { after, before, test } from "node:test";
import { fileURLToPath, pathToFileURL } from "node:url";
import { data, discard, filesOf, pagesOf, publish, publishSample, wholeText } from "./published.mjs";
import { launch, openSite, screens, showInCentre } from "./support.mjs";

const oldBook = { PageStyle: 0 };
const memories = { PageStyle: 1 };
const outline = (head) => ({ head, display: "Outline" });
const collapsible = (head) => ({ head, display: "CollapsiTree" });
const descendants = (head) => ({ head, display: "Descendant Tree" });
const ancestors = (head) => ({ head, display: "Ancestor Tree" });

// Command lines for a picture with `texts` (options of "picture add") and the marks of `persons` and of typed `names`.
function picture(id, texts, persons, names = []) {
    const size = texts.marks === "rectangle" ? ",40,60" : "";
    const mark = (options, place) => ["mark", "add", "FILE", `${id}`, ...options, "--at", `${10 + 50 * place},20${size}`];
    return [["picture", "add", "FILE", `${data}squares.gif`, ...Object.entries(texts).flatMap(([option, text]) => [`--${option}`, text])],
        ...[...persons.map((person) => ["--person", `${person}`]), ...names.map((name) => ["--name", name])].map(mark)];
}
const frames = [{ names: "left", marks: "rectangle" }, { names: "above", marks: "arrow" }, { names: "above", marks: "rectangle" }];
const album = [...picture(1, { ...frames[0], title: "All of us" }, [1, 3], ["A stranger"]), ...picture(2, frames[1], [1]), ...picture(3, frames[2], [4]),
    ...Array.from({ length: 24 }, (_, place) => picture(4 + place, { ...frames[1], title: `No. ${place}` }, [3]).slice(0, 2)).flat()];
const hostile = {
    title: "\"><script>window.hacked=1</script> \u0410\u043d\u043d\u0430 \u0391\u03b8\u03ae\u03bd\u03b1 \u05e9\u05e8\u05d4 \u5c0f\u660e", place: "</script><script>window.hacked=1</script> \u041a\u0438\u0457\u0432 \u5317\u4eac $PicDescr",
    description: "<img src=x onerror=window.hacked=1> \u05d9\u05e8\u05d5\u05e9\u05dc\u05d9\u05dd\n' onmouseover='window.hacked=1 \"\u03a7\" $Title",
};
const hostileNames = ["\"><img src=x onerror=window.hacked=1>", "');window.hacked=1;(' \u039f\u03b4\u03c5\u03c3\u03c3\u03ad\u03b1\u03c2 \u05e9\u05e8\u05d4 \u0416\u0430\u043d"];
const hostileAlbum = frames.flatMap((frame, place) => picture(place + 1, { ...hostile, ...frame }, [1, 2, 3, 4], hostileNames));
// Persons 4, 5, 7, 8 and 12 to 14 of living.ged are protected, 3 and 9 are not.
const livingAlbum = [
    ...picture(1, { ...frames[0], title: "Ambrose and Zephyrine", place: "At Xanthia Yarborov's", description: "Ulalume (left)\nwith Ambrose" }, [3, 4, 7], ["Aunt Xanthia, n\u00e9e YARBOROV", "a friend"]),
    ...picture(2, { ...frames[1], title: "\u0416\u0438\u0432\u043e\u0441\u043b\u0430\u0432\u0430 and Ignatz at Hiddenham", date: "5 May 1993" }, [8, 13], ["a nurse"]),
    ...picture(3, { ...frames[2], title: "Hester" }, [12, 9, 3, 14]),
];

const kinds = {
    "one outline, personal pages": { gedcom: "thornbury.ged", settings: { ...oldBook, PersPages: 1, MaxGenOnPage: 3 }, trees: [outline(1)], album },
    "several trees, personal pages": { gedcom: "thornbury.ged", settings: { ...memories, PersPages: 1, MaxGenOnPage: 2 }, trees: [outline(1), collapsible(1), outline(3), descendants(1), ancestors(52)], album },
    "several trees, no personal pages": { gedcom: "thornbury.ged", settings: { ...oldBook, PersPages: 0, MaxGenOnPage: 2 }, trees: [collapsible(1), outline(1), ancestors(59)], album },
    "one descendant tree, no personal pages": { gedcom: "thornbury.ged", settings: { ...memories, PersPages: 0, MaxGenOnPage: 3 }, trees: [descendants(1)], album },
    "one collapsible tree, no personal pages": { gedcom: "thornbury.ged", settings: { ...memories, PersPages: 0, TitleStory: "<P>Long ago.</P>\n\n\n<P>And today.</P>" }, trees: [collapsible(1)] },
    "a subsite": { gedcom: "thornbury.ged", settings: { ...oldBook, PersPages: 1, Standalone: 0, HomePageName: "../family.kvf", TitleStory: "Long ago.\n\nAnd <b>today</b>." }, trees: [outline(1)] },
    "hostile texts, personal pages": { gedcom: "hostile.ged", settings: { ...oldBook, PersPages: 1, MaxGenOnPage: 2 }, trees: [outline(1), collapsible(1), descendants(1), ancestors(13)], album: hostileAlbum },
    "hostile texts, no personal pages": { gedcom: "hostile.ged", settings: { ...memories, PersPages: 0, MaxGenOnPage: 2 }, trees: [collapsible(1), outline(1), ancestors(13), descendants(1)], album: hostileAlbum },
    "living hidden": { gedcom: "living.ged", settings: { ...oldBook, PersPages: 1, HideLiving: 1, MaxPrivacyAge: 900 }, trees: [outline(1), collapsible(1), descendants(1), ancestors(11)], album: livingAlbum },
    "living hidden, no personal pages": { gedcom: "living.ged", settings: { ...memories, PersPages: 0, HideLiving: 1, MaxPrivacyAge: 900 }, trees: [descendants(1), ancestors(11)], album: livingAlbum },
    "living shown": { gedcom: "living.ged", settings: { ...oldBook, PersPages: 1, HideLiving: 0, MaxPrivacyAge: 900 }, trees: [descendants(1), ancestors(14)], album: livingAlbum },
    "the sample family's memories": { sample: "Memories of Whiskermoor", trees: [outline(1), collapsible(3), outline(5), collapsible(1), ancestors(24)] },
};
const sites = {};
let browser;

before(async () => {
    for (const [kind, recipe] of Object.entries(kinds)) {
        sites[kind] = recipe.sample ? publishSample(recipe.sample) : publish(recipe);
    }
    browser = await launch();
});

after(async () => {
    await browser?.close();
    Object.values(sites).forEach(discard);
});

async function visit(t, kind, { screen = screens.desktop, page = "index.html" } = {}) {
    const opened = await openSite(browser, sites[kind], screen, page);
    t.after(() => opened.context().close());
    return opened;
}

// What a document refers to, as the browser resolves it, and the anchors that it offers.
function referencesAndAnchors() {
    const of = (attribute) => [...document.querySelectorAll(`[${attribute}]`)].map((element) => ({
        url: new URL(element.getAttribute(attribute), document.baseURI).href, target: element.getAttribute("target"),
    }));
    return {
        references: ["href", "src", "background", "action"].flatMap(of),
        anchors: [...document.querySelectorAll("[id],[name]")].flatMap((element) => [element.id, element.getAttribute("name")]),
    };
}

// Whole references within the scripts of a page, which stand in no attribute until the script has run.
function referencesInScripts(site, name) {
    const text = fs.readFileSync(path.join(site, name), "latin1");
    const scripts = [...text.matchAll(/<script[^>]*>(.*?)<\/script>/gis)].map((found) => found[1]).join("\n");
    return [...scripts.matchAll(/\b(?:href|src)\s*=\s*\\?["']([^"'\\<>]+)\\?["'](?!\s*\+)/gi)]
        .map((found) => ({ url: new URL(found[1], pathToFileURL(path.join(site, name))).href, target: null }));
}

// The frameset, its small frames, and personal pages past the first ones, which are all made in one way.
const notInCentre = /^(index|topleft|topright|left|bottom|PersPage_\d*[2-9]\d)\.html$/;
const targets = [null, "", "_top", "_parent", "_self", "_blank", "frmTopLeft", "frmTopRight", "frmLeft", "frmCenter", "frmBottom"];

for (const kind of Object.keys(kinds)) {
    test(`nothing leads nowhere: ${kind}`, async (t) => {
        const site = sites[kind];
        const page = await visit(t, kind);
        const seen = {};
        for (const name of pagesOf(site)) {
            await page.goto(pathToFileURL(path.join(site, name)).href);
            seen[name] = await page.evaluate(referencesAndAnchors);
            seen[name].references.push(...referencesInScripts(site, name));
        }
        const frames = new Set(await page.goto(pathToFileURL(path.join(site, "index.html")).href).then(() => page.frames().map((frame) => frame.name())));
        const nowhere = [];
        let followed = 0;
        for (const [name, { references }] of Object.entries(seen)) {
            for (const { url, target } of references) {
                const complain = (why) => nowhere.push(`${name}: ${url} ${target ?? ""} ${why}`);
                if (!targets.includes(target) || (target?.startsWith("frm") && !frames.has(target))) {
                    complain("names no frame");
                }
                if (/^javascript:(showArrow\('\d+', '\d+'\)|hideArrow\(\);)$/.test(url)) {
                    continue;
                }
                if (/^mailto:\S+@\S+$/.test(url)) {
                    continue;
                }
                if (!url.startsWith("file:")) {
                    complain("leaves the site");
                    continue;
                }
                const address = new URL(url);
                const anchor = decodeURIComponent(address.hash.slice(1));
                address.hash = "";
                const file = path.relative(site, fileURLToPath(address));
                followed += 1;
                if (!fs.existsSync(path.join(site, file)) || (file.startsWith("..") && kind !== "a subsite")) {
                    complain("is not there");
                } else if (anchor && file !== "index.html" && !seen[file]?.anchors.includes(anchor)) {
                    complain("is an anchor that is not there");
                }
            }
        }
        assert.deepEqual(nowhere, []);
        const firstPage = fs.readFileSync(path.join(site, "main.html"), "latin1");
        assert.equal(firstPage.match(/<a\b/gi).length, firstPage.match(/<\/a>/gi).length, "links that begin and end");
        assert.ok(followed > 50, `only ${followed} links were found`);
        const linked = new Set(Object.values(seen).flatMap(({ references }) => references.map(({ url }) => path.relative(site, fileURLToPath(url.startsWith("file:") ? url.split("#")[0] : "file:///")))));
        assert.deepEqual(pagesOf(site).filter((name) => !linked.has(name) && name !== "index.html" && (name !== "TreeList.html" || kinds[kind].trees.length > 1)), [], "pages that nothing leads to");
    });

    test(`every page opens in its frame without a complaint: ${kind}`, async (t) => {
        const page = await visit(t, kind);
        for (const name of pagesOf(sites[kind]).filter((file) => !notInCentre.test(file))) {
            const centre = await showInCentre(page, name);
            assert.equal(await page.locator("frame").count(), 5);
            assert.ok((await centre.locator("body").innerText()).trim().length > 0, `${name} is empty`);
            for (const frame of page.frames()) {
                assert.equal(await frame.evaluate(() => window.hacked), undefined, `a script ran in ${frame.name()} with ${name}`);
            }
        }
        assert.deepEqual(page.complaints, []);
    });
}

test("the path of pages shows, page by page, and leads back", async (t) => {
    const kind = "several trees, personal pages";
    const page = await visit(t, kind);
    const pathFrame = page.frame("frmTopLeft");
    const deepest = { Outline: [], DescTree: [], AncTree: [] };
    for (const name of pagesOf(sites[kind]).filter((file) => /^(Outline|DescTree|AncTree)_/.test(file))) {
        const path = deepest[name.split("_")[0]];
        const centre = await showInCentre(page, name);
        const title = await centre.title();
        await pathFrame.locator("#DocOwner").getByText(title, { exact: true }).waitFor({ timeout: 5000 });
        await pathFrame.locator("#Icon img").waitFor();
        const roots = await pathFrame.locator("#DocRoots a").allTextContents();
        if (roots.length > path.length) {
            path.splice(0, Infinity, ...roots);
            await pathFrame.locator("#DocRoots a").first().click();
            const head = name.startsWith("AncTree") ? "Ancestors of Octavia Lockhart" : "Descendants of Josiah Thornbury";
            await pathFrame.locator("#DocOwner").getByText(head, { exact: true }).waitFor({ timeout: 5000 });
            assert.equal(await pathFrame.locator("#DocRoots a").count(), 0);
        }
    }
    for (const path of Object.values(deepest)) {
        assert.ok(path.length >= 2 && /Thornbury|Lockhart/.test(path[0]), `the longest path is ${path}`);
    }
    assert.deepEqual(page.complaints, []);
});

test("the paragraphs of the story stay apart, typed or tagged", async (t) => {
    for (const kind of ["a subsite", "one collapsible tree, no personal pages"]) {
        const page = await visit(t, kind);
        const story = await page.frame("frmCenter").locator(".story").innerText();
        assert.match(story.trim(), /^Long ago\.\n\nAnd today\.$/, kind);
    }
});

test("the parts of the site are reached from the upper frame", async (t) => {
    const page = await visit(t, "several trees, personal pages");
    const links = page.frame("frmTopRight").locator("a");
    assert.ok(await links.count() >= 3);
    for (let place = 0; place < await links.count(); place += 1) {
        const href = await links.nth(place).getAttribute("href");
        await links.nth(place).click();
        await page.frame("frmCenter").waitForURL((address) => address.href.endsWith(`/${href}`));
    }
});

// What of a hostile file has to show on its pages as it was typed.
const typed = {
    names: ["\"><script>window.hacked=1<", "\u0410\u0433\u0430\u0444\u044c\u044f \u041b\u044c\u0432\u043e\u0432\u043d\u0430", "\u039f\u03b4\u03c5\u03c3\u03c3\u03ad\u03b1\u03c2", "\u05e9\u05e8\u05d4", "\u5c0f\u660e",
        "\u{20bb7}", "Back\\slash \\u0041 \\\"", "O'Brien \"Bo\"", "A & B &amp; C &#65;", "<u>Bold<u>", "\"><img src=x onerror=window.hacked=1>", "\u017b\u00f3\u0142\u0107-\u00d1and\u00fa", "$TreeHeadName %1 %2", "${x} `y`",
        "'+window.hacked+'", "\u00dftra\u00dfe", "\u00deorl\u00e1ksd\u00f3ttir"],
    places: ["\"><script>window.hacked=1</script>, \u0391\u03b8\u03ae\u03bd\u03b1, \u041a\u0438\u0457\u0432, \u05d9\u05e8\u05d5\u05e9\u05dc\u05d9\u05dd, \u5317\u4eac", "<iframe src=javascript:window.top.hacked=1>"],
    title: "</script><script>window.hacked=1</script>Count",
};

for (const kind of Object.keys(kinds).filter((name) => name.startsWith("hostile"))) {
    test(`hostile and foreign texts show as typed: ${kind}`, async (t) => {
        const page = await visit(t, kind);
        const text = {};
        for (const name of pagesOf(sites[kind]).filter((file) => /^(Outline|CTree|DescTree|AncTree|PersPage|NameIndex|TreeList|Pic|ListOfPics|Thumbs)/.test(file))) {
            const centre = await showInCentre(page, name);
            const prefix = name.match(/^[A-Za-z]+/)[0];
            text[prefix] = `${text[prefix] ?? ""}\n${await centre.evaluate(() => document.body.textContent.replace(/\u00a0/g, " "))}`;
            if (/^(Outline|CTree|DescTree)_._1\.html$/.test(name)) {
                const owner = `Descendants of ${typed.title} ${typed.names[0]} script>`;
                await page.frame("frmTopLeft").locator("#DocOwner").getByText(owner, { exact: true }).waitFor({ timeout: 5000 });
            }
        }
        const expected = {
            ...Object.fromEntries(["Outline", "CTree", "DescTree"].map((prefix) => [prefix, [...typed.names, ...typed.places, typed.title]])),
            AncTree: [typed.names[0], "'+window.hacked+'", "\u00dftra\u00dfe"],
            NameIndex: typed.names, TreeList: [typed.names[0]],
            PicPage: [hostile.title, hostile.place, ...hostile.description.split("\n"), ...hostileNames, typed.names[0]],
            PicList: [hostile.title, hostile.place, typed.title, typed.names[0]], ListOfPics: [hostile.title, hostile.place], Thumbs: [hostile.title, typed.title],
            ...(kinds[kind].settings.PersPages ? { PersPage: [...typed.names, ...typed.places] } : {}),
        };
        for (const [prefix, pieces] of Object.entries(expected)) {
            assert.deepEqual(pieces.filter((piece) => !text[prefix]?.includes(piece)), [], `missing on the pages ${prefix}`);
        }
        assert.deepEqual(page.complaints, []);
    });
}

// Names, dates and places that only protected persons of living.ged have, and their children.
const secrets = ["Zephyrine", "Quillander", "Xanthia", "Yarborov", "Ulalume", "\u0416\u0438\u0432\u043e\u0441\u043b\u0430\u0432\u0430", "\u041f\u043e\u0442\u0430\u0451\u043d\u043d\u0430\u044f", "Zolt\u00e1n", "\u00d6bsc\u00fcrsson", "Ignatz",
    "Nebelkind", "Dorothea", "Hiddenham", "Veilchester", "1961", "1963", "1985", "1987", "1989", "1991", "1993", "2011", "1979", "1983", "2009",
    "17 Jul", "23 Oct", "11 Nov", "19 Sep", "5 May", "13 Dec", "14 Apr", "15 May", "24 Sep", "27 Aug", "28 Feb"];
const holds = (text, secret) => new RegExp(`(?<![0-9])${secret}(?![0-9])`, "iu").test(text);

test("with living people hidden, nothing of them stands anywhere", () => {
    for (const kind of ["living hidden", "living hidden, no personal pages"]) {
        const text = wholeText(sites[kind]);
        assert.deepEqual(secrets.filter((secret) => holds(text, secret)), [], kind);
        assert.deepEqual(filesOf(sites[kind]).filter((name) => /^(PersPage_|PicList|Thumbs_)(4|5|7|8|12|13|14)\D|^(Pic|PicPage|Thumb_)2\./.test(name)), []);
        assert.ok(["Josiah", "Susannah", "Ambrose", "Hester", "Silas", "Felix", "9 Jun 1920", "a friend", "PicPage3"].every((shown) => holds(text, shown)), kind);
    }
});

test("the sample family's memories name nobody who is alive", () => {
    const cats = fs.readFileSync(new URL("../../samples/felinity.ged", import.meta.url), "utf8").split(/\n(?=0 )/).filter((record) => record.startsWith("0 @I"));
    const [dead, living] = [true, false].map((wanted) => cats.filter((record) => /^1 DEAT/m.test(record) === wanted));
    const names = living.map((record) => /^1 NAME ([^/\n]*\S)/m.exec(record)[1]).filter((name) => name.length > 4 && !dead.some((record) => record.includes(name)));
    const text = wholeText(sites["the sample family's memories"]);
    assert.ok(names.length > 20 && holds(text, "Augustus"));
    assert.deepEqual(names.filter((name) => holds(text, name)), []);
});

test("with living people shown, the search above would find them", () => {
    const text = wholeText(sites["living shown"]);
    assert.deepEqual(secrets.filter((secret) => !holds(text, secret)), []);
});
