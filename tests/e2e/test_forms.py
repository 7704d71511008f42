"""The Form dialog on the screen: a whole form of all eleven kinds from one open dialog, by keys alone."""
import sys
from driver import main, read, wait_for

# What each tab is given, by the keys of its fields, and what it writes; each element on a line of its own.
KINDS = [
    ("Text", {"n": "who", "v": "Ann", "s": "20", "m": "40", "g": "LEFT", "t": "1"},
     '<INPUT TYPE="TEXT" NAME="who" VALUE="Ann" SIZE="20" MAXLENGTH="40" ALIGN="LEFT" TABINDEX="1">'),
    ("TextArea", {"n": "why", "o": "40", "r": "5", "w": "VIRTUAL"},
     '<TEXTAREA NAME="why" COLS="40" ROWS="5" WRAP="VIRTUAL"></TEXTAREA>'),
    ("Radio", {"n": "kind", "v": "a"}, '<INPUT TYPE="RADIO" NAME="kind" VALUE="a">'),
    ("Checkbox", {}, '<INPUT TYPE="CHECKBOX" NAME="kind" VALUE="a">'),
    ("List", {"n": "pick"}, '<SELECT NAME="pick">\r\n<OPTION>one\r\n<OPTION>two\r\n</SELECT>'),
    ("Password", {}, '<INPUT TYPE="PASSWORD" NAME="who" VALUE="Ann" SIZE="20" MAXLENGTH="40" ALIGN="LEFT" TABINDEX="1">'),
    ("Submit", {"v": "Go"}, '<INPUT TYPE="SUBMIT" VALUE="Go">'),
    ("Reset", {}, '<INPUT TYPE="RESET" VALUE="Go">'),
    ("Button", {}, '<INPUT TYPE="BUTTON" VALUE="Go">'),
    ("Hidden", {"n": "id", "v": "7"}, '<INPUT TYPE="HIDDEN" NAME="id" VALUE="7">'),
]


def to_page(desk):
    """The way from the dialog into the page: a click below its text, beside the dialog."""
    import pyatspi
    place = desk.widget("Document text", "text").queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    desk.click(place.x + 20, place.y + place.height - 20)
    desk.wait_active("The Tarnwick Pro")


def to_dialog(desk):
    desk.click_widget("Form", "push button")
    desk.wait_active("Form")


def fill_by_keys(desk, fields):
    for key, text in fields.items():
        desk.key("alt+" + key)
        desk.type(text)


def test_a_form_of_all_kinds_from_one_dialog(desk):
    path = desk.write("page.htm", b"")
    desk.run(path)
    desk.widget("Document text", "text", focused=True)
    to_dialog(desk)
    text = ""
    for caption, fields, written in KINDS:
        desk.key("ctrl+Tab")
        desk.widget(caption, "page tab")
        fill_by_keys(desk, fields)
        if caption == "List":
            desk.key("alt+i")
            for item in ("one", "two"):
                desk.type(item)
                desk.key("Return")
        desk.key("alt+a")
        if caption == "List":
            # Add Item has the same key: the second press is the other's turn, and Enter presses it.
            desk.key("alt+a")
            desk.key("space")
        text += written
        desk.wait_text(written)
        to_page(desk)
        desk.key("ctrl+End", "Return")
        text += "\r\n"
        wait_for("the text so far", lambda: desk.text() == text)
        to_dialog(desk)
    # The form goes around all of it.
    to_page(desk)
    desk.key("ctrl+a")
    to_dialog(desk)
    desk.key("ctrl+Tab")
    fill_by_keys(desk, {"i": "/cgi-bin/do", "t": "_top"})
    desk.key("Return")
    text = '<FORM ACTION="/cgi-bin/do" TARGET="_top" METHOD="POST">' + text + "\r\n</FORM>"
    wait_for("the whole form", lambda: desk.text() == text)
    # Apply has left the dialog open all the while.
    desk.wait_active("Form")
    desk.key("Escape")
    desk.wait_no_window("Form")
    desk.wait_active("The Tarnwick Pro")
    # One undo takes the last element back.
    desk.key("ctrl+z")
    wait_for("the elements alone", lambda: "FORM" not in desk.text())
    desk.key("ctrl+y", "ctrl+s")
    wait_for("the saved page", lambda: read(path) == (text + "\r\n").encode() or read(path) == text.encode())


def test_lower_case_leaves_the_words_that_are_written_by_hand(desk):
    desk.settings("Program Options", LowerCaseTags=1)
    desk.run(desk.write("page.htm", b""))
    desk.widget("Document text", "text", focused=True)
    to_dialog(desk)
    desk.key("Return")
    wait_for("the form", lambda: desk.text() == '<form method="POST">\r\n</FORM>')


if __name__ == "__main__":
    main(sys.modules[__name__])
