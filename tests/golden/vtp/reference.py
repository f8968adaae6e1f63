#!/usr/bin/env python3
"""The source text of VTP lines, worked out step by step and slowly, to check the compiler against.

Usage: reference.py lines.txt > expected.scm

It shares nothing with the compiler: every Cell of a line's box is visited and asks every vertex, arrays count
from 1, and single precision is made by packing. Input, one statement a line, in UTF-8:

    VTPShiftNS N | VTPShiftWE N | VTPReplace 0|1
    line selected|unselected     a new line; name and type follow
    name TEXT
    type TEXT
    LAT LON WIDTH                a vertex in degrees and metres
    at CELLX CELLY X Y WIDTH     a vertex at a point of a Cell
"""
import math
import struct
import sys

H, W = 0.3515625, 0.46875
AH, AW = 0.010986328125, 0.0146484375
STEP_LAT, STEP_LON = 4.3083639705882356e-5, 5.744485294117647e-5
HALF_LAT, HALF_LON = 2.1541819852941178e-5, 2.8722426470588235e-5
NUDGE_LAT, NUDGE_LON = 4.3083639705882356e-8, 5.744485294117647e-8


def single(value):
    return struct.unpack("f", struct.pack("f", value))[0]


def to_int(value):
    return round(value)  # halves to even


def to_byte(value):
    result = round(value)
    if not 0 <= result <= 255:
        raise OverflowError(value)
    return result


def mod(value, divisor):
    return int(math.fmod(value, divisor))  # sign of the dividend


def to_cell_point(lat, lon):
    x, y = lon + 180, 90 - lat
    cell_x, cell_y = math.floor(x / W), math.floor(y / H)
    a, b = math.floor(x / AW), math.floor(y / AH)
    point_x = math.floor((x - a * AW + HALF_LON) / STEP_LON) + (mod(a, 32) + 16) * 255
    point_y = math.floor((y - b * AH + HALF_LAT) / STEP_LAT) + (mod(b, 32) + 16) * 255
    return cell_x, cell_y, point_x, point_y


def from_cell_point(cell_x, cell_y, point_x, point_y):
    u = cell_x * W + (point_x - 4080) * STEP_LON
    if point_x == 4080:
        u += NUDGE_LON
    if point_x == 12240:
        u -= NUDGE_LON
    v = cell_y * H + (point_y - 4080) * STEP_LAT
    if point_y == 4080:
        v += NUDGE_LAT
    if point_y == 12240:
        v -= NUDGE_LAT
    return 90 - v, u - 180


def point_on_axis(offset, area, step, cell, reference):
    a = math.floor(offset / area)
    r = (offset - a * area) / step
    p = mod(to_int(r), 255)
    if p == 0 and r > 1:
        p = 255
    return ((math.floor(offset / cell) - reference) * 32 + mod(a, 32) + 16) * 255 + p


def cell_point_of(lat, lon, cell_x, cell_y):
    return (point_on_axis(lon + 180, AW, STEP_LON, W, cell_x),
            point_on_axis(90 - lat, AH, STEP_LAT, H, cell_y))


