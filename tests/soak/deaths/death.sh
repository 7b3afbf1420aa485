#!/bin/bash
# Lets one thing die on which the running program depends.
#
#   death.sh BIN DEATH MOMENT [random]
#
# BIN is the folder of the built programs. DEATH is a function below `death_` in one of the files beside this one. MOMENT
# tells what the program is doing meanwhile: start, bar, panel or settings; "random" adds a random pause. The last line
# of the output is WHAT|MILLISECONDS UNTIL THE END|PROCESSOR MILLISECONDS IN 2 SECONDS. The status is 1 if the program
# does not do what it should, and 77 if a tool is missing.

bin=$(readlink -f "$1") death=$2 moment=$3 isRandom=${4:-}
here=$(dirname "$(readlink -f "$0")")
source "$here/../../e2e/desktop.sh"
source "$here/program.sh"
source "$here/x11_deaths.sh"
source "$here/bus_deaths.sh"
source "$here/wayland_deaths.sh"
source "$here/folder_deaths.sh"
source "$here/upgrade_deaths.sh"

"death_$death" || fail "the death can be tried"
[[ -z $checkedSettings ]] || expectWholeSettings "$checkedSettings"
echo "$outcome"
((failures == 0))
