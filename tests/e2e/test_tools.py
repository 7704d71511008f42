"""The site tools on the screen: the wizard by keys alone, the links of a page, the timer, and tags removed."""
import os
import subprocess
import sys
from driver import main, read, wait_for


def choose(desk, menu, *keys):
    """An entry of a menu by the keys of its mnemonics."""
    desk.wait_active("The Tarnwick Pro")
    desk.key("alt+" + menu)
    desk.key(*keys)


def answer(desk, question, text=None):
    """Waits for a box that says something, and answers it: with a text, or with what stands there."""
    wait_for("the question " + question, lambda: desk.widget_text_contains(question))
    desk.wait_active("Webpage Wizard")
    if text is not None:
        desk.key("ctrl+a")
        desk.type(text)
    desk.key("Return")
    wait_for("the end of " + question, lambda: not desk.widget_text_contains(question))


def fill(desk, dialog, key, text):
    """Types into a field of a dialog by its mnemonic, then OK."""
    desk.wait_active(dialog)
    desk.key("alt+" + key)
    desk.type(text)
    desk.key("Return")
    desk.wait_no_window(dialog)


def test_the_wizard_by_keys(desk):
    path = desk.path("new.htm")
    desk.run()
    choose(desk, "m", "w")
    answer(desk, "Welcome to Webpage Wizard!")
    desk.wait_active("Save")
    desk.type(path)
    desk.key("Return")
    answer(desk, "Enter the title of the page:", "Title")
    answer(desk, "Choose your document's colors.")
    fill(desk, "Body", "t", "black")
    answer(desk, "Now add the top heading of the page")
    answer(desk, "Now you can add a picture to your page.")
    fill(desk, "Image", "s", "a.gif")
    answer(desk, "Add a caption to the bottom of the picture:", "A picture")
    answer(desk, "Now add a few paragraphs of information.")
    for key, text in (("Return", "one"), ("alt+f", "two")):
        desk.widget("Add a Paragraph:", "text", focused=True)
        desk.type(text)
        wait_for("the typed paragraph", lambda: desk.widget_text("Add a Paragraph:") == text)
        desk.key(key)
        if key == "Return":
            wait_for("the emptied field", lambda: desk.widget_text("Add a Paragraph:") == "")
    desk.wait_text("</HTML>")
    desk.wait_active("The Tarnwick Pro")
    desk.key("ctrl+s")
    page = wait_for("the saved page", lambda: b"</HTML>" in (read(path) or b"") and read(path))
    begin = (b"<!--This document was created with The Tarnwick-->\r\n<HTML>\r\n<HEAD>\r\n<TITLE>Title</TITLE>\r\n"
             b'</HEAD>\r\n<BODY TEXT="black">\r\n<CENTER><H1>Welcome to my webpage!</H1>\r\n<BR>\r\n'
             b'<IMG SRC="a.gif" USEMAP="#">\r\n<BR>\r\nA picture\r\n</CENTER>\r\n\r\n'
             b"<H3>one</H3>\r\n\r\n<H3>two</H3>\r\n\r\n\r\n\r\n</H5>Created: ")
    assert page.startswith(begin), page
    assert page.endswith(b"</H5>\r\n</BODY>\r\n\r\n</HTML>\r\n"), page


def test_a_wizard_whose_page_is_closed_ends_and_the_program_too(desk):
    desk.run()
    choose(desk, "m", "w")
    answer(desk, "Welcome to Webpage Wizard!")
    desk.wait_active("Save")
    desk.type(desk.path("new.htm"))
    desk.key("Return")
    answer(desk, "Enter the title of the page:")
    answer(desk, "Choose your document's colors.")
    desk.wait_active("Body")
    # The program is alive while it waits, and can be ended.
    desk.xdo("windowactivate", "--sync", desk.wait_window("The Tarnwick Pro"))
    desk.wait_active("The Tarnwick Pro")
    desk.key("alt+F4")
    assert desk.ended() == 0, desk.log()


def test_a_link_is_found_from_the_tree_by_keys(desk):
    desk.run(desk.write("page.htm", b'<P>text <A HREF="Other.htm">other</A> <A HREF="http://h/x.htm">x</A>\r\n'))
    desk.wait_page("<P>text")
    choose(desk, "t", "s")
    desk.wait_active("Link Browser")
    desk.widget("Links", "tree", focused=True)
    desk.key("Down", "Down", "Return")
    desk.wait_active("The Tarnwick Pro")

    def selected():
        text = desk.widget("Document text", "text").queryText()
        return text.getNSelections() == 1 and text.getText(*text.getSelection(0))
    wait_for("the found link", lambda: selected() == "Other.htm")
    # The tree stays; what is typed goes into the page.
    desk.wait_window("Link Browser")
    desk.type("New.htm")
    desk.wait_text('HREF="New.htm"')


def test_the_timer_leaves_the_keys_to_the_page_and_logs_when_it_closes(desk):
    desk.settings("Program Options", UseWebTimer=1)
    desk.run()
    desk.key("ctrl+n")
    desk.wait_window("Web Timer")
    desk.widget("Document text", "text", focused=True)
    desk.type("typed")
    desk.wait_text("typed")
    desk.key("ctrl+w")
    wait_for("the question", lambda: desk.widget_text_contains("Do you want to save?"))
    desk.key("alt+n")
    desk.wait_no_window("Web Timer")
    log = desk.path("config", "tarnwick", "Web Timer.ini")
    wait_for("the log", lambda: os.path.exists(log) and b"0 Hrs 0 Mins 0 Secs" in read(log))


def test_a_timer_that_comes_with_the_start_stands_above_the_frame(desk):
    desk.settings("Program Options", UseWebTimer=1)
    desk.run(desk.write("page.htm", b"<P>one</P>\r\n"))
    desk.wait_page("<P>one")
    timer, frame = desk.wait_window("Web Timer"), desk.wait_window("The Tarnwick Pro")
    above = subprocess.run(["xprop", "-id", timer, "WM_TRANSIENT_FOR"], env=desk.env, capture_output=True, text=True)
    assert above.stdout.split()[-1] == hex(int(frame)), above.stdout
    desk.wait_active("The Tarnwick Pro")


def test_tags_are_removed_by_keys(desk):
    desk.run(desk.write("page.htm", b"<P>one <B>two</B>\r\n"))
    desk.wait_page("<P>one")
    choose(desk, "t", "r")
    desk.wait_active("Notice!")
    desk.key("alt+y")
    desk.wait_text("one two")
    wait_for("the bare text", lambda: desk.text() == "one two\r\n")
    desk.type("x")
    wait_for("what is typed", lambda: desk.text() == "one twox\r\n")


if __name__ == "__main__":
    main(sys.modules[__name__])
