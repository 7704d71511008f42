"""Drives the built program on a display of its own, by keys and mouse, and reads the screen as assistive technology does.

A test is a file test_*.py beside this one: functions named test_*, each given a fresh Desk (display, window manager,
session bus, settings of a new user). The names of widgets are what a screen reader says.
"""
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import traceback

PROGRAM = os.environ["TARNWICK_PROGRAM"]
# The exit code by which ctest knows a test that was skipped.
SKIPPED = 77
TIMEOUT = float(os.environ.get("TARNWICK_TIMEOUT", "30"))


class Failure(AssertionError):
    pass


class Skipped(Exception):
    """What a test raises that this machine has no means for."""


def wait_for(what, condition, timeout=TIMEOUT):
    """The condition's first true value; fails when there is none in time."""
    end = time.monotonic() + timeout
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise Failure("waited in vain for " + what)
        time.sleep(0.05)


class Desk:
    """A display with a window manager and an accessibility bus, and at most one running program."""

    def __init__(self, size="1280x900", scale=None, first_run=False):
        self.home = tempfile.mkdtemp(prefix="tarnwick-e2e-")
        self.processes = []
        self.program = None
        self.env = dict(os.environ)
        for variable, name in (("XDG_CONFIG_HOME", "config"), ("XDG_DATA_HOME", "data"),
                               ("XDG_RUNTIME_DIR", "runtime"), ("TARNWICK_HOME", "own"), ("HOME", "user")):
            self.env[variable] = self.path(name)
            os.makedirs(self.path(name), mode=0o700)
        self.env.pop("WAYLAND_DISPLAY", None)
        self.env.update(QT_QPA_PLATFORM="xcb", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", LANG="C.UTF-8",
                        NO_AT_BRIDGE="0", QT_ACCESSIBILITY="1")
        # Whether the engine needs to do without its sandbox is the program's own business.
        self.env.pop("QTWEBENGINE_DISABLE_SANDBOX", None)
        if scale:
            self.env["QT_SCALE_FACTOR"] = str(scale)
        reading, writing = os.pipe()
        # Without -noreset the display starts over when its last client goes, and takes a window manager that is just
        # coming up down with it.
        self.start(["Xvfb", "-displayfd", str(writing), "-screen", "0", size + "x24", "-nolisten", "tcp", "-noreset"],
                   pass_fds=[writing])
        os.close(writing)
        with os.fdopen(reading) as pipe:
            self.env["DISPLAY"] = ":" + pipe.readline().strip()
        bus = subprocess.run(["dbus-daemon", "--session", "--fork", "--print-address=1", "--print-pid=1"],
                             env=self.env, capture_output=True, text=True, check=True).stdout.split()
        self.env["DBUS_SESSION_BUS_ADDRESS"], self.bus = bus[0], int(bus[1])
        self.start(["openbox"])
        wait_for("the window manager", lambda: "window id" in subprocess.run(
            ["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], env=self.env, capture_output=True, text=True).stdout)
        # A keyboard that has accented letters: for a key that there is none of, xdotool changes the keyboard for a moment
        # only, and a busy program may look too late.
        subprocess.run(["setxkbmap", "-layout", "us", "-variant", "altgr-intl"], env=self.env, check=True)
        # The first key of a display changes its keyboard, and the window manager takes hold of its own keys anew: what
        # is pressed meanwhile may pass it by. So that key is one that nobody waits for.
        self.key("shift")
        self.start(["/usr/libexec/at-spi-bus-launcher", "--launch-immediately"])
        if not first_run:
            self.settings("Window Options", FirstTimeAgain=1)
        os.environ.update({key: self.env[key] for key in ("DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "XDG_RUNTIME_DIR")})

    def path(self, *names):
        return os.path.join(self.home, *names)

    def write(self, name, data):
        """A file in the desk's own folder; returns its path."""
        with open(self.path(name), "wb") as file:
            file.write(data)
        return self.path(name)

    def settings(self, section, **values):
        """Adds a section to the settings of application "The Tarnwick"."""
        folder = self.path("config", "tarnwick")
        os.makedirs(folder, exist_ok=True)
        with open(os.path.join(folder, "The Tarnwick.ini"), "a", encoding="utf-8") as file:
            file.write("[%s]\n" % section.replace(" ", "%20"))
            for key, value in values.items():
                file.write("%s=%s\n" % (key, value))

    def setting(self, section, key):
        """A stored value, or None."""
        try:
            with open(self.path("config", "tarnwick", "The Tarnwick.ini"), encoding="utf-8") as file:
                text = file.read()
        except FileNotFoundError:
            return None
        part = re.search(r"^\[%s\]$(.*?)(?=^\[|\Z)" % re.escape(section.replace(" ", "%20")), text, re.M | re.S)
        value = part and re.search(r"^%s=(.*)$" % re.escape(key), part.group(1), re.M)
        return value.group(1) if value else None

    def start(self, command, **options):
        log = open(self.path(os.path.basename(command[0]) + ".log"), "ab")
        process = subprocess.Popen(command, env=self.env, stdout=log, stderr=log, stdin=subprocess.DEVNULL, **options)
        log.close()
        self.processes.append(process)
        return process

    def run(self, *arguments, window="The Tarnwick Pro"):
        """Starts the program and waits for its window."""
        self.program = self.start([PROGRAM, *arguments])
        self.wait_window(window)
        self.wait_active(window)
        return self.program

    def ended(self):
        """The program's exit code once it has ended."""
        wait_for("the program's end", lambda: self.program.poll() is not None)
        return self.program.returncode

    # --- the screen ---------------------------------------------------------------------------------------------

    def xdo(self, *arguments):
        return subprocess.run(["xdotool", *map(str, arguments)], env=self.env, capture_output=True, text=True)

    def windows(self):
        ids = self.xdo("search", "--onlyvisible", "--name", ".*").stdout.split()
        return [self.xdo("getwindowname", one).stdout.rstrip("\n") for one in ids]

    def place(self, name):
        """Left, top, width and height of a window's inside. One that takes in a page is made anew, maybe just now."""
        def told():
            shape = self.xdo("getwindowgeometry", "--shell", self.wait_window(name)).stdout
            return re.findall(r"^(?:X|Y|WIDTH|HEIGHT)=(-?\d+)$", shape, re.M)
        return [int(number) for number in wait_for("the place of the window " + name, told)]

    def size(self, name):
        """Width and height of a window's inside."""
        return self.place(name)[2:]

    def wait_window(self, name):
        def found():
            if self.program.poll() is not None:
                raise Failure("the program ended: " + self.log())
            return self.xdo("search", "--onlyvisible", "--name", "^" + re.escape(name)).stdout.split()
        return wait_for("the window " + name, found)[0]

    def wait_no_window(self, name):
        wait_for("the end of the window " + name, lambda: not self.xdo(
            "search", "--onlyvisible", "--name", "^" + re.escape(name) + "$").stdout.split())

    def active_window(self):
        return self.xdo("getactivewindow", "getwindowname").stdout.rstrip("\n")

    def wait_active(self, name):
        wait_for("the active window " + name, lambda: self.active_window().startswith(name))

    def key(self, *keys):
        self.xdo("key", "--clearmodifiers", "--delay", "20", *keys)

    def type(self, text):
        self.xdo("type", "--clearmodifiers", "--delay", "12", text)

    def click(self, x, y, button=1):
        self.xdo("mousemove", "--sync", x, y, "click", button)

    def screenshot(self, path):
        subprocess.run(["import", "-window", "root", path], env=self.env, check=True)

    def log(self):
        with open(self.path(os.path.basename(PROGRAM) + ".log"), errors="replace") as file:
            return file.read()

    # --- what a screen reader sees ------------------------------------------------------------------------------

    def application(self):
        import pyatspi

        def found():
            for one in pyatspi.Registry.getDesktop(0):
                if one is not None and one.get_process_id() == self.program.pid:
                    return one
            return None
        return wait_for("the program on the accessibility bus", found)

    def widget(self, name, role=None, focused=False):
        """The first showing widget of a name (and role name), as an accessible; waits for it."""
        import pyatspi

        def walk(node, depth=0):
            if node is None or depth > 30:
                return None
            try:
                if node.name == name and (role is None or node.getRoleName() == role):
                    node.clear_cache()  # what a state was when it was first asked for says nothing now
                    state = node.getState()
                    if state.contains(pyatspi.STATE_SHOWING) and (not focused or state.contains(pyatspi.STATE_FOCUSED)):
                        return node
                for child in node:
                    hit = walk(child, depth + 1)
                    if hit is not None:
                        return hit
            except Exception:  # the tree changes while it is walked
                return None
            return None
        return wait_for("the widget " + name, lambda: walk(self.application()))

    def text(self):
        """The text of the only document, or of the one that has the focus where several are open."""
        widgets = [one for one in self.widgets("Document text", "text")]
        widget = widgets[0] if len(widgets) == 1 else self.widget("Document text", "text", focused=True)
        text = widget.queryText()
        return text.getText(0, text.characterCount)

    def widget_text(self, name):
        """What a text field of a name holds."""
        text = self.widget(name, "text").queryText()
        return text.getText(0, text.characterCount)

    def widgets(self, name, role):
        """All showing widgets of a name and role name."""
        import pyatspi
        found = []

        def walk(node, depth=0):
            if node is None or depth > 30:
                return
            try:
                if node.name == name and node.getRoleName() == role:
                    node.clear_cache()
                    if node.getState().contains(pyatspi.STATE_SHOWING):
                        found.append(node)
                for child in node:
                    walk(child, depth + 1)
            except Exception:  # the tree changes while it is walked
                return
        walk(self.application())
        return found

    def wait_page(self, part):
        """Waits until a page that came with the start stands there and the keys reach it; the caret is at its top."""
        self.wait_text(part)
        for key, place in (("ctrl+End", lambda text: text.characterCount), ("ctrl+Home", lambda text: 0)):
            def arrived():
                self.key(key)
                text = self.widget("Document text", "text").queryText()
                return text.caretOffset == place(text)
            wait_for("the caret after " + key, arrived)

    def wait_text(self, part):
        """Waits until the document that has the focus holds a text."""
        return wait_for("the text " + repr(part), lambda: part in self.text() if part else self.text() == "")

    def widget_text_contains(self, text):
        """Whether any showing widget's name or text holds a text."""
        import pyatspi

        def walk(node, depth=0):
            if node is None or depth > 30:
                return False
            try:
                node.clear_cache()
                if text in (node.name or "") and node.getState().contains(pyatspi.STATE_SHOWING):
                    return True
                return any(walk(child, depth + 1) for child in node)
            except Exception:  # the tree changes while it is walked
                return False
        return walk(self.application())

    def click_widget(self, name, role=None, button=1):
        import pyatspi
        extents = self.widget(name, role).queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        self.click(extents.x + extents.width // 2, extents.y + extents.height // 2, button)

    def close(self):
        for process in reversed(self.processes):
            if process.poll() is None:
                process.terminate()
                try:
                    process.wait(10)
                except subprocess.TimeoutExpired:
                    process.kill()
                    process.wait()
        try:
            os.kill(self.bus, signal.SIGTERM)
        except ProcessLookupError:
            pass
        shutil.rmtree(self.home, ignore_errors=True)


def read(path):
    try:
        with open(path, "rb") as file:
            return file.read()
    except FileNotFoundError:
        return None


def main(module):
    """Runs the module's tests, one by one, each in a child of its own since a desk sets the bus for good."""
    names = [name for name in dir(module) if name.startswith("test_")]
    wanted = sys.argv[1:]
    failed = skipped = 0
    for name in names:
        if wanted and name not in wanted:
            continue
        child = os.fork()
        if child == 0:
            desk = None
            try:
                options = getattr(getattr(module, name), "desk", {})
                desk = Desk(**options)
                getattr(module, name)(desk)
                code = 0
            except Skipped as reason:
                print(reason)
                code = SKIPPED
            except BaseException:
                traceback.print_exc()
                code = 1
                if desk is not None and desk.program is not None:
                    shots = os.environ.get("TARNWICK_SHOTS")
                    if shots:
                        os.makedirs(shots, exist_ok=True)
                        desk.screenshot(os.path.join(shots, name + ".png"))
                    sys.stderr.write("windows: %r\nlog:\n%s\n" % (desk.windows(), desk.log()))
            finally:
                if desk is not None:
                    desk.close()
            sys.stdout.flush()
            sys.stderr.flush()
            os._exit(code)
        code = os.waitstatus_to_exitcode(os.waitpid(child, 0)[1])
        print("%-60s %s" % (name, {0: "passed", SKIPPED: "skipped"}.get(code, "FAILED")), flush=True)
        failed += code not in (0, SKIPPED)
        skipped += code == SKIPPED
    sys.exit(1 if failed else SKIPPED if skipped else 0)
