#!/usr/bin/env bash
# Draws the tool's icon anew in every size, from its two SVG files.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

install_packages icons display
cd "$root/src/platform/desktop/icons"
for size in 16 22 24 32 48 64 128 256 512; do
    drawing=coordsystem_manager.svg
    [ "$size" -gt 24 ] || drawing=coordsystem_manager_small.svg
    rsvg-convert -w "$size" -h "$size" "$drawing" -o "coordsystem_manager_$size.png"
done
convert coordsystem_manager_{16,24,32,48,64,128,256}.png coordsystem_manager.ico
