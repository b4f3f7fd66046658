# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
"""Clothes. A `wear` is a dictionary: kind (garment), c and c2 (its colours), legs, shoes, gloves, neck and nc, short
(sleeves), hat and hc (hats.py), holds (things.py)."""
from blossom import flower
from canvas import INK, darker, lighter

SKIRTS = ("dress", "bridal", "robe", "pinafore", "qipao", "apron", "coat")


def sleeve(wear):
    kind = wear.get("kind")
    if kind in (None, "qipao_bare", "vest", "pinafore_bare"):
        return None
    return {
        "waistcoat": "#f4efe4",
        "apron": wear.get("c2", "#f6f2ea"),
        "overalls": wear.get("c2", "#b8433a"),
        "pinafore": wear.get("c2", "#f4efe4"),
        "knit": wear.get("c"),
        "football": wear.get("c"),
    }.get(kind, wear.get("c"))


def garment(canvas, figure, skirt_hem, hem):
    wear = figure.cat.wear
    kind = wear.get("kind")
    if kind is None:
        collar(canvas, figure, wear)
        return
    (_skirt if kind in SKIRTS else _jacket)(canvas, figure, wear, skirt_hem, hem)
    collar(canvas, figure, wear)


def _skirt(canvas, figure, wear, skirt_hem, hem):
    a, c, b = figure.at, wear.get("c", "#7a5a8a"), figure.b
    c2 = wear.get("c2", lighter(c, 0.6))
    build = figure.look.build
    s = 0.215 * build
    w = (0.46 if wear["kind"] == "bridal" else 0.40 if wear["kind"] in ("dress", "pinafore") else 0.33) * build
    low = skirt_hem - (
        0.02 if wear["kind"] == "bridal" else 0.13 if wear["kind"] in ("robe", "coat", "qipao") else 0.17
    )

    def outline():
        canvas.path(
            a(-0.11, -1.0),
            a(-s, -0.96),
            (a(-s - 0.05, -0.85), a(-s - 0.02, -0.70), a(-0.19 * build, -0.60)),
            (a(-0.27 * build, -0.42), a(-w, low - 0.10), a(-w, low)),
            (a(-w * 0.5, low + 0.07), a(w * 0.5, low + 0.07), a(w, low)),
            (a(w, low - 0.10), a(0.27 * build, -0.42), a(0.19 * build, -0.60)),
            (a(s + 0.02, -0.70), a(s + 0.05, -0.85), a(s, -0.96)),
            a(0.11, -1.0),
        )

    outline()
    canvas.fill(c, INK, figure.line * 2)
    outline()
    with canvas.clipped():
        x, y = a(0, -0.5)
        if wear["kind"] in ("dress", "bridal", "pinafore"):
            for i in (-2, -1, 0, 1, 2):
                canvas.taper(*a(i * 0.06, -0.56), *a(i * w * 0.42, low + 0.04), 0.012 * b, darker(c, 0.28), 0, 0.5)
        if wear["kind"] == "dress" and wear.get("dots"):
            for row in range(7):
                for col in range(-4, 5):
                    canvas.ellipse(*a(col * 0.11 + (row % 2) * 0.055, -0.92 + row * 0.125), 0.02 * b, 0.02 * b, c2)
        if wear["kind"] == "bridal":
            for col in range(-6, 7):
                canvas.ellipse(
                    *a(col * w / 6, low + 0.035), 0.045 * b, 0.05 * b, "#ffffff", "#c9c0b4", figure.line * 0.6
                )
        if wear["kind"] == "pinafore":
            canvas.box(*a(-0.13, -0.90), 0.26 * b, 0.36 * b, c2, darker(c2, 0.3), figure.line * 0.7)
            canvas.path(a(-0.15, -0.56), a(0.15, -0.56), a(w * 0.75, low + 0.02), a(-w * 0.75, low + 0.02))
            canvas.fill(c2, darker(c2, 0.3), figure.line * 0.7)
        if wear["kind"] == "apron":
            canvas.box(*a(-0.15, -0.86), 0.30 * b, 0.30 * b, c, darker(c, 0.4), figure.line)
            canvas.lines([a(-0.25, -0.56), a(0.25, -0.56)], darker(c, 0.35), figure.line * 1.3)
            canvas.box(*a(-0.10, -0.46), 0.20 * b, 0.13 * b, c, darker(c, 0.4), figure.line * 0.8)
        if wear["kind"] in ("coat", "robe"):
            canvas.lines([a(0, -0.9), a(0, low + 0.05)], darker(c, 0.45), figure.line)
            if wear["kind"] == "coat":
                for yy in (-0.74, -0.56, -0.38):
                    canvas.ellipse(*a(0.06, yy), 0.022 * b, 0.022 * b, darker(c, 0.6))
        if wear["kind"] == "qipao":
            canvas.lines([a(0, -0.98), a(0.14, -0.84), a(0.2, -0.6), a(0.22, low)], c2, figure.line * 2)
            for xx, yy in ((-0.1, -0.7), (0.05, -0.5), (-0.15, -0.35), (0.1, -0.25), (-0.05, -0.2)):
                flower(canvas, *a(xx, yy), 0.045 * b, c2, "#f6d35a")
        canvas.glow(x + 0.3 * b, y + 0.2 * b, b * 0.5, "#100806", 0.30)
        canvas.glow(x - 0.2 * b, y - 0.3 * b, b * 0.4, "#fff8ea", 0.16)
    if wear["kind"] in ("dress", "pinafore") and not wear.get("plain"):
        canvas.lines([a(-0.185 * build, -0.585), a(0.185 * build, -0.585)], c2, figure.line * 3)


