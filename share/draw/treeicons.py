# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
"""The small emblems that mark the family trees of a site, each told from the others by its outline as well as by its colour."""

from canvas import Canvas, polar, through

SIZE = 48
BARK, DARK_BARK = (120, 78, 44), (84, 52, 30)
GREEN, LIGHT, DARK = (72, 138, 58), (128, 182, 84), (38, 92, 52)
RED, DARK_RED, GOLD, ORANGE = (196, 46, 46), (140, 28, 40), (232, 178, 42), (222, 116, 34)
BLUE, PURPLE, PINK, WHITE = (58, 104, 178), (122, 66, 148), (226, 112, 148), (252, 250, 244)


def trunk(c, top, width=5, colour=BARK, bottom=44):
    c.polygon([(24 - width / 2, top), (24 + width / 2, top), (24 + width * 0.85, bottom), (24 - width * 0.85, bottom)], colour)


def oak(c):
    trunk(c, 24, 6)
    for x, y, r in ((13, 20, 9), (35, 20, 9), (24, 12, 9), (18, 26, 8), (30, 26, 8), (24, 20, 9)):
        c.ellipse(x, y, r, r, GREEN)
    for x, y, r in ((12, 17, 4), (22, 9, 4.5), (33, 16, 4)):
        c.ellipse(x, y, r, r * 0.8, LIGHT)


def fir(c):
    trunk(c, 34, 5, DARK_BARK)
    for top, bottom, half in ((18, 39, 17), (10, 29, 13.5), (3, 19, 9.5)):
        c.polygon([(24, top), (24 + half, bottom), (24 - half, bottom)], DARK)
        c.polygon([(24, top), (24, bottom), (24 - half, bottom)], (56, 118, 68))


def poplar(c):
    trunk(c, 32, 4)
    c.smooth([(24, 2), (30.5, 12), (32.5, 25), (29, 37), (24, 40), (19, 37), (15.5, 25), (17.5, 12)], (92, 150, 50))
    c.smooth([(23, 6), (24, 16), (22, 34), (18.5, 25), (20, 13)], (156, 198, 92))


def palm(c):
    c.stroke(through([(20, 44), (21, 32), (25, 17)]), 5.5, BARK, 3.6)
    for turn, bend in ((-150, -30), (-30, 30), (-100, -12), (165, -40), (15, 40), (-62, 18)):
        middle = polar(25, 16, turn, 10)
        c.stroke(through([(25, 16), middle, polar(*middle, turn + bend * 1.6, 10)]), 5, DARK, 1.2)
    for x, y in ((22.5, 19), (27.5, 19.5)):
        c.ellipse(x, y, 2.6, 2.6, ORANGE)


def willow(c):
    trunk(c, 14, 6, DARK_BARK)
    c.ellipse(24, 14, 15, 9, (120, 160, 70))
    for x, end in ((7, 36), (11.5, 41), (16.5, 35), (31.5, 35), (36.5, 41), (41, 36)):
        side = -1 if x < 24 else 1
        c.stroke(through([(x - side * 3, 13), (x, 22), (x + side * 0.5, end)]), 4.6, (120, 160, 70), 2)
    c.ellipse(18, 10, 7, 3.4, (172, 204, 110))


def birch(c):
    c.smooth([(24, 3), (34, 11), (36, 22), (31, 31), (17, 31), (12, 22), (14, 11)], (216, 184, 52))
    c.polygon([(21.5, 18), (26.5, 18), (28, 45), (20, 45)], WHITE)
    for y, left in ((21, 22), (26, 24.5), (31, 21.5), (36, 24), (41, 21.5)):
        c.box(left, y, left + 3.4, y + 1.7, 0.5, (52, 48, 46))
    c.stroke([(24, 26), (17, 18)], 2.2, WHITE, 1.2)
    c.stroke([(24, 23), (30.5, 15)], 2.2, WHITE, 1.2)


def apple_tree(c):
    trunk(c, 26, 6)
    c.ellipse(24, 18.5, 17.5, 15, GREEN)
    c.ellipse(19, 12, 9, 5.5, LIGHT)
    for x, y in ((13, 20), (22, 17), (33, 14), (36, 23), (27, 26), (18, 28)):
        c.ellipse(x, y, 3, 3, RED)
        c.ellipse(x - 0.8, y - 0.9, 0.9, 0.9, (255, 190, 180))


