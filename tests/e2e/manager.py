"""What a person asks of the desktop's window manager: minimise a window, close it from the taskbar, bring it back."""
import ctypes
from ctypes import c_char_p, c_int, c_long, c_ulong, c_void_p
from driver import wait_for


class ClientMessage(ctypes.Structure):
    _fields_ = [("type", c_int), ("serial", c_ulong), ("send_event", c_int), ("display", c_void_p), ("window", c_ulong),
                ("message_type", c_ulong), ("format", c_int), ("data", c_long * 5)]


class Event(ctypes.Union):
    _fields_ = [("message", ClientMessage), ("room", c_long * 24)]


CLIENT_MESSAGE = 33
TO_THE_MANAGER = 1 << 19 | 1 << 20
FROM_A_TASKBAR = 2


def tell(desk, window, request):
    """Sends the manager a request about a window, as a taskbar does."""
    x = ctypes.CDLL("libX11.so.6")
    x.XOpenDisplay.restype, x.XOpenDisplay.argtypes = c_void_p, [c_char_p]
    x.XInternAtom.restype, x.XInternAtom.argtypes = c_ulong, [c_void_p, c_char_p, c_int]
    x.XDefaultRootWindow.restype, x.XDefaultRootWindow.argtypes = c_ulong, [c_void_p]
    x.XSendEvent.argtypes = [c_void_p, c_ulong, c_int, c_long, c_void_p]
    x.XCloseDisplay.argtypes = [c_void_p]
    display = x.XOpenDisplay(desk.env["DISPLAY"].encode())
    event = Event()
    event.message = ClientMessage(CLIENT_MESSAGE, 0, 1, display, int(window), x.XInternAtom(display, request, 0), 32,
                                  (c_long * 5)(0, FROM_A_TASKBAR, 0, 0, 0))
    x.XSendEvent(display, x.XDefaultRootWindow(display), 0, TO_THE_MANAGER, ctypes.byref(event))
    x.XCloseDisplay(display)


def minimise(desk, window):
    desk.xdo("windowminimize", window)
    wait_for("the minimised window", lambda: window not in desk.xdo(
        "search", "--onlyvisible", "--name", ".*").stdout.split())


def bring_back(desk, window):
    tell(desk, window, b"_NET_ACTIVE_WINDOW")
    wait_for("the window back on the screen", lambda: window in desk.xdo(
        "search", "--onlyvisible", "--name", ".*").stdout.split())


def close(desk, window):
    tell(desk, window, b"_NET_CLOSE_WINDOW")
