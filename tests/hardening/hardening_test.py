"""The programs as the linker made them: what an error in them could be used for.

Usage: hardening_test.py [--optimised] [--branches] --readelf TOOL --objdump TOOL
    [--static PROGRAM] PROGRAM...
"""

import argparse
import re
import subprocess
import sys
import unittest

OPTIONS = argparse.ArgumentParser()
OPTIONS.add_argument("--readelf", required=True)
OPTIONS.add_argument("--objdump", required=True)
OPTIONS.add_argument("--optimised", action="store_true")
OPTIONS.add_argument("--branches", action="store_true", help="the compiler protects them")
OPTIONS.add_argument("--static", help="a program that holds the system's library itself")
OPTIONS.add_argument("programs", nargs="+")
GIVEN = OPTIONS.parse_args()
ALL = [*GIVEN.programs, *([GIVEN.static] if GIVEN.static else [])]


def read(tool, *arguments):
    return subprocess.run([tool, *arguments], capture_output=True, text=True, check=True).stdout


class HardeningTest(unittest.TestCase):
    def check(self, option, test, programs=None):
        for program in programs or ALL:
            with self.subTest(program=program):
                test(read(GIVEN.readelf, "--wide", option, program))

    def test_it_may_be_loaded_anywhere(self):
        self.check("--file-header", lambda text: self.assertRegex(text, r"Type:\s+DYN"))

    def test_what_the_linker_fills_in_is_read_only_afterwards(self):
        self.check("--program-headers", lambda text: self.assertRegex(text, r"GNU_RELRO"))
        self.check("--dynamic", lambda text: self.assertRegex(text, r"\bNOW\b"))

    def test_the_stack_is_no_code(self):
        self.check("--program-headers",
                   lambda text: self.assertRegex(text, r"GNU_STACK(\s+0x\w+){5}\s+RW\s"))

    def test_the_stack_is_checked(self):
        self.check("--dyn-syms", lambda text: self.assertIn("__stack_chk_fail", text),
                   GIVEN.programs)

    if GIVEN.static:
        def test_the_stack_of_a_static_program_is_checked(self):
            # The library checks its own, whatever the program does.
            functions = read(GIVEN.objdump, "--disassemble", GIVEN.static).split("\n\n")
            own = [each for each in functions
                   if re.match(r"\w+ <(main|_ZN12_GLOBAL__N_1\w*)", each)]
            self.assertTrue(own)
            self.assertTrue(any("<__stack_chk_fail>" in each for each in own))

    if GIVEN.optimised:
        def test_lengths_are_checked(self):
            self.check("--dyn-syms", lambda text: self.assertRegex(text, r"__\w+_chk\b"),
                       GIVEN.programs)

    if GIVEN.branches:
        def test_branches_lead_to_their_targets_only(self):
            for program in ALL:
                with self.subTest(program=program):
                    code = read(GIVEN.objdump, "--disassemble=main", program)
                    self.assertIn("endbr64", code)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
