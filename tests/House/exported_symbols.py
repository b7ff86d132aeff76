"""Compares what a shared library exports with the list kept for it, so that no symbol comes or goes unseen.

usage: exported_symbols.py LIBRARY LIST [--accept]      --accept writes the list instead (tools/accept-exports does that)
"""
import difflib
import pathlib
import re
import subprocess
import sys

# Templates of other libraries, instantiated here: the standard library keeps its own visible whatever a user asks for.
FOREIGN = re.compile(r"_Z(?:GVR?|T[VTIS]|T[hv]\w*?_)?Z*N?[rVK]*[RO]?(?:S[tabsiod]|9__gnu_cxx|8nlohmann|5boost|10__cxxabiv1)")


def ours(mangled_names):
    return [name for name in mangled_names if not FOREIGN.match(name)]


def exported(library):
    lines = subprocess.run(["nm", "-D", "--defined-only", library], check=True, capture_output=True, text=True).stdout.splitlines()
    names = ours(line.split()[2] for line in lines)
    readable = subprocess.run(["c++filt"], input="\n".join(names), check=True, capture_output=True, text=True).stdout
    return sorted(set(readable.splitlines()))


def main(library, kept_list, *options):
    now = exported(library)
    kept = pathlib.Path(kept_list)
    if options == ("--accept",):
        kept.parent.mkdir(exist_ok=True)
        kept.write_text("".join(f"{name}\n" for name in now))
        return 0
    before = kept.read_text().splitlines() if kept.exists() else []
    changes = [line for line in difflib.unified_diff(before, now, "kept", "exported", n=0, lineterm="") if line[:2] not in ("@@",)]
    if changes:
        print("\n".join(changes), f"\nThe exports changed. When that is meant: tools/accept-exports, and commit {kept.name}")
    if not now:
        print(f"{library} exports nothing")
    return 1 if changes or not now else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
