"""Pages on the screen: open, type, save, close with the question, recent files, a second copy, skeletons."""
import sys
from driver import main, read, wait_for, PROGRAM
import subprocess

PAGE = b"<HTML>\r\n<BODY>\r\n<P>One caf\xe9</P>\r\n</BODY>\r\n</HTML>\r\n"


def test_opens_types_and_saves(desk):
    path = desk.write("one.htm", PAGE)
    desk.run(path)
    desk.wait_page("One caf\u00e9")
    desk.type("hello")
    desk.key("ctrl+s")
    wait_for("the saved file", lambda: read(path) == b"hello" + PAGE + b"\r\n")
    desk.key("alt+F4")
    assert desk.ended() == 0
    assert desk.setting("Window Options", "FirstTimeAgain") == "2"
    assert path in desk.setting("Menu Array Values", "MenuArray%280%29")


def test_the_frame_names_its_page_and_stands_alone(desk):
    path = desk.write("one.htm", PAGE)
    desk.run(path)
    desk.wait_page("One")
    title = "The Tarnwick Pro 3.0 - [%s]" % path
    wait_for("the title", lambda: desk.active_window() == title)
    # The start screen is no window any more, to a screen reader either.
    assert [window.name for window in desk.application()] == [title]


def geometry(desk):
    return [desk.setting("Window Options", "MainForm" + name) for name in ("Left", "Top", "Width", "Height")]


def test_the_frame_comes_back_where_it_was(desk):
    desk.settings("Window Options", MainFormLeft=1500, MainFormTop=1200, MainFormWidth=13500, MainFormHeight=7500)
    for _ in range(3):
        desk.run()
        desk.key("alt+F4")
        assert desk.ended() == 0
        assert geometry(desk) == ["1500", "1200", "13500", "7500"], geometry(desk)
        assert desk.setting("Window Options", "MainWindowState") == "0"


def test_a_maximised_frame_comes_back_maximised_and_keeps_the_place_below(desk):
    desk.settings("Window Options", MainFormLeft=1500, MainFormTop=1200, MainFormWidth=13500, MainFormHeight=7500,
                  MainWindowState=2)
    for _ in range(2):
        desk.run()
        wait_for("the maximised frame", lambda: desk.size("The Tarnwick Pro")[0] == 1280)
        desk.key("alt+F4")
        assert desk.ended() == 0
        assert geometry(desk) == ["1500", "1200", "13500", "7500"], geometry(desk)
        assert desk.setting("Window Options", "MainWindowState") == "2"


def test_closing_asks_and_cancel_keeps_everything(desk):
    path = desk.write("one.htm", PAGE)
    desk.run(path)
    desk.wait_page("One")
    desk.type("x")
    desk.key("alt+F4")
    desk.wait_window("Save Document?")
    desk.key("Escape")
    desk.wait_no_window("Save Document?")
    assert desk.program.poll() is None
    desk.key("alt+F4")
    desk.wait_window("Save Document?")
    desk.key("alt+n")
    assert desk.ended() == 0
    assert read(path) == PAGE


def test_closing_with_yes_saves(desk):
    path = desk.write("one.htm", PAGE)
    desk.run(path)
    desk.wait_page("One")
    desk.type("x")
    desk.key("ctrl+w")
    desk.wait_window("Save Document?")
    desk.key("alt+y")
    wait_for("the saved file", lambda: read(path) == b"x" + PAGE + b"\r\n")
    assert desk.program.poll() is None


def test_a_second_copy_hands_its_page_over(desk):
    first = desk.write("one.htm", PAGE)
    second = desk.write("two.htm", b"<P>Second</P>\n")
    desk.run(first)
    desk.wait_page("One")
    result = subprocess.run([PROGRAM, "two.htm"], env=desk.env, cwd=desk.home, capture_output=True, timeout=30)
    assert result.returncode == 0 and not result.stdout and not result.stderr, result
    desk.widget("two.htm", "page tab")
    desk.wait_text("Second")
    desk.key("alt+F4")
    assert desk.ended() == 0
    assert second in desk.setting("Menu Array Values", "MenuArray%280%29")


def test_recent_files_come_back_in_the_menu(desk):
    path = desk.write("one.htm", PAGE)
    desk.run(path)
    desk.wait_page("One")
    desk.key("alt+F4")
    assert desk.ended() == 0
    desk.run()
    desk.key("alt+f")
    desk.key("Up", "Return")
    desk.wait_text("One")


def test_a_new_page_from_the_toolbar_is_saved_under_a_name(desk):
    desk.run()
    desk.click_widget("New", "push button")
    desk.wait_text("The Tarnwick 3.0.6")
    desk.key("ctrl+End")
    desk.type("end")
    desk.key("ctrl+s")
    desk.wait_active("Save")
    target = desk.path("new.htm")
    desk.type(target)
    desk.key("Return")
    wait_for("the new file", lambda: read(target))
    assert read(target) == (b'<HTML>\r\n<HEAD>\r\n<meta name="generator" content="The Tarnwick 3.0.6">\r\n<TITLE></TITLE>\r\n'
                            b'</HEAD>\r\n<BODY>\r\n\r\n</BODY>\r\n</HTML>end\r\n')
    desk.widget("new.htm", "page tab")


def test_an_unreadable_page_comes_in_once_it_can_be_read(desk):
    path = desk.path("late.htm")
    desk.run(path)
    wait_for("the awaited path in the status bar", lambda: desk.widget_text_contains(path))
    desk.write("late.htm", PAGE)
    desk.wait_text("One")
    desk.key("alt+F4")
    assert desk.ended() == 0


def test_a_page_that_is_not_there_yet_is_opened_by_keys_and_comes_in_when_it_is(desk):
    desk.run()
    desk.key("ctrl+o")
    desk.wait_active("Open")
    desk.type(desk.path("new.htm"))
    desk.key("Return")
    wait_for("the awaited page", lambda: desk.widget_text_contains("Waiting for " + desk.path("new.htm")))
    desk.write("new.htm", b"<P>there\r\n")
    desk.wait_text("<P>there")


if __name__ == "__main__":
    main(sys.modules[__name__])
