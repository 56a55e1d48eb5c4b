# SPDX-License-Identifier: MIT
"""Knöpfe: buttons with German lettering in four styles, and arrow keys without words."""

from canvas import (ELEGANT, OUTLINE, ROUND, SANS_BOLD, ball_shade, bevel, circle, darker, downwards, fill, lighter,
                    line,
                    placed, polygon, rounded, stroke)
from picture import Picture

LABELS = {
    "start": "Start", "zurueck": "Zurück", "weiter": "Weiter", "gaestebuch": "Gästebuch", "termine": "Termine",
    "bilder": "Bilder", "ueber_uns": "Über uns", "kontakt": "Kontakt", "impressum": "Impressum",
}


def grey_key(label):
    """A key of the grey desktops of the nineties."""
    def draw(canvas, _):
        ctx, w, h = canvas.ctx, canvas.width, canvas.height
        ctx.rectangle(0, 0, w, h)
        fill(ctx, "#c8c8c8")
        bevel(ctx, 0, 0, w, h, "#ffffff", "#404040")
        bevel(ctx, 1, 1, w - 2, h - 2, "#e4e4e4", "#888888", 1)
        canvas.write(w // 2, h // 2, label, SANS_BOLD, 12, "#102060", crisp=True)
    return draw


def blue_bar(label):
    """A rounded blue bar with a gloss on its upper half."""
    def draw(canvas, _):
        ctx, w, h = canvas.ctx, canvas.width, canvas.height
        rounded(ctx, 0.5, 0.5, w - 1, h - 1, h / 2 - 0.5)
        fill(ctx, downwards(0, h, "#4c8ce4", "#1c54b4", "#123c88"), "#0c2860", 1)
        rounded(ctx, 4, 2, w - 8, h / 2 - 3, h / 4 - 1.5)
        fill(ctx, downwards(2, h / 2, "#b8d8fc", "#5c98e8"))
        canvas.write(w // 2 + 1, h // 2 + 1, label, SANS_BOLD, 13, "#0c2860")
        canvas.write(w // 2, h // 2, label, SANS_BOLD, 13, "#ffffff")
    return draw


def comic_sign(label, colour):
    """A friendly coloured sign with a thick line and a shadow."""
    def draw(canvas, _):
        ctx, w, h = canvas.ctx, canvas.width, canvas.height
        rounded(ctx, 2.5, 3.5, w - 3, h - 4, 9)
        fill(ctx, darker(colour, 0.45))
        rounded(ctx, 1, 1, w - 4, h - 5, 9)
        fill(ctx, downwards(0, h, lighter(colour, 0.5), colour), OUTLINE, 1.8)
        canvas.write(w // 2 - 1, h // 2 - 1, label, ROUND, 14, "#3a2018")
    return draw


def elegant_plate(label):
    """Slanted lettering between two fine lines."""
    def draw(canvas, _):
        ctx, w, h = canvas.ctx, canvas.width, canvas.height
        for y in (0, h - 1):
            ctx.rectangle(0, y, w, 1)
            fill(ctx, "#8c7440")
        for y in (2, h - 3):
            ctx.rectangle(0, y, w, 1)
            fill(ctx, "#d8c898")
        canvas.write(w // 2, h // 2, label, ELEGANT, 17, "#483818")
    return draw


def _arrow(ctx, turn):
    with placed(ctx, 12, 12, turn):
        polygon(ctx, (6, 0), (-1, -6), (-1, -2.5), (-6, -2.5), (-6, 2.5), (-1, 2.5), (-1, 6))


def _house(ctx):
    polygon(ctx, (12, 4.5), (20, 12), (17.5, 12), (17.5, 19), (13.8, 19), (13.8, 14), (10.2, 14), (10.2, 19), (6.5, 19),
            (6.5, 12), (4, 12))


def _letter(ctx):
    ctx.rectangle(5, 7.5, 14, 10)
    line(ctx, (5, 7.5), (12, 13.5), (19, 7.5))


def small_grey_key(shape):
    def draw(canvas, _):
        ctx = canvas.ctx
        ctx.rectangle(0, 0, 24, 24)
        fill(ctx, "#c8c8c8")
        bevel(ctx, 0, 0, 24, 24, "#ffffff", "#404040")
        bevel(ctx, 1, 1, 22, 22, "#e4e4e4", "#888888")
        shape(ctx)
        if shape is _letter:
            stroke(ctx, "#102060", 1.4)
        else:
            fill(ctx, "#102060")
    return draw


def round_key(shape, colour):
    """A glossy disc."""
    def draw(canvas, _):
        ctx = canvas.ctx
        with placed(ctx, scale=32 / 24):
            circle(ctx, 12, 12, 11.4)
            fill(ctx, ball_shade(12, 12, 12, lighter(colour, 0.75), colour, darker(colour, 0.35)),
                 darker(colour, 0.55), 1)
            with placed(ctx, 2.2, 2.2, scale=0.82):
                shape(ctx)
            if shape is _letter:
                stroke(ctx, "#ffffff", 1.6)
            else:
                fill(ctx, "#ffffff")
    return draw


SHAPES = {
    "pfeil_rechts": lambda ctx: _arrow(ctx, 0), "pfeil_runter": lambda ctx: _arrow(ctx, 90),
    "pfeil_links": lambda ctx: _arrow(ctx, 180), "pfeil_hoch": lambda ctx: _arrow(ctx, 270), "haus": _house,
    "brief": _letter,
}
COMIC_COLOURS = ("#f8c828", "#f89038", "#78c848", "#f07888", "#60b8e8", "#f8c828", "#b088e0", "#78c848", "#f89038")


def _lettered():
    for (name, label), colour in zip(LABELS.items(), COMIC_COLOURS):
        yield Picture(f"knopf_{name}_grau.gif", 96, 24, grey_key(label), "#ffffff", colours=15)
        yield Picture(f"knopf_{name}_blau.gif", 108, 26, blue_bar(label), colours=63)
        yield Picture(f"knopf_{name}_comic.gif", 108, 32, comic_sign(label, colour), colours=31)
        yield Picture(f"knopf_{name}_elegant.gif", 104, 30, elegant_plate(label), "#fffcf0", colours=15)


def _wordless():
    for name, shape in SHAPES.items():
        yield Picture(f"taste_{name}_grau.gif", 24, 24, small_grey_key(shape), "#ffffff", colours=15)
        yield Picture(f"taste_{name}_rund.gif", 32, 32, round_key(shape, "#2c6cc8"), colours=31)


PICTURES = [*_lettered(), *_wordless()]
