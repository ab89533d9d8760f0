# shellcheck shell=bash
# What ./run and ./test need of the machine. Sourced by both, so that each package stands here once, with its
# reason; docs/dependencies.md says more.

packages_build=(
  "g++|the compiler"
  "cmake|configures the build"
  "ninja-build|runs the build"
  "pkg-config|finds SimpleIni and HarfBuzz for the build"
  "qt6-base-dev|windows and paper"
  "libsimpleini-dev|the settings file"
  "libharfbuzz-dev|the parts of the typefaces that a PDF takes in"
)
packages_desk=(
  "fonts-liberation|the typefaces of screen and paper, same widths as Arial and Courier New"
)
packages_test=(
  "libgtest-dev|unit tests"
  "libgmock-dev|matchers of the unit tests"
  "git|lists the files of the project"
  "clang-format|checks the form of the sources"
  "clang-tidy|checks the sources for faults"
  "locales|what the desks of other languages are made of, on which days are played"
  "qpdf|checks the printed PDFs"
  "poppler-utils|reads texts, positions and fonts of the printed PDFs"
  "fonts-urw-base35|typefaces with curves of the other kind, which a PDF takes in another way"
  "valgrind|counts the instructions of what the operator does all night"
)
packages_guide=(
  "imagemagick|turns its pictures into the form in which they are folded, and back"
  "python3-markdown|makes HTML of the manual's text"
  "weasyprint|makes PDF of it"
)
packages_fuzz=(
  "clang|builds the fuzz targets"
  "libclang-rt-14-dev|what runs them: libFuzzer, AddressSanitizer and UBSan"
)
packages_queue=(
  "cups-daemon|a print server, of which the tests start one of their own"
  "cups-client|makes its queues"
)
packages_screen=(
  "xvfb|an X server without a screen"
  "xdotool|presses keys in it"
  "imagemagick|takes its pictures"
)

packages_deb=(
  "dpkg-dev|finds the libraries that the package depends on"
)

packages_trial=(
  "lintian|what Debian itself finds fault with in a package"
  "debootstrap|makes the root folder that the package is tried in"
)

packages_bench=(
  "libbenchmark-dev|times the routines"
  "miller|totals and lists tables of text: to be measured against"
  "gawk|likewise"
  "sqlite3|likewise, by way of a database"
  "groff|sets the same pages as PDF"
  "gnumeric|opens the same day as a spreadsheet does"
  "poppler-utils|reads the text of our PDFs for groff, and counts pages"
)

# Names of those of the given "package|reason" lines that aren't installed.
missing_packages() {
  local line name
  for line in "$@"; do
    name=${line%%|*}
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$name" 2>/dev/null)" = installed ] || printf '%s\n' "$line"
  done
}

# Installs what is missing of the given lines from Debian's own packages, and says first what and why.
install_packages() {
  if ! command -v dpkg-query >/dev/null; then
    echo "This machine has no Debian packages. If a step below fails for want of a program, see docs/dependencies.md."
    return 0
  fi
  local missing=() names=() as_root=() line
  mapfile -t missing < <(missing_packages "$@")
  [ ${#missing[@]} -gt 0 ] || return 0

  echo "These Debian packages are missing and will be installed:"
  for line in "${missing[@]}"; do
    names+=("${line%%|*}")
    printf '  %-18s %s\n' "${line%%|*}" "${line#*|}"
  done
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      echo "You are not root and there is no sudo. Have them installed with:" >&2
      echo "  apt-get install --no-install-recommends ${names[*]}" >&2
      return 1
    fi
    as_root=(sudo)
  fi
  # Old package lists may name versions that the mirror no longer has.
  "${as_root[@]}" apt-get update -q || echo "The package lists could not be renewed; going on with those that are here."
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -q --no-install-recommends "${names[@]}"
}
