"""What every story gets: the display of the Linux stories, and a way to start Windows programs on it."""

import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

import pytest

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests/e2e"))

from driver.desktop import Desktop
from driver.waiting import wait_until

BUILD = Path(os.environ.get("MIVO_BUILD", ROOT / "build-windows")).resolve()
UNDER_WINE = ROOT / "packaging/windows/under-wine"
REPORTS = BUILD / "tests/windows"


def windows_path(path):
    """The path as programs under Wine know it."""
    return "Z:" + str(path).replace("/", "\\")


class Program:
    """A program under Wine."""

    def __init__(self, desktop, environment, folder, command, log):
        self._desktop = desktop
        self.log = log
        with open(log, "wb") as output:
            self.process = subprocess.Popen(
                [UNDER_WINE, *map(str, command)],
                cwd=folder,
                env=environment,
                stdin=subprocess.PIPE,
                stdout=output,
                stderr=output,
            )

    def wait_window(self, title):
        def shows():
            assert self.process.poll() is None, f"The program ended: {self.log.read_text(errors='replace')}"
            return self._desktop.has_window(title)

        wait_until(shows, f"the window {title!r}", limit=120)
        self.activate(title)

    def wait_main_window(self, title):
        self.wait_window(title)
        self.take_focus(title)

    def take_focus(self, title):
        """Gives the keyboard to the program: Wine may pass over what the window manager says, but no click."""
        self.activate(title)
        self._desktop.click_in_corner(title)

    def activate(self, title):
        self._desktop.activate(title)
        wait_until(lambda: self._desktop.active_title() == title, f"the window {title!r} to be active")

    def wait_end(self):
        return self.process.wait(timeout=120)


# Not that of the tests without a window: its desktop may have been started without a display.
PREFIX = BUILD / "wine-window"


@pytest.fixture(scope="session")
def desktop():
    """A display with a Windows of its own, as new."""
    path = Path(tempfile.mkdtemp(prefix="mivo-windows-desktop."))
    desktop = Desktop(path)
    shutil.rmtree(PREFIX, ignore_errors=True)
    subprocess.run([UNDER_WINE, "cmd", "/c", "exit"], env=environment_on(desktop), check=True)
    yield desktop
    end_windows(desktop)
    desktop.end()
    shutil.rmtree(path)


USER = "Jürgen Ж"  # and so are the folders named in which programs keep what is the user's


def environment_on(desktop):
    return {**desktop.environment(), "WINEPREFIX": str(PREFIX), "LC_ALL": "C.UTF-8", "USER": USER}


def end_windows(desktop):
    """Ends all that runs under Wine, as the end of the power would."""
    for what in ("--kill", "--wait"):
        subprocess.run(["wineserver", what], env=environment_on(desktop), check=False)


@pytest.fixture
def folder():
    path = Path(tempfile.mkdtemp(prefix="mivo-windows."))
    yield path
    shutil.rmtree(path)


@pytest.fixture
def run(desktop, folder, request):
    """Starts any Windows program in the story's folder: `run(program, arguments...)`."""
    started = []
    request.node.started = started
    request.node.desktop = desktop

    def run_program(*command):
        log = folder / f"program-{len(started)}.log"
        started.append(Program(desktop, environment_on(desktop), folder, command, log))
        return started[-1]

    yield run_program
    for program in started:
        if program.process.poll() is None:
            end_windows(desktop)
            program.process.wait(timeout=120)


@pytest.fixture
def user(desktop):
    """The folder of the user in the Windows of the stories."""
    return PREFIX / "drive_c/users" / USER


@pytest.fixture
def state(user):
    """The folder in which Mivo keeps copies and what was not saved; empty. The user has no settings either."""
    local = user / "AppData/Local"
    for name in ("mivo", "HallvarnONLINE"):
        shutil.rmtree(local / name, ignore_errors=True)
    return local / "mivo"


@pytest.fixture
def start(run, folder, state):
    """Starts Mivo, installed in a folder of the story's own, and waits for its window."""
    installed = folder / "Программы"
    installed.mkdir()
    shutil.copy(BUILD / "bin/mivo.exe", installed)

    def start_mivo(*arguments, title="Mivo", settings="[WindowPosition]\r\nWidth=900\r\nHeight=700\r\n"):
        if settings is not None:
            (installed / "MIVO.INI").write_bytes(b"\xff\xfe" + settings.encode("utf-16-le"))
        mivo = run(installed / "mivo.exe", *arguments)
        mivo.wait_main_window(title)
        return mivo

    start_mivo.installed = installed
    start_mivo.state = state
    return start_mivo


@pytest.fixture
def sample(folder):
    """Copies a sample into the story's folder."""

    def copy(name):
        return Path(shutil.copy(ROOT / "samples" / name, folder / name))

    return copy


@pytest.hookimpl(hookwrapper=True)
def pytest_runtest_makereport(item, call):
    """A story that fails leaves a picture of the screen, and tells where."""
    outcome = yield
    report = outcome.get_result()
    if not report.failed or not hasattr(item, "desktop"):
        return
    REPORTS.mkdir(parents=True, exist_ok=True)
    picture = REPORTS / f"{item.name}.png"
    item.desktop.picture().save(picture)
    said = "".join(f"{program.log.name}:\n{program.log.read_text(errors='replace')}" for program in item.started)
    report.sections.append(("What the story left", f"{picture}\n{said}"))
