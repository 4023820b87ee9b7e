#!/usr/bin/env bash
# Installs the Debian packages for the given purposes (build, test, check, bench, coverage, debian, cross, windows,
# clients). Does nothing where none is missing.
set -euo pipefail

build=(g++ cmake ninja-build qt6-base-dev qt6-base-dev-tools libgl-dev qt6-translations-l10n libsqlite3-dev libicu-dev
    unixodbc-dev tdsodbc fonts-dejavu-core)
test=(libgtest-dev libgmock-dev librapidcheck-dev unixodbc python3 locales libxcb-xtest0-dev xvfb openbox)
check=(clang-format clang-tidy python3)
bench=(libbenchmark-dev)
coverage=(gcovr)
debian=(git build-essential debhelper dpkg-dev lintian appstream desktop-file-utils mmdebstrap)
cross=(g++-mingw-w64-x86-64-posix)
windows=("${cross[@]}" wine wine64 fonts-wine nsis tcl icu-devtools dpkg-dev icoutils zip
    qt6-base-private-dev)
clients=(freetds-bin python3-pyodbc python3-pymssql php8.2-cli php8.2-sybase libdbd-sybase-perl libjtds-java
    openjdk-17-jdk-headless)

wanted=()
for purpose in "$@"; do
    case "$purpose" in
    build) wanted+=("${build[@]}") ;;
    test) wanted+=("${test[@]}") ;;
    check) wanted+=("${check[@]}") ;;
    bench) wanted+=("${bench[@]}") ;;
    coverage) wanted+=("${coverage[@]}") ;;
    debian) wanted+=("${debian[@]}") ;;
    cross) wanted+=("${cross[@]}") ;;
    windows) wanted+=("${windows[@]}") ;;
    clients) wanted+=("${clients[@]}") ;;
    *)
        echo "usage: packages.sh [build] [test] [check] [bench] [coverage] [debian] [cross] [windows] [clients]" >&2
        exit 2
        ;;
    esac
done

missing=()
for package in "${wanted[@]}"; do
    status=$(dpkg-query -W -f '${Status}' "$package" 2>/dev/null || true)
    [ "$status" = "install ok installed" ] || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || {
        echo "These packages are missing: ${missing[*]}. Install them as root, or install sudo." >&2
        exit 1
    }
    as_root=(sudo)
fi
echo "Installing: ${missing[*]}"
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
