#!/usr/bin/env bash
# Makes the Debian package in build/package/new and has it judged by lintian, desktop-file-validate, appstreamcli and man.
#   tools/package.sh [--check]      --check: then tries it on a fresh Debian 12, which takes root's rights (tests/package)
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

folder=$root/build/package
mkdir -p "$folder"

# Nothing in the package depends on when it was made.
changelog=$root/packaging/debian/changelog
SOURCE_DATE_EPOCH=$(date -d "$(sed -n 's/^ -- .*>  //p' "$changelog" | head -n 1)" +%s)
export SOURCE_DATE_EPOCH

# pack NAME [CPACK OPTIONS...]: packs what the release build holds; the package is the one .deb in build/package/NAME.
pack() {
    local into=$folder/$1
    rm -rf "$into"
    step "Packing ($1)" "package-$1.log" cpack --config "$root/build/release/CPackConfig.cmake" -B "$into" "${@:2}"
    rm -rf "$into/_CPack_Packages"
}

# says EXPECTED JUDGE ARGUMENTS...: runs a judge that must end well and say just that.
says() {
    local said status=0
    said=$(LC_ALL=C.UTF-8 "${@:2}" 2>&1) || status=$?
    if [ "$status" -ne 0 ] || [ "$said" != "$1" ]; then
        fail "$2 finds fault (exit code $status):"$'\n'"$said"
    fi
}

# What man warns of while it typesets a page.
man_warns() {
    MANROFFSEQ='' MANWIDTH=80 man --warnings --encoding=UTF-8 --troff-device=utf8 --ditroff --local-file "$1" >/dev/null
}

judge() {
    local share=$folder/unpacked/usr/share
    rm -rf "$folder/unpacked"
    dpkg-deb --extract "$1" "$folder/unpacked"
    says "$(sed -n '1s/.*(\(.*\)).*/\1/p' "$changelog")" dpkg-deb --field "$1" Version
    says "" lintian --allow-root --show-overrides --display-info --pedantic --display-experimental "$1"
    says "" desktop-file-validate "$share/applications/coordsystem_manager.desktop"
    says "✔ Validation was successful." appstreamcli validate --no-net --pedantic "$share"/metainfo/*.xml
    says "" man_warns "$share/man/man1/coordsystem_manager.1.gz"
    echo "lintian, desktop-file-validate, appstreamcli and man: no findings"
}

# A fresh Debian in the folder $1. It is made once; what is downloaded for it is kept, and taken from here if it is here.
fresh_debian() {
    local base=$folder/bookworm.tar mirror=http://deb.debian.org
    mkdir -p "$1" "$folder/archives"
    if [ ! -f "$base" ]; then
        cp -aln /var/cache/apt/archives/*.deb "$folder/archives" 2>/dev/null || true
        step "Making a fresh Debian" debootstrap.log debootstrap --variant=minbase --cache-dir="$folder/archives" \
            bookworm "$1" "$mirror/debian"
        cat >>"$1/etc/apt/sources.list" <<EOF
deb $mirror/debian bookworm-updates main
deb $mirror/debian-security bookworm-security main
EOF
        # It does not outlive the check, so it need not survive a power cut.
        echo force-unsafe-io >"$1/etc/dpkg/dpkg.cfg.d/unsafe-io"
        tar --create --file "$base.part" --directory "$1" .
        mv "$base.part" "$base"
    else
        tar --extract --file "$base" --directory "$1"
    fi
    cp /etc/resolv.conf "$1/etc"
}

check() {
    local powers=+setuid,+setgid,+sys_chroot,+dac_read_search
    [ "$(id -u)" -eq 0 ] || fail "Only root can try the package on a fresh system."
    pack older -D CPACK_PACKAGE_VERSION=0.9.0

    fresh=$(mktemp -d "$folder/fresh.XXXXXX")
    chmod 755 "$fresh"
    trap 'rm -rf --one-file-system "$fresh"' EXIT
    fresh_debian "$fresh/root"
    mkdir -p "$folder/pictures" /tmp/.X11-unix
    chmod 1777 /tmp/.X11-unix
    install --directory --owner=1000 "$fresh/pictures"

    # The mounts are seen by the test alone and vanish with it.
    local status=0
    unshare --mount bash -euc '
        mount --bind /tmp "$0/root/tmp"
        mount --bind /dev "$0/root/dev"
        mount -t proc proc "$0/root/proc"
        mount --bind "$1" "$0/root/var/cache/apt/archives"
        exec setpriv --reuid 1000 --regid 1000 --clear-groups --inh-caps "$2" --ambient-caps "$2" "${@:3}"
    ' "$fresh" "$folder/archives" "$powers" /usr/bin/python3 -B "$root/tests/package/fresh_system.py" \
        "$fresh/root" "$folder"/older/*.deb "$folder"/new/*.deb "$fresh/pictures" || status=$?
    cp "$fresh"/pictures/*.png "$folder/pictures"
    return "$status"
}

install_packages build package
build release coordsystem_manager
pack new
judge "$folder"/new/*.deb
if [ "${1:-}" = --check ]; then
    install_packages display test
    check
fi
echo "$folder"/new/*.deb
