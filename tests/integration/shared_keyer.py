"""The operator and loggers share one keyer, for so many seconds: what each has sent is keyed whole or
answered with "break", and the record says all of it.

Usage: shared_keyer.py QUORVEL VIRTUAL_KEYER SECONDS [SEED] [--loggers]

Without --loggers there are the operator, quorvel-send and bare datagrams; with it Tlf and Xlog, too.
"""

import collections
import random
import sys
import time
import unittest

from program import PLUGGED_IN, SPEED, UNPLUGGED
from shared_senders import LABELS, LOGGER, MESSAGE, Contester, Datagrams, Hobbyist, Script, Typist
from shared_station import BROKEN_IN, LINK_LOST, SENT, STOPPED, SharedStation, joined, matches, readings
from tlf import ESCAPE
from waiting import wait_for
from xlog import PORT as XLOG_PORT

OPTIONS = [each for each in sys.argv[3:] if each.startswith("--")]
SECONDS, *SEEDS = [int(each) for each in sys.argv[3:] if not each.startswith("--")]
HAS_LOGGERS = "--loggers" in OPTIONS
SEED = SEEDS[0] if SEEDS else random.randrange(1 << 32)
# Of a round, in seconds: a hundred letters, slowly, on a busy machine.
PATIENCE = 180
# Letters that are with the keyer at a time, at most.
MOST_WITH_KEYER = 3
# What the paddle keys by itself.
PADDLED = "EISH5TMO0"


