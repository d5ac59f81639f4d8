#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""Reads the includes of modules/ and fails where a room knows what it must not know."""

import argparse
import re
import sys
import tempfile
from pathlib import Path

EVERYTHING = "everything above"

# Which rooms a room may include. An arrow may also go on to what its target may include.
ROOMS = {
    "hostExchange": [],
    "platform": [],
    "utilsDll/frame": ["platform"],
    "utilsDll/settings": ["utilsDll/frame"],
    "storageLocation": ["utilsDll/settings"],
    "loggerSupport": ["utilsDll/settings", "storageLocation"],
    "utilsDll/eventLoop": ["utilsDll/frame"],
    "interfaces": ["utilsDll/frame"],
    "utilsDll/actions": ["utilsDll/eventLoop"],
    "utilsDll/soap": [],
    "utilsDll/crashReport": ["utilsDll/settings", "storageLocation", "utilsDll/soap"],
    "utilsDll/files": ["utilsDll/settings", "platform"],
    "utilsDll/geometry": ["utilsDll/frame"],
    "utilsDll/look": ["utilsDll/settings"],
    "utilsDll/dialogs": EVERYTHING,
    "uiControls": EVERYTHING,
    "baseDialogs": EVERYTHING,
    "aboutDlg": EVERYTHING,
}

# Headers that rooms without an arrow to them may include: one for all that export something, and one for a single room.
FOR_EXPORT = "utilsDll/frame/Export.h"
SINGLE_HEADERS = {("utilsDll/actions", "utilsDll/dialogs/SettingsPushButton.h"),
                  ("hostExchange", "utilsDll/frame/PluginKeys.h")}

# The sources in which two rooms meet against the order. An entry that is no longer needed fails as well.
MEETINGS = {("utilsDll/settings/PreferencesFile.cpp", "storageLocation/storageLocation.h"),
            ("storageLocation/CheckedDataFiles.cpp", "utilsDll/dialogs/MessageBox.h")}

# Libraries from outside: for all rooms, and for those with others.
LIBRARIES = {"standard library", "Qt"}
LIBRARIES_OF_ROOM = {
    "hostExchange": {"standard library"},
    "platform": {"standard library", "QtCore", "QtGui", "QtDBus", "operating system"},
    "loggerSupport": LIBRARIES | {"log4cplus"},
    "utilsDll/look": LIBRARIES | {"processor"},
    "utilsDll/crashReport": LIBRARIES | {"minizip", "zlib"},
}

# Conditions on the system or the compiler belong into the platform room; these are about a compiler's own ways.
SYSTEM_CONDITION = re.compile(r"\b(_WIN32|_WIN64|WIN32|WIN64|Q_OS_\w+|__linux\w*|__unix\w*|__APPLE__|__MINGW\w+|"
                              r"__CYGWIN__|__FreeBSD__|_MSC_VER|__GNUC__|__clang__|Q_CC_\w+)\b")
ALLOWED_CONDITIONS = {("utilsDll/frame/FunctionName.h", "_MSC_VER"), ("utilsDll/frame/FunctionName.h", "__clang__"),
                      ("utilsDll/frame/Export.h", "_MSC_VER"), ("utilsDll/frame/Export.h", "_WIN32")}


def room_of(path):
    """The folder of a file, as it stands in the table; of "utilsDll/frame/Export.h", "utilsDll/frame"."""
    return str(Path(path).parent.as_posix())


def may_include(room):
    """All rooms that a room may include, itself among them."""
    order = list(ROOMS)
    direct = order[:order.index(room)] if ROOMS[room] == EVERYTHING else ROOMS[room]
    return {room}.union(*(may_include(other) for other in direct))


def library_of(header):
    if header.startswith("Qt"):
        return header.split("/")[0]
    if header.startswith(("log4cplus/", "minizip/")):
        return header.split("/")[0]
    if header == "zlib.h":
        return "zlib"
    if header == "immintrin.h":
        return "processor"
    return "standard library" if re.fullmatch(r"[a-z_0-9]+", header) else "operating system"


