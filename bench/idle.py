#!/usr/bin/python3
"""What the program itself works for until it is idle, after a page was opened and at each key, as its users have it: word wrap
and colouring on.

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
        for wrap in (1, 0):
            if not wrap:
                desk.settings("Program Options", WordWrap=0)
            for name in PAGES if wrap else ("small", "prose 10 MB", "rows 10 MB"):
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
    key_in_small = runs[programs[0], 1, "small"][1]
    ratios = [("prose of 10 MB with word wrap, against without", cost("prose 10 MB") / cost("prose 10 MB", 0), MOST_FOR_WRAP),
              ("rows of 10 MB with word wrap, against without", cost("rows 10 MB") / cost("rows 10 MB", 0),
               MOST_FOR_WRAP_OF_NUMBERS),
              ("a byte of 10 MB of prose, against one of 1 MB", cost("prose 10 MB") / cost("prose 1 MB") / 10, MOST_BY_SIZE),
              ("a byte of a line of 5 MB, against one of 1 MB", cost("5 MB line of <") / cost("1 MB line of <") / 5,
               MOST_BY_SIZE),
              ("a byte of a line of 50 MB, against one of 5 MB", cost("50 MB line of <") / cost("5 MB line of <") / 10,
               MOST_BY_SIZE_OF_A_LINE)]
    ratios.append(("a key in prose of 10 MB, against one in a small page", runs[programs[0], 1, "prose 10 MB"][1] / key_in_small,
                   MOST_FOR_A_KEY_BY_SIZE))
    for name in KEYS_IN[2:]:
        megabytes = len(PAGES[name]()) / MEGABYTE
        ratios.append(("a key in a %s, for each megabyte, against one in a small page" % name,
                       runs[programs[0], 1, name][1] / key_in_small / megabytes, MOST_FOR_A_KEY))
    for what, ratio, most in ratios:
        print("%s: %.2f times (at most %.1f)" % (what, ratio, most))
    sys.exit(0 if all(ratio <= most for _, ratio, most in ratios) else 1)


if __name__ == "__main__":
    main()
