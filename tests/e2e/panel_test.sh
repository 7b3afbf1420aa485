#!/bin/bash
# Tests the panels of the real program in a real X server, under two window managers, with and without a compositor.
#
#   panel_test.sh ORVELLE X11_CLIENT

orvelle=$1
client=$2
source "$(dirname "$0")/desktop.sh"
requireTools Xvfb openbox xfwm4 picom dbus-daemon xprop xwininfo xdotool xrandr import

# Freed memory that the sanitizer retains would look like growth.
export ASAN_OPTIONS+=:quarantine_size_mb=1
read_modules "$orvelle" || exit 1

pixels() { awk -v points="$1" -v scale="$scale" 'BEGIN { printf "%d", points * scale }'; }
screenWidth() { awk -v scale="$scale" 'BEGIN { printf "%d", 1280 / scale }'; }

panel() { windowsTitled "Orvelle $1" | tail -1; }
panelIsShown() { isShown "Orvelle $1"; }
panelIsHidden() { isHidden "Orvelle $1"; }
shownPanels() { windowsTitled "Orvelle ($ORVELLE_MODULE_TITLES)" | wc -l; }
onePanelIsShown() { [[ $(shownPanels) == 1 ]]; }
noPanelIsShown() { [[ $(shownPanels) == 0 ]]; }
hasTheKeyboard() { [[ $(xdotool getactivewindow 2>/dev/null) == "$(panel "$1")" ]]; }

# startOrvelle SCALE
startOrvelle() {
    scale=$1
    launch "$workDirectory/orvelle.log" env QT_SCALE_FACTOR="$1" QT_LOGGING_RULES=orvelle.open.debug=true "$orvelle"
    waitUntil "the bar appears at scale $1" isShown Orvelle || cat "$workDirectory/orvelle.log"
}

endOrvelle() {
    kill -TERM "$orvellePid"
    wait "$orvellePid"
    expectEqual "the program ends with status" 0 $?
    # Qt prints the first line when a window reappears before the server reports that it is hidden, which many clicks
    # cause. The test itself enabled the second line.
    expectEqual "it has nothing to complain of" "" \
        "$(grep -v -e 'setNetWmStateOnUnmappedWindow() called on mapped window' -e '^orvelle.open: ' \
            "$workDirectory/orvelle.log")"
}

# itemMiddle NUMBER: prints the middle of the item, in points from the left edge of the screen.
itemMiddle() { echo $(($(screenWidth) - module_middles[$1])); }
# clickItem NUMBER [BUTTON]
clickItem() { xdotool mousemove "$(pixels "$(itemMiddle "$1")")" "$(pixels 11)" click "${2:-1}"; }
titleOf() { echo "${module_titles[$1]}"; }

# keepPicture NAME: saves a picture if ORVELLE_PICTURES names a folder.
keepPicture() { [[ -z $ORVELLE_PICTURES ]] || import -window root "$ORVELLE_PICTURES/$1.png"; }

# Whether the panel is below the bar, centred under its item if there is room, and entirely on the screen.
standsUnderItem() {
    local left top width height middle
    IFS=', x' read -r left top width height < <(geometry "$(panel "$(titleOf "$1")")")
    [[ -n $height ]] || return
    middle=$(pixels "$(itemMiddle "$1")")
    ((left >= 0 && left + width <= 1280 && top + height <= 800 && top >= $(pixels 22) && top <= $(pixels 30))) &&
        ((left - 2 <= middle && middle <= left + width + 2)) &&
        ((left + width > 1280 - $(pixels 6) || (left + width / 2 - middle) ** 2 <= 9)) &&
        ((width >= $(pixels 320) - 1 && width <= $(pixels 320) + 1))
}

# Whether the panel becomes opaque within a second, which is before the program has more to say to the server.
fadesInAtOnce() {
    local panel=$1 deadline=$((${EPOCHREALTIME/[.,]/} + 1000000))
    until [[ $(property "$panel" _NET_WM_WINDOW_OPACITY) == 4294967295 ]]; do
        ((${EPOCHREALTIME/[.,]/} < deadline)) || return
        sleep 0.02
    done
}

testFades() {
    local index opened=0 opaque=0
    for index in "${!module_keys[@]}"; do
        clickItem "$index"
        waitUntil "a click opens the $(titleOf "$index") panel" panelIsShown "$(titleOf "$index")" || continue
        opened=$((opened + 1))
        ! fadesInAtOnce "$(panel "$(titleOf "$index")")" || opaque=$((opaque + 1))
    done
    clickItem "$index"
    waitUntil "the last panel closes" noPanelIsShown
    expectEqual "as many panels fade in within a second as open" "$opened" "$opaque"
}

testEachPanel() {
    local index title
    for index in "${!module_keys[@]}"; do
        title=$(titleOf "$index")
        clickItem "$index"
        waitUntil "a click opens the $title panel" panelIsShown "$title" || cat "$workDirectory/orvelle.log"
        waitUntil "it is the only one" onePanelIsShown
        waitUntil "it stands under its item" standsUnderItem "$index" || geometry "$(panel "$title")"
        waitUntil "it has the keyboard" hasTheKeyboard "$title"
        keepPicture "panel-$desktop-$scale-$title"
    done
    clickItem 5
    waitUntil "a second click closes it" noPanelIsShown
    awaitAnswer "$client"
    expectEqual "and does not open it again" 0 "$(shownPanels)"
}

