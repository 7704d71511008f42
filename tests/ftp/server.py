"""FTP servers on the loopback address for the tests of the client: a well-behaved one, and some that are not.

    server.py KIND FOLDER

Prints "port N" when it listens, and "got ..." for each command that it is given.
"""
import os
import socket
import subprocess
import sys
import threading
import time

KIND, FOLDER = sys.argv[1:3]
USER, PASSWORD = "jo", "se cret"


def say(*words):
    print(*words, flush=True)


def certificate():
    """A certificate that nobody vouches for, with its key, in a file."""
    from OpenSSL import crypto
    key = crypto.PKey()
    key.generate_key(crypto.TYPE_RSA, 2048)
    made = crypto.X509()
    made.get_subject().CN = "test server"
    made.set_serial_number(1)
    made.gmtime_adj_notBefore(-3600)
    made.gmtime_adj_notAfter(3600)
    made.set_issuer(made.get_subject())
    made.set_pubkey(key)
    made.sign(key, "sha256")
    path = os.path.join(FOLDER, "..", "server.pem")
    with open(path, "wb") as file:
        file.write(crypto.dump_privatekey(crypto.FILETYPE_PEM, key))
        file.write(crypto.dump_certificate(crypto.FILETYPE_PEM, made))
    return path


# --- a real server ------------------------------------------------------------------------------------------------

def serve(base):
    import logging
    from pyftpdlib.authorizers import DummyAuthorizer
    from pyftpdlib.filesystems import AbstractedFS
    from pyftpdlib.handlers import FTPHandler, TLS_FTPHandler
    from pyftpdlib.servers import FTPServer
    logging.basicConfig(level=logging.CRITICAL)

    class FullDisk:
        """Takes a little and then no more."""

        def __init__(self, file):
            self.file, self.left, self.name = file, 1000, file.name
            self.closed = False

        def write(self, data):
            self.left -= len(data)
            if self.left < 0:
                raise OSError(28, "No space left on device")
            return self.file.write(data)

        def close(self):
            self.closed = True
            self.file.close()

    class Folder(AbstractedFS):
        def open(self, filename, mode):
            file = super().open(filename, mode)
            return FullDisk(file) if KIND == "full" and "w" in mode else file

    class Handler({"tls": TLS_FTPHandler}.get(base, FTPHandler)):
        authorizer = DummyAuthorizer()
        abstracted_fs = Folder
        logins = 0

        def pre_process_command(self, line, cmd, arg):
            say("got", line)
            Handler.logins += cmd == "PASS"
            late = KIND.endswith("late") and Handler.logins < 3
            if (late or KIND.endswith("active")) and cmd in ("PASV", "EPSV"):
                return self.respond("502 No passive connections here.")
            if KIND.endswith("late") and cmd == "PROT":
                # An encrypted connection for files could come at a bad moment by itself.
                return self.respond("534 Files go in the clear.")
            if KIND == "nowhere" and cmd == "PWD" and self.authenticated:
                return self.respond("502 Who knows.")
            if KIND == "leaves" and cmd == "STOR" and "b.htm" in arg:
                return self.close()
            super().pre_process_command(line, cmd, arg)

    Handler.authorizer.add_user(USER, PASSWORD, FOLDER, perm="elradfmwMT")
    Handler.authorizer.add_anonymous(FOLDER)
    if base == "tls":
        Handler.certfile = certificate()
        Handler.tls_control_required = True
        Handler.tls_data_required = not KIND.endswith("late")
    server = FTPServer(("127.0.0.1", 0), Handler)
    say("port", server.address[1])
    server.serve_forever()


def serve_other_make(tls):
    """Another make of server, for a second opinion. Anonymous users may write below "in"."""
    probe = socket.socket()
    probe.bind(("127.0.0.1", 0))
    port = probe.getsockname()[1]
    probe.close()
    os.makedirs(os.path.join(FOLDER, "in"), exist_ok=True)
    os.chmod(FOLDER, 0o755)
    os.chmod(os.path.join(FOLDER, "in"), 0o777)
    settings = {
        "listen": "YES", "listen_address": "127.0.0.1", "listen_port": port, "background": "NO",
        "run_as_launching_user": "YES", "seccomp_sandbox": "NO", "anonymous_enable": "YES", "local_enable": "NO",
        "anon_root": FOLDER, "write_enable": "YES", "anon_upload_enable": "YES", "anon_mkdir_write_enable": "YES",
        "anon_other_write_enable": "YES", "anon_umask": "022", "anon_world_readable_only": "NO", "xferlog_enable": "NO",
        "ascii_upload_enable": "YES", "ascii_download_enable": "YES", "pasv_address": "127.0.0.1",
    }
    if tls:
        settings.update(ssl_enable="YES", allow_anon_ssl="YES", force_anon_logins_ssl="YES", force_anon_data_ssl="YES",
                        rsa_cert_file=certificate())
    path = os.path.join(FOLDER, "..", "server.conf")
    with open(path, "w", encoding="utf-8") as file:
        file.writelines("%s=%s\n" % setting for setting in settings.items())
    process = subprocess.Popen(["/usr/sbin/vsftpd", path])
    while process.poll() is None:
        try:
            socket.create_connection(("127.0.0.1", port)).close()
            break
        except OSError:
            time.sleep(0.02)
    say("port", port)
    # Whoever started this one closes its input when it is no longer needed.
    sys.stdin.read()
    process.kill()


