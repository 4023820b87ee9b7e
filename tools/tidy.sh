#!/usr/bin/env bash
# Runs clang-tidy on every source that a built preset (ci unless named) compiles, or on the files named after the preset.
set -euo pipefail
cd "$(dirname "$0")/.."
preset=${1:-ci}
shift || true

tools/packages.sh check
database=build/$preset/compile_commands.json
[ -f "$database" ] || {
    echo "Build first: cmake --preset $preset && cmake --build --preset $preset" >&2
    exit 1
}
if [ $# -eq 0 ]; then
    exec tools/tidy.py "$preset"
fi
echo "clang-tidy: $# sources"
printf '%s\n' "$@" | xargs -P "$(nproc)" -n 3 clang-tidy --quiet --extra-arg=-Wno-unknown-warning-option -p "build/$preset" 2> >(grep -v 'warnings generated\|^Suppressed\|^Use -header-filter' >&2)
