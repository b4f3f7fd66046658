# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
"""1960 to 1983: colour film, which has lost a little of its blue since."""
import interiors as room
import scenery as land
from blossom import flower
from canvas import INK, darker, lighter
from stage import Picture

SUIT = {"kind": "suit", "c": "#4a5a7a", "legs": "#3a4862", "neck": "tie", "nc": "#b8433a"}


def bakery(s):
    c = s.canvas
    land.sky(c, "#8fbcd8", "#f0e8d4", 300, 2)
    for x, w, wall, roof in ((-20, 190, "#d8c0a0", "#8a5a4a"), (640, 230, "#c8b4c0", "#6a5a6a")):
        c.box(x, 110, w, 330, wall, INK, 2)
        c.polygon([(x - 10, 112), (x + w / 2, 30), (x + w + 10, 112)], roof, INK, 2)
        for yy in (150, 240):
            for xx in (0.2, 0.6):
                land.window(c, x + w * xx, yy, 38, 54, curtains="#f6eee0")
    c.box(170, 70, 470, 370, "#e9cf9a", INK, 2.2)
    for xx in (220, 380, 540):
        land.window(c, xx, 96, 48, 62, curtains="#c9686a")
        for i in range(3):
            flower(c, xx + 6 + i * 18, 172, 9, ("#d8444f", "#f3b6c0", "#e9b43e")[i], "#f3d36a")
    land.sign(c, 405, 190, 420, 44, "É. PURRINGTON · BAKER", "#7a3a34", size=24)
    c.box(196, 252, 250, 186, "#7a4a34", INK, 2)
    c.gradient(208, 264, 226, 120, "#fdf2d0", "#e9d09a")
    for row, (yy, tint) in enumerate(((318, "#d79a4e"), (376, "#b8743a"))):
        c.box(208, yy, 226, 5, "#8a5a3a")
        for i in range(5):
            xx = 232 + i * 44
            if (row + i) % 2:
                c.ellipse(xx, yy - 11, 18, 11, tint, INK, 1.4)
                c.lines([(xx - 8, yy - 14), (xx - 3, yy - 8)], lighter(tint), 2)
            else:
                room.cake(c, xx, yy - 2, 32, 1, 0, "#fdf3ea")
    for i in range(9):
        c.path((190 + i * 29, 244), (219 + i * 29, 244), ((219 + i * 29, 272), (190 + i * 29, 272), (190 + i * 29,
                  244)))
        c.fill("#c9415a" if i % 2 else "#fdf6ec", INK, 1.2)
    land.door(c, 500, 268, 96, 172, "#5a7a8a")
    c.box(0, 438, c.width, 16, "#b8aea2", INK, 1.2)
    land.cobbles(c, 452)
    s.cat("etienne", 330, 562, 292, left="hold", right="hip", mood="happy", tail=-1,
          wear={"kind": "apron", "c": "#fdfaf2", "c2": "#f0e8dc", "hat": "chef", "holds": ["bread<"]})
    s.cat("ambrose", 490, 560, 276, left="hip", right="front", mood="open",
          wear={"kind": "knit", "c": "#4a8a8a", "c2": "#f0d08a", "legs": "#6a5a4a", "neck": "scarf", "nc": "#e9b43e"})
    s.cat("basil", 700, 548, 250, left="front", right="hold", mood="stern",
          wear={"kind": "uniform", "c": "#3a4a72", "legs": "#3a4a72", "hat": "captain", "hc": "#3a4a72",
                    "hc2": "#a8433a", "holds": ["cake>"]})
    s.cat("white", 120, 548, 150, called="the cat from number 4", pose="catsit", mood="open", gaze=0.8, tail=-1,
              wear={"neck": "bell", "nc": "#4a86c8"})


