"""Bodies for parts that are known by the names of their pins.

A side is listed one pin a line, from the top or the left: number, name, style. "." leaves a place
free. A part with several blocks has its numbers divided by "/".
"""

from parts import Component, pin

CELL = 10
# Widths vary with the user's label font; this is what a wide one takes.
CHARACTER = 6
TEXT_HEIGHT = 10
NAME_GAP = 5  # from the outline to the name
APART = 10  # at least between two names that face each other
ASIDE = 5  # at least between a name and one that is written upright
MAX_SIDE = 255  # cells


def box(name, left="", right="", top="", bottom="", width=None, style="", **details):
    """A component whose body is just large enough that no names meet.

    `style` is given to all pins besides their own.
    """
    sides = {"L": _rows(left), "R": _rows(right), "T": _rows(top), "B": _rows(bottom)}
    if width is None:
        width = _width(sides)
    first = _first_row(sides, width)
    rows = max(len(sides["L"]), len(sides["R"]))
    pins = _place(sides["L"], "L", first, style) + _place(sides["R"], "R", first, style)
    for side in "TB":
        start = (width - len(sides[side]) + 1) // 2
        pins += _place(sides[side], side, start, style)
    height = first + rows
    while collisions(pins, (width, height)) or overhanging(pins, (width, height)):
        height += 1
        if height > MAX_SIDE:
            raise ValueError(f"{name}: the names do not fit into {width} cells")
    return Component(name=name, size=(width, height), pins=tuple(pins), **details)


def two_terminal(name, prefix, drawing, names=("", ""), size=(4, 2), row=1, **details):
    """A part with its terminals at the ends: short pins whose numbers nobody needs to see."""
    pins = (
        pin(f"L{row}", "1", names[0], "Sm"),
        pin(f"R{row}", "2", names[1], "Sm"),
    )
    return Component(
        name=name, size=size, pins=pins, prefix=prefix, drawing=tuple(drawing), **details
    )


def collisions(pins, size):
    """Pairs of pins whose names would run into each other on a sheet."""
    boxes = [(name_box(item, size), item) for item in pins if item.shows_name]
    return [
        (a.name, b.name)
        for index, (box_a, a) in enumerate(boxes)
        for box_b, b in boxes[:index]
        if _meet(box_a, box_b, ASIDE if a.is_upright != b.is_upright else 0)
    ]


def overhanging(pins, size):
    """Pins whose names reach over the body."""

    def reaches_over(left, top, right, bottom):
        return left < 0 or top < 0 or right > size[0] * CELL or bottom > size[1] * CELL

    return [item for item in pins if item.name and reaches_over(*name_box(item, size))]


def name_box(item, size):
    """Left, top, right, bottom of the name in component units."""
    width, height = size[0] * CELL, size[1] * CELL
    along = NAME_GAP + CHARACTER * len(item.name.replace("\\", ""))
    at = item.offset * CELL
    return {
        "L": (NAME_GAP, at - 7, along, at + 3),
        "R": (width - along, at - 7, width - NAME_GAP, at + 3),
        "T": (at - 7, NAME_GAP, at + 3, along),
        "B": (at - 7, height - along, at + 3, height - NAME_GAP),
    }[item.side]


def _meet(a, b, aside):
    return a[0] < b[2] + aside and b[0] < a[2] + aside and a[1] < b[3] and b[1] < a[3]


def _rows(text):
    return [line.split() for line in text.strip().splitlines()]


def _place(rows, side, first, style):
    return [
        pin(f"{side}{first + index}", row[0], *row[1:2], style=style + "".join(row[2:3]))
        for index, row in enumerate(rows)
        if row[0] != "."
    ]


def _name_length(row):
    plain = row[1] if len(row) > 1 else ""
    return len(plain.translate(str.maketrans("", "", "{}?")))


def _width(sides):
    """In cells; odd or even so that pins above and below stand in the middle."""
    rows = max(len(sides["L"]), len(sides["R"]))
    widest = 0
    for index in range(rows):
        facing = [sides[side][index] for side in "LR" if index < len(sides[side])]
        names = sum(CHARACTER * _name_length(row) + NAME_GAP for row in facing)
        widest = max(widest, names + APART)
    columns = max(len(sides["T"]), len(sides["B"]))
    width = max(-(-widest // CELL), columns + 1, 4)
    if columns and (width - columns) % 2 == 0:
        width += 1
    return width


def _first_row(sides, width):
    first = 1
    while True:
        rows = max(len(sides["L"]), len(sides["R"]))
        pins = _place(sides["L"], "L", first, "") + _place(sides["R"], "R", first, "")
        pins += _place(sides["T"], "T", (width - len(sides["T"]) + 1) // 2, "")
        # High enough that only names at the top can be in the way.
        if not collisions(pins, (width, 100 + rows)):
            return first
        first += 1
