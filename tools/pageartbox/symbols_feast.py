# SPDX-License-Identifier: MIT
"""Symbole, third part: music, feasts, animals and the weather."""

import math

from canvas import (OUTLINE, ball_shade, circle, curve, darker, downwards, ellipse, fill, heart, line, placed, polygon,
                    rightwards, rounded, star, stroke)
from picture import Picture
from rules import blossom
from symbols_page import outlined

BRASS = ("#fff4a8", "#f4c838", "#c88818")


def tubing(ctx, *bends):
    """A brass tube along the told curve."""
    for colour, width in ((OUTLINE, 5.6), ("#f0c438", 2.6), ("#fff0a0", 0.8)):
        curve(ctx, *bends)
        stroke(ctx, colour, width)


def trumpet(canvas, _):
    ctx = canvas.ctx
    with placed(ctx, 23.6, 25, -18, 0.94):
        tubing(ctx, (-15, 0), (-22, 0, -22, 11, -12, 11), (-2, 11, -2, 11, 2, 11), (11, 11, 11, 0, 4, 0))
        tubing(ctx, (-20, 0), (-10, 0, 4, 0, 8, 0))
        curve(ctx, (4, -2.2), (12, -2.2, 16, -5, 20, -11), (20, -11, 20, 11, 20, 11), (16, 5, 12, 2.2, 4, 2.2))
        ctx.close_path()
        outlined(ctx, downwards(-11, 11, *BRASS))
        ellipse(ctx, 20, 0, 2.6, 11)
        outlined(ctx, "#a86c10", 1.4)
        for x in (-9, -3.5, 2):
            rounded(ctx, x - 2, -4, 4, 12, 1)
            outlined(ctx, rightwards(x - 2, x + 2, "#fff8d0", "#d8a020"), 1.2)
            line(ctx, (x, -4), (x, -8))
            stroke(ctx, OUTLINE, 1.6)
            circle(ctx, x, -8.5, 1.7)
            fill(ctx, "#f8f0d8", OUTLINE, 1)
        polygon(ctx, (-24, -2.4), (-20, -1), (-20, 1), (-24, 2.4))
        outlined(ctx, "#e8c040", 1.4)


def drum(ctx, left=0.0, right=0.0):
    """A drum with its sticks; `left` and `right` (0 to 1) lift them."""
    curve(ctx, (7, 24), (7, 30, 7, 36, 7, 40), (7, 47, 41, 47, 41, 40), (41, 36, 41, 30, 41, 24))
    fill(ctx, rightwards(7, 41, "#c02830", "#f06060", "#c02830", "#901820"))
    line(ctx, (7, 24), (7, 40))
    line(ctx, (41, 24), (41, 40))
    stroke(ctx, OUTLINE, 1.8)
    for i in range(4):
        x = 7 + i * 8.5
        line(ctx, (x, 27), (x + 4.25, 42), (x + 8.5, 27))
        stroke(ctx, "#fff4d8", 1.3)
    curve(ctx, (7, 37), (7, 46, 41, 46, 41, 37), (41, 41, 41, 41, 41, 41), (41, 49, 7, 49, 7, 41))
    ctx.close_path()
    outlined(ctx, "#f4cc50", 1.5)
    ellipse(ctx, 24, 24, 17, 6)
    outlined(ctx, "#f4cc50", 1.6)
    ellipse(ctx, 24, 23.4, 14.6, 4.5)
    outlined(ctx, "#fffaf0", 1.2)
    for side, lift in ((-1, left), (1, right)):
        with placed(ctx, 24 + side * 18, 10 - lift * 3):
            ctx.scale(side, 1)
            ctx.rotate(math.radians(-lift * 28))
            line(ctx, (2, -4), (-13, 12))
            stroke(ctx, OUTLINE, 4)
            line(ctx, (2, -4), (-13, 12))
            stroke(ctx, "#e0a860", 1.8)
            circle(ctx, -13, 12, 2.4)
            fill(ctx, "#f4d098", OUTLINE, 1.2)


