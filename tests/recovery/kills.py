"""Kills a program whose user writes without rest, at random moments, and starts it again.

    kills.py PROGRAM --kills N --work SECONDS [--seed N] [--patience SECONDS]

The moments are spread over so many seconds of work; the program works, and copies, ten times as fast as a person's does.
After each kill the next start has to bring back every changed page, none twice, and to touch no file of the user's. What
is lost of a page is as old as the first change that did not come back; more than --patience fails. The figures are told
in the seconds of a person's work.
"""
import argparse
import json
import os
import random
import shutil
import signal
import statistics
import subprocess
import sys
import tempfile
import time

TENFOLD = 10
# A page that was saved, or given up, so shortly before the end may still have its copy.
IN_FLIGHT = 0.5


class Page:
    """What a document went through, as the program noted it."""

    def __init__(self):
        self.states = []  # (time, path, text, modified)
        self.is_open = True
        self.is_left = False  # its window went, neither saved nor given up
        self.doing = None  # what was begun and not ended: "saving" or "closing"
        self.target = None  # what that writes: a path and its bytes
        self.quiet_since = 0.0  # when there was last nothing to recover

    def note(self, note):
        self.states.append((note["t"], note["path"], note["text"], note["modified"]))
        if not note["modified"]:
            self.quiet_since = note["t"]

    @property
    def modified(self):
        return self.states[-1][3]

    def has_to_come_back(self):
        return self.doing is None and self.modified and (self.is_open or self.is_left)

    def may_come_back(self, end):
        """A save or a No is not over before its copy is gone."""
        return self.doing is not None or self.modified or end - self.quiet_since < IN_FLIGHT

    def index_of(self, path, text):
        """The last state of a path and a text, or None."""
        coming = self.target[0] if self.doing and self.target else None
        found = [index for index, state in enumerate(self.states) if state[2] == text and path in (state[1], coming)]
        return found[-1] if found else None

    def age_of_loss(self, index, end):
        """How old the first change is that did not come back, where this state did; for None, none did."""
        if index is None:
            changes = [state[0] for state in self.states if state[3] and state[0] >= self.quiet_since]
        else:
            changes = [state[0] for state in self.states[index + 1:]]
        return max(end - changes[0], 0.0) if changes else 0.0


class Program:
    """One run, from its start to its kill."""

    def __init__(self, program, env, site, seed, file):
        self.notes = open(os.path.join(os.path.dirname(site), "notes"), "w+b")
        self.log = open(os.path.join(os.path.dirname(site), "log"), "ab")
        arguments = [program, site, str(seed)] + ([file] if file else [])
        self.process = subprocess.Popen(arguments, env=env, stdin=subprocess.PIPE, stdout=self.notes, stderr=self.log)
        self.wait_ready()

    def wait_ready(self):
        end = time.monotonic() + 60
        while b'"ready"' not in self.read():
            assert self.process.poll() is None, "the program ended by itself"
            assert time.monotonic() < end, "the program is not ready"
            time.sleep(0.01)

    def read(self):
        with open(self.notes.name, "rb") as file:
            return file.read()

    def lines(self):
        return [json.loads(line) for line in self.read().split(b"\n")[:-1]]

    def work(self, seconds):
        """Lets it work, and kills it. Returns when that was."""
        self.process.stdin.write(b"go\n")
        self.process.stdin.flush()
        try:
            self.process.wait(seconds)
            raise AssertionError("the program ended by itself")
        except subprocess.TimeoutExpired:
            pass
        end = time.monotonic()
        self.process.send_signal(signal.SIGKILL)
        self.process.wait()
        return end


def snapshot(site):
    """All files, with their bytes and times. What a save that was killed leaves beside them goes with the next save."""
    files = {}
    for name in sorted(name for name in os.listdir(site) if not name.startswith(".tarnwick-")):
        path = os.path.join(site, name)
        with open(path, "rb") as file:
            files[path] = (file.read(), os.stat(path).st_mtime_ns)
    return files


def saved(text):
    return text.strip(" ").encode("cp1252") + b"\r\n"


