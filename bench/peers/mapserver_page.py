"""Writes the furniture page as a mapfile, which map2img draws; with a map, if asked.
    mapserver_page.py DPI OUT.map [RASTER [SYSTEM]]
Of a SYSTEM, such as epsg:31985, the map is drawn in it, from what the raster says it has.
"""
import json
import subprocess
import sys

import furniture

FONTS = {"sans": "Sans-Regular", "bold": "Sans-Bold", "serif": "Serif-Regular"}
SCALE = float(sys.argv[1]) / 96


def rgb(color):
    return " ".join(map(str, color))


class Mapfile:
    """Its layers, one a shape."""

    def __init__(self):
        self.layers = []

    def layer(self, kind, points, text, style):
        dots = " ".join(f"{x * SCALE:.1f} {y * SCALE:.1f}" for x, y in points)
        self.layers.append(f"""LAYER
 TYPE {kind} STATUS ON TRANSFORM FALSE
 FEATURE POINTS {dots} END TEXT "{text}" END
 CLASS {style} END
END""")

    def polygon(self, points, fill, outline):
        edge = f"OUTLINECOLOR {rgb(outline)} WIDTH {SCALE}" if outline else ""
        self.layer("POLYGON", [*points, points[0]], "",
                   f"STYLE COLOR {rgb(fill)} {edge} END")

    def box(self, left, top, right, bottom, fill, outline):
        self.polygon([(left, top), (right, top), (right, bottom), (left, bottom)],
                     fill, outline)

    def ramp(self, left, top, right, bottom):
        step = (bottom - top) / 255
        for k in range(255):
            self.box(left, top + k * step, right, top + (k + 2) * step, [255 - k] * 3, None)

    def text(self, left, middle, words, points, font):
        self.layer("POINT", [(left, middle)], words,
                   f'LABEL TYPE TRUETYPE FONT "{font}" SIZE {points * SCALE:.1f} '
                   "COLOR 0 0 0 POSITION CR FORCE TRUE END")

    def raster_map(self, raster, system):
        """The first three bands; its pixels as they are, as map_page shows them."""
        own = "PROJECTION AUTO END" if system else ""
        self.layers.append(f"""LAYER
 TYPE RASTER STATUS ON DATA "{raster}" {own}
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
    system = sys.argv[4] if len(sys.argv) > 4 else None
    width, height = round(297 / 25.4 * 96 * SCALE), round(210 / 25.4 * 96 * SCALE)
    mapfile = Mapfile()
    if raster:
        mapfile.raster_map(raster, system)
    furniture.draw(mapfile)
    fonts = sys.argv[2].rsplit("/", 1)[0] + "/fonts.list"
    with open(fonts, "w", encoding="utf-8") as file:
        file.writelines(f"{name} /usr/share/fonts/truetype/liberation/Liberation{of}.ttf\n"
                        for name, of in FONTS.items())
    with open(sys.argv[2], "w", encoding="utf-8") as file:
        file.write(f"""MAP
NAME "page" SIZE {width} {height} EXTENT {extent_of(raster, width, height)} IMAGECOLOR 255 255 255
MAXSIZE 8192 FONTSET "{fonts}" IMAGETYPE PNG24
{f'PROJECTION "init={system}" END' if system else ""}
OUTPUTFORMAT NAME "PNG24" DRIVER AGG/PNG MIMETYPE "image/png" IMAGEMODE RGB EXTENSION "png" END
""" + "\n".join(mapfile.layers) + "\nEND\n")


main()
