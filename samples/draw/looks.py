# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
"""How every cat of the family looks: its individual number in the tree and its coat, the same in all pictures.

Coats run in the family: Whiskertons are brown tabbies or ginger like Molly, Purringtons wear black and white, Félicité's
line has the pale coat with the dark mask.
"""
from dataclasses import replace

from fur import Look

TABBY = Look("tabby", "#a98a66", "#5a4330", "#efe0c6", eye="#9dab3f")
GINGER = Look("tabby", "#e39a52", "#b9622a", "#fbe8cf", eye="#7fa35a", nose="#d98a86")
TUXEDO = Look("tuxedo", "#34313a", "#1e1c22", "#f8f4ec", eye="#c9b23f", nose="#c98a8a", paw="#f8f4ec", blaze=True)
SIAMESE = Look("point", "#f1e4cd", "#5b4238", "#faf2e2", eye="#6aa6d6", nose="#4a3630")
CALICO = Look("patches", "#faf3e6", "#3c3436", "#ffffff", third="#dd8f48", eye="#8fae3a")
GREY = Look("solid", "#8e97a3", "#656e7a", "#b8c0c8", eye="#d9a63a", nose="#6a6a74")
BLACK = Look("solid", "#3a3538", "#221f22", "#5a5458", eye="#d8b53a", nose="#3a3034")
WHITE = Look("solid", "#f7f1e7", "#d9cfc0", "#ffffff", eye="#6aa6c9")
BROWN = Look("solid", "#7a5540", "#54382a", "#9a7560", eye="#c9a23a", nose="#5a3a34")
SPOTTED = Look("spots", "#d9b27c", "#7a5230", "#f6e8cf", eye="#6f9a4a")
SILVER = Look("tabby", "#bcc0c4", "#6a6e76", "#f2f2f0", eye="#6f9a5a")
BICOLOUR = Look("tuxedo", "#98a0aa", "#6a727c", "#fbf8f2", eye="#d0a23c", paw="#fbf8f2", blaze=True)
TORTIE = Look("tortie", "#7a5238", "#33292a", "#b98a5a", third="#d28a44", eye="#c9a83a")

