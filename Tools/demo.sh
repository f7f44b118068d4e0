#!/usr/bin/env bash
# Shows lanedoc at work on the example documents: Tools/demo.sh <lanedoc>
set -euo pipefail

if [[ $# -ne 1 || ! -x $1 ]]; then
    echo "usage: Tools/demo.sh <lanedoc>" >&2
    exit 2
fi
lanedoc=$(realpath -- "$1")
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# The steps work on copies, by short names, and what they write is this run's.
folder=build/demo
rm -rf "$folder"
mkdir -p "$folder"
cp Examples/Documents/*.xml "$folder"
cd "$folder"

bold='' dim='' plain=''
if [[ -t 1 && -z ${NO_COLOR:-} && ${TERM:-} != dumb ]]; then
    bold=$'\e[1m' dim=$'\e[2m' plain=$'\e[0m'
fi

title() { printf '\n%s== %s%s\n' "$bold" "$*" "$plain"; }

# An argument as a person would type it.
quoted() { [[ $1 =~ ^[=A-Za-z0-9_./-]+$ ]] && printf '%s' "$1" || printf "'%s'" "$1"; }

# Prints a command, runs it with its two outputs in one order, and checks its exit code.
run() {
    local expected=$1 code=0 argument
    shift
    printf '%s$ lanedoc' "$dim"
    for argument in "$@"; do printf ' %s' "$(quoted "$argument")"; done
    printf '%s\n' "$plain"
    "$lanedoc" "$@" 2>&1 || code=$?
    if [[ $code -ne $expected ]]; then
        echo "demo: exit code $code, expected $expected" >&2
        exit 1
    fi
    [[ $code -eq 0 ]] || printf '%s(exit code %d)%s\n' "$dim" "$code" "$plain"
}

base=StateProcessingRoot

title "A part of a state, as programs see it"
run 0 show "$base.xml" 'StateTable/State[Name=Attract]/PostStateTrigger' --no-defaults

title "Four features are merged in, one after the other: what each did, state by state"
run 0 merge "$base.xml" "$base".{coupons,loyalty,ageverification,nightmode}.xml -o merged.xml --summary --depth 2 \
    --on-conflict last

title "Who set one value of the result, and who had set it before"
run 0 explain "$base.xml" "$base".{coupons,loyalty,ageverification,nightmode}.xml --path Version

title "What two features disagree about, when that is not wanted"
run 4 merge "$base.xml" "$base".{coupons,nightmode}.xml -o never.xml --on-conflict error
[[ ! -e never.xml ]]

title "One of them in full: added (+), changed (~), replaced (*), removed (-), moved (>)"
run 0 merge "$base.xml" "$base.ageverification.xml" -o aged.xml --summary --quiet

title "What an override with mistakes is told; nothing is written"
run 4 merge "$base.xml" "$base.mistakes.xml" -o never.xml
[[ ! -e never.xml ]]

title "Two values set in the state table; every other byte of the file stays"
run 0 set "$base.xml" StateTable/InitialState=Attract 'StateTable/State[Name=Coupon]/Transient=true' \
    --in-place --diff --context 0

title "What a broken document is told; nothing is written"
run 3 merge "$base.xml" "$base.broken.xml" -o never.xml
[[ ! -e never.xml ]]

printf '\nThe merged document: %s/merged.xml (%d lines)\n' "$folder" "$(wc -l <merged.xml)"
