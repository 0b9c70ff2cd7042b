#!/usr/bin/env python3
"""Draws the icons in src/app/icons/:
  logo.png / exelogo.ico  program icon, a lit 4 x 4 LED matrix on a dark tile
                          (256 x 256; the .ico wraps the same PNG),
  32 x 32 menu icons      open-patch, open, save, save-as, exit_icon,
                          network_log_icon, settings, fit_to_window, play and
                          information, flat grey-blue shapes with one orange or
                          cyan accent on a transparent background, so they read
                          on dark and light menus.
Menu icons are built from signed-distance shapes (negative inside) and
anti-aliased by sampling 4 x 4 points per pixel. Standard library only.
Run by hand when an icon changes; the files are committed."""
import math
import struct
import zlib
from pathlib import Path

SIZE = 256
DARK = (30, 34, 39, 255)
COLOURS = [(240, 130, 32), (255, 196, 64), (64, 200, 255), (120, 255, 140)]


def pixel(x, y):
    margin, cells = 28, 4
    pitch = (SIZE - 2 * margin) / cells
    cx, cy = (x - margin) / pitch, (y - margin) / pitch
    if 0 <= cx < cells and 0 <= cy < cells:
        fx, fy = cx - int(cx) - 0.5, cy - int(cy) - 0.5
        if fx * fx + fy * fy < 0.13:
            r, g, b = COLOURS[(int(cx) + int(cy)) % len(COLOURS)]
            return (r, g, b, 255)
    corner = 36
    dx = max(corner - x, x - (SIZE - 1 - corner), 0)
    dy = max(corner - y, y - (SIZE - 1 - corner), 0)
    return DARK if dx * dx + dy * dy <= corner * corner else (0, 0, 0, 0)


def png(size=SIZE, colour_at=pixel):
    rows = b"".join(b"\x00" + b"".join(bytes(colour_at(x, y)) for x in range(size)) for y in range(size))

    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    header = struct.pack(">IIBBBBB", size, size, 8, 6, 0, 0, 0)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(rows, 9)) + chunk(b"IEND", b"")


def ico(png_bytes):
    # One 256 x 256 entry (width and height written as 0) holding the PNG as is.
    directory = struct.pack("<HHH", 0, 1, 1)
    entry = struct.pack("<BBBBHHII", 0, 0, 0, 0, 1, 32, len(png_bytes), 6 + 16)
    return directory + entry + png_bytes


# ---- signed-distance shapes for the 32 x 32 menu icons (pixel units) ----
GREY, ORANGE, CYAN = (140, 156, 174), (240, 130, 32), (64, 200, 255)
ERASE = None  # a layer of this colour clears what lies below it


def circle(cx, cy, r):
    return lambda x, y: math.hypot(x - cx, y - cy) - r


def rect(x0, y0, x1, y1, r=0.0):
    cx, cy, hx, hy = (x0 + x1) / 2, (y0 + y1) / 2, (x1 - x0) / 2 - r, (y1 - y0) / 2 - r

    def d(x, y):
        qx, qy = abs(x - cx) - hx, abs(y - cy) - hy
        return math.hypot(max(qx, 0), max(qy, 0)) + min(max(qx, qy), 0) - r
    return d


def line(ax, ay, bx, by, width):
    ex, ey = bx - ax, by - ay

    def d(x, y):
        t = max(0.0, min(1.0, ((x - ax) * ex + (y - ay) * ey) / (ex * ex + ey * ey)))
        return math.hypot(x - ax - t * ex, y - ay - t * ey) - width / 2
    return d


def polygon(*pts):
    def d(x, y):
        best, sign = float("inf"), 1.0
        for (vx, vy), (ux, uy) in zip(pts, pts[-1:] + pts[:-1]):
            ex, ey, wx, wy = ux - vx, uy - vy, x - vx, y - vy
            t = max(0.0, min(1.0, (wx * ex + wy * ey) / (ex * ex + ey * ey)))
            best = min(best, math.hypot(wx - t * ex, wy - t * ey))
            inside = (y >= vy, y < uy, ex * wy > ey * wx)
            if all(inside) or not any(inside):
                sign = -sign
        return sign * best
    return d


def union(*shapes):
    return lambda x, y: min(s(x, y) for s in shapes)


def grow(shape, by):
    return lambda x, y: shape(x, y) - by


def ring(shape, width):
    return lambda x, y: abs(shape(x, y)) - width / 2


def moved(shape, scale, dx, dy):
    return lambda x, y: shape((x - dx) / scale, (y - dy) / scale) * scale


def gapped(colour, shape, gap=1.3):
    """The shape painted over a transparent moat, keeping it distinct from what lies below."""
    return [(ERASE, grow(shape, gap)), (colour, shape)]


