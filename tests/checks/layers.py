"""The levels of the program: raster, surface, screens, main. Each may include only what lies beneath it."""
import re

import tree

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')
TOOLKIT = re.compile(r"^(Q[A-Za-z0-9]+$|Qt[A-Za-z]+/|q[a-z]+\.h$|private/q|qpa/|X11/|xcb/|gdk|gtk|wayland)")
SCREEN_CLASS = re.compile(r"^\s*(?:class|struct)\s+frm\w+\s*(?:final\s*)?:", re.MULTILINE)
SCREEN_FOLDERS = ("shell", "studio", "effects", "text", "files", "small", "course", "fantasy", "info")
# Headers of C++20's own library. Anything else in angle brackets is somebody else's.
STANDARD = set("""
algorithm any array atomic barrier bit bitset cassert ccomplex cctype cerrno cfenv cfloat charconv chrono cinttypes climits
clocale cmath codecvt compare complex concepts condition_variable coroutine csetjmp csignal cstdarg cstddef cstdint cstdio
cstdlib cstring ctime cuchar cwchar cwctype deque exception execution filesystem forward_list fstream functional future
initializer_list iomanip ios iosfwd iostream istream iterator latch limits list locale map memory memory_resource mutex new
numbers numeric optional ostream queue random ranges ratio regex scoped_allocator semaphore set shared_mutex source_location
span sstream stack stdexcept stop_token streambuf string string_view syncstream system_error thread tuple type_traits typeindex
typeinfo unordered_map unordered_set utility valarray variant vector version""".split())


def includes(text):
    """The includes of a file as (line number, bracket, name)."""
    for number, line in enumerate(text.splitlines(), 1):
        match = INCLUDE.match(line)
        if match:
            yield number, match[1], match[2]


def level(path):
    """The level of a path below src/."""
    for folder, name in (("surface/raster/", "raster"), ("surface/qt/", "surface/qt"), ("surface/", "surface")):
        if path.startswith(folder):
            return name
    return "screens" if path.split("/")[0] in SCREEN_FOLDERS else "main"


BENEATH = {
    "raster": {"raster"},
    "surface": {"raster", "surface"},
    "surface/qt": {"raster", "surface", "surface/qt"},
    "screens": {"raster", "surface", "screens"},
    "main": {"raster", "surface", "surface/qt", "screens", "main"},
}


def toolkit_stays_in_its_folder(files):
    """Only src/surface/qt includes the toolkit or the window system."""
    for path, text in files.sources("src"):
        if not path.startswith("src/surface/qt/"):
            for number, _, name in includes(text):
                if TOOLKIT.match(name):
                    yield f"{path}:{number}: includes the toolkit's <{name}>; only src/surface/qt may"


def raster_stands_on_the_standard_library(files):
    """src/surface/raster includes its own headers and the standard library's."""
    for path, text in files.sources("src/surface/raster"):
        for number, bracket, name in includes(text):
            if bracket == "<" and name not in STANDARD:
                yield f"{path}:{number}: <{name}> is not of the standard library"


def levels_look_down(files):
    """A file includes headers of its own level and of those beneath, by their path from src/."""
    for path, text in files.sources("src"):
        here = level(path[len("src/"):])
        for number, bracket, name in includes(text):
            if bracket == "<" or name.endswith(".moc") or name.startswith("moc_"):
                continue
            if "src/" + name not in files.files:
                yield f'{path}:{number}: "{name}" is no header below src/'
            elif level(name) not in BENEATH[here]:
                yield f'{path}:{number}: "{name}" ({level(name)}) lies above {here}'


def screens_do_not_include_each_other(files):
    """No header includes a screen's header; a screen's .cpp may. A screen's own table of controls, frmX_controls.h, is part of it."""
    screens = {path for path, text in files.sources("src", endings=(".h",)) if SCREEN_CLASS.search(text)}
    for path, text in files.sources("src", endings=(".h",)):
        own = path[len("src/"):-len(".h")]
        for number, _, name in includes(text):
            if "src/" + name in screens and not re.fullmatch(re.escape(own) + r"(_\w+)?\.h", name):
                yield f'{path}:{number}: a header includes the screen "{name}"'


CHECKS = [toolkit_stays_in_its_folder, raster_stands_on_the_standard_library, levels_look_down,
          screens_do_not_include_each_other]

if __name__ == "__main__":
    tree.run(CHECKS)
