# Sourced by the scripts of the tree: what they need of the machine, and building.
# The caller has changed to the root of the tree.

# What is needed, one a line: a program, or a pattern of files, or several of them of which one will
# do (A|B); then the Debian package that brings it.
build_needs='
cmake                           cmake
ninja                           ninja-build
c++                             g++
python3                         python3
/usr/src/googletest/googletest  googletest
x86_64-w64-mingw32-g++-win32|x86_64-w64-mingw32-g++     g++-mingw-w64-x86-64-win32'
wine_needs='
wine                                    wine
wine64|/usr/lib/wine/wine64|/usr/lib*/wine/x86_64-unix     wine64
/usr/share/wine/fonts/marlett.ttf       fonts-wine
/usr/share/fonts/*/LiberationSans-Regular.ttf|/usr/share/fonts/*/*/LiberationSans-Regular.ttf   fonts-liberation
Xvfb                                    xvfb
setpriv                                 util-linux
flock                                   util-linux'
win9x_needs='
i686-w64-mingw32-g++-win32              g++-mingw-w64-i686-win32'
test_needs="$win9x_needs"'
/usr/include/gtest/gtest.h              libgtest-dev
/usr/include/gmock/gmock.h              libgmock-dev
/usr/include/jpeglib.h                  libjpeg-dev
/usr/include/gif_lib.h                  libgif-dev
/usr/include/benchmark/benchmark.h      libbenchmark-dev
clang-format-19|clang-format            clang-format-19
makensis                                nsis
zip                                     zip'
fuzz_needs='
clang++                                 clang
/usr/lib/llvm*/lib/clang/*/lib/linux/libclang_rt.fuzzer*|/usr/lib*/clang/*/lib/*/libclang_rt.fuzzer*    libclang-rt-dev'
coverage_needs='
llvm-cov                                llvm
llvm-profdata                           llvm'
package_needs="$win9x_needs"'
git                                     git
makensis                                nsis
zip                                     zip
make                                    make
dpkg-source                             dpkg-dev
xz                                      xz-utils'
debian12_needs='
debootstrap                             debootstrap
unshare                                 util-linux
flock                                   util-linux
git                                     git'

# Where material lies that is not in the tree: more pictures for tests, a second checker of programs.
# What is not there is not used. A path in the environment begins at the tree's root or is whole.
shared=${VISTREL_SHARED:-../shared}

# One line a step, with the minutes since the script began.
say() { printf -- '--- %d:%02d %s\n' $((SECONDS / 60)) $((SECONDS % 60)) "$*"; }

fail() {
    echo "$(basename "$0"): $*" >&2
    exit 1
}

# is_there WHAT: whether the machine has a program or a file.
is_there() {
    local one
    # shellcheck disable=SC2086
    for one in ${1//|/ }; do
        case $one in
            /*) [ -e "$one" ] && return 0 ;;
            *) command -v "$one" >/dev/null && return 0 ;;
        esac
    done
    return 1
}

# missing LIST...: sets missing_things to what the machine lacks of these lists, and
# missing_packages to the packages that bring it.
missing() {
    local what package
    missing_things= missing_packages=
    while read -r what package; do
        if [ -n "$what" ] && ! is_there "$what"; then
            missing_things+=" ${what%%|*}"
            missing_packages+=" $package"
        fi
    done <<<"$(printf '%s\n' "$@" | sort -u)"
    [ -n "$missing_things" ]
}

# packages_of LIST...: all of their packages.
packages_of() { printf '%s\n' "$@" | awk '{ print $2 }' | sort -u | xargs; }

# apt COMMAND...: quietly, without questions; waits for another apt to finish.
apt() {
    local as_root=()
    if [ "$(id -u)" != 0 ]; then
        command -v sudo >/dev/null || fail "needs root or sudo to install$missing_packages"
        as_root=(sudo)
    fi
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get -qq -o DPkg::Lock::Timeout=600 "$@" >build/apt.log 2>&1 </dev/null
}

# need LIST...: installs what the machine lacks of these lists. Where that cannot be, says in a line
# what is lacking, and ends.
need() {
    missing "$@" || return 0
    command -v apt-get >/dev/null ||
        fail "this machine lacks$missing_things (packages of Debian:$missing_packages)"
    say "Installing$missing_packages"
    mkdir -p build
    # The lists of packages may be absent or old.
    # shellcheck disable=SC2086
    apt install --no-install-recommends -y $missing_packages ||
        { apt update && apt install --no-install-recommends -y $missing_packages; } ||
        fail "cannot install$missing_packages: $(grep '^E:' build/apt.log | tail -n 1)"
    # Another system's packages of these names may hold something else.
    if missing "$@"; then
        fail "this machine lacks$missing_things, which its own$missing_packages does not bring"
    fi
}

# Whether this machine's own tools make what ships: the same bytes come from the same release only.
is_debian12() { (. /etc/os-release && [ "$ID $VERSION_ID" = "debian 12" ]) 2>/dev/null; }

# The archive that this machine's own packages come from, if they are Debian's; else nothing:
# debootstrap knows one itself.
archive() {
    apt-get indextargets --format '$(ORIGIN) $(COMPONENT) $(CODENAME) $(REPO_URI)' \
        'Created-By: Packages' 2>/dev/null |
        sed -n 's/^Debian main [a-z]* //p' | head -n 1
}

# make_once FOLDER COMMAND...: runs a command that makes a folder, unless that is made already. Who
# comes while another makes it waits, and finds it made; what failed is begun anew.
make_once() {
    mkdir -p "$1"
    (
        flock -n 9 || { say "Waiting until another has made $1"; flock 9; }
        [ -e "$1/complete" ] || { "${@:2}" && touch "$1/complete"; } 9>&-
    ) 9>"$1.lock"
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

# build PRESET [TARGET...]: configures and builds. With VISTREL_WERROR=ON in the environment warnings
# are errors; without it that stays as it was.
build() {
    local preset=$1
    shift
    say "Building $preset${*:+: $*}"
    quietly "$preset" cmake --preset "$preset" ${VISTREL_WERROR:+-D VISTREL_WERROR="$VISTREL_WERROR"}
    quietly "$preset" cmake --build --preset "$preset" ${*:+--target "$@"}
}
