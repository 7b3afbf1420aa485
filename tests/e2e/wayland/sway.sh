# Prepares a private sway without a screen or a GPU, a mouse and a keyboard on it, and private folders in place of the
# user's. Sourced by the end-to-end tests. They set `client`, the program wayland_client, first.

# Another sourced file may have prepared the folders.
declare -F waitUntil >/dev/null || source "$(dirname "${BASH_SOURCE[0]}")/../desktop.sh"
unset DISPLAY
requireTools sway swaymsg convert python3

swayFolder=$workDirectory/sway
stateScript=$(dirname "${BASH_SOURCE[0]}")/sway_state.py
asSwayUser=() # a command that runs another command as the user of sway
swayPids=()

makeSwayFolder() {
    mkdir -m 700 "$swayFolder"
    [[ $(id -u) == 0 ]] || return 0
    # sway refuses to run as root, so root becomes nobody.
    asSwayUser=(setpriv --reuid=65534 --regid=65534 --clear-groups)
    if ! "${asSwayUser[@]}" true 2>/dev/null; then
        echo "SKIPPED: sway refuses to run as root, and there is no other user"
        exit "$skipped"
    fi
    chmod 711 "$workDirectory"
    chown 65534:65534 "$swayFolder"
}

# runSway NAME BACKEND: starts sway with the settings in the file NAME. Sets WAYLAND_DISPLAY and SWAYSOCK.
runSway() {
    local before display
    before=$(cd "$swayFolder" && echo wayland-*)
    export SWAYSOCK=$swayFolder/$1.socket
    rm -f "$SWAYSOCK"
    "${asSwayUser[@]}" env HOME="$swayFolder" XDG_RUNTIME_DIR="$swayFolder" WLR_BACKENDS="$2" WLR_RENDERER=pixman \
        WLR_LIBINPUT_NO_DEVICES=1 WLR_WL_OUTPUTS="${outputCount:-1}" \
        sway --config "$swayFolder/$1" >"$workDirectory/$1.log" 2>&1 &
    swayPids+=("$!")
    ownedPids+=("$!")
    wait_until "$patienceSeconds" swaymsg -t get_version || { cat "$workDirectory/$1.log"; exit 1; }
    for display in "$swayFolder"/wayland-*; do
        display=${display##*/}
        [[ $display == *.lock || " $before " == *" $display "* ]] || export WAYLAND_DISPLAY=$display
    done
    # The program insists on a folder of its own user.
    ln -sf "$swayFolder/$WAYLAND_DISPLAY" "$XDG_RUNTIME_DIR/$WAYLAND_DISPLAY"
}

# writeSettings NAME LINE...
writeSettings() {
    [[ -d $swayFolder ]] || makeSwayFolder
    printf '%s\n' 'swaybg_command -' 'default_border none' 'default_floating_border none' \
        'focus_follows_mouse no' "${@:2}" >"$swayFolder/$1"
}

# startSway: starts a desktop with the output HEADLESS-1 of 1280x800 pixels, without X.
startSway() {
    writeSettings desktop 'xwayland disable' 'output HEADLESS-1 mode 1280x800 position 0 0' "${otherWindowSettings[@]}"
    runSway desktop headless
    startSeat HEADLESS-1
}

# startSwayWithCables COUNT: starts a desktop with the outputs WL-1 of 1280x800 pixels, WL-2 of 1000x700 pixels and so
# on, side by side. They are windows of another sway, because an output without a screen cannot be unplugged.
startSwayWithCables() {
    if [[ $(sway --version) != *" 1.7"* ]]; then
        echo "SKIPPED: newer versions of sway do not draw an output whose window another one covers"
        exit "$skipped"
    fi
    local number outputs=('output WL-1 mode 1280x800 position 0 0')
    for number in 2 3 4 5 6 7 8 9; do
        outputs+=("output WL-$number mode 1000x700 position $((1280 + 1000 * (number - 2))) 0")
    done
    writeSettings cables 'xwayland disable' 'for_window [app_id="wlroots"] floating enable'
    writeSettings desktop 'xwayland disable' "${outputs[@]}" "${otherWindowSettings[@]}"
    runSway cables headless
    cablesSocket=$SWAYSOCK
    outputCount=$1 runSway desktop wayland
    startSeat WL-1
}
unplug() { swaymsg -q -s "$cablesSocket" "[title=\"$1\"] kill" || fail "unplugging $1"; }
plug() { onSway create_output; } # the next number

# shellcheck disable=SC2034 # some of the tests that source this file use it
windowColor=3070A0 # of the other window
otherWindowSettings=(
    'for_window [app_id="other"] floating enable, resize set 400 300, move absolute position 100 300'
)

# stopSway: ends it and waits, innermost first.
stopSway() {
    local index
    for ((index = ${#swayPids[@]} - 1; index >= 0; --index)); do
        kill "${swayPids[index]}"
        wait "${swayPids[index]}"
    done
    swayPids=()
    exec {seatCommands}>&- {seatAnswers}<&-
    unset WAYLAND_DISPLAY SWAYSOCK
}

# The mouse and the keyboard stay until sway ends, like those of a user.
startSeat() {
    rm -f "$workDirectory/commands" "$workDirectory/answers"
    mkfifo "$workDirectory/commands" "$workDirectory/answers"
    "${client:?}" seat <"$workDirectory/commands" >"$workDirectory/answers" &
    ownedPids+=("$!")
    exec {seatCommands}>"$workDirectory/commands" {seatAnswers}<"$workDirectory/answers"
    lookAway
    bareColor=$(colors "$1" 1x1+0+0) # sway paints it where nothing else is; the versions differ
}

# seat COMMAND...: moves, clicks or types; returns when sway has handled it. client/seat_commands.h tells the commands.
seat() {
    local answer=""
    echo "$*" >&"$seatCommands"
    read -r -t "$patienceSeconds" -u "$seatAnswers" answer
    [[ $answer == "done" ]] || fail "seat $*: $answer"
}

# Moves the mouse to the left lower corner, because pictures show its arrow.
# Each time to another place, because an output that is a window of another sway may wait for a change to be drawn.
lookAway() { seat move $((RANDOM % 5)) 10000; }

# onSway COMMAND...: sends a command in the language of sway's settings.
onSway() { swaymsg -q -- "$*" || fail "sway: $*"; }

# swayState WHAT...: see sway_state.py.
swayState() { python3 -BSE "$stateScript" "$@"; }
freeSpaceIs() { [[ $(swayState free "$1") == "$2" ]]; }

# expectFreeSpace OUTPUT GEOMETRY: waits until sway leaves LEFT,TOP WIDTHxHEIGHT to windows, in points.
expectFreeSpace() {
    waitUntil "the windows on $1 have $2" freeSpaceIs "$1" "$2" || swayState free "$1"
}

# picture OUTPUT [WIDTHxHEIGHT+LEFT+TOP]: prints the pixels of the output or of a part as a portable pixmap.
picture() { "$client" picture "$@"; }

# colors OUTPUT PART: prints the different colours in the part as RRGGBB, separated by blanks.
colors() {
    picture "$@" | convert ppm:- -unique-colors -depth 8 txt:- | sed -nE 's/.*#([0-9A-F]{6}).*/\1/p' | sort -u | xargs
}
colorsAre() { [[ $(colors "$1" "$2") == "$3" ]]; }

# isBare OUTPUT PART: whether nothing is shown there.
isBare() { colorsAre "$1" "$2" "$bareColor"; }

# shownBox OUTPUT PART: prints LEFT,TOP WIDTHxHEIGHT, in pixels from the part's corner, of what is shown in the part;
# nothing if it is bare.
shownBox() {
    picture "$@" | convert ppm:- -bordercolor "#$bareColor" -border 1 -format '%@' info: 2>/dev/null |
        awk -F '[x+]' '$1 > 0 {print $3 - 1 "," $4 - 1 " " $1 "x" $2}'
}

# keepPicture NAME OUTPUT: saves a picture if ORVELLE_PICTURES names a folder.
keepPicture() { [[ -z $ORVELLE_PICTURES ]] || picture "$2" | convert ppm:- "$ORVELLE_PICTURES/sway-$1.png"; }

# showOtherWindow: shows a window of another program at 100,300 and waits until it has the keyboard. Sets windowPid. The
# file "window" records the window's events. With `otherProgram` set to a name, the window fills the free space.
showOtherWindow() {
    rm -f "$workDirectory/window" # of an earlier window
    "$client" window "${otherProgram:-other}" >>"$workDirectory/window" &
    windowPid=$!
    ownedPids+=("$windowPid")
    waitUntil "another window opens" grep -qs shown "$workDirectory/window"
    waitUntil "the other window has the keyboard" otherWindowHasKeyboard
}
otherWindowHasKeyboard() { [[ $(grep -E '^(no )?keyboard$' "$workDirectory/window" | tail -1) == keyboard ]]; }
otherWindowHasNoKeyboard() { ! otherWindowHasKeyboard; }
clickOtherWindow() { seat click 1 300 450; }
