"""What keeps work from being lost when a program is killed, or when two write the same file."""

from test_saving import change, is_saved

from driver.waiting import wait_until


def is_in_the_middle(dialog, mivo):
    """The desktop's frames around them may differ."""
    (x, y), (frame_x, frame_y) = dialog.control.box.middle, mivo.frame.box.middle
    return abs(x - frame_x) <= 20 and abs(y - frame_y) <= 40


def test_unsaved_work_of_a_killed_program_is_restored(start, sample, folder):
    path = sample("connectors-and-supply.ZLB")
    original = path.read_bytes()
    mivo = start(path)
    change(mivo, "Unsaved")

    def is_kept():
        files = [each for each in (folder / "home").rglob("*") if each.is_file()]
        return any(b"PROP:Unsaved" in each.read_bytes() for each in files)

    wait_until(is_kept, "the change to be kept")
    mivo.end()
    assert path.read_bytes() == original

    mivo = start()
    question = mivo.any_message()
    said = " ".join(label.name for label in question.control.all(role="label"))
    assert str(path) in said
    assert is_in_the_middle(question, mivo), "as soon as the window is shown"
    question.close("Restore")
    mivo.wait_title(f"Mivo - {path}")
    assert path.read_bytes() == original
    mivo.press("Ctrl+s")
    wait_until(lambda: is_saved(path, "Unsaved"), "the restored change to be saved")
    mivo.quit()

    mivo = start(path)
    mivo.quit()  # nothing is left to be asked


def test_a_file_that_another_program_writes(start, sample):
    path = sample("connectors-and-supply.ZLB")
    mivo = start(path)
    change(mivo, "Changed")
    others = path.read_bytes() + b"\n"
    path.write_bytes(others)

    mivo.press("Ctrl+s")
    mivo.message("Another program has changed the file since it was opened here.\nOverwrite it?").close("Cancel")
    assert path.read_bytes() == others
    mivo.press("Ctrl+s")
    mivo.message("Another program has changed the file since it was opened here.\nOverwrite it?").close("OK")
    wait_until(lambda: is_saved(path, "Changed"), "the library to be saved")
    mivo.quit()


def test_a_library_that_is_open_twice(start, sample):
    path = sample("connectors-and-supply.ZLB")
    start(path)
    second = start(path)
    second.message("This library is open in another Mivo, too.\nWhoever saves second is asked first.").close("OK")
    second.quit()
