// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT

// Trees of rectangles as a browser sets them: where the rectangles are, and what the lines between them join.

import assert from "node:assert/strict";
import path from "node:path";
import { after, before, test } from "node:test";
import { pathToFileURL } from "node:url";
import { discard, pagesOf, publish } from "./published.mjs";
import { launch, openSite, screens, showInCentre } from "./support.mjs";

// A family as a list of persons (the place is the number, from 1 on) and of families.
class Family {
    persons = [];
    families = [];
    person(name, sex, more = []) {
        this.persons.push({ name, sex, more });
        return this.persons.length;
    }
    family(husband, wife, children) {
        this.families.push({ husband, wife, children });
        return children;
    }
    gedcom() {
        const links = (number, role) => this.families.flatMap((family, place) => (role(family).includes(number) ? [place + 1] : []));
        return ["0 HEAD", "1 CHAR UTF-8",
            ...this.persons.flatMap(({ name, sex, more }, place) => [`0 @I${place + 1}@ INDI`, `1 NAME ${name}`, `1 SEX ${sex}`, ...more,
                ...links(place + 1, ({ husband, wife }) => [husband, wife]).map((family) => `1 FAMS @F${family}@`),
                ...links(place + 1, ({ children }) => children).map((family) => `1 FAMC @F${family}@`)]),
            ...this.families.flatMap(({ husband, wife, children }, place) => [`0 @F${place + 1}@ FAM`, `1 HUSB @I${husband}@`, `1 WIFE @I${wife}@`,
                ...children.map((child) => `1 CHIL @I${child}@`)]), "0 TRLR", ""].join("\n");
    }
}

const longNames = ["Wolfeschlegelsteinhausenbergerdorff /Hubert-Blaine/", "Mary Elizabeth Alexandra Wilhelmina Augusta /von und zu Hohenlohe-Schillingsf\u00fcrst/", "\u0410\u0433\u0430\u0444\u044c\u044f \u041b\u044c\u0432\u043e\u0432\u043d\u0430 /\u041a\u0430\u0440\u0435\u043d\u0438\u043d\u0430/",
    "\u5c0f\u660e\u592a\u90ce /\u6b50\u967d\u6b50\u967d\u6b50\u967d\u6b50\u967d\u6b50\u967d/", "\u05e9\u05e8\u05d4 \u05d1\u05ea\u05be\u05e9\u05d1\u05e2 /\u05db\u05d4\u05df/", "\u0645\u062d\u0645\u062f \u0628\u0646 \u0639\u0628\u062f /\u0627\u0644\u0644\u0647/", "\u0936\u094d\u0930\u0940\u092e\u0924\u0940 /\u091a\u0924\u0941\u0930\u094d\u0935\u0947\u0926\u0940/", "Iiii Llll /Mmmm Wwww/"];
const birth = ["1 BIRT", "2 DATE ABT 12 SEP 1746", "2 PLAC Kensington Palace,London,Middlesex,England", "1 DEAT", "2 DATE 1811", "2 PLAC M\u00fcnchen"];

// Twelve children, some married several times, and a line of nine generations.
function twelveChildren() {
    const family = new Family();
    const head = [family.person("Adam /Trunk/", "M", birth), family.person("Eve /Stem/", "F")];
    const children = family.family(...head, Array.from({ length: 12 }, (_, place) => family.person(longNames[place % longNames.length], "M", place % 3 ? birth : [])));
    children.forEach((child, place) => {
        for (let marriage = 0; marriage < place % 4; marriage += 1) {
            const wife = family.person(`Wife ${marriage} ${longNames[(place + marriage) % longNames.length]}`, "F", birth);
            family.family(child, wife, Array.from({ length: (place + marriage) % 6 }, (_, number) => family.person(`Grandchild ${place}.${marriage}.${number} /Trunk/`, "F")));
        }
    });
    for (let heir = children[4], generation = 3; generation <= 9; generation += 1) {
        [heir] = family.family(heir, family.person(`Wife /Of ${generation}/`, "F"), [family.person(`Heir ${generation} /Trunk/`, "M", birth)]);
    }
    return family;
}

