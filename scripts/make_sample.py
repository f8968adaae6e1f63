#!/usr/bin/env python3
"""Makes the sample project samples/Madeira.LSP.

The coast comes from samples/source/madeira.bln. Roads, rivers and the old rack railway are smooth curves
through a few places of the island; every vertex is checked to lie inside the coast. Textures and colours come
from the line catalogue. Needs nothing but Python 3 and always makes the same bytes.
"""
import math
import struct
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
METRES_PER_DEGREE = 111330.0
CENTER = (32.745, -16.97)  # latitude, longitude
ZOOM = 2.0
SCALE_LON = METRES_PER_DEGREE * math.cos(math.radians(CENTER[0]))
SPACING = 250.0  # metres between the vertices of a curve

# The ridge that coast roads keep away from the sea towards.
RIDGE = [(-17.19, 32.815), (-17.05, 32.755), (-16.93, 32.735), (-16.80, 32.733), (-16.74, 32.747)]


def to_metres(point):
    return (point[0] - CENTER[1]) * SCALE_LON, (point[1] - CENTER[0]) * METRES_PER_DEGREE


def to_degrees(point):
    return CENTER[1] + point[0] / SCALE_LON, CENTER[0] + point[1] / METRES_PER_DEGREE


def read_outline():
    rows = (ROOT / "samples" / "source" / "madeira.bln").read_text().split()
    count = int(rows[0].split(",")[0])
    return [tuple(float(number) for number in row.split(",")) for row in rows[1:count + 1]]


def is_inside(point, ring):
    inside = False
    for (x1, y1), (x2, y2) in zip(ring, ring[1:]):
        if (y1 > point[1]) != (y2 > point[1]) and point[0] < x1 + (point[1] - y1) * (x2 - x1) / (y2 - y1):
            inside = not inside
    return inside


def nearest_on(path, point):
    """The point of a path of segments that is nearest, in metres."""
    best = None
    for (x1, y1), (x2, y2) in zip(path, path[1:]):
        dx, dy = x2 - x1, y2 - y1
        along = max(0.0, min(1.0, ((point[0] - x1) * dx + (point[1] - y1) * dy) / (dx * dx + dy * dy)))
        x, y = x1 + along * dx, y1 + along * dy
        distance = math.hypot(point[0] - x, point[1] - y)
        if best is None or distance < best[0]:
            best = (distance, (x, y))
    return best


def resample(path):
    """Vertices every SPACING metres along a path, both ends kept."""
    length = sum(math.dist(a, b) for a, b in zip(path, path[1:]))
    steps = max(2, round(length / SPACING))
    result, walked, target = [path[0]], 0.0, length / steps
    for a, b in zip(path, path[1:]):
        piece = math.dist(a, b)
        while len(result) < steps and walked + piece >= target:
            part = (target - walked) / piece
            result.append((a[0] + part * (b[0] - a[0]), a[1] + part * (b[1] - a[1])))
            target += length / steps
        walked += piece
    return result + [path[-1]]


def spline(points):
    """A Catmull-Rom curve through the points."""
    ends = [points[0]] + points + [points[-1]]
    curve = []
    for p0, p1, p2, p3 in zip(ends, ends[1:], ends[2:], ends[3:]):
        for step in range(24):
            t = step / 24
            curve.append(tuple(
                0.5 * (2 * b + (c - a) * t + (2 * a - 5 * b + 4 * c - d) * t * t
                       + (3 * b - a - 3 * c + d) * t ** 3) for a, b, c, d in zip(p0, p1, p2, p3)))
    return curve + [points[-1]]


