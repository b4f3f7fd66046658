# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
"""What is painted on the grounds of the two styles: gilt and printers' flowers for OldBook, the binding for Memories."""

from PIL import Image

import textures
from canvas import Canvas, polar, through

GILT, BRIGHT_GILT, INK = (178, 132, 60), (226, 190, 112), (122, 62, 40)


def pictures():
    """Yields (style, file name, picture)."""
    yield "OldBook", "corner.gif", corner()
    yield "OldBook", "fleuron.gif", fleuron()
    yield "OldBook", "spine.gif", spine()
    yield "Memories", "binding.gif", binding()


def corner():
    """The flourish of the upper left corner of a page, drawn at twice the size at which it is shown."""
    c = Canvas(160, 160, enlarge=4)
    for flip in (False, True):
        def at(points, flip=flip):
            return [(y, x) if flip else (x, y) for x, y in points]
        c.stroke(through(at([(10, 10), (40, 8), (90, 12), (150, 8)])), 3.4, INK, 1)
        c.stroke(through(at([(22, 22), (60, 20), (84, 34), (76, 54), (58, 50), (60, 38), (70, 40)])), 4.4, INK, 2)
        c.stroke(through(at([(60, 20), (96, 20), (122, 26), (118, 40), (108, 36)])), 3.2, INK, 1.6)
        for x, y, length, turn in ((84, 24, 24, 40), (100, 18, 20, -20), (46, 20, 18, 50), (118, 12, 18, 24)):
            c.leaf(*at([(x, y)])[0], length, 9, 90 - turn if flip else turn, INK)
    c.leaf(20, 20, 40, 20, 45, INK)
    c.ellipse(14, 14, 6, 6, INK)
    return c.finished()


def fleuron():
    """A printers' flower with a rule on both sides, drawn at twice the size at which it is shown."""
    c = Canvas(480, 56, enlarge=4)
    for side in (-1, 1):
        c.stroke([(240 + side * 62, 28), (240 + side * 236, 28)], 3.4, INK, 0.8)
        c.stroke(through([(240 + side * 14, 28), (240 + side * 34, 16), (240 + side * 54, 24), (240 + side * 48, 36), (240 + side * 38, 32)]), 3.6, INK, 2)
        for turn, reach in ((-42, 26), (42, 26), (0, 34)):
            c.leaf(240 + side * 10, 28, reach, 12, turn if side > 0 else 180 - turn, INK)
        c.ellipse(240 + side * 66, 28, 4, 4, INK)
    for turn in range(45, 405, 90):
        c.leaf(240, 28, 16, 9, turn, INK)
    c.ellipse(240, 28, 5, 5, (250, 240, 216))
    c.ellipse(240, 28, 3, 3, INK)
    return c.finished()


def spine():
    """A stretch of the book's back, gilt on leather, that repeats downwards."""
    c = Canvas(48, 192, enlarge=4)
    for y, thick in ((3, 3), (9, 1.2), (189, 3), (183, 1.2)):
        c.box(0, y - thick / 2, 48, y + thick / 2, 0, GILT)
    for turn in range(0, 360, 45):
        reach = 26 if turn % 90 else 18
        c.leaf(*polar(24, 96, turn + 22.5, 4), reach * 0.7, 7, turn + 22.5, GILT)
    c.ellipse(24, 96, 4, 4, BRIGHT_GILT)
    for y, way in ((58, -1), (134, 1)):
        c.stroke(through([(24, y - way * 12), (14, y), (24, y + way * 10), (34, y), (24, y - way * 12)]), 2.2, GILT)
        c.ellipse(24, y + way * 18, 2.4, 2.4, BRIGHT_GILT)
    for y in (32, 160):
        for x in (12, 24, 36):
            c.leaf(x, y - 5, 10, 6, 90, GILT)
    ground = textures.leather().crop((0, 0, 48, 128))
    back = Image.new("RGB", (48, 192))
    back.paste(ground, (0, 0))
    back.paste(ground, (0, 128))
    return Image.alpha_composite(back.convert("RGBA"), c.finished())


def binding():
    """The edge of the album where its cord runs through eyelets, repeating downwards."""
    ground = textures.card().crop((0, 0, 48, 160)).convert("RGBA")
    c = Canvas(48, 160, enlarge=4)
    c.box(44, 0, 45.2, 160, 0, (18, 15, 14))
    c.box(45.2, 0, 46, 160, 0, (78, 70, 64))
    c.stroke([(22, -4), (22, 40)], 5, (122, 84, 44))
    c.stroke([(22, 120), (22, 164)], 5, (122, 84, 44))
    for start, end in ((-4, 40), (120, 164)):
        for y in range(start, end, 5):
            c.stroke([(20, y + 3), (24, y)], 1.4, (192, 148, 90))
    for y in (42, 118):
        c.ellipse(22, y, 8.4, 8.4, (150, 112, 56))
        c.ellipse(21, y - 1, 7, 7, (214, 176, 108))
        c.ellipse(22, y, 4.6, 4.6, (20, 16, 14))
    return Image.alpha_composite(ground, c.finished())
