"""Programs that a story starts."""

import ctypes
import signal
import subprocess

PR_SET_PDEATHSIG = 1
libc = ctypes.CDLL(None)


def start_process(command, **options):
    """Starts a program that ends with this one, however this one ends."""
    options.setdefault("stdin", subprocess.DEVNULL)
    return subprocess.Popen(command, preexec_fn=_end_with_parent, **options)


def _end_with_parent():
    libc.prctl(PR_SET_PDEATHSIG, signal.SIGKILL)
