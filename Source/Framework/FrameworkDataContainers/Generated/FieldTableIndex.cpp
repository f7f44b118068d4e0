// Generated from the schemas; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/FieldTableIndex.h"

#include "FrameworkDataContainers/FrameworkDataContainers.h"

namespace Framework {

std::span<const FieldTable* const> FieldTableIndex::Tables() {
    static constexpr const FieldTable* tables[] = {
        &ActionItemType::s_Table,
        &ActionRespType::s_Table,
        &CaptureConfigRuleType::s_Table,
        &CaptureConfigSubRuleType::s_Table,
        &CaptureConfigType::s_Table,
        &CaptureFileConfigType::s_Table,
        &CaptureHandlerType::s_Table,
        &ChildThreadType::s_Table,
        &CommConfigType::s_Table,
        &CommEntryType::s_Table,
        &CommEventTransformerListType::s_Table,
        &CommParametersType::s_Table,
        &CommTransformerType::s_Table,
        &DataListDataEntryType::s_Table,
        &DataListType::s_Table,
        &DataStorageContainerType::s_Table,
        &ExtendableDataEntryType::s_Table,
        &FilesListType::s_Table,
        &LoadConfigType::s_Table,
        &PreProcessDataEntryType::s_Table,
        &PreProcessDataType::s_Table,
        &RulesListType::s_Table,
        &SerialParametersType::s_Table,
        &SimpleDataEntryType::s_Table,
        &StateActionBasicType::s_Table,
        &StateActionDataEntryType::s_Table,
        &StateActionDataType::s_Table,
        &StateActionListType::s_Table,
        &StateActionRespType::s_Table,
        &StateDefinitionType::s_Table,
        &StateProcessingRootType::s_Table,
        &StateTableType::s_Table,
        &StateTriggersListType::s_Table,
        &ThreadChildListType::s_Table,
        &VarInputSourceType::s_Table,
        &VarInputType::s_Table,
    };
    return tables;
}

} // namespace Framework
