#include "DanglingNames.h"

#include <array>
#include <map>
#include <optional>
#include <set>
#include <string_view>

#include "Framework/MergeJournal.h"
#include "MessageCodes.h"
#include "NearestName.h"
#include "Output.h"
#include "TreeNode.h"

namespace Lanedoc {

namespace {

/// A field whose value names something else in the document. Where it stands is a path from the root: to a keyed list,
/// whose keys are the names, or to a field that holds one; what it leads through may be a list.
struct Reference {
    std::string_view root;
    std::string_view owner; ///< class
    std::string_view field;
    std::string_view what;
    std::string_view names;
    std::string_view otherNames{}; ///< of the same thing
};

constexpr std::string_view states = "StateTable/State";
constexpr std::string_view options = "ConfigurationDefinition/ConfigDef";
constexpr std::string_view sounds = "AudioKeyMap/AudioLookup"; // of all languages

constexpr std::array references{
    Reference{"StateProcessingRoot", "StateTableType", "InitialState", "state", states},
    Reference{"StateProcessingRoot", "StateDefinitionType", "BaseState", "state", states},
    Reference{"ConfigDefRoot", "ReferenceType", "OptionName", "option", options},
    Reference{"ConfigDefRoot", "XMLDataListDefType", "OptionName", "option", options},
    Reference{"ConfigDefRoot", "TestInValidOptionType", "OptionName", "option", options},
    Reference{"ConfigDefRoot", "LinkedOptionType", "OptionName", "option", options},
    Reference{"ConfigDefRoot", "ConfigOptionType", "Name", "option", options},
    Reference{"ConfigDefRoot", "ViewMapType", "name", "view", "ConfigurationViews/ConfigView"},
    Reference{"StructureTransformDef", "StructureRefMapType", "StructurePacket", "structure",
              "StructureDataMap/StructurePacketDef"},
    Reference{"CaptureConfig", "CaptureConfigSubRuleType", "Output", "output", "Files/File/Output", "Files/File/Name"},
    Reference{"AudioLookupConfig", "AudioExpandPhraseType", "Key", "sound", sounds},
    Reference{"AudioLookupConfig", "VoiceCurrencyType", "Key", "sound", sounds},
};

/// What is there to be named, in the order of the document.
class KnownNames {
public:
    void Add(const std::string& name) {
        if (m_names.insert(name).second) {
            m_inOrder.push_back(name);
        }
    }
    bool Has(const std::string& name) const { return m_names.contains(name); }
    const std::vector<std::string>& InOrder() const { return m_inOrder; }

private:
    std::set<std::string> m_names; // of the document, where texts may be chosen so that their hashes meet
    std::vector<std::string> m_inOrder;
};

void CollectNames(TypedDataContainer& object, std::string_view path, KnownNames& names);

void CollectFromList(const CatalogField& list, TypedDataContainer& object, std::string_view rest, KnownNames& names) {
    const std::size_t length = list.Length(object);
    for (std::size_t i = 0; i < length; ++i) {
        if (rest.empty()) {
            names.Add(list.EntryKey(object, i));
        } else {
            CollectNames(*list.Entry(object, i), rest, names);
        }
    }
}

void CollectNames(TypedDataContainer& object, std::string_view path, KnownNames& names) {
    const std::size_t stroke = path.find('/');
    const std::string_view rest = stroke == std::string_view::npos ? "" : path.substr(stroke + 1);
    const std::optional<CatalogField> field =
        ContainerCatalog::FindField(ContainerCatalog::ClassOf(object), path.substr(0, stroke));
    if (!field.has_value()) {
        return;
    }
    if (field->IsList()) {
        CollectFromList(*field, object, rest, names);
    } else if (field->IsScalar()) {
        names.Add(field->GetText(object));
    } else if (TypedDataContainer* const child = field->GetChild(object)) {
        CollectNames(*child, rest, names);
    }
}

class NameWalk {
public:
    NameWalk(TypedDataContainer& tree, std::string_view root) : m_tree(tree) {
        for (const Reference& reference : references) {
            if (reference.root != root) {
                continue;
            }
            m_references.push_back(&reference);
            if (const auto [known, isNew] = m_names.try_emplace(reference.names); isNew) {
                CollectNames(tree, reference.names, known->second);
                CollectNames(tree, reference.otherNames, known->second);
            }
        }
    }

