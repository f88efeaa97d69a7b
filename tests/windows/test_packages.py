"""The packages: what the installer, run silently, puts where and leaves when Mivo is uninstalled; and the zip."""

import zipfile

import pytest

from conftest import BUILD, end_windows, windows_path
from driver.waiting import wait_until
from test_stories import press_until

UNINSTALL = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Mivo"
CLASSES = r"HKCU\Software\Classes"


def package(name):
    found = sorted((BUILD / "package").glob(name))
    if not found:
        pytest.skip("there is no package; packaging/windows/pack makes them")
    return found[0]


@pytest.fixture
def installer():
    return package("*-setup.exe")


@pytest.fixture
def registry(run):
    def value(key, name=None):
        """The value; None when there is none."""
        query = run("reg", "query", key, *(["/v", name] if name else ["/ve"]))
        if query.wait_end() != 0:
            return None
        return query.log.read_text(errors="replace").split("REG_SZ")[-1].strip()

    return value


def test_it_installs_and_uninstalls(desktop, run, registry, installer, user):
    local = user / "AppData/Local"
    program = local / "Programs/Mivo"
    sample = windows_path(program / "samples/standard.ZLB")
    settings = local / "HallvarnONLINE/MIVO.INI"
    shortcut = user / "AppData/Roaming/Microsoft/Windows/Start Menu/Programs/Mivo.lnk"
    assert not program.exists() and not settings.exists()

    assert run(installer, "/S").wait_end() == 0
    assert {"mivo.exe", "mivo-cli.exe", "README.txt", "doc", "licences", "samples"} <= {path.name for path in program.iterdir()}
    assert not (program / "mivo_lang.dll").exists(), "English, unless asked for"
    assert shortcut.exists()
    assert settings.read_bytes() == b"\xff\xfe"
    assert registry(CLASSES + r"\.ZLB") == "Mivo.Library"
    assert registry(CLASSES + r"\.ZSC") == "Mivo.Schematic"
    opened_by = registry(CLASSES + r"\Mivo.Library\shell\open\command")
    assert opened_by.endswith(r'\AppData\Local\Programs\Mivo\mivo.exe" "%1"')
    assert registry(UNINSTALL, "DisplayVersion") == "0.84.00"

    # It runs from there, with the settings of the user.
    mivo = run(program / "mivo.exe", sample)
    mivo.wait_main_window(f"Mivo - {sample}")
    wait_until(lambda: "NoCheckPtnRectOnSave=1" in settings.read_bytes().decode("utf-16"), "the settings in use")
    assert not (program / "MIVO.INI").exists()

    # Its manual is there.
    press_until(desktop, lambda: desktop.has_window("Mivo - manual"), "the manual", "F1")
    mivo.activate("Mivo - manual")
    top = desktop.picture()
    press_until(desktop, lambda: desktop.picture() != top, "the rest of the manual", "PageDown")
    assert (program / "doc/images/window.png").exists()
    end_windows(desktop)

    kept = settings.read_bytes()
    assert run(installer, "/S").wait_end() == 0
    assert settings.read_bytes() == kept, "what is there stays"

    run(program / "uninstall.exe", "/S").wait_end()
    wait_until(lambda: not program.exists(), "the program to go")
    wait_until(lambda: registry(UNINSTALL, "DisplayVersion") is None, "the entry to go")
    assert not shortcut.exists()
    assert registry(CLASSES + r"\.ZLB") is None
    assert registry(CLASSES + r"\Mivo.Library\shell\open\command") is None
    assert settings.read_bytes() == kept, "the settings are the user's"


def test_the_zip_runs_where_it_is_unpacked(run, folder, state):
    with zipfile.ZipFile(package("*.zip")) as archive:
        archive.extractall(folder)
    (program,) = (path for path in folder.iterdir() if path.is_dir())
    sample = windows_path(program / "samples/standard.ZLB")

    listed = run(program / "mivo-cli.exe", "list", sample)
    assert listed.wait_end() == 0
    assert "LM358" in listed.log.read_text()

    run(program / "mivo.exe", sample).wait_main_window(f"Mivo - {sample}")
    assert (program / "MIVO.INI").exists(), "the settings are beside it"
