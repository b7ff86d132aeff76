"""The C++ that a guide shows is code that the tests compile and run, line for line; each page shows what is right and what is wrong.

usage: shown_code.py PAGE[,PAGE...] CODE_FOLDER...      a page may be a folder of pages
"""
import pathlib
import re
import sys

BLOCK = re.compile(r"^```cpp\n(.*?)^```$", re.MULTILINE | re.DOTALL)


def lines_of(code):
    """The lines without their indentation, which a guide leaves out."""
    return [line.strip() for line in code.splitlines()]


def is_shown_in(block, source):
    lines, code = lines_of(block), lines_of(source)
    return any(code[start:start + len(lines)] == lines for start in range(len(code) - len(lines) + 1))


def unfounded_blocks(page, sources):
    """The first line of each block of the page that no source contains."""
    return [block.splitlines()[0] for block in BLOCK.findall(page) if not any(is_shown_in(block, source) for source in sources)]


def missing_halves(page):
    """A page that shows code says which of it is right and which is wrong."""
    return [half for half in ("Right", "Wrong") if BLOCK.search(page) and not re.search(rf"^ *{half}\b", page, re.MULTILINE)]


def pages_of(guide):
    """The page itself, or the pages of a folder."""
    return sorted(guide.glob("*.md")) if guide.is_dir() else [guide]


def main(guides, *folders):
    pages = {path: path.read_text() for guide in guides.split(",") for path in pages_of(pathlib.Path(guide))}
    sources = [path.read_text() for folder in folders for path in pathlib.Path(folder).rglob("*") if path.suffix in (".h", ".cpp")]
    faults = [f"{path}: no test compiles the code that begins with: {line}" for path, page in pages.items()
              for line in unfounded_blocks(page, sources)]
    faults += [f"{path}: shows no code that is marked as {half}" for path, page in pages.items() for half in missing_halves(page)]
    shown = sum(len(BLOCK.findall(page)) for page in pages.values())
    print("\n".join(faults) or f"{shown} blocks of {len(pages)} pages are compiled by tests")
    return 1 if faults or not shown else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
