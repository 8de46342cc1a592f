#!/usr/bin/env python3
"""Tells where in a screenshot of the sample host its video is.

usage: locate_view.py SCREENSHOT WIDTH
Looks for the magenta lines that the script reference/view.rules draws across the whole view, and prints the place of its
top left corner as "X Y". WIDTH is the width of the screenshot.
"""

import subprocess
import sys

MAGENTA = b"\xff\x00\xff"


def main(screenshot, width):
    command = ["ffmpeg", "-v", "error", "-i", screenshot, "-f", "rawvideo", "-pix_fmt", "rgb24", "-"]
    pixels = subprocess.run(command, check=True, capture_output=True).stdout
    found = [i // 3 for i in range(0, len(pixels), 3) if pixels[i : i + 3] == MAGENTA]
    if not found:
        raise SystemExit(f"{screenshot}: no line across the view")
    print(min(i % width for i in found), min(i // width for i in found))


if __name__ == "__main__":
    main(sys.argv[1], int(sys.argv[2]))