testClosing() {
    clickItem 1
    waitUntil "a panel opens" panelIsShown Memory
    waitUntil "it has the keyboard" hasTheKeyboard Memory
    xdotool key Escape
    waitUntil "Escape closes it" noPanelIsShown

    clickItem 1
    waitUntil "a panel opens" panelIsShown Memory
    xdotool mousemove 100 "$(pixels 11)" click 1
    waitUntil "a click on the empty bar closes it" noPanelIsShown

    clickItem 1
    waitUntil "a panel opens" panelIsShown Memory
    clickItem 1 3
    waitUntil "a right click on its item closes it" noPanelIsShown
    waitUntil "and opens the menu" isShown "Orvelle menu"
    clickItem 0
    waitUntil "a left click on another item closes the menu" isHidden "Orvelle menu"
    waitUntil "and opens its panel" panelIsShown CPU
    clickItem 0
    waitUntil "the panel closes" noPanelIsShown
}

testClickOnAnotherProgram() {
    openOtherWindow "$client"
    clickItem 0
    waitUntil "a panel opens" panelIsShown CPU
    clickOtherWindow
    waitUntil "a click on another window closes the panel" noPanelIsShown
    waitUntil "and reaches that window" otherWindowWasClicked
    closeOtherWindow
}

testVisibilityChange() {
    clickItem 2
    waitUntil "a panel opens" panelIsShown Network
    storeVisibility false
    waitUntil "the bar goes when every module is hidden" isHidden Orvelle
    waitUntil "and the panel with it" noPanelIsShown
    storeVisibility true
    waitUntil "the bar comes back" isShown Orvelle
    clickItem 2
    waitUntil "its panel opens again" panelIsShown Network
    clickItem 2
    waitUntil "and closes" noPanelIsShown
}

residentKilobytes() { awk '/VmRSS/ {print $2}' "/proc/$orvellePid/status"; }
paintedPanels() { grep -c 'panel was painted' "$workDirectory/orvelle.log"; }
openDescriptors() { find "/proc/$orvellePid/fd" -mindepth 1 | wc -l; }
serverWindows() { xwininfo -root -tree | wc -l; }

# Opens and closes every panel in turn.
playRounds() {
    local round painted
    morePanelsArePainted() { (($(paintedPanels) > painted)); }
    for ((round = 0; round < $1; ++round)); do
        painted=$(paintedPanels)
        clickItem $((round % 6))
        wait_until "$patienceSeconds" morePanelsArePainted
        clickItem $((round % 6))
    done
    waitUntil "no panel is left open after $1 rounds" noPanelIsShown
}

testManyRounds() {
    local memory descriptors windows grown painted
    playRounds 12
    painted=$(paintedPanels)
    memory=$(residentKilobytes) descriptors=$(openDescriptors) windows=$(serverWindows)
    playRounds 60
    grown=$(($(residentKilobytes) - memory))
    if ((grown < 6000)); then echo "ok: 60 rounds cost no memory"; else fail "60 rounds grew by $grown kB"; fi
    painted=$(($(paintedPanels) - painted))
    if ((painted >= 60)); then echo "ok: each was painted"; else fail "$painted panels were painted in 60 rounds"; fi
    expectEqual "nor file descriptors" "$descriptors" "$(openDescriptors)"
    expectEqual "nor windows of the server" "$windows" "$(serverWindows)"
}

testManyClicks() {
    xdotool mousemove "$(pixels "$(itemMiddle 3)")" "$(pixels 11)" click --repeat 400 --delay 5 1
    # The server moves the mouse at once, and lets clicks wait: the last ones would fall on the other item.
    sleep 1
    awaitAnswer "$client"
    clickItem 0
    waitUntil "200 clicks a second leave the program at work" panelIsShown CPU
    waitUntil "with one panel" onePanelIsShown
    clickItem 0
    waitUntil "that closes" noPanelIsShown
}

testSmallerScreen() {
    clickItem 4
    waitUntil "a panel opens" panelIsShown Battery
    xrandr --newmode 1024x768 63.50 1024 1072 1176 1328 768 771 775 798
    xrandr --addmode screen 1024x768
    xrandr -s 1024x768
    barFits() { [[ $(geometry "$(windowsTitled Orvelle | tail -1)") == *" 1024x"* ]]; }
    waitUntil "the bar follows a smaller screen" barFits
    waitUntil "the panel closes, for it may stand beside the screen now" noPanelIsShown
    xrandr -s 1280x800
}

# onDesktop NAME COMMAND...: runs the tests under another window manager.
onDesktop() {
    desktop=$1
    shift
    stop_virtual_display
    start_x_server 1280x800
    start_window_manager "$@" || exit 1
}

storeVisibility true
onDesktop openbox
startOrvelle 1
testEachPanel
testClosing
testClickOnAnotherProgram
testVisibilityChange
testManyRounds
testManyClicks
testSmallerScreen
endOrvelle
startOrvelle 2
testEachPanel
endOrvelle

onDesktop openbox-composed
picom --backend xrender >/dev/null 2>&1 &
compositorPid=$!
ownedPids+=("$compositorPid")
startOrvelle 1.5
testFades
testEachPanel
testClosing
endOrvelle
kill "$compositorPid"

startSessionBus
onDesktop xfwm4 "${xfwm4OnItsBus[@]}" --compositor=off
startOrvelle 1
testEachPanel
testClosing
endOrvelle
onDesktop xfwm4-composed "${xfwm4OnItsBus[@]}" --compositor=on
startOrvelle 1
testEachPanel
testClickOnAnotherProgram
endOrvelle
echo "$failures failures in $SECONDS seconds"
((failures == 0))
