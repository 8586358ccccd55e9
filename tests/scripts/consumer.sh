#!/usr/bin/env bash
# Builds and runs tests/consumer twice: with the checkout as add_subdirectory, and
# against an install of this build found by find_package(ZorvanSettings).
set -euo pipefail
source_dir="$1"   # the checkout
build_dir="$2"    # this build's tree (to install from)
work="$3"         # scratch directory
build_type="${4:-Debug}"
launcher=()
command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
export CCACHE_NOHASHDIR=1
rm -rf "$work" && mkdir -p "$work"

echo "== add_subdirectory"
cmake -S "$source_dir/tests/consumer" -B "$work/subdirectory" -G Ninja -DCMAKE_BUILD_TYPE="$build_type" \
  "${launcher[@]}" -DZORVAN_MODE=subdirectory -DZORVAN_SOURCE="$source_dir" >/dev/null
cmake --build "$work/subdirectory" --target consumer >/dev/null
"$work/subdirectory/consumer"

echo "== find_package from an installed tree"
cmake --install "$build_dir" --prefix "$work/prefix" >/dev/null
cmake -S "$source_dir/tests/consumer" -B "$work/package" -G Ninja -DCMAKE_BUILD_TYPE="$build_type" \
  "${launcher[@]}" -DZORVAN_MODE=package -DCMAKE_PREFIX_PATH="$work/prefix" >/dev/null
cmake --build "$work/package" >/dev/null
grep -q "$work/prefix" "$work/package/CMakeCache.txt"
"$work/package/consumer"
echo "consumer: ok"
