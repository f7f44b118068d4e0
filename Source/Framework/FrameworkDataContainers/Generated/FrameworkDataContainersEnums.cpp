// Generated from the schemas; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/FrameworkDataContainersEnums.h"

#include "Framework/XMLSupport/EnumerationWords.h"

namespace {

// clang-format off

constexpr Framework::EnumerationWord kActionStatusDefinitionWords[] = {
    {"ACTION_INIT", ActionStatusDefinition::ACTION_INIT},
    {"ACTION_START", ActionStatusDefinition::ACTION_START},
    {"ACTION_IDLE", ActionStatusDefinition::ACTION_IDLE},
    {"ACTION_ACTIVE", ActionStatusDefinition::ACTION_ACTIVE},
    {"ACTION_PENDING", ActionStatusDefinition::ACTION_PENDING},
    {"ACTION_COMPLETE", ActionStatusDefinition::ACTION_COMPLETE},
    {"ACTION_ERROR", ActionStatusDefinition::ACTION_ERROR},
};

constexpr Framework::EnumerationWord kAudioPriorityEnumWords[] = {
    {"low", AudioPriorityEnum::low},
    {"normal", AudioPriorityEnum::normal},
    {"high", AudioPriorityEnum::high},
};

constexpr Framework::EnumerationWord kAvailabilityStateEnumWords[] = {
    {"__NEW__", AvailabilityStateEnum::__NEW__},
    {"OFFLINE", AvailabilityStateEnum::OFFLINE},
    {"OFFLINE_ERROR", AvailabilityStateEnum::OFFLINE_ERROR},
    {"OPENING", AvailabilityStateEnum::OPENING},
    {"IDLE", AvailabilityStateEnum::IDLE},
    {"IDLE_SA_HALTED", AvailabilityStateEnum::IDLE_SA_HALTED},
    {"IDLE_LIMITED", AvailabilityStateEnum::IDLE_LIMITED},
    {"BUSY", AvailabilityStateEnum::BUSY},
    {"BUSY_SA_HALTED", AvailabilityStateEnum::BUSY_SA_HALTED},
    {"BUSY_LIMITED", AvailabilityStateEnum::BUSY_LIMITED},
    {"CLOSING", AvailabilityStateEnum::CLOSING},
    {"CLOSED", AvailabilityStateEnum::CLOSED},
    {"CLOSED_LIMITED", AvailabilityStateEnum::CLOSED_LIMITED},
    {"CLOSED_ERROR", AvailabilityStateEnum::CLOSED_ERROR},
    {"SOFTWARE_DISTRIBUTION", AvailabilityStateEnum::SOFTWARE_DISTRIBUTION},
    {"SUPPORT_APPLICATION", AvailabilityStateEnum::SUPPORT_APPLICATION},
    {"__REFRESH__", AvailabilityStateEnum::__REFRESH__},
    {"__CLEAR__", AvailabilityStateEnum::__CLEAR__},
    {"UNAVAILABLE", AvailabilityStateEnum::UNAVAILABLE},
};

constexpr Framework::EnumerationWord kCaptureLevelTypeWords[] = {
    {"CAPTURE_LEVEL_ERROR", CaptureLevelType::CAPTURE_LEVEL_ERROR},
    {"CAPTURE_LEVEL_WARNING", CaptureLevelType::CAPTURE_LEVEL_WARNING},
    {"CAPTURE_LEVEL_NORMAL", CaptureLevelType::CAPTURE_LEVEL_NORMAL},
    {"CAPTURE_LEVEL_DEBUG", CaptureLevelType::CAPTURE_LEVEL_DEBUG},
    {"CAPTURE_LEVEL_EXTERNAL_INTERFACE", CaptureLevelType::CAPTURE_LEVEL_EXTERNAL_INTERFACE},
    {"CAPTURE_LEVEL_INTERNAL_INTERFACE", CaptureLevelType::CAPTURE_LEVEL_INTERNAL_INTERFACE},
    {"CAPTURE_LEVEL_HARDWARE_INTERFACE", CaptureLevelType::CAPTURE_LEVEL_HARDWARE_INTERFACE},
    {"CAPTURE_LEVEL_FIRMWARE_INTERFACE", CaptureLevelType::CAPTURE_LEVEL_FIRMWARE_INTERFACE},
    {"CAPTURE_LEVEL_MARKPOINT", CaptureLevelType::CAPTURE_LEVEL_MARKPOINT},
    {"CAPTURE_LEVEL_ERROR_SHUTDOWN", CaptureLevelType::CAPTURE_LEVEL_ERROR_SHUTDOWN},
};

constexpr Framework::EnumerationWord kCommModeTypeWords[] = {
    {"CLIENT", CommModeType::CLIENT},
    {"SERVER", CommModeType::SERVER},
};

constexpr Framework::EnumerationWord kCouponTypeWords[] = {
    {"Store", CouponType::Store},
    {"Manufacturer", CouponType::Manufacturer},
};

constexpr Framework::EnumerationWord kFlowControlTypeWords[] = {
    {"NONE", FlowControlType::NONE},
    {"HARDWARE", FlowControlType::HARDWARE},
    {"SOFTWARE", FlowControlType::SOFTWARE},
};

constexpr Framework::EnumerationWord kItemHandlerCorrectionTypeWords[] = {
    {"ICS_NORMAL", ItemHandlerCorrectionType::ICS_NORMAL},
    {"ICS_INVALID", ItemHandlerCorrectionType::ICS_INVALID},
    {"ICS_NOT_IN_BAG", ItemHandlerCorrectionType::ICS_NOT_IN_BAG},
    {"ICS_PASS_AROUND", ItemHandlerCorrectionType::ICS_PASS_AROUND},
    {"ICS_EARLY_BAG_REMOVAL", ItemHandlerCorrectionType::ICS_EARLY_BAG_REMOVAL},
};

constexpr Framework::EnumerationWord kItemLookupEnumWords[] = {
    {"UNKNOWN_ITEM", ItemLookupEnum::UNKNOWN_ITEM},
    {"NORMAL_ITEM", ItemLookupEnum::NORMAL_ITEM},
    {"COUPON_ITEM", ItemLookupEnum::COUPON_ITEM},
    {"ASSISTANT_REQUIRED_ITEM", ItemLookupEnum::ASSISTANT_REQUIRED_ITEM},
    {"UNSELLABLE_ITEM", ItemLookupEnum::UNSELLABLE_ITEM},
    {"SHOPPER_ASSISTANT", ItemLookupEnum::SHOPPER_ASSISTANT},
};

constexpr Framework::EnumerationWord kItemProcessingEnumWords[] = {
    {"NormalItem", ItemProcessingEnum::NormalItem},
    {"ShopperAssistant", ItemProcessingEnum::ShopperAssistant},
    {"Coupon", ItemProcessingEnum::Coupon},
    {"FrequentShopper", ItemProcessingEnum::FrequentShopper},
    {"VariableWeightPrice", ItemProcessingEnum::VariableWeightPrice},
    {"RequiresShopperAssistant", ItemProcessingEnum::RequiresShopperAssistant},
    {"DoNotProcess", ItemProcessingEnum::DoNotProcess},
    {"GiftCardItem", ItemProcessingEnum::GiftCardItem},
    {"PriceDepartmentEntry", ItemProcessingEnum::PriceDepartmentEntry},
};

constexpr Framework::EnumerationWord kItemResultEnumWords[] = {
    {"__NEW__", ItemResultEnum::__NEW__},
    {"SECURITY_VALIDATED", ItemResultEnum::SECURITY_VALIDATED},
    {"VOIDED", ItemResultEnum::VOIDED},
    {"SECURITY_REJECT", ItemResultEnum::SECURITY_REJECT},
    {"POS_EXCEPTION", ItemResultEnum::POS_EXCEPTION},
    {"ABORTED", ItemResultEnum::ABORTED},
};

constexpr Framework::EnumerationWord kItemTypeDefinitionEnumWords[] = {
    {"NOT_FILLED_IN", ItemTypeDefinitionEnum::NOT_FILLED_IN},
    {"NORMAL", ItemTypeDefinitionEnum::NORMAL},
    {"VARIABLE_WEIGHT", ItemTypeDefinitionEnum::VARIABLE_WEIGHT},
    {"QUANTITY_REQUIRED", ItemTypeDefinitionEnum::QUANTITY_REQUIRED},
    {"WEIGHT_REQUIRED", ItemTypeDefinitionEnum::WEIGHT_REQUIRED},
    {"PRICE_DEPT", ItemTypeDefinitionEnum::PRICE_DEPT},
    {"COUPON", ItemTypeDefinitionEnum::COUPON},
    {"FREQUENT_SHOPPER", ItemTypeDefinitionEnum::FREQUENT_SHOPPER},
    {"MEMBERSHIP_CARD", ItemTypeDefinitionEnum::MEMBERSHIP_CARD},
    {"DATA_ENTRY", ItemTypeDefinitionEnum::DATA_ENTRY},
};

constexpr Framework::EnumerationWord kItemValidationStatusTypeWords[] = {
    {"NOT_APPLICABLE", ItemValidationStatusType::NOT_APPLICABLE},
    {"VALIDATED", ItemValidationStatusType::VALIDATED},
    {"VALIDATED_NO_CHECK", ItemValidationStatusType::VALIDATED_NO_CHECK},
    {"VALIDATED_NO_SECURITY", ItemValidationStatusType::VALIDATED_NO_SECURITY},
    {"VALIDATED_AND_CLEAR", ItemValidationStatusType::VALIDATED_AND_CLEAR},
    {"REJECT_WEIGHT", ItemValidationStatusType::REJECT_WEIGHT},
    {"REJECT_HEIGHT", ItemValidationStatusType::REJECT_HEIGHT},
    {"REJECT_MULTI_BREAK", ItemValidationStatusType::REJECT_MULTI_BREAK},
    {"REJECT_NOT_ON_BELT", ItemValidationStatusType::REJECT_NOT_ON_BELT},
    {"REJECT_LONG_ITEM", ItemValidationStatusType::REJECT_LONG_ITEM},
    {"REJECT_OTHER_ITEM", ItemValidationStatusType::REJECT_OTHER_ITEM},
    {"VALIDATED_WEIGHT_ERROR", ItemValidationStatusType::VALIDATED_WEIGHT_ERROR},
    {"VALIDATED_NOT_IN_BAG", ItemValidationStatusType::VALIDATED_NOT_IN_BAG},
    {"REJECT_POS_ABORT_IH_IGNORE", ItemValidationStatusType::REJECT_POS_ABORT_IH_IGNORE},
};

constexpr Framework::EnumerationWord kLaneManagerActionsEnumsWords[] = {
    {"RESET", LaneManagerActionsEnums::RESET},
    {"SHUTDOWN", LaneManagerActionsEnums::SHUTDOWN},
    {"POWEREVENT_MONITORING_ON", LaneManagerActionsEnums::POWEREVENT_MONITORING_ON},
    {"POWEREVENT_MONITORING_OFF", LaneManagerActionsEnums::POWEREVENT_MONITORING_OFF},
    {"POWEREVENT_MONITORING_RESUME", LaneManagerActionsEnums::POWEREVENT_MONITORING_RESUME},
    {"POWEREVENT_MONITORING_SHUTDOWN", LaneManagerActionsEnums::POWEREVENT_MONITORING_SHUTDOWN},
};

constexpr Framework::EnumerationWord kLaneTypeEnumWords[] = {
    {"LTYPE_UNKNOWN", LaneTypeEnum::LTYPE_UNKNOWN},
    {"LTYPE_FULL_LANE", LaneTypeEnum::LTYPE_FULL_LANE},
    {"LTYPE_MINI_LANE", LaneTypeEnum::LTYPE_MINI_LANE},
    {"LTYPE_KIOSK", LaneTypeEnum::LTYPE_KIOSK},
};

constexpr Framework::EnumerationWord kLinkTypeEnumWords[] = {
    {"LINK_TYPE_GENERAL", LinkTypeEnum::LINK_TYPE_GENERAL},
    {"LINK_TYPE_PREVENT", LinkTypeEnum::LINK_TYPE_PREVENT},
    {"LINK_TYPE_SUSPEND", LinkTypeEnum::LINK_TYPE_SUSPEND},
};

constexpr Framework::EnumerationWord kLogInformationTypeDefintionWords[] = {
    {"REPORT_APPLICATION_STATUS", LogInformationTypeDefintion::REPORT_APPLICATION_STATUS},
    {"SYSTEM_EVENT", LogInformationTypeDefintion::SYSTEM_EVENT},
    {"BEGIN_TRANSACTION", LogInformationTypeDefintion::BEGIN_TRANSACTION},
    {"ITEM_INFORMATION", LogInformationTypeDefintion::ITEM_INFORMATION},
    {"END_TRANSACTION", LogInformationTypeDefintion::END_TRANSACTION},
    {"AVAILABILITY_STATUS", LogInformationTypeDefintion::AVAILABILITY_STATUS},
};

constexpr Framework::EnumerationWord kMultiBreakDefinitionWords[] = {
    {"NONE", MultiBreakDefinition::NONE},
    {"SHORT", MultiBreakDefinition::SHORT},
    {"LONG", MultiBreakDefinition::LONG},
};

constexpr Framework::EnumerationWord kOverrideModeDefinitionWords[] = {
    {"OVERRIDE_MODE_NONE", OverrideModeDefinition::OVERRIDE_MODE_NONE},
    {"OVERRIDE_MODE_CUSTOMER_SCREEN", OverrideModeDefinition::OVERRIDE_MODE_CUSTOMER_SCREEN},
    {"OVERRIDE_MODE_CASHIER_SCREEN", OverrideModeDefinition::OVERRIDE_MODE_CASHIER_SCREEN},
    {"TRANSPORT_METHOD_HAND_SCANNER_OVERRIDE", OverrideModeDefinition::TRANSPORT_METHOD_HAND_SCANNER_OVERRIDE},
};

constexpr Framework::EnumerationWord kParityTypeWords[] = {
    {"NONE", ParityType::NONE},
    {"ODD", ParityType::ODD},
    {"EVEN", ParityType::EVEN},
};

constexpr Framework::EnumerationWord kPersistenceModelEnumWords[] = {
    {"Selective", PersistenceModelEnum::Selective},
    {"Automatic", PersistenceModelEnum::Automatic},
    {"Never", PersistenceModelEnum::Never},
};

constexpr Framework::EnumerationWord kSecurityModeEnumWords[] = {
    {"FULL_SECURITY", SecurityModeEnum::FULL_SECURITY},
    {"CUSTOMER_SPEED_MODE", SecurityModeEnum::CUSTOMER_SPEED_MODE},
    {"CASHIER_SPEED_MODE", SecurityModeEnum::CASHIER_SPEED_MODE},
};

constexpr Framework::EnumerationWord kSpecialHandlingEnumWords[] = {
    {"Default", SpecialHandlingEnum::Default},
    {"HoldCoupon", SpecialHandlingEnum::HoldCoupon},
    {"CustomerPriceEntry", SpecialHandlingEnum::CustomerPriceEntry},
    {"ItemAtPaystation", SpecialHandlingEnum::ItemAtPaystation},
};

constexpr Framework::EnumerationWord kStopBitsTypeWords[] = {
    {"ONE", StopBitsType::ONE},
    {"TWO", StopBitsType::TWO},
};

constexpr Framework::EnumerationWord kSysmgmtLogEventSeverityDefinitionWords[] = {
    {"SYSMGMT_CRITICAL", SysmgmtLogEventSeverityDefinition::SYSMGMT_CRITICAL},
    {"SYSMGMT_EMERGENCY", SysmgmtLogEventSeverityDefinition::SYSMGMT_EMERGENCY},
    {"SYSMGMT_ALERT", SysmgmtLogEventSeverityDefinition::SYSMGMT_ALERT},
    {"SYSMGMT_WARNING", SysmgmtLogEventSeverityDefinition::SYSMGMT_WARNING},
    {"SYSMGMT_NOTICE", SysmgmtLogEventSeverityDefinition::SYSMGMT_NOTICE},
    {"SYSMGMT_ERROR", SysmgmtLogEventSeverityDefinition::SYSMGMT_ERROR},
    {"SYSMGMT_INFO", SysmgmtLogEventSeverityDefinition::SYSMGMT_INFO},
    {"SYSMGMT_CONSUMER", SysmgmtLogEventSeverityDefinition::SYSMGMT_CONSUMER},
    {"SYSMGMT_DEBUG", SysmgmtLogEventSeverityDefinition::SYSMGMT_DEBUG},
    {"SYSMGMT_TRACEPOINT", SysmgmtLogEventSeverityDefinition::SYSMGMT_TRACEPOINT},
};

constexpr Framework::EnumerationWord kSystemsManagementPacketTypeEnumWords[] = {
    {"LANE_EVENT", SystemsManagementPacketTypeEnum::LANE_EVENT},
    {"LANE_AVAILABILITY", SystemsManagementPacketTypeEnum::LANE_AVAILABILITY},
    {"LANE_ITEM", SystemsManagementPacketTypeEnum::LANE_ITEM},
    {"LANE_TENDER", SystemsManagementPacketTypeEnum::LANE_TENDER},
    {"LANE_TRANSACTION", SystemsManagementPacketTypeEnum::LANE_TRANSACTION},
    {"LANE_CASH_ACTIVITY", SystemsManagementPacketTypeEnum::LANE_CASH_ACTIVITY},
};

constexpr Framework::EnumerationWord kTenderResultEnumWords[] = {
    {"__NEW__", TenderResultEnum::__NEW__},
    {"TENDER_RESULT_VALIDATED", TenderResultEnum::TENDER_RESULT_VALIDATED},
    {"TENDER_RESULT_VOIDED", TenderResultEnum::TENDER_RESULT_VOIDED},
};

constexpr Framework::EnumerationWord kTenderTypeDefinitionWords[] = {
    {"TENDER_UNKNOWN", TenderTypeDefinition::TENDER_UNKNOWN},
    {"TENDER_NO_SALE", TenderTypeDefinition::TENDER_NO_SALE},
    {"TENDER_VOIDED", TenderTypeDefinition::TENDER_VOIDED},
    {"TENDER_SUSPENDED", TenderTypeDefinition::TENDER_SUSPENDED},
    {"TENDER_CREDIT", TenderTypeDefinition::TENDER_CREDIT},
    {"TENDER_DEBIT", TenderTypeDefinition::TENDER_DEBIT},
    {"TENDER_CHECK", TenderTypeDefinition::TENDER_CHECK},
    {"TENDER_CASH", TenderTypeDefinition::TENDER_CASH},
    {"TENDER_EBT_FOOD_STAMP", TenderTypeDefinition::TENDER_EBT_FOOD_STAMP},
    {"TENDER_EBT_NO_TYPE", TenderTypeDefinition::TENDER_EBT_NO_TYPE},
    {"TENDER_EFT_NO_TYPE", TenderTypeDefinition::TENDER_EFT_NO_TYPE},
    {"TENDER_GIFT_CARD", TenderTypeDefinition::TENDER_GIFT_CARD},
    {"TENDER_POINTS", TenderTypeDefinition::TENDER_POINTS},
    {"TENDER_MULTIPLE_TYPES", TenderTypeDefinition::TENDER_MULTIPLE_TYPES},
};

constexpr Framework::EnumerationWord kThreadPriorityTypeWords[] = {
    {"PRIORITY_LOWEST", ThreadPriorityType::PRIORITY_LOWEST},
    {"PRIORITY_LOW", ThreadPriorityType::PRIORITY_LOW},
    {"PRIORITY_NORMAL", ThreadPriorityType::PRIORITY_NORMAL},
    {"PRIORITY_HIGH", ThreadPriorityType::PRIORITY_HIGH},
    {"PRIORITY_HIGHEST", ThreadPriorityType::PRIORITY_HIGHEST},
};

constexpr Framework::EnumerationWord kTransactionResultEnumWords[] = {
    {"__NEW__", TransactionResultEnum::__NEW__},
    {"TRANSACTION_VALIDATED", TransactionResultEnum::TRANSACTION_VALIDATED},
    {"TRANSACTION_VOID_SA", TransactionResultEnum::TRANSACTION_VOID_SA},
    {"TRANSACTION_VOID_COLD", TransactionResultEnum::TRANSACTION_VOID_COLD},
    {"TRANSACTION_VOID_ABORT", TransactionResultEnum::TRANSACTION_VOID_ABORT},
    {"TRANSACTION_SUSPENDED", TransactionResultEnum::TRANSACTION_SUSPENDED},
};

constexpr Framework::EnumerationWord kTransportMethodDefinitionWords[] = {
    {"TRANSPORT_METHOD_VALIDATION_REQUIRED", TransportMethodDefinition::TRANSPORT_METHOD_VALIDATION_REQUIRED},
    {"TRANSPORT_METHOD_OPTIONAL", TransportMethodDefinition::TRANSPORT_METHOD_OPTIONAL},
    {"TRANSPORT_METHOD_PASS_AROUND", TransportMethodDefinition::TRANSPORT_METHOD_PASS_AROUND},
    {"TRANSPORT_METHOD_NO_ITEM_SECURITY", TransportMethodDefinition::TRANSPORT_METHOD_NO_ITEM_SECURITY},
    {"TRANSPORT_METHOD_SKIP_SECURITY_CHECK", TransportMethodDefinition::TRANSPORT_METHOD_SKIP_SECURITY_CHECK},
    {"TRANSPORT_METHOD_HAND_SCANNER_OVERRIDE", TransportMethodDefinition::TRANSPORT_METHOD_HAND_SCANNER_OVERRIDE},
};
// clang-format on

} // namespace

