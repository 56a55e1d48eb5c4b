# SPDX-License-Identifier: MIT
"""What every picture is drawn with: a canvas in picture pixels, shapes, fillings, and lettering.

Shapes are drawn several times too large and reduced, so that inner edges are smooth. Lettering is set at its true size
afterwards: small letters are legible only when they sit on the pixel grid.
"""

import math
from contextlib import contextmanager

import cairo
from PIL import Image, ImageDraw, ImageFont

OVERSAMPLING = 4
OUTLINE = "#3a2c28"  # The warm dark line of the coloured comic style.

SANS = "LiberationSans-Regular.ttf"
SANS_BOLD = "LiberationSans-Bold.ttf"
ROUND = "URWGothic-Demi.otf"
ELEGANT = "P052-Italic.otf"
ELEGANT_BOLD = "P052-BoldItalic.otf"


def channels(colour):
    """Red, green, blue and opacity (0 to 1) of "#rrggbb" or "#rrggbbaa"."""
    parts = [int(colour[i:i + 2], 16) / 255 for i in range(1, len(colour), 2)]
    return (*parts, 1.0)[:4]


def mixed(first, second, share):
    """The colour that lies between two, `share` (0 to 1) of the way to the second."""
    pairs = zip(channels(first)[:3], channels(second)[:3])
    return "#" + "".join(f"{round(255 * (a + (b - a) * share)):02x}" for a, b in pairs)


def lighter(colour, share):
    return mixed(colour, "#ffffff", share)


def darker(colour, share):
    return mixed(colour, "#000000", share)


class Canvas:
    """One frame while it is drawn. `ctx` is the cairo context in picture pixels."""

    def __init__(self, width, height, ground=None):
        self.width, self.height, self._ground = width, height, ground
        self._surface = cairo.ImageSurface(cairo.FORMAT_ARGB32, width * OVERSAMPLING, height * OVERSAMPLING)
        self.ctx = cairo.Context(self._surface)
        self.ctx.scale(OVERSAMPLING, OVERSAMPLING)
        self.ctx.set_line_join(cairo.LINE_JOIN_ROUND)
        self.ctx.set_line_cap(cairo.LINE_CAP_ROUND)
        if ground:
            self.ctx.rectangle(0, 0, width, height)
            fill(self.ctx, ground)
        self._lettering = []

    def write(self, x, y, text, face, size, colour, crisp=False, anchor="mm"):
        """Sets `text` at that point (by Pillow's anchors); `crisp` letters have no soft edge at all."""
        self._lettering.append((x, y, text, face, size, colour, crisp, anchor))

    def image(self):
        """The finished RGBA picture. Without a ground every pixel is either there or not: nothing shines through that
        would show as a fringe on another ground."""
        self._surface.flush()
        size = self._surface.get_width(), self._surface.get_height()
        large = Image.frombuffer("RGBA", size, bytes(self._surface.get_data()), "raw", "BGRa",
                                 self._surface.get_stride(), 1)
        small = large.reduce(OVERSAMPLING)
        small.putalpha(small.getchannel("A").point(lambda alpha: 255 if alpha >= 128 else 0))
        for entry in self._lettering:
            self._set(small, *entry)
        return small

    @staticmethod
    def _set(image, x, y, text, face, size, colour, crisp, anchor):
        pen = ImageDraw.Draw(image)
        pen.fontmode = "1" if crisp else "L"
        # The plain layout engine is always there; the other one would make the bytes depend on how Pillow was built.
        font = ImageFont.truetype(face, size, layout_engine=ImageFont.Layout.BASIC)
        pen.text((x, y), text, font=font, fill=colour, anchor=anchor)


@contextmanager
def placed(ctx, x=0.0, y=0.0, turn=0.0, scale=1.0, scale_y=None):
    """Moves the origin there, turned by `turn` degrees clockwise and scaled."""
    ctx.save()
    ctx.translate(x, y)
    ctx.rotate(math.radians(turn))
    ctx.scale(scale, scale if scale_y is None else scale_y)
    yield
    ctx.restore()


