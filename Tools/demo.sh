#!/usr/bin/env bash
# Shows lanedoc at work on the example documents: Tools/demo.sh <lanedoc>
set -euo pipefail

if [[ $# -ne 1 || ! -x $1 ]]; then
    echo "usage: Tools/demo.sh <lanedoc>" >&2
    exit 2
fi
lanedoc=$(realpath -- "$1")
cd "$(dirname "${BASH_SOURCE[0]}")/.."

documents=Examples/Documents
folder=build/demo
merged=$folder/StateProcessingRoot.merged.xml
mkdir -p "$folder"
rm -f "$merged" # so that what is there afterwards is this run's

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

title "A state of the lane, as programs see it"
run 0 show "$documents/StateProcessingRoot.xml" 'StateTable/State[Name=Coupon]' --no-defaults

title "The feature Coupons is merged in: what it added (+) and changed (~)"
run 0 merge "$documents/StateProcessingRoot.xml" "Coupons=$documents/StateProcessingRoot.coupons.xml" \
    -o "$merged" --summary

title "One value, before and after"
run 0 get "$documents/StateProcessingRoot.xml" Version
run 0 get "$merged" Version

title "Two values set in the state table; every other byte of the file stays"
cp "$documents/StateProcessingRoot.xml" "$folder/StateProcessingRoot.xml"
run 0 set "$folder/StateProcessingRoot.xml" 'StateTable/InitialState=Attract' 'StateTable/State[Name=Coupon]/Transient=true' \
    --in-place --diff --context 0

title "What a broken document is told; nothing is written"
run 3 merge "$documents/StateProcessingRoot.xml" "$documents/StateProcessingRoot.broken.xml" -o "$folder/never.xml"
[[ ! -e $folder/never.xml ]]

title "A slip of the hand in a path"
run 1 get "$merged" 'StateTable/State[Name=CouponEntri]/BaseState'

printf '\nThe merged document: %s (%d lines)\n' "$merged" "$(wc -l <"$merged")"
