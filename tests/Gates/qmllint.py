#!/usr/bin/env python3
"""Runs qmllint over every QML module and fails on what it warns of; .qmllint.ini says what that is.

It takes the false alarms of Qt 6.4 out, among them an id of the file that is used inside a component of the
same file. qmllint accepts that only after `pragma ComponentBehavior: Bound`, with which Qt 6.4 makes no
component in a Loader.

    qmllint.py FOLDER_OF_THE_BUILD
"""

import json
import re
import subprocess
import sys
from pathlib import Path

ID = re.compile(r"^\s*id:\s*(\w+)", re.MULTILINE)
PARAMETERS = re.compile(r"\b(?:function|signal)\s+\w+\(([^)]*)\)")
ITEM_TAKEN_FOR_VALUE = re.compile(r'init[GS]etValueLookup\(.*\*"\)')
PARAMETER_TYPE = re.compile(r":\s*(\w+)")

FALSE_ALARMS = [
    'Type "QUuid" of property',  # Qt 6.4 does not describe it to QML, which hands it on all the same
    'No type found for property "pageID"',  # a QUuid too
    'No type found for property "tableID"',
    'No type found for property "viewID"',
    'Property "map" not found on type "QList<Choice>"',
    "Cannot assign binding of type QQuickWindow to QQuickWindowQmlImpl",
    'No type found for property "bookID"',
    'No type found for property "projectID"',
    "Cannot assign binding of type QStringList to QList<QString>",  # two names of one type
    'Property "callLater" is a QJSValue property',  # it is a method of Qt's own
]


def is_false_alarm(warning, source):
    if any(text in warning["message"] for text in FALSE_ALARMS):
        return True
    if warning["message"] != "Unqualified access" or "charOffset" not in warning:
        return False
    word = source[warning["charOffset"]:warning["charOffset"] + warning["length"]]
    return word in ID.findall(source)


def dangling_types(source, made_of_files):
    """Types of parameters that Qt 6.4 may free while the function is still described by them, and crash."""
    for parameters in PARAMETERS.findall(source):
        yield from made_of_files.intersection(PARAMETER_TYPE.findall(parameters))


def complaints(report, made_of_files):
    for file in report["files"]:
        source = Path(file["filename"]).read_text()
        for name in dangling_types(source, made_of_files):
            yield f"{file['filename']}: a parameter of the type {name}, which is a QML file; say var"
        if not file["success"] and not file["warnings"]:
            yield f"{file['filename']}: cannot be read"
        for warning in file["warnings"]:
            if warning["type"] != "info" and not is_false_alarm(warning, source):
                yield f"{file['filename']}:{warning.get('line', 0)}: {warning['message']}"


def miscompiled(build):
    """Functions that Qt 6.4 compiles to a crash: a local variable holds an item, is tested, and then read from."""
    for file in sorted(build.glob("src/**/qmlcache/*_qml.cpp")):
        line = ""
        for text in file.read_text().splitlines():
            if text.startswith("// ") and not text.startswith("// generate_"):
                line = text[3:]
            elif ITEM_TAKEN_FOR_VALUE.search(text):
                yield f"{file.name}: compiled to a crash, test something else than the item: {line}"


def main():
    build = Path(sys.argv[1])
    for old in build.glob("*_qmllint.json"):
        old.unlink()
    # It fails where a module has warnings, so the reports decide; what else may fail leaves a report out.
    ninja = subprocess.run(["cmake", "--build", build, "--target", "all_qmllint_json", "--", "-k", "0"],
                           stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    modules = len(list((build / "qml").rglob("qmldir")))
    reports = [json.loads(file.read_text()) for file in sorted(build.glob("*_qmllint.json"))]
    made_of_files = {Path(file["filename"]).stem for report in reports for file in report["files"]}
    found = [line for report in reports for line in complaints(report, made_of_files)]
    found += sorted(set(miscompiled(build)))
    if found:
        print("\n".join(found))
        return 1
    linted = sum(len(report["files"]) for report in reports)
    if not linted or (ninja.returncode and not any(file["warnings"] for report in reports for file in report["files"])):
        print(ninja.stdout)
        return 1
    print(f"{linted} files in {len(reports)} of {modules} modules are clean.")
    return 0


if __name__ == "__main__":
    sys.exit(main())
