// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT

// Publishes sites with the program itself, and reads what it wrote.

import { execFileSync } from "node:child_process";
import fs from "node:fs";
import os from "node:os";
import path from "node:path";
import { fileURLToPath } from "node:url";

const program = process.env.STEMWRIGHT_CLI ?? fileURLToPath(new URL("../../build/release/bin/stemwright-cli", import.meta.url));
export const data = fileURLToPath(new URL("../data/site/", import.meta.url));

// Imports `gedcom`, a file of tests/data/site or a whole GEDCOM text, into a new family file, changes its setup Default by `settings` (column: value), gives it
// `trees` ({head, display}), further `items` (a name, or a name and options) and an `album` (the words of command lines, FILE standing for the family file), and
// publishes it. Returns the folder of the site, which stands in a folder of
// its own together with the family file.
export function publish({ gedcom, settings = {}, trees, items = ["Birth", "Marriage", "Death"], album = [] }) {
    const folder = fs.mkdtempSync(path.join(os.tmpdir(), "stemwright-published-"));
    const file = path.join(folder, "family.kvf");
    const site = path.join(folder, "site");
    const run = runIn(folder);
    run("new", file);
    const text = gedcom.includes("\n") ? gedcom : fs.readFileSync(path.join(data, gedcom));
    fs.writeFileSync(path.join(folder, "tree.ged"), text);
    run("import", file, path.join(folder, "tree.ged"));
    run("setup", "set", file, "Default", ...Object.entries(settings).map(([column, value]) => `${column}=${value}`));
    for (const { head, display } of trees) {
        run("setup", "tree", file, "Default", "add", "--head", String(head), "--display", display);
    }
    for (const item of items) {
        run("setup", "items", file, "Default", "add", ...[item].flat(), "--in-tree");
    }
    for (const words of album) {
        run(...words.map((word) => (word === "FILE" ? file : word)));
    }
    run("publish", file, "--output", site);
    return site;
}

function runIn(folder) {
    return (...words) => execFileSync(program, ["--yes", ...words], {
        encoding: "utf8", stdio: ["ignore", "pipe", "pipe"], env: { ...process.env, XDG_CONFIG_HOME: path.join(folder, "settings") },
    });
}

// Publishes one of the sample family's sites in the same way.
export function publishSample(setup) {
    const folder = fs.mkdtempSync(path.join(os.tmpdir(), "stemwright-published-"));
    const file = path.join(folder, "felinity.kvf");
    const site = path.join(folder, "site");
    fs.copyFileSync(path.join(path.dirname(program), "../share/stemwright/felinity.kvf"), file);
    runIn(folder)("publish", file, "--setup", setup, "--output", site);
    return site;
}

export function discard(site) {
    fs.rmSync(path.dirname(site), { recursive: true });
}

// The names of all files of a site, with "/" between folder and file.
export function filesOf(site) {
    return fs.readdirSync(site, { withFileTypes: true }).flatMap((entry) =>
        (entry.isDirectory() ? filesOf(path.join(site, entry.name)).map((name) => `${entry.name}/${name}`) : [entry.name])).sort();
}

export function pagesOf(site) {
    return filesOf(site).filter((name) => name.endsWith(".html"));
}

// Every byte of a site as text, file names included, with character references and escapes of scripts read as a browser does.
export function wholeText(site) {
    const raw = filesOf(site).map((name) => `${name}\n${fs.readFileSync(path.join(site, name), "latin1")}`).join("\n");
    return raw
        .replace(/&#x([0-9a-f]+);?/gi, (_, digits) => String.fromCodePoint(parseInt(digits, 16)))
        .replace(/&#([0-9]+);?/g, (_, digits) => String.fromCodePoint(Number(digits)))
        .replace(/\\u([0-9a-f]{4})|\\x([0-9a-f]{2})/gi, (_, four, two) => String.fromCodePoint(parseInt(four ?? two, 16)))
        .replace(/%([0-9a-f]{2})/gi, (_, digits) => String.fromCodePoint(parseInt(digits, 16)));
}
