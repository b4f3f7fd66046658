# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
"""All pictures in the order in which the album gets them."""
import importlib

from canvas import Canvas
from stage import Stage

PICTURES = [
    picture
    for part in ("scenes_sepia", "scenes_grey", "scenes_faded", "scenes_colour", "drawings")
    for picture in importlib.import_module(part).PICTURES
]


def staged(picture):
    """The picture drawn, not yet developed, with its marks."""
    stage = Stage(picture, Canvas(*picture.size, seed=picture.file))
    picture.draw(stage)
    return stage
