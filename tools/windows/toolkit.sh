#!/usr/bin/env bash
# toolkit.sh <source> <build> <prefix>: the toolkit (Core, Gui, Widgets, Test) for Windows.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
source=$1 build=$2 export_prefix=$3
export VABO_WINDOWS_PREFIX=$export_prefix
host=/usr/lib/$(gcc -print-multiarch)/cmake

# Two places of the Windows plugin expect features that are off below.
platform=$source/src/plugins/platforms/windows
sed -i '/^static inline bool isSoftwareGl/,/^}/s/#if QT_CONFIG(dynamicgl)$/& \&\& !defined(QT_NO_OPENGL)/' \
    "$platform/qwindowswindow.cpp"
sed -i '/^#if QT_CONFIG(directwrite3)$/s/$/ \&\& QT_CONFIG(direct2d)/' "$platform/qwindowsintegration.cpp"

off=(
    opengl vulkan direct2d direct2d1_1       # widgets are painted by the processor
    network sql dbus xml concurrent printsupport # parts that no form uses
    icu glib zstd pkg_config                 # libraries that Windows doesn't have
    system_zlib system_pcre2 system_png system_jpeg system_freetype system_harfbuzz system_doubleconversion
    tabletevent sessionmanager gif movie undocommand textodfwriter wizard syntaxhighlighter # nothing of that is shown
)
features=()
for feature in "${off[@]}"; do
    features+=("-DFEATURE_$feature=OFF")
done
# The tools that the build runs are Debian's, of the same version, and none is built for there. Precompiled headers save
# time.
cmake -G Ninja -S "$source" -B "$build" -DCMAKE_TOOLCHAIN_FILE="$here/toolchain.cmake" \
    -DCMAKE_INSTALL_PREFIX="$VABO_WINDOWS_PREFIX" -DCMAKE_BUILD_TYPE=Release \
    -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="$host" -DQt6HostInfo_DIR="$host/Qt6HostInfo" \
    -DQT_QMAKE_TARGET_MKSPEC=win32-g++ -DQT_BUILD_TOOLS_WHEN_CROSSCOMPILING=OFF -DBUILD_WITH_PCH=ON \
    -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF "${features[@]}"
cmake --build "$build" -j "${VABO_JOBS:-$(nproc)}"
cmake --install "$build" >/dev/null
