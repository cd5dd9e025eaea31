#!/usr/bin/env bash
# tidy.sh ROOT BUILD [FILES]: clang-tidy, as .clang-tidy says, over the files of src/ and demo/, two
# at a time. BUILD holds a compile_commands.json written for clang.
set -u
root=$1
build=$2
files=${3-"^$root/(src|demo)/.*\\.cpp\$"}
cd "$root" || exit 1
# Names what it finds by file and line; the progress of files without a finding is of no interest.
if ! report=$(run-clang-tidy-19 -quiet -j 2 -p "$build" "$files" 2>/dev/null); then
  grep -vE '^(\[ *[0-9]+/|[0-9]+ warnings|Suppressed|Use -header)|^$' <<<"$report"
  echo "Mend what is named above; the reasons behind the choice of checks stand in .clang-tidy."
  exit 1
fi
