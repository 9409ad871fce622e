#!/usr/bin/env bash
# Counts the instructions of a start and of the load of a catalogue with callgrind, and compares them with
# bench/instructions/expected.txt: 5 % more than there is a fault. Counts don't depend on what else the machine does.
#   tools/instructions.sh [--renew]      --renew writes the counts to that file instead
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

expected=$root/bench/instructions/expected.txt
programs=$root/build/release/benchmarks
profiles=$root/build/instructions
packages=(g++ libc6 libstdc++6 libqt5core5a libqt5widgets5 libpugixml1v5 libqwt-qt5-6 libfontconfig1 libfreetype6
    libharfbuzz0b fonts-dejavu-core proj-data valgrind)

install_packages build instructions
build release bench_instructions_start bench_speed_catalogue

rm -rf "$profiles"
mkdir -p "$profiles/home" "$profiles/catalogue"
# Nothing of the user's, no seed of the day, and no instruction that some processors lack.
surroundings=(env -i PATH=/usr/bin:/bin HOME="$profiles/home" XDG_RUNTIME_DIR="$profiles/home" LANG=C.UTF-8
    QT_QPA_PLATFORM=offscreen QT_HASH_SEED=0 QT_NO_CPU_FEATURE="sse3 ssse3 sse4.1 sse4.2 avx avx2"
    GLIBC_TUNABLES=glibc.cpu.hwcaps=-AVX2,-AVX,-SSE4_2,-ERMS,-FSRM)

# count NAME PROGRAM [ARGUMENTS...]: prints the count and leaves the profile.
count() {
    local name=$1
    shift
    # The first run fills the fonts' cache.
    "${surroundings[@]}" "$programs/$1" "${@:2}" >"$profiles/$name.log" 2>&1 || fail "$1 failed: $profiles/$name.log"
    "${surroundings[@]}" valgrind --tool=callgrind --callgrind-out-file="$profiles/$name.out" "$programs/$1" "${@:2}" \
        >"$profiles/$name.log" 2>&1 || fail "$1 failed under callgrind: $profiles/$name.log"
    awk '/^summary:|^totals:/ { print $2; found = 1; exit } END { exit !found }' "$profiles/$name.out"
}

"$programs/bench_speed_catalogue" make "$profiles/catalogue" 10000
start=$(count start bench_instructions_start)
load=$(count load bench_speed_catalogue load "$profiles/catalogue")
{
    echo "# Instructions of a start and of the load of 10,000 systems, and what they were counted with."
    echo "# tools/instructions.sh --renew writes this file."
    echo "start $start"
    echo "load $load"
    dpkg-query -W -f 'with ${Package} ${Version}\n' "${packages[@]}"
} >"$profiles/counted.txt"

if [ "${1:-}" = --renew ]; then
    cp "$profiles/counted.txt" "$expected"
    cat "$expected"
    exit
fi

if ! others=$(diff <(grep ^with "$expected") <(grep ^with "$profiles/counted.txt")); then
    echo "Instructions are not compared: they were counted with other versions (< then, > now), which count differently."
    echo "$others"
    exit
fi

status=0
while read -r name before; do
    now=$(awk -v name="$name" '$1 == name { print $2 }' "$profiles/counted.txt")
    awk -v name="$name" -v before="$before" -v now="$now" 'BEGIN {
        printf "%s: %.1f million instructions, %+.1f %% against %.1f\n", name, now / 1e6, (now / before - 1) * 100, before / 1e6
        if (now < before * 0.95)
            print "    That is worth keeping: tools/instructions.sh --renew, and commit the file."
        exit now > before * 1.05 }' && continue
    status=1
    echo "The $name costs over 5 % more instructions than bench/instructions/expected.txt says. Where they are spent:"
    echo "    callgrind_annotate --inclusive=yes $profiles/$name.out | head -60"
    echo "If the change is worth that, run tools/instructions.sh --renew and commit the file with the reason."
done < <(awk '$1 == "start" || $1 == "load"' "$expected")
exit "$status"
