#!/usr/bin/env bash
# package.sh <build/windows> <version>: puts together what is shipped, and makes the installer and the zip of it.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
work=$1 version=$2
export VABO_WINDOWS_PREFIX=$work/prefix
. "$here/wine.sh"
dist=$work/VaBo

rm -rf "$dist"
mkdir -p "$dist/platforms" "$dist/styles" "$dist/translations"
cp "$work"/vabo/bin/vabo{,-start,-provision}.exe "$VABO_WINDOWS_PREFIX"/bin/Qt6{Core,Gui,Widgets}.dll \
    "$windows_compiler"/{libstdc++-6,libgcc_s_seh-1}.dll "$windows_runtime/libwinpthread-1.dll" "$dist"
cp "$VABO_WINDOWS_PREFIX/plugins/platforms/qwindows.dll" "$dist/platforms"
cp "$VABO_WINDOWS_PREFIX/plugins/styles/qwindowsvistastyle.dll" "$dist/styles"
cp /usr/share/qt6/translations/qtbase_it.qm "$dist/translations"
cp "$here/../../LICENSE" "$dist/LICENSE.txt"
"$here/licences.sh" "$work/sources" "$dist/licenze"
printf '[Paths]\r\nPrefix=.\r\nPlugins=.\r\nTranslations=translations\r\n' >"$dist/qt.conf"
x86_64-w64-mingw32-strip "$dist"/*.exe "$dist"/*.dll "$dist"/*/*.dll

# What the removal takes away is just what the installation has brought.
{
    find "$dist" -type f -printf '%P\n' | sort | tr / '\\' | sed 's/.*/Delete "$INSTDIR\\&"/'
    find "$dist" -mindepth 1 -type d -printf '%P\n' | sort -r | tr / '\\' | sed 's/.*/RMDir "$INSTDIR\\&"/'
} >"$work/installed.nsh"

rm -f "$work/VaBo-$version.zip"
(cd "$work" && zip -q -r -9 "VaBo-$version.zip" VaBo)
makensis -V2 -DOUTPUT="$work/VaBo-$version.exe" -DCONTENT="$dist" -DVERSION="$version" -DICON="$work/vabo.ico" \
    -DINSTALLED="$work/installed.nsh" "$here/installer.nsi"
du -sh "$dist" | sed 's/\t.*/ installed/'
ls -l "$work/VaBo-$version".{zip,exe}
