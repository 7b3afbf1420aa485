#!/bin/bash
# Tests the real program with an assistive program, over a private accessibility bus.
#
#   accessibility_test.sh ORVELLE

orvelle=$1
source "$(dirname "$0")/accessibility_bus.sh"
requireTools Xvfb openbox xprop xdotool
read_modules "$orvelle" || exit 1
log=$workDirectory/orvelle.log

start_x_server 1280x800 && start_window_manager || exit 1
startAccessibilityBus
mkdir -p "$XDG_CONFIG_HOME/orvelle"
printf '%s\n' '[General]' showDisk=true showSensors=true updateInterval=1 >"$XDG_CONFIG_HOME/orvelle/orvelle.conf"
launch "$log" "$orvelle"

assist assistive_program.py
expectEnd "\"Quit Orvelle\" ends the program" 0
((failures == 0)) || cat "$log"
stopAccessibilityBus
echo "$failures failures in $SECONDS seconds"
((failures == 0))
