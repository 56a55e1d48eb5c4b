# SPDX-License-Identifier: MIT
"""Contact sheets: every picture of a folder on a white and on a dark ground, every frame of the animated ones, and the
backgrounds as 3 by 3 tiles."""

from PIL import Image, ImageDraw, ImageFont, ImageSequence

GROUNDS = ("#ffffff", "#203058")
SCALE = 2
MARGIN = 6
CAPTION = 14
SHEET_WIDTH = 1240


def write(collection, target, folders):
    target.mkdir(parents=True, exist_ok=True)
    for folder in folders:
        files = sorted(path for path in (collection / folder).iterdir() if path.is_file())
        cells = [_cell(path, folder) for path in files]
        _sheet(cells).save(target / f"{folder or 'Hauptseite'}.png")


def _cell(path, folder):
    """One picture with its caption: what it looks like on every ground."""
    with Image.open(path) as image:
        caption = f"{path.name} {image.width}x{image.height} {path.stat().st_size}"
        if folder == "Hintergründe":
            return _captioned([_tiled(image.convert("RGBA"))], caption, 1)
        frames = [frame.convert("RGBA") for frame in ImageSequence.Iterator(image)]
    strips = [_strip(frames, ground) for ground in (GROUNDS if _has_gaps(frames) else GROUNDS[:1])]
    return _captioned(strips, caption, SCALE)


def _has_gaps(frames):
    return any(frame.getchannel("A").getextrema()[0] == 0 for frame in frames)


def _strip(frames, ground):
    """The frames side by side, in as many rows as the sheet's width asks for."""
    width, height = frames[0].size
    columns = max(1, min(len(frames), (SHEET_WIDTH // SCALE - 40) // (width + 2)))
    rows = -(-len(frames) // columns)
    strip = Image.new("RGB", (columns * (width + 2), rows * (height + 2)), ground)
    for i, frame in enumerate(frames):
        strip.paste(frame, (i % columns * (width + 2) + 1, i // columns * (height + 2) + 1), frame)
    return strip


def _tiled(image):
    tiled = Image.new("RGB", (image.width * 3, image.height * 3))
    for i in range(9):
        tiled.paste(image, (i % 3 * image.width, i // 3 * image.height))
    return tiled


def _captioned(strips, caption, scale):
    strips = [strip.resize((strip.width * scale, strip.height * scale), Image.NEAREST) for strip in strips]
    font = ImageFont.truetype("LiberationSans-Regular.ttf", 11)
    beside = max(strip.width for strip in strips) < 120
    width = sum(strip.width for strip in strips) if beside else max(strip.width for strip in strips)
    height = max(strip.height for strip in strips) if beside else sum(strip.height for strip in strips)
    cell = Image.new("RGB", (max(width, round(font.getlength(caption))) + MARGIN, height + CAPTION + MARGIN), "#e4e4e4")
    x = y = 0
    for strip in strips:
        cell.paste(strip, (x, y))
        x, y = (x + strip.width, 0) if beside else (0, y + strip.height)
    ImageDraw.Draw(cell).text((0, height + 1), caption, font=font, fill="#000000")
    return cell


def _sheet(cells):
    """The cells in rows, like words in a paragraph."""
    places, x, y, row = [], 0, 0, 0
    for cell in cells:
        if x and x + cell.width > SHEET_WIDTH:
            x, y, row = 0, y + row, 0
        places.append((x, y))
        x, row = x + cell.width, max(row, cell.height)
    sheet = Image.new("RGB", (SHEET_WIDTH, y + row), "#e4e4e4")
    for cell, place in zip(cells, places):
        sheet.paste(cell, place)
    return sheet