def bare_tree(c):
    def branch(x, y, turn, length, width, depth):
        end = polar(x, y, turn, length)
        c.stroke([(x, y), end], width, DARK_BARK, width * 0.66)
        if depth:
            for spread in (-34, 30):
                branch(*end, turn + spread, length * 0.72, width * 0.68, depth - 1)
    branch(24, 45, -90, 15, 6.4, 4)


def cactus(c):
    c.box(19, 5, 29, 44, 5, (46, 122, 92))
    c.stroke(through([(20, 30), (11.5, 29), (10, 18)]), 6.4, (46, 122, 92))
    c.stroke(through([(28, 25), (36.5, 24), (38, 13)]), 6.4, (46, 122, 92))
    for x in (22, 26):
        c.stroke([(x, 9), (x, 42)], 0.9, (136, 196, 150))
    c.ellipse(24, 5, 3.6, 3, PINK)


def kin(c):
    """The family tree itself: a stem whose crown is made of people's portraits."""
    c.stroke([(24, 45), (24, 16)], 5, BARK, 3.4)
    c.stroke(through([(24, 34), (16, 31), (11, 24)]), 3.6, BARK, 2.6)
    c.stroke(through([(24, 34), (32, 31), (37, 24)]), 3.6, BARK, 2.6)
    for x, y, r, colour in ((24, 11, 9, GREEN), (10.5, 22, 8.2, BLUE), (37.5, 22, 8.2, RED)):
        c.ellipse(x, y, r, r, colour)
        c.ellipse(x, y - r * 0.28, r * 0.33, r * 0.35, WHITE)
        c.smooth([(x - r * 0.58, y + r * 0.62), (x - r * 0.4, y + r * 0.2), (x, y + r * 0.1),
                  (x + r * 0.4, y + r * 0.2), (x + r * 0.58, y + r * 0.62), (x, y + r * 0.74)], WHITE)


def oak_leaf(c):
    right = [(26, 5), (31, 9), (29, 14), (37, 16), (35, 22), (30, 23), (37, 27), (34, 33), (28, 33), (26, 38)]
    c.smooth([(24, 3), *right, (24, 39), *[(48 - x, y) for x, y in reversed(right)]], (178, 122, 40))
    c.stroke([(24, 7), (24, 45)], 1.8, (96, 58, 22))
    for y in (15, 24, 32):
        c.stroke([(24, y + 3), (31.5, y - 1)], 1.1, (96, 58, 22))
        c.stroke([(24, y + 3), (16.5, y - 1)], 1.1, (96, 58, 22))


def maple_leaf(c):
    half = [(24, 2), (28, 10), (33.5, 7.5), (31.5, 18), (37, 13.5), (39, 17.5), (45.5, 17), (42.5, 24), (45, 26.5), (33, 33.5),
            (34.5, 38), (25.2, 36)]
    c.polygon(half + [(48 - x, y) for x, y in reversed(half)], RED)
    c.stroke([(24, 10), (24, 46)], 2, DARK_RED)
    c.stroke([(24, 33), (39, 21)], 1.2, DARK_RED)
    c.stroke([(24, 33), (9, 21)], 1.2, DARK_RED)


def clover(c):
    c.stroke(through([(24, 24), (27, 36), (33, 44)]), 2.6, DARK)
    for turn in (45, 135, 225, 315):
        x, y = polar(24, 21, turn, 11.5)
        for side in (-38, 38):
            c.ellipse(*polar(24, 21, turn + side * 0.62, 12.5), 6.6, 6.6, (40, 140, 84))
        c.polygon([(24, 21), polar(x, y, turn + 90, 8), polar(x, y, turn - 90, 8)], (40, 140, 84))
        c.stroke([(24, 21), polar(24, 21, turn, 12)], 1.3, (170, 220, 170))


def acorn(c):
    c.smooth([(24, 45), (15, 37), (12, 25), (15, 20), (33, 20), (36, 25), (33, 37)], (186, 128, 58))
    c.smooth([(19, 37), (15.5, 27), (18, 24), (20.5, 27)], (226, 182, 112))
    c.smooth([(8.5, 20), (12, 12), (24, 8), (36, 12), (39.5, 20), (36, 24), (12, 24)], DARK_BARK)
    for x in (15, 21, 27, 33):
        c.stroke([(x - 2, 21), (x + 2, 13)], 0.9, (150, 104, 66))
    c.stroke([(24, 9), (26, 3)], 3.2, DARK_BARK)


