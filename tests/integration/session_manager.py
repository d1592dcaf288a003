"""The session manager of an X11 desktop, which ends the session.

Usage: session_manager.py
It says its address, for SESSION_MANAGER. It is told "end", and says "done" when it has told every
program to die.
"""

import ctypes
import select
import sys

ICE = ctypes.CDLL("libICE.so.6")
SM = ctypes.CDLL("libSM.so.6")
LIBC = ctypes.CDLL(None)

POINTER = ctypes.c_void_p
SAVE_BOTH, INTERACT_ANY = 2, 2
SAVE_LOCAL, INTERACT_NONE = 1, 0
PROCESS_MESSAGES_IO_ERROR = 1

NEW_CLIENT = ctypes.CFUNCTYPE(ctypes.c_int, POINTER, POINTER, ctypes.POINTER(ctypes.c_ulong),
                              ctypes.POINTER(POINTER), ctypes.POINTER(POINTER))
HOST_IS_TRUSTED = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_char_p)
# The callbacks have one to three arguments more, of which none is needed.
IO_ERROR = ctypes.CFUNCTYPE(None, POINTER)
REGISTER = ctypes.CFUNCTYPE(ctypes.c_int, POINTER, POINTER, POINTER)
ANSWER = ctypes.CFUNCTYPE(None, POINTER, POINTER, POINTER, POINTER)

for function in (ICE.IceAcceptConnection, ICE.IceComposeNetworkIdList):
    function.restype = POINTER
LIBC.strdup.restype = POINTER


class SessionManager:
    """One program at a time is enough."""

    def __init__(self):
        self._connection = self._client = None
        self._keep = []
        self._savings = 0
        # Else the program would end with the first client that goes.
        ICE.IceSetIOErrorHandler(self._kept(IO_ERROR(lambda _: None)))
        # It is nobody else's business.
        ICE._IceTransNoListen(b"tcp")
        error = ctypes.create_string_buffer(256)
        assert SM.SmsInitialize(b"test", b"1", self._kept(NEW_CLIENT(self._new_client)), None,
                                self._kept(HOST_IS_TRUSTED(lambda _: 1)), len(error),
                                error), error.value
        self._count, self._list = ctypes.c_int(), POINTER()
        assert ICE.IceListenForConnections(ctypes.byref(self._count), ctypes.byref(self._list),
                                           len(error), error), error.value
        self._listeners = ctypes.cast(self._list, ctypes.POINTER(POINTER))[:self._count.value]
        for each in self._listeners:
            ICE.IceSetHostBasedAuthProc(POINTER(each), self._kept(HOST_IS_TRUSTED(lambda _: 1)))
        address = ICE.IceComposeNetworkIdList(self._count, self._list)
        print(ctypes.string_at(address).decode(), flush=True)

    def close(self):
        """Takes its socket out of the directory where all session managers have theirs."""
        ICE.IceFreeListenObjs(self._count, self._list)

    def _kept(self, callback):
        """The libraries do not know that Python collects what nobody holds."""
        self._keep.append(callback)
        return callback

    def run(self):
        while True:
            by_number = {ICE.IceGetListenConnectionNumber(POINTER(each)): each
                         for each in self._listeners}
            watched = [sys.stdin.fileno(), *by_number]
            connection = self._connection and ICE.IceConnectionNumber(POINTER(self._connection))
            if connection is not None:
                watched.append(connection)
            for ready in select.select(watched, [], [])[0]:
                if ready == sys.stdin.fileno():
                    if not sys.stdin.readline():
                        return
                    SM.SmsSaveYourself(POINTER(self._client), SAVE_BOTH, 1, INTERACT_ANY, 0)
                elif ready == connection:
                    if ICE.IceProcessMessages(POINTER(self._connection), None,
                                              None) == PROCESS_MESSAGES_IO_ERROR:
                        self._connection = None
                else:
                    status = ctypes.c_int()
                    self._connection = ICE.IceAcceptConnection(POINTER(by_number[ready]),
                                                               ctypes.byref(status))

    def _new_client(self, client, _data, mask, callbacks, _reason):
        """In the order of the library's structure, each followed by data for it."""
        self._client = client
        register = self._kept(REGISTER(self._register))
        interact = self._kept(ANSWER(lambda each, *_: SM.SmsInteract(POINTER(each))))
        nothing = self._kept(ANSWER(lambda *_: None))
        saved = self._kept(ANSWER(self._saved))
        functions = [register, interact, nothing, nothing, nothing, saved, nothing, nothing,
                     nothing, nothing]
        table = ctypes.cast(callbacks, ctypes.POINTER(POINTER))
        for i, each in enumerate(functions):
            table[2 * i] = ctypes.cast(each, POINTER)
            table[2 * i + 1] = None
        mask[0] = (1 << len(functions)) - 1
        return 1

    def _register(self, client, _data, previous):
        if not previous:
            SM.SmsRegisterClientReply(POINTER(client), POINTER(LIBC.strdup(b"one")))
            SM.SmsSaveYourself(POINTER(client), SAVE_LOCAL, 0, INTERACT_NONE, 0)
        return 1

    def _saved(self, client, *_):
        """Programs save their state once when they come."""
        self._savings += 1
        if self._savings == 1:
            SM.SmsSaveComplete(POINTER(client))
            return
        SM.SmsDie(POINTER(client))
        print("done", flush=True)


if __name__ == "__main__":
    manager = SessionManager()
    manager.run()
    manager.close()
