#!/usr/bin/env python3
"""The samples of README.md and docs/: what is in them is tested.

usage: samples.py check ROOT                  are the documents sound? says what is wrong and ends with 1
       samples.py table ROOT OUTPUT           the configuration and style samples as rows of a C++ table
       samples.py matrix ROOT PAGE HEADING OUTPUT   the table behind a heading, a row a type, as cells of a C++ table
       samples.py code ROOT DOCUMENT OUTPUT   the C++ samples of one document as one source
       samples.py first-program ROOT BUILD RUN...   builds the guide's first program as the guide says, against the Windows
                                              library in the folder BUILD, and runs it with the command RUN

What stands behind the three backticks decides:

  json                      is JSON
  json rulecanvas type=T    a configuration: makes a complete figure of type T, which writes the same text
      name=N option=WORD        the figure's name ("NoName" without one) and its mode word
      view=WxH                  size of the view; without it 8191x8191, where a pixel is a step of the grid
      refused                   makes no figure
      waits                     makes a figure that waits to be drawn
  json rulecanvas written   what the figure of the sample before it writes
  json rulecanvas option type=T,...   a style: changes what figures of all these types show
  cpp                       compiles, after the samples before it in the same document
      statements                inside a function with the numbers x and y
      file=PATH                 is the text of that file
      inside                    a file of the library itself, which may include others of the same document
  sh first-program          how the first program is built; "text first-program" is what it prints
  html, js                  web/test/documents.test.mjs runs them; ts is made from sources that are compiled
  c, python, cmake, sh, text, or nothing    shown only
"""

import json
import re
import shutil
import subprocess
import sys
from pathlib import Path

SHOWN_ONLY = {"c", "python", "cmake", "sh", "text", "html", "js", "ts", ""}
GRID_VIEW = "8191x8191"


class Sample:
    def __init__(self, document, line, info):
        words = info.split()
        self.place = f"{document}:{line}"
        self.line = line
        self.language = words[0] if words else ""
        self.values = dict(word.split("=", 1) for word in words[1:] if "=" in word)
        self.flags = {word for word in words[1:] if "=" not in word}
        self.text = ""

    def is_rule(self):
        return self.language == "json" and "rulecanvas" in self.flags


def documents(root):
    return [root / "README.md", *sorted((root / "docs").rglob("*.md"))]


def samples_of(root, document):
    """The fenced blocks of a document in order."""
    name = document.relative_to(root).as_posix()
    found, current = [], None
    for number, line in enumerate(document.read_text(encoding="utf-8").splitlines(), 1):
        if current is not None and line.strip() == "```":
            current = None
        elif current is not None:
            current.text += line + "\n"
        elif line.startswith("```"):
            current = Sample(name, number, line[3:])
            found.append(current)
    if current is not None:
        raise SystemExit(f"{current.place}: the sample does not end")
    return found


def all_samples(root):
    return [sample for document in documents(root) for sample in samples_of(root, document)]


# ---- check ----


def sample_problems(root, sample):
    if sample.language not in SHOWN_ONLY | {"json", "cpp"}:
        yield f'{sample.place}: nobody tests a sample marked "{sample.language}"'
    if sample.language == "" and sample.text.lstrip().startswith(("{", "[")):
        yield f"{sample.place}: mark it, so that it is tested"
    if sample.language == "json":
        try:
            json.loads(sample.text)
        except ValueError as problem:
            if not (sample.is_rule() and "refused" in sample.flags):
                yield f"{sample.place}: {problem}"
    if "file" in sample.values and sample.text != (root / sample.values["file"]).read_text(encoding="utf-8"):
        yield f"{sample.place}: differs from {sample.values['file']}"


def headings_of(text):
    """Headings as the anchors that a reader's browser knows them by."""
    titles = re.findall(r"^#+ (.*)$", text, re.MULTILINE)
    return {re.sub(r"[^\w\- ]", "", title.lower()).replace(" ", "-") for title in titles}


def prose_of(text):
    return re.sub(r"^```.*?^```$", "", text, flags=re.MULTILINE | re.DOTALL)


def link_problems(root, document):
    prose = prose_of(document.read_text(encoding="utf-8"))
    for target in re.findall(r"\]\(([^)\s]+)\)", prose):
        if "://" in target:
            continue
        path, _, anchor = target.partition("#")
        file = (document.parent / path).resolve() if path else document
        if not file.exists():
            yield f"{document.relative_to(root)}: there is no {target}"
        elif anchor and anchor not in headings_of(prose_of(file.read_text(encoding="utf-8"))):
            yield f"{document.relative_to(root)}: {path or 'it'} has no heading #{anchor}"
    for line in prose.splitlines():
        if re.match(r"    +[{\[]", line):
            yield f"{document.relative_to(root)}: put it into backticks and mark it, so that it is tested: {line.strip()}"


def function_problems(root):
    header = (root / "include/rulecanvas/rulecanvas.h").read_text(encoding="utf-8")
    page = (root / "docs/reference/functions.md").read_text(encoding="utf-8").split("\n## ", 1)[0]
    declared = re.findall(r"RULECANVAS_CALL (\w+)\(", header)
    told = re.findall(r"^\| `(\w+)`", page, re.MULTILINE)
    for name in sorted(set(declared) ^ set(told)):
        yield f"docs/reference/functions.md: {name} is {'missing' if name in declared else 'no function'}"


