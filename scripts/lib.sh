# What the scripts share: where the project is, which Debian packages it needs, and how they get onto a machine.
# shellcheck shell=bash
# shellcheck disable=SC2034  # the lists are used by the scripts that read this file

ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# To build the library and the tool. Of valgrind the library uses the header, and a test the program.
BUILD_PACKAGES=(cmake ninja-build ccache gcc g++ libc6-dev libcli11-dev nlohmann-json3-dev valgrind)

# To build the tests and the benchmarks.
TEST_PACKAGES=(libgtest-dev libgmock-dev libbenchmark-dev libidn2-dev libicu-dev unicode-data)

# To run the checks and the other builds of scripts/test.
CHECK_PACKAGES=(git python3 pkg-config binutils clang clang-format-14 libclang-rt-14-dev)

fail() {
    echo "$(basename "$0"): $*" >&2
    exit 1
}

# missing <packages>: those of them that are not installed.
missing() {
    local package
    for package in "$@"; do
        [[ $(dpkg-query -W -f='${Status}' "$package" 2>/dev/null || true) == "install ok installed" ]] ||
            echo "$package"
    done
}

# need <packages>: installs those that are missing; where none is, apt is not even asked.
need() {
    local packages as_root=()
    command -v dpkg-query >/dev/null || fail "this is no Debian: install the equivalents of: $*"
    mapfile -t packages < <(missing "$@")
    ((${#packages[@]})) || return 0
    if ((EUID != 0)); then
        command -v sudo >/dev/null || fail "not root, and these packages are missing: ${packages[*]}"
        as_root=(sudo)
    fi
    echo "Installing: ${packages[*]}"
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -q &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends "${packages[@]}"
}

title() {
    echo
    echo "=== $*"
}
