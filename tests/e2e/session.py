"""A session manager for the tests: it logs the desktop out, and notes what the program answers.

The libraries are those by which the program's own toolkit talks to the desktop's session manager.
"""
import ctypes
import functools
import os
import select
import threading
from ctypes import CFUNCTYPE, POINTER, byref, c_char_p, c_int, c_ulong, c_void_p
from driver import wait_for, Skipped

SAVE_LOCAL, SAVE_BOTH = 1, 2
NO_INTERACTION, ANY_INTERACTION = 0, 2
TEXT_SIZE = 256


class Value(ctypes.Structure):
    _fields_ = [("length", c_int), ("data", c_void_p)]


class Property(ctypes.Structure):
    _fields_ = [("name", c_char_p), ("type", c_char_p), ("count", c_int), ("values", POINTER(Value))]


Properties = POINTER(POINTER(Property))
Status = c_int
# What the library calls for each message of a client, in the order of its table: the connection and the manager's own
# pointer come first.
CALLBACKS = (
    ("register_client", CFUNCTYPE(Status, c_void_p, c_void_p, c_void_p)),
    ("interact_request", CFUNCTYPE(None, c_void_p, c_void_p, c_int)),
    ("interact_done", CFUNCTYPE(None, c_void_p, c_void_p, c_int)),
    ("save_yourself_request", CFUNCTYPE(None, c_void_p, c_void_p, c_int, c_int, c_int, c_int, c_int)),
    ("save_yourself_phase2_request", CFUNCTYPE(None, c_void_p, c_void_p)),
    ("save_yourself_done", CFUNCTYPE(None, c_void_p, c_void_p, c_int)),
    ("close_connection", CFUNCTYPE(None, c_void_p, c_void_p, c_int, c_void_p)),
    ("set_properties", CFUNCTYPE(None, c_void_p, c_void_p, c_int, Properties)),
    ("delete_properties", CFUNCTYPE(None, c_void_p, c_void_p, c_int, c_void_p)),
    ("get_properties", CFUNCTYPE(None, c_void_p, c_void_p)),
)


class Callback(ctypes.Structure):
    _fields_ = [("function", c_void_p), ("manager_data", c_void_p)]


CallbackTable = Callback * len(CALLBACKS)
NewClient = CFUNCTYPE(Status, c_void_p, c_void_p, POINTER(c_ulong), POINTER(CallbackTable), POINTER(c_char_p))
Accepts = CFUNCTYPE(c_int, c_void_p)
Broken = CFUNCTYPE(None, c_void_p)


def libraries():
    """The protocol's library and the one below it."""
    try:
        sm, ice = ctypes.CDLL("libSM.so.6"), ctypes.CDLL("libICE.so.6")
    except OSError as reason:
        raise Skipped("no session management here: %s" % reason)
    sm.SmsGenerateClientID.restype = sm.SmsGetIceConnection.restype = c_void_p
    ice.IceAcceptConnection.restype = ice.IceComposeNetworkIdList.restype = c_void_p
    return sm, ice


def in_session(test):
    """A test of a program that runs in a session; the test is given the session's manager too."""
    @functools.wraps(test)
    def run(desk):
        session = SessionManager(desk)
        try:
            test(desk, session)
        finally:
            session.close()
    return run