ActionStatusDefinition::ActionStatusDefinition(LPCTSTR szValue) {
    ActionStatusDefinition::AssignValue(szValue);
}

ActionStatusDefinition::~ActionStatusDefinition() {}

bool ActionStatusDefinition::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kActionStatusDefinitionWords, m_Value, _Cmp);
}

ActionStatusDefinition& ActionStatusDefinition::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString ActionStatusDefinition::StringOf() const {
    return Framework::WordOf(kActionStatusDefinitionWords, m_Value);
}

void ActionStatusDefinition::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kActionStatusDefinitionWords, pList);
}

void ActionStatusDefinition::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kActionStatusDefinitionWords, szVal);
}

AudioPriorityEnum::AudioPriorityEnum(LPCTSTR szValue) {
    AudioPriorityEnum::AssignValue(szValue);
}

AudioPriorityEnum::~AudioPriorityEnum() {}

bool AudioPriorityEnum::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kAudioPriorityEnumWords, m_Value, _Cmp);
}

AudioPriorityEnum& AudioPriorityEnum::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString AudioPriorityEnum::StringOf() const {
    return Framework::WordOf(kAudioPriorityEnumWords, m_Value);
}

void AudioPriorityEnum::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kAudioPriorityEnumWords, pList);
}

void AudioPriorityEnum::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kAudioPriorityEnumWords, szVal);
}

