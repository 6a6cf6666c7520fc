#!/usr/bin/env bash
# Installs a build, then compiles and runs a program against the installed tree alone: in C and in
# C++, through the CMake package and through pkg-config, with the shared and the static library.
# Usage: check_install.sh BUILD_DIR WORK_DIR VERSION
# Compilers and their flags are in CC, CXX, CFLAGS and CXXFLAGS.
set -euo pipefail

build=$1 work=$2 version=$3
project=$(cd "$(dirname "$0")" && pwd)/project
prefix=$work/moved

rm -rf "$work"
cmake --install "$build" --prefix "$work/installed" >/dev/null
# Nothing in the tree may hold the place it was installed to.
mv "$work/installed" "$prefix"

for language in C CXX; do
  cmake -S "$project" -B "$work/cmake_$language" -DCONSUMER_LANGUAGE=$language \
        -DCONSUMER_VERSION="$version" -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
  cmake --build "$work/cmake_$language" >/dev/null
  for kind in shared static; do
    "$work/cmake_$language/consumer_$kind"
    echo "ok: $language, CMake, $kind"
  done
done

pc=$(find "$prefix" -name keli.pc)
export PKG_CONFIG_PATH=${pc%/*}
[ "$(pkg-config --modversion keli)" = "$version" ]
libdir=$(pkg-config --variable=libdir keli)
warnings="-pedantic -Wall -Wextra -Werror"

# compile LANGUAGE OUT LIBS: with the flags split into words.
compile() {
  local define=-DCONSUMER_VERSION="\"$version\""
  case $1 in
    C) $CC $CFLAGS -std=c99 $warnings "$define" $(pkg-config --cflags keli) \
           "$project/consumer.c" -o "$2" $3 ;;
    CXX) $CXX $CXXFLAGS -std=c++17 $warnings "$define" $(pkg-config --cflags keli) \
             "$project/consumer.cc" -o "$2" $3 ;;
  esac
}

for language in C CXX; do
  compile $language "$work/pc_shared" "$(pkg-config --libs keli)"
  LD_LIBRARY_PATH=$libdir "$work/pc_shared"
  echo "ok: $language, pkg-config, shared"
  libs=$(pkg-config --static --libs keli)
  compile $language "$work/pc_static" "${libs/-lkeli/-l:libkeli.a}"
  "$work/pc_static"
  echo "ok: $language, pkg-config, static"
done

# The example that the README shows.
sed -n '/^```c$/,/^```$/p' "$project/../../../README.md" | grep -v '^```' >"$work/readme.c"
$CC $CFLAGS -std=c99 $warnings $(pkg-config --cflags keli) "$work/readme.c" -o "$work/readme" \
    $(pkg-config --libs keli)
printed=$(LD_LIBRARY_PATH=$libdir "$work/readme")
grep -qF "It prints \`$printed\`" "$project/../../../README.md"
echo "ok: README, $printed"
