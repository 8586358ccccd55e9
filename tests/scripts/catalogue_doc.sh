#!/usr/bin/env bash
# The committed docs/catalogue.md is what the tool generates now.
# Usage: catalogue_doc.sh <path-to-zorvan-settings> <path-to-docs/catalogue.md>
set -euo pipefail
tool="$1"
committed="$2"
generated=$(mktemp)
trap 'rm -f "$generated"' EXIT
"$tool" docs --output "$generated"
if ! diff -u "$committed" "$generated"; then
  echo "docs/catalogue.md is out of date: run 'zorvan-settings docs --output docs/catalogue.md'" \
    "(e.g. ./build/tools/zorvan-settings docs --output docs/catalogue.md) and commit it"
  exit 1
fi
echo "catalogue_doc: docs/catalogue.md is up to date"
