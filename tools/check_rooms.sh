#!/usr/bin/env bash
# Checks by their includes that the rooms of src/ are what CMake's targets say: each includes only itself and what it links,
# and links for itself alone only what it includes. Prints each include and link that is not so; exit code 1 when there is
# one. What the targets link is drawn in docs/images/rooms.svg, which tools/draw_rooms.py keeps right.
#   tools/check_rooms.sh [BUILD FOLDER]
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

engine=platform/projection/engine
# Only a program's link line, and platform/ itself, names what stands behind the interfaces.
behind="platform/utility|platform/sdk|$engine|$engine/.*|platform/projection/module"

declare -A sees links widgets
declared=$(/usr/bin/python3 -B "$root/tools/rooms.py" "$@")
while IFS='|' read -r room its_sees its_links its_widgets; do
    sees[$room]=$its_sees
    links[$room]=$its_links
    widgets[$room]=$its_widgets
    # The engine makes what platform/projection declares; it can't link its loader, which loads it.
    [[ $room != "$engine"* ]] || sees[$room]+=" platform/projection"
done <<<"$declared"
widget_headers=$(pkg-config --variable=includedir Qt5Widgets)/QtWidgets
cd "$root/src"

# includes FOLDER: "file:line:included" for each include of its files.
includes() {
    grep -nHE '^ *# *include' "$1"/*.h "$1"/*.cpp 2>/dev/null |
        sed -E 's/: *# *include *([<"][^>"]+[>"]).*/:\1/'
}

complaints=0
complain() {
    echo "src/$1: $2"
    complaints=$((complaints + 1))
}

seen=0
for room in $(find . -name '*.h' -printf '%P\n' -o -name '*.cpp' -printf '%P\n' | xargs -n 1 dirname | sort -u); do
    if [ -z "${sees[$room]+known}" ]; then
        complain "$room" "no target of CMake's stands for this folder"
        continue
    fi
    included=' '
    while IFS= read -r found; do
        seen=$((seen + 1))
        place=${found%:*}
        header=${found##*:}
        name=${header:1:-1}
        case $header in
        \"*.moc\" | \"moc_*.cpp\") ;;
        \"*)
            target=${name%/*}
            included+="$target "
            case " $room ${sees[$room]} " in
            *" $target "*) ;;
            *) complain "$place" "$room must not include $header: it does not link $target" ;;
            esac
            ;;
        \<gdal* | \<ogr* | \<cpl* | \<proj* | \<geodesic*)
            [[ $room == "$engine"* ]] || complain "$place" "only $engine uses $header"
            ;;
        \<pugi*)
            [ "$room" = platform/sdk ] || complain "$place" "only platform/sdk uses $header"
            ;;
        \<qwt* | \<Qwt*)
            [ "$room" = panel/check ] || complain "$place" "only panel/check uses $header"
            ;;
        \<Eigen*)
            [ "$room" = panel/computing ] || complain "$place" "only panel/computing uses $header"
            ;;
        *)
            if [ -z "${widgets[$room]}" ] && { [[ $name == QtWidgets* ]] || [ -e "$widget_headers/$name" ]; }; then
                complain "$place" "$room must not use widgets: $header"
            fi
            ;;
        esac
    done < <(includes "$room")
    for target in ${links[$room]}; do
        # platform/utility is what stands behind functions that catalogue declares.
        if [[ $included != *" $target "* && $target != platform/utility ]]; then
            complain "$room/CMakeLists.txt" "$room links $target and includes nothing of it"
        fi
    done
    if [[ $room != platform/* ]]; then
        for target in ${sees[$room]}; do
            [[ ! $target =~ ^($behind)$ ]] || complain "$room/CMakeLists.txt" "$room must not link $target"
        done
    fi
done

[ "$seen" -gt 0 ] || fail "No include was found: the check does not see the sources."
[ "$complaints" -eq 0 ]
