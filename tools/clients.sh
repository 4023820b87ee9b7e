#!/usr/bin/env bash
# Connects clients of other makers to the wire peer and says for each what passed. Everything stays on the loopback.
#
# Usage: tools/clients.sh [client …]     (tsql pyodbc pymssql pdo perl jtds; without arguments all)
#
# The clients are those of Debian: tools/packages.sh clients installs them (some 250 MB with Java). Each connects, runs a
# batch of several results, sends parameters of every type that it has, rolls back, cancels what runs where it can, and
# reads a text of 20,000 characters. A line is `client: check ok` or `client: check FAILED: why`; what a client doesn't
# offer isn't tried. The exit code is 1 where a check failed.
set -uo pipefail
cd "$(dirname "$0")/.." || exit
clients=("$@")
[ ${#clients[@]} -gt 0 ] || clients=(tsql pyodbc pymssql pdo perl jtds)

tools/packages.sh build clients
if [ ! -x build/ci/bin/vabo-peer ]; then
    cmake --preset ci >/dev/null && cmake --build --preset ci --target vabo-peer || exit 2
fi
folder=$(mktemp -d)
mkdir "$folder/c"
build/ci/bin/vabo-peer --new "$folder/server" "$folder/c" >"$folder/port" 2>"$folder/log" &
peer=$!
trap 'kill "$peer"; rm -rf "$folder"' EXIT
for _ in $(seq 100); do
    grep -q '^port ' "$folder/port" && break
    sleep 0.05
done
export PEER_PORT
PEER_PORT=$(sed -n 's/^port //p' "$folder/port")
[ -n "$PEER_PORT" ] || { cat "$folder/log" >&2; exit 2; }

failed=0
for client in "${clients[@]}"; do
    case "$client" in
    tsql) timeout 60 bash tools/clients/tsql.sh ;;
    pyodbc | pymssql) timeout 60 /usr/bin/python3 "tools/clients/$client.py" ;;
    pdo) timeout 60 php tools/clients/pdo.php ;;
    perl) TDSVER=7.4 timeout 60 /usr/bin/perl tools/clients/dbd_sybase.pl ;;
    jtds) timeout 60 java -cp /usr/share/java/jtds.jar tools/clients/Jtds.java ;;
    *)
        echo "unknown client $client" >&2
        exit 2
        ;;
    esac || failed=1
done
[ ! -s "$folder/log" ] || { echo "the peer said:"; cat "$folder/log"; failed=1; } >&2
exit $failed
