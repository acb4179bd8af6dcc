#!/usr/bin/env bash
# Runs clang-tidy with the rules of .clang-tidy over src, or over the sources named.
set -euo pipefail
cd "$(dirname "$0")/.."
source ci/prepare.sh
need_packages clang-tidy
build check # the generated headers
mkdir -p build/tidy
# What gcc has read beforehand clang cannot read.
sed -E 's/ -Winvalid-pch| -include [^ ]*cmake_pch\.hxx//g' build/check/compile_commands.json >build/tidy/compile_commands.json
files=("$@")
[ ${#files[@]} -gt 0 ] || mapfile -t files < <(git ls-files 'src/*.cpp')
say "clang-tidy"
printf '%s\n' "${files[@]}" |
    xargs -P "$(nproc)" -n 4 clang-tidy -p build/tidy --quiet --warnings-as-errors='*' 2>/dev/null ||
    fail "clang-tidy has findings"
say "nothing found"
