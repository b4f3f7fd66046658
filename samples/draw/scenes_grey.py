# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
"""1931 to 1955: the box camera comes to Whiskermoor."""
import interiors as room
import scenery as land
from canvas import INK, darker
from stage import Picture

SUIT = {"kind": "suit", "c": "#4a4a54", "legs": "#3a3a44", "neck": "tie", "nc": "#8a4a44"}
OFFICER = {"kind": "uniform", "c": "#2a3450", "legs": "#2a3450", "hat": "captain", "hc": "white", "hc2": "#2a3450",
          "shoes": "#1c1a1e"}


def snow_at_the_mill(s):
    c = s.canvas
    land.sky(c, "#9ab0c4", "#e4e8ec", 330, 2)
    land.hills(c, 360, 90, "#e6ebf0", 2, 1.0)
    land.mill(c, 650, 380, 290, snow=True, turn=0.2)
    for x, h in ((60, 190), (140, 150), (470, 120), (790, 200)):
        land.fir(c, x, 385, h, snow=True)
    c.gradient(0, 376, c.width, 220, "#f4f7fa", "#ccd8e2")
    c.ellipse(430, 505, 330, 68, "#b4cad8", "#e8f0f4", 4)
    for x0, y0, x1, y1 in ((240, 500, 330, 480), (360, 520, 480, 540), (500, 480, 600, 500), (300, 540, 420, 552)):
        c.taper(x0, y0, x1, y1, 2, "#ffffff", 0.1)
    for y, r in ((420, 46), (358, 32)):
        c.ellipse(212, y, r, r * 0.94, "#fbfcfd", "#8a96a4", 1.6)
    for side in (-1, 1):
        c.polygon([(212 + side * 27, 346), (212 + side * 26, 312), (212 + side * 8, 330)], "#fbfcfd", "#8a96a4", 1.4)
        c.ellipse(212 + side * 10, 352, 3, 3, INK)
    c.polygon([(208, 360), (216, 360), (212, 366)], "#e08a3a", INK, 1)
    s.cat("dot", 292, 470, 150, age="kitten", left="up", mood="happy", tail=1,
          wear={"kind": "coat", "c": "#b8433a", "hat": "wool", "hc": "#e9e4da", "neck": "scarf", "nc": "#4a6a8a"})
    s.cat("hector", 420, 520, 200, age="youth", left="out", right="up", mood="happy", tilt=-0.1,
          wear={"kind": "knit", "c": "#4a6a7a", "c2": "#f0e6d0", "legs": "#4a4038", "hat": "wool", "hc": "#6a7a4a",
                    "hc2": "#e9e4da"})
    s.cat("tobias", 560, 512, 236, left="hip", right="behind", mood="stern",
          wear={"kind": "coat", "c": "#5a5048", "hat": "flat", "hc": "#6a5a4a", "neck": "scarf", "nc": "#8a8a4a"})
    s.cat("clementine", 680, 536, 222, age="youth", left="out", right="down", mood="happy",
          wear={"kind": "coat", "c": "#6a4a6a", "hat": "scarf", "hc": "#c9415a", "gloves": "#f0e6d0"})
    s.cat("rufus", 90, 528, 152, age="kitten", right="out", left="down", mood="open", tail=-1,
          wear={"kind": "knit", "c": "#c9a24a", "c2": "#7a4a2a", "legs": "#5a4a3a", "neck": "scarf", "nc": "#b8433a",
                    "hat": "wool", "hc": "#7a4a2a"})
    land.snowfall(c, 130)


