"""Every input that is kept of every fuzz target, once more.

Usage: corpus_test.py REPLAY CORPUS
"""

import subprocess
import sys
import tarfile
import tempfile
import unittest
from pathlib import Path

REPLAY, CORPUS = Path(sys.argv[1]), Path(sys.argv[2])
# Seconds, on a busy machine and under a sanitizer.
LIMIT = 200


class CorpusTest(unittest.TestCase):
    def replay(self, archive):
        with tempfile.TemporaryDirectory() as folder, tarfile.open(archive) as packed:
            inputs = [member for member in packed.getmembers() if member.isfile()]
            for number, member in enumerate(inputs):
                (Path(folder) / str(number)).write_bytes(packed.extractfile(member).read())
            result = subprocess.run([REPLAY, archive.name.removesuffix(".tar.xz"), folder],
                                    capture_output=True, text=True, timeout=LIMIT)
        self.assertEqual((result.returncode, result.stdout), (0, f"{len(inputs)} inputs\n"),
                         result.stderr[-4000:])
        return len(inputs)

    def test_every_target_takes_what_is_kept_for_it(self):
        archives = sorted(CORPUS.glob("*.tar.xz"))
        self.assertTrue(archives)
        for archive in archives:
            with self.subTest(archive.name):
                self.assertGreater(self.replay(archive), 0)

    def test_no_target_is_without_a_corpus(self):
        result = subprocess.run([REPLAY, "--list"], capture_output=True, text=True)
        self.assertEqual(result.stdout.split(),
                         sorted(each.name.removesuffix(".tar.xz")
                                for each in CORPUS.glob("*.tar.xz")))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
