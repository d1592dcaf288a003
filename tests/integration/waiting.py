"""Waiting for what a program does, never for a length of time."""

import time

PATIENCE = 30  # seconds; only a failure takes that long


def wait_for(what, condition, patience=PATIENCE):
    """Returns the first true value of condition(); fails after a while, saying what is missing."""
    deadline = time.monotonic() + patience
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise AssertionError(f"waited in vain for {what}")
        time.sleep(0.01)
