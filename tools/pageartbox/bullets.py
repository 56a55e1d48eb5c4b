# SPDX-License-Identifier: MIT
"""Aufzählungszeichen: small marks before the lines of a list."""

from canvas import (ball_shade, bevel, circle, curve, darker, downwards, ellipse, fill, heart, lighter, line, placed,
                    polygon, rounded, star, stroke)
from picture import Picture
from rules import blossom, football, leaf, note, paw

SIZE = 16


def ball(colour):
    def draw(canvas, _):
        ctx = canvas.ctx
        circle(ctx, 8, 8, 7)
        fill(ctx, ball_shade(8, 8, 7.4, lighter(colour, 0.85), lighter(colour, 0.15), colour, darker(colour, 0.5)))
    return draw


def ring(colour):
    def draw(canvas, _):
        ctx = canvas.ctx
        circle(ctx, 8, 8, 5.2)
        stroke(ctx, colour, 2)
        circle(ctx, 8, 8, 2)
        fill(ctx, colour)
    return draw


def key(colour):
    """A raised square."""
    def draw(canvas, _):
        ctx = canvas.ctx
        ctx.rectangle(2, 2, 12, 12)
        fill(ctx, colour)
        bevel(ctx, 2, 2, 12, 12, lighter(colour, 0.6), darker(colour, 0.45), 2)
    return draw


def diamond(colour):
    """Four facets, each with its own light."""
    def draw(canvas, _):
        ctx = canvas.ctx
        top, right, bottom, left, middle = (8, 0.5), (15.5, 8), (8, 15.5), (0.5, 8), (8, 8)
        shades = (lighter(colour, 0.65), lighter(colour, 0.2), darker(colour, 0.45), darker(colour, 0.1))
        for first, second, shade in zip((left, top, right, bottom), (top, right, bottom, left), shades):
            polygon(ctx, first, second, middle)
            fill(ctx, shade, shade, 0.4)
    return draw


def triangle(colour):
    def draw(canvas, _):
        polygon(canvas.ctx, (3.5, 2), (13.5, 8), (3.5, 14))
        fill(canvas.ctx, downwards(2, 14, lighter(colour, 0.5), colour), darker(colour, 0.4), 1)
    return draw


def arrow(colour):
    def draw(canvas, _):
        polygon(canvas.ctx, (1.5, 5.5), (7.5, 5.5), (7.5, 1.5), (14.5, 8), (7.5, 14.5), (7.5, 10.5), (1.5, 10.5))
        fill(canvas.ctx, downwards(1, 15, lighter(colour, 0.6), colour, darker(colour, 0.2)), darker(colour, 0.5), 1.2)
    return draw


def chevrons(canvas, _):
    for x, colour in ((3, "#8c9cb8"), (8.5, "#30486c")):
        line(canvas.ctx, (x, 3.5), (x + 4.5, 8), (x, 12.5))
        stroke(canvas.ctx, colour, 1.8)


def yellow_star(canvas, _):
    star(canvas.ctx, 8, 8.6, 7.6, 3.3)
    fill(canvas.ctx, downwards(1, 15, "#fff078", "#f8c010"), "#98680c", 1.2)


def red_heart(canvas, _):
    heart(canvas.ctx, 8, 8.2, 14)
    fill(canvas.ctx, ball_shade(8, 7, 9, "#ffb0b0", "#f04050", "#c01830"), "#80101c", 1.2)


def tick(canvas, _):
    polygon(canvas.ctx, (1.5, 8.5), (4, 6.2), (6.4, 9), (12.6, 1.6), (14.8, 3.4), (6.6, 14.2))
    fill(canvas.ctx, downwards(2, 14, "#70d060", "#209028"), "#0c5818", 1.1)


def green_leaf(canvas, _):
    ctx = canvas.ctx
    with placed(ctx, 2.6, 13.4, -42):
        leaf(ctx, 15, "#58b03c")
        line(ctx, (-1.5, 0), (10, 0))
        stroke(ctx, "#2c6420", 1.1)


def flower(colour, middle):
    return lambda canvas, _: blossom(canvas.ctx, 8, 8, 7.4, colour, middle)


def quaver(canvas, _):
    with placed(canvas.ctx, 0.6, 0, scale=0.98):
        note(canvas.ctx, 5, 13, "#2c60c0")


