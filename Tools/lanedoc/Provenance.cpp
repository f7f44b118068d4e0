#include "Provenance.h"

#include <map>
#include <unordered_map>
#include <utility>
#include <vector>

#include "JsonValue.h"
#include "MarkupScan.h"
#include "Output.h"
#include "Place.h"
#include "TreeNode.h"

namespace Lanedoc {

namespace {

using Writer = MergeJournal::Writer;

constexpr std::size_t shownOfValue = 48;
constexpr const char* declaration = " xmlns:prov=\"urn:FrameworkDataContainers:provenance:1\"";

/// The text in characters that a document may hold, on one line. The name of a file may be any bytes.
std::string InXml(std::string_view text) {
    const std::string valid = Json(Printable(text)).dump(-1, ' ', false, Json::error_handler_t::replace);
    std::string kept = Json::parse(valid).get<std::string>();
    for (const std::string_view forbidden : {"\xEF\xBF\xBE", "\xEF\xBF\xBF"}) {
        for (std::size_t at = kept.find(forbidden); at != std::string::npos; at = kept.find(forbidden, at)) {
            kept.replace(at, forbidden.size(), "?");
        }
    }
    return kept;
}

/// Two hyphens would end a comment.
std::string InComment(std::string_view text) {
    std::string kept;
    for (const char character : InXml(text)) {
        if (character == '-' && kept.ends_with('-')) {
            kept += ' ';
        }
        kept += character;
    }
    return kept;
}

std::string InAttribute(std::string_view text) {
    std::string escaped;
    for (const char character : InXml(text)) {
        switch (character) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '"':
            escaped += "&quot;";
            break;
        default:
            escaped += character;
        }
    }
    return escaped;
}

class ProvenanceWriter : private MarkupHandler {
public:
    ProvenanceWriter(std::string_view text, const MergeRun& run, Provenance provenance)
        : m_text(text), m_run(run), m_withComments(provenance == Provenance::Comments) {}

    std::string Write() {
        ScanMarkup(m_text, *this);
        m_output += m_text.substr(m_copied);
        return std::move(m_output);
    }

private:
    struct Field {
        CatalogField catalog;
        std::size_t number; ///< of the field in its class
    };
    using Fields = std::unordered_map<std::string_view, Field>;

    /// An element that is open. One that is a value has no object.
    struct Open {
        TypedDataContainer* object = nullptr;
        std::string path{};
        const Fields* fields = nullptr;
        std::vector<std::size_t> met{}; ///< entries, by number of the field
    };

    void StartTag(const ScannedTag& tag) override {
        Open element;
        m_additions.clear();
        if (m_open.empty()) {
            element = OpenContainer(m_run.Tree(), {});
            m_additions = m_withComments ? "" : declaration;
            TellAttributes(element, tag);
        } else if (m_open.back().object != nullptr) {
            element = TakeElement(tag);
        }
        if (!m_additions.empty()) {
            CopyTo(tag.insertion);
            m_output += m_additions;
        }
        if (!tag.isEmpty) {
            m_open.push_back(std::move(element));
        }
    }

    void EndTag() override { m_open.pop_back(); }

    /// An element below a container: what it is in the tree follows from its name and its position among its like.
    Open TakeElement(const ScannedTag& tag) {
        Open& parent = m_open.back();
        const auto found = parent.fields->find(tag.name);
        if (found == parent.fields->end()) {
            return {};
        }
        const CatalogField& field = found->second.catalog;
        std::size_t& next = parent.met[found->second.number];
        TypedDataContainer* container = nullptr;
        std::string path = FieldPath::Join(parent.path, field.Name());
        if (field.IsList()) {
            while (HoldsContainers(field) && next < field.Length(*parent.object) &&
                   field.Entry(*parent.object, next) == nullptr) {
                ++next; // a dump leaves it out
            }
            path = FieldPath::Join(parent.path, EntryStep(field, *parent.object, next));
            container = field.Entry(*parent.object, next++);
        } else if (!field.IsScalar()) {
            container = field.GetChild(*parent.object);
        }
        if (container == nullptr) {
            TellElement(field, path, tag);
            return {};
        }
        Open element = OpenContainer(*container, std::move(path));
        TellAttributes(element, tag);
        return element;
    }

