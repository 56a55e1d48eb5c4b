# SPDX-License-Identifier: MIT
"""What the figure does in each animation. Time runs from 0 to 1; at both ends it stands in its rest pose."""

import math
from dataclasses import dataclass, field
from typing import Callable

import figure
import things
from figure import GROUND, MIDDLE, Pose

REST_LEFT = Pose.left_hand
REST_RIGHT = Pose.right_hand


@dataclass
class Picture:
    """One moment: the pose and the things around it, each a routine that draws on a cairo context."""

    pose: Pose = field(default_factory=Pose)
    behind: list = field(default_factory=list)
    before: list = field(default_factory=list)
    front: list = field(default_factory=list)

    def draw(self, ctx):
        figure.draw(ctx, self.pose, self.behind, self.before, self.front)


def thing(routine, *place, **more):
    return lambda ctx: routine(ctx, *place, **more)


def keys(t, *points):
    """A value that moves gently from one (time, value) to the next. Values are numbers or pairs of numbers."""
    if t <= points[0][0]:
        return points[0][1]
    for (start, first), (end, second) in zip(points, points[1:]):
        if t <= end:
            part = (t - start) / (end - start)
            part = part * part * (3 - 2 * part)
            if isinstance(first, tuple):
                return tuple(a + (b - a) * part for a, b in zip(first, second))
            return first + (second - first) * part
    return points[-1][1]


def hold(t, start, end, value, ramp):
    """Rises from 0 to `value`, stays there and sinks back to 0."""
    return keys(t, (start, 0), (start + ramp, value), (end - ramp, value), (end, 0))


def pop(t, start, end, grow=0.12):
    """The size of a thing that springs up at `start`, a little too big at first, and is gone at `end`."""
    return keys(t, (start, 0), (start + grow, 1.2), (start + 1.8 * grow, 1), (end - grow, 1), (end, 0))


def swing(t, start, end, times):
    """Swings to and fro between 1 and -1, growing at first and dying away at the end."""
    if not start < t < end:
        return 0
    part = (t - start) / (end - start)
    return math.sin(part * times * 2 * math.pi) * math.sin(part * math.pi) ** 0.5


def blink(t):
    lid = keys(t, (0.1, 0), (0.34, 1), (0.46, 1), (0.75, 0))
    dip = keys(t, (0, 0), (0.4, 1), (0.9, 0))
    return Picture(Pose(lid=lid, height=1 - 0.035 * dip, width=1 + 0.025 * dip, face_y=dip,
                        tuft=9 * swing(t, 0.1, 1, 1)))


def look_around(t):
    aside = keys(t, (0, 0), (0.22, -1), (0.42, -1), (0.64, 1), (0.8, 1), (1, 0))
    lead = keys(t, (0, 0), (0.16, -1), (0.38, -1), (0.58, 1), (0.76, 1), (0.95, 0))
    lid = keys(t, (0.42, 0), (0.5, 0.75), (0.54, 0.75), (0.62, 0))
    return Picture(Pose(look_x=lead, face_x=aside * 6, tilt=aside * 2.5, tuft=-aside * 10, lid=lid,
                        brow=abs(aside) * 0.6, face_y=abs(aside) * -1))


def speak(t):
    up = keys(t, (0, 0), (0.1, -0.15), (0.34, 1.05), (0.42, 1), (0.76, 1), (1, 0))
    dip = keys(t, (0, 0), (0.12, 1), (0.3, -1), (0.44, 0), (0.8, 0), (0.9, 0.5), (1, 0))
    right = keys(t, (0.06, REST_RIGHT), (0.2, (58, -52)), (0.36, (50, -88)), (0.76, (50, -86)), (0.88, (58, -52)),
                 (1, REST_RIGHT))
    talk = hold(t, 0.22, 0.92, 1, 0.12) * (0.72 + 0.2 * math.cos((t - 0.4) * 4 * math.pi))
    pose = Pose(y=-2 * max(0, up), feet=0, height=1 - 0.05 * dip, width=1 + 0.035 * dip, tilt=-3 * up, face_x=1.5 * up,
                face_y=-1.5 * up, right_hand=right, right_finger=hold(t, 0.2, 0.9, 6.5, 0.12), finger_angle=-84,
                brow=up, mouth=talk, tuft=10 * swing(t, 0.2, 1, 1.5))
    spark = pop(t, 0.28, 0.92)
    turn = -30 * (1 - min(1, spark)) + 10 * swing(t, 0.4, 0.9, 1)
    return Picture(pose, front=[thing(things.star, 134, 25, spark, turn=turn),
                                thing(things.star, 114, 21, 0.5 * pop(t, 0.36, 0.86))])


