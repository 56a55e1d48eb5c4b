# SPDX-License-Identifier: MIT
"""Symbole, first part: the signs that lead through a site, coloured, and once more as plain line drawings."""

import math

from canvas import (OUTLINE, SANS_BOLD, ball_shade, circle, curve, downwards, ellipse, fill, line, placed, polygon,
                    rightwards, rounded, stroke)
from picture import Picture

SIZE = 48
EDGE = 1.8


def outlined(ctx, filling, width=EDGE):
    fill(ctx, filling, OUTLINE, width)


def house(canvas, _):
    ctx = canvas.ctx
    ctx.rectangle(32, 7, 5, 11)
    outlined(ctx, "#b85838")
    ctx.rectangle(9, 22, 30, 22)
    outlined(ctx, downwards(22, 44, "#fff8dc", "#f4dca8"))
    polygon(ctx, (24, 4), (45, 24), (3, 24))
    outlined(ctx, downwards(4, 24, "#f07850", "#c83c28"))
    ctx.rectangle(13, 30, 8, 14)
    outlined(ctx, rightwards(13, 21, "#a87040", "#885028"))
    circle(ctx, 19, 37.5, 0.9)
    fill(ctx, "#f8d860")
    ctx.rectangle(26, 29, 9, 9)
    outlined(ctx, "#a8dcf4")
    line(ctx, (30.5, 29), (30.5, 38))
    line(ctx, (26, 33.5), (35, 33.5))
    stroke(ctx, OUTLINE, 1.2)


def envelope(ctx):
    rounded(ctx, 3, 10, 42, 29, 2)
    outlined(ctx, downwards(10, 39, "#ffffff", "#e4ecf8"))
    line(ctx, (4, 38), (19, 24), (29, 24), (44, 38))
    stroke(ctx, "#8c98b0", 1.4)
    polygon(ctx, (4, 10.5), (24, 28), (44, 10.5))
    outlined(ctx, downwards(10, 28, "#f8fbff", "#d4e0f4"))
    circle(ctx, 24, 26, 4.4)
    fill(ctx, ball_shade(24, 26, 5, "#f89090", "#d82830"), "#801018", 1.2)


def letter(canvas, _):
    envelope(canvas.ctx)


def telephone(ctx):
    """The desk telephone of the Bundespost, without its receiver."""
    curve(ctx, (15, 21), (17, 18, 31, 18, 33, 21), (36, 28, 42, 32, 42, 38), (42, 42, 40, 43, 38, 43),
          (38, 43, 10, 43, 10, 43),
          (8, 43, 6, 42, 6, 38), (6, 32, 12, 28, 15, 21))
    outlined(ctx, downwards(18, 43, "#f87858", "#c82c28"))
    circle(ctx, 24, 31.5, 8.4)
    outlined(ctx, "#f8f4ec", 1.4)
    for i in range(10):
        angle = math.radians(-50 + i * 30)
        circle(ctx, 24 + 5.9 * math.cos(angle), 31.5 + 5.9 * math.sin(angle), 1.25)
        fill(ctx, "#605850")
    circle(ctx, 24, 31.5, 2.6)
    fill(ctx, "#c83c30")


def receiver(ctx):
    curve(ctx, (5, 20), (3, 6, 45, 6, 43, 20), (43, 23, 33, 23, 33, 20), (33, 14, 15, 14, 15, 20),
          (15, 23, 5, 23, 5, 20))
    ctx.close_path()
    outlined(ctx, downwards(8, 22, "#f89070", "#c02824"))


def phone(canvas, _):
    telephone(canvas.ctx)
    receiver(canvas.ctx)


