# SPDX-License-Identifier: MIT
"""Symbole, second part: what clubs and families write about: garden, sport, music, feasts, animals, weather."""

import math

from canvas import (OUTLINE, ball_shade, circle, curve, downwards, ellipse, fill, line,
                    placed, polygon, rightwards, rounded, star, stroke)
from picture import Picture
from rules import football, leaf
from symbols_page import outlined


def tulip(canvas, _):
    ctx = canvas.ctx
    curve(ctx, (24, 22), (23, 30, 25, 38, 24, 46))
    stroke(ctx, OUTLINE, 5)
    curve(ctx, (24, 22), (23, 30, 25, 38, 24, 46))
    stroke(ctx, "#48a030", 2.6)
    for side in (-1, 1):
        with placed(ctx, 24, 46):
            ctx.scale(side, 1)
            curve(ctx, (0, 0), (2, -10, 8, -16, 14, -18), (14, -10, 9, -2, 0, 0))
            outlined(ctx, "#68b848", 1.5)
    for x, turn in ((-5, -14), (5, 14)):
        with placed(ctx, 24 + x, 14, turn):
            ellipse(ctx, 0, 0, 6.5, 11)
            outlined(ctx, downwards(-11, 11, "#f88890", "#d83048"))
    ellipse(ctx, 24, 15, 6.2, 11.5)
    outlined(ctx, downwards(3, 27, "#ffa8ac", "#e84058"))


def sunflower(canvas, _):
    ctx = canvas.ctx
    curve(ctx, (24, 24), (25, 34, 23, 40, 24, 46))
    stroke(ctx, OUTLINE, 5.4)
    curve(ctx, (24, 24), (25, 34, 23, 40, 24, 46))
    stroke(ctx, "#58a838", 3)
    for side, y in ((1, 43), (-1, 45)):
        with placed(ctx, 24, y, -30 * side):
            ctx.scale(side, 1)
            leaf(ctx, 16, "#68b848")
    for ring, reach in ((0, 15.5), (15, 14)):
        for i in range(12):
            with placed(ctx, 24, 18, i * 30 + ring):
                ellipse(ctx, 0, -reach * 0.72, 3, reach * 0.38)
                fill(ctx, "#f8b818" if ring == 0 else "#ffd838", "#b87008", 0.9)
    circle(ctx, 24, 18, 8)
    outlined(ctx, ball_shade(24, 18, 9, "#b87838", "#804818", "#54280c"), 1.4)


def tree(canvas, _):
    ctx = canvas.ctx
    curve(ctx, (20, 46), (22, 40, 21, 34, 20, 28), (20, 28, 28, 28, 28, 28), (27, 34, 26, 40, 28, 46))
    ctx.close_path()
    outlined(ctx, rightwards(20, 28, "#a87040", "#704020"))
    for x, y, radius in ((14, 23, 10), (34, 23, 10), (24, 13, 11.5), (24, 25, 9)):
        circle(ctx, x, y, radius)
        fill(ctx, OUTLINE, OUTLINE, 3)
    for x, y, radius in ((14, 23, 10), (34, 23, 10), (24, 25, 9), (24, 13, 11.5)):
        circle(ctx, x, y, radius)
        fill(ctx, ball_shade(x, y, radius * 1.1, "#98d868", "#58b040", "#409030"))
    for x, y in ((13, 24), (23, 12), (32, 20), (24, 28), (36, 27), (29, 7)):
        circle(ctx, x, y, 2.3)
        fill(ctx, "#e83838", "#901818", 0.9)


