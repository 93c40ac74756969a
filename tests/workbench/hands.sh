# Sourced by the stories: rows of the panel, mouse and keys, and looking. A failed comparison is one line, and the run goes
# on.

# Upper edges of the panel's rows.
operation_row=94 key_row=120 opacity_row=146 filter_row=172 kernel_row=198 ground_row=224
layout_row=274 scale_row=326 destination_row=352
transform_row=428 effect_row=454 hue_row=506
channels_row=608

passed=0 failed=0 name=""

# start WORKBENCH HAND FOLDER: opens the test picture in a window of 1000 x 700 pixels in the screen's corner.
start() {
    hand_program="$2"
    folder="$3"
    rm -rf "$folder" && mkdir -p "$folder" && folder="$(realpath "$folder")" || exit 1
    # 64 x 48: yellow corners and green edges of 8 pixels; the centre is red on the left, half transparent blue on the right.
    cp "$here/test.png" "$folder" || exit 1
    "$scripts/wine-run" --window "$1" "Z:$folder/test.png" &
    program=$!
    trap 'kill $program 2>/dev/null; wait $program 2>/dev/null' EXIT
    for ((i = 0; i < 300; ++i)); do
        window="$(xdotool search --onlyvisible --class "$(basename "$1")" 2>/dev/null | tail -n 1)"
        [[ -z $window ]] || break
        kill -0 $program 2>/dev/null || break
        sleep 0.2
    done
    [[ -n $window ]] || { echo "the workbench showed no window" >&2; exit 1; }
    xdotool windowmove "$window" 0 0 windowsize "$window" 1000 700 windowfocus "$window"
    open_is "test.png"
    press 0
}

finish() {
    printf '%d passed, %d failed; screenshots in %s\n' $passed $failed "$folder"
    ((failed == 0))
    exit
}

story() {
    name="$1"
    printf '%s\n' "$name"
}

check() { # WHAT STATUS DETAIL
    if [[ $2 == 0 ]]; then
        ((++passed))
    else
        ((++failed))
        printf '  failed: %s: %s: %s\n' "$name" "$1" "$3"
        maim -u -i "$window" "$folder/failed-$failed.png"
    fi
}
# What a command tells of the program becomes the wanted text, or another one than before; a slow machine has two minutes.
same() { # WHAT WANTED COMMAND...
    local got what="$1" wanted="$2"
    shift 2
    wait_until '[[ $got == "$wanted" ]]' "$@"
    check "$what" $? "wanted $wanted, got $got"
}
differs() { # WHAT BEFORE COMMAND...
    local got what="$1" before="$2"
    shift 2
    wait_until '[[ $got != "$before" ]]' "$@"
    check "$what" $? "nothing changed"
    settle
}

hand() { "$wine" "$hand_program" "$@" | tr -d '\r'; }

# ---- mouse and keys; places are pixels of the window, which is in the corner of the screen

to() { xdotool mousemove "$1" "$2" sleep 0.05; }
click() {
    xdotool mousemove "$1" "$2" sleep 0.05 click 1
    settle
}
wheel() { # BUTTON TIMES: 4 is up
    xdotool click --repeat "$2" --delay 60 "$1"
    settle
}
drag() { # X Y TO-X TO-Y
    xdotool mousemove "$1" "$2" sleep 0.05 mousedown 1 sleep 0.05 mousemove $((($1 + $3) / 2)) $((($2 + $4) / 2)) \
        sleep 0.05 mousemove "$3" "$4" sleep 0.05 mouseup 1
    settle
}
press() {
    local key
    for key in "$@"; do
        xdotool key "$key"
        sleep 0.08
    done
    settle
}
choose() { # ROW INDEX: by the list
    xdotool mousemove 196 $(($1 + 11)) sleep 0.05 click 1 sleep 0.15 mousemove 196 $(($1 + 41 + 24 * $2)) \
        sleep 0.05 click 1
    settle
}
choose_up() { # ROW COUNT INDEX: from a list that opens upwards
    xdotool mousemove 196 $(($1 + 11)) sleep 0.05 click 1 sleep 0.15 \
        mousemove 196 $(($1 + 6 - 24 * ($2 - $3))) sleep 0.05 click 1
    settle
}
size_to() { # WIDTH HEIGHT of the destination, typed; then the view has the keys again
    click 220 $((destination_row + 11))
    xdotool type --delay 40 "$1"
    click 268 $((destination_row + 11))
    xdotool type --delay 40 "$2"
    press Escape 0
}
type_into_dialog() { # TITLE TEXT
    local dialog=""
    wait_for "the dialog" 'dialog="$(xdotool search --onlyvisible --name "'"$1"'")"'
    xdotool windowfocus "$dialog" sleep 1
    xdotool type --delay 20 "${2//\//\\}"
    xdotool sleep 0.5 key Return sleep 1 windowfocus "$window"
}

