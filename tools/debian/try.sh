#!/usr/bin/env bash
# Installs the package that build.sh made in a bare Debian 12 of its own, works with it there as an ordinary user, and
# removes it: everything must run, and nothing of the user's may be lost. As root.
set -euo pipefail
cd "$(dirname "$0")/../.."

tools/packages.sh debian
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
cp build/debian/vabo_*.deb "$place/vabo.deb"
cat >"$place/inside.sh" <<'END'
set -eux
export DEBIAN_FRONTEND=noninteractive
kept() { find /home/anna -type f -exec sha256sum {} + | sort -k 2; }
anna() { su - anna -c "$1"; }

apt-get install -y -qq /tmp/vabo.deb >/dev/null
apt-get install -y -qq desktop-file-utils man-db x11-utils xauth xvfb >/dev/null
desktop-file-validate /usr/share/applications/vabo.desktop
useradd --create-home --shell /bin/bash anna
for page in vabo vabo-start vabo-provision; do
    test "$(anna "man $page" | wc -l)" -gt 20
done

# Without an answer to the first question nothing is written; with a sample there the same command shows the login.
cat >/tmp/shows.sh <<'SHOWS'
vabo-start &
program=$!
for _ in $(seq 300); do
    sleep 0.1
    xwininfo -root -tree | grep -F "$1" && kill $program && exit 0
done
exit 1
SHOWS
anna 'xvfb-run -a sh /tmp/shows.sh "\"VaBo\": (\"vabo-start\" \"VaBo\")"'
test ! -e /home/anna/.local/share/vabo
anna 'vabo-provision ~/.local/share/vabo/c'
anna 'xvfb-run -a sh /tmp/shows.sh "Ver.Nr."'

kept >/tmp/before
dpkg --remove vabo
dpkg --purge vabo
kept | diff /tmp/before -
test "$(wc -l </tmp/before)" -gt 20
! find /usr /etc /var -iname '*vabo*' | grep .
END
mmdebstrap --variant=apt bookworm /dev/null \
    --customize-hook="copy-in $place/vabo.deb $place/inside.sh /tmp" \
    --customize-hook='chroot "$1" sh /tmp/inside.sh'
echo "The package can be installed, used and removed."
