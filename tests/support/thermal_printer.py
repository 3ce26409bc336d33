#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""A thermal printer on 127.0.0.1 that keeps what it is sent.

    thermal_printer.py DIR [PORT]

prints its port (a free one unless told) as its first line and stays until it is ended. The bytes of
the n-th document, which is one connection, appear as DIR/document-000n.bin once it is complete.
"""
import pathlib
import socket
import sys


def receive(connection):
    parts = []
    while part := connection.recv(65536):
        parts.append(part)
    return b"".join(parts)


def serve(folder, port):
    folder.mkdir(parents=True, exist_ok=True)
    number = 0
    with socket.create_server(("127.0.0.1", port)) as server:
        print(server.getsockname()[1], flush=True)
        while True:
            connection, _ = server.accept()
            with connection:
                document = receive(connection)
            # A connection without a byte is somebody asking whether the printer is there.
            if document:
                number += 1
                path = folder / f"document-{number:04}.bin"
                unfinished = path.with_suffix(".part")
                unfinished.write_bytes(document)
                unfinished.rename(path)


def main(arguments):
    if len(arguments) not in (1, 2):
        sys.exit(__doc__)
    serve(pathlib.Path(arguments[0]), int(arguments[1]) if len(arguments) == 2 else 0)


if __name__ == "__main__":
    main(sys.argv[1:])
