# Configures and builds a preset. Sourced by ./run, ./test and ./bench.

# Prints the tools that a build folder depends on. After an upgrade of a compiler or library, or a move of the checkout,
# the files in the folder no longer fit.
toolchain() {
  pwd
  cmake --version | head -1
  "${CXX:-c++}" --version | head -1
  pkg-config --modversion Qt6Core Qt6Quick fmt 2>/dev/null || true
}

# configure PRESET [CMAKE OPTION...]: sets up build/PRESET, and recreates it if it no longer fits. Prints the output of
# CMake only on failure.
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

# build PRESET [CMAKE OPTION...]: configures if needed, then builds.
build() {
  configure "$@"
  cmake --build "build/$1" -- --quiet
}
