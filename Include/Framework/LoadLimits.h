#pragma once

#include <cstddef>

#include "Framework/FrameworkExport.h"

/// How much one XML document may ask for before loading it is refused. The limits keep a broken or hostile document
/// from taking the lane down with it; no real document comes near them.
///
/// A refusal is an error of the form "file:line:column: ..." that names the limit, its value and how to raise it; the
/// object that was to be loaded stays as it was.
///
/// Two rules are not limits and cannot be lifted: documents have no DOCTYPE and are XML 1.0. No document may be larger
/// than 1 GiB, in its own encoding or as UTF-8.
///
/// The process-wide default may be read and set from any thread at any time; a document is loaded under the limits that
/// stood when its load began.
struct FRAMEWORK_API LoadLimits {
    /// Size of the document as it stands in the file.
    std::size_t bytes = std::size_t{256} * 1024 * 1024;
    /// Elements within elements; the root alone is depth 1.
    std::size_t depth = 256;
    std::size_t attributesPerElement = 1000;
    /// Elements, attributes, texts, CDATA sections, comments and processing instructions together.
    std::size_t nodes = 20'000'000;
    /// Processor time that the loading thread may spend on parsing one document.
    double cpuSeconds = 10;

    /// The limits that loading uses: those of the last SetDefault, else the values above.
    static LoadLimits Default() noexcept;
    /// Sets the limits for every load that begins from now on, in the whole process.
    static void SetDefault(const LoadLimits& limits) noexcept;
    /// Every limit lifted: `LoadLimits::SetDefault(LoadLimits::None())`. The 1 GiB for one document stays.
    static LoadLimits None() noexcept;
};
