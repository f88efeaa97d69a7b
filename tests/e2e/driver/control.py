"""The program's controls, as it shows them to assistive programs."""

from collections import namedtuple

from gi.repository import GLib

from .waiting import Gone, wait_until

PREFIX = "org.a11y.atspi."
LABELLED_BY = 2  # a kind of relation between controls
SCREEN = 0  # the coordinates that extents are asked in

# Bits of the state that stories ask for.
STATES = {
    "active": 1,
    "checked": 4,
    "enabled": 8,
    "focused": 12,
    "selected": 23,
    "sensitive": 24,
    "showing": 25,
    "visible": 30,
    "checkable": 41,
    "read only": 42,
}


class Box(namedtuple("Box", "x y width height")):
    """A rectangle on the screen, in pixels."""

    @property
    def middle(self):
        return self.x + self.width // 2, self.y + self.height // 2


class Control:
    """A window, menu, button ... of a running program. Raises Gone when it is there no longer."""

    def __init__(self, bus, service, path):
        self._bus = bus
        self._service = service
        self._path = path

    def __eq__(self, other):
        return (self._service, self._path) == (other._service, other._path)

    def __repr__(self):
        try:
            return f"<{self.role} {self.name!r}>"
        except Gone:
            return "<gone>"

    def _call(self, interface, method, arguments=None):
        return self._bus.call(self._service, self._path, PREFIX + interface, method, arguments)

    def _property(self, interface, name):
        arguments = GLib.Variant("(ss)", (PREFIX + interface, name))
        return self._bus.call(self._service, self._path, "org.freedesktop.DBus.Properties", "Get", arguments)[0]

    @property
    def name(self):
        return self._property("Accessible", "Name")

    @property
    def label(self):
        """What stands beside the control; a drop-down list is named by what is chosen in it."""
        if self.role != "combo box":
            return self.name
        relations = self._call("Accessible", "GetRelationSet")[0]
        labels = [Control(self._bus, *label) for kind, labels in relations if kind == LABELLED_BY for label in labels]
        return labels[0].name if labels else ""

    @property
    def role(self):
        return self._call("Accessible", "GetRoleName")[0]

    @property
    def box(self):
        return Box(*self._call("Component", "GetExtents", GLib.Variant("(u)", (SCREEN,)))[0])

    @property
    def text(self):
        return self._call("Text", "GetText", GLib.Variant("(ii)", (0, -1)))[0]

    @property
    def value(self):
        return self._property("Value", "CurrentValue")

    @property
    def children(self):
        return [Control(self._bus, *child) for child in self._call("Accessible", "GetChildren")[0]]

    def has(self, state):
        bit = STATES[state]
        words = self._call("Accessible", "GetState")[0]
        return bool(words[bit // 32] >> bit % 32 & 1)

    def walk(self, skip=()):
        """This control and all below it; what has a role in `skip` is not entered."""
        yield self
        if self.role in skip:
            return
        for child in self.children:
            yield from child.walk(skip)

    def all(self, *, name=None, role=None, skip=("menu bar", "table")):
        """The controls below this one that have the name and the role."""
        return [
            control
            for control in self.walk(skip)
            if (role is None or control.role == role) and (name is None or control.name == name)
        ]

    def find(self, *, name=None, role=None, showing=True):
        """Waits for the first control below this one that has the name and the role."""

        def first():
            found = self.all(name=name, role=role)
            return next((control for control in found if not showing or control.has("showing")), None)

        return wait_until(first, f"a {role or 'control'} {name!r}")
