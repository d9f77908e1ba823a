"""Reads compound files and the records of PowerPoint's streams, for comparing files."""
import struct

import olefile


def streams(path):
    """The streams of a compound file by name."""
    with olefile.OleFileIO(path) as file:
        return {"/".join(path): file.openstream(path).read() for path in file.listdir()}


def records(stream, start=0, end=None, path=()):
    """All atoms of a stream: the types on the way to each, and its data."""
    at = start
    end = len(stream) if end is None else end
    while at + 8 <= end:
        first, kind, length = struct.unpack_from("<HHI", stream, at)
        body = at + 8
        if first & 0xF == 0xF:
            yield from records(stream, body, body + length, path + (kind,))
        else:
            yield path + (kind,), stream[body:body + length]
        at = body + length
