#!/usr/bin/env python3
"""Turns a result of build/native/rulecanvas_bench into a table, docs/benchmarks.md and docs/pictures/speed.svg."""

import json
import math
import pathlib
import platform
import statistics
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
COUNTS = (10, 100, 1000, 10000)
# Each operation with the bare work beside it; those measured over all figures are divided by their number.
ROWS = (
    ("press on nothing", "one pass over bounding boxes", False),
    ("press on a figure", "one pass over bounding boxes", False),
    ("hover", "an empty virtual call", False),
    ("drag step", "testing and shifting 20 points", False),
    ("paint", "the same surface calls from an array of points", True),
    ("load a text", "the same text through JsonCpp into points", True),
    ("write a text", "points through JsonCpp's kept writer", False),
    ("memory", "an array of arrays of points", False),
    ("delete all", "freeing the arrays of points", True),
)
OTHER_KINDS = (("paint", "Rect"), ("paint", "LineShape"), ("load a text", "Rect"), ("load a text", "LineShape"))
PER_FIGURE = {operation for operation, _, divided in ROWS if divided}


def read(path):
    """The medians of all measurements by (operation, side, kind, count): nanoseconds, or bytes for memory."""
    runs = {}
    for run in json.loads(pathlib.Path(path).read_text())["benchmarks"]:
        if run.get("error_occurred"):
            sys.exit(f"{run['name']}: {run['error_message']}")
        if run.get("run_type") == "iteration":
            operation, side, kind, count = run["run_name"].split("/")[:4]
            value = run.get("bytes", run["real_time" if "manual_time" in run["run_name"] else "cpu_time"])
            runs.setdefault((operation, side, kind, int(count)), []).append(value)
    return {
        key: statistics.median(values) / (key[3] if key[0] in PER_FIGURE else 1) for key, values in runs.items()
    }


def shown(value, operation):
    if operation == "memory":
        return f"{value:,.0f} bytes"
    return f"{value / 1000:,.1f} us" if value >= 1000 else f"{value:,.1f} ns" if value < 10 else f"{value:,.0f} ns"


def title(operation, kind="Polygon"):
    name = f"{operation}, a figure" if operation in PER_FIGURE | {"memory"} else operation
    return name if kind == "Polygon" else f"{name} (`{kind}`)"


def ratio(results, operation, kind, count):
    quotient = results[operation, "ours", kind, count] / results[operation, "bare", kind, count]
    return f"{quotient:.2f}" if quotient < 10 else f"{quotient:.0f}"


def table(results):
    lines = ["| operation | bare work | " + " | ".join(f"{count:,}" for count in COUNTS) + " | at 10,000 | bare |",
             "|---|---|" + "--:|" * (len(COUNTS) + 2)]
    bare_works = {operation: bare for operation, bare, _ in ROWS}
    for operation, kind in [(row[0], "Polygon") for row in ROWS] + list(OTHER_KINDS):
        ratios = [ratio(results, operation, kind, count) for count in COUNTS]
        times = [shown(results[operation, side, kind, COUNTS[-1]], operation) for side in ("ours", "bare")]
        lines.append(f"| {title(operation, kind)} | {bare_works[operation]} | " + " | ".join(ratios + times) + " |")
    return "\n".join(lines)


def machine():
    models = [line.split(":")[1].strip() for line in pathlib.Path("/proc/cpuinfo").read_text().splitlines()
              if line.startswith("model name")]
    return f"{models[0] if models else platform.machine()}, {len(models)} cores, {platform.system()}"


def sizes():
    libraries = (("rulecanvas.dll (windows-x86)", "build/windows-x86/rulecanvas.dll"),)
    return [f"`{name}`: {(ROOT / path).stat().st_size:,} bytes" for name, path in libraries if (ROOT / path).exists()]


def document(results):
    parts = [
        "# Benchmarks",
        "How many times as long as the bare work under it each operation takes, for 10 to 10,000 figures in one view, and the "
        "times of 10,000 on the machine of this run. The bare work is what a program would do that has nothing but the points: "
        "no locks, no states, no notifications. 1.00 is as fast as that. `scripts/bench.sh` measures and writes this page.",
        table(results),
        "![Time by number of figures](pictures/speed.svg)",
        "## How it was measured",
        f"- Machine: {machine()}. Times differ from machine to machine and with what else it does; compare the ratios.\n"
        "- The native release build, one process bound to one core, five repetitions in random order, medians of processor "
        "time.\n"
        "- Polygons have 20 corners and are strewn over a view of 1920 by 1080 pixels; other kinds are named.\n"
        "- A press is a press and its release. A figure that is pressed is the one a walk over all would reach last.\n"
        "- Figures are loaded into an empty container. Deleting pauses once, 10 ms long, for a paint on another thread; that "
        "pause is left out.\n"
        "- The surface takes the calls and draws nothing; both sides call the same one equally often. It stands in a shared "
        "library together with the bare work, as toolkits do: on a processor where a call between a program and a library far "
        "away from it in memory takes longer, it takes longer for both sides or for neither.\n"
        "- Memory is what the heap holds more after loading, a press and a paint. A few figures carry the container's tables.",
    ]
    parts += [
        "## What the difference is",
        "- A press looks up two strips of a table, so many figures cost it less than one pass over them; a few cost it the "
        "same as many.\n"
        "- A paint copies each figure under its lock and draws from the copy: no lock is held while the host draws, and a figure "
        "may be edited or deleted meanwhile. Of the 20 ns that a polygon takes beyond the bare work the lock is 5 and the copy 2 "
        "(measured by leaving each out); the rest is spread over the walk, the checks and the calls of drawing one figure, none of "
        "which a profile shows with more than 3. Drawing without the lock would need a second, unchanging form of every "
        "figure: some 200 bytes more.\n"
        "- A drag step tests that no edges cross unless the step moves every corner without rounding.\n"
        "- A figure's memory is its points, its names, its lock and its places in the lists of its container.\n"
        "- Of the DLL's 1.4 MB, 0.2 are this library's code and 0.2 JsonCpp's; 0.8 are the C++ library's streams and locales, which "
        "JsonCpp needs to read a number and to write a message, and which come as a whole.",
    ]
    if sizes():
        parts += ["## Size", "\n".join(f"- {line}" for line in sizes())]
    return "\n\n".join(parts) + "\n"


