"""The furniture that the peers draw: a title, a legend, a rose and a scale bar, each in a
bordered white frame on A4 landscape, in 96ths of an inch. What draws them has
    box(left, top, right, bottom, fill, outline)
    ramp(left, top, right, bottom)            from white at the top to black
    polygon(points, fill, outline)
    text(left, middle, words, points, font)   "sans", "bold" or "serif"
"""
import math

CLASSES = ["Water", "Forest", "Meadow", "Field", "Village", "Quarry", "Marsh", "Rock"]
WHITE = (255, 255, 255)
BLACK = (0, 0, 0)
BANDS = ((255, 0, 0), (0, 128, 0), (0, 0, 255))


def title(peer):
    peer.box(300, 20, 820, 90, WHITE, BLACK)
    peer.text(380, 60, "Land cover of Olinda", 30, "sans")


def legend(peer):
    def rows(y, named):
        for name, color in named:
            y += 20
            peer.box(880, y - 4, 930, y + 4, color, None)
            peer.text(960, y, name, 9, "sans")
        return y

    peer.box(860, 110, 1100, 600, WHITE, BLACK)
    peer.text(880, 150, "Legend", 14, "bold")
    peer.text(880, 190, "scene.tif", 9, "sans")
    y = rows(190, [(f"Band_{band}", color) for band, color in enumerate(BANDS, 1)]) + 25
    peer.text(880, y, "elevation.tif", 9, "sans")
    peer.ramp(880, y + 15, 930, y + 66)
    peer.text(960, y + 15, "high: 2481", 9, "sans")
    peer.text(960, y + 60, "low: 0", 9, "sans")
    y += 85
    peer.text(880, y, "land_cover.tif", 9, "sans")
    rows(y, [(name, (30 * k, 255 - 30 * k, 90)) for k, name in enumerate(CLASSES)])


def rose(peer):
    peer.box(910, 620, 1050, 770, WHITE, BLACK)
    x, y = 980, 695
    for turn in range(8):
        length = 52 if turn % 2 == 0 else 38
        angle = math.radians(45 * turn)
        for side, fill in ((-1, WHITE), (1, BLACK)):
            peer.polygon([(x + a * math.cos(angle) - b * math.sin(angle),
                           y + a * math.sin(angle) + b * math.cos(angle))
                          for a, b in ((0, 0), (0, -length), (side * 10, -10))], fill, BLACK)
    for dx, dy, letter in ((-4, -62, "N"), (-4, 62, "S"), (54, 0, "E"), (-66, 0, "W")):
        peer.text(x + dx, y + dy, letter, 10, "sans")


def scale_bar(peer):
    peer.box(60, 690, 620, 770, WHITE, BLACK)
    for part in range(10):
        peer.box(150 + part * 35, 736, 185 + part * 35, 750,
                 BLACK if part % 2 == 0 else WHITE, BLACK)
    for division in range(6):
        peer.text(146 + 70 * division, 716, str(1000 * division), 7, "serif")
    peer.text(506, 745, "Kilometers", 9, "serif")


def draw(peer):
    for element in (title, legend, rose, scale_bar):
        element(peer)
