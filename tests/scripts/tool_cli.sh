#!/usr/bin/env bash
# shellcheck disable=SC2016  # the $$ of class identifiers are literal text
# The command-line tool zorvan-settings: list, show (success, failures, unknown class) and --help.
# Usage: tool_cli.sh <path-to-zorvan-settings>
# The tool prints pretty JSON with a fixed key order, so expectations are literal texts.
set -euo pipefail
tool="$1"
fail=0
out="" err="" rc=0

# run ARGS...: the tool's stdout, stderr and exit code into $out, $err, $rc.
run() {
  local errfile
  errfile=$(mktemp)
  rc=0
  out=$("$tool" "$@" 2>"$errfile") || rc=$?
  err=$(<"$errfile")
  rm -f "$errfile"
}

failed() {
  echo "FAIL: $1"
  printf '  exit code: %s\n  stdout (first 30 lines):\n%s\n  stderr:\n%s\n' "$rc" "$(head -n 30 <<<"$out")" "$err"
  fail=1
}

# expect_exact NAME RC TEXT: exit code RC and stdout exactly TEXT.
expect_exact() {
  if [ "$rc" -ne "$2" ] || [ "$out" != "$3" ]; then
    failed "$1 (expected exit $2 and stdout:"$'\n'"$3)"
  fi
}

# expect_lines NAME RC LINE...: exit code RC and each LINE present in stdout as a whole line.
expect_lines() {
  local name="$1" code="$2" line
  shift 2
  if [ "$rc" -ne "$code" ]; then
    failed "$name (expected exit $code)"
    return
  fi
  for line in "$@"; do
    if ! grep -qxF -- "$line" <<<"$out"; then
      failed "$name (missing line: $line)"
      return
    fi
  done
}

run show '$$EffectBlurGaussian$$' 'scale=2.5:fast=1'
expect_exact "show scale=2.5:fast=1: scale 2.5, fast unchanged" 0 '{
  "id": "$$EffectBlurGaussian$$",
  "class": "SettingsEffectBlurGaussian",
  "fields": {
    "scale": 2.5,
    "fast": false
  },
  "isEmpty": false
}'

run show '$$EffectBlurGaussian$$' 'fast=1'
expect_exact "show fast=1: fast true" 0 '{
  "id": "$$EffectBlurGaussian$$",
  "class": "SettingsEffectBlurGaussian",
  "fields": {
    "scale": 0.0,
    "fast": true
  },
  "isEmpty": false
}'

run show SettingsEffectBlurGaussian 'scale=2' 'fast=1'
expect_exact "show by class name with two option strings applied in turn" 0 '{
  "id": "$$EffectBlurGaussian$$",
  "class": "SettingsEffectBlurGaussian",
  "fields": {
    "scale": 2.0,
    "fast": true
  },
  "isEmpty": false
}'

run show '$$EffectBlurGaussian$$' 'scale="x"'
expect_exact "show scale=\"x\": std::invalid_argument, record unchanged" 1 '{
  "id": "$$EffectBlurGaussian$$",
  "class": "SettingsEffectBlurGaussian",
  "error": {
    "exception": "std::invalid_argument",
    "description": "stod",
    "option": "scale=\"x\""
  },
  "fields": {
    "scale": 0.0,
    "fast": false
  }
}'
if [ "$err" != "error: std::invalid_argument: stod" ]; then
  failed "show scale=\"x\": one-line message on stderr"
fi

run show '$$EffectBlurGaussian$$' 'scale=3' 'scale="x"' 'fast=1'
expect_lines "show: a failure keeps earlier option strings applied and stops" 1 \
  '    "exception": "std::invalid_argument",' \
  '    "option": "scale=\"x\""' \
  '    "scale": 3.0,' \
  '    "fast": false'

run show EFFECT_BLUR 'a=1'
expect_lines "show EFFECT_BLUR: the base's Deserialize throws SettingsException" 1 \
  '  "id": "EFFECT_BLUR",' \
  '  "class": "SettingsEffectBlur",' \
  '    "exception": "SettingsException",' \
  '    "description": "Not implemented fill from string for settings CLASS_ID = EFFECT_BLUR",' \
  '    "option": "a=1"'
if [ "$err" != "error: SettingsException: Not implemented fill from string for settings CLASS_ID = EFFECT_BLUR" ]; then
  failed "show EFFECT_BLUR: one-line message on stderr"
fi

run show SettingsFilterSpeedUp 'speed=-1'
expect_lines "show SettingsFilterSpeedUp speed=-1: SettingsException" 1 \
  '  "id": "$$FILTER_SPEED$$",' \
  '    "exception": "SettingsException",' \
  '    "description": "Invalid speed",' \
  '    "option": "speed=-1"'

run show NoSuchClass
if [ "$rc" -ne 2 ] || [ -n "$out" ] || [ -z "$err" ]; then
  failed "show NoSuchClass: exit 2, nothing on stdout, a message on stderr"
fi

run list
if [ "$rc" -ne 0 ] || [ "$(wc -l <<<"$out")" -ne 220 ]; then
  failed "list: 220 lines"
fi
if ! grep -qE '^\$\$EffectBlurGaussian\$\$ +SettingsEffectBlurGaussian +Settings +D$' <<<"$out"; then
  failed "list: the line of \$\$EffectBlurGaussian\$\$"
fi
if ! grep -qE '^FilterSpeedUpVideo +SettingsFilterSpeedUpVideo +SettingsFilterSpeedUp +EMD$' <<<"$out"; then
  failed "list: the line of FilterSpeedUpVideo"
fi

run list --json
if [ "$rc" -ne 0 ] || [ "$(grep -c '^    "id": ' <<<"$out")" -ne 220 ] || ! grep -qxF '    "id": "$$EffectBlurGaussian$$",' <<<"$out"; then
  failed "list --json: 220 objects, \$\$EffectBlurGaussian\$\$ among them"
fi

run --help
for word in list show docs; do
  if [ "$rc" -ne 0 ] || ! grep -qE "^ +$word " <<<"$out"; then
    failed "--help: mentions the subcommand $word"
  fi
done

if [ "$fail" -ne 0 ]; then
  echo "tool_cli: FAILED"
  exit 1
fi
echo "tool_cli: ok"
