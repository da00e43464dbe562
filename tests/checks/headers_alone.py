"""Every header compiles alone, with the compiler and the flags of the build.

Usage: headers_alone.py COMPILER TOOLKIT_INCLUDE_FOLDER... Only the headers of src/surface/qt and of the tests get the toolkit's
folders."""
import concurrent.futures
import os
import subprocess
import sys

import tree

FLAGS = ["-x", "c++", "-std=c++20", "-fPIC", "-fsyntax-only", "-w"]  # warnings are the build's to give


def command(compiler, toolkit, root, path):
    """The compiler's call for a file that includes just this header."""
    src, tests = root / "src", root / "tests"
    includes = [f"-I{src}"]
    if not path.startswith("src/"):
        includes += [f"-I{tests}", f"-I{(root / path).parent}"]
    if path.startswith("src/surface/qt/") or not path.startswith("src/"):
        includes += [f"-isystem{folder}" for folder in toolkit]
    return [compiler, *FLAGS, *includes, "-"]


def fault(compiler, toolkit, root, path):
    """What the compiler says about a header, or nothing."""
    run = subprocess.run(command(compiler, toolkit, root, path), input=f'#include "{root / path}"\n', text=True,
                         stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
    return f"{path} does not compile alone:\n{run.stdout}" if run.returncode else None


def faults(compiler, toolkit, root):
    """The headers that do not compile alone; and how many there are."""
    headers = [p for p in tree.listed(root) if p.endswith(".h") and p.startswith(("src/", "tests/"))
               and (root / p).is_file()]
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        found = list(pool.map(lambda p: fault(compiler, toolkit, root, p), headers))
    return [f for f in found if f], len(headers)


def main(compiler, *toolkit):
    folders = sorted(set(toolkit) - {"/usr/include"})  # the compiler has that one by itself, and in its own place
    found, count = faults(compiler, folders, tree.ROOT)
    for text in found:
        print(text)
    print(f"{count} headers, {len(found)} faults")
    sys.exit(1 if found or not count else 0)


if __name__ == "__main__":
    main(*sys.argv[1:])
