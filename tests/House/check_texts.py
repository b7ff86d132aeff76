"""Every check text that the library can report is named by a test, as a string literal.

usage: check_texts.py SOURCE_FOLDER

A text counts as named when a literal of a test contains it, or is exactly the expression that the text quotes. The texts of
checks that cannot fail are listed below; no test may name one of them, for it would only say that it never comes.
"""
import pathlib
import re
import sys

FORMS = {"TRUE": "boolean {} is FALSE", "True": "boolean {} is FALSE", "POINTER": "pointer {} is NULL", "Pointer": "pointer {} is NULL",
         "HANDLER": "handler {} is NULL_var", "Handler": "handler {} is NULL_var"}
LITERALS = r'(?:"(?:[^"\\\n]|\\.)*"\s*)+'
MACRO = re.compile(r"\bZELSYP_CHECK_(TRUE|POINTER|HANDLER)(?:_DETAILS|_AT)?\s*\(")
CALL = re.compile(r"\bCheck_(TRUE|Pointer|Handler)_Failed__\s*[(,]\s*(" + LITERALS + ")")
MESSAGE = re.compile(r"\b(?:CheckFailure__|HandleFailure)\s*\(\s*(" + LITERALS + ")")
# A line for the standard error stream: its values differ from run to run, the words between them do not.
PRINTED = re.compile(r"\bf(?:printf|puts)\s*\([^\"]*?(" + LITERALS + ")")
WORDS = re.compile(r"[^%\n]{8,}")
ESCAPES = {"n": "\n", "t": "\t", "\\": "\\", '"': '"', "0": "\0"}

# By source file: what it would report, and why it never does. The check says "Cannot fail".
UNREACHABLE = {
    "ZELSYPEventMap.cpp": {
        "pointer name is NULL": "the name of an event is a string of its own, empty when it was made without one",
        "boolean _events.GetSize() == 0 is FALSE": "no code but the map's own runs between the removal of all pairs and the check"},
    "ZELSYPEventHandlersSupport.cpp": {
        "boolean _eventHandlers.GetSize() == 0 is FALSE":
            "handlers die with the lists that Clear hands out, or while all pairs are removed, those they add included"},
    "ZELSYPEventPathBuilder.cpp": {
        "boolean nodes.GetLength() >= 1 is FALSE": "FillListOfNodes answers 1 for a list that has a node only"},
}


def without_comments_and_defines(text):
    text = re.sub(r'("(?:[^"\\\n]|\\.)*")|//[^\n]*|/\*.*?\*/', lambda match: match.group(1) or " ", text, flags=re.DOTALL)
    return re.sub(r"^\s*#\s*define\b(?:[^\n]*\\\n)*[^\n]*", "", text, flags=re.MULTILINE)


def value(literals):
    """The text that adjacent string literals stand for."""
    pieces = re.findall(r'"((?:[^"\\\n]|\\.)*)"', literals)
    return re.sub(r"\\(.)", lambda match: ESCAPES.get(match.group(1), match.group(0)), "".join(pieces))


def first_argument(text, start):
    """The macro argument that begins at start, as the preprocessor would quote it."""
    depth, position, quoted = 0, start, None
    while depth or quoted or text[position] not in ",)":
        character = text[position]
        if quoted:
            position += character == "\\"
            quoted = None if character == quoted else quoted
        elif character in "\"'":
            quoted = character
        else:
            depth += (character in "([{") - (character in ")]}")
        position += 1
    return " ".join(text[start:position].split())


def check_texts(source):
    """Pairs of the whole text and the expression in it (the same for a plain message)."""
    source = without_comments_and_defines(source)
    expressions = [(match.group(1), first_argument(source, match.end())) for match in MACRO.finditer(source)]
    expressions += [(match.group(1), value(match.group(2))) for match in CALL.finditer(source)]
    messages = [value(match.group(1)) for match in MESSAGE.finditer(source)]
    printed = [value(match.group(1)) for match in PRINTED.finditer(source)]
    messages += [words.strip() for line in printed for words in WORDS.findall(re.sub(r"%[sd]", "%", line))]
    return {(FORMS[kind].format(expression), expression) for kind, expression in expressions} | {(text, text) for text in messages}


def literals_of(tests):
    return {value(match.group(0)) for text in tests for match in re.finditer(LITERALS, without_comments_and_defines(text))}


def untested(source, literals):
    return sorted(text for text, expression in check_texts(source)
                  if expression not in literals and not any(text in literal for literal in literals))


def pretended(sources, literals, unreachable):
    """What the list of unreachable texts says wrongly, and what tests say about them; sources are texts by file name."""
    wrong = []
    for name, texts in unreachable.items():
        reported = {text for text, _ in check_texts(sources.get(name, ""))}
        elsewhere = {text for other, source in sources.items() if other != name for text, _ in check_texts(source)}
        wrong += [f"{name}: is said never to report what it does not check: {text}" for text in texts if text not in reported]
        wrong += [f"{name}: never reports what a test names: {text}" for text in texts
                  if text not in elsewhere and any(text in literal for literal in literals)]
    return wrong


def read(root, folder):
    return {path: path.read_text() for path in sorted((root / folder).rglob("*")) if path.suffix in (".h", ".cpp")}


def main(root):
    root = pathlib.Path(root)
    sources = read(root, "OPXCoreTools")
    literals = literals_of(read(root, "tests").values())
    wrong = [f"{path.relative_to(root)}: no test names: {text}" for path, source in sources.items() for text in untested(source, literals)
             if text not in UNREACHABLE.get(path.name, {})]
    wrong += pretended({path.name: source for path, source in sources.items()}, literals, UNREACHABLE)
    unreachable = sum(len(texts) for texts in UNREACHABLE.values())
    found = sum(len(check_texts(source)) for source in sources.values()) - unreachable
    print("\n".join(wrong) or f"{found} check texts are named by tests, {unreachable} more cannot be reported")
    return 1 if wrong or not found else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
