"""Pictures of the display."""

import struct
import zlib


class Picture:
    """A rectangle of the screen."""

    def __init__(self, width, height, data):
        self.width = width
        self.height = height
        self._data = data  # four bytes for a pixel: blue, green, red, unused

    @staticmethod
    def of(root, x, y, width, height):
        image = root.get_image(x, y, width, height, 2, 0xFFFFFFFF)  # 2: whole pixels
        return Picture(width, height, image.data)

    def __eq__(self, other):
        return (self.width, self.height, self._data) == (other.width, other.height, other._data)

    def extent(self, colour):
        """Width and height of the box around the pixels of this colour: red, green, blue. None when there are none."""
        red, green, blue = colour
        pixel = bytes((blue, green, red))
        row_size = 4 * self.width
        columns, rows = set(), set()
        place = self._data.find(pixel)
        while place >= 0:
            if place % 4 == 0:
                rows.add(place // row_size)
                columns.add(place % row_size // 4)
            place = self._data.find(pixel, place + 1)
        if not rows:
            return None
        return [max(places) - min(places) + 1 for places in (columns, rows)]

    def save(self, path):
        def chunk(kind, content):
            checksum = struct.pack(">I", zlib.crc32(kind + content))
            return struct.pack(">I", len(content)) + kind + content + checksum

        rows = bytearray()
        for y in range(self.height):
            row = self._data[4 * y * self.width : 4 * (y + 1) * self.width]
            pixels = bytearray(3 * self.width)
            pixels[0::3], pixels[1::3], pixels[2::3] = row[2::4], row[1::4], row[0::4]
            rows += b"\0" + pixels
        header = struct.pack(">IIBBBBB", self.width, self.height, 8, 2, 0, 0, 0)
        path.write_bytes(
            b"\x89PNG\r\n\x1a\n"
            + chunk(b"IHDR", header)
            + chunk(b"IDAT", zlib.compress(bytes(rows), 1))
            + chunk(b"IEND", b"")
        )
