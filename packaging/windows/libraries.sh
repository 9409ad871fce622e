# The libraries of the Windows program, cross-built from Debian's sources; tools/windows.sh sources it. Each is installed in a
# folder of its own in the cache, named by its version and by all that went into it, so that a change builds anew just
# what depends on it, and what an earlier run finished is not built again.

cache=${VORN_WINDOWS_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/coordinate-system-manager}
host=x86_64-w64-mingw32
toolchain=$root/cmake/mingw-w64.cmake
declare -A at # library -> its folder
missing_libraries=built # or listed, in $missing
missing=

sqlite_version=3.40.1
proj_version=9.1.1
gdal_version=3.6.2
pugixml_version=1.13
qt_version=5.15.8
qwt_version=6.1.4
xxhash_version=0.8.1

# Where Debian's sources come from, without touching the machine's own lists.
apt_sources() {
    local lists=$cache/sources/lists
    mkdir -p "$lists/partial"
    printf 'deb-src http://deb.debian.org/%s main\n' "debian bookworm" "debian-security bookworm-security" \
        >"$cache/sources/sources.list"
    "$@" -o Dir::Etc::sourcelist="$cache/sources/sources.list" -o Dir::Etc::sourceparts=/dev/null \
        -o Dir::State::lists="$lists" -o APT::Sandbox::User=root
}

get_source() {
    mkdir -p "$cache/sources"
    exec 8>"$cache/sources/lock"
    flock 8
    apt_sources apt-get -q update && apt_sources apt-get -q source --only-source "$1" && mv ./"$1"-*/ source
    exec 8>&-
}

# From here on: how each is built. The current folder is its own, its sources are in source/, $1 is where it goes. All of it
# can be done twice over what a stopped run left.

build_sqlite() {
    (cd source && ./configure --disable-tcl && make sqlite3.c sqlite3.h)
    "$host-gcc" -O2 -DSQLITE_ENABLE_RTREE -DSQLITE_ENABLE_COLUMN_METADATA -DSQLITE_OMIT_LOAD_EXTENSION \
        -DSQLITE_THREADSAFE=1 -c source/sqlite3.c -o sqlite3.o
    mkdir -p "$1/lib" "$1/include"
    "$host-ar" rcs "$1/lib/libsqlite3.a" sqlite3.o
    cp source/sqlite3.h "$1/include"
}

# Where a library would look for its data and plugins is a folder that can't be made on Windows, rather than one that a
# stranger could make; nor do the names of its sources tell where it was built.
cmake_library() {
    cmake -S source -B build -G Ninja -DCMAKE_TOOLCHAIN_FILE="$toolchain" -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_C_FLAGS="-ffile-prefix-map=$PWD/=" -DCMAKE_CXX_FLAGS="-ffile-prefix-map=$PWD/=" \
        -DCMAKE_INSTALL_PREFIX=/nul -DBUILD_SHARED_LIBS=OFF "${@:2}"
    cmake --build build -j "$(nproc)"
    DESTDIR=$PWD/installed cmake --install build # PROJ's data would go to the prefix itself, whatever --prefix says
    mkdir -p "$1"
    cp -r installed/nul/. "$1"
}

build_proj() {
    cmake_library "$1" -DCMAKE_PREFIX_PATH="${at[sqlite]}" -DEXE_SQLITE3=/usr/bin/sqlite3 -DENABLE_CURL=OFF \
        -DENABLE_TIFF=OFF -DBUILD_APPS=OFF -DBUILD_PROJSYNC=OFF -DBUILD_TESTING=OFF
}

# Of GDAL, the tool uses the coordinate systems alone.
build_gdal() {
    cmake_library "$1" -DCMAKE_PREFIX_PATH="${at[proj]};${at[sqlite]}" -DCMAKE_FIND_PACKAGE_PREFER_CONFIG=ON \
        -DBUILD_APPS=OFF -DBUILD_TESTING=OFF -DBUILD_PYTHON_BINDINGS=OFF -DBUILD_JAVA_BINDINGS=OFF \
        -DBUILD_CSHARP_BINDINGS=OFF -DGDAL_BUILD_OPTIONAL_DRIVERS=OFF -DOGR_BUILD_OPTIONAL_DRIVERS=OFF \
        -DGDAL_USE_EXTERNAL_LIBS=OFF -DGDAL_USE_INTERNAL_LIBS=ON -DACCEPT_MISSING_SQLITE3_MUTEX_ALLOC=ON
}

build_pugixml() {
    cmake_library "$1"
}

