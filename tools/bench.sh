#!/usr/bin/env bash
# Builds the release preset with the benchmarks and runs them all. Read the medians of `ratio`.
set -euo pipefail
cd "$(dirname "$0")/.."

tools/packages.sh build bench
cmake --preset release -DVABO_BUILD_TESTS=OFF -DVABO_BUILD_BENCH=ON >/dev/null
cmake --build --preset release -j "$(nproc)"
cd build/release
for bench in bin/vabo-bench-data bin/vabo-bench-start bin/vabo-bench-console bin/vabo-bench-locks \
    bin/vabo-bench-locks-wire bin/vabo-bench-wire "bin/vabo-bench-wire --pooled"; do
    $bench "$@"
done
