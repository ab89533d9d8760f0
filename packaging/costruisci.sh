# shellcheck shell=bash
# How ./run and ./test build. Sourced by both.

# build FOLDER TYPE [-DOPTION=VALUE ...] [-- TARGET ...]: configures and builds the project whose root is the
# current folder. ccache is used where it is installed and not asked for.
build() {
  # -O2 for a release too: the operator gets the very code that the tests have seen, and at -O3 g++ 12 warns of
  # overlapping copies that aren't there (its own fault 105651).
  # Lines of the source in a fault's report are enough for the tests: less to write for the compiler.
  local folder=$1 type=$2 launcher=
  local options=(-DCMAKE_CXX_FLAGS_RELEASE="-O2 -DNDEBUG" -DCMAKE_CXX_FLAGS_RELWITHDEBINFO="-O2 -g1 -DNDEBUG")
  shift 2
  while [ $# -gt 0 ] && [ "$1" != -- ]; do
    options+=("$1")
    shift
  done
  [ $# -eq 0 ] || shift
  command -v ccache >/dev/null && launcher=ccache
  mkdir -p "$folder"
  if ! cmake -S . -B "$folder" -G Ninja -DCMAKE_BUILD_TYPE="$type" -DCMAKE_CXX_COMPILER_LAUNCHER="$launcher" \
    "${options[@]}" >"$folder/configure.log" 2>&1; then
    cat "$folder/configure.log" >&2
    return 1
  fi
  ninja -C "$folder" "$@"
}
