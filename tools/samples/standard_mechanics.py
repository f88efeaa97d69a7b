"""Parts that move, shine or sound: switches, relays, lamps."""

from drawing import DOTTED, Arc, Line, Polygon, circle, polyline, rectangle
from layout import two_terminal
from parts import Component, pin
from shapes import leads, title


def contact(x):
    """A changeover contact: common below x, normally closed and open 10 to its left and right."""
    return [
        *polyline((x, 60), (x, 44), (x - 7, 22)),
        *polyline((x - 10, 0), (x - 10, 22), (x - 5, 22)),
        *polyline((x + 10, 0), (x + 10, 22), (x + 5, 22)),
    ]


def coil():
    """Around column 1, from the top to the bottom of 6 cells."""
    return [
        rectangle(1, 22, 19, 38),
        Line((5, 38), (15, 22)),
        Line((10, 0), (10, 22)),
        Line((10, 38), (10, 60)),
    ]


def relays():
    """A whole relay, and its parts for sheets on which they stand far from each other."""
    finder = {"prefix": "K", "maker": "Finder", "part": "40.52.9.024.0000"}
    changeover = (("B", "1"), ("T", "2"), ("T", "4"))

    def contact_pins(pole, common):
        columns = (common, common - 1, common + 1)
        return tuple(
            pin(f"{side}{column}", f"{pole}{digit}", style="S")
            for (side, digit), column in zip(changeover, columns)
        )

    coil_pins = (pin("T1", "A1", style="S"), pin("B1", "A2", style="S"))
    link = Line((20, 32), (76, 32), style=DOTTED)
    whole = Component(
        name="RELAY-40.52",
        size=(10, 6),
        pins=(*coil_pins, *contact_pins(1, 4), *contact_pins(2, 8)),
        drawing=(*coil(), link, *contact(40), *contact(80)),
        note="Relay with two changeover contacts, coil 24 V DC",
        **finder,
    )
    parts = [
        Component(
            name="RELAY-40.52-COIL",
            size=(2, 6),
            pins=coil_pins,
            type="FXB",
            fixed_block=0,
            drawing=tuple(coil()),
            note="Coil of the relay 40.52",
            **finder,
        )
    ]
    for pole in (1, 2):
        parts.append(
            Component(
                name=f"RELAY-40.52-CONTACT{pole}",
                size=(4, 6),
                pins=contact_pins(pole, 2),
                type="FXB",
                fixed_block=pole,
                drawing=tuple(contact(20)),
                note=f"Contact {pole} of the relay 40.52",
                **finder,
            )
        )
    return [whole, *parts]


def switches():
    ends = [circle(9, 20, 2), circle(31, 20, 2), Line((0, 20), (7, 20)), Line((33, 20), (40, 20))]
    lever = Line((11, 19), (30, 10))
    return [
        two_terminal(
            "SWITCH", "S", [*ends, lever], size=(4, 3), row=2, note="Switch, normally open"
        ),
        two_terminal(
            "BUTTON",
            "S",
            [*ends, Line((8, 14), (32, 14)), Line((20, 14), (20, 4)), Line((15, 4), (25, 4))],
            size=(4, 3),
            row=2,
            note="Push button, normally open",
        ),
        two_terminal(
            "LAMP",
            "H",
            [
                *leads(8, 32, 20),
                circle(20, 20, 12),
                Line((12, 12), (28, 28)),
                Line((12, 28), (28, 12)),
            ],
            size=(4, 4),
            row=2,
            note="Lamp",
        ),
        two_terminal(
            "MOTOR",
            "M",
            [*leads(6, 34, 20), circle(20, 20, 14, width=2), title(20, 20, "M", size=16)],
            size=(4, 4),
            row=2,
            note="Direct-current motor",
        ),
        two_terminal(
            "SPEAKER",
            "LS",
            [
                *leads(14, 26, 30),
                rectangle(14, 22, 26, 38),
                Polygon(((14, 22), (26, 22), (34, 13), (6, 13))),
                *(Arc((20, 22), radius, 60, 120, style=DOTTED) for radius in (14, 19)),
            ],
            size=(4, 5),
            row=3,
            note="Loudspeaker, 8 Ω",
        ),
    ]
