// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT

// Builds a small site from the templates of share/, so that the templates and their scripts can be tested without the program.

import fs from "node:fs";
import os from "node:os";
import path from "node:path";
import { share } from "./support.mjs";

// Names as their owners may type them, and as they must show.
export const hostile = [
    "\"><script>window.hacked=1</script>", "</script><script>window.hacked=1</script>", "Back\\slash \\u0041 'quoted' \"twice\"",
    "\u0410\u043d\u043d\u0430 \u041a\u0430\u0440\u0435\u043d\u0438\u043d\u0430", "<img src=x onerror=window.hacked=1>", "J\u00e9r\u00f4me & S\u00f8nner",
];

const entities = { "&": "&amp;", "<": "&lt;", ">": "&gt;" };

// Text as it stands in a page of single bytes.
export function html(text) {
    return text.replace(/[&<>]/g, (sign) => entities[sign]).replace(/[^\x20-\x7e\t\r\n]/gu, (sign) => `&#${sign.codePointAt(0)};`);
}

// Text as it stands in a double-quoted string of a script, from where it is read as HTML.
export function script(text) {
    return html(text).replace(/\\/g, "\\\\").replace(/"/g, "\\\"");
}

function fill(folder, template, values) {
    let text = fs.readFileSync(path.join(share, template), "latin1");
    for (const [name, value] of Object.entries(values)) {
        text = text.replaceAll(`$${name}`, () => value);
    }
    fs.writeFileSync(path.join(folder, path.basename(template)), text, "latin1");
    return text;
}

const icon = (person) => `<A HREF="Outline_1_1.html#${person.id}" TARGET="frmCenter" TITLE="This person's entry in Outline of 'x'">` +
    `<IMG SRC="graphics/icons_tree_09.gif" ALIGN="ABSMIDDLE" VSPACE="0" BORDER="0"></A>`;
const link = (person) => ` <A HREF="PersPage_${person.id}.html">${html(person.name)}</A>&nbsp;${icon(person)}`;

function outlinePage(owners, people, deep) {
    const owner = owners.at(-1);
    const roots = owners.slice(0, -1).map((above) => `<A HREF='Outline_1_${above.id}.html'>${script(above.name)}</A>->`).join("");
    const lines = people.map((person, place) => {
        const generation = deep ? place + 1 : Math.min(place + 1, 4);
        const dots = ".".repeat((generation - 1) * 8);
        const links = place % 5 === 2 ? `<A HREF="mailto:a@example.org"><IMG SRC="graphics/email.gif" ALT="Send Email to This Person" ALIGN="Absmiddle" VSPACE="0" BORDER="0"></A>` +
            `<A HREF="PicPage1.html"><IMG SRC="graphics/photo.gif" ALT="Picture with This Person" ALIGN="Absmiddle" VSPACE="0" BORDER="0"></A>` +
            `<A HREF="Outline_1_2.html"><IMG SRC="graphics/desc.gif" ALT="This Person's Descendants" ALIGN="Absmiddle" VSPACE="0" BORDER="0"></A>` : "";
        return `<BR><NOBR><FONT SIZE="-1">${dots}<B>${generation}</B>&nbsp;&nbsp;<A HREF = "PersPage_${person.id}.html" TITLE="This Individual's Personal Page"><B>${html(person.name)}</B></A>` +
            ` b. 12 Mar 18${10 + place}, Kirkby Lonsdale, Westmorland<A NAME="${person.id}"></A>${links}</FONT>\r\n` +
            `<BR><FONT SIZE="-1">${dots}&nbsp;&nbsp;&nbsp;&nbsp;<B>+ </B>Anne of the House by the River d. 3 May 1901</FONT>`;
    });
    return `<HTML>\r\n<HEAD>\r\n<TITLE>Descendants of ${html(owner.name)}</TITLE>\r\n<META HTTP_EQUIV="Content-Type" CONTENT="text/html; charset=iso-8859-1">\r\n` +
        `<SCRIPT LANGUAGE="JavaScript" SRC="sniffer.js"></SCRIPT>\r\n<SCRIPT LANGUAGE="JavaScript">\r\n<!-- ;\r\n\tfunction init()\r\n\t{\r\n\t\tif (is_ie5up || is_gecko)\r\n\t\t{\r\n` +
        `\t\t\tparent.frames["frmTopLeft"].document.getElementById("DocRoots").innerHTML = "${roots}";\r\n` +
        `\t\t\tparent.frames["frmTopLeft"].document.getElementById("DocOwner").innerHTML = "Descendants of ${script(owner.name)}";\r\n` +
        `\t\t\tparent.frames["frmTopLeft"].document.getElementById("Icon").innerHTML = "<IMG SRC='graphics/icons_tree_09.gif'>";\r\n` +
        `\t\t}\r\n\t}\r\n// end hide -->\r\n</SCRIPT>\r\n</HEAD>\r\n<BODY BGCOLOR="#FFFFFF" onLoad="init()" BACKGROUND="graphics/center.gif">\r\n<BASEFONT FACE="Times New Roman">\r\n` +
        `${lines.join("\r\n")}\r\n</FONT>\r\n</BODY>\r\n</HTML>\r\n`;
}

