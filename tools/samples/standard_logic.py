"""Gates, flip-flops and registers of the 74xx and 4000 families."""

from dataclasses import replace

from drawing import Line, Polygon
from layout import box
from parts import Component, pin
from shapes import and_gate, buffer_gate, frame, hysteresis, or_gate, title, xor_gate

TI = "Texas Instruments"
QUAD_2_INPUT = ("1/4/9/12", "2/5/10/13", "3/6/8/11")
HEX = ("1/3/5/9/11/13", "2/4/6/8/10/12")


def gate(number, size, drawing, terminals, output_style="", revision="", **details):
    """A gate whose terminals are the numbers of its inputs, then of its output.

    The names are there for net lists; the shape says enough, so schematics do not show them.
    """
    *inputs, output = terminals
    middle = size[1] // 2
    rows = {1: (middle,), 2: (1, size[1] - 1), 3: (1, middle, size[1] - 1)}[len(inputs)]
    pins = [
        pin(f"L{row}", numbers, f"?{name}") for row, numbers, name in zip(rows, inputs, "ABC")
    ]
    pins.append(pin(f"R{middle}", output, "?Y", output_style))
    return Component(
        name=number,
        size=size,
        pins=tuple(pins),
        drawing=tuple(drawing),
        maker=TI,
        part=f"SN74LS{number[2:]}{revision}N",
        aliases=(f"74LS{number[2:]}", f"74HC{number[2:]}"),
        **details,
    )


def gates():
    quad = {"package": "DIP14", "terminals": QUAD_2_INPUT}
    return [
        gate("7400", (4, 4), and_gate(), **quad, output_style="N", note="Quad 2-input NAND gate"),
        gate(
            "7402",
            (5, 4),
            or_gate(),
            ("2/5/8/11", "3/6/9/12", "1/4/10/13"),
            "N",
            package="DIP14",
            note="Quad 2-input NOR gate. Mind the pins: the output comes first.",
        ),
        gate("7404", (3, 4), buffer_gate(), HEX, "N", package="DIP14", note="Hex inverter"),
        gate("7408", (4, 4), and_gate(), **quad, note="Quad 2-input AND gate"),
        gate(
            "7410",
            (4, 4),
            and_gate(),
            ("1/3/9", "2/4/10", "13/5/11", "12/6/8"),
            "N",
            package="DIP14",
            note="Triple 3-input NAND gate",
        ),
        gate(
            "7414",
            (3, 4),
            [*buffer_gate(), *hysteresis(5, 23)],
            HEX,
            "N",
            package="DIP14",
            note="Hex inverter with Schmitt-trigger inputs",
        ),
        gate("7432", (5, 4), or_gate(), **quad, note="Quad 2-input OR gate"),
        gate(
            "7486",
            (6, 4),
            xor_gate(),
            **quad,
            revision="A",
            note="Quad 2-input exclusive-OR gate",
        ),
        tri_state_buffer(),
        *supplies(),
    ]


def tri_state_buffer():
    pins = (
        pin("L2", "2/5/9/12", "?A"),
        pin("T1", "1/4/10/13", "?{OE}", "N"),
        pin("R2", "3/6/8/11", "?Y"),
    )
    return Component(
        name="74125",
        size=(3, 4),
        pins=pins,
        drawing=(*buffer_gate(), Line((10, 0), (10, 8))),
        maker=TI,
        part="SN74LS125AN",
        package="DIP14",
        note="Quad bus buffer with 3-state outputs; each output has its own enable.",
        aliases=("74LS125", "74HC125"),
    )


def supplies():
    """The supply pins that all blocks of a package share."""
    small = ("7400", "7402", "7404", "7408", "7410", "7414", "7432", "7486", "74125", "7474")
    large = ("74112", "74139")
    return [
        supply(small, "14", "7", "DIP14"),
        supply(large, "16", "8", "DIP16"),
    ]


def supply(numbers, vcc, gnd, package):
    first, *others = numbers
    return Component(
        name=f"{first}-SUPPLY",
        size=(4, 6),
        pins=(pin("T2", vcc, "VCC"), pin("B2", gnd, "GND")),
        type="SHB",
        drawing=tuple(frame(4, 6, style=1)),
        maker=TI,
        package=package,
        note="Supply pins shared by all blocks of the package.\r\nPlace it once for each package.",
        aliases=tuple(f"{number}-SUPPLY" for number in others),
    )


def flip_flops():
    return [
        box(
            "7474",
            left="2/12 D\n.\n3/11 CLK C",
            right="5/9 Q\n.\n6/8 {Q}",
            top="4/10 {PRE} N",
            bottom="1/13 {CLR} N",
            width=6,
            part="SN74LS74AN",
            package="DIP14",
            note="Dual D flip-flop with preset and clear",
            aliases=("74LS74", "74HC74"),
            maker=TI,
        ),
        box(
            "74112",
            left="3/11 J\n1/13 CLK NC\n2/12 K",
            right="5/9 Q\n.\n6/7 {Q}",
            top="4/10 {PRE} N",
            bottom="15/14 {CLR} N",
            width=6,
            part="SN74LS112AN",
            package="DIP16",
            note="Dual JK flip-flop, triggered by the falling edge",
            aliases=("74LS112", "74HC112"),
            maker=TI,
        ),
    ]


