#!/usr/bin/env bash
# check.sh <preset>: whether every source of the programs compiles for Windows without a warning. The headers of the
# toolkit and of the libraries are this system's, so that nothing has to be built for it; nothing is linked. The preset
# has been built, for the headers that come of the forms' descriptions.
set -euo pipefail
cd "$(dirname "$0")/../.."
build=build/$1
headers=$build/windows-headers
toolkit=/usr/include/$(gcc -print-multiarch)/qt6

# Only these libraries: all of /usr/include would bring this system's own headers along.
mkdir -p "$headers"
ln -sfn /usr/include/unicode "$headers/unicode"
ln -sf /usr/include/sqlite3.h "$headers"
flags=(-std=c++20 -fsyntax-only -Wall -Wextra -Wpedantic -Werror -DNOMINMAX -DUNICODE -D_UNICODE -DU_STATIC_IMPLEMENTATION
    -Isrc -Itools "-I$build/generated" "-I$build/src/vabo_forms_autogen/include" -isystem "$headers" -isystem "$toolkit")
for part in Core Gui Widgets; do
    flags+=(-isystem "$toolkit/Qt$part")
done
compile() {
    git ls-files -z "$@" ':!*Posix.cpp' |
        xargs -0 -P "$(nproc)" -n 4 x86_64-w64-mingw32-g++-posix "${flags[@]}"
}
compile 'src/*.cpp' 'tools/provision/*.cpp' 'tools/start/*.cpp' ':!src/ado' ':!src/platform'
flags+=(-include windows.h) # whose types ODBC's headers use
compile 'src/ado/*.cpp' 'src/platform/*.cpp'
