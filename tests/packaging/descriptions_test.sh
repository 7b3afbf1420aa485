#!/bin/bash
# What tells desktops and software centres of the program is well formed.
#
#   descriptions_test.sh PACKAGING
set -euo pipefail
packaging=$1
judged=no

if command -v desktop-file-validate >/dev/null; then
    desktop-file-validate "$packaging/linux/orvelle.desktop"
    judged=yes
fi
if command -v appstreamcli >/dev/null; then
    # The project has no domain of its own by which it could be named.
    appstreamcli validate --no-net --override=cid-desktopapp-is-not-rdns=info "$packaging/linux/orvelle.metainfo.xml"
    judged=yes
fi
if command -v python3 >/dev/null; then
    python3 -c 'import sys, xml.dom.minidom as d; [d.parse(f) for f in sys.argv[1:]]' \
        "$packaging/linux/orvelle.metainfo.xml" "$packaging/orvelle.svg"
    judged=yes
fi
[ $judged = yes ] || exit 77
