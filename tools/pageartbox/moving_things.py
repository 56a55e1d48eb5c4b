# SPDX-License-Identifier: MIT
"""Animationen, second part: things and animals that move."""

import math

from canvas import (OUTLINE, ball_shade, circle, curve, downwards, ellipse, fill, line, placed, polygon, rightwards,
                    rounded, stroke)
from moving_signs import moving, wave
from rules import beamed, football, leaf, note
from symbols_club import bee, butterfly, can
from symbols_feast import beer, cat, drum, fir, rain, sun
from symbols_page import outlined

TURN = 2 * math.pi


def flying_bee(canvas, phase):
    """Flies a lying eight and looks where it goes."""
    x, y = 48 + 30 * math.sin(TURN * phase), 32 + 10 * math.sin(2 * TURN * phase)
    to_right = math.cos(TURN * phase) > 0
    with placed(canvas.ctx, x, y):
        canvas.ctx.scale(-0.68 if to_right else 0.68, 0.68)
        canvas.ctx.translate(-26, -26)
        bee(canvas.ctx, math.cos(TURN * phase * 8))


def candle(canvas, phase):
    ctx = canvas.ctx
    sway = 1.6 * math.sin(TURN * phase) + 1.1 * math.sin(2 * TURN * phase + 1)
    height = 17 + 1.8 * math.sin(2 * TURN * phase) + 1.2 * math.sin(3 * TURN * phase + 2)
    ellipse(ctx, 20, 57, 15, 4)
    outlined(ctx, downwards(53, 61, "#fff0a0", "#c88818"), 1.5)
    ctx.rectangle(14, 26, 12, 30)
    outlined(ctx, rightwards(14, 26, "#ffffff", "#fff0d8", "#e8c8a0"), 1.5)
    curve(ctx, (14, 27), (14, 24, 26, 24, 26, 27), (26, 30, 25, 36, 23.5, 36), (22, 36, 22.5, 31, 20, 31),
          (17, 31, 16, 29, 14, 27))
    outlined(ctx, "#fffaf0", 1.2)
    line(ctx, (20, 26), (20, 22.5))
    stroke(ctx, OUTLINE, 1.6)
    for size, colour in ((1, "#f88818"), (0.74, "#fcd030"), (0.42, "#fffce0")):
        tip = (20 + sway * size, 24 - height * size)
        curve(ctx, (20, 24.5), (20 - 7 * size, 24, 20 - 5 * size, 24 - height * 0.4 * size, *tip),
              (20 + 5 * size, 24 - height * 0.4 * size, 20 + 7 * size, 24, 20, 24.5))
        fill(ctx, colour, "#d85810" if size == 1 else None, 1.2)


def watering(canvas, phase):
    """Drops fall on a flower, which nods."""
    ctx = canvas.ctx
    for i in range(7):
        fallen = (phase + i * 0.43) % 1
        x, y = 27 - i * 0.7 - fallen * (i * 2.6 - 2), 24 + fallen * 44
        curve(ctx, (x, y - 4.5), (x + 4, y + 3.4, x - 4, y + 3.4, x, y - 4.5))
        fill(ctx, "#78c0fc", "#2868b0", 1)
    ctx.rectangle(4, 69, 78, 8)
    outlined(ctx, downwards(69, 77, "#a87044", "#74481c"), 1.5)
    nod = 1.2 * math.sin(TURN * phase)
    curve(ctx, (18, 69), (18, 64, 18 + nod / 2, 60, 18 + nod, 54))
    stroke(ctx, "#409028", 2.4)
    for turn in (-35, -145):
        with placed(ctx, 18, 67, turn):
            leaf(ctx, 11, "#68b848")
    for i in range(6):
        with placed(ctx, 18 + nod, 53, i * 60):
            ellipse(ctx, 0, -5, 2.8, 3.4)
            fill(ctx, "#f07890", "#902848", 0.9)
    circle(ctx, 18 + nod, 53, 3)
    fill(ctx, "#f8d030", "#a87008", 0.9)
    with placed(ctx, 54, 24, -26):
        ctx.translate(-28, -30)
        can(ctx)


def bouncing_ball(canvas, phase):
    ctx = canvas.ctx
    height = 1 - (2 * phase - 1) ** 2
    squash = max(0, 0.16 - height) / 0.16 * 0.13
    shadow = 1 - 0.5 * height
    ellipse(ctx, 22, 71, 14 * shadow, 2.6 * shadow)
    fill(ctx, "#90a098")
    with placed(ctx, 22, 70 - 38 * height):
        ctx.scale(1 + squash, 1 - squash)
        # The ball's pattern repeats after a fifth of a turn, so it comes down as it went up.
        football(ctx, 0, -14, 14, 72 * phase)


