#include "Messages.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>
#include <utility>

#include "DocumentText.h"
#include "PlaceText.h"

namespace Lanedoc {

namespace {

/// `file:line:col: kind: text`, the parts that there are.
std::string Headed(const DocumentPlace& place, const std::string& kind, const std::string& text, const Style& style) {
    const std::string at = PlaceText(place);
    return (at.empty() ? "" : style.Bold(at) + " ") + kind + " " + Printable(text);
}

/// Empty unless it is a file that can be read once more.
std::string ReadFile(const std::string& path) {
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(path, ignored)) {
        return {};
    }
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string Counted(std::size_t count, const std::string& what) {
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

} // namespace

Messages::Messages(const Style& style, std::size_t most, Writer write)
    : m_style(style), m_most(most), m_write(std::move(write)) {
    if (!m_write) {
        m_write = [](const std::string& lines) { Say(lines); };
    }
}

void Messages::AddSource(Source& source) {
    const auto read = [&source] { return std::string(source.Document().GetXMLText()); };
    m_sources.insert_or_assign(source.Name(), Known{read});
}

void Messages::AddFile(const std::string& path) {
    m_sources.insert_or_assign(path, Known{[path] { return ReadFile(path); }});
}

std::string Messages::Excerpt(const DocumentPlace& place) {
    const auto known = m_sources.find(place.File);
    if (!place.IsKnown() || known == m_sources.end()) {
        return {};
    }
    if (!known->second.lines.has_value()) {
        known->second.lines.emplace(DocumentText(known->second.read()));
    }
    return known->second.lines->Excerpt(place, m_style);
}

void Messages::Tell(const Message& message) {
    const bool isError = message.severity == Severity::Error;
    if (const std::size_t count = ++(isError ? m_errors : m_warnings); m_most > 0 && count > m_most) {
        ++m_hidden;
        return;
    }
    const std::string kind = std::string(SeverityName(message.severity)) + ":";
    std::string lines =
        Headed(message.place, isError ? m_style.Red(kind) : m_style.Magenta(kind), message.text, m_style);
    lines += message.code.empty() ? "" : " " + m_style.Dim("[" + message.code + "]");
    lines += Excerpt(message.place);
    for (const Message::Note& note : message.notes) {
        lines += "\n" + Headed(note.place, m_style.Cyan("note:"), note.text, m_style);
    }
    lines += message.help.empty() ? "" : "\n" + m_style.Green("help:") + " " + Printable(message.help);
    m_write(lines);
}

void Messages::TellCount() {
    if (m_errors + m_warnings == 0) {
        return;
    }
    std::string line = m_errors == 0 ? "" : Counted(m_errors, "error");
    line += m_warnings == 0 ? "" : (line.empty() ? "" : ", ") + Counted(m_warnings, "warning");
    m_write(line + (m_hidden == 0 ? "" : " (" + std::to_string(m_hidden) + " not shown; --max-errors 0 shows all)"));
}

} // namespace Lanedoc
