#include "Source.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <string_view>
#include <system_error>

#include <unistd.h>
#include <xalanc/XalanDOM/XalanDOMString.hpp>
#include <xalanc/XalanDOM/XalanNode.hpp>

#include "Failure.h"
#include "Framework/LoadLimits.h"
#include "NearestName.h"
#include "Output.h"

namespace Lanedoc {

namespace {

constexpr std::string_view nameOfTexts = "<text>";

zelString ReadStandardInput(const std::string& name) {
    const std::size_t most = LoadLimits::Default().bytes;
    std::string text;
    std::string piece(std::size_t{1} << 16U, '\0');
    while (true) {
        const ssize_t length = ::read(STDIN_FILENO, piece.data(), piece.size());
        if (length < 0 && errno == EINTR) {
            continue;
        }
        if (length < 0) {
            throw Failure(ExitCode::BadInput, name + ": error: cannot read: " + std::generic_category().message(errno));
        }
        if (length == 0) {
            return text;
        }
        text.append(piece, 0, static_cast<std::size_t>(length));
        if (text.size() > most) {
            throw Failure(ExitCode::BadInput,
                          name + ": error: more than " + std::to_string(most) + " bytes, the most that is read");
        }
    }
}

std::string RootNameOf(XMLDataWrapper& document) {
    const XalanNode* const root = document.GetXalanNode("", false);
    if (root == nullptr) {
        return {};
    }
    const auto& name = root->getNodeName();
    const std::basic_string<XalanDOMChar> text(name.begin(), name.begin() + name.length());
    return XMLDataWrapper::zelStringFromXalanDOMChar(text.c_str());
}

/// Offset of the first start tag of a well-formed text without a DOCTYPE, or npos.
std::size_t FindRoot(std::string_view text) {
    std::size_t at = text.find('<');
    while (at != std::string_view::npos && at + 1 < text.size() && (text[at + 1] == '!' || text[at + 1] == '?')) {
        const std::string_view close = text[at + 1] == '!' ? "-->" : "?>";
        const std::size_t end = text.find(close, at + 2);
        at = end == std::string_view::npos ? end : text.find('<', end);
    }
    return at;
}

} // namespace

std::string WithSeverity(const std::string& text, const std::string& severity, const std::string& name) {
    std::string named = text;
    if (named.starts_with(nameOfTexts)) {
        named.replace(0, nameOfTexts.size(), name);
    }
    if (!named.starts_with(name + ":")) {
        return Printable(name + ": " + severity + ": " + named);
    }
    // Behind the place, which is `:digits:digits` or nothing.
    std::size_t at = name.size() + 1;
    for (int number = 0; number < 2; ++number) {
        const std::size_t end = std::min(named.find_first_not_of("0123456789", at), named.size());
        if (end == at || end == named.size() || named[end] != ':') {
            break;
        }
        at = end + 1;
    }
    const std::size_t rest = std::min(named.find_first_not_of(' ', at), named.size());
    return Printable(named.substr(0, at) + " " + severity + ": " + named.substr(rest));
}

Source::Source(const std::string& path) : m_path(path), m_name(path == "-" ? "<stdin>" : path) {
    const bool loaded = path == "-" ? m_document.LoadXMLText(ReadStandardInput(m_name), true)
                                    : m_document.LoadXMLFile(path.c_str(), true);
    if (!loaded) {
        throw Failure(ExitCode::BadInput, WithSeverity(m_document.GetLastError(), "error", m_name));
    }
    m_rootName = RootNameOf(m_document);
}

std::string Source::RootPlace() {
    const zelString text = m_document.GetXMLText();
    const std::size_t at = FindRoot(text);
    if (at == std::string::npos || text.find('\0') != std::string::npos) {
        return Printable(m_name);
    }
    std::size_t lines = 1;
    std::size_t lineStart = text.starts_with("\xEF\xBB\xBF") ? 3 : 0;
    for (std::size_t i = 0; i < at; ++i) {
        if (text[i] == '\n' || (text[i] == '\r' && text[i + 1] != '\n')) {
            ++lines;
            lineStart = i + 1;
        }
    }
    const std::size_t column = Width(text.substr(lineStart, at - lineStart)) + 1;
    return Printable(m_name) + ":" + std::to_string(lines) + ":" + std::to_string(column);
}

std::string Source::Feature() {
    if (m_document.NodeExists("@FeatureID", false)) {
        return m_document.GetStringValue("@FeatureID", false);
    }
    return m_path == "-" ? "stdin" : std::filesystem::path(m_path).stem().string();
}

CatalogClass Source::Class() {
    const CatalogClass known = ContainerCatalog::FindRoot(m_rootName);
    if (!known) {
        std::vector<std::string> roots;
        for (const std::string_view root : ContainerCatalog::Roots()) {
            roots.emplace_back(root);
        }
        const std::vector<std::string> nearest = NearestNames(m_rootName, roots);
        throw Failure(ExitCode::BadInput,
                      RootPlace() + ": error: no document has the root element " + Printable(m_rootName) + "; " +
                          (nearest.empty() ? "expected one of " + JoinNames(roots, 100) : DidYouMean(nearest)));
    }
    return known;
}

std::unique_ptr<TypedDataContainer> Source::Load() {
    std::unique_ptr<TypedDataContainer> tree = Class().Create(false);
    m_document.SetCurrentNode(nullptr);
    if (!tree->LoadFromDataPacket(nullptr, &m_document, false)) {
        throw Failure(ExitCode::BadInput, WithSeverity(tree->GetLastError(), "error", m_name));
    }
    return tree;
}

} // namespace Lanedoc
