#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Framework {

/// Refuses to write what the limits of this thread would keep from being loaded again. Throws WriteError.
/// `what` names the document in the error.
void CheckSizeLoadsAgain(std::size_t bytes, const std::string& what);
/// The same for its tags; the text is the document as UTF-8. The error names the element.
void CheckTagsLoadAgain(std::string_view text, const std::string& what);

} // namespace Framework
