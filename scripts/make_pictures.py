#!/usr/bin/env python3
"""Makes the pictures that Landsmith ships in data/tools/bmps, from the colours of the catalogues beside them.

Every picture is our own: a procedural texture in the colour of its class or catalogue entry. The script
needs nothing but Python 3 and always makes the same bytes, so that a rerun shows no difference.
"""
import random
import struct
from pathlib import Path

TOOLS = Path(__file__).resolve().parent.parent / "data" / "tools"
PICTURES = TOOLS / "bmps"
SIDE = 32
GRASS = (122, 150, 84)
GREEN = (0, 255, 0)  # the colour of what is selected


def bmp(pixels):
    """A plain 24-bit bitmap; `pixels` are rows from the top, of (red, green, blue)."""
    height, width = len(pixels), len(pixels[0])
    padding = bytes(-width * 3 % 4)
    body = b"".join(b"".join(bytes((b, g, r)) for r, g, b in row) + padding for row in reversed(pixels))
    head = struct.pack("<2sIHHI", b"BM", 54 + len(body), 0, 0, 54)
    info = struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0, len(body), 2835, 2835, 0, 0)
    return head + info + body


def gif(rows, palette):
    """A small GIF whose first palette entry is transparent. `rows` hold palette places 0 to 3.

    The picture data are written uncompressed: a clear code before the code width could grow, so that every
    pixel is one 3-bit code.
    """
    height, width = len(rows), len(rows[0])
    codes = []
    for place, pixel in enumerate(pixel for row in rows for pixel in row):
        if place % 2 == 0:
            codes.append(4)
        codes.append(pixel)
    codes.append(5)
    bits = sum(code << (3 * place) for place, code in enumerate(codes))
    data = bits.to_bytes((3 * len(codes) + 7) // 8, "little")
    blocks = b"".join(bytes([len(data[i:i + 255])]) + data[i:i + 255] for i in range(0, len(data), 255))
    colours = b"".join(bytes(colour) for colour in palette)
    return (b"GIF89a" + struct.pack("<HHBBB", width, height, 0xF1, 0, 0) + colours
            + b"\x21\xf9\x04\x01\x00\x00\x00\x00"
            + b"\x2c" + struct.pack("<HHHHB", 0, 0, width, height, 0) + b"\x02" + blocks + b"\x00\x3b")


def shade(colour, amount):
    return tuple(max(0, min(255, part + amount)) for part in colour)


def speckled(colour, seed, coarse=4, depth=22):
    """Patches of `coarse` pixels with fine grain on top."""
    source = random.Random(seed)
    patches = [[source.randint(-depth, depth) for _ in range(SIDE // coarse)] for _ in range(SIDE // coarse)]
    return [[shade(colour, patches[y // coarse][x // coarse] + source.randint(-6, 6)) for x in range(SIDE)]
            for y in range(SIDE)]


def fields(colour, seed):
    """Furrowed squares, for crops."""
    source = random.Random(seed)
    plots = [[(source.randint(-24, 24), source.random() < 0.5) for _ in range(4)] for _ in range(4)]
    return [[shade(colour, plots[y // 8][x // 8][0] + (8 if (x if plots[y // 8][x // 8][1] else y) % 2 else -8))
             for x in range(SIDE)] for y in range(SIDE)]


def streets(colour, seed):
    """Blocks of roofs between light streets, for towns."""
    source = random.Random(seed)
    roofs = [[source.randint(-40, 30) for _ in range(8)] for _ in range(8)]
    return [[shade(colour, 45) if x % 8 == 0 or y % 8 == 0 else shade(colour, roofs[y // 4][x // 4])
             for x in range(SIDE)] for y in range(SIDE)]


def ripples(colour, seed):
    """Short wave crests, for water."""
    source = random.Random(seed)
    offsets = [source.randrange(SIDE) for _ in range(SIDE)]
    return [[shade(colour, (14 if (x + offsets[y]) % 11 < 4 and y % 3 == 0 else 0) + source.randint(-4, 4))
             for x in range(SIDE)] for y in range(SIDE)]


def strip(colour, seed):
    """A band of the colour across grass, as a line texture looks from above."""
    ground = speckled(GRASS, seed, depth=10)
    band = speckled(colour, seed + 1, coarse=2, depth=6)
    return [band[y] if 10 <= y < 22 else ground[y] for y in range(SIDE)]


def land_texture(text, colour, seed):
    low = text.lower()
    if "city" in low or "urban" in low:
        return streets(colour, seed)
    if any(word in low for word in ("crops", "corn", "rice", "field")):
        return fields(colour, seed)
    return speckled(colour, seed, coarse=2 if "forest" in low or "wood" in low else 4)


def read_classes(name):
    """(texture number, colour, text) of each line of a class table with fixed columns."""
    for line in (TOOLS / name).read_bytes().decode("cp1252").splitlines():
        yield line[0:3], tuple(int(line[at:at + 3]) for at in (4, 8, 12)), line[16:]


def read_catalogue(name):
    """(picture, colour) of each section of a texture catalogue."""
    colour = None
    for line in (TOOLS / name).read_bytes().decode("cp1252").splitlines():
        key, _, value = line.partition("=")
        if key == "Color":
            colour = tuple(int(part) for part in value.split())
        elif key == "Textures" and value != "na.bmp":
            yield value, colour


def plain(colour):
    return [[colour] * SIDE for _ in range(SIDE)]


def not_available():
    """A grey sheet with a cross."""
    return [[(170, 170, 170) if abs(x - y) < 2 or abs(x + y - SIDE + 1) < 2 else (224, 224, 224)
             for x in range(SIDE)] for y in range(SIDE)]


def taxi_sign():
    """A yellow board with an arrow on two posts, 40 by 20 pixels."""
    def pixel(x, y):
        if y >= 14:
            return (90, 90, 90) if x in (8, 9, 30, 31) else (255, 255, 255)
        if x in (0, 39) or y in (0, 13):
            return (0, 0, 0)
        arrow = (10 <= x <= 28 and y in (6, 7)) or (22 <= x <= 29 and abs(y - 6.5) <= 29.5 - x)
        return (0, 0, 0) if arrow else (250, 210, 40)
    return [[pixel(x, y) for x in range(40)] for y in range(20)]


def beacon():
    """A tower with a lamp."""
    def pixel(x, y):
        if (x - 9.5) ** 2 + (y - 5) ** 2 <= 18:
            return 2
        return 1 if 8 <= y <= 18 and abs(x - 9.5) <= 1 + (y - 8) / 4 else 0
    return [[pixel(x, y) for x in range(20)] for y in range(20)], [(255, 255, 255), (70, 70, 70), (250, 220, 60),
                                                                   (0, 0, 0)]


def windsock():
    """A pole with a striped sock that narrows to the right."""
    def pixel(x, y):
        if x in (2, 3):
            return 1
        if 4 <= x <= 18 and abs(y - 4.5) <= 3.5 - (x - 4) / 6:
            return 2 if (x // 4) % 2 else 3
        return 0
    return [[pixel(x, y) for x in range(20)] for y in range(20)], [(255, 255, 255), (70, 70, 70), (235, 90, 30),
                                                                   (250, 250, 250)]


def effect():
    """A star of eight rays."""
    def pixel(x, y):
        dx, dy = x - 9.5, y - 9.5
        near = dx * dx + dy * dy
        if near <= 10:
            return 3
        ray = abs(dx) < 1 or abs(dy) < 1 or abs(abs(dx) - abs(dy)) < 1
        return 2 if ray and near <= 90 else 0
    return [[pixel(x, y) for x in range(20)] for y in range(20)], [(255, 255, 255), (70, 70, 70), (235, 120, 30),
                                                                   (250, 220, 60)]


def main():
    PICTURES.mkdir(parents=True, exist_ok=True)

    def save(name, content):
        (PICTURES / name).write_bytes(content)

    for number, colour, text in read_classes("lands.txt"):
        save(number + "B2SU1.BMP", bmp(land_texture(text, colour, int(number))))
    for number, colour, _ in read_classes("waters.txt"):
        save(number + "B2WA1.BMP", bmp(ripples(colour, int(number))))
    for name, colour in read_catalogue("lines.txt"):
        save(name, bmp(strip(colour, sum(name.encode()))))
    for name, colour in read_catalogue("polys.txt"):
        save(name, bmp(speckled(colour, sum(name.encode()))))
    for name in ("SELB2SU1.BMP", "SELB2WA1.BMP"):
        save(name, bmp(plain(GREEN)))
    save("na.bmp", bmp(not_available()))
    save("taxisign.bmp", bmp(taxi_sign()))
    for name, picture in (("beacon.gif", beacon), ("windsock.gif", windsock), ("effect.gif", effect)):
        save(name, gif(*picture()))


if __name__ == "__main__":
    main()
