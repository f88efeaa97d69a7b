"""Components with their pins, and the library that lists them."""

import re
from dataclasses import dataclass

from bitmap import Bitmap
from records import RecordWriter

VERSION = 82
WHOLE_NAME_SHOWN = 0xFFFFFFFF
# Pin styles in the order of a record: Z square, S short, N negation bubble, C clock, m hidden number.
STYLES = "ZSNCm"


@dataclass(frozen=True)
class Pin:
    """`place` is a side (L, T, R or B) and the cells from the side's top or left end."""

    place: str
    numbers: tuple  # one for each block
    name: str = ""  # "\" in front of every overlined character
    style: str = ""
    mask: int = WHOLE_NAME_SHOWN

    @property
    def side(self):
        return self.place[0]

    @property
    def offset(self):
        return int(self.place[1:])

    @property
    def is_upright(self):
        """Whether the line of the pin, and with it the name, runs up and down."""
        return self.side in "TB"

    @property
    def shows_name(self):
        parts = self.name.split("/")
        return any(part and self.mask >> index & 1 for index, part in enumerate(parts))

    def write(self, writer):
        writer.field("+PIN")
        writer.text("N", self.name)
        writer.mask("DF", self.mask)
        writer.text("L", self.place)
        writer.text("T", "".join(style for style in STYLES if style in self.style))
        for number in self.numbers:
            writer.text("M", number)
        writer.line("-PIN")


def pin(place, numbers, name="", style=""):
    """A pin from the short forms in which parts are listed.

    `numbers` has one number for each block, divided by "/". In `name`, braces stand for the bar
    over what they hold, and a "?" in front of a part hides that part: "PB2/?{SS}".
    """
    mask = WHOLE_NAME_SHOWN
    parts = name.split("/")
    for index, part in enumerate(parts):
        if part.startswith("?"):
            mask &= ~(1 << index)
    plain = "/".join(part.removeprefix("?") for part in parts)
    barred = re.sub(r"\{(.*?)\}", lambda match: overlined(match[1]), plain)
    return Pin(place, tuple(numbers.split("/")), barred, style, mask)


def overlined(text):
    return "".join("\\" + character for character in text)


@dataclass(frozen=True)
class Component:
    name: str
    size: tuple  # grid cells
    pins: tuple
    prefix: str = "U"
    type: str = "GEN"
    fixed_block: int = 0  # counted from 0
    drawing: tuple | None = None
    bitmap: Bitmap | None = None
    note: str = ""
    maker: str = ""
    part: str = ""  # the maker's number
    package: str = ""
    aliases: tuple = ()

    @property
    def blocks(self):
        return len(self.pins[0].numbers)

    def write(self, writer):
        if self.drawing is not None:
            self._write_pattern(writer)
        writer.field("+COMP")
        writer.text("N", self.name)
        writer.end_line()
        writer.numbers(X=self.size[0], Y=self.size[1], B=self.blocks)
        writer.end_line()
        writer.text("TYPE", self.type)
        writer.number("FB", self.fixed_block)
        writer.end_line()
        writer.text("R", self.prefix)
        writer.end_line()
        if self.drawing is not None:
            writer.text("P", self.name)
            writer.end_line()
        for item in self.pins:
            item.write(writer)
        writer.text("NOTE", self.note)
        writer.text("MFR", self.maker)
        writer.text("MFRPN", self.part)
        writer.text("PKG", self.package)
        writer.line("-COMP")

    def _write_pattern(self, writer):
        writer.field("+PTN")
        writer.text("N", self.name)
        writer.point((10 * self.size[0] + 1, 10 * self.size[1] + 1))
        writer.end_line()
        if self.bitmap:
            self.bitmap.write(writer)
        for item in self.drawing:
            item.write(writer)
        writer.line("-PTN")


def library(description, components):
    """The text of a library file, each component followed by its aliases."""
    writer = RecordWriter()
    writer.line("+TARSL_LIB_V.1.0")
    writer.number("VER", VERSION)
    writer.end_line()
    writer.text("PROP", description)
    writer.end_line()
    for component in components:
        component.write(writer)
        for alias in component.aliases:
            writer.field("+ALIAS")
            writer.text("A", alias)
            writer.text("N", component.name)
            writer.line("-ALIAS")
    writer.line("-TARSL_LIB_V.1.0")
    return writer.content()
