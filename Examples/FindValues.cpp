// A tool over documents of any kind, written against the catalogue alone: it names no container class.
//   FindValues list                         root elements and their classes
//   FindValues find TEXT FILE...            the values that hold TEXT
//   FindValues set PATH VALUE FILE OUTPUT   one value set, everything else byte for byte as it was

#include <Framework/ContainerCatalog.h>
#include <Framework/XMLDataWrapper.h>

#include <functional>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

/// A field of an object, and for an entry of a list of texts its position.
struct Value {
    std::string path;
    TypedDataContainer& object;
    CatalogField field;
    std::optional<std::size_t> position;

    zelString Get() const { return position ? field.EntryText(object, *position) : field.GetText(object); }
    bool Set(const zelString& text) const {
        return position ? field.SetEntryText(object, *position, text) && field.WriteBack(object, *position)
                        : field.SetText(object, text) && field.WriteBack(object);
    }
};

/// "State[Name=Idle]" by key, "LoadPath[2]" by position from 1; a key that would end the step early in double quotes.
std::string EntryStep(const CatalogField& list, TypedDataContainer& object, std::size_t position) {
    const std::string name(list.Name());
    if (list.GetForm() == CatalogField::PlainList) {
        return name + '[' + std::to_string(position + 1) + ']';
    }
    std::string key = list.EntryKey(object, position);
    if (key.find_first_of("]/\"") != std::string::npos) {
        for (std::size_t at = key.find('"'); at != std::string::npos; at = key.find('"', at + 2)) {
            key.insert(at, 1, '"');
        }
        key = '"' + key + '"';
    }
    return name + '[' + std::string(list.KeyAttribute()) + '=' + key + ']';
}

// Catalogue: begin
/// Visits every value of a tree, whatever its class.
void Walk(TypedDataContainer& object, const std::string& path, const std::function<void(const Value&)>& visit) {
    for (const CatalogField& field : ContainerCatalog::ClassOf(object).Fields()) {
        const std::string name(field.Name());
        if (field.IsScalar()) {
            visit({path + name, object, field, std::nullopt});
        } else if (TypedDataContainer* const child = field.GetChild(object)) {
            Walk(*child, path + name + '/', visit);
        }
        for (std::size_t i = 0; i < field.Length(object); ++i) {
            const std::string step = path + EntryStep(field, object, i);
            if (TypedDataContainer* const entry = field.Entry(object, i)) {
                Walk(*entry, step + '/', visit);
            } else {
                visit({step, object, field, i}); // a text or a word
            }
        }
    }
}

/// Loads a document of any kind: its root element tells the class.
std::unique_ptr<TypedDataContainer> Load(XMLDataWrapper& document, const std::string& file) {
    if (!document.LoadXMLFile(file.c_str(), false)) {
        throw std::runtime_error(document.GetLastError());
    }
    const zelString root = ContainerCatalog::RootElement(document);
    std::unique_ptr<TypedDataContainer> tree = ContainerCatalog::Create(root, false);
    if (tree == nullptr) {
        throw std::runtime_error(file + ": no document has the root " + root);
    }
    if (!tree->LoadFromDataPacket(nullptr, &document, false)) {
        throw std::runtime_error(tree->GetLastError());
    }
    return tree;
}
// Catalogue: end

int List() {
    for (const std::string_view root : ContainerCatalog::Roots()) {
        std::cout << root << "  " << ContainerCatalog::FindRoot(root).Name() << '\n';
    }
    return 0;
}

int Find(const std::string& text, const std::vector<std::string>& files) {
    int result = 1;
    for (const std::string& file : files) {
        XMLDataWrapper document;
        const std::unique_ptr<TypedDataContainer> tree = Load(document, file);
        Walk(*tree, "", [&](const Value& value) {
            const zelString found = value.Get();
            if (found.find(text) != std::string::npos) {
                const CatalogClass type = ContainerCatalog::ClassOf(value.object);
                std::cout << file << ": " << value.path << "  " << type.Name() << "  \"" << found.c_str() << "\"\n";
                result = 0;
            }
        });
    }
    return result;
}

int Set(const std::string& path, const std::string& text, const std::string& file, const std::string& output) {
    XMLDataWrapper document;
    const std::unique_ptr<TypedDataContainer> tree = Load(document, file);
    bool isThere = false;
    Walk(*tree, "", [&](const Value& value) {
        if (value.path == path) {
            isThere = true;
            if (!value.Set(text)) {
                throw std::runtime_error(file + ": " + path + " cannot be \"" + text + '"');
            }
        }
    });
    if (!isThere) {
        throw std::runtime_error(file + ": there is no value " + path);
    }
    if (!document.SaveXMLFile(output.c_str())) {
        throw std::runtime_error(document.GetLastError());
    }
    return 0;
}

} // namespace

int main(int argc, char* argv[]) {
    const std::vector<std::string> words(argv + 1, argv + argc);
    try {
        if (words.size() == 1 && words[0] == "list") {
            return List();
        }
        if (words.size() >= 3 && words[0] == "find") {
            return Find(words[1], {words.begin() + 2, words.end()});
        }
        if (words.size() == 5 && words[0] == "set") {
            return Set(words[1], words[2], words[3], words[4]);
        }
        std::cerr << "usage: FindValues list | find TEXT FILE... | set PATH VALUE FILE OUTPUT\n";
    } catch (const std::exception& error) {
        std::cerr << "FindValues: " << error.what() << '\n';
    }
    return 2;
}
