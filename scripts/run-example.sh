#!/usr/bin/env bash
# Installs what the project needs, builds the tool and shows two things the library is for:
# a resizer letterboxing a 4:3 frame into 1920x1080 (output frame, margins, texture
# coordinates), and an option string refused with its exception class and exact message.
# Other arguments are passed to the tool instead.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/install-deps.sh
launcher=()
command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
cmake -S . -B build/release -G Ninja -DCMAKE_BUILD_TYPE=Release -DZORVAN_SETTINGS_BUILD_TESTS=OFF "${launcher[@]}" >/dev/null
cmake --build build/release --target zorvan-settings
tool=./build/release/tools/zorvan-settings
if [ $# -gt 0 ]; then
  exec "$tool" "$@"
fi
echo "\$ zorvan-settings resize '1920x1080:size_mode=Custom:custom_mode=LetterBox' --input 1440x1080"
"$tool" resize '1920x1080:size_mode=Custom:custom_mode=LetterBox' --input 1440x1080
echo
echo "\$ zorvan-settings show SettingsFilterSpeedUp 'speed=2' 'speed=-1'"
status=0
"$tool" show SettingsFilterSpeedUp 'speed=2' 'speed=-1' || status=$?
echo "(exit status $status: the second string was refused; the record keeps the speed of the first)"
