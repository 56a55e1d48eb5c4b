#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks the GIF writer and the animations in data/ with an independent reader."""

import io
import random
import unittest
from pathlib import Path

from PIL import Image

import gif

DATA = Path(__file__).resolve().parent.parent.parent / "data"
SECONDS = {1: 0.8, 2: 0.8, 3: 0.8, 4: 0.8, 5: 0.9, 6: 0.8, 7: 1.8, 8: 2.8, 9: 3.5}
LARGEST = 128 * 1024


def read(source):
    """All frames as a player shows them, with their delays in milliseconds, and whether the file loops for ever."""
    with Image.open(source) as image:
        frames, delays = [], []
        endless = image.info.get("loop") == 0
        for i in range(image.n_frames):
            image.seek(i)
            frames.append(image.convert("RGBA"))
            delays.append(image.info["duration"])
    return frames, delays, endless


class Writer(unittest.TestCase):
    def test_reader_sees_what_was_written(self):
        """Appearing, staying and vanishing dots, an empty frame, and noise that fills the code table several times."""
        dice = random.Random(7)
        width, height = 90, 70
        palette = [(0, 0, 0)] + [(i * 8, 255 - i * 8, i * 5) for i in range(1, 32)]
        noise = bytes(dice.randrange(32) for _ in range(width * height))
        sparse = bytes(i if dice.random() < 0.1 else 0 for i in noise)
        flat = bytes([3]) * (width * height)
        frames = [noise, noise, flat, sparse, bytes(width * height), sparse, flat, noise]
        shown, delays, endless = read(io.BytesIO(gif.encode(width, height, palette, frames, range(3, 11))))
        self.assertEqual(delays, [10 * d for d in range(3, 11)])
        self.assertTrue(endless)
        for number, (frame, image) in enumerate(zip(frames, shown, strict=True)):
            wanted = [palette[i] + (255,) if i else None for i in frame]
            seen = [pixel if pixel[3] else None for pixel in image.getdata()]
            self.assertEqual(seen, wanted, f"frame {number}")


class ShippedFiles(unittest.TestCase):
    def test_every_file(self):
        rest = None
        for number, seconds in SECONDS.items():
            with self.subTest(file=number):
                path = DATA / f"anim{number}.anm"
                self.assertEqual(path.read_bytes()[:6], b"GIF89a")
                self.assertLess(path.stat().st_size, LARGEST)
                frames, delays, endless = read(path)
                self.assertTrue(endless)
                self.assertGreaterEqual(len({frame.tobytes() for frame in frames}), 12)
                self.assertLessEqual(sum(delays), seconds * 1000)
                self.assertGreater(sum(delays), seconds * 1000 - 50)
                rest = rest or frames[0].tobytes()
                self.assertEqual(frames[0].tobytes(), rest)
                self.assertEqual(frames[-1].tobytes(), rest)
                for i, frame in enumerate(frames):
                    self.assertEqual(frame.size, (150, 150))
                    alpha = frame.getchannel("A")
                    # Nothing is cut off: the outermost dots are empty all around.
                    left, top, right, bottom = alpha.getbbox()
                    self.assertTrue(left > 0 and top > 0 and right < 150 and bottom < 150, f"frame {i} is cut off")


if __name__ == "__main__":
    unittest.main()
