#!/usr/bin/env bash
# Changes one operator, literal, statement or condition of src/<folder> at a time, builds and runs the tests that cover
# it, and lists the changes that no test noticed:
#   tools/mutate.sh                       all changes of the subsystems
#   tools/mutate.sh rights kit            all changes of two folders
#   tools/mutate.sh session --sample 60   sixty of them, chosen at random (--seed)
# It works on a copy of the tree in build/mutate; the sources stay as they are. Not part of CI: it takes hours.
set -euo pipefail
cd "$(dirname "$0")/.."

tools/packages.sh build test
exec python3 tools/mutate/run.py "$@"