AvailabilityStateEnum::AvailabilityStateEnum(LPCTSTR szValue) {
    AvailabilityStateEnum::AssignValue(szValue);
}

AvailabilityStateEnum::~AvailabilityStateEnum() {}

bool AvailabilityStateEnum::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kAvailabilityStateEnumWords, m_Value, _Cmp);
}

AvailabilityStateEnum& AvailabilityStateEnum::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString AvailabilityStateEnum::StringOf() const {
    return Framework::WordOf(kAvailabilityStateEnumWords, m_Value);
}

void AvailabilityStateEnum::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kAvailabilityStateEnumWords, pList);
}

void AvailabilityStateEnum::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kAvailabilityStateEnumWords, szVal);
}

CaptureLevelType::CaptureLevelType(LPCTSTR szValue) {
    CaptureLevelType::AssignValue(szValue);
}

CaptureLevelType::~CaptureLevelType() {}

bool CaptureLevelType::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kCaptureLevelTypeWords, m_Value, _Cmp);
}

CaptureLevelType& CaptureLevelType::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString CaptureLevelType::StringOf() const {
    return Framework::WordOf(kCaptureLevelTypeWords, m_Value);
}

void CaptureLevelType::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kCaptureLevelTypeWords, pList);
}

void CaptureLevelType::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kCaptureLevelTypeWords, szVal);
}

