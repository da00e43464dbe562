"""The files of the tree that the checks judge, and the frame in which every check runs.

A check is a function that takes a Tree and yields faults as texts. A Tree can be read from a folder or made up by a test."""
import pathlib
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
NOT_OURS = {".git", "build", "__pycache__", ".cache"}
PICTURES = {".gif", ".png", ".bmp", ".jpg", ".ico", ".cur", ".wmf"}


class Tree:
    """Relative path (with slashes) -> text."""

    def __init__(self, files):
        self.files = files

    def __iter__(self):
        return iter(sorted(self.files.items()))

    def sources(self, *folders, endings=(".h", ".cpp")):
        """The C++ files below the folders, as (path, text)."""
        for path, text in self:
            if path.endswith(endings) and path.startswith(tuple(f + "/" for f in folders)):
                yield path, text


def listed(root):
    """The paths that git tracks or would track; every file where there is no git."""
    if shutil.which("git"):
        git = subprocess.run(["git", "-C", str(root), "ls-files", "-z", "-co", "--exclude-standard"],
                             stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False)
        if git.returncode == 0 and git.stdout:
            return sorted(set(git.stdout.decode().split("\0")) - {""})
    return sorted(p.relative_to(root).as_posix() for p in root.rglob("*")
                  if not NOT_OURS & set(p.relative_to(root).parts))


def read(root=ROOT):
    """Every file of the tree that holds text."""
    files = {}
    for name in listed(root):
        path = root / name
        if path.is_file() and not path.is_symlink() and path.suffix not in PICTURES:
            data = path.read_bytes()
            if b"\0" not in data:
                files[name] = data.decode("utf-8", errors="replace")
    return Tree(files)


def lines_matching(text, pattern):
    """The (number, line) pairs in which the compiled pattern is found."""
    return [(n, line) for n, line in enumerate(text.splitlines(), 1) if pattern.search(line)]


def run(checks):
    """Runs checks on the real tree; says the faults and ends with status 1 if there are any."""
    tree = read()
    if not any(tree.sources("src")):
        sys.exit("There is no source to check.")
    faults = [fault for check in checks for fault in check(tree)]
    for fault in faults:
        print(fault)
    print(f"{len(tree.files)} files, {len(checks)} rules, {len(faults)} faults")
    sys.exit(1 if faults else 0)
