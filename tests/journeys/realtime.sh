#!/usr/bin/env bash
# The main job and a final test in real time over pseudo terminals: the simulated stand and the
# workstation as two processes. Then the workstation itself, with the motor on and idle, is told to end.
#   realtime.sh SETUP STAND TOUR TORVENA
set -euo pipefail
setup=$1 stand=$2 tour=$3 torvena=$4
export QT_QPA_PLATFORM=offscreen
work=$(mktemp -d)
pids=()
trap 'kill "${pids[@]}" 2>/dev/null || true; wait 2>/dev/null || true; rm -rf "$work"' EXIT

"$setup" "$work" --demo
mkfifo "$work/in"
"$stand" "$work" --no-panel <"$work/in" >"$work/out" &
pids+=($!)
exec 3>"$work/in"
for _ in $(seq 100); do [ -e "$work/COM1" ] && break; sleep 0.1; done
echo "load 100" >&3

cd "$work"
# Three for later: two that stay idle in directories of their own, and one at the keyboard, which is
# a device that tells what goes up and down, on the platform whose windows hand the keyboard on.
declare -A program
mkfifo keys
exec 4<>keys
QT_QPA_PLATFORM=minimal QT_QPA_GENERIC_PLUGINS=evdevkeyboard:/dev/fd/4 "$torvena" 2>/dev/null &
program[TERM]=$!
for signal in INT HUP; do
    "$setup" "$work/$signal"
    "$torvena" "$work/$signal" 2>/dev/null &
    program[$signal]=$!
done
pids+=("${program[@]}")

LC_ALL=C.UTF-8 "$tour" 2>/dev/null | tee tour.txt
# Both steps stored, judged as conforming without and with uncertainty for the power step.
grep -Eq '^  1 +60\.0 +100\.0 +(59|60)\.[0-9]+ .* 0 +ja ja$' tour.txt
grep -Eq '^  2 +80\.0 +0\.0 +(79|80)\.[0-9]+ .* 80 +ja ja$' tour.txt
# Three steps that the workstation went through alone, each with the speed that the ergometer told.
[ "$(grep -Ec '^  [123] .* (60|70) +OK$' tour.txt)" = 3 ]
stands_at() {
    echo "status" >&3
    sleep 0.5
    tail -n 2 out | grep -Eq "^$1" || { echo "the stand is not at $1"; cat out; exit 1; }
}
stands_at 'set=0\.00 .*given=0'
ls tour/*.png >/dev/null

event() { printf "$(printf '\\0%.0s' {1..16})\\x01\\0\\x$(printf %x "$1")\\0\\x$2\\0\\0\\0" >&4; }
key() { event "$1" 1; event "$1" 0; sleep 1; }
alt() { event 56 1; key "$1"; event 56 0; }
key 30 # a, the inspector
key 28 # Enter
alt 32 # D, the direction
alt 38 # L, left
key 28
alt 18 # E, the motor
stands_at 'set=60\.00 .*direction=left motor=on'
if "$setup" "$work" 2>/dev/null; then
    echo "torvena-setup changes a directory in use"
    exit 1
fi
for signal in TERM INT HUP; do
    kill -$signal "${program[$signal]}"
    wait "${program[$signal]}" || { echo "torvena did not end in order by $signal: $?"; exit 1; }
done
stands_at 'set=0\.00 '
echo "arrived"
