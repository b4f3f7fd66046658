# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
"""Coats: what a cat looks like, whatever picture it is in, and how its coat lies on body, tail and legs."""
from dataclasses import dataclass

import cairo

from canvas import darker, lighter, mix


@dataclass
class Look:
    """A coat. `dark` is the colour of stripes, spots, masks or second patches, `light` that of muzzle, chest and belly."""

    pattern: str
    base: str
    dark: str
    light: str
    eye: str = "#8fae3a"
    nose: str = "#d98a86"
    paw: str = ""
    third: str = ""
    blaze: bool = False
    fluffy: bool = False
    glasses: bool = False
    monocle: bool = False
    build: float = 1.0
    mirror: int = 1

    def __post_init__(self):
        if not self.paw:
            self.paw = self.dark if self.pattern == "point" else self.base


def body(canvas, look, x, y, b, chest=True):
    """The coat on the trunk around (x, y), with the pale chest when it shows; the caller has clipped to the trunk."""
    if look.pattern == "tabby":
        for i in range(5):
            yy = y - 0.36 * b + i * 0.17 * b
            for side in (-1, 1):
                canvas.taper(
                    x + side * 0.42 * b, yy, x + side * 0.10 * b, yy + 0.06 * b, 0.032 * b, look.dark, side * 0.12
                )
    elif look.pattern == "spots":
        for i, (dx, dy) in enumerate(
            (
                (-0.28, -0.3),
                (0.25, -0.34),
                (-0.2, -0.08),
                (0.3, -0.1),
                (-0.33, 0.12),
                (0.2, 0.14),
                (-0.12, 0.3),
                (0.33, 0.32),
                (-0.34, 0.38),
                (0.06, -0.22),
                (0.05, 0.05),
            )
        ):
            canvas.ellipse(x + dx * b, y + dy * b, 0.055 * b, 0.04 * b, look.dark, turn=i * 0.7)
    elif look.pattern in ("patches", "tortie"):
        m = look.mirror
        canvas.ellipse(x - m * 0.26 * b, y - 0.22 * b, 0.20 * b, 0.24 * b, look.dark, turn=0.4)
        canvas.ellipse(x + m * 0.28 * b, y + 0.06 * b, 0.20 * b, 0.26 * b, look.third or look.dark, turn=-0.3)
        canvas.ellipse(x - m * 0.20 * b, y + 0.36 * b, 0.20 * b, 0.14 * b, look.third or look.dark)
    if chest and look.pattern not in ("patches", "tortie", "solid", "point"):
        canvas.ellipse(x, y - 0.30 * b, 0.13 * b, 0.34 * b, look.light)
        canvas.ellipse(x, y + 0.28 * b, 0.17 * b, 0.24 * b, look.light)


def rings(canvas, look, x, y, width, height):
    """Two rings round a leg whose middle is at (x, y)."""
    if look.pattern != "tabby":
        return
    for step in (-0.6, 0.6):
        yy = y + step * height * 1.6
        canvas.taper(x - width * 0.46, yy, x + width * 0.46, yy, height * 0.32, look.dark, 0.06)


def _along(points, t):
    u = 1 - t
    weights = (u**3, 3 * u * u * t, 3 * u * t * t, t**3)
    return tuple(sum(w * p[i] for w, p in zip(weights, points)) for i in (0, 1))


