#!/usr/bin/env bash
# Checks by their includes that the rooms of src/ depend on each other in one direction only.
# Prints each include that is not allowed; exit code 1 when there is one.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
cd "$root/src"

# What every room of the tool may use of platform/: interfaces, never the classes behind them.
interfaces='platform/desktop platform/projection'
engine=platform/projection/engine

# Room: what it may include beside itself.
declare -A allowed=(
    [catalogue]=''
    [platform/utility]='catalogue'
    [platform/sdk]='catalogue platform/utility'
    [platform/projection]='catalogue platform/utility'
    [platform/projection/engine/proj]='catalogue platform/projection'
    [platform/projection/engine/plane]="catalogue platform/projection $engine/proj"
    [platform/projection/engine/definition]="catalogue platform/projection $engine/proj $engine/plane"
    [platform/projection/engine/wkt]="catalogue platform/projection $engine/proj $engine/plane $engine/definition"
    [platform/projection/engine/reading]="catalogue platform/projection $engine/proj $engine/definition $engine/wkt"
    [platform/projection/engine/computing]="catalogue platform/projection $engine/proj $engine/plane $engine/definition"
    [platform/projection/engine]="platform/projection $engine/proj $engine/definition $engine/wkt $engine/computing $engine/reading"
    [platform/projection/module]='platform/projection platform/projection/engine'
    [platform/desktop]='catalogue platform/utility'
    [import]="catalogue $interfaces"
    [geodesy]="catalogue $interfaces"
    [panel/record]='catalogue import platform/projection'
    [panel/computing]='catalogue import panel/record platform/projection'
    [panel/field]='catalogue panel/record'
    [panel/registry]="catalogue import panel/record panel/computing panel/field $interfaces"
    [panel/save]="catalogue panel/record panel/field $interfaces"
    [panel/shift]="catalogue panel/record panel/computing panel/field $interfaces"
    [panel/check]="catalogue panel/record panel/computing panel/field $interfaces"
    [panel]="catalogue import panel/record panel/computing panel/field panel/registry panel/save panel/shift panel/check $interfaces"
    [tree]="catalogue import geodesy $interfaces"
    [app]="catalogue tree panel $interfaces"
)
without_widgets="catalogue import platform/utility platform/sdk platform/projection platform/projection/module"
without_widgets+=" $engine $engine/proj $engine/plane $engine/definition $engine/wkt $engine/reading $engine/computing panel/record panel/computing"
widget_headers=$(pkg-config --variable=includedir Qt5Widgets)/QtWidgets

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
    if [ -z "${allowed[$room]+known}" ]; then
        complain "$room" "this room is unknown to tools/check_rooms.sh"
        continue
    fi
    while IFS= read -r found; do
        seen=$((seen + 1))
        place=${found%:*}
        header=${found##*:}
        name=${header:1:-1}
        case $header in
        \"*.moc\" | \"moc_*.cpp\") ;;
        \"*)
            target=$(dirname "$name")
            case " $room ${allowed[$room]} " in
            *" $target "*) ;;
            *) complain "$place" "$room must not include $header" ;;
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
            case " $without_widgets " in
            *" $room "*)
                if [[ $name == QtWidgets* ]] || [ -e "$widget_headers/$name" ]; then
                    complain "$place" "$room must not use widgets: $header"
                fi
                ;;
            esac
            ;;
        esac
    done < <(includes "$room")
done

[ "$seen" -gt 0 ] || fail "No include was found: the check does not see the sources."
[ "$complaints" -eq 0 ]
