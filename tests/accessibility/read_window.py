#!/usr/bin/env python3
"""Reads the program's window as a screen reader does: over AT-SPI, from outside.

    dbus-run-session -- read_window.py PROGRAM

Starts a display of its own. Ends with 0 when everything was found.
"""
import os
import subprocess
import sys
import tempfile
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

LIBRARY = """+TARSL_LIB_V.1.0
VER:82
PROP:
+COMP,N:7474
X:6,Y:6,B:1
TYPE:GEN,FB:0
R:U
+PIN,N:D,DF:FFFFFFFF,L:L1,T:,M:2,-PIN
+PIN,N:CLK,DF:FFFFFFFF,L:L3,T:C,M:3,-PIN
+PIN,N:Q,DF:FFFFFFFF,L:R1,T:,M:5,-PIN
NOTE:,MFR:,MFRPN:,PKG:,-COMP
+ALIAS,A:74LS74,N:7474,-ALIAS
-TARSL_LIB_V.1.0
"""
PATIENCE = 120  # seconds that only a broken program needs


def wait_for(what, condition):
    """Lets events arrive until `condition` gives something; that is the result."""
    end = time.monotonic() + PATIENCE
    context = GLib.MainContext.default()
    while time.monotonic() < end:
        while context.pending():
            context.iteration(False)
        try:
            result = condition()
        except GLib.Error:  # what was there is gone
            result = None
        if result:
            return result
        time.sleep(0.05)
    raise SystemExit(f"never came: {what}")


def children(item):
    return [item.get_child_at_index(i) for i in range(item.get_child_count())]


def find(item, role, name):
    """The first descendant of that role and name."""
    for child in children(item):
        if child is None:
            continue
        if child.get_role_name() == role and child.get_name() == name:
            return child
        found = find(child, role, name)
        if found is not None:
            return found
    return None


def program():
    desktop = Atspi.get_desktop(0)
    return next((item for item in children(desktop) if item and item.get_name() == "mivo"), None)


def expect(what, actual, expected):
    if actual != expected:
        raise SystemExit(f"{what}: {actual!r} instead of {expected!r}")


def is_selected(item):
    item.clear_cache()
    return item.get_state_set().contains(Atspi.StateType.SELECTED)


def read(window):
    """Everything that a reader can find out about the window."""
    drawing = wait_for("the drawing", lambda: find(window, "canvas", "Drawing of the component"))
    pins = [item for item in children(drawing) if item.get_role_name() == "list item"]
    expect("pins", [pin.get_name() for pin in pins],
           ["pin L1 D number 2", "pin L3 CLK number 3", "pin R1 Q number 5"])
    expect("shape", pins[1].get_description(), "Clock")
    place = pins[1].get_extents(Atspi.CoordType.SCREEN)
    if place.width < 5 or place.height < 5:
        raise SystemExit("the pin has no place on the screen")
    under = drawing.get_accessible_at_point(place.x + place.width // 2, place.y + place.height // 2,
                                            Atspi.CoordType.SCREEN)
    expect("under its middle", under.get_name(), "pin L3 CLK number 3")

    told = []
    listener = Atspi.EventListener.new(lambda event: told.append(event.source.get_name()))
    listener.register("object:state-changed:selected")
    expect("selected", is_selected(pins[1]), False)
    pins[1].do_action(0)
    wait_for("the selection", lambda: is_selected(pins[1]))
    wait_for("the news of it", lambda: "pin L3 CLK number 3" in told)

    names = wait_for("the name list", lambda: find(window, "list", "Component names"))
    expect("names", [name.get_name() for name in children(names)[:2]], ["7474", "74LS74"])
    expect("first name", is_selected(names.get_child_at_index(0)), True)


def main():
    with tempfile.TemporaryDirectory() as folder:
        library = os.path.join(folder, "parts.ZLB")
        with open(library, "w", encoding="utf-8", newline="\n") as file:
            file.write(LIBRARY)
        ready, tell = os.pipe()
        display = subprocess.Popen(
            ["Xvfb", "-displayfd", str(tell), "-screen", "0", "1280x800x24", "-nolisten", "tcp"],
            pass_fds=[tell], stderr=subprocess.DEVNULL)
        os.close(tell)
        started = [display]
        try:
            with os.fdopen(ready) as numbers:
                number = numbers.readline().strip()
            environment = dict(os.environ, DISPLAY=":" + number, QT_QPA_PLATFORM="xcb",
                               QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", HOME=folder,
                               XDG_DATA_HOME=folder)
            os.environ["DISPLAY"] = environment["DISPLAY"]
            started.append(subprocess.Popen(["openbox"], env=environment,
                                            stderr=subprocess.DEVNULL))
            started.append(subprocess.Popen([sys.argv[1], library], env=environment))
            Atspi.init()
            read(wait_for("the program", program))
        finally:
            for process in reversed(started):
                process.terminate()
                process.wait()


main()
