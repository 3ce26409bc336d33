#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""What a distribution hardens its programs with, looked for in a program itself.

    check_hardening.py PROGRAM

Prints what is missing and ends with 1 where anything is.
"""
import pathlib
import platform
import re
import subprocess
import sys

ENDBR64 = b"\xf3\x0f\x1e\xfa"
MARKS_OF_STARTUP_CODE = 20


def readelf(program, *options):
    return subprocess.run(["readelf", "--wide", *options, program], capture_output=True, text=True,
                          check=True, env={"LC_ALL": "C", "PATH": "/usr/bin:/bin"}).stdout


def missing(program):
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
        "calls with a check of their buffers (FORTIFY)":
            set(re.findall(r"\b__\w+_chk\b", symbols)),
    }
    if platform.machine() == "x86_64":
        # The program itself is marked only where the system's own start-up code is, too.
        marks = pathlib.Path(program).read_bytes().count(ENDBR64)
        checks["marked targets of jumps (CET)"] = marks > MARKS_OF_STARTUP_CODE
    return [name for name, found in checks.items() if not found]


def main():
    absent = missing(sys.argv[1])
    for name in absent:
        print(f"{sys.argv[1]}: without {name}")
    return 1 if absent else 0


if __name__ == "__main__":
    sys.exit(main())
