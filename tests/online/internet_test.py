#!/usr/bin/env python3
"""How the platform's Internet client copes with servers that misbehave:
internet_test.py PROBE..., the command that starts the probe. Run as root, for the FTP server."""

import contextlib
import pathlib
import re
import socket
import socketserver
import subprocess
import sys
import tempfile
import threading
import time
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "support"))
from update_servers import PASSWORD, UpdateServers, free_port  # noqa: E402

PROBE = sys.argv[1:]
del sys.argv[1:]
# The probe's limits: 1 s to connect, 1 s without a byte, 3 s for all calls, and this many bytes.
LARGEST = 100_000
LONGEST = 6  # seconds, including the program's start

HEAD = b"HTTP/1.0 200 OK\r\nContent-Length: %d\r\n\r\n"


def silence(_):
    time.sleep(LONGEST * 2)


def pause(_):
    time.sleep(0.5)


def drips(peer):
    with contextlib.suppress(OSError):
        for _ in range(LONGEST * 8):
            peer.sendall(b"x")
            time.sleep(0.25)


class Server(socketserver.ThreadingTCPServer):
    """A loopback server that works through a list: it sends bytes and calls functions."""

    daemon_threads = True

    def __init__(self, acts):
        super().__init__(("127.0.0.1", 0), self.answer)
        self.acts = acts
        threading.Thread(target=self.serve_forever, daemon=True).start()

    def answer(self, peer, _address, _server):
        peer.settimeout(LONGEST * 2)
        peer.recv(4096)
        perform(self.acts, peer)

    @property
    def name(self):
        return "127.0.0.1:%d" % self.server_address[1]


class Redirects(Server):
    """Redirects /3 to /2 and so on, and answers /0. A dictionary redirects all other paths."""

    def answer(self, peer, _address, _server):
        path = peer.recv(4096).split()[1].decode()
        to = self.acts.get(path) or "/%d" % (int(path[1:]) - 1)
        perform([HEAD % 5, b"hello"] if path == "/0" else
                [b"HTTP/1.0 302 Found\r\nLocation: %b\r\n\r\nelsewhere" % to.encode()], peer)


class FtpServer(Server):
    """Accepts any login and has one file, which it sends by a list of acts. It may pause before
    each reply."""

    def __init__(self, size, acts, pause=0):
        super().__init__(acts)
        self.size = size
        self.pause = pause
        self.listed = b"-rw-r--r-- 1 ftp ftp %d Jan 01 2026 fees.dat\r\n" % size

    def answer(self, peer, _address, _server):
        peer.settimeout(LONGEST * 2)
        if not self.acts:
            return silence(peer)
        lines = peer.makefile("rw", newline="\r\n", encoding="latin-1")
        data = None

        def say(text):
            time.sleep(self.pause)
            lines.write(text + "\r\n")
            lines.flush()

        say("220 ready")
        for line in lines:
            verb, _, rest = line.strip().partition(" ")
            if verb == "PORT":
                numbers = list(map(int, rest.split(",")))
                data = socket.create_connection((".".join(map(str, numbers[:4])),
                                                 numbers[4] * 256 + numbers[5]), LONGEST)
                say("200 connected")
            elif verb == "EPSV":
                with socket.create_server(("127.0.0.1", 0)) as door:
                    say(f"229 Entering (|||{door.getsockname()[1]}|)")
                    data, _ = door.accept()
            elif verb in ("RETR", "LIST", "NLST"):
                say("150 coming")
                with data:
                    perform(self.acts if verb == "RETR" else [self.listed], data)
                say("226 that was all" if verb != "RETR" or self.acts[-1] != b"half"
                    else "426 broken off")
            else:
                say({"USER": "331 and the password?", "PASS": "230 welcome", "SIZE": f"213 {self.size}",
                     "PWD": '257 "/"', "QUIT": "221 bye"}.get(verb, "200 fine"))
        return None


def perform(acts, peer):
    with contextlib.suppress(OSError):
        for act in acts:
            if callable(act):
                act(peer)
            else:
                peer.sendall(act)


def probe(*words):
    """The probe's answer, and how many seconds it took."""
    started = time.monotonic()
    done = subprocess.run([*PROBE, *map(str, words)], capture_output=True, text=True,
                          timeout=60, check=False)
    return done.stdout.strip(), time.monotonic() - started