def hatbox(s):
    c = s.canvas
    room.room(c, 420, "#c9a890", stripe="#b8907a")
    room.fireplace(c, 40, 424, 210, 240)
    room.christmas_tree(c, 650, 470, 400)
    for x, tint in ((80, "#c4302f"), (150, "#3f7a4e"), (205, "#c9a03a")):
        c.path((x, 196), (x + 22, 196), (x + 22, 236), ((x + 40, 240), (x + 40, 256), (x + 22, 254)), ((x + 4, 254),
                  (x, 246), (x, 196)))
        c.fill(tint, INK, 1.4)
        c.box(x - 3, 190, 28, 11, "#fdfbf6", INK, 1.2, 4)
    room.rug(c, 390, 520, 300, 52, "#8a3a3a")
    s.cat("ambrose", 200, 540, 272, right="out", left="front", mood="happy", tail=-1,
          wear={"kind": "knit", "c": "#a8433a", "c2": "#fdf6ec", "legs": "#5a5a62"})
    s.cat("etienne", 560, 544, 286, left="out", right="up", mood="open",
          wear={"kind": "knit", "c": "#3f7a5a", "c2": "#fdf6ec", "legs": "#6a5444", "hat": "santa"})
    s.cat("noel", 380, 528, 168, age="kitten", pose="catsit", mood="open", tail=0, wear={"neck": "bow",
              "nc": "#c4302f", "no_shadow": True})
    c.box(322, 466, 116, 78, "#d8a8b8", INK, 2.2, 4)
    for i in range(5):
        c.box(326 + i * 24, 468, 10, 74, "#f4e4e8")
    c.box(314, 456, 132, 18, "#c98aa0", INK, 2, 4)
    c.box(470, 520, 110, 20, "#c98aa0", INK, 2, 4)
    for x, y, w, tint in ((632, 470, 56, "#4a86c8"), (700, 480, 46, "#c4302f"), (590, 486, 40, "#e9b43e")):
        c.box(x, y - w * 0.7, w, w * 0.7, tint, INK, 1.6)
        c.box(x + w * 0.44, y - w * 0.7, w * 0.12, w * 0.7, "#fdfbf6")


def molly_reads(s):
    c = s.canvas
    room.room(c, 500, "#a8b49a", stripe="#94a486")
    land.window(c, 50, 70, 130, 180, "#bcd6e2", curtains="#f4e4c8")
    room.frame(c, 380, 60, 130, 150)
    room.rug(c, 280, 610, 240, 42, "#6a4a72")
    c.lines([(470, 560), (470, 300)], "#6a4a2a", 6)
    c.polygon([(430, 310), (510, 310), (494, 246), (446, 246)], "#e9c88a", INK, 1.8)
    c.glow(470, 300, 130, "#fff0b8", 0.55)
    room.armchair(c, 270, 590, 260, 370, "#7a4a5a")
    s.cat("molly", 270, 560, 330, pose="sit", left="hold", right="front", mood="open", mark="whole", tail=0,
          wear={"kind": "dress", "c": "#5f7a8a", "dots": True, "c2": "#fdf6ec", "neck": "pearls", "plain": True,
                    "holds": ["book>"]})
    room.armchair_front(c, 270, 590, 260, 370, "#7a4a5a")
    room.wool(c, 130, 606, 22, "#c9683a")


def picnic(s):
    c = s.canvas
    land.sky(c, "#7fb8e0", "#eef0dc", 300, 3)
    land.hills(c, 320, 80, "#9aba7a", 2, 0.5)
    land.mill(c, 40, 330, 160, turn=0.6)
    land.house(c, 560, 350, 200, 100)
    land.tree(c, 830, 400, 320, fruit="#d8444f")
    land.ground(c, 340, "#8fb866", 70, ("#fdf6ec", "#f3b6c0", "#e9d43e"))
    c.polygon([(190, 470), (690, 470), (780, 590), (90, 590)], "#f4f0e6", INK, 1.8)
    c.path((190, 470), (690, 470), (780, 590), (90, 590))
    with c.clipped():
        for i in range(12):
            c.polygon([(190 + i * 44, 470), (212 + i * 44, 470), (90 + (i + 0.5) * 58 + 29, 590), (90 + i * 58 + 15,
                      590)], "#c9415a", alpha=0.45)
        for yy in (478, 506, 540, 578):
            c.box(0, yy, 900, 12, "#c9415a", alpha=0.45)
    s.cat("basil", 130, 476, 220, pose="sit", left="front", right="hold", mood="sleep", wear={"kind": "waistcoat",
              "c": "#7a8a5a", "legs": "#6a5a4a", "hat": "boater", "hc": "#e9d9a8", "hc2": "#4a6a8a"}, tail=-1)
    s.cat("clementine", 262, 462, 216, pose="sit", left="hold", right="front", mood="happy", tail=0,
              wear={"kind": "dress", "c": "#c98a5a", "dots": True, "c2": "#fdf6ec", "hat": "straw", "hc": "#e9d9a8",
              "hc2": "#c9415a"})
    s.cat("dot", 402, 460, 214, pose="sit", left="front", right="up", mood="happy", tail=0, wear={"kind": "dress",
              "c": "#5a8aa8", "c2": "#fdf6ec", "neck": "peter", "nc": "#fdf6ec"})
    s.cat("theodoros", 540, 462, 232, pose="sit", left="hold", right="front", tail=0, wear={"kind": "apron",
              "c": "#fdf6ec", "c2": "#d8e4ec", "holds": ["fish<"]})
    s.cat("eleni", 672, 474, 196, age="youth", pose="sit", left="front", right="hold", mood="open", tail=1,
              wear={"kind": "pinafore", "c": "#e9b43e", "c2": "#fdf6ec", "hat": "bow", "hc": "#c9415a",
              "holds": ["cake>"]})
    room.plate_of_fish(c, 330, 534, 62)
    room.cake(c, 480, 530, 60, 1, 0)
    room.teapot(c, 600, 528, 34)
    room.cup(c, 420, 560, 28)
    room.cup(c, 560, 562, 28)
    s.cat("stavros", 790, 576, 170, age="youth", left="up", right="hip", mood="sing", wear={"kind": "shirt",
              "c": "#c9415a", "check": True, "c2": "#fdf6ec", "legs": "#4a5a7a", "short": True})
    s.cat("algernon", 200, 610, 172, age="youth", pose="loaf", mood="sleep", tail=1, wear={"neck": "bell",
              "nc": "#4a86c8"})


