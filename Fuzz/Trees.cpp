#include "Trees.h"

#include <algorithm>
#include <set>

#include <sys/mman.h>
#include <unistd.h>

#include "Framework/XMLDataWrapper.h"
#include "Target.h"

namespace Fuzz {

namespace {

class Reader {
public:
    Reading Read(TypedDataContainer& object) {
        ReadObject(object, "");
        return std::move(m_reading);
    }

private:
    void Line(const std::string& path, const std::string& text) { m_reading.lines.push_back(path + "=" + text); }

    void ReadObject(TypedDataContainer& object, const std::string& path) {
        Line(path, object.GetContainerName());
        const CatalogClass type = ContainerCatalog::ClassOf(object);
        Expect(static_cast<bool>(type), "an object is of no class", path);
        object.GetAttributeList();
        for (const CatalogField& field : type.Fields()) {
            const std::string here = path + "/" + std::string(field.Name());
            NoteStrangeWords(object, field);
            if (field.IsScalar()) {
                field.StandsInDocument(object);
                Line(here, field.GetText(object));
            } else if (TypedDataContainer* const child = field.GetChild(object)) {
                ReadObject(*child, here);
            }
            ReadList(object, field, here);
        }
    }

    void ReadList(TypedDataContainer& object, const CatalogField& list, const std::string& path) {
        std::set<std::string> keys;
        const std::size_t length = list.Length(object);
        for (std::size_t i = 0; i < length; ++i) {
            std::string here = path + "[" + std::to_string(i);
            if (list.GetForm() == CatalogField::KeyedList && !list.HasNumberedKeys()) {
                const std::string key = list.EntryKey(object, i);
                m_reading.hasEqualKeys |= !keys.insert(key).second;
                here += "|" + key;
            }
            here += "]";
            if (TypedDataContainer* const entry = list.Entry(object, i)) {
                object.BuildUpdateQuery(zelString(list.Name()), entry);
                ReadObject(*entry, here);
            } else {
                Expect(list.GetValue() != CatalogField::Container, "an entry is null", here);
                Line(here, list.EntryText(object, i));
            }
        }
    }

    void NoteStrangeWords(TypedDataContainer& object, const CatalogField& field) {
        const std::vector<zelString> texts = field.DocumentTexts(object);
        if (field.GetValue() == CatalogField::Enumeration) {
            const std::vector<zelString> words = field.Words();
            m_reading.hasStrangeWords |= std::any_of(texts.begin(), texts.end(), [&](const zelString& text) {
                return !text.empty() && std::find(words.begin(), words.end(), text) == words.end();
            });
        }
    }

    Reading m_reading;
};

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
    return Reader().Read(object);
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
        std::size_t any = 0;
        for (const char c : root) {
            any = any * 31 + static_cast<unsigned char>(c);
        }
        type = named != classes.end() ? *named : classes[any % classes.size()];
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

void ExpectDumpLoadsEqual(TypedDataContainer& object, const Reading& reading, const OverrideLog& log) {
    const std::unique_ptr<XMLDataWrapper> dump(object.BuildAndReturnDataContent());
    Expect(dump != nullptr, "a tree cannot be dumped", object.GetLastError());
    XMLDataWrapper loaded;
    Expect(loaded.LoadXMLText(dump->GetXMLText(), true), "a dump does not load", loaded.GetLastError());
    const std::unique_ptr<TypedDataContainer> other = Another(object);
    const std::size_t issues = log.Count();
    Expect(other->LoadFromDataPacket(nullptr, &loaded, true), "a dump does not load into an object",
           other->GetLastError());
    if (!reading.hasEqualKeys) {
        Expect(log.Count() == issues, "a load of a dump has something to report", log.Last());
        ExpectEqual(ReadAll(*other), reading, "a dump loads differently");
    }
}

void ExpectNamesPlace(std::string_view error, std::string_view source) {
    std::string_view rest = error;
    const auto skipNumber = [&rest] {
        const std::size_t end = std::min(rest.find_first_not_of("0123456789"), rest.size());
        rest.remove_prefix(end);
        return end > 0;
    };
    bool holds = rest.starts_with(source);
    rest.remove_prefix(holds ? source.size() : 0);
    for (int number = 0; holds && number < 2; ++number) {
        holds = rest.starts_with(":");
        rest.remove_prefix(holds ? 1 : 0);
        holds = holds && skipNumber();
    }
    Expect(holds && rest.size() > 2 && rest.starts_with(": "), "an error names no place", error);
}

} // namespace Fuzz
