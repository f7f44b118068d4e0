#include "Framework/SupportFunc.h"
#include "Framework/XMLDataWrapper.h"

#include "Framework/XMLSupport/FaultPoint.h"
#include "Framework/XMLSupport/ScalarWriter.h"
#include "Framework/XMLSupport/TreeReading.h"
#include "Framework/XMLSupport/WrapperState.h"

using namespace Framework;

namespace {

/// The node that a name or path gives: a child, else an attribute of that name. Throws EditError.
NodeRef NodeToWrite(WrapperState& state, const zelString& sName, bool bFromDocument) {
    if (!state.IsLoaded()) {
        throw EditError("cannot write " + sName + ": no document is loaded");
    }
    NodeRef node = state.Find(sName, bFromDocument);
    if (node == NodeRef::None && state.Here() != NodeRef::None && sName.find_first_of("/[@") == std::string::npos) {
        node = FindAttribute(*state.Tree(), state.Here(), sName);
    }
    if (node == NodeRef::None) {
        const std::string where = state.Here() == NodeRef::None ? "the document" : state.PathOf(state.Here());
        throw EditError("cannot write " + sName + ": there is no such element or attribute in " + where);
    }
    return node;
}

bool Write(WrapperState& state, const zelString& sName, const zelString& sText, bool bFromDocument, TextForm form) {
    FaultPoint("SetQueryValue");
    try {
        WriteNode(state, NodeToWrite(state, sName, bFromDocument), sText, form, ValueKind::Text);
        return true;
    } catch (const std::runtime_error& failure) {
        state.SetError(-1, failure.what());
    } catch (const std::invalid_argument& failure) {
        state.SetError(-1, failure.what());
    }
    return false;
}

} // namespace

bool XMLDataWrapper::SetQueryValue(const zelString& sName, const zelString& sValue, bool bFromDocument) {
    return Write(*m_pState, sName, sValue, bFromDocument, TextForm::Text);
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
    return Write(*m_pState, sName, sText, false, TextForm::CData);
}
