#!/usr/bin/env bash
# Installs what is missing, builds, runs every test and prints CTest's summary.
#   tools/test.sh [PRESET [CTEST ARGUMENTS...]]      PRESET: release (default), debug or asan
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

preset=${1:-release}
shift $(($# > 0 ? 1 : 0))

install_packages build display test bench
build "$preset"

export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=1:detect_stack_use_after_return=1}
export LSAN_OPTIONS=${LSAN_OPTIONS:-suppressions=$root/tools/leaks-of-libraries.txt:print_suppressions=0}
export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1}

quiet=()
[ -t 1 ] && quiet=(--progress)
# One more than there are processors, since a test in a real window waits for most of its time.
ctest --preset "$preset" --parallel "$(($(nproc) + 1))" --no-tests=error "${quiet[@]}" "$@"
