# SPDX-License-Identifier: MIT
"""The assistant's figure: a round little web weaver whose bent limbs are angle brackets and whose tuft is the slash
between them. A `Pose` says how it stands, `draw` draws it with cairo on a canvas of SIZE by SIZE units."""

import math
from dataclasses import dataclass

import cairo

SIZE = 150

OUTLINE = (0x1E, 0x5F, 0x74)
BODY = (0x35, 0xB9, 0xB4)
BODY_SHADE = (0x25, 0x9D, 0x9F)
BODY_LIGHT = (0x86, 0xDF, 0xD6)
LIMB = (0xF7, 0x92, 0x56)
LIMB_BACK = (0xE2, 0x78, 0x42)
WHITE = (0xFF, 0xFF, 0xFF)
PUPIL = (0x17, 0x2F, 0x3D)
CHEEK = (0xF4, 0xA8, 0x9A)
MOUTH = (0x7A, 0x27, 0x3A)
TONGUE = (0xF0, 0x7C, 0x7C)
YELLOW = (0xFF, 0xD2, 0x4A)
BERRY = (0xE5, 0x5A, 0x86)
AMBER = (0xC7, 0x80, 0x14)
SIGN = (0xFF, 0xC4, 0x2E)
PALE = (0xE0, 0xF2, 0xFA)
THREAD = (0x4E, 0x8F, 0xA8)

EDGE = 2.2  # Width of the outline that is seen.

MIDDLE = 75
GROUND = 141
BELLY = 124  # Bottom of the body at rest; it squashes towards this line.
BODY_CENTRE = (MIDDLE, 88)
BODY_RADII = (37, 36)

ARM_BONE = 19.5
SHOULDER = 35  # Distance from the middle.
SHOULDER_HEIGHT = 81

JOYFUL = 0.8


@dataclass
class Pose:
    """Where everything is. A pose with nothing told is the rest pose."""

    # The body as a whole.
    x: float = 0
    y: float = 0
    width: float = 1
    height: float = 1
    tilt: float = 0  # Degrees, clockwise.
    feet: float = 0  # How far the feet are off the ground.
    tuft: float = 0  # Degrees the tuft swings, clockwise.

    # The face.
    face_x: float = 0
    face_y: float = 0
    look_x: float = 0  # -1 to 1
    look_y: float = 0
    lid: float = 0  # 0 open, 1 closed
    joy: float = 0  # The lower lids rise; from JOYFUL on the eyes are laughing bows.
    brow: float = 0  # Raised by so much.
    worry: float = 0  # 1: the brows slope outwards; -1: inwards.
    smile: float = 1  # -1 to 1
    mouth: float = 0  # 0 closed, 1 wide open
    mouth_width: float = 1

    # The hands, measured from the resting place of the middle of the ground line, the body's own x and y included.
    left_hand: tuple = (-42, -31)
    right_hand: tuple = (42, -31)
    right_finger: float = 0  # Length of the raised finger.
    finger_angle: float = -90


def _turn(x, y, degrees):
    a = math.radians(degrees)
    return x * math.cos(a) - y * math.sin(a), x * math.sin(a) + y * math.cos(a)


def _colour(ctx, colour):
    ctx.set_source_rgb(*(c / 255 for c in colour))


def fill(ctx, colour, keep=False):
    _colour(ctx, colour)
    if keep:
        ctx.fill_preserve()
    else:
        ctx.fill()


def stroke(ctx, colour, width, keep=False):
    _colour(ctx, colour)
    ctx.set_line_width(width)
    ctx.set_line_cap(cairo.LINE_CAP_ROUND)
    ctx.set_line_join(cairo.LINE_JOIN_ROUND)
    if keep:
        ctx.stroke_preserve()
    else:
        ctx.stroke()


def outlined(ctx, colour, edge=EDGE, edge_colour=OUTLINE):
    """Fills the path and draws its outline around it, outside as much as inside."""
    stroke(ctx, edge_colour, edge * 2, keep=True)
    fill(ctx, colour)