def guest_book(canvas, _):
    ctx = canvas.ctx
    curve(ctx, (24, 14), (18, 8, 8, 8, 3, 11), (3, 11, 3, 40, 3, 40), (9, 37, 18, 37, 24, 42), (30, 37, 39, 37, 45, 40),
          (45, 40, 45, 11, 45, 11), (40, 8, 30, 8, 24, 14))
    outlined(ctx, rightwards(3, 45, "#ffffff", "#fffbe8", "#d8d0b8", "#fffbe8", "#ffffff"))
    line(ctx, (24, 14), (24, 41))
    stroke(ctx, OUTLINE, 1.4)
    for y in (17, 22, 27, 32):
        curve(ctx, (7, y), (12, y - 2, 17, y - 1, 21, y + 2))
        stroke(ctx, "#8090b8", 1.2)
    for y in (18, 23):
        curve(ctx, (28, y + 1), (32, y - 2, 37, y - 2, 41, y - 1))
        stroke(ctx, "#8090b8", 1.2)
    with placed(ctx, 30, 36, 40):
        polygon(ctx, (0, 0), (-2.4, -6), (-2.4, -25), (2.4, -25), (2.4, -6))
        outlined(ctx, rightwards(-2.4, 2.4, "#60a8f0", "#2060b8"), 1.4)
        polygon(ctx, (0, 0), (-2.4, -6), (2.4, -6))
        outlined(ctx, "#f8d890", 1.2)


def calendar(canvas, _):
    ctx = canvas.ctx
    rounded(ctx, 6, 8, 36, 36, 2.5)
    outlined(ctx, downwards(8, 44, "#ffffff", "#f0ece0"))
    polygon(ctx, (6, 18), (6, 9.5), (7.5, 8), (40.5, 8), (42, 9.5), (42, 18))
    outlined(ctx, downwards(8, 18, "#f07060", "#d03830"))
    for x in (14, 34):
        rounded(ctx, x - 2, 4, 4, 9, 2)
        outlined(ctx, "#d8d8e0", 1.3)
    for row in range(3):
        for column in range(5):
            rounded(ctx, 10 + column * 6, 22 + row * 7, 4, 4.6, 0.8)
            fill(ctx, "#e84838" if (row, column) == (1, 3) else "#a8b4cc")


def camera(canvas, _):
    ctx = canvas.ctx
    rounded(ctx, 15, 8, 16, 10, 3)
    outlined(ctx, "#889098")
    rounded(ctx, 3, 13, 42, 28, 4)
    outlined(ctx, downwards(13, 41, "#a8b0bc", "#5c6470"))
    ctx.rectangle(4, 20, 40, 3)
    fill(ctx, "#484e58")
    circle(ctx, 24, 28, 10.5)
    outlined(ctx, "#e0e4ea")
    circle(ctx, 24, 28, 7.2)
    outlined(ctx, ball_shade(24, 28, 7.5, "#c8e8ff", "#3870b8", "#102048"), 1.2)
    ctx.rectangle(35, 16, 6, 3.6)
    outlined(ctx, "#fff4b0", 1.1)
    ctx.rectangle(7, 10, 6, 3)
    outlined(ctx, "#e04840", 1.1)


def magnifier(canvas, _):
    ctx = canvas.ctx
    with placed(ctx, 19.5, 19.5, -45):
        rounded(ctx, -3, 15, 6, 19, 3)
        outlined(ctx, rightwards(-3, 3, "#d89850", "#8c5420"))
    circle(ctx, 19.5, 19.5, 15)
    outlined(ctx, "#c8ccd4")
    circle(ctx, 19.5, 19.5, 11.5)
    outlined(ctx, ball_shade(19.5, 19.5, 12, "#ffffff", "#d8f0fc", "#90c8ec"), 1.4)
    ctx.arc(19.5, 19.5, 8, math.radians(190), math.radians(255))
    stroke(ctx, "#ffffff", 2)


def printer(canvas, _):
    ctx = canvas.ctx
    polygon(ctx, (13, 20), (13, 4), (31, 4), (36, 9), (36, 20))
    outlined(ctx, "#ffffff", 1.5)
    for y in (10, 14):
        line(ctx, (17, y), (31, y))
        stroke(ctx, "#90a8d0", 1.3)
    rounded(ctx, 3, 19, 42, 19, 3)
    outlined(ctx, downwards(19, 38, "#f0ece0", "#b8b0a0"))
    circle(ctx, 39, 24.5, 1.6)
    fill(ctx, "#30b040")
    polygon(ctx, (11, 31), (37, 31), (40, 44), (8, 44))
    outlined(ctx, "#ffffff", 1.5)
    for y in (35.5, 39.5):
        line(ctx, (15, y), (33, y))
        stroke(ctx, "#90a8d0", 1.3)


