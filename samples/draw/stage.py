# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
"""A picture being made: the sheet, the cats put on it, and where each of them can be pointed out."""
from dataclasses import dataclass, field

from canvas import Canvas
from cat import Cat
from looks import FAMILY, LOOKS
from photo import BORDERS


@dataclass
class Picture:
    """What the album says about a picture, and the function that draws it on a stage."""

    file: str
    title: str
    date: str
    place: str
    description: str
    draw: callable
    style: str = "colour"
    size: tuple = (800, 560)
    names: str = "left"
    marks: str = "rectangle"


@dataclass
class Mark:
    """A name of a picture; `person` is a number of the tree or 0, `at` the rectangle or arrow tip in pixels, or None."""

    person: int
    name: str
    at: tuple = None


@dataclass
class Stage:
    picture: Picture
    canvas: Canvas
    marks: list = field(default_factory=list)

    def cat(self, who, x, y, height, called=None, mark="head", **how):
        """Puts a cat on the stage. Family members are marked; neighbours only when `called` names them. `mark` is "head",
        "whole" (the whole figure), "name" (in the list of names without a mark) or "none"."""
        head, whole = Cat(who, x, y, height, **how).drawn(self.canvas, LOOKS)
        person = FAMILY[who][0] if who in FAMILY else 0
        if mark == "none" or (person == 0 and called is None):
            return
        at = None
        if mark != "name":
            at = (
                self._tip(head)
                if self.picture.marks == "arrow"
                else self._rectangle(whole if mark == "whole" else head)
            )
        self.marks.append(Mark(person, called or "", at))

    def named(self, who=None, called=""):
        """A name in the list of somebody who cannot be pointed out."""
        self.marks.append(Mark(FAMILY[who][0] if who else 0, called))

    def _tip(self, head):
        border = BORDERS[self.picture.style]
        return round(head.x + head.w * 0.62) + border, round(head.y + head.h * 0.97) + border

    def _rectangle(self, box):
        border = BORDERS[self.picture.style]
        left, top = max(0, round(box.x) - 3), max(0, round(box.y) - 3)
        right = min(self.canvas.width - 1, round(box.x + box.w) + 3)
        bottom = min(self.canvas.height - 1, round(box.y + box.h) + 5)
        return left + border, top + border, right - left, bottom - top