def render(layers, steps=4):
    """Last covering layer wins per sample; coverage is averaged per pixel."""
    def colour_at(px, py):
        r = g = b = a = 0
        for i in range(steps * steps):
            x, y = px + (i % steps + 0.5) / steps, py + (i // steps + 0.5) / steps
            hit = ERASE
            for colour, shape in layers:
                if shape(x, y) <= 0:
                    hit = colour
            if hit is not ERASE:
                r, g, b, a = r + hit[0], g + hit[1], b + hit[2], a + 1
        if a == 0:
            return (0, 0, 0, 0)
        return (round(r / a), round(g / a), round(b / a), round(255 * a / (steps * steps)))
    return png(32, colour_at)


# ---- the menu icons ----
FOLDER_FLAP = polygon((9, 14), (31, 14), (26, 27), (3, 27))


def folder(flap_colour=GREY):
    back = union(rect(3, 5, 13, 11, 1.5), rect(3, 8, 27, 27, 1.5))
    return [(GREY, back)] + gapped(flap_colour, FOLDER_FLAP)


def floppy():
    body = grow(polygon((5, 5), (23, 5), (27, 9), (27, 27), (5, 27)), 1)
    return [(GREY, body), (ERASE, rect(9, 4, 21, 12, 0.8)), (GREY, rect(16, 6, 19, 10, 0.5)),
            (ORANGE, rect(8, 16, 24, 25, 1))]


def exit_icon():
    door = rect(5, 3, 19, 29, 1.5)
    arrow = union(line(11, 16, 24, 16, 3), polygon((31, 16), (23, 9), (23, 23)))
    return [(GREY, door), (ERASE, rect(8, 6, 16, 26, 0.5)), (GREY, rect(9, 7, 15, 25))] + gapped(ORANGE, arrow)


def network_log():
    layers = []
    for i, y in enumerate((6, 12, 18, 24)):
        layers += [(GREY, circle(4.5, y, 1.8)), (GREY, line(9.5, y, 27.5 if i < 2 else 16, y, 2.5))]
    nodes = [(25, 19), (20, 28), (29.5, 28)]
    links = [line(*nodes[0], *nodes[1], 1.6), line(*nodes[0], *nodes[2], 1.6), line(*nodes[1], *nodes[2], 1.6)]
    return layers + gapped(CYAN, union(*links, *(circle(x, y, 2.4) for x, y in nodes)))


def gear(x, y, step=2 * math.pi / 8):
    """Eight teeth around a disc, centred on the icon."""
    x, y = x - 16, y - 16
    turn = round(math.atan2(y, x) / step) * step
    lx = x * math.cos(turn) + y * math.sin(turn)
    ly = -x * math.sin(turn) + y * math.cos(turn)
    tooth = rect(9, -2.8, 14.5, 2.8, 1)(lx, ly)
    return min(math.hypot(x, y) - 10.5, tooth)


def fit_to_window():
    layers = []
    for sx, sy in ((1, 1), (-1, 1), (1, -1), (-1, -1)):
        cx, cy = 16 - sx * 11.5, 16 - sy * 11.5
        layers.append((GREY, union(line(cx, cy, cx + sx * 7, cy, 3), line(cx, cy, cx, cy + sy * 7, 3))))
    return layers + [(ORANGE, rect(11, 11, 21, 21, 1.5))]


def information():
    i_mark = union(circle(16, 9.5, 2.1), rect(14.2, 13, 17.8, 24, 0.8))
    return [(CYAN, circle(16, 16, 14)), (ERASE, i_mark)]


ICONS = {
    "open-patch": folder() + [layer for x in (12.5, 18.5) for y in (17.5, 23.5)
                              for layer in gapped(CYAN, circle(x, y, 1.9), 0.7)],
    "open": folder(ORANGE),
    "save": floppy(),
    "save-as": [(c, moved(s, 0.8, 0, 0)) for c, s in floppy()]
               + gapped(ORANGE, polygon((26.2, 13.2), (29.8, 16.8), (21.8, 24.8), (16, 27), (18.2, 21.2)))
               + [(GREY, polygon((17, 24.4), (18.6, 26), (16, 27)))],
    "exit_icon": exit_icon(),
    "network_log_icon": network_log(),
    "settings": [(GREY, gear), (ERASE, circle(16, 16, 4.5)), (ORANGE, circle(16, 16, 2.2))],
    "fit_to_window": fit_to_window(),
    "play": [(ORANGE, grow(polygon((10, 8), (25, 16), (10, 24)), 2))],
    "information": information(),
}

if __name__ == "__main__":
    out = Path(__file__).resolve().parent.parent / "src" / "app" / "icons"
    data = png()
    (out / "logo.png").write_bytes(data)
    (out / "exelogo.ico").write_bytes(ico(data))
    for name, layers in ICONS.items():
        (out / f"{name}.png").write_bytes(render(layers))
