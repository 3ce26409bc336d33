#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""Rules of the house that no compiler knows, checked over the tree.

    check_tree.py RULE [BUILD_FOLDER]

One rule a run, so that each is a test of its own; the names are those of RULES below. Prints every
place that breaks the rule and ends with 1 where there is one.
"""
import functools
import json
import os
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
NOT_OURS = {".git", "build", ".cache", "__pycache__"}  # folders
NO_LICENCE_LINES = {".md", ".png", ".json", ".ts", ".sql", ".bin", ".svg", ".ico"}
SOURCE_FOLDERS = ("core", "repositories", "models", "services", "printing", "qml")


@functools.cache
def tree():
    """All files of the tree, as paths relative to its root; a file that git ignores is not of it."""
    found = []
    for folder, subfolders, names in os.walk(ROOT):
        subfolders[:] = sorted(set(subfolders) - NOT_OURS)
        found += [pathlib.Path(folder, name).relative_to(ROOT) for name in sorted(names)]
    found = [path for path in found if path.name != ".git"]
    if (ROOT / ".git").exists():
        names = "\n".join(map(str, found))
        ignored = subprocess.run(["git", "check-ignore", "--stdin"], cwd=ROOT, input=names,
                                 capture_output=True, text=True, check=False).stdout.splitlines()
        found = [path for path in found if str(path) not in set(ignored)]
    return found


@functools.cache
def text(path):
    try:
        return (ROOT / path).read_text(encoding="utf-8")
    except UnicodeDecodeError:
        return None


def lines_matching(paths, pattern):
    for path in paths:
        for number, line in enumerate((text(path) or "").splitlines(), 1):
            if re.search(pattern, line):
                yield f"{path}:{number}: {line.strip()}"


def sql_wall(_):
    """SQL is spoken in repositories/ and core/ only; tests and benchmarks look into the file too."""
    outside = [path for path in tree() if path.suffix in {".cpp", ".h", ".qml", ".js"}
               and path.parts[0] not in {"repositories", "core", "tests", "bench", "fuzz"}]
    return lines_matching(outside, r"QSqlQuery|<QSql")


def include_direction(_):
    """A layer includes itself and the layers below, never one above."""
    below = {
        "core": {"core"},
        "repositories": {"core", "repositories"},
        "models": {"core", "repositories", "models"},
        "printing": {"core", "repositories", "printing"},
        "services": {"core", "repositories", "models", "printing", "services"},
    }
    # The composition root and the seeding library live in core/ but stand above.
    above_by_intent = re.compile(
        r"^core/(main|MainWindow|Repositories|Services|Translation|DatabaseSeeder)\.(cpp|h)$")
    for path in tree():
        allowed = below.get(path.parts[0])
        if allowed is None or path.suffix not in {".cpp", ".h"} or above_by_intent.match(str(path)):
            continue
        for match in re.finditer(r'^#include "(\w+)/[^"]+"', text(path), re.MULTILINE):
            if match[1] in SOURCE_FOLDERS and match[1] not in allowed:
                yield f"{path}: {match[0]}"


def licence_lines(_):
    """Each file says who wrote it and under which licence, in two lines near its top."""
    for path in tree():
        if path.suffix in NO_LICENCE_LINES or path.name.startswith(".") or path.name == "LICENSE":
            continue
        head = "\n".join((text(path) or "").splitlines()[:6])
        if "SPDX-FileCopyrightText:" not in head or "SPDX-License-Identifier:" not in head:
            yield f"{path}: lacks the two SPDX lines"


def own_words(_):
    """The code speaks for itself: it points at no document that is not in the tree."""
    words = (r"\b[Ss]pecification\b|\b[Ss]pec\.md\b|\bas[ ]specified\b|\bPart \d|\bthe description says\b"
             r"|\bissue \d|\bTO" r"DO\b|\bFIX" r"ME\b|console\.l" r"og\(|QSK" r"IP\b")
    mine = pathlib.Path("tests/structure/check_tree.py")
    return lines_matching([path for path in tree() if path != mine], words)


def no_registry_hosts(_):
    """Packages come by name, from wherever the machine's own configuration says."""
    hosts = r"\b(deb|security|snapshot|ftp[.\w]*)\.debian\.org|registry\.npmjs|pypi\.org|github\.com|crates\.io"
    mine = pathlib.Path("tests/structure/check_tree.py")
    return lines_matching([path for path in tree() if path != mine], hosts)


