#!/usr/bin/python3
"""How long the program takes from process start to frame shown, and what memory it then holds.

    bench/startup.py build/release/tarnwick [another program, to compare with]

One run measures, turn by turn on one virtual display with a window manager: the program with the browser and design
views off, as a new user has them; a copy of it beside which their plugin does not lie; the other program, such as a build
from before a change; and the editor scite (Debian's package of that name) where it is installed. Medians are printed, and
ratios, which hold on any machine; processor time is what others on the machine change least.
Ends with 1 where the program takes more than twice scite's time, or where an unused plugin costs anything that shows.
"""
import os
import shutil
import statistics
import subprocess
import sys
import time

os.environ["TARNWICK_PROGRAM"] = os.path.abspath(sys.argv[1])
sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tests", "e2e"))
import driver  # noqa: E402  (it asks for the program's path when it is loaded)

RUNS = 15
MOST_AGAINST_SCITE = 2.0
MOST_FOR_UNUSED_PLUGIN = 1.15


def shown(desk, pid):
    """Whether a window of the process is on the screen under the frame's or the other editor's title."""
    ids = desk.xdo("search", "--onlyvisible", "--pid", pid, "--name", "^(The Tarnwick Pro|.*SciTE)").stdout
    return bool(ids.split())


def memory(pid):
    """Megabytes of its own that a process holds: what it shares with others counts for nothing."""
    with open("/proc/%d/smaps_rollup" % pid) as file:
        fields = dict(line.split(":") for line in file if ":" in line)
    return sum(int(fields[key].split()[0]) for key in ("Private_Clean", "Private_Dirty")) / 1000


def processor(pid):
    """The seconds that all threads of a process have worked so far."""
    with open("/proc/%d/stat" % pid) as file:
        fields = file.read().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def start_once(desk, command):
    begun = time.monotonic()
    process = desk.start(command)
    while not shown(desk, process.pid):
        if process.poll() is not None or time.monotonic() - begun > driver.TIMEOUT:
            sys.exit("no window came: " + " ".join(command))
    taken = time.monotonic() - begun
    time.sleep(0.5)  # what is loaded behind the first picture counts as memory too
    held = memory(process.pid)
    worked = processor(process.pid)
    process.kill()
    process.wait()
    desk.processes.remove(process)
    return taken, held, worked


def main():
    desk = driver.Desk()
    alone = desk.path("alone")
    os.makedirs(alone)
    shutil.copy2(driver.PROGRAM, os.path.join(alone, "tarnwick"))
    candidates = {"plugin unused": [driver.PROGRAM], "no plugin": [os.path.join(alone, "tarnwick")]}
    if len(sys.argv) > 2:
        candidates["the other"] = [os.path.abspath(sys.argv[2])]
    if shutil.which("scite"):
        candidates["scite"] = ["scite"]
    taken = {name: [] for name in candidates}
    held = {name: [] for name in candidates}
    worked = {name: [] for name in candidates}
    try:
        for run in range(RUNS + 1):
            for name, command in candidates.items():
                seconds, megabytes, processor_seconds = start_once(desk, command)
                if run > 0:  # the first run of each reads the disk
                    taken[name].append(seconds)
                    held[name].append(megabytes)
                    worked[name].append(processor_seconds)
    finally:
        desk.close()
    for name in candidates:
        print("%-14s frame shown after %3.0f ms, %3.0f ms of work, %5.1f MB of its own (medians of %d)" % (
            name, statistics.median(taken[name]) * 1000, statistics.median(worked[name]) * 1000,
            statistics.median(held[name]), RUNS))

    def ratio(what, values, other):
        return statistics.median(values[what]) / statistics.median(values[other])
    good = True
    if "scite" in candidates:
        against = ratio("plugin unused", taken, "scite")
        print("against scite: %.2f of its time" % against)
        good = against <= MOST_AGAINST_SCITE
    if "the other" in candidates:
        print("against the other: %.2f of its time, %.2f of its work, %.2f of its memory" % tuple(
            ratio("plugin unused", values, "the other") for values in (taken, worked, held)))
    for what, values in (("time", taken), ("memory", held)):
        unused = ratio("plugin unused", values, "no plugin")
        print("with the plugin there but unused, against none there: %.2f of the %s" % (unused, what))
        good = good and unused <= MOST_FOR_UNUSED_PLUGIN
    sys.exit(0 if good else 1)


if __name__ == "__main__":
    main()
