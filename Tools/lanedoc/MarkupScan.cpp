#include "MarkupScan.h"

#include <algorithm>

namespace Lanedoc {

namespace {

constexpr std::string_view blanks = " \t\r\n";

class Scan {
public:
    Scan(std::string_view text, MarkupHandler& handler) : m_text(text), m_handler(handler) {}

    void Run() {
        std::size_t at = 0;
        while (true) {
            const std::size_t markup = std::min(m_text.find('<', at), m_text.size());
            if (markup > at) {
                m_handler.Text(at, markup);
            }
            if (markup == m_text.size()) {
                return;
            }
            at = TakeMarkup(markup);
        }
    }

private:
    /// Takes what begins at a "<", and returns where it ends.
    std::size_t TakeMarkup(std::size_t at) {
        const std::string_view rest = m_text.substr(at);
        if (rest.starts_with("<!--")) {
            m_handler.Comment(at);
            return EndOf("-->", at + 4);
        }
        if (rest.starts_with("<![CDATA[")) {
            const std::size_t end = EndOf("]]>", at + 9);
            m_handler.Text(at + 9, end - 3);
            return end;
        }
        if (rest.starts_with("<?")) {
            const bool isDeclaration = rest.starts_with("<?xml") && rest.find_first_of(blanks) == 5;
            if (!isDeclaration) {
                m_handler.Instruction(at);
            }
            return EndOf("?>", at + 2);
        }
        if (rest.starts_with("</")) {
            m_handler.EndTag();
            return EndOf(">", at + 2);
        }
        return TakeStartTag(at);
    }

    std::size_t EndOf(std::string_view mark, std::size_t from) const {
        const std::size_t found = m_text.find(mark, from);
        return found == std::string_view::npos ? m_text.size() : found + mark.size();
    }

    std::size_t TakeStartTag(std::size_t at) {
        ScannedTag tag;
        tag.at = at;
        tag.insertion = std::min(m_text.find_first_of(" \t\r\n/>", at), m_text.size());
        tag.name = m_text.substr(at + 1, tag.insertion - at - 1);
        std::size_t next = m_text.find_first_not_of(blanks, tag.insertion);
        while (next < m_text.size() && m_text[next] != '>' && m_text[next] != '/') {
            const std::size_t equals = std::min(m_text.find('=', next), m_text.size());
            tag.attributes.push_back({m_text.substr(next, m_text.find_first_of(" \t\r\n=", next) - next), next});
            const std::size_t quote = std::min(m_text.find_first_of("\"'", equals), m_text.size() - 1);
            tag.insertion = EndOf(m_text.substr(quote, 1), quote + 1);
            next = m_text.find_first_not_of(blanks, tag.insertion);
        }
        tag.isEmpty = next < m_text.size() && m_text[next] == '/';
        m_handler.StartTag(tag);
        return next < m_text.size() ? EndOf(">", next) : m_text.size();
    }

    std::string_view m_text;
    MarkupHandler& m_handler;
};

} // namespace

void ScanMarkup(std::string_view text, MarkupHandler& handler) {
    Scan(text, handler).Run();
}

} // namespace Lanedoc
