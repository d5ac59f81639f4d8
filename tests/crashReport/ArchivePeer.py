# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""Archives as Python's zipfile sees them.

ArchivePeer.py read ARCHIVE [PASSWORD]     prints the entries as JSON
ArchivePeer.py look ARCHIVE NAME           the same, but reads the content of the entry NAME only
ArchivePeer.py make ARCHIVE METHOD FOLDER  packs the files of FOLDER
"""
import hashlib
import json
import os
import sys
import zipfile


def digest_of(archive, info, password):
    digest = hashlib.sha256()
    with archive.open(info, pwd=password) as content:
        while piece := content.read(1 << 20):
            digest.update(piece)
    return digest.hexdigest()


def read(path, password=None, name=None):
    with zipfile.ZipFile(path) as archive:
        entries = []
        for info in archive.infolist():
            is_read = name is None or info.filename == name
            entries.append({
                "name": info.filename,
                "method": info.compress_type,
                "flags": info.flag_bits,
                "system": info.create_system,
                "time": list(info.date_time),
                "crc": info.CRC,
                "size": info.file_size,
                "packedSize": info.compress_size,
                "extra": info.extra.hex(),
                "comment": info.comment.hex(),
                "internal": info.internal_attr,
                "external": info.external_attr,
                "sha256": digest_of(archive, info, password) if is_read else None,
            })
        json.dump({"comment": archive.comment.hex(), "entries": entries}, sys.stdout)


def make(path, method, folder):
    with zipfile.ZipFile(path, "w", int(method)) as archive:
        for root, folders, files in os.walk(folder):
            folders.sort()
            for name in sorted(files):
                file = os.path.join(root, name)
                archive.write(file, os.path.relpath(file, folder))


if sys.argv[1] == "read":
    read(sys.argv[2], os.fsencode(sys.argv[3]) if len(sys.argv) > 3 else None)
elif sys.argv[1] == "look":
    read(sys.argv[2], name=sys.argv[3])
else:
    make(*sys.argv[2:5])
