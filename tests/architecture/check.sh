#!/usr/bin/env bash
# check.sh SOURCE_DIRECTORY QT_HEADER_DIRECTORY: fails on an arrow that points the wrong way, on a module of Qt
# where it does not belong, and on a question about the operating system outside the folder of that system.
# docs/architecture.md has the picture. The second directory holds QtCore, QtGui and so on: the one in which there
# is a QColor tells which module <QColor> belongs to.
set -euo pipefail
shopt -s nullglob
source_directory=$1
qt_headers=$2
status=0

complain() {
  echo "$1" >&2
  status=1
}

# room FILES MODULES HEADERS [BUT]: the C++ files below src whose path begins with FILES may include the headers of
# these MODULES of Qt and the project's headers whose path begins with HEADERS, but not with BUT. All are regular
# expressions; the first room that fits a file is the one it lives in.
room_files=() room_modules=() room_headers=() room_but=()
room() {
  room_files+=("$1") room_modules+=("$2") room_headers+=("$3") room_but+=("${4:-$none}")
}
none='-'
gui='Core|Gui'
quick='Core|Gui|Qml|Quick'
looks='animation/|theme/|settings/'

room 'formatting/'         'Core'       'formatting/'
room 'settings/'           'Core'       'settings/'
room 'confinement/'        "$none"      'confinement/'
room 'core/sources/'       "$none"      'core/sources/'
room 'animation/'          "$gui"       'animation/|settings/styles\.h'
room 'theme/'              "$gui|Svg"   'theme/|settings/'
room 'core/'               'Core'       'core/|settings/(settings_store|styles)\.h'
room 'platform/readable_'  "$none"      'platform/readable_name\.h'
room 'platform/linux/'     "$none"      'core/sources/|platform/(linux/|readable_name\.h|host\.h)'
room 'platform/darwin/'    "$none"      'core/sources/|platform/(darwin/|readable_name\.h|host\.h)|settings/release_pool\.h'
room 'platform/replay/'    "$none"      'core/sources/|platform/replay/'
room 'platform/[^/]*$'     "$none"      'core/sources/|platform/[^/]*$'
room 'charts/'             "$gui"       "charts/|$looks"
room 'shell/x11/'          "$gui"       "shell/([^/]*$|painted/|x11/)|$looks"
room 'shell/wayland/'      "$gui"       "shell/([^/]*$|painted/|wayland/)|$looks"
room 'shell/linux/'        "$gui"       "shell/([^/]*$|linux/|painted/|x11/|wayland/|tray/)|$looks"
room 'shell/tray/'         "$gui|DBus"  "shell/([^/]*$|painted/|tray/)|$looks"
room 'shell/macos/'        "$gui"       "shell/([^/]*$|macos/)|$looks"
room 'shell/painted/'      "$gui|DBus"  "shell/([^/]*$|painted/)|$looks"
room 'shell/'              "$gui"       "shell/[^/]*$|$looks"
room 'menu_bar/'           "$gui"       "menu_bar/|shell/status_item\.h|core/|charts/|formatting/|$looks"
room 'windows/common/'     "$quick|Svg" "windows/common/|$looks"
room 'windows/charts/'     "$quick"     "windows/(charts|common)/|charts/|$looks"
room 'windows/panels/'     "$quick"     "windows/(panels|charts|common)/|core/|charts/|formatting/|$looks"
room 'windows/settings/'   "$quick"     "windows/(settings|charts|common)/|charts/|formatting/|$looks"
room 'windows/'            "$quick"     "windows/|core/|charts/|formatting/|$looks"
room 'app/'                "$gui"       "(app|menu_bar|core|charts|formatting)/|confinement/confinement\.h|shell/[^/]*$|windows/window_factory\.h|platform/host\.h|$looks"

find_room() { # FILE: leaves its number in room_number
  for ((room_number = 0; room_number < ${#room_files[@]}; ++room_number)); do
    [[ $1 =~ ^(${room_files[room_number]}) ]] && return
  done
  return 1
}

find_module() { # HEADER: leaves Core, Gui and so on in module, nothing when the header is not of Qt
  local found=()
  module=
  if [[ $1 =~ ^Qt([A-Za-z0-9]+)/ ]]; then
    module=${BASH_REMATCH[1]}
  elif [[ $1 =~ ^[Qq][A-Za-z0-9_.]+$ ]]; then
    [[ $1 == Q* ]] && module='of unknown module'
    found=("$qt_headers"/Qt*/"$1")
    [[ ${#found[@]} -gt 0 && ${found[0]} =~ /Qt([A-Za-z0-9]+)/[^/]*$ ]] && module=${BASH_REMATCH[1]}
  fi
  return 0
}

judge() { # FILE HEADER KIND: KIND is the character in front of the header
  if [[ $2 =~ (^|/)\.\.?(/|$) ]]; then
    complain "relative include: $1: $2"
  elif [[ $2 =~ ^($folders)/ && $3 == '<' ]]; then
    complain "angle include of the project's own: $1: $2"
  elif [[ $2 =~ ^($folders)/ ]]; then
    [[ $2 =~ ^(${room_headers[room_number]}) && ! $2 =~ ^(${room_but[room_number]}) ]] ||
      complain "wrong arrow: $1: $2"
  elif [[ $3 == '"' ]]; then
    complain "include without its folder: $1: $2"
  else
    find_module "$2"
    [[ -z $module || $module =~ ^(${room_modules[room_number]})$ ]] || complain "Qt $module: $1: $2"
  fi
}

find_lines() { # PATTERN FOLDER...: FILE:NUMBER:LINE of each line in C++ and QML that has the pattern
  (cd "$source_directory" && grep -rnE "$@" --include='*.h' --include='*.cpp' --include='*.mm' --include='*.qml') || true
}

folders=$(cd "$source_directory/src" && printf '%s|' */ | tr -d /)
folders=${folders%|}

while IFS= read -r found; do
  file=${found%%:*}
  file=${file#src/}
  if ! find_room "$file"; then
    complain "no rule for this folder: $file"
  elif [[ $found =~ (include|import)[[:space:]]*([\"\<])([^\"\>]*)[\"\>] ]]; then
    judge "$file" "${BASH_REMATCH[3]}" "${BASH_REMATCH[2]}"
  else
    complain "include that cannot be judged: $file: ${found##*[[:space:]]}"
  fi
done < <(find_lines '^[[:space:]]*#[[:space:]]*(include|import)' src)

# Which system it is, is decided by the build: it chooses the folders below platform and app/shell.
systems='\<(__(APPLE|MACH|ANDROID)__|__(gnu_)?(linux|unix)(__)?|__(Free|Net|Open)BSD__|TARGET_OS_[A-Z]+|Q_OS_[A-Z0-9]+|_WIN(32|64)|QSysInfo|Qt\.platform)\>'
while IFS= read -r found; do
  complain "question about the operating system: $found"
done < <(find_lines "$systems" src tools)

# Names come from outside: no text may be read as markup. Text of Qt Quick guesses what it is unless it is told.
markup='\<((Text|Label|TextEdit|TextArea)[[:space:]]*\{|(Auto|Styled|Rich|Markdown)Text\>|QTextDocument|QStaticText|QLabel|setHtml)'
while IFS= read -r found; do
  [[ $found =~ ^src/windows/common/PlainText\.qml:[0-9]+:Text\ \{$ ]] || complain "text that may be read as markup: $found"
done < <(find_lines "$markup" src)

exit $status