def wedding_of_tobias(s):
    c = s.canvas
    land.sky(c, "#a8c4d8", "#f2ecdc", 380, 3)
    land.tree(c, 90, 430, 330)
    land.tree(c, 800, 430, 310)
    land.house(c, 300, 410, 300, 150, chimney=True)
    land.ground(c, 400, "#9ab078", 30, ("#fdf6ec",))
    land.bunting(c, 40, 110, 860, 110)
    back = 418
    s.cat("augustus", 150, back, 262, mood="stern", wear=OFFICER, tail=0)
    s.cat("felicite", 272, back, 244, tail=0, wear={"kind": "dress", "c": "#7a8a9a", "neck": "pearls",
              "hat": "feather", "hc": "#5a6a7a", "hc2": "#e9e4da"})
    s.cat("clementine", 392, back, 248, tail=0, mood="happy", wear={"kind": "dress", "c": "#8a6a7a", "c2": "#fbf6ec",
              "neck": "peter", "nc": "#fbf6ec", "hat": "cloche", "hc": "#6a4a5a", "hc2": "#c9a0a4"})
    s.cat("leopold", 516, back, 268, tail=0, wear=dict(OFFICER, hat="captain"))
    s.cat("molly", 640, back, 244, tail=0, mood="happy", wear={"kind": "dress", "c": "#5a6a5a", "dots": True,
              "c2": "#e9e4da", "neck": "peter", "nc": "#fbf6ec", "hat": "straw", "hc": "#d8c48a", "hc2": "#7a4a44"})
    s.cat("barnaby", 762, back, 262, tail=0, wear=dict(SUIT, neck="bow", c="#5a4a40", legs="#4a3e36"))
    s.cat("hector", 216, 560, 226, tail=0, mood="wink", left="front", right="front", wear={"kind": "stripes",
              "c": "#f4efe4", "c2": "#3a5a7a", "legs": "#3a4a6a", "hat": "sailor"})
    s.cat("tobias", 372, 572, 262, tail=0, right="link", wear=dict(SUIT, c="#2c2a32", legs="#3a3842", neck="bow",
              nc="#e9e4da"))
    s.cat("rosamund", 510, 574, 248, tail=0, mood="happy", left="link", right="front", wear={"kind": "bridal",
              "c": "#fbf8f0", "hat": "veil", "holds": ["bouquet>"]})
    s.cat("dot", 648, 566, 196, age="youth", tail=0, mood="happy", left="front", right="front", wear={"kind": "dress",
              "c": "#c9a8b0", "neck": "peter", "nc": "#fbf8f0", "hat": "flowers", "hc": "#f3b6c0", "hc2": "#e77f8d",
              "holds": ["bouquet>"]})
    s.cat("rufus", 762, 566, 180, age="youth", tail=1, right="up", mood="sing", wear={"kind": "shirt", "c": "#f4efe4",
              "legs": "#4a4a54", "neck": "bow", "nc": "#4a4a54"})
    s.named(called="the photographer's thumb")
    c.ellipse(6, 560, 44, 62, "#1a1618", alpha=0.85)


def hector_goes_to_sea(s):
    c = s.canvas
    land.sky(c, "#9ab4c4", "#eceadf", 300, 4)
    land.sea(c, 290, "#5f8698", 440)
    land.ship(c, 500, 400, 420, name="HERRING HOPE")
    c.box(0, 438, c.width, 140, "#8d8880", INK, 2)
    for row in range(4):
        for col in range(10):
            c.box(col * 96 - (row % 2) * 48, 440 + row * 36, 93, 33, ("#98938a", "#87827a",
                      "#908b82")[(row + col) % 3], radius=4)
    for x in (60, 700):
        c.box(x, 408, 34, 52, "#3a3a40", INK, 2, 8)
        c.ellipse(x + 17, 408, 24, 9, "#4a4a50", INK, 2)
    s.cat("hector", 190, 556, 290, left="up", right="down", mood="happy", tail=1,
          wear={"kind": "stripes", "c": "#f4efe4", "c2": "#2a4a72", "legs": "#2a3450", "hat": "sailor",
                    "neck": "scarf", "nc": "#b8433a", "holds": ["suitcase>"]})
    s.cat("molly", 560, 560, 236, left="front", right="up", mood="open", tail=1,
          wear={"kind": "coat", "c": "#5a5a4a", "hat": "bonnet", "hc": "#e9e4da", "hc2": "#c9a0a4"})
    s.cat("dot", 690, 562, 186, age="youth", left="down", right="front", mood="sleep",
          wear={"kind": "dress", "c": "#7a6a8a", "neck": "peter", "nc": "#fbf6ec", "hat": "bow", "hc": "#b8433a"})


def tea_and_balalaika(s):
    c = s.canvas
    room.room(c, 430, "#b8b0a0", stripe="#a49a86")
    room.frame(c, 60, 60, 130, 100)
    land.window(c, 320, 70, 150, 160, "#c9dce4", curtains="#d8cfc0")
    room.frame(c, 610, 60, 120, 110, shape="fish")
    s.cat("clementine", 560, 506, 300, left="hold", right="front", mood="happy", tail=1,
          wear={"kind": "dress", "c": "#7a6a82", "dots": True, "c2": "#e9e4da", "neck": "peter", "nc": "#fbf6ec"})
    s.cat("pavel", 230, 512, 322, left="hold", right="front", mood="sing", tail=-1,
          wear={"kind": "shirt", "c": "#e9e4da", "legs": "#4a4a40", "neck": "scarf", "nc": "#a8433a",
                    "holds": ["balalaika>"]})
    room.table(c, 330, 470, 170, 110, check="#8a8a94")
    room.teapot(c, 415, 460, 52, "#8a96a4")
    room.cup(c, 358, 464, 34)
    room.cup(c, 474, 464, 34)
    s.cat("nadia", 690, 536, 130, age="kitten", pose="catsit", mood="sleep", wear={"neck": "bow", "nc": "#b8433a"})


