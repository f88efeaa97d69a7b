"""The settings file in each encoding and each place; the window comes back as it was closed."""

import pytest

from driver.desktop import SCREEN
from driver.waiting import wait_for, wait_until

WIDTH, HEIGHT = 900, 700
TEXT = """\
; Einstellungen für den Arbeitsplatz
[WindowPosition]
Width={width}
Height={height}
cmdShow=1
[Setting]
NoCheckPtnRectOnSave=1
EditWindowMargin=0
[Other]
Größe=groß
"""
ENCODINGS = {
    "UTF-16": lambda text: b"\xff\xfe" + text.encode("utf-16-le"),
    "UTF-8": lambda text: text.encode("utf-8"),
    "UTF-8 with mark": lambda text: text.encode("utf-8-sig"),
    "8-bit": lambda text: text.encode("cp1252"),
}


def content(width, height, encode=ENCODINGS["UTF-16"]):
    return encode(TEXT.format(width=width, height=height).replace("\n", "\r\n"))


def size_of(mivo):
    return mivo.frame.box[2:]


@pytest.mark.parametrize("encoding", ENCODINGS)
def test_every_encoding(start, folder, desktop, encoding):
    """Settings are read, and what changes is written in the file's own encoding; all else stays byte for byte."""
    path = folder / "MIVO.INI"
    path.write_bytes(content(WIDTH, HEIGHT, ENCODINGS[encoding]))
    mivo = start(settings=None)
    wait_for(lambda: size_of(mivo), (WIDTH, HEIGHT), "the size of the window")
    desktop.resize(mivo.title, 950, 750)
    wait_for(path.read_bytes, content(950, 750, ENCODINGS[encoding]), "the settings")
    mivo.quit()
    assert path.read_bytes() == content(950, 750, ENCODINGS[encoding])

    mivo = start(settings=None)
    wait_for(lambda: size_of(mivo), (950, 750), "the size of the window")


def test_every_place(start, folder, desktop):
    """The current folder goes before the user's own file, that one before the program's folder."""
    current = folder / "MIVO.INI"
    of_user = folder / "home/.local/share/HallvarnONLINE/MIVO.INI"
    beside_program = folder / "program/MIVO.INI"

    mivo = start(settings=None)
    wait_until(beside_program.exists, "a settings file beside the program")
    desktop.resize(mivo.title, 700, 650)
    wait_until(lambda: b"W\0i\0d\0t\0h\0=\x007\x000\x000\0" in beside_program.read_bytes(), "the width to be written")
    mivo.quit()
    assert beside_program.read_bytes().startswith(b"\xff\xfe[\0")
    assert not current.exists()
    assert not of_user.exists()

    of_user.parent.mkdir(parents=True)
    of_user.write_bytes(content(800, 600))
    written = beside_program.read_bytes()
    mivo = start(settings=None)
    wait_for(lambda: size_of(mivo), (800, 600), "the user's own size")
    desktop.resize(mivo.title, 810, 610)
    wait_for(of_user.read_bytes, content(810, 610), "the user's own settings")
    mivo.quit()
    assert beside_program.read_bytes() == written

    current.write_bytes(content(900, 700))
    mivo = start(settings=None)
    wait_for(lambda: size_of(mivo), (900, 700), "the current folder's size")
    desktop.resize(mivo.title, 910, 710)
    wait_for(current.read_bytes, content(910, 710), "the current folder's settings")
    mivo.quit()
    assert of_user.read_bytes() == content(810, 610)
    assert beside_program.read_bytes() == written


def test_a_window_closed_maximised_opens_maximised(start, folder, desktop):
    path = folder / "MIVO.INI"
    mivo = start(settings=TEXT.format(width=WIDTH, height=HEIGHT))
    desktop.maximise(mivo.title)
    wait_until(lambda: size_of(mivo)[0] == SCREEN[0], "the window to be maximised")
    wait_until(lambda: "cmdShow=3" in path.read_text(), "that to be written")
    mivo.quit()
    assert f"Width={WIDTH}\nHeight={HEIGHT}\n" in path.read_text(), "the size without"

    mivo = start(settings=None)
    wait_until(lambda: size_of(mivo)[0] == SCREEN[0], "the window to be maximised")
    assert desktop.is_maximised(mivo.title)
    desktop.maximise(mivo.title, False)
    wait_for(lambda: size_of(mivo), (WIDTH, HEIGHT), "the size without")
    wait_until(lambda: "cmdShow=1" in path.read_text(), "that to be written")
    mivo.quit()

    mivo = start(settings=None)
    wait_for(lambda: size_of(mivo), (WIDTH, HEIGHT), "the size of the window")
    assert not desktop.is_maximised(mivo.title)
