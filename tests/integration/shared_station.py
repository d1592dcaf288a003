"""What those who share a keyer run on, and what the record says of them."""

import collections
import csv
import itertools

from logger_station import LoggerStationTest, free_port
from sent_record import SentRecordTest
from traffic_station import TrafficStation

COLUMNS = "text, rest, source, source_number, name, ending, wpm"
SENT, STOPPED, BROKEN_IN, LINK_LOST = range(4)

Run = collections.namedtuple("Run", "text rest source number name ending wpm")


def joined(runs):
    return "".join(each.text.replace(" ", "") for each in runs)


def readings(runs):
    """What the keyer may have keyed where the record says that. What it tells takes a while to be
    heard: where it is stopped, the letter that counts as under way may not have been begun, or be
    through, and the next one be out."""
    ways = [[text] if each.ending == SENT else [text[:-1], text, text + joined_rest(each)[:1]]
            for each in runs for text in [joined([each])]]
    return ["".join(each) for each in itertools.product(*ways)]


def joined_rest(run):
    return run.rest.replace(" ", "")


def matches(items, runs, may_drop):
    """Whether the runs are made of those items, in their order, and each item's sender was told the
    truth. `may_drop` says whether an item may be in none of them."""
    def fits(item, run, offset):
        whole, end = joined([run]) + joined_rest(run), offset + len(item.text)
        if not whole.startswith(item.text, offset):
            return False
        if run.source == 1 and run.number != item.message:
            return False
        # The last letter may be out before that is known.
        is_unsure = run.ending != SENT and end == len(joined([run]))
        return item.is_keyed is None or is_unsure or item.is_keyed == (end <= len(joined([run])))

    def match(at, number, offset):
        if number < len(runs) and offset == len(joined([runs[number]]) + joined_rest(runs[number])):
            return match(at, number + 1, 0)
        if at == len(items):
            return number == len(runs)
        item = items[at]
        is_next = number < len(runs) and fits(item, runs[number], offset)
        if is_next and match(at + 1, number, offset + len(item.text)):
            return True
        return may_drop and not item.is_keyed and match(at + 1, number, offset)
    return match(0, 0, 0)


class SharedStation(TrafficStation, LoggerStationTest, SentRecordTest):
    # A busy machine is late with the release of a key, which the screen would repeat meanwhile.
    repeat_delay = "60000"

    def start_shared(self, port=None):
        self.port = port or free_port()
        self.start_traffic(f"AcceptLoggers=true\nLoggerPort={self.port}\n")
        self.wait_for_status(self.quorvel, self.window, f"Loggers: port {self.port}")
        self._seen = 0

    def come_to_the_front(self):
        self.desktop.xdotool("windowactivate", "--sync", self.window_number)
        self.wait_for_window()
        self.desktop.press("ctrl+m")

    def new_runs(self):
        """Those that are new since take_runs(), in the order in which they began."""
        rows = [Run(*each) for each in self.rows(COLUMNS, "begun, number")]
        return rows[self._seen:]

    def take_runs(self):
        self._seen += len(self.new_runs())

    def heard(self):
        """What the keyer has echoed of all that was sent since take()."""
        return self.echoed().replace(" ", "")

    def expect_window_and_table(self):
        """Both say what the file says."""
        runs = [Run(*each) for each in self.rows(COLUMNS)]
        window = self.open_window(self.quorvel)
        self.wait("the count", lambda: any(
            each.name() == f"{len(runs):,} sent" for each in self.sent_window(self.quorvel).children()))
        newest = [each.text for each in reversed(runs)]
        self.wait("the newest runs", lambda: self._shows(newest))
        target = self.home / "sent.csv"
        self.desktop.click(window.find("Save as CSV…"))
        self.wait("the dialog", lambda: self.desktop.active_title().startswith("Save as CSV"))
        self.desktop.press("ctrl+a")
        self.desktop.type(str(target))
        self.desktop.press("Return")
        self.wait("the file", target.exists)
        with open(target, encoding="utf-8", newline="") as file:
            lines = list(csv.reader(file))[1:]
        self.assertEqual([each[1:] for each in lines], [self._told(each) for each in runs])

    def _shows(self, newest):
        shown = [each[1] for each in self.lines(self.quorvel)]
        return shown and all(shown) and shown == newest[:len(shown)]

    def _told(self, run):
        logger = f"Logger {run.name}" if run.name else f"Logger, port {run.number}"
        who = {0: "Typed", 1: f"F{run.number} {run.name}", 4: logger}[run.source]
        ending = ["Sent", f"Stopped at character {len(run.text)}",
                  f"Broken in on at character {len(run.text)}",
                  f"Link lost at character {len(run.text)}"][run.ending]
        return [run.text, f"{run.wpm} WPM", who, ending]
