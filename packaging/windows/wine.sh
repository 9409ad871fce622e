#!/usr/bin/env bash
# Runs a program of the Windows build under Wine; with no screen, unless QT_QPA_PLATFORM says "windows".
#   wine.sh PROGRAM [ARGUMENTS...]
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
# With no .NET, no browser and no entries in the desktop's menu; nothing is said of what Wine lacks.
export WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe=" WINEDEBUG=${WINEDEBUG:--all}
export WINEPREFIX=${WINEPREFIX:-$root/build/windows/wine}
# Wine keeps these names from its programs, except with its own before them.
export WINEQT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}
export WINEQT_QPA_FONTDIR=Z:/usr/share/fonts/truetype/dejavu # without a screen
export WINEQT_FORCE_STDERR_LOGGING=1                         # else QtTest writes to a debugger
# A program that is not installed finds the libraries where they were built.
qt=$(sed -n 's|^Qt5_DIR:PATH=\(.*\)/lib/cmake/Qt5$|\1|p' "$root/build/windows/CMakeCache.txt")
compiler=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++-6.dll)")
export WINEPATH="Z:$qt/bin;Z:$compiler;Z:/usr/x86_64-w64-mingw32/lib"

(
    flock 9 # several programs may find that there is no prefix yet
    if [ ! -f "$WINEPREFIX/system.reg" ]; then
        DISPLAY='' /usr/lib/wine/wine64 wineboot --init
        /usr/lib/wine/wineserver64 --wait
    fi >/dev/null 2>&1
) 9>"$root/build/windows/wine.lock"
exec /usr/lib/wine/wine64 "$@"
