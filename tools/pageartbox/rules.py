# SPDX-License-Identifier: MIT
"""Linien: rules that part the sections of a page."""

import math

from canvas import (ball_shade, circle, curve, darker, downwards, ellipse, fill, line, lighter, mixed, placed,
                    polygon, rightwards, rounded, star, stroke)
from picture import Picture

WIDTH = 500


def every(first, step, last=WIDTH):
    """Places at even distances, with their number."""
    return enumerate(range(first, last, step))


def etched(canvas, _):
    ctx = canvas.ctx
    for y, colour in ((0, "#808080"), (1, "#b8b8b8"), (2, "#dcdcdc"), (3, "#f4f4f4")):
        ctx.rectangle(0, y, WIDTH, 1)
        fill(ctx, colour)
    ctx.rectangle(0, 0, 1, 4)
    fill(ctx, "#808080")


def tube(colour):
    def draw(canvas, _):
        rounded(canvas.ctx, 0, 0, WIDTH, 8, 4)
        shades = (darker(colour, 0.35), colour, lighter(colour, 0.75), colour, darker(colour, 0.3),
                  darker(colour, 0.55))
        fill(canvas.ctx, downwards(0, 8, *shades))
    return draw


def rainbow(canvas, _):
    shades = ("#e02020", "#f08010", "#f0d010", "#30a838", "#2080d8", "#5048c0", "#a030a8", "#e02020")
    canvas.ctx.rectangle(0, 0, WIDTH, 6)
    fill(canvas.ctx, rightwards(0, WIDTH, *shades))


def fading(colour):
    def draw(canvas, _):
        canvas.ctx.rectangle(0, 0, WIDTH, 3)
        fill(canvas.ctx, rightwards(0, WIDTH, "#ffffff", lighter(colour, 0.4), colour, lighter(colour, 0.4), "#ffffff"))
    return draw


def hazard(canvas, _):
    ctx = canvas.ctx
    ctx.rectangle(0, 0, WIDTH, 14)
    fill(ctx, "#f8cc10")
    for x in range(-20, WIDTH + 20, 24):
        polygon(ctx, (x, 14), (x + 14, 0), (x + 26, 0), (x + 12, 14))
        fill(ctx, "#282828")
    for y, colour in ((0, "#6c6c6c"), (13, "#6c6c6c")):
        ctx.rectangle(0, y, WIDTH, 1)
        fill(ctx, colour)


def wave(canvas, _):
    ctx = canvas.ctx
    for lift, colour, width in ((2.5, "#a8d4f0", 3), (0, "#1c68b8", 3)):
        line(ctx, *((x, 7 + lift - 4 * math.cos(x / 25 * math.pi)) for x in range(3, WIDTH - 2)))
        stroke(ctx, colour, width)


def leaf(ctx, length, colour, edge=0.4):
    """A leaf that grows from the origin to the right; `edge` tells how much darker its outline is."""
    curve(ctx, (0, 0), (length * 0.25, -length * 0.5, length * 0.75, -length * 0.4, length, 0),
          (length * 0.75, length * 0.4, length * 0.25, length * 0.5, 0, 0))
    fill(ctx, colour, darker(colour, edge), 0.8)


def vine(canvas, _):
    ctx = canvas.ctx
    line(ctx, *((x, 12 + 4 * math.sin(x / 25 * math.pi)) for x in range(6, WIDTH - 15)))
    stroke(ctx, "#4c7430", 1.8)
    for i, x in every(12, 25, WIDTH - 25):
        up = -1 if i % 2 else 1
        y = 12 + 4 * math.sin(x / 25 * math.pi)
        with placed(ctx, x, y, -55 * up):
            leaf(ctx, 11, "#58a03c" if i % 2 else "#78b84c")
        with placed(ctx, x + 11, 12 + 4 * math.sin((x + 11) / 25 * math.pi), 50 * up):
            leaf(ctx, 8, "#90c860")
        if i % 4 == 2:
            circle(ctx, x - 8, y - 5.5 * up, 2.6)
            fill(ctx, "#d83848", "#8c1c2c", 0.8)


def blossom(ctx, x, y, size, colour, heart="#f8c820", edge=0.3):
    for i in range(6):
        with placed(ctx, x, y, i * 60):
            ellipse(ctx, 0, -size * 0.62, size * 0.33, size * 0.42)
            fill(ctx, colour, darker(colour, edge), 0.6)
    circle(ctx, x, y, size * 0.34)
    fill(ctx, heart, darker(heart, edge), 0.6)


def meadow(canvas, _):
    ctx = canvas.ctx
    for i, x in every(2, 4):
        bend, height = (i * 7 % 5 - 2) * 1.6, 6 + i * 11 % 7
        curve(ctx, (x - 2, 26), (x - 1, 20, x + bend, 26 - height, x + bend, 26 - height),
              (x + bend, 26 - height, x + 2, 22, x + 3, 26))
        fill(ctx, ("#48a030", "#60b83c", "#388828")[i % 3])
    for i, x in every(14, 28):
        y = (10, 8, 12)[i % 3]
        curve(ctx, (x, 25), (x - 2, 20, x + 1, 16, x, y))
        stroke(ctx, "#388828", 1.4)
        blossom(ctx, x, y, 7, ("#f06878", "#ffffff", "#8078e0", "#f8a830")[i % 4],
                "#f8d030" if i % 4 < 3 else "#8c4818")


