#!/usr/bin/env bash
# Unpacks the real prefix for its tests, or removes it:
#   real-prefix.sh unpack|remove PACKED UNPACKED
# The environment variable QUILLMERE_REAL_DATA takes the place of PACKED.
set -euo pipefail

step=$1
packed=${QUILLMERE_REAL_DATA:-$2}/prefix.tar.xz
unpacked=$3

rm -rf "$unpacked"
[ "$step" = unpack ] || exit 0

if [ ! -r "$packed" ]; then
  echo "There is no $packed; the test of the real prefix will skip."
  exit 0
fi
mkdir -p "$unpacked"
tar --extract --xz --file "$packed" --directory "$unpacked"
