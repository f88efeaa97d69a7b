"""A display of its own for every story: screen, window manager, message bus, clipboard."""

import os
import subprocess
from pathlib import Path

import Xlib.display
import Xlib.error
from Xlib import X
from Xlib.protocol import event

from .bus import Bus
from .clipboard import Clipboard
from .screen import Picture
from .user_input import UserInput
from .waiting import wait_until

SCREEN = (1600, 1200)


class Desktop:
    """Everything that a program finds on a display; nothing of the developer's own."""

    def __init__(self, folder):
        self.folder = folder
        self._started = []
        self._start_display()
        self.input = UserInput(self._display)
        self.clipboard = Clipboard(self)
        self._start("openbox", "--sm-disable", "--config-file", str(Path(__file__).with_name("openbox.xml")))
        root = self._display.screen().root
        supporting = self._display.intern_atom("_NET_SUPPORTING_WM_CHECK")
        wait_until(lambda: root.get_full_property(supporting, X.AnyPropertyType), "the window manager")
        self.bus = Bus(folder)

    def _start_display(self):
        readable, writable = os.pipe()
        width, height = SCREEN
        with open(self.folder / "display.log", "wb") as log:
            self._started.append(
                subprocess.Popen(
                    ["Xvfb", "-displayfd", str(writable), "-screen", "0", f"{width}x{height}x24",
                     "-nolisten", "tcp", "-noreset"],
                    pass_fds=[writable],
                    stdin=subprocess.DEVNULL,
                    stdout=log,
                    stderr=log,
                )  # fmt: skip
            )
        os.close(writable)
        with open(readable) as answer:
            number = answer.readline().strip()
        assert number, f"The display did not start: {(self.folder / 'display.log').read_text()}"
        self.name = f":{number}"
        self._display = Xlib.display.Display(self.name)

    def _start(self, *command):
        with open(self.folder / f"{command[0]}.log", "wb") as log:
            self._started.append(
                subprocess.Popen(command, env=self.environment(), stdin=subprocess.DEVNULL, stdout=log, stderr=log)
            )

    def end(self):
        self.clipboard.let_go()
        self.bus.end()
        self._display.close()
        for process in reversed(self._started):
            process.terminate()
            process.wait()

    def environment(self, home=None):
        """The whole environment of a program on this display."""
        home = home or self.folder
        variables = {
            "DISPLAY": self.name,
            "HOME": str(home),
            "LANG": "C.UTF-8",
            "PATH": os.environ["PATH"],
            "QT_QPA_PLATFORM": "xcb",
            "XDG_RUNTIME_DIR": str(home),
        }
        if hasattr(self, "bus"):
            variables["DBUS_SESSION_BUS_ADDRESS"] = self.bus.address
        return variables

    def picture(self, box=None):
        root = self._display.screen().root
        return Picture.of(root, *(box or (0, 0, *SCREEN)))

    def pointer(self):
        answer = self._display.screen().root.query_pointer()
        return answer.root_x, answer.root_y

    def activate(self, title):
        """Brings the window to the front, as a task bar does."""
        window = wait_until(lambda: self._window(title), f"the window {title!r}")
        root = self._display.screen().root
        message = event.ClientMessage(
            window=window,
            client_type=self._display.intern_atom("_NET_ACTIVE_WINDOW"),
            data=(32, [2, X.CurrentTime, 0, 0, 0]),  # 2: on behalf of the user
        )
        root.send_event(message, event_mask=X.SubstructureRedirectMask | X.SubstructureNotifyMask)
        active = self._display.intern_atom("_NET_ACTIVE_WINDOW")

        def has_keyboard():
            return root.get_full_property(active, X.AnyPropertyType).value[0] == window.id

        wait_until(has_keyboard, f"the window {title!r} to get the keyboard")

    def close_window(self, title):
        """Asks the window to close, as the cross in its frame does."""
        window = wait_until(lambda: self._window(title), f"the window {title!r}")
        protocol = self._display.intern_atom("WM_DELETE_WINDOW")
        message = event.ClientMessage(
            window=window,
            client_type=self._display.intern_atom("WM_PROTOCOLS"),
            data=(32, [protocol, X.CurrentTime, 0, 0, 0]),
        )
        window.send_event(message)
        self._display.sync()

    def wait_popup_menu(self):
        """Waits for a menu that belongs to no menu bar: the program does not list those among its controls."""

        def is_open():
            for window in self._display.screen().root.query_tree().children:
                try:
                    attributes = window.get_attributes()
                except Xlib.error.BadWindow:
                    continue
                # Windows that the window manager keeps its hands off.
                if attributes.override_redirect and attributes.map_state == X.IsViewable:
                    kind = self._display.intern_atom("_NET_WM_WINDOW_TYPE")  # the window manager's own have none
                    if window.get_full_property(kind, X.AnyPropertyType):
                        return True
            return False

        wait_until(is_open, "a menu to open")

    def _window(self, title):
        root = self._display.screen().root
        listed = root.get_full_property(self._display.intern_atom("_NET_CLIENT_LIST"), X.AnyPropertyType)
        for number in listed.value if listed else ():
            window = self._display.create_resource_object("window", number)
            name = window.get_full_property(self._display.intern_atom("_NET_WM_NAME"), X.AnyPropertyType)
            if name and name.value.decode(errors="replace") == title:
                return window
        return None
