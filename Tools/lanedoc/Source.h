#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "Framework/ContainerCatalog.h"
#include "Framework/Finding.h"
#include "Framework/XMLDataWrapper.h"
#include "RootElement.h"

namespace Lanedoc {

/// What stands for the file of a text in the library's messages, and for that of standard input in those of the tool.
constexpr std::string_view nameOfTexts = "<text>";
constexpr std::string_view nameOfInput = "<stdin>";

/// A document as the person named it: read and parsed, its class known.
class Source {
public:
    enum class Use { Read, Edit };

    /// From a file, or from standard input when the path is "-". Throws a Failure when it cannot be read or is not
    /// well-formed.
    explicit Source(const std::string& path, Use use = Use::Read);

    /// The path, or "<stdin>"; what messages begin with.
    const std::string& Name() const { return m_name; }
    XMLDataWrapper& Document() { return m_document; }
    /// Name of the root element.
    const std::string& RootName() const { return m_root.name; }
    /// Where the root element begins.
    DocumentPlace PlaceOfRoot() const;
    /// The root's FeatureID attribute, else the file's stem; "stdin" for standard input.
    std::string Feature();
    /// The class of the root element; throws a Failure that names the nearest ones when there is none.
    CatalogClass Class();
    /// A new tree, loaded from the document; throws a Failure when that fails.
    std::unique_ptr<TypedDataContainer> Load();

private:
    std::string m_path;
    std::string m_name;
    XMLDataWrapper m_document;
    RootElement m_root;
};

/// A library's `file:line:col: text` or `file: text` with the severity set behind the place; `name` takes the place of
/// nameOfTexts.
std::string WithSeverity(const std::string& text, const std::string& severity, const std::string& name);

} // namespace Lanedoc
