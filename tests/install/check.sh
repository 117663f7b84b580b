# What the tests of installing and of ./run share. Expects $1, the folder of the build.
set -euo pipefail
source_folder=$(cd "$(dirname "$0")/../.." && pwd)
build=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
  echo "FAILED: $*" >&2
  exit 1
}

# same WHAT EXPECTED ACTUAL
same() {
  [ "$2" = "$3" ] || fail "$1
expected: $(printf '%q' "$2")
     got: $(printf '%q' "$3")"
}

# soon COMMAND: asks until the command succeeds, for at most ten seconds.
soon() {
  for _ in $(seq 200); do
    "$@" && return 0
    sleep 0.05
  done
  return 1
}