class Compiler:
    def __init__(self):
        self.settings = {"VTPShiftNS": 0, "VTPShiftWE": 0, "VTPReplace": 1}
        self.lines = []
        self.runs = []
        self.textures = []
        self.north, self.south, self.west, self.east = -90.0, 90.0, 180.0, -180.0

    def read(self, path):
        with open(path, encoding="utf-8", newline="") as file:
            for text in file.read().splitlines():
                words = text.split()
                if not words or text.startswith("#"):
                    continue
                if words[0] in self.settings:
                    self.settings[words[0]] = int(words[1])
                elif words[0] == "line":
                    self.lines.append({"selected": words[1] == "selected", "name": "", "type": "", "points": []})
                elif words[0] in ("name", "type"):
                    self.lines[-1][words[0]] = text.partition(" ")[2]
                elif words[0] == "at":
                    lat, lon = from_cell_point(*(int(word) for word in words[1:5]))
                    self.lines[-1]["points"].append((lat, lon, single(float(words[5]))))
                else:
                    lat, lon, wid = (float(word) for word in words)
                    self.lines[-1]["points"].append((lat, lon, single(wid)))

    def compile(self):
        d_lat = -self.settings["VTPShiftNS"] * 4.291534423828125e-05
        d_lon = self.settings["VTPShiftWE"] * 5.7220458984375e-05
        for line in self.lines:
            fields = line["type"].split("//")
            if not line["selected"] or line["type"] == "" or fields[0] != "VTP":
                continue
            layer = to_int(float(fields[1]))
            if fields[2] not in self.textures:
                self.textures.append(fields[2])
            texture = self.textures.index(fields[2])
            points = []
            for lat, lon, wid in line["points"]:
                if self.settings["VTPShiftNS"] != 0:
                    lat += d_lat
                if self.settings["VTPShiftWE"] != 0:
                    lon += d_lon
                points.append((lat, lon, wid))
            self.clip_line_to_cells(line["name"], layer, texture, points)
        for run in self.runs:
            self.add_line_ends(run)
        for run in self.runs:
            self.pack(run)

    def clip_line_to_cells(self, name, layer, texture, points):
        snapped = []
        for lat, lon, wid in points:
            lat, lon = from_cell_point(*to_cell_point(lat, lon))
            if snapped and snapped[-1][:2] == (lat, lon):
                continue
            snapped.append((lat, lon, wid))
        if len(snapped) < 2:
            return
        lats, lons = [p[0] for p in snapped], [p[1] for p in snapped]
        self.north, self.south = max(self.north, max(lats)), min(self.south, min(lats))
        self.east, self.west = max(self.east, max(lons)), min(self.west, min(lons))
        south_centre = (math.floor(min(lats) / H) + 1) * H - 0.17578125
        north_centre = math.floor(max(lats) / H) * H + 0.17578125
        west_centre = (math.floor(min(lons) / W) + 1) * W - 0.234375
        east_centre = math.floor(max(lons) / W) * W + 0.234375
        lat = north_centre
        while lat >= south_centre:
            lon = west_centre
            while lon <= east_centre:
                self.clip_line_to_cell(lat, lon, name, layer, texture, snapped)
                lon += W
            lat -= H

    def clip_line_to_cell(self, lat, lon, name, layer, texture, snapped):
        west = math.floor((lon + 180) / W) * W - 180
        east = west + W
        north = 90 - math.floor((90 - lat) / H) * H
        south = north - H
        cell = (math.floor((lon + 180) / W), math.floor((90 - lat) / H))
        vertex = [None] + snapped  # counted from 1
        n = len(snapped)

        def inside(k):
            return south <= vertex[k][0] <= north and west <= vertex[k][1] <= east

        def make_run(s, e):
            run = [None, [0, 0, 0.0, 0, 0]]
            for k in range(s, e + 1):
                x, y = cell_point_of(vertex[k][0], vertex[k][1], *cell)
                run.append([x, y, vertex[k][2], 0, 0])
            run.append([0, 0, 0.0, 0, 0])
            self.runs.append({"name": name, "layer": layer, "texture": texture, "cell": cell, "points": run})

        count = sum(inside(k) for k in range(1, n + 1))
        if count == 0:
            return
        if count == n or n == 2:
            make_run(1, n)
            return
        s = 1
        while True:
            while not inside(s) and s < n:
                s += 1
            e = s
            while inside(e) and e < n:
                e += 1
            if s > 1:
                s -= 1
            if s < n - 1:
                make_run(s, e)
            if e == n:
                return
            s = e + 1

    @staticmethod
    def add_line_ends(run):
        p = run["points"]
        n = len(p) - 1

        def offsets(first, second, wid):
            dx, dy = single(second[0] - first[0]), single(second[1] - first[1])
            length = math.sqrt(dx * dx + dy * dy)
            if length == 0:
                return 0, 0
            k = wid * 0.10425
            return to_int(k * dx / length), to_int(k * dy / length)

        a, b = offsets(p[2], p[3], p[2][2])
        x, y, wid = p[2][:3]
        p[1] = [x - b, y + a, wid, 0, 0]
        p[2] = [x + b, y - a, wid, 0, 0]
        a, b = offsets(p[n - 2], p[n - 1], p[n - 1][2])
        x, y, wid = p[n - 1][:3]
        p[n] = [x + b, y - a, wid, 0, 0]
        p[n - 1] = [x - b, y + a, wid, 0, 0]

    @staticmethod
    def pack(run):
        p = run["points"]
        n = len(p) - 1
        w = to_byte(p[1][2])
        p[1][4] = w
        p[1][3] = 0
        c = 0
        px, py = p[1][0], p[1][1]
        for i in range(2, n + 1):
            wi = to_byte(p[i][2])
            p[i][4] = 0
            if wi != w:
                p[i][4] = wi
                w = wi
            dx, dy = p[i][0] - px, p[i][1] - py
            px, py = p[i][0], p[i][1]
            if not -1022 <= dx <= 1022 or not -1022 <= dy <= 1022 or c == 7:
                p[i - c - 1][3] = c
                c = 0
            else:
                p[i][3] = 8
                p[i][0], p[i][1] = dx, dy
                c += 1
            if i == n:
                p[i - c][3] = c

    def text(self):
        tree = {}  # insertion order is order of first appearance
        for run in self.runs:
            layers = tree.setdefault(run["cell"], {})
            layers.setdefault(run["layer"], {}).setdefault(run["texture"], []).append(run)
        cells = sorted(tree, key=lambda cell: (cell[1], cell[0]))
        out = ["Set( BUF 8192 )", "",
               "Header( 1 %d %d %d %d )" % (math.floor(self.north + 1), math.floor(self.south),
                                            math.floor(self.east + 1), math.floor(self.west)),
               "", "VTPFileHeader"]
        for i, cell in enumerate(cells):
            out += ["", ":cell%02d" % i, "",
                    "VTPArea( %d 1 %d %d )" % (len(tree[cell]), cell[0] & 31, cell[1] & 31)]
            for layer, textures in tree[cell].items():
                out.append("VTPLayer( %d %d %d 0 )" % (layer, 1 if self.settings["VTPReplace"] else 0, len(textures)))
                for texture, polys in textures.items():
                    out += ["VTPTexID( %d 0 )" % texture, "VTPPolyCount( %d )" % len(polys), ""]
                    for poly in polys:
                        out.append(";" + poly["name"])
                        out.append("   VTPPoly( 2 %d 1 )" % (len(poly["points"]) - 1))
                        for x, y, _, kind, width in poly["points"][1:]:
                            line = ("         VTPCPoint( %d %d" % (x, y) if kind == 8
                                    else "      VTPWPoint( %d %d %d" % (x, y, kind))
                            out.append(line + (" " if width == 0 else " %d " % width) + ")")
                        out.append("")
        out += ["", "VTPIndexList( %d" % len(cells)]
        out += ["        %d %d 0" % cell for cell in cells]
        out += ["        )", "", "VTPTextureList( %d" % len(self.textures)]
        out += ["        " + name + (" 0 0 0 4" if len(name) < 5 else "") for name in self.textures]
        out += ["        )", "", "VTPEnd", ""]
        return "".join(line + "\r\n" for line in out)


if __name__ == "__main__":
    compiler = Compiler()
    compiler.read(sys.argv[1])
    compiler.compile()
    if not compiler.runs:
        sys.exit("nothing to write")
    sys.stdout.buffer.write(compiler.text().encode("cp1252", "replace"))
