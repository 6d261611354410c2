# Sourced by ./run, ./test and ./package: what a fresh Debian machine needs, and building.
# The caller has changed to the root of the tree.

build_packages="cmake ninja-build g++ g++-mingw-w64-i686-win32 g++-mingw-w64-x86-64-win32 python3"
wine_packages="wine wine64 fonts-wine fonts-liberation xvfb util-linux"
test_packages="googletest libgtest-dev libgmock-dev libjpeg62-turbo-dev libgif-dev libbenchmark-dev"
fuzz_packages="clang libclang-rt-14-dev"
installer_packages="nsis zip git"
runtime_packages="make dpkg-dev xz-utils"
debian32_packages="debootstrap util-linux"

# One line a step.
say() { echo "--- $*"; }

fail() {
    echo "$(basename "$0"): $*" >&2
    exit 1
}

# apt COMMAND...: quietly, without questions; waits for another apt to finish.
apt() {
    local as_root=()
    if [ "$(id -u)" != 0 ]; then
        command -v sudo >/dev/null || fail "needs root or sudo to install packages: $missing"
        as_root=(sudo)
    fi
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get -qq -o DPkg::Lock::Timeout=600 "$@" >build/apt.log 2>&1 </dev/null
}

# need_packages PACKAGE...: installs those that the machine lacks.
need_packages() {
    local package
    missing=
    for package; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] ||
            missing+=" $package"
    done
    [ -n "$missing" ] || return 0
    say "Installing$missing"
    mkdir -p build
    # shellcheck disable=SC2086
    apt install --no-install-recommends -y $missing && return 0
    # The lists of packages may be absent or old.
    # shellcheck disable=SC2086
    apt update && apt install --no-install-recommends -y $missing ||
        fail "cannot install$missing: $(grep '^E:' build/apt.log | tail -n 1)"
}

# quietly NAME COMMAND...: runs a step of building; its words are in build/NAME.log and are shown only
# when it fails.
quietly() {
    local name=$1 log=build/$1.log
    shift
    mkdir -p build
    if ! "$@" >"$log" 2>&1 </dev/null; then
        grep -A 8 -E '^FAILED|CMake Error|^ninja: error' "$log" | head -n 60
        fail "cannot build $name; all of the output is in $log"
    fi
}

# build PRESET [TARGET...]: configures and builds.
build() {
    local preset=$1
    shift
    say "Building $preset${*:+: $*}"
    quietly "$preset" cmake --preset "$preset"
    quietly "$preset" cmake --build --preset "$preset" ${*:+--target "$@"}
}
