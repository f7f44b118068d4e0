#pragma once

#include "Framework/XMLSupport/Document.h"
#include "Framework/XMLSupport/TreeEditor.h"

#include <unordered_set>

namespace Framework {

/// Changes the tree of a document that nobody else shares, and notes in its DocumentChanges what to write anew.
class DocumentEditor final : public TreeEditor {
public:
    /// Throws WriteError when the document's bytes could not be given back: its encoding does not convert both ways.
    explicit DocumentEditor(Document& document);

    void SetText(NodeRef element, std::string_view text, TextForm form) override;
    void SetValue(NodeRef attribute, std::string_view value) override;
    void AddAttribute(NodeRef element, std::string_view name, std::string_view value) override;
    void AddElement(const ElementPlace& place, std::string_view name, std::string_view text, TextForm form) override;
    std::optional<std::string_view> Parsed(NodeRef node, TextForm form, std::string& room) const override;
    void Restore(NodeRef node) override;
    bool IsAdded(NodeRef node) const override;
    void Remove(NodeRef node) override;

private:
    using Number = std::uint32_t;
    struct Region {
        Number first = 0; ///< takes the new text; 0 when there is no text
        std::vector<Number> others;
        bool hasSection = false;
    };

    NodeRecord& Record(Number number) { return m_data.nodes[number]; }
    const NodeRecord& Record(Number number) const { return m_data.nodes[number]; }
    Region TextRegion(Number element, TextForm form) const;
    Number OnlyText(Number element) const;
    void Touch(Number element);
    void RememberTexts(Number element, Number first);
    void TakeOverBlanks(Number element) noexcept;
    std::unordered_set<Number> BlanksOfAdded(Number element) const;
    std::vector<Number> ParsedTexts(Number element) const;
    std::vector<Number> StandingTexts(Number element) const;
    Number OnlyParsedText(Number element) const;
    const NodeRecord& ParsedRecord(Number number) const;
    void RestoreText(Number element);
    void RestoreLeaf(Number number) noexcept;

    Number NewNode(NodeKind kind, Number parent, Number begin);
    Number NewText(std::string_view text, NodeKind kind, Number parent, Number begin);
    Number NewValue(std::string_view text, const NodeRecord& parsed);
    void Keep(Number number);
    void Write(Number number, std::string_view text);
    void ReleaseValue(NodeRecord& record) noexcept;
    void ReleaseNode(Number number) noexcept;
    Number PlaceBefore(Number parent, Number next) const;

    Document& m_document;
    DocumentData& m_data;
    DocumentChanges& m_changes;
};

} // namespace Framework
