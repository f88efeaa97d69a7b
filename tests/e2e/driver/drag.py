"""Another program from which a file is dragged: the source's side of the X protocol for drag and drop."""

import time

from Xlib import X, Xatom
from Xlib.display import Display
from Xlib.protocol import event

from .waiting import LIMIT, wait_until

VERSION = 5
URIS = "text/uri-list"
ACCEPTED = 1


class FileDrag:
    """Offers what an address names to the window under the pointer, as a file manager does."""

    def __init__(self, display_name, address):
        self._display = Display(display_name)
        self._addresses = f"{address}\r\n".encode()
        self._source = self._display.screen().root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
        self._source.set_selection_owner(self._atom("XdndSelection"), X.CurrentTime)
        self._target = wait_until(self._window_under_pointer, "a window that takes drops under the pointer")

    def enter(self):
        """True when the window would take the file."""
        self._tell("XdndEnter", VERSION << 24, self._atom(URIS), 0, 0)
        pointer = self._display.screen().root.query_pointer()
        place = pointer.root_x << 16 | pointer.root_y
        self._tell("XdndPosition", 0, place, X.CurrentTime, self._atom("XdndActionCopy"))
        return bool(self._wait("XdndStatus")[1] & ACCEPTED)

    def drop(self):
        """Ends when the window has told that it has what it wants."""
        self._tell("XdndDrop", 0, X.CurrentTime, 0, 0)
        self._wait("XdndFinished")
        self._display.close()

    def leave(self):
        self._tell("XdndLeave", 0, 0, 0, 0)
        self._display.close()

    def _atom(self, name):
        return self._display.intern_atom(name)

    def _window_under_pointer(self):
        window = self._display.screen().root
        while window:
            if window.get_full_property(self._atom("XdndAware"), Xatom.ATOM):
                return window
            window = window.query_pointer().child
        return None

    def _tell(self, message, *data):
        data = (32, [self._source.id, *data])
        self._target.send_event(event.ClientMessage(window=self._target, client_type=self._atom(message), data=data))
        self._display.flush()

    def _wait(self, message):
        """What the window answers; meanwhile it may ask for the file."""
        deadline = time.monotonic() + LIMIT
        while time.monotonic() < deadline:
            if not self._display.pending_events():
                time.sleep(0.01)
                continue
            came = self._display.next_event()
            if came.type == X.SelectionRequest:
                self._hand_over(came)
            elif came.type == X.ClientMessage and came.client_type == self._atom(message):
                return came.data[1]
        raise AssertionError(f"waited in vain for {message}")

    def _hand_over(self, request):
        request.requestor.change_property(request.property, request.target, 8, self._addresses)
        request.requestor.send_event(
            event.SelectionNotify(
                time=request.time,
                requestor=request.requestor,
                selection=request.selection,
                target=request.target,
                property=request.property,
            )
        )
        self._display.flush()
