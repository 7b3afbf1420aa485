#!/bin/bash
# What finishes the application bundle and the disk image for macOS, with stand-ins for the tools of that system: a library
# is a text that says how they describe it.
#
#   macos_bundle_test.sh PACKAGING CMAKE
# shellcheck disable=SC2016 # the stand-ins expand their texts themselves
packaging=$1/macos
cmake=$2
source "$(dirname "$0")/../e2e/desktop.sh"

tools=$workDirectory/tools
bundle="$workDirectory/a place/Orvelle.app"
mkdir -p "$tools"
tool() { printf '#!/bin/bash\n%s\n' "$2" >"$tools/$1"; chmod +x "$tools/$1"; }
tool lipo '[[ $1 == -archs ]] && grep -q "^minos " "$2" && echo arm64'
tool otool 'case $1 in
  -L) echo "$2:"; sed -n "s/^needs \(.*\)/\t\1 (compatibility version 1.0.0, current version 1.2.3)/p" "$2" ;;
  -l) sed -n -e "s/^minos /      cmd LC_BUILD_VERSION\n    minos /p" \
    -e "s/^looks in \(.*\)/          cmd LC_RPATH\n      cmdsize 48\n         path \1 (offset 12)/p" "$2" ;;
esac'
# Keeps a property list as lines KEY=VALUE.
tool plutil 'file=${!#}
case $1 in
  -extract) sed -n "s/^$2=//p" "$file" ;;
  -replace) sed -i "s/^$2=.*/$2=$4/" "$file" ;;
esac'
tool codesign 'echo "codesign $*" >>"'"$workDirectory"'/deeds"; [[ ! -e "'"$workDirectory"'/codesign fails" || $1 != --verify ]]'
tool xcrun 'echo "xcrun $*" >>"'"$workDirectory"'/deeds"; [[ $1 != stapler || ! -e "'"$workDirectory"'/is refused" ]]'
tool macdeployqt 'printf "%s\n" "$@" >"'"$workDirectory"'/arguments"'
export PATH=$tools:$PATH

# machineCode FILE LINE...
machineCode() { local file=$bundle/Contents/$1; shift; mkdir -p "$(dirname "$file")"; printf '%s\n' "$@" >"$file"; }

makeBundle() {
    rm -rf "$bundle" "$workDirectory"/{deeds,arguments,"codesign fails","is refused"}
    machineCode MacOS/Orvelle "minos 12.0" "looks in @executable_path/../Frameworks" \
        "needs @rpath/QtCore.framework/Versions/A/QtCore" "needs /usr/lib/libSystem.B.dylib" \
        "needs /System/Library/Frameworks/AppKit.framework/Versions/C/AppKit"
    machineCode Frameworks/QtCore.framework/Versions/A/QtCore "minos 14.0" "looks in @loader_path/../../../" \
        "needs @rpath/QtCore.framework/Versions/A/QtCore" "needs @rpath/libicu.74.dylib"
    machineCode Frameworks/libicu.74.dylib "minos 13.5" "needs @loader_path/libicu.74.dylib"
    machineCode PlugIns/platforms/libqcocoa.dylib "minos 9.3" \
        "needs @executable_path/../Frameworks/QtCore.framework/Versions/A/QtCore"
    machineCode Resources/qml/QtQuick/qmldir "module QtQuick"
    printf '%s\n' CFBundleExecutable=Orvelle LSMinimumSystemVersion=12.0 >"$bundle/Contents/Info.plist"
}

finish() {
    "$packaging/finish_bundle.sh" macdeployqt "$bundle" qml "/one place/lib" /other/lib >"$workDirectory/log" 2>&1
}
# expectComplaint DESCRIPTION LINE: of a bundle that must not be shipped. Nothing of it is signed.
expectComplaint() {
    expectEqual "$1 is an error" 1 "$(finish && echo 0 || echo 1)"
    expectEqual "which is told" "check_bundle: $2" "$(grep '^check_bundle' "$workDirectory/log")"
    expectEqual "and not signed" no "$([ -e "$workDirectory/deeds" ] && echo yes || echo no)"
}

makeBundle
unset ORVELLE_SIGNING_IDENTITY
finish || fail "a whole bundle is refused: $(cat "$workDirectory/log")"
expectEqual "libraries are looked for in all folders" "$bundle
-qmldir=qml
-libpath=/one place/lib
-libpath=/other/lib" "$(cat "$workDirectory/arguments")"
expectEqual "the newest system that a part needs is the oldest for all" 14.0 \
    "$(sed -n 's/^LSMinimumSystemVersion=//p' "$bundle/Contents/Info.plist")"
