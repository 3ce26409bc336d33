#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""What the presets promise, tried on a project of one test that has no other part of this one.

    check_presets.py

A build folder remembers what it was once configured with: naming the preset again has to give the tests
back, and a folder without tests has to fail.
"""
import json
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
PROJECT = """cmake_minimum_required(VERSION 3.25)
project(One LANGUAGES NONE)
option(ZELVAN_BUILD_TESTS "Build the tests" ON)
if(ZELVAN_BUILD_TESTS)
    enable_testing()
    add_test(NAME one COMMAND ${CMAKE_COMMAND} -E true)
endif()
"""
REMEMBERED = {"ZELVAN_BUILD_TESTS": "OFF", "ZELVAN_BUILD_BENCH": "odd", "ZELVAN_SANITIZE": "odd", "ZELVAN_COVERAGE": "odd"}


def run(folder, *command):
    return subprocess.run(command, cwd=folder, capture_output=True, text=True, check=False)


def configure(folder, preset, **values):
    done = run(folder, "cmake", "--preset", preset, *(f"-D{name}={value}" for name, value in values.items()))
    if done.returncode != 0:
        sys.exit(f"cmake --preset {preset}: {done.stderr}")
    cache = (folder / "build" / preset / "CMakeCache.txt").read_text(encoding="utf-8")
    return dict(re.findall(r"^(\w+)(?::\w+)?=(.*)$", cache, re.MULTILINE))


def faults(folder, preset, is_tested):
    fresh = configure(folder, preset)
    shutil.rmtree(folder / "build" / preset)
    configure(folder, preset, **REMEMBERED)
    if is_tested and run(folder, "ctest", "--preset", preset).returncode == 0:
        yield f"{preset}: ctest passes where there is no test"
    again = configure(folder, preset)
    for name, odd in REMEMBERED.items():
        if again.get(name) != fresh.get(name) or again.get(name) == "odd":
            yield f"{preset}: {name} stays {again.get(name)} in a folder that was told {odd} before"
    if is_tested and run(folder, "ctest", "--preset", preset).returncode != 0:
        yield f"{preset}: the test does not come back"
    if is_tested and run(folder, "ctest", "--preset", preset, "-R", "^another$").returncode == 0:
        yield f"{preset}: ctest passes where no test has the name"


def main():
    presets = json.loads((ROOT / "CMakePresets.json").read_text(encoding="utf-8"))
    tested = {each["name"] for each in presets["testPresets"] if not each.get("hidden")}
    found = []
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        shutil.copy(ROOT / "CMakePresets.json", folder)
        shutil.copytree(ROOT / "cmake", folder / "cmake")
        (folder / "CMakeLists.txt").write_text(PROJECT, encoding="utf-8")
        for each in presets["configurePresets"]:
            if not each.get("hidden"):
                found += faults(folder, each["name"], each["name"] in tested)
    print("\n".join(found))
    sys.exit(1 if found or not tested else 0)


if __name__ == "__main__":
    main()
