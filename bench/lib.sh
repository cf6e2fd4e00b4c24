# What the scripts of this directory share: they build one program and run it.
# shellcheck shell=bash
# shellcheck source=scripts/lib.sh
. "$(dirname "${BASH_SOURCE[0]}")/../scripts/lib.sh"

BENCH=$ROOT/build/bench

# build_program <program>: as the release preset does, in a directory of its own.
build_program() {
    need "${BUILD_PACKAGES[@]}" libbenchmark-dev
    cd "$ROOT"
    cmake --preset release -B "$BENCH" -DQUILL_TESTS=OFF -DQUILL_BENCH=ON -DQUILL_TOOLS=OFF >/dev/null
    cmake --build "$BENCH" --target "$1" >/dev/null
}
