# SPDX-License-Identifier: MIT
"""The things the figure plays with. Every one grows from nothing with `size`, so that it can come and go."""

import math

from figure import AMBER, BERRY, EDGE, OUTLINE, PALE, PUPIL, SIGN, THREAD, WHITE, YELLOW
from figure import ellipse, fill, outlined, polyline, stroke

SMALLEST = 0.25  # Below this size a thing is not drawn at all.


def _placed(draw_inside):
    """Gives a drawing routine its place: it draws around the origin in full size."""

    def draw(ctx, x, y, size, *rest, turn=0):
        if size < SMALLEST:
            return
        ctx.save()
        ctx.translate(x, y)
        ctx.rotate(math.radians(turn))
        ctx.scale(size, size)
        draw_inside(ctx, *rest)
        ctx.restore()

    return draw


@_placed
def star(ctx):
    """A spark with four points."""
    points = []
    for i in range(8):
        radius = 11 if i % 2 == 0 else 4.2
        points.append((radius * math.sin(i * math.pi / 4), -radius * math.cos(i * math.pi / 4)))
    polyline(ctx, points)
    ctx.close_path()
    outlined(ctx, YELLOW, 1.9, AMBER)


@_placed
def warning_sign(ctx):
    polyline(ctx, [(0, -12), (13.5, 10.5), (-13.5, 10.5)])
    ctx.close_path()
    stroke(ctx, AMBER, 9, keep=True)
    stroke(ctx, SIGN, 4.6, keep=True)
    fill(ctx, SIGN)
    polyline(ctx, [(0, -6), (0, 2.5)])
    stroke(ctx, PUPIL, 4)
    ellipse(ctx, 0, 8.2, 2.2, 2.2)
    fill(ctx, PUPIL)


@_placed
def bubble(ctx):
    ellipse(ctx, 0, 0, 6, 6)
    outlined(ctx, PALE, 2, THREAD)


@_placed
def glyph(ctx, character):
    """A piece of a tag: one of "<", "/" and ">"."""
    points = {"<": [(5, -9), (-5.5, 0), (5, 9)], "/": [(4, -11), (-4, 11)], ">": [(-5, -9), (5.5, 0), (-5, 9)]}
    polyline(ctx, points[character])
    stroke(ctx, OUTLINE, 6 + 2 * EDGE, keep=True)
    stroke(ctx, BERRY if character == "/" else YELLOW, 6)


@_placed
def dust(ctx):
    ellipse(ctx, 0, 0, 5, 4)
    outlined(ctx, PALE, 1.8, THREAD)


@_placed
def web(ctx, progress):
    """A round web in a hoop. With `progress` from 0 to 1 its spokes come first, then its rings from the inside out."""
    radius = 19
    ellipse(ctx, 0, 0, radius, radius)
    outlined(ctx, PALE)
    spokes, rings = 8, 2
    drawn = progress * 2 * spokes
    for i in range(spokes):
        length = radius * min(1, max(0, drawn - i))
        if length > 0:
            angle = i * 2 * math.pi / spokes - math.pi / 2
            polyline(ctx, [(0, 0), (length * math.cos(angle), length * math.sin(angle))])
            stroke(ctx, THREAD, 1.7)
    steps = max(0, progress * 2 - 1) * spokes * rings
    for i in range(math.ceil(steps)):
        part = min(1, steps - i)
        distance = radius * (i // spokes + 1) / (rings + 0.6)
        first = i % spokes * 2 * math.pi / spokes - math.pi / 2
        second = first + 2 * math.pi / spokes * part
        middle = (first + second) / 2
        sag = distance * 0.78
        ctx.move_to(distance * math.cos(first), distance * math.sin(first))
        ctx.curve_to(*[sag * math.cos(middle), sag * math.sin(middle)] * 2,
                     distance * math.cos(second), distance * math.sin(second))
        stroke(ctx, THREAD, 1.7)
    ellipse(ctx, -radius * 0.42, -radius * 0.5, 3, 2)
    fill(ctx, WHITE)
