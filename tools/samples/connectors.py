"""Connectors: headers, sockets and jacks."""

from dataclasses import replace

from drawing import (
    CONTRAST,
    DOTTED,
    FILLED,
    Line,
    Polygon,
    Text,
    circle,
    polyline,
    rectangle,
)
from layout import box
from parts import Component, pin
from shapes import frame, title


def header(positions):
    """One row; a square for the first contact, dots for the others."""
    contacts = [rectangle(10, 7, 16, 13, fill=FILLED)]
    contacts += [circle(13, 10 * row, 3, fill=FILLED) for row in range(2, positions + 1)]
    return Component(
        name=f"HEADER-1x{positions}",
        size=(2, positions + 1),
        pins=tuple(pin(f"L{row}", str(row), style="S") for row in range(1, positions + 1)),
        prefix="J",
        drawing=(
            *frame(2, positions + 1),
            *contacts,
            *(Line((0, 10 * row), (10, 10 * row)) for row in range(1, positions + 1)),
        ),
        package=f"HDR1x{positions}",
        note=f"Pin header, 2.54 mm, {positions} contacts",
    )


def double_header(rows):
    pins, contacts = [], []
    for row in range(1, rows + 1):
        pins += [
            pin(f"L{row}", str(2 * row - 1), style="S"),
            pin(f"R{row}", str(2 * row), style="S"),
        ]
        y = 10 * row
        first = row == 1
        contacts += [
            rectangle(10, y - 3, 16, y + 3, fill=FILLED) if first else circle(13, y, 3, fill=FILLED),
            circle(27, y, 3, fill=FILLED),
            Line((0, y), (10, y)),
            Line((30, y), (40, y)),
        ]
    return Component(
        name=f"HEADER-2x{rows}",
        size=(4, rows + 1),
        pins=tuple(pins),
        prefix="J",
        drawing=(*frame(4, rows + 1), *contacts),
        package=f"HDR2x{rows}",
        note=f"Pin header, 2.54 mm, two rows of {rows} contacts",
    )


def sub_d():
    """The contacts in the two rows in which they lie."""
    order = (5, 9, 4, 8, 3, 7, 2, 6, 1)
    pins, contacts = [], []
    for row, number in enumerate(order, start=1):
        pins.append(pin(f"L{row}", str(number), style="S"))
        x = 14 if number < 6 else 26
        contacts += [circle(x, 10 * row, 3), Line((0, 10 * row), (x - 3, 10 * row))]
    shell = Polygon(((6, 2), (36, 14), (36, 86), (6, 98)), width=2)
    return Component(
        name="DE9",
        size=(4, 10),
        pins=tuple(pins),
        prefix="J",
        drawing=(shell, *contacts),
        package="DE9",
        note="9-contact sub-D connector",
        aliases=("DB9",),
    )


def rs232():
    return box(
        "DE9-RS232",
        left="3 TXD\n2 RXD\n7 RTS\n8 CTS\n4 DTR\n6 DSR\n1 DCD\n9 RI\n.\n5 GND",
        width=6,
        prefix="J",
        package="DE9",
        note="RS-232 port of a terminal (DTE); the names are those of the terminal.",
    )


def midi():
    """Five contacts on half a circle, the key opposite to them."""
    places = {1: (18, 36), 4: (23, 24), 2: (40, 18), 5: (57, 24), 3: (62, 36)}
    routes = {
        1: ((0, 40), (15, 37)),
        4: ((0, 20), (20, 23)),
        5: ((80, 20), (60, 23)),
        3: ((80, 40), (65, 37)),
        2: ((40, 0), (40, 15)),
    }
    pins = {1: "L4", 4: "L2", 2: "T4", 5: "R2", 3: "R4"}
    return Component(
        name="DIN5",
        size=(8, 8),
        pins=tuple(pin(place, str(number), style="S") for number, place in pins.items()),
        prefix="J",
        drawing=(
            circle(40, 40, 34, width=2),
            rectangle(35, 66, 45, 74, fill=CONTRAST),
            *(circle(x, y, 3, fill=FILLED) for x, y in places.values()),
            *(Line(start, end) for start, end in routes.values()),
        ),
        package="DIN5",
        note="5-contact DIN socket, 180 degrees, as used for MIDI",
    )


def jack():
    return Component(
        name="JACK-3.5",
        size=(5, 5),
        pins=(pin("R1", "S", style="Sm"), pin("R3", "R", style="Sm"), pin("R4", "T", style="Sm")),
        prefix="J",
        drawing=(
            rectangle(2, 6, 8, 34),
            *polyline((5, 6), (5, 3), (44, 3), (44, 10), (50, 10)),
            *polyline((50, 30), (28, 30), (24, 24), (20, 30)),
            *polyline((50, 40), (18, 40), (14, 34), (10, 40)),
        ),
        note="3.5 mm stereo jack: sleeve, ring, tip",
    )


