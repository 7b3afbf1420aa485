#!/bin/bash
# Tests the real program as an X11 client of KWin's Wayland compositor, at scale 1, and at scale 2 with both ways of
# scaling X11 programs.
#
#   kwin_test.sh ORVELLE X11_CLIENT

orvelle=$1
client=$2
source "$(dirname "$0")/kwin.sh"

testKWin() {
    onKWin "$@"
    startOrvelle 0
    testPanel
    testPressOnTheDesktop
    testPressInAnotherX11Window
    endOrvelle
    endKWin
}

read_modules "$orvelle" || exit 1
storeVisibility true
testKWin 1
testKWin 2
testKWin 2 2
finish
