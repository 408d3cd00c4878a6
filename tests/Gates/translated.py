#!/usr/bin/env python3
"""Checks that the texts of src/ which a user reads are marked for translation.

In QML: each string with a letter in it that stands in a property such as text or title needs qsTr. The gallery of the
design system is for developers only.

    translated.py [folder of the project]
"""

import re
import sys
from pathlib import Path

# Properties that are shown or read out.
PROPERTIES = (
    "text title label message hint error subtitle detail placeholderText toolTip actionText emptyText "
    "Accessible.name Accessible.description"
).split()

# It is called the same in every language.
PRODUCT = '"Orvel"'

BINDING = re.compile(r"(?<![\w.])(%s)\s*:\s*" % "|".join(map(re.escape, PROPERTIES)))
STRING = re.compile(r'"(?:[^"\\\n]|\\.)*"')
COMMENT = re.compile(r"//[^\n]*|/\*.*?\*/", re.DOTALL)
# What stands in these calls is marked, or names something instead of being shown.
QUIET_CALL = re.compile(r"\b(?:qsTr|qsTrId|qsTranslate|QT_TR_NOOP|includes|startsWith|endsWith|indexOf|join|split)\($")
COMPARED = re.compile(r"(?:===|!==|==|!=|\bcase)\s*$")


def without_comments(source):
    """The source with blanks in the place of comments, so that lines keep their numbers."""
    return COMMENT.sub(lambda found: re.sub(r"[^\n]", " ", found.group()), source)


def expression_end(source, start):
    """Where the binding that starts here ends: at the end of its line, or of the brackets open there."""
    depth = 0
    position = start
    while position < len(source):
        string = STRING.match(source, position)
        if string:
            position = string.end()
            continue
        character = source[position]
        if character in "([{":
            depth += 1
        elif character in ")]}":
            depth -= 1
            if depth < 0:
                break
        elif character == ";" and depth == 0:
            break
        elif character == "\n" and depth == 0:
            following = source[position:].lstrip()
            if not following.startswith(("?", ":", "+", "&&", "||")):
                break
        position += 1
    return position


def unmarked(source):
    """Line and text of each string that is shown without being marked."""
    source = without_comments(source)
    for binding in BINDING.finditer(source):
        if source[: binding.start()].rstrip().endswith("?"):
            continue
        end = expression_end(source, binding.end())
        for string in STRING.finditer(source, binding.end(), end):
            before = source[binding.start() : string.start()].rstrip()
            text = re.sub(r"\\.", "", string.group())
            if text == PRODUCT or not re.search(r"[A-Za-z]{2}", text):
                continue
            # Asked for by its key.
            if re.search(r"\w\($", before) and re.fullmatch(r'"[a-z]\w*"', string.group()):
                continue
            if QUIET_CALL.search(before) or COMPARED.search(before) or before.endswith("["):
                continue
            yield source.count("\n", 0, string.start()) + 1, string.group()


def findings(project):
    src = Path(project) / "src"
    for file in sorted(src.rglob("*.qml")):
        if "Gallery" in file.parts:
            continue
        for line, text in unmarked(file.read_text()):
            yield f"{file.relative_to(project)}:{line}: {text}"


if __name__ == "__main__":
    wrong = list(findings(Path(sys.argv[1] if len(sys.argv) > 1 else ".").resolve()))
    print("\n".join(wrong))
    sys.exit(f"{len(wrong)} texts are not marked: wrap them in qsTr()" if wrong else 0)
