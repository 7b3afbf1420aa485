#!/usr/bin/env bash
# planted_faults.sh CHECK SOURCE_DIRECTORY QT_HEADER_DIRECTORY: plants each kind of fault in a copy of the sources, and
# proves that the architecture check reports these faults and nothing else.
set -euo pipefail
check=$1
source_directory=$2
qt_headers=$3
copy=$(mktemp -d)
trap 'rm -rf "$copy"' EXIT
cp -r "$source_directory/src" "$source_directory/tools" "$copy"

if ! complaints=$("$check" "$copy" "$qt_headers" 2>&1); then
  echo "complaints without a planted fault: $complaints" >&2
  exit 1
fi

# plant FILE LINE COMPLAINT: appends LINE to FILE in the copy, which may be new. The check must report exactly
# COMPLAINT.
plant() {
  mkdir -p "$(dirname "$copy/$1")"
  printf '%s\n' "$2" >>"$copy/$1"
  printf '%s\n' "$3" >>"$copy/expected"
}

# The allowed arrows between the folders.
plant src/core/sources/disk_source.h     '#include "core/checked.h"'                       'wrong arrow: core/sources/disk_source.h: core/checked.h'
plant src/core/cpu_monitor.cpp           '#include "platform/linux/text.h"'                'wrong arrow: core/cpu_monitor.cpp: platform/linux/text.h'
plant src/core/cpu_monitor.cpp           '#include "theme/theme_manager.h"'                'wrong arrow: core/cpu_monitor.cpp: theme/theme_manager.h'
plant src/platform/linux/text.cpp        '#include "charts/plain_bars.h"'                    'wrong arrow: platform/linux/text.cpp: charts/plain_bars.h'
plant src/platform/linux/text.cpp        '#include "core/memory_monitor.h"'                'wrong arrow: platform/linux/text.cpp: core/memory_monitor.h'
plant src/platform/linux/text.cpp        '#include "platform/darwin/smc_helper.h"'               'wrong arrow: platform/linux/text.cpp: platform/darwin/smc_helper.h'
plant src/platform/replay/any.cpp        '#include "platform/linux/text.h"'                'wrong arrow: platform/replay/any.cpp: platform/linux/text.h'
plant src/settings/settings_store.cpp    '#include "core/checked.h"'                       'wrong arrow: settings/settings_store.cpp: core/checked.h'
plant src/settings/settings_store.cpp    '#include "theme/app_theme.h"'                    'wrong arrow: settings/settings_store.cpp: theme/app_theme.h'
plant src/charts/plain_bars.cpp          '#include "windows/charts/chart_item.h"'          'wrong arrow: charts/plain_bars.cpp: windows/charts/chart_item.h'
plant src/charts/plain_bars.cpp          '#include "core/cpu_monitor.h"'                   'wrong arrow: charts/plain_bars.cpp: core/cpu_monitor.h'
plant src/app/main.cpp                   '#include "platform/linux/text.h"'                'wrong arrow: app/main.cpp: platform/linux/text.h'
plant src/app/main.cpp                   '#include "shell/painted/bar_window.h"'           'wrong arrow: app/main.cpp: shell/painted/bar_window.h'
plant src/app/main.cpp                   '#include "windows/panels/panel_factory.h"'       'wrong arrow: app/main.cpp: windows/panels/panel_factory.h'
plant src/app/main.cpp                   '#include "windows/common/quick_engine.h"'        'wrong arrow: app/main.cpp: windows/common/quick_engine.h'
plant src/shell/x11/any.cpp              '#include "windows/panels/panel_factory.h"'       'wrong arrow: shell/x11/any.cpp: windows/panels/panel_factory.h'
plant src/shell/x11/any.cpp              '#include "charts/plain_bars.h"'                    'wrong arrow: shell/x11/any.cpp: charts/plain_bars.h'
plant src/shell/painted/any.cpp          '#include "shell/x11/x11_input.h"'                'wrong arrow: shell/painted/any.cpp: shell/x11/x11_input.h'
plant src/animation/any.cpp              '#include "theme/fonts.h"'                        'wrong arrow: animation/any.cpp: theme/fonts.h'
plant src/theme/any.cpp                  '#include "animation/spring.h"'                   'wrong arrow: theme/any.cpp: animation/spring.h'
plant src/menu_bar/any.cpp               '#include "shell/painted/bar_window.h"'           'wrong arrow: menu_bar/any.cpp: shell/painted/bar_window.h'
plant src/windows/panels/any.cpp         '#include "menu_bar/modules.h"'                   'wrong arrow: windows/panels/any.cpp: menu_bar/modules.h'
plant src/windows/panels/any.cpp         '#include "platform/host.h"'                      'wrong arrow: windows/panels/any.cpp: platform/host.h'
plant src/windows/settings/any.cpp       '#include "core/system_monitor.h"'                'wrong arrow: windows/settings/any.cpp: core/system_monitor.h'
plant src/windows/settings/any.cpp       '#include "windows/panels/panel_factory.h"'       'wrong arrow: windows/settings/any.cpp: windows/panels/panel_factory.h'
plant src/windows/panels/any.cpp         '#include "windows/settings/any.h"'               'wrong arrow: windows/panels/any.cpp: windows/settings/any.h'
plant src/confinement/any.cpp            '#include "settings/settings_store.h"'             'wrong arrow: confinement/any.cpp: settings/settings_store.h'
plant src/app/main.cpp                   '#include "confinement/system_call_filter.h"'      'wrong arrow: app/main.cpp: confinement/system_call_filter.h'
plant src/elsewhere/any.cpp              '#include <vector>'                               'no rule for this folder: elsewhere/any.cpp'

