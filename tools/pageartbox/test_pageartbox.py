#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Checks the picture collection as it ships: python3 test_pageartbox.py"""

import re
import unittest

from PIL import Image, ImageChops, ImageSequence, ImageStat

from draw import COLLECTION, FOLDERS, differences
from picture import reduce_colours

NAME = re.compile(r"[a-z0-9]+(_[a-z0-9]+)*\.(gif|jpg)")
MOST_BYTES = {"jpg": 25_000, "gif": 6_000}
MOST_BYTES_MOVING = 30_000


def files():
    return sorted(path for path in COLLECTION.rglob("*") if path.is_file())


def frames(path):
    with Image.open(path) as image:
        return [frame.convert("RGBA") for frame in ImageSequence.Iterator(image)], image.info.get("loop")


def difference(first, second):
    """How much two pictures of one size differ, on average and per channel."""
    return sum(ImageStat.Stat(ImageChops.difference(first, second)).mean)


def seam(image):
    """How much the step over the edges of a tile exceeds the strongest step within it; at most 1 without a seam."""
    worst = 0
    for turned in (image, image.transpose(Image.Transpose.ROTATE_90)):
        lines = [turned.crop((x, 0, x + 1, turned.height)) for x in range(turned.width)]
        within = max(difference(a, b) for a, b in zip(lines, lines[1:]))
        worst = max(worst, difference(lines[-1], lines[0]) / max(within, 1))
    return worst


class Collection(unittest.TestCase):
    def test_is_what_the_script_draws(self):
        self.assertEqual(list(differences(COLLECTION)), [])

    def test_names_and_sizes(self):
        for path in files():
            with self.subTest(path.name):
                self.assertRegex(path.name, re.compile(f"^{NAME.pattern}$"))
                with Image.open(path) as image:
                    moving = getattr(image, "n_frames", 1) > 1
                limit = MOST_BYTES_MOVING if moving else MOST_BYTES[path.suffix[1:]]
                self.assertLessEqual(path.stat().st_size, limit)

    def test_backgrounds_have_no_seam(self):
        for path in sorted((COLLECTION / "Hintergründe").iterdir()):
            with self.subTest(path.name), Image.open(path) as image:
                self.assertLessEqual(seam(image.convert("RGB")), 1.05)

    def test_a_seam_is_found(self):
        self.assertGreater(seam(Image.linear_gradient("L").convert("RGB")), 10)

    def test_animations_show_every_frame_and_loop(self):
        for picture in FOLDERS["Animationen"]:
            with self.subTest(picture.name):
                shown, loop = frames(COLLECTION / "Animationen" / picture.name)
                self.assertEqual(loop, 0)
                palette, drawn = reduce_colours(picture.images(), picture.colours)
                for frame, indexes in zip(shown, drawn, strict=True):
                    self.assertEqual([pixel[:3] if pixel[3] else None for pixel in frame.getdata()],
                                     [palette[index] if index else None for index in indexes])
                steps = [difference(a, b) for a, b in zip(shown, shown[1:])]
                self.assertLessEqual(difference(shown[-1], shown[0]), 1.05 * max(steps))


if __name__ == "__main__":
    unittest.main()
