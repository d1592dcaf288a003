"""The rules of structure. Each returns its violations as texts, "file:line: what is wrong"."""

import re
from pathlib import PurePosixPath

LONGEST_FILE = 500
# It has to be beyond doubt.
LONGEST_GUARD = 200
INCLUDE = re.compile(r"^\s*#\s*include\b\s*(.*)")
QUOTED = re.compile(r'^"([^"]+)"|^<([^>]+)>')
DEFINE = re.compile(r"^\s*#\s*define\b")
# Written in two halves, so that the words stand nowhere in the tree, not even here.
LEFTOVERS = re.compile(r"\b(" + "|".join(["TO" "DO", "FIX" "ME", "XX" "X"]) + r")\b")
SKIPS = re.compile("QS" "KIP|GTEST_" "SKIP|DIS" "ABLED_|skip" "Test|unittest\\.skip"
                   "|SKIP_" "RETURN_CODE")
CMAKE_TARGET = re.compile(r"^\s*(?:quorvel_library|add_library|add_executable)\(\s*([\w.-]+)", re.M)
CMAKE_COMMAND = re.compile(
    r"^\s*(?:quorvel_library|quorvel_test|target_link_libraries)\(([^)]*)\)", re.M)


def _generated(tree, path, name):
    """Whether moc or uic writes `name` for the file `path`."""
    stem = PurePosixPath(path).stem
    if name in (f"{stem}.moc", f"moc_{stem}.cpp"):
        return True
    form = re.fullmatch(r"ui_(\w+)\.h", name)
    return bool(form) and tree.exists(f"{tree.folder(path)}/{form.group(1)}.ui")


def _judge_include(tree, table, qt_headers, path, name, quoted):
    """What is wrong with one include, as text; None when nothing is."""
    folder = tree.folder(path)
    if tree.exists(name):
        other = tree.folder(name)
        if table.knows(folder) and not table.allows_folder(folder, other):
            return f"{folder} may not include {other} ({name})"
        return None
    if quoted:
        if _generated(tree, path, name):
            return None
        return f'"{name}" is no file of the project, named from the top of the tree'
    modules = qt_headers.modules_of(name)
    if not modules:
        return f"<{name}> is in no module of Qt" if qt_headers.looks_like_qt(name) else None
    if table.knows(folder) and not any(table.allows_module(folder, m) for m in modules):
        return f"{folder} may not use Qt{'/'.join(sorted(modules))} (<{name}>)"
    return None


def forbidden_includes(tree, table, qt_headers):
    """Includes that the table does not allow, of ours and of Qt, and such as lead nowhere."""
    found = []
    for path in tree.sources():
        for number, line in tree.lines(path):
            include = INCLUDE.match(line)
            if not include:
                continue
            quoted = QUOTED.match(include.group(1))
            wrong = (_judge_include(tree, table, qt_headers, path,
                                    quoted.group(1) or quoted.group(2), bool(quoted.group(1)))
                     if quoted else "an include names its file itself")
            if wrong:
                found.append(f"{path}:{number}: {wrong}")
    return found


def _cmake_text(tree, path):
    return "\n".join(line.partition("#")[0] for _, line in tree.lines(path))


def forbidden_links(tree, table):
    """Libraries, of ours and of Qt, that a folder's CMakeLists.txt links against the table."""
    texts = {path: _cmake_text(tree, path) for path in tree.cmake_lists()}
    targets = {name: tree.folder(path) for path, text in texts.items()
               for name in CMAKE_TARGET.findall(text)}
    found = []
    for path, text in texts.items():
        folder = tree.folder(path)
        for module in re.findall(r"\bQt6?::(\w+)", text):
            if not table.knows(folder):
                found.append(f"{path}: links Qt6::{module}, but {folder} has no row in the table")
            elif not table.allows_module(folder, module):
                found.append(f"{path}: {folder} may not link Qt6::{module}")
        for arguments in CMAKE_COMMAND.findall(text):
            for name in arguments.split()[1:]:
                other = targets.get(name)
                if other and table.knows(folder) and not table.allows_folder(folder, other):
                    found.append(f"{path}: {folder} may not link {name}, which is {other}")
    return found


def folders_without_row(tree, table):
    """Folders that hold C++ files and about which the table says nothing."""
    folders = sorted({tree.folder(path) for path in tree.sources()})
    return [f"{folder}: has no row in the table" for folder in folders if not table.knows(folder)]


def qt_in_keyer_core(tree, qt_headers):
    """Uses of Qt in virtualkeyer/core, whatever the table says."""
    found = []
    for path in tree.sources():
        if not path.startswith("virtualkeyer/core/"):
            continue
        for number, line in tree.lines(path):
            include = INCLUDE.match(line)
            name = include.group(1).strip('"<> \t') if include else ""
            if qt_headers.modules_of(name) or qt_headers.looks_like_qt(name):
                found.append(f"{path}:{number}: the virtual keyer's core knows no Qt ({name})")
    return found


def long_files(tree):
    """Files of code with more lines than fit in a head."""
    lengths = ((path, len(tree.lines(path)),
                LONGEST_GUARD if path.startswith("guard/") else LONGEST_FILE)
               for path in tree.code())
    return [f"{path}: {length} lines, {limit} at most"
            for path, length, limit in lengths if length > limit]


def macros_in_headers(tree):
    """Headers that define a macro."""
    return [f"{path}:{number}: a header defines no macro"
            for path in tree.headers() for number, line in tree.lines(path) if DEFINE.match(line)]


def headers_without_guard(tree):
    """Headers whose first line of code is not #pragma once."""
    found = []
    for path in tree.headers():
        code = (line.strip() for _, line in tree.lines(path))
        first = next((line for line in code if line and not line.startswith("//")), "")
        if first != "#pragma once":
            found.append(f"{path}: does not begin with #pragma once")
    return found


def skipped_tests(tree):
    """Tests that leave themselves out, which would count as passed."""
    return [f"{path}:{number}: a test that leaves itself out proves nothing"
            for path in tree.code() for number, line in tree.lines(path) if SKIPS.search(line)]


def leftovers(tree):
    """Marks of work that was left for later."""
    return [f"{path}:{number}: {mark.group(1)} stands for work not done"
            for path in tree.texts() for number, line in tree.lines(path)
            if (mark := LEFTOVERS.search(line))]
