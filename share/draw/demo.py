# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
"""The demonstration site of each style, BgDemo/<style>/tree.html: an imaginary family published from the very templates.

The pages take their graphics from the folders beside them instead of holding copies.
"""

import re

STYLES = ("OldBook", "Memories")
ICON = "graphics/icons_tree_09.gif"

# (number, name, years, spouse, numbers of the children)
FAMILY = {
    1: ("Ambrose Larkspur", "1802-1871", "Keziah Fennimore", (2, 3, 4)),
    2: ("Tobias Larkspur", "1826-1899", "Henrietta Quillfeather", (5, 6)),
    3: ("Philippa Larkspur", "1829-1907", "Josiah Merriweather", (7,)),
    4: ("Barnaby Larkspur", "1833-1838", None, ()),
    5: ("Cornelius Larkspur", "1851-1930", "Rosalind Thistlewood", (8, 9)),
    6: ("Winifred Larkspur", "1854-1941", None, ()),
    7: ("Leander Merriweather", "1860-1944", "Odette Bramble", (10,)),
    8: ("Clementine Larkspur", "1880-1969", None, ()),
    9: ("Ambrose Larkspur", "1883-1958", None, ()),
    10: ("Isidore Merriweather", "1891-1977", None, ()),
}
HEAD_NAME = FAMILY[1][0]
STORY = ("This is a small family that never lived. It shows how a site looks in this style: the first page, an outline, a "
         "collapsible tree and the index of names.")


def pages(share):
    """Yields (path below share, text) for every page of the demonstration sites."""
    for style in STYLES:
        for name, text in site(share, style).items():
            yield f"BgDemo/{style}/{name}", with_links(share, style, text)


def site(share, style):
    def template(path, **values):
        text = (share / path).read_text("ascii")
        for name, value in values.items():
            text = text.replace(f"${name}", value)
        return text

    look = f"BgStyles/{style}"
    phrase = 'at the <A HREF="TreeList.html">list</A> of family trees'
    return {
        "sniffer.js": template("html/sniffer.js"),
        "tree.html": template(f"{look}/tree.html"),
        "topleft.html": template("html/topleft.html"),
        "left.html": template(f"{look}/left.html"),
        "bottom.html": template(f"{look}/bottom.html", HomeLink="", Version=f"in the style {style}", Year="a sample"),
        "topright.html": template(f"{look}/topright.html", CommonAncestor=phrase, ListOfPicsLink="",
                                  Title4TreesIcon="List of family trees"),
        "main.html": template(f"{look}/main.html", TitleStory=STORY, SiteTitle="The Larkspur Family",
                              EmblemFilename="graphics/tree.gif",
                              StartYourTour=f'Start your tour at the <A HREF="NameIndex.html">index</A> of names or {phrase}.'),
        "TreeList.html": template("html/treelisttop.html") + tree_list(),
        "NameIndex.html": template("html/nameindextop.html") + name_index(),
        "Outline_1_1.html": outline(),
        "CTree_2_1.html": template("html/ctreetop.html", TreeHeadName=HEAD_NAME, TreeIconFile="graphics/icons_tree_10.gif")
                          + collapsible(1, 1) + "</SPAN>\n</NOBR>\n</BODY>\n</HTML>\n",
    }


def with_links(share, style, text):
    """The text with graphics found where this application's folder keeps them."""
    def found(match):
        own = share / "BgStyles" / style / "graphics" / match[1]
        return f"../../BgStyles/{style}/graphics/{match[1]}" if match[1] and own.exists() else f"../../graphics/{match[1]}"

    return re.sub(r"graphics/([\w.]*)", found, text).replace("index.html", "tree.html")


def tree_list():
    rows = [("Outline", "Outline_1_1.html", ICON), ("CollapsiTree", "CTree_2_1.html", "graphics/icons_tree_10.gif")]
    return "".join(f'<TR>\n\t<TD>\n\t\t1\n\t</TD>\n\t<TD>\n\t\t{HEAD_NAME}\n\t</TD>\n\t<TD>\n\t\t{display}\n\t</TD>\n\t<TD WIDTH=5%>\n\t\t'
                   f'<A HREF="{page}"><IMG SRC="{icon}" ALIGN="ABSMIDDLE" VSPACE="0" BORDER="0"></A>\n\t</TD>\n</TR>\n'
                   for display, page, icon in rows) + "</TABLE>\n</FONT>\n</BODY>\n</HTML>\n"


def name_index():
    lines, letter = [], ""
    listed = sorted((" ".join(reversed(name.split())).replace(" ", ", ", 1), years, number)
                    for number, (name, years, _, _) in FAMILY.items())
    for name, years, number in listed:
        if name[0] != letter:
            letter = name[0]
            lines.append(f'<BR><BR><H2><A NAME="index_{letter}">{letter}</A></H2>')
        links = "".join(f'<A HREF="{page}.html#{number}" TARGET="frmCenter" TITLE="This person\'s entry in {display} of \'{HEAD_NAME}\'">'
                        f'<IMG SRC="graphics/icons_tree_{icon}.gif" ALIGN="ABSMIDDLE" VSPACE="0" BORDER="0"></A>'
                        for page, display, icon in (("Outline_1_1", "Outline", "09"), ("CTree_2_1", "CollapsiTree", "10")))
        lines.append(f"<BR>{name} {years}<BR>{links}")
    return "\n".join(lines) + "\n</FONT>\n</NOBR>\n</BODY>\n</HTML>\n"


def outline():
    lines = []

    def walk(number, generation):
        name, years, spouse, children = FAMILY[number]
        dots = "." * 8 * (generation - 1)
        lines.append(f'<BR><NOBR><FONT SIZE="-1">{dots}<B>{generation}</B>&nbsp;&nbsp; <B>{name}</B> {years}<A NAME="{number}"></A></FONT>')
        if spouse:
            lines.append(f'<BR><FONT SIZE="-1">{dots}&nbsp;&nbsp;&nbsp;&nbsp;<B>+ </B> <B>{spouse}</B></FONT>')
        for child in children:
            walk(child, generation + 1)

    walk(1, 1)
    return (f'<HTML>\n<HEAD>\n<TITLE>Descendants of {HEAD_NAME}</TITLE>\n<SCRIPT SRC="sniffer.js"></SCRIPT>\n<SCRIPT>\n'
            f'showPath("", "Descendants of {HEAD_NAME}", "<IMG SRC=\'{ICON}\'>");\n</SCRIPT>\n</HEAD>\n'
            f'<BODY BGCOLOR="#FFFFFF" BACKGROUND="graphics/center.gif">\n' + "\n".join(lines) + "\n</BODY>\n</HTML>\n")


def collapsible(number, generation):
    name, years, spouse, children = FAMILY[number]
    indent = "&nbsp;" * (1 if generation == 1 else (generation - 2) * 12 + 7)
    sign = (f'<IMG ID="OUT{number}" SRC="graphics/expand.gif" onclick = "clickExpander(this)">&nbsp;&nbsp;' if spouse
            else "&nbsp;" * 5)
    line = f'<BR>{indent}{sign}<B>{generation}&nbsp;{name}</B> {years}<A NAME="{number}"></A>\n'
    if spouse:
        below = "".join(collapsible(child, generation + 1) for child in children)
        line += f'<DIV ID="OUT{number}D" STYLE="display: none">\n<BR>{indent}&nbsp;&nbsp;&nbsp;&nbsp;<B>+ {spouse}</B>\n{below}</DIV>\n'
    return line
