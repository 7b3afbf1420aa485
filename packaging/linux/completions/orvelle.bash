# Completes the options of orvelle in bash.
_orvelle() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
  case $before in
    --open) mapfile -t COMPREPLY < <(compgen -W "$(orvelle-probe --modules 2>/dev/null | cut -f 1)" -- "$word") ;;
    --desktop | =) mapfile -t COMPREPLY < <(compgen -W "auto wayland x11 tray" -- "${word#=}") ;;
    *) mapfile -t COMPREPLY < <(compgen -W "--desktop --settings --open --quit --help --version" -- "$word") ;;
  esac
}
complete -F _orvelle orvelle
