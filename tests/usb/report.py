"""Tells of each test, in a line, how it went and how long it took."""

import time
import traceback
import unittest


class Report(unittest.TestResult):
    def __init__(self):
        super().__init__()
        self._begin = 0
        self.passed = 0
        self.failed = 0

    def startTest(self, test):
        super().startTest(test)
        self._begin = time.monotonic()

    def addSuccess(self, test):
        super().addSuccess(test)
        self.passed += 1
        self._tell("passed", test)

    def addFailure(self, test, err):
        super().addFailure(test, err)
        self._tell_failure(test, err)

    def addError(self, test, err):
        super().addError(test, err)
        self._tell_failure(test, err)

    def summary(self):
        return f"{self.passed} passed, {self.failed} failed"

    def _tell(self, result, test):
        seconds = time.monotonic() - self._begin
        print(f"{result}: {test.shortDescription() or test} ({seconds:.1f} s)", flush=True)

    def _tell_failure(self, test, err):
        self.failed += 1
        self._tell("FAILED", test)
        traceback.print_exception(*err)
