"""Keys and clicks that come by chance, on the program as users have it: it stays up, answers, and leaves nothing behind.

TARNWICK_EVENTS=5000 makes as many; TARNWICK_SEED=n takes another road. Where a failure came, the last events stand in
its message. File and print dialogs are left at once: they reach all of the machine's files.
"""
import collections
import os
import random
import re
import shutil
import subprocess
import sys
import driver
from driver import main, wait_for

EVENTS = int(os.environ.get("TARNWICK_EVENTS", "250"))
SEED = int(os.environ.get("TARNWICK_SEED", "1"))
PAGE = (b"<HTML><HEAD><TITLE>One</TITLE></HEAD>\r\n<BODY BGCOLOR=#FFFFFF>\r\n<H1>A paeg</H1>\r\n"
        b"<P>Text <A HREF=b.htm>link</A>\r\n<TABLE BORDER=1><TR><TD>1<TD>2</TABLE>\r\n</BODY></HTML>\r\n")
ASKS = b"<title>asks</title><script>alert('a'); if (confirm('b')) prompt('c', 'd')</script><p>asked"
FRAME = "The Tarnwick Pro"
REACH_ALL_FILES = re.compile("^(Open|Save As|Save|Find|Print|File for the Page|Find Directory)\\b")
TEXT = (list("abpt019") + ["less", "greater", "quotedbl", "equal", "ampersand", "space", "percent", "numbersign", "eacute",
                          "minus", "braceleft", "apostrophe", "semicolon"])
MOVES = ["Left", "Right", "Up", "Down", "Home", "End", "Prior", "Next", "BackSpace", "Delete", "Return", "Tab", "Escape",
         "shift+Left", "shift+End", "shift+Tab", "ctrl+Home", "ctrl+End", "ctrl+shift+Right", "shift+Down"]
EDITS = ["ctrl+z", "ctrl+z", "ctrl+y", "ctrl+a", "ctrl+c", "ctrl+x", "ctrl+v", "F1", "F3", "F6", "shift+F10", "ctrl+Tab"]
COMMANDS = ["ctrl+" + key for key in "ndltegjhbiuqw"] + ["shift+F5", "shift+F4", "ctrl+F12", "ctrl+f", "ctrl+r"]
MENUS = ["alt+" + key for key in "fetmwhdlono"]
BAD_NEWS = re.compile("QObject::|QPainter|QWidget|[Ii]nvalid|ASSERT|Recursive")


def only_a_copy(desk):
    """The program in a folder of its own, where a stand-in takes the place of all that it starts."""
    folder = desk.path("program")
    os.makedirs(folder)
    built = os.path.dirname(driver.PROGRAM)
    for name in ("tarnwick", "tarnwick_web.so", "tarnwick.chm"):
        if os.path.exists(os.path.join(built, name)):
            shutil.copy(os.path.join(built, name), folder)
    for name in ("tarnwick-ftp", "x-www-browser"):
        shutil.copy("/bin/true", os.path.join(folder, name))
    return os.path.join(folder, "tarnwick")


