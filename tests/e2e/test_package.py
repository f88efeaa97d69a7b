"""The Debian package: what it installs starts from its desktop entry, and is what its files are opened with."""

import os
import shutil
import subprocess

import pytest
from conftest import BUILD

from driver.mivo import Mivo
from driver.process import run_and_adopt
from driver.waiting import wait_until


class Installation:
    """The package unpacked into a folder, as the environment tells a desktop to look there first."""

    def __init__(self, folder, desktop):
        self.package = max((BUILD / "package").glob("mivo_*.deb"), key=os.path.getmtime)
        self.root = folder / "root"
        subprocess.run(["dpkg-deb", "--extract", self.package, self.root], check=True)
        self.home = folder / "home"
        self.home.mkdir(mode=0o700)
        self.share = share = self.root / "usr/share"
        self.entry = share / "applications/mivo.desktop"
        self.program = self.root / "usr/lib/mivo/mivo"
        self.environment = desktop.environment(self.home) | {
            "PATH": f"{self.root / 'usr/bin'}:{os.environ['PATH']}",
            "XDG_DATA_DIRS": f"{share}:/usr/local/share:/usr/share",
        }
        # As the packages of these tools do after every installation.
        subprocess.run(["update-mime-database", share / "mime"], check=True, env=self.environment)
        subprocess.run(["update-desktop-database", share / "applications"], check=True, env=self.environment)

    def run(self, *command):
        """What a command says, where Mivo is installed."""
        return subprocess.run(
            command, check=True, env=self.environment, capture_output=True, text=True, timeout=60
        ).stdout

    def files(self):
        return sorted((path, path.stat().st_mtime_ns) for path in self.root.rglob("*"))


@pytest.fixture
def installed(folder, desktop):
    return Installation(folder, desktop)


@pytest.fixture
def launch(installed, desktop, texts, folder, request):
    """Lets the desktop start the program: `launch(command of gio...)`."""
    started = []
    request.node.started = started
    request.node.desktop = desktop

    def run(*command):
        log = folder / f"mivo-{len(started)}.log"
        with open(log, "wb") as said:
            process = run_and_adopt(
                ["gio", *command], installed.program, cwd=folder, env=installed.environment, stdout=said, stderr=said
            )
        mivo = Mivo(desktop, texts, process, log)
        started.append(mivo)
        return mivo

    yield run
    for mivo in started:
        mivo.end()


def test_starts_from_its_desktop_entry(installed, launch):
    subprocess.run(["desktop-file-validate", installed.entry], check=True)
    assert "\nIcon=mivo\n" in installed.entry.read_text()
    icons = {path.relative_to(installed.share).as_posix() for path in installed.share.rglob("apps/mivo.*")}
    assert icons >= {"icons/hicolor/48x48/apps/mivo.png", "icons/hicolor/scalable/apps/mivo.svg"}
    mivo = launch("launch", installed.entry)
    assert mivo.title == "Mivo"
    mivo.press("F1")
    manual = mivo.dialog("Mivo - manual")
    assert manual.control.find(role="label").text.startswith("Mivo: the manual")
    manual.press("Esc")
    mivo.quit()


@pytest.mark.parametrize(
    ("sample", "name"),
    [
        ("standard.ZLB", "standard.ZLB"),
        ("standard.ZLB", "small letters.zlb"),
        ("flasher.ZSC", "flasher.ZSC"),
        ("flasher.ZSC", "small letters.zsc"),
    ],
)
def test_opens_a_file_by_its_type(installed, launch, folder, sample, name):
    path = shutil.copy(installed.share / "doc/mivo/examples" / sample, folder / name)
    mivo = launch("open", path)
    mivo.wait_title(f"Mivo - {path}")
    assert mivo.names
    mivo.quit()


def test_settings_are_the_users_own(installed, launch, desktop):
    """Nothing is written where all users share the program."""
    files = installed.files()
    mivo = launch("launch", installed.entry)
    desktop.resize(mivo.title, 870, 640)
    settings = installed.home / ".local/share/HallvarnONLINE/MIVO.INI"
    wait_until(lambda: "Width=870" in settings.read_text("utf-16"), "the width in the user's settings")
    mivo.quit()
    kept = settings.read_bytes()
    mivo = launch("launch", installed.entry)
    wait_until(lambda: mivo.frame.box[2:] == (870, 640), "the size of the window")
    mivo.quit()
    assert settings.read_bytes() == kept
    assert installed.files() == files


def test_speaks_a_language_once_it_is_linked(installed):
    assert "German" not in installed.run("mivo", "--help")
    folder = installed.program.parent
    (folder / "mivo_lang.dll").symlink_to("languages/de/mivo_lang.dll")
    assert "Bauteil" in installed.run("mivo", "--help")


def test_says_what_it_is(installed):
    def field(name):
        return installed.run("dpkg-deb", "--field", installed.package, name).strip()

    version, _ = field("Version").split("-")
    changes = installed.run("zcat", installed.share / "doc/mivo/changelog.Debian.gz")
    assert changes.startswith(f"mivo ({field('Version')}) ")
    assert installed.run("mivo", "--version") == f"mivo {version}\n"
    assert installed.run("mivo-cli", "--version").endswith(f"{version}\n")
    assert "libqt6widgets6" in field("Depends")
    for page in ("mivo", "mivo-cli"):
        text = installed.run("zcat", installed.share / f"man/man1/{page}.1.gz")
        assert f"{page} {version}" in text
