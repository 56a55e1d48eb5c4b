# SPDX-License-Identifier: MIT
"""Titelbilder: wide pictures for the head of a page. And what lies on the collection's first sheet: welcomes."""

import math
import random

from canvas import (ELEGANT_BOLD, OUTLINE, ROUND, SANS_BOLD, ball_shade, bevel, circle, curve, darker, downwards,
                    ellipse,
                    fill, lighter, line, mixed, placed, polygon, rightwards, rounded, stroke)
from picture import Picture
from rules import beamed, blossom, football, leaf, note

WIDTH, HEIGHT = 560, 110


def sky(ctx, *colours, bottom=HEIGHT):
    ctx.rectangle(0, 0, WIDTH, HEIGHT)
    fill(ctx, downwards(0, bottom, *colours))


def hills(ctx, base, height, waves, shift, *colours):
    """A range of hills whose outline is a sum of two waves."""
    def top(x):
        around = 2 * math.pi * x / WIDTH
        broad, narrow = math.sin(waves * around + shift), math.sin(waves * 2.3 * around + shift * 2)
        return base - height * (0.6 * broad + 0.4 * narrow)
    ctx.move_to(0, HEIGHT)
    for x in range(0, WIDTH + 2, 2):
        ctx.line_to(x, top(x))
    ctx.line_to(WIDTH, HEIGHT)
    ctx.close_path()
    fill(ctx, downwards(base - height, HEIGHT, *colours))
    return top


def soft_cloud(ctx, x, y, size, colour="#ffffff"):
    for dx, dy, radius in ((-1.5, 0.2, 0.7), (-0.6, -0.3, 1), (0.5, -0.1, 0.8), (1.4, 0.25, 0.55)):
        circle(ctx, x + dx * size, y + dy * size, radius * size)
    fill(ctx, downwards(y - 1.3 * size, y + size, colour, mixed(colour, "#b8d4f0", 0.7)))


def round_tree(ctx, x, y, size, colour):
    ctx.rectangle(x - size * 0.09, y - size * 0.5, size * 0.18, size * 0.5)
    fill(ctx, "#70482c")
    for dx, dy, radius in ((-0.22, -0.62, 0.26), (0.22, -0.62, 0.26), (0, -0.85, 0.3), (0, -0.55, 0.25)):
        circle(ctx, x + dx * size, y + dy * size, radius * size)
        fill(ctx, ball_shade(x + dx * size, y + dy * size, radius * size, lighter(colour, 0.3), colour,
                             darker(colour, 0.2)))


def small_house(ctx, x, y, width, wall, roof):
    height = width * 0.62
    ctx.rectangle(x, y - height, width, height)
    fill(ctx, rightwards(x, x + width, wall, darker(wall, 0.12)))
    polygon(ctx, (x - width * 0.1, y - height), (x + width / 2, y - height * 1.9), (x + width * 1.1, y - height))
    fill(ctx, downwards(y - height * 1.9, y - height, roof, darker(roof, 0.25)))
    for share in (0.16, 0.62):
        ctx.rectangle(x + width * share, y - height * 0.8, width * 0.22, height * 0.32)
        fill(ctx, "#fff4b8", darker(wall, 0.5), 0.6)
    ctx.rectangle(x + width * 0.4, y - height * 0.42, width * 0.2, height * 0.42)
    fill(ctx, "#805030")


def church(ctx, x, y):
    ctx.rectangle(x, y - 22, 34, 22)
    fill(ctx, rightwards(x, x + 34, "#fffaf0", "#e0d8c8"))
    polygon(ctx, (x - 2, y - 22), (x + 6, y - 36), (x + 36, y - 36), (x + 38, y - 22))
    fill(ctx, "#a85038")
    ctx.rectangle(x - 14, y - 44, 16, 44)
    fill(ctx, rightwards(x - 14, x + 2, "#fffaf0", "#d8d0c0"))
    polygon(ctx, (x - 16, y - 44), (x - 6, y - 78), (x + 4, y - 44))
    fill(ctx, rightwards(x - 16, x + 4, "#7898a8", "#486878"))
    circle(ctx, x - 6, y - 36, 4)
    fill(ctx, "#ffffff", "#605848", 1)
    line(ctx, (x - 6, y - 36), (x - 6, y - 38.6))
    line(ctx, (x - 6, y - 36), (x - 4, y - 36))
    stroke(ctx, "#403830", 0.9)
    for left in (6, 16, 26):
        rounded(ctx, x + left, y - 17, 4, 9, 2)
        fill(ctx, "#6888a0")


