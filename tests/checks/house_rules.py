"""The rules of the house that a compiler does not know. Patterns are written so that they do not find themselves."""
import re

import tree

LONGEST = 500
LONGEST_TABLE = 800
CODE = ("src", "tests", "benches")
CATCH_ALL = re.compile(r"\bcatch\s*\(\s*\.\.\.\s*\)")
THE_CATCHER = "src/surface/dispatch.cpp"
LOOSE_MATHS = re.compile(r"-f(fast[-]math|unsafe[-]math|associative[-]math)|-O(fast)\b|-ffp-contract=(fast|on)\b"
                         r"|-march=(native)\b")
OUTSIDE_TEXTS = re.compile(r"\bparts? [0-9]+\.[0-9]+|\bspec\.md|\bspecification\b|\bthe spec\b|\bper[ ]spec\b"
                           r"|\bas (specified|described) in|\bdesign\.md|\bdesign's section", re.IGNORECASE)
UNDONE = re.compile(r"\bTO[D]O\b|\bFIX[M]E\b|\bXX[X]\b|GTEST_[S]KIP|\bDISABLE[D]_|not [i]mplemented|place[h]older")
MACHINE_PATHS = re.compile(r"(?<![\w.}$])/(work|root|home/[a-z]\w*|Users/\w+|mnt/\w+)/|\b[A-Z]:\\\\?Users\b")
# A copyright file names the page of its own format, which is no host of packages.
REGISTRIES = re.compile(r"deb[.]debian|(?<!/www[.])debian[.]org|npmjs[.]|pypi[.]|pythonhosted[.]|crates[.]io|archive[.]ubuntu",
                        re.IGNORECASE)


def limit(path):
    name = path.rsplit("/", 1)[-1].lower()
    return LONGEST_TABLE if "table" in name or "controls" in name else LONGEST


def files_are_short(files):
    """A file is one thing: at most 500 lines, tables of controls and texts 800."""
    for path, text in files.sources(*CODE):
        length = len(text.splitlines())
        if length > limit(path):
            yield f"{path}: {length} lines, more than {limit(path)}"


def files_say_what_they_are_for(files):
    """Every file begins with a comment, every header is included once."""
    for path, text in files.sources(*CODE):
        if not text.startswith("//"):
            yield f"{path}:1: no comment says what the file is for"
        if path.endswith(".h") and "\n#pragma once\n" not in text:
            yield f"{path}: a header without #pragma once"


def only_the_dispatcher_catches_everything(files):
    """Errors reach the one place that reports them."""
    for path, text in files.sources(*CODE):
        if path != THE_CATCHER:
            for number, _ in tree.lines_matching(text, CATCH_ALL):
                yield f"{path}:{number}: catches everything; only {THE_CATCHER} may"


def sums_stay_as_written(files):
    """No flag lets the compiler reorder or contract floating point, or build for one machine only."""
    for path, text in files:
        for number, line in tree.lines_matching(text, LOOSE_MATHS):
            yield f"{path}:{number}: {line.strip()}: pixels would differ between machines"


def nothing_is_left_undone(files):
    """No notes for later and no test that is switched off."""
    for path, text in files:
        if path.startswith(tuple(f + "/" for f in CODE)):
            for number, line in tree.lines_matching(text, UNDONE):
                yield f"{path}:{number}: left undone: {line.strip()[:100]}"


def texts_stand_for_themselves(files):
    """Code and documents give their reasons themselves and point at no paper outside the tree."""
    for path, text in files:
        for number, line in tree.lines_matching(text, OUTSIDE_TEXTS):
            yield f"{path}:{number}: points outside the tree: {line.strip()[:100]}"


def no_machine_is_named(files):
    """No path of a developer's machine and no package host."""
    for path, text in files:
        for pattern in (MACHINE_PATHS, REGISTRIES):
            for number, line in tree.lines_matching(text, pattern):
                yield f"{path}:{number}: names a machine: {line.strip()[:100]}"


CHECKS = [files_are_short, files_say_what_they_are_for, only_the_dispatcher_catches_everything, sums_stay_as_written,
          nothing_is_left_undone, texts_stand_for_themselves, no_machine_is_named]

if __name__ == "__main__":
    tree.run(CHECKS)
