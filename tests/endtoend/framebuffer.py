"""The pixels of the display that run.py made, read where the display keeps them."""

import mmap
import os
import struct
import zlib

HEADER = struct.Struct(">25I")
COLOUR_SIZE = 12  # bytes of an entry of the colour table


class Framebuffer:
    """The file in which Xvfb keeps its one screen, an X window dump."""

    def __init__(self, path):
        with open(path, "rb") as file:
            self.memory = mmap.mmap(file.fileno(), 0, access=mmap.ACCESS_READ)
        fields = HEADER.unpack_from(self.memory)
        self.width, self.height = fields[4], fields[5]
        self.line = fields[12]  # bytes
        self.start = fields[0] + fields[19] * COLOUR_SIZE
        if (fields[7], fields[11]) != (0, 32):
            raise ValueError("a display of 32 bits a pixel, the blue ones first, is needed")

    @staticmethod
    def of_display():
        return Framebuffer(os.environ["TARN_FRAMEBUFFER"])

    def pixels(self):
        """All of it as it is now."""
        return self.memory[self.start:self.start + self.line * self.height]


def png(framebuffer, pixels):
    """A picture of these pixels."""
    rows = bytearray((3 * framebuffer.width + 1) * framebuffer.height)
    line = bytearray(3 * framebuffer.width + 1)  # begins with the number of its filter, 0
    for row in range(framebuffer.height):
        start = row * framebuffer.line
        of_row = pixels[start:start + 4 * framebuffer.width]
        line[1::3], line[2::3], line[3::3] = of_row[2::4], of_row[1::4], of_row[0::4]
        rows[row * len(line):(row + 1) * len(line)] = line

    def chunk(kind, content):
        check = zlib.crc32(kind + content)
        return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", check)

    size = struct.pack(">IIBBBBB", framebuffer.width, framebuffer.height, 8, 2, 0, 0, 0)
    return (
        b"\x89PNG\r\n\x1a\n"
        + chunk(b"IHDR", size)
        + chunk(b"IDAT", zlib.compress(bytes(rows), 6))
        + chunk(b"IEND", b"")
    )
