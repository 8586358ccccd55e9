#!/usr/bin/env bash
# The trace subcommand of zorvan-settings: a speech-to-text result (Part 3.1) read from JSON and
# printed by Result::Trace byte for byte; malformed files exit 2 with "error: FILE: PLACE: WHAT".
# Usage: trace_cli.sh <path-to-zorvan-settings>
# Outputs are compared as files with cmp, since $(...) would strip the trailing line feeds.
set -euo pipefail
tool="$1"
fail=0
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT
rc=0

# run FILE: the tool's stdout and stderr into $dir/out and $dir/err, its exit code into $rc.
run() {
  rc=0
  "$tool" trace "$1" >"$dir/out" 2>"$dir/err" || rc=$?
}

failed() {
  echo "FAIL: $1"
  printf '  exit code: %s\n  stdout:\n' "$rc"
  sed -n l "$dir/out" | head -n 30
  printf '  stderr:\n'
  head -n 10 "$dir/err"
  fail=1
}

# expect_output NAME EXPECTED-FILE: exit code 0, stdout byte for byte the file, stderr empty.
expect_output() {
  if [ "$rc" -ne 0 ] || ! cmp -s "$dir/out" "$2" || [ -s "$dir/err" ]; then
    failed "$1 (expected exit 0 and stdout:)"
    sed -n l "$2"
  fi
}

# expect_error NAME LINE: exit code 2, stdout empty, stderr exactly LINE and a line feed.
expect_error() {
  printf '%s\n' "$2" >"$dir/expected_err"
  if [ "$rc" -ne 2 ] || [ -s "$dir/out" ] || ! cmp -s "$dir/err" "$dir/expected_err"; then
    failed "$1 (expected exit 2, no stdout and stderr: $2)"
  fi
}

