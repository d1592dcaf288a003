"""The table of endings: every state by every way to end the application, or to come near it. In each
cell the key goes up, the program is gone or ready to go on, and nothing is left of its guard.

Usage: endings_test.py QUORVEL VIRTUAL_KEYER [--lanes N] [STATE:ENDING...]
Either half of a cell may be "*". Without cells, all. Each lane has a desktop of its own; the cells
wait for the most part, so that there may be more lanes than processors.
"""

import argparse
import json
import pathlib
import queue
import subprocess
import sys
import threading

from endings_kinds import ENDINGS
from endings_states import LIMITED, STATES

LANE = pathlib.Path(__file__).parent / "endings_lane.py"
COLUMN = 18


def parse():
    parser = argparse.ArgumentParser()
    parser.add_argument("quorvel")
    parser.add_argument("keyer")
    parser.add_argument("--lanes", type=int, default=6)
    parser.add_argument("cells", nargs="*", default=["*:*"])
    return parser.parse_intermixed_args()


def chosen(patterns):
    def fits(pattern, state, ending):
        wanted_state, _, wanted_ending = pattern.partition(":")
        return wanted_state in ("*", state) and wanted_ending in ("*", ending)
    return [(state, ending) for ending in ENDINGS for state in STATES
            if ending in LIMITED.get(state, ENDINGS) and any(fits(each, state, ending) for each in patterns)]


def run_lane(arguments, waiting, found):
    """Takes a cell after the other from those that wait. A lane that ends answers no more."""
    command = [sys.executable, "-B", LANE, arguments.quorvel, arguments.keyer]
    with subprocess.Popen(command, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                          text=True) as lane:
        for cell in iter(waiting.get, None):
            print(":".join(cell), file=lane.stdin, flush=True)
            answer = lane.stdout.readline()
            if not answer:
                break
            found[cell] = json.loads(answer)


def run(arguments, cells, lane_count):
    """The cells that take longest come last in the table, and first here."""
    waiting, found = queue.SimpleQueue(), {}
    for cell in reversed(cells):
        waiting.put(cell)
    lanes = [threading.Thread(target=run_lane, args=(arguments, waiting, found))
             for _ in range(min(lane_count, len(cells)))]
    for lane in lanes:
        waiting.put(None)
        lane.start()
    for lane in lanes:
        lane.join()
    return found


def run_again(arguments, cells, found):
    """Those that were only late in leaving, one at a time: of the limit the keyer's rests take two
    thirds, and in company the rest is soon used up. When the key goes up is not tried twice."""
    late = [each for each in cells if found.get(each, {}).get("is only late")]
    if late:
        print("Late beside others, and tried again alone:")
        for cell in late:
            print(f"  {', '.join(cell)}: {found[cell]['time']:.1f} s")
        print(flush=True)
        found.update(run(arguments, late, 1))


def words(result):
    """A cell: seconds until the key is up; exit status and time, or that the program goes on."""
    if not result.get("is green"):
        return "FAIL"
    up = f"{result['key up']:.2f}"
    return f"{up} {result['status']}/{result['time']:.1f} s" if "status" in result else \
        f"{up} goes on"


def show(found, cells):
    states = [each for each in STATES if any(each == state for state, _ in cells)]
    endings = [each for each in ENDINGS if any(each == ending for _, ending in cells)]
    print("Seconds until the key is up; exit status and time, or that the program goes on.\n")
    print("".ljust(COLUMN) + "".join(each.ljust(COLUMN) for each in states))
    for ending in endings:
        row = [words(found.get((state, ending), {})) if (state, ending) in cells else ""
               for state in states]
        print(ending.ljust(COLUMN) + "".join(each.ljust(COLUMN) for each in row))
    print("\nWhat was written to the keyer from the ending on:\n")
    for cell in cells:
        print(f"{', '.join(cell)}: {found.get(cell, {}).get('bytes', '')}")
    for cell in cells:
        result = found.get(cell, {"log": "It was not run."})
        if "log" in result:
            print(f"\n== {', '.join(cell)}\n{result['log']}")


def main():
    arguments = parse()
    cells = chosen(arguments.cells)
    if not cells:
        print("There is no such cell.")
        return 2
    found = run(arguments, cells, arguments.lanes)
    run_again(arguments, cells, found)
    show(found, cells)
    green = sum(1 for each in cells if found.get(each, {}).get("is green"))
    print(f"\n{green} of {len(cells)} cells are green")
    return 0 if green == len(cells) else 1


if __name__ == "__main__":
    sys.exit(main())
