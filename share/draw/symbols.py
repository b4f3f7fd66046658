# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
"""The signs that pages carry beside names and in their frames: expanders, links to people, pictures and pages, arrows."""

from PIL import Image

from canvas import Canvas, RIM, through

INK, PAPER, SKY, LEAF, WARM = (62, 48, 38), (255, 252, 243), (52, 96, 150), (58, 124, 62), (186, 66, 40)


def plate(c, colour=(150, 100, 46)):
    c.box(5, 5, 43, 43, 9, colour)
    c.box(8, 8, 40, 40, 6, PAPER)


def expand(c):
    plate(c, LEAF)
    c.box(13, 21, 35, 27, 2, LEAF)
    c.box(21, 13, 27, 35, 2, LEAF)


def collapse(c):
    plate(c, WARM)
    c.box(13, 21, 35, 27, 2, WARM)


def descendants(c):
    c.stroke(through([(24, 6), (24, 14)]), 4, LEAF)
    for x in (9, 24, 39):
        c.stroke([(24, 12), (x, 12 if x == 24 else 17), (x, 24)], 3.4, LEAF)
        c.polygon([(x - 7, 23), (x + 7, 23), (x, 33)], LEAF)
        c.ellipse(x, 38.5, 4.6, 4.6, (150, 100, 46))


def parent_site(c):
    c.polygon([(24, 4), (44, 23), (4, 23)], WARM)
    c.box(33, 7, 38, 18, 0.5, WARM)
    c.box(9.5, 21, 38.5, 43, 1, (226, 188, 120))
    c.box(19.5, 28, 28.5, 43, 1, INK)
    c.box(12.5, 26, 17, 31, 0.5, PAPER)
    c.box(31, 26, 35.5, 31, 0.5, PAPER)


def first_page(c):
    c.box(3, 9, 45, 41, 3, (128, 58, 42))
    for side in (-1, 1):
        edge = 24 + side * 18.5
        c.smooth([(24, 12), (24 + side * 9, 9.5), (edge, 11), (edge, 36.5), (24 + side * 9, 35.5), (24, 38)], PAPER)
        for y in (17, 22, 27, 32):
            c.stroke([(24 + side * 4.5, y), (24 + side * 14.5, y - 1)], 1.6, (170, 140, 104))
    c.stroke([(24, 12), (24, 38)], 1.4, (128, 58, 42))


def names(c):
    c.box(8, 3, 41, 45, 3, SKY)
    c.box(11, 6, 38, 42, 1.5, PAPER)
    for y, colour in ((13, SKY), (22, WARM), (31, LEAF)):
        c.ellipse(17, y + 1, 3, 3, colour)
        c.stroke([(23.5, y), (33.5, y)], 2.2, INK)
        c.stroke([(23.5, y + 4), (30.5, y + 4)], 1.4, (160, 150, 140))
    for y, colour in ((9, SKY), (18, WARM), (27, LEAF)):
        c.box(40, y, 45, y + 8, 1.5, colour)


def tree(c):
    c.polygon([(21, 26), (27, 26), (30, 45), (18, 45)], (120, 78, 44))
    for x, y, r in ((13, 21, 9.5), (35, 21, 9.5), (24, 12, 9.5), (24, 24, 9)):
        c.ellipse(x, y, r, r, LEAF)
    for x, y in ((13, 21), (35, 21), (24, 12)):
        c.ellipse(x, y, 4.4, 4.4, PAPER)


def pictures_of_album(c):
    c.polygon([(10, 8), (43, 3), (46, 31), (14, 36)], (206, 190, 160))
    photograph_on(c, 3, 12, 40, 44)


