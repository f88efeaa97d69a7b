"""How long Mivo takes to start under Wine, as a ratio to an empty window of the toolkit in the same run.

    measure_start.py BUILD
"""

import os
import shutil
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

os.environ["MIVO_BUILD"] = sys.argv[1]

from conftest import BUILD, UNDER_WINE, end_windows, environment_on
from driver.desktop import SCREEN, Desktop
from driver.waiting import wait_until

ROUNDS = 7
LIMIT = 1.5
STRIP = (SCREEN[0] // 4, 0, SCREEN[0] // 4, SCREEN[1])  # of the screen; it crosses all of a large window
STILL = 2  # seconds after which a window changes no more


class Program:
    """One of those that are compared."""

    def __init__(self, desktop, folder, title, *command):
        self._desktop = desktop
        self._folder = folder
        self._title = title
        self._command = command
        self._empty = desktop.picture(STRIP)
        self._shown = None
        self.seconds = []

    def start(self):
        """Starts and ends the program; from the second time on, notes when all of its window was painted."""
        start = time.monotonic()
        process = subprocess.Popen(
            [UNDER_WINE, *self._command], cwd=self._folder, env=environment_on(self._desktop),
            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
        )

        def shows():
            assert process.poll() is None, f"{self._command} ended"
            return self._is_still() if self._shown is None else self._desktop.picture(STRIP) == self._shown

        wait_until(shows, f"the window {self._title!r} to be painted", limit=120)
        if self._shown is None:
            self._shown = self._desktop.picture(STRIP)
        else:
            self.seconds.append(time.monotonic() - start)
        self._desktop.close_window(self._title)
        assert process.wait(timeout=120) == 0
        wait_until(lambda: self._desktop.picture(STRIP) == self._empty, "the screen to be empty again")

    def _is_still(self):
        before = self._desktop.picture(STRIP)
        if before == self._empty:
            return False
        time.sleep(STILL)
        return self._desktop.picture(STRIP) == before


def main():
    folder = Path(tempfile.mkdtemp(prefix="mivo-start."))
    desktop = Desktop(folder)
    try:
        empty = Program(desktop, folder, "Empty window", BUILD / "bench/programs/bare_window.exe", "stay")
        mivo = Program(desktop, folder, "Mivo", shutil.copy(BUILD / "bin/mivo.exe", folder))
        for _ in range(1 + ROUNDS):  # the first start of all starts Wine as well
            empty.start()
            mivo.start()
    finally:
        end_windows(desktop)
        desktop.end()
        shutil.rmtree(folder)
    least, own = (statistics.median(program.seconds) for program in (empty, mivo))
    verdict = "within" if own <= LIMIT * least else "ABOVE"
    print(f"Start under Wine: {own / least:.2f} times an empty window ({own:.2f} s against {least:.2f} s, medians of "
          f"{ROUNDS}), {verdict} the limit of {LIMIT}.")
    return own <= LIMIT * least


sys.exit(0 if main() else 1)
