"""What `cmake --install` puts into a prefix, looked at with the tools of those who read it, and used from there.

    TARNWICK_BUILD=build/release install.py [TEST...]
"""
import os
import re
import shutil
import subprocess
import sys
import tempfile

BUILD = os.environ["TARNWICK_BUILD"]
# A blank in its name: nothing may take the way to a file for two words.
PREFIX = tempfile.mkdtemp(prefix="tarnwick prefix ")
os.environ["TARNWICK_PROGRAM"] = os.path.join(PREFIX, "bin", "tarnwick")
sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "e2e"))
from driver import main, wait_for, Skipped, PROGRAM  # noqa: E402  (it asks for the program's path when it is loaded)

ID = "org.tarnwick.editor"
SIZES = (16, 22, 24, 32, 48, 64, 128, 256, 512)
# What the program opens, for a desktop's "Open with".
TYPES = ("text/html", "application/xhtml+xml", "text/css", "text/plain")
PLUGIN = "lib/tarnwick/plugins/tarnwick_web.so"
HELP = "share/tarnwick/tarnwick.chm"

# A desktop's part: looks the program up by the type of a file, and starts it on that file as its entry tells.
OPEN_WITH = """
import sys
from gi.repository import Gio
for kind in sys.argv[3:]:
    known = [one.get_id() for one in Gio.AppInfo.get_all_for_type(kind)]
    if sys.argv[1] not in known:
        sys.exit(kind + " is opened by " + repr(known))
Gio.DesktopAppInfo.new(sys.argv[1]).launch([Gio.File.new_for_path(sys.argv[2])], None)
"""


def installed(name):
    return os.path.join(PREFIX, name)


def need(tool):
    if not shutil.which(tool):
        raise Skipped(tool + " is not installed here")


def said(*command, env=None):
    """What a command that ends well prints, on both channels."""
    need(command[0])
    ended = subprocess.run(command, capture_output=True, text=True, env={**os.environ, "LC_ALL": "C.UTF-8", **(env or {})})
    output = (ended.stdout + ended.stderr).strip()
    print("$", *command[:1], *[os.path.basename(word) for word in command[1:]], "\n" + (output or "(nothing to say)"))
    assert ended.returncode == 0, (command, ended.returncode, output)
    return output


def test_every_file_lies_where_a_desktop_looks(desk):
    expected = {
        "bin/tarnwick", "bin/tarnwick-ftp", PLUGIN, HELP,
        "share/applications/%s.desktop" % ID, "share/metainfo/%s.metainfo.xml" % ID,
        "share/bash-completion/completions/tarnwick", "share/icons/hicolor/scalable/apps/tarnwick.svg",
        "share/man/man1/tarnwick.1.gz", "share/man/man1/tarnwick-ftp.1.gz",
        "share/doc/tarnwick/changelog.gz", "share/doc/tarnwick/copyright",
        "share/doc/tarnwick-web/changelog.gz", "share/doc/tarnwick-web/copyright",
        *("share/icons/hicolor/%dx%d/apps/tarnwick.png" % (size, size) for size in SIZES)}
    for made, name in ((("tarnwick_web.so",), PLUGIN), (("tarnwick.chm",), HELP)):
        if not os.path.exists(os.path.join(BUILD, *made)):  # a machine without the engine, or the help's compiler
            expected.discard(name)
    found = {os.path.relpath(os.path.join(folder, name), PREFIX) for folder, _, names in os.walk(PREFIX) for name in names}
    assert found == expected, (found - expected, expected - found)


def test_the_desktop_entry_and_the_metainfo_are_without_fault(desk):
    assert said("desktop-file-validate", installed("share/applications/%s.desktop" % ID)) == ""
    metainfo = installed("share/metainfo/%s.metainfo.xml" % ID)
    for strict in ([], ["--pedantic"]):
        output = said("appstreamcli", "validate", "--no-net", *strict, metainfo)
        assert not re.search(r"^[EWI]:", output, re.M), output
    # As an archive of software sees it: entry, icon and metainfo fit each other.
    output = said("appstreamcli", "validate-tree", "--no-net", PREFIX)
    assert not re.search(r"^[EW]:", output, re.M), output


def test_the_icons_have_the_sizes_of_their_folders(desk):
    for size in SIZES:
        icon = installed("share/icons/hicolor/%dx%d/apps/tarnwick.png" % (size, size))
        assert said("identify", "-format", "%m %w %h", icon) == "PNG %d %d" % (size, size)


def test_the_manual_pages_are_without_fault_and_tell_all_words(desk):
    need("man")
    version = said(PROGRAM, "--version").split()[-1]
    for name, program in (("tarnwick", PROGRAM), ("tarnwick-ftp", PROGRAM + "-ftp")):
        page = installed("share/man/man1/%s.1.gz" % name)
        # On its other channel goes the page as a printer takes it.
        complaints = subprocess.run(["man", "--warnings", "-E", "UTF-8", "-l", "-Tutf8", "-Z", page], stdout=subprocess.DEVNULL,
                                    stderr=subprocess.PIPE, env={**os.environ, "LC_ALL": "C.UTF-8", "MANROFFSEQ": ""}, check=True)
        assert complaints.stderr == b"", complaints.stderr
        shown = said("man", "-l", page, env={"MANWIDTH": "100", "MAN_KEEP_FORMATTING": "", "GROFF_NO_SGR": "1"})
        shown = re.sub(".\b", "", shown)
        assert "The Tarnwick " + version in shown, shown
        for word in re.findall(r"(?<!\S)--?\w[\w-]*", said(program, "--help")):
            assert word in shown, (name, word)


