#include "Framework/FrameworkDataContainers/Walks/Walks.h"

namespace Framework {

bool DumpByQuery(TypedDataContainer& object, const FieldTable&, const zelString&, FullFunctionXMLDataWrapper*, int,
                 bool) {
    object.SetLastError(-1, "DumpMergeContents is not supported yet; DumpMergeContentsII writes the same document");
    return false;
}

} // namespace Framework
