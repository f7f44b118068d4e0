#include <memory>

#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/DocumentCheck.h"
#include "Framework/MergeJournal.h"
#include "Framework/XMLDataWrapper.h"
#include "Target.h"
#include "Trees.h"

namespace Fuzz {

namespace {

std::unique_ptr<TypedDataContainer> LoadedObject(const zelString& name, XMLDataWrapper& wrapper) {
    std::unique_ptr<TypedDataContainer> object = ObjectFor(name);
    Expect(object->LoadFromDataPacket(nullptr, &wrapper, false), "a document does not load into its class",
           object->GetLastError());
    return object;
}

bool HasControlWords(std::string_view text) {
    return text.find("MergeAction") != std::string_view::npos || text.find("Placement") != std::string_view::npos;
}

/// Without control words a merge takes over every value that the override names.
void ExpectTaken(TypedDataContainer& merged, TypedDataContainer& override, const std::string& path) {
    for (const CatalogField& field : ContainerCatalog::ClassOf(override).Fields()) {
        const std::string here = path + "/" + std::string(field.Name());
        if (field.IsScalar() && field.StandsInDocument(override)) {
            Expect(field.GetText(merged) == field.GetText(override), "a value of the override is not taken",
                   here + "=" + field.GetText(merged));
        } else if (TypedDataContainer* const child = field.GetChild(override);
                   child != nullptr && Framework::ContainerAccess::EarlierNodes(*child).empty()) {
            // Of a child that stands twice a merge takes the last element, a load both.
            TypedDataContainer* const there = field.GetChild(merged);
            Expect(there != nullptr, "a child of the override is not taken", here);
            ExpectTaken(*there, *child, here);
        }
        if (field.HasNumberedKeys()) {
            continue; // a load numbers the entries anew, a merge takes their keys
        }
        const std::size_t length = field.Length(override);
        const std::size_t mergedLength = field.Length(merged);
        Expect(mergedLength >= length, "entries of the override are not taken", here);
        for (std::size_t i = 0; i < length; ++i) {
            const std::size_t at = field.GetForm() == CatalogField::PlainList
                                       ? mergedLength - length + i
                                       : field.FindEntry(merged, field.EntryKey(override, i)).value_or(mergedLength);
            Expect(at < mergedLength, "an entry of the override is not taken", here);
            if (TypedDataContainer* const entry = field.Entry(override, i)) {
                ExpectTaken(*field.Entry(merged, at), *entry, here);
            } else {
                Expect(field.EntryText(merged, at) == field.EntryText(override, i),
                       "a text of the override is not taken", here);
            }
        }
    }
}

/// A source that cannot be read, or holds no element of the object's name, changes nothing.
void ExpectRefused(TypedDataContainer& object, std::string_view override) {
    const Reading before = StateOf(object);
    const MemoryFile file(override);
    Expect(!object.MergeFromFile(nullptr, file.Path()), "a merge succeeds that has nothing to take");
    Expect(!object.GetLastError().empty(), "a refused merge has no error");
    ExpectEqual(StateOf(object), before, "a refused merge changes the object");
}

/// The tree goes into its own document, from which the next load has the values of the root; a second time there is
/// nothing left to write.
void ExpectUpdates(TypedDataContainer& object, XMLDataWrapper& wrapper, const Reading& merged) {
    object.UpdateContainedData();
    const zelString text = wrapper.GetXMLText();
    Expect(!text.empty(), "a merged document cannot be saved", wrapper.GetLastError());
    object.UpdateContainedData();
    Expect(wrapper.GetXMLText() == text, "a second update writes once more");
    ExpectEqual(ReadAll(object), merged, "an update changes the object");

    const std::unique_ptr<TypedDataContainer> other = LoadedLike(object, text, "a merged document");
    for (const CatalogField& field : ContainerCatalog::ClassOf(object).Fields()) {
        Expect(!wrapper.GetLastError().empty() || field.GetText(*other) == field.GetText(object),
               "a merged value is not written", std::string(field.Name()) + "=" + field.GetText(*other));
    }
}

/// A journal changes nothing of a merge, and can be asked about whatever it holds; a check finds the documents as they
/// are.
void ExpectJournal(const zelString& name, XMLDataWrapper& base, XMLDataWrapper& source, const Reading& merged) {
    const std::unique_ptr<TypedDataContainer> object = LoadedObject(name, base);
    MergeJournal journal;
    {
        const MergeJournal::Recording recording(journal);
        Expect(object->MergeFromDataPacket(nullptr, "Night", &source, false), "a merge fails with a journal alone");
    }
    ExpectEqual(ReadAll(*object), merged, "a journal changes a merge");
    Expect(journal.IsComplete(), "a journal is not complete");
    Expect(journal.Conflicts().empty(), "a feature is in conflict with itself");
    std::size_t problems = 0;
    for (std::size_t i = 0; i < journal.Size(); ++i) {
        const MergeJournal::Entry entry = journal.At(i);
        Expect(entry.Place.IsKnown(), "an entry has no place", entry.Path);
        problems += entry.Problem.has_value() ? 1U : 0U;
        std::size_t winners = 0;
        for (const MergeJournal::Writer& writer : journal.WritersOf(*object, entry.Path)) {
            winners += writer.Wins ? 1U : 0U;
        }
        Expect(winners <= 1, "a value has two winners", entry.Path);
    }
    Expect(journal.Problems().size() == problems, "problems are counted otherwise than they stand");
    Expect(journal.WithoutEffect().size() >= problems, "a problem had an effect");
    const CatalogClass container = ContainerCatalog::ClassOf(*object);
    static_cast<void>(DocumentCheck::Run(base, container));
    static_cast<void>(DocumentCheck::Run(source, container, DocumentCheck::Kind::Override));
}

} // namespace

void Merge(std::string_view input) {
    constexpr std::string_view separator = "\n====\n";
    const std::size_t at = input.find(separator);
    if (at == std::string_view::npos) {
        return;
    }
    const std::string_view override = input.substr(at + separator.size());
    const OverrideLog log;
    XMLDataWrapper base;
    if (!base.LoadXMLText(zelString(input.substr(0, at)), false)) {
        return;
    }
    const zelString name = ContainerCatalog::RootElement(base);
    const std::unique_ptr<TypedDataContainer> object = LoadedObject(name, base);

    XMLDataWrapper source;
    if (!source.LoadXMLText(zelString(override), false) || !source.NodeExists("//" + name, true)) {
        ExpectRefused(*object, override);
        return;
    }
    const zelString text = source.GetXMLText();
    const std::size_t issuesOfBase = log.Count();
    const Reading before = ReadAll(*object);
    if (!object->MergeFromDataPacket(nullptr, "Night", &source, false)) {
        Expect(log.Count() > issuesOfBase, "a merge fails without a word to the log", object->GetLastError());
        ExpectEqual(ReadAll(*object), before, "a merge that failed changes the object");
        return;
    }
    Expect(source.GetXMLText() == text, "a merge changes its source");
    const Reading merged = ReadAll(*object);
    const std::size_t issuesOfMerge = log.Count();
    if (issuesOfMerge == issuesOfBase && !HasControlWords(override)) {
        const std::unique_ptr<TypedDataContainer> other = LoadedObject(name, source);
        if (log.Count() == issuesOfMerge && !merged.hasEqualKeys) {
            ExpectTaken(*object, *other, "");
        }
    }
    ExpectJournal(name, base, source, merged);
    ExpectDumpLoadsEqual(*object, merged, log);
    ExpectUpdates(*object, base, merged);
    delete object->Clone();
}

} // namespace Fuzz
