"""Resistors, capacitors, inductors and what else needs no supply."""

from drawing import DOTTED, FILLED, Arc, Line, Polygon, Text, polyline, rectangle
from layout import two_terminal
from parts import Component, pin
from shapes import leads, resistor


def passives():
    zigzag = [(6, 10), (8, 5)]
    zigzag += [(12 + 4 * index, 15 if index % 2 == 0 else 5) for index in range(6)]
    zigzag += [(34, 10)]
    pointer = Polygon(((20, 15), (17, 8), (23, 8)), fill=FILLED)
    sloped = [Line((8, 34), (32, 6)), Line((3, 34), (8, 34))]
    return [
        two_terminal("R", "R", resistor(), note="Resistor"),
        two_terminal("R_US", "R", [*leads(6, 34), *polyline(*zigzag)], note="Resistor, zigzag"),
        Component(
            name="R_POT",
            size=(4, 3),
            pins=(pin("L2", "1", style="S"), pin("T2", "2", style="S"), pin("R2", "3", style="S")),
            prefix="RV",
            drawing=(*resistor(20), Line((20, 0), (20, 8)), pointer),
            note="Potentiometer; 2 is the wiper.",
        ),
        two_terminal(
            "R_NTC",
            "RT",
            [*resistor(20), *sloped, Text((38, 38), "-t°", across="right", font="Arial", size=9)],
            size=(4, 4),
            row=2,
            note="Thermistor, 10 kΩ at 25 °C: the resistance falls as the temperature rises.",
        ),
        two_terminal(
            "C",
            "C",
            [*leads(17, 23), *(Line((x, 2), (x, 18), width=2) for x in (17, 23))],
            note="Capacitor",
        ),
        two_terminal(
            "C_POL",
            "C",
            [
                *leads(17, 22),
                Line((17, 2), (17, 18), width=2),
                Arc((36, 10), 14, 145, 215, width=2),
                *(Line((8, 4), (14, 4)), Line((11, 1), (11, 7))),
            ],
            note="Electrolytic capacitor; 1 is the positive terminal.",
        ),
        two_terminal(
            "L",
            "L",
            [Arc((x, 10), 5, 0, 180) for x in (5, 15, 25, 35)],
            note="Inductor",
        ),
        two_terminal(
            "L_CORE",
            "L",
            [
                *(Arc((x, 10), 5, 0, 180) for x in (5, 15, 25, 35)),
                Line((2, 2), (38, 2), width=2, style=DOTTED),
            ],
            note="Inductor with a ferrite core",
        ),
        two_terminal(
            "FUSE", "F", [rectangle(6, 5, 34, 15), Line((0, 10), (40, 10))], note="Fuse"
        ),
        two_terminal(
            "CRYSTAL",
            "Y",
            [
                *leads(13, 27),
                *(Line((x, 3), (x, 17), width=2) for x in (13, 27)),
                rectangle(17, 2, 23, 18),
            ],
            note="Quartz crystal",
        ),
    ]


def transformer():
    """Windings of three turns on either side of the core."""
    turns = (15, 25, 35)
    label = {"across": "center", "vertical": True, "font": "Times New Roman", "size": 9}
    return Component(
        name="TRANSFORMER",
        size=(6, 5),
        pins=(
            pin("L1", "1", style="S"),
            pin("L4", "2", style="S"),
            pin("R1", "3", style="S"),
            pin("R4", "4", style="S"),
        ),
        prefix="T",
        drawing=(
            *(Arc((20, y), 5, 270, 90) for y in turns),
            *(Arc((40, y), 5, 90, 270) for y in turns),
            *(Line((x, 8), (x, 42)) for x in (29, 31)),
            Line((0, 10), (20, 10)),
            Line((0, 40), (20, 40)),
            Line((40, 10), (60, 10)),
            Line((40, 40), (60, 40)),
            Text((5, 25), "230 V", up="upper", flags="I", **label),
            Text((55, 25), "12 V", up="lower", flags="BI", **label),
        ),
        note="Mains transformer",
    )
