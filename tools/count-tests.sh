#!/usr/bin/env bash
# How many tests the last run of ctest ran under each label, from the results of a build folder:
#   tools/count-tests.sh build/ci
set -euo pipefail
results=$1/test-results

line=
for label in "$results"/*/; do
    [ -d "$label" ] || break
    # Each element <testsuite> has the sums of one group of tests.
    sums=$(cat "$label"*.xml | sed -n 's/.*<testsuite .* tests="\([0-9]*\)".* skipped="\([0-9]*\)".*/\1 \2/p' |
        awk '{tests += $1; skipped += $2} END {printf "%d tests (%d skipped)", tests - skipped, skipped}')
    line+="${line:+, }$(basename "$label"): $sums"
done
echo "${line:-no results}"
