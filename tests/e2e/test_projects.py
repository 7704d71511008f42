"""Projects on the screen: every button by its key, and the names at the program's end."""
import os
import sys
from driver import main, read, wait_for


def record(path):
    return path.encode().ljust(256)


def open_projects(desk):
    desk.click_widget("Projects", "push button")
    desk.wait_active("Projects")


def new_project(desk, name):
    desk.key("alt+n")
    desk.wait_active("New Project")
    desk.type(name)
    desk.key("Return")
    desk.wait_no_window("New Project")
    desk.wait_active("Projects")
    desk.widget(name, "list item")


def pick(desk, *paths):
    desk.wait_active("Open")
    desk.type(" ".join('"%s"' % path for path in paths))
    desk.key("Return")
    desk.wait_no_window("Open")
    desk.wait_active("Projects")


def wait_content(path, content):
    wait_for("%s to hold %r" % (path, content), lambda: read(path) == content)


def test_a_project_from_its_beginning_to_its_end(desk):
    one = desk.write("one.htm", b"<P>one\r\n")
    two = desk.write("two.htm", b"<P>two\r\n")
    desk.run()
    open_projects(desk)
    new_project(desk, "My site")
    file = desk.path("own", "My site.tnw")
    wait_content(file, b"")
    # Add File
    desk.key("alt+a")
    pick(desk, one, two)
    wait_content(file, record(one) + record(two))
    # Save Project: the file is written anew.
    with open(file, "ab") as out:
        out.write(b"rest")
    desk.key("alt+s")
    wait_content(file, record(one) + record(two))
    # Open Project
    desk.key("alt+o")
    desk.wait_text("<P>two")
    assert desk.windows().count("Projects") == 1
    # Delete File: the first of the list.
    desk.click_widget("Projects", "push button")
    desk.wait_active("Projects")
    desk.key("alt+f", "Down", "alt+e")
    wait_content(file, record(two))
    # Delete Project: No first, then Yes.
    desk.key("alt+d")
    desk.widget("Yes", "push button", focused=True)
    desk.key("alt+n")
    desk.wait_active("Projects")
    assert os.path.exists(file)
    desk.key("alt+d")
    desk.widget("Yes", "push button", focused=True)
    desk.key("alt+y")
    wait_for("the end of " + file, lambda: not os.path.exists(file))
    desk.wait_active("Projects")
    assert not desk.widgets("My site", "list item")
    # Exit
    new_project(desk, "Last")
    desk.click_widget("Exit", "push button")
    desk.wait_no_window("Projects")
    wait_for("the stored name", lambda: desk.setting("Projects", "ProjFile0") == "Last")


def test_keys_select_and_a_double_click_asks(desk):
    desk.settings("Projects", ProjFile0="first", ProjFile1="second")
    desk.run()
    open_projects(desk)
    desk.key("alt+p", "Down")
    wait_for("the first project's file", lambda: os.path.exists(desk.path("own", "first.tnw")))
    assert not os.path.exists(desk.path("own", "second.tnw"))
    desk.click_widget("second", "list item")
    wait_for("the second project's file", lambda: os.path.exists(desk.path("own", "second.tnw")))
    desk.xdo("click", "--repeat", "2", "--delay", "60", "1")
    desk.widget("Yes", "push button", focused=True)
    desk.key("Return")
    wait_for("its end", lambda: not os.path.exists(desk.path("own", "second.tnw")))
    desk.wait_active("Projects")
    desk.key("Escape")
    desk.wait_no_window("Projects")
    wait_for("the stored names", lambda: desk.setting("Projects", "ProjFile0") == "first"
             and desk.setting("Projects", "ProjFile1") in (None, ""))


def test_the_programs_end_stores_the_names(desk):
    desk.run()
    open_projects(desk)
    new_project(desk, "Kept")
    desk.click_widget("File", "menu item")
    desk.key("x")
    assert desk.ended() == 0
    assert desk.setting("Projects", "ProjFile0") == "Kept"
    assert read(desk.path("own", "Kept.tnw")) == b""


if __name__ == "__main__":
    main(sys.modules[__name__])
