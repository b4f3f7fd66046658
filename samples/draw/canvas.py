# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
"""The sheet that every picture is drawn on, and the small shapes that everything is drawn with.

Coordinates are pixels of the finished scene; the sheet itself is twice as large and scaled down at the end. Colours are
"#rrggbb" texts or (red, green, blue) in 0..1, so that they can be mixed.
"""
import math
import random

import cairo

OVERSAMPLING = 2
INK = "#3a2a26"


def rgb(colour):
    if isinstance(colour, str):
        return tuple(int(colour[i : i + 2], 16) / 255 for i in (1, 3, 5))
    return colour


def mix(first, second, share):
    """The colour `share` of the way from the first to the second."""
    return tuple(a + (b - a) * share for a, b in zip(rgb(first), rgb(second)))


def darker(colour, share=0.25):
    return mix(colour, "#20120e", share)


def lighter(colour, share=0.3):
    return mix(colour, "#fffaf0", share)


class Canvas:
    """A sheet of `width` x `height` scene pixels; `chance` is its own seeded dice, so that a picture never changes."""

    def __init__(self, width, height, seed):
        self.width = width
        self.height = height
        self.chance = random.Random(seed)
        self.surface = cairo.ImageSurface(cairo.FORMAT_RGB24, width * OVERSAMPLING, height * OVERSAMPLING)
        self.cr = cairo.Context(self.surface)
        self.cr.scale(OVERSAMPLING, OVERSAMPLING)
        self.cr.set_line_cap(cairo.LINE_CAP_ROUND)
        self.cr.set_line_join(cairo.LINE_JOIN_ROUND)

    def colour(self, colour, alpha=1.0):
        self.cr.set_source_rgba(*rgb(colour), alpha)

    def fill(self, colour, outline=None, line=1.6, alpha=1.0):
        """Fills the current path, and draws its edge when an outline colour is given."""
        self.colour(colour, alpha)
        if outline is None:
            self.cr.fill()
            return
        self.cr.fill_preserve()
        self.stroke(outline, line)

    def stroke(self, colour, line=1.6, alpha=1.0):
        self.colour(colour, alpha)
        self.cr.set_line_width(line)
        self.cr.stroke()

    def path(self, start, *segments, close=True):
        """A path of points (lines) and of triples of points (curves)."""
        self.cr.move_to(*start)
        for segment in segments:
            if isinstance(segment[0], (int, float)):
                self.cr.line_to(*segment)
            else:
                self.cr.curve_to(*segment[0], *segment[1], *segment[2])
        if close:
            self.cr.close_path()

    def polygon(self, points, colour, outline=None, line=1.6, alpha=1.0):
        self.path(points[0], *points[1:])
        self.fill(colour, outline, line, alpha)

    def lines(self, points, colour, line=1.6, alpha=1.0):
        self.path(points[0], *points[1:], close=False)
        self.stroke(colour, line, alpha)

    def ellipse_path(self, x, y, rx, ry, turn=0.0):
        self.cr.save()
        self.cr.translate(x, y)
        self.cr.rotate(turn)
        self.cr.scale(max(rx, 0.01), max(ry, 0.01))
        self.cr.new_sub_path()
        self.cr.arc(0, 0, 1, 0, 2 * math.pi)
        self.cr.restore()

    def ellipse(self, x, y, rx, ry, colour, outline=None, line=1.6, turn=0.0, alpha=1.0):
        self.ellipse_path(x, y, rx, ry, turn)
        self.fill(colour, outline, line, alpha)

    def box(self, x, y, w, h, colour, outline=None, line=1.6, radius=0, alpha=1.0):
        radius = min(radius, w / 2, h / 2)
        self.cr.new_sub_path()
        if radius <= 0:
            self.cr.rectangle(x, y, w, h)
        else:
            for cx, cy, quarter in (
                (x + w - radius, y + radius, -1),
                (x + w - radius, y + h - radius, 0),
                (x + radius, y + h - radius, 1),
                (x + radius, y + radius, 2),
            ):
                self.cr.arc(cx, cy, radius, quarter * math.pi / 2, (quarter + 1) * math.pi / 2)
            self.cr.close_path()
        self.fill(colour, outline, line, alpha)

    def gradient(self, x, y, w, h, top, bottom):
        """A box that fades from one colour at its top to another at its bottom."""
        pattern = cairo.LinearGradient(0, y, 0, y + h)
        pattern.add_color_stop_rgb(0, *rgb(top))
        pattern.add_color_stop_rgb(1, *rgb(bottom))
        self.cr.rectangle(x, y, w, h)
        self.cr.set_source(pattern)
        self.cr.fill()

    def glow(self, x, y, radius, colour, alpha=0.6, squash=1.0):
        """A soft spot of light, or of shadow, that fades out at its radius."""
        self.cr.save()
        self.cr.translate(x, y)
        self.cr.scale(1, squash)
        pattern = cairo.RadialGradient(0, 0, 0, 0, 0, radius)
        pattern.add_color_stop_rgba(0, *rgb(colour), alpha)
        pattern.add_color_stop_rgba(1, *rgb(colour), 0)
        self.cr.set_source(pattern)
        self.cr.arc(0, 0, radius, 0, 2 * math.pi)
        self.cr.fill()
        self.cr.restore()

    def taper(self, x0, y0, x1, y1, width, colour, bend=0.0, alpha=1.0):
        """A brush stroke: pointed at both ends, `width` thick in its middle, bent sideways by `bend` of its length."""
        dx, dy = x1 - x0, y1 - y0
        length = math.hypot(dx, dy) or 1
        nx, ny = -dy / length, dx / length
        mx, my = (x0 + x1) / 2 + nx * bend * length, (y0 + y1) / 2 + ny * bend * length
        out, back = (mx + nx * width, my + ny * width), (mx - nx * width, my - ny * width)
        self.path((x0, y0), (out, out, (x1, y1)), (back, back, (x0, y0)))
        self.fill(colour, alpha=alpha)

    def ribbon(self, points, width, colour, outline=INK, line=1.6):
        """A thick line through a curve's four points with an edge: arms, tails, pipes."""
        for tint, thickness in ((outline, width + 2 * line), (colour, width)):
            self.cr.move_to(*points[0])
            self.cr.curve_to(*points[1], *points[2], *points[3])
            self.stroke(tint, thickness)

    def text(self, x, y, words, size, colour, family="DejaVu Serif", bold=False, italic=False, turn=0.0, alpha=1.0):
        """Words centred on x with their baseline on y."""
        self.cr.save()
        self.cr.translate(x, y)
        self.cr.rotate(turn)
        self.cr.select_font_face(
            family,
            cairo.FONT_SLANT_ITALIC if italic else cairo.FONT_SLANT_NORMAL,
            cairo.FONT_WEIGHT_BOLD if bold else cairo.FONT_WEIGHT_NORMAL,
        )
        self.cr.set_font_size(size)
        self.cr.move_to(-self.cr.text_extents(words).x_advance / 2, 0)
        self.colour(colour, alpha)
        self.cr.show_text(words)
        self.cr.restore()

    def clipped(self):
        """Everything drawn inside `with` stays within the current path."""
        return _Clip(self.cr)


class _Clip:
    def __init__(self, cr):
        self.cr = cr

    def __enter__(self):
        self.cr.save()
        self.cr.clip()

    def __exit__(self, *_):
        self.cr.restore()
