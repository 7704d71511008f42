"""The Frames dialog on the screen: a page split on its picture, its frames described one by one."""
import sys
from driver import main, read, wait_for


def page(desk):
    """A page in a folder with three others."""
    for name in ("top.htm", "left.htm", "main.htm"):
        desk.write(name, b"")
    path = desk.write("index.htm", b"")
    desk.settings("Window Options", LastDir=desk.home)
    desk.run(path)
    desk.widget("Document text", "text", focused=True)
    return path


def show_frames(desk):
    desk.click_widget("Frame", "push button")
    desk.wait_active("Frames")


def answer(desk, text):
    """Types into the box that asks for the count."""
    desk.widget("Enter number of Frames.", "label")
    desk.type(text)
    desk.key("Return")


def pick_source(desk, name):
    desk.click_widget("Find File", "push button")
    desk.wait_active("Open")
    desk.type(desk.path(name))
    desk.key("Return")
    desk.wait_no_window("Open")
    desk.wait_active("Frame")


def close_frame(desk, key):
    desk.key(key)
    desk.wait_no_window("Frame")
    desk.wait_active("Frames")


def test_three_frames_across_with_sources_from_the_file_dialog(desk):
    path = page(desk)
    show_frames(desk)
    desk.click_widget("Across", "push button")
    answer(desk, "3")
    for number, name in enumerate(("top.htm", "left.htm", "main.htm"), 1):
        desk.click_widget("Frame %d" % number, "push button")
        desk.wait_active("Frame")
        pick_source(desk, name)
        desk.key("alt+n")
        desk.type(name[:-4])
        close_frame(desk, "Return")
        desk.widget(name[:-4], "push button")
    desk.key("alt+b")
    desk.type("0")
    desk.key("Return")
    desk.wait_no_window("Frames")
    text = ('<FRAMESET COLS="33%,33%,33%" BORDER=0>\r\n<FRAME SRC="top.htm" NAME="top">\r\n'
            '<FRAME SRC="left.htm" NAME="left">\r\n<FRAME SRC="main.htm" NAME="main">\r\n</FRAMESET>')
    wait_for("the frameset", lambda: desk.text() == text)
    desk.wait_active("The Tarnwick Pro")
    desk.key("ctrl+s")
    wait_for("the saved page", lambda: (read(path) or b"").startswith(text.encode()))
    desk.key("ctrl+z")
    wait_for("the empty page", lambda: desk.text() == "")


def confirm(desk, message):
    desk.widget(message, "label")
    desk.widget("OK", "push button", focused=True)
    desk.key("Return")


def test_frames_by_keyboard_alone(desk):
    page(desk)
    show_frames(desk)
    # The keys are on Across. Whatever it can't be left by is asked for again.
    desk.key("space")
    answer(desk, "7")
    confirm(desk, "Too many frames.  Please enter a lower number.")
    desk.widget("Enter number of Frames.", "label")
    desk.key("Escape")
    confirm(desk, "Too few frames.  Please choose 2 - 6 frames.")
    answer(desk, "x")
    confirm(desk, "Too few frames.  Please choose 2 - 6 frames.")
    answer(desk, "2")
    desk.widget("Frame 2", "push button")
    desk.wait_active("Frames")
    # One step back from Across stands the last frame.
    desk.widget("Across", "push button", focused=True)
    desk.key("shift+Tab")
    desk.widget("Frame 2", "push button", focused=True)
    desk.key("Return")
    desk.wait_active("Frame")
    desk.key("alt+s")
    desk.type("b.htm")
    desk.key("alt+w")
    desk.type("5")
    desk.key("alt+o")
    desk.wait_no_window("Frame")
    desk.wait_active("Frames")
    desk.widget("Frame 2", "push button", focused=True)
    # Cancel leaves it as it is.
    desk.key("Return")
    desk.wait_active("Frame")
    desk.type("else.htm")
    close_frame(desk, "Escape")
    desk.key("alt+s", "ctrl+a")
    desk.type("120")
    desk.key("alt+o")
    desk.wait_no_window("Frames")
    wait_for("the frameset", lambda: desk.text() == (
        '<FRAMESET COLS="120%,50%">\r\n\r\n<FRAME SRC="b.htm" MARGINWIDTH="5">\r\n</FRAMESET>'))


def test_a_cancelled_count_up_and_down_leaves_the_program_at_work(desk):
    page(desk)
    show_frames(desk)
    desk.click_widget("Up/Down", "push button")
    desk.widget("Enter number of Frames.", "label")
    desk.key("Escape")
    desk.wait_active("Frames")
    desk.key("alt+o")
    desk.wait_no_window("Frames")
    wait_for("the frameset", lambda: desk.text() == '<FRAMESET ROWS="">\r\n\r\n</FRAMESET>')


def test_the_boxes_of_a_frame_give_the_keys_back(desk):
    page(desk)
    show_frames(desk)
    desk.click_widget("Across", "push button")
    answer(desk, "2")
    desk.click_widget("Frame 1", "push button")
    desk.wait_active("Frame")
    for button, role, box in (("Find File", "push button", "Open"), ("Border Color", None, "Select Color")):
        desk.click_widget(button, role)
        desk.wait_active(box)
        desk.key("Escape")
        desk.wait_no_window(box)
        desk.wait_active("Frame")
    desk.key("alt+n")
    desk.type("one")
    close_frame(desk, "Return")
    desk.key("alt+o")
    desk.wait_no_window("Frames")
    wait_for("the frameset", lambda: desk.text() == (
        '<FRAMESET COLS="50%,50%">\r\n<FRAME NAME="one" BORDERCOLOR=#=000000>\r\n\r\n</FRAMESET>'))


if __name__ == "__main__":
    main(sys.modules[__name__])
