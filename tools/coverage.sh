#!/usr/bin/env bash
# Which lines and branches of src/ the offscreen tests run: a table by room, and the lines that no test runs.
#   tools/coverage.sh [CTEST ARGUMENTS...]      default: -LE e2e
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

install_packages build test
build coverage
cd "$root/build/coverage"
find . -name '*.gcda' -delete
[ $# -gt 0 ] || set -- -LE e2e
step "Testing (coverage)" test-coverage.log ctest --parallel "$(nproc)" --no-tests=error "$@"
/usr/bin/python3 -B "$root/tools/coverage.py" "$root" .
