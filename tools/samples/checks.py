"""What every component of the samples must keep to."""

from drawing import Polygon
from layout import CELL, collisions, overhanging

# Drawings may reach a little over the body, as far as the editor keeps them.
OVERHANG = 15


def check(components):
    """Raises ValueError with all faults."""
    faults = []
    names = [name for item in components for name in (item.name, *item.aliases)]
    faults += [f"{name}: listed twice" for name in sorted(set(names)) if names.count(name) > 1]
    faults += [f"{name}: no valid name" for name in names if not _valid_name(name)]
    for item in components:
        faults += [f"{item.name}: {fault}" for fault in _faults(item)]
    if faults:
        raise ValueError("\n".join(faults))


def _valid_name(name):
    return 1 <= len(name) <= 32 and all("!" <= c <= "~" and c not in "{}" for c in name)


def _faults(item):
    places = [single.place for single in item.pins]
    for place in sorted(set(places)):
        if places.count(place) > 1:
            yield f"two pins at {place}"
    for single in item.pins:
        length = item.size[0 if single.is_upright else 1]
        if not 0 < single.offset < length:
            yield f"pin {single.place} is not on the outline"
        if len(single.numbers) != item.blocks:
            yield f"pin {single.place} has not one number for each block"
        if not single.name.isascii():
            yield f"pin {single.place} has more than 7-bit characters in its name"
    for a, b in collisions(item.pins, item.size):
        yield f"the names {a} and {b} meet"
    for single in overhanging(item.pins, item.size):
        yield f"the name {single.name} reaches over the body"
    for block in range(item.blocks):
        numbers = [single.numbers[block] for single in item.pins]
        for number in sorted(set(numbers)):
            if numbers.count(number) > 1:
                yield f"two pins with the number {number}"
    for drawn in item.drawing or ():
        yield from _drawing_faults(drawn, item.size)


def _drawing_faults(drawn, size):
    for point in drawn.points():
        if any(not -OVERHANG <= v <= CELL * s + OVERHANG for v, s in zip(point, size)):
            yield f"{drawn} is outside the body"
    if isinstance(drawn, Polygon):
        corners = drawn.corners
        if not 2 <= len(corners) <= 32:
            yield f"{drawn} has too few or too many corners"
        if any(a == b for a, b in zip(corners, corners[1:] + corners[:1])):
            yield f"{drawn} repeats a corner"
