#!/usr/bin/python3
"""What the program itself works for until it is idle, after a page was opened and at each key, as its users have it: word wrap,
colouring and copies of changed pages on.

    bench/idle.py build/release/tarnwick [another program, to compare with]

Measures processor time, which others on the machine don't change much, turn by turn on one virtual display with a window
manager, until nothing is left to do: text coloured, lines wrapped, window painted. Medians are printed. Takes some minutes.
Ends with 1 where word wrap multiplies what opening costs, where a byte of a large page costs much more than one of a small
page, where a key in one long line costs much more for its length than a key in a small page, or where the program never
comes to rest.
"""
import os
import shutil
import statistics
import sys
import time

os.environ["TARNWICK_PROGRAM"] = os.path.abspath(sys.argv[1])
sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tests", "e2e"))
import driver  # noqa: E402  (it asks for the program's path when it is loaded)

RUNS = 3
KEYS = 8
MEGABYTE = 1_000_000
MOST_SECONDS_TO_WAIT = 120
MOST_FOR_WRAP = 4.0
# Each row has three words that no other has, and each must be measured.
MOST_FOR_WRAP_OF_NUMBERS = 8.0
MOST_BY_SIZE = 2.5
# The control enlarges its table of a line's rows by a fixed step: some of this grows with the square.
MOST_BY_SIZE_OF_A_LINE = 6.0
# The first key in a large page moves the text behind it once.
MOST_FOR_A_KEY_BY_SIZE = 4.0
MOST_FOR_A_KEY = 60.0
# While the keys are pressed a copy is taken once, seldom twice.
MOST_FOR_A_COPY = 0.3

ROW = ('<tr><td align="center">%d</td><td><a href="page%d.html">Page %d</a></td>'
       '<td>Some words about what stands there</td></tr>\r\n')
