# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
"""Indoors: walls, floors, furniture, festive things."""
import math

from canvas import INK, darker, lighter, mix
from scenery import fir


def room(c, floor_y, wall="#d8c7a8", stripe=None, boards="#a8794e", skirting="#f2e8d6"):
    c.gradient(0, 0, c.width, floor_y, lighter(wall, 0.12), darker(wall, 0.06))
    if stripe:
        x = 0
        while x < c.width:
            c.box(x, 0, 14, floor_y, stripe, alpha=0.45)
            x += 42
            for yy in range(30, int(floor_y), 64):
                c.ellipse(x - 14, yy + (int(x) % 3) * 8, 4, 5, lighter(stripe, 0.3), alpha=0.6)
    c.gradient(0, floor_y, c.width, c.height - floor_y, lighter(boards, 0.1), darker(boards, 0.25))
    for i in range(-6, 30):
        x = c.width * (i / 20)
        c.lines([(x, floor_y), (c.width / 2 + (x - c.width / 2) * 1.7, c.height)], darker(boards, 0.3), 1.2, 0.7)
    c.box(0, floor_y - 12, c.width, 13, skirting, INK, 1.2)


def rug(c, x, y, rx, ry, colour="#a8433e"):
    c.ellipse(x, y, rx, ry, colour, INK, 1.6)
    c.ellipse(x, y, rx * 0.90, ry * 0.86, colour, lighter(colour, 0.6), 3)
    c.ellipse(x, y, rx * 0.62, ry * 0.58, darker(colour, 0.2), lighter(colour, 0.5), 2)


def curtain(c, x, w, h, colour, side):
    """A drape from the top, gathered towards its side (-1 left, 1 right)."""
    edge = x if side < 0 else x + w
    inner = x + w if side < 0 else x
    c.path(
        (edge, 0),
        (inner, 0),
        ((inner, h * 0.3), (edge - side * w * 0.45, h * 0.5), (edge - side * w * 0.35, h * 0.62)),
        ((edge - side * w * 0.5, h * 0.8), (edge - side * w * 0.6, h * 0.9), (edge - side * w * 0.62, h)),
        (edge, h),
    )
    c.fill(colour, INK, 2)
    for i in range(1, 6):
        t = i / 6
        xx = edge - side * w * t
        c.taper(xx, 0, edge - side * w * 0.3 * t, h * 0.6, 4, darker(colour, 0.35), side * 0.1, 0.6)
        c.taper(edge - side * w * 0.3 * t, h * 0.64, edge - side * w * 0.58 * t, h, 4, darker(colour, 0.35), 0, 0.6)
    c.box(min(edge, edge - side * w * 0.4), h * 0.605, w * 0.4, 9, "#d9b04a", INK, 1.2, 4)


def frame(c, x, y, w, h, tint="#c9b48a", shape="square"):
    c.box(x, y, w, h, "#a87c3a", INK, 1.6, 3)
    c.box(x + 6, y + 6, w - 12, h - 12, tint, INK, 1)
    if shape == "fish":
        c.ellipse(x + w / 2, y + h / 2, w * 0.22, h * 0.14, "#6f94a8", INK, 1.2)
        c.polygon(
            [(x + w * 0.70, y + h / 2), (x + w * 0.80, y + h * 0.38), (x + w * 0.80, y + h * 0.62)], "#6f94a8", INK, 1.2
        )
    else:
        c.polygon(
            [
                (x + 6, y + h - 6),
                (x + w * 0.4, y + h * 0.45),
                (x + w * 0.6, y + h * 0.6),
                (x + w * 0.75, y + h * 0.5),
                (x + w - 6, y + h - 6),
            ],
            "#7f9a6a",
        )


def sofa(c, x, y, w, h, colour="#8a4a52"):
    """The back and arms; the cushions' front edge is at y, where cats sit. `sofa_front` goes before the cats' feet."""
    c.box(x, y - h, w, h * 1.25, colour, INK, 2.2, h * 0.22)
    c.glow(x + w * 0.5, y - h * 0.5, w * 0.4, lighter(colour, 0.5), 0.35, 0.6)
    n = max(3, int(w / 110))
    for i in range(n):
        for row in (0.35, 0.62):
            c.ellipse(
                x + w * (i + 0.5 + (0.5 if row > 0.5 else 0)) / (n + 0.5),
                y - h * row - h * 0.1,
                4,
                4,
                darker(colour, 0.4),
            )
    c.box(x + w * 0.04, y - h * 0.20, w * 0.92, h * 0.32, lighter(colour, 0.10), INK, 2, h * 0.1)


def sofa_front(c, x, y, w, h, colour="#8a4a52"):
    c.box(x, y, w, h * 0.36, colour, INK, 2.2, h * 0.08)
    for side in (0, 1):
        xx = x - w * 0.035 if side == 0 else x + w - w * 0.045
        c.box(xx, y - h * 0.55, w * 0.08, h * 0.92, darker(colour, 0.08), INK, 2.2, w * 0.035)
        c.box(x + (0.06 if side == 0 else 0.90) * w, y + h * 0.36, w * 0.04, h * 0.14, "#5a3c28", INK, 1.6)