def cousins_wedding(s):
    c = s.canvas
    land.sky(c, "#6fb0e0", "#f2ecdc", 330, 2)
    land.hills(c, 360, 60, "#a8b87a", 2, 1.4)
    c.box(240, 150, 300, 270, "#fbf8f2", INK, 2.2)
    c.path((290, 152), ((290, 40), (490, 40), (490, 152)))
    c.fill("#4a86c8", INK, 2.2)
    c.lines([(390, 66), (390, 36)], "#e0b84a", 4)
    c.lines([(379, 46), (401, 46)], "#e0b84a", 4)
    for x in (262, 490):
        c.path((x, 300), (x, 220), ((x, 190), (x + 30, 190), (x + 30, 220)), (x + 30, 300))
        c.fill("#8ab4d0", INK, 1.8)
    land.door(c, 345, 250, 90, 170, "#4a7aa8")
    for x in (200, 560):
        c.box(x, 380, 40, 46, "#c9784a", INK, 1.8, 4)
        for i in range(5):
            flower(c, x + 2 + i * 9, 374 - (i % 2) * 14, 11, "#e0407a", "#f3d36a")
    land.ground(c, 418, "#c9b890", 16)
    s.cat("tobias", 96, 560, 260, wear=dict(SUIT, c="#5a5a62", legs="#4a4a52"), tail=-1, left="behind", right="behind")
    s.cat("rosamund", 212, 560, 244, tail=0, mood="happy", wear={"kind": "dress", "c": "#7a6a9a", "neck": "pearls",
              "hat": "straw", "hc": "#d8ccea", "hc2": "#7a6a9a"})
    s.cat("arthur", 336, 574, 280, right="link", tail=0, wear=dict(SUIT, c="#2f3a4a", legs="#2f3a4a", neck="bow",
              nc="#f4efe4", hat="laurel", hc="white"))
    s.cat("eleni", 462, 576, 264, left="link", right="front", tail=0, mood="happy", wear={"kind": "bridal",
              "c": "#fdfaf4", "hat": "veil", "holds": ["bouquet>"]})
    s.cat("dot", 590, 560, 244, tail=0, mood="happy", wear={"kind": "dress", "c": "#4a9a8a", "dots": True,
              "c2": "#fdf6ec", "hat": "cloche", "hc": "#2f7a6a", "hc2": "#e9d9a0"})
    s.cat("theodoros", 712, 562, 268, tail=1, right="up", mood="sing", wear={"kind": "waistcoat", "c": "#a8433a",
              "legs": "#3a3a44"})


def choir(s):
    c = s.canvas
    room.room(c, 400, "#b8a890", boards="#8a7058")
    for x in (80, 330, 580):
        c.path((x, 330), (x, 120), ((x, 20), (x + 160, 20), (x + 160, 120)), (x + 160, 330))
        with c.clipped():
            c.gradient(x, 20, 160, 320, "#8ac0e0", "#e9c86a")
            for i, tint in enumerate(("#c9415a", "#4a86c8", "#5a9a5a", "#e9b43e", "#9a5a9a")):
                c.polygon([(x + 80, 180), (x + (i % 3) * 80, 20 + i * 60), (x + 80 + (i % 2) * 80, 60 + i * 70)], tint,
                          INK, 2, alpha=0.5)
            c.ellipse(x + 80, 120, 34, 34, "#f3d36a", INK, 2)
        c.path((x, 330), (x, 120), ((x, 20), (x + 160, 20), (x + 160, 120)), (x + 160, 330))
        c.stroke("#6a5a4a", 6)
    robe = {"kind": "robe", "c": "#7a3446", "neck": "peter", "nc": "#fdfaf4"}
    c.box(60, 400, 700, 60, "#7a5a40", INK, 2)
    back = (("winifred", None), ("ottilie", None), ("algernon", None), ("horace", None), ("cuthbert", None))
    for i, (who, name) in enumerate(back):
        s.cat(who, 100 + i * 120, 420, 214, left="hold", right="hold", tail=0, mood="sing" if i != 2 else "sleep",
                  wear=dict(robe, holds=["songs>"]))
    front = (("fionnuala", None), ("magnolia", None), ("calico", "Mrs Larder"), ("cormac", None))
    for i, (who, name) in enumerate(front):
        s.cat(who, 150 + i * 120, 534, 212 if i % 3 else 196, called=name, left="hold", right="hold", tail=0,
                  mood="sing", wear=dict(robe, holds=["songs>"]),
              age="youth" if i in (0, 3) else "adult")
    s.cat("daphne", 706, 590, 300, left="up", right="out", mood="happy", tail=1, wear={"kind": "dress", "c": "#3a4a6a",
              "c2": "#e9d9a0", "neck": "pearls", "holds": ["stick<"]})


