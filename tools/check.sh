#!/usr/bin/env bash
# Checks the sources and documents: the directions between the rooms and the picture of them, what documents link to and name,
# the format, and clang-tidy's findings. tools/test.sh comes first: clang-tidy reads the release build's commands and what
# Qt's tools made in it.
#   tools/check.sh [FILES...]      only these .cpp files are linted, instead of all
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

install_packages build check
cd "$root"
[ -f build/release/compile_commands.json ] || fail "There is no release build: run tools/test.sh first."

tools/check_rooms.sh || fail "The rooms must include what they link, and in one direction only."
tools/draw_rooms.py --check
tools/check_docs.py
git ls-files -z '*.h' '*.cpp' | xargs -0 clang-format --dry-run --Werror

tools/lint.py "$@"
