"""The table of all pins beside the drawing: fifty pins are renamed by keyboard alone, both stay in step, all is undone."""

import re

from driver.drawing import LARGE
from driver.waiting import wait_for, wait_until

COUNT = 50


def pins(path, component):
    """The pins of a component as the table lists them: once around the body from the top of the left side."""
    lines = path.read_text().splitlines()
    start = lines.index(f"+COMP,N:{component}")
    end = next(i for i in range(start, len(lines)) if lines[i].endswith("-COMP"))
    found = [re.match(r"\+PIN,N:([^,]*),.*,L:([LTRB])(\d+),.*,M:([^,]*),", line) for line in lines[start:end]]
    rows = [(m[1], m[2], int(m[3]), m[4]) for m in found if m]
    return sorted(rows, key=lambda row: ("LBRT".index(row[1]), row[2] if row[1] in "LB" else -row[2]))


def test_fifty_pins_are_renamed_by_keyboard(start, sample, folder, desktop):
    path = sample("microcontrollers.ZLB")
    original = path.read_bytes()
    rows = pins(path, "STM32F103R8T6")
    assert len(rows) == 64

    mivo = start(path, settings=LARGE)
    mivo.press("F6", "Down")
    wait_for(lambda: mivo.selected_name, "STM32F103R8T6", "the selected name")
    mivo.press("F6", "F6", "Tab")
    wait_until(lambda: mivo.is_enabled("Edit", "Property..."), "the first pin to be selected")
    mivo.menu_by_keys("View", "Pin property")
    grid = mivo.dialog("Pin property")

    def cell():
        """The text of the cell that is being edited; None when there is none."""
        table = grid.control.all(role="table")[0]  # its cells come first, then the controls that edit them
        edits = [each for each in table.children[-2:] if each.role == "text" and each.name == mivo.texts.first("Name")]
        return edits[0].text if edits and edits[0].has("showing") else None

    def copied():
        return desktop.clipboard.get()

    mivo.press("F2")
    for i, (name, *_) in enumerate(rows[:COUNT]):
        wait_for(cell, name, "the name to be edited")
        mivo.type(f"P{i}")
        mivo.press("Enter")
    wait_for(cell, rows[COUNT][0], "the next name to be edited")
    mivo.press("Esc")
    wait_for(cell, None, "the edit to end")

    # The drawing has gone along: its selection is the row's pin.
    mivo.press("Ctrl+c")
    in_row = wait_until(copied, "the clipboard to hold a pin")
    assert f"N:{rows[COUNT][0]}," in in_row

    # And the other way round: the rows go along with the drawing.
    mivo.press("F6")
    wait_until(lambda: mivo.frame.has("active"), "the window to have the keyboard")
    mivo.press("Esc", "Tab", "Tab", "Ctrl+c")
    in_drawing = wait_until(lambda: copied() if copied() != in_row else None, "another pin to be selected")
    mivo.press("F6", "F6", "F6")
    wait_until(lambda: grid.control.has("active"), "the table to have the keyboard")
    mivo.press("F2")
    wait_for(cell, re.search("N:([^,]*),", in_drawing)[1], "that pin's name to be edited")
    mivo.press("Esc")

    renamed = [(f"P{i}", *row[1:]) for i, row in enumerate(rows[:COUNT])] + rows[COUNT:]
    mivo.press("Ctrl+s")
    wait_until(lambda: path.read_bytes() != original, "the library to be saved")
    assert pins(path, "STM32F103R8T6") == renamed

    mivo.press(*["Ctrl+z"] * (COUNT - 1), "F2")
    wait_for(cell, None, "undo to let go of the pin")
    assert mivo.is_enabled("Edit", "Undo")
    mivo.press("Ctrl+z")
    wait_until(lambda: not mivo.is_enabled("Edit", "Undo"), "everything to be undone")
    mivo.press("Ctrl+s")
    wait_until(lambda: path.read_bytes() == original, "the library to be as it was")
    grid.close("Close")
    mivo.quit()