def pinwheel(canvas, phase):
    ctx = canvas.ctx
    ctx.rectangle(26.4, 26, 3.2, 42)
    outlined(ctx, rightwards(26, 30, "#e8b878", "#a87034"), 1.3)
    for i in range(4):
        light, colour = (("#ff9888", "#e03830"), ("#98c8ff", "#3078d8"))[i % 2]
        with placed(ctx, 28, 27, i * 90 + phase * 180):
            polygon(ctx, (0, 0), (0, -24), (17, -17))
            outlined(ctx, colour, 1.4)
            curve(ctx, (0, -24), (11, -18, 12, -8, 0, 0))
            ctx.close_path()
            outlined(ctx, light, 1.4)
    circle(ctx, 28, 27, 3.4)
    outlined(ctx, "#f8d040", 1.3)


def shining_sun(canvas, phase):
    with placed(canvas.ctx, 1, 1):
        sun(canvas.ctx, 30 * phase)


def dancing_notes(canvas, phase):
    ctx = canvas.ctx
    for i, (x, colour) in enumerate(((12, "#d83848"), (46, "#3c88f0"), (80, "#38a840"))):
        y = 40 - 9 * wave(phase, i / 3)
        with placed(ctx, x, y, 10 * math.sin(TURN * (phase + i / 3)), 1.7):
            if i == 1:
                beamed(ctx, -6, 0, colour)
            else:
                note(ctx, 0, 0, colour)


def drumming(canvas, phase):
    with placed(canvas.ctx, 4, 6):
        drum(canvas.ctx, wave(phase), wave(phase, 0.5))


def blinking_cat(canvas, phase):
    cat(canvas.ctx, 1 - abs(4 * phase - 3) if phase >= 0.5 else 0)


def fluttering(canvas, phase):
    with placed(canvas.ctx, 0, 3 - 3 * math.sin(TURN * phase)):
        butterfly(canvas.ctx, 0.3 + 0.7 * wave(phase, 0.5))


def toast(canvas, phase):
    """Two mugs meet, and the foam jumps."""
    ctx = canvas.ctx
    near = wave(phase) ** 2
    for side in (-1, 1):
        with placed(ctx, 56 + side * (30 - 10.5 * near), 38, -side * 3 - side * 12 * near):
            ctx.scale(side, 1)
            ctx.translate(-22, -26)
            beer(ctx)
    if near > 0.6:
        for turn in (-40, 0, 40):
            with placed(ctx, 56, 18, turn):
                line(ctx, (0, -6), (0, -8 - 7 * near))
                stroke(ctx, "#f8b020", 2.2)


def mole(canvas, phase):
    """Comes out of its hill, looks, and goes again."""
    ctx = canvas.ctx
    up = min(1, 1.9 * wave(phase)) ** 0.8
    ctx.save()
    ctx.rectangle(0, 0, 64, 50)
    ctx.clip()
    with placed(ctx, 32, 58 - 29 * up):
        ellipse(ctx, 0, 10, 15, 22)
        outlined(ctx, ball_shade(0, 4, 24, "#706870", "#484048", "#302830"))
        ellipse(ctx, 0, 2, 6.4, 4.4)
        outlined(ctx, "#f8a8a8", 1.3)
        for side in (-1, 1):
            circle(ctx, side * 6, -4.6, 2.6)
            fill(ctx, "#ffffff")
            circle(ctx, side * 6 + 1.6 * math.sin(2 * TURN * phase), -4.4, 1.4)
            fill(ctx, "#181018")
            ellipse(ctx, side * 16, 15, 5.4, 4, side * 25)
            outlined(ctx, "#f8a8a8", 1.3)
        ctx.arc(0, 6, 4.6, math.radians(20), math.radians(160))
        stroke(ctx, "#181018", 1.3)
    ctx.restore()
    curve(ctx, (3, 60), (8, 48, 16, 44, 22, 46), (26, 42, 38, 42, 42, 46), (48, 44, 56, 48, 61, 60))
    ctx.close_path()
    outlined(ctx, downwards(43, 60, "#a87844", "#704820"))
    for x, y in ((14, 54), (24, 51), (33, 55), (43, 51), (51, 55)):
        ellipse(ctx, x, y, 2.4, 1.5)
        fill(ctx, "#5c3818")
    for x in range(2, 64, 5):
        curve(ctx, (x - 2, 63), (x, 60, x, 58, x + 1, 56), (x + 1, 58, x + 2, 60, x + 3, 63))
        fill(ctx, "#50a038")


