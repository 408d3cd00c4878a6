#!/usr/bin/env python3
"""Checks that every include and import of src/ points to a tier below its own.

The link lines of CMake already refuse a wrong library. This gate also sees a header that is included
without being linked, and a QML module that is imported without being linked.

    tiers.py [folder of the project]
"""

import re
import sys
from pathlib import Path

# From the bottom up. A feature may use another feature only where its CMakeLists.txt says BUILDS_ON.
TIERS = ["Foundation", "Models", "Support", "Store", "DesignSystem", "Session", "Features", "App"]

INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"', re.MULTILINE)
QML_MODULE = re.compile(r"^\s*import\s+(Orvel[\w.]*)", re.MULTILINE)
QML_FOLDER = re.compile(r'^\s*import\s+"([^"]+)"', re.MULTILINE)
DECLARATION = re.compile(r"orvel_add_(?:library|qml_module)\s*\(([^)]*)\)")


def unit_of(path):
    """The part of the house a path below src/ belongs to: ("Store",) or ("Features", "Tasks")."""
    parts = Path(path).parts
    return parts[:2] if parts[0] == "Features" else parts[:1]


class Declarations:
    """What the CMake files say: the unit of each QML module, and which units build on which."""

    def __init__(self, src):
        self.unit_of_uri = {}
        unit_of_target = {}
        links = []
        for file in src.rglob("CMakeLists.txt"):
            unit = unit_of(file.relative_to(src))
            for declaration in DECLARATION.findall(file.read_text()):
                words = declaration.split()
                unit_of_target[words[0]] = unit
                if "URI" in words:
                    self.unit_of_uri[words[words.index("URI") + 1]] = unit
                if "BUILDS_ON" in words:
                    for word in words[words.index("BUILDS_ON") + 1:]:
                        if word.isupper():
                            break
                        links.append((unit, word))
        self.builds_on = {(unit, unit_of_target.get(target)) for unit, target in links}


def allowed(own, other, declarations):
    if own == other or (own, other) in declarations.builds_on:
        return True
    return TIERS.index(other[0]) < TIERS.index(own[0])


def included_path(src, file, text):
    """Where an include or a folder import leads, below src/; None if it leads elsewhere."""
    for start in (file.parent, src):
        target = (start / text).resolve()
        if target.exists() and target.is_relative_to(src):
            return target.relative_to(src)
    return None


def arrows(src, file, declarations):
    """The units that a file names, each with the text that names it."""
    text = file.read_text()
    if file.suffix == ".qml":
        for uri in QML_MODULE.findall(text):
            yield declarations.unit_of_uri.get(uri), uri
        names = QML_FOLDER.findall(text)
    else:
        names = INCLUDE.findall(text)
    for name in names:
        path = included_path(src, file, name)
        # Generated headers lie outside src/ and belong to the library that includes them.
        if path is not None:
            yield unit_of(path), name


def wrong_arrows(project):
    src = (project / "src").resolve()
    declarations = Declarations(src)
    wrong = []
    for file in sorted(src.rglob("*")):
        if file.suffix not in (".h", ".cpp", ".qml"):
            continue
        path = file.relative_to(src)
        own = unit_of(path)
        if len(path.parts) < 2 or own[0] not in TIERS:
            wrong.append(f"src/{path}: lies in no tier; the tiers are {', '.join(TIERS)}")
            continue
        for other, name in arrows(src, file, declarations):
            if other is None:
                wrong.append(f"src/{path}: no CMakeLists.txt declares the module {name}")
            elif not allowed(own, other, declarations):
                wrong.append(f"src/{path}: {'/'.join(own)} may not use {name}, which lies in {'/'.join(other)}")
    return wrong


def main():
    project = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).parents[2]
    wrong = wrong_arrows(project)
    print("\n".join(wrong) if wrong else "Every include and import points downwards.")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
