# SPDX-License-Identifier: MIT
"""A picture of the collection: its name, its drawing, and its bytes as GIF or JPG."""

import io
import sys
from dataclasses import dataclass
from pathlib import Path
from typing import Callable

from PIL import Image

from canvas import Canvas

# The writer of the assistant's animations: one palette a file, hard transparency, endless loop.
sys.path.append(str(Path(__file__).resolve().parent.parent / "animations"))
import gif  # noqa: E402


@dataclass(frozen=True)
class Picture:
    """`draw(canvas, phase)` draws one frame; `phase` runs from 0 to below 1, so that a drawing that is periodic in it
    loops without a jump. Without a `ground` the picture is transparent. `delay` is in hundredths of a second; it may be
    a list, one for each frame."""
    name: str
    width: int
    height: int
    draw: Callable
    ground: str | None = None
    frames: int = 1
    delay: int | list = 10
    colours: int = 63
    quality: int = 88

    def images(self):
        return [self._frame(i / self.frames) for i in range(self.frames)]

    def _frame(self, phase):
        canvas = Canvas(self.width, self.height, self.ground)
        self.draw(canvas, phase)
        return canvas.image()

    def encode(self):
        """The whole file."""
        images = self.images()
        if self.name.endswith(".jpg"):
            return _jpg(images[0], self.quality)
        palette, frames = reduce_colours(images, self.colours)
        delays = self.delay if isinstance(self.delay, list) else [self.delay] * self.frames
        return gif.encode(self.width, self.height, palette, frames, delays)


def _jpg(image, quality):
    out = io.BytesIO()
    image.convert("RGB").save(out, "JPEG", quality=quality, optimize=True, subsampling=0)
    return out.getvalue()


def reduce_colours(images, most):
    """One palette of at most `most` colours for all frames, its entry 0 for what is not there, and the frames as bytes
    of its indexes. Nothing is dithered: flat areas stay flat and the files small."""
    dots = [pixel[:3] for image in images for pixel in image.getdata() if pixel[3]]
    colours = sorted(set(dots))
    if len(colours) > most:
        collected = Image.new("RGB", (len(dots), 1))
        collected.putdata(dots)
        reduced = collected.quantize(most, method=Image.Quantize.MEDIANCUT, kmeans=1)
        flat = reduced.getpalette()[:3 * most]
        colours = sorted(set(zip(flat[0::3], flat[1::3], flat[2::3])))
    nearest = {}

    def index(pixel):
        if not pixel[3]:
            return gif.TRANSPARENT
        if pixel not in nearest:
            nearest[pixel] = 1 + min(range(len(colours)), key=lambda i: _distance(pixel, colours[i]))
        return nearest[pixel]

    return [(0, 0, 0)] + colours, [bytes(map(index, image.getdata())) for image in images]


def _distance(pixel, colour):
    return sum((a - b) ** 2 for a, b in zip(pixel, colour))