def notes(canvas, _):
    ctx = canvas.ctx
    for colour, width in ((OUTLINE, 4.4), ("#4890f0", 0.8)):
        for x, y in ((11, 37), (35, 33)):
            ellipse(ctx, x, y, 7, 5.2, -20)
            fill(ctx, colour, colour, width)
            line(ctx, (x + 5.6, y - 1), (x + 5.6, y - 26))
            stroke(ctx, colour, width + 2)
        polygon(ctx, (16.6, 11), (40.6, 7), (40.6, 14), (16.6, 18))
        fill(ctx, colour, colour, width + 1)


def accordion(canvas, _):
    ctx = canvas.ctx
    for i in range(4):
        x = 15 + i * 4.5
        polygon(ctx, (x, 13), (x + 2.25, 10), (x + 4.5, 13), (x + 4.5, 37), (x + 2.25, 40), (x, 37))
        outlined(ctx, rightwards(x, x + 4.5, "#d8b890", "#fff8e8", "#d8b890"), 1.2)
    rounded(ctx, 3, 8, 13, 34, 3)
    outlined(ctx, rightwards(3, 16, "#f07060", "#b82020"))
    rounded(ctx, 32, 8, 13, 34, 3)
    outlined(ctx, rightwards(32, 45, "#f07060", "#b82020"))
    ctx.rectangle(38, 11, 6, 28)
    outlined(ctx, "#ffffff", 1.2)
    for y in (15, 19, 23, 27, 31, 35):
        line(ctx, (38, y), (44, y))
        stroke(ctx, OUTLINE, 0.9)
        ctx.rectangle(38, y - 1.2, 3.2, 2.4)
        fill(ctx, OUTLINE)
    for row in range(7):
        for x in (7, 11.5):
            circle(ctx, x, 13 + row * 4, 1.3)
            fill(ctx, "#fff8e8")


def beer(ctx):
    for colour, width in ((OUTLINE, 6.4), ("#d8ecf8", 3)):
        curve(ctx, (34, 19), (46, 17, 46, 37, 34, 36))
        stroke(ctx, colour, width)
    polygon(ctx, (9, 14), (35, 14), (34, 44), (10, 44))
    outlined(ctx, rightwards(9, 35, "#fcd048", "#fff098", "#f8b828", "#e09818"))
    for x in (16, 22, 28):
        rounded(ctx, x - 1.5, 21, 3, 18, 1.5)
        fill(ctx, "#fff4b8")
    for x, y, radius in ((11, 13, 5), (18, 9.5, 6), (26, 9.5, 6), (33, 13, 5), (13, 18, 3.4)):
        circle(ctx, x, y, radius)
        fill(ctx, OUTLINE, OUTLINE, 3)
    for x, y, radius in ((11, 13, 5), (18, 9.5, 6), (26, 9.5, 6), (33, 13, 5), (13, 18, 3.4), (22, 14, 5)):
        circle(ctx, x, y, radius)
        fill(ctx, "#fffdf4")


def cake(canvas, _):
    ctx = canvas.ctx
    for i, x in enumerate((16, 24, 32)):
        ctx.rectangle(x - 1.6, 9, 3.2, 11)
        outlined(ctx, ("#60a8f0", "#f88898", "#78c850")[i], 1.2)
        curve(ctx, (x, 1.5), (x + 4, 6, x + 1.5, 8.5, x, 8.5), (x - 1.5, 8.5, x - 4, 6, x, 1.5))
        fill(ctx, "#f8c020", "#e07010", 0.9)
    rounded(ctx, 6, 19, 36, 21, 4)
    outlined(ctx, downwards(19, 40, "#f8dca0", "#d8a050"))
    ctx.rectangle(6, 29, 36, 3)
    fill(ctx, "#d83848")
    curve(ctx, (6, 27), (6, 22, 6, 18, 12, 18), (12, 18, 36, 18, 36, 18), (42, 18, 42, 22, 42, 27),
          (40, 31, 36, 31, 34, 26),
          (32, 32, 28, 32, 26, 26), (24, 33, 20, 32, 18, 26), (15, 31, 11, 31, 6, 27))
    outlined(ctx, "#ffe4ec")
    ellipse(ctx, 24, 41, 21, 3.4)
    outlined(ctx, "#dce8f4", 1.5)


