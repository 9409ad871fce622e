#!/usr/bin/env bash
# Installs what is missing, builds, and starts the tool. Where there is no display, it shows the tool on a virtual one,
# saves a picture of the window and ends.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

tool=$root/build/release/bin/coordsystem_manager
picture=$root/build/release/window.png

install_packages build
build release

if [ -n "${DISPLAY:-}" ]; then
    exec "$tool" "$@"
fi

install_packages display
echo "There is no display here (DISPLAY is not set): the tool runs on a virtual one to have its picture taken."
"$root/tools/picture.sh" "$picture" "$tool"
echo "$picture"
