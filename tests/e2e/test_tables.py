"""The Table dialog on the screen, by keys: cell by cell, previewed, inserted, and an existing table read back."""
import os
import sys
from driver import main, read, wait_for

QUESTION = "This feature is still under development and may not work properly."
REMOVE = "Remove imported table from HTML document?"


def page(desk, data=b"<P>x</P>\r\n"):
    path = desk.write("page.htm", data)
    desk.run(path)
    desk.wait_page(data.decode("cp1252").strip()[:10])
    return path


def show_table(desk):
    """The button, whose command has no key, by the mouse; all else is keys."""
    desk.click_widget("Table", "push button")
    desk.wait_active("Table")


def size(desk, rows, columns):
    desk.key("alt+r")
    desk.type(rows)
    desk.key("alt+m")
    desk.type(columns)


def edit_cell(desk, text, *keys):
    """Opens the current cell of the grid, presses keys, types its text and takes it over."""
    desk.key("Return")
    desk.wait_active("Table Input")
    desk.key(*keys) if keys else None
    desk.type(text)
    desk.key("Return")
    desk.wait_no_window("Table Input")
    desk.wait_active("Table")


def type_cells(desk, rows, columns):
    desk.key("alt+l")
    for row in range(rows):
        for column in range(columns):
            edit_cell(desk, "r%dc%d" % (row, column))
            if column < columns - 1:
                desk.key("Right")
        desk.key("Down", "Home")


def rows_of(rows, columns):
    return "".join("<TR>%s</TR>\r\n" % "".join("<TD>r%dc%d</TD>" % (row, column) for column in range(columns))
                   for row in range(rows))


def answer(desk, question, key):
    wait_for("the question", lambda: desk.widget_text_contains(question))
    desk.wait_active("The Tarnwick")
    desk.key(key)


def test_a_table_there_and_back(desk):
    # A browser that tells what it was given.
    seen = desk.path("seen")
    browser = desk.write("browser", b'#!/bin/sh\necho "$1" > "' + seen.encode() + b'.new"\nmv "' + seen.encode() +
                         b'.new" "' + seen.encode() + b'"\n')
    os.chmod(browser, 0o755)
    desk.settings("Browser Options", Web=browser)
    path = page(desk)
    desk.key("ctrl+Home")
    show_table(desk)
    size(desk, "3", "4")
    type_cells(desk, 3, 4)

    desk.key("alt+p")
    test_file = desk.path("own", "tabletest.html")
    wait_for("the browser's page", lambda: read(seen) == test_file.encode() + b"\n")
    assert read(test_file) == (
        b"<HTML><HEAD><TITLE>Table Test</TITLE><BODY><CENTER><TABLE>\r\n" + rows_of(3, 4).encode() +
        b"</TABLE></CENTER></BODY></HTML>"), read(test_file)

    desk.key("alt+o")
    desk.wait_no_window("Table")
    table = "<TABLE>\r\n" + rows_of(3, 4) + "</TABLE>"
    desk.wait_text(table + "<P>x</P>")
    assert read(test_file) is None

    # Selected again and imported: the grid shows it, and only what is edited anew is written.
    desk.key("ctrl+a")
    show_table(desk)
    desk.key("alt+i")
    answer(desk, QUESTION, "alt+n")
    answer(desk, REMOVE, "alt+y")
    desk.wait_active("Table")
    desk.wait_text("")
    assert desk.widget_text_contains("r2c3")
    desk.key("alt+l", "ctrl+Home")
    edit_cell(desk, "new ")
    desk.key("Right", "Down")
    edit_cell(desk, "", "End")
    desk.key("alt+o")
    desk.wait_no_window("Table")
    expected = "<TABLE>\r\n<TR><TD>new </TD></TR>\r\n<TR><TD>r1c1</TD></TR>\r\n</TABLE>"
    desk.wait_text(expected)
    desk.key("ctrl+s")
    wait_for("the saved page", lambda: read(path) == expected.encode() + b"\r\n")
    # One undo for the table, one for what import took away.
    desk.key("ctrl+z")
    desk.wait_text("")
    desk.key("ctrl+z")
    desk.wait_text(table)


