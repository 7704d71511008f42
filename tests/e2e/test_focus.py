"""Who has the keys when a box has gone: the dialog that asked, and the page only where the page asked."""
import sys
from driver import main, wait_for

PAGE = "<P>words</P>"


def cancel(title):
    def answer(desk):
        desk.wait_active(title)
        desk.key("Escape")
        desk.wait_no_window(title)
    return answer


def accept(title):
    def answer(desk):
        desk.wait_active(title)
        desk.key("Return")
        desk.wait_no_window(title)
    return answer


def pick_file(desk):
    path = desk.write("a.gif", b"GIF89a")
    desk.wait_active("Open")
    desk.type(path)
    desk.key("Return")
    desk.wait_no_window("Open")


def confirm(desk):
    """A message box, by its button: it may have no title."""
    desk.widget("OK", "push button", focused=True)
    desk.key("Return")


def unnamed_page(desk):
    """A page that has no file yet, so that no path can be relative to it."""
    desk.run()
    desk.key("ctrl+n")
    desk.widget("Document text", "text", focused=True)
    desk.type(PAGE)
    desk.wait_text(PAGE)


def expect_keys_in(desk, form):
    """What is typed goes into the form: Esc closes it, and the page is what it was."""
    desk.wait_active(form)
    desk.key("q", "Escape")
    desk.wait_no_window(form)
    desk.wait_active("The Tarnwick Pro")
    assert desk.text() == PAGE, desk.text()


def expect_rows(desk, rows):
    unnamed_page(desk)
    for tool, form, button, answers in rows:
        desk.click_widget(tool, "push button")
        desk.wait_active(form)
        desk.click_widget(button)
        for answer in answers:
            answer(desk)
        expect_keys_in(desk, form)


NO_FILE, NO_COLOR = cancel("Open"), cancel("Select Color")


def test_a_file_dialog_gives_the_keys_back(desk):
    expect_rows(desk, [
        ("Image", "Image", "Find Source Image", [NO_FILE]),
        ("Image", "Image", "Find Low Source Image", [NO_FILE]),
        ("Image", "Image", "Find URL", [NO_FILE]),
        ("Embed", "Embed", "Find File", [NO_FILE]),
        ("Body", "Body", "Find Background Image", [NO_FILE]),
    ])


def test_a_message_behind_a_file_dialog_gives_the_keys_back(desk):
    expect_rows(desk, [
        ("Image", "Image", "Find Source Image", [pick_file, confirm]),
        ("Image", "Image", "Find Low Source Image", [pick_file, confirm]),
        ("Image", "Image", "Find URL", [pick_file, confirm]),
        ("Embed", "Embed", "Find File", [pick_file, confirm]),
        ("Body", "Body", "Find Background Image", [pick_file, confirm]),
        ("Link", "Link", "Find File", [pick_file, confirm]),
        ("Link", "Link", "Find File", [NO_FILE, confirm]),
    ])


def test_a_color_dialog_gives_the_keys_back(desk):
    picks = ["Pick Background Color", "Pick Text Color", "Pick Link Color", "Pick Visited Link Color",
             "Pick Active Link Color"]
    expect_rows(desk, [("Body", "Body", pick, [NO_COLOR]) for pick in picks] +
                [("Body", "Body", picks[0], [accept("Select Color")]),
                 ("Font", "Font", "Pick Font Color", [NO_COLOR]),
                 ("Font", "Font", "Pick Font Color", [accept("Select Color")])])


def test_the_boxes_of_style_sheets_and_layers_give_the_keys_back(desk):
    sheets = "Cascading Style Sheets"
    expect_rows(desk, [
        (sheets, sheets, "Add an element", [cancel("Add Element")]),
        (sheets, sheets, "Rename an element", [cancel("Add Element")]),
        (sheets, sheets, "Save to external style sheet", [cancel("Save As")]),
        ("Create DHTML Layer", "DHTML", "Create Class", [confirm]),
    ])


def options(desk, page):
    desk.key("alt+w")
    desk.key("o")
    desk.wait_active("Options")
    desk.click_widget(page, "page tab")


def test_every_box_of_the_options_gives_the_keys_back(desk):
    unnamed_page(desk)
    for page, button, answers in [
            ("External Programs ", "Find Web Browser", [NO_FILE]),
            ("External Programs ", "Find FTP Program", [NO_FILE]),
            ("External Programs ", "Find FTP Program", [pick_file]),
            ("Editor Options ", "Text color", [NO_COLOR]),
            ("Editor Options ", "Comment color", [accept("Select Color")])]:
        options(desk, page)
        desk.click_widget(button)
        for answer in answers:
            answer(desk)
        expect_keys_in(desk, "Options")
    options(desk, "Editor Options ")
    desk.key("alt+s", "ctrl+a")
    desk.type("abc")
    desk.key("alt+o")
    confirm(desk)
    expect_keys_in(desk, "Options")


def test_a_box_of_a_menu_command_gives_the_keys_to_the_page(desk):
    unnamed_page(desk)
    desk.click_widget("Anchor", "push button")
    cancel("Anchor")(desk)
    confirm(desk)
    desk.wait_active("The Tarnwick Pro")
    desk.widget("Document text", "text", focused=True)
    desk.type("q")
    desk.wait_text(PAGE + "q")


if __name__ == "__main__":
    main(sys.modules[__name__])
