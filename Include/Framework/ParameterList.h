#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "Framework/FrameworkExport.h"
#include "Framework/ZelString.h"

class EventPacket;
class TypedDataContainer;
class XMLDataWrapper;

/// What kind of value an entry holds. The numbers are part of the interface.
enum ParameterDataEnum {
    dcUnknown = -1,
    dcString = 0,
    dcLong = 1,
    dcBool = 2,
    dcInt = 3,
    dcDouble = 4,
    dcChar = 5,
    dcCharBuff = 6,
    dcFixedChar = 7,
    dcXMLDataPtr = 8,
    dcEventPtr = 9,
    dcTypdeDCPtr = 10
};

/// A list of named values in the order they were added: how a container tells its properties and attributes.
///
/// Not copyable. One list is for one thread at a time.
class FRAMEWORK_API ParameterList {
public:
    /// One named value. `dcType` tells which member holds it; the others keep their defaults.
    class FRAMEWORK_API ParameterDataType {
    public:
        ParameterDataType() = default;

        /// Frees `tcValue` when `dcType` is dcFixedChar, and `chBuffer` when it is dcCharBuff, each by array delete and
        /// only when it is not null and `FixedLen` is above 0. What the other pointers point to is left alone.
        virtual ~ParameterDataType();

        ParameterDataType(const ParameterDataType&) = delete;
        ParameterDataType& operator=(const ParameterDataType&) = delete;

        zelString ElementName;                ///< name of the value; in a keyed list of strings the entry's key
        ParameterDataEnum dcType = dcUnknown; ///< which of the members below holds the value
        zelString strValue;                   ///< dcString
        bool RequiresDelete = false;          ///< as given to Add; a note for whoever reads the entry
        long lValue = 0;                      ///< dcLong
        bool bValue = false;                  ///< dcBool
        int iValue = 0;                       ///< dcInt
        double dValue = 0;                    ///< dcDouble
        char cValue = 0;                      ///< dcChar
        TCHAR* tcValue = nullptr;             ///< dcFixedChar, see the destructor
        char* chBuffer = nullptr;             ///< dcCharBuff, see the destructor
        XMLDataWrapper* pXMLData = nullptr;   ///< dcXMLDataPtr, not owned
        EventPacket* pEvt = nullptr;          ///< dcEventPtr, not owned
        TypedDataContainer* pTDC = nullptr;   ///< dcTypdeDCPtr, not owned
        int FixedLen = 0;                     ///< size in bytes of `tcValue` or `chBuffer`
        int ListIndex = 0;                    ///< free for the user of the entry
    };

    ParameterList();
    ~ParameterList();

    ParameterList(const ParameterList&) = delete;
    ParameterList& operator=(const ParameterList&) = delete;

    /// Appends an entry named `sName` (null: an empty name) and copies the value that `pValue` points to:
    ///
    /// - dcString: a zelString;
    /// - dcLong, dcBool, dcInt, dcDouble, dcChar: a long, bool, int, double or char;
    /// - dcCharBuff, dcFixedChar: the first character of a text with a closing zero;
    /// - dcXMLDataPtr, dcEventPtr, dcTypdeDCPtr: the object itself, as exactly that class; only the pointer is
    ///   kept, so the object must outlive its use;
    /// - dcUnknown: ignored.
    ///
    /// A null `pValue` leaves the entry's value at its default. `bRequiresDelete` is only noted in the entry: the list
    /// never deletes an object that it was given. Throws std::bad_alloc, and std::length_error for a text of 2 GiB or
    /// more; the list is then as it was.
    void Add(const void* pValue, ParameterDataEnum dcType, const char* sName, bool bRequiresDelete);

    /// Number of entries.
    std::size_t size() const noexcept { return m_Entries.size(); }

    /// The entry at that position, null past the end. It belongs to the list and lives as long as the list does.
    ParameterDataType* ItemData(std::size_t position) const noexcept {
        return position < m_Entries.size() ? m_Entries[position].get() : nullptr;
    }

private:
    std::vector<std::unique_ptr<ParameterDataType>> m_Entries;
};
