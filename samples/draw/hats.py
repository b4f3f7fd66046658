# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
"""Hats, in head units: the head is 100 wide, its middle at (0, 0), the ear tips at -66. `hc` and `hc2` are a hat's colours."""
from blossom import flower
from canvas import INK, darker, lighter

HATS = {
    "top": 26,
    "flat": 2,
    "captain": 8,
    "sailor": 6,
    "boater": 6,
    "bonnet": 4,
    "chef": 34,
    "wool": 14,
    "flowers": 4,
    "veil": 6,
    "party": 34,
    "santa": 18,
    "scarf": 2,
    "straw": 8,
    "bow": 4,
    "laurel": 0,
    "mortar": 8,
    "cloche": 2,
    "fascinator": 16,
    "feather": 22,
}


def hat_height(wear):
    """How far a hat stands out above the ear tips, in head units."""
    return max(0, HATS.get(wear.get("hat"), 0) - 10)


def behind_head(canvas, wear):
    """Parts of a hat that hang behind the head, in head units."""
    if wear.get("hat") == "veil":
        canvas.path(
            (0, -52),
            ((-60, -50), (-76, 30), (-84, 120)),
            ((-40, 132), (40, 132), (84, 120)),
            ((76, 30), (60, -50), (0, -52)),
        )
        canvas.fill("#fdfbf6", "#cfc6ba", 1.6, 0.72)
    if wear.get("hat") == "bonnet":
        canvas.ellipse(0, -12, 60, 54, wear.get("hc", "#f4efe4"), INK, 2.2)


def on_head(canvas, wear):
    """The hat, in head units."""
    draw = _HATS.get(wear.get("hat"))
    if draw:
        draw(canvas, wear.get("hc", "#3a3a44"), wear.get("hc2", "#b8322f"))


def _top(canvas, c, band):
    canvas.ellipse(0, -40, 34, 7, c, INK, 2.2)
    canvas.path(
        (-23, -42),
        ((-22, -60), (-26, -82), (-26, -88)),
        ((-10, -94), (10, -94), (26, -88)),
        ((26, -82), (22, -60), (23, -42)),
        ((10, -37), (-10, -37), (-23, -42)),
    )
    canvas.fill(c, INK, 2.2)
    canvas.path((-23, -50), ((-10, -45), (10, -45), (23, -50)), close=False)
    canvas.stroke(band, 6)
    canvas.taper(-16, -84, -14, -56, 2.5, "#ffffff", 0, 0.3)


def _flat(canvas, c, _):
    canvas.path(
        (-34, -34),
        ((-36, -58), (30, -64), (36, -38)),
        ((44, -32), (38, -28), (28, -32)),
        ((10, -38), (-14, -38), (-34, -34)),
    )
    canvas.fill(c, INK, 2.2)
    canvas.path((-4, -36), ((14, -40), (30, -38), (44, -29)), ((30, -28), (10, -32), (-4, -36)))
    canvas.fill(darker(c, 0.25), INK, 2)


def _captain(canvas, c, band):
    canvas.path(
        (-34, -40),
        ((-42, -58), (-24, -66), (0, -68)),
        ((24, -66), (42, -58), (34, -40)),
        ((14, -46), (-14, -46), (-34, -40)),
    )
    canvas.fill("#fbf8f0" if c == "white" else c, INK, 2.2)
    canvas.path((-33, -40), ((-14, -47), (14, -47), (33, -40)), (32, -32), ((14, -38), (-14, -38), (-32, -32)))
    canvas.fill(band, INK, 2)
    canvas.path((-28, -33), ((-10, -40), (10, -40), (28, -33)), ((14, -24), (-14, -24), (-28, -33)))
    canvas.fill("#1c1a1e", INK, 2)
    canvas.ellipse(0, -48, 5, 5, "#e0b84a", "#7a5a14", 1.4)