def ellipse(ctx, x, y, rx, ry):
    ctx.save()
    ctx.translate(x, y)
    ctx.scale(max(rx, 0.01), max(ry, 0.01))
    ctx.new_sub_path()
    ctx.arc(0, 0, 1, 0, 2 * math.pi)
    ctx.restore()


def polyline(ctx, points):
    ctx.new_sub_path()
    for point in points:
        ctx.line_to(*point)


def _body_point(pose, x, y):
    """Where a point of the resting body, told from the middle of the belly line, lies now."""
    dx, dy = _turn(x * pose.width, y * pose.height, pose.tilt)
    return MIDDLE + pose.x + dx, BELLY + pose.y + dy


def _joint(start, end, bone, side):
    """The knee or elbow between two ends of a limb of two equal bones. It points away from the body, whether the limb
    hangs or is raised; on the way from one to the other it passes through a straight limb."""
    dx, dy = end[0] - start[0], end[1] - start[1]
    distance = math.hypot(dx, dy) or 0.01
    out = math.sqrt(max(bone * bone - distance * distance / 4, 0)) * max(-1, min(1, dy / 10))
    return (start[0] + dx / 2 + side * out * dy / distance, start[1] + dy / 2 - side * out * dx / distance)


def _limb(ctx, points, width, colour, hand=0, finger=0, finger_angle=0):
    tip = points[-1]
    dx, dy = _turn(hand + finger, 0, finger_angle)
    thumb_x, thumb_y = _turn(hand + finger * 0.45, 0, finger_angle - 75)

    def shape(extra, paint):
        polyline(ctx, points)
        stroke(ctx, paint, width + extra)
        if hand:
            ellipse(ctx, *tip, hand + extra / 2, hand + extra / 2)
            fill(ctx, paint)
        if finger > 0.5:
            polyline(ctx, [tip, (tip[0] + dx, tip[1] + dy)])
            stroke(ctx, paint, 5 + extra)
            polyline(ctx, [tip, (tip[0] + thumb_x, tip[1] + thumb_y)])
            stroke(ctx, paint, 4 + extra)

    shape(2 * EDGE, OUTLINE)
    shape(0, colour)


def _legs(ctx, pose):
    for hip_x, hip_y, foot_x, bone, width, colour in ((26, -12, 34, 17.5, 6.5, LIMB_BACK), (11, -3, 14, 12, 6.5, LIMB)):
        for side in (-1, 1):
            hip = _body_point(pose, side * hip_x, hip_y)
            foot = (MIDDLE + side * foot_x + pose.x * (1 if pose.feet > 0 else 0), GROUND - pose.feet)
            knee = _joint(hip, foot, bone, side)
            toe = (foot[0] + side * 4, foot[1])
            _limb(ctx, [hip, knee, foot, toe], width, colour)


def hand_place(pose, side):
    """Where the hand is on the canvas: the told place, or as near to it as the arm reaches."""
    x, y = pose.left_hand if side < 0 else pose.right_hand
    wanted = (MIDDLE + x + pose.x, GROUND + y + pose.y)
    shoulder = _body_point(pose, side * SHOULDER, SHOULDER_HEIGHT - BELLY)
    dx, dy = wanted[0] - shoulder[0], wanted[1] - shoulder[1]
    reach = min(1, 2 * ARM_BONE / (math.hypot(dx, dy) or 1))
    return shoulder[0] + dx * reach, shoulder[1] + dy * reach


def draw_arm(ctx, pose, side):
    shoulder = _body_point(pose, side * SHOULDER, SHOULDER_HEIGHT - BELLY)
    hand = hand_place(pose, side)
    elbow = _joint(shoulder, hand, ARM_BONE, side)
    _limb(ctx, [shoulder, elbow, hand], 6.5, LIMB, 5.4, pose.right_finger if side > 0 else 0, pose.finger_angle)


