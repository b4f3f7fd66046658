# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
"""1980 to 2025: colour that has kept; the camera sees in the dark now, and so do its owners."""
import math

import interiors as room
import scenery as land
from canvas import INK, darker
from stage import Picture


def ski_jump(s):
    c = s.canvas
    land.sky(c, "#3f86c8", "#dcecf6", 360, 2)
    land.hills(c, 330, 190, "#dfe9f2", 2, 2.2)
    land.hills(c, 380, 80, "#eef4f8", 3, 0.4)
    for x, y, h in ((60, 400, 170), (150, 390, 120), (640, 396, 150), (720, 410, 200), (560, 384, 90)):
        land.fir(c, x, y, h, snow=True)
    c.gradient(0, 392, c.width, c.height - 392, "#fbfdff", "#cfe0ee")
    land.house(c, 330, 402, 130, 62, wall="#b8433a", roof="#f4f8fc")
    for x0 in (356, 386):
        c.box(x0, 330, 8, 250, "#e9b43e", INK, 1.6, 4)
    s.cat("sven", 290, 568, 310, left="hip", right="up", mood="happy", tail=-1,
          wear={"kind": "knit", "c": "#2f5a9a", "c2": "#fdf6ec", "legs": "#2a3a5a", "hat": "wool", "hc": "#e9b43e",
                    "hc2": "#2f5a9a", "gloves": "#d8444f"})
    s.cat("linnea", 500, 560, 190, age="kitten", left="out", right="out", mood="open", tail=1,
          wear={"kind": "knit", "c": "#d8444f", "c2": "#fdf6ec", "legs": "#3a4a6a", "hat": "wool", "hc": "#d8444f",
                    "hc2": "#fdf6ec", "gloves": "#4a86c8"})
    s.named("beatrix")
    land.snowfall(c, 60)


def seven_on_a_sofa(s):
    c = s.canvas
    room.room(c, 420, "#d8c4a0", stripe="#c9b088", boards="#a8744a")
    room.frame(c, 80, 40, 140, 110, shape="fish")
    land.window(c, 360, 40, 160, 140, "#a8d0ea", curtains="#e9a04a")
    room.frame(c, 660, 40, 130, 110)
    room.rug(c, 440, 545, 390, 46, "#3f6a8a")
    room.sofa(c, 60, 440, 760, 190, "#4f7a5a")
    tees = {"kind": "shirt", "short": True}
    for i, (who, h, age, mood, wear) in enumerate((
            ("iris", 238, "adult", "happy", {"kind": "dress", "c": "#b04a7a", "dots": True, "c2": "#fdf6ec"}),
            ("sandy", 226, "youth", "stern", dict(tees, c="#3a3a44", legs="#4a6a9a")),
            ("linnea", 238, "adult", "open", {"kind": "knit", "c": "#4a86c8", "c2": "#fdf6ec", "legs": "#3a4a6a"}),
            ("hugo", 214, "youth", "wink", dict(tees, c="#e9b43e", check=True, c2="#c9683a", legs="#5a5a62")),
            ("gwendolen", 204, "youth", "open", {"kind": "overalls", "c": "#4a6a9a", "c2": "#d8444f",
                      "legs": "#4a6a9a"}),
            ("mateo", 186, "kitten", "sing", dict(tees, c="#5a9a5a", legs="#8a6a4a")),
            ("ama", 170, "kitten", "open", {"kind": "dress", "c": "#e9a04a", "c2": "#fdf6ec", "hat": "bow",
                      "hc": "#d8444f"}))):
        s.cat(who, 124 + i * 106, 456, h, age=age, pose="sit", left="front", right="up" if who == "mateo" else "front",
                  mood=mood, tail=0, wear=dict(wear, no_shadow=True))
    room.sofa_front(c, 60, 450, 760, 160, "#4f7a5a")
    s.cat("poppy", 420, 610, 128, age="kitten", pose="loaf", mood="sleep", tail=1, wear={"no_shadow": False})


