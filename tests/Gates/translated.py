#!/usr/bin/env python3
"""Checks that the texts of src/ which a user reads are marked for translation.

In QML: each string with a letter in it that stands in a property such as text or title needs qsTr. The gallery of the
design system is for developers only.

In C++: each Qt string of several words that begins with a capital letter needs tr, translate or a _NOOP, unless it
goes to the log (as the reasons of some engines do) or is content that the program writes into records and files, such
as templates and quotes.

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


# Sentences as Qt strings; those for the log and of the system are plain.
CXX_STRING = re.compile(r'(?:\bQStringLiteral\(|\bQLatin1String\(|\bu)("[A-Z](?:[^"\\\n]|\\.)*[a-z] [A-Za-z%](?:[^"\\\n]|\\.)*")')
CXX_QUIET = re.compile(r"\b(?:qC?(?:Debug|Info|Warning|Critical)|createMethodCall|Q_ASSERT_X)\b")
CONTENT = re.compile(
    r"OVQuotes|Templates|Starter|DBEngine|Slide\.cpp|Deck\.cpp|PowerPoint|PdfImageWriter|CodeLanguages|OVFonts|OVDate|DateLabel|MonthGrid"
    r"|PackageArchive|OVZip|SnapshotCodec|SingleInstance|AppSettings\.h|DatabaseTable\.h"
)


def unmarked_cxx(source):
    source = without_comments(source)
    for string in CXX_STRING.finditer(source):
        statement = source[max(source.rfind(sign, 0, string.start()) for sign in ";{}") + 1 : string.start()]
        if not CXX_QUIET.search(statement):
            yield source.count("\n", 0, string.start()) + 1, string.group(1)


def findings(project):
    src = Path(project) / "src"
    for file in sorted([*src.rglob("*.cpp"), *src.rglob("*.h")]):
        if CONTENT.search(file.name):
            continue
        for line, text in unmarked_cxx(file.read_text()):
            yield f"{file.relative_to(project)}:{line}: {text}"
    for file in sorted(src.rglob("*.qml")):
        if "Gallery" in file.parts:
            continue
        for line, text in unmarked(file.read_text()):
            yield f"{file.relative_to(project)}:{line}: {text}"


if __name__ == "__main__":
    wrong = list(findings(Path(sys.argv[1] if len(sys.argv) > 1 else ".").resolve()))
    print("\n".join(wrong))
    sys.exit(f"{len(wrong)} texts are not marked: wrap them in qsTr() or tr()" if wrong else 0)
