# Starts the real program under sway and uses its bar. Sourced by the end-to-end tests, which set `orvelle` and `client`
# first. The bar stands on `output`, at the left upper corner `left`,0 of the desktop, `width` points wide and at `scale`.

source "$(dirname "${BASH_SOURCE[0]}")/sway.sh"
source "$(dirname "${BASH_SOURCE[0]}")/../../../scripts/modules.sh"
read_modules "${orvelle:?}" || exit 1

log=$workDirectory/orvelle.log
output=HEADLESS-1 left=0 width=1280 height=800 scale=1

# onOutput NAME: the bar is expected there from now on.
onOutput() {
    output=$1
    read -r left width height scale < <(swayState output "$1")
}

pixels() { awk -v points="$1" -v scale="$scale" 'BEGIN { printf "%.0f", points * scale }'; }
# part WIDTH HEIGHT LEFT TOP, in points: prints the part of a picture.
part() { printf '%sx%s+%s+%s' "$(pixels "$1")" "$(pixels "$2")" "$(pixels "$3")" "$(pixels "$4")"; }

# startOrvelle [ARGUMENT...]: sets orvellePid.
startOrvelle() {
    launch "$log" env QT_LOGGING_RULES=orvelle.open.debug=true "$orvelle" "$@"
    expectBar || { cat "$log"; exit 1; }
}

# expectBar: waits for the bar's space and its pixels.
expectBar() {
    expectFreeSpace "$output" "$left,22 ${width}x$((height - 22))" && waitUntil "the bar is painted" barIsPainted
}
barIsPainted() { colorsAre "$output" "$(part 100 4 0 0)" 1E1E20; }

# The test asked for the first kind of lines. Qt prints the second one when the last output goes.
complaints() { grep -v -e '^orvelle.open: ' -e 'Creating a fake screen in order for Qt not to crash' "$log"; }
# endOrvelle: expects a clean end.
endOrvelle() {
    kill -TERM "$orvellePid"
    wait "$orvellePid"
    expectEqual "SIGTERM ends the program with status" 0 $?
    expectEqual "it has nothing to complain of" "" "$(complaints)"
}

# itemMiddle NUMBER: in points of the desktop, while all items are shown.
itemMiddle() { echo $((left + width - module_middles[$1])); }
# clickItem NUMBER [BUTTON [COUNT PER_SECOND]]
clickItem() { seat click "${2:-1}" "$(itemMiddle "$1")" 11 "${@:3}"; }

# Everything below the bar, without the last points, where the mouse is: panels, the menu and windows.
belowBar() { part "$width" $((height - 22 - 10)) 0 22; }
nothingIsShown() {
    lookAway
    isBare "$output" "$(belowBar)"
}
# shownPlace: prints LEFT,TOP WIDTHxHEIGHT of what is shown below the bar, in pixels from the bar's lower left corner.
shownPlace() {
    lookAway
    shownBox "$output" "$(belowBar)"
}

# showWindowBelowBar: shows the other window. From now on popups are recognised by what is shown beside it.
showWindowBelowBar() {
    showOtherWindow
    waitUntil "the other window is on the screen" windowIsPainted
    windowPlace=$(shownPlace)
}
windowIsPainted() { [[ $(shownPlace) == *" 400x300" ]]; }
onlyWindowIsShown() { [[ $(shownPlace) == "$windowPlace" ]]; }
popupIsShown() { ! onlyWindowIsShown; }

# Whether this panel was opened last, by the program's own account. It may be closed again.
isLastPanel() {
    [[ $(sed -nE 's/^orvelle.open: the (.*) panel was painted .*/\1/p' "$log" | tail -1) == "${module_keys[$1]}" ]]
}

# standsUnder NUMBER WIDTH: whether something of this width in points is shown, alone, on the output and under the item.
standsUnder() {
    local start top wide high wanted furthest
    IFS=', x' read -r start top wide high < <(shownPlace)
    [[ -n $high ]] || return
    (((wide - $(pixels "$2")) ** 2 <= 4 && top <= $(pixels 8))) || return
    wanted=$(($(pixels $(($(itemMiddle "$1") - left))) - wide / 2))
    furthest=$(($(pixels $((width - 4))) - wide))
    ((wanted > furthest)) && wanted=$furthest
    ((wanted < $(pixels 4))) && wanted=$(pixels 4)
    (((start - wanted) ** 2 <= 16 && start >= 0))
}
panelIsOpen() { isLastPanel "$1" && standsUnder "$1" 320; }

# expectPanel NUMBER DESCRIPTION
expectPanel() { waitUntil "$2" panelIsOpen "$1" || { shownPlace; cat "$log"; }; }

# The menu is narrower than a panel and lower than 120 points.
menuIsOpen() {
    local wide high
    IFS=', x' read -r _ _ wide high < <(shownPlace)
    [[ -n $high ]] && ((wide > $(pixels 60) && wide < $(pixels 300) && high < $(pixels 120)))
}
