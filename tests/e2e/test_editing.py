"""A sample is edited in every way and undone back to the start."""

from driver.drawing import LARGE, Drawing
from driver.user_input import RIGHT
from driver.waiting import wait_until

EDITED_DRAWING = """\
+L,W:1,S:0,CV:0,X:36,Y:4,X:36,Y:19,-L
+L,W:1,S:0,CV:0,X:12,Y:62,X:17,Y:62,-L
+PG,W:1,S:0,F:-1,N:4,X:0,Y:0,X:54,Y:36,X:0,Y:60,X:8,Y:27,-PG
+L,W:1,S:0,CV:1,X:50,Y:60,X:50,Y:35,X:56,Y:50,X:50,Y:43,-L
""".splitlines()
EDITED_PINS = """\
+PIN,N:+,DF:FFFFFFFF,L:L2,T:,M:3,-PIN
+PIN,N:-,DF:FFFFFFFF,L:L4,T:,M:2,-PIN
+PIN,N:OUT,DF:FFFFFFFE,L:R3,T:,M:6,-PIN
+PIN,N:V+,DF:FFFFFFFE,L:T3,T:,M:7,-PIN
+PIN,N:V-,DF:FFFFFFFE,L:B3,T:,M:4,-PIN
+PIN,N:N2,DF:FFFFFFFE,L:B5,T:,M:5,-PIN
+PIN,N:N1,DF:FFFFFFFE,L:B2,T:,M:1,-PIN
""".splitlines()


def test_a_sample_is_edited_and_undone(start, sample, folder):
    mivo = start(sample("standard.ZLB"), settings=LARGE)
    mivo.choose("LM741")
    drawing = Drawing(mivo, width=6, height=6)
    drawing.zoom_to(5)
    before = folder / "before.ZLB"
    mivo.save_as(before)
    drawing.leave()
    looked = drawing.picture()
    assert not mivo.is_enabled("Edit", "Undo")

    steps = [move_a_line, mirror_and_rotate_what_a_band_holds, edit_nodes_of_a_polygon,
             bend_a_line, move_a_pin, delete_a_line]
    for step in steps:
        step(mivo, drawing)
        mivo.press("Esc")

    edited = folder / "edited.ZLB"
    mivo.save_as(edited)
    assert records_of(edited, "LM741") == (EDITED_DRAWING, EDITED_PINS)
    assert drawing.picture() != looked

    mivo.press(*["Ctrl+z"] * (len(steps) - 1))
    drawing.point_at(0, 0)  # by then the keys have had their effect
    assert mivo.is_enabled("Edit", "Undo")
    mivo.press("Ctrl+z")
    wait_until(lambda: not mivo.is_enabled("Edit", "Undo"), "everything to be undone")
    drawing.leave()
    wait_until(lambda: drawing.picture() == looked, "the drawing to look as before")
    after = folder / "after.ZLB"
    mivo.save_as(after)
    assert after.read_bytes() == before.read_bytes()
    mivo.quit()


def records_of(path, component):
    """The lines of a component's drawing, and those of its pins."""
    lines = path.read_text().splitlines()
    drawing = next(i for i, line in enumerate(lines) if line.startswith(f"+PTN,N:{component},"))
    pins = lines.index(f"+COMP,N:{component}", drawing)
    end = next(i for i in range(pins, len(lines)) if lines[i].endswith("-COMP"))
    return lines[drawing + 1 : pins - 1], [line for line in lines[pins:end] if line.startswith("+PIN")]


def move_a_line(mivo, drawing):
    drawing.click(30, 8)
    wait_until(lambda: mivo.is_enabled("Edit", "Mirror"), "the line to be picked")
    drawing.drag((30, 12), (36, 16))


def mirror_and_rotate_what_a_band_holds(mivo, drawing):
    """Two lines lie in the band; it touches the triangle and another line, which stay."""
    drawing.drag((5, 40), (45, 66))
    mivo.press("Ctrl+m", "Ctrl+r")


def edit_nodes_of_a_polygon(mivo, drawing):
    """Moves the tip; adds a node to the left edge and moves it into the body."""
    drawing.click(0, 30)
    mivo.press("n")
    mivo.wait_status("Drag a node")
    drawing.drag((60, 30), (54, 36))

    drawing.point_at(0, 25)
    mivo.input.button_down(RIGHT)
    mivo.input.button_up(RIGHT)
    mivo.desktop.wait_popup_menu()
    mivo.press(*["Up"] * 4, "Enter")  # from the end: Property, Rotate, Mirror, Add Node
    drawing.drag((0, 25), (8, 27))
    mivo.press("n")


def bend_a_line(mivo, drawing):
    """Makes a line a curve and moves one of the points that bend it."""
    drawing.click(50, 55)
    mivo.menu("Edit", "Property...")
    dialog = mivo.dialog("Property - Line")
    dialog.check("Curve line")
    dialog.close("OK")
    mivo.press("n")
    drawing.drag((50, 52), (56, 50))
    mivo.press("n")


def move_a_pin(mivo, drawing):
    drawing.click(10, 66)
    drawing.drag((10, 68), (20, 68))


def delete_a_line(mivo, drawing):
    drawing.click(20, 42)
    mivo.press("Del")