// Each person is the parent of the next, so the last ones stand many blocks deep; the head has a younger child besides.
function collapsiblePage(top, people) {
    const lines = people.map((person, place) => {
        const generation = place + 1;
        const indent = "&nbsp;".repeat(generation === 1 ? 1 : (generation - 2) * 12 + 7);
        const leaf = place === people.length - 1;
        const expander = leaf ? "&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;"
            : `<IMG ID="OUT${person.id}" SRC="graphics/expand.gif" onclick = "clickExpander(this)">&nbsp;&nbsp;`;
        const block = leaf ? "" : `<DIV ID="OUT${person.id}D" STYLE="display: none">\r\n<BR>${indent}&nbsp;&nbsp;&nbsp;&nbsp;<B>+ Mary Ann</B> `;
        return `<BR>${indent}${expander}<B>${generation}&nbsp;<A HREF = "PersPage_${person.id}.html" TITLE="This Individual's Personal Page">${html(person.name)}</A></B> b. 1850<A NAME="${person.id}"></A>${block}\r\n`;
    });
    const younger = `<BR>${"&nbsp;".repeat(12)}<B>2&nbsp;Younger Child</B> <A NAME="999"></A>\r\n`;
    return `${top}${lines.join("")}${"</DIV>\r\n".repeat(people.length - 2)}${younger}</DIV>\r\n</SPAN>\r\n</NOBR>\r\n</BODY>\r\n</HTML>\r\n`;
}

function indexPage(top, people) {
    let letter = "";
    const sorted = people.slice().sort((one, other) => (one.name < other.name ? -1 : 1));
    const entries = sorted.map((person) => {
        const first = person.name[0];
        const heading = /[A-Z]/.test(first) && first !== letter ? `<BR><BR><H2><A NAME="index_${first}">${first}</A></H2>\r\n` : "";
        letter = heading ? first : letter;
        return `${heading}<BR><A HREF = "PersPage_${person.id}.html" TITLE="This individual's personal page">${html(person.name)}</A> (1850-1921)<BR>${icon(person)}\r\n`;
    });
    return `${top}${entries.join("")}</FONT>\r\n</NOBR>\r\n</BODY>\r\n</HTML>\r\n`;
}

function personalPage(top, people, place) {
    const person = people[place];
    const above = people.slice(Math.max(0, place - 3), place).reverse();
    const table = "<TABLE WIDTH=\"100%\" BORDER=\"1\" CELLPADDING = \"2\"  CELLSPACING=\"0\">";
    const head = (...cells) => `<TR>${cells.map((cell) => `<TH${cell === "Date" ? " WIDTH=\"20%\"" : ""}>${cell}</TH>`).join("")}</TR>`;
    const child = people[place + 1];
    return `${top}<H3>${html(person.name)}&nbsp;${icon(person)}</H3>\r\n` +
        (above.length ? `<B>Descendant of:</B>\r\n<HR COLOR="BLACK">\r\n${above.map((parent, i) => `<DIV>${above.length - i}${link(parent)}</DIV>`).join("\r\n")}\r\n<BR>` : "") +
        `<BR><BR><B>Personal Data:</B>\r\n<HR COLOR="BLACK">\r\n${table}${head("Item", "Date", "Place/Description")}<TR><TD>Birth</TD><TD> 12 Mar 1850</TD><TD>Kirkby Lonsdale, Westmorland</TD></TR></TABLE>` +
        (place ? `<BR><BR><B>Parents:</B>\r\n<HR COLOR="BLACK">\r\n${table}${head("Parent", "Name", "Relationship")}<TR><TD>Father</TD><TD>${link(people[place - 1])}</TD><TD>&nbsp;</TD></TR><TR><TD>Mother</TD><TD>&lt;Unknown&gt;</TD><TD>&nbsp;</TD></TR></TABLE>` : "") +
        `<BR><B>Partnerships:</B>\r\n<HR COLOR="BLACK">\r\n<BR><I>1. ${link(people[(place + 7) % people.length])}${table}${head("Event/Description", "Date", "Place/Status")}<TR><TD>Marriage</TD><TD> 1 Jun 1875</TD><TD>&nbsp;</TD></TR></TABLE>` +
        (child ? `<TABLE WIDTH="100%" CELLPADDING="2" CELLSPACING="0"><TR>\t<TD WIDTH="10%"></TD>\t<TD WIDTH="10%">Daughter:</TD>\t<TD WIDTH="35%">${link(child)}</TD>\t<TD>Born: 3 May 1880</TD></TR></TABLE>` : "") +
        `<BR><B>Contact Info:</B>\r\n<HR COLOR="BLACK">\r\n<TABLE WIDTH="80%" CELLPADDING="2" CELLSPACING="0"><TR><TD>Email address:</TD><TD><A HREF="mailto:somebody.with.a.long.address@example.org">somebody.with.a.long.address@example.org</A></TD></TR></TABLE>\r\n`;
}