def can(ctx):
    """A watering can that stands; its rose is at the left."""
    curve(ctx, (33, 16), (48, 10, 48, 38, 36, 37))
    stroke(ctx, OUTLINE, 5)
    curve(ctx, (33, 16), (48, 10, 48, 38, 36, 37))
    stroke(ctx, "#48a0d0", 2)
    polygon(ctx, (19, 36), (9, 19), (12, 17), (20, 27))
    outlined(ctx, "#58b0e0")
    with placed(ctx, 9.5, 17, -32):
        polygon(ctx, (-3, 2), (-6, -3.5), (6, -3.5), (3, 2))
        outlined(ctx, "#90d0f4", 1.5)
    polygon(ctx, (20, 18), (36, 18), (38, 42), (18, 42))
    outlined(ctx, rightwards(18, 38, "#b8e4fc", "#58b0e0", "#2870a8"))
    ellipse(ctx, 28, 18, 8, 2.6)
    outlined(ctx, "#286898", 1.5)
    line(ctx, (19, 36), (37.5, 36))
    stroke(ctx, "#286898", 1.2)


def watering_can(canvas, _):
    can(canvas.ctx)


def spade(canvas, _):
    ctx = canvas.ctx
    with placed(ctx, 24, 24, 35):
        rounded(ctx, -1.9, -18, 3.8, 25, 1.5)
        outlined(ctx, rightwards(-2, 2, "#e0a860", "#a06828"), 1.5)
        rounded(ctx, -6.5, -23, 13, 5.4, 2.6)
        outlined(ctx, "#c88c48", 1.5)
        curve(ctx, (-8, 6), (-8, 14, -7, 19, 0, 24), (7, 19, 8, 14, 8, 6))
        ctx.close_path()
        outlined(ctx, rightwards(-8, 8, "#eef2f6", "#a8b0bc", "#707888"))
        line(ctx, (0, 9), (0, 18))
        stroke(ctx, "#606878", 1.2)


def carrots(canvas, _):
    ctx = canvas.ctx
    for x, turn in ((-5, -16), (6, 14)):
        with placed(ctx, 24 + x, 16, turn):
            for spread in (-35, 0, 35):
                with placed(ctx, 0, 0, spread - 90):
                    leaf(ctx, 13, "#68b848")
            curve(ctx, (0, 29), (-3, 20, -8, 6, -6, 2), (-4, -2, 4, -2, 6, 2), (8, 6, 3, 20, 0, 29))
            outlined(ctx, rightwards(-6, 7, "#ffb060", "#f07818"))
            for y, left, right in ((7, -5, 0), (12, 0, 4), (17, -3, 0)):
                line(ctx, (left, y), (right, y + 0.8))
                stroke(ctx, "#b05008", 1.2)


def apple(canvas, _):
    ctx = canvas.ctx
    curve(ctx, (24, 15), (16, 8, 5, 13, 5, 26), (5, 38, 14, 47, 24, 42.5), (34, 47, 43, 38, 43, 26),
          (43, 13, 32, 8, 24, 15))
    outlined(ctx, ball_shade(22, 26, 22, "#ffb0a0", "#e83830", "#a81820"))
    curve(ctx, (24, 16), (23, 11, 24, 7, 26, 4))
    stroke(ctx, OUTLINE, 2.8)
    with placed(ctx, 25, 10, -22):
        leaf(ctx, 15, "#68b848")


def bee(ctx, wing=0.0):
    """Flies to the left; `wing` (-1 to 1) tells how high its wings are."""
    for x, turn in ((23, -28), (30, 18)):
        with placed(ctx, x, 21, turn + wing * 16):
            ellipse(ctx, 0, -9, 5, 9)
            fill(ctx, "#e4f4ff", "#6880a0", 1.2)
    polygon(ctx, (39, 27), (45, 29.5), (39, 32))
    fill(ctx, OUTLINE)
    ctx.save()
    ellipse(ctx, 27, 29, 14, 9.5)
    ctx.clip()
    ctx.rectangle(10, 18, 32, 22)
    fill(ctx, downwards(19, 39, "#ffe868", "#f8b818"))
    for x in (24, 32):
        ctx.rectangle(x, 18, 4, 22)
        fill(ctx, OUTLINE)
    ctx.restore()
    ellipse(ctx, 27, 29, 14, 9.5)
    stroke(ctx, OUTLINE, 1.8)
    for x, top in ((9, 13), (14, 12)):
        curve(ctx, (13, 22), (x + 1, 18, x, 16, x, top))
        stroke(ctx, OUTLINE, 1.5)
        circle(ctx, x, top, 1.6)
        fill(ctx, OUTLINE)
    circle(ctx, 13, 27, 7.8)
    outlined(ctx, ball_shade(13, 27, 9, "#fff498", "#f8c828"))
    ellipse(ctx, 11, 25.5, 1.7, 2.5)
    fill(ctx, OUTLINE)
    ctx.arc(11.5, 28.5, 3.2, math.radians(30), math.radians(140))
    stroke(ctx, OUTLINE, 1.3)


