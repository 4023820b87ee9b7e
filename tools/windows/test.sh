#!/usr/bin/env bash
# Runs the tests for Windows that tools/windows/build.sh has built, under Wine: all but those with an X server of their
# own. Tells how many tests of each program ran, and each that was skipped with its reason; fails where one fails.
#   tools/windows/test.sh               all
#   tools/windows/test.sh -R engine     what ctest chooses by these options
# VABO_WINDOWS_BUILD and VABO_WINDOWS_PREFIX are where the tests and the toolkit are, if not in build/windows.
set -euo pipefail
cd "$(dirname "$0")/../.."
work=$PWD/build/windows
build=${VABO_WINDOWS_BUILD:-$work/vabo}
export VABO_WINDOWS_PREFIX=${VABO_WINDOWS_PREFIX:-$work/prefix}
. tools/windows/wine.sh
# A registry of their own, so that programs which the tests start may write there.
export WINEPREFIX=${VABO_WINDOWS_WINE:-$work/wine-tests} VABO_TESTS_OWN_REGISTRY=1
# Wine keeps variables of these names from its programs, but for those that begin with its own. The fonts are Debian's.
mkdir -p "$build/fonts"
ln -sf /usr/share/fonts/truetype/dejavu/DejaVuSans{,-Bold}.ttf "$build/fonts"
export WINEQT_QPA_PLATFORM=offscreen WINEQT_QPA_FONTDIR
WINEQT_QPA_FONTDIR=$(there "$build/fonts")
# What serves all programs would otherwise keep the output of the first test open, and that test from ending.
wineboot --init >/dev/null 2>&1

rm -rf "$build/test-results"
result=0
ctest --test-dir "$build" --no-tests=error --timeout 1800 -j "${VABO_JOBS:-$(nproc)}" --output-on-failure -LE layers "$@" || result=$?

for file in "$build"/test-results/*/*.xml; do
    [ -e "$file" ] || break
    echo "$(basename "$(dirname "$file")") $(basename "$file" .xml): $(sed -n \
        's/^<testsuites tests="\([0-9]*\)" failures="\([0-9]*\)".*/\1 tests, \2 failed/p' "$file"), $(
        grep -c '<skipped ' "$file" || true) skipped"
    # The reason of a skipped test stands in the line behind its name, behind the place in the source.
    sed -n -e '/result="skipped"/{s/.*testcase name="\([^"]*\)".*classname="\([^"]*\)".*/    \2.\1: /;h}' \
        -e "/<skipped /{s/.*message=\"//;s/\".*//;s/^[^&]*&#x0A;//;s/&#x0A;//g;s/&apos;/'/g;H;x;s/\n//;p}" "$file"
done
if grep -q '^VABO_RAPIDCHECK:.*-NOTFOUND$' "$build/CMakeCache.txt"; then
    echo "Not built, since there is no rapidcheck for that system:"
    git ls-files 'tests/*PropertyTest.cpp' | sed 's/^/    /'
fi
tools/count-tests.sh "$build"
exit "$result"
