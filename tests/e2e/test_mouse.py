"""What the mouse does in a page: pasting with the middle button, dragging a selection to another place."""
import subprocess
import sys
from driver import PROGRAM, main, wait_for


def document(desk):
    """The only document's text, as a screen reader has it."""
    return desk.widget("Document text", "text").queryText()


def place_in(text, offset):
    """A point on the screen just inside a character's left edge."""
    import pyatspi
    x, y, _, height = text.getCharacterExtents(offset, pyatspi.DESKTOP_COORDS)
    return x + 1, y + height // 2


def place(desk, offset):
    return place_in(document(desk), offset)


def selected(desk):
    return selection_of(document(desk))


def selection_of(text):
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
    """From one character to another with the button held."""
    drag_between(desk, place(desk, start), place(desk, end))


def drag_between(desk, start, end):
    """In steps, as a hand moves. A press at the very place of a double click just made is the third of three."""
    (x, y), (to_x, to_y) = start, end
    desk.xdo("mousemove", "--sync", x + 2, y, "mousedown", "1")
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
    drag(desk, 13, 16)
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
    drag(desk, 6, 9)
    desk.xdo("keyup", "ctrl")
    wait_for("the copied word", lambda: desk.text() == "one two\r\ntwothree\r\n")


def whole(text):
    return text.getText(0, text.characterCount)


def two_documents(desk):
    """The texts of two pages side by side: one that a word is taken from, one that it goes to."""
    desk.run(desk.write("source.htm", b"<B>one</B> two\r\nthree\r\n"))
    desk.wait_page("three")
    subprocess.run([PROGRAM, desk.write("target.htm", b"four\r\nfive\r\n")], env=desk.env, timeout=30)
    desk.wait_text("five")
    desk.key("shift+F4")  # Tile
    both = wait_for("both pages", lambda: [one for one in desk.widgets("Document text", "text")] if len(
        desk.widgets("Document text", "text")) == 2 else None)
    texts = sorted((one.queryText() for one in both), key=lambda text: "four" in whole(text))
    desk.click(*place_in(texts[0], 18))
    desk.wait_text("three")
    desk.xdo("mousemove", "--sync", *place_in(texts[0], 11), "click", "--repeat", "2", "--delay", "60", "1")
    wait_for("the selected word", lambda: selection_of(texts[0]) == "two")
    return texts


def test_a_selection_is_dragged_into_another_document(desk):
    source, target = two_documents(desk)
    drag_between(desk, place_in(source, 13), place_in(target, 6))
    wait_for("the word in the other page", lambda: whole(target) == "four\r\ntwofive\r\n")
    wait_for("the word gone from its page", lambda: whole(source) == "<B>one</B> \r\nthree\r\n")


def test_a_selection_is_copied_into_another_document_with_ctrl_held(desk):
    source, target = two_documents(desk)
    desk.xdo("keydown", "ctrl")
    drag_between(desk, place_in(source, 13), place_in(target, 6))
    desk.xdo("keyup", "ctrl")
    wait_for("the word in the other page", lambda: whole(target) == "four\r\ntwofive\r\n")
    assert whole(source) == "<B>one</B> two\r\nthree\r\n", whole(source)


if __name__ == "__main__":
    main(sys.modules[__name__])
