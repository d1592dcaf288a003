"""Which Qt module a header belongs to."""

from pathlib import Path


class QtHeaders:
    """Looks headers up in Qt's include directory, in which each module has a directory."""

    def __init__(self, directory):
        self._modules = {}
        for module in sorted(Path(directory).glob("Qt*")):
            for header in module.iterdir():
                self._modules.setdefault(header.name, set()).add(module.name.removeprefix("Qt"))
        self._names = set().union(*self._modules.values()) if self._modules else set()

    def modules_of(self, header):
        """The modules that `header`, as it stands in an include, may be of; empty: not Qt's."""
        directory, _, name = header.rpartition("/")
        module = directory.partition("/")[0].removeprefix("Qt")
        if directory.startswith("Qt") and module in self._names:
            return {module}
        return self._modules.get(name, set()) if not directory else set()

    @staticmethod
    def looks_like_qt(header):
        """Whether a header that modules_of() does not know would have to be Qt's."""
        return len(header) > 1 and header[0] == "Q" and header[1].isalpha()
