# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
"""1912 to 1928: brown photographs on a glass plate; everybody holds still."""
import interiors as room
import scenery as land
from blossom import flower
from canvas import INK
from stage import Picture

BLACK_SUIT = {"kind": "suit", "c": "#35323a", "legs": "#4a464e", "neck": "bow", "nc": "#1c1a1e"}
WHITE_BRIDE = {"kind": "bridal", "c": "#fbf6ec", "hat": "veil", "holds": ["bouquet>"]}


def mill_staff(s):
    c = s.canvas
    land.sky(c, "#b8d0dc", "#f6ecd4", 330)
    land.hills(c, 350, 80, "#a8b07a", 2, 0.6)
    land.mill(c, 560, 420, 400, turn=0.5)
    land.house(c, 60, 392, 150, 84, roof="#8a6a4a")
    land.ground(c, 392, "#b5a878", 26)
    for x, y, w, h in ((40, 500, 64, 84), (88, 520, 60, 70), (690, 510, 70, 86)):
        c.box(x, y - h, w, h, "#e9dcc0", INK, 1.8, 22)
        c.text(x + w / 2, y - h * 0.4, "FLOUR", 12, "#6a4a3a", bold=True)
    s.cat("tibbs", 200, 528, 260, called="Mr Tibbs, the miller", left="hip", right="hip", mood="stern",
          wear={"kind": "apron", "c": "#efe8da", "c2": "#d8cdb8", "hat": "flat", "hc": "#e4d8c0", "shoes": "#4a3628"})
    s.cat("barnaby", 335, 532, 226, right="hold",
          wear={"kind": "waistcoat", "c": "#6a5a4a", "legs": "#5a5048", "neck": "bow", "nc": "#7a3a34",
                    "holds": ["fish>"]})
    s.cat("grimalkin", 468, 530, 214, called="Old Grimalkin", left="front", right="front", mood="sleep", tail=-1,
          wear={"kind": "coat", "c": "#5a5450", "neck": "scarf", "nc": "#8a8478"})
    s.cat("bicolour", 600, 526, 176, called="the new apprentice", age="youth", right="up", mood="happy",
          wear={"kind": "overalls", "c": "#7a828c", "c2": "#d8d0c0", "legs": "#7a828c", "hat": "flat", "hc": "#6a5a4a"})


def herring_hope(s):
    c = s.canvas
    land.sky(c, "#a8c4d4", "#f4ead4", 300, 4)
    land.sea(c, 270, "#6a93a4", 420)
    land.ship(c, 600, 300, 130, sail=True)
    c.box(0, 402, c.width, 170, "#b08a5e", INK, 2)
    for i in range(9):
        c.lines([(i * 100 - 60, 570), (i * 84 + 20, 404)], "#7a5a3a", 1.4)
    for y in (330, 366):
        c.lines([(0, y), (c.width, y)], "#f4ecdc", 4)
        c.lines([(0, y + 3), (c.width, y + 3)], INK, 1)
    for x in range(30, c.width, 110):
        c.box(x, 312, 9, 96, "#f4ecdc", INK, 1.2)
    c.cr.save()
    c.cr.translate(164, 470)
    for i in range(8):
        c.cr.rotate(3.14159 / 4)
        c.box(-4, 20, 8, 84, "#7a4a2a", INK, 1.2, 4)
    c.cr.restore()
    c.ellipse(164, 470, 78, 78, "#7a4a2a", "#7a4a2a", 13, alpha=0)
    c.ellipse(164, 470, 16, 16, "#d9b04a", INK, 1.6)
    s.cat("augustus", 372, 552, 306, left="out", right="hold", mood="stern", tail=1,
          wear={"kind": "uniform", "c": "#2f3a54", "legs": "#2f3a54", "hat": "captain", "hc": "white", "hc2": "#2f3a54",
                "holds": ["spyglass>"], "shoes": "#1c1a1e"})
    s.cat("shipsboy", 620, 548, 196, called="Nipper, the ship's boy", age="youth", left="up", mood="happy", tail=1,
          wear={"kind": "stripes", "c": "#f4efe4", "c2": "#3a5a7a", "legs": "#e4dccb", "hat": "sailor", "short": True})
    c.box(690, 470, 76, 90, "#8a6a44", INK, 2, 10)
    for y in (488, 540):
        c.box(690, y, 76, 8, "#4a4a50", INK, 1)
    c.text(728, 524, "HERRINGS", 11, "#3a2a1a", bold=True)


