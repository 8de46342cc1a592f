#!/usr/bin/env python3
"""Draws rules on a picture, a frame of a clip or a plain ground, and writes the result as a picture.

usage: host.py LIBRARY OUTPUT [PICTURE_OR_CLIP]

LIBRARY is librulecanvas.so. Pictures are read by Pillow (Debian: python3-pil); of anything else ffmpeg takes a frame.
"""

import ctypes
import io
import json
import subprocess
import sys

from PIL import Image, ImageDraw, ImageFont, UnidentifiedImageError

import rulecanvas

VIEW = 0


def rgba(colour):
    """An alpha above 1 is meant on a scale of 0..255."""
    alpha = colour.alpha if colour.alpha > 1 else colour.alpha * 255
    return int(colour.red), int(colour.green), int(colour.blue), int(alpha)


def box(a, b):
    return [min(a.x, b.x), min(a.y, b.y), max(a.x, b.x), max(a.y, b.y)]


class PillowSurface(rulecanvas.Surface):
    def __init__(self, picture):
        super().__init__()
        self.target = ImageDraw.Draw(picture, "RGBA")
        self.font = ImageFont.load_default()
        self.fills = []
        self.in_layer = False

    def line(self, a, b, width, colour, _pen):
        self.target.line([a.x, a.y, b.x, b.y], fill=rgba(colour), width=round(width))

    def rectangle(self, a, b, width, colour, _pen):
        self.target.rectangle(box(a, b), outline=rgba(colour), width=round(width))

    def ellipse(self, a, b, width, colour):
        self.target.ellipse(box(a, b), outline=rgba(colour), width=round(width))

    def disc(self, a, b, width, fill, outline):
        self.target.ellipse(box(a, b), fill=rgba(fill), outline=rgba(outline), width=round(width))

    def text(self, at, style, text, _first, _second):
        self.target.text((at.x, at.y), text.decode(errors="replace"), fill=rgba(style.colour), font=self.font)

    def text_width(self, _style, text):
        return self.target.textlength(text.decode(errors="replace"), font=self.font)

    def text_height(self, _style, text):
        return self.target.textbbox((0, 0), text.decode(errors="replace"), font=self.font)[3]

    def caption(self, text, points, count, colour, _format, _clip, _last):
        if count > 0 and text:
            shown = colour if colour.alpha > 0 else rulecanvas.ColorF(1, 255, 255, 255)
            self.target.text((points.x, points.y - 14), text.decode(errors="replace"), fill=rgba(shown), font=self.font)

    def begin_layer(self):
        self.in_layer = True

    def layer_size(self, _width, _height):
        pass  # the fills do not leave the layer

    def fill(self, a, b, colour):
        if self.in_layer:
            self.fills.append((box(a, b), rgba(colour)))
        else:
            self.target.rectangle(box(a, b), fill=rgba(colour))

    def end_layer(self, x, y):
        for (left, top, right, bottom), colour in self.fills:
            self.target.rectangle([x + left, y + top, x + right - 1, y + bottom - 1], fill=colour)
        self.fills.clear()
        self.in_layer = False


def read_picture(path):
    try:
        return Image.open(path).convert("RGB")
    except UnidentifiedImageError:
        frame = subprocess.run(
            ["ffmpeg", "-nostdin", "-v", "error", "-ss", "2", "-i", path, "-frames:v", "1", "-f", "image2pipe",
             "-c:v", "png", "-"], check=True, stdout=subprocess.PIPE).stdout
        return Image.open(io.BytesIO(frame)).convert("RGB")


def add_stored_rule(container):
    zone = container.add(VIEW, "Polygon", "zone", "intrusion",
                         json.dumps({"zone": [[800, 2600], [4000, 2300], [4800, 6200], [600, 6800]]}))
    container.library.SetVideoAnalyseShapeShowName(container.handle, zone, b"Zone")
    container.library.SetVideoAnalyseShapeColor(container.handle, zone, 60, 230, 110, 0)
    container.library.SelectVideoAnalyseShape(container.handle, zone, 0)


def draw_by_hand(container, width, height):
    """What the events of a window do when the user drags a rectangle."""
    gate = container.add(VIEW, "Rect", "gate", "intrusion")
    left, top, right, bottom = (round(part) for part in (width * 0.7, height * 0.3, width * 0.9, height * 0.6))
    container.send(rulecanvas.MOUSE_LEFT_DOWN, VIEW, left, top)
    container.send(rulecanvas.MOUSE_MOVED, VIEW, right, bottom)
    container.send(rulecanvas.MOUSE_LEFT_UP, VIEW, right, bottom)
    print("gate", container.configuration(gate))


def main(arguments):
    if len(arguments) not in (2, 3):
        print(__doc__, file=sys.stderr)
        return 2
    library, output = arguments[:2]
    picture = read_picture(arguments[2]) if len(arguments) == 3 else Image.new("RGB", (640, 480), (70, 80, 90))

    container = rulecanvas.Container(
        ctypes.CDLL(library),
        notify=lambda text: print("event", text.decode(errors="replace").rstrip()),
        client_rect=lambda view: picture.size,
        capture=lambda take: print("take the mouse" if take else "let the mouse go"))
    add_stored_rule(container)
    draw_by_hand(container, *picture.size)
    container.paint(VIEW, PillowSurface(picture))
    container.close()
    picture.save(output)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