def balloons(canvas, _):
    ctx = canvas.ctx
    for x, y in ((13, 17), (35, 18), (24, 13)):
        curve(ctx, (x, y + 10), (x, y + 18, 24, 34, 24, 46))
        stroke(ctx, "#706860", 1.2)
    for x, y, light, colour, dark in ((13, 17, "#c0dcff", "#4890e8", "#2058a8"),
                                      (35, 18, "#fff8a8", "#f8c828", "#c08810"),
                                      (24, 13, "#ffb8b8", "#f04848", "#a81820")):
        polygon(ctx, (x - 2.5, y + 14), (x, y + 10), (x + 2.5, y + 14))
        outlined(ctx, dark, 1.2)
        ellipse(ctx, x, y, 9, 11)
        outlined(ctx, ball_shade(x, y, 12, light, colour, dark), 1.6)


LIGHTS = ("#f8d030", "#e83838", "#4890f0")


def fir(ctx, shift=0):
    """A Christmas tree whose lights have moved on by so many colours."""
    ctx.rectangle(20.5, 38, 7, 8)
    outlined(ctx, "#986030")
    for top, half, bottom in ((19, 18, 40), (11, 14, 29), (4, 10, 19)):
        polygon(ctx, (24, top), (24 + half, bottom), (24, bottom - 2.5), (24 - half, bottom))
        outlined(ctx, rightwards(24 - half, 24 + half, "#60b848", "#2c8830", "#1c6424"))
    for i, (x, y) in enumerate(((20, 16), (28, 21), (18, 26), (31, 33), (24, 32), (36, 37.5), (13, 36))):
        circle(ctx, x, y, 2.1)
        fill(ctx, LIGHTS[(i + shift) % 3], OUTLINE, 0.8)
    star(ctx, 24, 5.5, 5, 2.2)
    fill(ctx, "#ffe040", "#b07808", 1)


