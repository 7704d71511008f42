"""Uploads to a real server on the loopback address: from the toolbar's button to the server's folder."""
import os
import stat
import subprocess
import sys
from driver import main, read, wait_for

SERVER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "ftp", "server.py")
CLIENT = os.path.join(os.path.dirname(os.environ["TARNWICK_PROGRAM"]), "tarnwick-ftp")
PASSWORD = "se cret"
RECORD = 256


def serve(desk, kind):
    """A server's port and folder."""
    folder = desk.path("server", "root")
    os.makedirs(folder)
    process = subprocess.Popen(["/usr/bin/python3", "-B", SERVER, kind, folder], stdin=subprocess.PIPE,
                               stdout=subprocess.PIPE, text=True)
    desk.processes.append(process)
    for line in process.stdout:
        if line.startswith("port "):
            return int(line.split()[1]), folder
    raise AssertionError("no server")


def make_site(desk, count):
    """Files of all kinds and names, by their paths."""
    paths = []
    for number in range(count):
        name = "page %d.htm" % number if number % 3 else 'the "%d" page.htm' % number
        ends = b"\r\n" if number % 2 else b"\n"
        paths.append(desk.write(name, (b"<P>%d</P>" % number + ends) * (number * 100) + bytes(range(256))))
    return paths


def fill(desk, port, password=PASSWORD):
    desk.click_widget("FTP Upload", "push button")
    desk.wait_active("FTP File Upload")
    for key, text in (("t", "127.0.0.1:%d" % port), ("n", "jo"), ("p", password)):
        desk.key("alt+" + key)
        desk.type(text)


def pick_project(desk):
    desk.key("alt+j", "Down", "Return")
    wait_for("the project's files", lambda: desk.widgets("page 1.htm", "list item") or desk.widget_text_contains("page 1.htm"))


def same(folder, paths):
    return all(read(os.path.join(folder, os.path.basename(path))) == read(path) for path in paths)


def test_a_project_of_fifty_files_goes_up(desk):
    paths = make_site(desk, 50)
    with open(desk.path("own", "site.tnw"), "wb") as file:
        file.write(b"".join(path.encode("cp1252").ljust(RECORD) for path in paths))
    desk.settings("Projects", ProjFile0="site")
    port, folder = serve(desk, "plain")
    desk.run()
    fill(desk, port)
    pick_project(desk)
    desk.key("alt+u")
    client = "127.0.0.1:%d - FTP" % port
    desk.wait_window(client)
    wait_for("the files", lambda: same(folder, paths), timeout=60)
    assert sorted(os.listdir(folder)) == sorted(map(os.path.basename, paths))
    script = desk.path("own", "send.out")
    lines = read(script).split(b"\r\n")
    assert lines[:4] == [b"jo", PASSWORD.encode(), b"hash", b"bin"], lines[:4]
    assert lines[-2:] == [b"ls", b""] and len(lines) == 4 + 50 + 2, lines
    assert stat.S_IMODE(os.stat(script).st_mode) == 0o600
    # No one who looks at the processes sees the password.
    for pid in filter(str.isdigit, os.listdir("/proc")):
        assert PASSWORD.encode() not in (read("/proc/%s/cmdline" % pid) or b""), pid
    # The client stays at its prompt, in a window that has the keys.
    desk.wait_active(client)
    desk.type("frob")
    desk.key("Return")
    desk.type("quit")
    desk.key("Return")
    desk.wait_no_window(client)
    # The upload window stayed too; what was typed in it comes back.
    desk.wait_window("FTP File Upload")
    desk.xdo("windowactivate", "--sync", desk.wait_window("FTP File Upload"))
    desk.key("Escape")
    desk.wait_no_window("FTP File Upload")
    wait_for("the settings", lambda: desk.setting("FTP", "Server%280%29") == "127.0.0.1:%d" % port)
    assert desk.setting("FTP", "Password") is None


def test_a_strange_certificate_is_asked_about(desk):
    page = desk.write("page.htm", b"<P>words</P>")
    port, folder = serve(desk, "tls")
    desk.run(page)
    desk.wait_page("words")
    fill(desk, port)
    desk.key("alt+u")
    client = "127.0.0.1:%d - FTP" % port
    desk.wait_window(client)
    # The box bears its window's name; yes is no key's default.
    wait_for("the box", lambda: desk.windows().count(client) == 2)
    assert os.listdir(folder) == []
    desk.key("alt+y")
    wait_for("the file", lambda: read(os.path.join(folder, "page.htm")) == b"<P>words</P>")
    desk.wait_active(client)
    desk.key("alt+F4")
    desk.wait_no_window(client)


def test_the_clients_window_closes_whatever_the_server_does(desk):
    page = desk.write("page.htm", b"<P>words</P>")
    port, _ = serve(desk, "hang")
    desk.run(page)
    desk.wait_page("words")
    fill(desk, port)
    desk.key("alt+u")
    client = "127.0.0.1:%d - FTP" % port
    desk.wait_window(client)
    desk.wait_active(client)
    desk.key("alt+F4")
    desk.wait_no_window(client)
    wait_for("the client's end", lambda: not any(
        b"tarnwick-ftp" in (read("/proc/%s/cmdline" % pid) or b"") and str(port).encode() in read("/proc/%s/cmdline" % pid)
        for pid in filter(str.isdigit, os.listdir("/proc"))))
    assert desk.program.poll() is None


def run_client(desk, port, script, typed=b""):
    """The client with something to read from and to write to: no window. Its exit code and what it wrote."""
    path = desk.write("script", script)
    done = subprocess.run([CLIENT, "-s:" + path, "127.0.0.1", str(port)], input=typed, env=desk.env, capture_output=True)
    return done.returncode, done.stdout.decode()


def test_in_a_terminal_the_client_works_there(desk):
    page = desk.write("page.htm", b"<P>words</P>")
    port, folder = serve(desk, "plain")
    login = b"jo\r\n" + PASSWORD.encode() + b"\r\n"
    put = b'put "' + page.encode() + b'" page.htm\r\n'
    code, said = run_client(desk, port, login + put, b"frob\npwd\n")
    assert code == 0, (code, said)
    assert read(os.path.join(folder, "page.htm")) == b"<P>words</P>"
    assert "?Invalid command.\n" in said and '257 "/"' in said, said
    assert PASSWORD not in said, said
    assert run_client(desk, port, login + b'put "/nowhere/gone.htm" \r\n' + put)[0] == 1
    assert run_client(desk, port, b"jo\r\nwrong\r\n" + put)[0] == 1
    # On a terminal of its own, where the prompt is waited for.
    here, there = os.openpty()
    process = subprocess.Popen([CLIENT, "127.0.0.1", str(port)], env=desk.env, stdin=there, stdout=there, stderr=there)
    os.close(there)
    said = b""
    for prompt, answer in ((b"User: ", b"jo"), (b"Password: ", PASSWORD.encode()), (b"ftp> ", b"bye")):
        while not said.endswith(prompt):
            said += os.read(here, 1000)
        os.write(here, answer + b"\n")
    assert process.wait(60) == 0
    assert PASSWORD.encode() not in said, said


if __name__ == "__main__":
    main(sys.modules[__name__])
