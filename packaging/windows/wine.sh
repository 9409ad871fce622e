#!/usr/bin/env bash
# Runs a program of the Windows build under Wine; with no screen, unless QT_QPA_PLATFORM says "windows".
#   wine.sh PROGRAM [ARGUMENTS...]
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
build=$root/build/windows
# With no .NET, no browser and no entries in the desktop's menu; nothing is said of what Wine lacks.
export WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe=" WINEDEBUG=${WINEDEBUG:--all}
export WINEPREFIX=${WINEPREFIX:-$build/wine}
# Wine keeps these names from its programs, except with its own before them.
export WINEQT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}
export WINEQT_QPA_FONTDIR=Z:$build/fonts # without a screen
export WINEQT_FORCE_STDERR_LOGGING=1     # else QtTest writes to a debugger
# A program that is not installed finds the libraries where they were built.
qt=$(sed -n 's|^Qt5_DIR:PATH=\(.*\)/lib/cmake/Qt5$|\1|p' "$build/CMakeCache.txt")
compiler=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++-6.dll)")
export WINEPATH="Z:$qt/bin;Z:$compiler;Z:/usr/x86_64-w64-mingw32/lib"

# Windows takes its language from the user's settings, and Wine these from a locale, which must be there.
language=${LANGUAGE:-en}
case $language in
en) locale= ;;
*_*) locale=$language.UTF-8 ;;
*) locale=${language}_${language^^}.UTF-8 ;;
esac
[ -z "$locale" ] || export LC_ALL=$locale LOCPATH=$build/locales

(
    flock 9 # several programs may find that there is none yet
    if [ ! -d "$build/fonts" ]; then
        mkdir -p "$build/fonts"
        cp /usr/share/fonts/truetype/dejavu/DejaVuSans*.ttf /usr/share/fonts/truetype/wqy/*.ttc "$build/fonts"
    fi
    if [ ! -f "$WINEPREFIX/system.reg" ]; then
        DISPLAY='' LC_ALL=C /usr/lib/wine/wine64 wineboot --init
        cp "$build"/fonts/* "$WINEPREFIX/drive_c/windows/Fonts"
        /usr/lib/wine/wineserver64 --wait
    fi >/dev/null 2>&1
    if [ -n "$locale" ] && [ ! -d "$LOCPATH/$locale" ]; then
        mkdir -p "$LOCPATH"
        localedef -i "${locale%.UTF-8}" -f UTF-8 "$LOCPATH/$locale"
    fi
) 9>"$build/wine.lock"
exec /usr/lib/wine/wine64 "$@"
