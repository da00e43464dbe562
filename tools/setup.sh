# Functions for run, test, bench and .ci/run: missing Debian packages, configuring, building. To be sourced; `top` is the folder
# of the tree. Nothing here asks anything, and nothing is done that is done already.
export LC_ALL=C.UTF-8

# What the program needs to be built and to run: a window, and more than a handful of typefaces.
packages_run=(
  cmake ninja-build g++ qt6-base-dev qt6-translations-l10n x11-utils
  fonts-liberation2 fonts-dejavu-core fonts-dejavu-extra fonts-crosextra-carlito
  fonts-crosextra-caladea fonts-comic-neue fonts-sil-andika
)
# A screen that is not there, with a hand to move its pointer.
packages_screen=(xvfb openbox xdotool xclip x11-utils at-spi2-core dbus python3 python3-xlib python3-gi gir1.2-atspi-2.0)
# The last two: a printer that is not there either.
packages_test=(libgtest-dev libgmock-dev "${packages_screen[@]}" cups-daemon cups-client)
packages_bench=(libbenchmark-dev pkg-config libcairo2-dev libopencv-dev libagg-dev libsdl2-gfx-dev
  "${packages_screen[@]}")
packages_ci=(clang-format clang-tidy)
packages_packaging=(shellcheck desktop-file-utils appstream groff g++-mingw-w64-x86-64-posix)
packages_debian=(dpkg-dev debhelper fakeroot lintian git qt6-translations-l10n)
packages_windows=(cmake ninja-build g++-mingw-w64-x86-64-posix nsis zip dpkg-dev git python3 qt6-base-dev
  qt6-translations-l10n)
# Typefaces that the package for Windows brings along: more than twelve families, whatever the system has.
packages_windows_fonts=(fonts-liberation2 fonts-dejavu-core fonts-dejavu-extra fonts-crosextra-carlito
  fonts-crosextra-caladea fonts-comic-neue fonts-sil-andika fonts-quicksand fonts-oldstandard)
packages_wine=(wine wine64 googletest "${packages_screen[@]}")

say() { printf '%s\n' "== $*" >&2; }
die() { printf '%s\n' "$*" >&2; exit 1; }

# The names among the given packages that are not installed.
missing_packages() {
  comm -23 <(printf '%s\n' "$@" | sort -u) \
    <(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null \
      | sed -n 's/^installed //p' | sort -u)
}

# need_packages NAME...: installs those that are missing.
need_packages() {
  local missing as_root=()
  command -v dpkg-query >/dev/null ||
    die "This script installs what it needs on Debian 12 and its like. Elsewhere, install by hand: $*"
  missing=$(missing_packages "$@" | tr '\n' ' ')
  [ -n "$missing" ] || return 0
  if [ "$(id -u)" != 0 ]; then
    command -v sudo >/dev/null ||
      die "These packages are missing, and neither root nor sudo is there to install them: $missing"
    as_root=(sudo)
  fi
  local log=$top/build/packages.log
  mkdir -p "$top/build"
  say "installing (what apt-get says goes to build/packages.log): $missing"
  local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=600)
  "${apt[@]}" update >"$log" 2>&1 || say "the package lists could not be renewed; trying with those at hand"
  # shellcheck disable=SC2086 # one word for each package
  if ! "${apt[@]}" install -y --no-install-recommends $missing </dev/null >>"$log" 2>&1; then
    tail -n 12 "$log" >&2
    die "These packages could not be installed; what apt-get said stands above: $missing"
  fi
}

# cached PRESET NAME: the value that the build folder of the preset holds for a cache variable.
cached() {
  sed -n "s/^$2:[A-Z]*=//p" "$top/build/$1/CMakeCache.txt" 2>/dev/null
}

# configure PRESET [-DNAME=VALUE...]: lays the build folder, unless it stands with these very values.
configure() {
  local preset=$1 setting name value stale=
  shift
  [ -f "$top/build/$preset/build.ninja" ] || stale=1
  for setting in "$@"; do
    name=${setting#-D} value=${setting#*=}
    [ "$(cached "$preset" "${name%%=*}")" = "$value" ] || stale=1
  done
  [ -n "$stale" ] || return 0
  say "configuring build/$preset"
  (cd "$top" && cmake --preset "$preset" "$@" >&2) || die "Configuring build/$preset failed."
}

# build PRESET [TARGET...]: everything, or the targets.
build() {
  local preset=$1 targets=()
  shift
  [ $# = 0 ] || targets=(--target "$@")
  (cd "$top" && cmake --build --preset "$preset" "${targets[@]}" >&2) || die "Building build/$preset failed."
}

# True if a window can be opened where the environment says.
has_display() {
  if [ -n "${DISPLAY:-}" ] && timeout 10 xdpyinfo >/dev/null 2>&1; then
    return 0
  fi
  local socket=${WAYLAND_DISPLAY:-}
  [ -n "$socket" ] || return 1
  [ "${socket#/}" != "$socket" ] || socket=${XDG_RUNTIME_DIR:-/nowhere}/$socket
  [ -S "$socket" ] || return 1
  need_packages qt6-wayland
}
