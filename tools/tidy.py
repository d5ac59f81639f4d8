#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""clang-tidy over the sources that the presets dev, release and asan have configured.

    tools/tidy.py               all of them
    tools/tidy.py --since REV   those that changed since this commit; all, if the history does not reach so far

A source that was found clean is not read again before its preprocessed text or the configuration changes.
"""
import argparse
import hashlib
import json
import os
import re
import shlex
import subprocess
import sys
import time
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
CLANG, TIDY = "clang++-14", "clang-tidy-14"
CACHE = Path(os.environ.get("XDG_CACHE_HOME") or Path.home() / ".cache") / "UtilsDllzglv6-tidy"
KEPT_DAYS = 30

# the preset whose build knows the sources of a folder
PRESETS = {"modules": "dev", "examples": "dev", "tests": "dev", "docs": "dev", "benchmarks": "release", "fuzz": "asan"}
# sources of other builds: Windows, other processors, without a library, and the project of the installation test
OTHERS = re.compile(r"_win\.cpp$|_plain\.cpp$|Missing\.cpp$|/foreignHost/")
# what only the other compiler, or a build with precompiled headers, understands
FOREIGN = re.compile(r" -Winvalid-pch| -fpch-preprocess| (-Xclang )?-include(-pch)? (-Xclang )?\S*cmake_pch\.hxx(\.pch)?"
                     r"| -Xclang -fno-pch-timestamp")


def git(*arguments):
    return subprocess.run(["git", *arguments], cwd=ROOT, capture_output=True, text=True)


def sources(since):
    patterns = [f"{folder}/*.cpp" for folder in PRESETS]
    names = git("ls-files", *patterns).stdout.split()
    if since and git("rev-parse", "--verify", "--quiet", f"{since}^{{commit}}").returncode == 0:
        changed = set(git("diff", "--name-only", since, "--", *patterns).stdout.split())
        names = [name for name in names if name in changed]
    return [name for name in names if not OTHERS.search(name)]


def commands(preset):
    """The compile commands of a preset by source, as clang-tidy reads them; also left as a database of its own."""
    entries = json.loads((ROOT / "build" / preset / "compile_commands.json").read_text())
    for entry in entries:
        entry["command"] = FOREIGN.sub("", entry["command"])
    folder = ROOT / "build" / "tidy" / preset
    folder.mkdir(parents=True, exist_ok=True)
    (folder / "compile_commands.json").write_text(json.dumps(entries))
    return {entry["file"]: entry for entry in entries}


def fingerprint(entry, configuration):
    flags = shlex.split(entry["command"])[1:]
    output = flags.index("-o")
    del flags[output:output + 2]
    text = subprocess.run([CLANG, *flags, "-w", "-E", "-C", "-P", "-dD"], cwd=entry["directory"], capture_output=True)
    if text.returncode != 0:
        return None
    parts = [configuration, " ".join(flags).encode(), Path(entry["file"]).read_bytes(), text.stdout]
    return hashlib.sha256(b"\0".join(parts).replace(bytes(ROOT), b"")).hexdigest()


def check(entry, preset, configuration):
    """What clang-tidy says of a source; nothing if it is clean."""
    key = fingerprint(entry, configuration)
    if key and (CACHE / key).exists():
        (CACHE / key).touch()
        return ""
    run = subprocess.run([TIDY, "-p", ROOT / "build" / "tidy" / preset, "--quiet", entry["file"]],
                         capture_output=True, text=True)
    if run.returncode != 0:
        return run.stdout + run.stderr
    if key:
        (CACHE / key).touch()
    return ""


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--since", metavar="REV")
    options = parser.parse_args()

    CACHE.mkdir(parents=True, exist_ok=True)
    for file in CACHE.iterdir():
        if time.time() - file.stat().st_mtime > KEPT_DAYS * 86400:
            file.unlink()

    names = sources(options.since)
    version = subprocess.run([TIDY, "--version"], capture_output=True, check=True).stdout
    configuration = version + (ROOT / ".clang-tidy").read_bytes()
    databases = {preset: commands(preset) for preset in {PRESETS[name.split("/")[0]] for name in names}}
    unclean = 0
    work = {}
    for name in names:
        preset = PRESETS[name.split("/")[0]]
        work[name] = databases[preset].get(str(ROOT / name)), preset
        if work[name][0] is None:
            sys.exit(f"{name} is no source of the preset {preset}")
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        jobs = {name: pool.submit(check, *where, configuration) for name, where in work.items()}
        for name, job in jobs.items():
            if job.result():
                unclean += 1
                print(f"{name}:\n{job.result()}", flush=True)
    print(f"clang-tidy: {len(names)} sources, {unclean} with findings")
    return 1 if unclean else 0


if __name__ == "__main__":
    sys.exit(main())
