"""What is on the screen, as it is seen."""

import subprocess


class Picture:
    """A part of the screen, three bytes for each of its points."""

    def __init__(self, pixels):
        self.pixels = pixels

    @staticmethod
    def at(desktop, x, y, width, height):
        return Picture(subprocess.run(
            ["import", "-silent", "-window", "root", "-crop", f"{width}x{height}+{x}+{y}",
             "-depth", "8", "rgb:-"], env=desktop.environment, check=True,
            stdout=subprocess.PIPE).stdout)

    @staticmethod
    def of(desktop, element):
        return Picture.at(desktop, *element.extents())

    def colors(self):
        """How many there are."""
        return len({self.pixels[at:at + 3] for at in range(0, len(self.pixels), 3)})
