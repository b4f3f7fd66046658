#!/usr/bin/env node
// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT

// Publishes the sample family and takes the pictures of its site that the README and the manual show: docs/images/site.png, a tree, and
// beside it one of the pictures with a person found in it; docs/manual/images/charts.png, the two trees of rectangles. Needs what
// `tools/setup build test` installs, the built program and the built sample.

import fs from "node:fs";
import { fileURLToPath } from "node:url";
import { discard, publishSample } from "../tests/site/published.mjs";
import { launch, openSite, showInCentre } from "../tests/site/support.mjs";

const size = { width: 1000, height: 800 };
const site = publishSample("Default");
const browser = await launch();

async function shoot(file, prepare) {
    const page = await openSite(browser, site, { viewport: size });
    await prepare(await showInCentre(page, file));
    await page.frame("frmTopLeft").locator("#DocOwner").getByText(/Barnaby|Seven|Griffe/).waitFor();
    return (await page.screenshot()).toString("base64");
}

/** Puts two pages side by side into a file below docs. */
async function writePair(file, pictures) {
    const sheet = await browser.newPage({ viewport: { width: 2 * size.width + 24, height: size.height } });
    await sheet.setContent(`<body style="margin: 0; display: flex; gap: 24px">${pictures.map((data) => `<img src="data:image/png;base64,${data}">`).join("")}`);
    fs.writeFileSync(fileURLToPath(new URL(`../docs/${file}`, import.meta.url)), await sheet.screenshot());
}

/** The first page of the site's tree of this kind. */
function chart(kind) {
    return fs.readdirSync(site).find((file) => file.startsWith(`${kind}_`));
}

try {
    await writePair("images/site.png", [
        await shoot("Outline_1_1.html", (frame) => frame.locator(".line").first().waitFor()),
        await shoot("PicPage24.html", (frame) => frame.getByText("Whiskerton, Hugo", { exact: true }).hover()),
    ]);
    await writePair("manual/images/charts.png", [
        await shoot(chart("DescTree"), (frame) => frame.locator("svg").first().waitFor()),
        await shoot(chart("AncTree"), (frame) => frame.locator("svg").first().waitFor()),
    ]);
} finally {
    await browser.close();
    discard(site);
}
