#!/bin/bash
# The tree that is installed is whole: its program starts from where it is and opens its settings.
#
#   install_test.sh CMAKE BUILD_DIRECTORY LIBRARY_FOLDER

cmake=$1
build=$2
libraries=$3 # below the prefix
source "$(dirname "$0")/../e2e/desktop.sh"
requireTools readelf

prefix="$workDirectory/a place"
orvelle=$prefix/bin/orvelle
"$cmake" --install "$build" --prefix "$prefix" >"$workDirectory/install.log" || { cat "$workDirectory/install.log"; exit 1; }

for file in bin/orvelle bin/orvelle-probe bin/orvelle-snapshot "$libraries/liborvelle_views.so" \
    share/applications/orvelle.desktop share/metainfo/orvelle.metainfo.xml lib/systemd/user/orvelle.service \
    share/icons/hicolor/scalable/apps/orvelle.svg share/icons/hicolor/symbolic/apps/orvelle-symbolic.svg \
    share/icons/hicolor/22x22/apps/orvelle.png share/icons/hicolor/512x512/apps/orvelle.png \
    share/man/man1/orvelle.1.gz share/man/man1/orvelle-probe.1.gz share/man/man1/orvelle-snapshot.1.gz \
    share/bash-completion/completions/orvelle share/fish/vendor_completions.d/orvelle.fish \
    share/zsh/vendor-completions/_orvelle share/doc/orvelle/copyright share/doc/orvelle/changelog.gz; do
    [[ -s $prefix/$file ]] || fail "$file is not installed"
done
# Nothing is looked for where it was built.
searchPath() { readelf -d "$1" | sed -n 's/.*R.*PATH.*\[\(.*\)\]/\1/p'; }
expectEqual "the program looks for its libraries beside itself" "\$ORIGIN/../$libraries" "$(searchPath "$prefix/bin/orvelle")"
for library in "$prefix/$libraries"/*.so; do
    expectEqual "so does $(basename "$library")" "\$ORIGIN" "$(searchPath "$library")"
    missing=$(ldd "$library" | grep 'not found')
    expectEqual "and finds all of them" "" "$missing"
done

# startInstalled: with the settings of a user who has hidden every module, so that a second start opens the window.
startInstalled() {
    QT_LOGGING_RULES="orvelle.start.debug=true;orvelle.sample.debug=true" launch "$workDirectory/log" "$orvelle"
}
stopInstalled() {
    kill -TERM "$orvellePid"
    wait "$orvellePid"
    expectEqual "the installed program ends with status" 0 $?
}

QT_QPA_PLATFORM=offscreen startInstalled
waitUntil "the installed program starts" grep -q "first bar painted" "$workDirectory/log" || cat "$workDirectory/log"
stopInstalled

for tool in Xvfb openbox xdotool xprop; do
    if ! command -v $tool >/dev/null; then
        echo "not tested without $tool: the installed program opens its windows"
        exit $((failures > 0))
    fi
done
mkdir -p "$XDG_CONFIG_HOME/orvelle"
printf '[General]\nshow%s=false\n' CPU >"$XDG_CONFIG_HOME/orvelle/orvelle.conf"
for module in Memory Network Disk Battery Sensors; do
    echo "show$module=false" >>"$XDG_CONFIG_HOME/orvelle/orvelle.conf"
done
start_x_server 1280x800 && start_window_manager || exit 1
startInstalled
# Else the second start might come first.
waitUntil "the installed program runs on a display" grep -q 'cycle 1' "$workDirectory/log" || exit 1
startAgain "$orvelle" 2>/dev/null # tells the first one, and ends
waitUntil "the installed program finds its windows" isShown 'Orvelle Settings' || cat "$workDirectory/log"
stopInstalled
echo "$failures failures"
((failures == 0))
