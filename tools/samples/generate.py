#!/usr/bin/env python3
"""Writes the sample files.

    generate.py FOLDER           writes them into FOLDER
    generate.py --check FOLDER   changes nothing; fails when a file there differs
"""

import sys
from pathlib import Path

sys.dont_write_bytecode = True

import connectors  # noqa: E402
import microcontrollers  # noqa: E402
import old_library  # noqa: E402
import schematic  # noqa: E402
import standard_analog  # noqa: E402
import standard_diodes  # noqa: E402
import standard_logic  # noqa: E402
import standard_mechanics  # noqa: E402
import standard_passive  # noqa: E402
import standard_transistors  # noqa: E402
import supply  # noqa: E402
from checks import check  # noqa: E402
from parts import library  # noqa: E402


def standard():
    return [
        *standard_analog.amplifiers(),
        *standard_analog.comparators(),
        *standard_analog.functions(),
        *standard_logic.gates(),
        *standard_logic.flip_flops(),
        *standard_logic.functions(),
        *standard_passive.passives(),
        *standard_diodes.diodes(),
        standard_diodes.display(),
        *standard_transistors.transistors(),
        standard_passive.transformer(),
        *standard_mechanics.relays(),
        *standard_mechanics.switches(),
    ]


def files():
    """The bytes of each file by its name."""
    libraries = {
        "standard.ZLB": (
            "Standard parts: amplifiers, 74xx logic, transistors, diodes, passive parts",
            standard(),
        ),
        "microcontrollers.ZLB": (
            "Micro-controllers, memories and their companions",
            microcontrollers.components(),
        ),
        "connectors-and-supply.ZLB": (
            "Connectors, supply symbols, sources and regulators",
            [*supply.components(), *connectors.components()],
        ),
    }
    result = {}
    for name, (description, components) in libraries.items():
        check(components)
        result[name] = library(description, components).encode("utf-8")
    known = {item.name: item for item in [*standard(), *supply.components()]}
    result["flasher.ZSC"] = schematic.content(known).encode("utf-8")
    result["workshop-1998.ZLB"] = old_library.content().encode("windows-1252")
    return result


def main(arguments):
    checking = arguments[:1] == ["--check"]
    if len(arguments) != (2 if checking else 1):
        print(__doc__.strip(), file=sys.stderr)
        return 2
    folder = Path(arguments[-1])
    different = []
    for name, content in files().items():
        path = folder / name
        if not checking:
            path.write_bytes(content)
        elif not path.is_file() or path.read_bytes() != content:
            different.append(name)
    for name in different:
        print(f"{folder / name} is not what the generator writes", file=sys.stderr)
    return 1 if different else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