def new_year(s):
    c = s.canvas
    room.room(c, 440, "#6a5a7a", boards="#8a6a54", skirting="#e9e0d4")
    c.box(150, 40, 500, 250, "#f4efe4", INK, 2.4)
    c.gradient(160, 50, 480, 230, "#101838", "#3a3a72")
    c.cr.save()
    c.cr.rectangle(160, 50, 480, 230)
    c.cr.clip()
    for x, y, r, tint in ((260, 120, 62, "#ffd860"), (400, 100, 74, "#ff8aa0"), (545, 130, 60, "#8ae0ff"), (330, 200,
              36, "#b0ff9a"), (480, 215, 30, "#ffd860")):
        c.glow(x, y, r * 1.2, tint, 0.35)
        for i in range(18):
            a = i * math.pi / 9
            c.taper(x + math.cos(a) * r * 0.25, y + math.sin(a) * r * 0.25, x + math.cos(a) * r, y + math.sin(a) * r,
                      1.8, tint)
    c.cr.restore()
    c.box(396, 40, 8, 250, "#f4efe4", INK, 1)
    land.bunting(c, 0, 12, c.width, 12, tints=("#e9b43e", "#fdf6ec", "#d8444f"), flags=18)
    for x in (60, 720):
        c.glow(x, 200, 120, "#ffe9b0", 0.4)
    s.cat("cormac", 96, 566, 268, left="hip", right="front", mood="stern", tail=-1, wear={"kind": "shirt",
              "c": "#2a2a30", "legs": "#3a3a44", "hat": "party", "hc": "#e9b43e", "hc2": "#d8444f"})
    s.cat("noel", 306, 572, 290, right="link", left="up", mood="happy", tail=-1, wear={"kind": "apron", "c": "#fdfaf2",
              "c2": "#e9d9e4", "hat": "chef"})
    s.cat("pearl", 444, 574, 276, left="link", right="front", mood="happy", tail=0, wear={"kind": "bridal",
              "c": "#fbf4f0", "hat": "flowers", "hc": "#e9a04a", "hc2": "#fdf6ec", "holds": ["bouquet>"]})
    s.cat("poppy", 572, 572, 190, age="kitten", left="down", right="hold", mood="open", tail=1, wear={"kind": "dress",
              "c": "#4a9a7a", "c2": "#fdf6ec", "hat": "party", "hc": "#d8444f", "hc2": "#fdf6ec",
              "holds": ["yellow balloon>"]})
    s.cat("ambrose", 712, 566, 274, left="hold", right="front", mood="wink", tail=1, wear={"kind": "suit",
              "c": "#4a3a5a", "legs": "#3a2e48", "neck": "bow", "nc": "#e9b43e", "holds": ["cup<"]})


def ninetieth_birthday(s):
    c = s.canvas
    land.sky(c, "#5fb0e8", "#eef4e4", 330, 3)
    land.house(c, 40, 370, 240, 120)
    land.mill(c, 690, 370, 260, turn=0.15)
    land.tree(c, 420, 380, 240, fruit="#e9b43e")
    land.ground(c, 362, "#86ba5e", 40, ("#fdf6ec", "#e9b43e", "#f3b6c0"))
    land.bunting(c, 20, 90, 860, 90, flags=18)
    back = (("nadia", {"kind": "dress", "c": "#4a6a9a", "neck": "pearls"}), ("dot", {"kind": "dress", "c": "#c9415a",
              "dots": True, "c2": "#fdf6ec", "hat": "straw", "hc": "#e9d9a8", "hc2": "#c9415a"}),
            ("arthur", {"kind": "suit", "c": "#6a7a5a", "legs": "#4a4a44", "neck": "tie", "nc": "#a8433a"}),
                      ("beatrix", {"kind": "shirt", "c": "#8a5a9a", "legs": "#4a4a54", "holds": ["camera>"]}),
            ("algernon", {"kind": "knit", "c": "#c98a3a", "c2": "#4a6a8a", "legs": "#5a4a3a", "hat": "flat",
                      "hc": "#4a6a8a", "holds": ["brush>"]}), ("daphne", {"kind": "dress", "c": "#3a8a8a",
                      "c2": "#fdf6ec"}))
    for i, (who, wear) in enumerate(back):
        s.cat(who, 100 + i * 138, 452, 236, left="front", right="hold" if "holds" in wear else "front", tail=0,
                  wear=wear,
              mood=("happy", "happy", "open", "open", "wink", "sing")[i])
    s.cat("clementine", 440, 572, 268, left="up", right="up", mood="happy", tail=0, wear={"kind": "dress",
              "c": "#7a5aa8", "c2": "#fdf6ec", "neck": "pearls", "hat": "party", "hc": "#e9b43e", "hc2": "#d8444f"})
    room.table(c, 250, 572, 380, 130, check="#8ab4e0")
    room.cake(c, 440, 566, 116, 2, 9)
    room.plate_of_fish(c, 316, 566, 54)
    room.teapot(c, 566, 564, 38, "#c9683a")
    s.cat("celestine", 150, 612, 176, age="kitten", left="hold", right="up", mood="sing", tail=-1,
              wear={"kind": "dress", "c": "#f0a0b4", "c2": "#fdf6ec", "hat": "party", "hc": "#4a86c8",
              "hc2": "#fdf6ec", "holds": ["red balloon<"]})
    s.cat("barney", 690, 612, 184, age="kitten", left="front", right="hold", mood="open", tail=0,
              wear={"kind": "stripes", "c": "#fdf6ec", "c2": "#4a86c8", "legs": "#4a5a7a", "short": True,
              "holds": ["yellow balloon>"]})
    s.cat("nell", 828, 600, 210, age="youth", left="front", right="hip", mood="stern", tail=0, wear={"kind": "shirt",
              "c": "#3a3a44", "legs": "#5a3a5a"})


