#include "Framework/ContainerBase/Guarded.h"
#include "Framework/XMLSupport/AtomicFile.h"
#include "Framework/XMLSupport/FaultPoint.h"
#include "Framework/XMLSupport/LoadsAgain.h"
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

zelString TextByDom(TypedDataContainer& object, bool withMergeAttributes) {
    FullFunctionXMLDataWrapper output;
    if (!DumpAsDocument(object, output, withMergeAttributes)) {
        return {};
    }
    zelString text = output.GetXMLText();
    if (text.empty()) {
        object.SetLastError(-1, "%s", output.GetLastError().c_str());
    }
    return text;
}

/// The text of the dump as a document of its own. Empty, with the object's error set, when a part of it cannot be
/// written. A tree of the library's own classes needs no DOM for it; what only the DOM's road can say or do starts over
/// on that.
zelString DumpedDocument(TypedDataContainer& object, bool withMergeAttributes) {
    zelString text;
    switch (DumpAsText(object, withMergeAttributes, text)) {
    case DumpedText::Whole:
        FaultPoint("GetXMLText");
        CheckTagsLoadAgain(text, "the document");
        CheckSizeLoadsAgain(text.size(), "the document");
        return text;
    case DumpedText::NeedsDom:
        return TextByDom(object, withMergeAttributes);
    case DumpedText::Failed:
        break;
    }
    return {};
}

bool SaveDump(TypedDataContainer& object, const char* path, bool withMergeAttributes) {
    const zelString text = DumpedDocument(object, withMergeAttributes);
    if (text.empty()) {
        return false;
    }
    FaultPoint("SaveXMLFile");
    SaveAtomically(path == nullptr ? "" : path, text);
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
        const zelString text = DumpedDocument(*this, false);
        if (text.empty()) {
            return nullptr;
        }
        auto content = std::make_unique<XMLDataWrapper>();
        if (!content->LoadXMLText(text, false)) {
            SetLastError(-1, "%s", content->GetLastError().c_str());
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
