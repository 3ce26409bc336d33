# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""A computer of its own for one till: its disk, its settings, and the runs of the program on it."""
import dataclasses
import os
import pathlib
import shutil
import signal
import subprocess

PATIENCE = 30  # seconds until a run counts as hung


@dataclasses.dataclass
class Run:
    """What a run said, and how it ended."""
    lines: list
    status: int
    hung: bool
    log: str

    @property
    def crashed(self):
        return self.status not in (0, -signal.SIGKILL) and not self.hung

    def answer(self, operation):
        """True, False, or None where the user was told nothing."""
        for line in self.lines:
            if line.startswith(f"answer {operation} "):
                return line.endswith(" true")
        return None

    @property
    def state(self):
        for line in self.lines:
            if line.startswith("state "):
                return int(line.split()[1])
        return None


class Box:
    """Everything below `disk` is what a power cut or a fault is about; the log lies beside it."""

    READY = 5

    def __init__(self, folder, build):
        self.folder = pathlib.Path(folder)
        self.disk = self.folder / "disk"
        self.config = self.disk / "config"
        self.store = self.disk / "store" / "Zelvan.db"
        self.worker = build / "tests" / "steel_worker"
        self.library = build / "tests" / "libsteel_disk.so"
        # What starts the worker, and the variables it wants.
        self.through = []
        self.variables = {}
        self.kept = self.folder / "kept"
        self.config.mkdir(parents=True)
        (self.folder / "data").mkdir()

    def environment(self, **disk):
        """`disk`: the variables of the preloaded library, as trace=FILE or fault="sync 1 EIO once"."""
        own = {name: value for name, value in os.environ.items() if not name.startswith(("STEEL_", "QT_"))}
        own |= {"HOME": str(self.folder), "XDG_CONFIG_HOME": str(self.config),
                "XDG_DATA_HOME": str(self.folder / "data"), "XDG_RUNTIME_DIR": str(self.folder / "data"),
                "LC_ALL": "C.UTF-8", "TZ": "UTC", "QT_QPA_PLATFORM": "offscreen", "QT_QUICK_BACKEND": "software"}
        own |= self.variables
        if disk:
            own |= {"LD_PRELOAD": str(self.library), "STEEL_ROOT": f"{self.disk}/"}
            own |= {f"STEEL_{name.upper()}": str(value) for name, value in disk.items()}
        return own

    def start(self, *arguments, **disk):
        """A run that goes on; its words come through its standard output."""
        return subprocess.Popen([*self.through, self.worker, *map(str, arguments)], env=self.environment(**disk),
                                stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE)

    def run(self, *arguments, patience=PATIENCE, **disk):
        process = self.start(*arguments, **disk)
        return self.finish(process, patience)

    @staticmethod
    def finish(process, patience=PATIENCE):
        hung = False
        try:
            out, log = process.communicate(timeout=patience)
        except subprocess.TimeoutExpired:
            hung = True
            process.kill()
            out, log = process.communicate()
        # A line that the end cut short was not said.
        whole = out.decode(errors="replace").rpartition("\n")[0]
        return Run(whole.splitlines(), process.returncode, hung, log.decode(errors="replace"))

    def good(self, *arguments):
        """A run of which nothing but success is expected."""
        run = self.run(*arguments)
        if run.answer(arguments[0]) is not True or run.status != 0:
            raise AssertionError(f"{arguments}: {run.status} {run.lines}\n{run.log}")
        return run

    def open_shop(self, rounds=6):
        """A store with a menu, and an evening behind it."""
        self.good("setup", self.store)
        self.good("furnish")
        self.good("trade", 1, rounds)

    def keep(self):
        """Remembers the disk as it is now, for `again`."""
        shutil.rmtree(self.kept, ignore_errors=True)
        shutil.copytree(self.disk, self.kept, symlinks=True)

    def again(self):
        """The disk as it was remembered."""
        shutil.rmtree(self.disk, ignore_errors=True)
        shutil.copytree(self.kept, self.disk, symlinks=True)

    def configured(self, key="path"):
        """A value of the settings file, None where there is none."""
        try:
            lines = (self.config / "Zelvan" / "ZelvanPOS.conf").read_text(errors="replace").splitlines()
        except OSError:
            return None
        for line in lines:
            name, _, value = line.partition("=")
            if name == key:
                return value
        return None
