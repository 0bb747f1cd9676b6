"""The command line: what the shortest commands take, beside an empty program."""

import statistics
import subprocess

from harness import BUILD, Row, run_measured
from staying import Tray, end

COMMAND_ROUNDS = 40


def take_turns(telegram, commands):
    """The median of each command's milliseconds from its start to its end."""
    took = {name: [] for name in commands}
    for _ in range(COMMAND_ROUNDS):
        for name, command in commands.items():
            took[name].append(run_measured(command, telegram.env).wall * 1000)
    return {name: statistics.median(times) for name, times in took.items()}


def command_line(telegram):
    """With no program that stays, and then with one, which answers for the command."""
    quillon = BUILD / "src/quillon"
    empty, version, status = (
        [BUILD / "bench/bench_EmptyCommand"], [quillon, "--version"], [quillon, "status"])
    alone = take_turns(telegram, {"empty": empty, "version": version, "status": status})
    with Tray() as tray:
        resident = subprocess.Popen([quillon], env=telegram.env)
        tray.await_icon()
        handed_over = take_turns(telegram, {"empty": empty, "status": status})
        end(resident)

    def row(what, times, name, limit):
        ours, peer = times[name], times["empty"]
        return Row(what, f"{ours:.1f} ms", f"empty QCoreApplication {peer:.1f} ms", ours, limit,
                   unit="ms")

    yield row("quillon --version", alone, "version", 10)
    yield row("quillon status", alone, "status", 13)
    yield row("  by the program that stays", handed_over, "status", 13)
