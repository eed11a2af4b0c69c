#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Draws the results of panorel-benchmark: plot.py RESULTS.json PLOT.svg"""
import json
import sys
from xml.sax.saxutils import escape

ROW, LEFT, WIDTH, MAXIMUM = 22, 320, 460, 1.3


def position(ratio):
    return LEFT + WIDTH * min(ratio, MAXIMUM) / MAXIMUM


def row(index, figure):
    y = 40 + index * ROW
    ratio, goal = figure["ratio"], figure["goal"]
    colour = "#3a7d44" if figure["pass"] else "#c0563b"
    mark = f"""
<line x1="{position(goal):.1f}" x2="{position(goal):.1f}" y1="{y}" y2="{y + 18}" stroke="#222"
 stroke-dasharray="2 2"/>"""
    return f"""
<text x="{LEFT - 8}" y="{y + 13}" text-anchor="end">{escape(figure["name"])}</text>
<rect x="{LEFT}" y="{y + 3}" width="{position(ratio) - LEFT:.1f}" height="12" fill="{colour}"/>
<line x1="{position(figure["lowerQuartile"]):.1f}" x2="{position(figure["upperQuartile"]):.1f}"
 y1="{y + 9}" y2="{y + 9}" stroke="#222"/>{mark if goal > 0 else ""}
<text x="{LEFT + WIDTH + 8}" y="{y + 13}">{ratio:.3f}</text>"""


def growth_row(index, growth):
    y = 40 + index * ROW
    colour = "#222" if growth["pass"] else "#c0563b"
    return f"""
<text x="{LEFT - 8}" y="{y + 13}" text-anchor="end">{escape(growth["series"])}</text>
<text x="{LEFT}" y="{y + 13}" fill="{colour}">{growth["subject"]:.3f}, the bare work's
 {growth["baseline"]:.3f}</text>"""


def main(results, plot):
    with open(results, encoding="utf-8") as file:
        content = json.load(file)
    figures = [figure for figure in content["figures"] if figure["sameWork"]]
    height = 60 + ROW * (len(figures) + 2 + len(content["exponents"]))
    with open(plot, "w", encoding="utf-8") as file:
        file.write(
            f'<svg xmlns="http://www.w3.org/2000/svg" width="840" height="{height}"'
            ' font-family="sans-serif" font-size="12">\n'
            '<rect width="100%" height="100%" fill="white"/>\n'
            f'<text x="{LEFT}" y="24">CPU time or bytes as a ratio to the bare work (line:'
            " quartiles, dashes: goal)</text>"
        )
        file.writelines(row(index, figure) for index, figure in enumerate(figures))
        first = len(figures) + 2
        file.write(
            f'\n<text x="{LEFT}" y="{40 + (first - 1) * ROW + 13}">Exponents of the growth</text>'
        )
        file.writelines(
            growth_row(first + index, growth) for index, growth in enumerate(content["exponents"])
        )
        file.write("\n</svg>\n")


if __name__ == "__main__":
    main(*sys.argv[1:])
