#!/usr/bin/env bash
# zorvan-settings trace: a speech-to-text result read from JSON and printed by Result::Trace byte for
# byte (compared as files: $(...) would strip line feeds); a file it cannot read exits 2 with
# "error: FILE: PLACE: WHAT" and prints nothing else. Usage: trace_cli.sh <path-to-zorvan-settings>
set -euo pipefail
tool="$1"
fail=0
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT

# check NAME FILE RC EXPECTED-STDOUT-FILE EXPECTED-STDERR-LINE: trace FILE, its exit code, stdout
# byte for byte and stderr (a line, or nothing when EXPECTED-STDERR-LINE is empty).
check() {
  local rc=0
  "$tool" trace "$2" >"$dir/out" 2>"$dir/err" || rc=$?
  if [ -n "$5" ]; then printf '%s\n' "$5" >"$dir/expected_err"; else : >"$dir/expected_err"; fi
  if [ "$rc" -ne "$3" ] || ! cmp -s "$dir/out" "$4" || ! cmp -s "$dir/err" "$dir/expected_err"; then
    echo "FAIL: $1 (exit code $rc)"
    sed -n l "$dir/out" "$dir/err" | head -n 30
    fail=1
  fi
}

# Other members ignored, newSpeaker optional, an error line with its blank before the line feed,
# nested segments and words, times truncated towards zero, the extremes of 64 bits.
cat >"$dir/result.json" <<'JSON'
{"analyzedLanguage": "en", "analyzedLanguageName": "English", "error": "model not found", "other": 1,
 "subtitles": [
  {"t0": 0, "t1": 3000000, "text": "Hello world", "newSpeaker": true, "segments": [
    {"t0": 0, "t1": 1500000, "text": "Hello",
     "words": [{"t0": 0, "t1": 700000, "text": "Hel"}, {"t0": 700000, "t1": 1500000, "text": "lo"}]},
    {"t0": 1500000, "t1": 3000000, "text": "world", "words": []}]},
  {"t0": -1500, "t1": 2000999, "text": "again", "newSpeaker": false,
   "segments": [{"t0": -9223372036854775808, "t1": 9223372036854775807, "text": "edge", "words": []}]},
  {"t0": 5000000, "t1": 6000000, "text": "bye", "segments": []}]}
JSON
printf '%s\n' \
  "AnalyzedLanguage: en 'English'" \
  "Error: 'model not found' " \
  "(New speaker), T: 'Hello world', t0: 0 ms., t1: 3000 ms." \
  $'\t'"T: 'Hello', t0: 0 ms., t1: 1500 ms." \
  $'\t\t'"T: 'Hel', t0: 0 ms., t1: 700 ms." \
  $'\t\t'"T: 'lo', t0: 700 ms., t1: 1500 ms." \
  $'\t'"T: 'world', t0: 1500 ms., t1: 3000 ms." \
  "T: 'again', t0: -1 ms., t1: 2000 ms." \
  $'\t'"T: 'edge', t0: -9223372036854775 ms., t1: 9223372036854775 ms." \
  "T: 'bye', t0: 5000 ms., t1: 6000 ms." >"$dir/result.expected"
check "a nested result" "$dir/result.json" 0 "$dir/result.expected" ""

printf '%s' '{"analyzedLanguage": "", "analyzedLanguageName": "", "subtitles": []}' >"$dir/empty.json"
printf '%s\n' "AnalyzedLanguage:  ''" >"$dir/empty.expected"
check "without an error member no error line" "$dir/empty.json" 0 "$dir/empty.expected" ""

# Malformed files: the content, then the place and what is wrong.
: >"$dir/nothing"
ok='"analyzedLanguage": "en", "analyzedLanguageName": "English"'
sub='"t0": 0, "t1": 1, "text": "a"'
while IFS='|' read -r json place what; do
  printf '%s\n' "$json" >"$dir/bad.json"
  check "$place: $what" "$dir/bad.json" 2 "$dir/nothing" "error: $dir/bad.json: $place: $what"
done <<EOF
{$ok, "subtitles": [}|line 1, column 77|syntax error while parsing value - unexpected '}'; expected '[', '{', or a literal
["en"]|(root)|must be an object
{"analyzedLanguage": "en", "subtitles": []}|/analyzedLanguageName|missing member
{$ok, "error": 1, "subtitles": []}|/error|must be a string
{$ok, "subtitles": {}}|/subtitles|must be an array
{$ok, "subtitles": [1]}|/subtitles/0|must be an object
{$ok, "subtitles": [{$sub, "newSpeaker": 1, "segments": []}]}|/subtitles/0/newSpeaker|must be a boolean
{$ok, "subtitles": [{$sub, "segments": [{$sub, "words": [{$sub}, {"t0": 0, "t1": 1.5, "text": "c"}]}]}]}|/subtitles/0/segments/0/words/1/t1|must be an integer
{$ok, "subtitles": [{"t0": 9223372036854775808, "t1": 1, "text": "a", "segments": []}]}|/subtitles/0/t0|must be a signed 64-bit integer
{$ok, "subtitles": [{$sub}]}|/subtitles/0/segments|missing member
EOF

check "a missing file" "$dir/none.json" 2 "$dir/nothing" "error: $dir/none.json: cannot be read: No such file or directory"
check "a directory" "$dir" 2 "$dir/nothing" "error: $dir: cannot be read: Is a directory"

[ "$fail" -eq 0 ] && echo "trace_cli: ok"
exit "$fail"