def station(s):
    c = s.canvas
    land.sky(c, "#a4bccc", "#ece8dc", 330, 2)
    land.hills(c, 340, 70, "#9aa884", 2, 0.2)
    c.box(0, 350, 300, 100, "#8a8078")
    c.box(18, 190, 272, 176, "#5a6a5a", INK, 2.4, 10)
    for x in (40, 126, 212):
        land.window(c, x, 214, 62, 62, "#d8d4b8", curtains="#efe6d0")
    c.box(0, 176, 300, 22, "#4a4a44", INK, 2, 8)
    for x in (70, 220):
        c.ellipse(x, 374, 32, 32, "#4a4650", INK, 3)
        c.ellipse(x, 374, 10, 10, "#8a8a90", INK, 2)
    c.box(0, 398, 320, 12, "#6a5a4a", INK, 1)
    land.house(c, 480, 402, 270, 150, wall="#cbb89a", roof="#6a5a5a", chimney=False)
    c.polygon([(440, 250), (790, 250), (810, 284), (420, 284)], "#7a6a5a", INK, 2)
    for x in (440, 784):
        c.box(x, 284, 8, 130, "#5a4a3a", INK, 1.4)
    land.sign(c, 614, 212, 262, 36, "WHISKERMOOR HALT", "#2f3f4a", size=18)
    c.gradient(0, 408, c.width, 190, "#b8ada0", "#857b70")
    c.box(0, 408, c.width, 12, "#e8e2d6", INK, 1.2)
    c.ellipse(392, 330, 24, 24, "#fbf6ea", INK, 3)
    c.lines([(392, 314), (392, 330), (402, 338)], INK, 2)
    c.box(389, 354, 6, 60, "#4a4a44", INK, 1)
    s.cat("dot", 540, 546, 282, left="hip", right="up", mood="stern", tail=1,
          wear={"kind": "uniform", "c": "#3a4654", "legs": "#3a4654", "hat": "captain", "hc": "#3a4654",
                    "hc2": "#7a2a2a", "holds": ["flag>"], "shoes": "#1c1a1e"})
    s.cat("theodoros", 320, 552, 300, left="down", right="hold", mood="open", gaze=0.9, tail=-1,
          wear={"kind": "suit", "c": "#8a8478", "legs": "#7a7468", "neck": "bow", "nc": "#3a4654", "hat": "boater",
                    "hc": "#e4d8b8", "hc2": "#3a4654", "holds": ["suitcase<"]})
    s.cat("brown", 700, 520, 170, called="a commercial traveller in wool", pose="catsit", mood="sleep",
              wear={"neck": "tie", "nc": "#7a5a5a"})


def football_team(s):
    c = s.canvas
    land.sky(c, "#a8c0d0", "#ece9e0", 330, 3)
    land.hills(c, 350, 60, "#8fa078", 3, 0)
    c.lines([(190, 380), (190, 150), (710, 150), (710, 380)], "#fbfaf4", 9)
    for i in range(26):
        c.lines([(194 + i * 20.6, 154), (194 + i * 20.6, 380)], "#fbfaf4", 0.8, 0.6)
    for i in range(11):
        c.lines([(194, 160 + i * 21), (706, 160 + i * 21)], "#fbfaf4", 0.8, 0.6)
    land.ground(c, 376, "#86a266", 40)
    kit = {"kind": "football", "c": "#8a3434", "c2": "#f4f0e6", "legs": "#f4f0e6", "short": True}
    back = (("lucky", None), ("brown", "Biff Larder"), ("horace", None), ("black", "The Rev. Mr Clawson jr."),
              ("silver", "Tom Mewley"), ("leopold", None))
    for i, (who, name) in enumerate(back):
        s.cat(who, 150 + i * 120, 432, 216, called=name, left="behind", right="behind", tail=0, wear=kit,
              age="youth" if who == "horace" else "adult", mood=("open", "stern", "happy", "sleep", "stern", "open")[i])
    front = (("spotted", "Nob Catmint"), ("etienne", None), ("rufus", None), ("bicolour", "Little Paws Dozer"),
              ("tuxedo", "A. N. Other"))
    for i, (who, name) in enumerate(front):
        wear = {"kind": "knit", "c": "#4a6a4a", "c2": "#e9e4da", "legs": "#3a3a34", "hat": "flat", "hc": "#6a5a4a",
                  "holds": ["cup>"]} if who == "rufus" else kit
        s.cat(who, 170 + i * 140, 556, 212, called=name, pose="sit", left="front",
                  right="hold" if who == "rufus" else "front", tail=0, wear=wear,
              age="youth" if who == "etienne" else "adult", mood=("happy", "open", "happy", "wink", "open")[i])