def easter_egg(canvas, _):
    ctx = canvas.ctx

    def shell():
        curve(ctx, (24, 4), (33, 4, 40, 18, 40, 28), (40, 38, 33, 44, 24, 44), (15, 44, 8, 38, 8, 28),
              (8, 18, 15, 4, 24, 4))
    ctx.save()
    shell()
    ctx.clip()
    ctx.rectangle(0, 0, 48, 48)
    fill(ctx, rightwards(8, 40, "#a8d4ff", "#5898e8", "#3468b8"))
    ctx.rectangle(0, 20, 48, 11)
    fill(ctx, "#ffe468")
    for y, up in ((17, 1), (34, -1)):
        line(ctx, *((x, y + (2.5 if x // 4 % 2 else -2.5) * up) for x in range(4, 48, 4)))
        stroke(ctx, "#ffffff", 2.2)
    for x in (13, 24, 35):
        blossom(ctx, x, 25.5, 4.6, "#f07088", "#fff8d0")
    for x in (18, 24, 30):
        circle(ctx, x, 11, 1.5)
        fill(ctx, "#ffe468")
    for x in (17, 24, 31):
        circle(ctx, x, 39.5, 1.5)
        fill(ctx, "#ffe468")
    ctx.restore()
    shell()
    stroke(ctx, OUTLINE, 1.8)


def present(canvas, _):
    ctx = canvas.ctx
    ctx.rectangle(7, 22, 34, 22)
    outlined(ctx, rightwards(7, 41, "#78c8f0", "#3888d0"))
    ctx.rectangle(4, 15, 40, 8)
    outlined(ctx, downwards(15, 23, "#98dcfc", "#4898d8"))
    ctx.rectangle(20.5, 15, 7, 29)
    outlined(ctx, "#f05050", 1.4)
    for side in (-1, 1):
        with placed(ctx, 24, 14):
            ctx.scale(side, 1)
            curve(ctx, (0, 0), (2, -12, 14, -13, 14, -6), (14, 0, 6, 1, 0, 0))
            outlined(ctx, downwards(-11, 1, "#ff8878", "#d83030"), 1.5)
            ellipse(ctx, 9, -5, 2.6, 1.7, -25)
            fill(ctx, "#902020")
    rounded(ctx, 20.8, 10.5, 6.4, 6, 2)
    outlined(ctx, "#f86858", 1.4)


def whiskers(ctx, y):
    for side in (-1, 1):
        for drop in (0, 3.4):
            line(ctx, (24 + side * 9, y + drop * 0.8), (24 + side * 20, y - 1.5 + drop * 1.6))
    stroke(ctx, OUTLINE, 1)


def cat(ctx, lids=0.0):
    """A cat's head; `lids` tells how far its eyes are shut (0 to 1)."""
    curve(ctx, (6, 7), (9, 6, 14, 9, 18, 12), (22, 10.5, 26, 10.5, 30, 12), (34, 9, 39, 6, 42, 7),
          (43, 13, 43, 18, 42, 24),
          (42, 37, 34, 43, 24, 43), (14, 43, 6, 37, 6, 24), (5, 18, 5, 13, 6, 7))
    outlined(ctx, ball_shade(24, 24, 24, "#ffd090", "#f4a040", "#e08020"))
    for side in (-1, 1):
        with placed(ctx, 24, 0):
            ctx.scale(side, 1)
            polygon(ctx, (8.5, 14), (15.5, 10), (16, 18))
            fill(ctx, "#f8a8a0")
            ellipse(ctx, 8, 25, 3, max(0.4, 3.8 * (1 - lids)))
            outlined(ctx, "#b8e060", 1.2)
            ellipse(ctx, 8, 25, 1.1, max(0.4, 3.2 * (1 - lids)))
            fill(ctx, OUTLINE)
            for y in (17, 20):
                line(ctx, (1.5 if y == 17 else 1.2, y - 4), (1.5 if y == 17 else 1.2, y))
            stroke(ctx, "#b86010", 1.5)
    ellipse(ctx, 24, 35, 8, 5.5)
    fill(ctx, "#fff0dc")
    polygon(ctx, (21.8, 31), (26.2, 31), (24, 33.6))
    outlined(ctx, "#f07880", 1)
    curve(ctx, (24, 34), (24, 38, 19, 38, 18.6, 35.6))
    curve(ctx, (24, 34), (24, 38, 29, 38, 29.4, 35.6))
    stroke(ctx, OUTLINE, 1.3)
    whiskers(ctx, 32)


def dog(canvas, _):
    ctx = canvas.ctx
    curve(ctx, (10, 16), (12, 5, 36, 5, 38, 16), (40, 24, 37, 30, 34, 33), (34, 42, 30, 45, 24, 45),
          (18, 45, 14, 42, 14, 33),
          (11, 30, 8, 24, 10, 16))
    outlined(ctx, ball_shade(24, 22, 22, "#e8c090", "#c89050", "#a87038"))
    ellipse(ctx, 24, 36, 9.4, 8)
    fill(ctx, "#fff4e0")
    for side in (-1, 1):
        with placed(ctx, 24, 0):
            ctx.scale(side, 1)
            curve(ctx, (9, 8), (15, 5, 21, 12, 21, 22), (21, 30, 16, 31, 14.5, 26), (13.5, 20, 13, 14, 9, 8))
            outlined(ctx, rightwards(9, 21, "#905828", "#683c18"))
            circle(ctx, 6.6, 21.5, 2.3)
            fill(ctx, OUTLINE)
            circle(ctx, 7.2, 20.7, 0.8)
            fill(ctx, "#ffffff")
    curve(ctx, (21, 39), (21, 48, 27, 48, 27, 39))
    outlined(ctx, "#f07880", 1.2)
    curve(ctx, (24, 33), (24, 40, 18, 40, 17, 37))
    curve(ctx, (24, 33), (24, 40, 30, 40, 31, 37))
    stroke(ctx, OUTLINE, 1.4)
    ellipse(ctx, 24, 30.5, 4.2, 3.2)
    fill(ctx, OUTLINE)
    ellipse(ctx, 23, 29.6, 1.2, 0.8)
    fill(ctx, "#ffffff")


def sun(ctx, turn=0.0):
    """A laughing sun whose rays are turned by so many degrees."""
    star(ctx, 24, 24, 22.5, 14.5, 12, turn - 90)
    outlined(ctx, "#f8a820", 1.5)
    circle(ctx, 24, 24, 13.4)
    outlined(ctx, ball_shade(24, 24, 15, "#fffcb0", "#fcdc30", "#f8b818"), 1.5)
    for x in (19.5, 28.5):
        ellipse(ctx, x, 21.5, 1.6, 2.4)
        fill(ctx, OUTLINE)
    for x in (15.5, 32.5):
        circle(ctx, x, 26.5, 2.2)
        fill(ctx, "#f89848")
    ctx.arc(24, 24.5, 6.6, math.radians(25), math.radians(155))
    stroke(ctx, OUTLINE, 1.5)


def cloud(ctx, light, dark):
    puffs = ((13, 22, 8.5), (24, 15, 10.5), (35, 21, 9), (24, 24, 8))
    for x, y, radius in puffs:
        circle(ctx, x, y, radius)
        fill(ctx, OUTLINE, OUTLINE, 3.2)
    for x, y, radius in puffs:
        circle(ctx, x, y, radius)
        fill(ctx, downwards(6, 32, light, dark))


def rain(ctx, fallen=0.5):
    """A rain cloud whose drops have fallen that share (0 to 1) of their way to the ground."""
    for i, x in enumerate((12, 20, 28, 36)):
        y = 24 + (fallen + i % 2 * 0.5) % 1 * 19
        curve(ctx, (x, y - 4.5), (x + 1, y - 2, x + 3, y, x + 3, y + 2), (x + 3, y + 5.6, x - 3, y + 5.6, x - 3, y + 2),
              (x - 3, y, x - 1, y - 2, x, y - 4.5))
        fill(ctx, "#68b4f8", "#2868b0", 1.1)
    cloud(ctx, "#f4f8fc", "#a8b8cc")


def red_heart(canvas, _):
    heart(canvas.ctx, 24, 25, 42)
    outlined(canvas.ctx, ball_shade(22, 22, 26, "#ffc0c0", "#f04858", "#b01830"))


def maypole(canvas, _):
    """Blue and white, with wreaths and the signs of the trades."""
    ctx = canvas.ctx
    ctx.rectangle(22, 9, 4, 37)
    outlined(ctx, "#ffffff", 1.5)
    ctx.save()
    ctx.rectangle(22.5, 9, 3, 37)
    ctx.clip()
    for y in range(8, 50, 6):
        line(ctx, (20, y + 4), (28, y - 2))
    stroke(ctx, "#3078d0", 2.6)
    ctx.restore()
    polygon(ctx, (24, 1), (29.5, 11), (18.5, 11))
    outlined(ctx, "#48a038", 1.4)
    for y, reach in ((18, 13), (29, 10)):
        ellipse(ctx, 24, y, reach, 2.8)
        stroke(ctx, OUTLINE, 4)
        ellipse(ctx, 24, y, reach, 2.8)
        stroke(ctx, "#58b040", 1.9)
        for i, x in enumerate((24 - reach, 24 - reach * 0.5, 24 + reach * 0.5, 24 + reach)):
            polygon(ctx, (x - 1.4, y + 2.6), (x + 1.4, y + 2.6), (x + 0.8, y + 8), (x - 0.8, y + 8))
            fill(ctx, ("#e84040", "#f8c828")[i % 2], darker("#e84040", 0.5), 0.7)
    ellipse(ctx, 24, 45, 9, 2)
    outlined(ctx, "#78b850", 1.2)


def still(draw, *how):
    """A drawing that can also move, at rest."""
    return lambda canvas, _: draw(canvas.ctx, *how)


def feast(name, draw):
    return Picture(f"{name}.gif", 48, 48, draw)


PICTURES = [
    feast("akkordeon", accordion), feast("bierkrug", still(beer)), feast("geschenk", present), feast("herz", red_heart),
    feast("hund", dog), feast("katze", still(cat)), feast("luftballons", balloons), feast("maibaum", maypole),
    feast("noten", notes),
    feast("osterei", easter_egg), feast("regenwolke", still(rain, 0.95)), feast("sonne", still(sun)),
    feast("tannenbaum", still(fir)),
    feast("torte", cake), feast("trommel", still(drum, 0.5)), feast("trompete", trumpet),
]
