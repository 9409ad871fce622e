#!/usr/bin/env bash
# Checks the sources and documents: the directions between the rooms and the picture of them, what documents link to and name,
# the format, and clang-tidy's findings. tools/test.sh comes first: clang-tidy reads the release build's commands and what
# Qt's tools made in it.
#   tools/check.sh [FILES...]      only these .cpp files are linted, instead of all
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

install_packages build check
cd "$root"
commands=build/release/compile_commands.json
[ -f "$commands" ] || fail "There is no $commands: run tools/test.sh first."

tools/check_rooms.sh || fail "The rooms must include what they link, and in one direction only."
tools/draw_rooms.py --check
tools/check_docs.py
git ls-files -z '*.h' '*.cpp' | xargs -0 clang-format --dry-run --Werror

# Sources that this platform's build leaves out can't be linted here.
if [ $# -eq 0 ]; then
    mapfile -t files < <(git ls-files '*.cpp')
else
    files=("$@")
fi
sources=()
for file in "${files[@]}"; do
    if grep -qF "\"file\": \"$root/${file#"$root"/}\"" "$commands"; then
        sources+=("$file")
    fi
done
[ "${#sources[@]}" -gt 0 ] || fail "No source is named in $commands."

lint() {
    local findings status=0
    if [ -t 2 ]; then
        printf '\r\033[K%s' "$1" >&2
    fi
    # -Werror would turn clang's own warnings into errors that no check can switch off.
    findings=$(clang-tidy -p build/release --quiet --extra-arg=-Wno-error "$1" 2>&1) || status=$?
    grep -vE '^$|warnings generated\.$' <<<"$findings" || true
    return "$status"
}
export -f lint
echo "Linting ${#sources[@]} sources ..."
if ! printf '%s\0' "${sources[@]}" | xargs -0 -n 1 -P "$(nproc)" bash -c 'lint "$1"' lint; then
    fail "The linter has findings."
fi
echo "Rooms, format and lint: ${#sources[@]} sources, no findings"