FAMILY = {
    "barnaby": (1, replace(TABBY, build=1.15)),
    "molly": (2, replace(GINGER, base="#e8a35c", paw="#fbe8cf", fluffy=True)),
    "augustus": (3, replace(TUXEDO, monocle=True, build=1.15, fluffy=True)),
    "philomena": (4, replace(GREY, eye="#8fae3a")),
    "felicite": (5, SIAMESE),
    "tobias": (6, replace(TABBY, base="#9c7c58", light="#e6d4b6", paw="#efe0c6")),
    "clementine": (7, replace(GINGER, base="#eaa664", glasses=True)),
    "hector": (8, replace(TABBY, base="#b29468", dark="#6a4a2c", blaze=True, light="#fbf3e4", eye="#c9a23a")),
    "dot": (9, CALICO),
    "rufus": (10, replace(GINGER, base="#d9823c", dark="#9a4a1c", build=1.1)),
    "leopold": (11, replace(TUXEDO, eye="#9dab3f")),
    "rosamund": (12, replace(TUXEDO, base="#4a4650", dark="#2e2c34", eye="#7fb0a0")),
    "marguerite": (13, replace(SIAMESE, base="#f5ead8", dark="#7a5a4a")),
    "etienne": (14, replace(SIAMESE, base="#f6ecd6", dark="#b98a58", nose="#a06a50", build=1.15)),
    "pavel": (15, replace(GREY, base="#7d8894", fluffy=True, build=1.1)),
    "basil": (16, replace(BROWN, glasses=True)),
    "theodoros": (17, replace(WHITE, build=1.1, eye="#5a9ac8")),
    "ottilie": (18, SILVER),
    "winifred": (19, replace(TORTIE, glasses=True)),
    "meihua": (20, replace(SPOTTED, eye="#7fae5a")),
    "lucky": (21, replace(GREY, base="#a2a9b0", light="#d2d6da", eye="#8fae3a")),
    "ambrose": (22, replace(BLACK, fluffy=True)),
    "ginevra": (23, replace(BICOLOUR, base="#7a5540", dark="#54382a")),
    "arthur": (24, replace(TABBY, base="#a58660", light="#f6eada", blaze=True, paw="#f6eada")),
    "beatrix": (25, replace(TUXEDO, base="#433f48", eye="#8fae3a", glasses=True)),
    "cuthbert": (26, replace(TABBY, base="#8f7150", dark="#4c3826", build=1.2)),
    "daphne": (27, replace(TABBY, base="#b0926a", light="#fbf3e4", paw="#fbf3e4", fluffy=True)),
    "nadia": (28, replace(GREY, base="#9aa3ae", light="#c8ced4", fluffy=True, eye="#c9a23a")),
    "michael": (29, replace(GREY, base="#848a92", eye="#c9a23a")),
    "algernon": (30, replace(BICOLOUR, base="#e0a868", dark="#b9622a", eye="#5a9ac8")),
    "eleni": (31, replace(CALICO, mirror=-1, eye="#6aa6c9")),
    "stavros": (32, replace(WHITE, eye="#c9a23a")),
    "jurgen": (33, replace(SILVER, base="#cbb08c", dark="#9a7048", glasses=True)),
    "pearl": (34, replace(TORTIE, base="#8f6242", eye="#7fae5a", blaze=True, light="#fbf3e4")),
    "jasper": (35, replace(SPOTTED, base="#c99a62", dark="#5e3a20")),
    "magnolia": (36, replace(BICOLOUR, base="#c9a878", dark="#8a6238", eye="#7fae5a")),
    "fionnuala": (37, replace(SIAMESE, base="#e9e3dc", dark="#7c8490", nose="#646c78")),
    "cormac": (38, replace(GREY, base="#b3b6b8", light="#dcdedf", build=1.1)),
    "noel": (
        39,
        replace(GINGER, base="#f0bd84", dark="#d08a48", blaze=True, light="#fffaf2", paw="#fffaf2", build=1.1),
    ),
    "horace": (40, replace(BROWN, base="#8c6448", build=1.25)),
    "sven": (41, replace(WHITE, fluffy=True, eye="#8fae3a")),
    "consuelo": (42, replace(TORTIE, base="#4a3634", third="#c97a3a", eye="#d8b53a")),
    "desmond": (43, replace(WHITE, build=1.1)),
    "kofi": (44, replace(BLACK, eye="#e0b43a")),
    "harriet": (45, replace(BICOLOUR, base="#6a6470", dark="#4a4650")),
    "iris": (46, replace(CALICO, dark="#6a5240", third="#c9986a", eye="#7fae5a")),
    "sandy": (47, replace(TABBY, base="#c9a878", dark="#8a6840", light="#fbf3e4")),
    "hugo": (48, replace(TABBY, base="#a88a60", light="#fbf3e4", blaze=True, paw="#fbf3e4", eye="#d0a23c")),
    "crispin": (49, replace(BROWN, base="#8a7a72", eye="#d0a23c")),
    "linnea": (50, replace(TUXEDO, base="#56525e", fluffy=True, eye="#6aa6c9")),
    "mateo": (51, replace(GINGER, base="#d58f54", dark="#8f5428", eye="#d0a23c")),
    "poppy": (
        52,
        replace(TORTIE, base="#b0824e", dark="#5a3c2a", third="#e0a050", blaze=True, light="#fffaf2", mirror=-1),
    ),
    "barney": (53, replace(GINGER, base="#e6b070", dark="#a86a34", blaze=True, light="#fffaf2")),
    "ama": (54, replace(BLACK, base="#463f44", eye="#7fb0c8")),
    "gwendolen": (55, replace(SPOTTED, base="#b8a898", dark="#6a5a50", eye="#7fae5a")),
    "dartagnan": (56, replace(BLACK, base="#2e2a30", eye="#7fae5a")),
    "lavender": (57, replace(WHITE, base="#e6e0ea", fluffy=True, eye="#9a86c8")),
    "rowan": (58, replace(GINGER, base="#c9703a", dark="#8a3c18", fluffy=True)),
    "celestine": (59, replace(CALICO, base="#f6eede", dark="#37323a", third="#8f7a6a", mirror=-1)),
    "max": (60, replace(TUXEDO, base="#2f2c34", eye="#7fae5a")),
    "nell": (61, replace(BICOLOUR, base="#a89a92", dark="#7a6a62", eye="#9a86c8", glasses=True)),
    "luna": (62, replace(BLACK, base="#4a444a", eye="#e0c23a")),
    "sol": (63, replace(GINGER, base="#f0a850", dark="#c86a24")),
    "estrella": (64, replace(TORTIE, base="#3f383c", third="#d98a44", eye="#7fae5a")),
    "juniper": (65, replace(GINGER, base="#d98a4a", blaze=True, light="#fffaf2", paw="#fffaf2", fluffy=True)),
}

# Cats of the neighbourhood, who stand in pictures under a name typed by hand.
NEIGHBOURS = {
    "grimalkin": replace(GREY, base="#6a6a6e", glasses=True),
    "tibbs": replace(WHITE, build=1.3),
    "shipsboy": replace(SPOTTED, base="#c8a878"),
    "vicar": replace(BLACK, build=1.1),
    "grey": GREY,
    "black": BLACK,
    "white": WHITE,
    "brown": BROWN,
    "spotted": SPOTTED,
    "silver": SILVER,
    "bicolour": BICOLOUR,
    "tortie": TORTIE,
    "siamese": SIAMESE,
    "calico": replace(CALICO, mirror=-1),
    "ginger": replace(GINGER, base="#eeb478"),
    "tabby": replace(TABBY, base="#8a7a6a"),
    "tuxedo": TUXEDO,
}

LOOKS = {name: look for name, (_, look) in FAMILY.items()} | NEIGHBOURS