# ---- looking

# Two looks, a moment apart, saw the same.
settle() {
    local i now before=""
    for ((i = 0; i < 60; ++i)); do
        sleep 0.1
        now="$(hash_of 0 0 1000 660)"
        [[ $now != "$before" ]] || return 0
        before="$now"
    done
}
hash_of() { maim -u -f bmp -g "$3x$4+$1+$2" | sha256sum | cut -c 1-64; }
# A BMP tells where its first pixel is: blue, green, red.
color_at() {
    local bytes
    mapfile -t bytes < <(maim -u -f bmp -g "1x1+$1+$2" | od -An -v -tx1 -w1 | tr -d ' ' | tr a-f A-F)
    local first=$((16#${bytes[11]}${bytes[10]}))
    echo "${bytes[first + 2]}${bytes[first + 1]}${bytes[first]}"
}
seen() { same "$1" "$4" color_at "$2" "$3"; } # WHAT X Y COLOUR
shot() {
    settle
    maim -u -i "$window" "$folder/$1.png"
}

# Runs a command, whose output is $got, until the condition holds.
wait_until() { # CONDITION COMMAND...
    local i condition="$1"
    shift
    for ((i = 0; i < 1200; ++i)); do
        got="$("$@")"
        eval "$condition" && return 0
        sleep 0.1
    done
    return 1
}
wait_for() { # WHAT CONDITION
    local got
    wait_until "$2" true || check "$1" 1 "not seen in two minutes"
}
open_is() {
    wait_for "the picture $1" '[[ $(xdotool getwindowname "$window") == "'"$1"'"* ]]'
    settle
}
open_pasted() {
    press ctrl+v
    open_is "$1"
}

# Opens a list, however busy the workbench is, and closes it.
list_opens() { # ROW
    xdotool mousemove 196 $(($1 + 11)) sleep 0.05 click 1
    wait_for "the list" '[[ $(color_at 103 '$(($1 + 40))') == 20242A ]]'
    xdotool key Escape sleep 0.1
}

# ---- what the workbench says it draws

call() {
    press ctrl+c
    hand clipboard
}
call_has() {
    local got text="$1"
    wait_until '[[ $got == *"$text"* ]]' call
    check "$text" $? "the call is $got"
}

# ---- a picture of 10000 x 10000 pixels, 3264C8 on the left and E6D2B4 on the right

write_big_bmp() {
    local row block
    word() { printf '%b' "$(printf '\\x%02x\\x%02x\\x%02x\\x%02x' $(($1 & 255)) $(($1 >> 8 & 255)) $(($1 >> 16 & 255)) $(($1 >> 24 & 255)))"; }
    {
        printf 'BM'
        word 100000062; word 0; word 62
        word 40; word 10000; word 10000; printf '\x01\x00\x08\x00'
        word 0; word 100000000; word 0; word 0; word 2; word 2
        word $((0x3264C8)); word $((0xE6D2B4))
        head -c 5000 /dev/zero
        head -c 5000 /dev/zero | tr '\0' '\1'
    } >"$1"
    row="$(mktemp)"
    block="$(mktemp)"
    tail -c 10000 "$1" >"$row"
    for ((i = 0; i < 100; ++i)); do cat "$row"; done >"$block"
    for ((i = 0; i < 99; ++i)); do cat "$block"; done >>"$1"
    for ((i = 0; i < 99; ++i)); do cat "$row"; done >>"$1"
    rm -f "$row" "$block"
}
