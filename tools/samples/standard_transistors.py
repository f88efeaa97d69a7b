"""Transistors."""

from drawing import DOTTED, FILLED, Line, Polygon, polyline, rectangle
from parts import Component, pin
from shapes import bipolar, mosfet


def transistor(name, left, above, below, drawing, size=(4, 4), **details):
    """Each terminal is its number and name."""
    pins = tuple(
        pin(place, terminal.split()[0], "?" + terminal.split()[1], "S")
        for place, terminal in (("L2", left), ("T3", above), ("B3", below))
    )
    return Component(
        name=name, size=size, pins=pins, prefix="Q", drawing=tuple(drawing), **details
    )


def transistors():
    power = {"size": (5, 4), "package": "TO-220", "maker": "Vishay"}
    small = {"size": (5, 4), "package": "TO-92", "maker": "onsemi"}
    return [
        transistor(
            "2N3904",
            "2 B",
            "3 C",
            "1 E",
            bipolar(),
            maker="onsemi",
            part="2N3904",
            package="TO-92",
            note="NPN transistor, 40 V, 200 mA",
        ),
        transistor(
            "2N3906",
            "2 B",
            "1 E",
            "3 C",
            bipolar(npn=False),
            maker="onsemi",
            part="2N3906",
            package="TO-92",
            note="PNP transistor, 40 V, 200 mA",
        ),
        transistor(
            "BC547",
            "2 B",
            "1 C",
            "3 E",
            bipolar(),
            maker="onsemi",
            part="BC547B",
            package="TO-92",
            note="NPN transistor, 45 V, 100 mA",
            aliases=("BC546", "BC548"),
        ),
        transistor(
            "BC557",
            "2 B",
            "3 E",
            "1 C",
            bipolar(npn=False),
            maker="onsemi",
            part="BC557B",
            package="TO-92",
            note="PNP transistor, 45 V, 100 mA",
            aliases=("BC556", "BC558"),
        ),
        transistor(
            "IRF540",
            "1 G",
            "2 D",
            "3 S",
            mosfet(),
            part="IRF540",
            note="N-channel power MOSFET, 100 V, 28 A",
            **power,
        ),
        transistor(
            "IRF9540",
            "1 G",
            "3 S",
            "2 D",
            mosfet(n_channel=False),
            part="IRF9540",
            note="P-channel power MOSFET, 100 V, 19 A",
            **power,
        ),
        transistor(
            "2N7000",
            "2 G",
            "3 D",
            "1 S",
            mosfet(),
            part="2N7000",
            note="N-channel MOSFET, 60 V, 200 mA",
            **small,
        ),
        optocoupler(),
    ]


def optocoupler():
    return Component(
        name="PC817",
        size=(8, 4),
        pins=(
            pin("L1", "1", "?A"),
            pin("L3", "2", "?K"),
            pin("R1", "4", "?C"),
            pin("R3", "3", "?E"),
        ),
        drawing=(
            rectangle(0, 0, 80, 40),
            *polyline((0, 10), (20, 10), (20, 30), (0, 30)),
            Polygon(((15, 16), (25, 16), (20, 24)), fill=FILLED),
            Line((15, 24), (25, 24), width=2),
            *(
                item
                for y in (17, 23)
                for item in (
                    Line((31, y), (39, y)),
                    Polygon(((42, y), (37, y - 2), (37, y + 2)), fill=FILLED),
                )
            ),
            Line((52, 12), (52, 28), width=2),
            *polyline((52, 17), (62, 10), (80, 10)),
            *polyline((52, 23), (62, 30), (80, 30)),
            Polygon(((60, 29), (57, 23), (54, 28)), fill=FILLED),
            Line((46, 3), (46, 37), style=DOTTED),
        ),
        maker="Sharp",
        part="PC817",
        package="DIP4",
        note="Optocoupler, insulation 5 kV",
    )
