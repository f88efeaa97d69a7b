"""Drawings as bit patterns: one pixel for each component unit."""

from drawing import FILLED, Curve, Ellipse, Line, Polygon


class Bitmap:
    """A monochrome picture; True is a drawn pixel."""

    def __init__(self, width, height):
        self.rows = [[False] * width for _ in range(height)]

    def write(self, writer):
        writer.line("+BMP")
        for row in self.rows:
            writer.line(_row_text(row))
        writer.line("-BMP")

    def draw(self, objects):
        """Lines, curves, polygons and ellipses, with the shapes filled that are."""
        for item in objects:
            if isinstance(item, (Line, Curve)):
                points = item.points()
                for start, end in zip(points, points[1:]):
                    self._line(start, end)
            elif isinstance(item, Polygon):
                for start, end in zip(item.corners, item.corners[1:] + item.corners[:1]):
                    self._line(start, end)
                if item.fill == FILLED:
                    self._fill(lambda x, y: _inside(x, y, item.corners))
            elif isinstance(item, Ellipse):
                self._ellipse(item)
            else:
                raise ValueError(f"no bit pattern for {item}")
        return self

    def _set(self, x, y):
        if 0 <= y < len(self.rows) and 0 <= x < len(self.rows[0]):
            self.rows[y][x] = True

    def _fill(self, inside):
        for y, row in enumerate(self.rows):
            for x in range(len(row)):
                row[x] = row[x] or inside(x, y)

    def _line(self, start, end):
        steps = max(abs(end[0] - start[0]), abs(end[1] - start[1]), 1)
        for step in range(steps + 1):
            # Rounded in integers, halves up, so that every machine sets the same pixels.
            x, y = (
                (2 * (a * (steps - step) + b * step) + steps) // (2 * steps)
                for a, b in zip(start, end)
            )
            self._set(x, y)

    def _ellipse(self, item):
        (left, top), (right, bottom) = item.corner1, item.corner2

        def inside(x, y):
            # Both axes doubled: the centre may lie between two pixels.
            dx, dy = 2 * x - left - right, 2 * y - top - bottom
            width, height = right - left + 1, bottom - top + 1
            return (dx * height) ** 2 + (dy * width) ** 2 <= (width * height) ** 2

        def on_outline(x, y):
            neighbours = ((x - 1, y), (x + 1, y), (x, y - 1), (x, y + 1))
            return inside(x, y) and not all(inside(*neighbour) for neighbour in neighbours)

        self._fill(inside if item.fill == FILLED else on_outline)


def _inside(x, y, corners):
    crossings = 0
    for (x1, y1), (x2, y2) in zip(corners, corners[1:] + corners[:1]):
        if (y1 > y) != (y2 > y):
            side = (x - x1) * (y2 - y1) - (y - y1) * (x2 - x1)
            crossings += (side > 0) == (y2 > y1)
    return crossings % 2 == 1


def _row_text(row):
    """Two characters for each eight pixels, one of @ to O for each four."""
    padded = row + [False] * (-len(row) % 8)
    nibbles = [padded[i : i + 4] for i in range(0, len(padded), 4)]
    return "".join(chr(ord("@") + sum(8 >> i for i in range(4) if bits[i])) for bits in nibbles)
