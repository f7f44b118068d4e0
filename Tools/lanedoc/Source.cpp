#include "Source.h"

#include <cerrno>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>

#include <unistd.h>

#include "Framework/LoadLimits.h"
#include "InputFailure.h"
#include "MessageCodes.h"
#include "NearestName.h"
#include "Output.h"
#include "PlaceText.h"

namespace Lanedoc {

namespace {

InputFailure Refusal(std::string_view code, DocumentPlace place, std::string text, std::string help = {}) {
    Message message;
    message.code = code;
    message.place = std::move(place);
    message.text = std::move(text);
    message.help = std::move(help);
    return InputFailure(std::move(message));
}

zelString ReadStandardInput(const std::string& name) {
    const auto refuse = [&](const std::string& text) { throw Refusal(Codes::notReadable, {name, 0, 0, 0}, text); };
    const std::size_t most = LoadLimits::Current().bytes;
    std::string text;
    std::string piece(std::size_t{1} << 16U, '\0');
    while (true) {
        const ssize_t length = ::read(STDIN_FILENO, piece.data(), piece.size());
        if (length < 0 && errno == EINTR) {
            continue;
        }
        if (length < 0) {
            refuse("cannot read: " + std::generic_category().message(errno));
        }
        if (length == 0) {
            return text;
        }
        text.append(piece, 0, static_cast<std::size_t>(length));
        if (text.size() > most) {
            refuse("the document has more bytes than the limit of " + std::to_string(most) +
                   "; raise it with --limit bytes=NUMBER");
        }
    }
}

} // namespace

std::string WithSeverity(const std::string& text, const std::string& severity, const std::string& name) {
    const LocatedText located = ReadPlace(text, name);
    return PlaceText(located.place) + " " + severity + ": " + Printable(located.text);
}

Source::Source(const std::string& path, Use use) : m_path(path), m_name(path == "-" ? std::string(nameOfInput) : path) {
    const bool readOnly = use == Use::Read;
    const bool loaded = path == "-" ? m_document.LoadXMLText(ReadStandardInput(m_name), readOnly)
                                    : m_document.LoadXMLFile(path.c_str(), readOnly);
    if (!loaded) {
        LocatedText refusal = ReadPlace(m_document.GetLastError(), m_name);
        const std::string_view code = refusal.place.IsKnown() ? Codes::notWellFormed : Codes::notReadable;
        throw Refusal(code, std::move(refusal.place), std::move(refusal.text));
    }
    m_root = FindRootElement(std::string(m_document.GetXMLText()));
}

DocumentPlace Source::PlaceOfRoot() const {
    const auto number = [](std::size_t value) { return static_cast<unsigned int>(value); };
    return {m_name, number(m_root.line), number(m_root.column), number(Width(m_root.name) + 1)};
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
        const std::string expected = nearest.empty() ? ", expected one of " + JoinNames(roots, 100) : "";
        throw Refusal(Codes::unknownRoot, PlaceOfRoot(), "no document has the root element " + m_root.name + expected,
                      HelpWith(nearest));
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