def _sailor(canvas, c, band):
    canvas.ellipse(0, -49, 36, 13, "#fbf8f0", INK, 2.2)
    canvas.path((-28, -44), ((-10, -50), (10, -50), (28, -44)), (27, -34), ((10, -39), (-10, -39), (-27, -34)))
    canvas.fill(band if band != "#b8322f" else "#2a3a5c", INK, 2)
    canvas.taper(27, -38, 46, -18, 3, "#2a3a5c", 0.2)


def _boater(canvas, c, band):
    canvas.ellipse(0, -38, 44, 8, c, INK, 2.2)
    canvas.path(
        (-25, -40), (-24, -58), ((-10, -62), (10, -62), (24, -58)), (25, -40), ((10, -36), (-10, -36), (-25, -40))
    )
    canvas.fill(c, INK, 2.2)
    canvas.path((-25, -45), ((-10, -41), (10, -41), (25, -45)), close=False)
    canvas.stroke(band, 6)


def _straw(canvas, c, band):
    canvas.ellipse(0, -36, 58, 11, c, INK, 2.2)
    canvas.path((-26, -38), ((-26, -66), (26, -66), (26, -38)), ((10, -33), (-10, -33), (-26, -38)))
    canvas.fill(c, INK, 2.2)
    canvas.path((-26, -42), ((-10, -37), (10, -37), (26, -42)), close=False)
    canvas.stroke(band, 5)
    flower(canvas, 20, -42, 8, "#f3b6c0", "#f3d36a")


def _bonnet(canvas, c, band):
    canvas.path(
        (-52, -8),
        ((-54, -48), (-24, -62), (0, -62)),
        ((24, -62), (54, -48), (52, -8)),
        ((40, -34), (22, -44), (0, -44)),
        ((-22, -44), (-40, -34), (-52, -8)),
    )
    canvas.fill(c, INK, 2.2)
    flower(canvas, -26, -50, 9, band, "#f3d36a")
    flower(canvas, -12, -56, 7, lighter(band, 0.4), "#f3d36a")


def _chef(canvas, c, _):
    for x, y, r in ((-20, -70, 19), (20, -70, 19), (0, -80, 21)):
        canvas.ellipse(x, y, r, r * 0.9, "#fdfbf6", INK, 2.2)
    canvas.ellipse(0, -70, 24, 15, "#fdfbf6")
    canvas.path((-26, -66), (26, -66), (24, -38), ((10, -43), (-10, -43), (-24, -38)))
    canvas.fill("#fdfbf6", INK, 2.2)
    canvas.box(-24, -68, 48, 5, "#fdfbf6")


def _wool(canvas, c, band):
    canvas.path((-36, -32), ((-38, -68), (38, -68), (36, -32)))
    canvas.fill(c, INK, 2.2)
    canvas.box(-40, -40, 80, 13, lighter(c, 0.35), INK, 2.2, 6)
    for i in range(-4, 5):
        canvas.lines([(i * 8.5, -38), (i * 8.5, -30)], darker(c, 0.2), 1.2)
    canvas.ellipse(0, -64, 11, 10, band, INK, 2)


def _flowers(canvas, c, band):
    for i in range(-3, 4):
        flower(canvas, i * 11, -42 + i * i * 0.9, 9, (c, band, "#fdf6ec")[i % 3], "#f3d36a")


def _veil(canvas, c, band):
    for i in range(-3, 4):
        flower(canvas, i * 10, -43 + i * i * 0.9, 8, "#fdfbf6", "#f3d36a")


def _party(canvas, c, band):
    canvas.polygon([(-20, -38), (20, -38), (2, -98)], c, INK, 2.2)
    for x, y in ((-8, -48), (6, -56), (0, -72), (10, -44)):
        canvas.ellipse(x, y, 3.4, 3.4, band)
    canvas.ellipse(2, -98, 7, 7, band, INK, 1.6)