# With the texts of its own dialogs, which Debian has in a package of its own.
# Debian's sources lack the header for tablets with a driver from before Windows 8; a pen is a mouse without it.
build_qt() {
    mkdir -p build
    cd build
    [ -f configured ] || ../source/configure -opensource -confirm-license -release -shared -prefix "$1" -xplatform win32-g++ \
        -device-option CROSS_COMPILE="$host-" -external-hostbindir /usr/lib/qt5/bin \
        -nomake examples -nomake tests -no-opengl -no-icu -no-dbus -no-ssl -no-libjpeg -no-gif -no-directwrite \
        -qt-zlib -qt-libpng -qt-pcre -qt-freetype -qt-harfbuzz \
        -no-feature-sql -no-feature-xml -no-feature-concurrent -no-feature-printer -no-feature-vulkan -no-feature-direct2d \
        -no-feature-tabletevent
    touch configured
    make -j"$(nproc)"
    make install
    mkdir -p "$1/translations"
    cp /usr/share/qt5/translations/qtbase_*.qm "$1/translations"
}

# The plot alone, drawn by one thread. Debian's qmake reads the other system's settings from Qt's own folder.
build_qwt() {
    cat >source/qwtconfig.pri <<EOF
QWT_VER_MAJ = 6
QWT_VER_MIN = 1
QWT_VER_PAT = 4
QWT_VERSION = 6.1.4
QWT_INSTALL_PREFIX = $1
QWT_INSTALL_HEADERS = $1/include
QWT_INSTALL_LIBS = $1/lib
QWT_INSTALL_DOCS = $1/doc
QWT_INSTALL_FEATURES = $1/features
QWT_CONFIG = QwtPlot
EOF
    sed -i 's/printsupport/widgets/g; s/^ *QT *+= *concurrent//' source/src/src.pri
    sed -i '/include <\(qtconcurrentrun\|qfuture\|qprinter\)\.h>/d' source/src/*.cpp
    sed -i '/^CONFIG *+= *\(debug_and_release\|build_all\)/d; s/debug_and_release//; s/build_all//' source/qwtbuild.pri
    mkdir -p "$1/lib" "$1/include"
    (cd source/src && "${at[qt]}/bin/qmake" src.pro CONFIG+=release CONFIG-=debug_and_release \
        DEFINES+='QT_NO_PRINTER QT_NO_QFUTURE' &&
        make -j"$(nproc)")
    cp source/lib/libqwt-qt5.a "$1/lib/libqwt.a" # Debian's name for it
    cp source/src/*.h "$1/include"
}

# Headers alone, which must not bring the host's other ones along.
build_xxhash() {
    mkdir -p "$1/include"
    cp /usr/include/xxhash.h "$1/include"
}

# library NAME VERSION SOURCE-PACKAGE [LIBRARIES that it is built on...]: sets at[NAME], and builds it if the cache lacks it.
library() {
    local name=$1 version=$2 package=$3 recipe key base
    recipe=$(declare -f "build_$name")
    case $recipe in
    *cmake_library*) recipe+=$(declare -f cmake_library | cat - "$toolchain") ;;
    esac
    for base in "${@:4}"; do
        recipe+=${at[$base]}
    done
    key=$(sha1sum <<<"$recipe" | cut -c 1-8)
    at[$name]=$cache/$name-$version-$key
    [ ! -f "${at[$name]}/built" ] || return 0
    if [ "$missing_libraries" = listed ]; then
        missing+="$name "
        return 0
    fi
    echo "$(date +%H:%M)  $name $version"
    # A shell of its own, since none stops at an error inside of what is asked whether it ended well.
    step "  building" "windows-$name.log" bash -euo pipefail -c \
        "$(declare -p root cache host toolchain at && declare -f); build_library \"\$@\"" library \
        "$name" "$version" "$package" "${at[$name]}" ||
        fail "  $name could not be built; what was begun is in $cache/building"
}

# A stopped run is taken up where it was: the folder is the same as long as what goes into it is.
build_library() {
    local name=$1 version=$2 package=$3 into=$4 folder=$cache/building/${4##*/}
    mkdir -p "$folder"
    cd "$folder"
    exec 9>"$folder.lock"
    flock 9 # another checkout may be at it
    [ ! -f "$into/built" ] || return 0
    if [ ! -f unpacked ]; then
        rm -rf -- *
        if [ -n "$package" ]; then
            get_source "$package"
            case $(dpkg-parsechangelog -l source/debian/changelog -S Version) in
            "$version"*) ;;
            *) fail "Debian's $package is no longer of version $version" ;;
            esac
        fi
        touch unpacked
    fi
    rm -rf "$into"
    "build_$name" "$into"
    touch "$into/built"
    cd "$cache"
    rm -rf "$folder" "$folder.lock"
}

build_libraries() {
    library sqlite "$sqlite_version" sqlite3
    library proj "$proj_version" proj sqlite
    library gdal "$gdal_version" gdal proj sqlite
    library pugixml "$pugixml_version" pugixml
    library xxhash "$xxhash_version" ""
    library qt "$qt_version" qtbase-opensource-src
    library qwt "$qwt_version" qwt qt
}
