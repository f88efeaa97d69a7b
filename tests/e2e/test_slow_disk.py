"""A library that takes long to load: what is typed and clicked meanwhile waits until it is there."""

import pytest
from conftest import BUILD

from driver.waiting import wait_for, wait_until

COMPONENT = "+COMP,N:C{}\nX:4,Y:4,B:1\nTYPE:GEN,FB:0\nR:U\nNOTE:{},MFR:,MFRPN:,PKG:,-COMP\n"
COUNT = 300


@pytest.fixture
def large(folder):
    """About a MiB."""
    path = folder / "large.ZLB"
    components = "".join(COMPONENT.format(i, "long " * 700) for i in range(COUNT))
    path.write_text(f"+TARSL_LIB_V.1.0\nVER:82\nPROP:\n{components}-TARSL_LIB_V.1.0\n")
    return path


@pytest.fixture
def slow_disk(folder):
    """The disk is slow while this file exists, and broken while there is something in it."""
    return folder / "slow"


@pytest.fixture
def mivo(start, sample, slow_disk):
    environment = {"LD_PRELOAD": str(BUILD / "tests/e2e/slow_disk.so"), "MIVO_SLOW_DISK": str(slow_disk)}
    return start(sample("standard.ZLB"), environment=environment)


def load_slowly(mivo, large, slow_disk, meanwhile):
    """Loads the library, does something in the middle of it, and waits for the end."""
    # Looked for now: a busy program answers slowly.
    progress = mivo.progress_bar
    assert mivo.status and mivo.names
    slow_disk.touch()
    mivo.drop_file(large, mivo.frame.box.middle)
    loading = mivo.texts.first("Opening %s").replace("%s", large.name)
    wait_until(lambda: loading in mivo.status, "the progress")
    meanwhile()
    done = progress.value
    wait_until(lambda: progress.value > done, "the loading to go on")
    assert mivo.names == []
    assert loading in mivo.status
    slow_disk.unlink()
    wait_until(lambda: loading not in mivo.status, "the library to be loaded")


def test_keys_wait(mivo, large, slow_disk):
    mivo.choose(mivo.names[10])
    load_slowly(mivo, large, slow_disk, lambda: mivo.press("Down", "Down", "Down"))
    wait_for(lambda: mivo.selected_name, "C3", "the selected name")
    assert len(mivo.names) == COUNT
    mivo.quit()


def test_clicks_wait(mivo, large, slow_disk):
    place = mivo.name_list.children[5].box.middle
    load_slowly(mivo, large, slow_disk, lambda: mivo.input.click(place))
    wait_for(lambda: mivo.selected_name, "C5", "the selected name")
    mivo.quit()


def test_commands_wait(mivo, large, slow_disk):
    """They find the library whole."""
    content = large.read_bytes()
    load_slowly(mivo, large, slow_disk, lambda: mivo.press("Ctrl+n", "Ctrl+s"))
    mivo.file_dialog().press("Esc")  # of the new library, which has no file
    assert mivo.title == "Mivo"
    assert mivo.names == []
    assert large.read_bytes() == content
    mivo.quit()


def test_the_disk_breaks(mivo, large, slow_disk):
    """What came before that is no library."""
    loading = mivo.texts.first("Opening %s").replace("%s", large.name)
    slow_disk.touch()
    mivo.drop_file(large, mivo.frame.box.middle)
    wait_until(lambda: loading in mivo.status, "the progress")
    slow_disk.write_text("broken")
    wait_until(lambda: f"{large.name}: Input/output error" in mivo.status, "the refusal")
    assert mivo.title == "Mivo"
    assert mivo.names == []
    slow_disk.unlink()
    mivo.quit()