def honey_bee(canvas, _):
    bee(canvas.ctx)


def butterfly(ctx, spread=1.0):
    """A butterfly; `spread` tells how far its wings are open (above 0 to 1)."""
    for side in (-1, 1):
        with placed(ctx, 24, 25):
            ctx.scale(side * spread, 1)
            curve(ctx, (1, 2), (4, 18, 16, 22, 17, 12), (17.5, 4, 8, 1, 1, 0))
            outlined(ctx, downwards(0, 18, "#f8a030", "#e86020"))
            curve(ctx, (1, 0), (2, -14, 16, -24, 21, -17), (25, -8, 14, 4, 1, 2))
            outlined(ctx, ball_shade(12, -9, 14, "#ffe078", "#f8a828", "#e87020"))
            for x, y, radius in ((14, -11, 3), (11, 10, 2.2)):
                circle(ctx, x, y, radius)
                fill(ctx, "#5080e0", OUTLINE, 1)
        with placed(ctx, 24, 25):
            curve(ctx, (side * 0.5, -9), (side * 2, -15, side * 5, -18, side * 7, -19))
            stroke(ctx, OUTLINE, 1.4)
    ellipse(ctx, 24, 26, 2.6, 11)
    outlined(ctx, "#684838", 1.3)


def ball(canvas, _):
    football(canvas.ctx, 24, 24, 20, 10)


def cup(canvas, _):
    ctx = canvas.ctx
    for side in (-1, 1):
        with placed(ctx, 24, 0):
            ctx.scale(side, 1)
            curve(ctx, (12, 10), (22, 8, 20, 22, 9, 24))
            stroke(ctx, OUTLINE, 5)
            curve(ctx, (12, 10), (22, 8, 20, 22, 9, 24))
            stroke(ctx, "#e8b828", 2)
    curve(ctx, (11, 5), (11, 20, 16, 28, 22, 29), (22, 29, 22, 36, 22, 36), (22, 36, 26, 36, 26, 36),
          (26, 36, 26, 29, 26, 29),
          (32, 28, 37, 20, 37, 5))
    ctx.close_path()
    outlined(ctx, rightwards(11, 37, "#fff8b0", "#f8d040", "#d89818", "#f8d858"))
    rounded(ctx, 14, 36, 20, 8, 1.5)
    outlined(ctx, downwards(36, 44, "#a06838", "#683c18"))
    star(ctx, 24, 15.5, 5.6, 2.4)
    fill(ctx, "#fffce0", "#b07808", 1)