    Open OpenContainer(TypedDataContainer& object, std::string path) {
        const CatalogClass type = ContainerCatalog::ClassOf(object);
        const auto [known, isNew] = m_fields.try_emplace(type.Name());
        if (isNew) {
            for (const CatalogField& field : type.Fields()) {
                known->second.insert({field.Name(), {field, known->second.size()}});
            }
        }
        return {&object, std::move(path), &known->second, std::vector<std::size_t>(known->second.size())};
    }

    void TellElement(const CatalogField& field, const std::string& path, const ScannedTag& tag) {
        const std::optional<Writer> feature = FeatureThatSet(path);
        if (feature.has_value() && m_withComments) {
            AddComment(tag, Chain(field, path));
        } else if (feature.has_value()) {
            m_additions += " prov:from=\"" + InAttribute(feature->FeatureID) + "\" prov:at=\"" +
                           InAttribute(PlaceName(AsNamed(feature->Place))) + '"';
        }
    }

    void TellAttributes(const Open& element, const ScannedTag& tag) {
        for (const ScannedTag::Attribute& attribute : tag.attributes) {
            const auto found = element.fields->find(attribute.name);
            if (found == element.fields->end()) {
                continue;
            }
            const std::string path = FieldPath::Join(element.path, attribute.name);
            const std::optional<Writer> feature = FeatureThatSet(path);
            if (feature.has_value() && m_withComments) {
                AddComment(tag, "@" + std::string(attribute.name) + ": " + Chain(found->second.catalog, path));
            } else if (feature.has_value()) {
                m_additions += " prov:" + std::string(attribute.name) + "=\"" +
                               InAttribute(feature->FeatureID + " " + PlaceName(AsNamed(feature->Place))) + '"';
            }
        }
    }

    /// Nobody set what is only the default again.
    std::optional<Writer> FeatureThatSet(const std::string& path) const {
        Writer origin = m_run.Journal().OriginOf(m_run.Tree(), path);
        const bool isSet = origin.Who == Writer::Kind::Feature && !origin.IsReset;
        return isSet ? std::optional(std::move(origin)) : std::nullopt;
    }

    /// What the value was, step by step.
    std::string Chain(const CatalogField& field, const std::string& path) const {
        std::string chain;
        for (const Writer& writer : m_run.Journal().WritersOf(m_run.Tree(), path)) {
            if (writer.Who != Writer::Kind::Default) {
                chain += (chain.empty() ? "" : " -> ") + Link(field, writer);
            }
        }
        return chain;
    }

    static std::string Link(const CatalogField& field, const Writer& writer) {
        const bool isPlain = field.GetValue() != CatalogField::String && !writer.Value.empty();
        const std::string value = writer.IsRemoval ? "removed"
                                  : isPlain        ? std::string(writer.Value)
                                                   : Quoted(writer.Value, shownOfValue);
        const std::string feature = writer.Who == Writer::Kind::Feature ? " " + writer.FeatureID : "";
        return value + feature + " " + PlaceName(AsNamed(writer.Place));
    }

    void AddComment(const ScannedTag& tag, const std::string& text) {
        const std::string comment = "<!-- " + InComment(text) + " -->";
        const std::size_t lineStart = m_text.rfind('\n', tag.at) + 1;
        const std::string_view indentation = m_text.substr(lineStart, tag.at - lineStart);
        if (indentation.find_first_not_of(' ') == std::string_view::npos) {
            CopyTo(lineStart);
            m_output.append(indentation).append(comment).append("\n");
        } else {
            CopyTo(tag.at);
            m_output += comment;
        }
    }

    void CopyTo(std::size_t end) {
        m_output += m_text.substr(m_copied, end - m_copied);
        m_copied = end;
    }

    std::string_view m_text;
    const MergeRun& m_run;
    bool m_withComments;
    std::map<std::string_view, Fields> m_fields; // by class; references stay good
    std::vector<Open> m_open;
    std::string m_additions; // attributes for the tag that is taken
    std::string m_output;
    std::size_t m_copied = 0; // how far the text is in the output
};

} // namespace

std::string WithProvenance(std::string_view text, const MergeRun& run, Provenance provenance) {
    return provenance == Provenance::None ? std::string(text) : ProvenanceWriter(text, run, provenance).Write();
}

} // namespace Lanedoc
