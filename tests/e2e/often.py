# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""The program's first start again and again, beside as many busy processes as ZELVAN_BUSY says: how long the window
stays empty. Started by scripts/start-often; one that takes too long leaves a picture and what its threads did."""
import os
import pathlib
import statistics
import subprocess
import sys
import time

import tour

TIMES = int(os.environ.get("ZELVAN_TIMES", "200"))
BUSY = int(os.environ.get("ZELVAN_BUSY", "4"))
TOO_LONG = 15  # seconds
GIVEN_UP = 90
PAINTED = 24  # colours: a display without the first screen has fewer


def colours(picture):
    subprocess.run(["import", "-silent", "-window", "root", str(picture)], check=True, timeout=60)
    return int(subprocess.run(["identify", "-format", "%k", str(picture)], capture_output=True, text=True, check=True,
                              timeout=60).stdout)


def threads(pid):
    """Each thread's name, state and the kernel's place it waits at; all stacks where a debugger is there."""
    lines = []
    for task in sorted(pathlib.Path(f"/proc/{pid}/task").iterdir()):
        lines.append(" ".join((task / part).read_text(errors="replace").strip() for part in ("comm", "wchan")))
        lines.append("  " + (task / "status").read_text().split("State:")[1].splitlines()[0].strip())
    try:
        lines.append(subprocess.run(["gdb", "-p", str(pid), "-batch", "-ex", "thread apply all bt 30"], timeout=60,
                                    capture_output=True, text=True, check=False).stdout)
    except FileNotFoundError:
        lines.append("(no debugger here)")
    lines.append(subprocess.run(["xwininfo", "-root", "-tree", "-stats"], capture_output=True, text=True, timeout=20,
                                check=False).stdout)
    return "\n".join(lines)


def start(program, pictures, number, log):
    """Seconds until the first screen is painted; the number of those given up is GIVEN_UP."""
    picture = pictures / f"start-{number:03}.png"
    begin = time.monotonic()
    process = subprocess.Popen([program], stdin=subprocess.DEVNULL, stdout=log, stderr=log, cwd=os.environ["HOME"])
    told = False
    try:
        while colours(picture) < PAINTED:
            assert process.poll() is None, f"start {number} ended with {process.returncode}"
            waited = time.monotonic() - begin
            if waited > TOO_LONG and not told:
                told = True
                (pictures / f"start-{number:03}.txt").write_text(threads(process.pid), encoding="utf-8")
                picture.rename(pictures / f"start-{number:03}-empty.png")
            if waited > GIVEN_UP:
                return waited
        return time.monotonic() - begin
    finally:
        process.terminate()
        process.wait(timeout=60)
        if not told:
            picture.unlink(missing_ok=True)


def main(program, pictures, work):
    pictures = pathlib.Path(pictures)
    busy = [subprocess.Popen([sys.executable, "-c", "while True: pass"]) for _ in range(BUSY)]
    try:
        with open(pathlib.Path(work) / "program.log", "ab") as log:
            taken = []
            for number in range(1, TIMES + 1):
                with tour.window_manager():
                    taken.append(start(program, pictures, number, log))
                if number % 20 == 0 or taken[-1] > TOO_LONG:
                    print(f"start {number}: {taken[-1]:.1f} s", flush=True)
    finally:
        for each in busy:
            each.kill()
            each.wait()
    late = sum(1 for seconds in taken if seconds > TOO_LONG)
    print(f"{len(taken)} starts beside {BUSY} busy processes: median {statistics.median(taken):.2f} s,"
          f" longest {max(taken):.2f} s, {late} longer than {TOO_LONG} s")
    sys.exit(1 if late else 0)


if __name__ == "__main__":
    main(*sys.argv[1:])