def wedding_at_the_mill(s):
    c = s.canvas
    room.room(c, 520, "#c9b894", boards="#9a7a58")
    c.gradient(70, 60, 420, 400, "#d8e0dc", "#f4ecd8")
    land.cloud(c, 180, 130, 44)
    land.cloud(c, 390, 170, 34)
    room.curtain(c, 0, 150, 560, "#8a5a52", -1)
    room.curtain(c, 410, 150, 560, "#8a5a52", 1)
    room.rug(c, 280, 600, 230, 46, "#8a4a44")
    c.box(452, 470, 50, 130, "#c9b48a", INK, 1.8, 6)
    for i, tint in enumerate(("#e77f8d", "#fdf6ec", "#d9657a", "#f3b6c0", "#fdf6ec")):
        flower(c, 452 + i * 13, 452 - (i % 2) * 16, 15, tint, "#f3d36a")
    s.cat("barnaby", 205, 606, 330, right="link", mark="whole", tail=-1, wear=dict(BLACK_SUIT, hat="top", hc="#35323a",
              hc2="#6a5a52"))
    s.cat("molly", 352, 612, 304, mark="whole", mood="happy", left="link", right="front", wear=WHITE_BRIDE)


def wedding_of_the_captain(s):
    c = s.canvas
    room.room(c, 500, "#b9ac98", stripe="#a89a84", boards="#8a7058")
    room.curtain(c, 380, 140, 560, "#5a6a6a", 1)
    room.frame(c, 60, 60, 120, 96)
    room.armchair(c, 176, 560, 190, 300, "#7a5a4a")
    s.cat("philomena", 176, 520, 262, pose="sit", mark="whole", left="front", right="front",
          wear={"kind": "bridal", "c": "#f6efe2", "hat": "flowers", "hc": "#e77f8d", "hc2": "#f3b6c0",
                    "holds": ["bouquet>"]})
    room.armchair_front(c, 176, 560, 190, 300, "#7a5a4a")
    s.cat("augustus", 345, 590, 336, left="out", right="hip", mark="whole", mood="stern",
          wear={"kind": "uniform", "c": "#2f3a54", "legs": "#2f3a54", "hat": "captain", "hc": "white",
                    "hc2": "#2f3a54", "shoes": "#1c1a1e"})


def litter(s):
    c = s.canvas
    room.room(c, 430, "#c9b08c", stripe="#b89a74")
    room.frame(c, 90, 40, 130, 96)
    room.frame(c, 560, 40, 150, 100, shape="fish")
    room.rug(c, 400, 500, 330, 46)
    room.sofa(c, 90, 430, 620, 190, "#7a4a44")
    s.cat("tobias", 168, 446, 236, age="youth", pose="sit", left="front", right="front", mood="stern", tail=0,
          wear={"kind": "suit", "c": "#4a4a54", "legs": "#4a4a54", "neck": "bow", "nc": "#7a3a34"})
    s.cat("clementine", 292, 446, 224, age="youth", pose="sit", left="hold", right="hold", tail=0,
          wear={"kind": "pinafore", "c": "#7a6a8a", "c2": "#f4efe4", "hat": "bow", "hc": "#b8433a", "holds": ["book>"]})
    s.cat("rufus", 505, 446, 138, age="kitten", pose="catsit", mood="open", tail=1, wear={"neck": "bell",
              "nc": "#b8433a"})
    s.cat("hector", 400, 446, 208, age="youth", pose="sit", mood="wink", left="up", tail=0,
          wear={"kind": "shirt", "c": "#f4efe4", "legs": "#3a4a6a", "neck": "sailor", "nc": "#3a4a6a"})
    s.cat("dot", 618, 446, 186, age="kitten", pose="sit", mood="happy", left="front", right="front", tail=0,
          wear={"kind": "dress", "c": "#c9a0a4", "c2": "#ffffff", "neck": "peter", "nc": "#fdfaf2", "hat": "bow",
                    "hc": "#e9b43e"})
    room.sofa_front(c, 90, 440, 620, 150, "#7a4a44")
    room.wool(c, 318, 532, 17, "#b8433a")
    c.lines([(334, 540), (380, 548), (420, 540), (470, 549)], "#b8433a", 2)


