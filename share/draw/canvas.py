# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
"""A small drawing surface that ends in a GIF.

Shapes are drawn several times larger than wanted and scaled down, which smooths their edges. A GIF pixel is either there or
not there, so an icon is stored at twice the size at which the pages show it: the browser's own scaling then smooths the
silhouette on any background. Lengths and positions are units of the finished picture, y growing downwards.
"""

import math

from PIL import Image, ImageDraw, ImageFilter

RIM = (255, 249, 232)
SHADE = (70, 58, 44)


class Canvas:
    """A transparent picture of `width` x `height` units on which shapes are painted.

    `margin` units more on each side leave room for a rim; the finished picture has width x height pixels all the same.
    """

    def __init__(self, width, height, enlarge=8, margin=0):
        self.width, self.height, self.enlarge, self.margin = width, height, enlarge, margin
        self.image = Image.new("RGBA", ((width + 2 * margin) * enlarge, (height + 2 * margin) * enlarge), (0, 0, 0, 0))
        self.draw = ImageDraw.Draw(self.image)

    def _scaled(self, points):
        return [((x + self.margin) * self.enlarge, (y + self.margin) * self.enlarge) for x, y in points]

    def polygon(self, points, fill):
        self.draw.polygon(self._scaled(points), fill=fill)

    def smooth(self, points, fill):
        """Fills the closed curve that runs through `points`."""
        self.polygon(through(points, closed=True), fill)

    def ellipse(self, x, y, across, down, fill):
        """Fills the ellipse with the centre (x, y) and the two radii."""
        self.draw.ellipse(self._scaled([(x - across, y - down), (x + across, y + down)]), fill=fill)

    def leaf(self, x, y, length, breadth, turn, fill):
        """Fills a pointed leaf that starts at (x, y) and points `turn` degrees clockwise from the right."""
        tip = polar(x, y, turn, length)
        side = [polar(*polar(x, y, turn, length * part), turn + 90, breadth * swell)
                for part, swell in ((0.2, 0.36), (0.45, 0.5), (0.75, 0.32))]
        other = [polar(*polar(x, y, turn, length * part), turn - 90, breadth * swell)
                 for part, swell in ((0.75, 0.32), (0.45, 0.5), (0.2, 0.36))]
        self.polygon(through([(x, y), *side, tip]) + through([tip, *other, (x, y)]), fill)

    def stroke(self, points, width, fill, end=None):
        """Paints a line with round ends that runs from `width` to the width `end` (the same when left out)."""
        end = width if end is None else end
        steps = resample(points, 0.35)
        for number, (x, y) in enumerate(steps):
            radius = (width + (end - width) * number / max(1, len(steps) - 1)) / 2
            self.ellipse(x, y, radius, radius, fill)

    def box(self, left, top, right, bottom, corner, fill):
        self.draw.rounded_rectangle(self._scaled([(left, top), (right, bottom)]), corner * self.enlarge, fill=fill)

    def rimmed(self, rim=1.6, shade=0.9):
        """Puts a light rim and a thin dark edge under what was painted, so that it stands out on light and dark pages."""
        for distance, colour in ((rim, RIM), (rim + shade, SHADE)):
            self.image = self._underlaid(distance, colour)
        return self

    def _underlaid(self, distance, colour):
        alpha = self.image.getchannel("A")
        spread = distance * self.enlarge
        # A blurred edge falls to a fixed share of its height at a fixed distance, which makes the rim round, not square.
        grown = alpha.filter(ImageFilter.GaussianBlur(spread / 1.5)).point(lambda value: 255 if value > 18 else 0)
        under = Image.new("RGBA", self.image.size, colour + (0,))
        under.putalpha(grown)
        return Image.alpha_composite(under, self.image)

    def finished(self):
        return self.image.resize((self.width, self.height), Image.LANCZOS)


def polar(x, y, turn, distance):
    angle = math.radians(turn)
    return x + math.cos(angle) * distance, y + math.sin(angle) * distance


def through(points, closed=False, steps=12):
    """Points of a smooth curve (Catmull-Rom) through the given ones."""
    count = len(points)
    at = (lambda i: points[i % count]) if closed else (lambda i: points[min(max(i, 0), count - 1)])
    curve = []
    for i in range(count if closed else count - 1):
        before, start, end, after = at(i - 1), at(i), at(i + 1), at(i + 2)
        for step in range(steps):
            t = step / steps
            curve.append(tuple(
                0.5 * (2 * s + (e - b) * t + (2 * b - 5 * s + 4 * e - a) * t * t + (3 * s - b - 3 * e + a) * t ** 3)
                for b, s, e, a in zip(before, start, end, after)))
    return curve if closed else [*curve, points[-1]]


def resample(points, spacing):
    """Points along the polyline that lie at most `spacing` apart."""
    result = [points[0]]
    for (x0, y0), (x1, y1) in zip(points, points[1:]):
        pieces = max(1, math.ceil(math.hypot(x1 - x0, y1 - y0) / spacing))
        result += [(x0 + (x1 - x0) * k / pieces, y0 + (y1 - y0) * k / pieces) for k in range(1, pieces + 1)]
    return result


def as_gif(image, colours=63, matte=None):
    """The picture with a palette of at most `colours` entries (up to 255) and one more for what is transparent.

    With a `matte` the half-transparent edge is mixed with that colour; without one, a pixel keeps its own colour.
    """
    image = image.convert("RGBA")
    alpha = image.getchannel("A")
    opaque = alpha.point(lambda value: 255 if value >= (64 if matte else 128) else 0)
    flat = Image.new("RGBA", image.size, (matte or (128, 128, 128)) + (255,))
    flat = Image.alpha_composite(flat, image) if matte else _solid(image)
    # What will be transparent takes no part in the choice of colours.
    plain = Image.new("RGB", image.size, flat.convert("RGB").getpixel(_first(opaque)))
    plain.paste(flat.convert("RGB"), mask=opaque)
    indexed = plain.quantize(colors=colours, method=Image.Quantize.MEDIANCUT, dither=Image.Dither.NONE)
    if opaque.getextrema()[0] == 0:
        indexed.paste(colours, mask=opaque.point(lambda value: 255 - value))
        indexed.info["transparency"] = colours
    return indexed


def _solid(image):
    colours = image.convert("RGB")
    return Image.merge("RGBA", (*colours.split(), Image.new("L", image.size, 255)))


def _first(mask):
    box = mask.getbbox()
    if not box:
        return 0, 0
    for x in range(box[0], box[2]):
        if mask.getpixel((x, box[1])):
            return x, box[1]
    return 0, 0
