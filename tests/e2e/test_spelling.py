"""The spell check and printing on the screen: by keys, from the first word to the last page."""
import os
import re
import subprocess
import sys
from driver import Skipped, main, read, wait_for


def page(desk, data):
    path = desk.write("page.htm", data)
    desk.run(path)
    desk.wait_page(data.decode("cp1252").strip()[:10])
    return path


def asked(desk, word):
    """Waits for the question about a word; its dialog has the keys."""
    desk.wait_active("Spell Check")

    def sentence():
        text = desk.widget("Not in the dictionary:", "text").queryText()
        return word in text.getText(0, text.characterCount)
    wait_for("the question about " + word, sentence)


def box_says(desk, part):
    wait_for("a box with " + repr(part), lambda: desk.widget_text_contains(part))


def test_a_page_is_corrected_by_keys_alone(desk):
    path = page(desk, b"<TITLE>My frist page</TITLE>\r\n<P>This is teh <B>best</B> paige of Tarnwick.\r\n")
    desk.key("ctrl+F12")
    asked(desk, "frist")
    assert desk.widget("Change to:", "text", focused=True)
    desk.key("ctrl+a")
    desk.type("first")
    desk.key("Return")
    asked(desk, "teh")
    # The best suggestion stands there.
    wait_for("the suggestion", lambda: desk.widget("Change to:", "text").queryText().getText(0, -1) == "the")
    desk.key("Return")
    asked(desk, "paige")
    desk.key("alt+t")
    desk.type("page")
    desk.key("alt+c")
    asked(desk, "Tarnwick")
    desk.key("alt+a")
    desk.wait_no_window("Spell Check")
    box_says(desk, "Spellcheck complete!\n 10 Words Checked\n 3 Words Replaced")
    desk.key("Return")
    desk.wait_active("The Tarnwick Pro")
    desk.wait_text("<TITLE>My first page</TITLE>")
    desk.key("ctrl+s")
    wait_for("the saved page", lambda: b"<P>This is the <B>best</B> page of Tarnwick." in read(path))
    assert read(desk.path("own", "custom.vtc")) == b"Tarnwick\n"
    # Each piece that was corrected is a step of its own.
    desk.key("ctrl+z")
    desk.wait_text("best</B> paige of")
    desk.key("ctrl+z")
    desk.wait_text("is teh <B>")
    # The added word stays known.
    desk.key("ctrl+F12")
    asked(desk, "teh")
    desk.key("alt+g")
    asked(desk, "paige")
    desk.key("Escape")
    box_says(desk, "Canceled")
    desk.key("Return")
    desk.wait_active("The Tarnwick Pro")
    desk.key("End")
    desk.type("!")
    desk.wait_text("!")


def test_a_tag_that_never_closes_is_left_by_esc(desk):
    page(desk, b"<P>All is well here</P> <b\r\n")
    desk.key("ctrl+F12")
    box_says(desk, "Checking spelling, Esc cancels . . . ")
    # The program is alive: keys still write.
    desk.type("x")
    desk.wait_text("x<P>All")
    desk.key("Escape")
    box_says(desk, "Canceled")
    desk.key("Return")
    desk.wait_active("The Tarnwick Pro")


def test_closing_the_page_cancels_the_check(desk):
    page(desk, b"<P>All is well here</P> <b\r\n")
    desk.key("ctrl+F12")
    box_says(desk, "Checking spelling, Esc cancels . . . ")
    desk.key("ctrl+w")
    box_says(desk, "Canceled")
    desk.key("Return")
    desk.wait_active("The Tarnwick Pro")


def test_a_page_is_printed_into_a_pdf_by_keys(desk):
    if not all(os.access("/usr/bin/" + tool, os.X_OK) for tool in ("pdftotext", "pdfinfo")):
        raise Skipped("no poppler-utils")
    page(desk, b"<TITLE>My page</TITLE>\r\n<P>Some words.\r\n")
    desk.key("ctrl+p")
    desk.wait_active("Print")
    desk.key("Return")
    wait_for("the question for a file", lambda: desk.active_window() not in ("Print", "") and
             not desk.active_window().startswith("The Tarnwick"))
    pdf = desk.path("out.pdf")
    desk.key("ctrl+a")
    desk.type(pdf)
    desk.key("Return")
    wait_for("the file", lambda: (read(pdf) or b"").rstrip().endswith(b"%%EOF"))
    text = subprocess.run(["pdftotext", pdf, "-"], capture_output=True, text=True, check=True).stdout
    assert text.split() == "<TITLE>My page</TITLE> <P>Some words.".split(), text
    info = subprocess.run(["pdfinfo", pdf], capture_output=True, text=True, check=True).stdout
    assert re.search(r"Pages:\s+1$", info, re.M), info
    desk.wait_active("The Tarnwick Pro")
    desk.key("ctrl+p")
    desk.wait_active("Print")
    desk.key("Escape")
    desk.wait_active("The Tarnwick Pro")


if __name__ == "__main__":
    main(sys.modules[__name__])