# expect_error_prefix NAME PREFIX: exit code 2, stdout empty, stderr one line beginning with PREFIX.
expect_error_prefix() {
  if [ "$rc" -ne 2 ] || [ -s "$dir/out" ] || [ "$(wc -l <"$dir/err")" -ne 1 ] ||
    [ "$(head -c "${#2}" "$dir/err")" != "$2" ]; then
    failed "$1 (expected exit 2, no stdout and stderr beginning with: $2)"
  fi
}

# A nested result: new speaker, two segments with words, negative and extreme times, no error.
cat >"$dir/nested.json" <<'JSON'
{
  "analyzedLanguage": "en",
  "analyzedLanguageName": "English",
  "subtitles": [
    {
      "t0": 0, "t1": 3000000, "text": "Hello world", "newSpeaker": true,
      "segments": [
        {"t0": 0, "t1": 1500000, "text": "Hello",
         "words": [{"t0": 0, "t1": 700000, "text": "Hel"}, {"t0": 700000, "t1": 1500000, "text": "lo"}]},
        {"t0": 1500000, "t1": 3000000, "text": "world", "words": [{"t0": 1500000, "t1": 3000000, "text": "world"}]}
      ]
    },
    {"t0": -1500, "t1": 2000999, "text": "again", "newSpeaker": false,
     "segments": [{"t0": -9223372036854775808, "t1": 9223372036854775807, "text": "edge", "words": []}]},
    {"t0": 5000000, "t1": 6000000, "text": "bye", "segments": []}
  ]
}
JSON
printf '%s\n' \
  "AnalyzedLanguage: en 'English'" \
  "(New speaker), T: 'Hello world', t0: 0 ms., t1: 3000 ms." \
  $'\t'"T: 'Hello', t0: 0 ms., t1: 1500 ms." \
  $'\t\t'"T: 'Hel', t0: 0 ms., t1: 700 ms." \
  $'\t\t'"T: 'lo', t0: 700 ms., t1: 1500 ms." \
  $'\t'"T: 'world', t0: 1500 ms., t1: 3000 ms." \
  $'\t\t'"T: 'world', t0: 1500 ms., t1: 3000 ms." \
  "T: 'again', t0: -1 ms., t1: 2000 ms." \
  $'\t'"T: 'edge', t0: -9223372036854775 ms., t1: 9223372036854775 ms." \
  "T: 'bye', t0: 5000 ms., t1: 6000 ms." >"$dir/nested.expected"
run "$dir/nested.json"
expect_output "nested result printed exactly" "$dir/nested.expected"

# An error line (a blank before its line feed) followed by a subtitle.
cat >"$dir/error.json" <<'JSON'
{"analyzedLanguage": "de", "analyzedLanguageName": "German", "error": "model not found",
 "subtitles": [{"t0": 1000, "t1": 2000, "text": "Hallo", "segments": []}]}
JSON
printf '%s\n' "AnalyzedLanguage: de 'German'" "Error: 'model not found' " "T: 'Hallo', t0: 1 ms., t1: 2 ms." \
  >"$dir/error.expected"
run "$dir/error.json"
expect_output "error line then the subtitles" "$dir/error.expected"

# No subtitles and an empty error: only the first line.
printf '%s' '{"analyzedLanguage": "", "analyzedLanguageName": "", "error": "", "subtitles": []}' >"$dir/empty.json"
printf '%s\n' "AnalyzedLanguage:  ''" >"$dir/empty.expected"
run "$dir/empty.json"
expect_output "no subtitles, empty error: only the first line" "$dir/empty.expected"

# A JSON syntax error: the parse position and nlohmann's text.
printf '%s\n' '{"analyzedLanguage": "en",' '  "subtitles": [}' >"$dir/syntax.json"
run "$dir/syntax.json"
expect_error_prefix "syntax error names the file and the position" "error: $dir/syntax.json: line 2, column 17: "

# A wrongly typed member: its JSON pointer.
cat >"$dir/typed.json" <<'JSON'
{"analyzedLanguage": "en", "analyzedLanguageName": "English",
 "subtitles": [{"t0": 0, "t1": 1, "text": "a", "segments": [
   {"t0": 0, "t1": 1, "text": "b", "words": []},
   {"t0": 0, "t1": "1000", "text": "c", "words": []}]}]}
JSON
run "$dir/typed.json"
expect_error "wrongly typed member names its JSON pointer" \
  "error: $dir/typed.json: /subtitles/0/segments/1/t1: must be an integer"

# A fractional time, a boolean of the wrong type, a missing member, a root that is no object.
printf '%s' '{"analyzedLanguage": "en", "analyzedLanguageName": "English", "subtitles": [{"t0": 1.5, "t1": 2, "text": "a", "segments": []}]}' >"$dir/fraction.json"
run "$dir/fraction.json"
expect_error "fractional time" "error: $dir/fraction.json: /subtitles/0/t0: must be an integer"
printf '%s' '{"analyzedLanguage": "en", "analyzedLanguageName": "English", "subtitles": [{"t0": 1, "t1": 2, "text": "a", "newSpeaker": 1, "segments": []}]}' >"$dir/speaker.json"
run "$dir/speaker.json"
expect_error "newSpeaker not a boolean" "error: $dir/speaker.json: /subtitles/0/newSpeaker: must be a boolean"
printf '%s' '{"analyzedLanguage": "en", "subtitles": []}' >"$dir/missing.json"
run "$dir/missing.json"
expect_error "missing member" "error: $dir/missing.json: /analyzedLanguageName: missing member"
printf '%s' '{"analyzedLanguage": "en", "analyzedLanguageName": "English", "subtitles": [{"t0": 18446744073709551615, "t1": 2, "text": "a", "segments": []}]}' >"$dir/big.json"
run "$dir/big.json"
expect_error "time beyond 64 bits signed" "error: $dir/big.json: /subtitles/0/t0: must be a signed 64-bit integer"
printf '%s' '["en"]' >"$dir/array.json"
run "$dir/array.json"
expect_error "root not an object" "error: $dir/array.json: (root): must be an object"

# A missing file.
run "$dir/does-not-exist.json"
expect_error "missing file" "error: $dir/does-not-exist.json: cannot be read: No such file or directory"

[ "$fail" -eq 0 ] && echo "trace cli: ok"
exit "$fail"