def _tuft(ctx, pose):
    def at(x, y):
        dx, dy = _turn(x, y, pose.tuft)
        return _body_point(pose, -2 + dx, BODY_CENTRE[1] - BODY_RADII[1] + 3 - BELLY + dy)

    polyline(ctx, [at(0, 0), at(7, -17)])
    stroke(ctx, OUTLINE, 7 + 2 * EDGE, keep=True)
    stroke(ctx, LIMB, 7)


def _body(ctx, pose):
    cx, cy = 0, BODY_CENTRE[1] - BELLY
    rx, ry = BODY_RADII
    ctx.save()
    ctx.translate(MIDDLE + pose.x, BELLY + pose.y)
    ctx.rotate(math.radians(pose.tilt))
    ctx.scale(pose.width, pose.height)
    ellipse(ctx, cx, cy, rx, ry)
    outlined(ctx, BODY_SHADE)

    ellipse(ctx, cx, cy, rx, ry)
    ctx.clip()
    ellipse(ctx, cx - 5, cy - 6, rx, ry)
    fill(ctx, BODY)

    # A web lies over the crown like a cap: threads from the tuft, and sagging rings between them.
    hub = (-2 + pose.face_x * 0.5, cy - ry + 1)
    angles = (-14, 22, 56, 90, 124, 158, 194)
    for angle in angles:
        dx, dy = _turn(30, 0, angle)
        polyline(ctx, [hub, (hub[0] + dx * 1.15, hub[1] + dy * 0.8)])
        stroke(ctx, BODY_LIGHT, 1.5)
    for radius in (12, 22):
        for first, second in zip(angles, angles[1:]):
            ax, ay = _turn(radius, 0, first)
            bx, by = _turn(radius, 0, second)
            mx, my = _turn(radius * 0.72, 0, (first + second) / 2)
            ctx.move_to(hub[0] + ax * 1.15, hub[1] + ay * 0.8)
            ctx.curve_to(*[v for _ in range(2) for v in (hub[0] + mx * 1.15, hub[1] + my * 0.8)],
                         hub[0] + bx * 1.15, hub[1] + by * 0.8)
            stroke(ctx, BODY_LIGHT, 1.5)
    _face(ctx, pose, cy)
    ctx.restore()


def _face(ctx, pose, cy):
    fx, fy = pose.face_x, pose.face_y
    for side in (-1, 1):
        ellipse(ctx, fx * 0.9 + side * 25, cy + 11 + fy * 0.9, 6, 4.2)
        fill(ctx, CHEEK)
    for side in (-1, 1):
        # The eye that turns away gets narrower.
        narrow = 1 - max(0, side * fx) * 0.018
        _eye(ctx, pose, fx + side * 13.5, cy - 3 + fy, 10.5 * narrow, 12.5, side)
    _mouth(ctx, pose, fx * 1.1, cy + 17 + fy * 1.1)