class Check:
    def __init__(self, options, folder):
        self.options = options
        self.site = os.path.join(folder, "site")
        self.dice = random.Random(options.seed)
        self.disk = {}  # what each file has to hold, as far as the notes tell
        self.losses = []  # seconds of the program's time, one for each page that was changed at a kill
        self.late = 0  # pages that came back although they had just been saved or given up
        self.recovered = 0
        self.env = dict(os.environ, QT_QPA_PLATFORM="offscreen", HOME=folder)
        for variable in ("XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR", "TARNWICK_HOME"):
            self.env[variable] = os.path.join(folder, variable)
            os.makedirs(self.env[variable], mode=0o700)
        os.makedirs(self.site)
        for number in range(8):
            path = os.path.join(self.site, "page%d.htm" % number)
            with open(path, "wb") as file:
                file.write(b"<P>page %d</P>\r\n" % number)
            self.disk[path] = {b"<P>page %d</P>\r\n" % number}

    def start(self, number):
        """Sometimes with a page on the command line, which may be one to recover."""
        pages = sorted(os.listdir(self.site))
        file = os.path.join(self.site, self.dice.choice(pages)) if self.dice.random() < 0.3 else None
        return Program(self.options.program, self.env, self.site, self.options.seed * 1000 + number, file)

    def follow(self, notes):
        """The pages of a run by their numbers, and what it wrote."""
        pages = {}
        for note in notes:
            if note.get("did") in (None, "ready"):
                continue
            page = pages.setdefault(note["id"], Page())
            if note["did"] in ("saving", "closing"):
                page.doing = note["did"]
                answer = note["answer"]
                target = answer[4:] if answer.startswith("yes ") else answer if note["did"] == "saving" else ""
                page.target = (target, saved(note["text"])) if target else None
                if target:
                    self.disk.setdefault(target, {None}).add(saved(note["text"]))
            if note["did"] in ("saved", "closed"):
                page.doing = None
                # One that was never changed is not modified either where its save came to nothing.
                if page.target and not note["modified"] and os.path.dirname(page.target[0]) == self.site:
                    self.disk[page.target[0]] = {page.target[1]}
            page.note(note)
            if note["did"] == "closed":
                page.is_open = False
                page.is_left = note["modified"]
        return pages

    def check_disk(self, files):
        for path, allowed in self.disk.items():
            content = files[path][0] if path in files else None
            assert content in allowed, (path, content, allowed)
            self.disk[path] = {content}
        assert not set(files) - set(self.disk), set(files) - set(self.disk)

    def compare(self, pages, recovered, end):
        """What came back against what was there."""
        paths = [note["path"] for note in recovered if note["path"]]
        assert len(paths) == len(set(paths)), ("a page is open twice", paths)
        found = {}
        for note in recovered:
            if not note["modified"]:
                continue
            owners = [(number, page.index_of(note["path"], note["text"])) for number, page in pages.items()
                      if number not in found and page.index_of(note["path"], note["text"]) is not None]
            assert owners, ("never written so", note)
            owners.sort(key=lambda owner: (pages[owner[0]].may_come_back(end), owner[1]))
            number, index = owners[-1]
            page = pages[number]
            assert page.may_come_back(end), ("saved or given up, and yet offered", note, page.states[-1])
            found[number] = index
            self.recovered += 1
            self.late += not page.modified
        for number, page in pages.items():
            if not page.has_to_come_back() and number not in found:
                continue
            loss = page.age_of_loss(found.get(number), end) if page.modified else 0.0
            self.losses.append(loss)
            assert loss <= self.options.patience, ("lost", loss, page.states[-3:], found.get(number))

    def run(self):
        moments = sorted(self.dice.uniform(0, self.options.work) for _ in range(self.options.kills))
        program = self.start(0)
        last = 0.0
        for number, moment in enumerate(moments, 1):
            end = program.work(moment - last)
            last = moment
            pages = self.follow(program.lines())
            files = snapshot(self.site)
            self.check_disk(files)
            program = self.start(number)
            notes = program.lines()
            assert snapshot(self.site) == files, "the start touched a file"
            self.compare(pages, [note for note in notes if note.get("did") == "recovered"], end)
        program.process.kill()
        program.process.wait()

    def tell(self):
        losses = sorted(loss * TENFOLD for loss in self.losses)
        lossy = [loss for loss in losses if loss > 0]
        print("%d kills in %.0f minutes of work: %d pages came back, %d of them just saved or given up"
              % (self.options.kills, self.options.work * TENFOLD / 60, self.recovered, self.late))
        if losses:
            print("of %d changed pages, %d lost something; lost at most %.2f s, median of all %.2f s, of these %.2f s"
                  % (len(losses), len(lossy), losses[-1], statistics.median(losses),
                     statistics.median(lossy) if lossy else 0))


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("program")
    parser.add_argument("--kills", type=int, default=200)
    parser.add_argument("--work", type=float, default=360)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--patience", type=float, default=1)
    options = parser.parse_args()
    # In memory where there is such a disk: how long a flush takes then depends on no other program.
    memory = "/dev/shm" if os.access("/dev/shm", os.W_OK) else None
    folder = tempfile.mkdtemp(prefix="tarnwick-kills-", dir=memory)
    check = Check(options, folder)
    try:
        check.run()
    except AssertionError:
        print("the traces lie in " + folder, file=sys.stderr)
        raise
    check.tell()
    shutil.rmtree(folder)


main()