def table(c, x, y, w, h, cloth="#fbf6ea", check=None):
    """A table whose top's front edge is at y; things stand a little above."""
    for dx in (0.06, 0.90):
        c.box(x + w * dx, y, w * 0.04, h, "#7a5236", INK, 1.6)
    c.path(
        (x + w * 0.04, y - h * 0.16),
        (x + w * 0.96, y - h * 0.16),
        (x + w, y),
        (x + w, y + h * 0.42),
        (x, y + h * 0.42),
        (x, y),
    )
    c.fill(cloth, INK, 1.8)
    if check:
        c.path((x, y), (x + w, y), (x + w, y + h * 0.42), (x, y + h * 0.42))
        with c.clipped():
            for i in range(int(w / 18) + 1):
                c.box(x + i * 18, y, 9, h, check, alpha=0.5)
            for i in range(6):
                c.box(x, y + i * 18, w, 9, check, alpha=0.5)
    c.lines([(x, y), (x + w, y)], darker(cloth, 0.3), 1.4)


def cake(c, x, y, s, tiers=2, candles=5, tint="#fdf3ea"):
    c.ellipse(x, y, s * 0.62, s * 0.10, "#e4e9ec", INK, 1.4)
    top = y
    for tier in range(tiers):
        w, h = s * (1.0 - 0.3 * tier), s * 0.30
        top -= h
        c.box(x - w / 2, top, w, h, tint, INK, 1.6, 4)
        for i in range(7):
            xx = x - w / 2 + w * (i + 0.5) / 7
            c.ellipse(xx, top + h * 0.18, w / 14, h * 0.24, "#e77f8d" if tier % 2 == 0 else "#f6d9a8")
        c.ellipse(x, top, w / 2, h * 0.12, lighter(tint, 0.5), INK, 1.2)
    span = s * (1.0 - 0.3 * (tiers - 1)) * 0.7
    for i in range(candles):
        xx = x + span * ((i + 0.5) / candles - 0.5)
        c.box(xx - 1.8, top - s * 0.17, 3.6, s * 0.16, ("#4a86c8", "#c9415a", "#e9b43e")[i % 3], INK, 0.7)
        c.glow(xx, top - s * 0.22, 9, "#ffd860", 0.8)
        c.ellipse(xx, top - s * 0.215, 2, 4, "#ff9a3a")


def teapot(c, x, y, s, tint="#4a78a8"):
    c.path(
        (x + s * 0.4, y - s * 0.3),
        ((x + s * 0.75, y - s * 0.3), (x + s * 0.6, y - s * 0.7), (x + s * 0.85, y - s * 0.75)),
        (x + s * 0.75, y - s * 0.8),
        ((x + s * 0.5, y - s * 0.75), (x + s * 0.6, y - s * 0.5), (x + s * 0.4, y - s * 0.5)),
    )
    c.fill(tint, INK, 1.4)
    c.cr.arc(x - s * 0.5, y - s * 0.42, s * 0.2, math.pi * 0.5, math.pi * 1.6)
    c.stroke(INK, 4.4)
    c.ellipse(x, y - s * 0.38, s * 0.5, s * 0.38, tint, INK, 1.6)
    c.ellipse(x, y - s * 0.76, s * 0.22, s * 0.07, lighter(tint, 0.2), INK, 1.4)
    c.ellipse(x, y - s * 0.86, s * 0.07, s * 0.07, tint, INK, 1.2)
    c.ellipse(x - s * 0.15, y - s * 0.5, s * 0.12, s * 0.09, "#ffffff", alpha=0.5)


def cup(c, x, y, s, tint="#fbf6ea"):
    c.cr.arc(x + s * 0.36, y - s * 0.3, s * 0.16, 0, 6.28)
    c.stroke(INK, 2)
    c.path(
        (x - s * 0.36, y - s * 0.55),
        (x + s * 0.36, y - s * 0.55),
        ((x + s * 0.34, y - s * 0.1), (x + s * 0.2, y), (x, y)),
        ((x - s * 0.2, y), (x - s * 0.34, y - s * 0.1), (x - s * 0.36, y - s * 0.55)),
    )
    c.fill(tint, INK, 1.3)
    c.ellipse(x, y - s * 0.55, s * 0.36, s * 0.08, "#fffaf0", INK, 1)


def plate_of_fish(c, x, y, s):
    c.ellipse(x, y, s * 0.7, s * 0.16, "#fbf8f0", INK, 1.3)
    c.ellipse(x, y - s * 0.1, s * 0.42, s * 0.14, "#c98a4a", INK, 1.3)
    c.polygon(
        [(x + s * 0.38, y - s * 0.1), (x + s * 0.6, y - s * 0.24), (x + s * 0.6, y + s * 0.04)], "#c98a4a", INK, 1.3
    )
    c.ellipse(x - s * 0.24, y - s * 0.13, s * 0.03, s * 0.03, INK)


