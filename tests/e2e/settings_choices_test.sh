#!/bin/bash
# Tests each control of the real program's settings window: the stored value and the visible effect.
#
#   settings_choices_test.sh ORVELLE

orvelle=$1
source "$(dirname "$0")/accessibility_bus.sh"
requireTools Xvfb openbox xprop xdotool import
read_modules "$orvelle" || exit 1

start_x_server 1280x800 && start_window_manager || exit 1
startAccessibilityBus
launch "$workDirectory/log" "$orvelle"
assist settings_choices.py "$XDG_CONFIG_HOME/orvelle/orvelle.conf"
[[ -f $XDG_CONFIG_HOME/autostart/orvelle.desktop ]] || fail "the program starts at login"
kill -TERM "$orvellePid"
wait "$orvellePid"
expectEqual "the program ends with status" 0 $?
((failures == 0)) || cat "$workDirectory/log"
stopAccessibilityBus
echo "$failures failures in $SECONDS seconds"
((failures == 0))
