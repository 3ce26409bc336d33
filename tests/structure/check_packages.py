#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""What scripts/install-packages does while another package run holds apt's locks, on stand-ins for apt.

    check_packages.py
"""
import os
import pathlib
import stat
import subprocess
import sys
import tempfile

SCRIPT = pathlib.Path(__file__).resolve().parents[2] / "scripts/install-packages"
LOCKED = "E: Could not get lock /var/lib/apt/lists/lock. It is held by process 4711 (apt-get)"
# Refuses with the text of the file "refusal" for as many calls as the file "refusals" has lines.
APT = """#!/bin/sh
echo "$*" >>"$STAND_INS/calls"
if [ -s "$STAND_INS/refusals" ]; then
    sed -i 1d "$STAND_INS/refusals"
    cat "$STAND_INS/refusal" >&2
    exit 100
fi
"""


def install(refusal="", refusals=0, patience=60):
    """The script's exit code, what it said, and how often apt was called."""
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        for program, content in (("apt-get", APT), ("dpkg-query", "#!/bin/sh\nexit 1\n"),
                                 ("sudo", '#!/bin/sh\nexec "$@"\n'), ("sleep", "#!/bin/sh\n")):
            (folder / program).write_text(content, encoding="utf-8")
            (folder / program).chmod(stat.S_IRWXU)
        (folder / "refusal").write_text(refusal + "\n", encoding="utf-8")
        (folder / "refusals").write_text("again\n" * refusals, encoding="utf-8")
        surroundings = dict(os.environ, PATH=f"{folder}:{os.environ['PATH']}", STAND_INS=name,
                            ZELVAN_APT_PATIENCE=str(patience))
        done = subprocess.run([SCRIPT, "suite"], env=surroundings, capture_output=True, text=True,
                              check=False, timeout=90)
        calls = (folder / "calls").read_text(encoding="utf-8").splitlines()
        return done.returncode, done.stdout + done.stderr, len(calls)


def faults():
    code, said, calls = install()
    if (code, calls) != (0, 2) or "waiting" in said:
        yield f"a free lock: code {code}, {calls} calls: {said}"
    code, said, calls = install(LOCKED, refusals=3)
    if (code, calls) != (0, 5) or said.count("waiting") != 1:
        yield f"a lock held for a while: code {code}, {calls} calls: {said}"
    code, said, calls = install(LOCKED, refusals=100000, patience=1)
    if code == 0 or LOCKED not in said:
        yield f"a lock held for good: code {code}, {calls} calls: {said}"
    code, said, calls = install("E: Unable to locate package debootstrap", refusals=1)
    if code == 0 or calls != 1 or "Unable to locate" not in said:
        yield f"another error: code {code}, {calls} calls: {said}"


def main():
    found = list(faults())
    print("\n".join(found))
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