class SessionManager:
    """Serves one program, which has to be started after it on the same desk. Everything the program says is noted in
    `heard`, in its order."""

    def __init__(self, desk):
        self.sm, self.ice = libraries()
        self.heard = []
        self.properties = {}
        self.client = None
        self.connections = []
        # The libraries are not made for two threads at a time.
        self.lock = threading.RLock()
        self.accepts = Accepts(lambda host: 1)
        self.new_client = NewClient(self.welcome)
        self.broken = Broken(lambda connection: None)
        self.callbacks = [kind(getattr(self, name)) for name, kind in CALLBACKS]
        self.initialize()
        desk.env["SESSION_MANAGER"] = self.listen()
        self.end, self.closing = os.pipe()
        self.thread = threading.Thread(target=self.serve, daemon=True)
        self.thread.start()

    def initialize(self):
        # The library's own answer to a broken connection is the end of the process.
        self.ice.IceSetIOErrorHandler(self.broken)
        reason = ctypes.create_string_buffer(TEXT_SIZE)
        if not self.sm.SmsInitialize(b"tests", b"1", self.new_client, None, self.accepts, TEXT_SIZE, reason):
            raise AssertionError(reason.value)

    def listen(self):
        """Where programs find the manager."""
        count, listeners = c_int(), POINTER(c_void_p)()
        reason = ctypes.create_string_buffer(TEXT_SIZE)
        self.ice._IceTransNoListen(b"tcp")
        if not self.ice.IceListenForConnections(byref(count), byref(listeners), TEXT_SIZE, reason):
            raise AssertionError(reason.value)
        self.listening = count, listeners
        self.listeners = [c_void_p(listeners[index]) for index in range(count.value)]
        for listener in self.listeners:
            self.ice.IceSetHostBasedAuthProc(listener, self.accepts)
        return ctypes.string_at(self.ice.IceComposeNetworkIdList(count, listeners)).decode()

    def close(self):
        """Takes the manager's address away."""
        os.close(self.closing)
        self.thread.join()
        self.ice.IceFreeListenObjs(*self.listening)

    def serve(self):
        sources = {self.ice.IceGetListenConnectionNumber(one): one for one in self.listeners}
        while True:
            connections = {self.ice.IceConnectionNumber(one): one for one in self.connections}
            for ready in select.select([self.end, *sources, *connections], [], [])[0]:
                if ready == self.end:
                    return
                with self.lock:
                    if ready in sources:
                        self.accept(sources[ready])
                    else:
                        self.process(connections[ready])

    def accept(self, listener):
        connection = self.ice.IceAcceptConnection(listener, byref(c_int()))
        if connection:
            self.connections.append(c_void_p(connection))

    def process(self, connection):
        if self.ice.IceProcessMessages(connection, None, None) != 0:
            self.connections.remove(connection)
            self.client = None
            self.heard.append("gone")

    # --- what a program says ------------------------------------------------------------------------------------

    def welcome(self, connection, data, mask, table, reason):
        mask[0] = (1 << len(CALLBACKS)) - 1
        for index, callback in enumerate(self.callbacks):
            table[0][index].function = ctypes.cast(callback, c_void_p)
        return 1

    def register_client(self, connection, data, previous):
        self.client = c_void_p(connection)
        self.sm.SmsRegisterClientReply(self.client, c_void_p(previous or self.sm.SmsGenerateClientID(self.client)))
        # Who is new has its first state to tell.
        if not previous:
            self.sm.SmsSaveYourself(self.client, SAVE_LOCAL, 0, NO_INTERACTION, 0)
        return 1

    def interact_request(self, connection, data, dialog):
        self.heard.append("may I ask?")
        self.sm.SmsInteract(self.client)

    def interact_done(self, connection, data, cancel):
        self.heard.append("stay logged in" if cancel else "asked")

    def save_yourself_request(self, *arguments):
        self.heard.append("log out")

    def save_yourself_phase2_request(self, connection, data):
        self.heard.append("wait for the others")

    def save_yourself_done(self, connection, data, success):
        self.heard.append("done" if success else "not done")

    def close_connection(self, connection, data, count, reasons):
        below = c_void_p(self.sm.SmsGetIceConnection(self.client))
        self.sm.SmsCleanUp(self.client)
        self.ice.IceSetShutdownNegotiation(below, 0)
        self.ice.IceCloseConnection(below)

    def set_properties(self, connection, data, count, properties):
        for index in range(count):
            one = properties[index][0]
            values = [ctypes.string_at(value.data, value.length).decode() for value in one.values[:one.count]]
            self.properties[one.name.decode()] = values

    def delete_properties(self, connection, data, count, names):
        """What is deleted may as well be known on."""

    def get_properties(self, connection, data):
        self.sm.SmsReturnProperties(self.client, 0, None)

    # --- what the manager does ----------------------------------------------------------------------------------

    def tell(self, message, *arguments):
        with self.lock:
            assert self.client, "the program took its leave: %r" % self.heard
            getattr(self.sm, message)(self.client, *arguments)

    def wait_heard(self, *words):
        """Waits until the program has said as much, and checks that it was this."""
        wait_for("the program to tell the session manager " + repr(words), lambda: len(self.heard) >= len(words))
        assert self.heard == list(words), self.heard

    def wait_registered(self):
        self.wait_heard("done")
        self.heard.clear()

    def log_out(self, interaction=ANY_INTERACTION):
        self.tell("SmsSaveYourself", SAVE_BOTH, 1, interaction, 0)

    def cancel(self):
        self.tell("SmsShutdownCancelled")

    def die(self):
        self.tell("SmsDie")
