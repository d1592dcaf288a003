"""The table in docs/architecture.md: which folder may include which, and which Qt modules."""

from pathlib import Path

# What a module brings along besides Core, which every module does.
BROUGHT_ALONG = {"Widgets": {"Gui"}}
ANYTHING = None


class TableError(Exception):
    """The document has no table that can be read."""


def _cells(line):
    return [cell.strip().strip("`") for cell in line.strip().strip("|").split("|")]


def _names(cell):
    return {name.strip().strip("`") for name in cell.split(",")}


class DependencyTable:
    """Answers what a folder may use. Folders are named from the top of the tree: "platform/linux"."""

    def __init__(self, document):
        """Reads the Markdown text `document`; raises TableError when the table is not in it."""
        self._rows = {}
        lines = document.splitlines()
        heads = [i for i, line in enumerate(lines)
                 if line.startswith("|") and _cells(line)[:2] == ["folder", "may include"]]
        if not heads:
            raise TableError("docs/architecture.md has no table of who may include whom")
        for line in lines[heads[0] + 2:]:
            if not line.startswith("|"):
                break
            folder, includes, modules = _cells(line)
            self._rows[folder] = (self._folders(includes), self._modules(modules))
        unknown = {name for folders, _ in self._rows.values() if folders is not ANYTHING
                   for name in folders} - set(self._rows) - {"X", "what X may include"}
        if unknown:
            raise TableError(f"the table allows folders that have no row: {sorted(unknown)}")

    @staticmethod
    def read(root):
        return DependencyTable(Path(root, "docs", "architecture.md").read_text(encoding="utf-8"))

    @staticmethod
    def _folders(cell):
        if cell == "anything":
            return ANYTHING
        return set() if cell.startswith("nothing of ours") else _names(cell)

    @staticmethod
    def _modules(cell):
        if cell == "any":
            return ANYTHING
        return set() if cell == "none" else _names(cell)

    def _tested(self, folder):
        """The folder whose tests `folder` holds, by the row tests/X; None when it holds none."""
        tested = folder.removeprefix("tests/")
        fits = "tests/X" in self._rows and tested != folder and tested in self._rows
        return tested if fits else None

    def knows(self, folder):
        """Whether the folder has a row."""
        return folder in self._rows or self._tested(folder) is not None

    def allows_folder(self, folder, other):
        """Whether files of `folder`, which has a row, may include those of `other`."""
        if other == folder:
            return True
        tested = None if folder in self._rows else self._tested(folder)
        if tested is None:
            folders = self._rows[folder][0]
            return folders is ANYTHING or other in folders
        extra = self._rows["tests/X"][0] - {"X", "what X may include"}
        return other in extra or self.allows_folder(tested, other)

    def allows_module(self, folder, module):
        """Whether files of `folder`, which has a row, may use the Qt module, such as "Widgets"."""
        modules = self._modules_of(folder)
        return modules is ANYTHING or module in modules

    def _modules_of(self, folder):
        tested = None if folder in self._rows else self._tested(folder)
        if tested is not None:
            modules = self._modules_of(tested)
            extra = self._modules_of_row("tests/X")
            return ANYTHING if ANYTHING in (modules, extra) else modules | extra
        return self._modules_of_row(folder)

    def _modules_of_row(self, row):
        modules = self._rows[row][1]
        if not modules:
            return modules
        brought = set().union(*(BROUGHT_ALONG.get(module, set()) for module in modules))
        return modules | brought | {"Core"}
