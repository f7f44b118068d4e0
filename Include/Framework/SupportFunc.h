#pragma once

#include "Framework/FrameworkExport.h"
#include "Framework/ZelString.h"

/// Conversions between the texts of a document and int, bool and double. None of them follows the locale, and any
/// thread may call them at any time. Reading reports no error: what the text cannot give becomes 0 or false. Blanks
/// (space, tab, CR, LF) around the value are allowed and nothing else may stand beside it.
class FRAMEWORK_API SupportFunc {
public:
    SupportFunc() = delete;

    /// Decimal digits, a sign allowed before them. Anything else ("12.0", "0x10", an empty text) is 0; a number out of
    /// range is the nearest int.
    static int GetIntValue(const zelString& text) noexcept;

    /// True for true, 1, yes, y, on and t in any case; false for everything else.
    static bool GetBoolValue(const zelString& text) noexcept;

    /// Decimal digits with an optional sign, point and exponent; or, in any case and with an optional sign, inf,
    /// infinity and nan. Anything else is 0. A number too large is the largest finite double of its sign, one too small
    /// is a zero of its sign.
    static double GetDoubleValue(const zelString& text) noexcept;

    /// "true" or "false".
    static zelString GetStrValue(bool value);

    /// The decimal digits, with a minus sign where needed.
    static zelString GetStrValue(long value);
    static zelString GetStrValue(int value) { return GetStrValue(static_cast<long>(value)); }

    /// The fewest digits that read back as exactly this double: without exponent when the size is between 0.00001 and
    /// 10^15, else in the shorter notation; "INF", "-INF" or "NaN".
    static zelString GetStrValue(double value);

    /// A text is not a bool, though its pointer would convert to one.
    static zelString GetStrValue(const char*) = delete;
};
