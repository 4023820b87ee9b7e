#!/usr/bin/env python3
"""Prints lines and branches run of each folder of src, and the lines never run, from gcovr's JSON."""

import json
import sys
from collections import defaultdict


class Sum:
    def __init__(self):
        self.lines = self.lines_run = self.branches = self.branches_run = 0

    def add(self, line):
        self.lines += 1
        self.lines_run += line["count"] > 0
        self.branches += len(line["branches"])
        self.branches_run += sum(branch["count"] > 0 for branch in line["branches"])


def counted(entry):
    """The lines of a file, each once: a template's line comes once for each of its instances."""
    lines = {}
    for line in entry["lines"]:
        if line.get("gcovr/noncode"):
            continue
        known = lines.setdefault(line["line_number"], line)
        if known is not line:
            known["count"] += line["count"]
            for mine, other in zip(known["branches"], line["branches"]):
                mine["count"] += other["count"]
    return [lines[number] for number in sorted(lines)]


def ranges(numbers):
    """Line numbers as text, neighbours together: 3, 7-9."""
    parts = []
    for number in numbers:
        if parts and number == parts[-1][1] + 1:
            parts[-1][1] = number
        else:
            parts.append([number, number])
    return ", ".join(str(first) if first == last else f"{first}-{last}" for first, last in parts)


def share(run, of):
    return f"{100 * run / of:6.1f} % of {of:6d}" if of else "      -          "


def report(files):
    sums, missed, half = defaultdict(Sum), [], []
    for entry in sorted(files, key=lambda entry: entry["file"]):
        name = entry["file"].removeprefix("src/")
        lines = counted(entry)
        for line in lines:
            sums[name.split("/")[0]].add(line)
            sums["total"].add(line)
        missed.append((name, [line["line_number"] for line in lines if line["count"] == 0]))
        half.append((name, [line["line_number"] for line in lines
                            if line["count"] > 0 and any(branch["count"] == 0 for branch in line["branches"])]))
    yield f"{'folder':16}{'lines run':>20}{'branches run':>21}"
    for folder in [*sorted(name for name in sums if name != "total"), "total"]:
        one = sums[folder]
        yield f"{folder:16}{share(one.lines_run, one.lines):>20} {share(one.branches_run, one.branches):>20}"
    for title, places in (("never run", missed), ("with a branch never taken", half)):
        yield f"\nLines {title}:"
        for name, numbers in places:
            if numbers:
                yield f"  {name}: {ranges(numbers)}"


if __name__ == "__main__":
    with open(sys.argv[1], encoding="utf-8") as source:
        print("\n".join(report(json.load(source)["files"])))
