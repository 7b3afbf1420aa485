#!/bin/bash
# Tests that programs killed while they change settings lose no change and leave no partial one.
#
#   settings_kills_test.sh ORVELLE SETTINGS_CHANGER

orvelle=$1
changer=$2
source "$(dirname "$0")/accessibility_bus.sh"
requireTools Xvfb openbox xprop

assist settings_kills.py "$changer" "$workDirectory/changed.conf" 200

start_x_server 1280x800 && start_window_manager || exit 1
startAccessibilityBus
assist settings_program_kills.py "$orvelle" "$XDG_CONFIG_HOME/orvelle/orvelle.conf" 5 2>"$workDirectory/log"
((failures == 0)) || cat "$workDirectory/log"
stopAccessibilityBus
echo "$failures failures in $SECONDS seconds"
((failures == 0))
