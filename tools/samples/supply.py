"""Supply symbols, sources and regulators."""

from dataclasses import replace

from drawing import FILLED, Arc, Line, Polygon, Text, circle, polyline
from layout import box
from parts import Component, pin
from shapes import diode


def symbol(name, place, size, drawing, note, net=""):
    """A supply symbol: the one pin carries the name of the net, of which no part is shown."""
    return Component(
        name=name,
        size=size,
        pins=(replace(pin(place, "1", net or name, "Zm"), mask=0),),
        prefix="",
        drawing=tuple(drawing),
        note=note,
    )


def rail(name, note):
    return symbol(
        name,
        "B2",
        (4, 3),
        [
            Line((20, 30), (20, 16)),
            Line((10, 16), (30, 16), width=2),
            Text((20, 12), name, across="center", font="Arial", size=10),
        ],
        note,
    )


def arrow(name, note):
    return symbol(
        name,
        "B2",
        (4, 3),
        [
            Line((20, 30), (20, 22)),
            Polygon(((20, 14), (25, 22), (15, 22)), fill=FILLED),
            Text((20, 11), name, across="center", font="Arial", size=10),
        ],
        note,
    )


def grounds():
    stem = Line((10, 0), (10, 8))
    return [
        symbol(
            "GND",
            "T1",
            (2, 3),
            [stem, *(Line((10 - half, y), (10 + half, y)) for half, y in ((8, 8), (5, 12), (2, 16)))],
            "Ground",
        ),
        symbol(
            "AGND",
            "T1",
            (2, 3),
            [stem, Polygon(((2, 8), (18, 8), (10, 17)))],
            "Ground of the analog part",
        ),
        symbol(
            "CHASSIS",
            "T1",
            (2, 3),
            [
                stem,
                Line((2, 8), (18, 8), width=2),
                *(Line((x, 8), (x - 4, 16)) for x in (4, 10, 16)),
            ],
            "Frame ground: connection to the chassis",
            net="FG",
        ),
        symbol(
            "EARTH",
            "T1",
            (2, 3),
            [
                Line((10, 0), (10, 7)),
                circle(10, 11, 9),
                *(
                    Line((10 - half, y), (10 + half, y))
                    for half, y in ((6, 7), (4, 11), (2, 15))
                ),
            ],
            "Protective earth",
            net="PE",
        ),
    ]


def sources():
    return [
        Component(
            name="BATTERY",
            size=(2, 4),
            pins=(pin("T1", "1", "?+", "Sm"), pin("B1", "2", "?-", "Sm")),
            prefix="BT",
            drawing=(
                Line((10, 0), (10, 14)),
                Line((2, 14), (18, 14)),
                Line((6, 18), (14, 18), width=3),
                Line((2, 22), (18, 22)),
                Line((6, 26), (14, 26), width=3),
                Line((10, 26), (10, 40)),
                Text((13, 11), "+"),
            ),
            note="Battery; 1 is the positive terminal.",
        ),
        Component(
            name="AC_SOURCE",
            size=(4, 4),
            pins=(pin("T2", "1", style="Sm"), pin("B2", "2", style="Sm")),
            prefix="V",
            drawing=(
                circle(20, 20, 14),
                Line((20, 0), (20, 6)),
                Line((20, 34), (20, 40)),
                Arc((15, 20), 5, 0, 180),
                Arc((25, 20), 5, 180, 0),
            ),
            note="Alternating voltage",
        ),
    ]


def regulator(name, source, middle, output, names=("IN", "GND", "OUT"), **details):
    return box(
        name,
        left=f"{source} {names[0]}",
        right=f"{output} {names[2]}",
        bottom=f"{middle} {names[1]}",
        width=8,
        **details,
    )


def regulators():
    ti = {"maker": "Texas Instruments"}
    return [
        regulator(
            "LM7805",
            "1",
            "2",
            "3",
            part="LM7805CT",
            package="TO-220",
            note="Regulator, 5 V ±4%, 1.5 A",
            aliases=("LM7812", "LM7815"),
            **ti,
        ),
        regulator(
            "LM7905",
            "2",
            "1",
            "3",
            part="LM7905CT",
            package="TO-220",
            note="Regulator, -5 V, 1.5 A. Mind the pins: they differ from the 78xx.",
            aliases=("LM7912", "LM7915"),
            **ti,
        ),
        regulator(
            "LM317",
            "3",
            "1",
            "2",
            names=("IN", "ADJ", "OUT"),
            part="LM317T",
            package="TO-220",
            note="Adjustable regulator, 1.25 V to 37 V, 1.5 A",
            **ti,
        ),
        regulator(
            "LM1117-3.3",
            "3",
            "1",
            "2",
            part="LM1117MP-3.3",
            package="SOT-223",
            note="Low-dropout regulator, 3.3 V, 800 mA.\r\nThe tab is the output too.",
            aliases=("LM1117-5.0",),
            **ti,
        ),
        Component(
            name="TL431",
            size=(4, 3),
            pins=(pin("L2", "2", "?A", "S"), pin("T2", "1", "?REF", "S"), pin("R2", "3", "?K", "S")),
            drawing=(
                *diode(20),
                *polyline((22, 13), (26, 15), (26, 25), (30, 27)),
                Line((20, 0), (20, 17)),
            ),
            maker="onsemi",
            part="TL431CLP",
            package="TO-92",
            note="Adjustable reference, 2.5 V",
        ),
    ]


def components():
    return [
        rail("VCC", "Supply of the digital part"),
        rail("+5V", "5 V"),
        rail("+3V3", "3.3 V"),
        rail("+12V", "12 V"),
        arrow("VDD", "Supply of a CMOS part"),
        arrow("VBUS", "Supply from USB"),
        *grounds(),
        *sources(),
        *regulators(),
    ]
