#pragma once

#include <string>
#include <string_view>

#include "MergeRun.h"

namespace Lanedoc {

/// How the merged document tells which feature set a value.
enum class Provenance {
    None,
    /// `<!-- 30 base.xml:12:9 -> 45 Night night.xml:7:5 -->` on a line of its own before the element that is the value,
    /// `<!-- @Port: ... -->` before the element whose attribute it is.
    Comments,
    /// `prov:from="Night" prov:at="night.xml:7:5"` in the element that is the value, `prov:Port="Night night.xml:7:5"`
    /// beside the attribute that is it.
    Attributes,
};

/// The text of the merged tree as the library writes it, with the provenance of every value that a feature set put in.
/// Nothing else changes: without what was put in, the bytes are those of `text`. Takes time in proportion to the text
/// and to how often values were written.
std::string WithProvenance(std::string_view text, const MergeRun& run, Provenance provenance);

} // namespace Lanedoc
