#!/usr/bin/env bash
# Makes the Debian package of the committed tree in build/debian, with the distribution's own tools, and checks it:
#   tools/debian/build.sh
set -euo pipefail
cd "$(dirname "$0")/../.."

tools/packages.sh build debian
version=$(sed -n 's/^project(vabo VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
folder=build/debian
tree=$folder/vabo-$version
rm -rf "$folder"
mkdir -p "$tree"
git archive HEAD | tar -x -C "$tree"

# The distribution wants its files at the top; the date is the commit's, so that a second build makes the same package.
cp -r "$tree/tools/debian/debian" "$tree/debian"
date=$(git log -1 --format=%aD)
sed -e "s/@VERSION@/$version/" -e "s/@DATE@/$date/" "$tree/debian/changelog.in" >"$tree/debian/changelog"
licence=$(sed -n '/^Permission/,$p' LICENSE | sed -e 's/^$/./' -e 's/^/ /')
{
    sed '/@LICENCE@/d' "$tree/debian/copyright.in"
    printf '%s\n' "$licence"
} >"$tree/debian/copyright"
rm "$tree"/debian/*.in

(cd "$tree" && dpkg-buildpackage --build=binary --no-sign)
desktop-file-validate "$tree/tools/debian/vabo.desktop"
appstreamcli validate --no-net "$tree/tools/debian/it.vabo.vabo.metainfo.xml"
lintian --fail-on error,warning --display-info "$folder"/*.changes
ls -l "$folder"/*.deb
