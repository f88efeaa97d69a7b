"""What people do with Mivo on Windows, in real windows with real keys."""

import shutil
from pathlib import Path

import pytest

from conftest import BUILD, PREFIX, end_windows, windows_path
from driver.waiting import wait_until

QUESTION = "Mivo"  # the title of every message

ALIAS_COLOUR = (255, 0, 0)  # red, green, blue
PIN_NUMBER_COLOUR = (128, 0, 128)

COMPONENT = [
    "+TARSL_DATA_V.1.0",
    "+COMPONENT",
    "+TARSL_LIB_V.1.0",
    "VER:82",
    "+COMP,N:ΩΨ7",
    "X:4,Y:3,B:1",
    "TYPE:GEN,FB:0",
    "R:U",
    "+PIN,N:A,DF:FFFFFFFF,L:L1,T:,M:1,-PIN",
    "NOTE:,MFR:,MFRPN:,PKG:,-COMP",
    "-TARSL_LIB_V.1.0",
    "X:40,Y:30,LIB:ΩΨ7,N:ΩΨ7,R:U",
    "-COMPONENT",
    "-TARSL_DATA_V.1.0",
    "",
]


def title_of(path):
    return f"Mivo - {windows_path(path)}"


COPY_COMPONENT = ("Alt+c", "Down", "Enter")
PASTE_COMPONENT = ("Alt+c", "Down", "Down", "Enter")


def press_until(desktop, condition, what, *keys):
    """Presses the keys until they show: on a busy machine Wine loses some while it moves the focus."""
    for attempt in range(4):
        desktop.input.press(*keys)
        try:
            return wait_until(condition, what, limit=15)
        except AssertionError:
            if attempt == 3:
                raise


def delete_a_pin(desktop, start):
    """Done once it is in the recovery file: behind the library, the component as it is now."""

    def is_recorded():
        return any(bytes_of(file).count(b"-TARSL_LIB") == 2 for file in start.state.glob("recovery/*"))

    press_until(desktop, is_recorded, "the change to be recorded", "Tab", "Del")


def lacks_one_pin(path, original):
    """Whether the file has every line of the original in its place but that of one pin."""
    lines = original.split(b"\n")
    now = bytes_of(path).split(b"\n")
    gone = next((i for i, line in enumerate(now) if line != lines[i]), len(lines) - 1)
    return lines[gone].startswith(b"+PIN,") and now == lines[:gone] + lines[gone + 1 :]


def bytes_of(path):
    """The content of a file that the program may be replacing, which is not one step for Wine."""
    try:
        return path.read_bytes()
    except FileNotFoundError:
        return b""


def settings_in(folder):
    return bytes_of(folder / "MIVO.INI").decode("utf-16").replace("\r\n", "\n")


@pytest.fixture(params=["here", "deep down", "on a server"])
def library(request, sample, folder):
    """A library, and how Windows calls it."""
    path = sample("standard.ZLB")
    if request.param == "here":
        return path, windows_path(path)
    if request.param == "deep down":  # further than most paths of Windows may reach
        deep = folder.joinpath(*["n" * 60] * 5)
        deep.mkdir(parents=True)
        path = path.rename(deep / path.name)
        return path, windows_path(path)
    share = PREFIX / "dosdevices/unc/mivo-test/share"  # of packaging/windows/wine-environment
    return Path(shutil.copy(path, share)), rf"\\mivo-test\share\{path.name}"


def test_a_change_is_saved_byte_by_byte(desktop, start, library):
    path, name = library
    original = path.read_bytes()
    start(name, title=f"Mivo - {name}")
    delete_a_pin(desktop, start)
    press_until(desktop, lambda: lacks_one_pin(path, original), "the saved file", "Ctrl+s")


def test_the_native_dialog_makes_a_library_of_a_schematic(desktop, start, sample, folder):
    path = sample("flasher.ZSC")
    schematic = path.read_bytes()
    mivo = start(path.name, title=title_of(path))
    press_until(desktop, lambda: desktop.active_title() not in (title_of(path), None), "the dialog", "Ctrl+s")
    desktop.input.press("Ctrl+a")
    desktop.input.type(windows_path(folder / "made") + "\n")
    made = folder / "made.ZLB"  # with the default extension
    mivo.wait_window(title_of(made))
    assert made.read_bytes().startswith(b"+TARSL_LIB_V.1.0\nVER:82\n")
    assert path.read_bytes() == schematic


def test_the_native_dialog_opens_a_library(desktop, start, sample, folder):
    path = sample("standard.ZLB")
    mivo = start()
    press_until(desktop, lambda: desktop.active_title() not in ("Mivo", None), "the dialog", "Ctrl+o")
    desktop.input.type(windows_path(folder / "standard") + "\n")  # of the default extension
    mivo.wait_window(title_of(path))


