"""The furniture page in QGIS.
    qgis_page.py DPI OUT.png | DPI --redraw TIMES
"""
import os
import statistics
import sys
import time

os.environ.setdefault("QT_QPA_PLATFORM", "offscreen")

from qgis.PyQt.QtCore import QPointF
from qgis.PyQt.QtGui import QColor, QFont, QPainter, QPolygonF
from qgis.core import (QgsApplication, QgsFillSymbol, QgsGradientFillSymbolLayer,
                       QgsLayoutExporter, QgsLayoutItem, QgsLayoutItemLabel,
                       QgsLayoutItemPolygon, QgsLayoutItemShape, QgsLayoutPoint,
                       QgsLayoutSize, QgsPrintLayout, QgsProject, QgsUnitTypes)

import furniture

UNIT = 25.4 / 96  # millimetres


def symbol(fill, outline):
    return QgsFillSymbol.createSimple(
        {"color": QColor(*fill).name(), "outline_width": "0.26",
         "outline_color": QColor(*(outline or fill)).name(),
         "outline_style": "solid" if outline else "no"})


class Layout(QgsPrintLayout):
    """A page of items, one a shape."""

    def add(self, item, left, top):
        self.addLayoutItem(item)
        item.attemptMove(QgsLayoutPoint(left * UNIT, top * UNIT,
                                        QgsUnitTypes.LayoutMillimeters))

    def box(self, left, top, right, bottom, fill, outline):
        item = QgsLayoutItemShape(self)
        item.setShapeType(QgsLayoutItemShape.Rectangle)
        item.setSymbol(symbol(fill, outline))
        self.add(item, left, top)
        item.attemptResize(QgsLayoutSize((right - left) * UNIT, (bottom - top) * UNIT,
                                         QgsUnitTypes.LayoutMillimeters))
        return item

    def ramp(self, left, top, right, bottom):
        ramp = QgsFillSymbol.createSimple({})
        ramp.changeSymbolLayer(
            0, QgsGradientFillSymbolLayer(QColor("white"), QColor("black")))
        self.box(left, top, right, bottom, furniture.WHITE, None).setSymbol(ramp)

    def polygon(self, points, fill, outline):
        item = QgsLayoutItemPolygon(
            QPolygonF([QPointF(x * UNIT, y * UNIT) for x, y in points]), self)
        item.setSymbol(symbol(fill, outline))
        self.addLayoutItem(item)

    def text(self, left, middle, words, points, font):
        item = QgsLayoutItemLabel(self)
        face = QFont("Times New Roman" if font == "serif" else "Arial", points)
        face.setBold(font == "bold")
        item.setFont(face)
        item.setText(words)
        item.adjustSizeToText()
        item.setReferencePoint(QgsLayoutItem.MiddleLeft)
        self.add(item, left, middle)


def main():
    dpi = float(sys.argv[1])
    application = QgsApplication([], False)
    application.initQgis()
    layout = Layout(QgsProject.instance())
    layout.initializeDefaults()
    furniture.draw(layout)
    layout.renderContext().setDpi(dpi)
    exporter = QgsLayoutExporter(layout)
    if sys.argv[2] != "--redraw":
        exporter.renderPageToImage(0, dpi=dpi).save(sys.argv[2])
    else:
        image = exporter.renderPageToImage(0, dpi=dpi)
        taken = []
        for _ in range(int(sys.argv[3])):
            start = time.process_time()
            painter = QPainter(image)
            exporter.renderPage(painter, 0)
            painter.end()
            taken.append(1000 * (time.process_time() - start))
        print(f"{statistics.median(taken):.4f}")
    sys.stdout.flush()
    os._exit(0)  # what QGIS tidies up at the end is not drawing


main()
