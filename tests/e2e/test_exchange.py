"""Two running programs, and others, exchange pins, drawing objects, components and texts by the clipboard."""

import pytest

from driver.drawing import Drawing
from driver.waiting import wait_for, wait_until

NARROW = "[WindowPosition]\nWidth=760\nHeight=900\n"  # two windows beside each other
TARGET = """\
+TARSL_LIB_V.1.0
VER:82
PROP:
+PTN,N:TARGET,X:81,Y:81
{drawing}-PTN
+COMP,N:TARGET
X:8,Y:8,B:1
TYPE:GEN,FB:0
R:U
P:TARGET
{pins}NOTE:,MFR:,MFRPN:,PKG:,-COMP
-TARSL_LIB_V.1.0
"""
PIN_TEXT = "+MIVO_PIN_V.1.0\n{}\n-MIVO_PIN_V.1.0\n"
PIN_A = "+PIN,N:A,DF:FFFFFFFE,L:L1,T:,M:1,M:4,M:9,M:12,-PIN"
PIN_B = "+PIN,N:B,DF:FFFFFFFE,L:L3,T:,M:2,M:5,M:10,M:13,-PIN"
GATE_AT_1_1 = """\
+L,W:1,S:0,CV:0,X:21,Y:1,X:1,Y:1,-L
+L,W:1,S:0,CV:0,X:1,Y:1,X:1,Y:41,-L
+L,W:1,S:0,CV:0,X:1,Y:41,X:21,Y:41,-L
+AR,W:1,S:0,X:21,Y:21,R:20,B:4320,E:1440,-AR
"""  # what is copied starts there
PICTURE = bytes.fromhex(
    "89504e470d0a1a0a0000000d49484452000000010000000108060000001f15c4890000000d4944415478da6364f8cfc000000301"
    "0100c9fe92ef0000000049454e44ae426082"
)


@pytest.fixture
def source(start, sample):
    """A window with a gate of the samples."""
    mivo = start(sample("standard.ZLB"), settings=NARROW)
    mivo.choose("7400")
    return mivo


@pytest.fixture
def target_path(folder):
    path = folder / "target.ZLB"
    path.write_text(TARGET.format(drawing="", pins=""))
    return path


@pytest.fixture
def target(start, source, target_path):
    """A window with a component without pins and drawing."""
    return start(target_path, settings=NARROW)


def drawing_of(mivo, width, height):
    mivo.activate()
    drawing = Drawing(mivo, width, height)
    drawing.zoom_to(2)
    return drawing


def save(mivo, path):
    """Saves the changes; the text of the file."""
    mivo.activate()
    before = path.read_bytes()
    mivo.press("Ctrl+s")
    wait_until(lambda: path.read_bytes() != before, "the library to be saved")
    return path.read_text()


def records(path, name):
    """A library's lines about the component `name` and its drawing."""
    lines = path.read_text().splitlines()
    drawing = next((i for i, line in enumerate(lines) if line.startswith(f"+PTN,N:{name},")), None)
    component = lines.index(f"+COMP,N:{name}")
    end = next(i for i in range(component, len(lines)) if lines[i].endswith("-COMP"))
    return lines[component if drawing is None else drawing : end + 1]


def test_pins_are_copied_and_cut(source, target, target_path, folder, desktop):
    gate = drawing_of(source, 4, 4)
    gate.click(-6, 10)
    source.press("Ctrl+c")
    wait_for(desktop.clipboard.get, PIN_TEXT.format(PIN_A), "the clipboard")

    body = drawing_of(target, 8, 8)
    target.menu("Edit", "Paste")
    target.wait_status("Place pin")
    body.click(0, 20)
    pasted = "+PIN,N:A,DF:FFFFFFFE,L:L2,T:,M:1,-PIN\n"
    assert save(target, target_path) == TARGET.format(drawing="", pins=pasted)

    source.activate()
    gate.click(-6, 30)
    source.press("Ctrl+x")
    wait_for(desktop.clipboard.get, PIN_TEXT.format(PIN_B), "the clipboard")
    library = folder / "standard.ZLB"
    save(source, library)
    assert PIN_A in records(library, "7400")
    assert PIN_B not in records(library, "7400")

    target.activate()
    target.press("Ctrl+v")
    target.wait_status("Place pin")
    body.click(40, 0)
    pasted += "+PIN,N:B,DF:FFFFFFFE,L:T4,T:,M:2,-PIN\n"
    assert save(target, target_path) == TARGET.format(drawing="", pins=pasted)


def test_drawing_objects_are_copied_and_cut(source, target, target_path, folder):
    gate = drawing_of(source, 4, 4)
    gate.drag((-3, -3), (45, 43))
    source.press("Ctrl+c")
    body = drawing_of(target, 8, 8)
    wait_until(lambda: target.is_enabled("Edit", "Paste"), "pasting to be possible")
    target.press("Ctrl+v")
    wait_until(lambda: target.is_enabled("Edit", "Mirror"), "the objects to be pasted")
    assert save(target, target_path) == TARGET.format(drawing=GATE_AT_1_1, pins="")

    source.activate()
    source.press("Ctrl+x")
    library = folder / "standard.ZLB"
    save(source, library)
    assert records(library, "7400")[:2] == ["+PTN,N:7400,X:41,Y:41", "-PTN"]

    target.activate()
    body.click(60, 70)  # leaves the first copy where it is
    target.press("Ctrl+v")
    wait_until(lambda: target.is_enabled("Edit", "Mirror"), "the objects to be pasted")
    assert save(target, target_path) == TARGET.format(drawing=GATE_AT_1_1 * 2, pins="")


