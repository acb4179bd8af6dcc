#!/usr/bin/env bash
# The main job in real time over pseudo terminals: the simulated stand and the workstation as two
# processes. Then the workstation itself is started and told to end.
#   realtime.sh SETUP STAND TOUR TORVENA
set -euo pipefail
setup=$1 stand=$2 tour=$3 torvena=$4
export QT_QPA_PLATFORM=offscreen
work=$(mktemp -d)
trap 'kill "${pid:-0}" 2>/dev/null || true; wait 2>/dev/null || true; rm -rf "$work"' EXIT

"$setup" "$work" --demo
mkfifo "$work/in"
"$stand" "$work" --no-panel <"$work/in" >"$work/out" &
pid=$!
exec 3>"$work/in"
for _ in $(seq 100); do [ -e "$work/COM1" ] && break; sleep 0.1; done
echo "load 100" >&3

cd "$work"
LC_ALL=C.UTF-8 "$tour" 2>/dev/null | tee tour.txt
# Both steps stored, judged as conforming without and with uncertainty for the power step.
grep -Eq '^  1 +60\.0 +100\.0 +(59|60)\.[0-9]+ .* 0 +ja +ja$' tour.txt
grep -Eq '^  2 +80\.0 +0\.0 +(79|80)\.[0-9]+ .* 80 +ja +ja$' tour.txt
echo "status" >&3
sleep 0.5
grep -q '^set=0\.00 ' out || { echo "the motor was not told to stop"; cat out; exit 1; }
ls tour/*.png >/dev/null

"$torvena" 2>/dev/null &
program=$!
sleep 3
kill -TERM "$program"
wait "$program" || { echo "torvena did not end in order: $?"; exit 1; }
echo "arrived"