def garden(canvas, _):
    ctx = canvas.ctx
    sky(ctx, "#68b4f0", "#c8e8fc", bottom=70)
    circle(ctx, 488, 26, 15)
    fill(ctx, ball_shade(488, 26, 16, "#fffce0", "#ffe858", "#fcd028"))
    for x, y, size in ((90, 24, 10), (250, 16, 8), (388, 28, 10)):
        soft_cloud(ctx, x, y, size)
    hills(ctx, 62, 12, 2, 0.6, "#a0d080", "#70b050")
    top = hills(ctx, 76, 8, 3, 2.0, "#88c858", "#489030")
    for x, size in ((36, 44), (74, 34), (410, 46), (446, 34), (534, 40)):
        round_tree(ctx, x, top(x) + 4, size, "#58a040")
    small_house(ctx, 318, 84, 44, "#fff4d8", "#d05038")
    source = random.Random(5)
    for i in range(64):
        x = i * 9 + source.uniform(-3, 3)
        y = source.uniform(86, 104)
        curve(ctx, (x, y + 14), (x + 1, y + 8, x, y + 4, x, y))
        stroke(ctx, "#2c7820", 1.2)
        colour = source.choice(("#f06078", "#ffffff", "#f8b020", "#8878e8", "#f890b0"))
        blossom(ctx, x, y, source.uniform(4, 6.5), colour, "#f8d830" if colour != "#f8b020" else "#a05010")


def pitch(canvas, _):
    ctx = canvas.ctx
    sky(ctx, "#5ca8e8", "#c0e4fc", bottom=56)
    soft_cloud(ctx, 330, 18, 9)
    soft_cloud(ctx, 180, 26, 7)
    hills(ctx, 50, 5, 5, 1.0, "#4c8c40", "#3c7430")
    ctx.rectangle(0, 54, WIDTH, 56)
    fill(ctx, "#58b040")
    for i in range(-9, 10, 2):
        polygon(ctx, (280 + i * 30, 54), (280 + (i + 1) * 30, 54), (280 + (i + 1) * 66, HEIGHT), (280 + i * 66, HEIGHT))
        fill(ctx, "#68c04c")
    line(ctx, (0, 58), (WIDTH, 58))
    stroke(ctx, "#ffffff", 1.4)
    line(ctx, (120, 58), (40, 92), (520, 92), (440, 58))
    stroke(ctx, "#ffffff", 1.8)
    for i in range(0, 13):
        line(ctx, (206 + i * 12.3, 22), (214 + i * 11, 58))
    for i in range(5):
        line(ctx, (206 + i * 1.5, 22 + i * 8), (354 - i * 1.5, 22 + i * 8))
    stroke(ctx, "#f0f4f888", 0.8)
    line(ctx, (204, 60), (204, 20), (356, 20), (356, 60))
    stroke(ctx, "#ffffff", 3.4)
    ellipse(ctx, 118, 101, 24, 4)
    fill(ctx, "#00000040")
    football(ctx, 116, 78, 24, 12)


def village(canvas, _):
    ctx = canvas.ctx
    sky(ctx, "#78bcf0", "#e0f2fc", bottom=80)
    soft_cloud(ctx, 70, 22, 9)
    soft_cloud(ctx, 420, 18, 10)
    hills(ctx, 56, 16, 1.5, 2.4, "#a8c8c0", "#80b098")
    hills(ctx, 70, 10, 2, 0.4, "#98c878", "#68a850")
    ctx.rectangle(0, 92, WIDTH, 18)
    fill(ctx, downwards(92, HEIGHT, "#78b850", "#508c38"))
    walls = ("#fff4d8", "#f8e0c0", "#f4f0e8", "#ffe8c8", "#f0dcc8")
    roofs = ("#d05838", "#b84830", "#c86440")
    for i, x in enumerate((18, 66, 126, 178, 330, 386, 448, 504)):
        small_house(ctx, x, 92 + i % 3, 38 + i * 7 % 3 * 4, walls[i % 5], roofs[i % 3])
    church(ctx, 262, 93)
    for x, size in ((58, 34), (118, 40), (232, 38), (312, 44), (440, 36), (496, 42)):
        round_tree(ctx, x, 98, size, "#509840")
    curve(ctx, (250, HEIGHT), (268, 102, 266, 98, 268, 93), (276, 93, 280, 93, 280, 93),
          (284, 100, 296, 104, 312, HEIGHT))
    fill(ctx, "#e8d8b0")