def beach(s):
    c = s.canvas
    land.sky(c, "#4aa8e0", "#e4f2f0", 260, 3)
    land.sea(c, 240, "#2f9ab0", 380)
    land.ship(c, 640, 262, 110, sail=True, hull="#fbf6ea")
    c.gradient(0, 372, c.width, c.height - 372, "#f2dfae", "#d8b878")
    c.taper(-40, 376, c.width + 40, 376, 6, "#ffffff", 0.01, 0.8)
    c.lines([(240, 560), (210, 250)], "#f4efe4", 6)
    for i in range(6):
        c.path((210, 236), (60 + i * 50, 316), ((70 + i * 50, 300), (100 + i * 50, 300), (110 + i * 50, 316)))
        c.fill(("#d8444f", "#fdf6ec")[i % 2], INK, 1.6)
    for i in range(60):
        c.ellipse(c.chance.uniform(0, c.width), c.chance.uniform(390, 590), 1.4, 1, "#b8945a")
    s.cat("jurgen", 150, 540, 250, pose="stand", left="hip", right="hold", mood="open", tail=-1,
              wear={"kind": "stripes", "c": "#fdf6ec", "c2": "#4a86c8", "legs": "#4a86c8", "short": True,
              "hat": "boater", "hc": "#e9d9a8", "hc2": "#d8444f"})
    s.cat("consuelo", 320, 566, 220, pose="loaf", mood="sleep", tail=1, mark="whole", wear={"hat": "flowers",
              "hc": "#d8444f", "hc2": "#e9b43e"})
    s.cat("rufus", 610, 556, 266, left="out", right="out", mood="wink", wear={"kind": "shirt", "c": "#e9b43e",
              "legs": "#8a5a3a", "short": True, "hat": "straw", "hc": "#e9d9a8", "hc2": "#4a86c8"})
    s.cat("winifred", 740, 560, 240, left="hold", right="front", mood="open", wear={"kind": "dress", "c": "#5a9a8a",
              "dots": True, "c2": "#fdf6ec", "holds": ["book<"]})
    c.polygon([(440, 588), (452, 560), (460, 570), (472, 548), (488, 570), (496, 558), (510, 588)], "#c9a05e",
              darker("#d8b878"), 1.4)


PICTURES = [
    Picture("16-butter-lane.jpg", "Étienne's bakery in Butter Lane", "Bef. 1963", "Butter Lane, Port Purr",
            "Bread left, cakes right, fish pie on Fridays.\nThe postmaster of Whiskermoor came by for the stamps.",
                      bakery, "faded", (830, 600), "above"),
    Picture("17-hatbox.jpg", "What was in the hatbox", "25 Dec 1962", "5 Butter Lane, Port Purr",
            "It stood on the step in the snow, and it purred.\nThey kept him, and the box.", hatbox, "faded", (800,
                      570), "left", "arrow"),
    Picture("18-molly-reads.jpg", "Molly in the chair nobody else may use", "Aft. Mar 1962",
              "Cream Cottage, Whiskermoor",
            "The book is upside down. She never admitted it.", molly_reads, "faded", (560, 650), "left"),
    Picture("19-picnic.jpg", "Picnic at Cream Cottage", "July 1967", "Cream Cottage, Whiskermoor",
            "Basil is only resting his eyes. He is not the only one.\nThe fish was gone before the camera was back in its case.", picnic, "faded", (880, 630), "above", "arrow"),
    Picture("20-cousins-marry.jpg", "A wedding of cousins", "5 June 1971", "Greek chapel, Whiskermoor",
            "Their parents, brother and sister, stand left and right and had been against it until the cake.",
                      cousins_wedding, "faded", (800, 600), "left"),
    Picture("21-choir.jpg", "The Whiskermoor choir", "1974", "St Tabitha, Whiskermoor",
            "\"O for the Wings of a Dove\", sung with feeling.", choir, "faded", (820, 610), "above"),
    Picture("22-villa-siesta.jpg", "The beach of Villa Siesta", "Aug 1983", "Villa Siesta",
            "A lesson in the siesta. Rufus and Winifred had come for a week.", beach, "faded", (830, 610), "left"),
]
