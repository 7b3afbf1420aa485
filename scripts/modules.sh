# Lists the program's modules for scripts that click on its items or change their settings. Sourced.

# read_modules PROGRAM: asks the probe in the program's folder. Sets arrays with one element per module, from left to
# right: module_keys, module_titles, module_settings (the settings that show them), module_widths (of their items, in
# points) and module_middles (the middle of each item while all are shown, in points from the right edge of the screen).
# Exports ORVELLE_MODULE_TITLES, a regular expression that matches any title.
# shellcheck disable=SC2034 # the scripts that source this use them
read_modules() {
  local key width setting title index right=8 # the margin of the bar
  module_keys=() module_titles=() module_settings=() module_widths=() module_middles=()
  while IFS=$'\t' read -r key width setting _ title; do
    module_keys+=("$key") module_widths+=("$width") module_settings+=("$setting") module_titles+=("$title")
  done < <("$(dirname "$1")/orvelle-probe" --modules)
  ((${#module_keys[@]} > 0)) || return 1
  for ((index = ${#module_keys[@]} - 1; index >= 0; --index)); do
    module_middles[index]=$((right + module_widths[index] / 2))
    right=$((right + module_widths[index]))
  done
  ORVELLE_MODULE_TITLES=$(IFS='|' && echo "${module_titles[*]}")
  export ORVELLE_MODULE_TITLES
}
