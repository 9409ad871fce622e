#!/usr/bin/env bash
# Measures how fast the tool is and prints one table; takes a few minutes on a machine that does nothing else.
#   tools/bench.sh [MEASUREMENT]      only those whose name matches the regular expression: start, load, save, ...
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

install_packages build display bench
build release coordsystem_manager bench_startup_empty_window bench_speed
exec /usr/bin/python3 -B "$root/bench/speed/speed.py" "$root/build/release" "$@"
