# Sourced: where Wine is and which prefix it uses. The prefixes are this project's own, never the user's ~/.wine.
wine32=/usr/lib/wine/wine
wine64=/usr/lib/wine/wine64
wineserver=/usr/lib/wine/wineserver
cache="${XDG_CACHE_HOME:-${HOME:-/var/tmp/zorvic-$UID}/.cache}/zorvic"
export WINEDEBUG="${WINEDEBUG:--all}"
# No menu entries on the host, no downloads of .NET or HTML engines.
export WINEDLLOVERRIDES="winemenubuilder.exe=;mscoree=;mshtml="
# File names are UTF-8 whatever the caller's locale.
export LC_ALL=C.UTF-8

# use_wine 32|64: the loader and the prefix for programs of that width. A prefix for each, because 32-bit programs need
# nothing of 64-bit Wine and 64-bit Wine refuses a 32-bit prefix.
use_wine() {
    export WINEPREFIX="${ZORVIC_WINEPREFIX:-$cache/wine}" WINEARCH="win$1"
    wine="$wine32"
    if [[ $1 == 64 ]]; then
        WINEPREFIX+=-x64 wine="$wine64"
    fi
}
use_wine 32

# program_bits PROGRAM: 64 for a file whose header says x86-64, else 32.
program_bits() {
    local header machine
    if [[ -f $1 ]] && header="$(od -An -tu4 -j60 -N4 "$1")" &&
        machine="$(od -An -tx2 -j$((header + 4)) -N2 "$1" 2>/dev/null)" && [[ $machine == *8664 ]]; then
        echo 64
    else
        echo 32
    fi
}