def evening(canvas, _):
    ctx = canvas.ctx
    sky(ctx, "#283870", "#884880", "#f08058", "#fcd070", bottom=74)
    circle(ctx, 392, 58, 20)
    fill(ctx, ball_shade(392, 58, 22, "#fffce0", "#fff0a0", "#fcc858"))
    for x, y, width in ((150, 28, 90), (300, 40, 120), (470, 24, 70), (90, 50, 60)):
        ellipse(ctx, x, y, width / 2, 2.4)
        fill(ctx, "#f8a08890")
    hills(ctx, 70, 9, 2, 1.2, "#784068", "#583058")
    ctx.rectangle(0, 78, WIDTH, 32)
    fill(ctx, downwards(78, HEIGHT, "#f0a060", "#784068", "#302850"))
    source = random.Random(9)
    for i in range(60):
        y = 79 + i * 0.5
        x = 392 + source.uniform(-1, 1) * (10 + i * 0.5)
        line(ctx, (x - source.uniform(3, 16), y), (x + source.uniform(3, 16), y))
        stroke(ctx, "#fff0a870", 1)
    for x, base in ((-6, 10), (30, 5), (62, 12)):
        for i in range(9):
            lean = (i - 4) * 3.2
            foot = x + i * 3
            curve(ctx, (foot, HEIGHT), (foot, 96, foot + lean, 88, foot + lean * 1.4, 66 + base + abs(lean)))
            stroke(ctx, "#201838", 1.4)


def winter(canvas, _):
    ctx = canvas.ctx
    sky(ctx, "#7898c8", "#d0e0f4", "#f8f0f0", bottom=84)
    hills(ctx, 62, 15, 1.5, 0.5, "#f0f4fc", "#c0d0e8")
    top = hills(ctx, 82, 7, 2, 2.2, "#ffffff", "#d8e4f4")
    for x, size in ((30, 58), (62, 44), (96, 62), (430, 50), (466, 66), (508, 54), (540, 42)):
        for i, (up, half, low) in enumerate(((0.42, 0.3, 0.05), (0.68, 0.24, 0.32), (1, 0.17, 0.58))):
            y = top(x) + 6
            polygon(ctx, (x, y - up * size), (x + half * size, y - low * size), (x - half * size, y - low * size))
            fill(ctx, rightwards(x - half * size, x + half * size, "#487c68", "#244c44"))
            polygon(ctx, (x, y - up * size), (x + half * size * 0.6, y - (up - (up - low) * 0.6) * size),
                    (x, y - (up - 0.1) * size),
                    (x - half * size * 0.6, y - (up - (up - low) * 0.6) * size))
            fill(ctx, "#ffffff")
    small_house(ctx, 246, 92, 46, "#e8c898", "#f8fcff")
    source = random.Random(13)
    for _ in range(150):
        circle(ctx, source.uniform(0, WIDTH), source.uniform(0, HEIGHT), source.uniform(0.6, 1.7))
        fill(ctx, "#ffffff")


def band(canvas, _):
    """A staff that waves through the picture, elegant and without much colour."""
    ctx = canvas.ctx
    ctx.rectangle(0, 0, WIDTH, HEIGHT)
    fill(ctx, rightwards(0, WIDTH, "#182850", "#304c88", "#182850"))

    def height(x):
        return 42 + 14 * math.sin(x / WIDTH * 3.4 * math.pi + 0.6)
    for i in range(5):
        line(ctx, *((x, height(x) + i * 8) for x in range(0, WIDTH + 1, 2)))
        stroke(ctx, "#b8a060", 1)
    for i, x in enumerate(range(34, WIDTH - 20, 44)):
        with placed(ctx, x, height(x) + (26, 18, 30, 12, 22)[i % 5], scale=1.6):
            if i % 3 == 1:
                beamed(ctx, -6, 0, "#f8ecc0")
            else:
                note(ctx, 0, 0, "#f8ecc0", i % 3 == 0)