def check(root):
    problems = [problem for sample in all_samples(root) for problem in sample_problems(root, sample)]
    problems += [problem for document in documents(root) for problem in link_problems(root, document)]
    problems += function_problems(root)
    for problem in problems:
        print(problem)
    print(f"{len(all_samples(root))} samples in {len(documents(root))} documents, {len(problems)} problems")
    return 1 if problems else 0


# ---- table, matrix ----


def raw(text):
    return f'R"~({text})~"'


def compact(text):
    """A configuration as the library writes it."""
    return json.dumps(json.loads(text), separators=(",", ":"), sort_keys=True, ensure_ascii=False)


def expectation_of(sample, following):
    if following is not None and following.is_rule() and "written" in following.flags:
        return compact(following.text)
    return compact(sample.text)


def row_of(sample, following):
    width, height = sample.values.get("view", GRID_VIEW).split("x")
    kind = next((flag for flag in ("refused", "waits", "option") if flag in sample.flags), "complete")
    expected = expectation_of(sample, following) if kind == "complete" else ""
    fields = [
        raw(sample.place),
        f"Kind::{kind.capitalize()}",
        raw(sample.values["type"]),
        raw(sample.values["name"]) if "name" in sample.values else "nullptr",
        raw(sample.values.get("option", "")),
        width,
        height,
        raw(sample.text),
        raw(expected),
    ]
    return "{" + ", ".join(fields) + "},\n"


def table(root):
    rows = []
    for document in documents(root):
        samples = samples_of(root, document)
        for sample, following in zip(samples, [*samples[1:], None]):
            if sample.is_rule() and "written" not in sample.flags:
                rows.append(row_of(sample, following))
    return "".join(rows)


def matrix(root, page, heading):
    text = (root / page).read_text(encoding="utf-8")
    section = text.split(f"## {heading}\n", 1)[1].split("\n## ", 1)[0]
    lines = [line for line in section.splitlines() if line.startswith("|")]
    cells = [[cell.strip() for cell in line.strip("|").split("|")] for line in lines]
    columns, rows = cells[0][1:], cells[2:]
    return "".join(
        f"{{{raw(type_name)}, {raw(column.strip('`'))}, {raw(value)}}},\n"
        for row in rows
        for type_name in re.findall(r"`(\w+)`", row[0])
        for column, value in zip(columns, row[1:])
    )


# ---- code ----


def inside_lines(root, sample):
    """The text without what makes sense in a file of its own only, line by line, so that the numbers stay."""

    def kept(line):
        included = re.match(r'#include "(.*)"', line)
        return line != "#pragma once" and (not included or (root / "src" / included[1]).exists())

    return "".join((line if kept(line) else "") + "\n" for line in sample.text.splitlines())


def code(root, document):
    source = ""
    for sample in samples_of(root, document):
        if sample.language != "cpp":
            continue
        lines = inside_lines(root, sample) if "inside" in sample.flags else sample.text
        text = f'#line {sample.line + 1} "{sample.place.rpartition(":")[0]}"\n{lines}'
        if "statements" in sample.flags:
            text = f"void SampleOfLine{sample.line}(float x, float y) {{\n(void)x;\n(void)y;\n{text}}}\n"
        source += text
    return source or "// no sample\n"


# ---- first program ----


def without_identities(output):
    return re.sub(r'"ShapeID":\d+', '"ShapeID":#', output.replace("\r\n", "\n"))


def first_program(root, build, *run):
    """Follows the guide in a folder that looks like the project's."""
    place = Path(build) / "tests/docs/first_program"
    shutil.rmtree(place, ignore_errors=True)
    (place / "build").mkdir(parents=True)
    (place / "build/windows-x86").symlink_to(build)
    for folder in ("include", "examples"):
        (place / folder).symlink_to(root / folder)

    told = [sample for sample in samples_of(root, root / "docs/host_guide.md") if "first-program" in sample.flags]
    commands, printed = told
    subprocess.run(["bash", "-e", "-c", commands.text], cwd=place, check=True)
    output = subprocess.run([*run, "my_host/minimal_host.exe"], cwd=place, check=True, capture_output=True, text=True)
    if without_identities(output.stdout) != without_identities(printed.text):
        print(f"{printed.place}: it prints\n{output.stdout}")
        return 1
    return 0


def main(command, root, *arguments):
    root = Path(root).resolve()
    if command == "check":
        return check(root)
    if command == "first-program":
        return first_program(root, *arguments)
    *inputs, output = arguments
    if command == "code":
        inputs = [Path(inputs[0]).resolve()]
    text = {"table": table, "matrix": matrix, "code": code}[command](root, *inputs)
    Path(output).write_text(text, encoding="utf-8")
    return 0


if __name__ == "__main__":
    if len(sys.argv) < 3:
        raise SystemExit(__doc__)
    sys.exit(main(*sys.argv[1:]))
