#!/usr/bin/env bash
# Fails when a small load, update, merge or dump takes a fifth more instructions than Bounds.txt says, or a merge with a
# journal half as many again as one without. Instructions are the same on a busy machine and a quiet one, which times
# are not.
#   CheckCounts.sh <CountedWork> <folder of example documents>
set -euo pipefail
bounds="$(dirname "${BASH_SOURCE[0]}")/Bounds.txt"

works=0
failed=0
declare -A counts
while read -r work bound day reason; do
    [[ $work != '' && $work != '#'* ]] || continue
    works=$((works + 1))
    output=$(valgrind --tool=callgrind --callgrind-out-file=/dev/null --toggle-collect=CountedWork "$1" "$work" "$2" 2>&1) || {
        echo "$output" >&2
        exit 1
    }
    count=$(sed -n 's/^==[0-9]*== Collected : \([0-9]*\)$/\1/p' <<<"$output")
    [[ $count =~ ^[1-9][0-9]*$ ]] || { echo "$work: nothing was counted: $output" >&2; exit 1; }
    counts[$work]=$count
    echo "$work: $count instructions, $((100 * count / bound)) % of the bound of $day"
    if ((5 * count > 6 * bound)); then
        echo "$work: more than a fifth above its bound of $bound ($reason); if there is a reason, set it in $bounds" >&2
        failed=1
    fi
done <"$bounds"
[[ $works -eq 5 ]] || { echo "$bounds: $works works, not 5" >&2; exit 1; }
if ((2 * ${counts[journal]} > 3 * ${counts[merge]})); then
    echo "a merge with a journal takes ${counts[journal]} instructions, more than one and a half times ${counts[merge]}" >&2
    failed=1
fi
exit $failed
