"""The files of the project, without what is built or belongs to tools."""

import os
from pathlib import Path

CPP = {".h", ".cpp"}
CODE = CPP | {".py", ".sh", ".cmake"}
TEXT = CODE | {".md", ".txt", ".ui", ".json", ".qrc", ".desktop", ".xml", ".supp"}
EXTENSIONLESS = {"dev", "run"}


def _pruned(directory, name):
    path = Path(directory, name)
    return name in {"build", ".git", ".cache", "__pycache__"} or (path / "CMakeCache.txt").exists()


class SourceTree:
    """All paths are relative to the top, with slashes; `folder` of a file at the top is "."."""

    def __init__(self, root):
        self.root = Path(root)
        self.files = []
        for directory, folders, names in os.walk(self.root):
            folders[:] = sorted(name for name in folders if not _pruned(directory, name))
            for name in sorted(names):
                self.files.append(Path(directory, name).relative_to(self.root).as_posix())
        self._known = set(self.files)

    def exists(self, path):
        return path in self._known

    def lines(self, path):
        """(number, line) pairs, from 1."""
        text = (self.root / path).read_text(encoding="utf-8")
        return list(enumerate(text.splitlines(), start=1))

    @staticmethod
    def folder(path):
        return path.rpartition("/")[0] or "."

    def _with(self, suffixes):
        return [path for path in self.files if Path(path).suffix in suffixes]

    def headers(self):
        return self._with({".h"})

    def sources(self):
        """Headers and C++ files."""
        return self._with(CPP)

    def cmake_lists(self):
        return [path for path in self.files if Path(path).name == "CMakeLists.txt"]

    def code(self):
        """What people write in a programming language, CMake's included."""
        extra = [path for path in self.files if Path(path).name in EXTENSIONLESS]
        return sorted({*self._with(CODE), *self.cmake_lists(), *extra})

    def texts(self):
        extra = [path for path in self.files if Path(path).name in EXTENSIONLESS]
        return sorted({*self._with(TEXT), *extra})
