"""What the mouse does in a page: pasting with the middle button, dragging a selection to another place."""
import sys
from driver import main, wait_for


def document(desk):
    """The only document's text, as a screen reader has it."""
    return desk.widget("Document text", "text").queryText()


def place(desk, offset):
    """A point on the screen just inside a character's left edge."""
    import pyatspi
    x, y, _, height = document(desk).getCharacterExtents(offset, pyatspi.DESKTOP_COORDS)
    return x + 1, y + height // 2


def selected(desk):
    text = document(desk)
    if text.getNSelections() == 0:
        return ""
    start, end = text.getSelection(0)
    return text.getText(start, end)


def color(desk, offset):
    """A character's colour, "red,green,blue", from its attributes."""
    attributes, _, _ = document(desk).getAttributes(offset)
    return dict(one.split(":", 1) for one in attributes.split(";") if one)["fg-color"]


def select_word(desk, offset, word):
    x, y = place(desk, offset)
    desk.xdo("mousemove", "--sync", x, y, "click", "--repeat", "2", "--delay", "60", "1")
    wait_for("the word " + word, lambda: selected(desk) == word)


def drag(desk, start, end):
    """From one character to another with the button held; in steps, as a hand moves."""
    x, y = place(desk, start)
    desk.xdo("mousemove", "--sync", x + 2, y, "mousedown", "1")
    to_x, to_y = place(desk, end)
    for step in range(1, 11):
        desk.xdo("mousemove", "--sync", x + (to_x - x) * step // 10, y + (to_y - y) * step // 10)
    desk.xdo("mouseup", "1")


def open_page(desk, page, part):
    path = desk.write("page.htm", page)
    desk.run(path)
    desk.wait_page(part)


def test_the_middle_button_pastes_what_is_selected(desk):
    open_page(desk, b"<B>one</B> two\r\nthree\r\n", "three")
    select_word(desk, 16, "three")
    desk.click(*place(desk, 3), button=2)
    wait_for("the pasted word", lambda: desk.text() == "<B>threeone</B> two\r\nthree\r\n")
    assert document(desk).caretOffset == 8, document(desk).caretOffset
    desk.key("ctrl+z")
    wait_for("one step taken back", lambda: desk.text() == "<B>one</B> two\r\nthree\r\n")


def test_a_selection_is_dragged_to_another_place(desk):
    open_page(desk, b"<B>one</B> two\r\nthree\r\n", "three")
    blue = color(desk, 1)
    assert color(desk, 11) != blue
    select_word(desk, 11, "two")
    drag(desk, 11, 16)
    wait_for("the moved word", lambda: desk.text() == "<B>one</B> \r\ntwothree\r\n")
    assert color(desk, 1) == blue
    assert color(desk, 13) != blue
    desk.key("ctrl+z")
    wait_for("one step taken back", lambda: desk.text() == "<B>one</B> two\r\nthree\r\n")
    assert color(desk, 1) == blue and color(desk, 11) != blue


def test_a_drag_with_ctrl_held_leaves_the_selection_where_it_was(desk):
    open_page(desk, b"one two\r\nthree\r\n", "three")
    select_word(desk, 4, "two")
    desk.xdo("keydown", "ctrl")
    drag(desk, 4, 9)
    desk.xdo("keyup", "ctrl")
    wait_for("the copied word", lambda: desk.text() == "one two\r\ntwothree\r\n")


if __name__ == "__main__":
    main(sys.modules[__name__])
