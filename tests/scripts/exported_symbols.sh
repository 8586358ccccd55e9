#!/usr/bin/env bash
# The shared library exports exactly its own names: the public classes with their
# members, their virtual tables and type information, and the 220 CLASS_ID data symbols.
set -euo pipefail
lib="$1"
symbols=$(nm -D --defined-only -C "$lib" | cut -d' ' -f2-)
fail=0
# Here-strings rather than pipes: under pipefail an early-exiting grep -q would fail the pipe.
foreign=$(cut -d' ' -f2- <<<"$symbols" |
  grep -Ev '^(Zorvan::|typeinfo for Zorvan::|typeinfo name for Zorvan::|vtable for Zorvan::|VTT for Zorvan::|(non-)?virtual thunk to Zorvan::)' |
  grep -Ev '^(std::optional<[a-z ]+> Zorvan::Proc::Settings::GetOption<[a-z ]+>|bool Zorvan::Core::Utils::ToNumber<(int|unsigned int)>)\(' || true)
if [ -n "$foreign" ]; then
  echo "FAIL: symbols exported that are not the library's own:"; printf '%s\n' "$foreign" | head -20; fail=1
fi
if grep -q 'anonymous namespace' <<<"$symbols"; then
  echo "FAIL: implementation details (anonymous namespace) are exported"; fail=1
fi
if grep -q 'GetOptionRegex' <<<"$symbols"; then
  echo "FAIL: GetOptionRegex, private to the implementation, is exported"; fail=1
fi
class_ids=$(grep -Ec '^[BDR] Zorvan::Proc::[A-Za-z0-9]+::CLASS_ID\[abi:cxx11\]$' <<<"$symbols" || true)
if [ "$class_ids" -ne 220 ]; then
  echo "FAIL: expected 220 CLASS_ID data symbols, found $class_ids"; fail=1
fi
for needed in 'T Zorvan::Proc::Settings::GetOptionsMap' 'V typeinfo for Zorvan::Proc::SettingsException' \
              'V vtable for Zorvan::Proc::SettingsEffectBlurGaussian' 'T Zorvan::Proc::ThrowSettings' \
              'std::optional<bool> Zorvan::Proc::Settings::GetOption<bool>(' \
              'std::optional<unsigned long> Zorvan::Proc::Settings::GetOption<unsigned long>(' \
              'T bool Zorvan::Core::Utils::ToNumber<int>(' 'T bool Zorvan::Core::Utils::ToNumber<unsigned int>('; do
  if ! grep -qF "$needed" <<<"$symbols"; then
    echo "FAIL: '$needed' is not exported"; fail=1
  fi
done
[ "$fail" -eq 0 ] && echo "exported symbols: ok ($class_ids CLASS_ID symbols)"
exit "$fail"
