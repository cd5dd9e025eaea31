#!/usr/bin/env bash
# Unpacks the real catalog documents for the tests and lists their records, or removes all that:
#   real-data.sh unpack|remove PACKED UNPACKED
# The environment variable QUILLMERE_REAL_DATA takes the place of PACKED.
set -euo pipefail

step=$1
packed=${QUILLMERE_REAL_DATA:-$2}
unpacked=$3

rm -rf "$unpacked"
[ "$step" = unpack ] || exit 0

for name in formula cask; do
  if [ ! -r "$packed/$name.json.xz" ]; then
    echo "There is no $packed/$name.json.xz; the test of the real documents will skip."
    exit 0
  fi
done
mkdir -p "$unpacked"
for name in formula cask; do
  xz --decompress --stdout "$packed/$name.json.xz" > "$unpacked/$name.json"
done
python3 "$(dirname "$0")/list_records.py" "$unpacked"
