#!/usr/bin/env bash
# Writes Proc/Settings/AllSettings.h: includes every public header of Proc/Settings.
set -euo pipefail
cd "$(dirname "$0")/.."
{
  echo '#pragma once'
  echo '// The umbrella header: every public header of the library. Written by scripts/gen-all-settings.sh.'
  for h in $(cd Proc/Settings && ls *.h | LC_ALL=C sort); do
    case "$h" in AllSettings.h|InitOrder.h|Arithmetic.h|MapForm.h|Spellings.h|FloatRange.h|ShaderTemplate.h|IntegerKeys.h|OptionMatcher.h|RegexMachine.h) continue ;; esac
    echo "#include \"Proc/Settings/$h\""
  done
} > Proc/Settings/AllSettings.h