// `people` are {id, name}; the first is the head of the tree, and each of the first twelve the parent of the next.
export function buildSite(style, people) {
    const folder = fs.mkdtempSync(path.join(os.tmpdir(), "stemwright-site-"));
    const write = (name, text) => fs.writeFileSync(path.join(folder, name), text, "latin1");
    fs.cpSync(path.join(share, "graphics"), path.join(folder, "graphics"), { recursive: true });
    fs.cpSync(path.join(share, "BgStyles", style, "graphics"), path.join(folder, "graphics"), { recursive: true });
    for (const name of ["sniffer.js", "picpage.js", "topleft.html"]) {
        fs.copyFileSync(path.join(share, "html", name), path.join(folder, name));
    }
    fs.copyFileSync(path.join(share, "BgStyles", style, "left.html"), path.join(folder, "left.html"));
    fs.copyFileSync(path.join(share, "BgStyles", style, "tree.html"), path.join(folder, "index.html"));
    fs.copyFileSync(path.join(share, "graphics/tree.gif"), path.join(folder, "emblem.gif"));
    const phrase = "at the <A HREF=\"TreeList.html\">list</A> of family trees";
    fill(folder, `BgStyles/${style}/bottom.html`, { HomeLink: "<A HREF=\"../index.html\"><IMG SRC=\"graphics/btn_home.gif\" ALT=\"Home\" BORDER=0 ALIGN=LEFT></A>", Version: "3.0", Year: "2002" });
    fill(folder, `BgStyles/${style}/topright.html`, { CommonAncestor: phrase, Title4TreesIcon: "List of family trees",
        ListOfPicsLink: "<A HREF=\"ListOfPics.html\"><IMG SRC=\"graphics/btn_pic.gif\" VSPACE=\"0\" BORDER=\"0\" ALT=\"List of Pictures\"></A>" });
    fill(folder, `BgStyles/${style}/main.html`, { TitleStory: "This site contains our family tree and pictures. The tree and the pictures are cross-linked: you can go from an individual in the family tree to his/her picture and vice versa.",
        SiteTitle: "Family Tree and Photo Album", EmblemFilename: "emblem.gif",
        StartYourTour: `Start your tour at the <A HREF="NameIndex.html">index</A> of names, ${phrase} or at the <A HREF="ListOfPics.html">list of pictures.` });
    const line = people.slice(0, 12);
    write("Outline_1_1.html", outlinePage([people[0]], people, false));
    write("Outline_1_12.html", outlinePage(line, line, true));
    write("CTree_2_1.html", collapsiblePage(fill(folder, "html/ctreetop.html", { TreeHeadName: script(people[0].name), TreeIconFile: "graphics/icons_tree_03.gif" }), line));
    write("NameIndex.html", indexPage(fs.readFileSync(path.join(share, "html/nameindextop.html"), "latin1"), people));
    write("TreeList.html", `${fs.readFileSync(path.join(share, "html/treelisttop.html"), "latin1")}${["Outline_1_1", "CTree_2_1"].map((page, i) =>
        `<TR>\r\n\t<TD>\r\n\t\t1\r\n\t</TD>\r\n\t<TD>\r\n\t\t${html(people[0].name)}\r\n\t</TD>\r\n\t<TD>\r\n\t\t${["Outline", "CollapsiTree"][i]}\r\n\t</TD>\r\n\t<TD WIDTH=5%>\r\n\t\t<A HREF="${page}.html"><IMG SRC="graphics/icons_tree_0${3 + i}.gif" ALIGN="ABSMIDDLE" VSPACE="0" BORDER="0"></A>\r\n\t</TD>\r\n</TR>`).join("")}</TABLE>\r\n</FONT>\r\n</BODY>\r\n</HTML>\r\n`);
    const top = fs.readFileSync(path.join(share, "html/perspagetop.html"), "latin1");
    people.forEach((person, place) => write(`PersPage_${person.id}.html`, personalPage(top, people, place)));
    return folder;
}
