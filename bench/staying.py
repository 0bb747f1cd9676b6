"""The program as it stays: its start, its memory, how it idles, its panel and its end."""

import json
import os
import re
import select
import shutil
import signal
import statistics
import subprocess
import sys
import time
from pathlib import Path

from harness import BUILD, MB, WORK, Row, copied

START_ROUNDS = 15
PANEL_ROUNDS = 5
QUIT_ROUNDS = 15
SETTLING = 40  # seconds; longer than Qt keeps threads that have nothing to do
WATCHING = 60  # seconds


class Tray:
    """A tray with room for one icon, as long as the context lasts."""

    def __enter__(self):
        self.process = subprocess.Popen([BUILD / "bench/bench_TrayHost"], text=True, bufsize=1,
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        if self.process.stdout.readline() != "ready\n":
            sys.exit("there is no tray")
        return self

    def __exit__(self, *_):
        self.process.stdin.close()
        self.process.wait()

    def await_icon(self):
        """When the icon asked for its place, in seconds of the monotonic clock."""
        if not select.select([self.process.stdout], [], [], 10)[0]:
            sys.exit("no icon came to the tray")
        return float(self.process.stdout.readline()) / 1000

    def click(self):
        self.process.stdin.write("\n")


def end(process, expected=0):
    process.terminate()
    if process.wait() != expected:
        sys.exit(f"{process.args[0]} ended with {process.returncode}")


def start(telegram):
    """From the start of the process to its icon in the tray."""
    commands = {BUILD / "src/quillon": 0, BUILD / "bench/bench_EmptyTray": -signal.SIGTERM}
    took = {command: [] for command in commands}
    with Tray() as tray:
        for _ in range(START_ROUNDS):
            for command, status in commands.items():
                begin = time.monotonic()
                process = subprocess.Popen([command], env=telegram.env)
                took[command].append((tray.await_icon() - begin) * 1000)
                time.sleep(0.2)
                end(process, status)
    ours, peer = (statistics.median(times) for times in took.values())
    yield Row("start to the icon in the tray", f"{ours:.0f} ms", f"empty {peer:.0f} ms",
              ours / peer, 1.5)


def linked_libraries(program):
    """How many libraries the dynamic linker maps before the program's own code runs."""
    listed = subprocess.run(["ldd", program], check=True, capture_output=True, text=True).stdout
    return len(listed.splitlines())


def mapped_libraries(process):
    maps = Path(f"/proc/{process.pid}/maps").read_text()
    return len(set(re.findall(r"/\S+\.so(?:\.\S+)?$", maps, re.MULTILINE)))


def threads(process):
    return len(list(Path(f"/proc/{process.pid}/task").iterdir()))


def memory(process):
    """The process's share of the memory (PSS), in bytes."""
    rollup = Path(f"/proc/{process.pid}/smaps_rollup").read_text()
    return int(re.search(r"^Pss:\s+(\d+) kB", rollup, re.MULTILINE)[1]) * 1024


def activity(process):
    """The context switches of all threads so far, and their processor time in ms."""
    switches = nanoseconds = 0
    for task in Path(f"/proc/{process.pid}/task").iterdir():
        counts = re.findall(r"ctxt_switches:\s+(\d+)", (task / "status").read_text())
        switches += sum(map(int, counts))
        nanoseconds += int((task / "schedstat").read_text().split()[0])
    return switches, nanoseconds / 1e6


def windows():
    """How many windows the program shows, its icon included."""
    command = ["xdotool", "search", "--onlyvisible", "--class", "^quillon$"]
    return len(subprocess.run(command, capture_output=True, text=True).stdout.split())


def await_windows(count):
    for _ in range(200):
        if windows() == count:
            return
        time.sleep(0.02)
    sys.exit(f"{windows()} windows are shown where {count} should be")


def idling(telegram):
    """Memory and activity of the program that nobody uses, before and after its panel was open.

    To be called when no other program of ours runs, for they would share pages.
    """
    with Tray() as tray:
        peer = subprocess.Popen([BUILD / "bench/bench_EmptyTray"])
        tray.await_icon()
        time.sleep(2)
        empty, empty_libraries, empty_threads = (
            look(peer) for look in (memory, mapped_libraries, threads))
        end(peer, -signal.SIGTERM)

        process = subprocess.Popen([BUILD / "src/quillon"], env=telegram.env)
        tray.await_icon()
        time.sleep(SETTLING)
        closed, libraries, idle_threads = (
            look(process) for look in (memory, mapped_libraries, threads))
        switches, busy = activity(process)
        time.sleep(WATCHING)
        switches, busy = (now - before for now, before in zip(activity(process), (switches, busy)))
        shown = windows()
        for count in shown + 1, shown:
            tray.click()
            await_windows(count)
            time.sleep(2)
        used = memory(process)
        end(process)
    beside = f"empty {empty / MB:.1f} MB"
    yield Row("idle memory (PSS)", f"{closed / MB:.1f} MB", beside, closed / MB, 25, unit="MB")
    yield Row("  after the panel was open", f"{used / MB:.1f} MB", beside, used / MB, 36, unit="MB")
    linked, empty_linked = map(linked_libraries, (process.args[0], peer.args[0]))
    yield Row("libraries mapped at the start", str(linked), f"empty {empty_linked}", linked, 60,
              unit="")
    yield Row("  when idle", str(libraries), f"empty {empty_libraries}")
    yield Row("threads when idle", str(idle_threads), f"empty {empty_threads}", idle_threads, 4,
              unit="")
    yield Row("context switches in an idle minute", str(switches), "", switches, 3, unit="")
    yield Row("processor time in it", f"{busy:.2f} ms", "", round(busy, 2), 0, unit="ms")


def make_picture():
    """A picture of 30 MB that cannot be made smaller."""
    raw, picture = WORK / "noise.rgb", WORK / "noise.png"
    side = 3162  # pixels of 3 bytes
    raw.write_bytes(os.urandom(side * side * 3))
    command = ["convert", "-size", f"{side}x{side}", "-depth", "8", raw, "-quality", "1", picture]
    subprocess.run(command, check=True)
    return picture


def panel(telegram, text):
    """Opening the panel, and what it takes while it is open and a large picture is copied."""
    def watch(program, content):
        program.stdin.write("\n")
        busiest, shown = float(program.stdout.readline()), program.stdout.readline()
        if content not in shown:
            sys.exit(f"the panel says {shown}")
        return busiest

    picture = make_picture()
    firsts, agains, quiet, reading = [], [], [], []
    for _ in range(PANEL_ROUNDS):
        with copied("UTF8_STRING", text):
            program = subprocess.Popen([BUILD / "bench/bench_Panel"], env=telegram.env, text=True,
                                       bufsize=1, stdin=subprocess.PIPE, stdout=subprocess.PIPE)
            firsts.append(float(program.stdout.readline()))
            agains.append(float(program.stdout.readline()))
            quiet.append(watch(program, "short"))
        with copied("image/png", picture):
            reading.append(watch(program, "Image"))
            program.stdin.close()
            if program.wait() != 0:
                sys.exit("the panel did not stay open")
    first, again, quiet, reading = map(statistics.median, (firsts, agains, quiet, reading))
    yield Row("panel's first frame, first time", f"{first:.1f} ms", "", first, 50, unit="ms")
    yield Row("  once more", f"{again:.1f} ms", "", again, 50, unit="ms")
    yield Row("a second of the open panel, window thread", f"{quiet:.2f} ms")
    yield Row("  in which a 30 MB picture is copied", f"{reading:.2f} ms", "", reading, 5,
              unit="ms")


def time_to_quit(env):
    """Starts the resident program, ends it, and gives the milliseconds from the signal to its end."""
    home = Path(env["XDG_DATA_HOME"])
    events = home / "Quillon/events.json"
    with open(WORK / "output", "w+b") as output:
        process = subprocess.Popen([BUILD / "src/quillon"], env=env, stdout=output, stderr=output)
        deadline = time.monotonic() + 10
        while not (events.exists() and "daily_active" in events.read_text()):
            if process.poll() is not None or time.monotonic() > deadline:
                process.kill()
                output.seek(0)
                sys.exit(f"the program did not start: {output.read().decode(errors='replace')}")
            time.sleep(0.02)
        time.sleep(0.2)  # the rest of its start is not measured
        ended = os.pidfd_open(process.pid)
        start = time.monotonic()
        process.terminate()
        select.select([ended], [], [], 10)
        milliseconds = (time.monotonic() - start) * 1000
        os.close(ended)
        if process.poll() != 0:
            process.kill()
            sys.exit(f"the program did not quit well: {process.returncode}")
    left = json.loads(events.read_text())
    shutil.rmtree(home)
    return milliseconds, len(left)


def quitting(telegram):
    """The running program's end: with nothing to deliver, and with two events for the server."""
    address = telegram.facts["base_url"]
    environment = os.environ | {"QUILLON_BOT_API": address, "no_proxy": "127.0.0.1"}
    events_left = {"": 2, address: 0}  # by the makers' server
    times = {server: [] for server in events_left}
    for count in range(QUIT_ROUNDS):
        for server, expected in events_left.items():
            home = WORK / f"quit {count} {bool(server)}"
            changes = {"XDG_DATA_HOME": str(home), "XDG_CONFIG_HOME": str(home / "config")}
            taken, left = time_to_quit(environment | changes | {"QUILLON_SERVER": server})
            if left != expected:
                sys.exit(f"{left} events were left where {expected} should have been")
            times[server].append(taken)
    idle, delivering = (statistics.median(taken) for taken in times.values())
    yield Row("quitting with nothing to deliver", f"{idle:.0f} ms", "", idle, 100, unit="ms")
    yield Row("  with two events to deliver", f"{delivering:.0f} ms")


def sessions():
    """The same measured on X11 and on sway, each on a desktop of its own."""
    found = {}
    for kind in "x11", "sway":
        command = ["tools/private-desktop", sys.executable, "bench/session.py", str(BUILD)]
        output = subprocess.run(command, env=os.environ | {"SESSION": kind}, check=True,
                                stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout
        found[kind] = json.loads(output)
    x11, sway = found["x11"], found["sway"]
    for what, key, unit in (("start to the name on the bus", "start", "ms"),
                            ("idle memory of its own", "memory", "MB"),
                            ("context switches in 20 idle seconds", "switches", "")):
        yield Row(f"on sway: {what}", f"{sway[key]:.1f} {unit}", f"X11 {x11[key]:.1f} {unit}")
    for name, figures, peer in ("sway", sway, "wl-paste"), ("X11", x11, "xclip"):
        ours, theirs = figures["reading"], figures["peer reading"]
        yield Row(f"50 MB from the clipboard of {name}", f"{ours:.0f} ms", f"{peer} {theirs:.0f} ms",
                  ours / theirs)
