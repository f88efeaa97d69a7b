"""Operational amplifiers, comparators and the like."""

from dataclasses import replace

from drawing import Line
from layout import box
from parts import Component, pin
from shapes import amplifier, frame, open_collector, title

TI = "Texas Instruments"
DUAL = {"+": "3/5", "-": "2/6", "out": "1/7", "V+": "8/8", "V-": "4/4"}


def triangle(name, numbers, marks=(), extra=(), **details):
    """An amplifier. Without supply pins among `numbers` the package has a supply block."""
    supplies = "V+" in numbers
    pins = [
        pin("L2", numbers["+"], "+"),
        pin("L4", numbers["-"], "-"),
        pin("R3", numbers["out"], "?OUT"),
    ]
    if supplies:
        pins += [pin("T3", numbers["V+"], "?V+"), pin("B3", numbers["V-"], "?V-")]
    return Component(
        name=name,
        size=(6, 6),
        pins=(*pins, *extra),
        drawing=(*amplifier(supplies), *marks),
        **details,
    )


def quad_supply(name, positive, negative, aliases=()):
    return Component(
        name=name,
        size=(4, 6),
        pins=(pin("T2", positive, "V+"), pin("B2", negative, "V-")),
        type="SHB",
        drawing=tuple(frame(4, 6, style=1)),
        maker=TI,
        package="DIP14",
        note="Supply pins shared by all four blocks.",
        aliases=aliases,
    )


def amplifiers():
    return [
        triangle(
            "LM358",
            DUAL,
            maker=TI,
            part="LM358P",
            package="DIP8",
            note="Dual operational amplifier; the LM358 works from 3 V to 32 V.\r\n"
            "Both blocks show the supply pins.",
            aliases=("LM2904", "TL072", "NE5532"),
        ),
        triangle(
            "LM741",
            {"+": "3", "-": "2", "out": "6", "V+": "7", "V-": "4"},
            marks=(Line((10, 60), (10, 55)), Line((50, 60), (50, 35))),
            extra=(pin("B1", "1", "?N1"), pin("B5", "5", "?N2")),
            maker=TI,
            part="LM741CN",
            package="DIP8",
            note="Operational amplifier, ±15 V, with offset adjustment between N1 and N2",
            aliases=("UA741",),
        ),
        triangle(
            "LM324",
            {"+": "3/5/10/12", "-": "2/6/9/13", "out": "1/7/8/14"},
            maker=TI,
            part="LM324N",
            package="DIP14",
            note="Quad operational amplifier; the supply is the block LM324-SUPPLY.",
            aliases=("LM2902", "TL074"),
        ),
        quad_supply("LM324-SUPPLY", "4", "11", ("LM2902-SUPPLY", "TL074-SUPPLY")),
    ]


def comparators():
    collector = tuple(open_collector(40, 28))
    return [
        triangle(
            "LM393",
            DUAL,
            marks=collector,
            maker=TI,
            part="LM393P",
            package="DIP8",
            note="Dual comparator with open-collector outputs",
            aliases=("LM2903",),
        ),
        triangle(
            "LM339",
            {"+": "5/7/9/11", "-": "4/6/8/10", "out": "2/1/14/13"},
            marks=collector,
            maker=TI,
            part="LM339N",
            package="DIP14",
            note="Quad comparator with open-collector outputs; the supply is LM339-SUPPLY.",
            aliases=("LM2901",),
        ),
        quad_supply("LM339-SUPPLY", "3", "12", ("LM2901-SUPPLY",)),
    ]


def functions():
    timer = box(
        "NE555",
        left="4 {RESET} N\n.\n2 TRIG\n.\n6 THR\n.\n5 CTRL",
        right="3 OUT\n.\n.\n.\n7 DIS",
        top="8 VCC",
        bottom="1 GND",
        width=8,
        maker=TI,
        part="NE555P",
        package="DIP8",
        note="Timer, 4.5 V to 16 V",
        aliases=("LM555", "SE555"),
    )
    width, height = timer.size
    timer = replace(
        timer,
        drawing=(*frame(width, height), title(56, 50, "555", size=16)),
    )
    return [
        timer,
        box(
            "ULN2003A",
            left="\n".join(f"{index} {index}B" for index in range(1, 8)),
            right="\n".join(f"{17 - index} {index}C N" for index in range(1, 8)) + "\n.\n9 COM",
            bottom="8 E",
            maker=TI,
            part="ULN2003AN",
            package="DIP16",
            note="Seven Darlington drivers with clamp diodes, 50 V, 500 mA each",
        ),
        box(
            "MAX232",
            left="1 C1+\n3 C1-\n4 C2+\n5 C2-\n.\n11 T1IN\n10 T2IN\n12 R1OUT\n9 R2OUT",
            right="2 V+\n6 V-\n.\n.\n.\n14 T1OUT N\n7 T2OUT N\n13 R1IN N\n8 R2IN N",
            top="16 VCC",
            bottom="15 GND",
            maker=TI,
            part="MAX232N",
            package="DIP16",
            note="Two RS-232 drivers and two receivers from a single 5 V supply",
        ),
    ]
