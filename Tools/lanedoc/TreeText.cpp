#include "TreeText.h"

#include <algorithm>
#include <vector>

namespace Lanedoc {

namespace {

class TextPrinter {
public:
    TextPrinter(bool defaults, const Style& style) : m_defaults(defaults), m_style(style) {}

    std::string Print(const TreeNode& node, const std::string& rootName) {
        const std::string title = node.path.empty() ? rootName : node.path;
        switch (node.kind) {
        case TreeNode::Kind::Container:
            PrintContainer(title, *node.object, 0);
            break;
        case TreeNode::Kind::List:
            PrintBlock(*node.object, {*node.field}, 0);
            break;
        case TreeNode::Kind::Scalar:
            PrintLine(title, Scalar(*node.field, *node.object), Width(title), 0);
            break;
        case TreeNode::Kind::Text:
            PrintLine(title, {node.field->EntryText(*node.object, node.position), IsWord(*node.field), false},
                      Width(title), 0);
            break;
        }
        return std::move(m_text);
    }

private:
    struct Value {
        std::string text;
        bool isPlain = false; ///< a number, a bool or a word: shown without quotes
        bool isDefault = false;
    };

    static bool IsWord(const CatalogField& field) { return field.GetValue() != CatalogField::String; }

    Value Scalar(const CatalogField& field, TypedDataContainer& object) const {
        Value value{field.GetText(object), IsWord(field), !field.StandsInDocument(object)};
        // A number outside of the vocabulary has no word.
        value.isPlain = value.isPlain && !value.text.empty();
        return value;
    }

    void PrintLine(const std::string& step, const Value& value, std::size_t width, std::size_t depth) {
        m_text.append(2 * depth, ' ');
        const std::string shown = value.isPlain ? Printable(value.text) : Quoted(value.text);
        const std::string name = Printable(step) + std::string(width - std::min(width, Width(step)) + 2, ' ');
        if (value.isDefault) {
            m_text += m_style.Dim(name + shown + "  (default)");
        } else {
            m_text += name + (value.isPlain ? m_style.Cyan(shown) : m_style.Green(shown));
        }
        m_text += '\n';
    }

    void PrintContainer(const std::string& step, TypedDataContainer& object, std::size_t depth) {
        const CatalogClass container = ContainerCatalog::ClassOf(object);
        m_text.append(2 * depth, ' ');
        m_text += m_style.Bold(Printable(step)) + "  " + m_style.Dim(container.Name()) + '\n';
        PrintBlock(object, container.Fields(), depth + 1);
    }

    bool IsShown(const CatalogField& field, TypedDataContainer& object) const {
        return m_defaults || !field.IsScalar() || field.StandsInDocument(object);
    }

    /// Width of the column of names: that of the widest field that stands on a line of its own.
    std::size_t NameWidth(TypedDataContainer& object, const std::vector<CatalogField>& fields) const {
        std::size_t width = 0;
        for (const CatalogField& field : fields) {
            if (field.IsScalar() && IsShown(field, object)) {
                width = std::max(width, Width(field.Name()));
            } else if (field.IsList() && !HoldsContainers(field)) {
                for (std::size_t i = 0; i < field.Length(object); ++i) {
                    width = std::max(width, Width(EntryStep(field, object, i)));
                }
            }
        }
        // One long key must not push all other values out of sight.
        return std::min<std::size_t>(width, 40);
    }

    void PrintBlock(TypedDataContainer& object, const std::vector<CatalogField>& fields, std::size_t depth) {
        const std::size_t width = NameWidth(object, fields);
        // The object's own values first: behind long lists nobody would see whose they are.
        for (const CatalogField& field : fields) {
            if (field.IsScalar() && IsShown(field, object)) {
                PrintLine(std::string(field.Name()), Scalar(field, object), width, depth);
            }
        }
        for (const CatalogField& field : fields) {
            if (field.IsList()) {
                PrintList(field, object, width, depth);
            } else if (TypedDataContainer* const child = field.IsScalar() ? nullptr : field.GetChild(object)) {
                PrintContainer(std::string(field.Name()), *child, depth);
            }
        }
    }

    void PrintList(const CatalogField& list, TypedDataContainer& object, std::size_t width, std::size_t depth) {
        for (std::size_t i = 0; i < list.Length(object); ++i) {
            const std::string step = EntryStep(list, object, i);
            if (!HoldsContainers(list)) {
                PrintLine(step, {list.EntryText(object, i), IsWord(list), false}, width, depth);
            } else if (TypedDataContainer* const entry = list.Entry(object, i)) {
                PrintContainer(step, *entry, depth);
            }
        }
    }

    bool m_defaults;
    const Style& m_style;
    std::string m_text;
};

} // namespace

std::string TreeAsText(const TreeNode& node, const std::string& rootName, bool defaults, const Style& style) {
    return TextPrinter(defaults, style).Print(node, rootName);
}

} // namespace Lanedoc