def paint(ctx, filling):
    """Makes a colour or a cairo pattern the source."""
    if isinstance(filling, str):
        ctx.set_source_rgba(*channels(filling))
    else:
        ctx.set_source(filling)


def fill(ctx, filling, line=None, width=1.5):
    """Fills the path and, if told, outlines it."""
    paint(ctx, filling)
    if line is None:
        ctx.fill()
        return
    ctx.fill_preserve()
    stroke(ctx, line, width)


def stroke(ctx, line, width=1.5):
    paint(ctx, line)
    ctx.set_line_width(width)
    ctx.stroke()


def downwards(top, bottom, *colours):
    """A gradient from `top` to `bottom` through the colours at even distances."""
    return _graded(cairo.LinearGradient(0, top, 0, bottom), colours)


def rightwards(left, right, *colours):
    return _graded(cairo.LinearGradient(left, 0, right, 0), colours)


def ball_shade(x, y, radius, *colours):
    """A gradient that makes a disc look like a ball lit from the upper left."""
    return _graded(cairo.RadialGradient(x - radius * 0.35, y - radius * 0.4, radius * 0.05, x, y, radius), colours)


def _graded(gradient, colours):
    for i, colour in enumerate(colours):
        gradient.add_color_stop_rgba(i / (len(colours) - 1), *channels(colour))
    return gradient


def circle(ctx, x, y, radius):
    ctx.new_sub_path()
    ctx.arc(x, y, radius, 0, 2 * math.pi)


def ellipse(ctx, x, y, radius_x, radius_y, turn=0):
    with placed(ctx, x, y, turn, radius_x, radius_y):
        circle(ctx, 0, 0, 1)


def rounded(ctx, x, y, width, height, radius):
    ctx.new_sub_path()
    ctx.arc(x + width - radius, y + radius, radius, -math.pi / 2, 0)
    ctx.arc(x + width - radius, y + height - radius, radius, 0, math.pi / 2)
    ctx.arc(x + radius, y + height - radius, radius, math.pi / 2, math.pi)
    ctx.arc(x + radius, y + radius, radius, math.pi, 1.5 * math.pi)
    ctx.close_path()


def polygon(ctx, *points):
    line(ctx, *points)
    ctx.close_path()


def line(ctx, *points):
    ctx.move_to(*points[0])
    for point in points[1:]:
        ctx.line_to(*point)


def curve(ctx, start, *bends):
    """From `start` along Bézier curves, each told by its two handles and its end as six numbers."""
    ctx.move_to(*start)
    for bend in bends:
        ctx.curve_to(*bend)


def star(ctx, x, y, outer, inner, points=5, turn=-90):
    corners = []
    for i in range(2 * points):
        angle = math.radians(turn + 180 * i / points)
        radius = inner if i % 2 else outer
        corners.append((x + radius * math.cos(angle), y + radius * math.sin(angle)))
    polygon(ctx, *corners)


def heart(ctx, x, y, size):
    """A heart whose middle is that point and whose width is `size`."""
    with placed(ctx, x, y, scale=size / 2):
        curve(ctx, (0, 0.9), (-0.6, 0.4, -1, 0.1, -1, -0.35), (-1, -0.95, -0.2, -1, 0, -0.45),
              (0.2, -1, 1, -0.95, 1, -0.35), (1, 0.1, 0.6, 0.4, 0, 0.9))
        ctx.close_path()


def bevel(ctx, x, y, width, height, light, dark, edge=1):
    """The raised edge of a key: light above and left, dark below and right."""
    polygon(ctx, (x, y), (x + width, y), (x + width - edge, y + edge), (x + edge, y + edge),
            (x + edge, y + height - edge), (x, y + height))
    fill(ctx, light)
    polygon(ctx, (x + width, y + height), (x, y + height), (x + edge, y + height - edge),
            (x + width - edge, y + height - edge), (x + width - edge, y + edge), (x + width, y))
    fill(ctx, dark)
