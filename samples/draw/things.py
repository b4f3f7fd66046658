# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
"""What paws hold. A thing is drawn at a paw's place (x, y), in body heights `b`."""
import math

from blossom import flower
from canvas import INK, darker


def in_hands(canvas, figure, wear):
    for name in wear.get("holds", ()):
        side = -1 if name.endswith("<") else 1
        x, y = figure.hand(side)
        _THINGS[name.rstrip("<>")](canvas, x, y, figure.b, figure.line)


def _bouquet(canvas, x, y, b, line):
    for i, tint in enumerate(("#e77f8d", "#f6e3d0", "#c9415a", "#f3b6c0", "#fdf6ec", "#d9657a", "#f2d0a0")):
        angle = i * 0.9
        reach = 0 if i == 0 else 0.085 * b
        flower(canvas, x + math.cos(angle) * reach, y - 0.06 * b + math.sin(angle) * reach, 0.07 * b, tint, "#f3d36a")
    for side in (-1, 0, 1):
        canvas.taper(x + side * 0.02 * b, y + 0.03 * b, x + side * 0.07 * b, y + 0.17 * b, 0.014 * b, "#4f7a3a")


def _fish(canvas, x, y, b, line):
    canvas.polygon(
        [(x + 0.13 * b, y), (x + 0.24 * b, y - 0.08 * b), (x + 0.24 * b, y + 0.08 * b)], "#6f94a8", INK, line
    )
    canvas.ellipse(x, y, 0.17 * b, 0.075 * b, "#8fb3c4", INK, line)
    canvas.ellipse(x - 0.1 * b, y - 0.02 * b, 0.018 * b, 0.018 * b, INK)
    canvas.cr.arc(x - 0.02 * b, y, 0.05 * b, -1, 1)
    canvas.stroke(INK, line * 0.8)


def _cup(canvas, x, y, b, line):
    for side in (-1, 1):
        canvas.ellipse(x + side * 0.10 * b, y - 0.09 * b, 0.05 * b, 0.05 * b, "#e0b84a", "#7a5a14", line)
    canvas.path(
        (x - 0.10 * b, y - 0.17 * b),
        (x + 0.10 * b, y - 0.17 * b),
        ((x + 0.10 * b, y), (x + 0.03 * b, y), (x + 0.02 * b, y + 0.04 * b)),
        (x - 0.02 * b, y + 0.04 * b),
        ((x - 0.03 * b, y), (x - 0.10 * b, y), (x - 0.10 * b, y - 0.17 * b)),
    )
    canvas.fill("#e9c65a", "#7a5a14", line)
    canvas.box(x - 0.07 * b, y + 0.04 * b, 0.14 * b, 0.04 * b, "#6a4a2a", INK, line)


def _ball(canvas, x, y, b, line):
    canvas.ellipse(x, y, 0.13 * b, 0.13 * b, "#b98450", INK, line)
    canvas.lines([(x - 0.12 * b, y), (x + 0.12 * b, y)], darker("#b98450", 0.5), line)
    canvas.lines([(x, y - 0.12 * b), (x, y + 0.12 * b)], darker("#b98450", 0.5), line)


def _book(canvas, x, y, b, line):
    for side in (-1, 1):
        canvas.polygon(
            [
                (x, y - 0.10 * b),
                (x + side * 0.22 * b, y - 0.15 * b),
                (x + side * 0.22 * b, y + 0.09 * b),
                (x, y + 0.13 * b),
            ],
            "#fbf4e2",
            INK,
            line,
        )
        for i in range(4):
            canvas.lines(
                [
                    (x + side * 0.03 * b, y - 0.05 * b + i * 0.045 * b),
                    (x + side * 0.19 * b, y - 0.09 * b + i * 0.045 * b),
                ],
                "#9a8a74",
                line * 0.6,
            )


def _spyglass(canvas, x, y, b, line):
    canvas.cr.save()
    canvas.cr.translate(x, y)
    canvas.cr.rotate(-0.5)
    for start, size in ((-0.10, 0.030), (0.05, 0.040), (0.20, 0.05)):
        canvas.box(start * b, -size * b, 0.17 * b, 2 * size * b, "#c79a3a", "#6a4a14", line)
    canvas.cr.restore()


def _balloon(tint, lean):
    def draw(canvas, x, y, b, line):
        top = x + lean * 0.72 * b
        canvas.lines([(x, y), (top, y - 0.92 * b)], "#8a7a6a", line)
        canvas.ellipse(top, y - 1.10 * b, 0.17 * b, 0.20 * b, tint, darker(tint, 0.4), line)
        canvas.ellipse(top - 0.05 * b, y - 1.17 * b, 0.04 * b, 0.06 * b, "#ffffff", alpha=0.5)

    return draw


def _stick(canvas, x, y, b, line):
    canvas.lines([(x, y), (x + 0.20 * b, y - 0.26 * b)], "#fbf4e2", line * 2.2)


def _songs(canvas, x, y, b, line):
    canvas.box(x - 0.16 * b, y - 0.14 * b, 0.32 * b, 0.22 * b, "#2f4a6a", INK, line)
    canvas.lines([(x, y - 0.14 * b), (x, y + 0.08 * b)], "#f4efe4", line)


