#pragma once

#include "Framework/LoadLimits.h"
#include "Framework/XMLSupport/DocumentData.h"
#include "Framework/XMLSupport/TextPlaces.h"

#include <string_view>

namespace Framework {

/// Puts the tree of a document together from parser events in document order, and refuses it (ParseError) where it
/// passes the limits that are its own: depth, nodes, memory of the tree. Ranges are those of the events in the source;
/// texts are what the parser made of them.
class DocumentBuilder {
public:
    DocumentBuilder(DocumentData& data, const LoadLimits& limits);

    /// `attributes`: name, value, name, value ... and a null, in the order of the tag.
    void StartElement(std::string_view name, const char* const* attributes, ByteRange tag);
    void EndElement(std::uint32_t end);
    /// A piece of a text or of the CDATA section that is open; pieces without markup between them become one node.
    void Text(std::string_view piece, ByteRange range);
    void StartSection(ByteRange range);
    void EndSection(ByteRange range);
    void Comment(std::string_view text, ByteRange range);
    void Instruction(std::string_view target, std::string_view content, ByteRange range);

    /// The innermost element whose end has not come, 0 outside the root.
    std::uint32_t OpenElement() const { return m_depth == 0 ? 0 : m_parent; }
    bool IsInSection() const { return m_run.kind == NodeKind::CData; }
    /// Where the open section begins.
    std::uint32_t SectionBegin() const { return m_run.begin; }

private:
    struct Run {
        NodeKind kind = NodeKind::None; // None: no text is being joined
        std::uint32_t begin = 0;
        std::uint32_t end = 0;
        std::uint32_t valueBegin = 0; // in the source, or in the pool once a piece had to go there
        bool inPool = false;
    };

    std::uint32_t Add(NodeKind kind, ByteRange range);
    std::uint32_t AddChild(NodeKind kind, ByteRange range);
    void AddAttributes(std::uint32_t element, const char* const* attributes, std::uint32_t at);
    void CloseChildren();
    void SetValue(NodeRecord& record, std::string_view value, ByteRange raw);
    void FlushRun();
    void AddToPool(std::string_view text, std::size_t consumed);
    void MakeRoom(std::size_t consumed);
    double ShareOf(std::size_t consumed) const;
    std::uint32_t SkipBlanks(std::uint32_t at) const;

    DocumentData& m_data;
    const LoadLimits& m_limits;
    std::uint32_t m_parent = DocumentData::kDocumentNode;
    std::uint32_t m_lastChild = 0; ///< of m_parent
    std::size_t m_depth = 0;
    Run m_run;
};

} // namespace Framework
