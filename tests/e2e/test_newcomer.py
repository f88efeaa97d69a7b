"""A newcomer makes a library from nothing, and finds it again as it was drawn."""

import subprocess

from driver.drawing import LARGE, Drawing
from driver.waiting import wait_until

NOTE = "Four bits.\nTransparent."
RECORDS = """\
+TARSL_LIB_V.1.0
VER:82
PROP:First%20steps
+PTN,N:LATCH4,X:81,Y:81
+BMP
-BMP
+C,W:1,S:0,F:-1,X:15,Y:20,X:35,Y:32,-C
+AR,W:1,S:0,X:60,Y:35,R:10,B:1440,E:2880,-AR
+TX,X:40,Y:72,A:0,D:1,S:LATCH,FN:,FS:10,FF:,-TX
+L,W:3,S:1,CV:0,X:10,Y:10,X:70,Y:10,-L
+PG,W:1,S:0,F:1,N:3,X:20,Y:45,X:40,Y:45,X:30,Y:60,-PG
-PTN
+COMP,N:LATCH4
X:8,Y:8,B:1
TYPE:GEN,FB:0
R:U
P:LATCH4
+PIN,N:D0,DF:FFFFFFFF,L:L1,T:,M:1,-PIN
+PIN,N:D1,DF:FFFFFFFF,L:L3,T:,M:2,-PIN
+PIN,N:D2,DF:FFFFFFFF,L:L5,T:,M:3,-PIN
+PIN,N:D3,DF:FFFFFFFF,L:L7,T:,M:4,-PIN
+PIN,N:Q0,DF:FFFFFFFF,L:R1,T:,M:5,-PIN
+PIN,N:Q1,DF:FFFFFFFF,L:R3,T:,M:6,-PIN
+PIN,N:Q2,DF:FFFFFFFF,L:R5,T:,M:7,-PIN
+PIN,N:Q3,DF:FFFFFFFF,L:R7,T:,M:8,-PIN
NOTE:Four%20bits.%0D%0ATransparent.,MFR:Made%20by%20hand,MFRPN:L-4%2C%20100%25,PKG:DIP8,-COMP
+ALIAS,A:L4,N:LATCH4,-ALIAS
-TARSL_LIB_V.1.0
""".splitlines()


def test_a_newcomer_makes_a_library(start, folder, cli):
    mivo = start(settings=LARGE)
    assert mivo.title == "Mivo"
    assert mivo.names == []
    assert tells_how_to_begin(mivo)

    make_component(mivo)
    assert not tells_how_to_begin(mivo)
    drawing = Drawing(mivo, width=8, height=8)
    drawing.zoom_to(5)
    place_pins(mivo, drawing)
    draw_body(mivo, drawing)
    change_properties(mivo, drawing)
    fill_in_texts(mivo)

    path = folder / "first steps.ZLB"
    mivo.press("Ctrl+s")
    dialog = mivo.file_dialog()
    assert dialog.proposed_file() == mivo.texts.first("Untitled.ZLB")
    dialog.enter_file(path)
    mivo.wait_title(f"Mivo - {path}")
    drawing.leave()
    drawn = drawing.picture()
    mivo.quit()
    check_records(path, cli)

    mivo = start(path, settings=LARGE)
    assert mivo.title == f"Mivo - {path}"
    assert mivo.names == ["LATCH4", "L4"]
    assert mivo.note == NOTE
    drawing = Drawing(mivo, width=8, height=8)
    drawing.zoom_to(5)
    drawing.leave()
    wait_until(lambda: drawing.picture() == drawn, "the drawing to look as it was drawn")
    mivo.quit()


def check_records(path, cli):
    lines = path.read_text().splitlines()
    start, end = lines.index("+BMP"), lines.index("-BMP")
    bits = lines[start + 1 : end]
    assert [*lines[: start + 1], *lines[end:]] == RECORDS
    assert len(bits) == 81
    assert bits[10] == "@@COOOOOOOOOOOOOON@@@@", "the line"
    drawn = {row for row, text in enumerate(bits) if set(text) != {"@"}}
    assert drawn == {10, *range(20, 36), *range(45, 61)}, "line; ellipse and arc; polygon"

    found = subprocess.run([cli, "check", "--strict", path], capture_output=True, text=True)
    assert (found.returncode, found.stdout) == (0, ""), found.stderr


