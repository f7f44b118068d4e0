#include "Trees.h"

#include <algorithm>
#include <regex>
#include <set>
#include <sstream>

#include <sys/mman.h>
#include <unistd.h>

#include "Containers/Sample.h"
#include "Containers/Values.h"
#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/XMLDataWrapper.h"
#include "Target.h"

namespace Fuzz {

namespace {

/// Takes the keys away that a load makes anew.
void NoteKeys(Samples::Sample& sample, Reading& reading) {
    for (Samples::FieldSample& field : sample.fields) {
        std::set<std::string> keys;
        for (Samples::EntrySample& entry : field.entries) {
            if (field.field.HasNumberedKeys()) {
                entry.key.clear();
            } else if (field.field.GetForm() == CatalogField::KeyedList) {
                reading.hasEqualKeys |= !keys.insert(entry.key).second;
            }
            if (entry.object != nullptr) {
                NoteKeys(*entry.object, reading);
            }
        }
        if (field.child != nullptr) {
            NoteKeys(*field.child, reading);
        }
    }
}

/// The first entry of a list answers for all: its texts are those of the field.
bool HasStrangeWords(const Value& value) {
    if (value.position.value_or(0) != 0 || value.field.GetValue() != CatalogField::Enumeration) {
        return false;
    }
    const std::vector<zelString> texts = value.field.DocumentTexts(*value.object);
    const std::vector<zelString> words = value.field.Words();
    return std::any_of(texts.begin(), texts.end(), [&](const zelString& text) {
        return !text.empty() && std::find(words.begin(), words.end(), text) == words.end();
    });
}

} // namespace

MemoryFile::MemoryFile(std::string_view bytes)
    : m_descriptor(::memfd_create("fuzz", MFD_CLOEXEC)), m_path("/proc/self/fd/" + std::to_string(m_descriptor)) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(m_descriptor, bytes.data(), bytes.size());
        Expect(written > 0, "a file in memory cannot be written");
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

MemoryFile::~MemoryFile() {
    ::close(m_descriptor);
}

Reading ReadAll(TypedDataContainer& object) {
    Reading reading;
    for (const Value& value : ValuesOf(object)) {
        reading.hasStrangeWords |= HasStrangeWords(value);
    }
    Samples::Sample sample = Samples::Read(object);
    NoteKeys(sample, reading);
    reading.lines = Samples::Lines(sample);
    return reading;
}

Reading StateOf(TypedDataContainer& object) {
    using Framework::ContainerAccess;
    std::set<const void*> objects;
    for (const Value& value : ValuesOf(object)) {
        objects.insert(value.object);
    }
    std::ostringstream rest;
    for (const void* const each : objects) {
        rest << each << ' ';
    }
    XMLDataWrapper* const wrapper = object.GetContainedDataPtr();
    rest << object.Valid() << object.GetFeatureID() << '|' << object.GetMergeAttributes() << '|' << wrapper << '|'
         << ContainerAccess::IsReadOnly(object) << ContainerAccess::IsNested(object)
         << static_cast<std::size_t>(ContainerAccess::Node(object)) << '|' << ContainerAccess::Lookup(object);
    if (wrapper != nullptr) {
        rest << '|' << wrapper->HasCurrentNode() << wrapper->GetStoredQuery() << '|' << wrapper->GetXMLText();
    }
    Reading state{Samples::Lines(object)};
    state.lines.push_back(rest.str());
    return state;
}

void ExpectEqual(const Reading& present, const Reading& expected, std::string_view what) {
    const auto [left, right] =
        std::mismatch(present.lines.begin(), present.lines.end(), expected.lines.begin(), expected.lines.end());
    if (left != present.lines.end() || right != expected.lines.end()) {
        Expect(false, what,
               (left == present.lines.end() ? "nothing" : *left) + " instead of " +
                   (right == expected.lines.end() ? "nothing" : *right));
    }
}

std::unique_ptr<TypedDataContainer> ObjectFor(const zelString& root) {
    static const std::vector<CatalogClass> classes = ContainerCatalog::Classes();
    CatalogClass type = ContainerCatalog::FindRoot(root);
    if (!type) {
        const auto named = std::find_if(classes.begin(), classes.end(), [&root](const CatalogClass& each) {
            return each.ElementName() == std::string_view(root);
        });
        type = named != classes.end()
                   ? *named
                   : classes[(root.size() + static_cast<unsigned char>(root.front())) % classes.size()];
    }
    std::unique_ptr<TypedDataContainer> object = type.Create(false);
    object->SetContainerName(root.c_str());
    return object;
}

std::unique_ptr<TypedDataContainer> Another(TypedDataContainer& object) {
    std::unique_ptr<TypedDataContainer> other = ContainerCatalog::ClassOf(object).Create(false);
    other->SetContainerName(object.GetContainerName().c_str());
    return other;
}

std::unique_ptr<TypedDataContainer> LoadedLike(TypedDataContainer& object, const zelString& xml,
                                               std::string_view what) {
    XMLDataWrapper wrapper;
    Expect(wrapper.LoadXMLText(xml, true), std::string(what) + " does not load", wrapper.GetLastError());
    std::unique_ptr<TypedDataContainer> other = Another(object);
    Expect(other->LoadFromDataPacket(nullptr, &wrapper, true), std::string(what) + " does not load into an object",
           other->GetLastError());
    return other;
}

void ExpectDumpLoadsEqual(TypedDataContainer& object, const Reading& reading, const OverrideLog& log) {
    const std::unique_ptr<XMLDataWrapper> dump(object.BuildAndReturnDataContent());
    Expect(dump != nullptr, "a tree cannot be dumped", object.GetLastError());
    const std::size_t issues = log.Count();
    const std::unique_ptr<TypedDataContainer> other = LoadedLike(object, dump->GetXMLText(), "a dump");
    if (!reading.hasEqualKeys) {
        Expect(log.Count() == issues, "a load of a dump has something to report", log.Last());
        ExpectEqual(ReadAll(*other), reading, "a dump loads differently");
    }
}

void ExpectNamesPlace(std::string_view error, std::string_view source) {
    const bool isFirst = error.starts_with(source);
    const std::string rest(error.substr(isFirst ? source.size() : 0));
    Expect(isFirst && std::regex_search(rest, std::regex("^:[0-9]+:[0-9]+: .")), "an error names no place", error);
}

} // namespace Fuzz
