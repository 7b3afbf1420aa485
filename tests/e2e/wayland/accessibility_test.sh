#!/bin/bash
# Tests the real program under sway with an assistive program, over a private accessibility bus. The program is the same
# as under X.
#
#   accessibility_test.sh ORVELLE WAYLAND_CLIENT

orvelle=$1
client=$2
source "$(dirname "$0")/../accessibility_bus.sh"
source "$(dirname "$0")/bar_on_sway.sh"
export ORVELLE_WAYLAND_CLIENT=$client

storeVisibility true
echo updateInterval=1 >>"$XDG_CONFIG_HOME/orvelle/orvelle.conf"
startSway
onOutput HEADLESS-1
startAccessibilityBus
startOrvelle
assist ../assistive_program.py
expectEnd "\"Quit Orvelle\" ends the program" 0
expectEqual "it has nothing to complain of" "" "$(complaints)"
stopAccessibilityBus
stopSway
echo "$failures failures in $SECONDS seconds"
((failures == 0))
