"""The clipboard as other programs see it."""

import subprocess

import Xlib.display
from Xlib import X

from .process import start_process

TEXT = "UTF8_STRING"


class Clipboard:
    """Stands for the other programs of the desktop: puts something on the clipboard, or reads what is there."""

    def __init__(self, desktop):
        self._desktop = desktop
        self._owner = None
        self._silent = None

    def be_silent(self):
        """Owns the clipboard and answers nobody who asks what is on it."""
        self.let_go()
        self._silent = Xlib.display.Display(self._desktop.name)
        owner = self._silent.screen().root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
        owner.set_selection_owner(self._silent.intern_atom("CLIPBOARD"), X.CurrentTime)
        self._silent.sync()

    @property
    def unanswered(self):
        """How often somebody has asked since then."""
        return self._silent.pending_events()

    def put(self, content, target=TEXT):
        """Owns the clipboard with this content until the next owner comes."""
        data = content.encode() if isinstance(content, str) else content
        self.let_go()
        self._owner = start_process(
            ["xclip", "-selection", "clipboard", "-quiet", "-target", target, "-in"],
            env=self._desktop.environment(),
            stdin=subprocess.PIPE,
            stdout=subprocess.DEVNULL,
            stderr=subprocess.PIPE,
        )
        self._owner.stdin.write(data)
        self._owner.stdin.close()
        # It tells that it waits for its first request once it owns the clipboard.
        assert self._owner.stderr.readline(), "xclip did not take the clipboard"

    def get(self, target=TEXT):
        """What is on the clipboard; None when it is not there in this form."""
        result = subprocess.run(
            ["xclip", "-selection", "clipboard", "-target", target, "-out"],
            env=self._desktop.environment(),
            capture_output=True,
            timeout=60,
        )
        if result.returncode != 0:
            return None
        return result.stdout.decode() if target == TEXT else result.stdout

    def let_go(self):
        if self._silent is not None:
            self._silent.close()
            self._silent = None
        if self._owner is not None:
            self._owner.kill()
            self._owner.wait()
            self._owner.stderr.close()
            self._owner = None
