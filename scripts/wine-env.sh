# Sourced: where Wine is and which prefix it uses. The prefix is this project's own, never the user's ~/.wine.
wine=/usr/lib/wine/wine
wineserver=/usr/lib/wine/wineserver
cache="${XDG_CACHE_HOME:-${HOME:-/var/tmp/zorvic-$UID}/.cache}/zorvic"
export WINEPREFIX="${ZORVIC_WINEPREFIX:-$cache/wine}"
export WINEARCH=win32
export WINEDEBUG="${WINEDEBUG:--all}"
# No menu entries on the host, no downloads of .NET or HTML engines.
export WINEDLLOVERRIDES="winemenubuilder.exe=;mscoree=;mshtml="
# File names are UTF-8 whatever the caller's locale.
export LC_ALL=C.UTF-8
