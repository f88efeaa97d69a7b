"""A display of its own for every story: screen, window manager, message bus, clipboard."""

import os
from pathlib import Path

import Xlib.display
import Xlib.error
from Xlib import X
from Xlib.protocol import event

from .bus import Bus
from .clipboard import Clipboard
from .process import start_process
from .screen import Picture
from .user_input import WATCHING, UserInput
from .waiting import wait_until

SCREEN = (1600, 1200)
ON_BEHALF_OF_THE_USER = 2


class Desktop:
    """Everything that a program finds on a display; nothing of the developer's own."""

    def __init__(self, folder):
        self.folder = folder
        self._started = []
        self._start_display()
        self.input = UserInput(self._display)
        self.clipboard = Clipboard(self)
        self._start("openbox", "--sm-disable", "--config-file", str(Path(__file__).with_name("openbox.xml")))
        wait_until(lambda: self._property(self._root, "_NET_SUPPORTING_WM_CHECK"), "the window manager")
        self.bus = Bus(folder)

    def _start_display(self):
        """A display that chooses a free number and listens on no network; in a window for those who want to watch."""
        readable, writable = os.pipe()
        width, height = SCREEN
        server = ["Xephyr", "-screen"] if WATCHING else ["Xvfb", "-screen", "0"]
        options = [f"{width}x{height}x24", "-displayfd", str(writable), "-nolisten", "tcp", "-noreset"]
        with open(self.folder / "display.log", "wb") as log:
            self._started.append(start_process([*server, *options], pass_fds=[writable], stdout=log, stderr=log))
        os.close(writable)
        with open(readable) as answer:
            number = answer.readline().strip()
        assert number, f"The display did not start: {(self.folder / 'display.log').read_text()}"
        self.name = f":{number}"
        self._display = Xlib.display.Display(self.name)
        self._root = self._display.screen().root

    def _start(self, *command):
        with open(self.folder / f"{command[0]}.log", "wb") as log:
            self._started.append(start_process(command, env=self.environment(), stdout=log, stderr=log))

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
        return Picture.of(self._root, *(box or (0, 0, *SCREEN)))

    def pointer(self):
        answer = self._root.query_pointer()
        return answer.root_x, answer.root_y

    # --- Windows, by their titles ------------------------------------------------------------------

    def activate(self, title):
        """Brings the window to the front, as a task bar does."""
        window = self._window(title)
        self._ask(window, "_NET_ACTIVE_WINDOW", ON_BEHALF_OF_THE_USER, X.CurrentTime)
        wait_until(
            lambda: window.id in self._property(self._root, "_NET_ACTIVE_WINDOW"),
            f"the window {title!r} to get the keyboard",
        )

    def give_keyboard_again(self):
        """Takes the keyboard from the active window and gives it back."""
        (number,) = self._property(self._root, "_NET_ACTIVE_WINDOW")
        self._display.set_input_focus(X.NONE, X.RevertToNone, X.CurrentTime)
        window = self._display.create_resource_object("window", number)
        self._ask(window, "_NET_ACTIVE_WINDOW", ON_BEHALF_OF_THE_USER, X.CurrentTime)

    def maximise(self, title, on=True):
        """As the button in the window's frame does."""
        both = [self._atom(f"_NET_WM_STATE_MAXIMIZED_{way}") for way in ("HORZ", "VERT")]
        self._ask(self._window(title), "_NET_WM_STATE", int(on), *both, ON_BEHALF_OF_THE_USER)

    def is_maximised(self, title):
        return self._atom("_NET_WM_STATE_MAXIMIZED_HORZ") in self._property(self._window(title), "_NET_WM_STATE")

    def resize(self, title, width, height):
        self._window(title).configure(width=width, height=height)
        self._display.sync()

    def size(self, title):
        size = self._window(title).get_geometry()
        return size.width, size.height

    def picture_of(self, title):
        """The window's inside."""
        window = self._window(title)
        size = window.get_geometry()
        corner = self._root.translate_coords(window, 0, 0)
        return self.picture((corner.x, corner.y, size.width, size.height))

    def close_window(self, title):
        """As the cross in the window's frame does."""
        window = self._window(title)
        data = (32, [self._atom("WM_DELETE_WINDOW"), X.CurrentTime, 0, 0, 0])
        window.send_event(event.ClientMessage(window=window, client_type=self._atom("WM_PROTOCOLS"), data=data))
        self._display.sync()

    def _ask(self, window, what, *values):
        """Asks the window manager to do something with a window."""
        data = (32, [*values, *[0] * (5 - len(values))])
        message = event.ClientMessage(window=window, client_type=self._atom(what), data=data)
        self._root.send_event(message, event_mask=X.SubstructureRedirectMask | X.SubstructureNotifyMask)
        self._display.sync()

    def wait_popup_menu(self):
        """Waits for a menu that belongs to no menu bar: the program does not list those among its controls."""

        def is_open():
            for window in self._root.query_tree().children:
                try:
                    attributes = window.get_attributes()
                    # The window manager keeps its hands off menus; its own windows have no type.
                    if attributes.override_redirect and attributes.map_state == X.IsViewable:
                        if self._property(window, "_NET_WM_WINDOW_TYPE"):
                            return True
                except Xlib.error.BadWindow:
                    continue
            return False

        wait_until(is_open, "a menu to open")

    def _window(self, title):
        return wait_until(lambda: self._listed_window(title), f"the window {title!r}")

    def has_window(self, title):
        return self._listed_window(title) is not None

    def titles(self):
        """The titles of all windows."""
        return [title for _, title in self._listed_windows()]

    def active_title(self):
        """The title of the window that has the keyboard; None when there is none."""
        active = self._property(self._root, "_NET_ACTIVE_WINDOW")
        return next((title for window, title in self._listed_windows() if window.id in active), None)

    def click_in_corner(self, title):
        """Clicks into the window, near its lower right corner."""
        window = self._window(title)
        size = window.get_geometry()
        corner = self._root.translate_coords(window, size.width - 60, size.height - 60)
        self.input.click((corner.x, corner.y))

    def _listed_window(self, title):
        return next((window for window, its_title in self._listed_windows() if its_title == title), None)

    def _listed_windows(self):
        """The windows and their titles."""
        for number in self._property(self._root, "_NET_CLIENT_LIST"):
            window = self._display.create_resource_object("window", number)
            try:
                yield window, bytes(self._property(window, "_NET_WM_NAME")).decode(errors="replace")
            except Xlib.error.BadWindow:
                continue

    def _atom(self, name):
        return self._display.intern_atom(name)

    def _property(self, window, name):
        found = window.get_full_property(self._atom(name), X.AnyPropertyType)
        return found.value if found else ()
