# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
"""Out of doors: sky, land, water, houses and what stands about."""
import math

import cairo

from blossom import flower
from canvas import INK, darker, lighter, mix


def sky(c, top="#8fc0e6", bottom="#f4ecd8", horizon=None, clouds=3):
    horizon = horizon or c.height
    c.gradient(0, 0, c.width, horizon, top, bottom)
    c.box(0, horizon - 1, c.width, c.height - horizon + 1, bottom)
    for i in range(clouds):
        x = c.width * (i + 0.5 + c.chance.uniform(-0.3, 0.3)) / clouds
        cloud(c, x, horizon * c.chance.uniform(0.12, 0.40), c.width * c.chance.uniform(0.05, 0.085))


def cloud(c, x, y, r):
    for dx, dy, size in ((-1.2, 0.15, 0.6), (-0.5, -0.15, 0.8), (0.35, -0.25, 0.9), (1.1, 0.1, 0.65), (0, 0.2, 0.9)):
        c.ellipse(x + dx * r, y + dy * r, size * r, size * r * 0.6, "#ffffff", alpha=0.55)


def hills(c, y, height, colour, bumps=3, phase=0.0):
    cr = c.cr
    cr.move_to(0, c.height)
    for i in range(0, 61):
        t = i / 60
        cr.line_to(t * c.width, y - height * (0.5 + 0.5 * math.sin(phase + t * bumps * math.pi * 1.3)))
    cr.line_to(c.width, c.height)
    cr.close_path()
    pattern = cairo.LinearGradient(0, y - height, 0, c.height)
    for stop, tint in ((0, lighter(colour, 0.25)), (1, darker(colour, 0.15))):
        pattern.add_color_stop_rgb(stop, *tint)
    cr.set_source(pattern)
    cr.fill()


def ground(c, y, colour, tufts=0, blossoms=()):
    c.gradient(0, y, c.width, c.height - y, lighter(colour, 0.15), darker(colour, 0.22))
    for i in range(tufts):
        x, yy = c.chance.uniform(0, c.width), c.chance.uniform(y + 6, c.height)
        for lean in (-4, 0, 4):
            c.taper(x, yy, x + lean, yy - 9, 1.3, darker(colour, 0.25), alpha=0.7)
        if blossoms and i % 3 == 0:
            flower(c, x + 9, yy - 6, 4.5, blossoms[i % len(blossoms)], "#f3d36a")


def tree(c, x, y, h, colour="#6f9a52", fruit=None):
    c.path(
        (x - h * 0.05, y),
        ((x - h * 0.03, y - h * 0.3), (x - h * 0.03, y - h * 0.4), (x - h * 0.10, y - h * 0.6)),
        (x + h * 0.10, y - h * 0.6),
        ((x + h * 0.03, y - h * 0.4), (x + h * 0.03, y - h * 0.3), (x + h * 0.05, y)),
    )
    c.fill("#7a5638", INK, 1.4)
    blobs = ((-0.2, -0.55, 0.2), (0.2, -0.55, 0.2), (-0.13, -0.78, 0.2), (0.13, -0.78, 0.2), (0, -0.62, 0.24))
    for dx, dy, r in blobs:
        c.ellipse(x + dx * h, y + dy * h, r * h + 1.5, r * h * 0.9 + 1.5, darker(colour, 0.55))
    for dx, dy, r in blobs:
        c.ellipse(x + dx * h, y + dy * h, r * h, r * h * 0.9, colour)
        c.glow(x + (dx - 0.05) * h, y + (dy - 0.06) * h, r * h * 0.9, lighter(colour, 0.4), 0.5)
    if fruit:
        for i in range(9):
            a = i * 2.4
            c.ellipse(
                x + math.cos(a) * h * 0.25,
                y - h * 0.64 + math.sin(a) * h * 0.2,
                h * 0.024,
                h * 0.024,
                fruit,
                darker(fruit),
                0.8,
            )


def fir(c, x, y, h, colour="#4d7a5a", snow=False):
    c.box(x - h * 0.035, y - h * 0.12, h * 0.07, h * 0.12, "#6a4a30", INK, 1.2)
    for i in range(4):
        top, wide = y - h * (0.42 + 0.19 * i), h * (0.30 - 0.055 * i)
        bottom = top + h * 0.34
        c.path(
            (x, top),
            ((x + wide * 0.3, bottom - h * 0.12), (x + wide * 0.7, bottom - h * 0.04), (x + wide, bottom)),
            ((x + wide * 0.4, bottom + h * 0.03), (x - wide * 0.4, bottom + h * 0.03), (x - wide, bottom)),
            ((x - wide * 0.7, bottom - h * 0.04), (x - wide * 0.3, bottom - h * 0.12), (x, top)),
        )
        c.fill(lighter(colour, 0.05 * i), darker(colour, 0.5), 1.2)
        if snow:
            c.taper(x - wide * 0.8, bottom - 2, x, top + h * 0.04, h * 0.03, "#ffffff", 0.12, 0.9)
            c.taper(x + wide * 0.8, bottom - 2, x, top + h * 0.04, h * 0.02, "#ffffff", -0.12, 0.8)


