"""The program is killed, and the next start brings back what was not saved."""
import os
import sys
from driver import main, read, wait_for, PROGRAM

QUESTION = "The Tarnwick"
CONTENT = b"<P>old</P>"


def copies(desk):
    """The copies that lie in the program's folder, by their names."""
    folder = desk.path("own", "recovery")
    names = os.listdir(folder) if os.path.isdir(folder) else []
    return {name: read(os.path.join(folder, name)) or b"" for name in names if name.endswith(".copy")}


def kill_with_a_change(desk):
    """A page of CONTENT is changed, and the program killed as soon as the change has been copied."""
    path = desk.write("page.htm", CONTENT)
    desk.run(path)
    desk.wait_page("old")
    desk.type("new ")
    wait_for("the copy", lambda: any(copy.endswith(b"new " + CONTENT) for copy in copies(desk).values()))
    desk.program.kill()
    desk.program.wait()
    return path


def start_and_be_asked(desk, *arguments):
    desk.program = desk.start([PROGRAM, *arguments])
    wait_for("the question", lambda: desk.active_window() == QUESTION)


def test_yes_is_the_answer_of_enter_and_brings_the_page_back(desk):
    path = kill_with_a_change(desk)
    start_and_be_asked(desk)
    assert desk.widget_text_contains(path), "the question names the page"
    desk.key("Return")
    desk.wait_active("The Tarnwick Pro")
    desk.wait_text("new <P>old</P>")
    assert read(path) == CONTENT
    # The keys reach it: a person goes on where it was.
    desk.key("ctrl+End")
    desk.type("more")
    desk.wait_text("new <P>old</P>more")
    desk.key("ctrl+s")
    wait_for("the save", lambda: read(path) == b"new <P>old</P>more\r\n")
    wait_for("the copy's end", lambda: not copies(desk))


def test_page_of_the_command_line_is_not_open_twice(desk):
    path = kill_with_a_change(desk)
    start_and_be_asked(desk, path)
    desk.key("Return")
    desk.wait_active("The Tarnwick Pro")
    desk.wait_text("new <P>old</P>")
    assert len(desk.widgets("Document text", "text")) == 1


def test_no_gives_it_up(desk):
    path = kill_with_a_change(desk)
    start_and_be_asked(desk)
    desk.key("alt+n")
    desk.wait_active("The Tarnwick Pro")
    wait_for("the copy's end", lambda: not copies(desk))
    assert not desk.widgets("Document text", "text")
    assert read(path) == CONTENT
    desk.key("alt+F4")
    assert desk.ended() == 0
    # And nobody asks again.
    desk.run()


def test_with_the_setting_off_nobody_asks_and_the_copies_stay(desk):
    kill_with_a_change(desk)
    desk.settings("Program Options", Recovery=0)
    before = copies(desk)
    desk.run()
    assert QUESTION not in desk.windows()
    desk.key("alt+F4")
    assert desk.ended() == 0
    assert copies(desk) == before


main(sys.modules[__name__])
