#!/usr/bin/python3
# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
"""Draws every picture and writes every demonstration page under share/.

    draw.py            draws all files anew
    draw.py --check    writes nothing; fails when a committed file is not what would be drawn
    draw.py --sheet F  also puts all icons on one sheet, the picture F, to look at

Needs Pillow (Debian: python3-pil). The same input always gives the same pictures.
"""

import argparse
import io
import pathlib
import sys

from PIL import Image

import demo
import emblem
import ornaments
import symbols
import textures
import treeicons
from canvas import as_gif

SHARE = pathlib.Path(__file__).resolve().parent.parent


def drawn():
    """Yields (path below share, picture) for every picture."""
    for name, picture in (*treeicons.pictures(), *symbols.pictures()):
        yield f"graphics/{name}", as_gif(picture)
    yield "ArrowPointer.gif", as_gif(symbols.album_pointer())
    yield "graphics/tree.gif", as_gif(emblem.picture(), colours=95, matte=(246, 236, 214))
    for source in (textures, ornaments):
        for style, name, picture in source.pictures():
            yield f"BgStyles/{style}/graphics/{name}", as_gif(picture, colours=31)


def same_picture(path, picture):
    """Whether the file shows the picture, whatever release of Pillow packed it."""
    if not path.exists():
        return False
    packed = Image.open(io.BytesIO(gif_bytes(picture)))
    stored = Image.open(path)
    return stored.size == packed.size and stored.convert("RGBA").tobytes() == packed.convert("RGBA").tobytes()


def gif_bytes(picture):
    stream = io.BytesIO()
    picture.save(stream, "GIF", optimize=False)
    return stream.getvalue()


def sheet(pictures):
    """All icons at their stored size, on a light and on a dark ground."""
    icons = [picture.convert("RGBA") for path, picture in pictures if path.startswith("graphics/") and picture.width <= 60]
    page = Image.new("RGBA", (10 * 68, ((len(icons) + 9) // 10) * 136), (246, 236, 214, 255))
    page.paste((38, 33, 30, 255), (0, page.height // 2, page.width, page.height))
    for ground in (0, page.height // 2):
        for number, icon in enumerate(icons):
            page.alpha_composite(icon, (number % 10 * 68 + 8, ground + number // 10 * 68 + 8))
    return page


def main():
    options = argparse.ArgumentParser(description="Draws the pictures and demonstration pages under share/.")
    options.add_argument("--check", action="store_true", help="only compare with the committed files")
    options.add_argument("--sheet", help="also write a picture with all icons")
    chosen = options.parse_args()

    differing = []
    pictures = list(drawn())
    for path, picture in pictures:
        if chosen.check:
            if not same_picture(SHARE / path, picture):
                differing.append(path)
        else:
            (SHARE / path).write_bytes(gif_bytes(picture))
    for path, text in demo.pages(SHARE):
        target = SHARE / path
        if chosen.check:
            if not target.exists() or target.read_text("ascii") != text:
                differing.append(path)
        else:
            target.parent.mkdir(parents=True, exist_ok=True)
            target.write_text(text, "ascii")
    if chosen.sheet:
        sheet(pictures).save(chosen.sheet)
    for path in differing:
        print(f"{path} is not what draw.py makes", file=sys.stderr)
    return 1 if differing else 0


if __name__ == "__main__":
    sys.exit(main())
