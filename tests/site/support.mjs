// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT

// What the browser tests of published sites share: Debian's Chromium, and a site opened from disk as a visitor would open it.
// playwright-core is found in node_modules beside this file or through NODE_PATH.

import { createRequire } from "node:module";
import path from "node:path";
import { fileURLToPath, pathToFileURL } from "node:url";

const { chromium } = createRequire(import.meta.url)("playwright-core");

export const share = fileURLToPath(new URL("../../share/", import.meta.url));

export const screens = {
    desktop: { viewport: { width: 1280, height: 900 } },
    phone: { viewport: { width: 390, height: 844 }, isMobile: true, hasTouch: true, deviceScaleFactor: 2 },
};

export function launch() {
    return chromium.launch({
        executablePath: process.env.CHROMIUM ?? "/usr/bin/chromium",
        args: ["--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run", "--disable-background-networking",
            "--disable-component-update", "--disable-sync"],
    });
}

// Opens a page of the site in `folder` in a browser window of its own; `screen` is one of `screens`, `page` may carry an anchor.
// The returned page has the list `complaints`: script errors, console errors and files that were not found.
export async function openSite(browser, folder, screen = screens.desktop, page = "index.html") {
    const context = await browser.newContext(screen);
    const opened = await context.newPage();
    opened.complaints = [];
    opened.on("pageerror", (error) => opened.complaints.push(String(error)));
    opened.on("console", (line) => line.type() === "error" && opened.complaints.push(line.text()));
    opened.on("requestfailed", (request) => opened.complaints.push(`${request.url()}: ${request.failure().errorText}`));
    const [file, anchor] = page.split(/#(.*)/);
    await opened.goto(pathToFileURL(path.join(folder, file)).href + (anchor ? `#${anchor}` : ""));
    return opened;
}

// Opens a page in the centre frame, as a link of the site would, and returns that frame.
export async function showInCentre(page, file) {
    const centre = page.frame("frmCenter");
    await centre.goto(new URL(file, page.url()).href);
    return centre;
}
