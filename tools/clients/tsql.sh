#!/usr/bin/env bash
# tsql of FreeTDS: batches as a person types them, in two versions of the protocol.
set -uo pipefail
failed=0
check() { # version, name, statements, a line that must come
    local said
    said=$(printf '%s\ngo\n' "$3" | TDSVER=$1 tsql -H 127.0.0.1 -p "$PEER_PORT" -U sa -P segreta -D prova -o fhq 2>&1)
    if grep -qxF -- "$4" <<<"$said"; then
        echo "tsql $1: $2 ok"
    else
        echo "tsql $1: $2 FAILED: ${said:0:200}, not ${4:0:200}"
        failed=1
    fi
}
for version in 7.1 7.4; do
    check $version batch $'SELECT 1\nSELECT N\'città\'' 'città'
    check $version error 'SELECT * FROM manca' $'\t"Invalid object name \'manca\'."'
    check $version types "SELECT CAST(1 AS bit), CAST(200 AS tinyint), -5, CAST(5 AS bigint), 0.5e0, 1.25, 'a'" \
        $'1\t200\t-5\t5\t0.5\t1.25\ta'
    check $version roll-back $'CREATE TABLE tsql_t (n int)\nBEGIN TRAN\nINSERT INTO tsql_t VALUES (1)\nROLLBACK\nSELECT COUNT(*) + 70 FROM tsql_t\nDROP TABLE tsql_t' 70
    long=$(printf 'x%.0s' $(seq 20000))
    check $version 'long literal' "SET TEXTSIZE 100000
SELECT '$long'" "$long"
    check $version procedure "EXEC sp_configure 'show advanced options'" $'show advanced options\t0\t1\t0\t0'
done
exit $failed
