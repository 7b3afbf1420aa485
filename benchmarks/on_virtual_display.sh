# For scripts that measure the running program on a virtual display. Sourced. Gives the program a folder of its own, for
# everything that it reads and writes: `settings`. Its messages belong into `log`. The scripts remove the folder.

# shellcheck disable=SC2034 # those scripts use `log`
repository=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/..
source "$repository/scripts/virtual_display.sh"
source "$repository/scripts/modules.sh"

settings=$(mktemp -d)
log=$settings/log
unset "${!QT_@}" WAYLAND_DISPLAY
export XDG_RUNTIME_DIR=$settings XDG_CONFIG_HOME=$settings XDG_STATE_HOME=$settings
source "$repository/benchmarks/running_program.sh" # sets what Qt prints

# write_settings SETTING...
write_settings() {
  mkdir -p "$settings/orvelle"
  printf '%s\n' '[General]' "$@" >"$settings/orvelle/orvelle.conf"
}
