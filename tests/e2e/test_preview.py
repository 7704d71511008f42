"""Previews a page in a real browser."""
import os
import subprocess
import sys
from driver import main, read, wait_for


def shown_color(desk):
    """The colour in the middle of the browser's window as #RRGGBB, or None while there is no window."""
    window = desk.xdo("search", "--onlyvisible", "--class", "dillo").stdout.split()
    if not window:
        return None
    shot = desk.path("shot.png")
    if subprocess.run(["import", "-window", window[-1], shot], env=desk.env, capture_output=True).returncode:
        return None
    done = subprocess.run(["convert", shot, "-gravity", "center", "-crop", "1x1+0+0", "+repage", "-depth", "8", "-format",
                           "%[hex:u.p{0,0}]", "info:"], capture_output=True, text=True)
    return "#" + done.stdout.strip()[:6].upper()


def test_a_real_browser_shows_the_page(desk):
    # A browser that has never run asks nothing when it has its folder.
    os.makedirs(desk.path("user", ".dillo"), exist_ok=True)
    desk.settings("Browser Options", Web="dillo")
    path = desk.write("page.htm", b'<BODY BGCOLOR="#336699"></BODY>\r\n')
    desk.run(path)
    desk.wait_page("BGCOLOR")
    # What is shown is the page as it stands in the window: the preview saves it first.
    desk.key("ctrl+Home")
    desk.type('<BODY BGCOLOR="#CC3300">')
    desk.key("ctrl+t")
    wait_for("the page in the browser", lambda: shown_color(desk) == "#CC3300")
    assert read(path) == b'<BODY BGCOLOR="#CC3300"><BODY BGCOLOR="#336699"></BODY>\r\n\r\n', read(path)
    # The browser is on its own: the program goes on and its end is not waited for.
    assert desk.program.poll() is None


if __name__ == "__main__":
    main(sys.modules[__name__])