// Nine generations of ancestors, in which the parents of the father's father are those of the mother's father too.
function pedigree() {
    const family = new Family();
    const grow = (generation, sex) => {
        const person = family.person(longNames[family.persons.length % longNames.length], sex, birth);
        if (generation < 6 || (generation < 9 && sex === "M")) {
            family.family(grow(generation + 1, "M"), grow(generation + 1, "F"), [person]);
        }
        return person;
    };
    grow(1, "M");
    const parents = (child) => family.families.find(({ children }) => children.includes(child));
    const [father, mother] = [parents(1).husband, parents(1).wife];
    const [doubled, lost] = [parents(parents(father).husband), parents(parents(mother).husband)];
    doubled.children.push(parents(mother).husband);
    lost.children = [];
    return family;
}

const kinds = {
    "twelve children, on one page": { family: twelveChildren(), display: "Descendant Tree", settings: { PersPages: 1, MaxGenOnPage: 9, PageStyle: 0 } },
    "twelve children, page by page": { family: twelveChildren(), display: "Descendant Tree", settings: { PersPages: 0, MaxGenOnPage: 3, PageStyle: 1 } },
    "a pedigree, on one page": { family: pedigree(), display: "Ancestor Tree", settings: { PersPages: 1, MaxGenOnPage: 9, PageStyle: 1 } },
    "a pedigree, page by page": { family: pedigree(), display: "Ancestor Tree", settings: { PersPages: 0, MaxGenOnPage: 4, PageStyle: 0 } },
};
let browser;
const sites = {};

before(async () => {
    for (const [kind, { family, display, settings }] of Object.entries(kinds)) {
        sites[kind] = publish({ gedcom: family.gedcom(), settings, trees: [{ head: 1, display }], items: [["Birth", "--before", "b. ", "--before-place", ", "], "Death"] });
    }
    browser = await launch();
});

after(async () => {
    await browser?.close();
    Object.values(sites).forEach(discard);
});

// The rectangles, with the number of the person who has an anchor there and with their texts' extents, and the lines.
function measure() {
    const cells = [...document.querySelectorAll(".cell")].map((cell) => {
        const { left, top, right, bottom } = cell.getBoundingClientRect();
        const range = document.createRange();
        range.selectNodeContents(cell);
        const texts = [...range.getClientRects(), ...[...cell.querySelectorAll("img")].map((image) => image.getBoundingClientRect())]
            .map((box) => ({ left: box.left, top: box.top, right: box.right, bottom: box.bottom }));
        return { left, top, right, bottom, texts, text: cell.textContent, person: Number(cell.querySelector("a[name]")?.getAttribute("name")) };
    });
    const lines = [...document.querySelectorAll(".stripe path")].flatMap((path) => {
        const { left, top } = path.ownerSVGElement.getBoundingClientRect();
        return [...path.getAttribute("d").matchAll(/M(\d+) (\d+)([HV])(\d+)/g)].map(([, x, y, way, end]) => ({
            left: left + Number(x), top: top + Number(y), right: left + Number(way === "H" ? end : x), bottom: top + Number(way === "V" ? end : y),
        }));
    });
    return { cells, lines };
}

const touches = (one, other, slack = 0.6) =>
    one.left <= other.right + slack && other.left <= one.right + slack && one.top <= other.bottom + slack && other.top <= one.bottom + slack;
const overlap = (one, other) => one.left < other.right - 0.5 && other.left < one.right - 0.5 && one.top < other.bottom - 0.5 && other.top < one.bottom - 0.5;

// What hangs together by lines: for each set of lines that touch, the cells which they reach.
function joined({ cells, lines }) {
    const rest = new Set(lines);
    const sets = [];
    for (const first of lines) {
        const group = rest.delete(first) ? [first] : [];
        for (const line of group) {
            for (const other of rest) {
                if (touches(line, other)) {
                    rest.delete(other);
                    group.push(other);
                }
            }
        }
        if (group.length) {
            sets.push(cells.filter((cell) => group.some((line) => touches(line, cell))));
        }
    }
    return sets;
}

