#!/usr/bin/env bash
# Feeds random input to what reads files and texts, MINUTES for each program in fuzz/ (decimals allowed). What breaks one
# is kept in build/fuzz/found; what is new for a program goes to build/fuzz/corpus, where the next run begins.
#   tools/fuzz.sh MINUTES [NAME...]      only these programs: catalogue, definition, ...
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

[ $# -gt 0 ] || fail "usage: tools/fuzz.sh MINUTES [NAME...]"
seconds=$(awk -v minutes="$1" 'BEGIN { print int(minutes * 60) }')
shift

install_packages build fuzz
build fuzz fuzz

if [ $# -eq 0 ]; then
    # shellcheck disable=SC2046 # one name per word
    set -- $(cd "$root/fuzz" && basename -s .cpp -- *.cpp)
fi
found=$root/build/fuzz/found
mkdir -p "$found"
[ -d /dev/shm ] && export TMPDIR=/dev/shm # the programs' files lie in memory
export ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1
export LSAN_OPTIONS=suppressions=$root/tools/leaks-of-libraries.txt:print_suppressions=0

# run NAME: rounds of a minute at most, since the projection library keeps every definition that it was given.
run() {
    local name=$1 left=$seconds round inputs=0 corpus=$root/build/fuzz/corpus/$1
    mkdir -p "$corpus"
    while [ "$left" -gt 0 ]; do
        round=$((left < 60 ? left : 60))
        "$root/build/fuzz/fuzz/fuzz_$name" -max_total_time="$round" -timeout=20 -max_len=16384 -print_final_stats=1 \
            -dict="$root/fuzz/$name.dict" -artifact_prefix="$found/$name-" "$corpus" "$root/fuzz/seeds/$name" \
            >"$logs/fuzz-$name.log" 2>&1 || return 1
        inputs=$((inputs + $(awk '/number_of_executed_units/ { print $2 }' "$logs/fuzz-$name.log")))
        left=$((left - round))
    done
    echo "$name: $inputs inputs, $(find "$corpus" -type f | wc -l) kept, nothing found"
}

# judge NAME: runs it, and says what came of it.
judge() {
    run "$1" && return
    echo "$1: found something; the whole output is in $logs/fuzz-$1.log"
    grep -E '^Broken|^SUMMARY|Test unit written|runtime error' "$logs/fuzz-$1.log" || tail -n 5 "$logs/fuzz-$1.log"
    return 1
}

export root logs found seconds
export -f run judge
printf '%s\n' "$@" | xargs -P "$(nproc)" -n 1 bash -euo pipefail -c 'judge "$1"' judge
