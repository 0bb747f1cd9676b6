"""The rules and the roads of a send: to messages, to Telegram, from the press of the shortcut."""

import contextlib
import json
import os
import statistics
import subprocess
import sys
import time

from harness import BUILD, MB, Row, copied, file_list, median_cost, stopped

FILE_SIZE = 50_000_000  # bytes; the largest file that a bot may send
UPLOAD_ROUNDS = 9
TEXT_ROUNDS = 40
STALL_ROUNDS = 5
KEY_ROUNDS = 40


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

    yield from times("wall", "wall", 1.35)
    yield from times("processor time", "cpu", 1.5)
    more = send.peak - start.peak
    yield Row(f"peak memory of it, {send.peak / MB:.0f} MB, less a tiny file's",
              f"{more / MB:.1f} MB", f"the file {FILE_SIZE / MB:.0f} MB", more / FILE_SIZE, 1.2)


def first_https(plain, secure, text):
    """What TLS takes of the processor at a process's first request, which reads certificates."""
    costs = {key: [] for key in ("http", "https", "peer http", "peer https")}
    for _ in range(UPLOAD_ROUNDS):
        for telegram, key in (plain, "http"), (secure, "https"):
            with copied("UTF8_STRING", text):
                costs[key].append(telegram.quillon())
            costs[f"peer {key}"].append(telegram.curl_text())
    cpu = {key: median_cost(found).cpu * 1000 for key, found in costs.items()}
    ours, theirs = cpu["https"] - cpu["http"], cpu["peer https"] - cpu["peer http"]
    yield Row("processor time of a first https request over http", f"{ours:.1f} ms",
              f"curl --cacert {theirs:.1f} ms", ours - theirs, 5, unit="ms")


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


def await_message(telegram, count):
    """The times of all messages, once there are as many; none when there are not after a while."""
    deadline = time.monotonic() + 5
    while time.monotonic() < deadline:
        times = telegram.messages()
        if len(times) >= count:
            return times
        time.sleep(0.01)
    return None


def key_press(telegram, text):
    """From the press of the shortcut to the request's beginning at the other end."""
    before = len(telegram.messages())
    program = subprocess.Popen([BUILD / "src/quillon"], env=telegram.env)
    keyboard = subprocess.Popen([BUILD / "bench/bench_PressKey"], text=True, bufsize=1,
                                stdin=subprocess.PIPE, stdout=subprocess.PIPE)

    def press():
        keyboard.stdin.write("\n")
        return float(keyboard.stdout.readline())

    took = []
    try:
        with copied("UTF8_STRING", text):
            # The first that is heard goes before and opens the connection.
            for _ in range(10):
                press()
                if await_message(telegram, before + 1):
                    break
            time.sleep(0.5)
            for _ in range(KEY_ROUNDS):
                before = len(telegram.messages())
                pressed = press()
                times = await_message(telegram, before + 1)
                if not times:
                    sys.exit("a press of the shortcut sent nothing")
                took.append(times[-1] - pressed)
                time.sleep(0.05)
    finally:
        keyboard.stdin.close()
        keyboard.wait()
        program.terminate()
        if program.wait() != 0:
            sys.exit("the resident program did not end well")
    median = statistics.median(took)
    yield Row("shortcut to the first byte at the other end", f"{median:.2f} ms", "", median, 15,
              unit="ms")
    yield Row("  the slowest of it", f"{max(took):.2f} ms")


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
