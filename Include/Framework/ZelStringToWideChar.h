#pragma once

#include <xercesc/util/XercesDefs.hpp>

#include "Framework/FrameworkExport.h"
#include "Framework/ZelString.h"

/// A text as UTF-16, for the length of a DOM call: `pElement->setAttribute(zelStringToWideChar(sName), ...)`.
///
/// The conversion is from UTF-8 whatever the platform or locale. The buffer is from Xerces-C's memory manager, which is
/// started where it is not yet, and given back by the destructor.
///
/// **Threads.** One object is for one thread at a time; different ones, also the very first, are for any.
class FRAMEWORK_API zelStringToWideChar {
public:
    /// Converts all of `text`, which need not outlive the call. Throws std::invalid_argument when it is not UTF-8,
    /// std::runtime_error when Xerces-C cannot be started, and what its memory manager throws when memory runs out.
    explicit zelStringToWideChar(const zelString& text);
    ~zelStringToWideChar();

    zelStringToWideChar(const zelStringToWideChar&) = delete;
    zelStringToWideChar& operator=(const zelStringToWideChar&) = delete;

    /// The text with its closing zero, never null. Owned by this object and valid as long as it lives.
    operator const XMLCh*() const noexcept { return m_pText; }

private:
    XMLCh* m_pText = nullptr;
};
