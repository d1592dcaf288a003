"""An operator in contest and ragchew, who keeps in mind what is meant to go on the air.

The operator knows nothing of how the application works: what was typed and pressed is to be sent as
a text of words, in that order, with the call and the number of the moment, once each; and what was
stopped, by whatever, is told and comes no more.
"""

import itertools
import string
import time

from program import PLUGGED_IN, UNPLUGGED
from traffic_station import MESSAGES, on_the_key_line

WORDS = ("CQ DE UR RST 5NN TNX FER CALL OP NAME QTH HR WX FB OM RIG ANT PWR 73 GL EE KN TEST R R "
         "= ? DR GM GA HW CPY").split()


class Operator:
    def __init__(self, station, random):
        self._station, self._random = station, random
        self._number, self._call = 1, ""
        self.counts = dict.fromkeys(self.acts(), 0)
        self._held = None
        self._begin_text()

    @classmethod
    def acts(cls):
        return [name for name in vars(cls) if name.startswith("do_")]

    def act(self):
        """Does one thing after another until all that was meant is out, or was stopped."""
        name = self._random.choice(self.acts())
        self.counts[name] += 1
        self.doing = name
        getattr(self, name)()

    # What is meant.

    def _begin_text(self):
        """The text is gone, whatever of it was sent."""
        self._text, self._sent, self._is_behind_message = "", 0, False

    def _mean_typed(self, text):
        if not text:
            return
        is_apart = text.startswith(" ") or self._text.endswith(" ")
        if self._is_behind_message and not is_apart:
            text = " " + text
        self._text += text.upper()
        self._is_behind_message = False

    def _mean_message(self, number):
        if self._held is not None:
            self._held.add(number)
        text = MESSAGES[number].replace("`", "N0CALL").replace("#", self._cut_number())
        # With the call that it has now, whatever is in its place by then.
        text = text.replace("~", self._call)
        self._text += (" " if self._text else "") + text
        self._is_behind_message = True

    def _cut_number(self):
        return f"{self._number:03}".replace("0", "T")

    def _meant(self):
        """What is yet to come."""
        return self._text[self._sent:].replace("{", "")

    # What was heard.

    def _expect_all(self):
        """All that was meant, and nothing else."""
        station, meant = self._station, self._meant()
        station.wait(f"{meant!r} in the echoes of {self.doing}, which are {station.echoed()!r}",
                     lambda: len(station.echoed()) >= len(meant))
        station.rest()
        station.assertEqual(station.echoed(), meant)
        line = on_the_key_line(self._text[self._sent:])
        station.wait(f"{line} on the key line of {self.doing}",
                     lambda: len(station.keyed()) >= len(line))
        station.assertEqual(station.keyed(), line)
        station.take()
        self._sent = len(self._text)

    def _expect_stopped(self):
        """A beginning of what was meant, then nothing, and an empty text."""
        station, meant = self._station, self._meant()
        station.wait("an empty text", lambda: station.keyboard.text() == "")
        station.stay_quiet()
        # A letter may be out whose echo is not.
        keyed = station.keyed()
        station.assertTrue(meant.startswith(station.echoed()), (meant, station.echoed()))
        station.assertTrue(on_the_key_line(self._text[self._sent:]).startswith(keyed),
                           (meant, keyed))
        station.take()
        self._begin_text()

    # What the hands do.

    def _maybe(self):
        return self._random.random() < 0.5

    def _focus(self):
        self._station.desktop.press("ctrl+m")

    def _type(self, text):
        self._station.desktop.type(text.lower(), self._random.choice([1, 8, 30]))
        self._mean_typed(text)

    def _words(self, most=4):
        return " ".join(self._random.choices(WORDS, k=self._random.randint(1, most)))

    def _press(self, number):
        if self._maybe():
            self._station.desktop.press(f"F{number}")
        else:
            button = next(each for name, each in self._station.controls.items()
                          if name.startswith(f"Message {number}:"))
            self._station.desktop.click(button)
        if self._held is None or number not in self._held:
            self._mean_message(number)

    def _next_contact(self):
        """By the one key, while the last contact's exchange may still be on its way."""
        self._station.desktop.press("F11")
        self._number += 1
        self._enter_call()
        self._focus()

    def _enter_call(self):
        letters = self._random.choices(string.ascii_uppercase, k=3)
        self._call = f"{letters[0]}{self._random.randint(0, 9)}{letters[1]}{letters[2]}"
        self._station.desktop.type(self._call.lower(), 1)

    def _mix(self, most=5):
        """Words and messages, in any order, while the first of them are being sent."""
        for _ in range(self._random.randint(1, most)):
            if self._maybe():
                self._type((" " if self._maybe() else "") + self._words())
            else:
                self._press(self._random.choice([1, 2, 3, 4, 7] + ([5, 6] if self._call else [])))

    def _send_something_long(self):
        self._mix(2)
        self._press(8)
        station, count = self._station, self._random.randint(1, 25)
        station.wait("some of the text", lambda: len(station.echoed()) >= count)

    def _end_pause(self):
        """A keyer that is idle may have ended it already."""
        station = self._station
        if station.is_paused():
            station.desktop.press("ctrl+p")
            station.wait("the end of the pause", lambda: not station.is_paused())

    # What is done.

    def do_mixed_traffic(self):
        self._mix()
        self._expect_all()

    def do_contest(self):
        """Each exchange begins while the one before is being sent."""
        for _ in range(self._random.randint(1, 4)):
            self._next_contact()
            self._press(self._random.choice([5, 6]))
            if self._maybe():
                self._press(2)
            if self._maybe():
                self._type(self._random.choice(["TU", " 73", "{AR", "K"]))
        self._expect_all()

    def do_signs_of_two_letters(self):
        self._type(self._words(2) + " ")
        self._station.desktop.type("{a")
        if self._maybe():
            self._station.desktop.press("BackSpace")
            self._station.desktop.type("a")
        self._station.desktop.type("r")
        self._mean_typed("{AR")
        self._type(" " + self._words(2))
        self._expect_all()

    def do_stop(self):
        self._send_something_long()
        self._station.desktop.press("Escape")
        self._expect_stopped()

    def do_pause(self):
        """What is typed meanwhile is corrected, and waits."""
        station = self._station
        self._mix(2)
        station.desktop.press("ctrl+p")
        self._mix(2)
        self._type(" " + self._words(2))
        self._end_pause()
        self._expect_unpaused()

    def do_corrections_at_rest(self):
        """Of text that waits."""
        station = self._station
        station.desktop.press("ctrl+p")
        station.wait("the pause", lambda: station.is_paused())
        self._type(" " + self._words(3))
        station.desktop.type(" qqq")
        if self._maybe():
            for _ in range(4):
                station.desktop.press("BackSpace")
        else:
            # A word is one step, and so is the space before it, which is of the word ahead.
            station.desktop.press("ctrl+z")
            station.desktop.press("BackSpace")
        self._type(" " + self._words(2))
        self._end_pause()
        self._expect_unpaused()

    def _expect_unpaused(self):
        station = self._station
        station.wait("the end of the pause", lambda: (self._end_pause(), len(
            station.echoed()) >= len(self._meant()))[1])
        self._expect_all()
        station.assertFalse(station.is_paused())

    def do_break_in(self):
        """What is entered while the paddle is in use comes when it is free, or not after Escape."""
        station = self._station
        self._send_something_long()
        station.paddle(self._random.choice(".-"))
        station.wait("the break-in", lambda: station.says("break-in"))
        before = self._meant()
        echoed = station.take()
        station.assertTrue(before.startswith(echoed), (before, echoed))
        self._begin_text()
        # A message that waits, as its button says, is not meant once more.
        self._held = set()
        self._mix(3)
        self._held = None
        if self._maybe():
            station.desktop.press("Escape")
            self._begin_text()
        station.paddle(" ")
        self._expect_after_paddle()

    def _expect_after_paddle(self):
        """What the paddle itself keys comes ahead of it, and is the operator's own."""
        station, meant = self._station, self._meant()
        station.wait(f"{meant!r} after the paddle, with {station.echoed()!r} heard",
                     lambda: len(station.echoed()) >= len(meant))
        station.stay_quiet()
        station.assertEqual(station.echoed(), meant)
        station.assertTrue(station.keyed().endswith(on_the_key_line(self._text)))
        station.take()
        self._sent = len(self._text)

    def do_pull_and_plug(self):
        """What is entered meanwhile is struck out, and forgotten when the keyer is back."""
        station = self._station
        if self._maybe():
            self._send_something_long()
        meant = self._meant()
        station.pull()
        station.answer_alert(station.quorvel, UNPLUGGED)
        station.wait_for_window()
        self._focus()
        for _ in range(self._random.randint(0, 3)):
            self._station.desktop.type(" cq cq ")
            self._station.desktop.press("F2")
        if self._maybe():
            self._next_contact()
        station.stay_quiet()
        station.assertTrue(meant.startswith(station.take()), meant)
        since = time.monotonic()
        station.plug()
        if self._maybe():
            station.wait_for_alert(station.quorvel, PLUGGED_IN)
            station.desktop.type("yes no ")
        station.answer_alert(station.quorvel, PLUGGED_IN)
        station.wait_for_link(since)
        station.wait_for_window()
        station.stay_quiet()
        station.assertEqual(station.take(), "U")
        self._begin_text()
        self._focus()

    def do_sleep_and_wake(self):
        """A sleep is a stop; what is entered meanwhile waits for the operator."""
        station = self._station
        if self._maybe():
            self._send_something_long()
        meant = self._meant()
        station.fall_asleep()
        station.wait("an empty text", lambda: station.keyboard.text() == "")
        self._begin_text()
        has_text = self._maybe()
        if has_text:
            self._mix(3)
        station.stay_quiet()
        station.assertTrue(meant.startswith(station.take()), meant)
        since = time.monotonic()
        station.wake()
        station.wait_for_link(since)
        station.stay_quiet()
        station.assertEqual(station.take(), "U")
        if not has_text:
            return
        station.assertTrue(station.is_paused())
        if self._maybe():
            station.desktop.press("Escape")
            self._begin_text()
            station.wait("an empty text", lambda: station.keyboard.text() == "")
            station.stay_quiet()
        else:
            self._expect_unpaused()
        station.assertFalse(station.is_paused())

    def do_tune_by_mouse(self):
        """What is typed after it is text."""
        station = self._station
        for is_on in (True, False):
            station.desktop.click(station.controls["Tune"])
            station.wait("the key", lambda: station.is_key_down() == is_on)
        station.rest()
        station.take()
        self._type("  " + self._words())
        self._expect_all()

    def do_other_windows(self):
        """Message keys are the main window's, and the letters of a menu its own."""
        station = self._station
        station.desktop.press("ctrl+comma")
        station.wait("the preferences", lambda: "Quorvel" in self._title() != "Quorvel")
        for key in ("F1", "F2", "F8"):
            station.desktop.press(key)
        station.desktop.press("alt+F4")
        station.wait_for_window()
        station.desktop.press("alt+h")
        station.desktop.type("  ")
        station.desktop.press("Escape")
        self._focus()
        self._expect_stopped()

    def _title(self):
        return self._station.desktop.xdotool("getactivewindow", "getwindowname") or ""

    def do_beacon(self):
        station = self._station
        station.desktop.press("Escape")
        self._expect_stopped()
        station.desktop.press("ctrl+b")
        self._press(7)
        station.wait("the beacon's second round", lambda: len(station.echoed()) >= 3)
        station.desktop.press("Escape")
        self._text = " ".join(itertools.repeat("?", 9))
        self._expect_stopped()
