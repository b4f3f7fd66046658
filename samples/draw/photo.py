# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
"""What time and the chemist do to a drawing: tone, grain, a paper border; and the files that are kept.

A style names the decade: "sepia" and "grey" have a cut paper border, "faded" a white one, "colour" none, "plain" is for
drawings (GIF), which were never photographs.
"""
import io
import random

from PIL import Image, ImageChops, ImageDraw, ImageFilter, ImageOps

from canvas import OVERSAMPLING

BORDERS = {"sepia": 22, "grey": 16, "faded": 14, "colour": 0, "plain": 0}
MOST_BYTES = 108 * 1024


def _flat(canvas):
    data = bytes(canvas.surface.get_data())
    size = canvas.width * OVERSAMPLING, canvas.height * OVERSAMPLING
    image = Image.frombuffer("RGB", size, data, "raw", "BGRX", canvas.surface.get_stride(), 1)
    return image.resize((canvas.width, canvas.height), Image.Resampling.LANCZOS)


def _grain(size, seed, strength):
    noise = Image.frombytes(
        "L", (size[0] // 2, size[1] // 2), random.Random(seed).randbytes((size[0] // 2) * (size[1] // 2))
    )
    noise = noise.resize(size, Image.Resampling.BICUBIC).filter(ImageFilter.GaussianBlur(0.6))
    return noise.point(lambda v: int(128 + (v - 128) * strength))


def _vignette(size, dark):
    small = Image.new("L", (96, 96), 0)
    for y in range(96):
        for x in range(96):
            r = ((x - 47.5) ** 2 + (y - 47.5) ** 2) ** 0.5 / 67
            small.putpixel((x, y), 255 - int(dark * max(0.0, r - 0.35) ** 2 * 2.2))
    return Image.merge("RGB", [small.resize(size, Image.Resampling.BICUBIC)] * 3)


def _toned(image, style, seed):
    if style in ("sepia", "grey"):
        grey = ImageOps.autocontrast(image.convert("L"), cutoff=1)
        tones = ("#2c1a10", "#b08d68", "#faeed6") if style == "sepia" else ("#17161a", "#9c9aa0", "#f4f2ee")
        image = ImageOps.colorize(grey, tones[0], tones[2], tones[1])
        image = ImageChops.multiply(image, _vignette(image.size, 100 if style == "sepia" else 50))
        return ImageChops.overlay(image, Image.merge("RGB", [_grain(image.size, seed, 0.11)] * 3))
    if style == "faded":
        warm = Image.new("RGB", image.size, "#f0c890")
        image = Image.blend(image, ImageChops.multiply(image, warm), 0.45)
        image = image.point([int(24 + v * 0.87) for v in range(256)] * 3)
        return ImageChops.multiply(image, _vignette(image.size, 36))
    return image


def _mounted(image, style, seed):
    border = BORDERS[style]
    if border == 0:
        return image
    paper = {"sepia": "#e9dcc0", "grey": "#efece6", "faded": "#f7f4ec"}[style]
    sheet = Image.new("RGB", (image.width + 2 * border, image.height + 2 * border), paper)
    sheet.paste(image, (border, border))
    pen = ImageDraw.Draw(sheet)
    pen.rectangle((border - 1, border - 1, border + image.width, border + image.height), outline="#8a7a66")
    if style in ("sepia", "grey"):
        dice = random.Random(seed)
        for x in range(0, sheet.width, 5):
            for y in (0, sheet.height - 1):
                pen.ellipse((x - 3, y - dice.choice((1, 2)), x + 3, y + dice.choice((1, 2))), fill="#5d4a3a")
        for y in range(0, sheet.height, 5):
            for x in (0, sheet.width - 1):
                pen.ellipse((x - dice.choice((1, 2)), y - 3, x + dice.choice((1, 2)), y + 3), fill="#5d4a3a")
    return sheet


def developed(canvas, style, seed):
    """The finished picture of a drawing."""
    return _mounted(_toned(_flat(canvas), style, seed), style, seed)


def encoded(image, name):
    """The bytes of the picture's file, GIF or JPEG by its name, small enough to have a thumbnail in every album."""
    out = io.BytesIO()
    if name.endswith(".gif"):
        image.quantize(160, method=Image.Quantize.MEDIANCUT, dither=Image.Dither.NONE).save(out, "GIF")
    for quality in () if name.endswith(".gif") else range(90, 40, -4):
        out = io.BytesIO()
        image.save(out, "JPEG", quality=quality, optimize=True, progressive=True)
        if out.tell() <= MOST_BYTES:
            break
    if out.tell() > MOST_BYTES:
        raise SystemExit(f"{name}: {out.tell()} bytes are too many")
    return out.getvalue()
