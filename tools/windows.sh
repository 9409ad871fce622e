#!/usr/bin/env bash
# Makes the Windows program, cross-built: a ZIP to be unpacked anywhere and an installer, in build/windows/new.
#   tools/windows.sh [--check | --quick]
# --check: then runs every test program under Wine, and the program itself in a window (tests/windows).
# --quick: only if the libraries are there already; then runs the tests of what is different on Windows.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
source "$root/packaging/windows/libraries.sh"

check=${1:-}
if [ "$check" = --quick ]; then
    missing_libraries=listed build_libraries
    if [ -n "$missing" ]; then
        echo "The Windows program is not checked: its libraries are not in $cache (missing: ${missing% })."
        exit 0
    fi
fi
install_packages build windows ${check:+display test}
echo "Libraries for Windows, built once (about 40 minutes on two cores), in $cache"
build_libraries
# The shipped data are the same bytes on every system; Debian's generator makes them sooner than Wine would.
build release shipped_data
prefixes=
for library in "${!at[@]}"; do
    prefixes+="${at[$library]};"
done
# CMake would go on with the libraries that it found before.
grep -qs "^CMAKE_PREFIX_PATH:.*=$prefixes\$" "$root/build/windows/CMakeCache.txt" || rm -f "$root/build/windows/CMakeCache.txt"
step "Configuring (windows)" configure-windows.log \
    cmake --preset windows -DCMAKE_PREFIX_PATH="$prefixes" -DVORN_SHIPPED_DATA="$release_data"
targets=(coordsystem_manager)
quick_tests=(test_utility test_sdk test_desktop)
case $check in
--check) targets=(all) ;;
--quick) targets+=("${quick_tests[@]}") ;;
esac
build windows "${targets[@]}"
step "Packing" windows-pack.log "$root/packaging/windows/pack.sh" "$cache"
du -h "$root"/build/windows/new/*.{zip,exe}
case $check in
--check)
    "$root/tests/windows/run_tests.py"
    "$root/tests/windows/end_to_end.py"
    ;;
--quick) "$root/tests/windows/run_tests.py" "${quick_tests[@]}" ;;
esac