# Other ways to write an include.
plant src/charts/plain_bars.cpp          '#include <charts/canvas.h>'                      "angle include of the project's own: charts/plain_bars.cpp: charts/canvas.h"
plant src/core/cpu_monitor.cpp           '#include "../charts/plain_bars.h"'               'relative include: core/cpu_monitor.cpp: ../charts/plain_bars.h'
plant src/core/cpu_monitor.cpp           '#include "core/../charts/plain_bars.h"'          'relative include: core/cpu_monitor.cpp: core/../charts/plain_bars.h'
plant src/core/cpu_monitor.cpp           '#include "checked.h"'                            'include without its folder: core/cpu_monitor.cpp: checked.h'
plant src/core/cpu_monitor.cpp           '  #  include  "charts/plain_bars.h"'             'wrong arrow: core/cpu_monitor.cpp: charts/plain_bars.h'
plant src/core/cpu_monitor.cpp           '#include"animation/spring.h"'                    'wrong arrow: core/cpu_monitor.cpp: animation/spring.h'
plant src/platform/darwin/any.mm         '#import "core/checked.h"'                        'wrong arrow: platform/darwin/any.mm: core/checked.h'
plant src/core/cpu_monitor.cpp           '#include HEADER'                                 'include that cannot be judged: core/cpu_monitor.cpp: HEADER'

