#!/usr/bin/env bash
# The frame subcommand of zorvan-settings: both frame sizes of a transform as JSON, and
# unreadable frames or matrices exiting 2 with the place named on standard error.
# Usage: frame_cli.sh <path-to-zorvan-settings>
set -euo pipefail
tool="$1"
fail=0
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT

# expect NAME EXIT-CODE STDOUT-WITHOUT-BLANKS STDERR ARGUMENTS...
expect() {
  local name="$1" code="$2" out="$3" err="$4" rc=0 got_out got_err
  shift 4
  "$tool" frame "$@" >"$dir/out" 2>"$dir/err" || rc=$?
  got_out=$(tr -d ' \n' <"$dir/out")
  got_err=$(cat "$dir/err")
  if [ "$rc" -ne "$code" ] || [ "$got_out" != "$out" ] || [ "$got_err" != "$err" ]; then
    printf 'FAIL: %s\n  exit %s, stdout: %s\n  stderr: %s\n' "$name" "$rc" "$got_out" "$got_err"
    fail=1
  fi
}

frame() { printf '{"width":%s,"height":%s,"parNumerator":%s,"parDenominator":%s}' "$@"; }

# x doubled: the transformed frame keeps the width and doubles the height (2162.5 cut to 2162),
# --even clears the lowest bits; the bounding frame rounds its sides up to even instead.
expect "x scaled by 2, even" 0 \
  "{\"input\":$(frame 1921 1081 4 3),\"matrix\":[2.0,0.0,0.0,0.0,1.0,0.0,0.0,0.0,1.0],\"even\":true,\"transformFrameInfo\":$(frame 1920 2162 4 3),\"boundFrameInfo\":$(frame 3842 1082 4 3)}" \
  "" 1921x1081:4/3 --matrix 2,0,0,0,1,0,0,0,1 --even
# A quarter turn keeps the transformed size and swaps the bounding one.
expect "rotation, negative values after --matrix=" 0 \
  "{\"input\":$(frame 1920 1080 1 1),\"matrix\":[0.0,1.0,0.0,-1.0,0.0,0.0,0.5,0.0,1.0],\"even\":false,\"transformFrameInfo\":$(frame 1920 1080 1 1),\"boundFrameInfo\":$(frame 1080 1920 1 1)}" \
  "" 1920x1080 --matrix=0,1,0,-1,0,0,0.5,0,1

expect "matrix value not a number" 2 "" "error: --matrix: value 4 'abc' is not a number" 1920x1080 --matrix 1,0,0,0,abc,0,0,0,1
expect "matrix value not finite" 2 "" "error: --matrix: value 8 'nan' is not a finite number" 1920x1080 --matrix 1,0,0,0,1,0,0,0,nan
expect "matrix of 8 values" 2 "" "error: --matrix: 8 values given, 9 needed (m0,...,m8)" 1920x1080 --matrix 1,0,0,0,1,0,0,0
expect "height not a number" 2 "" "error: FRAME: height '10x80' is not a whole unsigned 32-bit number" 1920x10x80 --matrix 1,0,0,0,1,0,0,0,1
expect "pixel aspect without a slash" 2 "" "error: FRAME: '1920x1080:4' is not WxH or WxH:NUM/DEN" 1920x1080:4 --matrix 1,0,0,0,1,0,0,0,1
expect "negative denominator" 2 "" "error: FRAME: pixel-aspect denominator '-3' is not a whole unsigned 32-bit number" 1920x1080:4/-3 --matrix 1,0,0,0,1,0,0,0,1

[ "$fail" -eq 0 ] && echo "frame cli: ok"
exit "$fail"
