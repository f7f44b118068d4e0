#include "JsonStream.h"

namespace Lanedoc {

namespace {

constexpr std::size_t pieceSize = std::size_t{1} << 16U;

} // namespace

void JsonStream::Close() {
    const Level level = m_levels.back();
    m_levels.pop_back();
    if (!level.isEmpty) {
        BeginLine();
    }
    m_text += level.end;
    if (m_levels.empty()) {
        m_text += '\n';
    }
    WriteFrom(m_levels.empty() ? 0 : pieceSize);
}

void JsonStream::Open(std::string_view brackets, std::string_view key) {
    BeginEntry(key);
    m_text += brackets.front();
    m_levels.push_back({brackets.back()});
}

void JsonStream::AddEntry(std::string_view key, const Json& value) {
    BeginEntry(key);
    // In texts they are escaped, so whatever line ends there are belong to the layout.
    for (const char character : JsonText(value)) {
        if (character == '\n') {
            BeginLine();
        } else {
            m_text += character;
        }
    }
    WriteFrom(pieceSize);
}

void JsonStream::BeginEntry(std::string_view key) {
    if (m_levels.empty()) {
        return;
    }
    Level& level = m_levels.back();
    if (!level.isEmpty) {
        m_text += ',';
    }
    level.isEmpty = false;
    BeginLine();
    if (!key.empty()) {
        m_text += JsonText(key) + ": ";
    }
}

void JsonStream::BeginLine() {
    m_text += '\n';
    m_text.append(2 * m_levels.size(), ' ');
}

void JsonStream::WriteFrom(std::size_t size) {
    if (m_text.size() >= size) {
        m_write(m_text);
        m_text.clear();
    }
}

} // namespace Lanedoc
