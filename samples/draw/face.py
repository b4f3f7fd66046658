# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
"""A cat's head from the front, in head units: 100 wide, its middle at (0, 0), the ear tips at -66, the chin at 42."""
import math

import fur
from canvas import darker, lighter, mix


def _outline(canvas, fluffy):
    tuft = 10 if fluffy else 3
    canvas.path(
        (0, -40),
        ((26, -40), (47, -26), (50, 0)),
        ((51, 7), (53 + tuft, 12), (56 + tuft, 15)),
        (48, 19),
        ((50, 24), (51 + tuft * 0.8, 26), (52 + tuft * 0.8, 27)),
        (40, 30),
        ((30, 40), (14, 42), (0, 42)),
        ((-14, 42), (-30, 40), (-40, 30)),
        (-52 - tuft * 0.8, 27),
        ((-51 - tuft * 0.8, 26), (-50, 24), (-48, 19)),
        (-56 - tuft, 15),
        ((-53 - tuft, 12), (-51, 7), (-50, 0)),
        ((-47, -26), (-26, -40), (0, -40)),
    )


def _ear(canvas, look, side, edge):
    canvas.path(
        (side * 47, -12),
        ((side * 50, -34), (side * 46, -56), (side * 42, -66)),
        ((side * 32, -60), (side * 18, -48), (side * 9, -36)),
    )
    canvas.fill(fur.ear_colour(look, side), edge, 2.6)
    canvas.path(
        (side * 41, -22),
        ((side * 43, -36), (side * 41, -48), (side * 39, -55)),
        ((side * 32, -50), (side * 24, -42), (side * 19, -36)),
    )
    canvas.fill(mix("#e8a79c", fur.ear_colour(look, side), 0.25))
    canvas.taper(side * 36, -24, side * 37, -46, 2.2, lighter(look.light, 0.3), 0.1 * side, 0.8)
    canvas.taper(side * 29, -28, side * 34, -42, 2.0, lighter(look.light, 0.3), 0.1 * side, 0.7)


def _eye(canvas, look, x, mood, gaze, big):
    lid = "#1c1210"
    y = -3
    if mood in ("happy", "sleep") or (mood == "wink" and x > 0):
        bow = 9 if mood == "sleep" else -9
        canvas.path((x - 11, y + 2), ((x - 6, y + 2 + bow), (x + 6, y + 2 + bow), (x + 11, y + 2)), close=False)
        canvas.stroke(lid if sum(canvas_light(look)) > 0.9 else lighter(look.base, 0.55), 3.0)
        return
    rx, ry = 10.5 * big, 11.5 * big
    canvas.ellipse(x, y, rx + 1.6, ry + 1.4, lid)
    canvas.ellipse_path(x, y, rx, ry)
    with canvas.clipped():
        canvas.gradient(x - rx, y - ry, 2 * rx, 2 * ry, darker(look.eye, 0.3), lighter(look.eye, 0.35))
        canvas.ellipse(x + gaze * 4, y + 0.5, rx * 0.56, ry * 0.84, "#120b0a")
        if mood == "stern":
            canvas.polygon([(x - 16, y - 18), (x + 16, y - 18), (x + 16, y - 3), (x - 16, y - 3)], look.base)
            canvas.lines([(x - 14, y - 3), (x + 14, y - 3)], lid, 3)
        canvas.ellipse(x + gaze * 4 - rx * 0.28, y - ry * 0.36, rx * 0.27, ry * 0.27, "#ffffff")
        canvas.ellipse(x + gaze * 4 + rx * 0.3, y + ry * 0.4, rx * 0.13, ry * 0.13, "#ffffff", alpha=0.8)


def canvas_light(look):
    """The red, green and blue around the eyes: tells whether a dark line shows there."""
    return mix(look.dark if look.pattern == "point" else look.base, "#000000", 0)


def _mouth(canvas, look, mood):
    line = fur.line_colour(look)
    muzzle = fur.muzzle_colour(look)
    for side in (-1, 1):
        canvas.ellipse(side * 9, 21, 13, 10, muzzle)
    canvas.ellipse(0, 31, 9, 6, muzzle)
    if mood == "sing":
        canvas.ellipse(0, 30, 7.5, 9, "#6e2430", line, 2)
        canvas.ellipse(0, 35, 4.5, 3.2, "#e08a8a")
    canvas.path((0, 16), (0, 21), close=False)
    canvas.stroke(line, 2)
    for side in (-1, 1):
        corner = 25 if mood in ("stern",) else 22
        canvas.path((0, 21), ((side * 3, 28), (side * 12, 28), (side * 15, corner)), close=False)
        canvas.stroke(line, 2)
        for dx, dy in ((8, 20), (13, 18), (12, 23)):
            canvas.ellipse(side * dx, dy, 0.9, 0.9, line, alpha=0.7)
    canvas.path((-6.5, 9), ((-3, 7), (3, 7), (6.5, 9)), ((6, 13), (2, 16), (0, 16.5)), ((-2, 16), (-6, 13), (-6.5, 9)))
    canvas.fill(look.nose, darker(look.nose, 0.45), 1.2)
    canvas.ellipse(-2, 10.5, 1.6, 1, "#ffffff", alpha=0.55)


def _whiskers(canvas, look):
    colour = "#fffaf0" if sum(canvas_light(look)) < 1.7 else "#6b5a50"
    for side in (-1, 1):
        for y0, y1, reach in ((19, 11, 66), (22, 22, 69), (25, 33, 63)):
            canvas.path((side * 17, y0), ((side * 32, y0 - 3), (side * 48, y1 - 3), (side * reach, y1)), close=False)
            canvas.stroke(colour, 1.0, 0.9)


def head(canvas, look, mood, gaze, age):
    edge = darker(look.base, 0.72)
    for side in (-1, 1):
        _ear(canvas, look, side, edge)
    _outline(canvas, look.fluffy)
    canvas.fill(look.base, edge, 2.6)
    _outline(canvas, look.fluffy)
    with canvas.clipped():
        fur.head(canvas, look)
        canvas.glow(-16, -30, 46, "#fff6e0", 0.20)
        canvas.glow(36, 36, 52, "#180c08", 0.30)
        canvas.glow(-40, 40, 34, "#180c08", 0.16)
    big = {"kitten": 1.22, "youth": 1.1}.get(age, 1.0)
    for side in (-1, 1):
        _eye(canvas, look, side * 21, mood, gaze, big)
    _mouth(canvas, look, mood)
    _whiskers(canvas, look)
    if mood == "happy" or age == "kitten":
        for side in (-1, 1):
            canvas.glow(side * 34, 14, 12, "#f08a80", 0.45)
    if look.glasses:
        for side in (-1, 1):
            canvas.ellipse(side * 21, -2, 15, 14, "#ffffff", "#7a6020", 2.2, alpha=0.16)
            canvas.lines([(side * 36, -4), (side * 48, -8)], "#7a6020", 2)
        canvas.lines([(-6, -4), (6, -4)], "#7a6020", 2)
    if look.monocle:
        canvas.ellipse(21, -2, 15.5, 15, "#ffffff", "#b08a2a", 2.6, alpha=0.16)
        canvas.cr.arc(40, 24, 26, math.pi * 0.5, math.pi * 1.1)
        canvas.stroke("#b08a2a", 1.2)