def wedding_of_mateo(s):
    c = s.canvas
    c.gradient(0, 0, c.width, 380, "#2a2e62", "#f0a884")
    land.stars(c, 90, 240)
    c.ellipse(720, 96, 40, 40, "#fdf2cc")
    c.glow(720, 96, 110, "#fff2c8", 0.6)
    land.hills(c, 380, 90, "#5a6a72", 2, 0.4)
    land.house(c, 60, 390, 230, 110, lit="#ffd87a")
    land.tree(c, 790, 410, 300, "#4a7a5a")
    land.ground(c, 380, "#6a8a5a", 50, ("#fdf6ec", "#f3b6c0"))
    for x0, x1 in ((20, 420), (420, 830)):
        for i in range(9):
            t = (i + 0.5) / 9
            x, y = x0 + (x1 - x0) * t, 60 + 50 * 4 * t * (1 - t)
            c.glow(x, y, 26, "#ffe08a", 0.8)
            c.ellipse(x, y, 6, 8, ("#ffd860", "#ff9a7a", "#fff4c8")[i % 3], INK, 1)
    s.cat("jurgen", 96, 560, 262, tail=-1, left="behind", right="behind", wear={"kind": "suit", "c": "#4a5a72",
              "legs": "#3a4862", "neck": "tie", "nc": "#e9b43e"})
    s.cat("consuelo", 216, 560, 244, tail=0, mood="happy", wear={"kind": "dress", "c": "#c4303f", "dots": True,
              "c2": "#fdf6ec", "hat": "flowers", "hc": "#e9b43e", "hc2": "#d8444f"})
    s.cat("mateo", 350, 576, 286, tail=0, right="link", mood="happy", wear={"kind": "suit", "c": "#f0e6d4",
              "legs": "#e4d8c2", "neck": "bow", "nc": "#4a86c8"})
    s.cat("ama", 488, 578, 274, tail=0, left="link", right="front", mood="open", wear={"kind": "bridal",
              "c": "#fdfaf4", "hat": "flowers", "hc": "#e9b43e", "hc2": "#f3b6c0", "holds": ["bouquet>"]})
    s.cat("fionnuala", 622, 560, 244, tail=0, mood="happy", wear={"kind": "dress", "c": "#3f7a6a", "neck": "pearls",
              "hat": "fascinator", "hc": "#2f5a4a", "hc2": "#e9d9a0"})
    s.cat("kofi", 746, 562, 270, tail=1, right="up", mood="sing", wear={"kind": "shirt", "c": "#e9a03a", "check": True,
              "c2": "#3a8a5a", "legs": "#3a3a3a"})


def wool_and_kittens(s):
    c = s.canvas
    room.room(c, 330, "#cfdcd8", stripe="#b8ccc8", boards="#c9986a")
    land.window(c, 300, 40, 180, 180, "#9ad0f0", curtains="#f0c85a")
    room.frame(c, 80, 70, 120, 100)
    for x, y, w, h in ((560, 250, 96, 96), (656, 266, 84, 80), (590, 178, 78, 74), (604, 128, 50, 52)):
        c.box(x, y, w, h, "#d2a46c", INK, 2)
        c.box(x + w * 0.42, y, w * 0.14, h, "#e4c79a")
        c.box(x + w * 0.12, y + h * 0.34, w * 0.24, h * 0.30, "#5a3c28", INK, 1.4, 5)
    c.polygon([(598, 130), (629, 92), (660, 130)], "#b8844a", INK, 2)
    c.text(608, 338, "THIS SIDE UP", 9, "#6a4422", bold=True)
    room.rug(c, 395, 470, 350, 96, "#6a8ab8")
    for points, tint in ((((90, 500), (260, 420), (360, 560), (520, 470)), "#d8444f"), (((690, 520), (560, 560), (420,
              440), (240, 480)), "#3f9a6a"),
                         (((400, 560), (300, 520), (500, 430), (640, 440)), "#e9b43e")):
        c.ribbon(points, 3, tint, darker(tint, 0.4), 0.8)
    s.cat("luna", 190, 480, 232, age="kitten", pose="catsit", mood="open", gaze=0.5, tail=-1, wear={"neck": "bell",
              "nc": "#9a5ac8"})
    s.cat("estrella", 590, 486, 196, age="kitten", pose="catsit", mood="open", gaze=-0.6, tail=1, tilt=0.12,
              wear={"neck": "bell", "nc": "#e9b43e"})
    s.cat("sol", 380, 540, 180, age="kitten", pose="loaf", mood="wink", tail=1, wear={"neck": "bell", "nc": "#4a86c8"})
    room.wool(c, 92, 506, 32, "#d8444f")
    room.wool(c, 696, 520, 28, "#3f9a6a")
    room.wool(c, 330, 566, 22, "#e9b43e")