def test_a_cell_by_keyboard_alone(desk):
    picture = desk.path("user", "zebra.gif")
    with open(picture, "wb") as file:
        file.write(b"GIF89a\x01\x00\x01\x00\x80\x00\x00\x00\x00\x00\xff\xff\xff,\x00\x00\x00\x00\x01\x00\x01\x00\x00"
                   b"\x02\x02D\x01\x00;")
    desk.settings("Window Options", LastDir=desk.path("user"))
    page(desk)
    desk.key("ctrl+Home")
    show_table(desk)
    desk.key("alt+l", "Return")
    desk.wait_active("Table Input")
    # Header, no wrap, the spans and the alignments.
    desk.key("alt+h", "alt+w", "alt+c")
    desk.type("2")
    desk.key("alt+a")
    desk.type("CENTER")
    # A picture of the list; the window is left once by Esc.
    desk.key("alt+i", "space")
    desk.wait_active("Select Image")
    desk.key("Escape")
    desk.wait_no_window("Select Image")
    desk.wait_active("Table Input")
    desk.key("alt+i", "space")
    desk.wait_active("Select Image")
    desk.key("End", "Return")
    desk.wait_no_window("Select Image")
    desk.wait_active("Table Input")
    wait_for("the picture's path", lambda: desk.widget_text_contains("Cell text") and
             desk.widget("Cell text", "text").queryText().getText(0, -1) == "<IMG SRC=user/zebra.gif>")
    # The keys are back in the text, which is selected whole: what is typed replaces it.
    desk.type("cat")
    # A colour; the dialog is taken as it comes up.
    desk.key("alt+l", "space")
    desk.wait_active("Select Color")
    desk.key("Return")
    desk.wait_no_window("Select Color")
    desk.wait_active("Table Input")
    desk.key("Return")
    desk.wait_no_window("Table Input")
    desk.wait_active("Table")
    desk.key("alt+o")
    desk.wait_no_window("Table")
    desk.wait_text("<TR><TH NOWRAP COLSPAN=2 ALIGN=CENTER BGCOLOR=#")
    assert ">cat</TH></TR>\r\n<TR></TR>\r\n</TABLE><P>x</P>" in desk.text(), desk.text()


def test_a_picture_for_a_page_that_was_never_saved(desk):
    with open(desk.path("user", "zebra.gif"), "wb") as file:
        file.write(b"no picture")
    desk.settings("Window Options", LastDir=desk.path("user"))
    desk.run()
    desk.key("ctrl+n")
    desk.wait_text("")
    show_table(desk)
    desk.key("alt+l", "Return")
    desk.wait_active("Table Input")
    desk.key("alt+i", "space")
    desk.wait_active("Select Image")
    desk.key("End", "Return")
    # The box that asks to save first has no title. Behind it the keys are back in the cell.
    wait_for("the box", lambda: desk.widget_text_contains("I am unable to complete this operation properly."))
    desk.key("Return")
    desk.wait_active("Table Input")
    desk.key("End")
    desk.type("x")
    wait_for("the path that could be computed", lambda: desk.widget("Cell text", "text").queryText().getText(
        0, -1).endswith("user/zebra.gif>x"))


def test_the_table_dialogs_close_by_esc(desk):
    page(desk)
    show_table(desk)
    desk.key("alt+l", "Return")
    desk.wait_active("Table Input")
    desk.key("Escape")
    desk.wait_no_window("Table Input")
    desk.wait_active("Table")
    desk.key("Escape")
    desk.wait_no_window("Table")
    desk.wait_active("The Tarnwick Pro")
    desk.type("on ")
    desk.wait_text("on ")


if __name__ == "__main__":
    main(sys.modules[__name__])
