# Shared by the tests of installing and of ./run. $1 is the folder of the build.
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

# soon COMMAND: repeats the command until it succeeds, for at most ten seconds.
soon() {
  for _ in $(seq 200); do
    "$@" && return 0
    sleep 0.05
  done
  return 1
}
