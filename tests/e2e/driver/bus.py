"""A message bus of our own, over which the program tells about its controls as it tells assistive programs."""

import subprocess
import threading

from gi.repository import Gio, GLib

from .process import start_process
from .waiting import Gone

CONFIGURATION = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:dir={folder}</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow user="*"/>
    <allow own="*"/>
    <allow send_destination="*"/>
    <allow receive_sender="*"/>
  </policy>
</busconfig>
"""  # Any user: some stories start the program as another one.

ANNOUNCEMENT = """<node>
  <interface name="org.a11y.Bus"><method name="GetAddress"><arg type="s" direction="out"/></method></interface>
  <interface name="org.a11y.Status">
    <property name="IsEnabled" type="b" access="read"/>
    <property name="ScreenReaderEnabled" type="b" access="read"/>
  </interface>
</node>"""

DAEMON = ("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus")
LIMIT_MS = 60_000
MISSING = ("UnknownObject", "UnknownMethod", "UnknownInterface", "NoReply", "NameHasNoOwner",
           "ServiceUnknown", "Disconnected", "AccessDenied")


class Bus:
    """Starts the bus and says on it that an assistive program is there: the toolkit then opens its tree of controls."""

    def __init__(self, folder):
        configuration = folder / "bus.conf"
        configuration.write_text(CONFIGURATION.format(folder=folder))
        with open(folder / "bus.log", "wb") as log:
            self._daemon = start_process(
                ["dbus-daemon", f"--config-file={configuration}", "--print-address=1", "--nofork", "--nopidfile"],
                stdout=subprocess.PIPE,
                stderr=log,
                text=True,
            )
        self.address = self._daemon.stdout.readline().strip()
        assert self.address, f"The message bus did not start: {(folder / 'bus.log').read_text()}"
        self._connection = self._connect()
        self._announcer = threading.Thread(target=self._announce, daemon=True)
        self._announced = threading.Event()
        self._announcer.start()
        assert self._announced.wait(30), "The message bus does not answer."

    def end(self):
        self._loop.quit()
        self._announcer.join()
        self._daemon.terminate()
        self._daemon.wait()

    def call(self, service, path, interface, method, arguments=None):
        try:
            reply = self._connection.call_sync(
                service, path, interface, method, arguments, None, Gio.DBusCallFlags.NONE, LIMIT_MS, None
            )
        except GLib.Error as error:
            name = Gio.dbus_error_get_remote_error(error) or error.message
            if any(missing in name for missing in MISSING):
                raise Gone(f"{method} of {path}: {error.message}") from None
            raise
        return reply.unpack()

    def services_of(self, process):
        """The connections of a process, by its id."""
        names = [name for name in self.call(*DAEMON, "ListNames")[0] if name.startswith(":")]
        return [name for name in names if self._process_of(name) == process]

    def _process_of(self, name):
        try:
            return self.call(*DAEMON, "GetConnectionUnixProcessID", GLib.Variant("(s)", (name,)))[0]
        except Gone:
            return None

    def _connect(self):
        flags = Gio.DBusConnectionFlags
        connection = Gio.DBusConnection.new_for_address_sync(
            self.address, flags.AUTHENTICATION_CLIENT | flags.MESSAGE_BUS_CONNECTION, None, None
        )
        connection.set_exit_on_close(False)
        return connection

    def _announce(self):
        context = GLib.MainContext()
        context.push_thread_default()
        self._loop = GLib.MainLoop(context)
        connection = self._connect()

        def answer(_connection, _sender, _path, _interface, _method, _arguments, invocation):
            invocation.return_value(GLib.Variant("(s)", (self.address,)))

        def is_enabled(*_):
            return GLib.Variant("b", True)

        for interface in Gio.DBusNodeInfo.new_for_xml(ANNOUNCEMENT).interfaces:
            connection.register_object("/org/a11y/bus", interface, answer, is_enabled, None)
        name = GLib.Variant("(su)", ("org.a11y.Bus", 0))
        connection.call_sync(*DAEMON, "RequestName", name, None, Gio.DBusCallFlags.NONE, LIMIT_MS, None)
        self._announced.set()
        self._loop.run()
