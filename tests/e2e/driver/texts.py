"""The program's texts: stories name them in English and find them in the language that the program speaks."""

import subprocess


def plain(text):
    """Without the mark of the mnemonic and without the keys."""
    return text.split("\t")[0].replace("&&", "\0").replace("&", "").replace("\0", "&")


class Texts:
    """Each text of the program in English and as it is shown."""

    def __init__(self, list_program, library, is_translated):
        lines = subprocess.run([list_program, library], check=True, capture_output=True, text=True).stdout
        pairs = [[text.encode().decode("unicode_escape").encode("latin1").decode() for text in line.split("\t")]
                 for line in lines.splitlines()]
        assert pairs, "The program has no texts."
        self._shown = {}
        for english, translated in pairs:
            self._shown.setdefault(plain(english), []).append(translated if is_translated else english)

    def shown(self, english):
        """What the English text may be shown as: one text has other translations in other dialogs."""
        assert english in self._shown, f"the program has no text {english!r}"
        return [plain(text) for text in self._shown[english]]

    def first(self, english):
        return self.shown(english)[0]

    def mnemonics(self, english):
        """The letters that choose what bears the text."""
        marked = [text.replace("&&", "") for text in self._shown[english]]
        return [text[text.index("&") + 1].lower() for text in marked if "&" in text]

    def everything(self):
        """Every text as it is shown."""
        return {plain(text) for texts in self._shown.values() for text in texts}
