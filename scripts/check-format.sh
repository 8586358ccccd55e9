#!/usr/bin/env bash
# Fails when a tracked C++ file is not formatted as .clang-format says.
set -euo pipefail
cd "$(dirname "$0")/.."
mapfile -t files < <(git ls-files '*.h' '*.cpp')
if [ ${#files[@]} -eq 0 ]; then
  echo "check-format: no files"; exit 0
fi
if ! clang-format --dry-run -Werror "${files[@]}"; then
  echo "check-format: run 'clang-format -i' on the files above"; exit 1
fi
echo "check-format: ${#files[@]} files formatted"
