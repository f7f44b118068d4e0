#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>

#include "Message.h"
#include "Output.h"
#include "Source.h"
#include "SourceLines.h"

namespace Lanedoc {

/// What --max-errors is when it is not given.
constexpr std::size_t mostMessages = 20;

/// Tells messages and counts them:
///
///     StateTable.xml:7:5: error: no element of State has this name [unknown-element]
///         7 |     <BaseSate/>
///           |     ^~~~~~~~~
///     StateTable.xml:2:3: note: ...
///     help: did you mean "BaseState"?
class Messages {
public:
    using Writer = std::function<void(const std::string& lines)>;

    /// Of the errors, and of the warnings, the first `most` are told and the others only counted; 0 tells all. The
    /// lines go to standard error, unless there is another writer.
    explicit Messages(const Style& style, std::size_t most = mostMessages, Writer write = {});

    /// Lets messages quote the lines of this document, as it was loaded. It must live until it is removed; another
    /// one of that name takes its place.
    void AddSource(Source& source);
    /// The same for a file that does not load. Its lines are read when they are asked for.
    void AddFile(const std::string& path);
    /// Forgets the lines of a document.
    void RemoveSource(const std::string& name) { m_sources.erase(name); }
    void Tell(const Message& message);
    /// Tells how many there were, and how many of them were not shown; nothing when there was none.
    void TellCount();

    std::size_t Errors() const { return m_errors; }
    std::size_t Warnings() const { return m_warnings; }

private:
    /// A document, and its lines as soon as one was asked for.
    struct Known {
        std::function<std::string()> read;
        std::optional<SourceLines> lines{};
    };

    std::string Excerpt(const DocumentPlace& place);

    Style m_style;
    std::size_t m_most;
    Writer m_write;
    std::map<std::string, Known> m_sources;
    std::size_t m_errors = 0;
    std::size_t m_warnings = 0;
    std::size_t m_hidden = 0;
};

} // namespace Lanedoc
