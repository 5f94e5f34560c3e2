#!/usr/bin/env python3
"""Random frames and line scale bars, drawn by the library and worked out here once more.

    second_opinion.py DRAW_SCENES FLAT_LOG SECONDS [SEED]

Nothing is shared with the tests in C++: the calls are written down by FLAT_LOG, in front of
GDI+, and what they should be follows from the formulas alone.
"""
import math
import os
import random
import struct
import subprocess
import sys
import time

UNITS = {"degree": "度", "unknown": "未知", "Unknown": "未知", "meter": "米", "Meter": "米",
         "metre": "米", "Metre": "米", "Kilometer": "公里", "Kilometre": "公里", "Degree": "度"}


def single(number):
    """The nearest float of 32 bits."""
    return struct.unpack("f", struct.pack("f", number))[0]


def shown(number):
    return "%.9g" % single(number)


def quotient(a, b):
    """Of whole numbers, cut toward zero."""
    return int(math.copysign(abs(a) // abs(b), a * b)) if a else 0


def nice(p):
    """The factor and the decimals of a division that stands for p; None for no bar."""
    if abs(p) < 1e-8:
        return None
    count, t = 0, p
    if p < 1.0:
        while True:
            t, count = t * 10.0, count + 1
            if t >= 1.0:
                break
        n = float(math.trunc(t))
        for _ in range(count):
            n /= 10.0
        return n / p, count
    if p > 1.0:
        while True:
            t, count = t / 10.0, count + 1
            if t <= 1.0:
                break
        n = float(math.trunc(t * 10.0))
        for _ in range(count - 1):
            n *= 10.0
        return n / p, 0
    return 1.0, 0


def font(em):
    """In its words; none of no size can be made."""
    return "[%s 0 2]" % shown(em) if em > 0 else "(nil)"


def bar_calls(s):
    size = single(s["size"])
    factor = nice(s["p"])
    aspect = single(5.8)
    if factor:
        width = single(s["main"]) * s["byone"] * factor[0]
        width += single(size / 5.0)
        width += single(size / 40.0)
        width += single(single(size * 2.0) / 3.0)
        width += single(size / 40.0)
        aspect = single(single(width) / size)
    calls = ["aspect " + shown(aspect)]
    if not factor:
        return calls
    f, decimals = factor
    h = math.trunc(s["size"] * s["scale"] + 0.5)
    w = single(single(h) * aspect)
    left = s["x"] - math.trunc(w * 0.5)
    top = s["y"] - math.trunc(h * 0.5)
    height = 2 * math.trunc(h * 0.5)
    length = f * s["screen"]
    sublength = length / (s["sub"] + 1) if s["sub"] != -1 else math.inf
    step = math.trunc(length)
    pen = "%x %s 0" % (s["color"], shown(s["scale"]))
    tick = top + quotient(2 * height, 3)
    subtick = tick + math.trunc(height / 6.0)
    bottom = top + height
    first = left + quotient(height, 8)
    if s["unitpos"] == 1:
        first -= math.trunc(height * -0.8)
    foot = (0, 0)
    brush = "%x" % s["color"]
    for i in range(s["main"] + 1):
        x = first + i * step
        calls.append("line [%s] %d %d %d %d" % (pen, x, tick, x, bottom))
        foot = (x, bottom)
        text = "%.*f" % (decimals, float(i) * s["p"] * f)
        calls.append("text %s [%s] %s %s 0 0 plain %s" % (
            font(quotient(height, 4)), brush, shown(x - height * 0.125), shown(top),
            ",".join("%x" % ord(c) for c in text)))
        if i < s["main"]:
            for j in range(s["sub"] + 1):
                xs = math.trunc(float(x) + j * sublength)
                calls.append("line [%s] %d %d %d %d" % (pen, xs, subtick, xs, bottom))
    calls.append("line [%s] %d %d %d %d" % (pen, first, bottom, foot[0], foot[1]))
    origin = (0, 0)
    if s["unitpos"] in (0, 1):
        beside = foot[0] + quotient(height, 10) if s["unitpos"] == 0 else left
        origin = (beside, foot[1] - quotient(height, 3))
    name = UNITS.get(s["units"], s["units"])
    calls.append("text %s [%s] %s %s 0 0 plain %s" % (
        font(s["size"] * s["scale"] / 3.0), brush, shown(origin[0]), shown(origin[1]),
        ",".join("%x" % ord(c) for c in name)))
    return calls


def frame_calls(s):
    calls = []
    left, top, right, bottom = s["rect"]
    width, height = right - left, bottom - top
    border = single(s["width"])
    if s["border"]:
        color = 0x00FFFFFF if border == 0.0 else s["bordercolor"]
        pen = "%x %s 0%s" % (color, shown(border), " dash 1" if s["dashed"] else "")
        calls.append("rectangle [%s] %d %d %d %d" % (
            pen, left - s["gapx"], top - s["gapy"], width + 2 * s["gapx"],
            height + 2 * s["gapy"]))
    if s["shadow"]:
        gx, gy = single(s["gapx"]), single(s["gapy"])
        sx, sy = single(s["ratiox"]), single(s["ratioy"])
        dx, dy = single(single(width) * sx), single(single(height) * sy)

        def add(*terms):
            total = single(terms[0])
            for term in terms[1:]:
                total = single(total + single(term))
            return shown(total)

        saved_right = border
        if sx == 0.0:
            border = 0.0
        brush = "%x" % s["shadowcolor"]
        calls.append("fill [%s] %s %s %s %s" % (
            brush, add(right, border, gx), add(top + math.trunc(dy), border, gy),
            add(dx, border, gx), add(height, border, gy)))
        saved_bottom = border
        if sy == 0.0:
            border = 0.0
        calls.append("fill [%s] %s %s %s %s" % (
            brush, add(left + math.trunc(dx), border, gx), add(bottom, border, gy),
            add(width, border, gx), add(dy, border, gy)))
        if sx == 0.0:
            border = saved_right
        if sy == 0.0:
            border = saved_bottom
    if s["fill"]:
        calls.append("fillwhole [%x] %d %d %d %d" % (
            s["fillcolor"], left - s["fillx"], top - s["filly"], width + 2 * s["fillx"],
            height + 2 * s["filly"]))
    return calls + ["width " + shown(border)]


def random_scene(r):
    color = lambda: r.getrandbits(32)
    if r.random() < 0.5:
        ratio = lambda: r.choice([0.0, 0.0, r.uniform(-0.5, 1.5), 1e-3])
        gap = lambda: r.choice([0, 0, r.randint(-50, 50)])
        left, top = r.randint(-500, 3000), r.randint(-500, 3000)
        s = dict(kind="frame", border=r.getrandbits(1), fill=r.getrandbits(1),
                 shadow=r.getrandbits(1), dashed=r.getrandbits(1),
                 width=r.choice([0.0, 1.0, r.uniform(0, 20)]), bordercolor=color(),
                 fillcolor=color(), shadowcolor=color(), gapx=gap(), gapy=gap(), fillx=gap(),
                 filly=gap(), ratiox=ratio(), ratioy=ratio(),
                 rect=(left, top, left + r.randint(-20, 2000), top + r.randint(-20, 2000)))
        words = ["border", "fill", "shadow", "dashed", "width", "bordercolor", "fillcolor",
                 "shadowcolor", "gapx", "gapy", "fillx", "filly", "ratiox", "ratioy"]
        return s, " ".join(["frame"] + [repr(s[w]) for w in words] + [str(v) for v in s["rect"]])
    p = r.choice([0.0, 1.0, 10.0, 1000.0, 0.5, 10.0 ** r.uniform(-9.0, 12.0), float(r.randint(1, 9999))])
    s = dict(kind=r.choice(["line", "stepped"]), size=r.randint(1, 400),
             main=r.randint(-2, 12), sub=r.randint(-2, 9), unitpos=r.choice([0, 0, 1, 1, 2, -1]),
             p=p, screen=r.uniform(-50.0, 400.0), byone=r.uniform(0.0, 200.0), color=color(),
             units=r.choice(list(UNITS) + ["km", "METER", "kilometer"]),
             x=r.randint(-300, 4000), y=r.randint(-300, 4000), scale=r.uniform(0.05, 8.0))
    words = ["size", "main", "sub", "unitpos", "p", "screen", "byone", "color", "units", "x", "y",
             "scale"]
    return s, " ".join([s["kind"]] + [str(s[w]) for w in words])


def drawn(lines):
    """The calls of a scene, with the pens, brushes and fonts that they use in their words."""
    objects, calls = {}, []
    for line in lines:
        verb, *rest = line.split(" ")
        if verb in ("pen", "brush", "font"):
            objects[rest[0]] = " ".join(rest[1:])
        elif verb == "pencolor":
            objects[rest[0]] = " ".join([rest[1]] + objects[rest[0]].split(" ")[1:])
        elif verb == "pendash":
            objects[rest[0]] += " dash " + rest[1]
        elif verb == "gone":
            del objects[rest[0]]
        else:
            calls.append(" ".join("[%s]" % objects[w] if w.startswith("0x") else w
                                  for w in [verb] + rest))
    if objects:
        calls.append("left over: %s" % objects)
    return calls


def main():
    program, log, seconds = sys.argv[1], sys.argv[2], float(sys.argv[3])
    seed = int(sys.argv[4]) if len(sys.argv) > 4 else 1
    end, scenes = time.time() + seconds, 0
    while True:
        r = random.Random(seed)
        batch = [random_scene(r) for _ in range(500)]
        output = subprocess.run(
            [program], input="\n".join(line for _, line in batch) + "\n", text=True, check=True,
            stdout=subprocess.PIPE, env=dict(os.environ, LD_PRELOAD=log)).stdout
        parts = output.split("end\n")[:-1]
        if len(parts) != len(batch):
            sys.exit("second_opinion: %d scenes of %d were drawn" % (len(parts), len(batch)))
        for (scene, line), part in zip(batch, parts):
            expected = frame_calls(scene) if scene["kind"] == "frame" else bar_calls(scene)
            calls = drawn(part.splitlines())
            if calls != expected:
                at = next((i for i, pair in enumerate(zip(expected, calls))
                           if pair[0] != pair[1]), min(len(expected), len(calls)))
                sys.exit("second_opinion: seed %d: %s\ncall %d: expected %s\n drawn %s" % (
                    seed, line, at, expected[at:at + 1], calls[at:at + 1]))
        scenes += len(batch)
        seed += 1
        if time.time() >= end:
            break
    print("second_opinion: %d scenes, nothing differs" % scenes)


if __name__ == "__main__":
    main()
