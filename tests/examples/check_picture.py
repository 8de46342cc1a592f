"""Looks whether a picture has the expected size and colours.

usage: check_picture.py PICTURE WIDTHxHEIGHT X,Y=RED,GREEN,BLUE...
"""

import sys

from PIL import Image

# Lines may be drawn with soft edges.
TOLERANCE = 40


def numbers(text):
    return [int(part) for part in text.split(",")]


def main(path, size, *places):
    picture = Image.open(path).convert("RGB")
    mistakes = []
    if "%dx%d" % picture.size != size:
        mistakes.append("the picture is %dx%d, expected %s" % (*picture.size, size))
    for place in places if not mistakes else ():
        (x, y), expected = (numbers(part) for part in place.split("="))
        found = picture.getpixel((x, y))
        if any(abs(a - b) > TOLERANCE for a, b in zip(found, expected)):
            mistakes.append("at (%d, %d): %s, expected %s" % (x, y, found, tuple(expected)))
    print("\n".join(mistakes) or "%s is as expected" % path)
    return 1 if mistakes else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
