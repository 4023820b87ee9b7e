#!/usr/bin/env bash
# Installs what is missing, builds and runs all tests. Arguments go to ctest (./test.sh -R engine); VABO_PRESET picks
# another preset than ci (VABO_PRESET=asan ./test.sh). The last line is the number of tests by label.
set -euo pipefail
cd "$(dirname "$0")"
preset=${VABO_PRESET:-ci}

tools/packages.sh build test
cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset" -j "$(nproc)"
rm -rf "build/$preset/test-results"
failed=0
ctest --preset "$preset" -j "$(nproc)" "$@" || failed=$?
tools/count-tests.sh "build/$preset"
exit $failed