class House:
    """The sources under one modules folder."""

    def __init__(self, modules, public_headers):
        self.modules = Path(modules)
        self.public_headers = public_headers  # paths from modules/
        self.files = {path.relative_to(self.modules).as_posix(): path.read_text(encoding="utf-8")
                      for path in sorted(self.modules.rglob("*")) if path.suffix in (".h", ".cpp", ".c", ".in")}
        self.met = set()

    def includes(self, file):
        """Pairs: how it is written, '<' or '"', and what."""
        return re.findall(r'^[ \t]*#[ \t]*include[ \t]*(<|"|\w)([^>"\n]*)', self.files[file], re.MULTILINE)

    def violations(self):
        found = []
        for file in self.files:
            if room_of(file) not in ROOMS:
                found.append(f"{file}: '{room_of(file)}' is no room")
                continue
            found += self.wrong_conditions(file)
            for mark, header in self.includes(file):
                found += [f"{file}: {text}" for text in self.wrong_include(file, mark, header)]
        for file in self.files:
            if room_of(file) == "hostExchange":
                found += self.reached_from_host_exchange(file)
        return found + [f"{file}: does not include {header}, although it may" for file, header in MEETINGS - self.met]

    def wrong_conditions(self, file):
        for line in re.findall(r"^[ \t]*#[ \t]*(?:if|ifdef|ifndef|elif)\b.*$", self.files[file], re.MULTILINE):
            for name in SYSTEM_CONDITION.findall(line):
                if room_of(file) != "platform" and (file, name) not in ALLOWED_CONDITIONS:
                    yield f"{file}: asks for {name}"

    def wrong_include(self, file, mark, header):
        room = room_of(file)
        if mark == "<":
            library = library_of(header)
            allowed = LIBRARIES_OF_ROOM.get(room, LIBRARIES)
            if library not in allowed and not (library.startswith("Qt") and "Qt" in allowed):
                yield f"includes <{header}> ({library})"
            return
        if mark != '"':
            yield "an include that is a macro can't be followed"
            return
        if header == f"{Path(file).stem}.moc" or header == f"moc_{Path(file).stem}.cpp":
            return
        if header not in self.files:
            yield f'includes "{header}", which is no path from modules/'
            return
        if file in self.public_headers and header not in self.public_headers:
            yield f"a public header includes the private {header}"
        if (file, header) in MEETINGS:
            self.met.add((file, header))
            return
        if room_of(header) in may_include(room) or (room, header) in SINGLE_HEADERS:
            return
        if header == FOR_EXPORT and room != "platform":
            return
        yield f"includes {header}: {room} must not know {room_of(header)}"

    def reached_from_host_exchange(self, file):
        """It shall compile without Qt, so what it includes must not bring Qt along either."""
        reached, open_files = {file}, [file]
        while open_files:
            current = open_files.pop()
            for mark, header in self.includes(current):
                if mark == "<" and library_of(header) != "standard library" and current != file:
                    yield f"{file}: reaches <{header}> through {current}"
                if mark == '"' and header in self.files and header not in reached:
                    reached.add(header)
                    open_files.append(header)


