"""What the program takes in the session at hand, X11's or a Wayland compositor's, as JSON.

Run by bench.py on a desktop of each kind: the start until the program has its name on the bus, memory
and context switches of one that nobody uses, and how long 50 MB take from the clipboard.
"""

import json
import os
import re
import statistics
import subprocess
import sys
import time
from pathlib import Path

from harness import BUILD, MB, WORK
from staying import SETTLING, activity, end

START_ROUNDS = 11
READ_ROUNDS = 5
WATCHING = 20  # seconds
CONTENT = 50_000_000  # bytes
KIND = "application/octet-stream"
WAYLAND = "WAYLAND_DISPLAY" in os.environ


def started():
    begin = time.monotonic()
    process = subprocess.Popen([BUILD / "src/quillon"])
    subprocess.run(["gdbus", "wait", "--session", "--timeout", "10", "dev.vostrel.quillon"], check=True)
    return process, (time.monotonic() - begin) * 1000


def start():
    took = []
    for _ in range(START_ROUNDS):
        process, milliseconds = started()
        took.append(milliseconds)
        time.sleep(0.3)
        end(process)
    return statistics.median(took)


def private_memory(process):
    """In MB: what the process shares with nobody. Of its share of the rest only root is told."""
    status = Path(f"/proc/{process.pid}/status").read_text()
    return int(re.search(r"^RssAnon:\s+(\d+) kB", status, re.MULTILINE)[1]) * 1024 / MB


def idle():
    process, _ = started()
    time.sleep(SETTLING)
    before, _ = activity(process)
    time.sleep(WATCHING)
    after, _ = activity(process)
    private = private_memory(process)
    end(process)
    return private, after - before


def reading():
    file = WORK / "content"
    file.write_bytes(bytes(CONTENT))
    copy, paste = (
        (["wl-copy", "--foreground", "--type", KIND], ["wl-paste", "--type", KIND]) if WAYLAND else
        (["xclip", "-quiet", "-selection", "clipboard", "-t", KIND],
         ["xclip", "-o", "-selection", "clipboard", "-t", KIND]))
    with file.open("rb") as content:
        owner = subprocess.Popen(copy, stdin=content)
    time.sleep(1)
    ours, peer = [], []
    for _ in range(READ_ROUNDS):
        command = [BUILD / "bench/bench_ReadClipboard", KIND]
        size, milliseconds = subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout.split()
        if int(size) != CONTENT:
            sys.exit(f"{int(size)} bytes were read where {CONTENT} should have been")
        ours.append(float(milliseconds))
        begin = time.monotonic()
        subprocess.run(paste, check=True, stdout=subprocess.DEVNULL)
        peer.append((time.monotonic() - begin) * 1000)
    owner.terminate()
    owner.wait()
    return statistics.median(ours), statistics.median(peer)


WORK.mkdir()
private, switches = idle()
ours, peer = reading()
print(json.dumps({"start": start(), "memory": private, "switches": switches, "reading": ours,
                  "peer reading": peer}))
