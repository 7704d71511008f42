"""Find, replace and replace over many files on the screen, by keys."""
import os
import shutil
import sys
from driver import main, read, wait_for

DIALOG = "Find / Replace / Multi-file Search & Replace"


def page(desk, data):
    desk.run(desk.write("page.htm", data))
    desk.wait_page(data.decode("cp1252")[:10])


def expect_selected(desk, start, end):
    def selection():
        return desk.widget("Document text", "text").queryText().getSelection(0)
    wait_for("the selection from %d to %d" % (start, end), lambda: selection() == (start, end))


def confirm(desk, text):
    """A message box, by its button: it may have no title."""
    desk.widget("OK", "push button", focused=True)
    wait_for("the box to have the keys", lambda: not desk.active_window().startswith(DIALOG))
    wait_for("the box " + text, lambda: desk.widget_text_contains(text))
    desk.key("Return")


def test_find_goes_from_match_to_match(desk):
    page(desk, b"<P>one two One</P>\r\n")
    desk.key("ctrl+f")
    desk.wait_active(DIALOG)
    desk.type("one")
    desk.key("Return")
    expect_selected(desk, 3, 6)
    desk.key("Return")
    expect_selected(desk, 11, 14)
    desk.key("Return")
    confirm(desk, 'Cannot Find "one".')
    desk.wait_active(DIALOG)
    desk.key("Escape")
    desk.wait_no_window(DIALOG)
    desk.wait_active("The Tarnwick Pro")
    # A whole word in its case, from the top. What was searched for is not kept: Find Next shows the dialog.
    desk.key("ctrl+Home", "F3")
    desk.wait_active(DIALOG)
    desk.type("two")
    desk.key("alt+s", "alt+w", "alt+o")
    expect_selected(desk, 7, 10)
    desk.key("alt+c")
    desk.wait_no_window(DIALOG)
    desk.wait_active("The Tarnwick Pro")
    desk.type("2")
    desk.wait_text("<P>one 2 One</P>")


def test_replace_gives_the_page_the_keys_and_replace_all_is_one_step(desk):
    before = "<P>a A a aa</P>\r\n"
    page(desk, before.encode())
    desk.key("ctrl+r")
    desk.wait_active(DIALOG)
    desk.type("a")
    desk.key("alt+p")
    desk.type("<B>b</B>")
    desk.key("alt+s", "alt+r")
    desk.wait_text("<P><B>b</B> A a aa</P>")
    desk.wait_active("The Tarnwick Pro")
    desk.key("ctrl+z")
    desk.wait_text(before)
    # The same dialog comes to the front again, its fields as they were.
    desk.key("ctrl+r")
    desk.wait_active(DIALOG)
    desk.key("alt+a")
    confirm(desk, 'No more instances of "a" found.')
    desk.wait_active(DIALOG)
    # A match that touches a replacement stays.
    desk.wait_text("<P><B>b</B> A <B>b</B> <B>b</B>a</P>")
    desk.key("Escape")
    desk.wait_no_window(DIALOG)
    desk.wait_active("The Tarnwick Pro")
    desk.key("ctrl+z")
    desk.wait_text(before)


def test_replace_all_in_a_selection(desk):
    page(desk, b"aa aa aa\r\n")
    desk.key("ctrl+Home", *["shift+Right"] * 5, "ctrl+r")
    desk.wait_active(DIALOG)
    desk.type("aa")
    desk.key("alt+p")
    desk.type("b")
    desk.key("alt+a")
    confirm(desk, "Finished!")
    desk.wait_text("b b aa\r\n")


def add_files(desk, paths):
    """Puts files on the list of those to replace in."""
    desk.key("alt+d")
    desk.wait_active("Open")
    desk.type(" ".join('"%s"' % path for path in paths))
    desk.key("Return")
    desk.wait_no_window("Open")
    desk.wait_active(DIALOG)
    for path in paths:
        desk.widget(path, "list item")


def test_many_files(desk):
    page(desk, b"<P>stays</P>\r\n")
    os.mkdir(desk.path("site"))
    paths = [desk.write("site/%d.htm" % n, b"<P>Old \xe9 old</P>\n") for n in range(3)]
    os.chmod(paths[0], 0o640)
    desk.key("alt+e", "m")
    desk.wait_active(DIALOG)
    desk.type("old \u00e9")
    desk.key("alt+p")
    desk.type("new")
    add_files(desk, paths)
    desk.key("Return")
    confirm(desk, "Finished!")
    desk.wait_active(DIALOG)
    assert [read(path) for path in paths] == [b"<P>new old</P>\n\r\n"] * 3, [read(path) for path in paths]
    assert os.stat(paths[0]).st_mode & 0o777 == 0o640
    assert sorted(os.listdir(desk.path("site"))) == ["0.htm", "1.htm", "2.htm"]
    desk.key("Escape")
    desk.wait_no_window(DIALOG)
    assert desk.text() == "<P>stays</P>\r\n"


def test_many_files_of_which_some_cannot_be_written(desk):
    page(desk, b"<P>stays</P>\r\n")
    os.mkdir(desk.path("gone"))
    paths = [desk.write("here.htm", b"old"), desk.write("gone/1.htm", b"old"), desk.write("gone/2.htm", b"old")]
    desk.key("alt+e", "m")
    desk.wait_active(DIALOG)
    desk.type("old")
    add_files(desk, paths)
    shutil.rmtree(desk.path("gone"))
    desk.key("Return")
    confirm(desk, "Finished!")
    desk.wait_active(DIALOG)
    # The key that answered the box does not end it, the next one does.
    notice = "Could not save 2 files, the first 1.htm: No such file or directory"
    wait_for("the notice", lambda: desk.widget_text_contains(notice))
    assert read(paths[0]) == b"\r\n", read(paths[0])
    desk.key("Escape")
    desk.wait_no_window(DIALOG)
    wait_for("the notice to end", lambda: not desk.widget_text_contains(notice))


def test_the_toolbar_shows_a_window_beside_the_program(desk):
    page(desk, b"<P>one</P>\r\n")
    desk.click_widget("Find", "push button")
    desk.wait_active(DIALOG)
    desk.type("one")
    desk.key("Return")
    expect_selected(desk, 3, 6)
    # It has no owner, and goes with the program.
    desk.key("alt+F4")
    desk.wait_no_window(DIALOG)
    desk.click_widget("Find", "push button")
    desk.wait_active(DIALOG)
    desk.click_widget("File", "menu item")
    desk.wait_active("The Tarnwick Pro")
    desk.key("x")
    assert desk.ended() == 0


if __name__ == "__main__":
    main(sys.modules[__name__])
