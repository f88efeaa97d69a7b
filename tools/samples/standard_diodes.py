"""Diodes and what is made of them."""

from bitmap import Bitmap
from drawing import FILLED, Line, Polygon, circle, polyline, rectangle
from layout import two_terminal
from parts import Component, pin
from shapes import bar, diode, light_arrow


def diodes():
    hidden = ("?A", "?K")
    small = {"maker": "Vishay", "package": "DO-35", "names": hidden}
    return [
        two_terminal(
            "1N4148",
            "D",
            [*diode(), *bar()],
            part="1N4148",
            note="Switching diode, 100 V",
            aliases=("1N914",),
            **small,
        ),
        two_terminal(
            "1N4007",
            "D",
            [*diode(), *bar()],
            names=hidden,
            maker="Vishay",
            part="1N4007",
            package="DO-41",
            note="Rectifier, 1000 V, 1 A",
            aliases=("1N4001", "1N4004"),
        ),
        two_terminal(
            "1N5819",
            "D",
            [
                *diode(),
                *polyline((30, 7), (30, 4), (26, 4), (26, 16), (22, 16), (22, 13)),
            ],
            names=hidden,
            maker="Vishay",
            part="1N5819",
            package="DO-41",
            note="Schottky rectifier, 40 V, 1 A",
            aliases=("1N5817", "1N5818"),
        ),
        two_terminal(
            "BZX55C5V1",
            "D",
            [*diode(), *polyline((22, 3), (26, 5), (26, 15), (30, 17))],
            part="BZX55C5V1",
            note="Zener diode, 5.1 V",
            aliases=("BZX55C3V3", "BZX55C12"),
            **small,
        ),
        led(),
        bridge(),
    ]


def led():
    """With a bit pattern, which is the same figure in pixels."""
    figure = [
        *diode(20),
        *bar(20),
        *light_arrow(21, 10, 1, -1),
        *light_arrow(27, 13, 1, -1),
    ]
    return two_terminal(
        "LED",
        "D",
        figure,
        names=("?A", "?K"),
        size=(4, 3),
        row=2,
        bitmap=Bitmap(41, 31).draw(figure),
        note="Light-emitting diode; 1 is the anode.",
    )


def bridge():
    """Four diodes on the sides of a diamond, all pointing to the right."""
    drawing = [Polygon(((30, 0), (60, 30), (30, 60), (0, 30)))]
    for x, y, slope in ((15, 15, -1), (45, 15, 1), (45, 45, -1), (15, 45, 1)):
        triangle = ((4, 4), (-1, -7), (-7, -1))
        stop = ((8, 0), (0, 8))
        drawing += [
            Polygon(tuple((x + dx, y + slope * dy) for dx, dy in triangle), fill=FILLED),
            Line(*((x + dx, y + slope * dy) for dx, dy in stop), width=2),
        ]
    return Component(
        name="BRIDGE",
        size=(6, 6),
        pins=(
            pin("R3", "1", "?+"),
            pin("L3", "2", "?-"),
            pin("T3", "3", "?~"),
            pin("B3", "4", "?~"),
        ),
        prefix="D",
        drawing=tuple(drawing),
        note="Bridge rectifier",
    )


def segments(x, y, length):
    """The seven segments of a digit; (x, y) is where the top one begins."""
    half, gap = 3, 2
    ends = (gap, gap + half, length - gap - half, length - gap)
    along = tuple(zip((*ends, *ends[2:0:-1]), (0, -half, -half, 0, half, half)))
    lying = [(x, y), (x, y + length), (x, y + 2 * length)]
    standing = [(x + dx, y + dy) for dx in (0, length) for dy in (0, length)]
    return [
        *(tuple((left + a, top + b) for a, b in along) for left, top in lying),
        *(tuple((left + b, top + a) for a, b in along) for left, top in standing),
    ]


def display():
    """All segments are lit: their outlines are drawn, and the bit pattern fills them."""
    digit, point = segments(28, 22, 24), (64, 70)
    outlines = [*(Polygon(corners) for corners in digit), circle(*point, 3)]
    lit = [*(Polygon(corners, fill=FILLED) for corners in digit), circle(*point, 3, fill=FILLED)]
    size = (8, 9)
    frame = [rectangle(0, 0, 80, 90)]
    cathodes = (pin("B3", "3", "?K"), pin("B5", "8", "?K"))
    anodes = zip("abcdefg", (7, 6, 4, 2, 1, 9, 10))
    rows = tuple(
        pin(f"L{row}", str(number), name) for row, (name, number) in enumerate(anodes, start=1)
    )
    return Component(
        name="SC56-11",
        size=size,
        pins=(*rows, pin("L8", "5", "dp"), *cathodes),
        prefix="DS",
        drawing=(*frame, *outlines),
        bitmap=Bitmap(81, 91).draw([*frame, *lit]),
        maker="Kingbright",
        part="SC56-11EWA",
        package="DIP10",
        note="Seven-segment display, common cathode, 14.2 mm",
    )
