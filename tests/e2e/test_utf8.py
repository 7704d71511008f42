"""Pages in UTF-8 on the screen: typed into, saved, told in the status bar, and beside a page of code page 1252."""
import subprocess
import sys
from driver import main, read, wait_for, PROGRAM

POLISH = "<P>zażółć gęślą jaźń 日本 שלום 😀</P>\r\n"


def test_a_page_is_typed_into_and_saved(desk):
    path = desk.write("page.htm", POLISH.encode())
    desk.run(path)
    desk.wait_page("zażółć")
    assert desk.text() == POLISH, desk.text()
    desk.key("ctrl+Right")
    desk.type("€x")
    desk.key("ctrl+s")
    wait_for("the saved page", lambda: read(path) == POLISH.encode().replace(b"<", "<€x".encode(), 1) + b"\r\n")


def test_a_mark_stays_and_nothing_else_changes(desk):
    page = b"\xef\xbb\xbf<P>\xef\xbb\xbf\xf0\x9f\x91\x8d\xf0\x9f\x8f\xbd</P>"
    path = desk.write("page.htm", page)
    desk.run(path)
    desk.wait_page("👍")
    desk.key("ctrl+s")
    wait_for("the saved page", lambda: read(path) == page + b"\r\n")


def test_the_status_bar_tells_of_it_until_the_line_is_told(desk):
    desk.run(desk.write("page.htm", POLISH.encode()))
    desk.wait_text("zażółć")  # no key, which would tell the line
    wait_for("the word", lambda: desk.widget_text_contains("UTF-8"))
    desk.key("Right")
    wait_for("the line", lambda: desk.widget_text_contains("Line 1"))


def test_with_the_setting_off_each_byte_is_a_character(desk):
    desk.settings("Program Options", Utf8Pages=0)
    path = desk.write("page.htm", "<P>é</P>".encode())
    desk.run(path)
    desk.wait_page("Ã©")
    desk.key("ctrl+s")
    wait_for("the saved page", lambda: read(path) == "<P>é</P>\r\n".encode())


def whole(text):
    return text.getText(0, text.characterCount)


def place_in(text, offset):
    import pyatspi
    x, y, _, height = text.getCharacterExtents(offset, pyatspi.DESKTOP_COORDS)
    return x + 1, y + height // 2


def test_a_word_is_dragged_into_a_page_that_cannot_hold_it(desk):
    desk.run(desk.write("source.htm", "żółw two\r\n".encode()))
    desk.wait_page("two")
    subprocess.run([PROGRAM, desk.write("target.htm", b"caf\xe9\r\nfive\r\n")], env=desk.env, timeout=30)
    desk.wait_text("five")
    desk.key("shift+F4")  # Tile
    both = wait_for("both pages", lambda: [one for one in desk.widgets("Document text", "text")] if len(
        desk.widgets("Document text", "text")) == 2 else None)
    source, target = sorted((one.queryText() for one in both), key=lambda text: "five" in whole(text))
    desk.click(*place_in(source, 6))
    desk.wait_text("two")
    desk.xdo("mousemove", "--sync", *place_in(source, 1), "click", "--repeat", "2", "--delay", "60", "1")
    wait_for("the selected word", lambda: source.getNSelections() == 1 and source.getSelection(0) == (0, 4))
    (x, y), (to_x, to_y) = place_in(source, 2), place_in(target, 6)
    desk.xdo("mousemove", "--sync", x + 2, y, "mousedown", "1")
    for step in range(1, 11):
        desk.xdo("mousemove", "--sync", x + (to_x - x) * step // 10, y + (to_y - y) * step // 10)
    desk.xdo("mouseup", "1")
    wait_for("the word in the other page", lambda: whole(target) == "café\r\n&#380;ó&#322;wfive\r\n")
    assert whole(source) == " two\r\n", whole(source)


if __name__ == "__main__":
    main(sys.modules[__name__])
