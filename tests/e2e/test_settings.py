"""Settings files that are damaged, out of reach, or on a disk that is full: the program runs, and loses nothing."""
import os
import resource
import signal
import stat
import sys
from driver import main, read, wait_for, PROGRAM

NONSENSE = b"""[Window%20Options]
FirstTimeAgain=1
MainFormWidth=99999999999999
MainFormHeight=1e30
TemplateWindowState=huge
Background2=paper
TextColor0=black
TextColor1=}{
EdTextColor0=}}}
EdTextColor1="\\\\par words;{"
EditorFont=No Such Font At All
EditorFontSize=letters
UseMSIE=maybe
ColoredTags=1
this line is none
[User%20Tools]
ButCap(0)=Mine
"""


def file_of(desk):
    return desk.path("config", "tarnwick", "The Tarnwick.ini")


def writes_a_page(desk, path, content):
    desk.wait_page("words")
    desk.type("x")
    desk.key("ctrl+s")
    wait_for("the saved page", lambda: read(path) == b"x" + content + b"\r\n")
    desk.key("alt+F4")
    assert desk.ended() == 0, desk.log()


def test_nonsense_in_the_file_harms_no_page(desk):
    with open(file_of(desk), "wb") as file:
        file.write(NONSENSE)
    content = b"<P>some {words} \\here</P>"
    path = desk.write("page.htm", content)
    desk.run(path)
    writes_a_page(desk, path, content)
    assert desk.setting("User Tools", "ButCap%280%29") == "Mine"
    assert desk.setting("Window Options", "FirstTimeAgain") == "2"


def starts_as_new(desk):
    """Starts as for a new user, who is shown the options first, and writes a page."""
    content = b"<P>words</P>"
    path = desk.write("page.htm", content)
    desk.run(path, window="Options")
    desk.key("Escape")
    desk.wait_no_window("Options")
    desk.wait_active("The Tarnwick Pro")
    writes_a_page(desk, path, content)


def test_a_file_of_garbage_is_a_first_run(desk):
    with open(file_of(desk), "wb") as file:
        file.write(bytes(range(256)) * 40)
    starts_as_new(desk)
    assert desk.setting("Window Options", "FirstTimeAgain") == "1"


def test_a_folder_in_place_of_the_file_is_done_without(desk):
    os.remove(file_of(desk))
    os.makedirs(os.path.join(file_of(desk), "in the way"))
    starts_as_new(desk)
    assert os.path.isdir(os.path.join(file_of(desk), "in the way"))


def test_a_pipe_in_place_of_the_file_is_told_until_a_key_is_pressed(desk):
    os.remove(file_of(desk))
    os.mkfifo(file_of(desk))
    content = b"<P>words</P>"
    path = desk.write("page.htm", content)
    desk.run(path, window="Options")
    desk.key("Escape")
    desk.wait_no_window("Options")
    desk.wait_active("The Tarnwick Pro")
    desk.widget("Document text", focused=True)
    told = "The settings can't be read, nor will they be kept: " + file_of(desk)
    assert desk.widget_text_contains(told), "overwritten when the page got the focus"
    desk.key("Right")
    wait_for("the line", lambda: desk.widget_text_contains("Line 1"))
    writes_a_page(desk, path, content)
    assert stat.S_ISFIFO(os.stat(file_of(desk)).st_mode)


def test_a_full_disk_leaves_the_old_file(desk):
    # No file may grow beyond this: for one that is larger, that is a disk without room.
    room = 16384
    with open(file_of(desk), "ab") as file:
        file.write(b"UserTemplate=" + b"x" * 3 * room + b"\n[User%20Tools]\nButCap(0)=Mine\n")
    before = read(file_of(desk))
    content = b"<P>words</P>"
    path = desk.write("page.htm", content)

    def fill_the_disk():
        signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
        resource.setrlimit(resource.RLIMIT_FSIZE, (room, room))

    desk.program = desk.start([PROGRAM, path], preexec_fn=fill_the_disk)
    desk.wait_window("The Tarnwick Pro")
    desk.wait_active("The Tarnwick Pro")
    writes_a_page(desk, path, content)
    assert read(file_of(desk)) == before


if __name__ == "__main__":
    main(sys.modules[__name__])