def tells_how_to_begin(mivo):
    labels = mivo.frame.all(name=mivo.texts.first("No component is open"), role="label")
    return any(label.has("showing") for label in labels)


def make_component(mivo):
    mivo.menu("Component", "New component...")
    dialog = mivo.dialog("Property - component")
    dialog.fill("Name", "LATCH 4")
    dialog.fill("X", "8")
    dialog.fill("Y", "8")
    dialog.check("Use Pattern")
    assert dialog.is_checked("No Bit-pattern")
    dialog.check("No Bit-pattern")
    dialog.click("OK")
    mivo.message("Invalid component name.").close("OK")
    dialog.fill("Name", "LATCH4")
    dialog.close("OK")
    assert mivo.names == ["LATCH4"]
    assert mivo.selected_name == "LATCH4"


def place_pins(mivo, drawing):
    """Inputs on the left and outputs on the right: the first of each is named with the dialog, the others by keys."""
    mivo.press("p")
    mivo.wait_status("Place pin")
    for x, name, first_number in ((0, "D", 1), (80, "Q", 5)):
        for i, y in enumerate((10, 30, 50, 70)):
            drawing.click(x, y)
            if i == 0:
                mivo.menu("Edit", "Property...")
                dialog = mivo.dialog("Pin - property")
                assert dialog.text("Name") == "NAME"
                assert dialog.text("Number") == "NUM"
                dialog.fill("Name", f"{name}0")
                dialog.fill("Number", str(first_number))
                dialog.close("OK")
            else:
                mivo.press("F11", "F12")


def draw_body(mivo, drawing):
    """One object with each drawing tool, and the bit pattern of them all but the text, whose look depends on fonts."""
    mivo.press("l")
    mivo.wait_status("Place line")
    drawing.click(10, 10)
    mivo.wait_status("Place line: end point")
    drawing.click(70, 10)

    mivo.press("c")
    mivo.wait_status("Place ellipse")
    drawing.click(15, 20)
    mivo.wait_status("Place ellipse: opposite corner")
    drawing.click(35, 32)

    mivo.press("g")
    mivo.wait_status("Place polygon")
    drawing.click(20, 45)
    drawing.click(40, 45)
    drawing.double_click(30, 60)
    mivo.wait_status("Place polygon")

    mivo.press("a")
    mivo.wait_status("Place arc")
    drawing.click(60, 35)
    mivo.wait_status("Place arc: radius")
    drawing.click(70, 37)
    mivo.wait_status("Place arc: start direction")
    drawing.click(60, 20)
    mivo.wait_status("Place arc: end direction")
    drawing.click(45, 35)

    mivo.menu("Tool", "Create BIT-PATTERN")
    mivo.message("It CREATES BIT-PATTERN and OVERWRITES EXISTING").close("OK")

    mivo.press("t")
    mivo.wait_status("Place text")
    drawing.click(40, 72)
    dialog = mivo.dialog("Property -text")
    dialog.fill("Text", "LATCH")
    dialog.close("OK")
    mivo.press("Esc")
    mivo.press("Esc")
    mivo.wait_status("Select pins and objects")


def change_properties(mivo, drawing):
    drawing.click(40, 10)
    mivo.menu("Edit", "Property...")
    dialog = mivo.dialog("Property - Line")
    dialog.choose("Width", "3")
    dialog.check("Dot")
    dialog.close("OK")

    drawing.double_click(30, 45)
    dialog = mivo.dialog("Property - pattern")
    dialog.check("Fill")
    dialog.close("OK")


def fill_in_texts(mivo):
    mivo.menu("Component", "Component property...")
    dialog = mivo.dialog("Property - component")
    dialog.fill("Manufacturer", "Made by hand")
    dialog.fill("MfrPartNumber", "L-4, 100%")
    dialog.fill("Package", "DIP8")
    dialog.fill("Note", NOTE)
    dialog.close("OK")
    assert mivo.note == NOTE

    mivo.menu("Component", "Add alias...")
    dialog = mivo.dialog("Add alias")
    assert dialog.text("Alias for") == "LATCH4"
    dialog.fill("Alias", "L4")
    dialog.close("OK")
    assert mivo.names == ["LATCH4", "L4"]

    mivo.menu("Component", "Library property...")
    dialog = mivo.dialog("Property - library")
    dialog.fill("Library text", "First steps")
    dialog.close("OK")
