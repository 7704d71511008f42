"""Writes a page by hand: keys, menu mnemonics, toolbar clicks, user buttons, input boxes; and previews it."""
import os
import subprocess
import sys
from driver import main, read, wait_for


def save_as(desk, name):
    path = desk.path(name)
    desk.key("ctrl+s")
    desk.wait_active("Save")
    desk.type(path)
    desk.key("Return")
    return wait_for("the saved file", lambda: read(path))


def next_line(desk):
    desk.key("ctrl+End", "Return")


def test_writes_a_small_page(desk):
    desk.settings("User Tools", **{"FirstBut%280%29": "<DIV>", "SecondBut%280%29": "</DIV>", "ButCap%280%29": "Div"})
    desk.run()
    desk.key("ctrl+n")
    desk.wait_text("")
    desk.click_widget("Heading 1", "push button")
    desk.wait_text("<H1></H1>")
    desk.type("Title")
    next_line(desk)
    desk.key("ctrl+b")
    desk.type("bold")
    next_line(desk)
    desk.key("alt+t", "p", "Return")  # Tags, Paragraph, its first entry
    desk.wait_text("<BLOCKQUOTE></BLOCKQUOTE>")
    desk.type("big")
    next_line(desk)
    desk.key("alt+t", "h", "Return")  # Tags, Characters, its first entry
    desk.wait_text("&#160;")
    desk.key("ctrl+End")
    desk.type("caf\u00e9")
    next_line(desk)
    desk.key("ctrl+1")
    desk.wait_text("<DIV></DIV>")
    desk.type("own")
    next_line(desk)
    desk.click_widget("Anchor", "push button")
    desk.wait_active("Anchor")
    desk.type("top")
    desk.key("Return")
    desk.wait_text('<A NAME= "top"></A>')
    assert save_as(desk, "page.htm") == (b'<H1>Title</H1>\r\n<B>bold</B>\r\n<BLOCKQUOTE>big</BLOCKQUOTE>\r\n&#160;caf&eacute;\r\n'
                                         b'<DIV>own</DIV>\r\n<A NAME= "top"></A>\r\n')


def test_dead_and_compose_keys_write_their_letters(desk):
    subprocess.run(["setxkbmap", "-layout", "us", "-variant", "altgr-intl", "-option", "compose:menu"], env=desk.env,
                   check=True)
    desk.run(desk.write("one.htm", b"."))
    desk.wait_page(".")
    desk.key("dead_acute", "e", "dead_diaeresis", "shift+u", "Multi_key", "s", "s")
    desk.wait_text("&eacute;&Uuml;&szlig;.")
    desk.key("dead_acute", "space")  # the accent alone
    desk.wait_text("&eacute;&Uuml;&szlig;'.")
    desk.key("Multi_key", "less", "3")
    desk.wait_text("&#9829;.")
    desk.key("ctrl+z")
    wait_for("one letter taken back", lambda: "&#9829;" not in desk.text())


def test_dead_keys_write_the_letter_itself_where_the_option_is_off(desk):
    desk.settings("Window Options", FirstTimeAgain=1, ConvertChar=0)
    path = desk.write("one.htm", b".")
    desk.run(path)
    desk.wait_page(".")
    desk.key("dead_acute", "e")
    desk.wait_text("\u00e9.")
    desk.key("ctrl+s")
    wait_for("the saved letter", lambda: read(path) == b"\xe9.\r\n")


def test_undo_and_cut_and_paste_by_the_keys_of_the_desktop(desk):
    path = desk.write("one.htm", b"<B>one</B>\r\n")
    desk.run(path)
    desk.wait_page("one")
    desk.key("ctrl+a", "ctrl+c", "ctrl+End", "ctrl+v")
    desk.wait_text("<B>one</B>\r\n<B>one</B>\r\n")
    desk.key("ctrl+z")
    wait_for("the paste undone", lambda: desk.text() == "<B>one</B>\r\n")


def test_previews_the_page_in_the_browser_of_the_options(desk):
    record = desk.path("arguments")
    browser = desk.write("browser", b'#!/bin/sh\nprintf "%s\\n" "$@" > ' + record.encode() + b"\n")
    os.chmod(browser, 0o755)
    desk.settings("Browser Options", Web=browser)
    path = desk.write("a b -c.htm", b"<P>x</P>\r\n")
    desk.run(path)
    desk.wait_page("x")
    desk.type("y")
    desk.key("ctrl+t")
    wait_for("the browser", lambda: read(record))
    # A blank cuts the line, and what is then left of the name is no option.
    first, second, third = path.split(" ")
    assert read(record) == "\n".join([first, second, "./" + third, ""]).encode(), read(record)
    assert read(path) == b"y<P>x</P>\r\n\r\n"


def test_a_user_button_is_set_by_its_right_button_and_pressed(desk):
    desk.settings("User Tools", **{"FirstBut%280%29": "<DIV>", "SecondBut%280%29": "</DIV>", "ButCap%280%29": "Div"})
    path = desk.path("config", "tarnwick", "The Tarnwick.ini")
    text = read(path).replace(b"FirstTimeAgain=1", b"FirstTimeAgain=1\nShowUserButtons=1")
    with open(path, "wb") as file:
        file.write(text)
    desk.run()
    desk.key("ctrl+n")
    desk.wait_text("")
    desk.click_widget("Div", "push button")
    desk.wait_text("<DIV></DIV>")
    desk.click_widget("Div", "push button", button=3)
    desk.wait_active("User Buttons")
    desk.type("Span")
    desk.key("Return")
    desk.wait_no_window("User Buttons")
    desk.widget("Span", "push button")


if __name__ == "__main__":
    main(sys.modules[__name__])
