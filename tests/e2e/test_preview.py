"""Previews a page in a real browser, where the machine has one. The tests that it runs install none."""
import os
import shutil
import subprocess
import sys
from driver import Skipped, main, read, wait_for

BROWSER = shutil.which("chromium") or shutil.which("chromium-browser")


def color_at(path, x, y):
    """The colour of a picture's point as #RRGGBB, or None while the picture is not there or not whole."""
    done = subprocess.run(["convert", path, "-depth", "8", "-format", "%%[hex:u.p{%d,%d}]" % (x, y), "info:"],
                          capture_output=True, text=True)
    return "#" + done.stdout.strip()[:6].upper() if done.returncode == 0 and not done.stderr else None


def test_a_real_browser_shows_the_page(desk):
    if not BROWSER:
        raise Skipped("no chromium here")
    shot = desk.path("shot.png")
    options = ["--headless", "--user-data-dir=" + desk.path("profile"), "--hide-scrollbars", "--disable-gpu",
               "--no-first-run", "--window-size=400,300", "--screenshot=" + shot]
    if os.geteuid() == 0:
        options.append("--no-sandbox")
    desk.settings("Browser Options", Web=" ".join([BROWSER] + options))
    path = desk.write("page.htm", b'<BODY BGCOLOR="#336699"></BODY>\r\n')
    desk.run(path)
    desk.wait_page("BGCOLOR")
    # What is shown is the page as it stands in the window: the preview saves it first.
    desk.key("ctrl+Home")
    desk.type('<BODY BGCOLOR="#CC3300">')
    desk.key("ctrl+t")
    wait_for("the browser's picture of the page", lambda: color_at(shot, 200, 150) == "#CC3300",
             timeout=90)  # it starts from nothing, with a profile to make
    assert read(path) == b'<BODY BGCOLOR="#CC3300"><BODY BGCOLOR="#336699"></BODY>\r\n\r\n', read(path)
    # The browser is on its own: the program goes on and its end is not waited for.
    assert desk.program.poll() is None


if __name__ == "__main__":
    main(sys.modules[__name__])