CommModeType::CommModeType(LPCTSTR szValue) {
    CommModeType::AssignValue(szValue);
}

CommModeType::~CommModeType() {}

bool CommModeType::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kCommModeTypeWords, m_Value, _Cmp);
}

CommModeType& CommModeType::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString CommModeType::StringOf() const {
    return Framework::WordOf(kCommModeTypeWords, m_Value);
}

void CommModeType::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kCommModeTypeWords, pList);
}

void CommModeType::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kCommModeTypeWords, szVal);
}

CouponType::CouponType(LPCTSTR szValue) {
    CouponType::AssignValue(szValue);
}

CouponType::~CouponType() {}

bool CouponType::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kCouponTypeWords, m_Value, _Cmp);
}

CouponType& CouponType::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString CouponType::StringOf() const {
    return Framework::WordOf(kCouponTypeWords, m_Value);
}

void CouponType::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kCouponTypeWords, pList);
}

void CouponType::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kCouponTypeWords, szVal);
}

FlowControlType::FlowControlType(LPCTSTR szValue) {
    FlowControlType::AssignValue(szValue);
}

FlowControlType::~FlowControlType() {}

bool FlowControlType::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kFlowControlTypeWords, m_Value, _Cmp);
}

FlowControlType& FlowControlType::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString FlowControlType::StringOf() const {
    return Framework::WordOf(kFlowControlTypeWords, m_Value);
}

