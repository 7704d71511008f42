"""Auto-fill lists, the first run's Options, and the Edit, Design and View modes, on the screen."""
import os
import subprocess
import sys
from driver import main, read, wait_for, PROGRAM

WEB = os.path.join(os.path.dirname(PROGRAM), "tarnwick_web.so")


def test_an_image_tag_by_the_lists_alone(desk):
    path = desk.write("page.htm", b"<P>x</P>\r\n")
    desk.run(path)
    desk.wait_page("x")
    desk.type("<IMG ")
    desk.widget("Attributes")
    desk.type("S")
    desk.key("Return")
    desk.wait_text('<IMG SRC=""')
    desk.type("a.gif")
    desk.key("Right")
    desk.type(" ")
    desk.widget("Attributes")
    desk.type("ALI")
    desk.key("Return")
    desk.wait_text('ALIGN=""')
    desk.widget("Values")
    desk.type("L")
    desk.key("Return")
    desk.wait_text('ALIGN="LEFT"')
    desk.key("Right")
    desk.type(">")
    desk.key("ctrl+s")
    wait_for("the saved tag", lambda: read(path) == b'<IMG SRC="a.gif" ALIGN="LEFT"><P>x</P>\r\n\r\n')


def test_esc_within_the_pause_calls_the_list_off(desk):
    desk.run()
    desk.key("ctrl+n")
    desk.wait_text("")
    desk.type("<IMG ")
    desk.key("Escape")
    # A list that came up all the same would do so before that of a second page, and take the keys to the first.
    desk.key("ctrl+n")
    desk.wait_text("")
    desk.type("<A ")
    desk.widget("Attributes")
    desk.type("HR")
    desk.key("Return")
    desk.wait_text('HREF=""')
    assert desk.text() == '<A HREF=""', desk.text()


def test_the_first_run_shows_the_options_and_the_second_does_not(desk):
    desk.run(window="Options")
    desk.key("Escape")
    desk.wait_window("The Tarnwick Pro")
    desk.wait_no_window("Options")
    desk.wait_active("The Tarnwick Pro")
    desk.key("alt+F4")
    assert desk.ended() == 0
    assert desk.setting("Window Options", "FirstTimeAgain") == "1"
    desk.run()
    assert "Options" not in desk.windows()


test_the_first_run_shows_the_options_and_the_second_does_not.desk = {"first_run": True}


def with_modes(desk, **more):
    path = desk.path("config", "tarnwick", "The Tarnwick.ini")
    with open(path, "a", encoding="utf-8") as file:
        for key, value in {"UseMSIE": 1, **more}.items():
            file.write("%s=%s\n" % (key, value))


def pixel(desk, x, y):
    text = subprocess.run(["import", "-window", "root", "-crop", "1x1+%d+%d" % (x, y), "-depth", "8", "txt:-"], env=desk.env,
                          capture_output=True, text=True).stdout
    return text.split("#")[-1][:6].upper()


def engine_is_loaded(desk):
    with open("/proc/%d/maps" % desk.program.pid, encoding="utf-8") as file:
        return "WebEngine" in file.read()


def test_without_modes_nothing_of_the_engine_is_loaded(desk):
    desk.run(desk.write("page.htm", b"<P>words</P>"))
    desk.wait_page("words")
    desk.key("ctrl+n")
    desk.wait_text("")
    assert not engine_is_loaded(desk)
    assert not desk.widget_text_contains("Modes of the document")


if os.path.exists(WEB):
    def test_with_modes_the_first_document_loads_the_engine(desk):
        with_modes(desk)
        desk.run()
        assert not engine_is_loaded(desk)
        desk.key("ctrl+n")
        wait_for("the engine", lambda: engine_is_loaded(desk))

    def test_view_shows_the_page_and_design_edits_it(desk):
        with_modes(desk)
        page = (b"<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01//EN\">\r\n<HTML>\r\n<BODY BGCOLOR=\"#20C040\">\r\n"
                b"<P>first</P>\r\n</BODY>\r\n</HTML>\r\n")
        path = desk.write("page.htm", page)
        desk.run(path)
        desk.wait_page("first")
        desk.click_widget("View", "page tab")
        wait_for("the page's colour", lambda: pixel(desk, 640, 600) == "20C040", 60)
        desk.click_widget("Edit", "page tab")
        desk.wait_text("first")
        desk.click_widget("Design", "page tab")
        wait_for("the page's colour", lambda: pixel(desk, 640, 600) == "20C040", 60)
        desk.click(640, 600)
        desk.key("ctrl+End")
        desk.type("typed words")
        desk.click_widget("Edit", "page tab")
        desk.wait_active("The Tarnwick")
        wait_for("the question", lambda: desk.widget("Save Changes?"))
        desk.key("alt+y")
        wait_for("the typed words in the file", lambda: b"typed words" in (read(path) or b""))
        saved = read(path)
        assert saved.startswith(b"<!DOCTYPE HTML PUBLIC"), saved
        assert b"\r\n" in saved and b"\n" not in saved.replace(b"\r\n", b""), saved
        desk.wait_text("typed words")

    def test_keys_alone_reach_design_and_come_back_to_it(desk):
        with_modes(desk, TemplateWindowState=0)
        first = desk.write("first.htm", b'<BODY BGCOLOR="#20C040"><P>first</P></BODY>\r\n')
        second = desk.write("second.htm", b"<P>second</P>\r\n")
        desk.run(second)
        desk.wait_page("second")
        desk.start([PROGRAM, first])
        wait_for("the second window", lambda: len(desk.widgets("Document text", "text")) == 2)
        for tab in ("View", "Design"):
            desk.key("ctrl+Prior")
            wait_for("the page's colour", lambda: pixel(desk, 640, 500) == "20C040", 60)
            wait_for("its tab", lambda: desk.widgets(tab, "page tab list"))
            desk.click(640, 500)
        desk.key("ctrl+Home")
        desk.type("one ")
        desk.key("ctrl+Tab")
        desk.widget("Document text", "text", focused=True)
        desk.key("ctrl+Tab")
        wait_for("the other page", lambda: desk.widget("", "document web", focused=True))
        desk.type("two ")
        desk.key("ctrl+Prior")
        desk.wait_active("The Tarnwick")
        wait_for("the question", lambda: desk.widget("Save Changes?"))
        desk.key("alt+y")
        wait_for("the typed words in the file", lambda: b"one two" in (read(first) or b""))
        assert read(second) == b"<P>second</P>\r\n"


if __name__ == "__main__":
    main(sys.modules[__name__])
