# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
#
# Sourced by ./run, ./test and .ci/run: what a fresh Debian 12 machine needs, and how a preset is built.
# shellcheck shell=bash disable=SC2034

# The compiler cache serves each checkout of this tree, wherever it lies, also with precompiled headers.
export CCACHE_BASEDIR="$PWD" CCACHE_NOHASHDIR=1 CCACHE_SLOPPINESS=pch_defines,time_macros

build_packages=(
    cmake ninja-build ccache g++ pkg-config
    qt6-base-dev qt6-base-dev-tools qt6-5compat-dev libgl-dev libopengl-dev liblog4cplus-dev libminizip-dev
    zlib1g-dev libcpp-httplib-dev libexiv2-dev libqt6sql6-sqlite libqt6svg6 qt6-svg-dev fonts-dejavu-core
)
test_packages=(
    clang clang-format-14 libclang-rt-14-dev python3 python3-clang-14 binutils
    xvfb xauth xdotool x11-utils zenity
    libxml2-utils lua5.4 openssl python3-spyne python3-zeep python3-suds gsoap libgsoap-dev libsoap-lite-perl php-cli php-soap
    zip unzip libzip-dev chromium chromium-driver python3-selenium
    qt6-qpa-plugins pkexec dbus-daemon colord libglib2.0-bin gvfs gvfs-daemons
)
gallery_packages=(fonts-droid-fallback) # for the languages that the embedded fonts have no letters of
run_packages=(python3-spyne "${gallery_packages[@]}")
bench_packages=(libbenchmark-dev libspdlog-dev gsoap libgsoap-dev zip unzip libzip-dev libopencv-core-dev)
check_packages=(clang-format-14 clang-tidy-14 shellcheck)
windows_packages=(
    xz-utils g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64 wine wine64 xvfb xauth fonts-dejavu-core
)

say() {
    printf '\n== %s\n' "$*"
}

# install_missing PACKAGE...: installs those that are missing, and says which.
install_missing() {
    local package missing=()
    for package in "$@"; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    say "Installing ${missing[*]}"
    local as_root=()
    [ "$(id -u)" = 0 ] || as_root=(sudo)
    "${as_root[@]}" apt-get update -q
    DEBIAN_FRONTEND=noninteractive "${as_root[@]}" apt-get install -q -y --no-install-recommends "${missing[@]}"
}

# build PRESET [TARGET...]
build() {
    local preset=$1
    shift
    say "Configuring $preset"
    cmake --preset "$preset" --log-level=WARNING
    say "Building $preset"
    cmake --build --preset "$preset" ${1:+--target "$@"}
}

# run_tests PRESET [CTEST ARGUMENT...]
run_tests() {
    local preset=$1
    shift
    say "Testing $preset"
    ctest --preset "$preset" --parallel "$(nproc)" "$@"
}