void FlowControlType::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kFlowControlTypeWords, pList);
}

void FlowControlType::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kFlowControlTypeWords, szVal);
}

ItemHandlerCorrectionType::ItemHandlerCorrectionType(LPCTSTR szValue) {
    ItemHandlerCorrectionType::AssignValue(szValue);
}

ItemHandlerCorrectionType::~ItemHandlerCorrectionType() {}

bool ItemHandlerCorrectionType::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kItemHandlerCorrectionTypeWords, m_Value, _Cmp);
}

ItemHandlerCorrectionType& ItemHandlerCorrectionType::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString ItemHandlerCorrectionType::StringOf() const {
    return Framework::WordOf(kItemHandlerCorrectionTypeWords, m_Value);
}

void ItemHandlerCorrectionType::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kItemHandlerCorrectionTypeWords, pList);
}

void ItemHandlerCorrectionType::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kItemHandlerCorrectionTypeWords, szVal);
}

ItemLookupEnum::ItemLookupEnum(LPCTSTR szValue) {
    ItemLookupEnum::AssignValue(szValue);
}

ItemLookupEnum::~ItemLookupEnum() {}

bool ItemLookupEnum::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kItemLookupEnumWords, m_Value, _Cmp);
}

ItemLookupEnum& ItemLookupEnum::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString ItemLookupEnum::StringOf() const {
    return Framework::WordOf(kItemLookupEnumWords, m_Value);
}

