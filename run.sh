#!/usr/bin/env bash
# Installs what is missing, builds, prepares the sample workstation and starts the program. Without a display it walks
# all forms offscreen and prints where their pictures are.
set -euo pipefail
cd "$(dirname "$0")"

tools/packages.sh build
cmake --preset release -DVABO_BUILD_TESTS=OFF -DVABO_BUILD_BENCH=OFF >/dev/null
cmake --build --preset release -j "$(nproc)" --target vabo vabo-provision vabo-tour

drive=${VABO_DRIVE_C:-${XDG_DATA_HOME:-$HOME/.local/share}/vabo/c}
build/release/bin/vabo-provision "$drive"
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    VABO_DRIVE_C=$drive exec build/release/bin/vabo
fi
pictures=$PWD/build/release/tour
build/release/bin/vabo-tour "$drive" "$pictures"
echo "There is no display here. Pictures of every form: $pictures"