class Events:
    def __init__(self, desk):
        self.desk = desk
        self.dice = random.Random(SEED)
        self.last = collections.deque(maxlen=40)
        self.children = set()
        self.program = only_a_copy(desk)
        os.makedirs(desk.path("tmp"))
        os.makedirs(desk.path("site"))
        for name, page in (("site/one.htm", PAGE), ("site/asks.htm", ASKS)):
            desk.write(name, page)
        desk.settings("Window Options", UseMSIE=1, ShowUserButtons=1, LastDir=desk.path("site"))
        desk.settings("Browser Options", Web=desk.path("program", "x-www-browser"))

    def start(self):
        """With nothing else to start within its reach."""
        desk, before = self.desk, dict(self.desk.env)
        desk.env.update(PATH=desk.path("program"), TMPDIR=desk.path("tmp"), CUPS_SERVER=desk.path("none"))
        page = desk.path("site", self.dice.choice(["one.htm", "asks.htm"]))
        desk.program = desk.start([self.program, page], cwd=desk.path("site"))
        desk.env.clear()
        desk.env.update(before)
        desk.wait_window(FRAME)
        desk.wait_active(FRAME)

    def do(self, *arguments):
        self.last.append(" ".join(map(str, arguments)) if arguments[0] != "search" else "activate")
        self.desk.xdo(*arguments)

    def window(self):
        """The active window's name and its inside on the screen; None where there is none."""
        shape = self.desk.xdo("getactivewindow", "getwindowname", "getwindowgeometry", "--shell").stdout
        numbers = dict(re.findall(r"^(X|Y|WIDTH|HEIGHT)=(-?\d+)$", shape, re.M))
        return (shape.split("\n")[0], {key: int(value) for key, value in numbers.items()}) if len(numbers) == 4 else None

    def one(self):
        window = self.window()
        if not window:
            # By its title bar a window can be put out of sight.
            return self.do("search", "--name", FRAME, "windowmap", "windowactivate")
        name, at = window
        if REACH_ALL_FILES.match(name):
            return self.do("key", "Escape")
        kind = self.dice.randrange(100)
        if kind < 55:
            keys = self.dice.choice([TEXT, TEXT, MOVES, MOVES, EDITS, COMMANDS, MENUS])
            return self.do("key", "--clearmodifiers", self.dice.choice(keys))
        x = max(0, min(1279, at["X"] + self.dice.randrange(at["WIDTH"])))
        y = max(0, min(899, at["Y"] + self.dice.randrange(at["HEIGHT"])))
        if kind < 85:
            return self.do("mousemove", x, y, "click", 1)
        if kind < 90:
            return self.do("mousemove", x, y, "click", "--repeat", 2, "--delay", 20, 1)
        if kind < 93 and name.startswith(FRAME):
            return self.do("mousemove", x, y, "click", 3)
        if kind < 97:
            return self.do("mousemove", x, y, "click", self.dice.choice([4, 5]))
        return self.do("mousemove", x, y, "mousedown", 1, "mousemove_relative", "--", self.dice.randrange(-90, 90),
                       self.dice.randrange(-60, 60), "mouseup", 1)

    def look(self):
        """It runs, and answers a screen reader: its loop turns."""
        assert self.desk.program.poll() is None, "it ended: %r\n%s" % (self.desk.program.returncode, self.told())
        try:
            wait_for("an answer", lambda: self.desk.application().childCount > 0)
        except driver.Failure as reason:
            raise driver.Failure("%s\n%s" % (reason, self.told()))
        self.children |= descendants(self.desk.program.pid)

    def told(self):
        return "seed %d, windows %r, the last events:\n%s\n%s" % (SEED, self.every_window(), "\n".join(self.last), self.desk.log())

    def every_window(self):
        """The program's windows, with those that aren't on the screen."""
        ids = self.desk.xdo("search", "--class", "tarnwick").stdout.split()
        return [(self.desk.xdo("getwindowname", one).stdout.strip(), subprocess.run(
            ["xprop", "-id", one, "WM_STATE"], env=self.desk.env, capture_output=True, text=True).stdout.split()[-4:]) for one in ids]

    def leave(self):
        """Closes all that is open, with nothing saved."""
        for turn in range(200):
            if self.desk.program.poll() is not None:
                return
            window = self.window()
            name = window[0] if window else ""
            if name.startswith(FRAME):
                self.do("key", "--clearmodifiers", "Escape", "alt+F4")
            elif not name:
                self.one()
            elif name == "Save Document?" or turn % 2:
                # A button that is pressed by its key clicks a moment later: another key would come first.
                self.do("key", "--clearmodifiers", "alt+n")
            else:
                self.do("key", "--clearmodifiers", "Escape")
        raise driver.Failure("it can't be left: %r\n%s" % (self.desk.windows(), self.told()))


def descendants(pid):
    """The processes below one."""
    parents = {}
    for name in filter(str.isdigit, os.listdir("/proc")):
        try:
            with open("/proc/%s/stat" % name) as file:
                parents.setdefault(int(file.read().rsplit(")", 1)[1].split()[1]), []).append(int(name))
        except OSError:
            continue
    found, left = set(), [pid]
    while left:
        for child in parents.get(left.pop(), []):
            found.add(child)
            left.append(child)
    return found


def runs(pid):
    """Whether it does more than wait to be counted."""
    try:
        with open("/proc/%d/stat" % pid) as file:
            return file.read().rsplit(")", 1)[1].split()[0] != "Z"
    except OSError:
        return False


def test_anything_at_any_time(desk):
    events = Events(desk)
    events.start()
    for number in range(EVENTS):
        # Closing the frame is one of the things that happen.
        if desk.program.poll() == 0:
            events.start()
        events.one()
        if number % 25 == 0 and desk.program.poll() is None:
            events.look()
    if desk.program.poll() is None:
        events.look()
        events.leave()
    assert desk.ended() == 0, events.told()
    wait_for("the end of what it started", lambda: not any(map(runs, events.children)))
    assert os.listdir(desk.path("tmp")) == [], os.listdir(desk.path("tmp"))
    halves = [name for _, _, files in os.walk(desk.home) for name in files if name.startswith(".tarnwick-")]
    assert halves == [], halves
    assert not BAD_NEWS.search(desk.log()), desk.log()


if __name__ == "__main__":
    main(sys.modules[__name__])