def _santa(canvas, c, band):
    canvas.path((-36, -34), ((-30, -72), (16, -86), (46, -62)), ((30, -62), (34, -44), (36, -34)))
    canvas.fill("#c4302f", INK, 2.2)
    canvas.box(-42, -42, 84, 14, "#fdfbf6", INK, 2, 7)
    canvas.ellipse(47, -58, 10, 10, "#fdfbf6", INK, 2)


def _scarf(canvas, c, band):
    canvas.path(
        (-50, -6),
        ((-52, -52), (-20, -52), (0, -52)),
        ((20, -52), (52, -52), (50, -6)),
        ((40, -32), (20, -40), (0, -40)),
        ((-20, -40), (-40, -32), (-50, -6)),
    )
    canvas.fill(c, INK, 2.2)
    for x, y in ((-36, -34), (-18, -45), (0, -46), (18, -45), (36, -34)):
        canvas.ellipse(x, y, 2.6, 2.6, lighter(c, 0.7))


def _bow(canvas, c, band):
    x, y = 30, -46
    for side in (-1, 1):
        canvas.path(
            (x, y),
            ((x + side * 8, y - 14), (x + side * 20, y - 12), (x + side * 20, y)),
            ((x + side * 20, y + 12), (x + side * 8, y + 10), (x, y)),
        )
        canvas.fill(c, darker(c, 0.5), 2)
    canvas.ellipse(x, y, 5, 5.5, lighter(c, 0.15), darker(c, 0.5), 2)


def _laurel(canvas, c, band):
    for i in range(-4, 5):
        if i:
            x, y = i * 9, -42 + i * i * 0.8
            canvas.ellipse(x, y, 7, 3.4, "#f3ead0" if c == "white" else "#6f9a4a", "#8a7a50", 1.2, turn=i * 0.28)


def _mortar(canvas, c, band):
    canvas.path((-28, -36), (-26, -54), (26, -54), (28, -36), ((10, -42), (-10, -42), (-28, -36)))
    canvas.fill(c, INK, 2)
    canvas.polygon([(0, -70), (48, -57), (0, -46), (-48, -57)], c, INK, 2)
    canvas.lines([(0, -58), (36, -54), (38, -36)], "#e0b84a", 2.4)


def _cloche(canvas, c, band):
    canvas.path((-44, -20), ((-46, -60), (46, -60), (44, -20)), ((24, -36), (-24, -36), (-44, -20)))
    canvas.fill(c, INK, 2.2)
    canvas.path((-42, -28), ((-22, -42), (22, -42), (42, -28)), close=False)
    canvas.stroke(band, 6)
    flower(canvas, 28, -36, 9, lighter(band, 0.5), "#f3d36a")


def _fascinator(canvas, c, band):
    canvas.ellipse(-18, -44, 18, 6, c, INK, 2, turn=-0.3)
    for i in range(4):
        canvas.taper(-18, -46, -34 + i * 12, -82 + abs(i - 1) * 6, 3, c if i % 2 else band, 0.12)
    flower(canvas, -16, -48, 8, band, "#f3d36a")


def _feather(canvas, c, band):
    canvas.path((-46, -30), ((-30, -62), (30, -66), (50, -34)), ((24, -46), (-20, -44), (-46, -30)))
    canvas.fill(c, INK, 2.2)
    canvas.taper(22, -48, 66, -84, 7, band, -0.25)
    canvas.lines([(22, -48), (56, -80)], darker(band, 0.4), 1.2)


_HATS = {
    "top": _top,
    "flat": _flat,
    "captain": _captain,
    "sailor": _sailor,
    "boater": _boater,
    "straw": _straw,
    "bonnet": _bonnet,
    "chef": _chef,
    "wool": _wool,
    "flowers": _flowers,
    "veil": _veil,
    "party": _party,
    "santa": _santa,
    "scarf": _scarf,
    "bow": _bow,
    "laurel": _laurel,
    "mortar": _mortar,
    "cloche": _cloche,
    "fascinator": _fascinator,
    "feather": _feather,
}
