#!/usr/bin/env bash
# Makes the Debian package in build/package and has it judged by lintian, desktop-file-validate, appstreamcli and man.
#   tools/package.sh [--check]      --check: also tries it on a fresh Debian 12, as root only (tests/package)
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

release=$root/build/release
folder=$root/build/package

# Nothing in the package depends on when it is made.
SOURCE_DATE_EPOCH=$(date -d "$(sed -n 's/^ -- .*>  //p' "$root/packaging/debian/changelog" | head -n 1)" +%s)
export SOURCE_DATE_EPOCH

# pack FOLDER LOG [CPACK OPTIONS...]: prints nothing; the package is the one .deb in FOLDER.
pack() {
    local into=$1 log=$2
    shift 2
    rm -rf "$into"
    step "Packing into ${into#"$root"/}" "$log" cpack --config "$release/CPackConfig.cmake" -B "$into" "$@"
    rm -rf "$into/_CPack_Packages"
}

# silent TITLE COMMAND...: a command that must end well and has nothing to say.
silent() {
    local title=$1 said status=0
    shift
    said=$("$@" 2>&1) || status=$?
    if [ "$status" -ne 0 ] || [ -n "$said" ]; then
        echo "$said" >&2
        fail "$title (exit code $status)"
    fi
}

install_packages build package
build release coordsystem_manager
pack "$folder/new" package.log
deb=$(echo "$folder"/new/*.deb)

unpacked=$folder/unpacked
rm -rf "$unpacked"
dpkg-deb --extract "$deb" "$unpacked"
silent "lintian has findings" lintian --allow-root --display-info --pedantic --display-experimental --fail-on info,pedantic "$deb"
silent "The desktop entry has faults" desktop-file-validate "$unpacked"/usr/share/applications/*.desktop
silent "The manual page has faults" env MANROFFSEQ='' LC_ALL=C.UTF-8 MANWIDTH=80 \
    sh -c 'man --warnings -E UTF-8 -l -Tutf8 -Z "$1" >/dev/null' man "$unpacked"/usr/share/man/man1/*.gz
validated=$(appstreamcli validate --no-net --pedantic --explain "$unpacked"/usr/share/metainfo/*.xml) ||
    fail "The AppStream metadata has faults: $validated"
echo "$validated"
echo "$deb"