# --- servers that misbehave ---------------------------------------------------------------------------------------

def lines(connection):
    with connection.makefile("rb") as file:
        for line in file:
            text = line.decode("utf-8", "replace").rstrip("\r\n")
            say("got", text)
            yield text


def logs_in(connection, last):
    """Answers a login as it should be, up to and including a command."""
    connection.sendall(b"220 here\r\n")
    answers = {"AUTH": b"500 what\r\n", "USER": b"331 more\r\n", "PASS": b"230 in\r\n", "PWD": b'257 "/"\r\n',
               "TYPE": b"200 so be it\r\n", "QUIT": b"221 bye\r\n"}
    for line in lines(connection):
        word = line.split(" ")[0]
        if word == last:
            return line
        connection.sendall(answers.get(word, b"250 fine\r\n"))
    return None


def hang(connection):
    connection.recv(1)


def hang_later(connection):
    logs_in(connection, "CWD")
    connection.recv(1)


def close(connection):
    connection.close()


def nonsense(connection):
    connection.sendall(b"HTTP/1.1 200 OK\r\n\x1b[2J\x00\xff\xfe<html>\r\n\r\n")
    connection.recv(1000)


def flood(connection):
    while True:
        connection.sendall(b"220-welcome, welcome, welcome\r\n" * 1000)


def flood_line(connection):
    while True:
        connection.sendall(b"welcome " * 1000)


def flood_later(connection):
    logs_in(connection, "CWD")
    while True:
        connection.sendall(b"250-\xe9 \x1b[31m" + b"x" * 3000 + b"\r\n")


def refuse(connection):
    """Repeats what it was told, the password included."""
    line = logs_in(connection, "PASS")
    connection.sendall(b"530 no: '%s'\r\n" % line.encode())
    for _ in lines(connection):
        connection.sendall(b"530 no\r\n")


def list_flood(connection):
    """A listing without end."""
    data = socket.socket()
    data.bind(("127.0.0.1", 0))
    data.listen()
    logs_in(connection, "EPSV")
    connection.sendall(b"229 here (|||%d|)\r\n" % data.getsockname()[1])
    side = data.accept()[0]
    for line in lines(connection):
        if line.startswith("LIST"):
            connection.sendall(b"150 coming\r\n")
            while True:
                side.sendall(b"-rw-r--r-- 1 u g 1 Jan 1 00:00 " + b"name" * 100 + b"\r\n")
        connection.sendall(b"200 yes\r\n")


def slow(connection):
    """Takes the beginning of a file, and then no more of it."""
    data = socket.socket()
    data.setsockopt(socket.SOL_SOCKET, socket.SO_RCVBUF, 4096)
    data.bind(("127.0.0.1", 0))
    data.listen()
    logs_in(connection, "EPSV")
    connection.sendall(b"229 here (|||%d|)\r\n" % data.getsockname()[1])
    side = data.accept()[0]
    for line in lines(connection):
        if line.startswith("STOR"):
            connection.sendall(b"150 coming\r\n")
            side.recv(1 << 20)
            connection.recv(1)
            return
        connection.sendall(b"200 yes\r\n")


def serve_badly(behave):
    def one(connection):
        try:
            behave(connection)
        except OSError:
            pass

    listener = socket.socket()
    listener.bind(("127.0.0.1", 0))
    listener.listen()
    say("port", listener.getsockname()[1])
    while True:
        connection = listener.accept()[0]
        say("connected")
        threading.Thread(target=one, args=(connection,), daemon=True).start()


BAD = {"hang": hang, "hang-later": hang_later, "close": close, "nonsense": nonsense, "flood": flood,
       "flood-line": flood_line, "flood-later": flood_later, "refuse": refuse, "list-flood": list_flood, "slow": slow}

if KIND in BAD:
    serve_badly(BAD[KIND])
elif KIND.startswith("other"):
    serve_other_make(KIND == "other-tls")
else:
    serve("tls" if KIND.startswith("tls") else "plain")
