# Sourced by ./demo, ./test and scripts/setup: one line per step, a heartbeat for long ones, one clear line on failure.
set -u
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
logs="$root/build/logs"
heartbeat_seconds=15
export LC_ALL=C.UTF-8

step() { printf '==> %s\n' "$*"; }

# fail MESSAGE: the last line that a failed run prints.
fail() {
    printf 'error: %s\n' "$*" >&2
    exit 1
}

# free_megabytes FOLDER: free space at the nearest existing folder.
free_megabytes() {
    local folder="$1"
    while [[ ! -d $folder ]]; do folder="$(dirname "$folder")"; done
    df -Pm "$folder" | awk 'NR == 2 { print $4 }'
}

# need_megabytes N FOLDER WHAT-FOR
need_megabytes() {
    local free
    free="$(free_megabytes "$2")"
    ((free >= $1)) || fail "$3 needs $1 MB at $2, only $free MB are free"
}

# try_long NAME COMMAND...: runs a command with its output in build/logs/NAME.log and says now and then how far it is.
try_long() {
    local name="$1" log="$logs/$1.log" command pulse status
    shift
    mkdir -p "$logs" 2>/dev/null && : 2>/dev/null >"$log" || fail "cannot write to $logs"
    "$@" >"$log" 2>&1 </dev/null &
    command=$!
    heartbeat "$name" &
    pulse=$!
    trap 'kill $command $pulse 2>/dev/null; wait $command; exit 130' INT TERM HUP
    wait $command
    status=$?
    kill $pulse 2>/dev/null
    wait $pulse 2>/dev/null
    trap - INT TERM HUP
    return $status
}

# heartbeat NAME: every few seconds, the time that has passed and the last line of the log.
heartbeat() {
    local started=$SECONDS pause
    trap 'kill $pause 2>/dev/null; exit' TERM
    while :; do
        sleep "$heartbeat_seconds" &
        pause=$!
        wait $pause
        printf '    %s: %d s  %s\n' "$1" $((SECONDS - started)) \
            "$(tail -n 1 "$logs/$1.log" | tr -d '\000-\037' | cut -c 1-90)"
    done
}

# long NAME WHAT-FAILED COMMAND...: try_long, and the end of the run if the command fails.
long() {
    local name="$1" what="$2"
    shift 2
    try_long "$name" "$@" || fail_with_log "$name" "$what"
}

# fail_with_log NAME WHAT-FAILED: shows the end of the log, then the one line.
fail_with_log() {
    local log="$logs/$1.log" folder
    tail -n 25 "$log" >&2
    for folder in "$root" "${WINEPREFIX:-$root}" /var/cache /tmp; do
        (($(free_megabytes "$folder") >= 20)) || fail "$2: the disk is full at $folder"
    done
    fail "$2 (the whole output is in $log)"
}

# build PRESET [TARGET...]
build() {
    local preset="$1" folder="$root/build/$1"
    shift
    # A build folder that was made elsewhere cannot be used here.
    if [[ -f $folder/CMakeCache.txt ]] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$folder/CMakeCache.txt"; then
        rm -rf "$folder"
    fi
    step "building $preset"
    if [[ ! -f $folder/build.ninja ]]; then
        long "configure-$preset" "configuring $preset failed" env -C "$root" cmake --preset "$preset"
    fi
    long "build-$preset" "building $preset failed" env -C "$root" cmake --build --preset "$preset" ${1+--target "$@"}
}
