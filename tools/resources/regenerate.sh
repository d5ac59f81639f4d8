#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the UtilsDllzglv6 authors
#
# Makes the generated files of resources/ again from their sources: the .qm catalogues, the .png icons and the
# calibration catalogue. An ordinary build does not need it: its results are committed.
#
# Needs, by the names of Debian 12: qt6-l10n-tools (lrelease), librsvg2-bin (rsvg-convert), python3.
# Unchanged sources give unchanged bytes with the same versions of these packages.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
resources=$root/resources

find_lrelease() {
    local candidate
    for candidate in "${LRELEASE:-}" /usr/lib/qt6/bin/lrelease "$(command -v lrelease6 || true)" "$(command -v lrelease || true)"; do
        if [[ -n $candidate && -x $candidate ]]; then
            printf '%s\n' "$candidate"
            return
        fi
    done
    echo "regenerate.sh: lrelease is missing (package qt6-l10n-tools)" >&2
    return 1
}

need() { # command, package
    command -v "$1" >/dev/null || { echo "regenerate.sh: $1 is missing (package $2)" >&2; exit 1; }
}

lrelease=$(find_lrelease)
need rsvg-convert librsvg2-bin
need python3 python3

for source in "$resources"/translations/zyx_*.ts; do
    "$lrelease" -silent "$source" -qm "${source%.ts}.qm"
done

icons=$resources/icons/app_icon
mkdir -p "$icons"
for size in 16 32 48 64 128 256 512 1024; do
    drawing=app_icon.svg
    if ((size <= 32)); then
        drawing=app_icon_small.svg # fewer and bolder lines, no grain
    fi
    rsvg-convert --width "$size" --height "$size" --output "$icons/logo_$size.png" "$resources/artwork/$drawing"
done

python3 "$root/tools/resources/makeShadows.py" "$resources/icons/backgroungs"

python3 "$root/tools/calibration/makeCatalogue.py"
