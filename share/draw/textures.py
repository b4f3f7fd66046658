# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
"""The grounds of the two styles: aged paper and leather for OldBook, dark wood and album card for Memories.

Each is a tile whose left and right, upper and lower edges meet.
"""

import random

from PIL import Image, ImageChops, ImageFilter


def pictures():
    """Yields (style, file name, tile)."""
    yield "OldBook", "center.gif", paper()
    yield "OldBook", "leather.gif", leather()
    yield "Memories", "center.gif", card()
    yield "Memories", "table.gif", wood()


def clouds(width, height, seed, blur_across, blur_down=None):
    """A grey tile of soft random patches, spread over the whole range from 0 to 255."""
    chance = random.Random(seed)
    noise = Image.frombytes("L", (width, height), bytes(chance.getrandbits(8) for _ in range(width * height)))
    wide = Image.new("L", (width * 3, height * 3))
    for column in range(3):
        for row in range(3):
            wide.paste(noise, (column * width, row * height))
    blur_down = blur_across if blur_down is None else blur_down
    # A wide blur one way only: the tile is squeezed that way, blurred and stretched again.
    squeeze = max(1, round(blur_across / blur_down))
    small = wide.resize((wide.width // squeeze, wide.height), Image.BOX)
    soft = small.filter(ImageFilter.GaussianBlur(blur_down)).resize(wide.size, Image.BICUBIC)
    tile = soft.crop((width, height, 2 * width, 2 * height))
    low, high = tile.getextrema()
    return tile.point(lambda value: round((value - low) * 255 / max(1, high - low)))


def blend(parts):
    """The weighted mean of grey tiles, given as (tile, weight) with weights that sum up to 1."""
    result = Image.new("L", parts[0][0].size, 0)
    for tile, weight in parts:
        result = ImageChops.add(result, tile.point(lambda value, share=weight: round(value * share)))
    return result


def tinted(tile, dark, light):
    """Maps grey 0 to 255 onto the colours from `dark` to `light`."""
    bands = [tile.point(lambda value, a=a, b=b: round(a + (b - a) * value / 255)) for a, b in zip(dark, light)]
    return Image.merge("RGB", bands)


def paper():
    tile = blend([(clouds(200, 200, 3, 22), 0.5), (clouds(200, 200, 5, 5), 0.3), (clouds(200, 200, 7, 0.8), 0.2)])
    return tinted(tile, (237, 223, 192), (251, 243, 224))


def leather():
    grain = clouds(128, 128, 11, 1.6)
    return tinted(blend([(grain, 0.6), (clouds(128, 128, 13, 9), 0.4)]), (54, 22, 18), (92, 42, 32))


def card():
    tile = blend([(clouds(160, 160, 17, 14), 0.45), (clouds(160, 160, 19, 0.9), 0.55)])
    return tinted(tile, (36, 32, 30), (52, 47, 44))


def wood():
    tile = blend([(clouds(384, 192, 23, 40, 1.2), 0.62), (clouds(384, 192, 29, 60, 5), 0.38)])
    planks = tinted(tile, (28, 15, 9), (84, 50, 30))
    for seam in (0, 96):
        for row, share in ((seam, 0.42), ((seam + 1) % 192, 0.72), ((seam - 1) % 192, 1.16)):
            strip = planks.crop((0, row, 384, row + 1)).point(lambda value, s=share: min(255, round(value * s)))
            planks.paste(strip, (0, row))
    return planks
