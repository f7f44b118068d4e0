#include "Framework/XMLSupport/DocumentWriter.h"

#include "Framework/XMLSupport/LoadsAgain.h"
#include "Framework/XMLSupport/XmlEscapes.h"
#include "Framework/XMLSupport/XmlWriter.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace Framework {

namespace {

/// A stretch of the source and what stands there now, a stretch of the written texts.
struct Patch {
    std::uint32_t begin;
    std::uint32_t end;
    std::size_t textBegin;
    std::size_t textEnd;
};

struct Patches {
    std::vector<Patch> inOrder;
    std::string texts;
};

/// The first line end of the document, which new lines are written with.
std::string_view LineEndOf(std::string_view text) {
    const std::size_t at = text.find_first_of("\r\n");
    if (at == std::string_view::npos || text[at] == '\n') {
        return "\n";
    }
    return text.substr(at, text.substr(at, 2) == "\r\n" ? 2 : 1);
}

/// Compares what was changed with the source, element by element, and notes the differences.
class PatchMaker {
public:
    explicit PatchMaker(const DocumentData& data)
        : m_data(data), m_lineEnd(LineEndOf(data.source.text)), m_characters(data.source.encoding) {}

    Patches Make() {
        std::vector<std::uint32_t> touched = m_data.changes.touched;
        SortEachOnce(touched);
        for (std::size_t i = 0; i < touched.size(); ++i) {
            FetchAhead(touched, i);
            PatchAttributes(touched[i]);
            PatchRemoved(touched[i]);
            PatchChildren(touched[i]);
        }
        const auto isBefore = [](const Patch& left, const Patch& right) {
            return std::tie(left.begin, left.end) < std::tie(right.begin, right.end);
        };
        std::vector<Patch>& patches = m_made.inOrder;
        if (!std::is_sorted(patches.begin(), patches.end(), isBefore)) {
            std::sort(patches.begin(), patches.end(), isBefore);
        }
        return std::move(m_made);
    }

private:
    const NodeRecord& Record(std::uint32_t number) const { return m_data.nodes[number]; }
    bool IsAdded(std::uint32_t number) const { return number >= m_data.changes.parsedNodes; }
    std::string_view Value(const NodeRecord& record) const {
        return m_data.changes.values[record.leaf.valueBegin].text;
    }

    /// Elements that were changed lie far apart, and so do their new texts. What the next ones need is asked for while
    /// the one at `at` is compared, each place as soon as it is known where it is.
    [[gnu::always_inline]] void FetchAhead(const std::vector<std::uint32_t>& touched, std::size_t at) const {
        constexpr std::size_t each = 4;
        const auto firstChild = [&](std::size_t i) { return Record(touched[i]).inner.firstChild; };
        const auto isWritten = [&](std::size_t i) {
            const NodeRecord& child = Record(firstChild(i));
            return child.IsText() && child.leaf.holder == ValueHolder::Written;
        };
        if (at + 4 * each < touched.size()) {
            __builtin_prefetch(&Record(touched[at + 4 * each]));
        }
        if (at + 3 * each < touched.size()) {
            __builtin_prefetch(&Record(firstChild(at + 3 * each)));
        }
        if (at + 2 * each < touched.size() && isWritten(at + 2 * each)) {
            __builtin_prefetch(&m_data.changes.values[Record(firstChild(at + 2 * each)).leaf.valueBegin]);
        }
        if (at + each < touched.size() && isWritten(at + each)) {
            const std::string_view text = Value(Record(firstChild(at + each)));
            __builtin_prefetch(text.data());
            __builtin_prefetch(text.data() + 64);
        }
    }

    /// What was appended to the texts since they ended at `textBegin` takes the place of a stretch of the source.
    void Replace(std::uint32_t begin, std::uint32_t end, std::size_t textBegin) {
        m_made.inOrder.push_back({begin, end, textBegin, m_made.texts.size()});
    }

