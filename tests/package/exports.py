#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""Compares what the library exports with what its public headers promise, both ways.

The promise is read from the headers themselves by libclang, under the compile command of one of the library's sources:
every function, method and variable of ours with the export macro, the members that moc fills in, and the tables and type
information of polymorphic classes. Private members of an exported class come out with it; they may be there and need not.
"""

import argparse
import ctypes
import json
import re
import shlex
import subprocess
import sys
from pathlib import Path

SKIPPED = 77

try:
    from clang import cindex
    from clang.cindex import AccessSpecifier, AvailabilityKind, CursorKind, LinkageKind
except ImportError:
    print("skipped: needs libclang's Python module (package python3-clang-14)")
    sys.exit(SKIPPED)

FUNCTIONS = (CursorKind.FUNCTION_DECL, CursorKind.CXX_METHOD, CursorKind.CONSTRUCTOR, CursorKind.DESTRUCTOR,
             CursorKind.CONVERSION_FUNCTION)
CLASSES = (CursorKind.CLASS_DECL, CursorKind.STRUCT_DECL)
SCOPES = (CursorKind.NAMESPACE, CursorKind.LINKAGE_SPEC, CursorKind.UNEXPOSED_DECL)
EXPORT_ATTRIBUTES = (CursorKind.VISIBILITY_ATTR, CursorKind.DLLEXPORT_ATTR)

# What the linker itself puts into every ELF module.
LINKERS_OWN = {"__bss_start", "_edata", "_end", "_init", "_fini"}
# Owners of template instantiations that may come along, if they are weak.
FOREIGN = re.compile(r"^(std|__gnu_cxx|__cxxabiv1|log4cplus|Qt\w*|Q[A-Z]\w*|q[A-Z]\w*)$")


class StringSet(ctypes.Structure):
    """The CXStringSet of libclang."""

    _fields_ = [("strings", ctypes.POINTER(cindex._CXString)), ("count", ctypes.c_uint)]


def declare_missing_functions():
    """Two calls that the Python module has no name for."""
    library = cindex.conf.lib
    library.clang_Cursor_isFunctionInlined.argtypes = [cindex.Cursor]
    library.clang_Cursor_isFunctionInlined.restype = ctypes.c_uint
    library.clang_Cursor_getCXXManglings.argtypes = [cindex.Cursor]
    library.clang_Cursor_getCXXManglings.restype = ctypes.POINTER(StringSet)
    library.clang_getCursorVisibility.argtypes = [cindex.Cursor]
    library.clang_getCursorVisibility.restype = ctypes.c_int


def all_names(cursor):
    """Every symbol of a function: a constructor or destructor has several."""
    names = cindex.conf.lib.clang_Cursor_getCXXManglings(cursor)
    if not names:
        return [cursor.mangled_name]
    return [cindex.conf.lib.clang_getCString(names.contents.strings[index]) for index in range(names.contents.count)]


def mangled_scope(cursor):
    """The Itanium name of a class that is no template."""
    scopes = []
    while cursor.kind != CursorKind.TRANSLATION_UNIT:
        if cursor.kind == CursorKind.NAMESPACE or cursor.kind in CLASSES:
            scopes.insert(0, f"{len(cursor.spelling)}{cursor.spelling}")
        cursor = cursor.semantic_parent
    return scopes[0] if len(scopes) == 1 else "N" + "".join(scopes) + "E"


def bases(record):
    for child in record.get_children():
        if child.kind == CursorKind.CXX_BASE_SPECIFIER:
            definition = child.type.get_canonical().get_declaration()
            yield definition, any(token.spelling == "virtual" for token in child.get_tokens())


def virtual_methods(record):
    methods = (CursorKind.CXX_METHOD, CursorKind.DESTRUCTOR, CursorKind.CONVERSION_FUNCTION)
    return [child for child in record.get_children() if child.kind in methods and child.is_virtual_method()]


def is_polymorphic(record):
    return bool(virtual_methods(record)) or any(is_polymorphic(base) for base, _ in bases(record))


def has_virtual_bases(record):
    return any(is_virtual or has_virtual_bases(base) for base, is_virtual in bases(record))


def is_inline(function):
    return bool(cindex.conf.lib.clang_Cursor_isFunctionInlined(function))


class Promise:
    """The symbols that the headers promise (needed), and those that may come with them (allowed)."""

    def __init__(self, is_windows):
        self.is_windows = is_windows
        self.needed = {}  # symbol: where it is declared
        self.allowed = set()
        self.allowed_prefixes = []
        self.needed_members = {}  # readable name of an instantiated template's member: where
        self.instantiations = set()  # readable names of the templates instantiated for hosts
        self.own_names = set()  # what the headers declare outside of all namespaces, and the namespaces

    def is_ours(self, cursor):
        location = cursor.location.file
        return location is not None and location.name in self.headers

    def is_exported(self, cursor):
        return any(child.kind in EXPORT_ATTRIBUTES for child in cursor.get_children()) and self.is_visible(cursor)

    def is_visible(self, cursor):
        """What the compiler itself computed, where it tells visibility apart from export."""
        if self.is_windows:
            return True
        return cindex.conf.lib.clang_getCursorVisibility(cursor) == 3  # CXVisibility_Default

    def read(self, headers, arguments):
        self.headers = {str(Path(header)) for header in headers}
        text = "".join(f'#include "{header}"\n' for header in headers)
        unit = cindex.Index.create().parse("everyHeader.cpp", args=arguments, unsaved_files=[("everyHeader.cpp", text)],
                                           options=cindex.TranslationUnit.PARSE_SKIP_FUNCTION_BODIES)
        errors = [str(entry) for entry in unit.diagnostics if entry.severity >= cindex.Diagnostic.Error]
        if errors:
            raise SystemExit("The public headers could not be read:\n" + "\n".join(errors[:20]))
        for cursor in unit.cursor.get_children():
            if self.is_ours(cursor):
                self.own_names.add(cursor.spelling)
                self.read_declaration(cursor, False)

    def read_declaration(self, cursor, is_private):
        if cursor.kind in SCOPES:
            for child in cursor.get_children():
                self.read_declaration(child, is_private)
        elif cursor.kind in CLASSES:
            self.read_class(cursor, is_private)
        elif cursor.kind in FUNCTIONS and self.is_exported(cursor):
            self.add_function(cursor, is_private)
        elif cursor.kind == CursorKind.VAR_DECL and self.is_exported(cursor):
            self.add_variable(cursor, is_private)

    def read_class(self, record, is_private, is_member_of_exported=False):
        if not record.is_definition() and not self.is_instantiation(record):
            return
        is_exported = self.is_exported(record) or (is_member_of_exported and not self.is_windows
                                                   and self.is_visible(record))
        if self.is_instantiation(record):
            if is_exported:
                self.add_instantiation(record)
            return
        if is_exported:
            self.add_tables(record)
        for member in record.get_children():
            if member.kind == CursorKind.FRIEND_DECL:
                for friend in member.get_children():
                    if friend.kind in FUNCTIONS and self.is_exported(friend):
                        self.add_function(friend, False)
                continue
            is_hidden_member = is_private or member.access_specifier == AccessSpecifier.PRIVATE
            if member.kind in CLASSES:
                self.read_class(member, is_hidden_member, is_exported)
            elif member.kind in FUNCTIONS and (self.is_exported(member) or is_exported and self.is_visible(member)):
                self.add_function(member, is_hidden_member)
            elif member.kind == CursorKind.VAR_DECL and (self.is_exported(member)
                                                         or is_exported and self.is_visible(member)):
                self.add_variable(member, is_hidden_member)

    @staticmethod
    def is_instantiation(record):
        return bool(cindex.conf.lib.clang_getSpecializedCursorTemplate(record)) and "<" in record.displayname

    def add_function(self, function, is_private):
        if function.availability == AvailabilityKind.NOT_AVAILABLE or function.linkage != LinkageKind.EXTERNAL:
            return  # deleted, or of this file alone
        is_pure = (function.kind == CursorKind.CXX_METHOD and function.is_pure_virtual_method())
        names = all_names(function)
        if is_private or is_pure or is_inline(function):
            self.allowed.update(names)
        else:
            self.needed.update(dict.fromkeys(names, where(function)))
        if function.kind == CursorKind.CONSTRUCTOR:
            # libclang lists no form for complete objects of an abstract class, some compilers make one
            self.allowed.update(name.replace("C2E", "C1E") for name in names)

    def add_variable(self, variable, is_private):
        if variable.linkage != LinkageKind.EXTERNAL:
            return
        words = {token.spelling for token in variable.get_tokens()}
        if is_private or words & {"inline", "constexpr", "="}:
            self.allowed.add(variable.mangled_name)
        else:
            self.needed[variable.mangled_name] = where(variable)

    def add_tables(self, record):
        name = mangled_scope(record)
        type_information = {f"_ZTI{name}", f"_ZTS{name}"}
        is_defined_once = any(not is_inline(method) and not method.is_pure_virtual_method()
                              for method in virtual_methods(record))
        if not is_polymorphic(record) or not is_defined_once:
            self.allowed.update(type_information, {f"_ZTV{name}"})
            return
        needed = {f"_ZTV{name}", f"_ZTI{name}"}
        if has_virtual_bases(record):
            needed.add(f"_ZTT{name}")
            self.allowed_prefixes.append(f"_ZTC{name}")  # the vtables that hold during construction
        if self.is_windows:
            self.allowed.add(f"_ZTS{name}")  # reached through the type information alone
        else:
            needed.add(f"_ZTS{name}")
        self.needed.update(dict.fromkeys(needed, where(record)))

    def add_instantiation(self, record):
        """An explicit instantiation: its public functions are needed, all else of it may come along."""
        readable = record.type.get_canonical().spelling
        self.instantiations.add(readable)
        for member in specialized_template(record).get_children():
            if (member.kind == CursorKind.CXX_METHOD and member.access_specifier == AccessSpecifier.PUBLIC
                    and not member.is_pure_virtual_method()):
                self.needed_members[f"{readable}::{member.spelling}("] = where(record)


def specialized_template(record):
    return cindex.conf.lib.clang_getSpecializedCursorTemplate(record)


def where(cursor):
    return f"{cursor.location.file.name}:{cursor.location.line}"


class Exported:
    """One exported symbol."""

    def __init__(self, name, is_weak):
        self.name = name
        self.is_weak = is_weak


def exports_of_elf(library, nm):
    """The dynamic symbols that are defined there; the kinds V, W and u are weak or merged like weak ones."""
    lines = run([nm, "-D", "--defined-only", library]).splitlines()
    return [Exported(line.split()[-1].split("@")[0], line.split()[-2] in "VWu") for line in lines]


def exports_of_dll(library, objdump):
    """The export table knows no weak symbols."""
    table = run([objdump, "-p", library]).split("[Ordinal/Name Pointer] Table", 1)[1]
    return [Exported(match[1], False) for match in re.finditer(r"^\s+\[\s*\d+\] (\S+)$", table, re.MULTILINE)]


def run(command, text=None):
    return subprocess.run(command, input=text, capture_output=True, text=True, check=True).stdout


def demangled(names):
    names = list(names)
    return dict(zip(names, run(["c++filt"], "\n".join(names) + "\n").splitlines()))


def owner(name):
    """The outermost scope of a symbol; of a table or guard, of what it is for. Empty if there is none to be seen."""
    match = re.match(r"_Z(?:GV|GR|T[VTISC])?[ZN]*[rVKRO]*(?:(S[tabsiod])|L?(\d+))", name)
    if match is None:
        return ""
    return "std" if match[1] else name[match.end():match.end() + int(match[2])]


def compare(promise, exports):
    """The differences, as lines for people; none if all is as promised."""
    readable = demangled({entry.name for entry in exports} | set(promise.needed))
    exported = {entry.name for entry in exports}
    missing = [f"promised, but not exported: {readable[name]}  [{name}, {place}]"
               for name, place in promise.needed.items() if name not in exported]
    missing += [f"promised, but not exported: {start}...)  [{place}]"
                for start, place in promise.needed_members.items()
                if not any(readable[name].startswith(start) for name in exported)]
    surplus = [f"exported, but not promised: {readable[entry.name]}  [{entry.name}]"
               for entry in exports if not is_accounted_for(promise, entry, readable[entry.name])]
    return sorted(missing) + sorted(surplus)


def is_accounted_for(promise, entry, readable):
    name = entry.name
    if name in promise.needed or name in promise.allowed or name in LINKERS_OWN:
        return True
    if name.startswith(tuple(promise.allowed_prefixes)):
        return True
    thunk = re.match(r"_ZT(?:h|v|c)(?:n?\d+_)+", name)  # adjusts the object's address for a method
    if thunk and "_Z" + name[thunk.end():] in promise.needed:
        return True
    plain = re.sub(r"^.* (for|to) ", "", readable)
    if any(plain == instantiation or plain.startswith(f"{instantiation}::") for instantiation in promise.instantiations):
        return True
    return entry.is_weak and owner(name) not in promise.own_names and bool(FOREIGN.match(owner(name)))


def check_that_it_can_fail(promise, exports):
    """Takes away and adds symbols, and counts what the comparison says."""
    failures = []

    def expect(count, changed, what):
        found = compare(promise, changed)
        if len(found) != count:
            failures.append(f"{what}: {count} differences expected, found {found}")

    expect(0, exports, "as it is")
    for name in promise.needed:
        expect(1, [entry for entry in exports if entry.name != name], f"without {name}")
    strangers = ["_ZN9ZYX_zglv68surpriseEv", "_ZN11ZyxPlatform8surpriseEv", "_ZN8UtilsDll8surpriseEv", "_Z8surprisev",
                 "_ZN8Surprise3runEv", "_ZN9ZYX_zglv69CSettings8surpriseEv", "_ZTVN9ZYX_zglv68SurpriseE", "surprise"]
    for name in strangers:
        for is_weak in (False, True):
            expect(1, exports + [Exported(name, is_weak)], f"with {name}")
    for name in ("_ZNSt6vectorIN9ZYX_zglv65ThingESaIS1_EE5clearEv", "_ZSt4moveIRiEvOT_", "_ZTI5QListI7QStringE",
                 "_ZN5QListI7QStringE6appendEv"):
        expect(0, exports + [Exported(name, True)], f"with a weak {name}")
        expect(1, exports + [Exported(name, False)], f"with a strong {name}")
    return failures


def compile_arguments(build_folder, source):
    """How the library's sources are compiled, in words that libclang understands; and whether that is for Windows."""
    entries = json.loads((Path(build_folder) / "compile_commands.json").read_text())
    entry = next(entry for entry in entries if Path(entry["file"]) == Path(source))
    words = shlex.split(entry["command"])
    compiler = next(word for word in words if re.search(r"(\+\+|cc|clang)(-[\w.]+)?$", word) and "ccache" not in word)
    target = run([compiler, "-dumpmachine"]).strip()
    arguments = ["-xc++", f"--target={target}", "-nostdinc++", "-resource-dir", resource_folder()]
    for index, word in enumerate(words):
        if word == "-isystem":
            arguments += [word, words[index + 1]]
        elif re.match(r"-(I|D|std=|fvisibility)", word):
            arguments.append(word)
    for folder in system_folders(compiler):
        arguments += ["-isystem", folder]
    return arguments, "mingw" in target or "windows" in target


