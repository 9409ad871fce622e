#!/usr/bin/env bash
# Makes of the Windows build, in build/windows/new, a ZIP to be unpacked anywhere and an installer. tools/windows.sh calls it.
#   pack.sh FOLDER      FOLDER: of the libraries, which no program may look into
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
build=$root/build/windows
new=$build/new
version=$(sed -n 's/^project(.* VERSION \([0-9.]*\) .*/\1/p' "$root/CMakeLists.txt")
name=coordinate-system-manager-$version
folder=$new/$name

rm -rf "$new"
mkdir -p "$new"
cmake --install "$build" --strip --prefix "$folder"
cmake --install "$build" --component geoid_models --prefix "$folder"

# Qt finds its own by where it lies.
if grep "$1" "$folder"/lib/*.dll "$folder/bin/coordsystem_manager.exe"; then
    echo "The program looks something up in a folder of this machine."
    exit 1
fi

# Debian's libraries and the cross-built ones have the same sources.
licences=$folder/share/licences
mkdir -p "$licences"
cp "$root/packaging/debian/copyright" "$licences/coordinate-system-manager.txt"
for package in libqt5core5a libqwt-qt5-6 libgdal32 libproj25 libsqlite3-0 libpugixml1v5 libeigen3-dev libxxhash-dev \
    mingw-w64-common g++-mingw-w64-x86-64-posix; do
    cp "/usr/share/doc/$package/copyright" "$licences/$package.txt"
done

(cd "$new" && cmake -E tar cf "$name-win64.zip" --format=zip "$name")

# What the uninstaller takes away: each file, then each folder that is empty then.
{
    find "$folder" -type f -printf '%P\n' | LC_ALL=C sort | sed 's|/|\\|g; s|.*|Delete "$INSTDIR\\&"|'
    find "$folder" -mindepth 1 -depth -type d -printf '%P\n' | sed 's|/|\\|g; s|.*|RMDir "$INSTDIR\\&"|'
} >"$build/files.nsh"
makensis -V2 -INPUTCHARSET UTF8 -DVERSION="$version" -DFOLDER="$folder" -DFILES="$build/files.nsh" \
    -DICON="$root/src/platform/desktop/icons/coordsystem_manager.ico" -DOUTPUT="$new/$name-setup.exe" \
    "$root/packaging/windows/installer.nsi"
