#!/usr/bin/env bash
# shellcheck disable=SC2016  # the $$ of class identifiers are literal text
# The command-line tool zorvan-settings: list, show (success, failures, unknown class), resize, cut and --help.
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

# Part 6.1: "intensity" through Deserialize bypasses SetIntensity's floor of 0.000001
run show '$$EffectVHS$$' 'intensity=0.5' 'intensity=0'
expect_lines "show VHS intensity=0 after 0.5: stored 0, not the setter's floor" 0 '    "intensity": 0.0' '  "isEmpty": false'

# Part 6.1: NeonLamp packs r, g, b with alpha 255 (0xFF030201) and clamps the intensity to 1
run show EffectNeonLamp 'r=1:g=2:b=3:intensity=5'
expect_lines "show NeonLamp: packed colour and clamped intensity" 0 '    "intensity": 1.0,' '    "color": 4278387201'

# Part 6.4: parsed values go through the checking setters
run show EffectGlitchSecurityCam 'randDist=3.01'
expect_lines "show GlitchSecurityCam randDist=3.01: SettingsException" 1 \
  '    "exception": "SettingsException",' \
  '    "description": "Invalid rand distortion value. Must be in the interval [0.0, 3.0]",'

# Part 5.2: sliders become the filter's factors; hue 540 is normalised to -180
run show '$$COLOR_BALANCE$$' 'saturation=100:gamma=-100:hue=540'
expect_lines "show COLOR_BALANCE: saturation 3.0, gamma 0.1, hue -180" 0 \
  '    "saturation": 3.0,' '    "hue": -180,' '    "gamma": 0.1,' '  "isEmpty": false'

# Part 3.1: the buffer is given in minutes and must be at least one
run show SettingsAnalyzerSpeechToText 'bufferDuration=0'
expect_lines "show SpeechToText bufferDuration=0: SettingsException, exit 1" 1 \
  '    "exception": "SettingsException",' \
  '    "description": "Buffer duration must be greater or equal 1 minute.",' '    "bufferDuration": 60000000,'
if [ "$err" != "error: SettingsException: Buffer duration must be greater or equal 1 minute." ]; then
  failed "show SpeechToText bufferDuration=0: one-line message on stderr"
fi

# Part 4.2: in an echo's option string "gain_out" replaces the working gain that becomes
# the in-gain, and the out-gain is always 1
run show SettingsAudioEcho 'gain_in=0.5:gain_out=0.25:delay=10:decay=0.5'
expect_lines "show SettingsAudioEcho: in-gain 0.25, out-gain 1" 0 '    "gainIn": 0.25,' '    "gainOut": 1.0,'

# resize: Part 2.1's LetterBox example (a 4:3 source into 1920x1080: bars of 240 left and right)
run resize '1920x1080:size_mode=Custom:custom_mode=LetterBox' --input 1440x1080
expect_lines "resize LetterBox: output, target margins 240 and 240, quad x at -0.75 and 0.75" 0 \
  '  "output": {' '    "width": 1920,' '    "height": 1080,' \
  '  "target": {' '    "left": 240,' '    "right": 240,' '    "top": 0,' '    "bottom": 0' \
  '    -0.75,' '    0.75,'
if [ "$(grep -c '^    "left": 240,$' <<<"$out")" -ne 1 ]; then
  failed "resize LetterBox: only the target has a margin of 240"
fi

# resize: Part 2.1's Crop example (a 960x720 source: 90 cut from top and bottom, v at 0.125 and 0.875)
run resize '1920x1080:size_mode=Custom:custom_mode=Crop' --input 960x720:1/1
expect_lines "resize Crop: source margins 90 top and bottom" 0 \
  '  "source": {' '    "top": 90,' '    "bottom": 90' '    0.125,' '    0.875,'

run resize '1x1:size_mode=9' --input 10x10
expect_lines "resize with a refused size mode: SettingsException, the option string" 1 \
  '    "exception": "SettingsException",' '    "description": "Bad size mode",' \
  '    "option": "1x1:size_mode=9"' '    "sizeMode": 0,'
if [ "$err" != "error: SettingsException: Bad size mode" ]; then
  failed "resize with a refused size mode: one-line message on stderr"
fi

run resize '1x1:size_mode=4294967295' --input 10x10
expect_lines "resize: a failure of the calculation names no option string" 1 \
  '    "exception": "std::logic_error",' "    \"description\": \"Unknown resize mode '4294967295'\"," \
  '    "option": null'

run resize '1x1' --input 10y10
if [ "$rc" -ne 2 ] || [ -n "$out" ] || [ -z "$err" ]; then
  failed "resize with an unreadable --input: exit 2, nothing on stdout"
fi

# cut: Part 2.2's example: deleted, kept, deleted; mapped both ways
run cut --interval 1000000,2000000,kept --source-duration 5000000 --map 1500000 --map 500000
expect_exact "cut: the optimised list, overall duration and mappings" 0 '{
  "id": "$$FILTER_CUT_CONTROLLER$$",
  "class": "SettingsFilterCutController",
  "intervals": [
    {
      "begin": 0,
      "end": 1000000,
      "deletedBefore": 0,
      "deleted": true
    },
    {
      "begin": 1000000,
      "end": 2000000,
      "deletedBefore": 1000000,
      "deleted": false
    },
    {
      "begin": 2000000,
      "end": 2592000000000,
      "deletedBefore": 1000000,
      "deleted": true
    }
  ],
  "sourceDuration": 5000000,
  "overallDuration": 1000000,
  "maps": [
    {
      "time": 1500000,
      "source2Result": 500000,
      "result2Source": -9223372036854775808
    },
    {
      "time": 500000,
      "source2Result": 0,
      "result2Source": 1500000
    }
  ]
}'

run cut --interval 0,3000000,kept --interval 1000000,2000000,deleted --map -5
expect_lines "cut: a later interval overrides; a negative time is looked up at 0 but not moved" 0 \
  '      "deletedBefore": 1000000,' '  "sourceDuration": 2592000000000,' '  "overallDuration": 2000000,' \
  '      "time": -5,' '      "source2Result": -5,'

run cut --map 2592000000000
expect_lines "cut: a time at the open end is not found" 1 \
  '    "exception": "std::logic_error",' \
  "    \"description\": \"Can't find interval in SettingsFilterCutController\"," '    "map": 2592000000000'
if [ "$err" != "error: std::logic_error: Can't find interval in SettingsFilterCutController" ]; then
  failed "cut at the open end: one-line message on stderr"
fi

run cut --interval 1,2,maybe
if [ "$rc" -ne 2 ] || [ -n "$out" ] || [ -z "$err" ]; then
  failed "cut with an unreadable --interval: exit 2, nothing on stdout"
fi

run --help
for word in list show docs resize cut; do
  if [ "$rc" -ne 0 ] || ! grep -qE "^ +$word " <<<"$out"; then
    failed "--help: mentions the subcommand $word"
  fi
done

if [ "$fail" -ne 0 ]; then
  echo "tool_cli: FAILED"
  exit 1
fi
echo "tool_cli: ok"
