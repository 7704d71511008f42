"""What is drawn beside the text: the zoom by keys and wheel, and aids that leave the file alone."""
import subprocess
import sys
import tempfile
from driver import main, read, wait_for

PAGE = b"<HTML>\r\n" + b"<P>A line of words.</P>\r\n" * 50 + b"</HTML>\r\n"


def extents(desk, offset):
    import pyatspi
    return desk.widget("Document text", "text").queryText().getCharacterExtents(offset, pyatspi.DESKTOP_COORDS)


def wait_zoom(desk, percent):
    wait_for("the zoom in the panel", lambda: desk.widget_text_contains("Zoom %d %%" % percent))
    wait_for("the stored zoom", lambda: desk.setting("Program Options", "Zoom") == str(percent))


def test_keys_and_wheel_zoom_and_the_next_run_remembers(desk):
    path = desk.write("page.htm", PAGE)
    desk.run(path)
    desk.wait_page("words")
    before = extents(desk, 0)
    desk.key("ctrl+plus")
    wait_zoom(desk, 110)
    desk.key("ctrl+equal")
    wait_zoom(desk, 120)
    x, y, _, height = extents(desk, 0)
    assert height > before[3], (height, before)
    desk.xdo("mousemove", "--sync", x + 40, y + 40)
    desk.xdo("keydown", "ctrl", "click", 4, "click", 4, "keyup", "ctrl")
    wait_zoom(desk, 140)
    desk.xdo("keydown", "ctrl", "click", 5, "keyup", "ctrl")
    wait_zoom(desk, 130)
    desk.key("ctrl+minus")
    wait_zoom(desk, 120)
    desk.xdo("key", "Num_Lock")
    desk.xdo("keydown", "ctrl", "key", "90", "keyup", "ctrl")  # the 0 of the keypad
    wait_zoom(desk, 100)
    assert extents(desk, 0) == before
    desk.xdo("keydown", "ctrl", "key", "86", "keyup", "ctrl")  # its plus
    wait_zoom(desk, 110)
    desk.xdo("key", "Num_Lock")
    larger = extents(desk, 0)
    desk.key("alt+F4")
    assert desk.ended() == 0
    assert read(path) == PAGE, "and nothing was asked"
    desk.run(path)
    desk.wait_page("words")
    assert extents(desk, 0) == larger


def test_ctrl_0_stays_the_tenth_button(desk):
    desk.settings("User Tools", **{"FirstBut%289%29": "<TEN>"})
    desk.settings("Program Options", Zoom=150)
    desk.run(desk.write("page.htm", b"x\r\n"))
    desk.wait_page("x")
    desk.key("ctrl+0")
    desk.wait_text("<TEN>x")
    assert desk.setting("Program Options", "Zoom") == "150"


def color(desk, x, y):
    """The colour of a point on the screen, "#FFFFFF"."""
    with tempfile.NamedTemporaryFile(suffix=".png") as file:
        desk.screenshot(file.name)
        return subprocess.run(["convert", file.name, "-crop", "1x1+%d+%d" % (x, y), "-depth", "8", "-format",
                               "#%[hex:p{0,0}]", "info:"], capture_output=True, text=True, check=True).stdout[:7]


def ground(desk, offset):
    """The colour behind the words of a character's line."""
    _, y, _, height = extents(desk, offset)
    return color(desk, 600, y + height // 2)


def below(desk, offset):
    """The colour below a capital letter."""
    x, y, width, height = extents(desk, offset)
    return color(desk, x + width // 2, y + height - 3)


def test_partner_and_current_line_are_drawn_and_the_file_is_left_alone(desk):
    path = desk.write("page.htm", PAGE)
    desk.run(path)
    desk.wait_page("words")
    wait_for("the current line", lambda: ground(desk, 0) == "#F0F0F0")
    wait_for("the marked tag", lambda: below(desk, 1) not in ("#F0F0F0", "#FFFFFF"))
    second = PAGE.index(b"<P>")
    end = PAGE.index(b"</P>")
    assert ground(desk, second) == "#FFFFFF"
    desk.key("Down", "Right")
    wait_for("the current line", lambda: ground(desk, second) == "#F0F0F0")
    assert ground(desk, 0) == "#FFFFFF"
    wait_for("the marked tag", lambda: below(desk, second + 1) not in ("#F0F0F0", "#FFFFFF"))
    assert below(desk, end + 2) == below(desk, second + 1)
    assert below(desk, 1) == "#FFFFFF"
    desk.key("alt+F4")
    assert desk.ended() == 0
    assert read(path) == PAGE


def test_with_the_settings_off_nothing_is_drawn_and_no_key_is_taken(desk):
    desk.settings("Program Options", UseZoom=0, ShowPartnerTag=0, ShowCurrentLine=0, Zoom=200)
    desk.run(desk.write("page.htm", PAGE))
    desk.wait_page("words")
    height = extents(desk, 0)[3]
    desk.key("ctrl+plus", "Right")
    wait_for("the line", lambda: desk.widget_text_contains("Line 1"))
    assert extents(desk, 0)[3] == height
    assert desk.setting("Program Options", "Zoom") == "200"
    assert ground(desk, 0) == "#FFFFFF"
    assert below(desk, 1) == "#FFFFFF"


if __name__ == "__main__":
    main(sys.modules[__name__])