def test_components_are_copied_and_cut(source, target, target_path, folder):
    library = folder / "standard.ZLB"
    original = records(library, "7400")
    source.activate()
    source.menu("Component", "Copy component")
    target.activate()
    wait_until(lambda: target.is_enabled("Component", "Paste component"), "pasting to be possible")
    target.menu("Component", "Paste component")
    wait_for(lambda: target.names, ["7400", "TARGET"], "the names")
    assert target.selected_name == "7400"
    assert target.note == "Quad 2-input NAND gate"
    save(target, target_path)
    assert records(target_path, "7400") == original

    source.activate()
    count = len(source.names)
    source.choose("LM741")
    cut = records(library, "LM741")
    source.menu("Component", "Cut component")
    wait_for(lambda: len(source.names), count - 1, "the number of names")
    assert source.selected_name == "UA741"
    target.activate()
    target.menu("Component", "Paste component")
    wait_for(lambda: target.names, ["LM741", "7400", "TARGET"], "the names")
    save(target, target_path)
    assert records(target_path, "LM741") == cut


def test_texts_come_from_and_go_to_other_programs(target, folder, desktop):
    """A component's text is kept by a text program that knows nothing of components, and comes back from there."""
    target.activate()
    target.menu("Component", "Copy component")
    text = wait_until(desktop.clipboard.get, "the clipboard")
    assert text.startswith("+TARSL_DATA_V.1.0")
    target.menu("Component", "Cut component")
    wait_for(lambda: target.names, [], "the names")
    desktop.clipboard.put("Just words.")
    wait_until(lambda: not target.is_enabled("Component", "Paste component"), "the words to be no component")
    desktop.clipboard.put(text)
    wait_until(lambda: target.is_enabled("Component", "Paste component"), "pasting to be possible")
    target.menu("Component", "Paste component")
    wait_for(lambda: target.names, ["TARGET"], "the names")

    desktop.clipboard.put("Ω from elsewhere")
    target.menu("Component", "Component property...")
    dialog = target.dialog("Property - component")
    dialog.fill("Manufacturer", "")
    target.press("Ctrl+v")
    wait_for(lambda: dialog.text("Manufacturer"), "Ω from elsewhere", "the pasted text")
    dialog.fill("Package", "DIP14")
    target.press("Ctrl+a", "Ctrl+c")
    wait_for(desktop.clipboard.get, "DIP14", "the clipboard")
    dialog.close("Cancel")


def test_clipboards_that_hold_something_else(source, desktop):
    """Pictures, megabytes and half a record neither harm the program nor change the library."""
    gate = drawing_of(source, 4, 4)
    gate.leave()
    names, looked = source.names, gate.picture()

    def try_to_paste(takes_edit, takes_component):
        wait_for(lambda: source.is_enabled("Edit", "Paste"), takes_edit, "whether Paste is enabled")
        wait_for(
            lambda: source.is_enabled("Component", "Paste component"), takes_component, "whether components are taken"
        )
        source.press("Ctrl+v")
        if takes_component:
            source.menu("Component", "Paste component")
        # A pin may follow the pointer; of half a drawing object the first half is taken.
        source.press("Esc", "Esc", "Ctrl+z")
        gate.point_at(20, 20)  # by then all that has had its effect
        gate.leave()
        assert source.names == names
        wait_until(lambda: gate.picture() == looked, "the drawing to look as before")

    desktop.clipboard.put(PICTURE, target="image/png")
    try_to_paste(False, False)
    desktop.clipboard.put("words " * 700_000)
    try_to_paste(False, False)
    desktop.clipboard.put("+TARSL_DATA_V.1.0\n" + "+X,A:" * 800_000)
    try_to_paste(False, True)
    desktop.clipboard.put("+MIVO_PIN_V.1.0\n" + PIN_A[:30])
    try_to_paste(True, False)
    desktop.clipboard.put("+MIVO_PTN_V.1.0\n+L,W:1,S:0,CV:0,X:20,Y")
    try_to_paste(True, False)
    source.menu("Component", "Copy component")
    wait_until(lambda: "+COMP" in (desktop.clipboard.get() or ""), "the component on the clipboard")
    text = desktop.clipboard.get()
    desktop.clipboard.put(text[: text.index("+COMP") + 20])
    try_to_paste(False, True)
    desktop.clipboard.put("")
    try_to_paste(False, False)
    source.quit_without_saving()


def test_an_owner_that_never_answers(source, desktop):
    """The window waits for as long as the toolkit does, once, and goes on."""
    desktop.clipboard.be_silent()
    wait_until(lambda: desktop.clipboard.unanswered > 0, "the window to ask what is on the clipboard")
    source.press("Ctrl+v")
    names = source.names
    source.choose(names[3])
    asked = desktop.clipboard.unanswered
    for name in names[:3]:
        source.choose(name)
    assert desktop.clipboard.unanswered == asked
    desktop.clipboard.put(PIN_TEXT.format(PIN_A))
    wait_until(lambda: source.is_enabled("Edit", "Paste"), "the next owner's pin")
    source.quit()
