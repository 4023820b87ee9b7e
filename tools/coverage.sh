#!/usr/bin/env bash
# Builds the coverage preset, runs the tests and prints for each folder of src which part of its lines and branches
# they ran, and the lines that none ran:
#   tools/coverage.sh                             all tests
#   tools/coverage.sh -L '^(unit|embedded)$'      those without the wire; arguments go to ctest
# A branch that only an exception takes isn't counted. A test that fails is counted as far as it came.
set -euo pipefail
cd "$(dirname "$0")/.."
build=build/coverage

tools/packages.sh build test coverage
cmake --preset coverage >/dev/null
cmake --build --preset coverage -j "$(nproc)"
find "$build" -name '*.gcda' -delete
failed=0
ctest --preset coverage -j "$(nproc)" "$@" || failed=$?
gcovr --root . --filter src/ --exclude-throw-branches --exclude-unreachable-branches -j "$(nproc)" \
    --json "$build/coverage.json" "$build/src"
tools/coverage/report.py "$build/coverage.json"
exit $failed
