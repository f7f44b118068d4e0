#include "LostParts.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <unordered_map>

#include "DocumentText.h"
#include "MarkupScan.h"
#include "NearestName.h"

namespace Lanedoc {

namespace {

constexpr std::string_view blanks = " \t\r\n";

/// An element as the fields see it: a container, a single value or text of a list, or unknown.
struct Shape {
    CatalogClass container{}; ///< false for values
    std::string_view keyAttribute{};
    std::unordered_map<std::string_view, const Shape*> elements{};
    std::vector<std::string> names{}; ///< of all fields, for suggestions
    std::vector<std::string_view> attributes{};
};

/// Counts lines and columns up to places that come in order.
class PlaceCounter {
public:
    explicit PlaceCounter(std::string_view text) : m_text(text) {}

    void Advance(std::size_t to) {
        for (; m_at < to; ++m_at) {
            const auto byte = static_cast<unsigned char>(m_text[m_at]);
            if (byte == '\n' || (byte == '\r' && m_text[m_at + 1] != '\n')) {
                ++m_line;
                m_column = 1;
            } else {
                m_column += (byte & 0xC0U) == 0x80U ? 0U : 1U;
            }
        }
    }
    std::size_t Line() const { return m_line; }
    std::size_t Column() const { return m_column; }

private:
    std::string_view m_text;
    std::size_t m_at = 0;
    std::size_t m_line = 1;
    std::size_t m_column = 1;
};

class DocumentScan : private MarkupHandler {
public:
    DocumentScan(std::string_view text, CatalogClass root) : m_text(text), m_place(text), m_root(ShapeOf(root)) {}

    std::vector<LostPart> Run() {
        ScanMarkup(m_text, *this);
        return std::move(m_parts);
    }

private:
    struct Open {
        const Shape* shape;
        std::string_view name;
    };

    const Shape* ShapeOf(CatalogClass container) {
        const auto [known, isNew] = m_shapes.try_emplace(container.Name());
        Shape& shape = known->second; // stays where it is, so that a class may hold itself
        if (isNew) {
            shape.container = container;
            for (const CatalogField& field : container.Fields()) {
                shape.names.emplace_back(field.Name());
                if (field.GetForm() == CatalogField::Attribute) {
                    shape.attributes.push_back(field.Name());
                } else if (field.GetValue() == CatalogField::Container) {
                    shape.elements[field.Name()] = ShapeOf(ContainerCatalog::FindClass(field.ClassName()));
                } else {
                    Shape& value = m_values[field.KeyAttribute()];
                    value.keyAttribute = field.KeyAttribute();
                    shape.elements[field.Name()] = &value;
                }
            }
        }
        return &shape;
    }

    bool IsInUnknown() const { return !m_open.empty() && m_open.back().shape == nullptr; }

    void Note(LostPart::Kind kind, std::string_view name, const Open* owner, std::size_t at) {
        const std::string_view of = owner == nullptr ? std::string_view() : owner->name;
        const auto [known, isNew] = m_known.try_emplace({kind, name, of}, m_parts.size());
        if (isNew) {
            m_place.Advance(at);
            LostPart& part = m_parts.emplace_back();
            part.kind = kind;
            part.name = name;
            part.owner = of;
            part.line = m_place.Line();
            part.column = m_place.Column();
            if (!name.empty() && m_parts.size() <= mostWithNames) {
                part.near = NearestNames(part.name, owner->shape->names);
            }
        }
        ++m_parts[known->second].count;
    }

    void Text(std::size_t begin, std::size_t end) override {
        if (m_open.empty() || IsInUnknown() || !m_open.back().shape->container) {
            return;
        }
        const std::size_t first = m_text.substr(0, end).find_first_not_of(blanks, begin);
        if (first != std::string_view::npos) {
            Note(LostPart::Kind::Text, {}, &m_open.back(), first);
        }
    }

    void Comment(std::size_t at) override { NoteAside(LostPart::Kind::Comment, at); }
    void Instruction(std::size_t at) override { NoteAside(LostPart::Kind::Instruction, at); }

    void NoteAside(LostPart::Kind kind, std::size_t at) {
        if (!IsInUnknown()) {
            Note(kind, {}, nullptr, at);
        }
    }

    void StartTag(const ScannedTag& tag) override {
        Open element{nullptr, tag.name};
        if (m_open.empty()) {
            element.shape = m_root;
        } else if (const Shape* const parent = m_open.back().shape; parent != nullptr) {
            const auto found = parent->elements.find(element.name);
            element.shape = found == parent->elements.end() ? nullptr : found->second;
            if (element.shape == nullptr) {
                Note(LostPart::Kind::Element, element.name, &m_open.back(), tag.at);
            }
        }
        for (const ScannedTag::Attribute& attribute : tag.attributes) {
            if (element.shape != nullptr && !IsKnown(attribute.name, *element.shape)) {
                Note(LostPart::Kind::Attribute, attribute.name, &element, attribute.at);
            }
        }
        if (!tag.isEmpty) {
            m_open.push_back(element);
        }
    }

    void EndTag() override {
        if (!m_open.empty()) {
            m_open.pop_back();
        }
    }

    static bool IsKnown(std::string_view attribute, const Shape& shape) {
        return (!shape.keyAttribute.empty() && attribute == shape.keyAttribute) ||
               std::find(shape.attributes.begin(), shape.attributes.end(), attribute) != shape.attributes.end();
    }

    /// Names are looked for near the first unknown ones only: no more are told of than a person reads.
    static constexpr std::size_t mostWithNames = 32;

    std::string_view m_text;
    PlaceCounter m_place;
    std::map<std::string_view, Shape> m_shapes; // by class
    std::map<std::string_view, Shape> m_values; // by key attribute
    const Shape* m_root;
    std::vector<Open> m_open;
    std::vector<LostPart> m_parts;
    std::map<std::tuple<LostPart::Kind, std::string_view, std::string_view>, std::size_t> m_known;
};

} // namespace

std::vector<LostPart> FindLostParts(std::string_view bytes, CatalogClass root) {
    const std::string text = DocumentText(bytes);
    return DocumentScan(text, root).Run();
}

} // namespace Lanedoc
