"""Every way out of a changed library asks, and whatever is answered and however the saving ends, no change is lost."""

import os
import pwd
import shutil
import subprocess

import pytest

from driver.drag import FileDrag

CANNOT_SAVE = "Cannnot save the document. Try saving as."


def new(mivo, _folder):
    mivo.press("Ctrl+n")


def open_another(mivo, _folder):
    mivo.press("Ctrl+o")


def drop_another(mivo, folder):
    mivo.drop_file(folder / "flasher.ZSC", mivo.frame.box.middle)


def exit_by_menu(mivo, _folder):
    mivo.menu("File", "Exit")


def close_window(mivo, _folder):
    mivo.desktop.close_window(mivo.title)


WAYS_OUT = [new, open_another, drop_another, exit_by_menu, close_window]


def change(mivo, text):
    """Changes the library in a way that can be read in its file."""
    mivo.menu("Component", "Library property...")
    dialog = mivo.dialog("Property - library")
    dialog.fill("Library text", text)
    dialog.close("OK")


def is_saved(path, text):
    return f"\nPROP:{text}\n" in path.read_text()


def wait_out(mivo, way_out, folder):
    """The way out goes on: a new library, the file to open, or the end."""
    if way_out is new:
        mivo.wait_title("Mivo")
        assert mivo.names == []
    elif way_out in (open_another, drop_another):
        if way_out is open_another:
            mivo.file_dialog().enter_file(folder / "flasher.ZSC")
        mivo.wait_title(f"Mivo - {folder / 'flasher.ZSC'}")
    else:
        mivo.wait_end()


def still_there(mivo, path, text):
    """The library is open with its changes."""
    assert mivo.title == f"Mivo - {path}"
    mivo.menu("Component", "Library property...")
    dialog = mivo.dialog("Property - library")
    assert dialog.text("Library text") == text
    dialog.close("Cancel")


@pytest.mark.parametrize("way_out", WAYS_OUT)
def test_cancelled_then_saved(start, sample, folder, way_out):
    sample("flasher.ZSC")
    path = sample("connectors-and-supply.ZLB")
    original = path.read_bytes()
    mivo = start(path)
    change(mivo, "Changed")
    way_out(mivo, folder)
    mivo.message("Save changes?").close("Cancel")
    still_there(mivo, path, "Changed")
    way_out(mivo, folder)
    mivo.message("Save changes?").press("Esc")
    still_there(mivo, path, "Changed")
    assert path.read_bytes() == original

    way_out(mivo, folder)
    mivo.message("Save changes?").click("Yes")
    wait_out(mivo, way_out, folder)
    assert is_saved(path, "Changed")


@pytest.mark.parametrize("way_out", WAYS_OUT)
def test_not_saved(start, sample, folder, way_out):
    sample("flasher.ZSC")
    path = sample("connectors-and-supply.ZLB")
    original = path.read_bytes()
    mivo = start(path)
    change(mivo, "Changed")
    way_out(mivo, folder)
    mivo.message("Save changes?").click("No")
    wait_out(mivo, way_out, folder)
    assert path.read_bytes() == original


@pytest.mark.parametrize("way_out", WAYS_OUT)
def test_without_changes_nothing_is_asked(start, sample, folder, way_out):
    sample("flasher.ZSC")
    mivo = start(sample("connectors-and-supply.ZLB"))
    way_out(mivo, folder)
    wait_out(mivo, way_out, folder)


@pytest.mark.parametrize("way_out", WAYS_OUT)
def test_a_library_without_a_file(start, sample, folder, way_out):
    """Yes asks for a name; without one everything stays."""
    sample("flasher.ZSC")
    path = folder / "named at last.ZLB"
    mivo = start()
    change(mivo, "Changed")
    way_out(mivo, folder)
    mivo.message("Save changes?").click("Yes")
    mivo.file_dialog().press("Esc")
    assert mivo.title == "Mivo"
    way_out(mivo, folder)
    mivo.message("Save changes?").click("Yes")
    mivo.file_dialog().enter_file(path)
    wait_out(mivo, way_out, folder)
    assert is_saved(path, "Changed")


@pytest.fixture
def unprivileged():
    """Root may write anywhere, so for root the program runs as nobody."""
    return pwd.getpwnam("nobody") if os.geteuid() == 0 else None


@pytest.mark.parametrize("way_out", WAYS_OUT)
def test_a_folder_that_cannot_be_written(start, sample, folder, way_out, unprivileged):
    sample("flasher.ZSC")
    locked = folder / "locked"
    locked.mkdir()
    path = sample("connectors-and-supply.ZLB").rename(locked / "library.ZLB")
    path.chmod(0o444)
    locked.chmod(0o555)
    original = path.read_bytes()
    elsewhere = folder / "elsewhere"
    elsewhere.mkdir()
    elsewhere.chmod(0o777)

    mivo = start(path, user=unprivileged)
    change(mivo, "Changed")
    way_out(mivo, folder)
    mivo.message("Save changes?").click("Yes")
    mivo.message(CANNOT_SAVE).close("OK")
    still_there(mivo, path, "Changed")
    assert path.read_bytes() == original
    assert [each.name for each in locked.iterdir()] == [path.name]

    mivo.save_as(elsewhere / "saved.ZLB")
    way_out(mivo, folder)
    wait_out(mivo, way_out, folder)
    assert is_saved(elsewhere / "saved.ZLB", "Changed")
    locked.chmod(0o755)


@pytest.fixture
def small_disk(folder):
    """A folder on a disk of 64 KiB."""
    path = folder / "small disk"
    path.mkdir()
    mount = ["mount", "-t", "tmpfs", "-o", "size=64k", "tmpfs", path]
    mounted = subprocess.run(mount, capture_output=True, text=True)
    if mounted.returncode != 0:
        pytest.skip(f"A small disk cannot be mounted here: {mounted.stderr.splitlines()[0]}")
    yield path
    subprocess.run(["umount", path], check=True)


def test_a_full_disk(start, sample, folder, small_disk):
    """The library fits onto the disk once; saving it needs room beside it."""
    path = small_disk / "library.ZLB"
    shutil.copy(sample("standard.ZLB"), path)
    original = path.read_bytes()
    mivo = start(path)
    change(mivo, "Changed")
    close_window(mivo, folder)
    mivo.message("Save changes?").click("Yes")
    mivo.message(CANNOT_SAVE).close("OK")
    still_there(mivo, path, "Changed")
    assert path.read_bytes() == original
    assert [each.name for each in small_disk.iterdir()] == [path.name]

    mivo.save_as(folder / "saved.ZLB")
    close_window(mivo, folder)
    mivo.wait_end()
    assert is_saved(folder / "saved.ZLB", "Changed")


def test_a_file_is_dropped_on_every_part(start, sample):
    """Only what is one file of this computer is taken."""
    path = sample("connectors-and-supply.ZLB")
    mivo = start()
    first, second = path.parent / "first.ZLB", path.parent / "second.ZLB"
    shutil.copy(path, first)
    shutil.copy(path, second)
    parts = [mivo.frame.find(role="tool bar"), mivo.name_list, mivo.note_box, mivo.frame.find(role="status bar")]
    for part, dropped in zip(parts, (first, second, first, second)):
        mivo.drop_file(dropped, part.box.middle)
        mivo.wait_title(f"Mivo - {dropped}")
    drag = FileDrag(mivo.desktop.name, "https://example.org/first.ZLB")
    assert not drag.enter()
    drag.leave()
    mivo.quit()
