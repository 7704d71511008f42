#!/usr/bin/python3
"""Makes the pictures of the help anew from the running program: TARNWICK_PROGRAM=build/release/tarnwick scripts/help-pictures.py

Each is a window of the program as a person would see it, on a page of the example site.
"""
import os
import shutil
import subprocess
import sys

TOP = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
sys.path.insert(0, os.path.join(TOP, "tests", "e2e"))
import driver  # noqa: E402

PICTURES = os.path.join(TOP, "help", "images")
SITE = "/tmp/site"

# The picture's name, the toolbar button or the keys that bring the window up, and the window's title.
DIALOGS = (
    ("frmBody", "Body", "Body"),
    ("frmGraphicLink", "Image", "Image"),
    ("frmLinks", "Link", "Link"),
    ("frmTable", "Table", "Table"),
    ("frmForm", "Form", "Form"),
    ("VisFrame", "Frame", "Frames"),
    ("frmCSS", "Cascading Style Sheets", "Cascading Style Sheets"),
    ("frmFindReplace", "Find", "Find / Replace"),
    ("frmProject", "Projects", "Projects"),
    ("frmFTP", "FTP Upload", "FTP File Upload"),
    ("frmHTTPExplorer", ("alt+t", "s"), "Link Browser"),
    ("frmSpell", "Spell Check", None),
)


def save(desk, name, window):
    """The inside of a window as the picture of that name."""
    target = os.path.join(PICTURES, name + ".png")
    desk.xdo("mousemove", 1023, 699)
    subprocess.run(["import", "-window", window, desk.path("picture.png")], env=desk.env, check=True)
    subprocess.run(["convert", desk.path("picture.png"), "-strip", "-dither", "None", "-colors", "64", target], check=True)
    print(target)


def still(desk):
    """Waits until two pictures of the screen in a row are alike."""
    last = [None]

    def alike():
        desk.screenshot(desk.path("still.png"))
        now = subprocess.run(["identify", "-format", "%#", desk.path("still.png")], capture_output=True).stdout
        same = now == last[0]
        last[0] = now
        return same
    driver.wait_for("the screen to come to rest", alike)


def page(desk):
    """A page in a folder whose name says nothing of the machine that took the picture."""
    shutil.rmtree(SITE, ignore_errors=True)
    shutil.copytree(os.path.join(TOP, "examples", "site"), SITE)
    return os.path.join(SITE, "index.html")


def editor(desk):
    desk.run(page(desk))
    desk.wait_text("<HTML>")
    still(desk)
    save(desk, "editor", desk.wait_window("The Tarnwick Pro"))


def autofill(desk):
    desk.run(page(desk))
    desk.wait_text("<HTML>")
    # An empty line: at a tag the caret would mark it and its partner.
    desk.key("ctrl+Home", *["Down"] * 10)
    desk.type("<IMG ")
    driver.wait_for("the list", lambda: desk.widgets("HEIGHT", "list item") or desk.widgets("HEIGHT", "table cell"))
    still(desk)
    save(desk, "autofill", desk.wait_window("The Tarnwick Pro"))


def dialog(name, way, title):
    def take(desk):
        desk.run(page(desk))
        desk.wait_text("<HTML>")
        if isinstance(way, tuple):
            for key in way:
                desk.key(key)
        else:
            desk.click_widget(way)
        if title:
            desk.wait_active(title)
        else:
            driver.wait_for("a box", lambda: not desk.active_window().startswith("The Tarnwick Pro"))
        still(desk)
        save(desk, name, desk.xdo("getactivewindow").stdout.strip())
    return take


def main():
    takes = {"editor": editor, "autofill": autofill}
    takes.update({name: dialog(name, way, title) for name, way, title in DIALOGS})
    failed = []
    for name in sys.argv[1:] or takes:
        child = os.fork()
        if child == 0:
            desk = driver.Desk(size="1024x700")
            code = 1
            try:
                takes[name](desk)
                code = 0
            except Exception as reason:
                print(name + ": " + str(reason), file=sys.stderr)
            finally:
                desk.close()
                os._exit(code)
        if os.waitstatus_to_exitcode(os.waitpid(child, 0)[1]):
            failed.append(name)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
