"""A running Mivo and its windows."""

import re
from functools import cached_property

from .control import Control
from .dialog import Dialog
from .drag import FileDrag
from .waiting import Gone, wait_for, wait_until

DIALOG_ROLES = ("dialog", "alert message", "frame", "window")


def items_of(menu):
    """The items of a menu of the menu bar, open or not."""
    return [item for popup in menu.children for item in popup.children]


class Mivo:
    """Works with a started program as its user does."""

    def __init__(self, desktop, texts, process, log):
        """`log` is the file that holds what the program says."""
        self.desktop = desktop
        self.texts = texts
        self.input = desktop.input
        self.watchers = []  # called with this and every dialog that a story opens
        self.process = process
        self.log = log
        self.application = wait_until(self._application, "the program to show its controls")
        self.frame = wait_until(lambda: self._window(self._is_frame), "the window of the program")
        self.wait_active_or_ended()

    # --- Windows -----------------------------------------------------------------------------------

    def _application(self):
        assert self.process.poll() is None, f"The program ended: {self.log.read_text()}"
        for service in self.desktop.bus.services_of(self.process.pid):
            application = Control(self.desktop.bus, service, "/org/a11y/atspi/accessible/root")
            try:
                if application.role == "application":
                    return application
            except Gone:
                continue
        return None

    def _window(self, condition):
        for window in self.application.children:
            try:
                if window.role in DIALOG_ROLES and window.has("showing") and condition(window):
                    return window
            except Gone:
                continue
        return None

    @staticmethod
    def _is_frame(window):
        return window.name == "Mivo" or window.name.startswith("Mivo - ")

    @property
    def title(self):
        return self.frame.name

    def wait_title(self, title):
        wait_for(lambda: self.title, title, "the title of the window")

    def activate(self):
        self.desktop.activate(self.title)
        self._wait_active(lambda: self.frame.has("active"), "the window")

    def dialog(self, english):
        """Waits for the dialog with the title; it has the focus then."""
        titles = self.texts.shown(english)
        return self._opened(lambda window: window.name in titles, f"the dialog {english!r}")

    def message(self, english):
        """Waits for the message box with the text."""
        wanted = self.texts.shown(english)

        def says(window):
            return window != self.frame and any(label.name in wanted for label in window.all(role="label"))

        return self._opened(says, f"the message {english!r}")

    def toolkit_dialog(self):
        """Waits for a dialog that the toolkit brings along."""
        own = self.texts.everything()
        return self._opened(
            lambda window: window.role == "dialog" and window.name not in own, "a dialog of the toolkit"
        )

    def any_message(self):
        """Waits for a message box, whatever it says."""
        return self._opened(lambda window: window.role == "alert message", "a message")

    def file_dialog(self):
        """Waits for the question for a file's name."""
        # It alone has a list of folders and one of the kinds of files.
        return self._opened(
            lambda window: window.role == "dialog" and len(window.all(role="combo box")) == 2, "a file dialog"
        )

    def _opened(self, condition, what):
        control = wait_until(lambda: self._window(condition), what)
        self._wait_active(lambda: control.has("active"), what)
        dialog = Dialog(self, control)
        for watch in self.watchers:
            watch(self, dialog)
        return dialog

    def wait_active_or_ended(self):
        """Waits until one of the program's windows has the keyboard."""

        def is_active_or_ended():
            return self.process.poll() is not None or self._window(lambda window: window.has("active"))

        self._wait_active(is_active_or_ended, "a window")

    def _wait_active(self, condition, what):
        """The toolkit sometimes overlooks that it was given the keyboard; going elsewhere and coming back helps."""
        try:
            wait_until(condition, f"{what} to be active", limit=5)
        except AssertionError:
            self.desktop.give_keyboard_again()
            wait_until(condition, f"{what} to be active")

    # --- Commands ----------------------------------------------------------------------------------

    def press(self, *chords):
        self.input.press(*chords)

    def type(self, text):
        self.input.type(text)

    def menu(self, title, item):
        """Chooses a command with the mouse."""
        entry = self.menu_item(title, item)
        self.input.click(self._menu(title).box.middle)
        wait_until(lambda: entry.has("showing"), f"the menu {title!r} to open")
        self.input.click(entry.box.middle)

    def menu_by_keys(self, title, item):
        """Chooses a command with the keyboard: the menu by its letter, the command with the arrows."""
        menu, entry = self._menu(title), self.menu_item(title, item)
        items = [each for each in items_of(menu) if each.name]
        self.press(f"Alt+{self.texts.mnemonics(title)[0]}")
        wait_until(lambda: entry.has("showing"), f"the menu {title!r} to open")
        wait_until(lambda: any(each.has("focused") for each in items), "an item of the menu to be chosen")
        for _ in items:
            if entry.has("focused"):
                break
            chosen = next(each for each in items if each.has("focused"))
            self.press("Down")
            wait_until(lambda chosen=chosen: not chosen.has("focused"), "the next item of the menu")
        assert entry.has("focused"), f"the arrows do not reach {item!r}"
        self.press("Enter")

    def is_enabled(self, title, item):
        return self.menu_item(title, item).has("enabled")

    def _menu(self, title):
        names = self.texts.shown(title)
        return next(menu for menu in self.menu_bar.children if menu.name in names)

    @cached_property
    def menu_bar(self):
        return self.frame.find(role="menu bar")

    def menu_item(self, title, item):
        names = self.texts.shown(item)
        items = items_of(self._menu(title))
        return next(entry for entry in items if entry.name.split("\t")[0] in names)

    # --- What the window shows ---------------------------------------------------------------------

    @property
    def status(self):
        return "   ".join(label.name for label in self._status_labels)

    @cached_property
    def _status_labels(self):
        return self.frame.find(role="status bar").all(role="label")

    @cached_property
    def progress_bar(self):
        """Tells how far a long task has come; hidden most of the time."""
        return self.frame.find(role="progress bar", showing=False)

    def wait_status(self, english):
        """Waits until the status bar says what is expected next."""
        wanted = self.texts.first(english)
        wait_until(lambda: re.search(re.escape(wanted) + r"(?![:,\w])", self.status), f"the status bar to say {wanted!r}")

    @cached_property
    def name_list(self):
        return self.frame.find(name=self.texts.first("Component names"), role="list")

    @property
    def names(self):
        return [item.name for item in self.name_list.children]

    @property
    def selected_name(self):
        return next((item.name for item in self.name_list.children if item.has("selected")), None)

    @property
    def note(self):
        return self.note_box.text

    @cached_property
    def note_box(self):
        return self.frame.find(name=self.texts.first("Note of the component"), role="text")

    def choose(self, name):
        """Clicks a name in the list."""
        item = next(item for item in self.name_list.children if item.name == name)
        self.input.click(item.box.middle)
        wait_for(lambda: self.selected_name, name, "the selected name")

    # --- Files and the end -------------------------------------------------------------------------

    def answer_file_dialog(self, path):
        dialog = self.file_dialog()
        dialog.enter_file(path)

    def drop_file(self, path, place):
        """Drags a file from another program to the place on the screen and lets go of it there."""
        self.input.move(place)
        drag = FileDrag(self.desktop.name, path.as_uri())
        assert drag.enter(), "the window does not take the file"
        drag.drop()

    def save_as(self, path):
        self.menu("File", "Save as...")
        self.answer_file_dialog(path)
        self.wait_title(f"Mivo - {path}")

    def quit(self):
        """Leaves the program, which has nothing to ask."""
        self.menu("File", "Exit")
        self.wait_end()

    def quit_without_saving(self):
        self.menu("File", "Exit")
        self.message("Save changes?").click("No")
        self.wait_end()

    def wait_end(self):
        wait_until(lambda: self.process.poll() is not None, "the program to end")
        assert self.process.returncode == 0, f"The program ended with {self.process.returncode}"

    def end(self):
        """Ends the program whatever it shows, when a story is over."""
        if self.process.poll() is None:
            self.process.kill()
            self.process.wait()