def window(c, x, y, w, h, lit="#bcd6e2", frame="#f4efe4", curtains=None):
    c.box(x - 3, y - 3, w + 6, h + 6, frame, INK, 1.2)
    c.gradient(x, y, w, h, lighter(lit, 0.35), lit)
    if curtains:
        for side in (0, 1):
            cx = x + side * w
            c.path(
                (cx, y),
                (x + w / 2 + (0.15 if side else -0.15) * w, y),
                (
                    (cx + (-0.3 if side else 0.3) * w, y + h * 0.4),
                    (cx + (-0.1 if side else 0.1) * w, y + h * 0.6),
                    (cx, y + h * 0.8),
                ),
            )
            c.fill(curtains, darker(curtains), 0.8, 0.9)
    c.lines([(x + w / 2, y), (x + w / 2, y + h)], frame, 2.6)
    c.lines([(x, y + h / 2), (x + w, y + h / 2)], frame, 2.6)
    c.box(x, y, w, h, lit, INK, 1.2, alpha=0)


def door(c, x, y, w, h, colour="#7a4a34"):
    c.box(x, y, w, h, colour, INK, 1.6, w * 0.12)
    c.box(x + w * 0.14, y + h * 0.08, w * 0.72, h * 0.32, lighter(colour, 0.1), darker(colour), 1.2)
    c.box(x + w * 0.14, y + h * 0.48, w * 0.72, h * 0.22, lighter(colour, 0.1), darker(colour), 1.2)
    c.box(x + w * 0.30, y + h * 0.78, w * 0.40, h * 0.22, darker(colour, 0.5), INK, 1.2, w * 0.1)
    c.ellipse(x + w * 0.86, y + h * 0.55, 2.4, 2.4, "#e0b84a")


def house(c, x, y, w, h, wall="#ead9bc", roof="#a8523e", lit="#bcd6e2", chimney=True):
    """A cottage whose ground line is y and whose wall is w x h."""
    if chimney:
        c.box(x + w * 0.72, y - h * 1.62, w * 0.11, h * 0.5, "#9a6a54", INK, 1.4)
    c.box(x, y - h, w, h, wall, INK, 1.6)
    c.glow(x + w * 0.8, y - h * 0.3, w * 0.5, "#6a4a3a", 0.2)
    c.polygon(
        [(x - w * 0.07, y - h), (x + w * 0.14, y - h * 1.55), (x + w * 0.86, y - h * 1.55), (x + w * 1.07, y - h)],
        roof,
        INK,
        1.6,
    )
    for row in range(1, 5):
        yy = y - h * (1 + 0.11 * row)
        inset = w * 0.21 * (row * 0.11 / 0.55) - w * 0.07
        c.lines([(x + inset, yy), (x + w - inset, yy)], darker(roof, 0.25), 1)
    door(c, x + w * 0.42, y - h * 0.66, w * 0.17, h * 0.66)
    for dx in (0.10, 0.70):
        window(c, x + w * dx, y - h * 0.72, w * 0.19, h * 0.36, lit, curtains="#f6eee0")


def church(c, x, y, s):
    wall = "#cfc4b0"
    c.polygon([(x - s * 0.16, y - s * 0.95), (x, y - s * 1.5), (x + s * 0.16, y - s * 0.95)], "#6a6e7c", INK, 1.6)
    c.box(x - s * 0.15, y - s * 0.95, s * 0.30, s * 0.95, wall, INK, 1.6)
    c.box(x + s * 0.15, y - s * 0.55, s * 0.8, s * 0.55, wall, INK, 1.6)
    c.polygon(
        [
            (x + s * 0.12, y - s * 0.55),
            (x + s * 0.22, y - s * 0.82),
            (x + s * 0.90, y - s * 0.82),
            (x + s, y - s * 0.55),
        ],
        "#8a6a5a",
        INK,
        1.6,
    )
    c.ellipse(x, y - s * 0.75, s * 0.08, s * 0.08, "#fbf4e2", INK, 1.4)
    c.lines([(x, y - s * 0.80), (x, y - s * 0.75), (x + s * 0.04, y - s * 0.73)], INK, 1.4)
    c.path(
        (x - s * 0.08, y),
        (x - s * 0.08, y - s * 0.28),
        ((x - s * 0.08, y - s * 0.42), (x + s * 0.08, y - s * 0.42), (x + s * 0.08, y - s * 0.28)),
        (x + s * 0.08, y),
    )
    c.fill("#6a4432", INK, 1.6)
    for i in range(4):
        xx = x + s * (0.28 + 0.19 * i)
        c.path(
            (xx, y - s * 0.14),
            (xx, y - s * 0.34),
            ((xx, y - s * 0.46), (xx + s * 0.09, y - s * 0.46), (xx + s * 0.09, y - s * 0.34)),
            (xx + s * 0.09, y - s * 0.14),
        )
        c.fill("#7fa6b4", INK, 1.2)