void ItemLookupEnum::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kItemLookupEnumWords, pList);
}

void ItemLookupEnum::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kItemLookupEnumWords, szVal);
}

ItemProcessingEnum::ItemProcessingEnum(LPCTSTR szValue) {
    ItemProcessingEnum::AssignValue(szValue);
}

ItemProcessingEnum::~ItemProcessingEnum() {}

bool ItemProcessingEnum::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kItemProcessingEnumWords, m_Value, _Cmp);
}

ItemProcessingEnum& ItemProcessingEnum::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString ItemProcessingEnum::StringOf() const {
    return Framework::WordOf(kItemProcessingEnumWords, m_Value);
}

void ItemProcessingEnum::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kItemProcessingEnumWords, pList);
}

void ItemProcessingEnum::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kItemProcessingEnumWords, szVal);
}

ItemResultEnum::ItemResultEnum(LPCTSTR szValue) {
    ItemResultEnum::AssignValue(szValue);
}

ItemResultEnum::~ItemResultEnum() {}

bool ItemResultEnum::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kItemResultEnumWords, m_Value, _Cmp);
}

ItemResultEnum& ItemResultEnum::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString ItemResultEnum::StringOf() const {
    return Framework::WordOf(kItemResultEnumWords, m_Value);
}

void ItemResultEnum::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kItemResultEnumWords, pList);
}

void ItemResultEnum::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kItemResultEnumWords, szVal);
}

ItemTypeDefinitionEnum::ItemTypeDefinitionEnum(LPCTSTR szValue) {
    ItemTypeDefinitionEnum::AssignValue(szValue);
}

ItemTypeDefinitionEnum::~ItemTypeDefinitionEnum() {}

bool ItemTypeDefinitionEnum::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kItemTypeDefinitionEnumWords, m_Value, _Cmp);
}

ItemTypeDefinitionEnum& ItemTypeDefinitionEnum::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString ItemTypeDefinitionEnum::StringOf() const {
    return Framework::WordOf(kItemTypeDefinitionEnumWords, m_Value);
}

void ItemTypeDefinitionEnum::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kItemTypeDefinitionEnumWords, pList);
}

void ItemTypeDefinitionEnum::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kItemTypeDefinitionEnumWords, szVal);
}

ItemValidationStatusType::ItemValidationStatusType(LPCTSTR szValue) {
    ItemValidationStatusType::AssignValue(szValue);
}

ItemValidationStatusType::~ItemValidationStatusType() {}

bool ItemValidationStatusType::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kItemValidationStatusTypeWords, m_Value, _Cmp);
}

ItemValidationStatusType& ItemValidationStatusType::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString ItemValidationStatusType::StringOf() const {
    return Framework::WordOf(kItemValidationStatusTypeWords, m_Value);
}

void ItemValidationStatusType::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kItemValidationStatusTypeWords, pList);
}

void ItemValidationStatusType::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kItemValidationStatusTypeWords, szVal);
}

LaneManagerActionsEnums::LaneManagerActionsEnums(LPCTSTR szValue) {
    LaneManagerActionsEnums::AssignValue(szValue);
}

LaneManagerActionsEnums::~LaneManagerActionsEnums() {}

bool LaneManagerActionsEnums::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kLaneManagerActionsEnumsWords, m_Value, _Cmp);
}

LaneManagerActionsEnums& LaneManagerActionsEnums::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString LaneManagerActionsEnums::StringOf() const {
    return Framework::WordOf(kLaneManagerActionsEnumsWords, m_Value);
}

void LaneManagerActionsEnums::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kLaneManagerActionsEnumsWords, pList);
}

void LaneManagerActionsEnums::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kLaneManagerActionsEnumsWords, szVal);
}

LaneTypeEnum::LaneTypeEnum(LPCTSTR szValue) {
    LaneTypeEnum::AssignValue(szValue);
}

LaneTypeEnum::~LaneTypeEnum() {}

bool LaneTypeEnum::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kLaneTypeEnumWords, m_Value, _Cmp);
}

LaneTypeEnum& LaneTypeEnum::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString LaneTypeEnum::StringOf() const {
    return Framework::WordOf(kLaneTypeEnumWords, m_Value);
}

void LaneTypeEnum::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kLaneTypeEnumWords, pList);
}

void LaneTypeEnum::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kLaneTypeEnumWords, szVal);
}

LinkTypeEnum::LinkTypeEnum(LPCTSTR szValue) {
    LinkTypeEnum::AssignValue(szValue);
}

LinkTypeEnum::~LinkTypeEnum() {}

