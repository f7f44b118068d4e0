#!/usr/bin/env bash
# Checks that README.md shows what is true: its program is the one in Examples/ReadmeExample.cpp, and program and
# commands print what it says. Where a program was not built its argument is empty, and what it prints is not checked.
#   CheckReadme.sh <project folder> <scratch folder> <ReadmeExample> <lanedoc>
set -euo pipefail

project=$1 scratch=$2 example=$3 lanedoc=$4
readme=$project/README.md

rm -rf "$scratch"
mkdir -p "$scratch/bin"
cp "$project"/Examples/Documents/*.xml "$scratch"
cd "$scratch"

# The only block of README.md that opens with the given fence.
block() {
    local text
    text=$(awk -v fence="\`\`\`$1" '$0 == fence { inside = 1; blocks++; next }
                                    $0 == "```" { inside = 0 }
                                    inside { print }
                                    END { exit blocks != 1 }' "$readme") || {
        echo "README.md: expected one block that opens with \`\`\`$1" >&2
        return 1
    }
    [[ -n $text ]] || { echo "README.md: the block \`\`\`$1 is empty" >&2; return 1; }
    printf '%s\n' "$text"
}

# compare <what> <file as README.md has it> <file as it is>
compare() {
    diff --label "README.md: $1" --label "in truth" -u "$2" "$3" || failed=1
}

failed=0

block cpp >readme.cpp
sed -n '/^\/\/ README: begin$/,/^\/\/ README: end$/p' "$project/Examples/ReadmeExample.cpp" | sed '1d;$d' >example.cpp
compare "the program" readme.cpp example.cpp

if [[ -n $example ]]; then
    block text >readme.out
    "$example" >example.out 2>&1 || { echo "the program ended with $?" >&2; failed=1; }
    compare "what the program prints" readme.out example.out
fi

if [[ -n $lanedoc ]]; then
    ln -s "$lanedoc" bin/lanedoc
    PATH=$scratch/bin:$PATH
    block console >readme.console
    grep '^\$ ' readme.console | while IFS= read -r line; do
        printf '%s\n' "$line"
        bash -c "${line#\$ }" 2>&1 </dev/null || true # a refusal is shown too
    done >console.out
    compare "what the commands print" readme.console console.out
fi

exit "$failed"
