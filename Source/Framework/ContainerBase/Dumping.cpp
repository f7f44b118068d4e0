#include "Framework/ContainerBase/Guarded.h"
#include "Framework/XMLSupport/TreeReading.h"

using namespace Framework;

namespace {

/// Dumps the object as the root of a fresh document. False, with the object's error set, when a part of it cannot be
/// written.
bool DumpAsDocument(TypedDataContainer& object, FullFunctionXMLDataWrapper& output, bool withMergeAttributes) {
    if (!output.CreateOutputDocument(object.GetContainerName())) {
        object.SetLastError(-1, "%s", output.GetLastError().c_str());
        return false;
    }
    DOMNode* passed = nullptr;
    return object.DumpMergeContentsII(nullptr, &output, passed, withMergeAttributes);
}

bool SaveDump(TypedDataContainer& object, const char* path, bool withMergeAttributes) {
    FullFunctionXMLDataWrapper output;
    if (!DumpAsDocument(object, output, withMergeAttributes)) {
        return false;
    }
    if (!output.SaveXMLFile(path)) {
        object.SetLastError(-1, "%s", output.GetLastError().c_str());
        return false;
    }
    return true;
}

} // namespace

bool TypedDataContainer::SaveContents(const char* sPath) {
    return Guarded(*this, [&] { return SaveDump(*this, sPath, false); });
}

bool TypedDataContainer::DumpMergeResults(const char* sPath) {
    return Guarded(*this, [&] { return SaveDump(*this, sPath, true); });
}

XMLDataWrapper* TypedDataContainer::BuildAndReturnDataContent() {
    return Guarded(*this, [&]() -> XMLDataWrapper* {
        FullFunctionXMLDataWrapper output;
        if (!DumpAsDocument(*this, output, false)) {
            return nullptr;
        }
        auto content = std::make_unique<XMLDataWrapper>();
        const zelString text = output.GetXMLText();
        if (text.empty() || !content->LoadXMLText(text, false)) {
            SetLastError(-1, "%s", (text.empty() ? output : *content).GetLastError().c_str());
            return nullptr;
        }
        return content.release();
    });
}

bool TypedDataContainer::DumpMergeContents(const zelString&, FullFunctionXMLDataWrapper*, int, bool) {
    return true;
}

bool TypedDataContainer::DumpMergeContentsII(DOMNode*, FullFunctionXMLDataWrapper*, DOMNode*&, bool) {
    return true;
}

zelString TypedDataContainer::GetCDataValue(XMLDataWrapper* pData, zelString sXMLName) {
    const WrapperState* const state = LoadedState(pData);
    if (state == nullptr) {
        return {};
    }
    const NodeRef element = LastChildNamed(*state->Tree(), state->Here(), sXMLName);
    return element == NodeRef::None ? zelString() : zelString(CDataOf(*state->Tree(), element));
}
