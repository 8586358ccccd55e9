#!/usr/bin/env bash
# shellcheck disable=SC2016  # the $$ of class identifiers are literal text
# zorvan-settings describe and validate end to end: the rows people read, the JSON programs read,
# the schema (checked against the draft 2020-12 meta-schema where python3-jsonschema is installed),
# and validate's verdict on every kind of key with its exit code.
# Usage: describe_cli.sh <path-to-zorvan-settings>
set -euo pipefail
tool="$1"
fail=0
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT

run() {
  rc=0
  out=$("$tool" "$@" 2>"$dir/err") || rc=$?
  err=$(<"$dir/err")
}

# expect NAME RC STDERR [STDOUT]: exit code, stderr and, when given, stdout exactly.
expect() {
  if [ "$rc" -ne "$2" ] || [ "$err" != "$3" ] || { [ $# -ge 4 ] && [ "$out" != "$4" ]; }; then
    printf 'FAIL: %s\n  exit code: %s\n  stdout:\n%s\n  stderr:\n%s\n' "$1" "$rc" "$out" "$err"
    fail=1
  fi
}

# expect_jq NAME FILTER VALUE: jq -c FILTER of stdout is VALUE.
expect_jq() {
  local got
  got=$(jq -c "$2" <<<"$out")
  if [ "$got" != "$3" ]; then
    printf 'FAIL: %s\n  %s gives %s, expected %s\n' "$1" "$2" "$got" "$3"
    fail=1
  fi
}

run describe SettingsEffectBlurGaussian
expect "describe: one aligned row per key, then the group" 0 "" \
'SettingsEffectBlurGaussian ($$EffectBlurGaussian$$)
  Map form: numbers unquoted, text in double quotes.

  Keys, in the order Deserialize applies them:
  KEY    TYPE                        RANGE  DEFAULT  FIELDS  OUTSIDE THE RANGE
  scale  double                      any    0.0      scale   -
  fast   boolean (non-zero is true)  any    false    fast    -

  first wins: scale, fast; given both, only the scale is read and the flag keeps its value'

run describe EffectNeonLamp --json
expect "describe --json by identifier" 0 ""
expect_jq "describe --json: a typed key's bound and its text" '.keys[0] | [.key, .maximum, .outside, .failure.text]' \
  '["r",255,"throws","The '"'"'{value}'"'"' value of the '"'"'{key}'"'"' option is not a number"]'
expect_jq "describe --json: the colour group" '.groups[0] | [.kind, .keys, .field, .alpha]' \
  '["all or nothing",["r","g","b"],"color",255]'

run describe --all --json
expect "describe --all --json" 0 ""
expect_jq "describe --all: every class, by kind" '[length, (map(.kind) | unique)]' \
  '[220,["base fails","ignored","keys","not described yet"]]'

run describe --schema
expect "describe --schema: every class under \$defs" 0 ""
printf '%s' "$out" >"$dir/schema.json"
expect_jq "describe --schema: a base-fails class admits nothing" '."$defs".SettingsEffectBlur.not' '{}'
if python3 -c 'import jsonschema' 2>/dev/null; then
  python3 - "$dir/schema.json" <<'PY' || fail=1
import json, sys, jsonschema
schema = json.load(open(sys.argv[1]))
jsonschema.Draft202012Validator.check_schema(schema)
lamp = dict(schema["$defs"]["SettingsEffectNeonLamp"], **{"$schema": schema["$schema"]})
jsonschema.validate({"r": 1, "g": 2, "b": 3, "intensity": 0.5}, lamp)
for bad in ({"r": 256, "g": 0, "b": 0}, {"r": 1}):
    if jsonschema.Draft202012Validator(lamp).is_valid(bad):
        sys.exit(f"FAIL: the neon lamp schema accepts {bad}")
PY
else
  echo "note: python3-jsonschema not installed, the schema is not checked against the meta-schema"
fi

run validate SettingsEffectBlurGaussian 'sacle=2.5'
expect "validate: an unknown key with the nearest known one" 1 "" \
'SettingsEffectBlurGaussian: not every key applies
  sacle=2.5  unknown  did you mean '"'"'scale'"'"'?'

run validate SettingsEffectNeonLamp 'r=1:g=2:b=3:intensity=5:r=9:x=1:R=256' --json
expect "validate --json: never stops at the first problem" 1 ""
expect_jq "validate --json: each occurrence judged" '[.outcomes[] | [.key, .status, (.result // .suggestion // .description)]]' \
  '[["r","applied",{"color":4278387201}],["g","applied",{"color":4278387201}],["b","applied",{"color":4278387201}],["intensity","clamped",{"intensity":1}],["r","repeated",null],["x","unknown",null],["R","repeated",null]]'

run validate SettingsEffectNeonLamp 'g=300:intensity=0.5'
expect "validate: out of range with the record's text, an incomplete colour" 1 "" \
'SettingsEffectNeonLamp: not every key applies
  g=300          incomplete  read only together with r, b
  intensity=0.5  applied     intensity = 0.5'

run validate SettingsEffectNeonLamp 'r=1:g=300:b=3' --json
expect "validate --json: a channel beyond its byte" 1 ""
expect_jq "validate --json: the text the record raises" '.outcomes[1] | [.status, .exception, .description]' \
  '["out of range","std::invalid_argument","The '"'"'300'"'"' value of the '"'"'g'"'"' option is not a number"]'

run validate SettingsEffectBlurGaussian 'fast=1:scale=2:scale=3'
expect "validate: a key the first of its group excludes, a repeated key" 1 "" \
'SettingsEffectBlurGaussian: not every key applies
  fast=1   excluded  not read when '"'"'scale'"'"' is given
  scale=2  applied   scale = 2.0
  scale=3  repeated  only the first occurrence counts'

run validate SettingsEffectRetroArtefacts 'shake=1:grain=abc:intensity=-'
expect "validate: unquoted text and an unreadable number" 1 "" \
'SettingsEffectRetroArtefacts: not every key applies
  shake=1      applied     shake = true
  grain=abc    unreadable  unquoted values hold only digits, points, commas and hyphens here
  intensity=-  refused     std::invalid_argument: stof'

run validate SettingsEffectMotionBlur 'scale=2'
expect "validate: everything applies" 0 "" \
'SettingsEffectMotionBlur: every key applies
  scale=2  applied  scale = 2.0'

run validate SettingsEffectBlur 'a=1'
expect "validate: a class without an option string" 1 "" \
'SettingsEffectBlur: not every key applies
  a=1  refused  SettingsException: Not implemented fill from string for settings CLASS_ID = EFFECT_BLUR'

run validate SettingsResizer '1920x1080:custom_mode=LetterBox:size_mode=9:scale=0' --json
expect "validate --json: the resizer's head and keys read only beside another" 1 ""
expect_jq "validate --json: head, not read, out of range" '[.outcomes[] | [.key, .value, .status, (.detail // .description)]]' \
  '[["","1920x1080","applied","the size head"],["custom_mode","LetterBox","not read","read only with size_mode=Custom"],'\
'["size_mode","9","out of range","Bad size mode"],["scale","0","out of range","Custom scale have to be positive"]]'

run validate NoSuchClass 'a=1'
expect "validate: an unknown class" 2 'error: unknown class identifier or class name: NoSuchClass' ''
run describe
expect "describe without a class" 2 'error: describe needs a class, --all or --schema' ''

exit "$fail"