def floppy(canvas, _):
    ctx = canvas.ctx
    polygon(ctx, (5, 5), (39, 5), (43, 9), (43, 43), (5, 43))
    outlined(ctx, downwards(5, 43, "#5888d8", "#2850a0"))
    ctx.rectangle(14, 5, 19, 13)
    outlined(ctx, rightwards(14, 33, "#f0f0f4", "#b8bcc8"), 1.4)
    ctx.rectangle(26, 7, 4, 9)
    fill(ctx, "#405078")
    ctx.rectangle(10, 24, 28, 19)
    outlined(ctx, "#ffffff", 1.4)
    for y in (29, 33, 37):
        line(ctx, (14, y), (34, y))
        stroke(ctx, "#e08080", 1.3)


def building_site(canvas, _):
    """The warning triangle; its little man shovels."""
    ctx = canvas.ctx
    polygon(ctx, (24, 5), (45, 42), (3, 42))
    fill(ctx, "#d82820", "#d82820", 5)
    polygon(ctx, (24, 11.5), (39, 38.5), (9, 38.5))
    fill(ctx, "#ffffff")
    circle(ctx, 22.6, 19.5, 2.1)
    fill(ctx, "#181818")
    line(ctx, (22, 22.8), (19.6, 29), (21.5, 31), (20, 36.8))
    line(ctx, (19.6, 29), (17.6, 32.5), (15.5, 36.8))
    stroke(ctx, "#181818", 2.4)
    line(ctx, (21.8, 23.6), (24.5, 26.6), (27, 27.6))
    stroke(ctx, "#181818", 1.9)
    line(ctx, (21.5, 26.6), (30, 32))
    stroke(ctx, "#181818", 1.3)
    curve(ctx, (25.5, 37.4), (27, 31, 33, 30, 36.5, 37.4))
    fill(ctx, "#181818")


def globe(ctx, turn=0.0):
    """The earth; `turn` (0 to 1) tells how far it has rotated."""
    circle(ctx, 24, 24, 19.5)
    outlined(ctx, ball_shade(24, 24, 21, "#d0f0ff", "#58b0f0", "#2068c0"))
    ctx.save()
    circle(ctx, 24, 24, 18.6)
    ctx.clip()
    for longitude, latitude, radius_x, radius_y, tilt in LANDS:
        around = (longitude + turn + 0.5) % 1 - 0.5
        if abs(around) < 0.32:
            angle = around * 2 * math.pi
            with placed(ctx, 24 + 19 * math.sin(angle), 24 + latitude):
                ctx.scale(max(0.12, math.cos(angle)), 1)
                ellipse(ctx, 0, 0, radius_x, radius_y, tilt)
                fill(ctx, "#58b040")
    ctx.restore()
    circle(ctx, 24, 24, 19.5)
    stroke(ctx, OUTLINE, EDGE)


LANDS = ((-0.02, -9, 7, 4, -15), (0.02, 0, 5, 5, 0), (0.05, 6, 4, 8, 8), (0.14, -10, 9, 5, 10), (0.2, -4, 6, 5, 0),
         (0.3, 11, 5, 3.5, 0), (0.68, -9, 8, 5.5, -10), (0.72, -2, 3, 4, 30), (0.77, 8, 4.5, 8, 12),
         (0.9, -15, 5, 2, 0))


def world(canvas, _):
    globe(canvas.ctx)


def folder(canvas, _):
    ctx = canvas.ctx
    polygon(ctx, (4, 40), (4, 12), (7, 9), (18, 9), (21, 13), (41, 13), (41, 40))
    outlined(ctx, "#e0a830")
    ctx.rectangle(9, 16, 28, 16)
    outlined(ctx, "#ffffff", 1.3)
    polygon(ctx, (4, 40), (9, 20), (46, 20), (41, 40))
    outlined(ctx, downwards(20, 40, "#fff0a0", "#f4c848"))


