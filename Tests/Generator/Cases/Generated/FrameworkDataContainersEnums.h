// Generated from the schemas; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataEnumeration.h"

#include <vector>

// The enumeration classes. A default constructed object is VALUE_UNKNOWN; numbers are taken unchecked, and one outside
// of the vocabulary has the empty text.

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wignored-qualifiers" // conversions to const types

/// Begins at 0 and has a gap.
class FRAMEWORK_API ShadeType : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        LIGHT = 0,
        DARK = 4,
        black = 5,
        VALUE_END_OF_LIST = 6,
    };

    ShadeType() noexcept = default;
    ShadeType(const int& iValue) noexcept : m_Value(iValue) {}
    ShadeType(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    ShadeType(LPCTSTR szValue);
    ShadeType(const ShadeType& other) noexcept = default;
    ~ShadeType() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const ShadeType& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    ShadeType& operator=(LPCTSTR sVal) override;
    ShadeType& operator=(const ShadeType& other) noexcept = default;
    ShadeType& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    ShadeType& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

class FRAMEWORK_API SizeEnum : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        SMALL = 1,
        LARGE = 2,
        VALUE_END_OF_LIST = 3,
    };

    SizeEnum() noexcept = default;
    SizeEnum(const int& iValue) noexcept : m_Value(iValue) {}
    SizeEnum(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    SizeEnum(LPCTSTR szValue);
    SizeEnum(const SizeEnum& other) noexcept = default;
    ~SizeEnum() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const SizeEnum& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    SizeEnum& operator=(LPCTSTR sVal) override;
    SizeEnum& operator=(const SizeEnum& other) noexcept = default;
    SizeEnum& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    SizeEnum& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

#pragma GCC diagnostic pop
