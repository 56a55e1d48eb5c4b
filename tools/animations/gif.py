# SPDX-License-Identifier: MIT
"""Writes GIF89a files: one palette for the whole file, one-bit transparency, an endless loop if there is more than one
frame.

Every frame holds only the part of the picture that is not there yet. Where something has to vanish for the next frame,
the frame covers it as well and is cleared after showing, so nothing smears.
"""

import struct

TRANSPARENT = 0  # The palette index that means "nothing here".
LEAVE_AFTER_SHOWING = 1
CLEAR_AFTER_SHOWING = 2


class _BitWriter:
    """Packs codes of changing width, lowest bit first."""

    def __init__(self):
        self.data = bytearray()
        self._bits = 0
        self._count = 0

    def write(self, code, width):
        self._bits |= code << self._count
        self._count += width
        while self._count >= 8:
            self.data.append(self._bits & 0xFF)
            self._bits >>= 8
            self._count -= 8

    def finish(self):
        if self._count:
            self.data.append(self._bits & 0xFF)
        return bytes(self.data)


def _compress(indexes, minimum_width):
    """The LZW coding of the GIF standard."""
    clear = 1 << minimum_width
    end = clear + 1
    bits = _BitWriter()

    def fresh_table():
        return {(-1, i): i for i in range(clear)}, end + 1, minimum_width + 1

    table, following, width = fresh_table()
    bits.write(clear, width)
    prefix = -1
    for index in indexes:
        known = table.get((prefix, index))
        if known is not None:
            prefix = known
            continue
        bits.write(prefix, width)
        if following < 4096:
            table[(prefix, index)] = following
            # The decoder learns each entry one code later, so the width grows when the entry just made needs it.
            if following == 1 << width:
                width += 1
            following += 1
        else:
            bits.write(clear, width)
            table, following, width = fresh_table()
        prefix = index
    bits.write(prefix, width)
    bits.write(end, width)
    return bits.finish()


def _blocks(data):
    parts = [bytes([len(data[i:i + 255])]) + data[i:i + 255] for i in range(0, len(data), 255)]
    return b"".join(parts) + b"\0"


def _bounds(positions, width):
    """Left, top, right and bottom of the told dots; a single dot if there are none."""
    if not positions:
        return 0, 0, 1, 1
    columns = [position % width for position in positions]
    return min(columns), min(positions) // width, max(columns) + 1, max(positions) // width + 1


def _differences(width, height, frames):
    """For each frame: its place, its dots and what becomes of it after showing."""
    canvas = bytearray([TRANSPARENT]) * (width * height)
    blank = bytes(canvas)
    # Nothing follows the last frame, so that a player that starts again finds nothing left over; a single frame stays.
    followers = frames[1:] + [blank] if len(frames) > 1 else frames
    for frame, following in zip(frames, followers):
        vanishing = [i for i, (now, then) in enumerate(zip(frame, following))
                     if now != TRANSPARENT and then == TRANSPARENT]
        new = [i for i, (old, now) in enumerate(zip(canvas, frame)) if old != now]
        left, top, right, bottom = _bounds(vanishing + new, width)
        dots = bytearray()
        canvas_after = bytearray(frame)
        for y in range(top, bottom):
            row = slice(y * width + left, y * width + right)
            dots += bytes(TRANSPARENT if old == now else now for old, now in zip(canvas[row], frame[row]))
            if vanishing:
                canvas_after[row] = blank[row]
        canvas = canvas_after
        yield (left, top, right, bottom), bytes(dots), CLEAR_AFTER_SHOWING if vanishing else LEAVE_AFTER_SHOWING


def encode(width, height, palette, frames, delays):
    """The whole file. `palette` is a list of (r, g, b) whose entry 0 is never shown, `frames` are bytes of palette
    indexes, row by row, and `delays` are hundredths of a second."""
    table_bits = max(2, (len(palette) - 1).bit_length())
    colours = list(palette) + [(0, 0, 0)] * ((1 << table_bits) - len(palette))
    out = bytearray(b"GIF89a")
    out += struct.pack("<HHBBB", width, height, 0xF0 | (table_bits - 1), TRANSPARENT, 0)
    for colour in colours:
        out += bytes(colour)
    if len(frames) > 1:
        out += b"\x21\xFF\x0BNETSCAPE2.0\x03\x01\0\0\0"
    for (place, dots, disposal), delay in zip(_differences(width, height, frames), delays, strict=True):
        left, top, right, bottom = place
        out += b"\x21\xF9\x04" + struct.pack("<BHB", disposal << 2 | 1, delay, TRANSPARENT) + b"\0"
        out += b"\x2C" + struct.pack("<HHHHB", left, top, right - left, bottom - top, 0)
        out += bytes([table_bits]) + _blocks(_compress(dots, table_bits))
    out += b"\x3B"
    return bytes(out)
