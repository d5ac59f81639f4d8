#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
#
# Runs a program under Wine, with the SDK that ZYX_WINDOWS_SDK names: the tests of the preset windows start this way.
#
# Once in some thousand starts the kernel has put something where Wine maps its shared data; Wine then ends with 1 before
# the program has begun, and without a word, as its messages are off. Each test says something, so what ends like this is
# started again, twice at most; a failure that was printed stands.
set -uo pipefail
: "${ZYX_WINDOWS_SDK:?names no folder}"

output=$(mktemp)
trap 'rm -f "$output"' EXIT
for start in 1 2 3; do
    "$ZYX_WINDOWS_SDK/wine-run" "$@" 2>&1 | tee "$output"
    code=${PIPESTATUS[0]}
    if [ "$code" -ne 1 ] || [ -s "$output" ]; then
        break
    fi
    echo "Start $start of $1 ended with 1 before the program said anything" >&2
done
exit "$code"
