# Sourced by ./run, ./test and ./bench: how a preset is configured and built.

# What a build folder was made with. An upgraded compiler or library, or a checkout that moved, leaves files in it that no
# longer fit.
toolchain() {
  pwd
  cmake --version | head -1
  "${CXX:-c++}" --version | head -1
  pkg-config --modversion Qt6Core Qt6Quick fmt 2>/dev/null || true
}

# configure PRESET [CMAKE OPTION...]: sets up build/PRESET, and sets it up anew where it no longer fits. Prints what CMake
# says only when that fails.
configure() {
  local preset=$1; shift
  local folder=build/$preset
  local stamp=$folder/made-with
  if [ -e "$folder" ] && ! toolchain | cmp -s - "$stamp"; then
    echo "orvelle: setting up $folder anew, because it was made with other tools"
    rm -rf "$folder"
  fi
  [ ! -f "$folder/build.ninja" ] || return 0
  mkdir -p "$folder"
  if ! cmake --preset "$preset" "$@" >"$folder/configure.log" 2>&1; then
    cat "$folder/configure.log" >&2
    echo "orvelle: CMake could not set up $folder; see above" >&2
    return 1
  fi
  toolchain >"$stamp"
}

# build PRESET [CMAKE OPTION...]: configures when needed, and builds.
build() {
  configure "$@"
  cmake --build "build/$1" -- --quiet
}