def key(canvas, _):
    ctx = canvas.ctx
    with placed(ctx, 15, 15, -45):
        polygon(ctx, (-2.6, 9), (2.6, 9), (2.6, 36), (-2.6, 36))
        for y in (24, 31):
            polygon(ctx, (2.6, y), (8, y), (8, y + 4), (2.6, y + 4))
        outlined(ctx, "#f0c840")
        circle(ctx, 0, 0, 11)
        circle(ctx, 0, -2, 3.8)
        ctx.set_fill_rule(1)
        outlined(ctx, ball_shade(0, 0, 12, "#fff8b0", "#f0c840", "#c88818"))


def light_bulb(canvas, _):
    ctx = canvas.ctx
    for turn in range(-100, 101, 40):
        with placed(ctx, 24, 20, turn):
            line(ctx, (0, -17.5), (0, -19))
            stroke(ctx, "#f8a818", 2.4)
    curve(ctx, (19, 35), (19, 28, 11, 27, 11, 18), (11, 1.5, 37, 1.5, 37, 18), (37, 27, 29, 28, 29, 35))
    ctx.close_path()
    outlined(ctx, ball_shade(24, 19, 15, "#ffffff", "#fff498", "#f8d030"))
    line(ctx, (21, 34), (19.5, 22), (24, 26), (28.5, 22), (27, 34))
    stroke(ctx, "#e08810", 1.3)
    rounded(ctx, 18.5, 34, 11, 8, 2)
    outlined(ctx, rightwards(18, 30, "#d8dce4", "#80889a"))
    line(ctx, (19, 38), (29, 38))
    stroke(ctx, OUTLINE, 1.1)
    ctx.rectangle(21.5, 42, 5, 2.5)
    fill(ctx, OUTLINE)


def clock(canvas, _):
    ctx = canvas.ctx
    circle(ctx, 24, 24, 20)
    outlined(ctx, ball_shade(24, 24, 21, "#90c0f8", "#3068c0", "#184088"))
    circle(ctx, 24, 24, 15.5)
    outlined(ctx, "#fffcf0", 1.3)
    for i in range(12):
        with placed(ctx, 24, 24, i * 30):
            line(ctx, (0, -13.2), (0, -11.4 if i % 3 else -10))
            stroke(ctx, "#605850", 1 if i % 3 else 2)
    line(ctx, (24, 24), (18.5, 18.5))
    stroke(ctx, OUTLINE, 2.8)
    line(ctx, (24, 24), (32, 18))
    stroke(ctx, OUTLINE, 2)
    circle(ctx, 24, 24, 1.8)
    fill(ctx, "#d83028")


def sign(text, colour, dark):
    def draw(canvas, _):
        circle(canvas.ctx, 24, 24, 20)
        outlined(canvas.ctx, ball_shade(24, 24, 22, "#ffffff", colour, dark))
        canvas.write(24, 24, text, SANS_BOLD, 32, "#ffffff")
    return draw


def flag_stripes(*colours, upright=False):
    """A small flag with a fine edge, for the choice of a language."""
    def draw(canvas, _):
        ctx, w, h = canvas.ctx, canvas.width, canvas.height
        for i, colour in enumerate(colours):
            share = i / len(colours)
            ctx.rectangle(w * share if upright else 0, 0 if upright else h * share, w, h)
            fill(ctx, colour)
        ctx.rectangle(0.5, 0.5, w - 1, h - 1)
        stroke(ctx, "#606060", 1)
    return draw


def flag_britain(canvas, _):
    ctx, w, h = canvas.ctx, canvas.width, canvas.height
    ctx.rectangle(0, 0, w, h)
    fill(ctx, "#182878")
    for colour, width in (("#ffffff", 5), ("#d01828", 2)):
        for start, end in (((0, 0), (w, h)), ((w, 0), (0, h))):
            line(ctx, start, end)
            stroke(ctx, colour, width)
    for colour, width in (("#ffffff", 8), ("#d01828", 5)):
        for start, end in (((w / 2, 0), (w / 2, h)), ((0, h / 2), (w, h / 2))):
            line(ctx, start, end)
            stroke(ctx, colour, width)
    ctx.rectangle(0.5, 0.5, w - 1, h - 1)
    stroke(ctx, "#606060", 1)


