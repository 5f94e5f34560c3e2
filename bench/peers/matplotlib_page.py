"""The furniture page in matplotlib.
    matplotlib_page.py DPI OUT.png | DPI --redraw TIMES
"""
import statistics
import sys
import time

import matplotlib

matplotlib.use("Agg")
import matplotlib.pyplot as plt
from matplotlib.patches import Polygon, Rectangle

CLASSES = ["Water", "Forest", "Meadow", "Field", "Village", "Quarry", "Marsh", "Rock"]


def framed(figure, box):
    axes = figure.add_axes(box)
    axes.set_xticks([])
    axes.set_yticks([])
    axes.set_xlim(0, 1)
    axes.set_ylim(0, 1)
    return axes


def legend(axes):
    axes.text(0.1, 0.94, "Legend", fontsize=14, weight="bold")
    y = 0.88
    axes.text(0.1, y, "scene.tif", fontsize=9)
    for number, color in enumerate(("red", "green", "blue"), 1):
        y -= 0.05
        axes.add_patch(Rectangle((0.1, y), 0.2, 0.03, color=color))
        axes.text(0.4, y, f"Band_{number}", fontsize=9)
    y -= 0.05
    axes.text(0.1, y, "elevation.tif", fontsize=9)
    axes.imshow([[k / 254] for k in range(254, 0, -1)], cmap="gray", aspect="auto",
                extent=(0.1, 0.3, y - 0.12, y - 0.02))
    axes.set_xlim(0, 1)
    axes.set_ylim(0, 1)
    axes.text(0.4, y - 0.03, "high: 2481", fontsize=9)
    axes.text(0.4, y - 0.11, "low: 0", fontsize=9)
    y -= 0.17
    axes.text(0.1, y, "land_cover.tif", fontsize=9)
    for k, name in enumerate(CLASSES):
        y -= 0.05
        axes.add_patch(Rectangle((0.1, y), 0.2, 0.03, color=(k / 8, 1 - k / 8, 0.35)))
        axes.text(0.4, y, name, fontsize=9)


def rose(axes):
    for turn in range(8):
        length = 0.35 if turn % 2 == 0 else 0.25
        transform = matplotlib.transforms.Affine2D().rotate_deg_around(
            0.5, 0.5, 45 * turn) + axes.transData
        for side, fill in ((-1, "white"), (1, "black")):
            axes.add_patch(Polygon(
                [(0.5, 0.5), (0.5, 0.5 + length), (0.5 + side * 0.07, 0.57)],
                facecolor=fill, edgecolor="black", linewidth=1, transform=transform))
    for x, y, letter in ((0.5, 0.87, "N"), (0.5, 0.05, "S"), (0.88, 0.47, "E"),
                         (0.05, 0.47, "W")):
        axes.text(x, y, letter, fontsize=10, ha="center")


def scale_bar(axes):
    for box in range(10):
        axes.add_patch(Rectangle((0.15 + 0.0125 * 5 * box, 0.3), 0.0625, 0.15,
                                 facecolor="black" if box % 2 == 0 else "white",
                                 edgecolor="black"))
    for division in range(6):
        axes.text(0.15 + 0.125 * division, 0.65, str(1000 * division), fontsize=7)
    axes.text(0.8, 0.3, "Kilometers", fontsize=9, family="serif")


def page(dpi):
    figure = plt.figure(figsize=(297 / 25.4, 210 / 25.4), dpi=dpi)
    title = framed(figure, (0.27, 0.89, 0.46, 0.09))
    title.text(0.5, 0.5, "Land cover of Olinda", fontsize=30, ha="center", va="center")
    legend(framed(figure, (0.77, 0.24, 0.21, 0.62)))
    rose(framed(figure, (0.81, 0.03, 0.125, 0.19)))
    scale_bar(framed(figure, (0.05, 0.03, 0.5, 0.1)))
    return figure


def main():
    figure = page(float(sys.argv[1]))
    if sys.argv[2] != "--redraw":
        figure.savefig(sys.argv[2])
        return
    taken = []
    for _ in range(int(sys.argv[3])):
        start = time.perf_counter()
        figure.canvas.draw()
        taken.append(1000 * (time.perf_counter() - start))
    print(f"{statistics.median(taken):.4f}")


main()
