# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
"""What was never a photograph: a postcard, a night piece, a coat of arms and a map; kept as GIF."""
import math

import scenery as land
from canvas import INK, lighter
from stage import Picture

PAPER = "#f2e6c8"


def postcard(s):
    c = s.canvas
    c.box(0, 0, c.width, c.height, "#fbf4e2")
    c.cr.save()
    c.cr.rectangle(18, 18, c.width - 36, c.height - 36)
    c.cr.clip()
    c.gradient(0, 0, c.width, 320, "#f0a860", "#fbe4b0")
    c.ellipse(150, 250, 64, 64, "#f6d05a")
    land.sea(c, 270, "#3f8a9a")
    c.path((420, 460), ((460, 360), (520, 350), (560, 330)), ((660, 320), (720, 380), (760, 470)))
    c.fill("#7a6a5a", INK, 2)
    c.path((560, 345), (580, 110), (650, 110), (672, 345))
    c.fill("#fbf6ea", INK, 2.2)
    for top, bottom in ((160, 205), (255, 300)):
        c.path((580 - (top - 110) * 0.085, top), (650 + (top - 110) * 0.094, top), (650 + (bottom - 110) * 0.094,
                  bottom), (580 - (bottom - 110) * 0.085, bottom))
        c.fill("#c4403a", INK, 1.4)
    c.box(586, 70, 58, 42, "#ffe9a0", INK, 2)
    c.polygon([(578, 70), (615, 36), (652, 70)], "#c4403a", INK, 2)
    c.polygon([(586, 80), (586, 100), (330, 150), (330, 20)], "#fff4c8", alpha=0.35)
    c.gradient(0, 452, c.width, 100, "#d8b87a", "#b8945a")
    s.cat("hector", 250, 506, 250, left="up", right="link", mood="wink", tail=-1,
          wear={"kind": "stripes", "c": "#fbf4e2", "c2": "#2f6a8a", "legs": "#2a4a72", "hat": "sailor"})
    s.cat("ginevra", 376, 508, 238, left="link", right="hip", mood="happy",
          wear={"kind": "dress", "c": "#c4403a", "dots": True, "c2": "#fbf4e2", "hat": "scarf", "hc": "#2f6a8a"})
    c.cr.restore()
    c.text(c.width / 2, 62, "Saluti da Gattopoli", 40, "#8a2f2a", italic=True, bold=True)


def night_singers(s):
    c = s.canvas
    c.gradient(0, 0, c.width, c.height, "#0f1638", "#4a4a8a")
    land.stars(c, 120, 380)
    c.glow(560, 150, 210, "#fff0b8", 0.55)
    c.ellipse(560, 150, 92, 92, "#fbeebc")
    for x, y, r in ((530, 130, 16), (590, 170, 22), (570, 105, 10)):
        c.ellipse(x, y, r, r, "#efdc9a")
    for x, y, w, tint in ((-20, 340, 250, "#3a3050"), (190, 390, 270, "#2f2846"), (430, 350, 300, "#3a3050")):
        c.polygon([(x, y + 90), (x + w * 0.2, y), (x + w * 0.8, y), (x + w, y + 90)], tint, "#15102a", 2)
        c.box(x + w * 0.08, y + 88, w * 0.84, 200, lighter(tint, 0.08), "#15102a", 2)
        for i in range(3):
            c.box(x + w * (0.2 + 0.24 * i), y + 120, 30, 38, "#ffd870" if i != 1 else "#241e3a", "#15102a", 2)
    for x, y in ((60, 300), (620, 300)):
        c.box(x, y, 30, 60, "#4a3a4a", "#15102a", 2)
    bare = {"no_shadow": True}
    s.cat("grey", 120, 344, 130, called="a soprano, never identified", pose="catsit", mood="sing", tail=-1, wear=bare)
    s.cat("lucky", 240, 396, 146, pose="catsit", mood="sing", tail=-1, wear=bare)
    s.cat("kofi", 390, 396, 140, pose="catsit", mood="sleep", tail=1, wear=bare)
    s.cat("black", 540, 356, 150, called="an unknown tenor", pose="catsit", mood="sing", tail=1, wear=bare)
    for x, y in ((180, 190), (300, 230), (460, 240), (250, 150), (400, 180)):
        c.ellipse(x, y, 7, 5, "#fbeebc", turn=-0.4)
        c.lines([(x + 6, y), (x + 6, y - 28)], "#fbeebc", 2.4)
        c.taper(x + 6, y - 28, x + 20, y - 16, 3, "#fbeebc", -0.2)
    s.named("algernon")
    c.text(610, 512, "A. Thistlepaw pinx.", 15, "#b8b0e0", italic=True)


