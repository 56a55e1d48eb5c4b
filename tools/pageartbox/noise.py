# SPDX-License-Identifier: MIT
"""Cloudy values that repeat without a seam, for papers, woods and skies."""

import random

import cairo

from canvas import channels


def lattice(columns, rows, seed):
    """Random values from 0 to 1; a column or row behind the last is the first again."""
    source = random.Random(seed)
    return [[source.random() for _ in range(columns)] for _ in range(rows)]


def _eased(share):
    return share * share * (3 - 2 * share)


def smooth(values, x, y):
    """The value between the points of a lattice, `x` and `y` counted in points."""
    rows, columns = len(values), len(values[0])
    left, top = int(x), int(y)
    across, down = _eased(x - left), _eased(y - top)
    upper, lower = values[top % rows], values[(top + 1) % rows]
    above = upper[left % columns] + (upper[(left + 1) % columns] - upper[left % columns]) * across
    below = lower[left % columns] + (lower[(left + 1) % columns] - lower[left % columns]) * across
    return above + (below - above) * down


class Field:
    """Several layers of noise over a tile of `width` by `height` pixels. `layers` tells for each how many lattice
    columns and rows it has and how much it weighs."""

    def __init__(self, width, height, layers, seed):
        self._width, self._height = width, height
        self._layers = [(lattice(columns, rows, seed * 100 + i), weight)
                        for i, (columns, rows, weight) in enumerate(layers)]
        self._total = sum(weight for _, _, weight in layers)

    def at(self, x, y):
        """From 0 to 1."""
        x, y = x % self._width / self._width, y % self._height / self._height
        return sum(weight * smooth(values, x * len(values[0]), y * len(values))
                   for values, weight in self._layers) / self._total


def paint_dots(canvas, colour_at):
    """Gives every pixel of the canvas the (r, g, b) that `colour_at(x, y)` tells, each from 0 to 255."""
    width, height = canvas.width, canvas.height
    data = bytearray()
    for y in range(height):
        for x in range(width):
            r, g, b = colour_at(x, y)
            data += bytes((int(b), int(g), int(r), 0))
    surface = cairo.ImageSurface.create_for_data(data, cairo.FORMAT_RGB24, width, height)
    canvas.ctx.set_source_surface(surface, 0, 0)
    canvas.ctx.get_source().set_filter(cairo.FILTER_NEAREST)
    canvas.ctx.paint()


def shaded(colours, share):
    """The (r, g, b) at `share` (0 to 1) of the way through the colours."""
    place = min(max(share, 0), 0.9999) * (len(colours) - 1)
    first, second = (channels(colour) for colour in colours[int(place):int(place) + 2])
    return [255 * (a + (b - a) * (place % 1)) for a, b in zip(first[:3], second[:3])]