def dance(s):
    c = s.canvas
    room.room(c, 420, "#8a8090", boards="#a88a6a", skirting="#d8cfc4")
    room.curtain(c, 0, 130, 470, "#6a3a4a", -1)
    room.curtain(c, 710, 130, 470, "#6a3a4a", 1)
    land.bunting(c, 120, 50, 720, 50, flags=12)
    for i, x in enumerate((250, 420, 590)):
        c.lines([(x, 0), (x, 84)], INK, 1.4)
        c.ellipse(x, 104, 24, 24, ("#e9d9a0", "#f0c8b0", "#d9e4c0")[i], INK, 1.6)
        c.glow(x, 104, 70, "#fff4c8", 0.7)
    land.sign(c, 420, 150, 330, 44, "PURR PALACE", "#4a2f3a", size=26)
    c.box(180, 330, 480, 96, "#5a4438", INK, 2)
    s.cat("silver", 232, 350, 150, called="the band", mood="sleep", tail=0, left="front", right="hold", wear=dict(SUIT,
              holds=["fiddle>"]), mark="name")
    s.cat("black", 612, 350, 150, mark="none", mood="sing", tail=0, left="hold", right="up", wear=dict(SUIT,
              holds=["stick>"]))
    c.glow(420, 520, 260, "#fff2d0", 0.5, 0.3)
    s.cat("lucky", 345, 556, 300, right="link", left="up", mood="wink", tail=-1, tilt=-0.06,
          wear=dict(SUIT, c="#3a4a44", legs="#2c3a34", neck="bow", nc="#4a8a5a"))
    s.cat("marguerite", 490, 556, 284, left="link", right="out", mood="happy", tail=1, tilt=0.06,
          wear={"kind": "bridal", "c": "#fbf6ee", "hat": "fascinator", "hc": "#fbf6ee", "hc2": "#e9b4bc"})
    s.cat("felicite", 150, 552, 244, left="front", right="front", mood="happy", tail=-1,
          wear={"kind": "dress", "c": "#6a5a72", "neck": "pearls", "hat": "feather", "hc": "#4a3a52", "hc2": "#e9d9a0"})
    s.cat("etienne", 700, 552, 264, left="hold", right="hip", mood="open", tail=1,
          wear={"kind": "waistcoat", "c": "#8a6a4a", "legs": "#4a4038", "neck": "bow", "nc": "#a8433a",
                    "holds": ["cake<"]})


def homecoming(s):
    c = s.canvas
    land.sky(c, "#9ab4c8", "#ece6da", 330, 3)
    land.sea(c, 300, "#5f8698", 430)
    land.ship(c, 560, 396, 380, hull="#3a4a44", name="SAUCER", sail=True)
    for x, w, h, wall in ((0, 90, 120, "#cfc0a4"), (96, 80, 140, "#b8a898")):
        land.house(c, x, 400, w, h, wall=wall)
    land.cobbles(c, 420)
    s.cat("leopold", 300, 548, 300, right="link", left="down", tail=-1, mood="happy", wear=dict(OFFICER,
              holds=["suitcase<"]))
    s.cat("meihua", 436, 552, 268, left="link", right="front", mood="open", tail=1,
          wear={"kind": "qipao", "c": "#a8433e", "c2": "#e9c65a", "hat": "flowers", "hc": "#e77f8d", "hc2": "#f3d36a"})
    s.cat("augustus", 626, 548, 284, left="out", right="hip", mood="happy", tail=1,
          wear={"kind": "uniform", "c": "#2f3a54", "legs": "#2f3a54", "hat": "captain", "hc": "white",
                    "hc2": "#2f3a54", "shoes": "#1c1a1e"})
    s.cat("shipsboy", 100, 532, 196, called="Nipper, by now first mate", left="up", tail=-1, mood="happy",
          wear={"kind": "stripes", "c": "#f4efe4", "c2": "#3a5a7a", "legs": "#e4dccb", "hat": "sailor"})


