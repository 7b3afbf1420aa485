#!/bin/bash
# check_bundle.sh BUNDLE: fails unless every library that the bundle's parts name is in the bundle or belongs to the
# system. A Mac without the libraries of the build machine could not start the program otherwise.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/machine_code.sh"
bundle=$(cd "$1" && pwd -P)
program=$bundle/Contents/MacOS/$(plutil -extract CFBundleExecutable raw -o - "$bundle/Contents/Info.plist")

# written_out REFERENCE FILE: the path that a reference or search path in the file means.
written_out() {
  case $1 in
    @executable_path/*) printf '%s\n' "$bundle/Contents/MacOS/${1#@executable_path/}" ;;
    @loader_path/*) printf '%s\n' "$(dirname "$2")/${1#@loader_path/}" ;;
    *) printf '%s\n' "$1" ;;
  esac
}

# is_in_bundle PATH: whether the path leads to a file inside, by links or directly.
is_in_bundle() {
  local path=$1 folder
  [ -f "$path" ] || return 1
  while [ -L "$path" ]; do
    case $(readlink "$path") in
      /*) path=$(readlink "$path") ;;
      *) path=$(dirname "$path")/$(readlink "$path") ;;
    esac
  done
  folder=$(cd "$(dirname "$path")" && pwd -P)
  case $folder/ in "$bundle"/*) return 0 ;; *) return 1 ;; esac
}

# is_found REFERENCE FILE: whether the reference in the file leads to a library of the bundle or the system.
is_found() {
  local path
  case $1 in
    /usr/lib/* | /System/Library/*) return 0 ;;
    @rpath/*)
      while IFS= read -r path; do
        ! is_in_bundle "$(written_out "$path" "$2")/${1#@rpath/}" || return 0
      done < <(search_paths "$2" && search_paths "$program")
      return 1 ;;
    *) is_in_bundle "$(written_out "$1" "$2")" ;;
  esac
}

# complaints FILE: prints what in the file leads out of the bundle.
complaints() {
  local name=${1#"$bundle"/} reference path
  while IFS= read -r reference; do
    is_found "$reference" "$1" || echo "$name needs $reference, which is not in the bundle"
  done < <(references "$1")
  while IFS= read -r path; do
    # The loader would take another version of a library from there.
    case $path in /usr/lib/* | /System/Library/*) ;; /*) echo "$name looks for libraries in $path" ;; esac
  done < <(search_paths "$1")
}

count=0 problems=""
while IFS= read -r file; do
  count=$((count + 1))
  problems+=$(complaints "$file")
  [ -z "$problems" ] || problems=${problems%$'\n'}$'\n'
done < <(machine_code "$bundle")
[ "$count" -gt 0 ] || problems=$'there is no program in the bundle\n'
[ -z "$problems" ] || { printf 'check_bundle: %s' "$problems" | sed '2,$s/^/check_bundle: /' >&2; exit 1; }
echo "check_bundle: the $count executables and libraries of $(basename "$bundle") find all that they need"