def autumn(canvas, _):
    ctx = canvas.ctx
    sky(ctx, "#fff4d8", "#fce0a8", bottom=HEIGHT)
    source = random.Random(17)
    for i in range(90):
        x, y = source.uniform(0, WIDTH), HEIGHT * (1 - source.random() ** 2.2 * 0.95)
        with placed(ctx, x, y, source.uniform(0, 360)):
            leaf(ctx, source.uniform(16, 28), source.choice(("#d85820", "#e88828", "#c83820", "#f0b030", "#98782c",
                                                             "#b04c18")))
            line(ctx, (-4, 0), (12, 0))
            stroke(ctx, "#7c4014", 0.9)


def plate(canvas, _):
    """The greeting on a raised grey and blue plate."""
    ctx, w, h = canvas.ctx, canvas.width, canvas.height
    ctx.rectangle(0, 0, w, h)
    fill(ctx, "#c8c8c8")
    bevel(ctx, 0, 0, w, h, "#ffffff", "#505050", 2)
    ctx.rectangle(6, 6, w - 12, h - 12)
    fill(ctx, rightwards(6, w - 6, "#102878", "#4888e0"))
    bevel(ctx, 5, 5, w - 10, h - 10, "#808080", "#f4f4f4")
    canvas.write(w // 2 + 2, h // 2 + 2, "Herzlich willkommen!", SANS_BOLD, 28, "#081440")
    canvas.write(w // 2, h // 2, "Herzlich willkommen!", SANS_BOLD, 28, "#ffffff")


def garland(canvas, _):
    """The greeting on a comic board that hangs on flowers."""
    ctx, w, h = canvas.ctx, canvas.width, canvas.height
    rounded(ctx, 14, 15, w - 24, h - 24, 12)
    fill(ctx, "#a06828")
    rounded(ctx, 11, 12, w - 24, h - 24, 12)
    fill(ctx, downwards(12, h - 12, "#fff4a0", "#f8cc48"), OUTLINE, 2.4)
    for x, y, size, colour in ((15, 17, 13, "#f06078"), (34, 11, 8, "#8878e8"), (w - 18, h - 19, 13, "#60a8f0"),
                               (w - 38, h - 12, 8, "#f06078"), (w - 20, 15, 9, "#ffffff"), (16, h - 16, 9, "#ffffff")):
        blossom(ctx, x, y, size, colour)
    canvas.write(w // 2, h // 2, "Willkommen!", ROUND, 32, "#c83020")


def invitation(canvas, _):
    """The greeting as on a printed card."""
    ctx, w, h = canvas.ctx, canvas.width, canvas.height
    for inset, width, colour in ((1, 1, "#8c7440"), (5, 2, "#c8a860")):
        ctx.rectangle(inset + width / 2, inset + width / 2, w - 2 * inset - width, h - 2 * inset - width)
        stroke(ctx, colour, width)
    for x, y in ((6, 6), (w - 6, 6), (6, h - 6), (w - 6, h - 6)):
        polygon(ctx, (x - 5, y), (x, y - 5), (x + 5, y), (x, y + 5))
        fill(ctx, "#fffcf0", "#8c7440", 1)
    canvas.write(w // 2, h // 2 - 1, "Herzlich willkommen", ELEGANT_BOLD, 31, "#483818")


def header(name, draw):
    return Picture(f"titel_{name}.jpg", WIDTH, HEIGHT, draw, "#ffffff", quality=86)


HEADERS = [
    header("abend", evening), header("dorf", village), header("garten", garden), header("herbst", autumn),
    header("musik", band), header("sportplatz", pitch), header("winter", winter),
]
WELCOMES = [
    Picture("willkommen_blau.gif", 380, 56, plate, "#ffffff"), Picture("willkommen_comic.gif", 320, 72, garland),
    Picture("willkommen_elegant.gif", 380, 64, invitation, "#fffcf0", colours=31),
]
