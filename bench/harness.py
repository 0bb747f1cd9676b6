"""What all measurements share: the table, the processes, the clipboard and Telegram's stand-in."""

import contextlib
import json
import os
import signal
import statistics
import subprocess
import sys
import time
import urllib.request
from dataclasses import dataclass
from pathlib import Path

# The certificates are then those of the system, as for its users.
for name in "SSL_CERT_FILE", "SSL_CERT_DIR":
    os.environ.pop(name, None)

BUILD = Path(sys.argv[1])
WORK = Path(os.environ["HOME"]) / "bench"
MB = 1e6


# --- the table ------------------------------------------------------------------------------------


@dataclass
class Row:
    """One line of the table; `limit` is the largest (or, with `least`, smallest) value in aim."""

    what: str
    measured: str
    peer: str = ""
    value: float | None = None
    limit: float | None = None
    least: bool = False
    unit: str = "x"

    def cells(self):
        unit = "" if self.unit == "x" else f" {self.unit}"
        ratio = f"{self.value:.2f}" if self.value is not None and self.unit == "x" else ""
        if self.limit is None:
            return self.what, self.measured, self.peer, ratio, "", ""
        met = self.value >= self.limit if self.least else self.value <= self.limit
        aim = f"{'≥' if self.least else '≤'} {self.limit:g}{unit}"
        return self.what, self.measured, self.peer, ratio, aim, "met" if met else "NOT MET"


def print_table(rows):
    lines = [("what", "measured", "peer", "ratio", "aim", ""), *(row.cells() for row in rows)]
    widths = [max(map(len, column)) for column in zip(*lines)]
    for line in lines:
        print("  ".join(cell.ljust(width) for cell, width in zip(line, widths)).rstrip())


# --- processes ------------------------------------------------------------------------------------


@dataclass
class Cost:
    """What a process and the children it waited for took: seconds, seconds and bytes."""

    wall: float
    cpu: float
    peak: float


def run_measured(command, env=None, stdin=subprocess.DEVNULL):
    """Runs the command to its end, which must be a good one."""
    with open(WORK / "output", "w+b") as output:
        start = time.monotonic()
        process = subprocess.Popen(command, env=env, stdin=stdin, stdout=output, stderr=output)
        _, status, usage = os.wait4(process.pid, 0)
        wall = time.monotonic() - start
        process.returncode = os.waitstatus_to_exitcode(status)
        if process.returncode != 0:
            output.seek(0)
            text = output.read().decode(errors="replace")
            sys.exit(f"{Path(command[0]).name} failed ({process.returncode}): {text}")
    return Cost(wall, usage.ru_utime + usage.ru_stime, usage.ru_maxrss * 1024)


def median_cost(costs):
    return Cost(*(statistics.median(getattr(c, f) for c in costs) for f in ("wall", "cpu", "peak")))


@contextlib.contextmanager
def copied(kind, path):
    """The file's content is on the clipboard under that target."""
    command = ["xclip", "-quiet", "-selection", "clipboard", "-t", kind, "-i", str(path)]
    owner = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    ask = ["xclip", "-selection", "clipboard", "-t", "TARGETS", "-o"]
    for _ in range(100):
        answer = subprocess.run(ask, capture_output=True, text=True)
        if kind in answer.stdout:
            break
        time.sleep(0.02)
    else:
        sys.exit("the clipboard could not be filled")
    try:
        yield owner
    finally:
        owner.send_signal(signal.SIGCONT)
        owner.terminate()
        owner.wait()


@contextlib.contextmanager
def stopped(process):
    process.send_signal(signal.SIGSTOP)
    yield
    process.send_signal(signal.SIGCONT)


def file_list(path):
    """A file with that path as text/uri-list has it."""
    result = WORK / f"list of {path.name}"
    result.write_text(f"file://{path}\r\n")
    return result


def certificates(own):
    """A folder of the system's certificates and this one, each named by its subject's hash."""
    folder = WORK / "certificates"
    folder.mkdir()
    for system in Path("/etc/ssl/certs").glob("*.[0-9]"):
        (folder / system.name).symlink_to(system.resolve())
    command = ["openssl", "x509", "-noout", "-subject_hash", "-in", own]
    name = subprocess.run(command, check=True, capture_output=True, text=True).stdout.strip()
    (folder / f"{name}.0").symlink_to(own)
    return folder


class Telegram:
    """A stand-in of Telegram, and the program set up for it."""

    def __init__(self, tls):
        self.folder = WORK / ("https" if tls else "http")
        self.folder.mkdir(parents=True)
        ready = self.folder / "ready"
        command = [BUILD / "sandbox/quillon-sandbox", "--group", "Bench", "--hi", "--no-hashes"]
        command += ["--ready-file", ready] + (["--tls"] if tls else [])
        self.process = subprocess.Popen(command, stdout=subprocess.DEVNULL)
        while not ready.exists():
            if self.process.poll() is not None:
                sys.exit("the sandbox did not start")
            time.sleep(0.02)
        self.facts = json.loads(ready.read_text())
        self.env = os.environ | {
            "QUILLON_BOT_API": self.facts["base_url"],
            "XDG_DATA_HOME": str(self.folder),
            "no_proxy": "127.0.0.1",
        }
        if tls:
            self.env["SSL_CERT_DIR"] = str(certificates(self.facts["ca_file"]))
        self.set_up()

    def set_up(self):
        token = self.folder / "token"
        token.write_text(self.facts["token"])
        with token.open() as stdin:
            run_measured([BUILD / "src/quillon", "connect"], self.env, stdin)
        for command in "find-group", "create-topics":
            run_measured([BUILD / "src/quillon", command], self.env)
        self.configure(showBanner=False, playSound=False)

    def configure(self, **settings):
        path = self.folder / "Quillon/config.json"
        path.write_text(json.dumps(json.loads(path.read_text()) | settings))

    def quillon(self):
        return run_measured([BUILD / "src/quillon", "send"], self.env)

    def curl(self, method, *options):
        """One curl process; the address holds the token and so is no argument."""
        config = self.folder / "curl"
        config.write_text(f'url = "{self.facts["base_url"]}/bot{self.facts["token"]}/{method}"\n')
        command = ["curl", "-sS", "--fail", "-H", "Expect:", "-K", str(config)]
        if self.facts["ca_file"]:
            command += ["--cacert", self.facts["ca_file"]]
        return run_measured([*command, *options], self.env)

    def curl_text(self):
        chat = self.facts["groups"][0]["id"]
        text = json.dumps({"chat_id": chat, "text": "<pre>short</pre>", "parse_mode": "HTML"})
        return self.curl("sendMessage", "-H", "Content-Type: application/json", "-d", text)

    def curl_file(self, path):
        chat = self.facts["groups"][0]["id"]
        return self.curl("sendDocument", "-F", f"chat_id={chat}", "-F", f"document=@{path}")

    def messages(self):
        """When each text message has begun to arrive, in ms since 1970."""
        with urllib.request.urlopen(self.facts["base_url"] + "/sandbox/requests") as answer:
            requests = json.load(answer)
        return [each["time_ms"] for each in requests if each["method"] == "sendMessage"]

    def stop(self):
        self.process.terminate()
        self.process.wait()