    std::vector<Message> Run() {
        if (!m_references.empty()) {
            Walk(m_tree);
        }
        return std::move(m_messages);
    }

private:
    struct Field {
        CatalogField catalog;
        const Reference* reference;
    };

    /// The fields that lead on and those that name something. A class is asked once, not for every object.
    const std::vector<Field>& FieldsOf(TypedDataContainer& object) {
        const CatalogClass type = ContainerCatalog::ClassOf(object);
        const auto [known, isNew] = m_fields.try_emplace(type.Name());
        if (isNew) {
            for (const CatalogField& field : type.Fields()) {
                const Reference* const reference = ReferenceOf(type.Name(), field.Name());
                if (reference != nullptr || HoldsContainers(field)) {
                    known->second.push_back({field, reference});
                }
            }
        }
        return known->second;
    }

    const Reference* ReferenceOf(std::string_view owner, std::string_view field) const {
        for (const Reference* const reference : m_references) {
            if (reference->owner == owner && reference->field == field) {
                return reference;
            }
        }
        return nullptr;
    }

    void Walk(TypedDataContainer& object) {
        for (const Field& field : FieldsOf(object)) {
            const std::size_t length = field.catalog.IsList() ? field.catalog.Length(object) : 1;
            for (std::size_t i = 0; i < length; ++i) {
                m_way.push_back({&field.catalog, &object, i});
                if (field.reference != nullptr) {
                    Check(*field.reference,
                          field.catalog.IsList() ? field.catalog.EntryText(object, i) : field.catalog.GetText(object));
                } else if (TypedDataContainer* const below = field.catalog.IsList() ? field.catalog.Entry(object, i)
                                                                                    : field.catalog.GetChild(object)) {
                    Walk(*below);
                }
                m_way.pop_back();
            }
        }
    }

    void Check(const Reference& reference, const std::string& name) {
        const KnownNames& known = m_names.at(reference.names);
        if (name.empty() || known.Has(name)) {
            return;
        }
        Message& message = m_messages.emplace_back();
        message.severity = Severity::Warning;
        message.code = Codes::danglingName;
        message.path = Path();
        message.place = m_origins.OriginOf(m_tree, message.path).Place;
        message.text = std::string(reference.field) + " names the " + std::string(reference.what) + " " +
                       Quoted(name, longestName) + ", which is not in " + std::string(reference.names);
        if (m_messages.size() <= mostWithHelp) {
            message.help = HelpWith(NearestNames(name, known.InOrder()));
        }
    }

    std::string Path() const {
        std::string path;
        for (const Step& step : m_way) {
            path = FieldPath::Join(path, step.field->IsList() ? EntryStep(*step.field, *step.object, step.position)
                                                              : std::string(step.field->Name()));
        }
        return path;
    }

    struct Step {
        const CatalogField* field;
        TypedDataContainer* object;
        std::size_t position;
    };

    /// Names are looked for near the first ones only: no more are read by a person.
    static constexpr std::size_t mostWithHelp = 32;
    static constexpr std::size_t longestName = 60;

    TypedDataContainer& m_tree;
    MergeJournal m_origins; ///< knows where a value stands in its document, also when nothing was merged
    std::vector<const Reference*> m_references;
    std::map<std::string_view, KnownNames> m_names;
    std::map<std::string_view, std::vector<Field>> m_fields;
    std::vector<Step> m_way;
    std::vector<Message> m_messages;
};

} // namespace

std::vector<Message> FindDanglingNames(Source& source) {
    const std::unique_ptr<TypedDataContainer> tree = source.Load();
    return NameWalk(*tree, source.RootName()).Run();
}

} // namespace Lanedoc
