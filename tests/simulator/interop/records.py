"""Reads compound files and the records of PowerPoint's streams, for comparing files."""
import struct

END = 0xFFFFFFFA


def streams(path):
    """The streams of a compound file by name."""
    with open(path, "rb") as file:
        data = file.read()
    size = 1 << struct.unpack_from("<H", data, 30)[0]
    tables, directory, short_table = (struct.unpack_from("<I", data, at)[0] for at in (44, 48, 60))
    following = []
    for sector in struct.unpack_from("<109I", data, 76)[:tables]:
        following += struct.unpack_from("<%dI" % (size // 4), data, (sector + 1) * size)

    def chain(sector):
        parts = []
        while sector < END:
            parts.append(data[(sector + 1) * size:(sector + 2) * size])
            sector = following[sector]
        return b"".join(parts)

    entries = chain(directory)
    short = chain(struct.unpack_from("<I", entries, 116)[0])
    table = chain(short_table)
    short_following = struct.unpack("<%dI" % (len(table) // 4), table)
    found = {}
    for at in range(0, len(entries), 128):
        if entries[at + 66] != 2:
            continue
        name = entries[at:at + struct.unpack_from("<H", entries, at + 64)[0] - 2].decode("utf-16le")
        sector, length = struct.unpack_from("<II", entries, at + 116)
        if length >= 4096:
            content = chain(sector)
        else:
            content = b""
            while sector < END:
                content += short[sector * 64:sector * 64 + 64]
                sector = short_following[sector]
        found[name] = content[:length]
    return found


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
