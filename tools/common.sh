# Shared by the scripts in tools/, which source it: where things lie, installing, building, and how steps report.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
logs=$root/build/log
mkdir -p "$logs"
export HOME="${HOME:-$(getent passwd "$(id -u)" | cut -d: -f6)}"

fail() {
    echo "$*" >&2
    exit 1
}

# Waits without a child process that would outlive the waiting shell.
exec {never}<> <(:)
pause() {
    read -rt "$1" -u "$never" || true
}

# While a step runs: nothing for its first two seconds, then its title and how far its log has come.
follow() {
    local title=$1 log=$2 started=$SECONDS line
    pause 2
    if [ ! -t 1 ]; then
        echo "$title ..."
    fi
    while kill -0 $$ 2>/dev/null; do
        line=$(tail -n 1 "$log" 2>/dev/null | tr '\r' '\n' | tail -n 1 | cut -c 1-70)
        if [ -t 1 ]; then
            printf '\r\033[K%s (%d s) %s' "$title" $((SECONDS - started)) "$line"
            pause 0.5
        else
            pause 30
            echo "  $((SECONDS - started)) s: $line"
        fi
    done
}

# step TITLE LOG COMMAND...: runs a command quietly. Its output goes to build/log/LOG, whose end is shown if it fails.
step() {
    local title=$1 log=$logs/$2 watcher status=0
    shift 2
    : >"$log"
    follow "$title" "$log" &
    watcher=$!
    "$@" >>"$log" 2>&1 </dev/null || status=$?
    kill "$watcher" 2>/dev/null || true
    wait "$watcher" 2>/dev/null || true
    if [ -t 1 ]; then
        printf '\r\033[K'
    fi
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
    step "Reading the package lists" apt-update.log "${as_root[@]}" update
    # shellcheck disable=SC2086
    step "Installing $(echo $missing | wc -w) packages" apt-install.log \
        "${as_root[@]}" install -y --no-install-recommends $missing
}

# build PRESET: configures build/PRESET the first time and builds it.
build() {
    local preset=$1 options=()
    cd "$root"
    if [ ! -f "build/$preset/build.ninja" ]; then
        if command -v ccache >/dev/null; then
            options=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
        fi
        step "Configuring ($preset)" "configure-$preset.log" cmake --preset "$preset" "${options[@]}"
    fi
    step "Building ($preset)" "build-$preset.log" cmake --build --preset "$preset"
}
