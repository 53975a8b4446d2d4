"""Real web and FTP servers on loopback, run with the shipped configuration. The FTP server accepts
logins only if root started it."""

import os
import pathlib
import shutil
import signal
import socket
import subprocess
import tempfile
import time

SHIPPED = pathlib.Path(__file__).resolve().parents[2] / "packaging/update-server"
PASSWORD = "rmk3816"
LONGEST_LIFE = 120  # seconds


def free_port():
    with socket.create_server(("127.0.0.1", 0)) as door:
        return door.getsockname()[1]


def await_server(name, port):
    end = time.monotonic() + 5
    while True:
        with socket.socket() as caller:
            if caller.connect_ex(("127.0.0.1", port)) == 0:
                return
        if time.monotonic() > end:
            raise RuntimeError(f"{name} doesn't start")
        time.sleep(0.005)


class UpdateServers:
    """nginx and vsftpd, serving the folders "web" and "ftp" in `files`."""

    def __init__(self):
        self.files = pathlib.Path(tempfile.mkdtemp(prefix="quillet-servers-"))
        self.files.chmod(0o755)
        web, ftp = free_port(), free_port()
        self.web, self.ftp = f"127.0.0.1:{web}", f"127.0.0.1:{ftp}"
        self.configure(web, ftp)
        self.processes = [
            self.start("/usr/sbin/nginx", "-e", self.files / "error.log", "-c",
                       self.files / "main.conf"),
            # PAM reads its rules from /etc only; with its wrapper it reads them here.
            self.start("/usr/sbin/vsftpd", self.files / "vsftpd.conf",
                       LD_PRELOAD="libpam_wrapper.so", PAM_WRAPPER="1",
                       PAM_WRAPPER_SERVICE_DIR=str(self.files / "pam.d"))]
        await_server("nginx", web)
        await_server("vsftpd", ftp)

    def configure(self, web, ftp):
        for folder in ("web", "ftp", "empty", "pam.d"):
            (self.files / folder).mkdir()
        self.copy("nginx.conf", "nginx.conf", ("listen 80;", f"listen 127.0.0.1:{web};"))
        (self.files / "main.conf").write_text(
            f"daemon off;\nmaster_process off;\npid {self.files}/nginx.pid;\nevents {{}}\n"
            f"http {{\naccess_log off;\ninclude {self.files}/nginx.conf;\n}}\n")
        self.copy("vsftpd.conf", "vsftpd.conf", ("listen_port=21", f"listen_port={ftp}"),
                  ("/var/run/vsftpd/empty", f"{self.files}/empty"),
                  more="listen_address=127.0.0.1\ndelay_failed_login=0\n")
        self.copy("pam", "pam.d/quillet-update", ("/passwords", "/passwords nodelay"))
        (self.files / "pam.d/other").write_text("auth required pam_deny.so\n")
        coded = subprocess.run(["openssl", "passwd", "-6", PASSWORD], capture_output=True, text=True,
                               check=True).stdout
        (self.files / "passwords").write_text("quillet:" + coded)

    def copy(self, name, to, *changes, more=""):
        """Copies a shipped configuration with changes; each text to change must be there."""
        text = (SHIPPED / name).read_text()
        for old, new in (*changes, ("/srv/quillet-update", str(self.files))):
            if old not in text:
                raise RuntimeError(f"{name} doesn't hold {old}")
            text = text.replace(old, new, 1)
        (self.files / to).write_text(text + more)

    @staticmethod
    def start(*command, **environment):
        return subprocess.Popen(command, env={**os.environ, **environment}, start_new_session=True,
                                preexec_fn=lambda: signal.alarm(LONGEST_LIFE))

    def close(self):
        for process in self.processes:
            os.killpg(process.pid, signal.SIGKILL)
            process.wait()
        # The PAM wrapper leaves these behind when its process is killed.
        for left in pathlib.Path("/tmp").glob("pam.*"):
            if (left / "pid").is_file() and int((left / "pid").read_text()) == self.processes[1].pid:
                shutil.rmtree(left)
        shutil.rmtree(self.files)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()
