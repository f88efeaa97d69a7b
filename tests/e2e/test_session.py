"""The end of the desktop session asks about changes, and goes on only when the answer lets it."""

import pytest
from conftest import BUILD
from test_saving import change, is_saved, still_there

from driver.session import Session


@pytest.fixture
def session(desktop):
    session = Session(BUILD / "tests/e2e/session_manager", desktop.environment())
    yield session
    session.stop()


@pytest.fixture
def path(sample):
    return sample("connectors-and-supply.ZLB")


@pytest.fixture
def mivo(start, session, path):
    mivo = start(path, environment=session.environment)
    session.expect("registered")
    return mivo


def end_with(mivo, session, answer):
    session.end()
    session.expect("asks")
    mivo.message("Save changes?").click(answer)
    session.expect("may end")
    mivo.wait_end()


def test_without_changes_it_ends(mivo, session):
    session.end()
    session.expect("asks")
    session.expect("may end")
    mivo.wait_end()


def test_cancelled_then_saved(mivo, session, path):
    original = path.read_bytes()
    change(mivo, "Changed")
    session.end()
    session.expect("asks")
    mivo.message("Save changes?").close("Cancel")
    session.expect("goes on")
    still_there(mivo, path, "Changed")
    assert path.read_bytes() == original

    end_with(mivo, session, "Yes")
    assert is_saved(path, "Changed")


def test_not_saved(mivo, session, path):
    original = path.read_bytes()
    change(mivo, "Changed")
    end_with(mivo, session, "No")
    assert path.read_bytes() == original


def test_when_nobody_can_be_asked_the_changes_are_kept(mivo, session, start, path):
    change(mivo, "Changed")
    session.end(may_ask=False)
    session.expect("may end")
    mivo.end()
    mivo = start()
    mivo.any_message().close("Restore")
    still_there(mivo, path, "Changed")
