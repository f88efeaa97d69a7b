"""The drawing objects of a pattern.

Coordinates are component units: ten to a grid cell, y growing downward, the origin at the body's
top left corner.
"""

from dataclasses import dataclass, replace

SOLID, DOTTED = 0, 1
# What a closed shape is filled with: nothing, the colour that contrasts with its own, its own.
UNFILLED, CONTRAST, FILLED = -1, 0, 1


@dataclass(frozen=True)
class Line:
    start: tuple
    end: tuple
    width: int = 1
    style: int = SOLID

    def write(self, writer):
        writer.field("+L")
        writer.numbers(W=self.width, S=self.style, CV=0)
        writer.point(self.start)
        writer.point(self.end)
        writer.line("-L")

    def mapped(self, to):
        return replace(self, start=to(self.start), end=to(self.end))

    def points(self):
        return [self.start, self.end]


@dataclass(frozen=True)
class Curve:
    """A cubic Bézier curve."""

    start: tuple
    control1: tuple
    control2: tuple
    end: tuple
    width: int = 1
    style: int = SOLID

    def write(self, writer):
        writer.field("+L")
        writer.numbers(W=self.width, S=self.style, CV=1)
        for point in (self.start, self.end, self.control1, self.control2):
            writer.point(point)
        writer.line("-L")

    def mapped(self, to):
        return replace(
            self,
            start=to(self.start),
            control1=to(self.control1),
            control2=to(self.control2),
            end=to(self.end),
        )

    def points(self):
        """Points on the curve, near enough to each other to be joined by straight lines."""
        steps = 16
        result = []
        for step in range(steps + 1):
            t = step / steps
            weights = ((1 - t) ** 3, 3 * t * (1 - t) ** 2, 3 * t * t * (1 - t), t**3)
            corners = (self.start, self.control1, self.control2, self.end)
            result.append(
                tuple(round(sum(w * c[axis] for w, c in zip(weights, corners))) for axis in (0, 1))
            )
        return result


@dataclass(frozen=True)
class Ellipse:
    corner1: tuple
    corner2: tuple
    width: int = 1
    style: int = SOLID
    fill: int = UNFILLED

    def write(self, writer):
        writer.field("+C")
        writer.numbers(W=self.width, S=self.style, F=self.fill)
        writer.point(self.corner1)
        writer.point(self.corner2)
        writer.line("-C")

    def mapped(self, to):
        return replace(self, corner1=to(self.corner1), corner2=to(self.corner2))

    def points(self):
        return [self.corner1, self.corner2]


@dataclass(frozen=True)
class Polygon:
    corners: tuple
    width: int = 1
    style: int = SOLID
    fill: int = UNFILLED

    def write(self, writer):
        writer.field("+PG")
        writer.numbers(W=self.width, S=self.style, F=self.fill, N=len(self.corners))
        for corner in self.corners:
            writer.point(corner)
        writer.line("-PG")

    def mapped(self, to):
        return replace(self, corners=tuple(to(corner) for corner in self.corners))

    def points(self):
        return list(self.corners)


@dataclass(frozen=True)
class Arc:
    """Runs counter-clockwise from begin to end: degrees, 0 to the right, 90 up."""

    center: tuple
    radius: int
    begin: float
    end: float
    width: int = 1
    style: int = SOLID

    def write(self, writer):
        writer.field("+AR")
        writer.numbers(W=self.width, S=self.style)
        writer.point(self.center)
        writer.numbers(R=self.radius, B=round(self.begin * 16), E=round(self.end * 16))
        writer.line("-AR")

    def mapped(self, to):
        """For what keeps directions: the angles stay."""
        return replace(self, center=to(self.center))

    def points(self):
        x, y = self.center
        return [(x - self.radius, y - self.radius), (x + self.radius, y + self.radius)]


@dataclass(frozen=True)
class Text:
    """One line of text. Without a font it is in the label font that the user chose."""

    anchor: tuple
    text: str
    across: str = "left"  # where the text lies from the anchor along its direction
    up: str = "lower"
    vertical: bool = False
    font: str = ""
    size: int = 10
    flags: str = ""  # of B(old), I(talic), U(nderline), S(trikeout), in this order

    def write(self, writer):
        align = {"left": 0, "right": 1, "center": 2}[self.across]
        align += {"lower": 0, "upper": 4, "center": 8}[self.up]
        writer.field("+TX")
        writer.point(self.anchor)
        writer.numbers(A=align, D=0 if self.vertical else 1)
        writer.text("S", self.text)
        writer.text("FN", self.font)
        writer.number("FS", self.size)
        writer.text("FF", self.flags)
        writer.line("-TX")

    def mapped(self, to):
        return replace(self, anchor=to(self.anchor))

    def points(self):
        return [self.anchor]


def polyline(*corners, width=1, style=SOLID):
    """Lines from corner to corner."""
    return [Line(a, b, width, style) for a, b in zip(corners, corners[1:])]


def rectangle(left, top, right, bottom, **looks):
    return Polygon(((left, top), (right, top), (right, bottom), (left, bottom)), **looks)


def circle(x, y, radius, **looks):
    return Ellipse((x - radius, y - radius), (x + radius, y + radius), **looks)


def moved(objects, dx, dy):
    return [item.mapped(lambda point: (point[0] + dx, point[1] + dy)) for item in objects]
