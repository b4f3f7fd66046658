# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
"""One cat: where it stands, how it holds itself, what it wears; drawing it tells where its head and figure are."""
from dataclasses import dataclass, field

import clothes
import face
import fur
import hats
import things
from canvas import INK, darker

# Width of the head and gap between ear tips and head's middle, as shares of the whole height, by age.
HEAD_SHARE = {"kitten": 0.50, "youth": 0.46, "adult": 0.40}

ARMS = {  # elbow and hand, in body heights from the middle of the feet, for the right arm of the picture
    "down": ((0.32, -0.60), (0.27, -0.34)),
    "front": ((0.34, -0.60), (0.07, -0.44)),
    "hold": ((0.33, -0.58), (0.14, -0.58)),
    "up": ((0.42, -0.74), (0.50, -1.06)),
    "hip": ((0.48, -0.62), (0.24, -0.44)),
    "out": ((0.38, -0.72), (0.60, -0.64)),
    "link": ((0.34, -0.56), (0.46, -0.46)),
    "behind": ((0.34, -0.60), (0.12, -0.40)),
}


@dataclass
class Box:
    """A rectangle in pixels of the finished picture."""

    x: float
    y: float
    w: float
    h: float


@dataclass
class Cat:
    """A cat whose feet stand on (x, y) and whose ear tips are `height` above; `who` names its looks (looks.py)."""

    who: str
    x: float
    y: float
    height: float
    wear: dict = field(default_factory=dict)
    age: str = "adult"
    pose: str = "stand"
    left: str = "down"
    right: str = "down"
    mood: str = "open"
    gaze: float = 0.0
    tilt: float = 0.0
    tail: int = 1

    def drawn(self, canvas, looks):
        """Draws the cat and returns the boxes of its head and of its whole figure."""
        look = looks[self.who]
        head_width = self.height * HEAD_SHARE[self.age]
        scale = head_width / 100
        head_y = self.y - self.height + 66 * scale
        body = (self.y - head_y) - 34 * scale
        figure = _Figure(canvas, self, look, body, max(1.1, self.height * 0.0065))
        if not self.wear.get("no_shadow"):
            canvas.glow(self.x, self.y, body * 0.62, "#1c1210", 0.42, 0.22)
        head_x = self.x
        if self.pose == "loaf":
            head_x += 0.62 * body * self.tail
            head_y = self.y - 0.80 * body - 8 * scale

        def at_head(draw):
            canvas.cr.save()
            canvas.cr.translate(head_x, head_y)
            canvas.cr.rotate(self.tilt)
            canvas.cr.scale(scale, scale)
            draw()
            canvas.cr.restore()

        at_head(lambda: hats.behind_head(canvas, self.wear))
        getattr(figure, self.pose)()
        at_head(lambda: face.head(canvas, look, self.mood, self.gaze, self.age))
        at_head(lambda: hats.on_head(canvas, self.wear))
        if self.pose in ("stand", "sit"):
            things.in_hands(canvas, figure, self.wear)
        top = head_y - (66 + hats.hat_height(self.wear)) * scale
        bottom = head_y + 44 * scale
        half = 62 * scale
        wide = max(half, body * 0.34)
        whole = Box(min(head_x - half, self.x - wide), top, 0, self.y - top)
        whole.w = max(head_x + half, self.x + wide) - whole.x
        return Box(head_x - half, top, 2 * half, bottom - top), whole