def tail(canvas, look, points, width, edge, line):
    """A tail along a curve's four points, root first, with the coat's rings or tip."""
    cr = canvas.cr
    canvas.ribbon(points, width, look.dark if look.pattern == "point" else look.base, edge, line)
    cr.save()
    cr.set_line_cap(cairo.LINE_CAP_BUTT)
    if look.pattern in ("tabby", "spots"):
        stretches, tint = [(0.22, 0.30), (0.42, 0.50), (0.62, 0.70), (0.82, 0.88)], look.dark
    elif look.pattern in ("patches", "tortie"):
        stretches, tint = [(0.35, 0.72)], look.third or look.dark
    elif look.pattern == "tuxedo":
        stretches, tint = [(0.88, 0.99)], look.light
    else:
        stretches, tint = [], look.base
    for start, stop in stretches:
        cr.move_to(*_along(points, start))
        for i in range(1, 7):
            cr.line_to(*_along(points, start + (stop - start) * i / 6))
        canvas.stroke(tint, width)
    cr.restore()
    if look.pattern in ("tabby", "patches", "tortie", "tuxedo"):
        tip = _along(points, 1.0)
        canvas.ellipse(*tip, width * 0.48, width * 0.48, look.light if look.pattern == "tuxedo" else look.dark)
    canvas.taper(*_along(points, 0.25), *_along(points, 0.85), width * 0.16, lighter(look.base, 0.5), 0.25, alpha=0.25)


def ear_colour(look, side):
    """The outside of the ear on a side (-1 left, 1 right in the picture)."""
    if look.pattern == "point":
        return look.dark
    if look.pattern in ("patches", "tortie"):
        return look.dark if side == -look.mirror else (look.third or look.base)
    return look.base


def head(canvas, look):
    """The coat on the face, in head units (the head is 100 wide, its middle at 0, 0); the caller has clipped to the head."""
    if look.pattern == "tabby":
        for x0, x1, w in ((-21, -14, 3.2), (-8, -5, 3.0), (8, 5, 3.0), (21, 14, 3.2)):
            canvas.taper(x0, -44, x1, -19, w, look.dark, 0.05 if x0 < 0 else -0.05)
        for side in (-1, 1):
            canvas.taper(side * 60, -6, side * 33, 2, 2.8, look.dark, side * 0.12)
            canvas.taper(side * 60, 10, side * 33, 12, 2.8, look.dark, side * 0.12)
            canvas.taper(side * 56, 25, side * 34, 21, 2.4, look.dark, side * 0.1)
    elif look.pattern == "spots":
        for x, y in ((-18, -32), (0, -34), (18, -32), (-9, -26), (9, -26), (-42, 8), (42, 8), (-38, 18), (38, 18)):
            canvas.ellipse(x, y, 3.6, 2.8, look.dark)
    elif look.pattern in ("patches", "tortie"):
        m = look.mirror
        canvas.ellipse(-m * 34, -22, 32, 34, look.dark, turn=0.3 * m)
        canvas.ellipse(m * 38, -24, 27, 26, look.third or look.dark, turn=-0.4 * m)
        if look.pattern == "tortie":
            canvas.ellipse(m * 30, 22, 22, 14, look.dark)
            canvas.ellipse(-m * 40, 22, 14, 10, look.third)
    elif look.pattern == "point":
        canvas.glow(0, 10, 46, look.dark, 0.95)
        canvas.glow(0, 8, 34, look.dark, 0.8)
    if look.blaze:
        canvas.path(
            (0, -46),
            ((7, -20), (9, -8), (26, 18)),
            ((30, 34), (16, 46), (0, 46)),
            ((-16, 46), (-30, 34), (-26, 18)),
            ((-9, -8), (-7, -20), (0, -46)),
        )
        canvas.fill(look.light)
    elif look.pattern not in ("point", "solid"):
        canvas.ellipse(0, 31, 26, 19, look.light, alpha=0.95)
        canvas.ellipse(0, 24, 22, 12, look.light)


def muzzle_colour(look):
    if look.pattern == "point":
        return mix(look.dark, look.base, 0.18)
    if look.pattern == "solid":
        return lighter(look.base, 0.14)
    return look.light


def line_colour(look):
    """A colour for mouth and whisker roots that shows on the muzzle."""
    return darker(muzzle_colour(look), 0.72) if sum(mix(muzzle_colour(look), "#000000", 0)) > 0.9 else "#120c0a"
