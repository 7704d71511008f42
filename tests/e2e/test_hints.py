"""What helps in the frame: the text of the empty one, the marks of changed pages, Ctrl+Tab's list, the keys of the strips."""
import os
import sys
from driver import main, wait_for


def end(desk):
    desk.key("alt+F4")
    assert desk.ended() == 0, desk.log()


def test_a_recent_file_is_one_click_away_from_the_second_start_on(desk):
    path = desk.write("page.htm", b"<P>words</P>")
    gone = desk.write("gone.htm", b"<P>words</P>")
    for one in (path, gone):
        desk.run(one)
        desk.wait_page("words")
        end(desk)
    os.remove(gone)
    link = "page.htm, " + desk.path()
    desk.run()
    desk.widget(link, "push button")
    assert not desk.widgets("gone.htm, " + desk.path(), "push button")
    desk.click_widget(link, "push button")
    desk.wait_page("words")
    desk.type("x")
    desk.wait_text("x<P>words")
    assert not desk.widgets(link, "push button")


def test_the_keyboard_reaches_the_text_of_the_empty_frame(desk):
    desk.run()
    desk.widget("New page, with the tags that every page has", "push button")
    desk.widget("New", "push button", focused=True)
    desk.key("F6")
    desk.widget("New page, with the tags that every page has", "push button", focused=True)
    desk.key("Return")
    desk.wait_text("<HTML>")
    desk.key("ctrl+Home")
    desk.type("x")
    desk.wait_text("x<HTML>")


def test_a_changed_page_is_marked_for_a_screen_reader(desk):
    path = desk.write("page.htm", b"<P>words</P>")
    desk.run(path)
    desk.wait_page("words")
    tab = desk.widget("page.htm", "page tab")

    def description():
        tab.clear_cache()
        return tab.description
    assert description() == path, description()
    desk.type("x")
    wait_for("the mark", lambda: description() == path + "\nModified")
    desk.key("ctrl+s")
    wait_for("the mark's end", lambda: description() == path)


def test_ctrl_tab_shows_where_it_goes(desk):
    first = desk.write("first.htm", b"<P>first</P>")
    desk.run(first)
    desk.wait_page("first")
    desk.key("ctrl+n")
    desk.wait_text("")
    desk.key("ctrl+n")
    desk.type("third")
    desk.wait_text("third")
    desk.xdo("keydown", "ctrl")
    # Whoever holds Ctrl for long enough sees the list; a Tab that comes before waits for it.
    desk.xdo("key", "Tab")
    desk.widget("first.htm - " + desk.path(), "list item")
    desk.widget("Untitled 2", "list item")
    desk.xdo("key", "Tab")
    desk.xdo("keyup", "ctrl")
    desk.wait_text("")
    assert not desk.widgets("Untitled 2", "list item")
    desk.type("second")
    desk.wait_text("second")
    # Pressed at once: back to where one was before.
    desk.key("ctrl+Tab")
    desk.wait_text("third")


def test_f6_goes_round(desk):
    desk.settings("Window Options", UseMSIE=1, ShowUserButtons=1)
    desk.run(desk.write("page.htm", b"<P>words</P>"))
    desk.wait_page("words")
    stations = (("Edit", "page tab"), ("page.htm", "page tab"), ("New", "push button"), ("User button 1", "push button"),
                ("Document text", "text"))
    for name, role in stations:
        desk.key("F6")
        desk.widget(name, role, focused=True)
    for name, role in (*reversed(stations[:-1]), stations[-1]):
        desk.key("shift+F6")
        desk.widget(name, role, focused=True)


if __name__ == "__main__":
    main(sys.modules[__name__])
