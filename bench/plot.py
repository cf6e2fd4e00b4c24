#!/usr/bin/env -S python3 -B
"""Draws what bench/scaling measured: the time for each element against how many there are, both logarithmic.

    bench/plot.py [build/bench/scaling.tsv [docs/scaling.svg]]

A line that is level is a linear cost. The picture follows the reader's light or dark colours.
"""

import csv
import sys
import xml.etree.ElementTree as tree
from collections import defaultdict
from math import ceil, floor, log10
from pathlib import Path

ROOT = Path(__file__).resolve().parents[1]

WIDTH, LEFT, LABELS = 1120, 70, 460
HEIGHT, TOP, BOTTOM = 420, 50, 45
LINE_GAP = 14  # between labels
STYLE = """
svg { background: #ffffff; font: 12px sans-serif; }
text { fill: #1f2328; } .axis { stroke: #8c959f; } .grid { stroke: #d0d7de; } .guide { stroke: #8c959f; }
@media (prefers-color-scheme: dark) {
  svg { background: #0d1117; } text { fill: #e6edf3; } .grid { stroke: #30363d; }
}
"""
COLOURS = ("#3b82f6", "#e5484d", "#2f9e5f", "#b7791f", "#8b5cf6", "#0e9aa7", "#d9579f", "#7d8590")
DASHES = ("", "7 3", "2 3")


def panel_of(shape, work, rule):
    """The picture's part that shows a row, and the name of its line there; None for rows that are not shown."""
    if rule != "linear" or " of one sum" in shape or " of one hash" in shape:
        return None
    if work == "decode":
        return "decode a message", shape
    if work.startswith("decode,") and not shape.startswith("header deletions"):
        return "decode, read the header, encode", shape
    return "change and read through the interface", f"{shape}: {work}"


def read(path):
    """Panels in their order: name -> line -> points (n, ns for each)."""
    panels = defaultdict(lambda: defaultdict(list))
    with open(path, encoding="utf-8", newline="") as file:
        for row in csv.DictReader(file, delimiter="\t"):
            place = panel_of(row["shape"], row["work"], row["rule"])
            if place:
                n = int(row["n"])
                panels[place[0]][place[1]].append((n, float(row["ns"]) / n))
    return panels


def element(parent, name, text=None, **attributes):
    made = tree.SubElement(parent, name, {key.replace("_", "-"): str(value) for key, value in attributes.items()})
    made.text = text
    return made


def spread(wanted, low, high):
    """Heights for labels, as near to the wanted ones as they can be without touching each other."""
    order = sorted(range(len(wanted)), key=lambda i: wanted[i])
    heights = [0.0] * len(wanted)
    below = low - LINE_GAP
    for i in order:
        heights[i] = below = max(wanted[i], below + LINE_GAP)
    above = high + LINE_GAP
    for i in reversed(order):
        heights[i] = above = min(heights[i], above - LINE_GAP)
    return heights


class Axes:
    """Logarithmic axes of one panel."""

    def __init__(self, svg, top, title, lines):
        points = [point for line in lines.values() for point in line]
        self.svg, self.top, self.title = svg, top, title
        self.smallest, self.largest = min(n for n, _ in points), max(n for n, _ in points)
        self.low = floor(log10(min(ns for _, ns in points)))
        self.high = max(ceil(log10(max(ns for _, ns in points))), self.low + 1)
        self.right, self.bottom = WIDTH - LABELS, top + HEIGHT - BOTTOM

    def x(self, n):
        return LEFT + (self.right - LEFT) * log10(n / self.smallest) / max(log10(self.largest / self.smallest), 1e-9)

    def y(self, ns):
        top = self.top + TOP
        return self.bottom - (self.bottom - top) * (log10(ns) - self.low) / (self.high - self.low)

    def draw(self):
        element(self.svg, "text", f"{self.title}: ns for each of n", x=LEFT, y=self.top + 28, font_size=15,
                font_weight="bold")
        for decade in range(self.low, self.high + 1):
            y = f"{self.y(10 ** decade):.1f}"
            element(self.svg, "line", x1=LEFT, x2=self.right, y1=y, y2=y, **{"class": "grid"})
            element(self.svg, "text", f"{10 ** decade:g}", x=LEFT - 8, y=float(y) + 4, text_anchor="end")
        n = self.smallest
        while n <= self.largest:
            x = f"{self.x(n):.1f}"
            element(self.svg, "line", x1=x, x2=x, y1=self.bottom, y2=self.bottom + 5, **{"class": "axis"})
            element(self.svg, "text", f"{n:,}", x=x, y=self.bottom + 20, text_anchor="middle")
            n *= 2
        element(self.svg, "line", x1=LEFT, x2=self.right, y1=self.bottom, y2=self.bottom, **{"class": "axis"})

    def draw_lines(self, lines):
        ends = [self.y(line[-1][1]) for line in lines.values()]
        heights = spread(ends, self.top + TOP, self.bottom)
        for i, (name, line) in enumerate(lines.items()):
            look = {"stroke": COLOURS[i % len(COLOURS)], "stroke_width": 2, "fill": "none",
                    "stroke_dasharray": DASHES[i // len(COLOURS) % len(DASHES)] or "none"}
            points = " ".join(f"{self.x(n):.1f},{self.y(ns):.1f}" for n, ns in line)
            element(self.svg, "polyline", points=points, **look)
            element(self.svg, "polyline", points=f"{self.right + 4},{ends[i]:.1f} {self.right + 24},{heights[i]:.1f} "
                    f"{self.right + 48},{heights[i]:.1f}", **look)
            element(self.svg, "text", f"{name}, {line[-1][1]:.3g}", x=self.right + 54, y=f"{heights[i] + 4:.1f}")


def draw(panels):
    height = HEIGHT * len(panels)
    svg = tree.Element("svg", {"xmlns": "http://www.w3.org/2000/svg", "viewBox": f"0 0 {WIDTH} {height}",
                               "width": str(WIDTH), "height": str(height), "role": "img"})
    element(svg, "title", "Time for each element against their number; level lines are linear costs")
    element(svg, "style", STYLE)
    for i, (title, lines) in enumerate(panels.items()):
        axes = Axes(svg, i * HEIGHT, title, lines)
        axes.draw()
        axes.draw_lines(lines)
    return svg


def main():
    given = [Path(argument) for argument in sys.argv[1:]]
    if len(given) > 2:
        sys.exit(__doc__)
    source = given[0] if given else ROOT / "build/bench/scaling.tsv"
    target = given[1] if len(given) > 1 else ROOT / "docs/scaling.svg"
    panels = read(source)
    if not panels:
        sys.exit(f"{source} holds no measurement of a linear cost")
    svg = draw(panels)
    tree.indent(svg)
    text = tree.tostring(svg, encoding="unicode") + "\n"
    tree.fromstring(text)
    target.write_text(text, encoding="utf-8")
    print(f"{target}: {sum(map(len, panels.values()))} lines in {len(panels)} panels")


main()
