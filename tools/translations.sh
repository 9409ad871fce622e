#!/usr/bin/env bash
# The texts in other languages, translations/*.ts: whether they are all there and fit the sources.
#   tools/translations.sh            checks
#   tools/translations.sh --update   brings the sources' texts into the catalogues, for Qt Linguist or an editor
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

install_packages build
cd "$root"

# Without line numbers, so that a catalogue changes only where a text does.
update() {
    local file options
    for file in "$1"/coordsystem_manager_*.ts; do
        options=()
        if [[ $file == *_en.ts ]]; then
            options=(-pluralonly) # the sources are in English
        fi
        lupdate -silent -locations none -no-obsolete -source-language en "${options[@]}" src -ts "$file"
    done
}

if [ "${1:-}" = --update ]; then
    update translations
    exit
fi
fresh=$(mktemp -d)
trap 'rm -rf "$fresh"' EXIT
cp translations/*.ts "$fresh"
update "$fresh"
/usr/bin/python3 -B tools/translations.py translations "$fresh"
