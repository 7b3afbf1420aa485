# Reads the executables and libraries of an application bundle on macOS. Sourced by ./finish_bundle.sh and ./check_bundle.sh.
# It must work in bash 3.2, the version of macOS.

# machine_code BUNDLE: prints the path of each executable and library, those inside of others first.
machine_code() {
  local file
  find "$1/Contents" -type f | LC_ALL=C sort -r | while IFS= read -r file; do
    ! lipo -archs "$file" >/dev/null 2>&1 || printf '%s\n' "$file"
  done
}

# load_commands FILE COMMANDS FIELD: prints that field of each load command whose name matches the expression.
load_commands() {
  otool -l "$1" | awk -v commands="^($2)\$" -v field="$3" '
    $1 == "cmd" { is_wanted = $2 ~ commands }
    is_wanted && $1 == field { sub(/^ *[a-z]+ /, ""); sub(/ \(offset [0-9]+\)$/, ""); print }'
}

# search_paths FILE: prints the folders that stand for @rpath in its references, as they are written there.
search_paths() { load_commands "$1" LC_RPATH path | sort -u; }

# oldest_system FILE: prints the version of macOS that the file was built for, one line per processor type.
oldest_system() {
  load_commands "$1" LC_BUILD_VERSION minos
  load_commands "$1" LC_VERSION_MIN_MACOSX version
}

# references FILE: prints the libraries that it names, its own name among them.
references() { otool -L "$1" | sed -n 's/^[[:space:]]\{1,\}\(.*\) (compatibility version.*$/\1/p' | sort -u; }