def power_jack():
    return Component(
        name="POWER-JACK",
        size=(5, 4),
        pins=(
            pin("R1", "1", style="S"),
            pin("R2", "3", style="S"),
            pin("R3", "2", style="S"),
        ),
        prefix="J",
        drawing=(
            rectangle(3, 6, 26, 14),
            Line((26, 10), (50, 10)),
            Text((34, 8), "+", across="right"),
            Text((44, 32), "-", across="right", up="upper"),
            *polyline((50, 30), (16, 30), (12, 23), (8, 30)),
            *polyline((50, 20), (36, 20), (36, 29)),
            Polygon(((36, 29), (33, 23), (39, 23)), fill=FILLED),
        ),
        note="Power jack; 1 is the centre contact, 2 the sleeve, 3 breaks when a plug is in.",
    )


def shielded():
    """Connectors of which the shell is a contact too: drawn dashed around the others."""
    usb = box(
        "USB-B",
        left="1 VBUS\n2 D-\n3 D+\n4 GND",
        bottom="5 ?SHELL",
        width=6,
        prefix="J",
        package="USB-B",
        note="USB socket, type B",
    )
    micro = box(
        "USB-MICRO-B",
        left="1 VBUS\n2 D-\n3 D+\n4 ID\n5 GND",
        bottom="6 ?SHELL",
        width=6,
        prefix="J",
        note="USB socket, type Micro-B",
        aliases=("USB-MINI-B",),
    )
    ethernet = box(
        "RJ45",
        left="1 TX+\n2 TX-\n3 RX+\n4\n5\n6 RX-\n7\n8",
        bottom="9 ?SHELL",
        width=6,
        prefix="J",
        note="Modular jack, 8 contacts, as wired for 10/100 Mbit Ethernet",
    )
    return [with_shell(part) for part in (usb, micro, ethernet)]


def with_shell(part):
    width, height = (10 * cells for cells in part.size)
    return replace(
        part,
        drawing=(
            rectangle(0, 0, width, height, width=2, style=DOTTED),
            rectangle(width - 12, height // 2 - 12, width - 3, height // 2 + 12),
        ),
    )


def programming():
    return [
        box(
            "AVR-ISP-6",
            left="1 MISO\n3 SCK\n5 {RESET}",
            right="2 VCC\n4 MOSI\n6 GND",
            prefix="J",
            package="HDR2x3",
            note="6-contact programming header of AVR micro-controllers",
        ),
        box(
            "JTAG-20",
            left="1 VTREF\n3 {NTRST}\n5 TDI\n7 TMS\n9 TCK\n11 RTCK\n13 TDO\n15 {NRESET}\n17 DBGRQ\n"
            "19 DBGACK",
            right="2 NC\n" + "\n".join(f"{number} GND" for number in range(4, 21, 2)),
            prefix="J",
            package="HDR2x10",
            note="20-contact JTAG header of ARM micro-controllers",
        ),
    ]


def raspberry_pi():
    part = box(
        "RASPBERRY-PI",
        left="1 3V3\n3 GPIO2/SDA1\n5 GPIO3/SCL1\n7 GPIO4/GPCLK0\n9 GND\n11 GPIO17\n13 GPIO27\n"
        "15 GPIO22\n17 3V3\n19 GPIO10/MOSI\n21 GPIO9/MISO\n23 GPIO11/SCLK\n25 GND\n27 ID_SD\n"
        "29 GPIO5\n31 GPIO6\n33 GPIO13\n35 GPIO19\n37 GPIO26\n39 GND",
        right="2 5V\n4 5V\n6 GND\n8 GPIO14/TXD0\n10 GPIO15/RXD0\n12 GPIO18\n14 GND\n16 GPIO23\n"
        "18 GPIO24\n20 GND\n22 GPIO25\n24 GPIO8/{CE0}\n26 GPIO7/{CE1}\n28 ID_SC\n30 GND\n"
        "32 GPIO12\n34 GND\n36 GPIO16\n38 GPIO20\n40 GPIO21",
        width=20,
        prefix="J",
        package="HDR2x20",
        note="40-contact header of a Raspberry Pi",
    )
    width, height = part.size
    name = replace(
        title(5 * width, 5 * height, "Raspberry Pi", size=14, flags="BU"), vertical=True
    )
    return replace(part, drawing=(*frame(width, height), name))


def terminal():
    """One screw of a strip of twelve: a block each."""
    numbers = "/".join(str(number) for number in range(1, 13))
    return Component(
        name="TERMINAL-12",
        size=(2, 2),
        pins=(pin("L1", numbers),),
        prefix="X",
        drawing=(circle(10, 10, 6), Line((0, 10), (4, 10)), Line((7, 13), (13, 7), width=3)),
        note="Terminal strip, 12 screws",
    )


def test_point():
    """Its only contact needs no number."""
    return Component(
        name="TESTPOINT",
        size=(2, 2),
        pins=(pin("B1", "", style="Zm"),),
        prefix="TP",
        drawing=(circle(10, 8, 5, fill=CONTRAST), Line((10, 13), (10, 20))),
        note="Test point",
    )


def components():
    return [
        *(header(positions) for positions in (2, 3, 4, 6, 8)),
        *(double_header(rows) for rows in (3, 5)),
        sub_d(),
        rs232(),
        midi(),
        jack(),
        power_jack(),
        *shielded(),
        *programming(),
        raspberry_pi(),
        terminal(),
        test_point(),
    ]
