"""A library that takes long to load: what is typed and clicked meanwhile waits for it."""

import pytest
from conftest import BUILD

from driver.waiting import wait_for, wait_until

LENGTH = 16 << 20  # many times what is read at once


@pytest.fixture
def large(sample):
    """The connectors again and again."""
    path = sample("connectors-and-supply.ZLB")
    head, components = path.read_text().split("PROP:", 1)[0], path.read_text()
    property_line, components = components.split("\n+", 1)
    components, tail = components.rsplit("\n-TARSL_LIB", 1)
    text = "+" + components + "\n"
    path.write_text(property_line + "\n" + text * (LENGTH // len(text)) + "-TARSL_LIB" + tail)
    return path


def test_keys_and_clicks_wait(start, sample, large):
    path = sample("standard.ZLB")
    mivo = start(path, environment={"LD_PRELOAD": str(BUILD / "tests/slow_disk.so")})
    names = mivo.names
    mivo.choose(names[5])
    mivo.drop_file(large, mivo.frame.box.middle)
    loading = mivo.texts.first("Opening %s").replace("%s", large.name)
    wait_until(lambda: loading in mivo.status, "the progress")
    mivo.press("Ctrl+x", "Del", "F6", "Down", "Down", "Down")
    assert loading in mivo.status, "still"
    mivo.wait_title(f"Mivo - {large}")
