"""Waiting for conditions; no story waits for a time."""

import os
import time

# Seconds: generous, since only what is wrong takes so long. Less is convenient while a story is written.
LIMIT = float(os.environ.get("MIVO_E2E_LIMIT", 60))
INTERVAL = 0.01


class Gone(Exception):
    """A control or window that is no longer there, or not yet."""


def wait_until(condition, what, limit=LIMIT):
    """The first true value of the condition; fails naming `what` and the last other value."""
    deadline = time.monotonic() + limit
    while True:
        try:
            value = condition()
        except Gone as gone:
            value = None
            last = str(gone)
        else:
            last = repr(value)
        if value:
            return value
        assert time.monotonic() < deadline, f"waited in vain for {what}; the last value was {last}"
        time.sleep(INTERVAL)


def wait_for(get, expected, what):
    """Waits until `get` returns what is expected."""

    def is_expected():
        return get() == expected

    try:
        wait_until(is_expected, what)
    except AssertionError:
        assert get() == expected, what
        raise