// The sets of persons that lines may join: a person with all spouses, a couple's spouse with their children, a child with the parents.
function relatives({ families, persons }, display) {
    if (display === "Ancestor Tree") {
        return families.flatMap(({ husband, wife, children }) => children.map((child) => new Set([child, husband, wife])));
    }
    const marriages = persons.map((_, place) => new Set(families.flatMap(({ husband, wife }) => (husband === place + 1 ? [husband, wife] : []))));
    return [...families.map(({ wife, children }) => new Set([wife, ...children])), ...marriages];
}

for (const [kind, { family, display }] of Object.entries(kinds)) {
    test(`nothing overlaps and lines join relatives: ${kind}`, async () => {
        const allowed = relatives(family, display);
        const counts = { cells: 0, joins: 0 };
        for (const screen of Object.values(screens)) {
            const context = await browser.newContext(screen);
            const page = await context.newPage();
            for (const name of pagesOf(sites[kind]).filter((file) => /^(DescTree|AncTree)_/.test(file))) {
                await page.goto(pathToFileURL(path.join(sites[kind], name)).href);
                const chart = await page.evaluate(measure);
                const at = (cell) => `${name}: ${cell.text}`;
                chart.cells.forEach((cell, place) => {
                    assert.deepEqual(chart.cells.slice(0, place).filter((other) => overlap(cell, other)).map(at), [], `overlaps ${at(cell)}`);
                    assert.ok(cell.texts.every((text) => text.left >= cell.left && text.right <= cell.right + 0.5 && text.top >= cell.top && text.bottom <= cell.bottom), `the text of ${at(cell)} leaves its rectangle`);
                });
                const sets = joined(chart);
                for (const set of sets) {
                    const persons = set.map(({ person }) => person).filter(Boolean);
                    assert.ok(set.length > 1 && allowed.some((group) => persons.every((person) => group.has(person))), `joined: ${set.map(at).join(" | ")}`);
                }
                const reached = new Set(sets.flat());
                assert.ok(chart.cells.length === 1 || chart.cells.every((cell) => reached.has(cell)), `${name} has a rectangle without a line`);
                counts.cells += chart.cells.length;
                counts.joins += sets.length;
            }
            await context.close();
        }
        assert.ok(counts.cells > 2 * 60 && counts.joins > 2 * 20, JSON.stringify(counts));
    });
}

test("the head is in view at first, and so is who was asked for", async () => {
    for (const screen of Object.values(screens)) {
        const page = await openSite(browser, sites["a pedigree, on one page"], screen);
        for (const [address, person] of [["AncTree_1_1.html", "1"], ["AncTree_1_1.html#9", "9"]]) {
            const centre = await showInCentre(page, address);
            await centre.waitForFunction((name) => {
                const { left, top, right, bottom } = document.getElementsByName(name)[0].closest(".cell").getBoundingClientRect();
                return left >= 0 && top >= 0 && right <= innerWidth && bottom <= innerHeight;
            }, person, { timeout: 5000 });
        }
        await page.context().close();
    }
});

test("a sheet of paper begins with whole rectangles", async () => {
    const page = await browser.newPage();
    for (const [kind, name] of [["twelve children, on one page", "DescTree_1_1.html"], ["a pedigree, page by page", "AncTree_1_1.html"]]) {
        await page.goto(pathToFileURL(path.join(sites[kind], name)).href);
        await page.emulateMedia({ media: "print" });
        const stripes = await page.evaluate(() => [...document.querySelectorAll(".stripe")].map((stripe) => {
            // Paper is filled with boxes as they are laid out, before any transformation.
            const whole = [...stripe.querySelectorAll(".cell")].every((cell) => cell.offsetTop >= -1 && cell.offsetTop + cell.offsetHeight <= stripe.offsetHeight + 1);
            return { height: stripe.getBoundingClientRect().height, whole, kept: getComputedStyle(stripe).breakInside };
        }));
        assert.ok(stripes.length > 1 && stripes.every(({ height, whole, kept }) => whole && kept === "avoid" && height < 700), JSON.stringify(stripes));
        const width = await page.evaluate(() => document.querySelector(".chart").getBoundingClientRect().width);
        assert.ok(width <= 961, `the chart is ${width} wide on paper`);
    }
    await page.close();
});
