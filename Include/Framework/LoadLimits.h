#pragma once

#include <cstddef>

#include "Framework/FrameworkExport.h"

/// How much one XML document may ask for before loading it is refused. The limits keep a broken or hostile document
/// from taking the lane down with it; no real document comes near them.
///
/// A refusal is an error of the form "file:line:column: ..." that names the limit, its value and how to raise it; the
/// object that was to be loaded or merged into stays as it was. What would pass a limit when it is loaded again is not
/// written either.
///
/// Limits hold for the whole process (SetDefault) or for what one thread loads in a block (Scope). Two rules are not
/// limits and cannot be lifted: documents have no DOCTYPE and are XML 1.0. No document may be larger than 1 GiB, in its
/// own encoding or as UTF-8.
///
/// Defaults and scopes may be read and set from any thread at any time; a document is loaded under the limits that
/// stood when its load began.
struct FRAMEWORK_API LoadLimits {
    /// Size of the document as it stands in the file.
    std::size_t bytes = std::size_t{256} * 1024 * 1024;
    /// Elements within elements; the root alone is depth 1.
    std::size_t depth = 256;
    std::size_t attributesPerElement = 1000;
    /// Size of one tag as UTF-8, from its '<' to its '>'; what is too long is refused before the parser sees it.
    std::size_t bytesPerTag = std::size_t{16} * 1024 * 1024;
    /// Elements, attributes, texts, CDATA sections, comments and processing instructions together.
    std::size_t nodes = 20'000'000;
    /// Memory in bytes that a document takes while it is parsed: its text, its tree and the parser. The objects that
    /// are filled from it come on top.
    std::size_t memory = std::size_t{1024} * 1024 * 1024;
    /// Processor time in seconds that a thread may spend on parsing one document, or on one query that takes XPath.
    double cpuSeconds = 10;

    /// The limits of the process: those of the last SetDefault, else the values above.
    static LoadLimits Default() noexcept;
    /// Sets the limits of the process for every load that begins from now on.
    static void SetDefault(const LoadLimits& limits) noexcept;
    /// The limits that a load begun now, in this thread, has: those of the innermost Scope, else the default.
    static LoadLimits Current() noexcept;
    /// Every limit lifted: `LoadLimits::SetDefault(LoadLimits::None())`. The 1 GiB for one document stays.
    static LoadLimits None() noexcept;

    class Scope;
};

/// Other limits for all that this thread loads, merges and writes while the scope lives:
///
///     LoadLimits limits = LoadLimits::Current();
///     limits.depth = 1000;
///     const LoadLimits::Scope scope(limits);
///     config.LoadFromFile(nullptr, "deep.xml", true);
///
/// Scopes of one thread end in the opposite order of their beginning, in the thread that began them.
class FRAMEWORK_API LoadLimits::Scope {
public:
    explicit Scope(const LoadLimits& limits) noexcept;
    ~Scope();
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;

private:
    friend struct LoadLimits;

    const LoadLimits m_limits;
    const Scope* const m_outer;
};
