"""Style sheets and layers on the screen: built by keys from the lists, written into pages and files, and previewed."""
import os
import shutil
import subprocess
import sys
from driver import main, read, wait_for, PROGRAM

WEB = os.path.join(os.path.dirname(PROGRAM), "tarnwick_web.so")
FORM = "Cascading Style Sheets"
PAGE = b"<HTML>\r\n<HEAD>\r\n</HEAD>\r\n<BODY>\r\nword\r\n</BODY>\r\n</HTML>\r\n"
SHEET = (b"H1 { Color: red;  }\r\n"
         b"P { font-style: italic; text-align: center;  }\r\n"
         b"A:link { text-decoration: none;  }\r\n")


def open_page(desk, *names):
    os.makedirs(os.path.dirname(desk.path(*names)), exist_ok=True)
    path = desk.write(os.path.join(*names), PAGE)
    desk.run(path)
    desk.wait_page("word")
    return path


def open_form(desk, tool=FORM, form=FORM, scale=1):
    """Places are told in the program's own pixels, which a fine screen has several of its own for."""
    import pyatspi
    place = desk.widget(tool, "push button").queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    desk.click((place.x + place.width // 2) * scale, (place.y + place.height // 2) * scale)
    desk.wait_active(form)


def go_to(desk, key, row):
    """Goes to a list by its key, and in it to the row that begins so."""
    desk.key("alt+" + key)
    desk.type(row)
    desk.widget(row, focused=True)


def declare(desk, property_name, value):
    go_to(desk, "p", property_name)
    go_to(desk, "v", value)
    desk.key("Return")


def sheet_text(desk):
    text = desk.widget("Complete Style Sheet", "text").queryText()
    return text.getText(0, text.characterCount)


def style(desk, element, *declarations):
    go_to(desk, "e", element)
    for one in declarations:
        declare(desk, *one)
    desk.key("alt+a")
    wait_for("the style in the sheet", lambda: element + " {" in sheet_text(desk))


def three_styles(desk):
    style(desk, "H1", ("Color", "red"))
    style(desk, "P", ("font-style", "italic"), ("text-align", "center"))
    style(desk, "A:link", ("text-decoration", "none"))


def is_checked(box):
    import pyatspi
    box.clear_cache()
    return box.getState().contains(pyatspi.STATE_CHECKED)


def press(desk, button):
    desk.click_widget(button, "push button")


def expect_saved(desk, path, data):
    desk.wait_active("The Tarnwick Pro")
    desk.key("ctrl+s")
    wait_for("the saved page", lambda: read(path) == data + b"\r\n")


def in_the_head(desk, style_word):
    path = open_page(desk, "page.htm")
    open_form(desk)
    three_styles(desk)
    press(desk, "Add to <HEAD>")
    desk.wait_no_window(FORM)
    block = b'\r\n<' + style_word + b' type="text/css">\r\n<!--\r\n' + SHEET + b"-->\r\n</" + style_word + b">\r\n"
    expect_saved(desk, path, PAGE.replace(b"<HEAD>", b"<HEAD>" + block))


def test_three_styles_into_the_head(desk):
    in_the_head(desk, b"STYLE")


def test_three_styles_into_the_head_in_lower_case(desk):
    desk.settings("Program Options", LowerCaseTags=1)
    in_the_head(desk, b"style")


def test_a_sheet_in_a_file_linked_from_pages_beside_and_below(desk):
    path = open_page(desk, "site", "pages", "page.htm")
    for sheet in (desk.path("site", "pages", "beside.css"), desk.path("site", "above.css")):
        open_form(desk)
        three_styles(desk)
        press(desk, "Save to external style sheet")
        desk.wait_active("Save As")
        desk.type(sheet[:-len(".css")])
        desk.key("Return")
        desk.wait_no_window(FORM)
        wait_for("the sheet", lambda: read(sheet) == SHEET + b"\r\n")
    open_form(desk)
    for sheet in ("beside.css", "above.css"):
        desk.wait_active(FORM)
        press(desk, "Link current document to external style sheet")
        desk.wait_active("Open")
        desk.type(os.path.join(desk.path("site"), "pages" if sheet == "beside.css" else "", sheet))
        desk.key("Return")
        desk.wait_text(sheet)
    desk.wait_active(FORM)
    desk.key("Escape")
    desk.wait_no_window(FORM)
    links = b"".join(b'<LINK rel="stylesheet" type="text/css" href="' + target + b'"title=" style1">\r\n'
                     for target in (b"beside.css", b"../above.css"))
    expect_saved(desk, path, PAGE.replace(b"</HEAD>", links + b"</HEAD>"))


def test_a_layer_around_a_selection(desk):
    path = open_page(desk, "page.htm")
    open_form(desk, "Create DHTML Layer", "DHTML")
    desk.key("Return")
    wait_for("the message", lambda: desk.widget_text_contains("Please give the layer a name."))
    desk.key("Return")
    desk.wait_active("DHTML")
    for key, text in (("n", "box"), ("p", "absolute"), ("t", "10"), ("f", "20")):
        desk.key("alt+" + key, "ctrl+a")
        desk.type(text)
    desk.key("alt+s")
    box = desk.widget("Add <STYLE> tag", "check box")
    wait_for("the check mark", lambda: is_checked(box))
    desk.key("Return")
    desk.wait_text(".box {POSITION: absolute;")
    # Beside the dialog, in the page; the dialog keeps the name.
    desk.click(250, 700)
    desk.wait_active("The Tarnwick Pro")
    desk.key("ctrl+End", "Up", "Up", "Up", "Home", "shift+End")
    open_form(desk, "Create DHTML Layer", "DHTML")
    desk.key("alt+i")
    desk.type("one")
    desk.key("Return")
    desk.wait_text('ID="one"')
    desk.key("Escape")
    desk.wait_no_window("DHTML")
    block = b'<STYLE TYPE="text/css">\r\n.box {POSITION: absolute;\r\nTOP: 10;\r\nLEFT: 20;}\r\n</STYLE>\r\n'
    layer = b'<DIV CLASS="box" ID="one" STYLE="visibility: inherit; z-index: auto">\r\nword\r\n</DIV>'
    expect_saved(desk, path, PAGE.replace(b"</HEAD>", block).replace(b"word", layer))


def test_arrow_keys_bring_the_box_once_and_the_keys_come_back(desk):
    desk.run()
    open_form(desk)
    go_to(desk, "p", "font-size")
    desk.key("Down")
    desk.wait_active("FONT")
    desk.type("12pt")
    desk.key("Return")
    desk.wait_active(FORM)
    go_to(desk, "v", "12pt")
    desk.key("Return", "alt+a")
    wait_for("the style", lambda: sheet_text(desk) == "H1 { font: 12pt;  }\n")
    desk.key("alt+p", "Down")
    desk.widget("--COLOR & BACKGROUND--", focused=True)
    assert desk.active_window() == FORM


def expect_in_sight(desk, scale):
    """The form, preview and all, lies within the screen; every list of it shows rows."""
    import pyatspi
    desk.settings("Window Options", UseMSIE=1)
    desk.run()
    open_form(desk, scale=scale)
    width, height = desk.size(FORM)
    assert width <= 1024 and height <= 768 - 24, (width, height)
    for name, role in (("Save to external style sheet", "push button"), ("Remove an element", "push button"), ("H3", None), ("font-style", None),
                       ("Complete Style Sheet", "text"), ("Add to Style Sheet", "push button")):
        place = desk.widget(name, role).queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        assert place.x >= 0 and (place.x + place.width) * scale <= 1024, (name, place)
        assert place.y >= 0 and (place.y + place.height) * scale <= 768, (name, place)


def test_on_a_small_screen_everything_is_in_sight(desk):
    expect_in_sight(desk, 1)


test_on_a_small_screen_everything_is_in_sight.desk = {"size": "1024x768"}


def test_on_a_fine_screen_everything_is_in_sight(desk):
    expect_in_sight(desk, 2)


test_on_a_fine_screen_everything_is_in_sight.desk = {"size": "1024x768", "scale": 2}


def bottom_pixel(desk):
    """The colour of a place low in the form, where the preview is."""
    left, top, width, height = desk.place(FORM)
    middle, low = left + width // 2, top + height - 70
    text = subprocess.run(["import", "-window", "root", "-crop", "1x1+%d+%d" % (middle, low), "-depth", "8", "txt:-"],
                          env=desk.env, capture_output=True, text=True).stdout
    return text.split("#")[-1][:6].upper()


def build_lime_body(desk):
    go_to(desk, "e", "BODY")
    declare(desk, "background-color", "lime")


def test_without_the_engine_the_form_works_and_has_no_preview(desk):
    desk.settings("Window Options", UseMSIE=1)
    alone = desk.path("alone")
    shutil.copy(PROGRAM, alone)
    desk.program = desk.start([alone, desk.write("page.htm", PAGE)])
    desk.wait_active("The Tarnwick Pro")
    desk.wait_page("word")
    open_form(desk)
    build_lime_body(desk)
    desk.key("alt+a")
    wait_for("the style", lambda: "lime" in sheet_text(desk))
    press(desk, "Add to cursor location")
    desk.wait_no_window(FORM)
    desk.wait_text("BODY { background-color: lime;  }")


if os.path.exists(WEB):
    def test_the_preview_shows_the_style_and_leaves_the_keys_alone(desk):
        desk.settings("Window Options", UseMSIE=1)
        desk.run()
        open_form(desk)
        wait_for("the preview", lambda: bottom_pixel(desk) == "FFFFFF", 60)
        build_lime_body(desk)
        wait_for("the colour", lambda: bottom_pixel(desk) == "00FF00", 60)
        page = read(desk.path("own", "_css.htm"))
        assert page == (b"<HTML><HEAD><STYLE type=text/css><!--BODY { background-color: lime;  }--></STYLE></HEAD>"
                        b"<BODY><BODY>Style BODY</BODY></BODY></HTML>\r\n"), page
        # The keys are in the list of values still.
        desk.type("red")
        desk.key("Return")
        wait_for("the other colour", lambda: bottom_pixel(desk) == "FF0000", 60)
        desk.key("alt+b", "End", "Delete")
        wait_for("the first colour again", lambda: bottom_pixel(desk) == "00FF00", 60)
        desk.key("Escape")
        desk.wait_no_window(FORM)


if __name__ == "__main__":
    main(sys.modules[__name__])
