#include "Framework/ParameterList.h"

#include <cstring>
#include <limits>
#include <stdexcept>

namespace {

char* CopyOfText(const void* pText, int& size) {
    const std::size_t length = std::strlen(static_cast<const char*>(pText)) + 1;
    if (length > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
        throw std::length_error("ParameterList: text is too long for an entry");
    }
    char* const pCopy = new char[length];
    std::memcpy(pCopy, pText, length);
    size = static_cast<int>(length);
    return pCopy;
}

template <typename T> void CopyValue(const void* pValue, T& member) {
    member = *static_cast<const T*>(pValue);
}

/// The type must be set first: it decides what the entry's destructor frees.
void SetValue(ParameterList::ParameterDataType& entry, const void* pValue) {
    switch (entry.dcType) {
    case dcString:
        return CopyValue(pValue, entry.strValue);
    case dcLong:
        return CopyValue(pValue, entry.lValue);
    case dcBool:
        return CopyValue(pValue, entry.bValue);
    case dcInt:
        return CopyValue(pValue, entry.iValue);
    case dcDouble:
        return CopyValue(pValue, entry.dValue);
    case dcChar:
        return CopyValue(pValue, entry.cValue);
    case dcCharBuff:
        entry.chBuffer = CopyOfText(pValue, entry.FixedLen);
        return;
    case dcFixedChar:
        entry.tcValue = CopyOfText(pValue, entry.FixedLen);
        return;
    case dcXMLDataPtr:
        entry.pXMLData = static_cast<XMLDataWrapper*>(const_cast<void*>(pValue));
        return;
    case dcEventPtr:
        entry.pEvt = static_cast<EventPacket*>(const_cast<void*>(pValue));
        return;
    case dcTypdeDCPtr:
        entry.pTDC = static_cast<TypedDataContainer*>(const_cast<void*>(pValue));
        return;
    case dcUnknown:
        return;
    }
}

} // namespace

ParameterList::ParameterDataType::~ParameterDataType() {
    if (FixedLen <= 0) {
        return;
    }
    if (dcType == dcFixedChar) {
        delete[] tcValue;
    } else if (dcType == dcCharBuff) {
        delete[] chBuffer;
    }
}

ParameterList::ParameterList() = default;
ParameterList::~ParameterList() = default;

void ParameterList::Add(const void* pValue, ParameterDataEnum dcType, const char* sName, bool bRequiresDelete) {
    auto entry = std::make_unique<ParameterDataType>();
    entry->ElementName = sName;
    entry->dcType = dcType;
    entry->RequiresDelete = bRequiresDelete;
    if (pValue) {
        SetValue(*entry, pValue);
    }
    m_Entries.push_back(std::move(entry));
}
