# Shared by the scripts in tools/, which source it: where things lie, installing, building.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
logs=$root/build/log
release_data=$root/build/release/etc/Vornhalde/data
mkdir -p "$logs"
export HOME="${HOME:-$(getent passwd "$(id -u)" | cut -d: -f6)}"

fail() {
    echo "$*" >&2
    exit 1
}

# step TITLE LOG COMMAND...: runs a command whose output is long and seldom read. It goes to build/log/LOG, whose end is
# shown if the command fails.
step() {
    local title=$1 log=$logs/$2 status=0
    shift 2
    echo "$title ..."
    "$@" >"$log" 2>&1 </dev/null || status=$?
    if [ "$status" -ne 0 ]; then
        tail -n 60 "$log" >&2
        echo "$title: failed with exit code $status; the whole output is in $log" >&2
    fi
    return "$status"
}

# The packages that the named sections of packages.txt list.
packages_of() {
    local section
    for section in "$@"; do
        awk -v want="[$section]" '/^\[/ { on = ($0 == want); next } on && NF && !/^#/' "$root/tools/packages.txt"
    done
}

# install_packages SECTION...: installs what is missing of the sections; asks apt only then.
install_packages() {
    local wanted missing as_root=()
    wanted=$(packages_of "$@" | sort -u)
    # shellcheck disable=SC2086 # one argument per package
    missing=$(comm -23 <(echo "$wanted") <(dpkg-query -W -f='${db:Status-Status} ${Package}\n' $wanted 2>/dev/null |
        awk '$1 == "installed" { print $2 }' | sort -u) | tr '\n' ' ')
    if [ -z "${missing// /}" ]; then
        return 0
    fi
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || fail "These packages are missing; please install them: $missing"
        sudo -v
        as_root=(sudo)
    fi
    as_root+=(env DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=300)
    local lock
    exec {lock}>"$logs/install.lock"
    flock "$lock" # apt would not wait for another script's update
    step "Reading the package lists" apt-update.log "${as_root[@]}" update
    # shellcheck disable=SC2086
    step "Installing $(echo $missing | wc -w) packages" apt-install.log \
        "${as_root[@]}" install -y --no-install-recommends $missing
    exec {lock}>&-
}

# build PRESET [TARGETS...]: configures build/PRESET the first time and builds it.
build() {
    local preset=$1 options=()
    cd "$root"
    if [ ! -f "build/$preset/build.ninja" ]; then
        if command -v ccache >/dev/null; then
            options=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
        fi
        # Where each step is checked, the generator takes minutes to make what the release build has made.
        if [ "$preset" = asan ] && [ -f "$release_data/CoordinateSystem.vcs" ]; then
            options+=("-DVORN_SHIPPED_DATA=$release_data")
        fi
        step "Configuring ($preset)" "configure-$preset.log" cmake --preset "$preset" "${options[@]}"
    fi
    shift
    # Ninja overwrites its own line on a terminal; elsewhere it would print one for each of its commands.
    if [ ! -t 1 ]; then
        echo "Building ($preset) ..."
        options=(-- --quiet)
    else
        options=()
    fi
    cmake --build --preset "$preset" ${1:+--target "$@"} "${options[@]}"
}