def second_wedding(s):
    c = s.canvas
    land.sky(c, "#b0c8d4", "#f6ead0", 380)
    land.church(c, 470, 420, 340)
    land.ground(c, 410, "#a8a878", 24, ("#fdf6ec", "#f3b6c0"))
    c.polygon([(420, 412), (520, 412), (660, 600), (230, 600)], "#d8cbb0", "#8a7a62", 1.4)
    land.tree(c, 90, 440, 290)
    s.cat("leopold", 176, 556, 214, age="youth", mood="stern", left="behind", right="behind", tail=-1,
          wear={"kind": "shirt", "c": "#f4efe4", "legs": "#2f3a54", "neck": "sailor", "nc": "#2f3a54"})
    s.cat("augustus", 332, 566, 312, right="link", tail=0,
          wear={"kind": "uniform", "c": "#2f3a54", "legs": "#2f3a54", "hat": "captain", "hc": "white",
                    "hc2": "#2f3a54", "shoes": "#1c1a1e"})
    s.cat("felicite", 482, 566, 286, mood="happy", left="link", right="front", tail=0,
          wear={"kind": "bridal", "c": "#fbf6ec", "hat": "cloche", "hc": "#f4ecdc", "hc2": "#c9a0a4",
                    "holds": ["bouquet>"]})
    s.cat("rosamund", 640, 556, 190, age="youth", left="front", right="front",
          wear={"kind": "dress", "c": "#d8b4b8", "c2": "#fdfaf2", "neck": "peter", "nc": "#fdfaf2", "hat": "flowers",
                    "hc": "#e77f8d", "hc2": "#f3d36a"})
    s.cat("vicar", 760, 520, 236, called="The Rev. Mr Clawson", left="hold", right="hold", mood="sleep", tail=0,
          wear={"kind": "robe", "c": "#4a464e", "holds": ["book>"], "neck": "peter", "nc": "#fdfaf2"})


PICTURES = [
    Picture("01-mill-staff.jpg", "The staff of the mill", "Abt. 1912", "The mill, Whiskermoor",
            "The miller, his mouser, the mouser before him, and the mouser after him.\n"
            "Barnaby had been chief mouser for three years and was paid in kind; the kind is in his hand.",
            mill_staff, "sepia", (790, 560), "left"),
    Picture("02-herring-hope.jpg", "On the bridge of the \"Herring Hope\"", "1913", "Port Purr",
            "Augustus Purrington looks out for herring. The ship's boy has seen the photographer.",
            herring_hope, "sepia", (780, 570), "above", "arrow"),
    Picture("03-wedding-at-the-mill.jpg", "Barnaby and Molly on their wedding day", "14 June 1914", "Whiskermoor",
            "Taken by a travelling photographer, who was paid with a cheese.\nThe clouds are painted.",
            wedding_at_the_mill, "sepia", (560, 660), "left"),
    Picture("04-wedding-of-the-captain.jpg", "Wedding of Captain Purrington and Philomena", "17 Mar 1915", "Port Purr",
            "She sat because he refused to take off the cap.", wedding_of_the_captain, "sepia", (520, 640), "left"),
    Picture("05-litter.jpg", "The Whiskerton litter", "Abt. 1927", "Cream Cottage, Whiskermoor",
            "Tobias, Clementine, Hector, Rufus and Dot.\nRufus would not be dressed, and Hector would not be still.\n"
            "The sofa was Molly's; the scratches were everybody's.", litter, "sepia", (800, 560), "above"),
    Picture("06-second-wedding.jpg", "The Captain's second wedding", "8 Oct 1927", "Seamen's Chapel, Port Purr",
            "Félicité made all the hats. Leopold refused his.", second_wedding, "sepia", (840, 590), "above"),
]
