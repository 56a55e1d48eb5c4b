# SPDX-License-Identifier: MIT
"""Hintergründe: tiles that repeat over a whole page without a seam. All are pale or dark enough to be written upon."""

import math
import random

from canvas import (channels, circle, curve, ellipse, fill, lighter, line, placed, polygon, rounded, star, stroke)
from noise import Field, paint_dots, shaded
from picture import Picture
from rules import beamed, blossom, leaf, note, paw


def everywhere(canvas, x, y, reach, draw):
    """Draws around (x, y), and again at the opposite edges where it reaches over an edge of the tile."""
    for dx in (-canvas.width, 0, canvas.width):
        for dy in (-canvas.height, 0, canvas.height):
            if -reach < x + dx < canvas.width + reach and -reach < y + dy < canvas.height + reach:
                with placed(canvas.ctx, x + dx, y + dy):
                    draw(canvas.ctx)


def cloudy(colours, layers, seed, spread=1.6):
    """Soft clouds of several colours; a larger spread makes them differ more."""
    def draw(canvas, _):
        field = Field(canvas.width, canvas.height, layers, seed)
        paint_dots(canvas, lambda x, y: shaded(colours, 0.5 + (field.at(x, y) - 0.5) * spread))
    return draw


PAPER = ((4, 4, 2), (16, 16, 2), (64, 64, 3))
CLOUDS = ((4, 5, 5), (9, 11, 3), (20, 24, 1.6), (44, 48, 0.8))

SKY = ("#6cace8", "#98c8f2", "#d4e8fa", "#ffffff")


def marble(canvas, _):
    """Veins run where the clouds cross one height."""
    w, h = canvas.width, canvas.height
    field = Field(w, h, ((3, 3, 4), (6, 6, 2), (12, 12, 1), (40, 40, 0.3)), 7)
    ground = Field(w, h, ((3, 3, 5), (6, 6, 3), (12, 12, 1.5)), 8)

    def colour(x, y):
        vein = 1 - min(1, abs(field.at(x, y) - 0.5) * 16)
        if vein > 0:
            return shaded(("#f0f0f0", "#c4c6cc"), vein ** 1.5)
        return shaded(("#f8f8f6", "#e4e4e6"), ground.at(x, y))
    paint_dots(canvas, colour)