def school_class(s):
    c = s.canvas
    room.room(c, 330, "#b8b4a4", boards="#98826a")
    room.blackboard(c, 270, 40, 330, 140, ("Mouse, mice,", "mousing, moused.", "1 mouse + 1 mouse = tea"))
    land.window(c, 70, 60, 120, 140, "#cfdde4", curtains="#d8cfc0")
    room.frame(c, 690, 60, 110, 110, shape="fish")
    s.cat("clementine", 740, 470, 330, left="out", right="hip", mood="open", tail=1,
          wear={"kind": "dress", "c": "#5a5a72", "c2": "#fbf6ec", "neck": "pearls", "holds": ["stick<"]})
    boys = {"kind": "shirt", "c": "#e9e4da", "neck": "tie", "nc": "#4a5a7a"}
    girls = {"kind": "pinafore", "c": "#6a7a8a", "c2": "#f4f0e6"}
    rows = ((410, 158, (("michael", None, boys), ("beatrix", None, girls), ("bicolour", "Percy Clawson", boys),
              ("tortie", "Betty Larder", girls))),
            (560, 172, (("cuthbert", None, boys), ("daphne", None, girls), ("eleni", None, girls), ("ginger",
                      "one who would not say", boys))))
    for r, (y, h, pupils) in enumerate(rows):
        for i, (who, name, wear) in enumerate(pupils):
            x = 104 + i * 142 + r * 36
            s.cat(who, x, y + 46, h, called=name, age="kitten", left="front",
                      right="up" if who == "beatrix" else "front", tail=0,
                  wear=dict(wear, no_shadow=True), mood=("open", "open", "sleep", "happy", "stern", "happy", "open",
                            "wink")[r * 4 + i])
            c.box(x - 58, y - 8, 116, 20, "#b08a5a", INK, 1.6, 3)
            c.box(x - 52, y + 12, 104, 46, darker("#b08a5a", 0.12), INK, 1.6)
            c.ellipse(x + 38, y - 8, 7, 4, "#2a3a5a", INK, 1)


PICTURES = [
    Picture("07-snow-at-the-mill.jpg", "Snow at the mill", "Jan 1933", "The mill, Whiskermoor",
            "The pond is frozen; Hector shows how it is done.\nOne second later he did not.\nThe snow cat has no name and left in March.",
            snow_at_the_mill, "grey", (840, 580), "left", "arrow"),
    Picture("08-wedding-of-tobias.jpg", "Wedding of Tobias and Rosamund", "12 June 1938", "Whiskermoor",
            "The Whiskertons and the Purringtons, mill and sea, on one lawn for the first time.\nRufus is singing. Nobody had asked him.",
            wedding_of_tobias, "grey", (900, 610), "above"),
    Picture("09-hector-goes-to-sea.jpg", "Hector goes to sea", "Aft. Mar 1939", "Port Purr",
            "For a fortnight, he said.", hector_goes_to_sea, "grey", (790, 580), "left", "arrow"),
    Picture("10-tea-and-balalaika.jpg", "Tea and balalaika", "Abt. 12 Mar 1940", "Whiskermoor",
            "Pasha plays the song of the grey fish, which has forty verses.\nNadia is asleep in the third.",
                      tea_and_balalaika, "grey", (790, 570), "left"),
    Picture("11-whiskermoor-halt.jpg", "Arrival of a gentleman who had overslept", "May 1946", "Whiskermoor Halt",
            "Theodoros wanted to go to Felinburgh. Dot told him that there was no other train before Thursday.\n"
            "There was one in ten minutes.", station, "grey", (810, 590), "left"),
    Picture("12-homecoming.jpg", "The \"Saucer\" is home", "Oct 1948", "Port Purr",
            "Leopold brings tea and 美花.", homecoming, "grey", (780, 580), "above"),
    Picture("13-moor-cup.jpg", "Whiskermoor Wanderers, winners of the Moor Cup", "14 May 1949", "Whiskermoor",
            "The decisive ball fell asleep in the goalkeeper's lap.\n"
            "Standing: Lucky O'Tabby, Larder, Biscuit, Clawson, Mewley, Capt. Purrington (guest).\n"
            "Sitting: Catmint, É. Purrington, R. Whiskerton with the cup, Dozer, Other.", football_team, "grey", (900,
                      620), "above"),
    Picture("14-school-class.jpg", "Miss Clementine's class", "June 1952", "Whiskermoor",
            "She was Mrs Thistlepaw by then; nobody dared to know.\nThe pupil at the lower right had come in with the coal.",
            school_class, "grey", (850, 640), "left"),
    Picture("15-purr-palace.jpg", "Marguerite and Lucky's wedding dance", "17 Sep 1955",
              "Purr Palace Ballroom, Port Purr",
            "The wedding was at four, the dance at five, the herring at midnight.", dance, "grey", (840, 590), "above"),
]
