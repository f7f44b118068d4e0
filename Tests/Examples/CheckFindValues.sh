#!/usr/bin/env bash
# Runs the example FindValues on example documents and compares what it prints and writes with what the documents hold,
# and checks that Docs/Catalogue.md shows the code that is compiled.
#   CheckFindValues.sh <project folder> <scratch folder> <FindValues>
set -euo pipefail

project=$1 scratch=$2 tool=$3
rm -rf "$scratch"
mkdir -p "$scratch"
cp "$project"/Examples/Documents/{CommConfig,LoadConfig,StateProcessingRoot}.xml "$scratch"
cd "$scratch"
failed=0

# expect <exit code> <argument>...; the expected output comes from standard input.
expect() {
    local code=0
    "$tool" "${@:2}" >out 2>&1 || code=$?
    [[ $code -eq $1 ]] || { echo "FindValues ${*:2} ended with $code, expected $1" >&2; failed=1; }
    diff --label expected --label "FindValues ${*:2}" -u - out || failed=1
}

# A text in two documents: an attribute that is a key, and a part of a text. The comment above the entry is no value.
expect 0 find PrinterUsb CommConfig.xml LoadConfig.xml <<'END'
CommConfig.xml: CommEntry[name=PrinterUsb]/name  CommEntryType  "PrinterUsb"
LoadConfig.xml: ThreadChildList[UniqueName=Devices]/ChildThread[UniqueName=ReceiptPrinter]/InitializeString  ChildThreadType  "comm=PrinterUsb;codepage=utf-8;euro="€""
END
# Keyed and plain lists of texts, children, words of vocabularies.
expect 0 find 'Besançon' StateProcessingRoot.xml <<'END'
StateProcessingRoot.xml: RevisionHistory[fileName=StateProcessingRoot.pilot.xml]  StateProcessingRootType  "3.9.7: pilot lanes (Zürich, Besançon); texts with é and ü checked on the receipt printer"
END
expect 0 find PRIORITY_HIGHEST LoadConfig.xml <<'END'
LoadConfig.xml: ThreadChildList[UniqueName=Platform]/ChildThread[UniqueName=PowerMonitor]/ThreadPriority  ChildThreadType  "PRIORITY_HIGHEST"
END
expect 1 find 'stands nowhere' CommConfig.xml LoadConfig.xml </dev/null

cat >keys.xml <<'END'
<LoadConfig><ThreadChildList UniqueName='a/b "c"]'><DataStorageContainer><LoadPath>x</LoadPath><LoadPath>wanted</LoadPath></DataStorageContainer></ThreadChildList></LoadConfig>
END
expect 0 find wanted keys.xml <<'END'
keys.xml: ThreadChildList[UniqueName="a/b ""c""]"]/DataStorageContainer[1]/LoadPath[2]  DataStorageContainerType  "wanted"
END

# Only the value changes.
expect 0 set 'ThreadChildList[UniqueName=Platform]/DataStorageContainer[1]/LoadPath[2]' a\&b LoadConfig.xml set.xml </dev/null
sed 's#<LoadPath>config/store/LaneOptions.xml</LoadPath>#<LoadPath>a\&amp;b</LoadPath>#' LoadConfig.xml >expected.xml
! cmp -s LoadConfig.xml expected.xml || { echo "LoadConfig.xml has no such LoadPath" >&2; failed=1; }
diff -u expected.xml set.xml || failed=1

# Nothing is written when something is wrong.
expect 2 set 'CommEntry[name=PrinterUsb]/Parameters/Mode' SIDEWAYS CommConfig.xml no.xml <<'END'
FindValues: CommConfig.xml: CommEntry[name=PrinterUsb]/Parameters/Mode cannot be "SIDEWAYS"
END
expect 2 set CommEntry/Mode CLIENT CommConfig.xml no.xml <<'END'
FindValues: CommConfig.xml: there is no value CommEntry/Mode
END
echo '<Stranger/>' >stranger.xml
expect 2 find x stranger.xml <<'END'
FindValues: stranger.xml: no document has the root Stranger
END
echo '<LoadConfig>' >broken.xml
expect 2 find x broken.xml <<'END'
FindValues: broken.xml:1:13: the document ends within an element: expected </LoadConfig>, opened at 1:1
END
[[ ! -e no.xml ]] || { echo "a refused set wrote a file" >&2; failed=1; }

"$tool" list >out
grep -qx 'LoadConfig  LoadConfigType' out || { echo "the list of roots lacks LoadConfig" >&2; failed=1; }

sed -n '/^\/\/ Catalogue: begin$/,/^\/\/ Catalogue: end$/p' "$project/Examples/FindValues.cpp" | sed '1d;$d' >code
awk '$0 == "```cpp" { inside = 1; next } $0 == "```" { inside = 0 } inside' "$project/Docs/Catalogue.md" >shown
[[ -s code ]] || { echo "FindValues.cpp has no part for the guide" >&2; failed=1; }
diff --label "Examples/FindValues.cpp" --label "Docs/Catalogue.md" -u code shown || failed=1

exit "$failed"
