"""A display that passes everything on to another one and counts what each program sends."""
import os
import select
import socket
import struct
import threading

PIECE = 1 << 16


class Display_Tap:
    """A display of its own in front of `display`; programs that are given `name` talk to that through it."""

    def __init__(self, display):
        self._target = "/tmp/.X11-unix/X" + display.lstrip(":").split(".")[0]
        self._sent = {}
        self._listener = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
        for number in range(200, 1000):
            self._path = f"/tmp/.X11-unix/X{number}"
            try:
                self._listener.bind(self._path)
                break
            except OSError:
                continue
        self.name = f":{number}"
        self._listener.listen(32)
        threading.Thread(target=self._serve, daemon=True).start()

    def sent_by(self, process):
        """The bytes that a process has sent so far, over all its connections."""
        return self._sent.get(process, 0)

    def close(self):
        self._listener.close()
        os.unlink(self._path)

    def _serve(self):
        while True:
            try:
                program, _ = self._listener.accept()
            except OSError:
                return
            server = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
            server.connect(self._target)
            threading.Thread(target=self._pass_on, args=(program, server), daemon=True).start()

    def _pass_on(self, program, server):
        process = struct.unpack("3i", program.getsockopt(socket.SOL_SOCKET, socket.SO_PEERCRED, 12))[0]
        with program, server:
            while True:
                for source in select.select([program, server], [], [])[0]:
                    try:
                        piece = source.recv(PIECE)
                    except OSError:
                        return
                    if not piece:
                        return
                    if source is program:
                        self._sent[process] = self._sent.get(process, 0) + len(piece)
                    (server if source is program else program).sendall(piece)