def resource_folder():
    """libclang's own headers: found for its own system, but not for every target."""
    unit = cindex.Index.create().parse("a.c", unsaved_files=[("a.c", "#include <mm_malloc.h>\n")])
    return str(Path(next(unit.get_includes()).include.name).parent.parent)


def system_folders(compiler):
    """The compiler's own search path, without what lies beside its intrinsics, for which libclang has its own."""
    listing = subprocess.run([compiler, "-E", "-xc++", "-v", "/dev/null"], capture_output=True, text=True, check=True,
                             env={"LC_ALL": "C", "PATH": "/usr/bin:/bin"}).stderr
    block = listing.split("#include <...> search starts here:")[1].split("End of search list")[0]
    folders = [str(Path(line.strip()).resolve()) for line in block.splitlines() if line.strip()]
    return [folder for folder in folders if not (Path(folder) / "stddef.h").exists()
            or not (Path(folder) / "stdarg.h").exists()]


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--library", required=True)
    parser.add_argument("--headers", required=True, help="a file with the path of a public header in each line")
    parser.add_argument("--build-folder", required=True)
    parser.add_argument("--source", required=True, help="the source whose compile command the headers are read under")
    parser.add_argument("--nm", default="nm")
    parser.add_argument("--objdump", default="objdump")
    parser.add_argument("--self-check", action="store_true", help="show that the comparison can fail, instead")
    options = parser.parse_args()

    declare_missing_functions()
    arguments, is_windows = compile_arguments(options.build_folder, options.source)
    promise = Promise(is_windows)
    promise.read(Path(options.headers).read_text().split("\n")[:-1], arguments)
    exports = (exports_of_dll(options.library, options.objdump) if is_windows
               else exports_of_elf(options.library, options.nm))

    differences = check_that_it_can_fail(promise, exports) if options.self_check else compare(promise, exports)
    print("\n".join(differences) or f"{len(exports)} exported symbols, {len(promise.needed)} promised: no difference")
    return 1 if differences else 0


if __name__ == "__main__":
    sys.exit(main())
