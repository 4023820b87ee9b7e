#!/usr/bin/env bash
# Installs what is missing, builds and runs all tests. Arguments go to ctest (./test.sh -R engine); VABO_PRESET picks
# another preset than ci (VABO_PRESET=asan ./test.sh).
set -euo pipefail
cd "$(dirname "$0")"
preset=${VABO_PRESET:-ci}

tools/packages.sh build test
cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset" -j "$(nproc)"
ctest --preset "$preset" -j "$(nproc)" "$@"