def migration_scripts(_):
    """The scripts' line ends and their one statement each are part of what stores already hold."""
    scripts = [path for path in tree() if path.parts[:3] == ("core", "database", "migrations")]
    if len(scripts) != 21:
        yield f"core/database/migrations: {len(scripts)} scripts, not 21"
    for path in scripts:
        content = (ROOT / path).read_bytes()
        if content.count(b"\n") != content.count(b"\r\n") or b"\r\n" not in content:
            yield f"{path}: a line does not end in CRLF"
        if content.count(b";") != 1 or not content.rstrip().endswith(b";"):
            yield f"{path}: has not exactly one semicolon, at its end"


def documents():
    return [path for path in tree() if path.suffix == ".md"]


def documented_paths(_):
    """Every path that the documents name is there: links, pictures, and `code` that looks like one."""
    for document in documents():
        content = text(document)
        named = set(re.findall(r"\]\(([^)#\s]+)", content))
        named = {name for name in named if "://" not in name}
        for link in sorted(named):
            if not (ROOT / document.parent / link).exists():
                yield f"{document}: links to {link}, which is not there"
        for code in sorted(set(re.findall(r"`([^`\n]+)`", content))):
            word = code.split()[0]
            if looks_like_path(word) and not exists(word):
                yield f"{document}: names {word}, which is not there"


def looks_like_path(word):
    if word.startswith(("/", "~", "$", "-", ":", "http")) or "<" in word or "*" in word:
        return False
    return "/" in word and re.fullmatch(r"[\w./-]+", word) is not None


def exists(word):
    # What a build makes is there after one; the document test runs in any order beside it.
    return word.split("/")[0] == "build" or (ROOT / word).exists()


def documented_commands(_):
    """Every command in the documents' shell blocks names a program, preset and test that there is."""
    presets = json.loads((ROOT / "CMakePresets.json").read_text())
    names = {preset["name"] for preset in presets["configurePresets"]}
    for document in documents():
        for block in re.findall(r"^```(?:sh|bash|shell)\n(.*?)^```", text(document), re.S | re.M):
            for line in block.splitlines():
                command = line.split("#")[0].strip()
                if not command:
                    continue
                yield from command_faults(document, command, names)


def command_faults(document, command, presets):
    word = command.split()[0]
    if "/" in word and not exists(word.removeprefix("./")):
        yield f"{document}: {command}: {word} is not there"
    for preset in re.findall(r"--preset[ =](\w+)", command):
        if preset not in presets:
            yield f"{document}: {command}: no preset {preset}"


def registered_tests(build):
    """Every test that lies in tests/ is one that ctest runs."""
    listed = subprocess.run(["ctest", "--test-dir", build, "--show-only=json-v1"],
                            capture_output=True, text=True, check=True).stdout
    names = {test["name"].lower() for test in json.loads(listed)["tests"]}
    for path in tree():
        is_test = path.parts[0] == "tests" and re.fullmatch(r"tst_\w+\.(cpp|qml)", path.name)
        stem = path.stem.lower()
        if is_test and not names & {stem, f"qml_{stem}"}:
            yield f"{path}: is no test of ctest"


def explicit_sources(_):
    """Every source stands in a CMake list, by hand: what stands in none is compiled by nobody."""
    listed = set()
    for path in tree():
        if path.name == "CMakeLists.txt":
            words = re.findall(r"[\w./-]+\.\w+", text(path))
            listed |= {pathlib.Path(os.path.normpath(path.parent / word)) for word in words}
            if re.search(r"file\(\s*GLOB", text(path)):
                yield f"{path}: lists files by pattern"
    for path in tree():
        if path.parts[0] in SOURCE_FOLDERS and path.suffix in {".cpp", ".qml", ".js"}:
            if path not in listed and "platform" not in path.parts:
                yield f"{path}: stands in no CMakeLists.txt"


def module_scripts(build):
    """The QML module lists no script: Qt 6.8 lets no document see such a module twice, as ours do."""
    listed = pathlib.Path(build, "qml/modules/zelvan/qmldir").read_text(encoding="utf-8").splitlines()
    if "module zelvan" not in listed:
        yield "qmldir: is none of the module"
    yield from (f"qmldir: {line}" for line in listed if line.endswith(".js"))


RULES = {rule.__name__: rule for rule in (
    sql_wall, include_direction, licence_lines, own_words, no_registry_hosts, migration_scripts,
    documented_paths, documented_commands, registered_tests, explicit_sources, module_scripts)}


def main(arguments):
    if not arguments or arguments[0] not in RULES:
        sys.exit(f"{__doc__}\nRules: {' '.join(RULES)}")
    rule = RULES[arguments[0]]
    faults = list(rule(arguments[1] if len(arguments) > 1 else ""))
    for fault in faults:
        print(fault)
    if faults:
        sys.exit(f"{len(faults)} against: {rule.__doc__}")


if __name__ == "__main__":
    main(sys.argv[1:])