def _jacket(canvas, figure, wear, skirt_hem, hem):
    a, kind, b, c = figure.at, wear["kind"], figure.b, wear.get("c", "#3c4a5c")
    c2 = wear.get("c2", "#f4efe4")
    figure.outline(hem)
    canvas.fill(c, INK, figure.line * 2)
    figure.outline(hem)
    with canvas.clipped():
        if wear.get("legs") and kind != "overalls":
            canvas.box(*a(-0.5, -0.36), b, 0.4 * b, wear["legs"])
            canvas.lines([a(-0.5, -0.36), a(0.5, -0.36)], INK, figure.line)
            canvas.lines([a(0, -0.34), a(0, 0)], darker(wear["legs"], 0.5), figure.line)
        if kind in ("suit", "uniform", "tails"):
            canvas.path(a(-0.10, -1.05), a(0.10, -1.05), a(0.02, -0.60), a(-0.02, -0.60))
            canvas.fill(c2)
        if kind in ("suit", "tails"):
            for side in (-1, 1):
                canvas.path(a(side * 0.09, -1.02), a(side * 0.17, -0.88), a(side * 0.12, -0.83), a(0, -0.58))
                canvas.fill(lighter(c, 0.12), darker(c, 0.5), figure.line)
            for yy in (-0.54, -0.46):
                canvas.ellipse(*a(0.02, yy), 0.018 * b, 0.018 * b, darker(c, 0.6))
            canvas.path(a(-0.17, -0.76), a(-0.09, -0.78), a(-0.10, -0.73))
            canvas.fill("#fbf7ee")
        if kind == "uniform":
            canvas.box(*a(-0.5, -1.1), b, 0.3 * b, c)
            for yy in (-0.84, -0.70, -0.56, -0.44):
                for side in (-1, 1):
                    canvas.ellipse(
                        *a(side * 0.075, yy), 0.02 * b, 0.02 * b, "#d9b04a", darker("#d9b04a", 0.5), figure.line * 0.5
                    )
            canvas.lines([a(0, -0.95), a(0, -0.36)], darker(c, 0.5), figure.line)
        if kind in ("stripes", "football"):
            if kind == "football":
                for col in (-3, -1, 1, 3):
                    canvas.box(*a(col * 0.085 - 0.042, -1.05), 0.085 * b, 0.70 * b, c2)
            else:
                for row in range(7):
                    canvas.box(*a(-0.5, -1.0 + row * 0.1), b, 0.045 * b, c2)
        if kind == "waistcoat":
            canvas.path(a(-0.09, -1.05), a(0.09, -1.05), a(0, -0.70))
            canvas.fill("#f4efe4")
            for yy in (-0.66, -0.57, -0.48):
                canvas.ellipse(*a(0, yy), 0.02 * b, 0.02 * b, "#d9b04a")
            canvas.lines([a(0.02, -0.57), a(0.08, -0.50), a(0.16, -0.57)], "#d9b04a", figure.line)
        if kind == "knit":
            for row in range(3):
                pts = [a(-0.36 + i * 0.06, -0.80 + row * 0.13 + (0.03 if i % 2 else 0)) for i in range(13)]
                canvas.lines(pts, c2, figure.line * 1.8)
            canvas.box(*a(-0.5, -0.40), b, 0.05 * b, darker(c, 0.2))
        if kind == "overalls":
            canvas.box(*a(-0.5, -1.1), b, 0.36 * b, c2)
            for side in (-1, 1):
                canvas.lines([a(side * 0.17, -1.0), a(side * 0.13, -0.74)], c, figure.line * 4)
                canvas.ellipse(*a(side * 0.13, -0.72), 0.022 * b, 0.022 * b, "#d9b04a")
            canvas.box(*a(-0.09, -0.64), 0.18 * b, 0.14 * b, lighter(c, 0.1), darker(c, 0.4), figure.line)
        if kind == "shirt":
            canvas.lines([a(0, -0.95), a(0, -0.36)], darker(c, 0.3), figure.line)
            if wear.get("check"):
                for i in range(-5, 6):
                    canvas.lines([a(i * 0.08, -1.1), a(i * 0.08, 0)], c2, figure.line * 1.4, 0.6)
                    canvas.lines([a(-0.5, -0.6 + i * 0.08), a(0.5, -0.6 + i * 0.08)], c2, figure.line * 1.4, 0.6)
        canvas.glow(*a(0.30, -0.40), b * 0.45, "#100806", 0.32)
        canvas.glow(*a(-0.16, -0.82), b * 0.3, "#fff8ea", 0.16)


