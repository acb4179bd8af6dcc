#!/usr/bin/env bash
# Builds the release with its benchmarks, runs all of them and shows the figures that must hold.
# Ends with 1 when one was missed. Takes about four minutes, of which one waits on purpose.
#   bench/run.sh [--quick]   --quick measures the running step for 10 s only
set -euo pipefail
cd "$(dirname "$0")/.."
source ci/prepare.sh

seconds=60
[ "${1:-}" = --quick ] && seconds=10

need_packages
build bench
bin="$PWD/build/bench/bench"
work=$(mktemp -d "$bin/data-XXXXXX") # not in /tmp, which may be no disk
trap 'rm -rf "$work"' EXIT
export QT_QPA_PLATFORM=offscreen
export XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR:-$work}
export TORVENA_BENCH_FIGURES="$work/figures"
quiet() { "$@" 2> >(grep -v 'This plugin does not support' >&2); }

say "first window"
quiet "$bin/bench-firstwindow" "$work/data"
say "decoders, saving, master data"
quiet "$bin/torvena-bench" "$work/data" || fail "torvena-bench failed"
say "a running step, in real time"
quiet "$bin/bench-measuring" "$work/data" "$seconds" || fail "the step was not reached"

say "figures"
{ printf 'figure\tmeasured\tunit\ttarget\t\n'; cat "$TORVENA_BENCH_FIGURES"; } |
    awk -F'\t' '{ printf "%-42s %12s %-4s %-10s %s\n", $1, $2, $3, $4, $5 }'
! grep -q MISSED "$TORVENA_BENCH_FIGURES"