def test_the_shell_completes_words_and_names(desk):
    os.makedirs(desk.path("a folder"))
    desk.write("a page.html", b"")
    source = "source %s/share/bash-completion/completions/tarnwick" % PREFIX.replace(" ", "\\ ")
    import pty
    child, terminal = pty.fork()
    if child == 0:
        os.chdir(desk.home)
        os.execvpe("bash", ["bash", "--norc", "--noprofile", "-i"], {**desk.env, "PS1": "> ", "TERM": "dumb", "INPUTRC": "/dev/null"})

    def ask(line, *ending):
        """What the program would be given for a line that is typed with the Tab key in it."""
        os.write(terminal, line.encode() + b"\r")
        shown = b""
        while not re.search(rb"<<[^\r\n]*>>", shown):
            shown += os.read(terminal, 4096)
        return re.search(rb"<<([^\r\n]*)>>", shown).group(1).decode()
    os.write(terminal, b"bind 'set enable-bracketed-paste off'; tarnwick() { local IFS='|'; echo \"<\"\"<$*>\"\">\"; }; %s\r" % source.encode())
    for line, given in (("tarnwick --v\t", "--version"), ("tarnwick --h\t", "--help"), ("tarnwick a\\ p\t", "a page.html"),
                        ("tarnwick \"a p\t", "a page.html"), ("tarnwick a\\ f\t", "a folder/")):
        assert ask(line) == given, line
    os.write(terminal, b"exit\r")
    os.waitpid(child, 0)


def test_the_terminal_is_answered(desk):
    for words in (("--version", "-v"), ("--help", "-h")):
        long, short = [said(PROGRAM, word) for word in words]
        assert long == short and long.startswith("The Tarnwick "), (long, short)
    assert said(PROGRAM + "-ftp", "--version").split()[-1] == said(PROGRAM, "--version").split()[-1]


def test_open_with_starts_it_on_the_file(desk):
    page = desk.write("a page.html", b"<P>words</P>")
    # What a package's trigger makes, for the time of this test.
    said("update-desktop-database", installed("share/applications"))
    desk.env.update(PATH=installed("bin") + ":" + desk.env["PATH"], XDG_DATA_DIRS=installed("share") + ":/usr/share")
    try:
        # What it starts lives on with its channels: no pipe, which would wait for their end.
        desk.start(["/usr/bin/python3", "-c", OPEN_WITH, ID + ".desktop", page, *TYPES]).wait(60)
    finally:
        os.remove(installed("share/applications/mimeinfo.cache"))
    with open(desk.path("python3.log"), encoding="utf-8") as log:
        assert log.read() == ""
    # A desktop does not tell whom it started: the window does.
    desk.program = desk.processes[0]
    window = desk.wait_window("The Tarnwick Pro")
    pid = int(desk.xdo("getwindowpid", window).stdout)
    assert os.path.samefile("/proc/%d/exe" % pid, PROGRAM)
    wait_for("the page", lambda: page in desk.xdo("getwindowname", window).stdout)
    desk.wait_active("The Tarnwick Pro")
    desk.key("alt+F4")
    wait_for("its end", lambda: not os.path.exists("/proc/%d" % pid))


def test_help_and_views_are_found_from_there(desk):
    if os.path.exists(installed(PLUGIN)):
        with open(desk.path("config", "tarnwick", "The Tarnwick.ini"), "a", encoding="utf-8") as file:
            file.write("UseMSIE=1\n")
    desk.run(desk.write("page.htm", b"<HTML>\r\n<BODY BGCOLOR=\"#20C040\">\r\n</BODY>\r\n</HTML>\r\n"))
    desk.wait_page("BODY")
    if os.path.exists(installed(HELP)):
        desk.key("F1")
        desk.wait_active("A first page in five minutes")
        desk.key("Escape")
        desk.wait_active("The Tarnwick Pro")
    if os.path.exists(installed(PLUGIN)):
        desk.click_widget("View", "page tab")
        with open("/proc/%d/maps" % desk.program.pid, encoding="utf-8") as file:
            assert installed(PLUGIN) in file.read()
        center = ["import", "-window", "root", "-crop", "1x1+640+600", "-depth", "8", "txt:-"]
        wait_for("the page's colour", lambda: "#20C040" in subprocess.run(center, env=desk.env, capture_output=True,
                                                                         text=True).stdout, 60)


if __name__ == "__main__":
    try:
        subprocess.run(["cmake", "--install", BUILD, "--prefix", PREFIX], check=True, stdout=subprocess.DEVNULL)
        main(sys.modules[__name__])
    finally:
        shutil.rmtree(PREFIX)
