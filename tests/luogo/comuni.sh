# shellcheck shell=bash disable=SC2034 # its variables are for whoever sources it
# What the scripts of this folder share; they pass on their argument, the build's folder. Sourced.

here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
build=$(readlink -f "$1") runner=$(readlink -f "$1")/tests/velmara_giornata
[ -x "$runner" ] || exit 2
place=$(mktemp -d /tmp/velmara_luogo_XXXXXX) || exit 1
trap 'rm -rf "$place"' EXIT
faults=0

fault() {
  printf '%s\n' "$*"
  faults=$((faults + 1))
}