def christmas_tree(c, x, y, h):
    fir(c, x, y, h, "#3f7a4e")
    for i in range(26):
        level = c.chance.random()
        yy = y - h * 0.14 - level * h * 0.72
        xx = x + c.chance.uniform(-1, 1) * h * 0.25 * (1 - level)
        tint = ("#d8444f", "#e9b43e", "#4a86c8", "#f4efe4")[i % 4]
        c.glow(xx, yy, h * 0.04, "#ffe9a0", 0.5)
        c.ellipse(xx, yy, h * 0.016, h * 0.016, tint, darker(tint), 0.8)
    points = []
    for i in range(10):
        r = h * (0.055 if i % 2 == 0 else 0.024)
        a = -math.pi / 2 + i * math.pi / 5
        points.append((x + math.cos(a) * r, y - h * 1.0 + math.sin(a) * r))
    c.polygon(points, "#f3cf4a", "#8a6414", 1.2)


def fireplace(c, x, y, w, h):
    c.box(x, y - h, w, h, "#b5654e", INK, 2)
    c.path((x, y - h), (x + w, y - h), (x + w, y), (x, y))
    with c.clipped():
        for row in range(int(h / 14) + 1):
            for col in range(int(w / 30) + 2):
                c.box(
                    x + col * 30 - (row % 2) * 15,
                    y - h + row * 14,
                    28,
                    12,
                    mix("#b5654e", "#8a4434", c.chance.random()),
                    radius=2,
                    alpha=0.55,
                )
    c.path(
        (x + w * 0.2, y),
        (x + w * 0.2, y - h * 0.45),
        ((x + w * 0.2, y - h * 0.72), (x + w * 0.8, y - h * 0.72), (x + w * 0.8, y - h * 0.45)),
        (x + w * 0.8, y),
    )
    c.fill("#2a1a16", INK, 2)
    c.glow(x + w / 2, y - h * 0.12, w * 0.4, "#ff9a3a", 0.9)
    for dx, hh, tint in (
        (-0.12, 0.30, "#f2802f"),
        (0.10, 0.34, "#f2802f"),
        (0, 0.42, "#f6a83a"),
        (-0.04, 0.2, "#fbe08a"),
        (0.07, 0.18, "#fbe08a"),
    ):
        c.taper(x + w * (0.5 + dx), y - 4, x + w * (0.5 + dx * 0.6), y - h * hh, w * 0.05, tint, 0.1)
    c.box(x - w * 0.05, y - h - 12, w * 1.1, 15, "#8a5a3a", INK, 1.8, 3)


def piano(c, x, y, w, h):
    c.box(x, y - h, w, h, "#4a3028", INK, 2.2, 5)
    c.box(x + w * 0.06, y - h * 0.92, w * 0.88, h * 0.32, "#5f4034", INK, 1.4, 4)
    c.box(x - w * 0.03, y - h * 0.52, w * 1.06, h * 0.10, "#3a241e", INK, 1.8, 3)
    c.box(x + w * 0.03, y - h * 0.50, w * 0.94, h * 0.055, "#fbf6ea", INK, 1)
    for i in range(24):
        if i % 7 not in (2, 6):
            c.box(x + w * (0.05 + i * 0.038), y - h * 0.50, w * 0.016, h * 0.032, "#1c1418")


def blackboard(c, x, y, w, h, lines):
    c.box(x, y, w, h, "#2f4640", "#8a5a34", 6)
    for i, words in enumerate(lines):
        c.text(x + w / 2, y + h * (i + 1) / (len(lines) + 0.5), words, h * 0.16, "#f4f4ea", italic=True)


def armchair(c, x, y, w, h, colour="#7a5a8a"):
    c.box(x - w / 2, y - h, w, h, colour, INK, 2.2, w * 0.32)
    c.glow(x, y - h * 0.6, w * 0.4, lighter(colour, 0.4), 0.5)
    c.box(x - w * 0.42, y - h * 0.24, w * 0.84, h * 0.2, lighter(colour, 0.12), INK, 2, 8)


def armchair_front(c, x, y, w, h, colour="#7a5a8a"):
    c.box(x - w * 0.46, y - h * 0.05, w * 0.92, h * 0.16, colour, INK, 2, 8)
    for side in (-1, 1):
        c.box(x + side * w * 0.5 - w * 0.11, y - h * 0.46, w * 0.22, h * 0.58, darker(colour, 0.1), INK, 2.2, w * 0.1)


def wool(c, x, y, r, tint):
    c.ellipse(x, y, r, r, tint, darker(tint, 0.5), 1.6)
    for i in range(5):
        c.cr.save()
        c.ellipse_path(x, y, r, r)
        c.cr.clip()
        c.ellipse(x + r * (i - 2) * 0.3, y - r * 0.2, r * 0.3, r * 1.1, tint, darker(tint, 0.3), 1.2, turn=0.5, alpha=0)
        c.cr.restore()
