"""The frame's window: what stands on it in each start, and what the desktop's window manager does to it."""
import sys
import manager
from driver import main

CONTENT = b"<P>words</P>"
FRAME = "The Tarnwick Pro"
QUESTION = "Save Document?"
# Lower than this no strip can be read or hit. In units of the toolkit, several pixels on a fine screen.
LEAST_HEIGHT = 15
ALL_STRIPS = {"UseMSIE": 1, "ShowUserButtons": 1}


def shape(desk, name, role):
    """Top and bottom of a showing widget on the screen."""
    import pyatspi
    place = desk.widget(name, role).queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    return place.y, place.y + place.height


def strips_stand(desk):
    """Every strip has its height, and stands below the one above it."""
    above = 0
    for name, role in (("File", "menu item"), ("New", "push button"), ("User 1", "page tab"), ("page.htm", "page tab"),
                       ("Document text", "text"), ("Design", "page tab"), ("Status", "status bar")):
        top, bottom = shape(desk, name, role)
        assert bottom - top >= LEAST_HEIGHT, "%s is %d high" % (name, bottom - top)
        # The text's border lies outside its window.
        assert top >= above - 8, "%s at %d is covered down to %d" % (name, top, above)
        above = bottom


def three_starts(desk):
    path = desk.write("page.htm", CONTENT)
    for start in range(3):
        desk.run(path)
        desk.wait_page("words")
        strips_stand(desk)
        desk.key("alt+F4")
        assert desk.ended() == 0, desk.log()


def test_each_strip_has_its_height_in_every_start(desk):
    desk.settings("Window Options", **ALL_STRIPS)
    three_starts(desk)
    assert int(desk.setting("Window Options", "MainFormWidth")) > 0


def test_each_strip_has_its_height_in_a_maximised_frame(desk):
    desk.settings("Window Options", MainWindowState=2, **ALL_STRIPS)
    three_starts(desk)
    assert desk.setting("Window Options", "MainWindowState") == "2"


def test_each_strip_has_its_height_on_a_fine_screen(desk):
    desk.settings("Window Options", **ALL_STRIPS)
    three_starts(desk)


test_each_strip_has_its_height_on_a_fine_screen.desk = {"scale": 2, "size": "2560x1800"}


def minimised_with_unsaved_work(desk):
    """A page that was typed into, and another one made after the frame was minimised. Returns the frame's window."""
    desk.run()
    new = desk.widget("New", "push button")
    desk.key("ctrl+n")
    desk.wait_text("")
    desk.type("words")
    desk.wait_text("words")
    window = desk.wait_window(FRAME)
    manager.minimise(desk, window)
    new.queryAction().doAction(0)
    return window


def test_closed_while_minimised_it_asks_about_unsaved_work_and_ends(desk):
    window = minimised_with_unsaved_work(desk)
    manager.close(desk, window)
    desk.wait_active(QUESTION)
    desk.key("alt+n")
    assert desk.ended() == 0, desk.log()


def test_cancel_of_that_question_keeps_the_work(desk):
    window = minimised_with_unsaved_work(desk)
    manager.close(desk, window)
    desk.wait_active(QUESTION)
    desk.key("Escape")
    desk.wait_no_window(QUESTION)
    manager.bring_back(desk, window)
    desk.wait_active(FRAME)
    desk.wait_text("words")
    desk.key("alt+F4")
    desk.wait_active(QUESTION)
    desk.key("alt+n")
    assert desk.ended() == 0, desk.log()


def test_minimised_and_closed_while_a_large_page_comes_in_it_ends(desk):
    large = desk.write("large.htm", b"<TR><TD ALIGN=\"center\">words</TD></TR>\r\n" * 60000)
    desk.run(desk.write("page.htm", CONTENT))
    desk.wait_page("words")
    window = desk.wait_window(FRAME)
    handing_over = [desk.start([desk.program.args[0], path]) for path in (large, desk.write("third.htm", CONTENT))]
    desk.xdo("windowminimize", window)
    manager.close(desk, window)
    assert desk.ended() == 0, desk.log()
    # One that comes too late for the copy that ran is the next first one.
    for one in handing_over:
        one.terminate()


if __name__ == "__main__":
    main(sys.modules[__name__])
