# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""A disk as a power cut leaves it, computed from the recorded calls of a run.

What is promised is what a journaling file system promises and no more. A file's bytes are there once the
file has been synced; of what was written since, any sectors may have arrived, in any order. A folder's
entries are there once the folder has been synced; of its changes since, any first few may have happened.
Files and folders know nothing of each other: a name may stand for a file whose bytes never came.
"""
import dataclasses
import os
import pathlib

SECTOR = 512


@dataclasses.dataclass
class Call:
    what: str
    inode: int
    offset: int
    data: bytes
    path: str
    other: str


def read_trace(path):
    calls = []
    with open(path, "rb") as trace:
        while head := trace.readline():
            what, inode, offset, size, name, other = head.decode().rstrip("\n").split("\t")
            calls.append(Call(what, int(inode), int(offset), trace.read(int(size)), name, other))
    return calls


class File:
    def __init__(self, data=b""):
        self.durable = data
        self.pending = []

    def sync(self):
        self.durable = self.after(self.pending)
        self.pending = []

    def after(self, changes):
        data = bytearray(self.durable)
        for offset, written in changes:
            if written is None:
                data[offset:] = bytes(max(0, offset - len(data)))
            else:
                if len(data) < offset:
                    data.extend(bytes(offset - len(data)))
                data[offset:offset + len(written)] = written
        return bytes(data)

    def some(self, chance):
        """All, none, the first few, or any sectors of what has not been synced."""
        kind = chance.choice(("all", "none", "first", "any"))
        if kind == "none":
            return self.durable
        if kind == "all":
            return self.after(self.pending)
        if kind == "first":
            return self.after(self.pending[:chance.randint(0, len(self.pending))])
        return self.after([part for change in self.pending for part in sectors(change)
                           if chance.random() < 0.6])


def sectors(change):
    offset, data = change
    if data is None:
        yield change
        return
    at = 0
    while at < len(data):
        size = SECTOR - (offset + at) % SECTOR
        yield offset + at, data[at:at + size]
        at += size


class Folder:
    def __init__(self):
        self.durable = {}
        self.pending = []

    def sync(self):
        self.durable = self.after(len(self.pending))
        self.pending = []

    def after(self, count):
        """The entries once the first `count` changes have happened too."""
        entries = dict(self.durable)
        for what, name, value in self.pending[:count]:
            if what == "set":
                entries[name] = value
            elif what == "drop":
                entries.pop(name, None)
            elif name in entries:
                entries[value] = entries.pop(name)
        return entries


class Disk:
    def __init__(self, root):
        """The tree as it is there now, all of it durable."""
        self.root = pathlib.Path(root)
        self.inodes = {}
        self.folders = {}
        self.known(self.root)

    def known(self, path):
        folder = self.folders[str(path)] = Folder()
        for entry in path.iterdir():
            if entry.is_dir():
                folder.durable[entry.name] = self.known(entry)
            else:
                folder.durable[entry.name] = self.inodes[entry.stat().st_ino] = File(entry.read_bytes())
        return folder

    def change(self, path, what, value=None):
        parent, name = os.path.split(path)
        self.folders[parent].pending.append((what, name, value))

    def apply(self, call):
        path = call.path.rstrip("/")
        if call.what in ("create", "unnamed"):
            made = self.inodes[call.inode] = File()
            if call.what == "create":
                self.change(path, "set", made)
        elif call.what == "link":
            self.change(path, "set", self.inodes[call.inode])
        elif call.what == "write":
            self.inodes[call.inode].pending.append((call.offset, call.data))
        elif call.what == "truncate":
            self.inodes[call.inode].pending.append((call.offset, None))
        elif call.what == "sync":
            self.inodes[call.inode].sync()
        elif call.what == "sync folder":
            self.folders[path].sync()
        elif call.what == "mkdir":
            made = self.folders[path] = Folder()
            self.change(path, "set", made)
        elif call.what in ("unlink", "rmdir"):
            self.change(path, "drop")
        elif call.what == "rename":
            if os.path.dirname(path) != os.path.dirname(call.other):
                raise NotImplementedError(f"a rename between folders: {path} to {call.other}")
            self.change(path, "move", os.path.basename(call.other))
        elif call.what != "say":
            raise NotImplementedError(call.what)

    def image(self, mode, chance):
        """Path and bytes of every file, None for a folder: "all" of what is pending, the "least", or
        "some" of it."""
        found = []

        def walk(folder, path):
            count = {"all": len(folder.pending), "least": 0}.get(mode)
            if count is None:
                count = chance.randint(0, len(folder.pending))
            for name, node in folder.after(count).items():
                if isinstance(node, Folder):
                    found.append((path / name, None))
                    walk(node, path / name)
                else:
                    data = {"all": lambda: node.after(node.pending), "least": lambda: node.durable,
                            "some": lambda: node.some(chance)}[mode]()
                    found.append((path / name, data))
        walk(self.folders[str(self.root)], self.root)
        return found
