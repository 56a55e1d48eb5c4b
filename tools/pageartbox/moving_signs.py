# SPDX-License-Identifier: MIT
"""Animationen, first part: signs that draw the eye."""

import math

from canvas import (OUTLINE, SANS_BOLD, ball_shade, circle, curve, darker, downwards, ellipse, fill,
                    heart, lighter, line, mixed, placed, polygon, rightwards, rounded, star, stroke)
from picture import Picture
from symbols_page import envelope, globe, outlined, receiver, telephone


def wave(phase, shift=0.0):
    """Swings from 0 to 1 and back once in a loop."""
    return 0.5 - 0.5 * math.cos(2 * math.pi * (phase + shift))


def new_burst(canvas, phase):
    """Two looks in turn."""
    ctx, lit = canvas.ctx, phase < 0.5
    with placed(ctx, 32, 22, 0, 1, 0.68):
        star(ctx, 0, 0, 30.5, 23, 14)
    fill(ctx, ball_shade(32, 22, 34, "#ffffa0", "#ffe020", "#f8a810") if lit else
         ball_shade(32, 22, 34, "#ff9080", "#e83028", "#b01418"), OUTLINE, 1.5)
    canvas.write(32, 22, "Neu!", SANS_BOLD, 17, "#d01818" if lit else "#fff060")


def new_ticket(canvas, phase):
    """A small mark behind a line of text, whose light runs through."""
    ctx = canvas.ctx
    rounded(ctx, 0.6, 0.6, 34.8, 14.8, 4)
    place = -14 + phase * 64
    ctx.save()
    ctx.clip_preserve()
    fill(ctx, downwards(0, 16, "#f06058", "#c01820"))
    polygon(ctx, (place, 16), (place + 7, 0), (place + 14, 0), (place + 7, 16))
    fill(ctx, "#ffb8a8")
    ctx.restore()
    rounded(ctx, 0.6, 0.6, 34.8, 14.8, 4)
    stroke(ctx, "#801014", 1.2)
    canvas.write(18, 8, "NEU", SANS_BOLD, 11, "#ffffff", crisp=True)


def turning_letter(canvas, phase):
    ctx = canvas.ctx
    across = math.cos(2 * math.pi * phase)
    narrow = across if abs(across) > 0.1 else 0.1
    with placed(ctx, 24, 24):
        ctx.scale(abs(narrow), 1)
        ctx.translate(-24, -24)
        if across >= 0:
            envelope(ctx)
        else:
            letter_front(ctx)


def letter_front(ctx):
    rounded(ctx, 3, 10, 42, 29, 2)
    outlined(ctx, downwards(10, 39, "#ffffff", "#e4ecf8"))
    ctx.rectangle(34.5, 13.5, 7.5, 9)
    fill(ctx, "#f0c040", "#b03028", 1.2)
    for y, length in ((25, 20), (29, 16), (33, 12)):
        line(ctx, (16, y), (16 + length, y))
    stroke(ctx, "#5870a8", 1.5)


def lamp(canvas, phase):
    """The yellow lamp of a building site."""
    ctx = canvas.ctx
    glow = wave(phase)
    if glow > 0.35:
        for turn in range(-75, 76, 30):
            with placed(ctx, 24, 20, turn):
                line(ctx, (0, -15), (0, -15 - 4.5 * glow))
                stroke(ctx, "#f8a010", 2.2)
    rounded(ctx, 10, 32, 28, 12, 2)
    outlined(ctx, downwards(32, 44, "#707880", "#383c44"))
    ctx.rectangle(13, 27, 22, 5)
    outlined(ctx, "#e8b020", 1.5)
    circle(ctx, 24, 19, 11)
    dull, bright = ("#d89038", "#b86c14", "#8c4c08"), ("#fffff0", "#fff060", "#f8b010")
    shades = [mixed(first, second, glow) for first, second in zip(dull, bright)]
    outlined(ctx, ball_shade(24, 19, 12, *shades))
    for radius in (4, 7.6):
        circle(ctx, 24, 19, radius)
        stroke(ctx, "#8c480888", 0.9)


