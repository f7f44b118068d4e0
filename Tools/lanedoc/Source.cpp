#include "Source.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <string_view>
#include <system_error>

#include <unistd.h>

#include "Failure.h"
#include "Framework/LoadLimits.h"
#include "LimitOption.h"
#include "NearestName.h"
#include "Output.h"

namespace Lanedoc {

namespace {

zelString ReadStandardInput(const std::string& name) {
    const std::size_t most = LoadLimits::Current().bytes;
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
            throw Failure(ExitCode::BadInput, name + ": error: the document has more bytes than the limit of " +
                                                  std::to_string(most) + "; raise it with --limit bytes=NUMBER");
        }
    }
}

} // namespace

std::string WithSeverity(const std::string& text, const std::string& severity, const std::string& name) {
    std::string named = WithLimitOption(text);
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

Source::Source(const std::string& path, Use use) : m_path(path), m_name(path == "-" ? std::string(nameOfInput) : path) {
    const bool readOnly = use == Use::Read;
    const bool loaded = path == "-" ? m_document.LoadXMLText(ReadStandardInput(m_name), readOnly)
                                    : m_document.LoadXMLFile(path.c_str(), readOnly);
    if (!loaded) {
        throw Failure(ExitCode::BadInput, WithSeverity(m_document.GetLastError(), "error", m_name));
    }
    m_root = FindRootElement(std::string(m_document.GetXMLText()));
}

std::string Source::RootPlace() const {
    return Printable(m_name) + ":" + std::to_string(m_root.line) + ":" + std::to_string(m_root.column);
}

std::string Source::Feature() {
    if (m_document.NodeExists("@FeatureID", false)) {
        return m_document.GetStringValue("@FeatureID", false);
    }
    return m_path == "-" ? "stdin" : std::filesystem::path(m_path).stem().string();
}

CatalogClass Source::Class() {
    const CatalogClass known = ContainerCatalog::FindRoot(m_root.name);
    if (!known) {
        std::vector<std::string> roots;
        for (const std::string_view root : ContainerCatalog::Roots()) {
            roots.emplace_back(root);
        }
        const std::vector<std::string> nearest = NearestNames(m_root.name, roots);
        throw Failure(ExitCode::BadInput,
                      RootPlace() + ": error: no document has the root element " + Printable(m_root.name) + "; " +
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
