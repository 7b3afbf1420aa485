#!/usr/bin/env bash
# planted_faults.sh BUILD_DIRECTORY: proves that the tests notice faults in the macOS shell, by planting one fault at
# a time. BUILD_DIRECTORY must belong to a checkout without changes in src, because each file is restored from git. For
# use by hand: it compiles for several minutes.
set -euo pipefail
build=$(readlink -f "$1")
cd "$(dirname "$(readlink -f "$0")")/../.."
shell=src/shell/macos
sources=("$shell" src/theme)
git diff --quiet -- "${sources[@]}" || { echo "there are changes in ${sources[*]}" >&2; exit 1; }
trap 'git checkout -q -- "${sources[@]}"' EXIT
unnoticed=0

passes() { # whether the tests do
  ctest --test-dir "$build" -R '^test_appkit(_symbols)?$' >/dev/null 2>&1
}

plant() { # plant WHAT FILE SED_COMMAND
  sed -i "$3" "$shell/$2"
  if git diff --quiet -- "${sources[@]}"; then
    echo "no longer possible: $1"; unnoticed=1
  elif ! ninja -C "$build" test_appkit test_appkit_symbols >/dev/null 2>&1; then
    echo "does not compile: $1"; unnoticed=1
  elif passes; then
    echo "NOT NOTICED: $1"; unnoticed=1
  else
    echo "noticed: $1"
  fi
  git checkout -q -- "${sources[@]}"
}

if ! ninja -C "$build" test_appkit test_appkit_symbols >/dev/null || ! passes; then
  echo "the tests fail without any fault" >&2; exit 1
fi
plant "only the left button" macos_status_item.mm 's/ | NSEventMaskRightMouseUp//'
plant "an edge is not pinned" macos_status_item.mm '/bottomAnchor/d'
plant "an item is not removed" macos_status_item.mm '/removeStatusItem/s/^/if (false) /'
plant "no identifier" macos_status_item.mm '/setIdentifier/d'
plant "the picture takes clicks" click_through_hosting_view.mm 's/^    return nil;/    return self;/'
plant "the menu stays with its item" macos_context_menu.mm '/setMenu:nil/d'
plant "another edge" macos_popover.mm 's/NSRectEdgeMinY/NSRectEdgeMaxY/'
plant "not the key window" macos_popover.mm '/makeKeyWindow/d'
plant "closed by its own press" macos_popover.mm 's#return !isPress .*#return isPress || true;#'
plant "no memory of its closing" macos_popover.mm '/m_closedByItself = uptime/s/m_closedByItself = //'
plant "a reference too many" foundation.h '/~Retained/s/\[m_object release\];//'
plant "the image of an item leaks" click_through_hosting_view.h 's/CGImageRelease(image);/static_cast<void>(image);/'
plant "a panel without its program" macos_popover.mm '/m_activation.begin/d'
plant "the program stays active" macos_popover.mm '/void MacosPopover::didClose/,/^}/{/m_activation.end/d}'
plant "hidden under its menu" macos_context_menu.mm '/m_activation.keep/d'
plant "activation without an end" program_activation.mm 's/m_delay.start();/m_delay.stop();/'
plant "another program is hidden" program_activation.mm '/isActive/d'
plant "windows of a hidden program" program_activation.mm '/unhideWithoutActivation/d'
plant "nothing between two panels" program_activation.mm 's/setInterval(delay)/setInterval(0)/'
plant "Escape does nothing" macos_popover.mm 's/.closesAtEscape = true/.closesAtEscape = false/'
plant "a view of a native window that is gone" hosted_window.mm 's/m_view = nil;/m_view = m_view;/'
plant "keys that come later" hosted_window.mm '/void HostedWindow::becameKey/,/^}/s/takeKeys();/return;/'
plant "keys that Qt does not hear of" hosted_window.mm '/makeFirstResponder:nil/d'
plant "an observer too many" hosted_window.mm '/m_observer.get() stop/d'
plant "a window stays open without content" macos_settings_window.mm 's/\[m_window.get() close\]; }/}/'
plant "closed settings are drawn" macos_settings_window.mm '/m_content.hide/d'
plant "settings under the title" macos_settings_window.mm 's/contentLayoutRect/contentView] frame/; s/setFrame:\[m_w/setFrame:[[m_w/'
plant "settings stay in the Dock" macos_settings_window.mm '/deminiaturize:nil/d; /isMiniaturized/d'
plant "settings without the program" macos_settings_window.mm '/m_activation.begin/d'
plant "released when closed" macos_settings_window.mm '/setReleasedWhenClosed/d'
plant "a light window" macos_settings_window.mm '/setAppearance/d'
plant "a forbidden login item counts as off" macos_launch.mm 's/return LoginItemState::needsApproval;/return LoginItemState::off;/'
plant "activated by Qt" macos_desktop.mm '/qputenv/d'
plant "places belong to numbers" macos_status_item.mm '/setAutosaveName/d'
plant "a dragged item forgets its place" macos_status_item.mm '/setObject:position/s/^/if (false) /'
plant "items in the reverse order" macos_status_bar.mm 's/addsItemsOnTheLeft() const override { return true; }/addsItemsOnTheLeft() const override { return false; }/'
plant "white on every menu bar" click_through_hosting_view.mm 's/? BarAppearance::light/? BarAppearance::dark/'
plant "not drawn again on a light bar" click_through_hosting_view.mm '/viewDidChangeEffectiveAppearance\]/{n;d}'
plant "a wide symbol is squeezed" ../../theme/system_symbols.mm 's/std::max(1, qCeil(size.width))/height/'
plant "a high symbol is cut" ../../theme/system_symbols.mm 's/size.height > height ? .*;/1;/'
plant "the designs exchange their roles" ../../theme/system_fonts.mm 's/DesignMonospaced/DesignRounded/'
plant "Qt never hears of the designs" macos_desktop.mm '/useSystemFontDesigns/d'
exit $unnoticed
