#!/usr/bin/env node
// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT

// Publishes the imaginary family of tests/data/site and takes the README's picture of its site, docs/images/site.png. Needs what
// `tools/setup build test` installs and the built program.

import { fileURLToPath } from "node:url";
import { discard, publish } from "../tests/site/published.mjs";
import { launch, openSite, screenshot, showInCentre } from "../tests/site/support.mjs";

const site = publish({
    gedcom: "thornbury.ged",
    settings: { PageStyle: 0, PersPages: 1, MaxGenOnPage: 3, SiteTitle: "The Thornburys of Ashcombe" },
    trees: [{ head: 1, display: "Outline" }, { head: 1, display: "CollapsiTree" }],
    items: [["Birth", "b."], ["Marriage", "m."], ["Death", "d."]].map(([item, sign]) => [item, "--before", ` ${sign} `, "--before-place", ", "]),
});
const browser = await launch();
try {
    const page = await openSite(browser, site, { viewport: { width: 1080, height: 640 } });
    await showInCentre(page, "Outline_1_1.html");
    await page.frame("frmTopLeft").locator("#DocOwner").getByText("Josiah").waitFor();
    await screenshot(page, fileURLToPath(new URL("../docs/images/site.png", import.meta.url)));
} finally {
    await browser.close();
    discard(site);
}
