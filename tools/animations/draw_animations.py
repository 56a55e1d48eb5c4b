#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Draws the assistant's animations: python3 draw_animations.py [--to FOLDER] [--sheets FOLDER]"""

import argparse
from collections import Counter
from pathlib import Path

import cairo
from PIL import Image

import gif
from figure import SIZE
from scenes import SCENES

OVERSAMPLING = 6
COLOURS = 31  # Besides the transparent one.
NEAREST_KEPT = 18  # Colours that differ by no more than this in every channel are taken for one.


def render(picture):
    """The picture as an RGBA image whose every pixel is either fully there or not there at all."""
    side = SIZE * OVERSAMPLING
    surface = cairo.ImageSurface(cairo.FORMAT_ARGB32, side, side)
    ctx = cairo.Context(surface)
    ctx.scale(OVERSAMPLING, OVERSAMPLING)
    picture.draw(ctx)
    surface.flush()
    large = Image.frombuffer("RGBA", (side, side), bytes(surface.get_data()), "raw", "BGRa", surface.get_stride(), 1)
    # Reducing weighs colours by their opacity, so an edge pixel keeps the pure colour of the outline.
    small = large.reduce(OVERSAMPLING)
    small.putalpha(small.getchannel("A").point(lambda alpha: 255 if alpha >= 128 else 0))
    return small


def make_palette(images):
    """The most frequent colours of all images, none close to another. One palette serves all files, so that the rest
    pose is the same in each."""
    counts = Counter()
    for image in images:
        for count, (r, g, b, a) in image.getcolors(SIZE * SIZE):
            if a:
                counts[r, g, b] += count
    palette = []
    for colour, _ in sorted(counts.items(), key=lambda entry: (-entry[1], entry[0])):
        if all(max(abs(a - b) for a, b in zip(colour, known)) > NEAREST_KEPT for known in palette):
            palette.append(colour)
            if len(palette) == COLOURS:
                break
    return [(0, 0, 0)] + palette


def to_indexes(image, palette, known):
    def nearest(pixel):
        if not pixel[3]:
            return gif.TRANSPARENT
        return min(range(1, len(palette)), key=lambda i: sum((a - b) ** 2 for a, b in zip(pixel, palette[i])))

    indexes = bytearray()
    for pixel in image.getdata():
        if pixel not in known:
            known[pixel] = nearest(pixel)
        indexes.append(known[pixel])
    return bytes(indexes)


def make_sheet(images, scale=1, columns=8):
    """All frames on a light ground, and once more on a dark one."""
    rows = -(-len(images) // columns)
    cell = SIZE * scale
    sheet = Image.new("RGB", (columns * cell, rows * cell * 2), "#f4f4f4")
    sheet.paste("#202124", (0, rows * cell, columns * cell, rows * cell * 2))
    for i, image in enumerate(images):
        frame = image.resize((cell, cell), Image.NEAREST)
        for ground in (0, rows * cell):
            sheet.paste(frame, (i % columns * cell, i // columns * cell + ground), frame)
    return sheet


def main():
    here = Path(__file__).resolve().parent
    parser = argparse.ArgumentParser(description="Draws the assistant's animations.")
    parser.add_argument("--to", type=Path, default=here.parent.parent / "data", help="where the files go")
    parser.add_argument("--sheets", type=Path, help="also write a picture of all frames of each file to this folder")
    arguments = parser.parse_args()

    arguments.to.mkdir(parents=True, exist_ok=True)
    images = {number: [render(picture) for picture in scene.pictures()] for number, scene in SCENES.items()}
    palette = make_palette(image for frames in images.values() for image in frames)
    known = {}
    for number, scene in SCENES.items():
        frames = [to_indexes(image, palette, known) for image in images[number]]
        data = gif.encode(SIZE, SIZE, palette, frames, scene.delays())
        target = arguments.to / f"anim{number}.anm"
        target.write_bytes(data)
        print(f"{target.name}: {len(frames)} frames, {sum(scene.delays()) / 100:.2f} s, {len(data)} bytes")
        if arguments.sheets:
            arguments.sheets.mkdir(parents=True, exist_ok=True)
            with Image.open(target) as written:
                shown = []
                for i in range(written.n_frames):
                    written.seek(i)
                    shown.append(written.convert("RGBA"))
            make_sheet(shown).save(arguments.sheets / f"anim{number}.png")


if __name__ == "__main__":
    main()
