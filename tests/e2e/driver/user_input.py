"""Keyboard and mouse of the display: events as hardware would send them."""

import os
import time

from Xlib import XK, X
from Xlib.ext import xtest

KEYS = {
    "Ctrl": "Control_L",
    "Shift": "Shift_L",
    "Alt": "Alt_L",
    "Enter": "Return",
    "Esc": "Escape",
    "Del": "Delete",
    "PageUp": "Prior",
    "PageDown": "Next",
    "Backspace": "BackSpace",
    "Space": "space",
}
LEFT, MIDDLE, RIGHT, WHEEL_UP, WHEEL_DOWN = 1, 2, 3, 4, 5


# Seconds to pause after each key and click, for those who want to see what happens.
WATCHING = float(os.environ.get("MIVO_E2E_WATCH", 0))


class UserInput:
    """Sends events to whatever window has the focus or lies under the pointer."""

    def __init__(self, display):
        self._display = display

    def press(self, *chords):
        """Presses keys one after the other, each like "F11" or "Ctrl+Shift+S"."""
        for chord in chords:
            codes = [self._code(key) for key in chord.split("+")]
            for code in codes:
                self._send(X.KeyPress, code)
            for code in reversed(codes):
                self._send(X.KeyRelease, code)

    def type(self, text):
        shift = self._code("Shift")
        for character in text:
            keysym = XK.XK_Return if character == "\n" else ord(character)
            places = self._display.keysym_to_keycodes(keysym)
            assert places, f"no key for {character!r}"
            code, level = min(places, key=lambda place: place[1])
            assert level < 2, f"no plain key for {character!r}"
            if level == 1:
                self._send(X.KeyPress, shift)
            self._send(X.KeyPress, code)
            self._send(X.KeyRelease, code)
            if level == 1:
                self._send(X.KeyRelease, shift)

    def hold(self, key):
        self._send(X.KeyPress, self._code(key))

    def let_go(self, key):
        self._send(X.KeyRelease, self._code(key))

    def move(self, point):
        x, y = point
        self._send(X.MotionNotify, x=x, y=y)

    def button_down(self, button=LEFT):
        self._send(X.ButtonPress, button)

    def button_up(self, button=LEFT):
        self._send(X.ButtonRelease, button)

    def click(self, point, button=LEFT):
        self.move(point)
        self.button_down(button)
        self.button_up(button)

    def double_click(self):
        """Where the pointer is; sent at once, so that a busy machine does not make two clicks of it."""
        for kind in (X.ButtonPress, X.ButtonRelease) * 2:
            xtest.fake_input(self._display, kind, LEFT)
        self._display.sync()

    def _code(self, key):
        keysym = XK.string_to_keysym(KEYS.get(key, key)) or (ord(key) if len(key) == 1 else 0)
        code = self._display.keysym_to_keycode(keysym)
        assert code, f"no key {key!r}"
        return code

    def _send(self, kind, detail=0, x=0, y=0):
        xtest.fake_input(self._display, kind, detail, x=x, y=y)
        self._display.sync()
        if WATCHING and kind in (X.KeyPress, X.ButtonRelease):
            time.sleep(WATCHING)