def plain(trace):
    """A line drawing in one blue on white; `trace` adds the lines."""
    def draw(canvas, _):
        trace(canvas.ctx)
        stroke(canvas.ctx, "#30486c", 1.6)
        canvas.ctx.rectangle(0, 31, 32, 1)
        fill(canvas.ctx, "#c8a860")
    return draw


def trace_house(ctx):
    line(ctx, (3, 15), (16, 4), (29, 15))
    line(ctx, (7, 13), (7, 27), (13, 27), (13, 19), (19, 19), (19, 27), (25, 27), (25, 13))


def trace_letter(ctx):
    ctx.rectangle(4, 8, 24, 18)
    line(ctx, (4, 8.5), (16, 18.5), (28, 8.5))


def trace_phone(ctx):
    curve(ctx, (6, 6), (4, 16, 16, 28, 26, 26), (28, 25, 28, 22, 27.5, 21), (27.5, 21, 22, 18, 22, 18),
          (20, 18, 20, 21, 18, 20.5),
          (15, 19.5, 12, 16, 11.5, 14), (11.5, 12, 14, 12, 14, 10), (14, 10, 11, 4.5, 11, 4.5), (9, 3.5, 6.5, 4, 6, 6))


def trace_book(ctx):
    curve(ctx, (16, 9), (12, 5, 7, 5, 3, 7), (3, 7, 3, 26, 3, 26), (7, 24, 12, 24, 16, 28), (20, 24, 25, 24, 29, 26),
          (29, 26, 29, 7, 29, 7), (25, 5, 20, 5, 16, 9), (16, 9, 16, 28, 16, 28))


def trace_clock(ctx):
    circle(ctx, 16, 16, 12)
    line(ctx, (16, 9), (16, 16), (21, 19))


def trace_pictures(ctx):
    ctx.rectangle(4, 6, 24, 20)
    line(ctx, (4, 23), (11, 15), (17, 21), (21, 17), (28, 23))
    circle(ctx, 21.5, 11.5, 2.4)


def symbol(name, draw):
    return Picture(f"{name}.gif", SIZE, SIZE, draw)


def small(name, draw, width=32, height=32, ground="#ffffff"):
    return Picture(f"{name}.gif", width, height, draw, ground, colours=15)


PICTURES = [
    symbol("ausrufezeichen", sign("!", "#e84838", "#a01818")), symbol("baustelle", building_site),
    symbol("brief", letter), symbol("diskette", floppy), symbol("drucker", printer),
    symbol("fragezeichen", sign("?", "#4888e0", "#1c4898")), symbol("gaestebuch", guest_book),
    symbol("gluehbirne", light_bulb), symbol("haus", house), symbol("information", sign("i", "#48a850", "#1c6828")),
    symbol("kalender", calendar), symbol("kamera", camera), symbol("lupe", magnifier), symbol("ordner", folder),
    symbol("schluessel", key), symbol("telefon", phone), symbol("uhr", clock), symbol("weltkugel", world),
    small("flagge_deutsch", flag_stripes("#202020", "#d81820", "#f8c810"), 30, 20),
    small("flagge_englisch", flag_britain, 30, 20),
    small("flagge_franzoesisch", flag_stripes("#183090", "#ffffff", "#d81828", upright=True), 30, 20),
    small("flagge_italienisch", flag_stripes("#108840", "#ffffff", "#d02030", upright=True), 30, 20),
    small("schlicht_bilder", plain(trace_pictures)), small("schlicht_brief", plain(trace_letter)),
    small("schlicht_buch", plain(trace_book)), small("schlicht_haus", plain(trace_house)),
    small("schlicht_telefon", plain(trace_phone)), small("schlicht_uhr", plain(trace_clock)),
]