def mill(c, x, y, s, snow=False, turn=0.35):
    """A tower mill with its foot at (x, y), s high without sails; a mouse hole for tradition."""
    c.path(
        (x - s * 0.27, y),
        ((x - s * 0.2, y - s * 0.5), (x - s * 0.17, y - s * 0.7), (x - s * 0.15, y - s * 0.8)),
        (x + s * 0.15, y - s * 0.8),
        ((x + s * 0.17, y - s * 0.7), (x + s * 0.2, y - s * 0.5), (x + s * 0.27, y)),
    )
    c.fill("#e6d8be", INK, 2)
    for i in range(14):
        bx = x + s * c.chance.uniform(-0.2, 0.16)
        by = y - s * c.chance.uniform(0.04, 0.72)
        c.box(bx, by, s * 0.045, s * 0.018, "#c2ad8c", radius=1)
    c.path(
        (x - s * 0.19, y - s * 0.78),
        ((x - s * 0.16, y - s * 1.0), (x + s * 0.16, y - s * 1.0), (x + s * 0.19, y - s * 0.78)),
    )
    c.fill("#f4f4f4" if snow else "#7a4a3a", INK, 2)
    door(c, x - s * 0.07, y - s * 0.22, s * 0.14, s * 0.22)
    for dy in (0.36, 0.58):
        window(c, x - s * 0.045, y - s * (dy + 0.08), s * 0.09, s * 0.09, "#d9c48a")
    cx, cy, reach = x, y - s * 0.80, s * 0.62
    for i in range(4):
        angle = turn + i * math.pi / 2
        c.cr.save()
        c.cr.translate(cx, cy)
        c.cr.rotate(angle)
        c.box(reach * 0.14, 1, reach * 0.86, reach * 0.20, "#fbf6ea", INK, 1.2, alpha=0.92)
        for k in range(1, 7):
            c.lines([(reach * (0.14 + k * 0.123), 1), (reach * (0.14 + k * 0.123), reach * 0.2)], "#9a8266", 1)
        c.lines([(reach * 0.14, reach * 0.1), (reach, reach * 0.1)], "#9a8266", 1)
        c.lines([(0, 0), (reach, 0)], "#5a3c28", 3.2)
        c.cr.restore()
    c.ellipse(cx, cy, s * 0.03, s * 0.03, "#5a3c28", INK, 1.4)


def sea(c, y, colour="#4f8aa8", bottom=None):
    bottom = bottom or c.height
    c.gradient(0, y, c.width, bottom - y, lighter(colour, 0.45), colour)
    for i in range(46):
        t = c.chance.random()
        yy = y + (bottom - y) * (0.03 + 0.95 * t)
        w = 12 + 40 * t
        x = c.chance.uniform(0, c.width)
        c.taper(x, yy, x + w, yy, 1 + 1.6 * t, "#ffffff", -0.08, 0.55)