@pytest.mark.parametrize(
    "keys, filters",
    [
        ("Ctrl+o", ["Tarsel library file(*.zlb)", "Tarsel schematic(*.zsc)"]),
        ("Ctrl+s", ["Tarsel library file(*.zlb)"]),
    ],
    ids=["open", "save"],
)
def test_the_native_dialog_offers_the_files_of_mivo(desktop, start, run, keys, filters):
    start()
    press_until(desktop, lambda: desktop.active_title() not in ("Mivo", None), "the dialog", keys)
    choices = run(BUILD / "tests/choices.exe")
    assert choices.wait_end() == 0
    offered = choices.log.read_text().splitlines()
    assert [choice for choice in offered if "*" in choice] == filters


def test_a_component_goes_to_notepad(desktop, start, run, sample, folder):
    path = sample("standard.ZLB")
    start(path.name, title=title_of(path))
    desktop.clipboard.put("-")
    press_until(
        desktop, lambda: (desktop.clipboard.get() or "").startswith("+TARSL"), "the component copied", *COPY_COMPONENT
    )

    note = folder / "note.txt"
    note.write_bytes(b"-")
    notepad = run("notepad", windows_path(note))
    notepad.wait_main_window("note.txt - Notepad")
    press_until(
        desktop, lambda: note.read_bytes() not in (b"-", b""), "the text in its file", "Ctrl+a", "Ctrl+v", "Ctrl+s"
    )
    lines = note.read_bytes().decode().split("\r\n")
    assert lines[:4] == ["+TARSL_DATA_V.1.0", "+COMPONENT", "+TARSL_LIB_V.1.0", "VER:82"]
    assert lines[-2:] == ["-TARSL_DATA_V.1.0", ""]
    assert "\n" not in "".join(lines), "every line ends as Windows ends lines"


@pytest.mark.parametrize("line_end", ["\r\n", "\n"], ids=["crlf", "lf"])
def test_a_component_comes_from_notepad(desktop, start, run, sample, folder, line_end):
    note = folder / "note.txt"
    note.write_bytes(b"\xff\xfe" + line_end.join(COMPONENT).encode("utf-16-le"))
    notepad = run("notepad", windows_path(note))
    notepad.wait_main_window("note.txt - Notepad")
    desktop.clipboard.put("-")
    press_until(desktop, lambda: "ΩΨ7" in (desktop.clipboard.get() or ""), "the text copied", "Ctrl+a", "Ctrl+c")

    path = sample("connectors-and-supply.ZLB")
    start(path.name, title=title_of(path))
    wanted = "\n".join(COMPONENT[4:10])
    press_until(
        desktop, lambda: wanted in bytes_of(path).decode(), "the component saved", *PASTE_COMPONENT, "Ctrl+s"
    )


def test_a_second_mivo_is_told_however_the_file_is_spelt(desktop, start, run, sample):
    path = sample("standard.ZLB")
    start(path.name, title=title_of(path))
    spelling = windows_path(path).upper()
    run(start.installed / "mivo.exe", spelling)
    told = {f"Mivo - {spelling}", QUESTION}
    wait_until(lambda: told <= set(desktop.titles()), "the library and the message", limit=120)


def test_unsaved_work_of_a_killed_program_is_restored(desktop, start, run, sample):
    path = sample("standard.ZLB")
    original = path.read_bytes()
    start(path.name, title=title_of(path))
    delete_a_pin(desktop, start)
    end_windows(desktop)
    assert path.read_bytes() == original

    run(start.installed / "mivo.exe")
    wait_until(lambda: desktop.titles().count("Mivo") == 2, "the window and the question", limit=120)
    press_until(desktop, lambda: desktop.has_window(title_of(path)), "the restored library", "r")
    assert path.read_bytes() == original
    press_until(desktop, lambda: lacks_one_pin(path, original), "the saved file", "Ctrl+s")
    wait_until(lambda: not list(start.state.glob("recovery/*")), "nothing to be left to restore")
    assert [copy.read_bytes() for copy in start.state.glob("copies/*/*")] == [original]


def test_closing_asks_about_changes(desktop, start, sample):
    path = sample("standard.ZLB")
    original = path.read_bytes()
    mivo = start(path.name, title=title_of(path))
    delete_a_pin(desktop, start)
    desktop.close_window(title_of(path))
    mivo.wait_window(QUESTION)
    press_until(desktop, lambda: not desktop.has_window(QUESTION), "the question to go", "Esc")
    assert mivo.process.poll() is None

    desktop.close_window(title_of(path))
    mivo.wait_window(QUESTION)
    desktop.input.press("n")
    assert mivo.wait_end() == 0
    assert path.read_bytes() == original


