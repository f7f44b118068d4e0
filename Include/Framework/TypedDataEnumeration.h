#pragma once

#include "Framework/FrameworkExport.h"
#include "Framework/ZelString.h"

/// Base of the enumeration classes: a value that is a number in memory and a word of a closed vocabulary in a document.
///
/// The order of the virtual operations is part of the binary interface. An object is for one thread at a time; objects
/// of one class share nothing that changes.
class FRAMEWORK_API TypedDataEnumeration {
public:
    TypedDataEnumeration() noexcept = default;
    virtual ~TypedDataEnumeration();

    /// True when StringOf() equals the text byte by byte. The empty text, and null as well, equals every number outside
    /// of the vocabulary.
    virtual bool operator==(LPCTSTR _Cmp) const = 0;

    /// Takes the value from its word, by AssignValue, and returns this object.
    virtual TypedDataEnumeration& operator=(LPCTSTR sVal) = 0;

    /// The word of the value; empty when the number is outside of the vocabulary.
    virtual zelString StringOf() const = 0;

protected:
    /// Takes the number of the first word that equals the text exactly, case included; -1 when none does, or the text
    /// is null.
    virtual void AssignValue(LPCTSTR szVal) = 0;

    /// Copied only as part of an object of a derived class.
    TypedDataEnumeration(const TypedDataEnumeration&) noexcept = default;
    TypedDataEnumeration& operator=(const TypedDataEnumeration&) noexcept = default;
};
