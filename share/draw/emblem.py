# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
"""The tree that stands on the first page of a new site: an old oak, its crown as wide as it is tall."""

import math
import random

from canvas import Canvas, polar, through

SIZE = 240
BARK = ((66, 44, 30), (96, 66, 44), (128, 92, 62))
LEAVES = ((34, 70, 42), (50, 92, 48), (72, 116, 54), (104, 144, 66), (148, 176, 86))


def picture():
    """The emblem as an RGBA picture of SIZE x SIZE pixels."""
    chance = random.Random(1871)
    c = Canvas(SIZE, SIZE, enlarge=4)
    _ground(c, chance)
    crown = _branches(c, chance)
    _grass(c, chance, 40, 220, 229)
    _foliage(c, chance, crown)
    return c.finished()


def _ground(c, chance):
    c.ellipse(120, 222, 92, 9, (120, 136, 76, 255))
    c.ellipse(120, 224, 72, 7, (92, 112, 62, 255))
    _grass(c, chance, 110, 214, 226)


def _grass(c, chance, blades, top, bottom):
    for _ in range(blades):
        y = chance.uniform(top, bottom)
        reach = 88 * math.sqrt(max(0, 1 - ((y - 222) / 10) ** 2))
        x = 120 + chance.uniform(-reach, reach)
        c.stroke([(x, y), (x + chance.uniform(-2, 2), y - chance.uniform(3, 7))], 1, chance.choice(LEAVES[1:4]), 0.5)


def _branches(c, chance):
    """Paints trunk, roots and boughs; returns the points where leaves grow."""
    tips = []

    def bough(x, y, turn, length, width, depth):
        end = polar(x, y, turn, length)
        if not 26 < end[0] < 214:
            return
        bend = polar(*polar(x, y, turn, length / 2), turn + 90, chance.uniform(-0.08, 0.08) * length)
        path = through([(x, y), bend, end])
        c.stroke(path, width, BARK[0], width * 0.66)
        c.stroke([(px - width * 0.12, py - width * 0.06) for px, py in path], width * 0.56, BARK[1], width * 0.4)
        if width > 4:
            c.stroke([(px - width * 0.22, py) for px, py in path], width * 0.16, BARK[2], width * 0.1)
        if depth <= 3:
            tips.append(end)
            tips.append(bend)
        if depth:
            for spread in (-34, 30) if depth < 5 else (-46, -4, 42):
                bough(*end, turn + spread + chance.uniform(-9, 9), length * chance.uniform(0.68, 0.82), width * 0.64, depth - 1)

    for reach, drop, width in ((-38, 6, 9), (-20, 10, 10), (22, 10, 10), (40, 5, 9)):
        c.stroke(through([(120 + reach * 0.2, 196), (120 + reach * 0.5, 211), (120 + reach, 215 + drop * 0.6)]), width, BARK[0], 1.5)
    c.polygon([(104, 224), (109, 205), (131, 205), (137, 224)], BARK[0])
    bough(120, 212, -90, 60, 25, 5)
    return tips


def _foliage(c, chance, tips):
    """Covers the boughs with leaves, the lit ones (above and to the left) painted last."""
    clusters = [(x, y) for x, y in tips if y < 150]
    leaves = []
    for x, y in clusters:
        for _ in range(11):
            away, turn = chance.gauss(0, 8), chance.uniform(0, 360)
            px, py = polar(x, y, turn, away)
            if math.hypot(px - 120, py - 96) < 110 and 6 < py and 6 < px < 234:
                light = (-(px - x) - 1.5 * (py - y)) / 11 + (110 - py) / 70 + chance.gauss(0, 0.55)
                leaves.append((light, px, py, chance.uniform(0, 360)))
    leaves.sort()
    for light, x, y, turn in leaves:
        shade = LEAVES[min(4, max(0, int(2 + light * 0.9)))]
        c.leaf(x, y, 9, 5.6, turn, shade)
    for _ in range(5):
        c.leaf(chance.uniform(60, 180), chance.uniform(190, 222), 6, 3.6, chance.uniform(0, 360), (186, 132, 52))