class SharedKeyer(SharedStation):
    def runTest(self):
        print(f"seed {SEED}", flush=True)
        self.random = random.Random(SEED)
        self.counts, self.fates = collections.Counter(), collections.Counter()
        self._begin()
        end, letters = time.monotonic() + SECONDS, 0
        while time.monotonic() < end:
            name = self.random.choice(self._kinds())
            self.counts[name] += 1
            try:
                getattr(self, name)()
            except BaseException:
                print(f"in {name}, after {dict(self.counts)}\n{self._story()}\n{self.describe()}",
                      flush=True)
                raise
        letters = len(joined(self.new_runs())) + self._letters
        self.expect_window_and_table()
        self.assertEqual(self.quorvel.end(), 0)
        self._tell(letters)

    def _begin(self):
        self.start_shared(XLOG_PORT if HAS_LOGGERS else None)
        self._speed, self._letters = SPEED, 0
        self.typist, self.datagrams = Typist(self, self.random), Datagrams(self, self.random)
        self.senders = [self.typist, self.datagrams, Script(self, self.random)]
        if HAS_LOGGERS:
            self.tlf, self.xlog = Contester(self, self.random), Hobbyist(self, self.random)
            self.senders += [self.tlf, self.xlog]
            self.come_to_the_front()
        self._choose_speed()

    def _kinds(self):
        kinds = [each for each in vars(SharedKeyer) if each.startswith("do_")]
        return kinds if HAS_LOGGERS else [each for each in kinds if each not in (
            "do_stop_of_tlf", "do_stop_of_xlog", "do_contact")]

    def _tell(self, letters):
        rounds = ", ".join(f"{count} {name.removeprefix('do_').replace('_', ' ')}"
                           for name, count in sorted(self.counts.items()))
        fates = ", ".join(f"{count} {name}" for name, count in sorted(self.fates.items()))
        print(f"{letters} letters keyed, and all in the record: {rounds}; {fates}", flush=True)

    def _story(self):
        """For whoever reads a failure."""
        wire = " ".join(f"{to[0]}{byte:02x}" for _, to, byte in self._wire()[-60:])
        sent = "\n".join(f"{each.name}: {[(item.text, item.is_keyed) for item in each.items]}"
                         for each in self.senders)
        return f"{wire}\n{sent}\n" + "\n".join(map(str, self.new_runs()))

    def _wire(self):
        lines = (each.split() for each in self.bytes_log.read_text().splitlines())
        return [(float(at), to, int(byte, 16)) for at, to, byte in lines]

    # What each round begins and ends with.

    def _choose_speed(self):
        """By a logger, or by the operator."""
        if self.random.random() < 0.3:
            self.desktop.press("ctrl+0")
            self._speed = SPEED
            self.wait("the knob's speed", lambda: self._shown_speed() == f"{SPEED} WPM")
        else:
            self._speed = self.random.randint(45, 60)
            self.datagrams.tell(f"\x1b2{self._speed}")
            self.wait_for_set_speed(self.quorvel, self.window, self._speed)

    def _shown_speed(self):
        return self.window.find("Speed").description()

    def _begin_round(self):
        if self.random.random() < 0.2:
            self._choose_speed()
        self._letters += len(joined(self.new_runs()))
        self.take()
        self.take_runs()
        for each in self.senders:
            each.begin()

    def _mix(self, most=6):
        """Several send, one on top of the other."""
        for _ in range(self.random.randint(2, most)):
            self.random.choice(self.senders).send()

    def _sent(self):
        return "".join(item.text for each in self.senders for item in each.items)

    def _wait_for_answers(self):
        for each in self.senders:
            wait_for(f"answers to {each.name}", each.hear, PATIENCE)

    def _expect_all(self):
        count = len(self._sent())
        wait_for(f"{count} letters", lambda: len(self.heard()) >= count, PATIENCE)
        self._expect({each: False for each in self.senders})
        self.assertTrue(all(each.ending == SENT for each in self.new_runs()))

    def _expect(self, droppable, ending=SENT, is_paddled=False):
        """What was keyed is what the record says, and that is what was sent, but for what was dropped.
        `ending` is that of the runs that were cut short."""
        self.rest()
        self._wait_for_answers()
        self.rest()
        heard, keyed = self.heard(), self.keyed()
        if ending == LINK_LOST:
            heard, keyed = self._without_what_is_not_known(heard, keyed)
        self._wait_for_runs(heard)
        runs = self.new_runs()
        cut = [each for each in runs if each.ending != SENT]
        self.assertTrue(all(each.ending == ending for each in cut), (runs, ending))
        self._expect_keyed(keyed, heard, readings(runs), is_paddled)
        self.assertTrue(all(each.wpm == self._speed for each in runs), (runs, self._speed))
        self.assertTrue(all(each.ending != SENT or not each.rest for each in runs), runs)
        for sender in self.senders:
            his = [each for each in runs if sender.owns(each)]
            self.assertTrue(matches(sender.items, his, droppable[sender]),
                            (sender.name, [(each.text, each.is_keyed) for each in sender.items], his))
            runs = [each for each in runs if each not in his]
            self._count(sender, his)
        self.assertEqual(runs, [])

    def _without_what_is_not_known(self, heard, keyed):
        """A keyer whose cable was pulled keys what it was given before, and nobody hears of it."""
        recorded = wait_for("the runs", lambda: [
            each for each in readings(self.new_runs()) if heard.startswith(each)])
        longest = max(recorded, key=len)
        self.assertLessEqual(len(heard) - len(longest), MOST_WITH_KEYER, (heard, longest))
        self.assertLessEqual(abs(len(keyed) - len(heard)), 1, (keyed, heard))
        return longest, keyed[:len(longest)]

    def _wait_for_runs(self, heard):
        try:
            wait_for("the runs", lambda: heard in readings(self.new_runs()))
        except AssertionError:
            self.assertIn(heard, readings(self.new_runs()))

    def _expect_keyed(self, keyed, heard, recorded, is_paddled):
        if is_paddled:
            # What the paddle keys behind a letter at once is read as a part of it.
            self.assertTrue(keyed.startswith(heard[:-1]), (keyed, heard))
            self.assertTrue(set(keyed[len(heard) + 1:]) <= set(PADDLED), (keyed, heard))
        else:
            self.assertIn(keyed, recorded)

    def _count(self, sender, runs):
        for each in sender.items:
            if each.is_keyed is not None:
                self.fates["answered" if each.is_keyed else "broken off"] += 1
        for each in runs:
            self.fates[f"runs of {sender.name}"] += 1
            if each.source == LOGGER and not each.name:
                self.fates["of them with the port in place of a name"] += 1
            if each.source == MESSAGE:
                self.assertEqual(each.name, LABELS[each.number])

    def _send_much(self):
        """And wait until some of it is out."""
        self._begin_round()
        self._mix()
        count = self.random.randint(1, max(1, len(self._sent()) * 2 // 3))
        wait_for(f"{count} letters", lambda: len(self.heard()) >= count, PATIENCE)

    def _expect_stopped(self, ending, is_paddled=False):
        self._expect({each: True for each in self.senders}, ending, is_paddled)

    def _expect_loggers_stopped(self):
        """What the operator has sent is keyed."""
        typed = "".join(each.text for each in self.typist.items)
        wait_for("the operator's text", lambda: joined(
            each for each in self.new_runs() if self.typist.owns(each)) == typed, PATIENCE)
        self._expect({each: each != self.typist for each in self.senders}, STOPPED)

    # The rounds.

    def do_all_at_once(self):
        self._begin_round()
        self._mix()
        self._expect_all()

    def do_one_behind_the_other(self):
        """The operator's text goes in front of what has not begun."""
        self._begin_round()
        for _ in range(3):
            self._mix(2)
            count = len(self.heard()) + 1
            wait_for("a letter", lambda: len(self.heard()) >= count, PATIENCE)
        self._expect_all()

    def do_contact(self):
        self._begin_round()
        self.tlf.contact()
        self._mix(3)
        self._expect_all()

    def do_stop(self):
        self._send_much()
        self.desktop.press("Escape")
        self.wait("an empty text", lambda: self.keyboard.text() == "")
        self._expect_stopped(STOPPED)

    def do_break_in(self):
        self._send_much()
        self.paddle(self.random.choice(".-"))
        self.wait("the break-in", lambda: self.says("break-in"))
        self.paddle(" ")
        self._expect_stopped(BROKEN_IN, is_paddled=True)

    def do_stop_of_a_logger(self):
        self._send_much()
        self.datagrams.tell("\x1b4")
        self._expect_loggers_stopped()

    def do_stop_of_tlf(self):
        self._send_much()
        self.tlf.tlf.press(ESCAPE)
        self._expect_loggers_stopped()

    def do_stop_of_xlog(self):
        self._send_much()
        self.xlog.xlog.press_button("Stop")
        self._expect_loggers_stopped()

    def do_pause(self):
        """What the operator sends waits, and loggers are told."""
        self._begin_round()
        self.desktop.press("ctrl+p")
        self.wait("the pause", self.is_paused)
        self._mix()
        for each in self.senders:
            if each != self.typist:
                wait_for(f"answers to {each.name}", each.hear, PATIENCE)
        self.typist.send()
        self.desktop.press("ctrl+p")
        typed = "".join(each.text for each in self.typist.items)
        wait_for("the operator's text", lambda: len(self.heard()) >= len(typed), PATIENCE)
        self._expect({each: each != self.typist for each in self.senders})

    def do_pull_and_plug(self):
        self._send_much()
        self.pull()
        self.answer_alert(self.quorvel, UNPLUGGED)
        self.wait_for_window()
        self._expect_stopped(LINK_LOST)
        since = time.monotonic()
        self.plug()
        self.answer_alert(self.quorvel, PLUGGED_IN)
        self.wait_for_link(since)
        self.wait_for_window()
        self.desktop.press("ctrl+m")
        self._speed = SPEED
        self.stay_quiet()


def main():
    result = unittest.TextTestRunner(verbosity=0).run(unittest.TestSuite([SharedKeyer()]))
    sys.exit(0 if result.wasSuccessful() else 1)


if __name__ == "__main__":
    main()