def barrier(canvas, phase):
    """A barrier whose two lamps flash in turn."""
    ctx = canvas.ctx
    for x in (28, 152):
        polygon(ctx, (x - 3, 22), (x + 3, 22), (x + 9, 58), (x + 4, 58), (x, 34), (x - 4, 58), (x - 9, 58))
        outlined(ctx, "#a8acb4", 1.4)
    ctx.save()
    ctx.rectangle(4, 22, 172, 20)
    ctx.clip()
    ctx.rectangle(4, 22, 172, 20)
    fill(ctx, "#fffdf8")
    for x in range(-10, 190, 32):
        polygon(ctx, (x, 42), (x + 12, 22), (x + 28, 22), (x + 16, 42))
        fill(ctx, "#e03028")
    ctx.restore()
    ctx.rectangle(4, 22, 172, 20)
    stroke(ctx, OUTLINE, 1.8)
    rounded(ctx, 44, 24, 92, 16, 3)
    fill(ctx, "#fffdf8", OUTLINE, 1.2)
    canvas.write(90, 32, "Baustelle", SANS_BOLD, 13, "#282020", crisp=True)
    for i, x in enumerate((28, 152)):
        lit = (phase < 0.5) == (i == 0)
        if lit:
            circle(ctx, x, 11, 10.5)
            fill(ctx, "#fce890")
        circle(ctx, x, 11, 7)
        outlined(ctx, ball_shade(x, 11, 7.5, "#ffffd8", "#ffc820", "#f09010") if lit else "#a06018", 1.6)
        ctx.rectangle(x - 5, 18, 10, 4)
        outlined(ctx, "#484c54", 1.2)


def pointing(canvas, phase):
    """An arrow that nods to the right."""
    with placed(canvas.ctx, 8 * wave(phase), 0):
        polygon(canvas.ctx, (3, 12), (19, 12), (19, 4), (36, 18), (19, 32), (19, 24), (3, 24))
        outlined(canvas.ctx, downwards(4, 32, "#b0e878", "#58b838", "#2c8020"))


def twinkling(canvas, phase):
    ctx = canvas.ctx
    star(ctx, 22, 25, 19, 8)
    outlined(ctx, ball_shade(22, 25, 20, "#ffffc0", "#ffe030", "#f0a010"))
    for x, y, shift in ((17, 20, 0), (36, 9, 0.33), (37, 36, 0.66)):
        size = 9 * wave(phase, shift) - 1.5
        if size > 1:
            star(ctx, x, y, size, size * 0.22, 4)
            fill(ctx, "#ffffff", "#f0b838", 0.9)


def running_hazard(canvas, phase):
    ctx = canvas.ctx
    ctx.rectangle(0, 0, 480, 12)
    fill(ctx, "#f8cc10")
    for i in range(-2, 21):
        x = (i + phase) * 24
        polygon(ctx, (x, 12), (x + 12, 0), (x + 24, 0), (x + 12, 12))
        fill(ctx, "#282828")