@pytest.mark.parametrize("answer", ["y", "n"])
def test_the_end_of_the_session_asks_about_changes(desktop, start, run, sample, answer):
    path = sample("standard.ZLB")
    original = path.read_bytes()
    mivo = start(path.name, title=title_of(path))
    delete_a_pin(desktop, start)
    session_end = run("wineboot", "--end-session")
    mivo.wait_window(QUESTION)
    desktop.input.press("Esc")
    session_end.wait_end()
    assert mivo.process.poll() is None, "the session goes on"
    wait_until(lambda: not desktop.has_window(QUESTION), "the question to go")

    run("wineboot", "--end-session")
    mivo.wait_window(QUESTION)
    desktop.input.press(answer)
    mivo.wait_end()
    if answer == "y":
        assert lacks_one_pin(path, original)
    else:
        assert path.read_bytes() == original
    assert not list(start.state.glob("recovery/*")), "nothing is left to restore"


def test_a_file_that_another_program_has_open_stays(desktop, start, run, sample):
    path = sample("standard.ZLB")
    original = path.read_bytes()
    mivo = start(path.name, title=title_of(path))
    delete_a_pin(desktop, start)
    other = run(BUILD / "tests/hold.exe", windows_path(path))
    wait_until(lambda: b"held" in other.log.read_bytes(), "the other program to have the file open")
    mivo.take_focus(title_of(path))
    press_until(desktop, lambda: desktop.has_window(QUESTION), "the message", "Ctrl+s")
    mivo.activate(QUESTION)
    assert path.read_bytes() == original
    press_until(desktop, lambda: not desktop.has_window(QUESTION), "the message to go", "Enter")

    other.process.stdin.close()
    other.wait_end()
    mivo.take_focus(title_of(path))
    press_until(desktop, lambda: lacks_one_pin(path, original), "the saved file", "Ctrl+s")


def test_the_language_library_beside_the_program_speaks(desktop, start, sample):
    shutil.copy(BUILD / "translations/de/mivo_lang.dll", start.installed)
    path = sample("standard.ZLB")
    start(path.name, title=title_of(path))
    press_until(desktop, lambda: desktop.has_window("Eigenschaften - Pin"), "the dialog in German", "Tab", "Enter")


def end(desktop, mivo):
    desktop.close_window("Mivo")
    assert mivo.wait_end() == 0


def test_the_window_keeps_its_size(desktop, start):
    first = start()
    before = settings_in(start.installed)
    desktop.resize("Mivo", 750, 560)
    wait_until(lambda: settings_in(start.installed) != before, "the new size in the settings")
    wait_until(lambda: desktop.size("Mivo") == (750, 560), "the new size")
    end(desktop, first)
    kept = settings_in(start.installed)

    second = start(settings=None)
    wait_until(lambda: desktop.size("Mivo") == (750, 560), "the same size")
    end(desktop, second)
    assert settings_in(start.installed) == kept


def test_a_maximised_window_keeps_its_normal_size(desktop, start):
    maximised = "[WindowPosition]\r\nWidth=900\r\nHeight=700\r\ncmdShow=3\r\n"
    end(desktop, start(settings=maximised))
    assert maximised.replace("\r", "") in settings_in(start.installed)
    mivo = start(settings=None)
    wait_until(lambda: desktop.is_maximised("Mivo"), "the maximised window")
    end(desktop, mivo)


def test_the_window_is_as_large_as_the_screen_wants(desktop, start, run):
    """Its size when nothing is kept in the settings, and with it all that is in it."""
    mivo = start(settings="")
    width, height = desktop.size("Mivo")
    end(desktop, mivo)
    run("reg", "add", r"HKCU\Control Panel\Desktop", "/v", "LogPixels", "/t", "REG_DWORD", "/d", "120", "/f").wait_end()
    end_windows(desktop)  # it is read at the start
    try:
        start(settings="")
        larger = desktop.size("Mivo")
    finally:
        run("reg", "delete", r"HKCU\Control Panel\Desktop", "/v", "LogPixels", "/f").wait_end()
        end_windows(desktop)
    assert larger == (width * 120 // 96, height * 120 // 96)


def test_the_window_follows_the_scale_of_its_monitor(desktop, start, run, sample):
    """The scale becomes 1.5: so large are the texts then, and a line of the drawing has 2 pixels in place of 1."""
    path = sample("standard.ZLB")
    title = title_of(path)
    start(path.name, title=title)

    def extents():
        picture = desktop.picture_of(title)
        return picture.extent(ALIAS_COLOUR), picture.extent(PIN_NUMBER_COLOUR)

    def scaled(extent, factor):
        return [pytest.approx(factor * pixels, abs=3) for pixels in extent]

    aliases, numbers = wait_until(lambda: all(extents()) and extents(), "the component")
    rescaled = run(BUILD / "tests/rescale.exe", title, "144")
    assert rescaled.wait_end() == 0, rescaled.log.read_text()
    wait_until(lambda: extents() == (scaled(aliases, 1.5), scaled(numbers, 2)), "all to be larger")