def tennis(canvas, _):
    ctx = canvas.ctx
    with placed(ctx, 29, 18, 42):
        rounded(ctx, -2.4, 17, 4.8, 17, 2)
        outlined(ctx, rightwards(-2.4, 2.4, "#806050", "#483020"), 1.5)
        polygon(ctx, (-6, 11), (6, 11), (1.8, 18), (-1.8, 18))
        outlined(ctx, "#e04038", 1.5)
        ellipse(ctx, 0, 0, 11, 14)
        fill(ctx, "#fffef4")
        ctx.save()
        ellipse(ctx, 0, 0, 11, 14)
        ctx.clip()
        for i in range(-12, 13, 4):
            line(ctx, (i, -15), (i, 15))
            line(ctx, (-12, i), (12, i))
        stroke(ctx, "#a8a898", 0.8)
        ctx.restore()
        ellipse(ctx, 0, 0, 11, 14)
        stroke(ctx, OUTLINE, 4.2)
        ellipse(ctx, 0, 0, 11, 14)
        stroke(ctx, "#e85048", 1.6)
    circle(ctx, 37.5, 38, 7)
    outlined(ctx, ball_shade(37.5, 38, 7.5, "#f8ffa8", "#d8e838", "#a0b018"))
    ctx.arc(30, 36, 7, math.radians(-30), math.radians(60))
    stroke(ctx, "#ffffff", 1.3)


def shirt(canvas, _):
    ctx = canvas.ctx
    polygon(ctx, (16, 6), (32, 6), (45, 14), (40, 24), (35, 21), (35, 43), (13, 43), (13, 21), (8, 24), (3, 14))
    outlined(ctx, rightwards(3, 45, "#3878d8", "#68a8f0", "#3878d8", "#2050a8"))
    for x in (16, 28):
        ctx.rectangle(x, 8, 4, 34)
        fill(ctx, "#ffffff")
    curve(ctx, (17, 6), (18, 13, 30, 13, 31, 6))
    ctx.close_path()
    outlined(ctx, "#ffffff", 1.5)
    line(ctx, (22.5, 21), (25.5, 18), (25.5, 32))
    stroke(ctx, "#ffe040", 2.6)


def whistle(canvas, _):
    ctx = canvas.ctx
    curve(ctx, (31, 16), (40, 4, 46, 14, 38, 18))
    stroke(ctx, "#d83838", 2.2)
    polygon(ctx, (3, 16), (35, 16), (35, 27), (3, 27))
    outlined(ctx, downwards(16, 27, "#f8fafc", "#98a0b0"))
    circle(ctx, 29, 28, 13)
    outlined(ctx, ball_shade(29, 28, 14, "#ffffff", "#c0c8d4", "#788090"))
    polygon(ctx, (4, 17.2), (24, 17.2), (24, 25.8), (4, 25.8))
    fill(ctx, downwards(16, 27, "#f8fafc", "#98a0b0"))
    polygon(ctx, (13, 16), (21, 16), (19, 21), (13, 21))
    fill(ctx, OUTLINE)
    circle(ctx, 29, 29, 4.6)
    outlined(ctx, "#586070", 1.4)


def medal(canvas, _):
    ctx = canvas.ctx
    for side in (-1, 1):
        with placed(ctx, 24, 26):
            ctx.scale(side, 1)
            polygon(ctx, (0, -4), (-13, -23), (-4, -23), (4, -10))
            outlined(ctx, "#3878d8" if side == 1 else "#e84040", 1.5)
    circle(ctx, 24, 31, 13)
    outlined(ctx, ball_shade(24, 31, 14, "#fff8b0", "#f0c030", "#b87810"))
    circle(ctx, 24, 31, 9.6)
    stroke(ctx, "#b07808", 1.2)
    line(ctx, (21.2, 28.2), (24.8, 25.6), (24.8, 37))
    stroke(ctx, "#804c08", 2.6)


def club(name, draw, size=48):
    return Picture(f"{name}.gif", size, size, draw)


PICTURES = [
    club("apfel", apple), club("baum", tree), club("biene", honey_bee), club("fussball", ball),
    club("giesskanne", watering_can), club("medaille", medal), club("moehren", carrots), club("pfeife", whistle),
    club("pokal", cup), club("schmetterling", lambda canvas, _: butterfly(canvas.ctx)), club("sonnenblume", sunflower),
    club("spaten", spade),
    club("tennis", tennis), club("trikot", shirt), club("tulpe", tulip),
]
