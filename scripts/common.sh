# Shared by the scripts in this folder; source it. Finds the checkout, installs what is missing, counts cores.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
export CMAKE_BUILD_PARALLEL_LEVEL=${CMAKE_BUILD_PARALLEL_LEVEL:-$(getconf _NPROCESSORS_ONLN)}

debian_packages=(
    g++ cmake ninja-build ccache pkg-config
    libicu-dev libexpat1-dev
    libboost1.81-dev libboost-thread1.81-dev libboost-filesystem1.81-dev
    libgtest-dev libbenchmark-dev locales tzdata
)
brew_formulas=(cmake ninja ccache pkg-config icu4c expat boost googletest google-benchmark)

say() { printf '%s\n' "$*"; }
fail() { printf '%s: %s\n' "${0##*/}" "$*" >&2; exit 1; }

install_debian() {
    local missing=() package sudo=()
    for package in "$@"; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)" = installed ] || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    say "Installing: ${missing[*]}"
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || fail "these packages are missing, and neither root nor sudo is here to install them: ${missing[*]}"
        sudo=(sudo)
    fi
    local log
    log=$(mktemp)
    if ! { ${sudo[@]+"${sudo[@]}"} apt-get update && ${sudo[@]+"${sudo[@]}"} env DEBIAN_FRONTEND=noninteractive \
            apt-get install --yes --no-install-recommends "${missing[@]}"; } >"$log" 2>&1; then
        cat "$log" >&2
        rm -f "$log"
        fail "apt-get could not install: ${missing[*]}"
    fi
    rm -f "$log"
}

install_brew() {
    local missing=() formula
    for formula in "$@"; do
        brew list --formula --versions "$formula" >/dev/null 2>&1 || missing+=("$formula")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    say "Installing: ${missing[*]}"
    brew install --quiet "${missing[@]}"
}

# Installs what the build needs; the arguments name further Debian packages. Silent if all is there.
install_dependencies() {
    if [ "$(uname -s)" = Darwin ]; then
        command -v brew >/dev/null || fail "Homebrew is needed on macOS: see https://brew.sh"
        install_brew "${brew_formulas[@]}" gettext
    elif command -v apt-get >/dev/null; then
        install_debian "${debian_packages[@]}" "$@"
    else
        say "No apt and no Homebrew here: going on with what is installed."
    fi
}

# Installs clang, for the presets that build with it.
install_clang() {
    [ "$(uname -s)" = Darwin ] || ! command -v apt-get >/dev/null || install_debian clang libclang-rt-14-dev
    command -v clang++ >/dev/null || fail "clang++ is needed (Debian: clang)"
}

# Runs a command and shows its output only if it fails.
quietly() {
    local log
    log=$(mktemp)
    if ! "$@" >"$log" 2>&1; then
        cat "$log" >&2
        rm -f "$log"
        return 1
    fi
    rm -f "$log"
}

# configure PRESET [option...]
configure() {
    local preset=$1
    shift
    (cd "$root" && quietly cmake --preset "$preset" "$@")
}

# build PRESET [target...]
build() {
    local preset=$1
    shift
    local targets=()
    [ $# -eq 0 ] || targets=(--target "$@")
    (cd "$root" && quietly cmake --build --preset "$preset" ${targets[@]+"${targets[@]}"})
}