def _eye(ctx, pose, x, y, rx, ry, side):
    if pose.joy >= JOYFUL:
        ctx.move_to(x - rx + 1.5, y + 4)
        ctx.curve_to(x - rx + 3, y - 8, x + rx - 3, y - 8, x + rx - 1.5, y + 4)
        stroke(ctx, PUPIL, 3.6)
    else:
        ctx.save()
        ellipse(ctx, x, y, rx, ry)
        stroke(ctx, OUTLINE, 3, keep=True)
        fill(ctx, WHITE, keep=True)
        ctx.clip()
        px, py = x + pose.look_x * 4.4 - side * 1.2, y + pose.look_y * 5 + 1
        ellipse(ctx, px, py, 5.8, 6.6)
        fill(ctx, PUPIL)
        ellipse(ctx, px - 2, py - 2.6, 2.1, 2.3)
        fill(ctx, WHITE)
        if pose.joy > 0.05:
            low = y + ry - pose.joy * ry
            ctx.move_to(x - rx - 4, y + ry + 6)
            ctx.line_to(x - rx - 4, low + 3)
            ctx.curve_to(x - rx * 0.5, low - 4, x + rx * 0.5, low - 4, x + rx + 4, low + 3)
            ctx.line_to(x + rx + 4, y + ry + 6)
            ctx.close_path()
            stroke(ctx, OUTLINE, 4, keep=True)
            fill(ctx, BODY)
        if pose.lid > 0.01:
            # The upper lid sinks to a little below the middle, the lower one rises to meet it.
            meet = 0.45 * ry
            edge = y - ry + (ry + meet) * pose.lid
            bulge = 4 * (2 * pose.lid - 1)
            ctx.move_to(x - rx - 4, y - ry - 6)
            ctx.line_to(x - rx - 4, edge - bulge)
            ctx.curve_to(x - rx * 0.5, edge + bulge, x + rx * 0.5, edge + bulge, x + rx + 4, edge - bulge)
            ctx.line_to(x + rx + 4, y - ry - 6)
            ctx.close_path()
            stroke(ctx, OUTLINE, 4, keep=True)
            fill(ctx, BODY)
            if pose.lid > 0.6:
                rise = (pose.lid - 0.6) / 0.4
                low = y + ry - (ry - meet) * rise
                ctx.move_to(x - rx - 4, y + ry + 6)
                ctx.line_to(x - rx - 4, low - bulge)
                ctx.curve_to(x - rx * 0.5, low + bulge, x + rx * 0.5, low + bulge, x + rx + 4, low - bulge)
                ctx.line_to(x + rx + 4, y + ry + 6)
                ctx.close_path()
                stroke(ctx, OUTLINE, 3, keep=True)
                fill(ctx, BODY)
        ctx.restore()
    strength = min(1, (abs(pose.brow) + abs(pose.worry)) / 0.4)
    if strength < 0.2:
        return
    high = y - ry - 4.5 - pose.brow * 3
    ctx.move_to(x - 5, high - side * pose.worry * 3 + 1)
    ctx.curve_to(x - 2, high - 2, x + 2, high - 2, x + 5, high + side * pose.worry * 3 + 1)
    stroke(ctx, OUTLINE, 3 * strength)


def _mouth(ctx, pose, x, y):
    half = 8.5 * pose.mouth_width
    bow = 5.5 * pose.smile
    corner = y - bow * 0.45
    if pose.mouth < 0.12:
        ctx.move_to(x - half, corner)
        ctx.curve_to(x - half * 0.5, corner + bow, x + half * 0.5, corner + bow, x + half, corner)
        stroke(ctx, PUPIL, 2.6)
        return
    depth = 13 * pose.mouth
    ctx.save()
    ctx.move_to(x - half, corner)
    ctx.curve_to(x - half * 0.5, corner + bow * 0.35, x + half * 0.5, corner + bow * 0.35, x + half, corner)
    ctx.curve_to(x + half * 0.9, corner + depth + bow * 0.35, x - half * 0.9, corner + depth + bow * 0.35,
                 x - half, corner)
    ctx.close_path()
    stroke(ctx, PUPIL, 3, keep=True)
    fill(ctx, MOUTH, keep=True)
    ctx.clip()
    ellipse(ctx, x, corner + depth + 1, half * 0.75, depth * 0.5)
    fill(ctx, TONGUE)
    ctx.restore()


def draw(ctx, pose, behind=(), before=(), front=()):
    """The whole figure. Each of the lists holds routines that draw things: behind the figure, between its body and its
    arms, and in front of everything."""
    for thing in behind:
        thing(ctx)
    _legs(ctx, pose)
    _tuft(ctx, pose)
    _body(ctx, pose)
    for thing in before:
        thing(ctx)
    for side in (-1, 1):
        draw_arm(ctx, pose, side)
    for thing in front:
        thing(ctx)
