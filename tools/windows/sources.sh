# Sourced by build.sh: the source packages that everything for Windows is built from, and how they are got. The package
# manager checks their checksums; the system's own configuration stays as it is.

qt_version=6.4.2+dfsg-10
icu_version=72.1-3+deb12u1
sqlite_version=3.40.1-2+deb12u2
googletest_version=1.12.1-0.2

# The distribution's lists of source packages, in a folder of our own.
source_lists() {
    mkdir -p "$1/parts" "$1/lists/partial"
    sed 's/^Types:.*/Types: deb-src/' /etc/apt/sources.list.d/*.sources >"$1/parts/sources.sources" 2>/dev/null || true
    sed -n 's/^deb /deb-src /p' /etc/apt/sources.list >"$1/parts/sources.list" 2>/dev/null || true
    apt_source=(-o Dir::Etc::SourceList=/dev/null -o "Dir::Etc::SourceParts=$1/parts" -o "Dir::State::Lists=$1/lists"
        -o APT::Sandbox::User=root)
    apt-get -qq "${apt_source[@]}" update
}

# get_source <package> <version> <link>: the package, unpacked and with the distribution's changes, and a link to it.
get_source() {
    local unpacked=$1-$2
    if [ ! -d "$unpacked" ]; then
        apt-get -qq "${apt_source[@]}" source --download-only "$1=$2"
        rm -rf "$unpacked.part"
        dpkg-source --no-check --extract "$1_$2.dsc" "$unpacked.part" >/dev/null
        mv "$unpacked.part" "$unpacked"
    fi
    [ -L "$3" ] || rm -rf "$3" # where a link would land inside
    ln -sfn "$unpacked" "$3"
}
