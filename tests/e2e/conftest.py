"""What every story gets: a display of its own, a folder, and a way to start the program."""

import os
import shutil
import tempfile
from pathlib import Path

import pytest

from driver.desktop import Desktop
from driver.mivo import Mivo
from driver.process import start_process
from driver.texts import Texts

PROGRAM = Path(os.environ.get("MIVO_PROGRAM", "build/bin/mivo")).resolve()
BUILD = PROGRAM.parent.parent
GERMAN = BUILD / "translations/de/mivo_lang.dll"
SAMPLES = Path(__file__).resolve().parents[2] / "samples"
REPORTS = BUILD / "tests/e2e"
SETTINGS = "[WindowPosition]\nWidth=1100\nHeight=900\n"


@pytest.fixture
def folder():
    """An empty folder that every user may use."""
    path = Path(tempfile.mkdtemp(prefix="mivo-e2e."))
    path.chmod(0o755)
    yield path
    shutil.rmtree(path)


@pytest.fixture(scope="session")
def desktop():
    path = Path(tempfile.mkdtemp(prefix="mivo-e2e-desktop."))
    path.chmod(0o755)
    desktop = Desktop(path)
    yield desktop
    desktop.end()
    shutil.rmtree(path)


@pytest.fixture
def language():
    """None for the program's own; a language library's path for another."""
    return None


@pytest.fixture
def texts(language):
    return Texts(BUILD / "tests/text_list", GERMAN, language is not None)


@pytest.fixture
def cli():
    return BUILD / "bin/mivo-cli"


@pytest.fixture
def watchers():
    """What is called with the program and every dialog that a story opens."""
    return []


@pytest.fixture
def start(desktop, folder, language, texts, watchers, request):
    """Starts the program from a folder of its own, with settings of its own: `start(file)`."""
    installed = folder / "program"
    installed.mkdir()
    shutil.copy(PROGRAM, installed)
    if language:
        shutil.copy(language, installed / "mivo_lang.dll")
    started = []
    request.node.started = started
    request.node.desktop = desktop

    def start_program(*arguments, settings=SETTINGS, user=None, environment=None):
        home = folder / "home"
        if not home.exists():
            home.mkdir()
            if user:
                os.chown(home, user.pw_uid, user.pw_gid)
            home.chmod(0o700)
        if settings is not None:
            (folder / "MIVO.INI").write_text(settings)
        program = [str(part) for part in (installed / PROGRAM.name, *arguments)]
        credentials = {"user": user.pw_uid, "group": user.pw_gid, "extra_groups": []} if user else {}
        log = folder / f"mivo-{len(started)}.log"
        with open(log, "wb") as said:
            process = start_process(
                program,
                cwd=folder,
                env=desktop.environment(home) | (environment or {}),
                stdout=said,
                stderr=said,
                **credentials,
            )
        mivo = Mivo(desktop, texts, process, log)
        mivo.watchers = watchers
        started.append(mivo)
        return mivo

    yield start_program
    for mivo in started:
        mivo.end()


@pytest.fixture
def sample(folder):
    """Copies a sample into the story's folder."""

    def copy(name):
        return Path(shutil.copy(SAMPLES / name, folder / name))

    return copy


@pytest.hookimpl(hookwrapper=True)
def pytest_runtest_makereport(item, call):
    """A story that fails leaves a picture of the screen and what the program said, and tells where."""
    outcome = yield
    report = outcome.get_result()
    if not report.failed or not hasattr(item, "desktop"):
        return
    left = REPORTS / f"{item.path.stem}-{item.name}"
    shutil.rmtree(left, ignore_errors=True)
    left.mkdir(parents=True)
    item.desktop.picture().save(left / "screen.png")
    for mivo in item.started:
        shutil.copy(mivo.log, left)
    said = "".join(f"{mivo.log.name}:\n{mivo.log.read_text(errors='replace')}" for mivo in item.started)
    report.sections.append(("What the story left", f"{left}\n{said}"))