def steaming(canvas, phase):
    """A cup of coffee; its steam rises in three threads."""
    ctx = canvas.ctx
    for i, x in enumerate((17, 25, 33)):
        points = []
        for step in range(21):
            share = step / 20
            sway = 2.6 * math.sin(TURN * (share * 1.2 - phase + i / 3)) * (0.3 + share)
            points.append((x + sway, 26 - 21 * share))
        line(ctx, *points)
        stroke(ctx, "#98a4b4", 2)
    for colour, width in ((OUTLINE, 5.4), ("#5890e0", 2.2)):
        curve(ctx, (39, 33), (50, 31, 49, 46, 36, 46))
        stroke(ctx, colour, width)
    ellipse(ctx, 25, 52, 22, 4.2)
    outlined(ctx, downwards(48, 56, "#b8d4fc", "#5890e0"))
    curve(ctx, (10, 30), (10, 44, 15, 52, 25, 52), (35, 52, 40, 44, 40, 30))
    ctx.close_path()
    outlined(ctx, rightwards(10, 40, "#d8e8ff", "#78a8f0", "#3868b8"))
    ellipse(ctx, 25, 30, 15, 4)
    outlined(ctx, "#704020", 1.6)
    for x in (18, 25, 32):
        circle(ctx, x, 40, 2)
        fill(ctx, "#ffffff")


def falling_rain(canvas, phase):
    rain(canvas.ctx, phase)


def lit_fir(canvas, phase):
    fir(canvas.ctx, int(phase * 3 + 0.5))


def writing(canvas, phase):
    """A pencil fills three lines of a sheet; then it goes back, and they vanish before it."""
    ctx = canvas.ctx
    rounded(ctx, 5, 8, 34, 42, 2)
    outlined(ctx, downwards(8, 50, "#ffffff", "#f4ecd8"))
    for y in (19, 28, 37):
        ctx.rectangle(9, y + 3, 26, 0.8)
        fill(ctx, "#c8d4e8")
    written = min(phase / 0.6, 1) * 3
    left = min(1, (1 - phase) / 0.25)
    for row in range(3):
        dots = int(47 * min(max(written - row, 0), 1) * left)
        if dots:
            line(ctx, *((10 + i / 2, 19 + row * 9 + 1.9 * math.sin(i * 0.75)) for i in range(dots + 1)))
            stroke(ctx, "#2c60c0", 1.3)
    row = min(int(written), 2)
    across = written - row
    with placed(ctx, 10 + 23.5 * across * left, 19 + row * 9 * left + math.sin(across * 36), 38):
        polygon(ctx, (0, 0), (-2.4, -6), (2.4, -6))
        outlined(ctx, "#f8d890", 1.2)
        ctx.rectangle(-2.4, -22, 4.8, 16)
        outlined(ctx, rightwards(-2.4, 2.4, "#f88878", "#c82820"), 1.4)


PICTURES = [
    moving("ball_huepft", 44, 76, bouncing_ball, 12, 6, colours=15), moving("biene_fliegt", 96, 60, flying_bee, 24, 7),
    moving("bier_prost", 112, 72, toast, 12, 9), moving("giesskanne_giesst", 84, 80, watering, 10, 9),
    moving("kaffee_dampft", 52, 58, steaming, 10, 12),
    moving("katze_blinzelt", 48, 48, blinking_cat, 8, [200, 5, 5, 5, 6, 6, 6, 6]),
    moving("kerze_flackert", 40, 64, candle, 12, 9), moving("maulwurf", 64, 64, mole, 20, [40] + [8] * 19),
    moving("noten_tanzen", 100, 48, dancing_notes, 12, 9, colours=15), moving("regen", 48, 52, falling_rain, 8, 9),
    moving("schmetterling_flattert", 48, 54, fluttering, 8, 9), moving("sonne_strahlt", 50, 50, shining_sun, 8, 12),
    moving("stift_schreibt", 52, 54, writing, 24, 10), moving("tannenbaum_blinkt", 48, 48, lit_fir, 3, 45),
    moving("trommel", 56, 56, drumming, 6, 7), moving("windrad_dreht", 56, 70, pinwheel, 10, 7),
]
