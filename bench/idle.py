#!/usr/bin/python3
"""What the program itself works for until it is idle, after a page was opened and at each key, as its users have it: word wrap
and colouring on.

    bench/idle.py build/release/tarnwick [another program, to compare with]

Measures processor time, which others on the machine don't change, turn by turn on one virtual display with a window manager,
until nothing is left to do: text coloured, lines wrapped, window painted. Medians are printed. Ends with 1 where word wrap
multiplies what opening costs, where a byte of a large page costs much more than one of a small page, or where a key in a
line of a megabyte costs more than a part of what opening it did.
"""
import os
import statistics
import sys
import time

os.environ["TARNWICK_PROGRAM"] = os.path.abspath(sys.argv[1])
sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tests", "e2e"))
import driver  # noqa: E402  (it asks for the program's path when it is loaded)

RUNS = 3
KEYS = 8
MEGABYTE = 1_000_000
MOST_FOR_WRAP = 5.0
MOST_BY_SIZE = 2.0
MOST_FOR_A_KEY = 0.5

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
    """The processor time up to where a second passes in which only the caret blinks (a few milliseconds in a long line)."""
    quiet = time.monotonic()
    before, _ = seconds(pid)
    while time.monotonic() - quiet < 1:
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
        for wrap in (1, 0):
            if not wrap:
                desk.settings("Program Options", WordWrap=0)
            for name in PAGES if wrap else ("small", "rows 10 MB"):
                for program in programs:
                    # The comparison would take minutes where its cost grows faster than the text.
                    if program != programs[0] and name == "50 MB line of <":
                        continue
                    several = [measure(desk, program, paths[name], KEYS if wrap and name in KEYS_IN else 0)
                               for _ in range(1 if "50 MB" in name else RUNS)]
                    runs[program, wrap, name] = [statistics.median(values) for values in zip(*several)]
                    print("%-20s wrap %s: idle after %6.2f s, a key %7.2f ms   %s" % (
                        name, "on " if wrap else "off", runs[program, wrap, name][0], runs[program, wrap, name][1] * 1000,
                        program), flush=True)
    finally:
        desk.close()

    def cost(name, wrap=1):
        return runs[programs[0], wrap, name][0] - runs[programs[0], wrap, "small"][0]
    ratios = [("rows of 10 MB with word wrap, against without", cost("rows 10 MB") / cost("rows 10 MB", 0), MOST_FOR_WRAP),
              ("a byte of 10 MB of prose, against one of 1 MB", cost("prose 10 MB") / cost("prose 1 MB") / 10, MOST_BY_SIZE),
              ("a byte of 50 MB of <, against one of 5 MB", cost("50 MB line of <") / cost("5 MB line of <") / 10,
               MOST_BY_SIZE)]
    for name in KEYS_IN[2:]:
        ratios.append(("a key in a %s, against opening it" % name, runs[programs[0], 1, name][1] / cost(name), MOST_FOR_A_KEY))
    for what, ratio, most in ratios:
        print("%s: %.2f times (at most %.1f)" % (what, ratio, most))
    sys.exit(0 if all(ratio <= most for _, ratio, most in ratios) else 1)


if __name__ == "__main__":
    main()