bool LinkTypeEnum::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kLinkTypeEnumWords, m_Value, _Cmp);
}

LinkTypeEnum& LinkTypeEnum::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString LinkTypeEnum::StringOf() const {
    return Framework::WordOf(kLinkTypeEnumWords, m_Value);
}

void LinkTypeEnum::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kLinkTypeEnumWords, pList);
}

void LinkTypeEnum::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kLinkTypeEnumWords, szVal);
}

LogInformationTypeDefintion::LogInformationTypeDefintion(LPCTSTR szValue) {
    LogInformationTypeDefintion::AssignValue(szValue);
}

LogInformationTypeDefintion::~LogInformationTypeDefintion() {}

bool LogInformationTypeDefintion::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kLogInformationTypeDefintionWords, m_Value, _Cmp);
}

LogInformationTypeDefintion& LogInformationTypeDefintion::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString LogInformationTypeDefintion::StringOf() const {
    return Framework::WordOf(kLogInformationTypeDefintionWords, m_Value);
}

void LogInformationTypeDefintion::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kLogInformationTypeDefintionWords, pList);
}

void LogInformationTypeDefintion::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kLogInformationTypeDefintionWords, szVal);
}

MultiBreakDefinition::MultiBreakDefinition(LPCTSTR szValue) {
    MultiBreakDefinition::AssignValue(szValue);
}

MultiBreakDefinition::~MultiBreakDefinition() {}

bool MultiBreakDefinition::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kMultiBreakDefinitionWords, m_Value, _Cmp);
}

MultiBreakDefinition& MultiBreakDefinition::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString MultiBreakDefinition::StringOf() const {
    return Framework::WordOf(kMultiBreakDefinitionWords, m_Value);
}

void MultiBreakDefinition::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kMultiBreakDefinitionWords, pList);
}

void MultiBreakDefinition::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kMultiBreakDefinitionWords, szVal);
}

OverrideModeDefinition::OverrideModeDefinition(LPCTSTR szValue) {
    OverrideModeDefinition::AssignValue(szValue);
}

OverrideModeDefinition::~OverrideModeDefinition() {}

bool OverrideModeDefinition::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kOverrideModeDefinitionWords, m_Value, _Cmp);
}

OverrideModeDefinition& OverrideModeDefinition::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString OverrideModeDefinition::StringOf() const {
    return Framework::WordOf(kOverrideModeDefinitionWords, m_Value);
}

void OverrideModeDefinition::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kOverrideModeDefinitionWords, pList);
}

void OverrideModeDefinition::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kOverrideModeDefinitionWords, szVal);
}

ParityType::ParityType(LPCTSTR szValue) {
    ParityType::AssignValue(szValue);
}

ParityType::~ParityType() {}

bool ParityType::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kParityTypeWords, m_Value, _Cmp);
}

ParityType& ParityType::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString ParityType::StringOf() const {
    return Framework::WordOf(kParityTypeWords, m_Value);
}

void ParityType::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kParityTypeWords, pList);
}

void ParityType::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kParityTypeWords, szVal);
}

PersistenceModelEnum::PersistenceModelEnum(LPCTSTR szValue) {
    PersistenceModelEnum::AssignValue(szValue);
}

PersistenceModelEnum::~PersistenceModelEnum() {}

bool PersistenceModelEnum::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kPersistenceModelEnumWords, m_Value, _Cmp);
}

PersistenceModelEnum& PersistenceModelEnum::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString PersistenceModelEnum::StringOf() const {
    return Framework::WordOf(kPersistenceModelEnumWords, m_Value);
}

void PersistenceModelEnum::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kPersistenceModelEnumWords, pList);
}

void PersistenceModelEnum::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kPersistenceModelEnumWords, szVal);
}

SecurityModeEnum::SecurityModeEnum(LPCTSTR szValue) {
    SecurityModeEnum::AssignValue(szValue);
}

SecurityModeEnum::~SecurityModeEnum() {}

bool SecurityModeEnum::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kSecurityModeEnumWords, m_Value, _Cmp);
}

SecurityModeEnum& SecurityModeEnum::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString SecurityModeEnum::StringOf() const {
    return Framework::WordOf(kSecurityModeEnumWords, m_Value);
}

void SecurityModeEnum::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kSecurityModeEnumWords, pList);
}

void SecurityModeEnum::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kSecurityModeEnumWords, szVal);
}

SpecialHandlingEnum::SpecialHandlingEnum(LPCTSTR szValue) {
    SpecialHandlingEnum::AssignValue(szValue);
}

SpecialHandlingEnum::~SpecialHandlingEnum() {}

bool SpecialHandlingEnum::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kSpecialHandlingEnumWords, m_Value, _Cmp);
}

SpecialHandlingEnum& SpecialHandlingEnum::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString SpecialHandlingEnum::StringOf() const {
    return Framework::WordOf(kSpecialHandlingEnumWords, m_Value);
}

void SpecialHandlingEnum::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kSpecialHandlingEnumWords, pList);
}

void SpecialHandlingEnum::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kSpecialHandlingEnumWords, szVal);
}

StopBitsType::StopBitsType(LPCTSTR szValue) {
    StopBitsType::AssignValue(szValue);
}

StopBitsType::~StopBitsType() {}

bool StopBitsType::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kStopBitsTypeWords, m_Value, _Cmp);
}

StopBitsType& StopBitsType::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString StopBitsType::StringOf() const {
    return Framework::WordOf(kStopBitsTypeWords, m_Value);
}