def winding(curve, depth):
    """Bends of a mountain road: a slow and a quick swing across the path, none at its ends."""
    result, walked = [curve[0]], 0.0
    length = sum(math.dist(a, b) for a, b in zip(curve, curve[1:]))
    for before, at, after in zip(curve, curve[1:], curve[2:]):
        walked += math.dist(before, at)
        swing = depth * math.sin(math.pi * walked / length) * (
            math.sin(walked / 310.0) + 0.5 * math.sin(walked / 140.0 + 1.0))
        dx, dy = after[0] - before[0], after[1] - before[1]
        across = math.hypot(dx, dy) or 1.0
        result.append((at[0] - dy / across * swing, at[1] + dx / across * swing))
    return result + [curve[-1]]


def along_coast(outline, start, end, inland, step):
    """A curve that follows the coast `inland` metres from it, from the outline vertex nearest `start` to that
    nearest `end`; `step` is 1 or -1, the direction along the outline."""
    ring = [to_metres(point) for point in outline[:-1]]
    ridge = [to_metres(point) for point in RIDGE]
    at = min(range(len(ring)), key=lambda i: math.dist(ring[i], to_metres(start)))
    last = min(range(len(ring)), key=lambda i: math.dist(ring[i], to_metres(end)))
    path = []
    while True:
        distance, goal = nearest_on(ridge, ring[at])
        part = min(1.0, inland / distance)
        path.append((ring[at][0] + part * (goal[0] - ring[at][0]), ring[at][1] + part * (goal[1] - ring[at][1])))
        if at == last:
            break
        at = (at + step) % len(ring)
    return spline(resample(path)[::3] + [path[-1]])


def through(*places):
    return spline([to_metres(place) for place in places])


def read_catalogue():
    """title -> (texture text, colour) of the line textures."""
    found, number, title, colour = {}, "", "", 0
    for line in (ROOT / "data" / "tools" / "lines.txt").read_bytes().decode("cp1252").splitlines():
        key, _, value = line.partition("=")
        if line.startswith("[Texture."):
            number = line[9:-1]
        elif key == "Title":
            title = value
        elif key == "Color":
            red, green, blue = (int(part) for part in value.split())
            colour = red | green << 8 | blue << 16
        elif key == "NamePack":
            found[title] = (value or number, colour)
    return found


class Sample:
    """Collects the lines and writes the project file."""

    def __init__(self):
        self.outline = read_outline()
        self.catalogue = read_catalogue()
        self.records = []

    def coast(self, title, layer, width):
        self._add("Coast of Madeira", title, layer, [(lon, lat, width) for lon, lat in self.outline])

    def line(self, name, title, layer, first_width, last_width, curve):
        """A curve in metres; the width changes evenly along it."""
        points = resample(curve)
        vertices = []
        for place, point in enumerate(points):
            lon, lat = to_degrees(point)
            if not is_inside((lon, lat), self.outline):
                raise SystemExit(f"{name}: vertex {place + 1} of {len(points)} lies in the sea")
            part = place / (len(points) - 1)
            vertices.append((lon, lat, first_width + part * (last_width - first_width)))
        self._add(name, title, layer, vertices)

    def _add(self, name, title, layer, vertices):
        texture, colour = self.catalogue[title]
        lons, lats = [v[0] for v in vertices], [v[1] for v in vertices]
        self.records.append(
            text(name) + text(f"VTP//{layer}//{texture}//") + struct.pack("<ihi", colour, 0, len(vertices))
            + struct.pack("<hii", 1, len(vertices), 1)
            + b"".join(struct.pack("<ddfh", *vertex, 0) for vertex in vertices)
            + struct.pack("<ddddh", max(lats), min(lats), min(lons), max(lons), 0))

    def write(self, path):
        counters = [0] * 11
        counters[3] = len(self.records)  # maps, photos, lands, lines, polys, ...
        header = (text("LS205") + text("Madeira") + struct.pack("<11i", *counters) + struct.pack("<i", 1281)
                  + text("") + text("") + struct.pack("<dddd", *CENTER, *CENTER) + struct.pack("<hd", 0, ZOOM))
        path.write_bytes(header + b"".join(self.records))


