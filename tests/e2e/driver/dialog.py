"""A window that asks something."""

from .waiting import Gone, wait_for, wait_until


class Dialog:
    """Its fields are found by the English texts beside them."""

    def __init__(self, mivo, control):
        self.mivo = mivo
        self.control = control

    def field(self, english, role=None):
        """Waits for the control that bears the text."""
        names = self.mivo.texts.shown(english)
        roles = (role,) if role else ("text", "check box", "radio button", "push button", "combo box", "spin button")

        def first():
            return next(
                (each for each in self.control.walk() if each.role in roles and each.label in names), None
            )

        return wait_until(first, f"the field {english!r}")

    def text(self, english):
        return self.field(english, "text").text

    def fill(self, english, text):
        """Replaces the text of a field, with mouse and keyboard."""
        field = self.field(english, "text")
        self.mivo.input.click(field.box.middle)
        wait_until(lambda: field.has("focused"), f"the field {english!r} to have the focus")
        self.mivo.press("Ctrl+a")
        if text:
            self.mivo.type(text)
        else:
            self.mivo.press("Del")
        wait_for(lambda: field.text, text, f"the text of {english!r}")

    def check(self, english):
        """Clicks a check box or radio button."""
        field = self.field(english)
        before = field.has("checked")
        x, y, _, height = field.box
        self.mivo.input.click((x + height // 2, y + height // 2))
        wait_until(lambda: field.has("checked") != before, f"{english!r} to change")

    def choose(self, english, item):
        """Chooses an item of a list that drops down, with the keys that need no list to drop."""
        field = self.tab_to(english)
        items = field.find(role="list", showing=False).children
        index = [each.name for each in items].index(item)
        self.mivo.press("Home", *["Down"] * index)
        wait_for(lambda: field.name, item, f"the choice of {english!r}")

    def is_checked(self, english):
        return self.field(english).has("checked")

    def tab_to(self, english):
        """Goes to a control with Tab."""
        field = self.field(english)
        for _ in range(50):
            if field.has("focused"):
                return field
            before = self._focused()
            self.mivo.press("Tab")
            wait_until(lambda before=before: self._focused() != before, "Tab to go on")
        raise AssertionError(f"Tab does not lead to {english!r}")

    def _focused(self):
        return next((each for each in self.control.walk() if each.has("focused")), None)

    def click(self, english):
        self.mivo.input.click(self.field(english, "push button").box.middle)

    def close(self, english):
        """Clicks the button that closes the dialog."""
        self.click(english)
        self.wait_closed()

    def press(self, *chords):
        """Presses keys that close the dialog."""
        self.mivo.press(*chords)
        self.wait_closed()

    def wait_closed(self):
        wait_until(self._is_closed, "the dialog to close")
        self.mivo.wait_active_or_ended()  # keys sent earlier would be lost

    def _is_closed(self):
        try:
            return not self.control.has("showing")
        except Gone:
            return True

    def enter_file(self, path):
        """Answers the question for a file's name."""
        self._type_file(path, self._is_closed)
        self.wait_closed()

    def enter_existing_file(self, path):
        """The same for a file that is there, which the user agrees to replace."""
        self._type_file(path, lambda: not self.control.has("active"))
        self.mivo.any_message().press(f"Alt+{self.mivo.texts.mnemonics('Yes')[0]}")
        self.wait_closed()

    def _type_file(self, path, is_taken):
        field = wait_until(self._file_field, "the field of the file's name")
        wait_until(lambda: field.has("focused"), "the field of the file's name to have the focus")
        self.mivo.press("Ctrl+a")
        self.mivo.type(str(path))
        wait_for(lambda: field.text, str(path), "the file's name")
        self.mivo.press("Enter")
        try:
            wait_until(is_taken, "the name to be taken", limit=5)
        except AssertionError:
            self.mivo.press("Enter")  # the list of names that would complete it took the first one

    def proposed_file(self):
        return wait_until(self._file_field, "the field of the file's name").text

    def _file_field(self):
        fields = [each for each in self.control.walk(skip=("list", "table", "tree table", "combo box", "tree"))
                  if each.role == "text" and each.has("showing")]
        return fields[0] if fields else None
