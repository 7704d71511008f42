"""The tag dialogs on the screen: opened by toolbar and keys, filled by keys, and the road back from a tag."""
import sys
from driver import main, read, wait_for


def fill(desk, label, text):
    desk.click_widget(label, "text")
    desk.type(text)


def fill_by_keys(desk, **fields):
    """Goes to each field by the key of its mnemonic and types."""
    for key, text in fields.items():
        desk.key("alt+" + key)
        desk.type(text)


def page(desk, data=b""):
    path = desk.write("page.htm", data)
    desk.run(path)
    desk.wait_page(data.decode("cp1252").strip()[:10])
    return path


def test_image_link_and_body_into_one_page(desk):
    path = page(desk, b"<BODY>\r\nword\r\n</BODY>\r\n")
    desk.key("ctrl+Home", "Down")
    desk.click_widget("Image", "push button")
    desk.wait_active("Image")
    fill_by_keys(desk, s="a.gif", w="10", t="x")
    desk.key("Return")
    desk.wait_no_window("Image")
    desk.wait_text('<IMG ALT="x" WIDTH=10 SRC="a.gif" USEMAP="#">')
    desk.key("shift+End")
    desk.click_widget("Link", "push button")
    desk.wait_active("Link")
    fill_by_keys(desk, u="x.htm", a="top")
    desk.key("Return")
    desk.wait_no_window("Link")
    desk.wait_text('<A HREF="x.htm#top">word</A>')
    desk.click_widget("Body", "push button")
    desk.wait_active("Body")
    fill_by_keys(desk, g="#FFFFFF", t="black", v="#800080", i="img/back.gif")
    desk.key("Return")
    desk.wait_no_window("Body")
    desk.key("ctrl+s")
    wait_for("the saved page", lambda: read(path) == (
        b'<BODY BGCOLOR="#FFFFFF" TEXT="black" VLINK="#800080" BACKGROUND="img/back.gif">\r\n'
        b'<IMG ALT="x" WIDTH=10 SRC="a.gif" USEMAP="#"><A HREF="x.htm#top">word</A>\r\n</BODY>\r\n\r\n'))


def test_a_dialog_by_keyboard_alone(desk):
    page(desk, b"<P>x</P>\r\n")
    desk.key("ctrl+h")
    desk.wait_active("Horizontal Rule")
    fill_by_keys(desk, w="50", t="2", a="CENTER")
    desk.key("alt+w", "Tab", "space")
    desk.key("Return")
    desk.wait_no_window("Horizontal Rule")
    desk.wait_text("<HR WIDTH=50% SIZE=2 ALIGN=CENTER>")
    desk.key("ctrl+q")
    desk.wait_active("Image")
    desk.key("Escape")
    desk.wait_no_window("Image")
    wait_for("the unchanged text", lambda: desk.text() == "<HR WIDTH=50% SIZE=2 ALIGN=CENTER><P>x</P>\r\n")


def test_the_body_dialog_over_a_tag_that_never_closes_deletes_nothing(desk):
    page(desk)
    desk.type('keep this <body bgcolor="red"')
    desk.wait_text('"red"')
    desk.key("ctrl+a")
    desk.click_widget("Body", "push button")
    desk.wait_active("Body")
    desk.key("Return")
    desk.wait_no_window("Body")
    desk.wait_text("<BODY>")
    assert desk.text() == 'keep this <BODY><body bgcolor="red"', desk.text()


def test_edit_tag_brings_the_dialog_back(desk):
    page(desk, b'<P><IMG SRC="a.gif" WIDTH=10 HEIGHT=20></P>\r\n')
    desk.key("ctrl+Home", "Right", "Right", "Right", "Right", "Right")
    desk.key("ctrl+d")
    desk.wait_active("Image")
    fill(desk, "Border:", "1")
    desk.key("Return")
    desk.wait_no_window("Image")
    desk.wait_text('<P><IMG WIDTH=10 HEIGHT=20 BORDER=1 SRC="a.gif" USEMAP="#"></P>')


if __name__ == "__main__":
    main(sys.modules[__name__])