def text(value):
    encoded = value.encode("cp1252")
    return struct.pack("<H", len(encoded)) + encoded


def main():
    sample = Sample()
    outline = sample.outline
    brava = (-17.063, 32.672)
    moniz, santana = (-17.178, 32.872), (-16.871, 32.818)

    sample.coast("Shore, rock", 6, 30.0)

    # Layer 7: rivers, wider towards the sea.
    rivers = [
        ("Ribeira Brava", [(-17.030, 32.752), (-17.036, 32.722), (-17.052, 32.700), (-17.062, 32.680)], 3, 18),
        ("Ribeira da Janela", [(-17.105, 32.775), (-17.135, 32.805), (-17.150, 32.835), (-17.153, 32.853)], 4, 22),
        ("Ribeira de S\u00e3o Vicente", [(-17.020, 32.755), (-17.040, 32.778), (-17.043, 32.806)], 3, 16),
        ("Ribeira dos Socorridos", [(-16.950, 32.745), (-16.966, 32.705), (-16.963, 32.675), (-16.960, 32.656)],
         3, 20),
        ("Ribeira de Machico", [(-16.835, 32.738), (-16.800, 32.733), (-16.778, 32.722), (-16.770, 32.714)], 3, 12),
        ("Ribeira de S\u00e3o Jorge", [(-16.935, 32.768), (-16.920, 32.795), (-16.910, 32.825)], 3, 14),
    ]
    for name, places, first, last in rivers:
        sample.line(name, "River, narrow", 7, first, last, winding(through(*places), 30))
    sample.line("Levada do Norte", "Irrigation ditch", 7, 2, 2,
                winding(through((-17.055, 32.745), (-17.030, 32.705), (-16.995, 32.690), (-16.975, 32.685)), 60))

    # Layer 8: roads and rails.
    sample.line("Via R\u00e1pida", "Motorway, 4 lanes", 8, 24, 16,
                along_coast(outline, brava, (-16.749, 32.730), 1300, -1))
    sample.line("South coast road", "Highway, 2 lanes", 8, 11, 8, along_coast(outline, brava, moniz, 1300, 1))
    sample.line("North coast road", "Main road", 8, 8, 7, along_coast(outline, moniz, santana, 900, 1))
    sample.line("Road of the north-east", "Secondary road", 8, 7, 9,
                along_coast(outline, santana, (-16.795, 32.774), 1100, 1))
    sample.line("Encumeada pass road", "Secondary road", 8, 7, 6,
                winding(through((-17.060, 32.690), (-17.043, 32.720), (-17.018, 32.752), (-17.032, 32.775),
                                (-17.045, 32.803)), 70))
    sample.line("Poiso road", "Country lane", 8, 6, 5,
                winding(through((-16.908, 32.656), (-16.900, 32.680), (-16.885, 32.712), (-16.886, 32.738),
                                (-16.860, 32.778)), 80))
    sample.line("Paul da Serra track", "Dirt track", 8, 5, 4,
                winding(through((-17.018, 32.752), (-17.070, 32.757), (-17.120, 32.790), (-17.165, 32.830),
                                (-17.175, 32.858)), 90))
    sample.line("Peaks trail", "Hiking trail", 8, 2, 2,
                winding(through((-16.928, 32.735), (-16.936, 32.748), (-16.943, 32.760)), 40))
    sample.line("Monte rack railway", "Railway, narrow gauge", 9, 4, 4,
                through((-16.907, 32.652), (-16.904, 32.664), (-16.902, 32.676), (-16.896, 32.690)))
    sample.line("Funchal to Machico power line", "Power line", 10, 3, 3,
                through((-16.915, 32.668), (-16.860, 32.675), (-16.812, 32.700), (-16.778, 32.726)))

    sample.write(ROOT / "samples" / "Madeira.LSP")
    print(f"samples/Madeira.LSP: {len(sample.records)} lines")


if __name__ == "__main__":
    main()