def mushroom(c):
    c.smooth([(18, 26), (17, 43), (24, 45), (31, 43), (30, 26)], (240, 228, 200))
    c.smooth([(3.5, 26), (8, 13), (24, 5), (40, 13), (44.5, 26), (34, 29), (14, 29)], (190, 40, 36))
    for x, y, r in ((15, 18, 3.2), (26, 12, 3.4), (35, 20, 3), (24, 23, 2.4)):
        c.ellipse(x, y, r, r * 0.86, WHITE)


def tulip(c):
    c.stroke([(24, 24), (24, 45)], 3, DARK)
    c.leaf(24, 45, 19, 9, -135, GREEN)
    c.leaf(24, 45, 19, 9, -45, GREEN)
    c.smooth([(12, 7), (18, 12), (24, 4), (30, 12), (36, 7), (36, 20), (30, 27), (18, 27), (12, 20)], PURPLE)
    c.smooth([(24, 5), (29, 14), (28, 25), (20, 25), (19, 14)], (170, 116, 196))


def daisy(c):
    for turn in range(0, 360, 36):
        c.stroke([(24, 24), polar(24, 24, turn, 18)], 5, WHITE, 8.6)
    for turn in range(18, 378, 36):
        c.stroke([polar(24, 24, turn, 8), polar(24, 24, turn, 24)], 1.2, (140, 128, 164), 2)
    c.ellipse(24, 24, 7, 7, GOLD)
    c.ellipse(22, 22, 2.6, 2.4, (255, 222, 120))


def ginkgo(c):
    c.stroke(through([(24, 30), (24, 38), (28, 45)]), 2.6, (150, 118, 20))
    c.smooth([(24, 32), (12, 27), (3, 16), (8, 8), (17, 5), (23, 8), (24, 16), (25, 8), (31, 5), (40, 8), (45, 16), (36, 27)], GOLD)
    for x in (8, 14, 19, 29, 34, 40):
        c.stroke([(24, 30), (x, 10 + abs(x - 24) * 0.42)], 0.8, (178, 132, 22))


def holly(c):
    for turn, side in ((-150, 1), (-30, -1)):
        points = [(24, 30)]
        for reach, out in ((6, 5), (9, 3.4), (13, 8), (16, 4), (20, 6), (25, 0)):
            points.append(polar(*polar(24, 30, turn, reach), turn - 90, out))
        for reach, out in ((20, 6), (16, 4), (13, 8), (9, 3.4), (6, 5)):
            points.append(polar(*polar(24, 30, turn, reach), turn + 90, out))
        c.polygon(points, (26, 96, 66))
        c.stroke([(24, 30), polar(24, 30, turn, 20)], 1.2, (140, 190, 150))
    for x, y in ((19, 32), (29, 32), (24, 39)):
        c.ellipse(x, y, 5, 5, RED)
        c.ellipse(x - 1.5, y - 1.6, 1.4, 1.4, (255, 200, 190))


def seedling(c):
    c.smooth([(8, 44), (14, 37), (24, 34.5), (34, 37), (40, 44)], DARK_BARK)
    c.stroke(through([(24, 38), (23.5, 28), (24, 19)]), 3, GREEN)
    c.leaf(24, 22, 21, 15, -160, LIGHT)
    c.leaf(24, 20, 22, 16, -32, GREEN)
    c.stroke([(24, 20), polar(24, 20, -32, 16)], 1, (190, 222, 150))


TREES = (oak, fir, poplar, palm, willow, birch, apple_tree, bare_tree, cactus, kin,
         oak_leaf, maple_leaf, clover, acorn, mushroom, tulip, daisy, ginkgo, holly, seedling)


def pictures():
    """Yields (file name, picture) for each tree icon."""
    for number, paint in enumerate(TREES):
        canvas = Canvas(SIZE, SIZE, margin=2)
        paint(canvas)
        yield f"icons_tree_{number:02}.gif", canvas.rimmed().finished()
