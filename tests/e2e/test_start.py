"""Starts that end at once: on the terminal, and where there is no display."""
import os
import subprocess
import sys
from driver import main, wait_for, PROGRAM

SENTENCE = "The Tarnwick needs a display, and none could be opened.\n"


def start(desk, *arguments, **variables):
    """Exit code, standard output and standard error of a start with no display but the one that is given."""
    env = {key: value for key, value in desk.env.items()
           if key not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_SESSION_TYPE")}
    ended = subprocess.run([PROGRAM, *arguments], env={**env, **variables}, capture_output=True, text=True, timeout=60,
                           cwd=desk.home)
    return ended.returncode, ended.stdout, ended.stderr


def test_without_a_display_one_sentence_is_said(desk):
    for variables in ({}, {"DISPLAY": ":4711"}, {"DISPLAY": "no such place"}, {"QT_QPA_PLATFORM": "xcb"},
                      {"QT_QPA_PLATFORM": "wayland", "WAYLAND_DISPLAY": "wayland-none"},
                      {"XDG_SESSION_TYPE": "wayland", "WAYLAND_DISPLAY": "wayland-none"},
                      {"QT_QPA_PLATFORM": "nonsense"}):
        assert start(desk, **variables) == (1, "", SENTENCE), variables
        assert start(desk, "page.htm", **variables) == (1, "", SENTENCE), variables


def test_what_is_told_on_the_terminal_needs_no_display(desk):
    for word, told in (("--version", "The Tarnwick 3.0.6\n"), ("--help", "Usage: tarnwick [FILE]\n")):
        code, output, errors = start(desk, word)
        assert (code, errors) == (0, "") and told in output, (word, code, output, errors)


def test_offscreen_no_display_is_needed(desk):
    desk.env["QT_QPA_PLATFORM"] = "offscreen"
    desk.program = desk.start([PROGRAM])
    # So this platform greets a window; it has no other way to be looked at.
    wait_for("its window", lambda: "propagateSizeHints" in desk.log())
    assert desk.program.poll() is None


def test_where_there_is_no_display_a_picture_tells_what_it_looks_like(desk):
    script = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "scripts", "screenshot.sh")
    page = desk.write("page.htm", b"<HTML>\r\n<BODY>words</BODY>\r\n</HTML>\r\n")
    picture = desk.path("pictures", "one.png")
    env = {key: value for key, value in desk.env.items() if key not in ("DISPLAY", "WAYLAND_DISPLAY")}
    told = subprocess.run([script, PROGRAM, page, picture, "1024x768"], env=env, capture_output=True, text=True, timeout=120)
    assert told.returncode == 0 and picture in told.stdout, (told.returncode, told.stdout, told.stderr)
    size, colors = subprocess.run(["identify", "-format", "%wx%h %k", picture], capture_output=True, text=True).stdout.split()
    assert size == "1024x768" and int(colors) > 16, (size, colors)


if __name__ == "__main__":
    main(sys.modules[__name__])
