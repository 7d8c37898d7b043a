# shellcheck shell=bash
# What ./run and ./check share. The working directory is the top of the tree.

say() { printf '%s\n' "$*"; }

die() {
  printf '%s\n' "$*" >&2
  exit 1
}

as_root() {
  if [ "$(id -u)" -eq 0 ]; then
    "$@"
  else
    sudo "$@"
  fi
}

# Packages of the distribution, by what they are for.
# shellcheck disable=SC2034  # the callers use them
packages_build=(g++ cmake ninja-build libcli11-dev nlohmann-json3-dev fonts-dejavu-core
  qt6-base-dev qt6-svg-dev qt6-tools-dev libqt6sql6-sqlite) # the last is what the manual is read with
# shellcheck disable=SC2034
packages_tests=(libgtest-dev libdxflib-dev python3 xvfb xdotool openbox imagemagick
  dbus at-spi2-core python3-pyatspi gir1.2-atspi-2.0 # the way in of a screen reader
  cups-daemon cups-client poppler-utils
  locales) # of which the tests take one with a decimal comma
# shellcheck disable=SC2034
packages_full=(clang-14 libclang-rt-14-dev llvm-14 clang-format-14 clang-tidy-14 libbenchmark-dev shellcheck
  qt6-l10n-tools # what gathers the texts of the windows
  python3-ezdxf gdal-bin g++-mingw-w64-x86-64-posix googletest wine wine64
  dpkg-dev file lintian desktop-file-utils appstream shared-mime-info libxml2-utils libglib2.0-bin mandoc groff-base)

is_installed() {
  [ "$(dpkg-query --show --showformat='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# Installs those of the named packages that are missing; silent when there are none.
install_packages() {
  command -v dpkg-query >/dev/null || die "This script knows Debian packages only. Needed: $*"
  local missing=() package log
  for package in "$@"; do
    is_installed "$package" || missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0

  [ "$(id -u)" -eq 0 ] || command -v sudo >/dev/null ||
    die "Neither root nor sudo; please install these packages and try again: ${missing[*]}"
  say "Installing from the distribution: ${missing[*]}"
  log=$(mktemp)
  if ! { as_root apt-get -q -o Acquire::Retries=3 update &&
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o Acquire::Retries=3 -o DPkg::Lock::Timeout=300 \
      install --no-install-recommends "${missing[@]}"; } >"$log" 2>&1 </dev/null; then
    cat "$log" >&2
    rm -f "$log"
    die "Installing failed: ${missing[*]}"
  fi
  rm -f "$log"
}

# Configures a preset of CMakePresets.json; what cmake says is shown when it fails.
configure_preset() {
  local log=build/$1-configure.log
  mkdir -p build
  cmake --preset "$1" >"$log" 2>&1 || {
    cat "$log" >&2
    return 1
  }
}

build_preset() {
  local preset=$1
  shift
  configure_preset "$preset"
  cmake --build --preset "$preset" "$@"
}