expectEqual "parts are signed before what holds them, and the signature is checked" \
    "codesign --force --sign - $bundle/Contents/PlugIns/platforms/libqcocoa.dylib
codesign --force --sign - $bundle/Contents/MacOS/Orvelle
codesign --force --sign - $bundle/Contents/Frameworks/libicu.74.dylib
codesign --force --sign - $bundle/Contents/Frameworks/QtCore.framework/Versions/A/QtCore
codesign --force --sign - $bundle
codesign --verify --deep --strict $bundle" "$(cat "$workDirectory/deeds")"
expectEqual "a signature without a name is told" 1 "$(grep -c 'ORVELLE_SIGNING_IDENTITY is not set' "$workDirectory/log")"

makeBundle
ORVELLE_SIGNING_IDENTITY="Developer ID" finish || fail "a bundle with an identity is refused"
expectEqual "an identity signs for notarising" \
    "codesign --force --sign Developer ID --options runtime --timestamp $bundle" "$(grep -- "timestamp $bundle\$" "$workDirectory/deeds")"

makeBundle
touch "$workDirectory/codesign fails"
expectEqual "a signature that is not valid is an error" 1 "$(finish && echo 0 || echo 1)"

makeBundle
rm "$bundle/Contents/Frameworks/libicu.74.dylib"
expectComplaint "a library that was not copied" \
    "Contents/Frameworks/QtCore.framework/Versions/A/QtCore needs @rpath/libicu.74.dylib, which is not in the bundle"

makeBundle
machineCode Frameworks/libbrotli.dylib "minos 13.0" "needs /opt/homebrew/lib/libbrotli.dylib"
expectComplaint "a library of the build machine" \
    "Contents/Frameworks/libbrotli.dylib needs /opt/homebrew/lib/libbrotli.dylib, which is not in the bundle"

makeBundle
echo "looks in /opt/homebrew/lib" >>"$bundle/Contents/PlugIns/platforms/libqcocoa.dylib"
expectComplaint "a search path of the build machine" \
    "Contents/PlugIns/platforms/libqcocoa.dylib looks for libraries in /opt/homebrew/lib"

makeBundle
mv "$bundle/Contents/Frameworks/libicu.74.dylib" "$workDirectory"
ln -s "$workDirectory/libicu.74.dylib" "$bundle/Contents/Frameworks"
expectComplaint "a link out of the bundle" \
    "Contents/Frameworks/QtCore.framework/Versions/A/QtCore needs @rpath/libicu.74.dylib, which is not in the bundle"

makeBundle
rm -r "$bundle/Contents"/{MacOS,Frameworks,PlugIns}
expectComplaint "a bundle without a program" "there is no program in the bundle"

# deedsAt IMAGE: how cpack's last step ends, and what it did.
deedsAt() {
    rm -f "$workDirectory/deeds"
    "$cmake" "-DCPACK_PACKAGE_FILES=$1" -P "$packaging/notarize.cmake" >"$workDirectory/log" 2>&1
    echo "status $?"
    [[ ! -e $workDirectory/deeds ]] || cat "$workDirectory/deeds"
}
expectEqual "without an identity the image stays as it is" "status 0" "$(deedsAt 'an image.dmg')"
export ORVELLE_SIGNING_IDENTITY="Developer ID"
expectEqual "without a key it is only signed" "status 0
codesign --force --sign Developer ID --timestamp an image.dmg" "$(deedsAt 'an image.dmg')"
expectEqual "which is told" 1 "$(grep -c 'is not notarised' "$workDirectory/log")"
export ORVELLE_NOTARY_KEY=key.p8 ORVELLE_NOTARY_KEY_ID=ID ORVELLE_NOTARY_ISSUER=issuer
notarised="codesign --force --sign Developer ID --timestamp an image.dmg
xcrun notarytool submit an image.dmg --key key.p8 --key-id ID --issuer issuer --wait
xcrun stapler staple an image.dmg"
expectEqual "with a key it is notarised" "status 0
$notarised" "$(deedsAt 'an image.dmg')"
touch "$workDirectory/is refused"
expectEqual "an image that is refused is an error" "status 1
$notarised" "$(deedsAt 'an image.dmg')"
echo "$failures failures"
((failures == 0))
