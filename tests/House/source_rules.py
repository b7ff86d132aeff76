"""The rules of the house that no compiler knows: floors, closed rooms, and one place for each operating system.

usage: source_rules.py SOURCE_FOLDER
"""
import pathlib
import re
import sys

# Lowest first. A file includes from its own floor and from those below.
FLOORS = ["HostRuntime", "OPXCoreTools", "OPXTreeBridge", "OPXExplorer"]
PLATFORMS = {"posix": "win32", "win32": "posix"}
ENDINGS = {".h", ".cpp"}
FOLDERS = [*FLOORS, "tests", "benchmarks", "fuzz", "examples"]


def read_sources(root):
    """Path from the root (with slashes) to text, for every C++ file of the house."""
    return {path.relative_to(root).as_posix(): path.read_text()
            for folder in FOLDERS for path in sorted((root / folder).rglob("*")) if path.suffix in ENDINGS}


def quoted_includes(text):
    return re.findall(r'^\s*#\s*include\s*[<"]([^>"]+)[>"]', text, re.MULTILINE)


def parts(path):
    return path.split("/")


def platform_tests_outside_platform_folders(sources):
    return [f"{path}: asks for the operating system outside posix/ and win32/"
            for path, text in sources.items() if re.search(r"\b_WIN32\b", text) and not PLATFORMS.keys() & set(parts(path))]


def is_test(path):
    """A test may hold on one platform only, and says why; what tests share holds on both."""
    return parts(path)[0] == "tests" and parts(path)[1] != "support"


def missing_twins(sources):
    stems = {path.rsplit(".", 1)[0] for path in sources}
    return [f"{path}: has no twin in {PLATFORMS[parts(path)[-2]]}/"
            for path in sources if len(parts(path)) > 1 and parts(path)[-2] in PLATFORMS and not is_test(path)
            and "/".join([*parts(path)[:-2], PLATFORMS[parts(path)[-2]], parts(path)[-1]]).rsplit(".", 1)[0] not in stems]


def headers_by_name(sources):
    """Where each header stands; the export header of a library is made by its build."""
    named = {parts(path)[-1]: path for path in sources if path.endswith(".h")}
    return {**named, **{f"{floor}Export.h": f"{floor}/{floor}Export.h" for floor in FLOORS}}


def includes(sources):
    """Each include of a header of the house, as the path that includes and the path that is included."""
    headers = headers_by_name(sources)
    return [(path, headers[parts(name)[-1]]) for path, text in sources.items()
            for name in quoted_includes(text) if parts(name)[-1] in headers]


def floor(path):
    return FLOORS.index(parts(path)[0]) if parts(path)[0] in FLOORS else len(FLOORS)


def includes_upwards(sources):
    return [f"{path}: includes {header}, of a floor above"
            for path, header in includes(sources) if floor(header) > floor(path)]


def room(path):
    """The src folder that a file stands in, or None."""
    return path[:path.index("/src/")] if "/src/" in path else None


def may_enter(path, header):
    return not room(header) or (room(path) and parts(path)[0] == parts(header)[0])


def includes_into_closed_rooms(sources):
    return [f"{path}: includes {header}, which belongs to the src folder of {room(header)}"
            for path, header in includes(sources) if not may_enter(path, header)]


def events_use_exported_headers_only(sources):
    return [f"{path}: includes {header}, which OPXCoreTools.m keeps for itself"
            for path, header in includes(sources)
            if "/OPXCoreToolsEvents.m/" in path and "/OPXCoreTools.m/" in header]


RULES = [platform_tests_outside_platform_folders, missing_twins, includes_upwards, includes_into_closed_rooms,
         events_use_exported_headers_only]


def main(root):
    sources = read_sources(pathlib.Path(root))
    broken = [line for rule in RULES for line in rule(sources)]
    print("\n".join(broken) or f"{len(sources)} files keep the rules")
    return 1 if broken or not sources else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
