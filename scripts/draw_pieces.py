#!/usr/bin/env python3
"""Draws the pieces of a mask's source text, each in a colour of its own, over the grid of Areas.

    draw_pieces.py SOURCE.scm OUT.png [AREAS_WIDE,CENTRE_X,CENTRE_Y ...]

One panel for the whole mask, and one for each further argument: so many Areas wide around a place given in
Areas from the mask's north-west corner. Needs Python 3 alone.
"""
import re
import struct
import sys
import zlib

PANEL, GAP = 560, 12
POINTS = 255  # in an Area
PAPER, GRID, CELLS, OUTLINE = (250, 250, 247), (214, 214, 210), (150, 150, 150), (40, 40, 40)
WHOLE = [(203, 222, 240), (190, 212, 234)]  # Areas that are one piece
COLOURS = [(141, 211, 199), (255, 237, 160), (190, 186, 218), (251, 154, 143), (128, 177, 211), (253, 196, 120),
           (179, 222, 105), (252, 205, 229)]


def read_pieces(text):
    """Rings in Points of the world; the pieces of a text stand Cell by Cell, as its index list does."""
    index = [int(word) for word in re.search(r"LWMIndexList\( \d+([^)]*)", text).group(1).split()]
    cells = list(zip(index[0::5], index[1::5]))
    pieces, cell, area = [], None, None
    for match in re.finditer(r":cell\d+|LWMAreaDrawPoly\(([^)]*)\)|LWMPoly\(([^)]*)\)", text):
        if match.group(0).startswith(":cell"):
            cell = cells.pop(0)
        elif match.group(1):
            _, _, x, y = (int(word) for word in match.group(1).split())
            area = (cell[0] * 32 + x, cell[1] * 32 + y)
        else:
            numbers = [int(word) for word in match.group(2).split()[3:]]
            ring = [(area[0] * POINTS + x, area[1] * POINTS + y) for x, y in zip(numbers[0::2], numbers[1::2])]
            pieces.append((area, ring))
    return pieces


class Panel:
    """Points of the world on a square of pixels."""

    def __init__(self, west, north, points):
        self.west, self.north, self.scale = west, north, PANEL / points
        self.rows = [[PAPER] * PANEL for _ in range(PANEL)]

    def place(self, point):
        return (point[0] - self.west) * self.scale, (point[1] - self.north) * self.scale

    def dot(self, x, y, colour):
        if 0 <= x < PANEL and 0 <= y < PANEL:
            self.rows[y][x] = colour

    def fill(self, ring, colour):
        corners = [self.place(point) for point in ring]
        lowest = min(PANEL - 1, int(max(y for _, y in corners)))
        for row in range(max(0, int(min(y for _, y in corners))), lowest + 1):
            crossings = []
            for (x1, y1), (x2, y2) in zip(corners, corners[1:] + corners[:1]):
                if (y1 <= row + 0.5) != (y2 <= row + 0.5):
                    crossings.append(x1 + (row + 0.5 - y1) / (y2 - y1) * (x2 - x1))
            crossings.sort()
            for left, right in zip(crossings[0::2], crossings[1::2]):
                for column in range(max(0, round(left)), min(PANEL, round(right))):
                    self.rows[row][column] = colour

    def line(self, start, end, colour):
        (x1, y1), (x2, y2) = self.place(start), self.place(end)
        steps = max(1, int(max(abs(x2 - x1), abs(y2 - y1))))
        for k in range(steps + 1):
            self.dot(int(x1 + (x2 - x1) * k / steps), int(y1 + (y2 - y1) * k / steps), colour)

    def grid(self, step, colour):
        points = PANEL / self.scale
        for first, along in ((self.west, True), (self.north, False)):
            line = -(-first // step) * step
            while line <= first + points:
                for k in range(PANEL):
                    at = int((line - first) * self.scale)
                    self.dot(*((at, k) if along else (k, at)), colour)
                line += step

    def draw(self, pieces):
        for number, ((x, y), ring) in enumerate(pieces):
            corner = (x * POINTS, y * POINTS)
            is_whole = sorted(ring) == sorted((corner[0] + dx, corner[1] + dy) for dx in (0, POINTS) for dy in (0, POINTS))
            self.fill(ring, WHOLE[(x + y) % 2] if is_whole else COLOURS[number % len(COLOURS)])
        if self.scale * POINTS > 4:
            self.grid(POINTS, GRID)
            for _, ring in pieces:
                for start, end in zip(ring, ring[1:] + ring[:1]):
                    self.line(start, end, OUTLINE)
        self.grid(POINTS * 32, CELLS)
        return self


def png(rows):
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    raw = b"".join(b"\0" + bytes(part for pixel in row for part in pixel) for row in rows)
    size = struct.pack(">IIBBBBB", len(rows[0]), len(rows), 8, 2, 0, 0, 0)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", size) + chunk(b"IDAT", zlib.compress(raw, 9)) + chunk(b"IEND", b"")


def main():
    source, out, *views = sys.argv[1:]
    with open(source, encoding="cp1252") as file:
        pieces = read_pieces(file.read())
    xs = [x for _, ring in pieces for x, _ in ring]
    ys = [y for _, ring in pieces for _, y in ring]
    west, north = min(xs) // POINTS * POINTS, min(ys) // POINTS * POINTS
    margin = 2 * POINTS
    panels = [Panel(west - margin, north - margin, max(max(xs) - west, max(ys) - north) + 2 * margin)]
    for view in views:
        areas, x, y = (float(word) for word in view.split(","))
        panels.append(Panel(west + (x - areas / 2) * POINTS, north + (y - areas / 2) * POINTS, areas * POINTS))
    for panel in panels:
        panel.draw(pieces)
    rows = [sum((panel.rows[y] + [(255, 255, 255)] * GAP for panel in panels), [])[:-GAP] for y in range(PANEL)]
    with open(out, "wb") as file:
        file.write(png(rows))
    print(f"{len(pieces)} pieces, {max(xs) - west} by {max(ys) - north} Points")


main()
