#!/usr/bin/env bash
# Installs what the project needs, builds the tool and shows a record built from an
# option string: zorvan-settings show '$$EffectBlurGaussian$$' 'scale=2.5:fast=1'.
# Other arguments are passed to the tool instead.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/install-deps.sh
launcher=()
command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
cmake -S . -B build/release -G Ninja -DCMAKE_BUILD_TYPE=Release -DZORVAN_SETTINGS_BUILD_TESTS=OFF "${launcher[@]}" >/dev/null
cmake --build build/release --target zorvan-settings
if [ $# -eq 0 ]; then
  set -- show '$$EffectBlurGaussian$$' 'scale=2.5:fast=1'
fi
exec ./build/release/tools/zorvan-settings "$@"
