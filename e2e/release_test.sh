#!/usr/bin/env bash
# The release as a user downloads it: both zips hold what they should and match
# SHA256SUMS, each holds a program for its processor, and the bar starts for
# the first time from a fresh folder where the 64-bit zip was unpacked.
# Arguments: the release folder (scripts/package writes it), e2e_tests.exe, a
# scratch folder, the version (from ui/version.h, as the build read it).
set -euo pipefail
release=$1 e2e_tests=$2 folder=$3 version=$4
root=$(cd "$(dirname "$0")/.." && pwd)
fail() { echo "release: $*" >&2; exit 1; }

# The processor a Windows program is built for, from its PE header: 14c for
# 32-bit x86, 8664 for x86-64.
machine() {
  local header
  header=$(od -An -tu4 -j60 -N4 "$1" | tr -d ' ')
  od -An -tx2 -j$((header + 4)) -N2 "$1" | tr -d ' '
}

cd "$release" 2>/dev/null || fail "no $release: run scripts/package first"
expected="HandOpen.ico README.txt Skin_Alba.bmp Skin_Dune.bmp Skin_Sage.bmp Skin_Slate.bmp orvane.exe"
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
for bits in 64 32; do
  zip=orvane-$version-win$bits.zip
  [ -f "$zip" ] || fail "$zip is missing"
  members=$(unzip -Z1 "$zip" | LC_ALL=C sort | xargs)
  [ "$members" = "$expected" ] || fail "$zip holds: $members"
  unzip -p "$zip" orvane.exe >"$scratch/orvane-$bits.exe"
done
sha256sum --check --quiet SHA256SUMS || fail "the zips do not match SHA256SUMS"
[ "$(machine "$scratch/orvane-64.exe")" = 8664 ] || fail "the 64-bit zip's orvane.exe is not an x86-64 program"
[ "$(machine "$scratch/orvane-32.exe")" = 014c ] || fail "the 32-bit zip's orvane.exe is not a 32-bit x86 program"

rm -rf "$folder"
mkdir -p "$folder"
unzip -q "orvane-$version-win64.zip" -d "$folder"
[ ! -e "$folder/Orvane.ini" ] || fail "the zip holds a settings file"
output=$(ORVANE_PROGRAM_FOLDER=$folder "$root/scripts/lib/wine-exec" "$e2e_tests" --gtest_filter='StartUp.FirstStart*') ||
  { echo "$output"; fail "the first start from the unzipped folder failed"; }
echo "$output"
grep -q '^\[  PASSED  \] 1 test' <<<"$output" || fail "the first-start case did not run"
