#!/usr/bin/python3
"""Writes a screenshot as a PNG file.

usage: to_png.py SOURCE TARGET
SOURCE is a BMP file of 24 bits a pixel, bottom-up, or the frame buffer file of a virtual screen
(an X window dump of 32 bits a pixel).
"""
import struct
import sys
import zlib


def rows_of_bmp(data):
    """Width, height and the rows of blue-green-red bytes, from the top."""
    start, = struct.unpack_from('<I', data, 10)
    width, height = struct.unpack_from('<ii', data, 18)
    stride = (width * 3 + 3) // 4 * 4
    rows = [data[start + y * stride:][:width * 3] for y in reversed(range(height))]
    return width, height, [[row[i::3] for i in range(3)] for row in rows]


def rows_of_dump(data):
    """The same from a frame buffer; its header's numbers are big-endian words."""
    header = struct.unpack_from('>25I', data)
    size, width, height, stride, colours = header[0], header[4], header[5], header[12], header[19]
    start = size + colours * 12
    rows = [data[start + y * stride:][:width * 4] for y in range(height)]
    return width, height, [[row[i::4] for i in range(3)] for row in rows]


def chunk(kind, body):
    return struct.pack('>I', len(body)) + kind + body + struct.pack('>I', zlib.crc32(kind + body))


def main():
    with open(sys.argv[1], 'rb') as source:
        data = source.read()
    width, height, rows = rows_of_bmp(data) if data[:2] == b'BM' else rows_of_dump(data)
    lines = bytearray()
    for blue, green, red in rows:
        line = bytearray(width * 3)
        line[0::3], line[1::3], line[2::3] = red, green, blue
        lines += b'\0' + line
    with open(sys.argv[2], 'wb') as target:
        target.write(b'\x89PNG\r\n\x1a\n')
        target.write(chunk(b'IHDR', struct.pack('>IIBBBBB', width, height, 8, 2, 0, 0, 0)))
        target.write(chunk(b'IDAT', zlib.compress(bytes(lines), 9)))
        target.write(chunk(b'IEND', b''))


main()