GOOD = {
    "utilsDll/frame/Export.h": "#include <string>\n#ifdef UTILSDLL_BUILD\n#endif\n",
    "utilsDll/frame/FunctionName.h": "#if defined(_MSC_VER) && !defined(__clang__)\n#endif\n",
    "utilsDll/frame/Thing_p.h": '#include "utilsDll/frame/Export.h"\n',
    "utilsDll/frame/Thing.cpp": '#include "utilsDll/frame/Thing_p.h"\n#include "platform/Box.h"\n#include "Thing.moc"\n',
    "platform/Box.h": "#include <QtCore/QString>\n",
    "platform/Box_win.cpp": '#include "platform/Box.h"\n#ifdef _WIN32\n#include <windows.h>\n#endif\n',
    "utilsDll/settings/Settings.h": '#include "utilsDll/frame/Export.h"\n',
    "utilsDll/settings/PreferencesFile.cpp": '#include "storageLocation/storageLocation.h"\n',
    "storageLocation/storageLocation.h": "#include <QtCore/QDir>\n",
    "storageLocation/storageLocation.cpp": '#include "utilsDll/settings/Settings.h"\n#include "platform/Box.h"\n',
    "storageLocation/CheckedDataFiles.cpp": '#include "utilsDll/dialogs/MessageBox.h"\n',
    "utilsDll/dialogs/MessageBox.h": '#include "utilsDll/frame/Export.h"\n',
    "loggerSupport/Wrapper.cpp": '#include "storageLocation/storageLocation.h"\n#include <log4cplus/logger.h>\n',
    "utilsDll/soap/Soap.h": '#include "utilsDll/frame/Export.h"\n#include <QtXml/QDomNode>\n',
    "utilsDll/dialogs/SettingsPushButton.h": '#include "utilsDll/actions/Manager.h"\n',
    "utilsDll/actions/Manager.h": '#include "utilsDll/dialogs/SettingsPushButton.h"\n',
    "utilsDll/crashReport/Zip.cpp": "#include <minizip/zip.h>\n#include <zlib.h>\n",
    "hostExchange/Data.h": '#include "utilsDll/frame/Export.h"\n#include <unordered_map>\n',
    "aboutDlg/About.cpp": '#include "utilsDll/dialogs/SettingsPushButton.h"\n#include "platform/Box.h"\n',
}
# A file, a line more in it, and how often that is wrong.
BAD = [
    ("utilsDll/settings/Settings.h", '#include "storageLocation/storageLocation.h"', 2),  # also private
    ("utilsDll/settings/Other.cpp", '#include "storageLocation/storageLocation.h"', 1),
    ("storageLocation/storageLocation.cpp", '#include "utilsDll/dialogs/MessageBox.h"', 1),
    ("platform/Box.h", '#include "utilsDll/frame/Export.h"', 1),
    ("utilsDll/frame/Thing.cpp", '#include "utilsDll/settings/Settings.h"', 1),
    ("utilsDll/frame/Thing.cpp", '  #  include "utilsDll/settings/Settings.h" // why', 1),
    ("platform/Box.h", '#include "utilsDll/soap/Soap.h"', 1),
    ("platform/Box.h", "#include <QtWidgets/QWidget>", 1),
    ("utilsDll/soap/Soap.h", '#include "platform/Box.h"', 2),  # also private
    ("utilsDll/soap/Soap.h", '#include "utilsDll/frame/FunctionName.h"', 1),
    ("utilsDll/actions/Manager.h", '#include "aboutDlg/About.cpp"', 2),
    ("utilsDll/dialogs/SettingsPushButton.h", '#include "uiControls/Icon.h"', 1),  # no such file
    ("loggerSupport/Wrapper.cpp", '#include "utilsDll/soap/Soap.h"', 1),
    ("utilsDll/settings/Settings.h", "#include <log4cplus/logger.h>", 1),
    ("utilsDll/settings/Settings.h", "#include <windows.h>", 1),
    ("utilsDll/settings/Settings.h", "#include <unistd.h>", 1),
    ("utilsDll/settings/Settings.h", '#include "Settings_p.h"', 1),
    ("utilsDll/settings/Settings.h", '#include "utilsDll/frame/Thing_p.h"', 1),
    ("utilsDll/settings/Settings.h", "#include SOMETHING", 1),
    ("hostExchange/Data.h", "#include <QtCore/QString>", 1),
    ("hostExchange/Data.h", '#include "storageLocation/storageLocation.h"', 3),  # private, Qt through it
    ("utilsDll/frame/Export.h", "#include <QtCore/qglobal.h>", 1),  # hostExchange reaches Qt
    ("newRoom/Thing.h", "", 1),
    ("utilsDll/Thing.h", "", 1),
    ("utilsDll/frame/Thing.cpp", "#ifdef _WIN32", 1),
    ("utilsDll/frame/Thing.cpp", "#if defined(Q_OS_WIN) && !defined(__linux__)", 2),
    ("utilsDll/frame/Thing.cpp", "#  elif defined(_MSC_VER)", 1),
    ("utilsDll/frame/FunctionName.h", "#ifdef __APPLE__", 1),
]
PUBLIC_IN_GOOD = {"utilsDll/frame/Export.h", "utilsDll/frame/FunctionName.h", "utilsDll/settings/Settings.h",
                  "utilsDll/soap/Soap.h", "utilsDll/actions/Manager.h", "utilsDll/dialogs/SettingsPushButton.h",
                  "hostExchange/Data.h"}


def violations_in(files):
    with tempfile.TemporaryDirectory() as folder:
        for name, text in files.items():
            path = Path(folder) / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")
        return House(folder, PUBLIC_IN_GOOD).violations()


def check_that_it_can_fail():
    failures = [f"a good house: {text}" for text in violations_in(GOOD)]
    for file, line, count in BAD:
        found = violations_in({**GOOD, file: GOOD.get(file, "") + line + "\n"})
        if len(found) != count:
            failures.append(f"{file} with '{line}': {count} violations expected, found {found}")
    unmet = violations_in({**GOOD, "utilsDll/settings/PreferencesFile.cpp": ""})
    if len(unmet) != 1:
        failures.append(f"a meeting that does not take place: 1 violation expected, found {unmet}")
    return failures


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--modules", help="the folder to read")
    parser.add_argument("--public-headers", help="a file with the path of a public header in each line")
    parser.add_argument("--self-check", action="store_true", help="show on made-up rooms that the check can fail, instead")
    options = parser.parse_args()
    if options.self_check:
        found = check_that_it_can_fail()
    else:
        lines = Path(options.public_headers).read_text(encoding="utf-8").splitlines()
        public_headers = {Path(line).relative_to(options.modules).as_posix() for line in lines}
        found = House(options.modules, public_headers).violations()
    print("\n".join(found) or "no violations")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
