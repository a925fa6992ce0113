#!/usr/bin/env bash
# compare.sh NATIVE WINDOWS JOBS: whether both builds of tarn-figures, the second run by Wine, print
# the same to the last bit for the stored jobs and for so many at random.
set -euo pipefail
native=$1 windows=$2 count=$3
here=$(dirname "$(readlink -f "$0")")
wine=$(command -v wine64 || command -v wine || echo /usr/lib/wine/wine64)
work=$(mktemp -d)
# Its server stays for a while behind a program, and is ended with the folder that it works in.
stop() {
    "${wine%/*}/wineserver" -k >/dev/null 2>&1 || true
    rm -rf "$work"
}
trap stop EXIT
export WINEPREFIX=$work/wine WINEDEBUG=-all

seed=${TARN_FIGURES_SEED:-$RANDOM}
echo "Seed $seed"
/usr/bin/python3 "$here/jobs.py" "$count" "$seed" >"$work/jobs"
"$native" <"$work/jobs" >"$work/native"
"$wine" "$windows" <"$work/jobs" 2>"$work/errors" | tr -d '\r' >"$work/windows" ||
    { cat "$work/errors" >&2 && exit 1; }
answers=$(grep -cE '^(estimate|order|error|refused)' "$work/native")
if ((answers != $(wc -l <"$work/jobs"))); then
    echo "$answers answers to $(wc -l <"$work/jobs") jobs" >&2
    exit 1
fi
if ! cmp "$work/native" "$work/windows"; then
    diff "$work/native" "$work/windows" | head -20 >&2
    exit 1
fi
echo "$(wc -l <"$work/jobs") jobs, $(wc -l <"$work/native") lines of figures, equal to the last bit"
