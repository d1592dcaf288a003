"""The sidetone as others hear it: the program's WAV file is read by decoders that know nothing of it,
and its edges are measured and compared with the transcript."""

import array
import cmath
import math
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest
import wave

VIRTUAL_KEYER = sys.argv[1]
RATE = 44100
TEXT = "PARIS DE N0CALL 5NN 73"
EDGE = 0.005  # seconds
WINDOW = 441  # samples: whole periods of every pitch that is a multiple of 100 Hz


def play(directory, wpm, text=TEXT):
    """Has it keyed, as fast as it can; the samples and the transcript."""
    script = directory / "script"
    script.write_text(f'at 1 send 00 02 02 {wpm:02X} "{text}"\n'
                      f'within 600 expect keyed "{text}"\nafter 2\n')
    sound, transcript = directory / "sound.wav", directory / "transcript"
    done = subprocess.run([VIRTUAL_KEYER, "--headless", "--fast", "--script", script, "--wav", sound,
                           "--transcript", transcript],
                          stdout=subprocess.DEVNULL, timeout=120, check=False)
    assert done.returncode == 0
    return sound, transcript.read_text()


def samples_of(sound):
    with wave.open(str(sound)) as file:
        assert file.getparams()[:3] == (1, 2, RATE)
        samples = array.array("h", file.readframes(file.getnframes()))
    if sys.byteorder == "big":
        samples.byteswap()
    return samples


def means_of(values):
    """The sum of each WINDOW of values; the first stands for the middle of the first window."""
    total = sum(values[:WINDOW])
    means = [total]
    for old, new in zip(values, values[WINDOW:]):
        total += new - old
        means.append(total)
    return means


def edges_of(samples, pitch):
    """When the tone passes half of its height, in samples, up and down in turn."""
    turn = -2j * math.pi * pitch / RATE
    mixed = [sample * cmath.exp(turn * i) for i, sample in enumerate(samples)]
    # Twice, because once leaves a trace of the pitch's double on the edges.
    levels = [abs(each) for each in means_of(means_of(mixed))]
    half = max(levels) / 2
    return [i - (levels[i] - half) / (levels[i] - levels[i - 1]) + WINDOW - 1
            for i in range(1, len(levels)) if (levels[i] > half) != (levels[i - 1] > half)]


class SidetoneTest(unittest.TestCase):
    def setUp(self):
        directory = tempfile.TemporaryDirectory(prefix="quorvel-test.")
        self.addCleanup(directory.cleanup)
        self.directory = pathlib.Path(directory.name)

    def test_a_decoder_of_radio_signals_reads_it(self):
        for wpm in (15, 25, 40):
            with self.subTest(wpm=wpm):
                sound, _ = play(self.directory, wpm)
                raw = self.directory / "sound.raw"
                # It takes half as many samples.
                raw.write_bytes(samples_of(sound)[::2].tobytes())
                # Told the speed, and what is loud: it finds out, but takes longer than the text.
                dit = str(round(1200 / wpm))
                said = subprocess.run(
                    ["multimon-ng", "-q", "-t", "raw", "-c", "-a", "MORSE_CW", "-x", "-o", "3500",
                     "-y", "-d", dit, "-g", dit, raw],
                    stdout=subprocess.PIPE, text=True, timeout=120, check=True).stdout
                self.assertEqual(" ".join(said.split()), TEXT)

    def test_a_decoder_of_files_reads_it(self):
        for wpm in (15, 25, 40):
            with self.subTest(wpm=wpm):
                sound, _ = play(self.directory, wpm)
                said = subprocess.run(["morse2ascii", sound], stdout=subprocess.PIPE,
                                      stderr=subprocess.DEVNULL, text=True, timeout=120,
                                      check=True).stdout
                # It tells no words apart.
                self.assertEqual("".join(said.split()).upper(), TEXT.replace(" ", ""))

    def test_its_edges_are_where_the_transcript_has_them(self):
        for wpm in (15, 25, 40):
            with self.subTest(wpm=wpm):
                sound, transcript = play(self.directory, wpm)
                keyed = [float(each) / 1000 * RATE
                         for each in re.findall(r"^([\d.]+) tone", transcript, re.M)]
                heard = edges_of(samples_of(sound), 800)
                self.assertEqual(len(heard), len(keyed))
                self.assertGreater(len(keyed), 100)
                for ours, theirs in zip(keyed, heard):
                    self.assertAlmostEqual(ours + EDGE / 2 * RATE, theirs, delta=1)


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[2:]], verbosity=2)