class Panel:
    """One operation in the plot: two lines over logarithmic axes."""

    WIDTH, HEIGHT, LEFT, TOP = 290, 200, 52, 28

    def __init__(self, column, row, curves):
        self.x, self.y = 10 + column * (self.WIDTH + 12), 44 + row * (self.HEIGHT + 14)
        values = [value for curve in curves.values() for value in curve]
        self.low, self.high = math.floor(math.log10(min(values))), math.ceil(math.log10(max(values)))
        self.high = max(self.high, self.low + 1)
        self.curves = curves

    def place(self, index, value):
        across = self.WIDTH - self.LEFT - 14
        down = self.HEIGHT - self.TOP - 30
        part = (math.log10(value) - self.low) / (self.high - self.low)
        return self.x + self.LEFT + across * index / (len(COUNTS) - 1), self.y + self.TOP + down * (1 - part)

    def draw(self, name, in_bytes):
        yield f'<text x="{self.x + self.LEFT}" y="{self.y + 16}" class="title">{name}</text>'
        for power in range(self.low, self.high + 1):
            (left, y), (right, _) = self.place(0, 10**power), self.place(len(COUNTS) - 1, 10**power)
            yield f'<path d="M{left:.1f} {y:.1f}H{right:.1f}" class="grid"/>'
            yield f'<text x="{left - 6:.1f}" y="{y + 4:.1f}" class="value">{power_of_ten(power, in_bytes)}</text>'
        for index, count in enumerate(COUNTS):
            x, y = self.place(index, 10**self.low)
            yield f'<text x="{x:.1f}" y="{y + 16:.1f}" class="count">{count:,}</text>'
        for side, curve in self.curves.items():
            places = [self.place(index, value) for index, value in enumerate(curve)]
            yield f'<polyline points="{" ".join(f"{x:.1f},{y:.1f}" for x, y in places)}" class="{side}"/>'
            for x, y in places:
                yield f'<circle cx="{x:.1f}" cy="{y:.1f}" r="2.6" class="{side} dot"/>'


def power_of_ten(power, in_bytes):
    if in_bytes:
        return f"{10**power:,} B"
    unit, exponent = next((unit, at) for unit, at in (("s", 9), ("ms", 6), ("us", 3), ("ns", -9)) if power >= at)
    return f"{10.0 ** (power - max(exponent, 0)):g} {unit}"


STYLE = """
text { font: 11px sans-serif; fill: #333 } .title { font-weight: bold; font-size: 13px }
.value { text-anchor: end } .count { text-anchor: middle } .grid { stroke: #ddd; fill: none }
.ours { stroke: #0060c0; fill: none; stroke-width: 2 } .bare { stroke: #d07000; fill: none; stroke-width: 2; stroke-dasharray: 5 3 }
.ours.dot { fill: #0060c0 } .bare.dot { fill: #d07000; stroke-dasharray: none }
"""


def plot(results):
    columns = 3
    width = 10 + columns * (Panel.WIDTH + 12)
    height = 50 + math.ceil(len(ROWS) / columns) * (Panel.HEIGHT + 14)
    lines = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width} {height}" width="{width}" height="{height}">',
             f"<style>{STYLE}</style>", '<rect width="100%" height="100%" fill="white"/>',
             '<path d="M20 22h34" class="ours"/><text x="60" y="26">RuleCanvas</text>',
             '<path d="M150 22h34" class="bare"/><text x="190" y="26">bare work</text>',
             '<text x="290" y="26">20-point polygons; from left to right more of them, 10 to 10,000; both axes '
             'logarithmic</text>']
    for place, (operation, _, _) in enumerate(ROWS):
        curves = {side: [results[operation, side, "Polygon", count] for count in COUNTS] for side in ("bare", "ours")}
        panel = Panel(place % columns, place // columns, curves)
        lines += panel.draw(title(operation), operation == "memory")
    return "\n".join(lines + ["</svg>"]) + "\n"


def main():
    results = read(sys.argv[1])
    print("\n".join([table(results), *sizes()]))
    (ROOT / "docs/pictures/speed.svg").write_text(plot(results))
    (ROOT / "docs/benchmarks.md").write_text(document(results))


if __name__ == "__main__":
    main()
