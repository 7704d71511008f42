"""The end of the desktop's session: the program asks about what is not saved, may stop the log-out, and ends when told to."""
import sys
from driver import main, read, wait_for, PROGRAM
from session import in_session, NO_INTERACTION

CONTENT = b"<P>words</P>"
QUESTION = "Save Document?"


def open_page(desk, session, change=True):
    """The program with a page, changed or not."""
    path = desk.write("page.htm", CONTENT)
    desk.run(path)
    desk.wait_page("words")
    if change:
        desk.type("x")
        desk.wait_text("x<P>")
    session.wait_registered()
    return path


def answer(desk, key):
    desk.wait_active(QUESTION)
    assert desk.widget_text_contains("Do you want to save?")
    desk.key(key)
    desk.wait_no_window(QUESTION)


def asks_nothing(desk):
    assert QUESTION not in desk.windows(), desk.windows()


def wait_saved(path, begin):
    wait_for("the saved page", lambda: read(path) == begin + CONTENT + b"\r\n")


def writes_on(desk, path, begin):
    """The program is there for its user, and the page with it."""
    desk.wait_active("The Tarnwick Pro")
    desk.key("ctrl+Home")
    desk.type("y")
    desk.wait_text("y" + begin.decode() + "<P>")
    desk.key("ctrl+s")
    wait_saved(path, b"y" + begin)


def ends_with_its_settings(desk, path, runs=2):
    assert desk.ended() == 0, desk.log()
    assert desk.setting("Window Options", "FirstTimeAgain") == str(runs)
    assert desk.setting("Menu Array Values", "MenuArray%280%29") == path


@in_session
def test_yes_saves_the_page_and_the_program_ends_with_the_session(desk, session):
    path = open_page(desk, session)
    session.log_out()
    answer(desk, "alt+y")
    session.wait_heard("may I ask?", "asked", "done")
    wait_saved(path, b"x")
    session.die()
    ends_with_its_settings(desk, path)


@in_session
def test_no_leaves_the_file_and_is_not_asked_twice(desk, session):
    path = open_page(desk, session)
    session.log_out()
    answer(desk, "alt+n")
    session.wait_heard("may I ask?", "asked", "done")
    session.die()
    ends_with_its_settings(desk, path)
    assert read(path) == CONTENT


@in_session
def test_cancel_stops_the_log_out(desk, session):
    path = open_page(desk, session)
    session.log_out()
    answer(desk, "Escape")
    session.wait_heard("may I ask?", "stay logged in", "not done")
    session.cancel()
    assert read(path) == CONTENT
    writes_on(desk, path, b"x")


@in_session
def test_a_dialog_that_is_up_stops_the_log_out(desk, session):
    path = open_page(desk, session, change=False)
    desk.key("ctrl+o")
    desk.wait_active("Open")
    session.log_out()
    session.wait_heard("may I ask?", "stay logged in", "not done")
    session.cancel()
    desk.key("Escape")
    writes_on(desk, path, b"")


@in_session
def test_with_nothing_to_save_nobody_is_asked(desk, session):
    path = open_page(desk, session, change=False)
    session.log_out()
    session.wait_heard("done")
    asks_nothing(desk)
    session.die()
    ends_with_its_settings(desk, path)
    assert read(path) == CONTENT


@in_session
def test_a_log_out_that_another_program_stops_leaves_the_program_open(desk, session):
    path = open_page(desk, session)
    session.log_out()
    answer(desk, "alt+y")
    session.wait_heard("may I ask?", "asked", "done")
    session.cancel()
    writes_on(desk, path, b"x")


@in_session
def test_where_the_session_lets_no_one_ask_the_end_does(desk, session):
    path = open_page(desk, session)
    session.log_out(NO_INTERACTION)
    session.wait_heard("done")
    asks_nothing(desk)
    assert read(path) == CONTENT
    session.die()
    answer(desk, "alt+y")
    ends_with_its_settings(desk, path)
    wait_saved(path, b"x")


@in_session
def test_a_dialog_that_is_up_does_not_outlive_the_session(desk, session):
    path = open_page(desk, session, change=False)
    desk.key("ctrl+o")
    desk.wait_active("Open")
    session.log_out(NO_INTERACTION)
    session.wait_heard("done")
    session.die()
    ends_with_its_settings(desk, path)


@in_session
def test_the_next_session_starts_the_program_again(desk, session):
    path = open_page(desk, session, change=False)
    session.log_out()
    session.wait_heard("done")
    session.die()
    ends_with_its_settings(desk, path)
    program, *arguments = session.properties["RestartCommand"]
    assert program == PROGRAM and arguments, session.properties
    desk.run(*arguments)
    # What the session adds to the command line is no page.
    assert desk.active_window() == "The Tarnwick Pro 3.0"
    desk.key("alt+F4")
    ends_with_its_settings(desk, path, runs=3)


if __name__ == "__main__":
    main(sys.modules[__name__])