def coat_of_arms(s):
    c = s.canvas
    c.box(0, 0, c.width, c.height, PAPER)
    c.box(14, 14, c.width - 28, c.height - 28, PAPER, "#8a6a3a", 3)

    def shield():
        c.path((150, 130), (410, 130), ((410, 300), (390, 400), (280, 470)), ((170, 400), (150, 300), (150, 130)))
    shield()
    c.fill("#2f5a8a", INK, 4)
    shield()
    with c.clipped():
        c.box(280, 120, 200, 400, "#c4403a")
        c.box(100, 236, 400, 60, "#f3d36a", INK, 2)
        land.mill(c, 214, 224, 74, turn=0.4)
        c.cr.save()
        c.cr.translate(345, 180)
        c.ellipse(0, 0, 38, 18, "#dfe8ee", INK, 2)
        c.polygon([(30, 0), (54, -17), (54, 17)], "#dfe8ee", INK, 2)
        c.ellipse(-20, -4, 3.4, 3.4, INK)
        c.cr.restore()
        for x in (200, 280, 360):
            c.ellipse(x, 272, 12, 10, "#6a4a2a", INK, 1.4)
            for dx in (-12, -4, 4, 12):
                c.ellipse(x + dx, 254 + abs(dx) * 0.4, 4, 5, "#6a4a2a", INK, 1.2)
        for i in range(4):
            c.taper(170, 320 + i * 32, 400, 330 + i * 32, 5, "#fbf4e2", 0.05 if i % 2 else -0.05, 0.9)
    shield()
    c.stroke(INK, 4)
    plain = {"no_shadow": True, "neck": "bow", "nc": "#f3d36a"}
    s.cat("tabby", 96, 452, 230, mark="none", left="none", right="out", tail=-1, mood="stern", wear=plain)
    s.cat("tuxedo", 464, 452, 230, mark="none", left="out", right="none", tail=1, mood="stern", wear=plain)
    c.cr.save()
    c.cr.translate(280, 120)
    for i in range(5):
        c.polygon([(-60 + i * 24, 0), (-48 + i * 24, -44), (-36 + i * 24, 0)], "#e9c65a", "#7a5a14", 2)
        c.ellipse(-48 + i * 24, -46, 5, 5, "#c4403a", "#7a5a14", 1.4)
    c.box(-64, -6, 128, 18, "#e9c65a", "#7a5a14", 2, 4)
    c.cr.restore()
    c.path((70, 500), ((180, 470), (380, 530), (490, 500)), (480, 556), ((380, 586), (180, 526), (80, 556)))
    c.fill("#fbf4e2", INK, 2)
    c.text(280, 540, "DORMIO · ERGO · SUM", 25, "#6a2f2a", bold=True, turn=0.03)


