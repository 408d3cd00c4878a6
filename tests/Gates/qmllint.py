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


def complaints(report):
    for file in report["files"]:
        source = Path(file["filename"]).read_text()
        if not file["success"] and not file["warnings"]:
            yield f"{file['filename']}: cannot be read"
        for warning in file["warnings"]:
            if warning["type"] != "info" and not is_false_alarm(warning, source):
                yield f"{file['filename']}:{warning.get('line', 0)}: {warning['message']}"


def main():
    build = Path(sys.argv[1])
    for old in build.glob("*_qmllint.json"):
        old.unlink()
    # It fails where a module has warnings, so the reports decide; what else may fail leaves a report out.
    ninja = subprocess.run(["cmake", "--build", build, "--target", "all_qmllint_json", "--", "-k", "0"],
                           stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    modules = len(list((build / "qml").rglob("qmldir")))
    reports = [json.loads(file.read_text()) for file in sorted(build.glob("*_qmllint.json"))]
    found = [line for report in reports for line in complaints(report)]
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