def note(ctx, x, y, colour, tail=True):
    ellipse(ctx, x, y, 3.6, 2.7, -20)
    fill(ctx, colour)
    line(ctx, (x + 3, y - 0.6), (x + 3, y - 13))
    stroke(ctx, colour, 1.3)
    if tail:
        curve(ctx, (x + 3, y - 13), (x + 4, y - 9, x + 9, y - 9, x + 7, y - 4))
        stroke(ctx, colour, 1.5)


def beamed(ctx, x, y, colour):
    """Two quavers under one beam."""
    note(ctx, x, y, colour, tail=False)
    note(ctx, x + 12, y - 2, colour, tail=False)
    polygon(ctx, (x + 2.4, y - 14), (x + 15.6, y - 16), (x + 15.6, y - 12.4), (x + 2.4, y - 10.4))
    fill(ctx, colour)


def staff(canvas, _):
    ctx = canvas.ctx
    for y in range(8, 29, 5):
        ctx.rectangle(0, y, WIDTH, 1)
        fill(ctx, "#b0b0b8")
    heights = (23, 20, 18, 25, 15, 20, 23)
    for i, x in every(20, 36, WIDTH - 20):
        colour = "#203868"
        if i % 3 == 1:
            beamed(ctx, x - 4, heights[i % 7] + 1, colour)
        else:
            note(ctx, x, heights[i % 7], colour, i % 3 == 0)


def football(ctx, x, y, radius, turn=0):
    circle(ctx, x, y, radius)
    fill(ctx, ball_shade(x, y, radius * 1.3, "#ffffff", "#f4f4f4", "#c0c0c8"), "#282828", max(0.9, radius / 14))
    ctx.save()
    circle(ctx, x, y, radius)
    ctx.clip()
    with placed(ctx, x, y, turn, radius):
        corners = [math.radians(a) for a in range(-90, 270, 72)]
        polygon(ctx, *((0.36 * math.cos(a), 0.36 * math.sin(a)) for a in corners))
        fill(ctx, "#282828")
        for a in range(-90, 270, 72):
            c, s = math.cos(math.radians(a)), math.sin(math.radians(a))
            line(ctx, (0.36 * c, 0.36 * s), (0.75 * c, 0.75 * s))
            stroke(ctx, "#282828", 0.09)
            with placed(ctx, 1.0 * c, 1.0 * s, a):
                polygon(ctx, (-0.27, 0), (-0.05, -0.38), (0.4, -0.3), (0.4, 0.3), (-0.05, 0.38))
                fill(ctx, "#282828")
    ctx.restore()


def balls(canvas, _):
    ctx = canvas.ctx
    ctx.rectangle(0, 17, WIDTH, 2)
    fill(ctx, "#3c9830")
    for i, x in every(25, 50):
        football(ctx, x, 9.5, 8, i * 26)


def paw(ctx, x, y, turn, colour, size=1.0):
    with placed(ctx, x, y, turn, size):
        ellipse(ctx, 0, 2.2, 3.6, 3)
        fill(ctx, colour)
        for toe_x, toe_y in ((-4.3, -1), (-1.6, -3.6), (1.6, -3.6), (4.3, -1)):
            ellipse(ctx, toe_x, toe_y, 1.3, 1.8, toe_x * 5)
            fill(ctx, colour)


def paws(canvas, _):
    for i, x in every(16, 29):
        paw(canvas.ctx, x, 8 if i % 2 else 20, 90 + (8 if i % 2 else -8), "#7c5438", 1.35)


def fence(canvas, _):
    ctx = canvas.ctx
    for y in (11, 21):
        ctx.rectangle(0, y, WIDTH, 4)
        fill(ctx, "#c08848", "#6c441c", 1)
    for x in range(3, WIDTH - 9, 18):
        polygon(ctx, (x, 29.5), (x, 7), (x + 5, 1.5), (x + 10, 7), (x + 10, 29.5))
        fill(ctx, rightwards(x, x + 10, "#e8bc7c", "#d8a460", "#b88440"), "#6c441c", 1)
        for y in (13, 23):
            circle(ctx, x + 5, y, 0.9)
            fill(ctx, "#54341c")


def pearls(canvas, _):
    for x in range(7, WIDTH, 13):
        circle(canvas.ctx, x, 6, 5.5)
        fill(canvas.ctx, ball_shade(x, 6, 6, "#ffffff", "#e0e8f4", "#6c80a8"))