# The Qt modules that a folder may use.
plant src/core/cpu_monitor.h             '#include <QColor>'                               'Qt Gui: core/cpu_monitor.h: QColor'
plant src/core/cpu_monitor.h             '#include <QtGui/QColor>'                         'Qt Gui: core/cpu_monitor.h: QtGui/QColor'
plant src/core/cpu_monitor.h             '#include <QtGui>'                                'Qt Gui: core/cpu_monitor.h: QtGui'
plant src/core/cpu_monitor.h             '#include <qcolor.h>'                             'Qt Gui: core/cpu_monitor.h: qcolor.h'
plant src/core/cpu_monitor.h             '#include <QDBusConnection>'                      'Qt DBus: core/cpu_monitor.h: QDBusConnection'
plant src/core/cpu_monitor.h             '#include <QSvgRenderer>'                         'Qt Svg: core/cpu_monitor.h: QSvgRenderer'
plant src/core/cpu_monitor.h             '#include <QQmlEngine>'                           'Qt Qml: core/cpu_monitor.h: QQmlEngine'
plant src/core/cpu_monitor.h             '#include <QtQml/qqmlregistration.h>'             'Qt Qml: core/cpu_monitor.h: QtQml/qqmlregistration.h'
plant src/core/cpu_monitor.h             '#include <QQuickItem>'                           'Qt Quick: core/cpu_monitor.h: QQuickItem'
plant src/core/cpu_monitor.h             '#include <QNoSuchClass>'                         'Qt of unknown module: core/cpu_monitor.h: QNoSuchClass'
plant src/core/sources/disk_source.h     '#include <QString>'                              'Qt Core: core/sources/disk_source.h: QString'
plant src/platform/linux/text.cpp        '#include <QString>'                              'Qt Core: platform/linux/text.cpp: QString'
plant src/platform/replay/any.cpp        '#include <QList>'                                'Qt Core: platform/replay/any.cpp: QList'
plant src/settings/settings_storage.h    '#include <QColor>'                               'Qt Gui: settings/settings_storage.h: QColor'
plant src/charts/plain_bars.h            '#include <QQuickPaintedItem>'                    'Qt Quick: charts/plain_bars.h: QQuickPaintedItem'
plant src/app/app_delegate.h             '#include <QQmlEngine>'                           'Qt Qml: app/app_delegate.h: QQmlEngine'
plant src/shell/painted/bar_window.cpp   '#include <QQuickView>'                           'Qt Quick: shell/painted/bar_window.cpp: QQuickView'

# Decisions that belong to the build.
question='question about the operating system:'
for macro in __APPLE__ __MACH__ __linux __linux__ __gnu_linux__ __unix__ __FreeBSD__ TARGET_OS_MAC Q_OS_MACOS Q_OS_LINUX _WIN32; do
  plant src/core/checked.cpp            "#if defined($macro) && 1"                  "$question src/core/checked.cpp: #if defined($macro) && 1"
done
plant src/platform/host.h                '#ifdef __linux__'                                "$question src/platform/host.h: #ifdef __linux__"
plant tools/probe/main.cpp               'constexpr bool isMac = TARGET_OS_OSX;'           "$question tools/probe/main.cpp: constexpr bool isMac = TARGET_OS_OSX;"
plant src/charts/plain_bars.cpp          'auto name = QSysInfo::kernelType();'             "$question src/charts/plain_bars.cpp: auto name = QSysInfo::kernelType();"
plant src/windows/panels/Any.qml         'property bool mac: Qt.platform.os == "osx"'      "$question src/windows/panels/Any.qml: property bool mac: Qt.platform.os == \"osx\""

# Texts that are not plain.
question='text that may be read as markup:'
for line in '    Text {' '    Label { text: name }' '    TextEdit{' '    textFormat: Text.RichText' '    textFormat: Text.AutoText'; do
  plant src/windows/panels/Any.qml       "$line"                                           "$question src/windows/panels/Any.qml: $line"
done
plant src/windows/common/PlainText.qml   '    textFormat: Text.StyledText'                 "$question src/windows/common/PlainText.qml:     textFormat: Text.StyledText"
plant src/charts/canvas.cpp              'QStaticText name;'                               "$question src/charts/canvas.cpp: QStaticText name;"

if "$check" "$copy" "$qt_headers" >/dev/null 2>"$copy/complaints"; then
  echo "the check succeeds on all planted faults" >&2
  exit 1
fi
# Some complaints show the line's number, which depends on the lines above.
sed -E 's/^((question|text) [^:]*: [^:]*):[0-9]+:/\1: /' "$copy/complaints" | sort >"$copy/found"
if ! diff <(sort "$copy/expected") "$copy/found" >"$copy/differences"; then
  echo "< is planted and not noticed, > is noticed and not planted:" >&2
  cat "$copy/differences" >&2
  exit 1
fi
