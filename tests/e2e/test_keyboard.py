"""The whole program by keyboard alone."""

import pytest

from driver.waiting import wait_for, wait_until

CONTROLS = ("push button", "check box", "radio button", "text", "combo box", "spin button", "list")


@pytest.fixture
def watchers():
    return [every_control_has_a_name]


def every_control_has_a_name(mivo, dialog):
    """For people who hear the dialog; the toolkit's own dialogs are the toolkit's."""
    if dialog.control.name not in mivo.texts.everything():
        return
    controls = [each for each in dialog.control.walk(skip=CONTROLS) if each.role in CONTROLS and each.has("showing")]
    assert controls, "a dialog has a button at least"
    assert [each for each in controls if not each.label] == [], f"without a name in {dialog.control.name!r}"


def test_everything_by_keyboard(start, sample, folder, desktop):
    path = sample("standard.ZLB")
    pointer = desktop.pointer()
    mivo = start()
    open_library(mivo, path)
    choose_component(mivo, "MOTOR")
    open_component_dialogs(mivo)
    open_element_dialogs(mivo)
    open_other_dialogs(mivo)
    change_a_value(mivo)
    mivo.press("Ctrl+s")
    wait_until(lambda: "PKG:Can%20with%20shaft" in path.read_text(), "the change to be saved")
    mivo.menu_by_keys("File", "Exit")
    mivo.wait_end()
    assert desktop.pointer() == pointer


def open_library(mivo, path):
    mivo.menu_by_keys("File", "Open...")
    mivo.file_dialog().press("Esc")
    mivo.press("Ctrl+o")
    mivo.file_dialog().enter_file(path)
    mivo.wait_title(f"Mivo - {path}")


def choose_component(mivo, name):
    index = mivo.names.index(name)
    mivo.press("F6", *["Down"] * index)
    wait_for(lambda: mivo.selected_name, name, "the selected name")
    mivo.press("F6", "F6")  # by the note box back to the drawing


def open_component_dialogs(mivo):
    for item, title in (
        ("New component...", "Property - component"),
        ("Component property...", "Property - component"),
        ("Add alias...", "Add alias"),
        ("Library property...", "Property - library"),
    ):
        mivo.menu_by_keys("Component", item)
        mivo.dialog(title).press("Esc")
    mivo.menu_by_keys("Component", "Sort by name")
    mivo.message("You can't undo this command.\nContinue?").press("Esc")


def open_element_dialogs(mivo):
    """Goes through pins and drawing objects with Tab."""
    select_next(mivo)
    mivo.menu_by_keys("Edit", "Property...")
    dialog = mivo.dialog("Pin - property")
    mivo.type("A/B")  # without a name there is nothing to hide
    dialog.tab_to("Show/Hide")
    mivo.press("Space")
    mivo.dialog("Show/Hide name individually").press("Esc")
    dialog.press("Esc")

    select_next(mivo, 2)
    mivo.menu_by_keys("Edit", "Property...")
    mivo.dialog("Property - Line").press("Esc")
    select_next(mivo, 2)
    mivo.menu_by_keys("Edit", "Property...")
    mivo.dialog("Property - pattern").press("Esc")

    select_next(mivo)
    mivo.menu_by_keys("Edit", "Property...")
    dialog = mivo.dialog("Property -text")
    mivo.press(f"Alt+{mivo.texts.mnemonics('Font...')[0]}")
    mivo.toolkit_dialog().press("Esc")
    dialog.press("Esc")


def select_next(mivo, count=1):
    mivo.press(*["Tab"] * count)
    wait_until(lambda: mivo.is_enabled("Edit", "Property..."), "an element to be selected")


def open_other_dialogs(mivo):
    mivo.menu_by_keys("Tool", "Create BIT-PATTERN")
    mivo.message("It CREATES BIT-PATTERN and OVERWRITES EXISTING").press("Esc")
    mivo.menu_by_keys("View", "Pin property")
    mivo.dialog("Pin property").press("Esc")
    mivo.menu_by_keys("Help", "Safety copies...")
    mivo.any_message().press("Esc")
    mivo.menu_by_keys("Help", "About Mivo...")
    about = mivo.dialog("About Mivo")
    assert about.control.find(name=f"{mivo.texts.first('Mivo Version ')}0.84.00")
    assert about.control.find(role="graphic"), "the program's icon"
    about.press("Enter")
    mivo.menu_by_keys("File", "Save as...")
    mivo.file_dialog().press("Esc")


def change_a_value(mivo):
    mivo.menu_by_keys("Component", "Component property...")
    dialog = mivo.dialog("Property - component")
    dialog.tab_to("X")
    mivo.type("300")
    mivo.press("Enter")
    mivo.message("Size must be 1~255.").press("Enter")
    assert dialog.field("X", "text").has("focused")
    mivo.type("4")
    dialog.tab_to("Package")
    mivo.type("Can with shaft")
    dialog.press("Enter")
