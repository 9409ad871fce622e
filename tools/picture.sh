#!/usr/bin/env bash
# Shows a program on a virtual display of its own and saves a picture of its window.
#   tools/picture.sh PICTURE.png PROGRAM [ARGUMENTS...]
exec /usr/bin/python3 -B "$(dirname "${BASH_SOURCE[0]}")/screen.py" "$@"
