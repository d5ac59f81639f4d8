#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the UtilsDllzglv6 authors
#
# Makes the generated files again from their sources. An ordinary build does not need it: its results are committed.
# In resources/: the .qm catalogues, the icon of the application, all other icons and pictures with the logo, the
# slogans and the shadows of the preview, the presets with their notes, the film history, the calibration catalogue and
# its modules.
# In examples/lightbox/translations/ and tests/look/catalogues/: the .qm catalogues.
#
# "regenerate.sh --data" makes the presets, the film history and the calibration alone: python3, 3.11 or newer, is
# enough for that.
#
# Needs, by the names of Debian 12: qt6-l10n-tools (lrelease, lconvert), qt6-translations-l10n,
# librsvg2-bin (rsvg-convert), python3.
# Unchanged sources give unchanged bytes with the same versions of these packages.
#
# "regenerate.sh --fonts" makes the fonts, too. They come from packages alone: fonts-roboto-fontface, fonts-open-sans and,
# from the network, two of npm; python3-fonttools and python3-brotli make them.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
resources=$root/resources

make_data() { # presets and notes, film history, catalogue and modules
    python3 "$root/tools/presets/makePresets.py"
    python3 "$root/tools/timeMachine/makeDecades.py"
    python3 "$root/tools/calibration/makeCatalogue.py"
    python3 "$root/tools/calibration/makeModules.py" "$resources/calibration/caf"
}

if [[ ${1:-} == --data ]]; then
    make_data
    exit
fi

find_tool() { # lrelease or lconvert
    local candidate
    for candidate in "/usr/lib/qt6/bin/$1" "$(command -v "${1}6" || true)" "$(command -v "$1" || true)"; do
        if [[ -n $candidate && -x $candidate ]]; then
            printf '%s\n' "$candidate"
            return
        fi
    done
    echo "regenerate.sh: $1 is missing (package qt6-l10n-tools)" >&2
    return 1
}

need() { # command, package
    command -v "$1" >/dev/null || { echo "regenerate.sh: $1 is missing (package $2)" >&2; exit 1; }
}

lrelease=$(find_tool lrelease)
lconvert=$(find_tool lconvert)
need rsvg-convert librsvg2-bin
need python3 python3

for source in "$resources"/translations/zyx_*.ts "$root"/examples/lightbox/translations/*.ts \
    "$root"/tests/look/catalogues/*.ts; do
    "$lrelease" -silent "$source" -qm "${source%.ts}.qm"
done

# Qt's own qt_XX.qm only names others; this makes one that stands alone.
for language in de fr ja zh_CN; do
    catalogue=/usr/share/qt6/translations/qtbase_$language.qm
    [[ -r $catalogue ]] || { echo "regenerate.sh: $catalogue is missing (package qt6-translations-l10n)" >&2; exit 1; }
    "$lconvert" -i "$catalogue" -o "$resources/translations/qt_$language.qm"
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

python3 "$root/tools/resources/artwork/makeIcons.py" "$resources"
python3 "$root/tools/resources/makeShadows.py" "$resources/icons/backgroungs"
python3 "$root/tools/resources/pictures/makePictures.py" "$resources/icons"

make_data

make_fonts() {
    local packages
    packages=$(mktemp -d)
    for name in fontsource fontsource-variable; do
        mkdir "$packages/$name"
        (cd "$packages/$name" && tar -xzf "$(npm pack --silent "@$name/maven-pro@5.3.0")")
    done
    python3 "$root/tools/resources/makeFonts.py" \
        --roboto /usr/share/fonts/truetype/roboto-fontface/roboto --open-sans /usr/share/fonts/truetype/open-sans \
        --maven-pro "$packages/fontsource/package" --maven-pro-variable "$packages/fontsource-variable/package" \
        "$resources/fonts"
    rm -r "$packages"
}

if [[ ${1:-} == --fonts ]]; then
    need npm npm
    make_fonts
fi