def photograph_on(c, left, top, right, bottom):
    c.box(left, top, right, bottom, 2, PAPER)
    c.box(left + 3, top + 3, right - 3, bottom - 3, 0.5, (150, 196, 222))
    middle, floor = (left + right) / 2, bottom - 3
    c.ellipse(right - 9, top + 9, 3.4, 3.4, (244, 196, 70))
    c.polygon([(left + 3, floor), (left + 3, floor - 7), (left + 11, floor - 14), (middle + 1, floor - 4), (middle + 7, floor - 10),
               (right - 3, floor - 3), (right - 3, floor)], LEAF)


def photo(c):
    c.box(15, 7, 33, 16, 3, INK)
    c.box(3, 12, 45, 41, 5, INK)
    c.ellipse(24, 26.5, 11.5, 11.5, PAPER)
    c.ellipse(24, 26.5, 9, 9, SKY)
    c.ellipse(21, 23, 3.2, 3, (190, 216, 240))
    c.box(36, 16, 41, 20, 1, (244, 196, 70))


def email(c):
    c.box(3, 9, 45, 40, 3, SKY)
    c.box(6, 12, 42, 37, 1, PAPER)
    c.stroke([(7, 13), (24, 27), (41, 13)], 3, SKY)
    c.stroke([(7, 36), (18, 24)], 2, SKY)
    c.stroke([(41, 36), (30, 24)], 2, SKY)


def www(c):
    c.ellipse(24, 24, 20.5, 20.5, (36, 118, 140))
    c.ellipse(24, 24, 17.5, 17.5, (206, 234, 236))
    for across in (7, 14):
        points = [(24 + across * (1 if t < 20 else -1) * (1 - ((t % 20) / 10 - 1) ** 2) ** 0.5, 24 - 17.5 + (t % 20 if t < 20 else 20 - t % 20) * 1.75)
                  for t in range(40)]
        c.stroke(points + points[:1], 2, (36, 118, 140))
    for y, half in ((15, 15), (24, 17.5), (33, 15)):
        c.stroke([(24 - half, y), (24 + half, y)], 2, (36, 118, 140))


def pointer(c, size, colour):
    """An arrow to the upper left; its tip stands 4 units from the left and the upper edge."""
    unit = (size - 8) / 29
    outline = [(0, 0), (17, 5.5), (12.2, 8.6), (29, 25.4), (25.4, 29), (8.6, 12.2), (5.5, 17)]
    c.polygon([(4 + x * unit, 4 + y * unit) for x, y in outline], colour)


def album_pointer():
    """The arrow of the album window: its tip, rim included, is the corner of the picture."""
    canvas = Canvas(44, 44)
    pointer(canvas, 44, (214, 40, 32))
    whole = canvas.rimmed().finished()
    opaque = whole.getchannel("A").point(lambda alpha: 255 if alpha > 127 else 0)
    return whole.crop(opaque.getbbox())


SIGNS = {
    "expand.gif": expand, "collapse.gif": collapse, "desc.gif": descendants, "btn_home.gif": parent_site,
    "btn_first.gif": first_page, "btn_names.gif": names, "btn_tree.gif": tree, "btn_pic.gif": pictures_of_album,
    "photo.gif": photo, "email.gif": email, "www.gif": www,
}


def pictures():
    """Yields (file name, picture) for each sign."""
    for name, paint in SIGNS.items():
        canvas = Canvas(48, 48, margin=2)
        paint(canvas)
        yield name, canvas.rimmed().finished()
    for name, size, colour in (("arrow.gif", 60, (214, 40, 32)), ("arrow_icon.gif", 30, (214, 40, 32)),
                               ("noarrow_icon.gif", 30, (150, 146, 140))):
        canvas = Canvas(size, size)
        pointer(canvas, size, colour)
        if name == "noarrow_icon.gif":
            canvas.stroke([(5, 25), (25, 5)], 5.4, RIM)
            canvas.stroke([(5, 25), (25, 5)], 3, (40, 36, 34))
        yield name, canvas.rimmed().finished()
    yield "spacer.gif", Image.new("RGBA", (1, 1), (0, 0, 0, 0))