def rope(canvas, _):
    ctx = canvas.ctx
    ctx.save()
    rounded(ctx, 1, 1, WIDTH - 2, 8, 4)
    fill(ctx, "#7c5820")
    rounded(ctx, 1, 1, WIDTH - 2, 8, 4)
    ctx.clip()
    for x in range(-6, WIDTH + 10, 9):
        curve(ctx, (x, 10), (x + 4, 9, x + 5, 1, x + 9, 0), (x + 11, 0, x + 15, 0, x + 15, 0),
              (x + 11, 1, x + 10, 9, x + 6, 10))
        fill(ctx, downwards(0, 10, "#f0dca0", "#dcb868", "#a87c34"), "#7c5820", 0.9)
    ctx.restore()


def bunting(canvas, _):
    ctx = canvas.ctx
    colours = ("#e03838", "#f8c820", "#3098d8", "#48a840", "#f08020")

    def hang(x):
        return 3 + 6 * math.sin(math.pi * (x % 125) / 125)

    for i, x in every(0, 25):
        left, right = x + 3, x + 21
        polygon(ctx, (left, hang(left)), (right, hang(right)), (x + 12, hang(x + 12) + 17))
        fill(ctx, colours[i % 5], darker(colours[i % 5], 0.35), 1)
    line(ctx, *((x, hang(x)) for x in range(0, WIDTH + 1)))
    stroke(ctx, "#585048", 1.5)


def diamond_rule(colour):
    def draw(canvas, _):
        ctx = canvas.ctx
        for left, right in ((20, 236), (264, 480)):
            ctx.rectangle(left, 5, right - left, 1)
            fill(ctx, colour)
        for x, size in ((250, 5.5), (240, 2.5), (260, 2.5)):
            polygon(ctx, (x - size, 5.5), (x, 5.5 - size), (x + size, 5.5), (x, 5.5 + size))
            fill(ctx, colour if size > 3 else lighter(colour, 0.4))
    return draw


def flourish(canvas, _):
    ctx = canvas.ctx
    for side in (-1, 1):
        with placed(ctx, 150, 12):
            ctx.scale(side, 1)
            curve(ctx, (4, 0), (18, -14, 32, -8, 30, 0), (28, 7, 18, 5, 20, -1))
            stroke(ctx, "#7c5c38", 1.6)
            curve(ctx, (20, 3), (50, 16, 70, -10, 138, 0))
            stroke(ctx, "#7c5c38", 1.4)
            curve(ctx, (56, 4), (66, 12, 82, 10, 80, 4), (78, -1, 72, 2, 74, 5))
            stroke(ctx, "#7c5c38", 1.3)
    circle(ctx, 150, 12, 3)
    fill(ctx, "#7c5c38")


def gold(canvas, _):
    rounded(canvas.ctx, 0, 0, WIDTH, 5, 2.5)
    fill(canvas.ctx, downwards(0, 5, "#fff4b8", "#e8c458", "#a87818", "#80540c"))


def stars(canvas, _):
    for i, x in every(12, 28):
        colour = ("#f8cc20", "#f09020")[i % 2]
        star(canvas.ctx, x, 10, 8.5 if i % 2 == 0 else 6, 3.6 if i % 2 == 0 else 2.6)
        fill(canvas.ctx, colour, darker(colour, 0.35), 1)


def stitches(canvas, _):
    ctx = canvas.ctx
    for i, x in every(2, 16, WIDTH - 10):
        rounded(ctx, x, 1, 12, 4, 2)
        fill(ctx, mixed("#c03048", "#e890a0", i % 2))


def rule(name, height, draw, width=WIDTH, ground=None, colours=63):
    return Picture(f"linie_{name}.gif", width, height, draw, ground, colours=colours)


PICTURES = [
    rule("baustelle", 14, hazard, ground="#ffffff"), rule("blumenwiese", 26, meadow, colours=31),
    rule("efeuranke", 24, vine, colours=31), rule("elegant_blau", 11, diamond_rule("#304878")),
    rule("elegant_rot", 11, diamond_rule("#902838")), rule("fussball", 20, balls, colours=15),
    rule("gartenzaun", 30, fence, colours=31), rule("gold", 5, gold), rule("grau_relief", 4, etched, ground="#ffffff"),
    rule("naht_rot", 6, stitches, ground="#ffffff", colours=15), rule("noten", 34, staff, ground="#ffffff", colours=15),
    rule("perlen", 12, pearls, ground="#ffffff"), rule("pfoten", 28, paws, colours=7),
    rule("regenbogen", 6, rainbow, ground="#ffffff", colours=250),
    rule("rohr_blau", 8, tube("#2868c8")), rule("rohr_gruen", 8, tube("#2c9040")), rule("rohr_rot", 8, tube("#c82c30")),
    rule("schnoerkel", 26, flourish, width=300, ground="#ffffff", colours=15), rule("seil", 10, rope, colours=31),
    rule("sterne", 20, stars, colours=31), rule("verlauf_blau", 3, fading("#1c4ca0"), ground="#ffffff"),
    rule("verlauf_grau", 3, fading("#505050"), ground="#ffffff"), rule("welle_blau", 14, wave, ground="#ffffff"),
    rule("wimpel", 30, bunting, colours=31),
]