PROSE = "<P>Some words to read, then a few <B>bold</B> ones, and a way <A HREF=\"next.html\">on</A>.</P>\r\n"
TAGS = '<p align="left"><b><i><a href="x/y.html"></a></i></b></p>'
PAGES = {
    "small": lambda: PROSE * 10,
    "prose 1 MB": lambda: PROSE * (MEGABYTE // len(PROSE)),
    "prose 10 MB": lambda: PROSE * (10 * MEGABYTE // len(PROSE)),
    "rows 10 MB": lambda: "".join(ROW % (i, i, i) for i in range(10 * MEGABYTE // 123)),
    "1 MB line of words": lambda: "some words without a line's end " * (MEGABYTE // 32),
    "1 MB line of tags": lambda: TAGS * (MEGABYTE // len(TAGS)),
    "1 MB line of <": lambda: "<" * MEGABYTE,
    "5 MB line of <": lambda: "<" * (5 * MEGABYTE),
    "50 MB line of <": lambda: "<" * (50 * MEGABYTE),
}
# One after the other, each with what the ones before it changed.
WAYS = (("as it comes", {}, tuple(PAGES)),
        ("without copies", {"Recovery": 0}, ("small", "prose 10 MB")),
        ("nor word wrap", {"WordWrap": 0}, ("small", "prose 10 MB", "rows 10 MB")))
KEYS_IN = ("small", "prose 10 MB", "1 MB line of words", "1 MB line of tags", "1 MB line of <", "5 MB line of <")


def seconds(pid):
    """The processor time of all threads so far; and whether any of them wants more."""
    total, busy = 0, False
    for task in os.listdir("/proc/%d/task" % pid):
        try:
            with open("/proc/%d/task/%s/schedstat" % (pid, task)) as file:
                total += int(file.read().split()[0])
            with open("/proc/%d/task/%s/stat" % (pid, task)) as file:
                busy = busy or file.read().rsplit(")", 1)[1].split()[0] in "RD"
        except FileNotFoundError:  # a thread that has just ended
            busy = True
    return total / 1e9, busy


def until_idle(pid):
    """The processor time up to where a second passes in which only the caret blinks."""
    begun = quiet = time.monotonic()
    before, _ = seconds(pid)
    while time.monotonic() - quiet < 1:
        if time.monotonic() - begun > MOST_SECONDS_TO_WAIT:
            sys.exit("the program never comes to rest")
        time.sleep(0.05)
        now, busy = seconds(pid)
        if busy or now - before > 0.03:
            quiet = time.monotonic()
            before = now
    return before


def measure(desk, program, path, keys):
    """Processor time from the process's start until idle, and that of one key."""
    process = desk.program = desk.start([program, path])
    desk.wait_window("The Tarnwick Pro")
    desk.wait_active("The Tarnwick Pro")
    opened = until_idle(process.pid)
    before, _ = seconds(process.pid)
    for _ in range(keys):
        desk.key("x")
    key = (until_idle(process.pid) - before) / keys if keys else 0
    process.kill()
    process.wait()
    desk.processes.remove(process)
    # The next start is to ask for nothing that this one left unsaved.
    shutil.rmtree(desk.path("own", "recovery"), ignore_errors=True)
    return opened, key


def main():
    desk = driver.Desk()
    # What assistive technology costs is not asked here.
    for variable in ("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "QT_ACCESSIBILITY"):
        desk.env.pop(variable, None)
    programs = [os.path.abspath(program) for program in sys.argv[1:]]
    runs = {}
    try:
        paths = {name: desk.write("page%d.html" % number, make().encode("ascii"))
                 for number, (name, make) in enumerate(PAGES.items())}
        for way, settings, names in WAYS:
            if settings:
                desk.settings("Program Options", **settings)
            for name in names:
                for program in programs:
                    several = [measure(desk, program, paths[name], KEYS if name in KEYS_IN else 0)
                               for _ in range(1 if "50 MB" in name else RUNS)]
                    runs[program, way, name] = [statistics.median(values) for values in zip(*several)]
                    print("%-20s %-14s: idle after %6.2f s, a key %7.2f ms   %s" % (
                        name, way, runs[program, way, name][0], runs[program, way, name][1] * 1000, program), flush=True)
    finally:
        desk.close()

    def cost(name, way="as it comes"):
        return runs[programs[0], way, name][0] - runs[programs[0], way, "small"][0]

    def key(name, way="as it comes"):
        return runs[programs[0], way, name][1]
    ratios = [("prose of 10 MB with word wrap, against without", cost("prose 10 MB") / cost("prose 10 MB", "nor word wrap"),
               MOST_FOR_WRAP),
              ("rows of 10 MB with word wrap, against without", cost("rows 10 MB") / cost("rows 10 MB", "nor word wrap"),
               MOST_FOR_WRAP_OF_NUMBERS),
              ("a byte of 10 MB of prose, against one of 1 MB", cost("prose 10 MB") / cost("prose 1 MB") / 10, MOST_BY_SIZE),
              ("a byte of a line of 5 MB, against one of 1 MB", cost("5 MB line of <") / cost("1 MB line of <") / 5,
               MOST_BY_SIZE),
              ("a byte of a line of 50 MB, against one of 5 MB", cost("50 MB line of <") / cost("5 MB line of <") / 10,
               MOST_BY_SIZE_OF_A_LINE),
              ("a key in prose of 10 MB, against one in a small page",
               key("prose 10 MB", "without copies") / key("small", "without copies"), MOST_FOR_A_KEY_BY_SIZE),
              ("a copy of 10 MB of prose for a later start, against opening it",
               KEYS * (key("prose 10 MB") - key("prose 10 MB", "without copies")) / cost("prose 10 MB"), MOST_FOR_A_COPY)]
    key_in_small = key("small")
    for name in KEYS_IN[2:]:
        megabytes = len(PAGES[name]()) / MEGABYTE
        ratios.append(("a key in a %s, for each megabyte, against one in a small page" % name,
                       key(name) / key_in_small / megabytes, MOST_FOR_A_KEY))
    for what, ratio, most in ratios:
        print("%s: %.2f times (at most %.1f)" % (what, ratio, most))
    sys.exit(0 if all(ratio <= most for _, ratio, most in ratios) else 1)


if __name__ == "__main__":
    main()
