"""A schematic: a timer that makes a light-emitting diode flash.

Every placed part carries a library block with its own definition, so parts that are used twice are
defined twice. What stands between the blocks belongs to the schematic editor.
"""

from parts import VERSION
from records import RecordWriter

# Name of the part, its reference and where it stands.
PLACED = (
    ("NE555", "U1", (200, 100)),
    ("R", "R1", (320, 100)),
    ("R", "R2", (320, 140)),
    ("C_POL", "C1", (140, 200)),
    ("C", "C2", (180, 200)),
    ("R", "R3", (400, 100)),
    ("LED", "D1", (400, 140)),
    ("VCC", "", (240, 40)),
    ("GND", "", (240, 260)),
    ("GND", "", (400, 260)),
)
WIRES = (
    ((240, 60), (240, 100)),
    ((240, 220), (240, 260)),
    ((280, 130), (320, 130)),
    ((440, 160), (440, 260)),
)


def content(known):
    """The file's text; `known` has the parts by their names."""
    writer = RecordWriter()
    writer.line("+TARSL_DATA_V.1.0")
    writer.field("+SHEET")
    writer.numbers(W=800, H=600)
    writer.text("TITLE", "Flasher, 1 Hz")
    writer.line("-SHEET")
    for name, reference, place in PLACED:
        _component(writer, known[name], reference, place)
        if reference:
            _label(writer, reference, place)
    for start, end in WIRES:
        writer.field("+WIRE")
        writer.point(start)
        writer.point(end)
        writer.line("-WIRE")
    writer.line("-TARSL_DATA_V.1.0")
    return writer.content()


def _component(writer, part, reference, place):
    writer.line("+COMPONENT")
    writer.line("+TARSL_LIB_V.1.0")
    writer.number("VER", VERSION)
    writer.end_line()
    part.write(writer)
    writer.line("-TARSL_LIB_V.1.0")
    writer.point(place)
    writer.text("LIB", part.name)
    writer.text("N", part.name)
    writer.text("R", reference)
    writer.end_line()
    writer.line("-COMPONENT")


def _label(writer, text, place):
    writer.field("+LABEL")
    writer.point((place[0], place[1] - 10))
    writer.text("S", text)
    writer.line("-LABEL")
