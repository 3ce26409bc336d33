#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""What a distribution hardens its programs with, looked for in a program itself.

    check_hardening.py PROGRAM BUILD_FOLDER

Prints what is missing and ends with 1 where anything is.
"""
import json
import pathlib
import platform
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
ENDBR64 = b"\xf3\x0f\x1e\xfa"
MARKS_OF_STARTUP_CODE = 20


def readelf(program, *options):
    return subprocess.run(["readelf", "--wide", *options, program], capture_output=True, text=True,
                          check=True, env={"LC_ALL": "C", "PATH": "/usr/bin:/bin"}).stdout


def fortified(build_folder):
    """Leaves a mark in the program only where a call needs it, so this one is read in the commands."""
    commands = json.loads(pathlib.Path(build_folder, "compile_commands.json").read_text())
    ours = [entry["command"] for entry in commands
            if pathlib.Path(entry["file"]).is_relative_to(ROOT / "core")]
    return ours and all("-D_FORTIFY_SOURCE=3" in command for command in ours)


def missing(program, build_folder):
    header = readelf(program, "--file-header")
    segments = readelf(program, "--program-headers")
    dynamic = readelf(program, "--dynamic")
    symbols = readelf(program, "--dyn-syms")
    code = segments[:segments.index("Section to Segment")]

    checks = {
        "a program that can be loaded anywhere (PIE)":
            re.search(r"Type:\s+DYN", header) and re.search(r"FLAGS_1.*\bPIE\b", dynamic),
        "tables that are closed once the program is loaded (RELRO)": "GNU_RELRO" in segments,
        "calls that are bound before the program begins (BIND_NOW)": "BIND_NOW" in dynamic,
        "a stack that cannot be run": re.search(r"GNU_STACK.*\bRW\b", segments),
        "no segment that can be both written and run": not re.search(r"\bRWE\b", code),
        "guarded frames (stack protector)": "__stack_chk_fail" in symbols,
        "calls with a check of their buffers (FORTIFY)": fortified(build_folder),
    }
    if platform.machine() == "x86_64":
        # The program itself is marked only where the system's own start-up code is, too.
        marks = pathlib.Path(program).read_bytes().count(ENDBR64)
        checks["marked targets of jumps (CET)"] = marks > MARKS_OF_STARTUP_CODE
    return [name for name, found in checks.items() if not found]


def main():
    absent = missing(*sys.argv[1:3])
    for name in absent:
        print(f"{sys.argv[1]}: without {name}")
    return 1 if absent else 0


if __name__ == "__main__":
    sys.exit(main())