def shake_head(t):
    shake = swing(t, 0.1, 0.95, 2)
    on = hold(t, 0, 1, 1, 0.2)
    right = keys(t, (0, REST_RIGHT), (0.22, (52, -78)), (0.78, (52, -78)), (1, REST_RIGHT))
    wag = 6 * shake * on
    pose = Pose(face_x=9 * shake, tilt=2.5 * shake, look_x=0.2 * shake, tuft=-14 * shake, worry=on, brow=0.1 * on,
                smile=1 - 1.9 * on, mouth_width=1 - 0.2 * on, right_hand=(right[0] + wag * 0.5, right[1]),
                right_finger=hold(t, 0.1, 0.9, 8, 0.12), finger_angle=-88 + wag * 4, lid=0.18 * on)
    return Picture(pose, front=[thing(things.warning_sign, 27, 32, pop(t, 0.12, 0.95), turn=4 * shake)])


def think(t):
    on = hold(t, 0, 1, 1, 0.2)
    right = keys(t, (0, REST_RIGHT), (0.26, (17, -31)), (0.78, (17, -31)), (1, REST_RIGHT))
    tap = 2 * swing(t, 0.3, 0.75, 2)
    pose = Pose(look_x=0.75 * on, look_y=-0.8 * on, face_x=3 * on, face_y=-3 * on, tilt=4 * on,
                tuft=8 * swing(t, 0.1, 1, 1), brow=on, smile=1 - 1.1 * on, mouth_width=1 - 0.45 * on,
                right_hand=(right[0], right[1] + tap))
    bubbles = [thing(things.bubble, x, y - 2 * on, size * pop(t, start, 0.97 - 0.04 * i, 0.1))
               for i, (x, y, size, start) in enumerate(((112, 50, 0.55, 0.16), (122, 38, 0.85, 0.28),
                                                        (133, 21, 1.35, 0.4)))]
    return Picture(pose, front=bubbles)


def wave_hello(t):
    on = hold(t, 0, 1, 1, 0.24)
    to_and_fro = swing(t, 0.16, 0.88, 2)
    right = keys(t, (0, REST_RIGHT), (0.12, (60, -52)), (0.26, (53, -82)), (0.78, (53, -82)), (0.9, (60, -52)),
                 (1, REST_RIGHT))
    left = keys(t, (0, REST_LEFT), (0.3, (-53, -38)), (0.75, (-53, -38)), (1, REST_LEFT))
    pose = Pose(tilt=-5 * on + 1.5 * to_and_fro, face_x=2 * on, right_hand=(right[0] + 11 * to_and_fro, right[1]),
                mouth=hold(t, 0.1, 0.95, 0.85, 0.18), brow=on, joy=hold(t, 0.1, 0.94, 1, 0.2),
                tuft=8 * to_and_fro, left_hand=left)
    return Picture(pose)


def hop(t):
    """A long stretch, a jump for joy and a small second one."""
    def arc(start, end, height):
        if not start < t < end:
            return 0
        part = (t - start) / (end - start)
        return height * 4 * part * (1 - part)

    rise = arc(0.42, 0.6, 24) + arc(0.68, 0.8, 9)
    tall = keys(t, (0, 0), (0.14, 1), (0.26, 1), (0.38, -2), (0.42, -1.2), (0.47, 1.2), (0.51, 0.2),
                (0.57, 0.9), (0.6, 0.4), (0.64, -2), (0.68, -0.4), (0.72, 0.7), (0.79, 0.4), (0.84, -1.1),
                (0.93, 0.25), (1, 0))
    left = keys(t, (0, REST_LEFT), (0.08, (-60, -56)), (0.16, (-44, -92)), (0.26, (-44, -92)), (0.38, (-54, -28)),
                (0.49, (-50, -90)), (0.57, (-56, -74)), (0.65, (-56, -36)), (0.74, (-56, -58)), (0.85, (-52, -30)),
                (1, REST_LEFT))
    nod = keys(t, (0, 0), (0.14, 1), (0.26, 1), (0.38, -1), (0.48, 1), (0.64, -1), (0.8, 0.3), (1, 0))
    shut = keys(t, (0.06, 0), (0.14, 1), (0.26, 1), (0.33, 0))
    pose = Pose(y=-rise, feet=rise * 0.92, height=1 + 0.08 * tall, width=1 - 0.055 * tall, left_hand=left,
                right_hand=(-left[0], left[1]), lid=shut, joy=hold(t, 0.36, 0.94, 1, 0.09),
                mouth=max(hold(t, 0.08, 0.32, 0.75, 0.07), hold(t, 0.38, 0.94, 0.95, 0.08)),
                mouth_width=1 - 0.35 * hold(t, 0.06, 0.34, 1, 0.07), brow=hold(t, 0.05, 0.95, 0.8, 0.1),
                face_y=-2 * nod,
                tuft=keys(t, (0, 0), (0.2, 7), (0.38, -8), (0.47, 10), (0.56, -14), (0.64, 14), (0.74, -8), (0.84, 9),
                          (0.93, -4), (1, 0)))
    puffs = []
    for start, spread in ((0.6, 1), (0.8, 0.6)):
        part = (t - start) / 0.16
        if 0 < part < 1:
            for side in (-1, 1):
                puffs.append(thing(things.dust, MIDDLE + side * (44 + 20 * spread * part ** 0.5), GROUND - 1 - 7 * part,
                                   spread * (1.1 - part) * 1.1))
    return Picture(pose, behind=puffs)


