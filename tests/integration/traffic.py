"""Mixed traffic by real keys, mouse and paddle, for so many seconds: nothing goes on the air that was
not meant, and nothing that was meant is lost unless something stopped it.

Usage: traffic.py QUORVEL VIRTUAL_KEYER SECONDS [SEED]
"""

import random
import sys
import time
import unittest

from traffic_operator import Operator
from traffic_station import TrafficStation

SECONDS = float(sys.argv[3])
SEED = int(sys.argv[4]) if len(sys.argv) > 4 else random.randrange(1 << 32)


class Traffic(TrafficStation):
    # A busy machine is late with the release of a key, which the screen would repeat meanwhile.
    repeat_delay = "60000"

    def runTest(self):
        print(f"seed {SEED}", flush=True)
        self.start_traffic()
        operator = Operator(self, random.Random(SEED))
        end = time.monotonic() + SECONDS
        try:
            while time.monotonic() < end:
                operator.act()
        except BaseException:
            print(f"in {operator.doing}, after {operator.counts}\n{self.describe()}", flush=True)
            raise
        letters = len(self.keyer.keyed())
        counts = ", ".join(f"{count} {name.removeprefix('do_').replace('_', ' ')}"
                           for name, count in operator.counts.items())
        print(f"{letters} letters keyed, as they were meant: {counts}", flush=True)
        self.assertEqual(self.quorvel.end(), 0)


def main():
    result = unittest.TextTestRunner(verbosity=0).run(unittest.TestSuite([Traffic()]))
    sys.exit(0 if result.wasSuccessful() else 1)


if __name__ == "__main__":
    main()
