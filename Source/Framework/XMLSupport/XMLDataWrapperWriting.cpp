#include "Framework/SupportFunc.h"
#include "Framework/XMLDataWrapper.h"

#include "Framework/XMLSupport/WrapperState.h"

using namespace Framework;

bool XMLDataWrapper::SetQueryValue(const zelString& sName, const zelString&, bool) {
    m_pState->SetError(-1, "cannot write " + sName + ": writing into a document is not supported yet");
    return false;
}

bool XMLDataWrapper::SetQueryValue(const zelString& sName, const char* sValue, bool bFromDocument) {
    return SetQueryValue(sName, zelString(sValue), bFromDocument);
}

bool XMLDataWrapper::SetQueryValue(const zelString& sName, int iValue, bool bFromDocument) {
    return SetQueryValue(sName, SupportFunc::GetStrValue(static_cast<long>(iValue)), bFromDocument);
}

bool XMLDataWrapper::SetQueryValue(const zelString& sName, bool bValue, bool bFromDocument) {
    return SetQueryValue(sName, SupportFunc::GetStrValue(bValue), bFromDocument);
}

bool XMLDataWrapper::SetQueryValue(const zelString& sName, double dValue, bool bFromDocument) {
    return SetQueryValue(sName, SupportFunc::GetStrValue(dValue), bFromDocument);
}

bool XMLDataWrapper::SetQueryCData(const zelString& sName, const zelString& sText, int, int) {
    return SetQueryValue(sName, sText, false);
}