def functions():
    """Larger functions: one block with its supply, or blocks whose supply stands apart."""
    parts = [
        box(
            "74138",
            left="1 A\n2 B\n3 C\n.\n6 G1\n4 {G2A} N\n5 {G2B} N",
            right="\n".join(
                f"{number} {{Y{index}}} N"
                for index, number in enumerate((15, 14, 13, 12, 11, 10, 9, 7))
            ),
            top="16 VCC",
            bottom="8 GND",
            part="SN74LS138N",
            package="DIP16",
            note="3-to-8 line decoder",
            aliases=("74LS138", "74HC138"),
        ),
        box(
            "74139",
            left="2/14 A\n3/13 B\n.\n1/15 {G} N",
            right="4/12 {Y0} N\n5/11 {Y1} N\n6/10 {Y2} N\n7/9 {Y3} N",
            part="SN74LS139AN",
            package="DIP16",
            note="Dual 2-to-4 line decoder",
            aliases=("74LS139", "74HC139"),
        ),
        box(
            "74163",
            left="3 A\n4 B\n5 C\n6 D\n.\n7 ENP\n10 ENT\n9 {LOAD} N\n1 {CLR} N\n2 CLK C",
            right="14 QA\n13 QB\n12 QC\n11 QD\n.\n15 RCO",
            top="16 VCC",
            bottom="8 GND",
            part="SN74LS163AN",
            package="DIP16",
            note="Synchronous 4-bit counter with synchronous clear",
            aliases=("74LS163", "74HC163"),
        ),
        box(
            "74245",
            left="\n".join(f"{number} A{number - 1}" for number in range(2, 10))
            + "\n.\n1 DIR\n19 {OE} N",
            right="\n".join(f"{19 - index} B{index}" for index in range(1, 9)),
            top="20 VCC",
            bottom="10 GND",
            part="SN74LS245N",
            package="DIP20",
            note="Octal bus transceiver, 3-state.\r\nDIR high: A to B, low: B to A.",
            aliases=("74LS245", "74HC245"),
        ),
        box(
            "74574",
            left="\n".join(f"{number} {number - 1}D" for number in range(2, 10))
            + "\n.\n11 CLK C\n1 {OE} N",
            right="\n".join(f"{20 - index} {index}Q" for index in range(1, 9)),
            top="20 VCC",
            bottom="10 GND",
            part="SN74HC574N",
            package="DIP20",
            note="Octal D flip-flop, 3-state",
            aliases=("74HC574",),
        ),
    ]
    return [replace(part, maker=TI) for part in parts] + [shift_register(), decade_counter()]


def shift_register():
    """Drawn as the standard for logic symbols has it: a common control block above the stages."""
    outputs = (15, 1, 2, 3, 4, 5, 6, 7)
    part = box(
        "74595",
        left="11 SRCLK C\n10 {SRCLR} N\n12 RCLK C\n13 {OE} N\n.\n14 SER",
        right=".\n.\n.\n.\n.\n"
        + "\n".join(f"{number} Q{name}" for number, name in zip(outputs, "ABCDEFGH"))
        + "\n9 QH'",
        width=8,
        top="16 VCC",
        bottom="8 GND",
        maker=TI,
        part="SN74HC595N",
        package="DIP16",
        note="8-bit shift register with output latches",
        aliases=("74HC595",),
    )
    width, height = 10 * part.size[0], 10 * part.size[1]
    first = 10 * next(item.offset for item in part.pins if item.name == "QA")
    neck = first - 5
    outline = Polygon(
        (
            (0, 0),
            (width, 0),
            (width, neck - 6),
            (width - 6, neck - 6),
            (width - 6, neck),
            (width, neck),
            (width, height),
            (0, height),
            (0, neck),
            (6, neck),
            (6, neck - 6),
            (0, neck - 6),
        )
    )
    return replace(part, drawing=(outline, title(58, neck - 22, "SRG8")))


def decade_counter():
    outputs = (3, 2, 4, 7, 10, 1, 5, 6, 9, 11)
    return box(
        "4017",
        left="14 CLK C\n13 {CE} N\n.\n15 RST",
        right="\n".join(f"{number} Q{index}" for index, number in enumerate(outputs))
        + "\n.\n12 CO",
        top="16 VDD",
        bottom="8 VSS",
        maker=TI,
        part="CD4017BE",
        package="DIP16",
        note="Decade counter with ten decoded outputs",
        aliases=("CD4017B", "HEF4017B"),
    )
