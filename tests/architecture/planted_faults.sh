#!/usr/bin/env bash
# planted_faults.sh CHECK SOURCE_DIRECTORY: shows that the check of the architecture can fail, by planting each
# kind of fault in a copy of the sources.
set -euo pipefail
check=$1
source_directory=$2
copy=$(mktemp -d)
trap 'rm -rf "$copy"' EXIT

plant() { # plant WHAT FILE LINE
  rm -rf "${copy:?}/src"
  cp -r "$source_directory/src" "$copy/src"
  mkdir -p "$copy/tools"
  printf '%s\n' "$3" >>"$copy/src/$2"
  if "$check" "$copy" >/dev/null 2>&1; then
    echo "not noticed: $1" >&2
    exit 1
  fi
}

plant "core includes QtGui" core/cpu_monitor.h '#include <QColor>'
plant "core includes a platform" core/cpu_monitor.cpp '#include "platform/linux/text.h"'
plant "a platform includes a view" platform/linux/meminfo.cpp '#include "charts/mini_bar.h"'
plant "a platform includes a monitor" platform/linux/meminfo.cpp '#include "core/memory_monitor.h"'
plant "settings include core" settings/settings_store.cpp '#include "core/checked.h"'
plant "a question about the system" core/checked.cpp '#ifdef Q_OS_MACOS'