def weave(t):
    """Weaves a little web in a hoop, holds it up proudly and lets it go."""
    work = hold(t, 0.08, 0.68, 1, 0.07)
    progress = min(1, max(0, (t - 0.14) / 0.48))
    turns = progress * 5 * 2 * math.pi
    lift = keys(t, (0.66, 0), (0.76, 1), (0.9, 1), (0.97, 0.9))
    size = keys(t, (0.04, 0), (0.11, 1), (0.14, 0.9), (0.66, 0.9), (0.76, 1.3), (0.9, 1.3), (0.93, 1.4), (0.985, 0))
    web_x, web_y = MIDDLE, 122 - 92 * lift

    def hand(side):
        circle = (side * (21 + 4 * math.cos(turns + (0 if side > 0 else math.pi))),
                  -27 + 5 * math.sin(turns + (0 if side > 0 else math.pi)))
        grip = (side * 22, -25)
        high = (side * 28, -104)
        rest = (side * REST_RIGHT[0], REST_RIGHT[1])
        base = keys(t, (0.02, rest), (0.12, grip), (0.66, grip), (0.71, (side * 56, -60)), (0.76, high), (0.91, high),
                    (0.955, (side * 58, -66)), (1, rest))
        mix = hold(t, 0.1, 0.66, 1, 0.06)
        return tuple(b + (c - b) * mix for b, c in zip(base, circle))

    look = math.sin(turns)
    proud = hold(t, 0.68, 0.98, 1, 0.07)
    pose = Pose(left_hand=hand(-1), right_hand=hand(1), look_y=0.75 * work - 0.3 * proud, look_x=0.35 * look * work,
                face_y=-5.5 * work - 1.5 * proud, face_x=1.5 * look * work, lid=0.12 * work * (1 - proud),
                joy=hold(t, 0.67, 0.98, 1, 0.06), mouth=hold(t, 0.7, 0.97, 0.9, 0.06), mouth_width=1 - 0.35 * work,
                brow=proud, tuft=8 * swing(t, 0.66, 1, 1.5), height=1 - 0.03 * work + 0.04 * proud,
                width=1 + 0.02 * work - 0.03 * proud)
    hoop = thing(things.web, web_x, web_y, size, progress, turn=40 * (1 - size) if t > 0.9 else 0)
    sparks = [thing(things.star, x, y, big * pop(t, start, start + 0.15, 0.04))
              for x, y, big, start in ((112, 16, 0.75, 0.76), (37, 22, 0.6, 0.8), (118, 40, 0.5, 0.82))]
    return Picture(pose, before=[hoop], front=sparks)


PIECES = "</>"
JUGGLE_START = 0.13
JUGGLE_BEAT = 0.067
THROWS = 9


def juggling_hand(side, beats):
    """Where a hand is, told as a pose tells it: it throws from near the body, swings outwards over one beat, catches
    there and scoops back over the next. The left hand throws on even beats."""
    turn = (beats - (0 if side < 0 else 1)) * math.pi
    return side * (50 - 6.5 * math.cos(turn)), -72 - 5 * math.sin(turn)


def above_hand(side, beats):
    x, y = juggling_hand(side, beats)
    return MIDDLE + x, GROUND + y - 12


