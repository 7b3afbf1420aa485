#!/bin/bash
# What tells desktops, shells and software centres of the program is well formed.
#
#   descriptions_test.sh PACKAGING GENERATED
set -euo pipefail
packaging=$1
generated=$2

# needs TOOL: whether it is installed; says so when it is not.
needs() { command -v "$1" >/dev/null || { echo "not judged without $1"; false; }; }

if needs desktop-file-validate; then
    desktop-file-validate "$packaging/linux/orvelle.desktop"
fi
if needs appstreamcli; then
    # The project has no domain of its own by which it could be named, and no address for its screenshots.
    appstreamcli validate --pedantic --no-net --override=cid-desktopapp-is-not-rdns=info \
        "$generated/orvelle.metainfo.xml"
fi
if needs python3; then
    python3 -c 'import sys, xml.dom.minidom as d; [d.parse(f) for f in sys.argv[1:]]' \
        "$generated/orvelle.metainfo.xml" "$packaging"/*.svg
fi
if needs systemd-analyze; then
    mkdir -p "$generated/units"
    sed -e 's:^ExecStart=.*:ExecStart=/bin/true:' -e '/^Documentation=/d' "$packaging/linux/orvelle.service" >"$generated/units/orvelle.service"
    XDG_RUNTIME_DIR=$generated/units systemd-analyze --user verify "$generated/units/orvelle.service"
fi
if needs man; then
    for page in "$generated"/man/*.1; do
        complaints=$(LC_ALL=C.UTF-8 MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$page" 2>&1 >/dev/null)
        [ -z "$complaints" ] || { echo "$page: $complaints"; exit 1; }
    done
fi

# complete COMMAND WORD...: prints what bash would offer for the last word.
complete_in_bash() {
    local command=$1
    bash -c '
        source "$1"; shift
        COMP_WORDS=("$@") COMP_CWORD=$(($# - 1))
        "_${1//-/_}"
        printf "%s " "${COMPREPLY[@]}"' bash "$packaging/linux/completions/$command.bash" "$@"
}
expect() { [ "$1" = "$2" ] || { echo "FAILED: $3: expected \"$1\", found \"$2\""; exit 1; }; }
expect "--settings " "$(complete_in_bash orvelle --se)" "bash completes an option"
expect "wayland " "$(complete_in_bash orvelle --desktop = w)" "bash completes a desktop"
expect "--cycles " "$(complete_in_bash orvelle-probe --c)" "bash completes an option of the probe"
for file in "$packaging"/linux/completions/*; do
    case $file in
        *.bash) bash -n "$file" ;;
        *.fish) ! needs fish || fish --no-execute "$file" ;;
        *) ! needs zsh || zsh -n "$file" ;;
    esac
done
