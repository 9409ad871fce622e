#!/usr/bin/env bash
# Plants the faults of tools/mutants.txt one at a time in a copy of the tree, and says which of them the offscreen tests do
# not notice. A run that is broken off goes on where it was, as long as no source or test has changed since.
#   tools/mutants.sh [FILTER]      only the rows whose file, text before or text after match the regular expression
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

install_packages build test
exec /usr/bin/python3 -B "$root/tools/mutants.py" "$root" "$root/build/mutants" "$@"