def juggled_piece(number, beats):
    """Where a piece is. It is thrown on the beats `number`, `number` + 3 and so on; each throw flies for two beats to
    the other hand, but the last one goes to its place in the tag above the head."""
    throw = max(math.floor((beats - number) / 3) * 3 + number, number)
    throw = min(throw, THROWS - 3 + number)
    side = -1 if throw % 2 == 0 else 1
    if beats < throw:
        return above_hand(side, beats)
    last = throw + 3 >= THROWS
    flown = (beats - throw) / 2
    if flown >= 1 and not last:
        return above_hand(-side, beats)
    begin = above_hand(side, throw)
    if last:
        flown = min(flown, 1)
        end = (MIDDLE + (number - 1) * 22, 22)
        # Slows down on the way up, and hangs.
        up = 1 - (1 - flown) ** 2
        return begin[0] + (end[0] - begin[0]) * flown, begin[1] + (end[1] - begin[1]) * up
    end = above_hand(-side, throw + 2)
    return (begin[0] + (end[0] - begin[0]) * flown,
            begin[1] + (end[1] - begin[1]) * flown - 39 * 4 * flown * (1 - flown))


def juggle(t):
    """Juggles the three pieces of a tag, which end side by side above its head."""
    beats = (t - JUGGLE_START) / JUGGLE_BEAT
    busy = keys(t, (0.0, 0), (0.08, 1), (0.72, 1), (0.8, 0))
    proud = hold(t, 0.76, 1, 1, 0.06)

    def hand(side):
        rest = (side * REST_RIGHT[0], REST_RIGHT[1])
        cheer = (side * 56, -86)
        base = keys(t, (0.74, rest), (0.82, cheer), (0.92, cheer), (0.96, (side * 60, -56)), (1, rest))
        juggling = juggling_hand(side, beats)
        return tuple(b + (j - b) * busy for b, j in zip(base, juggling))

    places = [juggled_piece(i, beats) for i in range(3)]
    flying = hold(t, 0.08, 0.82, 1, 0.05)
    # The eyes follow the middle of the pieces rather than one of them, which would make them jump.
    middle = sum(x for x, _ in places) / 3 - MIDDLE
    look = max(-1, min(1, middle / 22)) * flying
    pose = Pose(left_hand=hand(-1), right_hand=hand(1), look_x=0.7 * look, look_y=-0.8 * flying, face_x=3 * look,
                face_y=-2 * flying, tuft=-8 * look + 38 * proud,
                brow=hold(t, 0.04, 1, 0.8, 0.08), mouth=0.35 * flying * (1 - proud) + 0.95 * proud,
                mouth_width=1 - 0.35 * flying * (1 - proud), joy=hold(t, 0.77, 0.99, 1, 0.06))
    front = []
    for i, (x, y) in enumerate(places):
        size = pop(t, 0.02 + 0.025 * i, 0.985, 0.04)
        # A flying piece turns over once.
        since_throw = (beats - i) % 3
        turn = 180 * since_throw if 0 <= beats - i < THROWS - 1 and since_throw < 2 else 0
        if t > 0.82:
            y += -3 * abs(math.sin((t - 0.82) / 0.12 * 2 * math.pi - i * 0.7)) * hold(t, 0.82, 0.96, 1, 0.03)
        front.append(thing(things.glyph, x, y, size, PIECES[i], turn=turn))
    return Picture(pose, front=front)


@dataclass(frozen=True)
class Scene:
    """One file: what happens and, in hundredths of a second, how long the rest pose stands at the start and the end and
    how long each of the frames between them is shown."""

    picture: Callable[[float], Picture]
    first: int
    step: int
    moving: int
    last: int

    def delays(self):
        return [self.first] + [self.step] * self.moving + [self.last]

    def pictures(self):
        rest = Picture()
        return [rest] + [self.picture(i / (self.moving + 1)) for i in range(1, self.moving + 1)] + [rest]


# The program stops the player after 0.8, 0.8, 0.8, 0.8, 0.9, 0.8, 1.8, 2.8 and 3.5 seconds, and each scene lasts
# exactly that long. It ends in the rest pose and, as it would then start again, begins in it, so a player that is
# stopped a little early or late still shows the figure at rest.
SCENES = {
    1: Scene(blink, 6, 4, 15, 14),
    2: Scene(look_around, 6, 4, 15, 14),
    3: Scene(speak, 6, 4, 15, 14),
    4: Scene(shake_head, 6, 4, 15, 14),
    5: Scene(think, 6, 4, 17, 16),
    6: Scene(wave_hello, 6, 4, 15, 14),
    7: Scene(hop, 8, 4, 38, 20),
    8: Scene(weave, 10, 6, 42, 18),
    9: Scene(juggle, 10, 7, 44, 32),
}