def ship(c, x, y, s, hull="#4a5a6c", name=None, sail=False):
    """A vessel s long whose waterline is y."""
    for dx in (-0.22, 0.18):
        c.lines([(x + dx * s, y - s * 0.12), (x + dx * s, y - s * 0.62)], "#5a3c28", 3)
    for dx in (-0.22, 0.18):
        c.lines([(x + dx * s, y - s * 0.62), (x + (dx - 0.2) * s, y - s * 0.14)], "#6a5a4a", 0.9)
        c.lines([(x + dx * s, y - s * 0.62), (x + (dx + 0.24) * s, y - s * 0.14)], "#6a5a4a", 0.9)
        if sail:
            c.path(
                (x + dx * s + 2, y - s * 0.60),
                (
                    (x + (dx + 0.3) * s, y - s * 0.5),
                    (x + (dx + 0.26) * s, y - s * 0.3),
                    (x + (dx + 0.22) * s, y - s * 0.20),
                ),
                (x + dx * s + 2, y - s * 0.20),
            )
            c.fill("#c98a5a", INK, 1.4)
    if not sail:
        c.box(x - s * 0.1, y - s * 0.26, s * 0.18, s * 0.14, "#f0e6d2", INK, 1.6)
        c.box(x - s * 0.04, y - s * 0.48, s * 0.07, s * 0.23, "#b8432f", INK, 1.6)
        c.box(x - s * 0.04, y - s * 0.48, s * 0.07, s * 0.05, "#2a2428")
    c.path(
        (x - s * 0.5, y - s * 0.17),
        ((x - s * 0.2, y - s * 0.11), (x + s * 0.2, y - s * 0.11), (x + s * 0.52, y - s * 0.20)),
        ((x + s * 0.46, y - s * 0.05), (x + s * 0.42, y), (x + s * 0.40, y)),
        (x - s * 0.40, y),
        ((x - s * 0.44, y - s * 0.02), (x - s * 0.48, y - s * 0.08), (x - s * 0.5, y - s * 0.17)),
    )
    c.fill(hull, INK, 2)
    c.path(
        (x - s * 0.48, y - s * 0.11),
        ((x - s * 0.2, y - s * 0.06), (x + s * 0.2, y - s * 0.06), (x + s * 0.48, y - s * 0.12)),
        close=False,
    )
    c.stroke(lighter(hull, 0.6), 2)
    if name:
        c.text(x - s * 0.24, y - s * 0.025, name, s * 0.032, "#fbf4e2", bold=True)


def fence(c, x0, x1, y, h, colour="#f4efe4"):
    for dy in (0.35, 0.72):
        c.box(x0, y - h * dy - 2, x1 - x0, 5, colour, INK, 1)
    x = x0
    while x < x1:
        c.polygon(
            [(x, y), (x, y - h * 0.88), (x + h * 0.09, y - h), (x + h * 0.18, y - h * 0.88), (x + h * 0.18, y)],
            colour,
            INK,
            1,
        )
        x += h * 0.34


def bunting(c, x0, y0, x1, y1, tints=("#c9415a", "#4a86c8", "#e9b43e", "#5a9a5a"), flags=14):
    sag = 34

    def point(t):
        return x0 + (x1 - x0) * t, y0 + (y1 - y0) * t + sag * 4 * t * (1 - t)

    c.lines([point(i / 30) for i in range(31)], "#6a5a4a", 1.2)
    for i in range(flags):
        (ax, ay), (bx, by) = point((i + 0.15) / flags), point((i + 0.85) / flags)
        c.polygon(
            [(ax, ay), (bx, by), ((ax + bx) / 2, (ay + by) / 2 + 22)],
            tints[i % len(tints)],
            darker(tints[i % len(tints)]),
            0.9,
        )


def snowfall(c, flakes):
    for _ in range(flakes):
        r = c.chance.uniform(0.9, 2.8)
        c.ellipse(c.chance.uniform(0, c.width), c.chance.uniform(0, c.height), r, r, "#ffffff", alpha=0.85)


def stars(c, count, bottom):
    for _ in range(count):
        r = c.chance.uniform(0.5, 1.7)
        c.ellipse(
            c.chance.uniform(0, c.width), c.chance.uniform(0, bottom), r, r, "#fff6d8", alpha=c.chance.uniform(0.4, 1)
        )


def cobbles(c, y, colour="#9a9088"):
    c.gradient(0, y, c.width, c.height - y, lighter(colour, 0.1), darker(colour, 0.2))
    yy, row = y + 5, 0
    while yy < c.height + 10:
        size = 9 + (yy - y) * 0.10
        x = -size * (row % 2)
        while x < c.width + size:
            c.ellipse(
                x,
                yy,
                size * 0.92,
                size * 0.42,
                mix(colour, "#d8cfc4", c.chance.uniform(0, 0.4)),
                darker(colour, 0.3),
                0.8,
            )
            x += size * 2
        yy += size * 0.86
        row += 1


def sign(c, x, y, w, h, words, colour="#2f4a3a", ink="#f6e9c4", size=None):
    c.box(x - w / 2, y, w, h, colour, INK, 1.8, 4)
    c.box(x - w / 2 + 3.5, y + 3.5, w - 7, h - 7, colour, ink, 1.2, 3)
    c.text(x, y + h * 0.68, words, size or h * 0.52, ink, bold=True)
