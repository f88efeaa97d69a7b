"""The text records that libraries and schematics are made of."""


class RecordWriter:
    """Collects comma-separated fields into lines, escaped as Mivo itself writes them."""

    def __init__(self):
        self._lines = []
        self._fields = []

    def field(self, text):
        self._fields.append("".join(_escaped(character) for character in text))

    def text(self, key, value):
        self.field(f"{key}:{value}")

    def number(self, key, value):
        self.field(f"{key}:{value:d}")

    def mask(self, key, value):
        """Upper-case hexadecimal, padded with blanks to eight characters."""
        self.field(f"{key}:{value:8X}")

    def numbers(self, **values):
        for key, value in values.items():
            self.number(key, value)

    def point(self, point):
        self.numbers(X=point[0], Y=point[1])

    def end_line(self):
        self._lines.append(",".join(self._fields) + "\n")
        self._fields = []

    def line(self, *fields):
        """A line of fields that need no key, such as a lone tag."""
        for text in fields:
            self.field(text)
        self.end_line()

    def content(self):
        assert not self._fields, "the last line is not ended"
        return "".join(self._lines)


def _escaped(character):
    if character in "%," or 1 <= ord(character) <= 32:
        return f"%{ord(character):02X}"
    return character
