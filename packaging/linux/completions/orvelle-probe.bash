# Completes the options of orvelle-probe in bash.
_orvelle_probe() {
  local word=${COMP_WORDS[COMP_CWORD]}
  case ${COMP_WORDS[COMP_CWORD - 1]} in
    --report) mapfile -t COMPREPLY < <(compgen -f -- "$word") ;;
    --root) mapfile -t COMPREPLY < <(compgen -d -- "$word") ;;
    *) mapfile -t COMPREPLY < <(compgen -W "--follow --waybar --plain --interval --fields --report --root --step --cycles --modules --help --version" -- "$word") ;;
  esac
}
complete -F _orvelle_probe orvelle-probe