class Client(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.local = pathlib.Path(folder.name) / "fees.dat"

    def expect(self, words, answer):
        got, seconds = probe(*words)
        self.assertRegex(got, f"^{answer}$")
        self.assertLess(seconds, LONGEST)

    def test_an_answer_comes_whole_or_counts_as_lost(self):
        rows = {
            "whole": ([HEAD % 5, b"hello"], "got 5"),
            "of an error": ([b"HTTP/1.0 404 Nothing\r\n\r\n", b"sorry"], "got 5"),
            "without a length": ([b"HTTP/1.0 200 OK\r\n\r\n", b"hello"], "got 5"),
            "of the largest size": ([HEAD % LARGEST, b"x" * LARGEST], f"got {LARGEST}"),
            "a byte larger": ([HEAD % (LARGEST + 1), b"x" * (LARGEST + 1)], "lost: .+"),
            "cut off": ([HEAD % 100, b"hello"], "lost: .+"),
            "never begun": ([silence], "lost: .+"),
            "never ended": ([HEAD % 100, b"hello", silence], "lost: .+"),
            "dripping": ([HEAD % 100, drips], "lost: .+"),
        }
        for name, (acts, answer) in rows.items():
            with self.subTest(name), Server(acts) as server:
                self.expect(("http", server.name, "page"), answer)
                server.shutdown()

    def test_a_file_comes_whole_or_leaves_the_old_one(self):
        content = b"x" * LARGEST
        rows = {
            "of the largest size": (LARGEST, [content], f"got {LARGEST} of {LARGEST}"),
            "a byte larger": (LARGEST + 1, [content, b"x"], "lost: .+"),
            "cut off": (LARGEST, [content[:20_000], b"half"], "lost: .+"),
            "never begun": (LARGEST, [silence], "lost: .+"),
            "never ended": (LARGEST, [content[:20_000], silence], "lost: .+"),
            "dripping": (LARGEST, [drips], "lost: .+"),
            "no word from the server": (LARGEST, [], "lost: .+"),
            "each call in time but not all": (LARGEST, [content[:25_000], pause] * 4, "lost: .+", 0.15),
        }
        for name, (size, acts, answer, *slow) in rows.items():
            self.local.write_bytes(b"old")
            with self.subTest(name), FtpServer(size, acts, *slow) as server:
                self.expect(("ftp", server.name, "secret", "", "fees.dat", self.local), answer)
                self.assertEqual(self.local.read_bytes(), b"old" if "lost" in answer else content)
                self.assertEqual(list(self.local.parent.iterdir()), [self.local])
                server.shutdown()

    def test_a_request_is_sent_on_five_times_and_only_to_the_web(self):
        with FtpServer(5, [b"hello"]) as ftp, Redirects({
                "/circle": "/circle", "/ftp": f"ftp://{ftp.name}/fees.dat",
                "/file": "file:///etc/hostname"}) as server:
            for path, answer in {"1": "got 5", "5": "got 5", "6": "lost: .+", "circle": "lost: .+",
                                 "ftp": "lost: .+", "file": "lost: .+"}.items():
                with self.subTest(path):
                    self.expect(("http", server.name, path), answer)
            ftp.shutdown()
            server.shutdown()

    def test_a_proxy_is_asked_in_place_of_the_server(self):
        with Server([HEAD % 5, b"hello"]) as proxy:
            self.expect(("http", "nowhere.invalid:80", "page", proxy.name), "got 5")
            proxy.shutdown()

    def test_nobody_there_is_told_at_once(self):
        for server in (f"127.0.0.1:{free_port()}", ":80"):
            for words in (("http", server, "page"),
                          ("ftp", server, "secret", "", "fees.dat", self.local)):
                with self.subTest(words):
                    self.expect(words, "lost: .+")

    def test_real_servers_answer_and_refuse_in_their_own_words(self):
        with UpdateServers() as servers:
            (servers.files / "web/page").write_bytes(b"hello")
            folder = servers.files / "ftp/fees of 2026"
            folder.mkdir()
            (folder / "%41.dat").write_bytes(b"a\r\nb\n\0")
            self.expect(("http", servers.web, "page"), "got 5")
            nowhere = self.local / "folder"
            for password, place, file, local, answer in (
                    (PASSWORD, "/fees of 2026", "%41.dat", self.local, "got 6 of 6"),
                    (PASSWORD, "", "none.dat", self.local, "lost: .+"),
                    (PASSWORD, "fees of 2026", "%41.dat", nowhere, "lost: .+"),
                    (PASSWORD, "2025", "%41.dat", self.local, "lost: 550 .+"),
                    # Windows reports a number of its own for this.
                    ("wrong", "", "%41.dat", self.local, "lost: (530 .*incorrect.*|Error 12015)")):
                with self.subTest(answer, place=place):
                    self.expect(("ftp", servers.ftp, password, place, file, local), answer)
            self.assertEqual(self.local.read_bytes(), b"a\r\nb\n\0")


if __name__ == "__main__":
    unittest.main(verbosity=2)