def _suitcase(canvas, x, y, b, line):
    canvas.cr.arc(x, y + 0.03 * b, 0.06 * b, math.pi, 2 * math.pi)
    canvas.stroke(INK, line * 2.4)
    canvas.box(x - 0.20 * b, y + 0.03 * b, 0.40 * b, 0.27 * b, "#9a6a3c", INK, line, 0.03 * b)
    for dx in (-0.13, 0.09):
        canvas.box(x + dx * b, y + 0.03 * b, 0.04 * b, 0.27 * b, "#6a4422")


def _bread(canvas, x, y, b, line):
    canvas.cr.save()
    canvas.cr.translate(x, y)
    canvas.cr.rotate(-0.9)
    canvas.box(-0.30 * b, -0.05 * b, 0.62 * b, 0.10 * b, "#d79a4e", "#7a4a1a", line, 0.05 * b)
    for i in range(4):
        canvas.lines(
            [(-0.2 * b + i * 0.13 * b, 0.03 * b), (-0.14 * b + i * 0.13 * b, -0.03 * b)], "#f6dca6", line * 1.4
        )
    canvas.cr.restore()


def _flag(canvas, x, y, b, line):
    canvas.lines([(x, y + 0.1 * b), (x, y - 0.42 * b)], "#6a4422", line * 2.2)
    canvas.polygon(
        [(x, y - 0.42 * b), (x + 0.30 * b, y - 0.38 * b), (x + 0.28 * b, y - 0.20 * b), (x, y - 0.22 * b)],
        "#3f8a4a",
        INK,
        line,
    )


def _fiddle(canvas, x, y, b, line):
    canvas.cr.save()
    canvas.cr.translate(x, y)
    canvas.cr.rotate(0.7)
    canvas.box(-0.02 * b, -0.36 * b, 0.04 * b, 0.3 * b, "#3a2418", INK, line * 0.6)
    canvas.ellipse(0, -0.02 * b, 0.09 * b, 0.09 * b, "#b5642a", INK, line)
    canvas.ellipse(0, 0.11 * b, 0.115 * b, 0.105 * b, "#b5642a", INK, line)
    canvas.lines([(0, -0.34 * b), (0, 0.18 * b)], "#f6ead2", line * 0.8)
    canvas.cr.restore()


def _balalaika(canvas, x, y, b, line):
    canvas.cr.save()
    canvas.cr.translate(x, y)
    canvas.cr.rotate(0.9)
    canvas.box(-0.02 * b, -0.52 * b, 0.04 * b, 0.44 * b, "#5a3418", INK, line * 0.6)
    canvas.polygon([(0, -0.14 * b), (0.24 * b, 0.20 * b), (-0.24 * b, 0.20 * b)], "#d99a4a", INK, line)
    canvas.ellipse(0, 0.06 * b, 0.035 * b, 0.035 * b, INK)
    for dx in (-0.012, 0, 0.012):
        canvas.lines([(dx * b, -0.5 * b), (dx * b, 0.18 * b)], "#fbf4e2", line * 0.5)
    canvas.cr.restore()


def _camera(canvas, x, y, b, line):
    canvas.box(x - 0.13 * b, y - 0.10 * b, 0.26 * b, 0.18 * b, "#3a3a40", INK, line, 0.02 * b)
    canvas.ellipse(x, y, 0.065 * b, 0.065 * b, "#9ab6c4", INK, line)


def _whistle(canvas, x, y, b, line):
    canvas.ellipse(x, y - 0.04 * b, 0.05 * b, 0.05 * b, "#c9ced4", INK, line)
    canvas.box(x - 0.12 * b, y - 0.09 * b, 0.12 * b, 0.04 * b, "#c9ced4", INK, line)


def _brush(canvas, x, y, b, line):
    canvas.lines([(x - 0.06 * b, y + 0.12 * b), (x + 0.10 * b, y - 0.22 * b)], "#8a5a2a", line * 2.2)
    canvas.ellipse(x + 0.115 * b, y - 0.255 * b, 0.03 * b, 0.05 * b, "#c9415a", turn=0.4)


def _cake(canvas, x, y, b, line):
    canvas.ellipse(x, y + 0.02 * b, 0.26 * b, 0.05 * b, "#e9eef2", INK, line)
    canvas.box(x - 0.20 * b, y - 0.16 * b, 0.40 * b, 0.17 * b, "#d79a4e", INK, line, 0.02 * b)
    canvas.box(x - 0.20 * b, y - 0.19 * b, 0.40 * b, 0.07 * b, "#fdf3ea", INK, line, 0.03 * b)
    canvas.ellipse(x, y - 0.20 * b, 0.03 * b, 0.03 * b, "#c9303f")


_THINGS = {
    "bouquet": _bouquet,
    "fish": _fish,
    "cup": _cup,
    "ball": _ball,
    "book": _book,
    "spyglass": _spyglass,
    "red balloon": _balloon("#d8444f", -1),
    "yellow balloon": _balloon("#e9b43e", 1),
    "stick": _stick,
    "songs": _songs,
    "suitcase": _suitcase,
    "bread": _bread,
    "flag": _flag,
    "fiddle": _fiddle,
    "balalaika": _balalaika,
    "camera": _camera,
    "whistle": _whistle,
    "brush": _brush,
    "cake": _cake,
}
