"""The help key, wherever one is: each time the page about that, and back to where one was."""
import sys
from driver import main

HELP = " - The Tarnwick Help"


def look_up(desk, page, back="The Tarnwick Pro"):
    """Presses the key, waits for the page and goes back."""
    desk.key("F1")
    desk.wait_active(page + HELP)
    desk.key("Escape")
    desk.wait_active(back)


def test_the_page_about_what_one_is_at(desk):
    desk.run(desk.write("page.htm", b"<HR>words\r\n"))
    desk.wait_page("words")
    look_up(desk, "A first page in five minutes")
    desk.key("Right", "Right")
    look_up(desk, "Horizontal Rule")
    desk.key("alt+t")
    desk.widget("Remove Tags")
    look_up(desk, "The Tags menu")
    desk.click_widget("Form", "push button")
    desk.wait_active("Form")
    look_up(desk, "Form", back="Form")
    desk.key("Escape")
    desk.wait_active("The Tarnwick Pro")
    desk.type("x")
    desk.wait_text("<HxR>")


def test_the_first_dialog_of_all_has_its_page(desk):
    desk.run(window="Options")
    look_up(desk, "Options", back="Options")
    desk.key("Escape")
    desk.wait_active("The Tarnwick Pro")
    desk.key("alt+F4")
    assert desk.ended() == 0


test_the_first_dialog_of_all_has_its_page.desk = {"first_run": True}


def test_links_history_and_search(desk):
    desk.run()
    desk.key("F1")
    desk.wait_active("A first page in five minutes")
    desk.key("alt+s")
    desk.type("certificate")
    desk.key("Return")
    desk.wait_active("The upload client")
    desk.key("alt+Left")
    desk.wait_active("A first page in five minutes")
    desk.key("alt+Right")
    desk.wait_active("The upload client")
    desk.key("alt+Home")
    desk.wait_active("A first page in five minutes")


if __name__ == "__main__":
    main(sys.modules[__name__])