def clockwork_mouse(s):
    c = s.canvas
    land.sky(c, "#6fbce8", "#f0f4dc", 300, 2)
    land.hills(c, 330, 80, "#9ac27a", 2, 0.9)
    land.fence(c, -10, c.width, 372, 84)
    land.ground(c, 360, "#86b45e", 50, ("#b89ae0", "#fdf6ec", "#e9b43e"))
    for i in range(26):
        x = 30 + i * 29
        c.taper(x, 384, x + c.chance.uniform(-6, 6), 336, 2, "#5a8a4a")
        for k in range(4):
            c.ellipse(x, 338 + k * 8, 4, 3.4, "#9a7ad0")
    s.cat("poppy", 160, 540, 280, left="hip", right="out", mood="happy", tail=-1, wear={"kind": "overalls",
              "c": "#4a7a5a", "c2": "#e9b43e", "legs": "#4a7a5a", "hat": "straw", "hc": "#e9d9a8", "hc2": "#9a5ac8"})
    s.cat("rowan", 610, 544, 294, left="out", right="hip", mood="happy", tail=1, wear={"kind": "shirt", "c": "#4a6a9a",
              "check": True, "c2": "#fdf6ec", "legs": "#6a5a44"})
    s.cat("juniper", 352, 556, 178, age="kitten", pose="catsit", mood="open", gaze=0.9, tail=-1, tilt=0.1,
              wear={"neck": "bell", "nc": "#d8444f"})
    c.glow(470, 556, 46, "#1c1210", 0.4, 0.25)
    c.path((506, 552), ((530, 560), (540, 534), (560, 548)), close=False)
    c.stroke("#8a7a6a", 3)
    c.path((432, 554), ((440, 516), (490, 510), (508, 554)))
    c.fill("#a8acb4", INK, 2)
    c.ellipse(462, 524, 11, 11, "#c4c8ce", INK, 1.6)
    c.ellipse(446, 542, 2.6, 3, INK)
    c.ellipse(432, 553, 4, 3.4, "#d98a86", INK, 1)
    for dx in (-9, 9):
        c.ellipse(496 + dx, 512, 9, 7, "#e0b84a", "#7a5a14", 1.6)
    c.box(494, 514, 4, 16, "#e0b84a", "#7a5a14", 1)
    for x in (452, 488):
        c.ellipse(x, 557, 8, 8, "#5a5a62", INK, 1.6)


PICTURES = [
    Picture("23-ski-jump.jpg", "Before the jump", "Abt. 1980", "Kattegård",
            "Sven has landed on his feet every time. His daughter would like to try the small one.", ski_jump,
                      "colour", (760, 590), "left"),
    Picture("24-seven-on-a-sofa.jpg", "Seven on a sofa, one on the carpet", "1994", "The Mill House, Whiskermoor",
            "It is the sofa of 1927 with a new cover and new scratches.\nSandy had been promised that nobody would ever see this picture.",
            seven_on_a_sofa, "colour", (880, 630), "above"),
    Picture("25-new-year.jpg", "A wedding at half past midnight", "1 Jan 2000", "5 Butter Lane, Port Purr",
            "They married in the bakery because the dough could not wait.", new_year, "colour", (800, 600), "left"),
    Picture("26-ninetieth-birthday.jpg", "Clementine is ninety", "6 May 2007", "Cream Cottage, Whiskermoor",
            "All nine candles, one for each life; nobody may blow them out but herself.\n"
            "The cat in the corner did not want to be in the picture, and is.", ninetieth_birthday, "colour", (880,
                      630), "above"),
    Picture("27-mateo-and-ama.jpg", "Wedding of Mateo and Ama", "20 June 2015", "Cream Cottage, Whiskermoor",
            "By starlight, at the bride's wish. She named the stars, the groom forgot them.", wedding_of_mateo,
                      "colour", (830, 610), "left"),
    Picture("28-wool.jpg", "The wool was tidy yesterday", "Oct 2023", "Felinburgh",
            "Luna says it was Sol. Sol says it was Estrella. Estrella cannot speak yet.", wool_and_kittens, "colour",
                      (790, 600), "left"),
    Picture("29-clockwork-mouse.jpg", "Juniper's first mouse", "2025", "The catmint field, Whiskermoor",
            "It is clockwork, and a present from great-uncle Jürgen.\nIt strikes breakfast.", clockwork_mouse,
                      "colour", (760, 590), "above", "arrow"),
]
