#!/usr/bin/env bash
# Makes the Windows program, cross-built: a ZIP to be unpacked anywhere and an installer, in build/windows/new.
#   tools/windows.sh [--check | --quick]
# --check: then runs every test program under Wine, and the program itself in a window (tests/windows).
# --quick: only if the libraries are there already; then runs the tests of what is different on Windows.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
source "$root/packaging/windows/libraries.sh"

check=${1:-}
build=$root/build/windows
new=$build/new
version=$(sed -n 's/^project(.* VERSION \([0-9.]*\) .*/\1/p' "$root/CMakeLists.txt")

# The program and all that it needs, as it lies on a user's disk.
gather() {
    rm -rf "$new"
    mkdir -p "$new"
    cmake --install "$build" --strip --prefix "$new/$name"
    cmake --install "$build" --component geoid_models --prefix "$new/$name"
    local licences=$new/$name/share/licences package
    mkdir -p "$licences"
    cp "$root/packaging/debian/copyright" "$licences/coordinate-system-manager.txt"
    # Debian's libraries and the cross-built ones have the same sources.
    for package in libqt5core5a libqwt-qt5-6 libgdal32 libproj25 libsqlite3-0 libpugixml1v5 libeigen3-dev libxxhash-dev \
        mingw-w64-common g++-mingw-w64-x86-64-posix; do
        cp "/usr/share/doc/$package/copyright" "$licences/$package.txt"
    done
}

# What the uninstaller takes away: each file, then each folder that is empty then.
list_files() {
    cd "$new/$name"
    find . -type f -printf '%P\n' | LC_ALL=C sort | sed 's|/|\\|g; s|.*|Delete "$INSTDIR\\&"|'
    find . -mindepth 1 -depth -type d -printf '%P\n' | sed 's|/|\\|g; s|.*|RMDir "$INSTDIR\\&"|'
}

pack() {
    (cd "$new" && cmake -E tar cf "$name-win64.zip" --format=zip "$name")
    (list_files) >"$build/files.nsh"
    makensis -V2 -INPUTCHARSET UTF8 -DVERSION="$version" -DFOLDER="$new/$name" -DFILES="$build/files.nsh" \
        -DICON="$root/src/platform/desktop/icons/coordsystem_manager.ico" -DOUTPUT="$new/$name-setup.exe" \
        "$root/packaging/windows/installer.nsi"
}

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
step "Configuring (windows)" configure-windows.log \
    cmake --preset windows -DCMAKE_PREFIX_PATH="$prefixes" -DVORN_SHIPPED_DATA="$release_data"
targets=(coordsystem_manager)
quick_tests=(test_utility test_sdk test_desktop)
case $check in
--check) targets=(all) ;;
--quick) targets+=("${quick_tests[@]}") ;;
esac
build windows "${targets[@]}"
name=coordinate-system-manager-$version
step "Gathering what the program needs" windows-gather.log gather
step "Packing" windows-pack.log pack
du -h "$new"/*.zip "$new"/*.exe
case $check in
--check)
    "$root/tests/windows/run_tests.py"
    "$root/tests/windows/end_to_end.py"
    ;;
--quick) "$root/tests/windows/run_tests.py" "${quick_tests[@]}" ;;
esac