def wood(canvas, _):
    """Four boards beside each other, with the grain along them."""
    w, h = canvas.width, canvas.height
    fine, coarse = Field(w, h, ((64, 2, 2), (128, 6, 1)), 11), Field(w, h, ((8, 1, 1), (16, 2, 1)), 12)
    tone = (0.1, -0.05, 0.04, -0.1)

    def colour(x, y):
        board = x * 4 // w
        inside = x % (w // 4)
        if inside == 0:
            return shaded(("#b88c54", "#b88c54"), 0)
        light = 0.5 + tone[board] + (fine.at(x, y) - 0.5) * 0.7 + (coarse.at(x, y) - 0.5) * 0.6
        return shaded(("#cca068", "#e0bc84", "#f0d4a4"), light + (0.25 if inside == 1 else 0))
    paint_dots(canvas, colour)


def water(canvas, _):
    w, h = canvas.width, canvas.height
    field = Field(w, h, ((4, 8, 3), (8, 16, 2)), 21)

    def colour(x, y):
        ripple = math.sin(2 * math.pi * (y * 6 / h + field.at(x, y) * 2.2))
        return shaded(("#a8d8f0", "#bce4f6", "#cceefa", "#e8fafe"), (ripple + 1) / 2)
    paint_dots(canvas, colour)


def lawn(canvas, _):
    w, h = canvas.width, canvas.height
    canvas.ctx.rectangle(0, 0, w, h)
    fill(canvas.ctx, "#a4d478")
    source = random.Random(31)
    for _ in range(420):
        length, lean = source.uniform(7, 13), source.uniform(-4, 4)
        shade = source.choice(("#98cc6c", "#b0dc84", "#8cc460", "#bce494"))

        def blade(ctx):
            curve(ctx, (-1.1, 0), (-1, -length / 2, lean, -length, lean, -length),
                  (lean, -length, 1.4, -length / 2, 1.1, 0))
            fill(ctx, shade)
        everywhere(canvas, source.uniform(0, w), source.uniform(0, h), 14, blade)


def gingham(colour):
    """A tablecloth: where two stripes cross, the colour is full; single stripes show their threads."""
    def draw(canvas, _):
        half = canvas.width // 2

        def shade(x, y):
            across, down = (x + half // 2) // half % 2, (y + half // 2) // half % 2
            thread = (y if across else x) % 2
            share = (1, 0.78 - 0.06 * thread, 0.55)[across + down]
            return [255 * channel for channel in channels(lighter(colour, share))[:3]]
        paint_dots(canvas, shade)
    return draw


def dotted(ground, colour):
    def draw(canvas, _):
        for x, y in ((0.25, 0.25), (0.75, 0.75)):
            circle(canvas.ctx, x * canvas.width, y * canvas.height, 4)
            fill(canvas.ctx, colour)
    return draw


def striped(colours):
    def draw(canvas, _):
        step = canvas.width // len(colours)
        for i, colour in enumerate(colours):
            canvas.ctx.rectangle(i * step, 0, step, canvas.height)
            fill(canvas.ctx, colour)
    return draw


def linen(canvas, _):
    source = random.Random(41)
    w, h = canvas.width, canvas.height
    across = [source.randint(-5, 5) for _ in range(h)]
    down = [source.randint(-5, 5) for _ in range(w)]

    def colour(x, y):
        tone = 226 + across[y] + down[x] + (6 if (x + y) % 2 else -6)
        return tone, tone - 2, tone - 8
    paint_dots(canvas, colour)


def squared(canvas, _):
    """Paper of an exercise book."""
    for i in range(0, canvas.width, 16):
        for x, y, w, h in ((i, 0, 1, canvas.height), (0, i, canvas.width, 1)):
            canvas.ctx.rectangle(x, y, w, h)
            fill(canvas.ctx, "#d0e0f0")


def bricks(canvas, _):
    ctx, w, h = canvas.ctx, canvas.width, canvas.height
    ctx.rectangle(0, 0, w, h)
    fill(ctx, "#f4ece4")
    source = random.Random(51)
    for row in range(4):
        for column in range(2):
            shade = source.choice(("#f0c8b4", "#ecc0a8", "#f4d0bc", "#e8bca4"))

            def brick(ctx):
                rounded(ctx, -15, -6.5, 30, 13, 1.5)
                fill(ctx, shade)
                ctx.rectangle(-14, 4.5, 28, 1)
                fill(ctx, "#dcac94")
            everywhere(canvas, 16 + column * 32 + row % 2 * 16, 8 + row * 16, 20, brick)


def scattered(places, reach, draw_one):
    """Small things strewn over the ground; `places` are (x, y, turn)."""
    def draw(canvas, _):
        for i, (x, y, turn) in enumerate(places):
            def one(ctx):
                with placed(ctx, turn=turn):
                    draw_one(ctx, i)
            everywhere(canvas, x, y, reach, one)
    return draw


STREWN = ((16, 16, 10), (60, 12, -25), (86, 44, 40), (36, 50, -15), (10, 78, 25), (62, 78, -5))


def pale_leaf(ctx, i):
    with placed(ctx, -10, 0):
        leaf(ctx, 20, ("#e8f4d8", "#f8ecd0", "#e0f0d8")[i % 3], 0.13)


def pale_flower(ctx, i):
    blossom(ctx, 0, 0, (11, 8)[i % 2], ("#fce4ea", "#e8e6fa", "#fcf0d8")[i % 3], "#fcf4c0", 0.1)


def pale_note(ctx, i):
    if i % 2:
        beamed(ctx, -6, 6, "#e4e8f0")
    else:
        note(ctx, 0, 6, "#e0e4ee")


def pale_paw(ctx, _):
    paw(ctx, 0, 0, 0, "#f0e4d8", 2)


def night(canvas, _):
    canvas.ctx.rectangle(0, 0, canvas.width, canvas.height)
    fill(canvas.ctx, "#101838")
    source = random.Random(61)
    for i in range(46):
        size = source.choice((0.5, 0.6, 0.8, 1.0))
        shade = source.choice(("#ffffff", "#c8d4ff", "#fff4c8", "#8898d0"))

        def twinkle(ctx):
            if i % 9 == 0:
                star(ctx, 0, 0, 4.5, 0.9, 4)
            else:
                circle(ctx, 0, 0, size)
            fill(ctx, shade)
        x, y = int(source.uniform(0, canvas.width)) + 0.5, int(source.uniform(0, canvas.height)) + 0.5
        everywhere(canvas, x, y, 5, twinkle)


def damask(canvas, _):
    """Ornaments in two tones of cream, set like the tiles of a net."""
    def ornament(ctx):
        for turn in (0, 180):
            with placed(ctx, turn=turn):
                curve(ctx, (0, 0), (-9, -8, -8, -18, 0, -27), (8, -18, 9, -8, 0, 0))
                fill(ctx, "#f0e4c8")
                for side in (-1, 1):
                    curve(ctx, (side * 3, -1), (side * 16, -2, side * 18, -16, side * 9, -15),
                          (side * 5, -14, side * 8, -9, side * 11, -11))
                    stroke(ctx, "#ecdcb8", 2)
                ellipse(ctx, 0, -13, 2.2, 5)
                fill(ctx, "#fbf6ea")
        circle(ctx, 0, 0, 3)
        fill(ctx, "#e8d4a8")
    for x, y in ((0, 0), (canvas.width / 2, canvas.height / 2)):
        everywhere(canvas, x, y, 32, ornament)


def argyle(canvas, _):
    ctx, w, h = canvas.ctx, canvas.width, canvas.height
    polygon(ctx, (w / 2, 0), (w, h / 2), (w / 2, h), (0, h / 2))
    fill(ctx, "#e4eaf4")
    for x, y in ((0, 0), (w, 0), (0, h), (w, h)):
        line(ctx, (x - w / 2, y), (x, y - h / 2), (x + w / 2, y), (x, y + h / 2), (x - w / 2, y))
        stroke(ctx, "#c8d4e8", 0.8)


def weave(canvas, _):
    """Brushed metal of the late nineties."""
    source = random.Random(71)
    tones = [source.randint(-7, 7) for _ in range(canvas.height)]
    field = Field(canvas.width, canvas.height, ((6, 64, 1), (24, 64, 1)), 72)
    paint_dots(canvas, lambda x, y: [204 + tones[y] + 24 * (field.at(x, y) - 0.5)] * 3)


def tile(name, size, draw, ground="#ffffff", height=None, colours=31, quality=88):
    return Picture(name, size, height or size, draw, ground, colours=colours, quality=quality)


PICTURES = [
    tile("blaetter_zart.gif", 100, scattered(STREWN, 14, pale_leaf)),
    tile("blumen_zart.gif", 100, scattered(STREWN, 14, pale_flower)),
    tile("damast_creme.gif", 72, damask, "#fbf6ea", colours=15, height=80),
    tile("holz_hell.jpg", 256, wood, quality=78),
    tile("karo_blau.gif", 32, gingham("#2860c0"), colours=15),
    tile("karo_gruen.gif", 32, gingham("#2c9038"), colours=15),
    tile("karo_rot.gif", 32, gingham("#d02838"), colours=15), tile("leinen.jpg", 96, linen, quality=80),
    tile("marmor_hell.jpg", 240, marble, quality=80), tile("metall.jpg", 128, weave, quality=75),
    tile("noten_zart.gif", 100, scattered(STREWN, 18, pale_note), colours=15),
    tile("papier_blau.jpg", 128, cloudy(("#d8e6f4", "#eaf2fa"), PAPER, 1)),
    tile("papier_creme.jpg", 128, cloudy(("#f2e6cc", "#fcf6e6"), PAPER, 2)),
    tile("papier_gruen.jpg", 128, cloudy(("#dcecd0", "#f0f8e8"), PAPER, 3)),
    tile("pfoten_zart.gif", 100, scattered(STREWN, 14, pale_paw), colours=7),
    tile("punkte_blau.gif", 32, dotted("#eaf2fc", "#ffffff"), "#dce8f8", colours=7),
    tile("punkte_gelb.gif", 32, dotted("#fff8d8", "#ffffff"), "#fcf0b8", colours=7),
    tile("rasen.jpg", 128, lawn, quality=80), tile("rauten_blau.gif", 40, argyle, "#f2f5fa", colours=15, height=60),
    tile("rechenpapier.gif", 32, squared, colours=7), tile("sternenhimmel.gif", 160, night, colours=15),
    tile("streifen_blau.gif", 16, striped(("#eef4fc", "#e0eaf8")), height=16, colours=7),
    tile("streifen_sonne.gif", 48, striped(("#fff8d0", "#fff0b0", "#ffe8a0", "#fff0b0")), height=16, colours=7),
    tile("wasser.jpg", 160, water, quality=80), tile("wolken.jpg", 256, cloudy(SKY, CLOUDS, 106, 2.5), quality=80),
    tile("ziegel_zart.gif", 64, bricks, colours=15),
]