    void PatchAttributes(std::uint32_t element) {
        const std::string_view source = m_data.source.text;
        const auto nameSize = m_data.names.Name(Record(element).name).size();
        std::uint32_t end = Record(element).begin + 1 + static_cast<std::uint32_t>(nameSize);
        std::string_view blanks;
        char quote = '"';
        std::uint32_t each = Record(element).inner.firstAttribute;
        for (; each != 0 && !IsAdded(each); each = Record(each).next) {
            const NodeRecord& record = Record(each);
            blanks = source.substr(end, record.begin - end);
            quote = source[record.end - 1];
            end = record.end;
            if (record.leaf.holder == ValueHolder::Written) {
                const std::size_t textBegin = m_made.texts.size();
                AppendAttribute(m_made.texts, Value(record), quote);
                Replace(m_data.RawBegin(record), record.end - 1, textBegin);
            }
        }
        const std::size_t textBegin = m_made.texts.size();
        for (; each != 0; each = Record(each).next) {
            m_made.texts.append(Separator(blanks))
                .append(m_data.names.Name(Record(each).name))
                .append(1, '=')
                .append(1, quote);
            AppendAttribute(m_made.texts, Value(Record(each)), quote);
            m_made.texts.push_back(quote);
        }
        if (m_made.texts.size() > textBegin) {
            Replace(end, end, textBegin);
        }
    }

    /// A new attribute stands on a line of its own where the last one does.
    static std::string_view Separator(std::string_view blanks) {
        std::size_t line = blanks.find_last_of("\r\n");
        if (line == std::string_view::npos) {
            return " ";
        }
        line -= line > 0 && blanks.substr(line - 1, 2) == "\r\n" ? 1 : 0;
        return blanks.substr(line);
    }

    /// Texts that went when another took their place.
    void PatchRemoved(std::uint32_t element) {
        const auto texts = m_data.changes.texts.find(element);
        if (texts == m_data.changes.texts.end()) {
            return;
        }
        for (const std::uint32_t number : texts->second) {
            if (Record(number).kind == NodeKind::None) {
                Replace(Record(number).begin, Record(number).end, m_made.texts.size());
            }
        }
    }

    /// Texts that were changed, and every run of added children as one insertion.
    void PatchChildren(std::uint32_t element) {
        std::uint32_t at = 0; // behind the start tag, which is looked for when it is needed
        std::string run;
        for (std::uint32_t child = Record(element).inner.firstChild; child != 0; child = Record(child).next) {
            const NodeRecord& record = Record(child);
            if (IsAdded(child)) {
                AppendAdded(run, child);
                continue;
            }
            Insert(element, at, run);
            at = record.end;
            if (record.IsText() && record.leaf.holder == ValueHolder::Written) {
                const std::size_t textBegin = m_made.texts.size();
                AppendLeaf(m_made.texts, record);
                GiveLineEnds(textBegin);
                Replace(record.begin, record.end, textBegin);
            }
        }
        Insert(element, at, run);
    }

    void Insert(std::uint32_t element, std::uint32_t at, std::string& run) {
        if (run.empty()) {
            return;
        }
        bool isClosed = false; // <a/>
        if (at == 0) {
            at = m_data.StartTagEnd(element);
            isClosed = at == Record(element).end;
        }
        const std::size_t textBegin = m_made.texts.size();
        m_made.texts.append(isClosed ? ">" : "").append(std::exchange(run, {}));
        GiveLineEnds(textBegin);
        if (isClosed) {
            m_made.texts.append("</").append(m_data.names.Name(Record(element).name)).append(1, '>');
        }
        Replace(isClosed ? at - 2 : at, at, textBegin);
    }

