"""Prints what Quorvel costs beside what it may cost, and writes the same as JSON.

Arguments: the folder of the programs, that of the benchmarks, and the file for the JSON. Figures in
instructions are counted by valgrind, and the same on any machine, idle or busy; times and shares of
a processor stand beside what the machine itself does at that moment."""

import contextlib
import json
import os
import pathlib
import pty
import select
import signal
import subprocess
import sys
import tempfile
import time
import tty

PROGRAMS, BENCHMARKS = (pathlib.Path(each).resolve() for each in sys.argv[1:3])
RESULT = pathlib.Path(sys.argv[3])
PATIENCE = 120
IDLE_SECONDS = 10
PORT = "line"
# The echo that was asked for, the version, where the pot stands, and that it is idle.
ANSWER = b"\x55\x17\x80\xc0"


def run(name, *arguments):
    """What a benchmark prints, as numbers by name."""
    done = subprocess.run([BENCHMARKS / name, *map(str, arguments)], text=True, check=True,
                          stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    return {name: float(value) for name, value in map(str.split, done.stdout.splitlines())}


def total_of(profile):
    totals = [line for line in profile.read_text().splitlines()
              if line.startswith(("totals:", "summary:"))]
    return int(totals[0].split()[1])


def instructions(directory, command):
    profile = directory / f"profile.{command[-1]}"
    subprocess.run(["valgrind", "--tool=callgrind", f"--callgrind-out-file={profile}",
                    *map(str, command)], check=True, stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL)
    return total_of(profile)


def of_a_character(directory):
    """What 200 characters more take; the start of the program counts in neither run."""
    program = BENCHMARKS / "bench-sent-character"
    more, fewer = (instructions(directory, [program, count]) for count in (250, 50))
    return (more - fewer) / 200


class Program:
    """Quorvel, on a screen and a bus of its own, with a pseudo-terminal for its keyer."""

    def __init__(self, directory, has_port, tool=()):
        self._open = contextlib.ExitStack()
        home = pathlib.Path(tempfile.mkdtemp(dir=directory))
        runtime = home / "runtime"
        ports = runtime / "quorvel/ports"
        for each in (runtime, runtime / "quorvel", ports):
            each.mkdir(mode=0o700)
        self.keyer, self._host = pty.openpty()
        tty.setraw(self._host)
        settings = home / "config/quorvel/quorvel.conf"
        settings.parent.mkdir(parents=True)
        settings.write_text(f"[General]\nWKPortName={PORT if has_port else 'None'}\n")
        os.symlink(os.ttyname(self._host), ports / PORT)
        environment = {name: value for name, value in os.environ.items()
                       if not name.startswith(("QT_", "XDG_", "DBUS_"))}
        environment.update(HOME=str(home), XDG_RUNTIME_DIR=str(runtime),
                           XDG_CONFIG_HOME=str(home / "config"),
                           XDG_STATE_HOME=str(home / "state"))
        read, write = os.pipe()
        self._start(["Xvfb", "-displayfd", str(write), "-screen", "0", "1280x960x24", "-nolisten",
                     "tcp"], environment, pass_fds=(write,))
        os.close(write)
        with open(read, encoding="ascii") as pipe:
            environment["DISPLAY"] = ":" + pipe.readline().strip()
        self.started = time.monotonic()
        self._process = self._start([*tool, PROGRAMS / "quorvel"], environment)
        self.pid = self._process.pid

    def _start(self, command, environment, pass_fds=()):
        process = subprocess.Popen(command, env=environment, pass_fds=pass_fds,
                                   stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL)
        self._open.callback(self._end, process)
        return process

    @staticmethod
    def _end(process):
        process.send_signal(signal.SIGTERM)
        try:
            process.wait(PATIENCE)
        except subprocess.TimeoutExpired:
            process.kill()

    def __enter__(self):
        return self

    def __exit__(self, *failure):
        self._open.close()
        os.close(self.keyer)
        os.close(self._host)

    def first_byte(self):
        """When it came, in milliseconds from the start of the process."""
        assert select.select([self.keyer], [], [], PATIENCE)[0], "Nothing was sent"
        return (time.monotonic() - self.started) * 1000

    def drain(self):
        while select.select([self.keyer], [], [], 0.5)[0]:
            os.read(self.keyer, 1000)

    def answer(self):
        """As a keyer answers a greeting: one that is silent is greeted again every few seconds."""
        os.write(self.keyer, ANSWER)

    def proportional_set_size(self):
        """In MiB."""
        lines = pathlib.Path(f"/proc/{self.pid}/smaps_rollup").read_text().splitlines()
        return next(int(line.split()[1]) for line in lines if line.startswith("Pss:")) / 1024

    def _switches_and_ticks(self):
        switches = sum(int(line.split()[1])
                       for task in pathlib.Path(f"/proc/{self.pid}/task").iterdir()
                       for line in (task / "status").read_text().splitlines()
                       if "ctxt_switches" in line)
        fields = pathlib.Path(f"/proc/{self.pid}/stat").read_text().rpartition(")")[2].split()
        return switches, int(fields[11]) + int(fields[12])

    def idle(self):
        """Switches a second, and the share of a processor in percent."""
        before = self._switches_and_ticks()
        time.sleep(IDLE_SECONDS)
        after = self._switches_and_ticks()
        switches, ticks = (later - earlier for later, earlier in zip(after, before))
        return switches / IDLE_SECONDS, 100 * ticks / os.sysconf("SC_CLK_TCK") / IDLE_SECONDS


def median(numbers):
    return sorted(numbers)[len(numbers) // 2]


def start_and_idle(directory):
    times = []
    for _ in range(5):
        with Program(directory, True) as program:
            times.append(program.first_byte())
    with Program(directory, True) as program:
        program.first_byte()
        program.drain()
        program.answer()
        time.sleep(3)
        size = program.proportional_set_size()
        switches, share = program.idle()
    with Program(directory, False) as program:
        time.sleep(3)
        unlinked, _ = program.idle()
    return [("start to the first byte, ms", median(times), 45),
            ("PSS, MiB", size, 16),
            ("idle on a pseudo-terminal, % of a core", share, 0.8),
            ("idle on a pseudo-terminal, switches/s", switches, 220),
            ("idle, not connected, switches/s", unlinked, 1)]


def instructions_to_start(directory):
    profile = directory / "start"
    tool = ["valgrind", "--tool=callgrind", f"--callgrind-out-file={profile}"]
    with Program(directory, True, tool) as program:
        program.first_byte()
        program.drain()
        time.sleep(3)
        subprocess.run(["callgrind_control", "--dump=start", str(program.pid)], check=True,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    return total_of(profile.with_name("start.1"))


def rows(directory):
    ideal = run("bench-ideal-host")["ideal_ms"]
    yield "an ideal host's answer to an echo, ms", ideal, None
    for length, most in ((100_000, 50), (1_000_000, 400)):
        paste = run("bench-paste", length)
        yield f"paste of {length} characters until the window reacts, ms", paste["paste_ms"], most
        yield f"key with {length} characters in the text, ms", paste["key_ms"], 20
        yield f"stop with {length} characters waiting, ms", paste["stop_ms"], 20
    yield "memory kept after a million is cleared, MiB", paste["kept_kib"] / 1024, 2
    words = run("bench-paste", 1_000_000, "PARIS")
    yield "paste of a million without spaces, ms", words["paste_ms"], 400
    yield "a sent character, million instructions", of_a_character(directory) / 1e6, 0.5
    yield "instructions to start, million", instructions_to_start(directory) / 1e6, 110
    yield from start_and_idle(directory)


def main():
    table = []
    print(f"{'':62} {'is':>9} {'goal':>7}")
    with tempfile.TemporaryDirectory(prefix="quorvel-bench.") as directory:
        for name, value, goal in rows(pathlib.Path(directory)):
            print(f"{name:62} {value:9.2f} {'' if goal is None else goal:>7}", flush=True)
            table.append({"figure": name, "value": value, "goal": goal})
    RESULT.write_text(json.dumps(table, indent=1) + "\n")


main()