class _Figure:
    """The body below the head, in units of its own height `b`."""

    def __init__(self, canvas, cat, look, body, line):
        self.canvas = canvas
        self.cat = cat
        self.look = look
        self.b = body
        self.line = line
        self.edge = darker(look.base, 0.72)

    def at(self, x, y):
        return (self.cat.x + x * self.b, self.cat.y + y * self.b)

    def stand(self):
        self.tail(0.16)
        self.legs()
        self.arms("behind")
        self.torso(-0.26, 0.0)
        self.arms("before")

    def sit(self):
        """On a seat whose front edge is at the feet: the soles show."""
        self.tail(0.05)
        self.torso(-0.14, 0.04)
        self.arms("behind")
        for side in (-1, 1):
            x, y = self.at(side * 0.20, -0.10)
            leg = (
                self.cat.wear.get("legs")
                or (self.cat.wear.get("c") if self.cat.wear.get("kind") in clothes.SKIRTS else None)
                or self.look.base
            )
            self.canvas.ellipse(x, y - 0.05 * self.b, 0.17 * self.b, 0.15 * self.b, leg, INK, self.line)
            self.sole(x, y + 0.03 * self.b, 0.115 * self.b)
        self.arms("before")

    def sole(self, x, y, r):
        c = self.canvas
        c.ellipse(x, y, r, r * 1.08, self.look.paw, self.edge, self.line)
        pad = self.look.nose
        c.ellipse(x, y + r * 0.25, r * 0.42, r * 0.34, pad)
        for dx, dy in ((-0.48, -0.25), (0, -0.5), (0.48, -0.25)):
            c.ellipse(x + dx * r, y + dy * r, r * 0.17, r * 0.2, pad)

    def legs(self):
        trousers = self.cat.wear.get("legs")
        for side in (-1, 1):
            x, y = self.at(side * 0.125, 0)
            top = self.at(0, -0.36)[1]
            colour = trousers or self.look.base
            edge = INK if trousers else self.edge
            w = 0.19 * self.b * self.look.build
            self.canvas.box(x - w / 2, top, w, y - top - 0.02 * self.b, colour, edge, self.line, w * 0.3)
            if not trousers:
                fur.rings(self.canvas, self.look, x, y - 0.2 * self.b, w, 0.05 * self.b)
            shoe = self.cat.wear.get("shoes") or self.look.paw
            fx = x + side * 0.025 * self.b
            self.canvas.ellipse(fx, y - 0.045 * self.b, 0.125 * self.b, 0.062 * self.b, shoe, self.edge, self.line)
            if not self.cat.wear.get("shoes"):
                for toe in (-0.03, 0.03):
                    self.canvas.lines(
                        [(fx + toe * self.b, y - 0.03 * self.b), (fx + toe * self.b, y - 0.005 * self.b)],
                        self.edge,
                        self.line * 0.8,
                    )

    def outline(self, hem):
        """The path of the trunk from the neck to `hem`."""
        build = self.look.build
        s, h = 0.20 * build, 0.275 * build
        a = self.at
        self.canvas.path(
            a(-0.10, -1.02),
            (a(-s, -1.0), a(-s - 0.02, -0.92), a(-s - 0.035, -0.80)),
            (a(-h - 0.02, -0.55), a(-h - 0.01, hem - 0.12), a(-h + 0.03, hem)),
            (a(-0.1, hem + 0.04), a(0.1, hem + 0.04), a(h - 0.03, hem)),
            (a(h + 0.01, hem - 0.12), a(h + 0.02, -0.55), a(s + 0.035, -0.80)),
            (a(s + 0.02, -0.92), a(s, -1.0), a(0.10, -1.02)),
        )

    def torso(self, hem, skirt_hem):
        c = self.canvas
        self.outline(hem)
        c.fill(self.look.base, self.edge, self.line * 2)
        self.outline(hem)
        with c.clipped():
            fur.body(c, self.look, *self.at(0, -0.5), self.b)
            c.glow(*self.at(0.30, -0.35), self.b * 0.5, "#180c08", 0.28)
        clothes.garment(c, self, skirt_hem, hem)

    def tail(self, root):
        side = self.cat.tail
        if side == 0:
            return
        a = self.at
        points = (
            a(side * 0.12, -root - 0.02),
            a(side * 0.62, -root + 0.08),
            a(side * 0.40, -0.42),
            a(side * 0.66, -0.66),
        )
        fur.tail(
            self.canvas, self.look, points, 0.115 * self.b * (1.45 if self.look.fluffy else 1), self.edge, self.line
        )

    def arms(self, layer):
        for side, name in ((-1, self.cat.left), (1, self.cat.right)):
            if (name == "behind") == (layer == "behind") and name != "none":
                self.arm(side, name)

    def arm(self, side, name):
        (ex, ey), (hx, hy) = ARMS[name]
        grow = self.look.build
        shoulder, elbow, hand = (self.at(side * x, y) for x, y in ((0.175 * grow, -0.87), (ex * grow, ey), (hx, hy)))
        sleeve = clothes.sleeve(self.cat.wear)
        width = 0.125 * self.b
        bend = [(a + (b - a) * 0.8) for a, b in zip(shoulder, elbow)], [
            (a + (b - a) * 0.8) for a, b in zip(hand, elbow)
        ]
        short = self.cat.wear.get("short")
        if sleeve is None or short:
            self.canvas.ribbon((shoulder, *bend, hand), width * 0.9, self.look.base, self.edge, self.line)
        if sleeve is not None:
            stop = hand
            if short:
                stop = [(a + b) / 2 for a, b in zip(shoulder, elbow)]
                bend = (shoulder, stop)
            self.canvas.ribbon((shoulder, *bend, stop), width * (1.15 if short else 1), sleeve, INK, self.line)
        self.paw(hand)

    def paw(self, hand):
        c, r = self.canvas, 0.082 * self.b
        c.ellipse(*hand, r, r, self.cat.wear.get("gloves") or self.look.paw, self.edge, self.line)
        for dx in (-0.3, 0.3):
            c.lines(
                [(hand[0] + dx * r, hand[1] + r * 0.45), (hand[0] + dx * r, hand[1] + r * 0.9)],
                self.edge,
                self.line * 0.7,
            )

    def hand(self, side):
        """Where the paw of a side (-1 left, 1 right in the picture) is."""
        hx, hy = ARMS[self.cat.left if side < 0 else self.cat.right][1]
        return self.at(side * hx, hy)

    def catsit(self):
        """As cats sit by nature: on the haunches, front legs straight, tail round the feet."""
        c, a, look = self.canvas, self.at, self.look
        side = self.cat.tail or 1
        fur.tail(
            c,
            look,
            (a(side * 0.30, -0.08), a(side * 0.78, 0.02), a(side * 0.60, -0.42), a(side * 0.86, -0.52)),
            0.14 * self.b * (1.4 if look.fluffy else 1),
            self.edge,
            self.line,
        )

        def outline():
            c.path(
                a(-0.16, -1.02),
                (a(-0.34, -0.75), a(-0.56, -0.35), a(-0.46, -0.04)),
                (a(-0.2, 0.02), a(0.2, 0.02), a(0.46, -0.04)),
                (a(0.56, -0.35), a(0.34, -0.75), a(0.16, -1.02)),
            )

        outline()
        c.fill(look.base, self.edge, self.line * 2)
        outline()
        with c.clipped():
            fur.body(c, look, *a(0, -0.5), self.b * 1.2)
            c.glow(*a(0.40, -0.25), self.b * 0.6, "#180c08", 0.26)
        for s in (-1, 1):
            x, y = a(s * 0.13, 0)
            w = 0.19 * self.b
            c.box(x - w / 2, y - 0.52 * self.b, w, 0.50 * self.b, look.base, None, self.line, w / 2)
            c.lines([(x - w / 2, y - 0.40 * self.b), (x - w / 2, y - 0.06 * self.b)], self.edge, self.line * 0.8)
            c.lines([(x + w / 2, y - 0.40 * self.b), (x + w / 2, y - 0.06 * self.b)], self.edge, self.line * 0.8)
            fur.rings(c, look, x, y - 0.2 * self.b, w, 0.07 * self.b)
            c.ellipse(x, y - 0.045 * self.b, 0.125 * self.b, 0.07 * self.b, look.paw, self.edge, self.line)
        clothes.collar(c, self, self.cat.wear)

    def loaf(self):
        """Lying, the head on the side away from the tail."""
        c, a, look, side = self.canvas, self.at, self.look, self.cat.tail or 1
        b = self.b
        fur.tail(
            c,
            look,
            (a(-side * 0.75, -0.16), a(-side * 1.25, -0.02), a(-side * 1.25, -0.45), a(-side * 1.0, -0.62)),
            0.15 * b,
            self.edge,
            self.line,
        )
        x, y = a(-side * 0.08, -0.36)

        def outline():
            c.ellipse_path(x, y, 0.88 * b, 0.38 * b)

        outline()
        c.fill(look.base, self.edge, self.line * 2)
        outline()
        with c.clipped():
            fur.body(c, look, x, y, b * 1.4, chest=False)
            c.glow(x + 0.3 * b, y + 0.35 * b, b * 0.8, "#180c08", 0.25, 0.6)
        for s in (0.36, 0.72):
            c.ellipse(*a(side * s, -0.055), 0.16 * b, 0.085 * b, look.paw, self.edge, self.line)
