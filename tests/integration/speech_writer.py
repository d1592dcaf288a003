#!/usr/bin/python3 -B
"""An output module of the speech dispatcher that writes down what it is to speak, a line each, in the
file that SPOKEN_FILE names, and is done with it at once."""

import os
import re
import sys

TAGS = re.compile(r"<[^>]*>")


def answer(*lines):
    print(*lines, sep="\n", flush=True)


def block():
    """What follows a command, up to a line with a full stop."""
    lines = []
    for line in iter(sys.stdin.readline, ".\n"):
        if not line:
            break
        lines.append(line.rstrip("\n"))
    return " ".join(lines)


def settle(begin, end):
    answer(begin)
    block()
    answer(end)


def speak(spoken):
    answer("202 OK RECEIVING MESSAGE")
    spoken.write(TAGS.sub("", block()).strip() + "\n")
    spoken.flush()
    answer("200 OK SPEAKING", "701 BEGIN", "702 END")


def serve(spoken):
    for line in iter(sys.stdin.readline, ""):
        command = line.strip()
        if command == "INIT":
            answer("299-It writes.", "299 OK LOADED SUCCESSFULLY")
        elif command == "AUDIO":
            settle("207 OK RECEIVING AUDIO SETTINGS", "203 OK AUDIO INITIALIZED")
        elif command == "LOGLEVEL":
            settle("207 OK RECEIVING LOGLEVEL SETTINGS", "203 OK LOG LEVEL SET")
        elif command == "SET":
            settle("203 OK RECEIVING SETTINGS", "203 OK SETTINGS RECEIVED")
        elif command.startswith("LIST VOICES"):
            answer("200-writer\ten\tnone", "200 OK VOICE LIST SENT")
        elif command in ("SPEAK", "CHAR", "KEY"):
            speak(spoken)
        elif command in ("STOP", "PAUSE"):
            pass  # it has been spoken by then
        elif command == "QUIT":
            answer("210 OK QUIT")
            return
        else:
            answer("300 ERR UNKNOWN COMMAND")


with open(os.environ["SPOKEN_FILE"], "a", encoding="utf-8") as file:
    serve(file)
