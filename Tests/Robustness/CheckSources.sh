#!/usr/bin/env bash
# Nothing that the library does depends on the locale, and nothing in it ends the process: no source names a function
# that would, and no object holds the conversion of a floating point number by std::to_string, which a search for words
# cannot tell from that of an int.
#   CheckSources.sh <project> <c++> <nm> <library>
set -euo pipefail
project=$1 compiler=$2 nm=$3 library=$4

locale='XMLString::transcode|\b(ato(i|l|ll|f)|strto[a-z]+|sto(i|l|ll|ul|ull|f|d|ld)|setlocale|localeconv|sscanf|mbstowcs|wcstombs)\b'
ending='\b(exit|_exit|_Exit|quick_exit|abort|terminate) *\('
symbol='__to_xstring'

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# The searches must find what they look for.
planted='auto a = atoi(t); auto b = std::stod(t); XMLString::transcode(t); setlocale(0, ""); strtod(t, 0); exit(1);'
[[ $(grep -oE "$locale|$ending" <<<"$planted" | wc -l) -eq 6 ]] || { echo "the search for words is blind" >&2; exit 1; }
echo '#include <string>
std::string planted(double value) { return std::to_string(value); }' >"$work/planted.cpp"
"$compiler" -std=c++20 -O1 -c "$work/planted.cpp" -o "$work/planted.o"
"$nm" "$work/planted.o" | grep -q "$symbol" || { echo "the search for symbols is blind" >&2; exit 1; }

failed=0
# What stands there is an error; the rest is what to do instead.
forbid() {
    local words=$1 advice=$2
    shift 2
    if grep -rnE "$words" "$@" --include='*.h' --include='*.cpp'; then
        echo "$advice" >&2
        failed=1
    fi
}
forbid "$locale" "these follow the locale: use SupportFunc, std::from_chars and std::to_chars, or Utf.h" \
    "$project/Include" "$project/Source" "$project/Tools"
forbid "$ending" "the library never ends its host: report an error" "$project/Include" "$project/Source"
if "$nm" --print-file-name "$library" | grep "$symbol"; then
    echo "std::to_string of a floating point number follows the locale: use SupportFunc::GetStrValue" >&2
    failed=1
fi
exit $failed
