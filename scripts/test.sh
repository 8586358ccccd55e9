#!/usr/bin/env bash
# Installs what the project needs, builds with -Werror, runs every test, then builds
# and runs the suite a second time under AddressSanitizer and UndefinedBehaviorSanitizer.
# This is the README's test command and what .ci/run calls.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/install-deps.sh
./scripts/check-format.sh

export CCACHE_NOHASHDIR=1
jobs=$(nproc)
launcher=()
command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)

echo "== build and test"
cmake -S . -B build/test -G Ninja -DCMAKE_BUILD_TYPE=Debug -DZORVAN_SETTINGS_WERROR=ON "${launcher[@]}"
cmake --build build/test -j "$jobs"
ctest --test-dir build/test --output-on-failure -j "$jobs"

echo "== build and test with -fsanitize=address,undefined"
cmake -S . -B build/sanitize -G Ninja -DCMAKE_BUILD_TYPE=Debug -DZORVAN_SETTINGS_WERROR=ON \
  -DZORVAN_SETTINGS_SANITIZE=ON "${launcher[@]}"
cmake --build build/sanitize -j "$jobs"
ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
  ctest --test-dir build/sanitize --output-on-failure -j "$jobs"
