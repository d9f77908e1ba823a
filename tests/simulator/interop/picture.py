"""Pixels of a PNG file with 8 bits a channel."""
import struct
import zlib


class Picture:
    def __init__(self, path):
        with open(path, "rb") as file:
            data = file.read()
        packed, at = b"", 8
        while at < len(data):
            length, kind = struct.unpack_from(">I4s", data, at)
            body = data[at + 8:at + 8 + length]
            if kind == b"IHDR":
                self.width, self.height, depth, color = struct.unpack_from(">IIBB", body)
                assert depth == 8 and color in (2, 6), (depth, color)
                self.channels = 3 if color == 2 else 4
            elif kind == b"IDAT":
                packed += body
            at += length + 12
        self.rows = self._unfiltered(zlib.decompress(packed))

    def _unfiltered(self, raw):
        stride, step = self.width * self.channels, self.channels
        rows, above = [], bytearray(stride)
        for start in range(0, len(raw), stride + 1):
            kind, row = raw[start], bytearray(raw[start + 1:start + 1 + stride])
            for i in range(stride):
                left = row[i - step] if i >= step else 0
                corner = above[i - step] if i >= step else 0
                guess = left + above[i] - corner
                nearest = min((left, above[i], corner), key=lambda each: abs(guess - each))
                row[i] = (row[i] + (0, left, above[i], (left + above[i]) // 2, nearest)[kind]) & 255
            rows.append(row)
            above = row
        return rows

    def at(self, x, y):
        return tuple(self.rows[y][x * self.channels:x * self.channels + 3])
