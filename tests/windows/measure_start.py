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

from conftest import BUILD, UNDER_WINE, environment_on  # noqa: E402
from driver.desktop import SCREEN, Desktop  # noqa: E402
from driver.waiting import wait_until  # noqa: E402

ROUNDS = 7
LIMIT = 1.5
MIDDLE = (0, SCREEN[1] // 2, SCREEN[0], 1)  # a line of the screen that every large window crosses


def seconds_to_show(desktop, folder, program, title):
    """From the start of the process until the window is painted."""
    empty = desktop.picture(MIDDLE)
    start = time.monotonic()
    process = subprocess.Popen(
        [UNDER_WINE, program], cwd=folder, env=environment_on(desktop), stdin=subprocess.DEVNULL,
        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
    )  # fmt: skip
    wait_until(lambda: desktop.picture(MIDDLE) != empty, f"{program} to be painted", limit=120)
    taken = time.monotonic() - start
    desktop.close_window(title)
    assert process.wait(timeout=120) == 0
    wait_until(lambda: desktop.picture(MIDDLE) == empty, "the screen to be empty again")
    return taken


def main():
    folder = Path(tempfile.mkdtemp(prefix="mivo-start."))
    desktop = Desktop(folder)
    mivo = Path(shutil.copy(BUILD / "bin/mivo.exe", folder))
    programs = {"Empty window": BUILD / "bench/start/empty_window.exe", "Mivo": mivo}
    times = {title: [] for title in programs}
    for _ in range(ROUNDS + 1):  # the first start of all starts Wine as well, and does not count
        for title, program in programs.items():
            times[title].append(seconds_to_show(desktop, folder, program, title))
    empty, own = (statistics.median(times[title][1:]) for title in ("Empty window", "Mivo"))
    subprocess.run(["wineserver", "--kill"], env=environment_on(desktop), check=False)
    desktop.end()
    shutil.rmtree(folder)
    verdict = "within" if own <= LIMIT * empty else "ABOVE"
    print(f"Start under Wine: {own / empty:.2f} times an empty window ({own:.2f} s against {empty:.2f} s, medians of "
          f"{ROUNDS}), {verdict} the limit of {LIMIT}.")  # fmt: skip


main()
