"""Measures the program just built and its peers side by side, and prints one table.

Run by tools/bench on a desktop of its own. Every figure is the median of several rounds in which the
program and its peer take turns. Ends with an error when something did not work; a missed aim is told
in the table and no error.
"""

import os
import re
import signal
import subprocess
from pathlib import Path

import commands
import sending
import staying
from harness import WORK, Telegram, print_table


def make_inputs():
    WORK.mkdir()
    file, tiny_file = WORK / "large.bin", WORK / "tiny.bin"
    with file.open("wb") as target:
        for _ in range(sending.FILE_SIZE // 1_000_000):
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


def huge_pages():
    """What the system does with large buffers, on which the cost of an upload depends much."""
    try:
        setting = Path("/sys/kernel/mm/transparent_hugepage/enabled").read_text()
        return re.search(r"\[(\w+)\]", setting)[1]
    except OSError:
        return "never"


def load():
    return " ".join(f"{average:.1f}" for average in os.getloadavg())


def main():
    file, tiny_file, text, tiff = make_inputs()
    compositor = start_compositor()
    print(f"{os.cpu_count()} processors, huge pages {huge_pages()}, load {load()}; "
          "this takes some minutes", flush=True)
    rows, telegrams = [], []
    try:
        rows += sending.rules()
        telegrams = [Telegram(tls=False), Telegram(tls=True)]
        for telegram, name in zip(telegrams, ("http", "https")):
            rows += sending.upload(telegram, name, file, tiny_file)
        plain = telegrams[0]
        rows += sending.first_https(*telegrams, text)
        rows += sending.running_send(plain, text)
        rows += sending.key_press(plain, text)
        rows += sending.stalls(plain, file, tiff, text)
        rows += staying.start(plain)
        rows += staying.panel(plain, text)
        rows += staying.quitting(plain)
        rows += commands.command_line(plain)
    finally:
        for telegram in telegrams:
            telegram.stop()
    try:
        rows += staying.idling(plain)
        rows += staying.sessions()
    finally:
        os.kill(compositor, signal.SIGTERM)
    print_table(rows)
    print(f"load {load()}")


if __name__ == "__main__":
    main()