void StopBitsType::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kStopBitsTypeWords, pList);
}

void StopBitsType::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kStopBitsTypeWords, szVal);
}

SysmgmtLogEventSeverityDefinition::SysmgmtLogEventSeverityDefinition(LPCTSTR szValue) {
    SysmgmtLogEventSeverityDefinition::AssignValue(szValue);
}

SysmgmtLogEventSeverityDefinition::~SysmgmtLogEventSeverityDefinition() {}

bool SysmgmtLogEventSeverityDefinition::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kSysmgmtLogEventSeverityDefinitionWords, m_Value, _Cmp);
}

SysmgmtLogEventSeverityDefinition& SysmgmtLogEventSeverityDefinition::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString SysmgmtLogEventSeverityDefinition::StringOf() const {
    return Framework::WordOf(kSysmgmtLogEventSeverityDefinitionWords, m_Value);
}

void SysmgmtLogEventSeverityDefinition::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kSysmgmtLogEventSeverityDefinitionWords, pList);
}

void SysmgmtLogEventSeverityDefinition::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kSysmgmtLogEventSeverityDefinitionWords, szVal);
}

SystemsManagementPacketTypeEnum::SystemsManagementPacketTypeEnum(LPCTSTR szValue) {
    SystemsManagementPacketTypeEnum::AssignValue(szValue);
}

SystemsManagementPacketTypeEnum::~SystemsManagementPacketTypeEnum() {}

bool SystemsManagementPacketTypeEnum::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kSystemsManagementPacketTypeEnumWords, m_Value, _Cmp);
}

SystemsManagementPacketTypeEnum& SystemsManagementPacketTypeEnum::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString SystemsManagementPacketTypeEnum::StringOf() const {
    return Framework::WordOf(kSystemsManagementPacketTypeEnumWords, m_Value);
}

void SystemsManagementPacketTypeEnum::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kSystemsManagementPacketTypeEnumWords, pList);
}

void SystemsManagementPacketTypeEnum::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kSystemsManagementPacketTypeEnumWords, szVal);
}

TenderResultEnum::TenderResultEnum(LPCTSTR szValue) {
    TenderResultEnum::AssignValue(szValue);
}

TenderResultEnum::~TenderResultEnum() {}

bool TenderResultEnum::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kTenderResultEnumWords, m_Value, _Cmp);
}

TenderResultEnum& TenderResultEnum::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString TenderResultEnum::StringOf() const {
    return Framework::WordOf(kTenderResultEnumWords, m_Value);
}

void TenderResultEnum::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kTenderResultEnumWords, pList);
}

void TenderResultEnum::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kTenderResultEnumWords, szVal);
}

TenderTypeDefinition::TenderTypeDefinition(LPCTSTR szValue) {
    TenderTypeDefinition::AssignValue(szValue);
}

TenderTypeDefinition::~TenderTypeDefinition() {}

bool TenderTypeDefinition::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kTenderTypeDefinitionWords, m_Value, _Cmp);
}

TenderTypeDefinition& TenderTypeDefinition::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString TenderTypeDefinition::StringOf() const {
    return Framework::WordOf(kTenderTypeDefinitionWords, m_Value);
}

void TenderTypeDefinition::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kTenderTypeDefinitionWords, pList);
}

void TenderTypeDefinition::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kTenderTypeDefinitionWords, szVal);
}

ThreadPriorityType::ThreadPriorityType(LPCTSTR szValue) {
    ThreadPriorityType::AssignValue(szValue);
}

ThreadPriorityType::~ThreadPriorityType() {}

bool ThreadPriorityType::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kThreadPriorityTypeWords, m_Value, _Cmp);
}

ThreadPriorityType& ThreadPriorityType::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString ThreadPriorityType::StringOf() const {
    return Framework::WordOf(kThreadPriorityTypeWords, m_Value);
}

void ThreadPriorityType::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kThreadPriorityTypeWords, pList);
}

void ThreadPriorityType::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kThreadPriorityTypeWords, szVal);
}

TransactionResultEnum::TransactionResultEnum(LPCTSTR szValue) {
    TransactionResultEnum::AssignValue(szValue);
}

TransactionResultEnum::~TransactionResultEnum() {}

bool TransactionResultEnum::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kTransactionResultEnumWords, m_Value, _Cmp);
}

TransactionResultEnum& TransactionResultEnum::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString TransactionResultEnum::StringOf() const {
    return Framework::WordOf(kTransactionResultEnumWords, m_Value);
}

void TransactionResultEnum::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kTransactionResultEnumWords, pList);
}

void TransactionResultEnum::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kTransactionResultEnumWords, szVal);
}

TransportMethodDefinition::TransportMethodDefinition(LPCTSTR szValue) {
    TransportMethodDefinition::AssignValue(szValue);
}

TransportMethodDefinition::~TransportMethodDefinition() {}

bool TransportMethodDefinition::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kTransportMethodDefinitionWords, m_Value, _Cmp);
}

TransportMethodDefinition& TransportMethodDefinition::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString TransportMethodDefinition::StringOf() const {
    return Framework::WordOf(kTransportMethodDefinitionWords, m_Value);
}

void TransportMethodDefinition::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kTransportMethodDefinitionWords, pList);
}

void TransportMethodDefinition::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kTransportMethodDefinitionWords, szVal);
}
