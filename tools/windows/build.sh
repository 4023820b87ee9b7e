#!/usr/bin/env bash
# Builds for Windows, below build/windows, on a bare Debian 12 and from its packages and source packages alone:
#   tools/windows/build.sh                     toolkit, libraries, program, tests, installer and zip
#   tools/windows/build.sh program package     these steps only
# The toolkit and the libraries are kept: the first run takes half an hour, the next ones some minutes.
set -euo pipefail
cd "$(dirname "$0")/../.."
tools/packages.sh build windows # ahead of all else, which needs some of them

here=$PWD/tools/windows
work=$PWD/build/windows
jobs=${VABO_JOBS:-$(nproc)}
host=/usr/lib/$(gcc -print-multiarch)/cmake
export VABO_WINDOWS_PREFIX=$work/prefix
. "$here/sources.sh"

# For a program that the build runs.
. "$here/wine.sh"
export WINEPREFIX=$work/wine

sources() {
    mkdir -p "$work/sources"
    cd "$work/sources"
    source_lists "$work/apt"
    get_source qt6-base "$qt_version" qtbase
    get_source icu "$icu_version" icu
    get_source sqlite3 "$sqlite_version" sqlite
    get_source googletest "$googletest_version" googletest
    cd - >/dev/null
}

# begin <folder> <rule…>: whether something is left to be made there. A build that was interrupted goes on; where a
# version or one of the files with its rules has changed, all is made anew.
begin() {
    local folder=$1 made_of
    made_of=$(cd "$here" && cat sources.sh toolchain.cmake "${@:2}" | sha256sum)
    if [ "$(cat "$folder/made-of" 2>/dev/null)" != "$made_of" ]; then
        rm -rf "$folder"
        mkdir -p "$folder"
        echo "$made_of" >"$folder/made-of"
    fi
    [ ! -e "$folder/done" ]
}

toolkit() {
    begin "$work/toolkit" toolkit.sh || return 0
    sources
    "$here/toolkit.sh" "$work/sources/qtbase" "$work/toolkit" "$VABO_WINDOWS_PREFIX"
    touch "$work/toolkit/done"
}

libraries() {
    local made=$work/libraries
    begin "$made" icu-data.sh libraries/CMakeLists.txt || return 0
    sources
    "$here/icu-data.sh" "$work/sources/icu" "$made/icu-data"
    mkdir -p "$made/amalgamation"
    (cd "$made/amalgamation" && "$work/sources/sqlite/configure" --disable-tcl >/dev/null && make sqlite3.c >/dev/null)
    cmake -G Ninja -S "$here/libraries" -B "$made" -DCMAKE_TOOLCHAIN_FILE="$here/toolchain.cmake" \
        -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$VABO_WINDOWS_PREFIX" -DSOURCES="$work/sources" \
        -DAMALGAMATION="$made/amalgamation" -DICU_DATA="$made/icu-data/icudt.S"
    cmake --build "$made" -j "$jobs"
    cmake --install "$made" >/dev/null
    touch "$made/done"
}

# The icon is drawn by the program's own code, here; the system there wants one file with all sizes.
icon() {
    cmake -G Ninja -S . -B "$work/here" -DCMAKE_BUILD_TYPE=Release -DVABO_BUILD_TESTS=OFF >/dev/null
    cmake --build "$work/here" -j "$jobs" --target vabo-mark
    QT_QPA_PLATFORM=offscreen "$work/here/bin/vabo-mark" "$work/icon" 16 24 32 48 64 128 256
    icotool --create --output="$work/vabo.ico" "$work"/icon/*/apps/vabo.png
}

# Optimised as Debian's own packages are, with the lines of the sources for who looks into a crash; those files are
# stripped where they are shipped. The toolkit's tools, which the build runs, are this system's.
configure() {
    [ -e "$WINEPREFIX/vabo" ] || prepare_wine
    [ -e "$work/vabo.ico" ] || icon
    cmake -G Ninja -S . -B "$work/vabo" -DCMAKE_TOOLCHAIN_FILE="$here/toolchain.cmake" \
        -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_FLAGS_RELWITHDEBINFO="-O2 -g1" \
        -DCMAKE_PREFIX_PATH="$VABO_WINDOWS_PREFIX" -DVABO_ICON="$work/vabo.ico" \
        -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="$host" -DQt6HostInfo_DIR="$host/Qt6HostInfo" \
        -DCMAKE_CROSSCOMPILING_EMULATOR=/usr/bin/wine >/dev/null
}

program() {
    icon
    configure
    cmake --build "$work/vabo" -j "$jobs" --target vabo vabo-start vabo-provision vabo-tour
}

tests() {
    configure
    cmake --build "$work/vabo" -j "$jobs"
}

package() {
    "$here/package.sh" "$work" "$(sed -n 's/^project(vabo VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)"
}

# Without these fonts, and names for those that windows ask for, texts would have serifs or no width.
prepare_wine() {
    wineboot --init
    for wanted in "Tahoma" "MS Shell Dlg" "MS Shell Dlg 2" "Segoe UI"; do
        wine reg add 'HKCU\Software\Wine\Fonts\Replacements' /v "$wanted" /d "DejaVu Sans" /f >/dev/null
    done
    wineserver --wait
    touch "$WINEPREFIX/vabo" # all of this is done
}

mkdir -p "$work"
for step in "${@:-toolkit libraries program tests package}"; do
    for each in $step; do
        case "$each" in
        toolkit | libraries | program | tests | package) "$each" ;;
        *)
            echo "usage: build.sh [toolkit] [libraries] [program] [tests] [package]" >&2
            exit 2
            ;;
        esac
    done
done