def collar(canvas, figure, wear):
    """What is worn at the neck, on clothes or on bare fur."""
    neck = wear.get("neck")
    if neck is None:
        return
    a, b, c = figure.at, figure.b, wear.get("nc", "#b8322f")
    x, y = a(0, -0.91)
    if neck == "bow":
        for side in (-1, 1):
            canvas.path(
                (x, y),
                ((x + side * 0.07 * b, y - 0.08 * b), (x + side * 0.13 * b, y - 0.07 * b), (x + side * 0.14 * b, y)),
                ((x + side * 0.13 * b, y + 0.07 * b), (x + side * 0.07 * b, y + 0.06 * b), (x, y)),
            )
            canvas.fill(c, darker(c, 0.5), figure.line)
        canvas.ellipse(x, y, 0.032 * b, 0.035 * b, lighter(c, 0.15), darker(c, 0.5), figure.line)
    elif neck == "tie":
        canvas.polygon(
            [a(-0.035, -0.95), a(0.035, -0.95), a(0.05, -0.66), a(0, -0.60), a(-0.05, -0.66)],
            c,
            darker(c, 0.5),
            figure.line,
        )
    elif neck == "bell":
        canvas.path(a(-0.2, -0.97), (a(-0.1, -0.90), a(0.1, -0.90), a(0.2, -0.97)), close=False)
        canvas.stroke(c, 0.06 * b)
        canvas.ellipse(x, y + 0.045 * b, 0.045 * b, 0.045 * b, "#e3b83e", "#7a5a14", figure.line)
        canvas.lines([(x, y + 0.05 * b), (x, y + 0.08 * b)], "#7a5a14", figure.line)
    elif neck == "scarf":
        canvas.path(a(-0.22, -0.98), (a(-0.1, -0.86), a(0.1, -0.86), a(0.22, -0.98)), close=False)
        canvas.stroke(INK, 0.13 * b + 2 * figure.line)
        canvas.path(a(-0.22, -0.98), (a(-0.1, -0.86), a(0.1, -0.86), a(0.22, -0.98)), close=False)
        canvas.stroke(c, 0.13 * b)
        canvas.box(*a(0.06, -0.90), 0.11 * b, 0.32 * b, c, INK, figure.line, 0.02 * b)
        for i in range(3):
            canvas.box(*a(0.06, -0.82 + i * 0.09), 0.11 * b, 0.03 * b, lighter(c, 0.5))
    elif neck == "pearls":
        for i in range(-4, 5):
            canvas.ellipse(
                *a(i * 0.045, -0.90 - 0.0035 * i * i), 0.024 * b, 0.024 * b, "#fdfaf2", "#b3a696", figure.line * 0.6
            )
    elif neck == "sailor":
        canvas.path(a(-0.20, -0.99), a(0.20, -0.99), a(0.22, -0.84), a(0, -0.68), a(-0.22, -0.84))
        canvas.fill(c, INK, figure.line)
        canvas.path(a(-0.18, -0.85), a(0, -0.73), a(0.18, -0.85), close=False)
        canvas.stroke("#fdfaf2", figure.line * 1.3)
        canvas.ellipse(*a(0, -0.68), 0.04 * b, 0.05 * b, "#b8322f", INK, figure.line)
    elif neck == "peter":
        for side in (-1, 1):
            canvas.path(
                a(0, -0.97),
                (a(side * 0.12, -1.02), a(side * 0.22, -0.95), a(side * 0.20, -0.86)),
                (a(side * 0.10, -0.80), a(side * 0.02, -0.86), a(0, -0.93)),
            )
            canvas.fill(c, darker(c, 0.35), figure.line)
    elif neck == "chain":
        canvas.path(a(-0.16, -0.96), (a(-0.12, -0.76), a(0.12, -0.76), a(0.16, -0.96)), close=False)
        canvas.stroke("#e0b84a", figure.line * 2.2)
        canvas.ellipse(*a(0, -0.78), 0.055 * b, 0.055 * b, "#e9c65a", "#7a5a14", figure.line)
