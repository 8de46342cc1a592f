"""Plays a table of gestures on the native library, as a host with a view of 800 x 600 pixels, and prints what the
library says and writes. The browser's test plays the same table on the module.

usage: native_player.py LIBRARY TABLE
"""

import ctypes
import json
import sys
from pathlib import Path
from types import SimpleNamespace

sys.path.append(str(Path(__file__).parents[2] / "examples/python_host"))
import rulecanvas

VIEW = 0
DELETED, WAITING, DRAWING, COMPLETE = range(4)
LEFT_DOWN, LEFT_UP, MOVED, RIGHT_DOWN, RIGHT_UP, ALT_RIGHT_DOWN, KEY_DOWN = 1, 2, 3, 4, 5, 10, 11
PRESSES = {
    "move": [],
    "click": [LEFT_DOWN, LEFT_UP],
    "rclick": [RIGHT_DOWN, RIGHT_UP],
    "altrclick": [ALT_RIGHT_DOWN, RIGHT_UP],
}
ESCAPE = 27


class Nowhere(rulecanvas.Surface):
    """Takes every drawing call; a text has no size."""

    def __getattr__(self, operation):
        return lambda *_values: 0


class Player:
    """A step that is no press is played by the method of its name."""

    def __init__(self, library):
        self.library = library
        self.rules = []
        self.surface = Nowhere()
        self.container = rulecanvas.Container(library, self.notified, client_rect=lambda _view: (800, 600),
                                              capture=lambda take: print("capture", int(take)))
        library.SetPixelCount(self.container.handle, 1280, 720)

    def play(self, step):
        command, *words = step.split()
        if command in PRESSES:
            self.press(PRESSES[command], *map(float, words))
        else:
            getattr(self, command)(*words)

    def press(self, codes, x, y):
        for code in [MOVED, *codes]:
            self.send(code, x, y)

    def drag(self, *places):
        x1, y1, x2, y2 = map(float, places)
        self.press([LEFT_DOWN], x1, y1)
        for part in (0.25, 0.5, 0.75, 1):
            self.send(MOVED, x1 + (x2 - x1) * part, y1 + (y2 - y1) * part)
        self.send(LEFT_UP, x2, y2)

    def escape(self):
        self.container.send(KEY_DOWN, VIEW, 0, 0, key=ESCAPE)
        self.remove_those_in(WAITING, DRAWING)

    def add(self, kind, name, option, configuration=""):
        if not configuration:
            self.remove_those_in(WAITING, DRAWING)
        self.make(SimpleNamespace(type=kind, name=name, option="" if option == "-" else option,
                                  configuration=configuration, caption="", direction=""))

    def remove(self, name):
        self.remove_rule(self.named(name))

    def config(self, name):
        print("config", name, self.container.configuration(self.named(name).shape))

    def caption(self, name, text):
        rule = self.named(name)
        rule.caption = text
        self.call("SetVideoAnalyseShapeShowName", rule, text.encode())

    def direction(self, name, number):
        rule = self.named(name)
        rule.direction = number
        self.call("SetVideoAnalyseShapeDirection", rule, int(number))

    def limits(self, name, maximum, minimum):
        self.call("SetVideoAnalyseShapeMaxPtNum", self.named(name), int(maximum), int(minimum))

    def select(self, name):
        for rule in self.rules:
            self.call("SelectVideoAnalyseShape", rule, int(rule.name == name))

    def reload(self):
        saved, self.rules = self.rules, []
        for rule in saved:
            rule.configuration = self.container.configuration(rule.shape)
            if rule.type == "OvalShape":
                rule.configuration = rule.configuration.replace(rule.name, "OvalShape", 1)
            self.call("DeleteVideoAnalyseShape", rule)
        for rule in saved:
            self.make(rule)
        self.select(None)

    def make(self, rule):
        rule.state = COMPLETE if rule.configuration else WAITING
        rule.shape = self.container.add(VIEW, rule.type, rule.name, "rule", rule.configuration, rule.option)
        if rule.shape == 0:
            raise ValueError(f"refused: {rule}")
        self.rules.append(rule)
        if rule.caption:
            self.caption(rule.name, rule.caption)
        if rule.direction:
            self.direction(rule.name, rule.direction)
        self.container.paint(VIEW, self.surface)

    def send(self, code, x, y):
        self.container.send(code, VIEW, x, y)
        for rule in self.rules:
            if rule.type == "SpotShape" and rule.state == WAITING and self.container.configuration(rule.shape):
                rule.state = COMPLETE
        self.remove_those_in(DELETED)
        self.container.paint(VIEW, self.surface)

    def notified(self, text):
        print("notify", text.decode(), end="")
        about = json.loads(text)["EventParam"]
        for rule in self.rules:
            if rule.shape == about["ShapeID"]:
                rule.state = about.get("ShapeState", rule.state)

    def remove_those_in(self, *states):
        for rule in [each for each in self.rules if each.state in states]:
            self.remove_rule(rule)

    def remove_rule(self, rule):
        self.call("DeleteVideoAnalyseShape", rule)
        self.rules.remove(rule)

    def call(self, function, rule, *values):
        getattr(self.library, function)(self.container.handle, rule.shape, *values)

    def named(self, name):
        return next(rule for rule in self.rules if rule.name == name)


def main(library, table):
    player = None
    for line in Path(table).read_text().splitlines():
        if line.startswith("case "):
            if player:
                player.container.close()
            print(line)
            player = Player(ctypes.CDLL(library))
        elif line and not line.startswith("#"):
            for step in line.split("|"):
                player.play(step)
    player.container.close()


if __name__ == "__main__":
    main(*sys.argv[1:])
