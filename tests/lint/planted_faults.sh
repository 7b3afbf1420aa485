#!/usr/bin/env bash
# planted_faults.sh SOURCE_DIRECTORY: plants a fault of each kind in a small project, and proves that ./lint reports
# them, and that it reports nothing without them.
set -euo pipefail
source_directory=$1
for tool in clang-format-19 clang-tidy-19 shellcheck pylint git; do
  command -v "$tool" >/dev/null || { echo "SKIPPED: $tool is not installed"; exit 77; }
done
project=$(mktemp -d)
trap 'rm -rf "$project"' EXIT
cd "$project"
mkdir -p scripts src
cp "$source_directory"/{lint,.gitignore,.clang-format,.clang-tidy,.pylintrc,.shellcheckrc,CMakePresets.json} .
cp "$source_directory"/scripts/{tidy.py,includes.py,packages.sh} scripts
echo 'install_packages() { :; } # all are there' >>scripts/packages.sh
cat >CMakeLists.txt <<'END'
cmake_minimum_required(VERSION 3.25)
project(Planted LANGUAGES CXX)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
add_library(planted src/planted.cpp src/broken.cpp src/same.cpp)
END
printf '#pragma once\n\nint planted();\n' >src/planted.h
printf '#include "planted.h"\n\nint planted() {\n    return 1;\n}\n' >src/planted.cpp
printf 'int broken() {\n    return 1;\n}\n' >src/broken.cpp
printf 'int  same() {\n    return 1;\n}\n' >src/same.cpp
git init -q
git add -A

# expect DESCRIPTION TEXT: checks that the output of ./lint contains the text.
failures=0
expect() {
  case $output in
    *"$2"*) echo "ok: $1" ;;
    *) echo "FAILED: $1: no \"$2\""; failures=1 ;;
  esac
}

status=0
output=$(./lint --fix 2>&1) || status=$?
[ $status -eq 0 ] || { printf 'FAILED: complaints without a planted fault\n%s\n' "$output"; exit 1; }
output=$(head -1 src/same.cpp)
expect "the layout is mended when that is wished" "int same() {"

printf 'inline int* nothing() {\n    return 0;\n}\nint  spaces();\n' >>src/planted.h
printf '#include "missing.h"\n' >>src/broken.cpp
# shellcheck disable=SC2016 # the generated script needs it
printf '#!/bin/sh\nls $1\n' >unquoted
chmod +x unquoted
printf 'unused=1\n' >scripts/unused.sh
printf '"""A planted fault."""\n\nprint(undefined)\n' >scripts/undefined.py
git add -A
status=0
output=$(./lint 2>&1) || status=$?
[ $status -eq 1 ] || { echo "FAILED: status $status"; failures=1; }
expect "the layout is judged" "src/planted.h:7:4: error: code should be clang-formatted"
expect "a header is looked at with what includes it" "src/planted.h:5:12: warning: use nullptr"
expect "what clang cannot compile is a finding" "src/broken.cpp:4:10: error: 'missing.h' file not found"
expect "and named at the end" "not search to the end: src/broken.cpp"
expect "a script is checked" "In scripts/unused.sh line 1"
expect "a script without a suffix is checked" "In unquoted line 2"
expect "a program in Python is checked" "Undefined variable 'undefined'"
expect "every tool that complained is named" "lint: clang-format-19 shellcheck pylint clang-tidy-19 found something"
expect "what has not changed is not looked at again" "2 of 3 sources looked at"
[ $failures -eq 0 ] || printf '%s\n' "$output"
exit $failures