def map_of_the_moor(s):
    c = s.canvas
    c.box(0, 0, c.width, c.height, PAPER)
    c.path((520, 0), ((500, 120), (600, 160), (570, 260)), ((540, 340), (640, 380), (600, 560)), (800, 560), (800, 0))
    c.fill("#a8ccd4", "#5a7a82", 2.4)
    for i in range(30):
        x, y = c.chance.uniform(640, 780), c.chance.uniform(20, 540)
        c.taper(x, y, x + 24, y, 1.6, "#5a8a94", -0.15)
    c.path((60, 560), ((120, 420), (260, 460), (330, 360)), ((400, 280), (470, 300), (574, 250)), close=False)
    c.stroke("#7aaab4", 7)
    for i in range(26):
        t = i / 25
        x, y = 90 + 470 * t, 190 + 110 * math.sin(t * 2.6)
        c.lines([(x - 5, y - 6), (x + 5, y + 6)], "#6a5a4a", 1.6)
    c.lines([(90 + 470 * i / 60, 190 + 110 * math.sin(i / 60 * 2.6)) for i in range(61)], "#6a5a4a", 2)
    for i in range(16):
        land.fir(c, 60 + (i % 6) * 32 + c.chance.uniform(-8, 8), 110 + (i // 6) * 26, 34)
    for i in range(6):
        c.path((250 + i * 36, 130), ((262 + i * 36, 92), (280 + i * 36, 92), (292 + i * 36, 130)), close=False)
        c.stroke("#8a7a5a", 2)
    land.mill(c, 330, 300, 84)
    for x, y in ((250, 318), (285, 340), (395, 330)):
        land.house(c, x, y, 30, 16)
    land.church(c, 420, 300, 34)
    for x, y in ((500, 250), (530, 282), (520, 320), (490, 300)):
        land.house(c, x, y, 32, 18)
    land.ship(c, 690, 200, 90, sail=True)
    land.ship(c, 700, 420, 80, name=None)
    land.house(c, 130, 420, 42, 22)
    for words, x, y, size in (("Whiskermoor", 320, 372, 22), ("Port Purr", 522, 356, 20), ("to Felinburgh", 88, 232,
              14), ("Cream Cottage", 152, 446, 14), ("The Catmint Field", 240, 500, 14),
                              ("Upper Mewing", 330, 84, 14), ("The Sleeping Cats", 345, 152, 12), ("Here be herring",
                                        690, 300, 16), ("Whiskermoor Halt", 210, 262, 12)):
        c.text(x, y, words, size, "#5a3a2a", italic=True, bold=size > 18)
    c.text(230, 44, "A MAP of the MOOR and the SEA", 22, "#7a2f2a", bold=True)
    for i in range(8):
        a = i * math.pi / 4
        r = 42 if i % 2 == 0 else 24
        c.polygon([(690 + math.cos(a) * r, 90 + math.sin(a) * r), (690 + math.cos(a + 0.5) * 9,
                  90 + math.sin(a + 0.5) * 9), (690, 90),
                   (690 + math.cos(a - 0.5) * 9, 90 + math.sin(a - 0.5) * 9)], "#c4403a" if i % 2 == 0 else "#f3d36a",
                             INK, 1.2)
    c.text(690, 42, "N", 18, "#5a3a2a", bold=True)
    c.box(8, 8, c.width - 16, c.height - 16, PAPER, "#8a6a3a", 3, alpha=0)
    s.named("algernon")


PICTURES = [
    Picture("30-postcard.gif", "Hector's last postcard", "Aft. 1951", "Gattopoli",
            "\"All well. Six lives left. The lighthouse keeper is a friend. Do not keep supper.\"\nIt came without a stamp and cost Molly twopence.",
            postcard, "plain", (740, 540), "left"),
    Picture("31-night-singers.gif", "Night singers over Butter Lane", "", "Port Purr",
            "A watercolour, after a night without sleep.\nThe tenor was never found out.", night_singers, "plain",
                      (720, 540), "above", "arrow"),
    Picture("32-coat-of-arms.gif", "The arms of the family", "", "",
            "Granted by nobody. \"I sleep, therefore I am.\"", coat_of_arms, "plain", (560, 600), "left"),
    Picture("33-map.gif", "A map of the moor and the sea", "Bef. Sep 1998", "Whiskermoor",
            "Drawn from memory and partly asleep.", map_of_the_moor, "plain", (800, 560), "above"),
]
