"""A compositor with one thing more: programs may ask it to bring a window to the front, which Weston
does not offer. It stands between a program and the compositor, and notes what the program asks for."""

import array
import contextlib
import os
import select
import socket
import struct
import threading

INTERFACE = "xdg_activation_v1"
# No compositor counts that far.
NAME = 0xF0000001
DISPLAY = 1
OWN_TOKEN = "of-the-proxy"


def message(target, opcode, *arguments):
    """A message to or of an object; numbers, and text as the protocol has it."""
    body = b""
    for each in arguments:
        if isinstance(each, int):
            body += struct.pack("=I", each)
        else:
            text = each.encode() + b"\0"
            body += struct.pack("=I", len(text)) + text + bytes(-len(text) % 4)
    return struct.pack("=II", target, (len(body) + 8) << 16 | opcode) + body


def text_at(body, offset):
    """A text of a message, and where it ends."""
    length = struct.unpack_from("=I", body, offset)[0]
    text = body[offset + 4:offset + 3 + length].decode()
    return text, offset + 4 + length + -length % 4


class Direction:
    """What one side sends, a message at a time; `change` says what becomes of each."""

    def __init__(self, source, target, change):
        self._source, self._target, self._change = source, target, change
        self._rest = b""
        self._descriptors = array.array("i")

    def fileno(self):
        return self._source.fileno()

    def forward(self):
        """Whether there is more to come."""
        data, ancillary, _, _ = self._source.recvmsg(65536, 4096)
        for _, _, value in ancillary:
            self._descriptors.frombytes(value)
        self._rest += data
        self._send(b"".join(self._change(*each) for each in self._messages()))
        return bool(data)

    def _send(self, out):
        """With what came of files meanwhile: it is for one of these messages, or a later one."""
        if out:
            sent = socket.send_fds(self._target, [out], self._descriptors)
            self._target.sendall(out[sent:])
            while self._descriptors:
                os.close(self._descriptors.pop())

    def _messages(self):
        while len(self._rest) >= 8:
            target, word = struct.unpack_from("=II", self._rest)
            if len(self._rest) < word >> 16:
                return
            whole, self._rest = self._rest[:word >> 16], self._rest[word >> 16:]
            yield target, word & 0xFFFF, whole


class Connection:
    """One program's. Its objects of the interface stand for others of the compositor's, which do
    nothing, so that both count the same objects."""

    def __init__(self, program, compositor, asked):
        self._program, self._asked = program, asked
        self._registries, self._activations, self._tokens = set(), set(), set()
        self._stand_in = 0
        directions = [Direction(program, compositor, self._request),
                      Direction(compositor, program, self._event)]
        with program, compositor, contextlib.suppress(OSError):
            while all(each.forward() for each in select.select(directions, [], [])[0]):
                pass

    def _event(self, target, opcode, whole):
        if target in self._registries and opcode == 0 and text_at(whole, 12)[0] == "wl_compositor":
            self._stand_in = struct.unpack_from("=I", whole, 8)[0]
            return whole + message(target, 0, NAME, INTERFACE, 1)
        return whole

    def _request(self, target, opcode, whole):
        if target == DISPLAY and opcode == 1:
            self._registries.add(struct.unpack_from("=I", whole, 8)[0])
        elif target in self._registries and struct.unpack_from("=I", whole, 8)[0] == NAME:
            self._activations.add(struct.unpack_from("=I", whole, len(whole) - 4)[0])
            return message(target, 0, self._stand_in, "wl_compositor", 1, max(self._activations))
        elif target in self._activations:
            return self._request_of_activation(opcode, whole)
        elif target in self._tokens:
            return self._request_of_token(target, opcode)
        return whole

    def _request_of_activation(self, opcode, whole):
        if opcode == 1:
            self._tokens.add(struct.unpack_from("=I", whole, 8)[0])
            return whole  # to the stand-in it is a region
        if opcode == 2:
            self._asked.append(text_at(whole, 8)[0])
        return b""

    def _request_of_token(self, target, opcode):
        if opcode == 3:
            self._program.sendall(message(target, 0, OWN_TOKEN))
        if opcode == 4:
            self._tokens.remove(target)
            return message(target, 0)
        return b""


class ActivationProxy:
    def __init__(self, path, display):
        """Listens at `path` until it is closed."""
        self._display = display
        self._asked = []
        self._listener = socket.socket(socket.AF_UNIX)
        self._listener.bind(str(path))
        self._listener.listen()
        threading.Thread(target=self._accept, daemon=True).start()

    def asked(self):
        """The tokens with which programs have asked to come to the front."""
        return list(self._asked)

    def close(self):
        self._listener.shutdown(socket.SHUT_RDWR)
        self._listener.close()

    def _accept(self):
        with contextlib.suppress(OSError):
            while True:
                program, _ = self._listener.accept()
                compositor = socket.socket(socket.AF_UNIX)
                compositor.connect(self._display)
                threading.Thread(target=Connection, args=(program, compositor, self._asked),
                                 daemon=True).start()
