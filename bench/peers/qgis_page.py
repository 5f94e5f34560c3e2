"""The furniture page in QGIS.
    qgis_page.py DPI OUT.png | DPI --redraw TIMES
"""
import os
import statistics
import sys
import time

os.environ.setdefault("QT_QPA_PLATFORM", "offscreen")

from qgis.PyQt.QtCore import QPointF, QRectF
from qgis.PyQt.QtGui import QColor, QFont, QPainter, QPolygonF
from qgis.core import (QgsApplication, QgsFillSymbol, QgsGradientFillSymbolLayer,
                       QgsLayoutExporter, QgsLayoutItemLabel, QgsLayoutItemPolygon,
                       QgsLayoutItemShape, QgsLayoutPoint, QgsLayoutSize, QgsPrintLayout,
                       QgsProject, QgsUnitTypes)

CLASSES = ["Water", "Forest", "Meadow", "Field", "Village", "Quarry", "Marsh", "Rock"]


def mm(x, y):
    return QgsLayoutPoint(x, y, QgsUnitTypes.LayoutMillimeters)


def shape(layout, x, y, width, height, fill, outline):
    item = QgsLayoutItemShape(layout)
    item.setShapeType(QgsLayoutItemShape.Rectangle)
    item.setSymbol(QgsFillSymbol.createSimple(
        {"color": fill, "outline_color": outline, "outline_width": "0.26",
         "outline_style": "solid" if outline else "no"}))
    layout.addLayoutItem(item)
    item.attemptMove(mm(x, y))
    item.attemptResize(QgsLayoutSize(width, height, QgsUnitTypes.LayoutMillimeters))
    return item


def label(layout, x, y, text, size, bold=False):
    item = QgsLayoutItemLabel(layout)
    font = QFont("Arial", size)
    font.setBold(bold)
    item.setFont(font)
    item.setText(text)
    item.adjustSizeToText()
    layout.addLayoutItem(item)
    item.attemptMove(mm(x, y))


def legend(layout):
    shape(layout, 227, 29, 64, 130, "white", "black")
    label(layout, 233, 33, "Legend", 14, True)
    y = 42
    label(layout, 233, y, "scene.tif", 9)
    for number, color in enumerate(("red", "green", "blue"), 1):
        y += 6
        shape(layout, 233, y, 13, 3, color, "")
        label(layout, 252, y, f"Band_{number}", 9)
    y += 6
    label(layout, 233, y, "elevation.tif", 9)
    ramp = QgsFillSymbol.createSimple({})
    ramp.changeSymbolLayer(0, QgsGradientFillSymbolLayer(QColor("white"), QColor("black")))
    shape(layout, 233, y + 5, 13, 13, "white", "").setSymbol(ramp)
    label(layout, 252, y + 5, "high: 2481", 9)
    label(layout, 252, y + 14, "low: 0", 9)
    y += 20
    label(layout, 233, y, "land_cover.tif", 9)
    for k, name in enumerate(CLASSES):
        y += 6
        shape(layout, 233, y, 13, 3, f"{k * 30},{255 - k * 30},90", "")
        label(layout, 252, y, name, 9)


def rose(layout):
    import math
    shape(layout, 241, 164, 37, 40, "white", "black")
    x, y = 259.5, 184.0
    for turn in range(8):
        length = 14 if turn % 2 == 0 else 10
        angle = math.radians(45 * turn)
        for side, fill in ((-1, "white"), (1, "black")):
            points = [(0, 0), (0, -length), (side * 2.8, -2.8)]
            turned = [QPointF(x + a * math.cos(angle) - b * math.sin(angle),
                              y + a * math.sin(angle) + b * math.cos(angle))
                      for a, b in points]
            item = QgsLayoutItemPolygon(QPolygonF(turned), layout)
            item.setSymbol(QgsFillSymbol.createSimple(
                {"color": fill, "outline_color": "black", "outline_width": "0.26"}))
            layout.addLayoutItem(item)
    for dx, dy, letter in ((-1.5, -19, "N"), (-1.5, 14, "S"), (15, -2, "E"),
                           (-18, -2, "W")):
        label(layout, x + dx, y + dy, letter, 10)


def scale_bar(layout):
    shape(layout, 16, 182, 148, 22, "white", "black")
    for part in range(10):
        shape(layout, 40 + 9.25 * part, 195, 9.25, 3.7,
              "black" if part % 2 == 0 else "white", "black")
    for division in range(6):
        label(layout, 38 + 18.5 * division, 187, str(1000 * division), 7)
    label(layout, 134, 195, "Kilometers", 9)


def page(project):
    layout = QgsPrintLayout(project)
    layout.initializeDefaults()
    shape(layout, 79, 5, 138, 19, "white", "black")
    label(layout, 100, 9, "Land cover of Olinda", 30)
    legend(layout)
    rose(layout)
    scale_bar(layout)
    return layout


def main():
    dpi = float(sys.argv[1])
    application = QgsApplication([], False)
    application.initQgis()
    project = QgsProject.instance()
    layout = page(project)
    layout.renderContext().setDpi(dpi)
    exporter = QgsLayoutExporter(layout)
    if sys.argv[2] != "--redraw":
        exporter.renderPageToImage(0, dpi=dpi).save(sys.argv[2])
    else:
        image = exporter.renderPageToImage(0, dpi=dpi)
        taken = []
        for _ in range(int(sys.argv[3])):
            start = time.perf_counter()
            painter = QPainter(image)
            exporter.renderPage(painter, 0)
            painter.end()
            taken.append(1000 * (time.perf_counter() - start))
        print(f"{statistics.median(taken):.4f}")
    sys.stdout.flush()
    os._exit(0)  # what QGIS tidies up at the end is not drawing


main()
