#!/usr/bin/env python3
"""Draws the program icon (a lit 4 x 4 LED matrix on a dark tile) as
src/app/icons/logo.png and wraps the same PNG into src/app/icons/exelogo.ico.
Run by hand when the icon changes; the files are committed."""
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


def png():
    rows = b"".join(b"\x00" + b"".join(bytes(pixel(x, y)) for x in range(SIZE)) for y in range(SIZE))

    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    header = struct.pack(">IIBBBBB", SIZE, SIZE, 8, 6, 0, 0, 0)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(rows, 9)) + chunk(b"IEND", b"")


def ico(png_bytes):
    # One 256 x 256 entry (width and height written as 0) holding the PNG as is.
    directory = struct.pack("<HHH", 0, 1, 1)
    entry = struct.pack("<BBBBHHII", 0, 0, 0, 0, 1, 32, len(png_bytes), 6 + 16)
    return directory + entry + png_bytes


if __name__ == "__main__":
    out = Path(__file__).resolve().parent.parent / "src" / "app" / "icons"
    data = png()
    (out / "logo.png").write_bytes(data)
    (out / "exelogo.ico").write_bytes(ico(data))
