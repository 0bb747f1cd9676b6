"""Measures the program just built and its peers side by side, and prints one table.

Run by tools/bench on a desktop of its own. Every figure is the median of several rounds in which the
program and its peer take turns. Ends with an error when something did not work; a missed aim is told
in the table and no error.
"""

import contextlib
import json
import os
import re
import signal
import statistics
import subprocess
import sys
import time
from dataclasses import dataclass
from pathlib import Path

BUILD = Path(sys.argv[1])
WORK = Path(os.environ["HOME"]) / "bench"
FILE_SIZE = 50_000_000  # bytes; the largest file that a bot may send
UPLOAD_ROUNDS = 9
TEXT_ROUNDS = 40
STALL_ROUNDS = 5
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


def run_measured(command, env=None, stdin=None):
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
            self.env["SSL_CERT_FILE"] = self.facts["ca_file"]
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

    def stop(self):
        self.process.terminate()
        self.process.wait()


# --- what is measured -----------------------------------------------------------------------------


def rules():
    """The micro-benchmarks, each the best of three: the machine's other work only adds."""
    command = [BUILD / "bench/bench_rules", "--benchmark_format=json", "--benchmark_repetitions=3"]
    output = subprocess.run(command, check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    runs = [run for run in json.loads(output.stdout)["benchmarks"] if run["run_type"] == "iteration"]
    for run in runs:
        if run.get("error_occurred"):
            sys.exit(f"{run['name']}: {run['error_message']}")

    def best(name, key, choose):
        return choose(run[key] for run in runs if run["run_name"] == name)

    for name in dict.fromkeys(run["run_name"] for run in runs if "messages/" in run["run_name"]):
        speed = best(name, "bytes_per_second", max) / MB
        aim = {"limit": 100, "least": True} if name.endswith("/mixed") else {}
        what = f"10 MB of {name.split('/')[1]} text to messages"
        yield Row(what, f"{speed:.0f} MB/s", value=speed, unit="MB/s", **aim)
    track = best("track/real_time", "real_time", min) / 1000
    yield Row("usage event into a full queue", f"{track:.3f} ms", "", track, 1, unit="ms")
    feed = best("feed/200 items", "real_time", min)
    yield Row("check of a feed with 200 items", f"{feed:.2f} ms")
    for name in "config", "history":
        yield Row(f"reading {name}.json", f"{best(name, 'real_time', min):.1f} µs")


def upload(telegram, name, file, tiny_file):
    costs = {key: [] for key in ("start", "send", "peer start", "peer")}
    for _ in range(UPLOAD_ROUNDS):
        for path, ours, theirs in (tiny_file, "start", "peer start"), (file, "send", "peer"):
            with copied("text/uri-list", file_list(path)):
                costs[ours].append(telegram.quillon())
            costs[theirs].append(telegram.curl_file(path))
    start, send, peer_start, peer = (median_cost(costs[key]) for key in costs)

    def times(what, key, limit):
        ours, theirs = getattr(send, key), getattr(peer, key)
        yield Row(f"{what} of a 50 MB file over {name}", f"{ours * 1000:.0f} ms",
                  f"curl -F {theirs * 1000:.0f} ms", ours / theirs)
        ours, theirs = ours - getattr(start, key), theirs - getattr(peer_start, key)
        yield Row("  less that of a tiny file", f"{ours * 1000:.0f} ms",
                  f"curl -F {theirs * 1000:.0f} ms", ours / theirs, limit)

    yield from times("wall", "wall", 1.5)
    yield from times("processor time", "cpu", 2)
    more = send.peak - start.peak
    yield Row(f"peak memory of it, {send.peak / MB:.0f} MB, less a tiny file's",
              f"{more / MB:.1f} MB", f"the file {FILE_SIZE / MB:.0f} MB", more / FILE_SIZE, 1.2)


def running_send(telegram, text):
    """Sends of the running program against curl processes, in turns of a few."""
    ours, theirs = [], []
    for _ in range(4):
        with copied("UTF8_STRING", text):
            command = [BUILD / "bench/bench_RunningSend", str(TEXT_ROUNDS // 4)]
            output = subprocess.run(command, check=True, env=telegram.env, capture_output=True)
            ours += map(float, output.stdout.split())
        theirs += [telegram.curl_text().wall * 1000 for _ in range(TEXT_ROUNDS // 4)]
    our, their = statistics.median(ours), statistics.median(theirs)
    yield Row("short text from the running program", f"{our:.2f} ms", f"curl -d {their:.2f} ms",
              our / their, 1)


def stalls(telegram, file, tiff, text):
    """The longest gaps of the window thread, with banners shown."""
    telegram.configure(showBanner=True)

    def gap(mode, expected):
        command = [BUILD / "bench/bench_Stalls", mode]
        output = subprocess.run(command, check=True, env=telegram.env, stdout=subprocess.PIPE)
        longest, own, items = output.stdout.split()
        if int(items) != expected:
            sys.exit(f"{int(items)} items were sent where {expected} should have been")
        return float(longest), float(own)

    cases = [
        ("sending a 50 MB file", "text/uri-list", file_list(file), False),
        ("sending a 4K TIFF picture", "image/tiff", tiff, False),
        ("a clipboard owner that hangs", "UTF8_STRING", text, True),
    ]
    gaps = {what: [] for what in ("idle", *(case[0] for case in cases), "first banner of a program")}
    for _ in range(STALL_ROUNDS):
        gaps["idle"].append(gap("idle", 0))
        gaps["first banner of a program"].append(gap("banner", 0))
        for what, kind, path, hangs in cases:
            with copied(kind, path) as owner:
                with stopped(owner) if hangs else contextlib.nullcontext():
                    gaps[what].append(gap("send", 0 if hangs else 1))
    medians = {what: [statistics.median(g) for g in zip(*found)] for what, found in gaps.items()}
    idle = medians.pop("idle")
    for what, (longest, own) in medians.items():
        yield Row(f"window thread's longest gap: {what}", f"{longest:.1f} ms",
                  f"idle {idle[0]:.1f} ms", longest, 16, unit="ms")
        yield Row("  the longest while it had a processor", f"{own:.1f} ms",
                  f"idle {idle[1]:.1f} ms", own, 16, unit="ms")


# --- all of it ------------------------------------------------------------------------------------


def file_list(path):
    """A file with that path as text/uri-list has it."""
    result = WORK / f"list of {path.name}"
    result.write_text(f"file://{path}\r\n")
    return result


def make_inputs():
    WORK.mkdir()
    file, tiny_file = WORK / "large.bin", WORK / "tiny.bin"
    with file.open("wb") as target:
        for _ in range(FILE_SIZE // 1_000_000):
            target.write(os.urandom(1_000_000))
    tiny_file.write_bytes(b"1")
    text, tiff = WORK / "text", WORK / "picture.tiff"
    text.write_text("short")
    subprocess.run(["convert", "-size", "3840x2160", "-seed", "7", "plasma:", tiff], check=True)
    return file, tiny_file, text, tiff


def start_compositor():
    pid_file = WORK / "picom"
    command = ["picom", "-b", "--config", "/dev/null", "--backend", "xrender"]
    subprocess.run([*command, "--write-pid-path", pid_file], check=True,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    return int(re.search(r"\d+", pid_file.read_text())[0])


def load():
    return " ".join(f"{average:.1f}" for average in os.getloadavg())


def main():
    file, tiny_file, text, tiff = make_inputs()
    compositor = start_compositor()
    print(f"{os.cpu_count()} processors, load {load()}; this takes some minutes", flush=True)
    rows, telegrams = [], []
    try:
        rows += rules()
        telegrams = [Telegram(tls=False), Telegram(tls=True)]
        for telegram, name in zip(telegrams, ("http", "https")):
            rows += upload(telegram, name, file, tiny_file)
        rows += running_send(telegrams[0], text)
        rows += stalls(telegrams[0], file, tiff, text)
    finally:
        for telegram in telegrams:
            telegram.stop()
        os.kill(compositor, signal.SIGTERM)
    print_table(rows)
    print(f"load {load()}")


if __name__ == "__main__":
    main()
