# What ./run and ./check have in common: packages, build, plain words. Sourced.
say() { printf '== %s\n' "$*"; }
fail() { printf '!! %s\n' "$*" >&2; exit 1; }

packages=(g++ cmake ninja-build qt6-base-dev qt6-serialport-dev qt6-svg-dev
          libgl-dev libsqlitecpp-dev libsqlite3-dev libkainjow-mustache-dev
          libqcustomplot-dev libxlsxwriter-dev
          fonts-dejavu-core python3
          libgtest-dev libbenchmark-dev)

# Installs what is missing on a Debian 12; elsewhere says what it is.
need_packages() {
    local missing=() package
    for package in "${packages[@]}" "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    say "installing: ${missing[*]}"
    local sudo=
    [ "$(id -u)" = 0 ] || sudo=sudo
    $sudo apt-get update -qq || fail "apt-get update failed; please install by hand: ${missing[*]}"
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null ||
        fail "these packages could not be installed: ${missing[*]}"
}

# Configures and builds a preset, of it only the targets of this name when there are some; further
# arguments are those of the configuring.
targets=()
build() {
    local log
    log=$(mktemp)
    say "building ($1)"
    cmake --preset "$@" >"$log" 2>&1 || { cat "$log" >&2; fail "configuring failed"; }
    cmake --build --preset "$1" ${targets:+--target "${targets[@]}"} >"$log" 2>&1 || { grep -E 'error|Error|FAILED' "$log" | head -40 >&2 || true; fail "the build failed (cmake --build --preset $1 shows it whole)"; }
    rm -f "$log"
}
