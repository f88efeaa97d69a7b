"""Symbols: drawings that several parts share, each with the size of its body in cells."""

from drawing import (
    FILLED,
    Arc,
    Curve,
    Line,
    Polygon,
    Text,
    circle,
    moved,
    polyline,
    rectangle,
)

# Gates: outputs in the middle of the right side, inputs on the left at the rows 1 and 3.


def and_gate():
    return [
        *polyline((20, 0), (0, 0), (0, 40), (20, 40)),
        Arc((20, 20), 20, 270, 90),
    ]


def or_gate(inputs=(10, 30)):
    """5 by 4 cells; the back is hollow, so the inputs reach into the body."""
    back = {10: 6, 20: 8, 30: 6}
    return [
        Curve((0, 0), (10, 12), (10, 28), (0, 40)),
        Curve((0, 0), (22, 0), (40, 4), (50, 20)),
        Curve((0, 40), (22, 40), (40, 36), (50, 20)),
        *(Line((0, y), (back[y], y)) for y in inputs),
    ]


def xor_gate():
    """6 by 4 cells."""
    body = or_gate(inputs=())
    return [
        Curve((2, 0), (12, 12), (12, 28), (2, 40)),
        Line((0, 10), (8, 10)),
        Line((0, 30), (8, 30)),
        *moved(body, 9, 0),
        Line((59, 20), (60, 20)),
    ]


def buffer_gate():
    """3 by 4 cells, one input in the middle."""
    return [Polygon(((0, 2), (30, 20), (0, 38)))]


def hysteresis(x, y):
    """The mark of a Schmitt trigger, 12 units wide, around its lower left corner."""
    return [
        *polyline((x, y), (x + 7, y), (x + 7, y - 7), (x + 11, y - 7)),
        *polyline((x + 4, y), (x + 4, y - 7), (x + 7, y - 7)),
    ]


def amplifier(supplies=True):
    """6 by 6 cells: inputs at the rows 2 and 4, supplies above and below the middle."""
    triangle = Polygon(((0, 0), (60, 30), (0, 60)))
    leads = [Line((30, 0), (30, 15)), Line((30, 45), (30, 60))] if supplies else []
    return [triangle, *leads]


def open_collector(x, y):
    """The mark of an output that only pulls down, around its centre."""
    diamond = Polygon(((x - 4, y), (x, y - 4), (x + 4, y), (x, y + 4)))
    return [diamond, Line((x - 4, y + 6), (x + 4, y + 6))]


# Two-terminal parts lie across 4 by 2 cells, with a terminal in the middle of either end.


def leads(left, right, y=10, width=40):
    return [Line((0, y), (left, y)), Line((right, y), (width, y))]


def resistor(y=10):
    return [*leads(6, 34, y), rectangle(6, y - 5, 34, y + 5)]


def diode(y=10):
    """The triangle and the leads; the bar is what tells diodes apart."""
    return [*leads(14, 26, y), Polygon(((14, y - 6), (26, y), (14, y + 6)), fill=FILLED)]


def bar(y=10):
    return [Line((26, y - 6), (26, y + 6), width=2)]


def light_arrow(x, y, dx, dy):
    """An arrow of light from (x, y); dx and dy are 1 or -1."""
    tip = (x + 8 * dx, y + 8 * dy)
    head = Polygon((tip, (tip[0] - 4 * dx, tip[1] - dy), (tip[0] - dx, tip[1] - 4 * dy)), fill=FILLED)
    return [Line((x, y), (x + 6 * dx, y + 6 * dy)), head]


# Transistors stand on 4 by 4 cells: control on the left, the other two above and below column 3.


def bipolar(npn=True):
    arrow = ((27, 32), (19, 31), (22, 26)) if npn else ((16, 14), (24, 13), (21, 8))
    return [
        circle(21, 20, 17),
        Line((0, 20), (13, 20)),
        Line((13, 10), (13, 30), width=2),
        *polyline((13, 16), (30, 6), (30, 0)),
        *polyline((13, 24), (30, 34), (30, 40)),
        Polygon(arrow, fill=FILLED),
    ]


def mosfet(n_channel=True):
    """5 by 4 cells, with the diode of a power transistor beside it.

    The drain of an n-channel part and the source of a p-channel part are above.
    """
    arrow = ((17, 20), (24, 17), (24, 23)) if n_channel else ((28, 20), (21, 17), (21, 23))
    to_source = Line((30, 20), (30, 31)) if n_channel else Line((30, 9), (30, 20))
    return [
        Line((0, 20), (11, 20)),
        Line((11, 9), (11, 31)),
        *(Line((15, y - 3), (15, y + 3), width=2) for y in (9, 20, 31)),
        *polyline((15, 9), (30, 9), (30, 0)),
        *polyline((15, 31), (30, 31), (30, 40)),
        Line((15, 20), (30, 20)),
        to_source,
        Polygon(arrow, fill=FILLED),
        *polyline((30, 9), (42, 9), (42, 31), (30, 31)),
        Polygon(((38, 24), (42, 16), (46, 24)), fill=FILLED),
        Line((38, 16), (46, 16)),
    ]


# Parts of a box.


def frame(width, height, style=0):
    """The outline of a body given in cells, for parts that draw more inside it."""
    return [rectangle(0, 0, 10 * width, 10 * height, style=style)]


def title(x, y, text, size=12, flags="B"):
    return Text((x, y), text, across="center", up="center", font="Arial", size=size, flags=flags)
