# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
"""Flowers, for meadows, bouquets and hats."""
import math


def flower(canvas, x, y, r, petals, heart):
    """A blossom of five petals about r wide to each side."""
    for i in range(5):
        angle = i * 2 * math.pi / 5
        canvas.ellipse(x + math.cos(angle) * r * 0.6, y + math.sin(angle) * r * 0.6, r * 0.5, r * 0.5, petals)
    canvas.ellipse(x, y, r * 0.38, r * 0.38, heart)
