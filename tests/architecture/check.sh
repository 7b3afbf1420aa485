#!/usr/bin/env bash
# check.sh SOURCE_DIRECTORY: fails on an arrow that points the wrong way, and on a question about the operating
# system outside the folder of that system. docs/architecture.md has the picture.
set -euo pipefail
source_directory=$1
status=0

complain() {
  echo "$1" >&2
  status=1
}

# allow FOLDER PATTERN...: files below FOLDER may include project headers only from places that begin with one
# of the patterns. Longer folder names are checked on their own as well, so a parent lists what its children need.
allow() {
  local folder=$1; shift
  local allowed line
  allowed=$(printf '|%s' "$@")
  while IFS= read -r line; do
    complain "wrong arrow from $folder: $line"
  done < <(grep -rnE '#include "[a-z_]+/' "$source_directory/src/$folder" --include='*.h' --include='*.cpp' --include='*.mm' 2>/dev/null |
           grep -vE "#include \"(${allowed:1})" || true)
}

# forbid FOLDER PATTERN WHY
forbid() {
  local line
  while IFS= read -r line; do
    complain "$3: $line"
  done < <(grep -rnE "$2" "$source_directory/src/$1" --include='*.h' --include='*.cpp' --include='*.mm' 2>/dev/null || true)
}

allow core/sources core/sources/
allow core core/ settings/settings_store.h settings/styles.h
allow platform/names platform/names/
allow platform/linux core/sources/ platform/linux/ platform/names/ platform/host.h
allow platform/darwin core/sources/ platform/darwin/ platform/names/ platform/host.h
allow platform/fixed core/sources/ platform/fixed/
allow settings settings/
allow look look/ settings/
allow charts charts/ look/ settings/
allow app/formatters app/formatters/
allow app/shell app/shell/ charts/ look/ settings/
allow app/menu_bar_items app/menu_bar_items/ app/formatters/ app/shell/status_item_view.h charts/ core/ look/ settings/
allow panels panels/ app/formatters/ charts/ core/ look/ settings/
allow settings_ui settings_ui/ app/formatters/ charts/ look/ settings/
forbid core/sources '#include <Q' 'the seam knows no Qt'
forbid core '#include <(QGui|QtGui|QtQml|QtQuick|QColor|QPainter|QImage|QWindow|QQml|QQuick|QFont)' 'core uses Qt Core alone'
forbid core '#include "core/.*platform' 'core knows no platform'

# The shells under app/shell and the folders under platform are chosen by the build.
while IFS= read -r line; do
  complain "operating-system question outside the platform folders: $line"
done < <(grep -rnE '#[[:space:]]*(if|ifdef|ifndef|elif).*(__APPLE__|__linux__|Q_OS_|_WIN32)' \
         "$source_directory/src" "$source_directory/tools" 2>/dev/null | grep -vE '/src/platform/(linux|darwin)/' || true)

exit $status