    void AppendAdded(std::string& xml, std::uint32_t number) {
        const NodeRecord& record = Record(number);
        if (record.kind != NodeKind::Element) {
            AppendLeaf(xml, record);
            return;
        }
        const std::string_view name = m_data.names.Name(record.name);
        xml.append(1, '<').append(name);
        for (std::uint32_t each = record.inner.firstAttribute; each != 0; each = Record(each).next) {
            xml.append(1, ' ').append(m_data.names.Name(Record(each).name)).append("=\"");
            AppendAttribute(xml, Value(Record(each)), '"');
            xml.push_back('"');
        }
        if (record.inner.firstChild == 0) {
            xml.append("/>");
            return;
        }
        xml.push_back('>');
        for (std::uint32_t child = record.inner.firstChild; child != 0; child = Record(child).next) {
            AppendAdded(xml, child); // what was added is two levels deep at most
        }
        xml.append("</").append(name).push_back('>');
    }

    void AppendLeaf(std::string& xml, const NodeRecord& record) {
        if (record.kind == NodeKind::CData) {
            AppendPieces(xml, Value(record), [&](std::string_view piece) { AppendCData(xml, piece); });
        } else {
            AppendPieces(xml, Value(record), [&](std::string_view piece) { AppendEscapedText(xml, piece); });
        }
    }

    void AppendAttribute(std::string& xml, std::string_view value, char quote) {
        AppendPieces(xml, value, [&](std::string_view piece) { AppendEscapedAttribute(xml, piece, quote); });
    }

    /// Between the pieces stand the characters that the encoding lacks, as references.
    template <typename Append> void AppendPieces(std::string& xml, std::string_view text, Append append) {
        for (std::size_t at; (at = m_characters.FindMissing(text)) != std::string_view::npos;) {
            append(text.substr(0, at));
            const auto lead = static_cast<unsigned char>(text[at]);
            const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
            std::uint32_t code = length == 1 ? lead : lead & (0x7FU >> length);
            for (std::size_t i = 1; i < length; ++i) {
                code = (code << 6U) | (static_cast<unsigned char>(text[at + i]) & 0x3FU);
            }
            xml.append("&#").append(std::to_string(code)).push_back(';');
            text.remove_prefix(at + length);
        }
        append(text);
    }

    void GiveLineEnds(std::size_t textBegin) {
        if (m_lineEnd == "\n") {
            return;
        }
        const std::string text = m_made.texts.substr(textBegin);
        m_made.texts.resize(textBegin);
        for (const char character : text) {
            if (character == '\n') {
                m_made.texts.append(m_lineEnd);
            } else {
                m_made.texts.push_back(character);
            }
        }
    }

    const DocumentData& m_data;
    std::string_view m_lineEnd;
    EncodedCharacters m_characters;
    Patches m_made;
};

std::string Apply(const std::string& source, const Patches& patches) {
    std::string text;
    text.reserve(source.size() + patches.texts.size());
    std::size_t at = 0;
    for (const Patch& patch : patches.inOrder) {
        text.append(source, at, patch.begin - at);
        text.append(patches.texts, patch.textBegin, patch.textEnd - patch.textBegin);
        at = patch.end;
    }
    return text.append(source, at);
}

std::string Encode(const DocumentData& data, std::string text) {
    const DecodedText& source = data.source;
    if (source.encoding == "UTF-8" && !source.byteOrderMark) {
        return text;
    }
    std::optional<std::string> bytes = EncodeDocument(text, source.encoding, source.byteOrderMark);
    if (!bytes.has_value()) {
        throw WriteError("cannot write " + data.sourceName + ": a name holds a character that the encoding " +
                         source.encoding + " lacks");
    }
    return std::move(*bytes);
}

} // namespace

std::string WriteDocument(const DocumentData& data) {
    const DecodedText& source = data.source;
    if (!source.original.empty()) {
        return source.original;
    }
    if (!data.changes.any && !source.byteOrderMark) {
        return source.text;
    }
    const Patches patches = PatchMaker(data).Make();
    if (patches.inOrder.empty()) {
        return Encode(data, source.text);
    }
    std::string text = Apply(data.source.text, patches);
    CheckTagsLoadAgain(text, data.sourceName);
    std::string bytes = Encode(data, std::move(text));
    CheckSizeLoadsAgain(bytes.size(), data.sourceName);
    return bytes;
}

} // namespace Framework
