#!/usr/bin/env bash
# licences.sh <sources> <folder>: the terms of everything in the shipped files that isn't the program's own, and a list.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/sources.sh"
sources=$1 folder=$2
documents=/usr/share/doc common=/usr/share/common-licenses

mkdir -p "$folder"
cp "$sources/qtbase/debian/copyright" "$folder/Qt.txt"
cp "$documents/qt6-translations-l10n/copyright" "$folder/Qt-traduzioni.txt"
cp "$sources/icu/LICENSE" "$folder/ICU.txt"
cp "$sources/sqlite/debian/copyright" "$folder/SQLite.txt"
cp "$documents/gcc-mingw-w64-base/copyright" "$folder/GCC.txt"
cp "$documents/mingw-w64-x86-64-dev/copyright" "$folder/mingw-w64.txt"
cp "$common/GPL-3" "$folder/GPL-3.txt"
cp "$common/LGPL-3" "$folder/LGPL-3.txt"
version() { dpkg-query -W -f '${source:Version}' "$1"; }
cat >"$folder/Elenco.txt" <<END
I programmi di VaBo hanno i termini di LICENSE.txt. Insieme a loro sono distribuiti:

  Qt                    Qt6*.dll, platforms, styles; LGPL-3     Qt.txt, LGPL-3.txt, GPL-3.txt
  Qt, traduzioni        translations                            Qt-traduzioni.txt
  GCC, librerie         libstdc++-6.dll, libgcc_s_seh-1.dll     GCC.txt, GPL-3.txt
  mingw-w64, librerie   libwinpthread-1.dll e nei programmi     mingw-w64.txt
  ICU                   nei programmi                           ICU.txt
  SQLite                nei programmi                           SQLite.txt

I sorgenti sono i pacchetti sorgente di Debian 12:

  qt6-base $qt_version
  qt6-translations $(version qt6-translations-l10n)
  gcc-mingw-w64 $(version gcc-mingw-w64-base)
  mingw-w64 $(version mingw-w64-x86-64-dev)
  icu $icu_version
  sqlite3 $sqlite_version

Qt è costruito da tools/windows/toolkit.sh, nei sorgenti di VaBo; i suoi file possono essere sostituiti con altri della
stessa versione.
END
sed -i 's/$/\r/' "$folder"/*.txt
