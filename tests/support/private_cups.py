#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""A CUPS server of one's own in one folder, beside and apart from the system's.

    private_cups.py start DIR             starts the server; prints the value for CUPS_SERVER
    private_cups.py add DIR QUEUE PORT    a raw queue for a printer at 127.0.0.1:PORT
    private_cups.py reject DIR QUEUE      the queue takes no more jobs
    private_cups.py stop DIR              stops the server, by its own process id

Clients find the server through the printed value: CUPS_SERVER=DIR/cups.sock. A path of a socket may
be 107 characters long at most, so DIR has to be short, and for root's server the folders above DIR
have to let everybody through (mode 711; those of mkdtemp do not). The thermal printer to go with a queue is
thermal_printer.py. Each command returns only when what it asks for is so, and fails after 20 seconds.
"""
import os
import pathlib
import signal
import socket
import subprocess
import sys
import time

SERVER_CONF = """\
Listen 127.0.0.1:{port}
Listen {folder}/cups.sock
LogLevel debug
Browsing No
DefaultAuthType None
WebInterface No
ErrorPolicy abort-job
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
"""

SERVER_FILES = """\
ServerRoot {folder}/etc
RequestRoot {folder}/spool
TempDir {folder}/tmp
CacheDir {folder}/cache
StateDir {folder}/state
AccessLog {folder}/access_log
ErrorLog {folder}/error_log
PageLog {folder}/page_log
"""

PATIENCE_SECONDS = 20


def tool(name):
    """The server and its tools lie in sbin, which a user's PATH may lack."""
    for folder in os.environ.get("PATH", "").split(":") + ["/usr/sbin", "/sbin"]:
        path = pathlib.Path(folder or ".") / name
        if os.access(path, os.X_OK):
            return str(path)
    sys.exit(f"{name} is not installed")


def wait_until(condition, failure):
    """Looks until the condition holds; a bounded wait on a condition, never on time alone."""
    deadline = time.monotonic() + PATIENCE_SECONDS
    while not condition():
        if time.monotonic() > deadline:
            sys.exit(failure)
        time.sleep(0.02)


def answers(path):
    with socket.socket(socket.AF_UNIX) as client:
        try:
            client.connect(str(path))
        except OSError:
            return False
    return True


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


def refuse_locked(folder):
    """A server of root runs its printers as another user, who must be able to walk in."""
    locked = [str(each) for each in folder.parents if not each.stat().st_mode & 0o001]
    if os.geteuid() == 0 and locked:
        sys.exit(f"not to be entered by all: {locked[0]}")


def start(folder):
    folder.mkdir(parents=True, exist_ok=True)
    folder.chmod(0o755)
    refuse_locked(folder)
    for name in ("etc", "spool", "tmp", "cache", "state"):
        (folder / name).mkdir(exist_ok=True)
    values = {"folder": folder, "port": free_port()}
    (folder / "cupsd.conf").write_text(SERVER_CONF.format(**values))
    (folder / "cups-files.conf").write_text(SERVER_FILES.format(**values))
    with open(folder / "output", "wb") as output:
        server = subprocess.Popen(
            [tool("cupsd"), "-f", "-c", folder / "cupsd.conf", "-s", folder / "cups-files.conf"],
            stdin=subprocess.DEVNULL, stdout=output, stderr=output, start_new_session=True)
    (folder / "cupsd.pid").write_text(str(server.pid))
    path = folder / "cups.sock"
    wait_until(lambda: server.poll() is not None or answers(path), "cupsd does not answer")
    if server.poll() is not None:
        sys.exit(f"cupsd ended:\n{(folder / 'output').read_text()}")
    print(path, flush=True)


def administer(name, folder, *arguments):
    done = subprocess.run([tool(name), "-h", folder / "cups.sock", *arguments],
                          capture_output=True, text=True, timeout=PATIENCE_SECONDS, check=False)
    if done.returncode != 0:
        sys.exit(f"{name} failed: {done.stderr}")


def add(folder, queue, port):
    # lpadmin warns that raw queues are deprecated; they are what a thermal printer needs.
    administer("lpadmin", folder, "-p", queue, "-E", "-v", f"socket://127.0.0.1:{port}", "-m", "raw")


def stop(folder):
    note = folder / "cupsd.pid"
    pid = int(note.read_text())
    try:
        os.kill(pid, signal.SIGTERM)
        # A test may have halted it, and a halted process does not hear the first signal.
        os.kill(pid, signal.SIGCONT)
        wait_until(lambda: not is_running(pid), f"cupsd {pid} does not end")
    except ProcessLookupError:
        pass
    note.unlink()


def is_running(pid):
    try:
        state = pathlib.Path(f"/proc/{pid}/stat").read_text().rpartition(")")[2].split()[0]
    except FileNotFoundError:
        return False
    return state != "Z"


def main(arguments):
    match arguments:
        case ["start", folder]:
            start(pathlib.Path(folder).resolve())
        case ["add", folder, queue, port]:
            add(pathlib.Path(folder).resolve(), queue, int(port))
        case ["reject", folder, queue]:
            administer("cupsreject", pathlib.Path(folder).resolve(), queue)
        case ["stop", folder]:
            stop(pathlib.Path(folder).resolve())
        case _:
            sys.exit(__doc__)


if __name__ == "__main__":
    main(sys.argv[1:])
