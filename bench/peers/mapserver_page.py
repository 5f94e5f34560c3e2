"""Writes the furniture page as a mapfile, which map2img draws; with a map, if asked.
    mapserver_page.py DPI OUT.map [RASTER]
"""
import json
import math
import subprocess
import sys

CLASSES = ["Water", "Forest", "Meadow", "Field", "Village", "Quarry", "Marsh", "Rock"]
SCALE = float(sys.argv[1]) / 96
layers = []


def layer(kind, points, style):
    dots = " ".join(f"{x * SCALE:.1f} {y * SCALE:.1f}" for x, y in points)
    layers.append(f"""LAYER
 TYPE {kind} STATUS ON TRANSFORM FALSE
 FEATURE POINTS {dots} END TEXT "" END
 CLASS {style} END
END""")


def polygon(points, fill="255 255 255", outline=None):
    edge = f"OUTLINECOLOR {outline} WIDTH {SCALE}" if outline else ""
    layer("POLYGON", list(points) + [points[0]], f"STYLE COLOR {fill} {edge} END")


def box(left, top, right, bottom, fill="255 255 255", outline=None):
    polygon([(left, top), (right, top), (right, bottom), (left, bottom)], fill, outline)


def text(x, y, words, size, font="sans"):
    layers.append(f"""LAYER
 TYPE POINT STATUS ON TRANSFORM FALSE
 FEATURE POINTS {x * SCALE:.1f} {y * SCALE:.1f} END TEXT "{words}" END
 CLASS LABEL TYPE TRUETYPE FONT "{font}" SIZE {size * SCALE:.1f} COLOR 0 0 0
  POSITION CR FORCE TRUE END END
END""")


def legend():
    box(860, 110, 1100, 600, outline="0 0 0")
    text(880, 150, "Legend", 14, "bold")
    y = 190
    text(880, y, "scene.tif", 9)
    for number, color in enumerate(("255 0 0", "0 128 0", "0 0 255"), 1):
        y += 20
        box(880, y - 4, 930, y + 4, color)
        text(960, y, f"Band_{number}", 9)
    y += 25
    text(880, y, "elevation.tif", 9)
    for k in range(254):
        grey = 255 - k
        box(880, y + 15 + k * 0.2, 930, y + 15.4 + k * 0.2, f"{grey} {grey} {grey}")
    text(960, y + 15, "high: 2481", 9)
    text(960, y + 60, "low: 0", 9)
    y += 85
    text(880, y, "land_cover.tif", 9)
    for k, name in enumerate(CLASSES):
        y += 20
        box(880, y - 4, 930, y + 4, f"{k * 30} {255 - k * 30} 90")
        text(960, y, name, 9)


def rose():
    box(910, 620, 1050, 770, outline="0 0 0")
    x, y = 980, 695
    for turn in range(8):
        length = 52 if turn % 2 == 0 else 38
        angle = math.radians(45 * turn)
        for side, fill in ((-1, "255 255 255"), (1, "0 0 0")):
            polygon([(x + a * math.cos(angle) - b * math.sin(angle),
                      y + a * math.sin(angle) + b * math.cos(angle))
                     for a, b in ((0, 0), (0, -length), (side * 10, -10))], fill, "0 0 0")
    for dx, dy, letter in ((-4, -62, "N"), (-4, 62, "S"), (54, 0, "E"), (-66, 0, "W")):
        text(x + dx, y + dy, letter, 10)


def scale_bar():
    box(60, 690, 620, 770, outline="0 0 0")
    for part in range(10):
        box(150 + part * 35, 736, 185 + part * 35, 750,
            "0 0 0" if part % 2 == 0 else "255 255 255", "0 0 0")
    for division in range(6):
        text(146 + 70 * division, 716, str(1000 * division), 7, "serif")
    text(506, 745, "Kilometers", 9, "serif")


def raster_map(raster):
    """The first three bands; its pixels as they are, as map_page shows them."""
    layers.append(f"""LAYER
 TYPE RASTER STATUS ON DATA "{raster}"
 PROCESSING "BANDS=3,2,1" PROCESSING "SCALE=0,255"
END""")


def extent_of(raster, width, height):
    """So that the raster has as much of the page's height as map_page gives it."""
    if raster is None:
        return f"0 0 {width} {height}"
    info = json.loads(subprocess.check_output(["gdalinfo", "-json", raster]))
    left, top = info["cornerCoordinates"]["upperLeft"]
    bottom = info["cornerCoordinates"]["lowerRight"][1]
    unit = (top - bottom) / (0.785 * height)
    left, bottom = left - 0.11 * width * unit, bottom - 0.055 * height * unit
    return f"{left} {bottom} {left + width * unit} {bottom + height * unit}"


def main():
    raster = sys.argv[3] if len(sys.argv) > 3 else None
    width, height = round(297 / 25.4 * 96 * SCALE), round(210 / 25.4 * 96 * SCALE)
    if raster:
        raster_map(raster)
    box(300, 20, 820, 90, outline="0 0 0")
    text(380, 60, "Land cover of Olinda", 30)
    legend()
    rose()
    scale_bar()
    fonts = sys.argv[2].rsplit("/", 1)[0] + "/fonts.list"
    liberation = "/usr/share/fonts/truetype/liberation/Liberation"
    with open(fonts, "w", encoding="utf-8") as file:
        file.write(f"sans {liberation}Sans-Regular.ttf\n"
                   f"bold {liberation}Sans-Bold.ttf\n"
                   f"serif {liberation}Serif-Regular.ttf\n")
    with open(sys.argv[2], "w", encoding="utf-8") as file:
        file.write(f"""MAP
NAME "page" SIZE {width} {height} EXTENT {extent_of(raster, width, height)} IMAGECOLOR 255 255 255
MAXSIZE 8192 FONTSET "{fonts}" IMAGETYPE PNG24
OUTPUTFORMAT NAME "PNG24" DRIVER AGG/PNG MIMETYPE "image/png" IMAGEMODE RGB EXTENSION "png" END
""" + "\n".join(layers) + "\nEND\n")


main()
