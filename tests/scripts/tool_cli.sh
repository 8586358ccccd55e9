#!/usr/bin/env bash
# shellcheck disable=SC2016  # the $$ of class identifiers are literal text
# zorvan-settings end to end: each subcommand's output (JSON compared flattened: lines unindented and
# joined), each failure with its exit code (1 for the library's, 2 for unreadable arguments) and message.
# Usage: tool_cli.sh <path-to-zorvan-settings>
set -euo pipefail
tool="$1"
fail=0
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT

# run ARGS...: the tool's stdout, stderr and exit code into $out, $err, $rc.
run() {
  rc=0
  out=$("$tool" "$@" 2>"$dir/err") || rc=$?
  err=$(<"$dir/err")
}

failed() {
  printf 'FAIL: %s\n  exit code: %s\n  stdout (first 30 lines):\n%s\n  stderr:\n%s\n' \
    "$1" "$rc" "$(head -n 30 <<<"$out")" "$err"
  fail=1
}

# flat [MEMBER]: stdout flattened, or only the top-level object or array MEMBER of it.
flat() {
  local range=""
  [ $# -eq 0 ] || range="/^  \"$1\": /,/^  []}]/"
  sed -n "${range}{s/^ *//;p}" <<<"$out" | tr -d '\n'
}

# expect NAME RC STDERR [FLAT]: exit code RC, stderr exactly STDERR and, when given, stdout
# flattened exactly FLAT.
expect() {
  if [ "$rc" -ne "$2" ] || [ "$err" != "$3" ] || { [ $# -ge 4 ] && [ "$(flat)" != "$4" ]; }; then
    failed "$1"
  fi
}

# expect_member NAME MEMBER FLAT: the member MEMBER of stdout, flattened, is exactly FLAT.
expect_member() {
  if [ "$(flat "$2")" != "$3" ]; then
    failed "$1 (member $2: $(flat "$2"))"
  fi
}

run show SettingsFilterSpeedUp 'speed=3' 'speed=1'
expect "show by class name: option strings in turn, then IsEmpty" 0 "" \
  '{"id": "$$FILTER_SPEED$$","class": "SettingsFilterSpeedUp","fields": {"speedFactor": 1.0},"isEmpty": true}'

run show '$$FILTER_SPEED$$' 'speed=3' 'speed=-1' 'speed=2'
expect "show: a failure stops the option strings and shows the record as it was left" 1 \
  'error: SettingsException: Invalid speed' \
  '{"id": "$$FILTER_SPEED$$","class": "SettingsFilterSpeedUp","error": {"exception": "SettingsException",'\
'"description": "Invalid speed","option": "speed=-1"},"fields": {"speedFactor": 3.0}}'

run show NoSuchClass
expect "show: an unknown class" 2 'error: unknown class identifier or class name: NoSuchClass' ''

run show VideoDecoder 'frameType=allowgpu' 'frameSize=0x720'
expect "show: a decoder allowed GPU frames, then a frame size with a zero side" 1 \
  'error: std::invalid_argument: Invalid frame size'
expect_member "show: the decoder keeps its frame type and no size" fields \
  '"fields": {"frameType": 1,"minColorDepth": 10,"outputResolution": null,"colorSpaceOverride": {'\
'"matrix": 2,"primaries": 2,"transfer": 2}}'

run show SettingsAudioEqualizer 'freq0=100:gain0=2.5' 'intensity=0.5:freq0=-1:gain0=1'
expect "show: an equalizer band with a negative frequency" 1 'error: SettingsException: Invalid Echo'
expect_member "show: the band list is kept; the intensity read before it stays" fields \
  '"fields": {"multiband": [{"frequency": 100,"gain": 2.5}],"intensity": 0.5}'

run show SettingsEffectColorBlender 'blendMode=ScReEn:alpha=255:intensity=0.2'
expect_member "show: a blend mode in any letter case; alpha wins over intensity" fields \
  '"fields": {"x": 0,"y": 0,"intensity": 1.0,"blendMode": 7,"baseColor": null},'

run show SettingsEffectColorBlender 'blendMode=screeen'
expect "show: an unknown blend mode" 1 'error: EffectException: Unknown blend mode: screeen'

run show SettingsEffectPad 'r=255:left=8' 'gapx=4'
expect_member "show: a pad string without colour keys makes the colour opaque black again" fields \
  '"fields": {"mode": 0,"crop": {"bottom": 0,"left": 8,"right": 0,"top": 0},"color": 4278190080,"gapX": 4,"gapY": 0},'

run show SettingsEffectBorder ''
expect "show: a border has no option string, not even an empty one" 1 \
  'error: SettingsException: Not implemented fill from string for settings CLASS_ID = EFFECT_BORDER'

run show SettingsTransitionKenBurns 'zoom=20' 'fade=-1'
expect "show: a Ken Burns fade below zero" 1 'error: std::logic_error: Incorrect value passed'
expect_member "show: the zoom read before it stays" fields \
  '"fields": {"direction": [-1.0,-1.0,1.0,-1.0,1.0,1.0,-1.0,1.0],"fade": 0.0,"zoom": 0.20000000298023224}'

run show SettingsTransitionOrigamiPleats 'n=3:direction=2'
expect "show: a pleats direction that only its getter refuses" 0 "" \
  '{"id": "$$TransitionOrigamiPleats$$","class": "SettingsTransitionOrigamiPleats","fields": {"num": 3,"dir": {'\
'"error": "Incorrect value passed, use enumerated value"}},"isEmpty": false}'

run show SettingsTransitionWithEffects 'transition="$$TransitionZoom$$=type=2":effect1="EffectGlitchMpeg=intensity=0.5"'
expect_member "show: a composition's transition and effects as nested records" fields \
  '"fields": {"name": "","effects": [{"fields": {"intensity": 0.5,"privateParameters": [false,false,false]},'\
'"id": "EffectGlitchMpeg"}],"transition": {"fields": {"type": 2},"id": "$$TransitionZoom$$"},'\
'"transitionFilling": 1.0,"powerScale": 1.0,"intensityMultiplier": 1.0},'

run list
expect "list" 0 ""
if [ "$(wc -l <<<"$out")" -ne 220 ] ||
  ! grep -qxF 'EFFECT_SMARTBLUR                        SettingsEffectSmartBlur                    -                                     -' <<<"$out"; then
  failed "list: one aligned line a class: identifier, class, base, own operations"
fi

run list --json
expect "list --json" 0 ""
if [ "$(grep -c '^    "id": ' <<<"$out")" -ne 220 ] ||
  [ "$(grep -A9 -xF '    "id": "$$EffectBlurGaussian$$",' <<<"$out" | sed 's/^ *//' | tr -d '\n')" != \
    '"id": "$$EffectBlurGaussian$$","class": "SettingsEffectBlurGaussian","base": "Settings","group": "Effects",'\
'"own": "D","fields": ["scale","fast"]},' ]; then
  failed "list --json: 220 objects of id, class, base, group, own, field names"
fi

run docs
expect "docs on standard output" 0 ""
"$tool" docs --output "$dir/catalogue.md"
if [ "$(<"$dir/catalogue.md")" != "$out" ] || [ "$(head -n 1 <<<"$out")" != "# Settings catalogue" ]; then
  failed "docs: the same reference on standard output and in --output"
fi
run docs --output "$dir/missing/catalogue.md"
expect "docs: a file that cannot be written" 1 "error: cannot write $dir/missing/catalogue.md" ''

# A 4:3 source letter-boxed into 1920x1080: bars of 240 at the sides, clip x at -0.75 and 0.75.
run resize '1920x1080:size_mode=Custom:custom_mode=LetterBox' --input 1440x1080
expect "resize" 0 ""
expect_member "resize" output '"output": {"width": 1920,"height": 1080,"parNumerator": 1,"parDenominator": 1},'
expect_member "resize" source '"source": {"left": 0,"right": 0,"top": 0,"bottom": 0},'
expect_member "resize" target '"target": {"left": 240,"right": 240,"top": 0,"bottom": 0},'
expect_member "resize" coordBuffer '"coordBuffer": [0.0,0.0,-0.75,-1.0,1.0,0.0,0.75,-1.0,1.0,1.0,0.75,1.0,0.0,1.0,-0.75,1.0]'

run resize '1x1:size_mode=9' --input 10x10
expect "resize: a refused option string" 1 'error: SettingsException: Bad size mode'
expect_member "resize: a refused option string" error \
  '"error": {"exception": "SettingsException","description": "Bad size mode","option": "1x1:size_mode=9"},'

run resize '1x1:size_mode=4294967295' --input 10x10
expect "resize: a failed calculation names no option string" 1 \
  "error: std::logic_error: Unknown resize mode '4294967295'"
expect_member "resize: a failed calculation names no option string" error \
  '"error": {"exception": "std::logic_error","description": "Unknown resize mode '\''4294967295'\''","option": null},'

run resize '1x1' --input 10y10
expect "resize: an unreadable --input" 2 \
  'error: --input must be WxH or WxH:NUM/DEN with whole unsigned 32-bit numbers: 10y10' ''

# Deleted, kept, deleted: a second of the five remains; mapped both ways.
run cut --interval 1000000,2000000,kept --source-duration 5000000 --map 1500000 --map 500000
expect "cut" 0 "" \
  '{"id": "$$FILTER_CUT_CONTROLLER$$","class": "SettingsFilterCutController","intervals": ['\
'{"begin": 0,"end": 1000000,"deletedBefore": 0,"deleted": true},'\
'{"begin": 1000000,"end": 2000000,"deletedBefore": 1000000,"deleted": false},'\
'{"begin": 2000000,"end": 2592000000000,"deletedBefore": 1000000,"deleted": true}],'\
'"sourceDuration": 5000000,"overallDuration": 1000000,"maps": ['\
'{"time": 1500000,"source2Result": 500000,"result2Source": -9223372036854775808},'\
'{"time": 500000,"source2Result": 0,"result2Source": 1500000}]}'

run cut
expect "cut: the default list" 0 "" '{"id": "$$FILTER_CUT_CONTROLLER$$","class": "SettingsFilterCutController",'\
'"intervals": [{"begin": 0,"end": 2592000000000,"deletedBefore": -9223372036854775808,"deleted": true}],'\
'"sourceDuration": 2592000000000,"overallDuration": 2592000000000,"maps": []}'

run cut --map 2592000000000
expect "cut: a time at the open end is not found" 1 \
  "error: std::logic_error: Can't find interval in SettingsFilterCutController"
expect_member "cut: a time at the open end is not found" error \
  '"error": {"exception": "std::logic_error","description": "Can'\''t find interval in SettingsFilterCutController",'\
'"map": 2592000000000},'

run cut --interval 1,2,maybe
expect "cut: an unreadable --interval" 2 \
  'error: --interval must be BEGIN,END,deleted or BEGIN,END,kept (microseconds): 1,2,maybe' ''

run --help
expect "--help" 0 ""
[ "$(grep -cE '^ +(list|show|docs|resize|cut|trace) ' <<<"$out")" -eq 6 ] || failed "--help: names the six subcommands"

[ "$fail" -eq 0 ] && echo "tool_cli: ok"
exit "$fail"
