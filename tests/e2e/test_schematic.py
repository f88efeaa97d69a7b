"""A schematic is opened and changed; what is saved is a library, and the schematic stays as it was."""

import subprocess


def change_library_text(mivo, text):
    mivo.menu("Component", "Library property...")
    dialog = mivo.dialog("Property - library")
    dialog.fill("Library text", text)
    dialog.close("OK")


def test_a_schematic_is_saved_as_a_library(start, sample, cli, folder):
    schematic = sample("flasher.ZSC")
    original = schematic.read_bytes()
    library = folder / "flasher.ZLB"
    mivo = start(schematic)
    assert mivo.title == f"Mivo - {schematic}"
    names = mivo.names
    assert names[:3] == ["NE555", "R", "R(1)"]
    change_library_text(mivo, "Taken out of a schematic")

    # Cancelled: nothing is saved, and the window stays with the schematic.
    mivo.press("Ctrl+s")
    mivo.file_dialog().press("Esc")
    assert mivo.title == f"Mivo - {schematic}"
    assert not library.exists()

    # Under the schematic's own name: refused.
    mivo.press("Ctrl+s")
    mivo.file_dialog().enter_existing_file(schematic)
    mivo.message("Cannnot save the document. Try saving as.").close("OK")
    assert schematic.read_bytes() == original

    # As proposed.
    mivo.menu("File", "Save")
    dialog = mivo.file_dialog()
    assert dialog.proposed_file() == "flasher.ZLB"
    dialog.press("Enter")
    mivo.wait_title(f"Mivo - {library}")
    assert schematic.read_bytes() == original

    # From here on it is a library like any other: Save asks nothing.
    change_library_text(mivo, "Changed again")
    mivo.press("Ctrl+s")
    mivo.quit()
    assert library.read_text().startswith("+TARSL_LIB_V.1.0\nVER:82\nPROP:Changed%20again\n")
    listed = subprocess.run([cli, "list", library], check=True, capture_output=True, text=True).stdout
    assert [line.split("\t")[0] for line in listed.splitlines()] == names
    assert schematic.read_bytes() == original
    assert sorted(path.name for path in folder.glob("flasher*")) == ["flasher.ZLB", "flasher.ZSC"]