def leather_ball(canvas, _):
    football(canvas.ctx, 8, 8, 7.3, 12)


def paw_print(canvas, _):
    paw(canvas.ctx, 8, 8.6, 0, "#7c5438", 1.35)


def sun(canvas, _):
    ctx = canvas.ctx
    star(ctx, 8, 8, 7.8, 4.6, 9)
    fill(ctx, "#f8a818")
    circle(ctx, 8, 8, 4.2)
    fill(ctx, ball_shade(8, 8, 4.4, "#fff8a0", "#f8d820"), "#e08810", 0.9)


def pencil(canvas, _):
    ctx = canvas.ctx
    with placed(ctx, 8, 8, 45):
        ctx.rectangle(-2.2, -7.5, 4.4, 10.5)
        fill(ctx, "#f8c828", "#80580c", 1)
        polygon(ctx, (-2.2, 3), (2.2, 3), (0, 8))
        fill(ctx, "#f4dcb0", "#80580c", 1)
        polygon(ctx, (-0.9, 6), (0.9, 6), (0, 8))
        fill(ctx, "#303030")
        ctx.rectangle(-2.2, -8.5, 4.4, 2.4)
        fill(ctx, "#e86868", "#80580c", 1)


def pin(canvas, _):
    ctx = canvas.ctx
    line(ctx, (7, 9), (2, 14.5))
    stroke(ctx, "#707880", 1.4)
    with placed(ctx, 9, 7, 45):
        polygon(ctx, (-3, -5), (3, -5), (1.6, 0), (4, 3.4), (-4, 3.4), (-1.6, 0))
        fill(ctx, "#e03838", "#801818", 1)
        ellipse(ctx, 0, -5, 3.2, 1.5)
        fill(ctx, "#f47070", "#801818", 1)


def card(canvas, _):
    """A referee's yellow card."""
    with placed(canvas.ctx, 8, 8, 12):
        rounded(canvas.ctx, -4, -6, 8, 12, 1)
        fill(canvas.ctx, downwards(-6, 6, "#fff070", "#f8cc10"), "#907008", 1.1)


def carrot(canvas, _):
    ctx = canvas.ctx
    for turn in (-32, 0, 32):
        with placed(ctx, 10.6, 5.4, turn + 45):
            ellipse(ctx, 0, -3, 1.1, 2.8)
            fill(ctx, "#58b03c", "#2c6c20", 0.6)
    with placed(ctx, 10.6, 5.4, 45):
        curve(ctx, (0, 11.5), (-2, 8, -4, 2, -3, 0), (-2, -1.6, 2, -1.6, 3, 0), (4, 2, 2, 8, 0, 11.5))
        fill(ctx, "#f88c20", "#984808", 1)


def mark(name, draw):
    return Picture(f"{name}.gif", SIZE, SIZE, draw, colours=31)


PICTURES = [
    mark("ball_blau", ball("#2060d0")), mark("ball_gelb", ball("#f0b810")), mark("ball_grau", ball("#808890")),
    mark("ball_gruen", ball("#28983c")), mark("ball_rot", ball("#d82828")), mark("blatt_gruen", green_leaf),
    mark("blume_blau", flower("#7088e8", "#f8d030")), mark("blume_rosa", flower("#f488a8", "#f8d030")),
    mark("doppelwinkel_blau", chevrons), mark("dreieck_blau", triangle("#3060b0")),
    mark("dreieck_rot", triangle("#c03030")), mark("fussball", leather_ball), mark("haken_gruen", tick),
    mark("herz_rot", red_heart), mark("karte_gelb", card), mark("moehre", carrot), mark("note_blau", quaver),
    mark("pfeil_blau", arrow("#2868d0")), mark("pfeil_gruen", arrow("#30a040")), mark("pfeil_rot", arrow("#d83030")),
    mark("pfote_braun", paw_print), mark("pinnadel_rot", pin), mark("quadrat_blau", key("#3868c0")),
    mark("quadrat_grau", key("#c0c0c0")), mark("raute_blau", diamond("#4070c0")),
    mark("raute_gold", diamond("#d8a828")),
    mark("ring_blau", ring("#304878")), mark("ring_rot", ring("#902838")), mark("sonne_gelb", sun),
    mark("stern_gelb", yellow_star), mark("stift_gelb", pencil),
]
