#!/usr/bin/env bash
# Runs clang-tidy with the rules of .clang-tidy over src, or over the sources named.
set -euo pipefail
cd "$(dirname "$0")/.."
source ci/prepare.sh
need_packages clang-tidy
[ -f build/check/compile_commands.json ] || cmake --preset check >/dev/null
cmake --build --preset check --target app >/dev/null # the generated headers
files=("$@")
[ ${#files[@]} -gt 0 ] || mapfile -t files < <(git ls-files 'src/*.cpp')
printf '%s\n' "${files[@]}" |
    xargs -P "$(nproc)" -n 4 clang-tidy -p build/check --quiet --warnings-as-errors='*' \
        --extra-arg=-Wno-unknown-warning-option --extra-arg=-Wno-ignored-gch 2>/dev/null ||
    fail "clang-tidy has findings"
say "nothing found"