def chasing_lights(canvas, phase):
    """Every third lamp of a chain is lit and hands its light on."""
    ctx = canvas.ctx
    line(ctx, (0, 8), (480, 8))
    stroke(ctx, "#606870", 2)
    for i in range(24):
        lit = i % 3 == int(phase * 3 + 0.5) % 3
        colour = ("#f04038", "#38a840", "#3880e8")[i // 3 % 3]
        x = 10 + i * 20
        if lit:
            circle(ctx, x, 8, 7.4)
            fill(ctx, lighter(colour, 0.6))
        circle(ctx, x, 8, 5)
        fill(ctx, ball_shade(x, 8, 5.4, "#ffffff", lighter(colour, 0.25), colour) if lit else darker(colour, 0.35),
             darker(colour, 0.6), 1)


def pulsing(colour):
    def draw(canvas, phase):
        glow = wave(phase)
        shade = darker(colour, 0.45 - 0.45 * glow)
        circle(canvas.ctx, 8, 8, 7)
        fill(canvas.ctx, ball_shade(8, 8, 7.4, lighter(shade, 0.4 + 0.5 * glow), lighter(shade, 0.3 * glow), shade),
             darker(colour, 0.5), 1)
    return draw


def turning_world(canvas, phase):
    globe(canvas.ctx, phase)


def ringing(canvas, phase):
    """Rings for the first half of the loop, then waits."""
    ctx = canvas.ctx
    strength = math.sin(2 * math.pi * phase) if phase < 0.5 else 0
    swing = math.sin(phase * 2 * math.pi * 6) * strength
    with placed(ctx, 6, 6):
        telephone(ctx)
        with placed(ctx, 24, 20, swing * 11):
            ctx.translate(-24, -21 - 2.6 * strength)
            receiver(ctx)
    if strength > 0.4:
        for side in (-1, 1):
            for reach in (0, 4):
                with placed(ctx, 30, 16):
                    ctx.scale(side, 1)
                    ctx.arc(16 + reach, 0, 5 + reach * 0.6, math.radians(-55), math.radians(40))
                    stroke(ctx, "#e87020", 1.6)


def flag(canvas, phase):
    """Black, red and gold on a pole; two waves run through the cloth."""
    ctx = canvas.ctx

    def bend(x):
        return (x - 9) / 52 * 4 * math.sin(2 * math.pi * ((x - 9) / 40 - phase))
    for i, colour in enumerate(("#282828", "#e02028", "#f8cc18")):
        upper = [(x, 7 + i * 9 + bend(x)) for x in range(9, 62)]
        lower = [(x, 16 + i * 9 + bend(x)) for x in range(61, 8, -1)]
        polygon(ctx, *upper, *lower)
        fill(ctx, colour)
    for x in range(9, 61):
        light = math.cos(2 * math.pi * ((x - 9) / 40 - phase))
        polygon(ctx, (x, 7 + bend(x)), (x + 1, 7 + bend(x + 1)), (x + 1, 34 + bend(x + 1)), (x, 34 + bend(x)))
        fill(ctx, f"#ffffff{round(50 * light):02x}" if light > 0 else f"#000000{round(-60 * light):02x}")
    polygon(ctx, *((x, 7 + bend(x)) for x in range(9, 62)), *((x, 34 + bend(x)) for x in range(61, 8, -1)))
    stroke(ctx, OUTLINE, 1.3)
    ctx.rectangle(6, 5, 3.4, 54)
    outlined(ctx, rightwards(6, 9.4, "#f8fafc", "#a0a8b4"), 1.2)
    circle(ctx, 7.7, 4, 2.8)
    outlined(ctx, "#f4c830", 1.2)


def beating(canvas, phase):
    """Two short beats, then rest."""
    beat = sum(math.exp(-((phase - at) / 0.07) ** 2) for at in (0.25, 0.5))
    heart(canvas.ctx, 22, 23, 30 + 7 * beat)
    outlined(canvas.ctx, ball_shade(20, 20, 26, "#ffc0c0", "#f04858", "#b01830"))


def hanging(canvas, phase):
    """A shop's sign that swings on its two cords."""
    ctx = canvas.ctx
    circle(ctx, 55, 4, 2.6)
    outlined(ctx, "#a0a8b4", 1.2)
    with placed(ctx, 55, 4, 7 * math.sin(2 * math.pi * phase)):
        line(ctx, (-34, 24), (0, 0), (34, 24))
        stroke(ctx, "#685040", 1.6)
        rounded(ctx, -44, 24, 88, 28, 5)
        outlined(ctx, downwards(24, 52, "#e8b878", "#b87838"), 2)
        for y in (31, 38, 45):
            line(ctx, (-40, y), (40, y))
            stroke(ctx, "#c08848", 1)
        open_lettering(ctx)


def open_lettering(ctx):
    """"Offen" drawn by hand in strokes, for it swings with the board."""
    with placed(ctx, -29, 31, scale=1.0):
        ellipse(ctx, 6, 7, 5.4, 7)
        for x in (16, 26):
            ctx.new_sub_path()
            curve(ctx, (x, 14), (x, 14, x, 4, x, 3), (x, -0.5, x + 3, -1, x + 5, 0))
            line(ctx, (x - 3, 5.5), (x + 4.5, 5.5))
        line(ctx, (34, 9.4), (42, 9.4))
        curve(ctx, (42, 9.4), (42, 3.4, 34, 3.4, 34, 9.4), (34, 14.6, 39, 14.8, 41.6, 12.4))
        line(ctx, (48, 5), (48, 14))
        curve(ctx, (48, 8.4), (50, 4, 57, 3.8, 57, 9), (57, 11, 57, 12, 57, 14))
        stroke(ctx, "#fff8e0", 2.6)


def moving(name, width, height, draw, frames, delay, ground=None, colours=31):
    return Picture(f"{name}.gif", width, height, draw, ground, frames, delay, colours)


PICTURES = [
    moving("baulampe", 48, 48, lamp, 8, 10), moving("baustelle_schranke", 180, 60, barrier, 2, 50),
    moving("brief_dreht", 48, 48, turning_letter, 16, 8), moving("fahne_weht", 66, 62, flag, 10, 8, colours=63),
    moving("herz_schlaegt", 44, 46, beating, 12, 8),
    moving("linie_baustelle", 480, 12, running_hazard, 8, 10, "#ffffff", 15),
    moving("linie_lichter", 480, 16, chasing_lights, 3, 30), moving("neu_blinkt", 64, 44, new_burst, 2, 50),
    moving("neu_glanz", 36, 16, new_ticket, 12, [40] + [7] * 11), moving("pfeil_wippt", 48, 36, pointing, 10, 7),
    moving("punkt_blau", 16, 16, pulsing("#2868e0"), 10, 9), moving("punkt_rot", 16, 16, pulsing("#e02828"), 10, 9),
    moving("schild_offen", 110, 66, hanging, 16, 8), moving("stern_funkelt", 46, 46, twinkling, 12, 10),
    moving("telefon_klingelt", 60, 54, ringing, 24, 6), moving("weltkugel_dreht", 48, 48, turning_world, 24, 10),
]
