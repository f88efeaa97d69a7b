"""Programs that a story starts."""

import ctypes
import os
import signal
import subprocess

from .waiting import wait_until

PR_SET_PDEATHSIG = 1
PR_SET_CHILD_SUBREAPER = 36
libc = ctypes.CDLL(None)


def start_process(command, **options):
    """Starts a program that ends with this one, however this one ends."""
    options.setdefault("stdin", subprocess.DEVNULL)
    return subprocess.Popen(command, preexec_fn=_end_with_parent, **options)


def _end_with_parent():
    libc.prctl(PR_SET_PDEATHSIG, signal.SIGKILL)


class Adopted:
    """A process that a program started and left alone when it ended."""

    def __init__(self, pid):
        self.pid = pid
        self.returncode = None

    def poll(self):
        return self._wait(os.WNOHANG)

    def wait(self):
        return self._wait(0)

    def kill(self):
        os.kill(self.pid, signal.SIGKILL)

    def _wait(self, options):
        if self.returncode is None:
            pid, status = os.waitpid(self.pid, options)
            if pid:
                self.returncode = os.waitstatus_to_exitcode(status)
        return self.returncode


def run_and_adopt(command, executable, **options):
    """Runs a program that starts another one, of this executable, and ends before it."""
    libc.prctl(PR_SET_CHILD_SUBREAPER, 1)
    subprocess.run(command, check=True, timeout=60, stdin=subprocess.DEVNULL, **options)

    def is_it(pid):
        try:
            return os.readlink(f"/proc/{pid}/exe") == str(executable)
        except OSError:  # not ours, or gone
            return False

    def find():
        return next((int(pid) for pid in os.listdir("/proc") if pid.isdigit() and is_it(pid)), None)

    # What is started may be a script that becomes the program.
    return Adopted(wait_until(find, f"a process of {executable}"))
