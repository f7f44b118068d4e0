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

constexpr Framework::EnumerationWord kLogIdTypeDefintionWords[] = {
    {"LOG_TYPE_UNKNOWN", LogIdTypeDefintion::LOG_TYPE_UNKNOWN},
    {"LOG_TYPE_TRANSACTION", LogIdTypeDefintion::LOG_TYPE_TRANSACTION},
    {"LOG_TYPE_CASH", LogIdTypeDefintion::LOG_TYPE_CASH},
    {"LOG_TYPE_SECURITY_RECORD_ADDED", LogIdTypeDefintion::LOG_TYPE_SECURITY_RECORD_ADDED},
    {"LOG_TYPE_SECURITY_RECORD_DELETED", LogIdTypeDefintion::LOG_TYPE_SECURITY_RECORD_DELETED},
    {"LOG_TYPE_SECURITY_RECORD_MODIFIED", LogIdTypeDefintion::LOG_TYPE_SECURITY_RECORD_MODIFIED},
    {"LOG_TYPE_WEIGHT_REJECT", LogIdTypeDefintion::LOG_TYPE_WEIGHT_REJECT},
    {"LOG_TYPE_WEIGHT_CHANGED_REJECT", LogIdTypeDefintion::LOG_TYPE_WEIGHT_CHANGED_REJECT},
    {"LOG_TYPE_WEIGHT_HEIGHT_REJECT", LogIdTypeDefintion::LOG_TYPE_WEIGHT_HEIGHT_REJECT},
    {"LOG_TYPE_HEIGHT_REJECT", LogIdTypeDefintion::LOG_TYPE_HEIGHT_REJECT},
    {"LOG_TYPE_EXTRA_BREAK_REJECT", LogIdTypeDefintion::LOG_TYPE_EXTRA_BREAK_REJECT},
    {"LOG_TYPE_NOT_ON_BELT_REJECT", LogIdTypeDefintion::LOG_TYPE_NOT_ON_BELT_REJECT},
    {"LOG_TYPE_ABORT_REJECT", LogIdTypeDefintion::LOG_TYPE_ABORT_REJECT},
    {"LOG_TYPE_OTHER_ITEM_REJECT", LogIdTypeDefintion::LOG_TYPE_OTHER_ITEM_REJECT},
    {"LOG_TYPE_UNKNOWN_REJECT", LogIdTypeDefintion::LOG_TYPE_UNKNOWN_REJECT},
    {"LOG_TYPE_NOF_REJECT", LogIdTypeDefintion::LOG_TYPE_NOF_REJECT},
    {"LOG_TYPE_POS_RESTRICTED_REJECT", LogIdTypeDefintion::LOG_TYPE_POS_RESTRICTED_REJECT},
    {"LOG_TYPE_POS_WGT_QTY_REJECT", LogIdTypeDefintion::LOG_TYPE_POS_WGT_QTY_REJECT},
    {"LOG_TYPE_POS_LIMIT_REJECT", LogIdTypeDefintion::LOG_TYPE_POS_LIMIT_REJECT},
    {"LOG_TYPE_POS_ITEM_DATA_REJECT", LogIdTypeDefintion::LOG_TYPE_POS_ITEM_DATA_REJECT},
    {"LOG_TYPE_POS_BAD_COUPON_REJECT", LogIdTypeDefintion::LOG_TYPE_POS_BAD_COUPON_REJECT},
    {"LOG_TYPE_POS_OTHER_REJECT", LogIdTypeDefintion::LOG_TYPE_POS_OTHER_REJECT},
    {"LOG_TYPE_POS_TIMEOUT_REJECT", LogIdTypeDefintion::LOG_TYPE_POS_TIMEOUT_REJECT},
    {"LOG_TYPE_OVERRIDE_SECURITY", LogIdTypeDefintion::LOG_TYPE_OVERRIDE_SECURITY},
    {"LOG_TYPE_LEARN_NOF", LogIdTypeDefintion::LOG_TYPE_LEARN_NOF},
    {"LOG_TYPE_DEPT_KEY_IN", LogIdTypeDefintion::LOG_TYPE_DEPT_KEY_IN},
    {"LOG_TYPE_NEW_ITEM", LogIdTypeDefintion::LOG_TYPE_NEW_ITEM},
    {"LOG_TYPE_ITEM_VOID", LogIdTypeDefintion::LOG_TYPE_ITEM_VOID},
    {"LOG_TYPE_PROCESSED_NOF", LogIdTypeDefintion::LOG_TYPE_PROCESSED_NOF},
    {"LOG_TYPE_PROCESSED_TYPE2_OVRIDE", LogIdTypeDefintion::LOG_TYPE_PROCESSED_TYPE2_OVRIDE},
    {"LOG_TYPE_CLEAR_LEARN_NOF", LogIdTypeDefintion::LOG_TYPE_CLEAR_LEARN_NOF},
    {"LOG_TYPE_ACCEPT_COUPON", LogIdTypeDefintion::LOG_TYPE_ACCEPT_COUPON},
    {"LOG_TYPE_TRANSACTION_VOID", LogIdTypeDefintion::LOG_TYPE_TRANSACTION_VOID},
    {"LOG_TYPE_COUPON_CANCEL_NOT_IN_BOX", LogIdTypeDefintion::LOG_TYPE_COUPON_CANCEL_NOT_IN_BOX},
    {"LOG_TYPE_COUPON_VOID", LogIdTypeDefintion::LOG_TYPE_COUPON_VOID},
    {"LOG_TYPE_ACCEPT_COUPON_CASHIER_ASSISTED", LogIdTypeDefintion::LOG_TYPE_ACCEPT_COUPON_CASHIER_ASSISTED},
    {"LOG_TYPE_PRICE_OVERRIDE_NORMAL", LogIdTypeDefintion::LOG_TYPE_PRICE_OVERRIDE_NORMAL},
    {"LOG_TYPE_PRICE_OVERRIDE_WGT_REQ", LogIdTypeDefintion::LOG_TYPE_PRICE_OVERRIDE_WGT_REQ},
    {"LOG_TYPE_LONG_ITEM_REJECT", LogIdTypeDefintion::LOG_TYPE_LONG_ITEM_REJECT},
    {"LOG_TYPE_VALIDATE_SECURITY_FAILED", LogIdTypeDefintion::LOG_TYPE_VALIDATE_SECURITY_FAILED},
    {"LOG_TYPE_VALIDATE_NOT_IN_BAG", LogIdTypeDefintion::LOG_TYPE_VALIDATE_NOT_IN_BAG},
    {"LOG_TYPE_CASHIER_QUANTITY_ENTRY", LogIdTypeDefintion::LOG_TYPE_CASHIER_QUANTITY_ENTRY},
    {"LOG_TYPE_MINI_LEARN", LogIdTypeDefintion::LOG_TYPE_MINI_LEARN},
    {"LOG_TYPE_HAND_HELD_SCANNER", LogIdTypeDefintion::LOG_TYPE_HAND_HELD_SCANNER},
    {"LOG_TYPE_OVERRIDE_SECURITY_NEEDED", LogIdTypeDefintion::LOG_TYPE_OVERRIDE_SECURITY_NEEDED},
    {"LOG_TYPE_OVERRIDE_SECUIRTY_NOT_REJECTED", LogIdTypeDefintion::LOG_TYPE_OVERRIDE_SECUIRTY_NOT_REJECTED},
    {"LOG_TYPE_OVERRIDE_SECURITY_DB_SEC_OK", LogIdTypeDefintion::LOG_TYPE_OVERRIDE_SECURITY_DB_SEC_OK},
    {"LOG_TYPE_OVERRIDE_NOT_ON_BELT", LogIdTypeDefintion::LOG_TYPE_OVERRIDE_NOT_ON_BELT},
    {"LOG_TYPE_EVENT_CRITICAL_ERROR", LogIdTypeDefintion::LOG_TYPE_EVENT_CRITICAL_ERROR},
    {"LOG_TYPE_EVENT_TRAP_ERROR", LogIdTypeDefintion::LOG_TYPE_EVENT_TRAP_ERROR},
    {"LOG_TYPE_EVENT_OPEN_LANE_COLD", LogIdTypeDefintion::LOG_TYPE_EVENT_OPEN_LANE_COLD},
    {"LOG_TYPE_EVENT_OPEN_LANE_WARM", LogIdTypeDefintion::LOG_TYPE_EVENT_OPEN_LANE_WARM},
    {"LOG_TYPE_EVENT_CLOSE_LANE", LogIdTypeDefintion::LOG_TYPE_EVENT_CLOSE_LANE},
    {"LOG_TYPE_EVENT_CONFIG_INFO_CHANGED", LogIdTypeDefintion::LOG_TYPE_EVENT_CONFIG_INFO_CHANGED},
    {"LOG_TYPE_EVENT_LANE_POWER_FAILURE", LogIdTypeDefintion::LOG_TYPE_EVENT_LANE_POWER_FAILURE},
    {"LOG_TYPE_EVENT_TARN_POWER_FAILURE", LogIdTypeDefintion::LOG_TYPE_EVENT_TARN_POWER_FAILURE},
    {"LOG_TYPE_EVENT_LAN_FAILURE", LogIdTypeDefintion::LOG_TYPE_EVENT_LAN_FAILURE},
    {"LOG_TYPE_EVENT_PRINTER_ERROR", LogIdTypeDefintion::LOG_TYPE_EVENT_PRINTER_ERROR},
    {"LOG_TYPE_EVENT_TAKE_EXTRACT", LogIdTypeDefintion::LOG_TYPE_EVENT_TAKE_EXTRACT},
    {"LOG_TYPE_EVENT_ZERO_SCALE", LogIdTypeDefintion::LOG_TYPE_EVENT_ZERO_SCALE},
    {"LOG_TYPE_EVENT_TOUCHED_NEED_ASSISTANT", LogIdTypeDefintion::LOG_TYPE_EVENT_TOUCHED_NEED_ASSISTANT},
    {"LOG_TYPE_EVENT_TOUCHED_HOW_TO_USE", LogIdTypeDefintion::LOG_TYPE_EVENT_TOUCHED_HOW_TO_USE},
    {"LOG_TYPE_EVENT_AUTOMATIC_HELP", LogIdTypeDefintion::LOG_TYPE_EVENT_AUTOMATIC_HELP},
    {"LOG_TYPE_EVENT_REPRINT_RECEIPT", LogIdTypeDefintion::LOG_TYPE_EVENT_REPRINT_RECEIPT},
    {"LOG_TYPE_EVENT_TARN_ISP_CONNECT_ERROR", LogIdTypeDefintion::LOG_TYPE_EVENT_TARN_ISP_CONNECT_ERROR},
    {"LOG_TYPE_EVENT_TARN_FILE_UPDATE_ERROR", LogIdTypeDefintion::LOG_TYPE_EVENT_TARN_FILE_UPDATE_ERROR},
    {"LOG_TYPE_EVENT_TARN_MGR_RESTARTS", LogIdTypeDefintion::LOG_TYPE_EVENT_TARN_MGR_RESTARTS},
    {"LOG_TYPE_EVENT_ASSISTANCE_CARD_SCANNED", LogIdTypeDefintion::LOG_TYPE_EVENT_ASSISTANCE_CARD_SCANNED},
    {"LOG_TYPE_EVENT_LAST_ALTERNATE_RECORD_USED", LogIdTypeDefintion::LOG_TYPE_EVENT_LAST_ALTERNATE_RECORD_USED},
    {"LOG_TYPE_EVENT_TARN_SEC_DB_UPDATE_FAILURE", LogIdTypeDefintion::LOG_TYPE_EVENT_TARN_SEC_DB_UPDATE_FAILURE},
    {"LOG_TYPE_EVENT_BEGIN_TRANSACTION_UNEXPECTED", LogIdTypeDefintion::LOG_TYPE_EVENT_BEGIN_TRANSACTION_UNEXPECTED},
    {"LOG_TYPE_EVENT_END_TRANSACTION_UNEXPECTED", LogIdTypeDefintion::LOG_TYPE_EVENT_END_TRANSACTION_UNEXPECTED},
    {"LOG_TYPE_EVENT_ITEM_INFORMATION_UNEXPECTED", LogIdTypeDefintion::LOG_TYPE_EVENT_ITEM_INFORMATION_UNEXPECTED},
    {"LOG_TYPE_EVENT_TARN_PENDING_FILE_ERROR", LogIdTypeDefintion::LOG_TYPE_EVENT_TARN_PENDING_FILE_ERROR},
    {"LOG_TYPE_EVENT_LANE_PENDING_FILE_ERROR", LogIdTypeDefintion::LOG_TYPE_EVENT_LANE_PENDING_FILE_ERROR},
    {"LOG_TYPE_EVENT_LOG_OBJECT_RECOVERY_FAILURE", LogIdTypeDefintion::LOG_TYPE_EVENT_LOG_OBJECT_RECOVERY_FAILURE},
    {"LOG_TYPE_EVENT_BAGGING_AREA_FULL", LogIdTypeDefintion::LOG_TYPE_EVENT_BAGGING_AREA_FULL},
    {"LOG_TYPE_EVENT_CONFUSED_DIALOG", LogIdTypeDefintion::LOG_TYPE_EVENT_CONFUSED_DIALOG},
    {"LOG_TYPE_EVENT_STOPPED_BELT_TO_WEIGH", LogIdTypeDefintion::LOG_TYPE_EVENT_STOPPED_BELT_TO_WEIGH},
    {"LOG_TYPE_EVENT_SEC_MODULE_FAILURE", LogIdTypeDefintion::LOG_TYPE_EVENT_SEC_MODULE_FAILURE},
    {"LOG_TYPE_EVENT_SCANNER_SCALE_FAILURE", LogIdTypeDefintion::LOG_TYPE_EVENT_SCANNER_SCALE_FAILURE},
    {"LOG_TYPE_EVENT_SIGNATURE_CAP_FAILURE", LogIdTypeDefintion::LOG_TYPE_EVENT_SIGNATURE_CAP_FAILURE},
    {"LOG_TYPE_EVENT_SEC_SCALE_EXCEED_MAX_WEIGHT", LogIdTypeDefintion::LOG_TYPE_EVENT_SEC_SCALE_EXCEED_MAX_WEIGHT},
    {"LOG_TYPE_EVENT_COUPON_PICKUP", LogIdTypeDefintion::LOG_TYPE_EVENT_COUPON_PICKUP},
    {"LOG_TYPE_EVENT_AGE_CHECK", LogIdTypeDefintion::LOG_TYPE_EVENT_AGE_CHECK},
    {"LOG_TYPE_EVENT_PRINT_REG_Z_DATA", LogIdTypeDefintion::LOG_TYPE_EVENT_PRINT_REG_Z_DATA},
    {"LOG_TYPE_EVENT_PURGE_REG_Z_DATA", LogIdTypeDefintion::LOG_TYPE_EVENT_PURGE_REG_Z_DATA},
    {"LOG_TYPE_EVENT_CASH_INCOMPLETIONS", LogIdTypeDefintion::LOG_TYPE_EVENT_CASH_INCOMPLETIONS},
    {"LOG_TYPE_EVENT_EFT_TENDER_CANCELED", LogIdTypeDefintion::LOG_TYPE_EVENT_EFT_TENDER_CANCELED},
    {"LOG_TYPE_EVENT_EFT_TENDER_FAILED", LogIdTypeDefintion::LOG_TYPE_EVENT_EFT_TENDER_FAILED},
    {"LOG_TYPE_EVENT_EFT_TENDER_INSUFFICIENT_FUNDS", LogIdTypeDefintion::LOG_TYPE_EVENT_EFT_TENDER_INSUFFICIENT_FUNDS},
    {"LOG_TYPE_EVENT_EFT_TENDER_USER_PARTIAL", LogIdTypeDefintion::LOG_TYPE_EVENT_EFT_TENDER_USER_PARTIAL},
    {"LOG_TYPE_EVENT_CHECK_COLLECTED", LogIdTypeDefintion::LOG_TYPE_EVENT_CHECK_COLLECTED},
    {"LOG_TYPE_EVENT_CHECK_NOT_COLLECTED", LogIdTypeDefintion::LOG_TYPE_EVENT_CHECK_NOT_COLLECTED},
    {"LOG_TYPE_EVENT_SECURITY_MOD_UPLOAD", LogIdTypeDefintion::LOG_TYPE_EVENT_SECURITY_MOD_UPLOAD},
    {"LOG_TYPE_EVENT_SUSPEND_ESCORT", LogIdTypeDefintion::LOG_TYPE_EVENT_SUSPEND_ESCORT},
    {"LOG_TYPE_EVENT_END_ORDER_ITEM_AUDIT", LogIdTypeDefintion::LOG_TYPE_EVENT_END_ORDER_ITEM_AUDIT},
    {"LOG_TYPE_EVENT_IN_TRANS_SECURITY_AUDIT", LogIdTypeDefintion::LOG_TYPE_EVENT_IN_TRANS_SECURITY_AUDIT},
    {"LOG_TYPE_EVENT_END_TRANS_SECURITY_AUDIT", LogIdTypeDefintion::LOG_TYPE_EVENT_END_TRANS_SECURITY_AUDIT},
    {"LOG_TYPE_EVENT_COUPON_LIMIT_INTERVENTION", LogIdTypeDefintion::LOG_TYPE_EVENT_COUPON_LIMIT_INTERVENTION},
    {"LOG_TYPE_EVENT_SA_SCAN_WITH_NO_ACTION", LogIdTypeDefintion::LOG_TYPE_EVENT_SA_SCAN_WITH_NO_ACTION},
    {"LOG_TYPE_EVENT_LAST_ITEM_CORRECTED", LogIdTypeDefintion::LOG_TYPE_EVENT_LAST_ITEM_CORRECTED},
    {"LOG_TYPE_EVENT_EARLY_BAG_REMOVAL", LogIdTypeDefintion::LOG_TYPE_EVENT_EARLY_BAG_REMOVAL},
    {"LOG_TYPE_EVENT_EARLY_BAG_FORGIVENESS", LogIdTypeDefintion::LOG_TYPE_EVENT_EARLY_BAG_FORGIVENESS},
    {"LOG_TYPE_EVENT_BAG_REMOVAL", LogIdTypeDefintion::LOG_TYPE_EVENT_BAG_REMOVAL},
    {"LOG_TYPE_EVENT_MAX_WEIGHT_WARNING", LogIdTypeDefintion::LOG_TYPE_EVENT_MAX_WEIGHT_WARNING},
    {"LOG_TYPE_EVENT_MAX_WEIGHT_LIMIT", LogIdTypeDefintion::LOG_TYPE_EVENT_MAX_WEIGHT_LIMIT},
    {"LOG_TYPE_EVENT_EXTRA_ITEM", LogIdTypeDefintion::LOG_TYPE_EVENT_EXTRA_ITEM},
    {"LOG_TYPE_EVENT_LANGUAGE_SELECT", LogIdTypeDefintion::LOG_TYPE_EVENT_LANGUAGE_SELECT},
    {"LOG_TYPE_EVENT_GREEN_BUTTON", LogIdTypeDefintion::LOG_TYPE_EVENT_GREEN_BUTTON},
    {"LOG_TYPE_EVENT_RED_BUTTON", LogIdTypeDefintion::LOG_TYPE_EVENT_RED_BUTTON},
    {"LOG_TYPE_EVENT_SA_SCANNED_DURING_TRANSACTION", LogIdTypeDefintion::LOG_TYPE_EVENT_SA_SCANNED_DURING_TRANSACTION},
    {"LOG_TYPE_EVENT_MEMBERSHIP_BLOCK_OVERRIDE", LogIdTypeDefintion::LOG_TYPE_EVENT_MEMBERSHIP_BLOCK_OVERRIDE},
    {"LOG_TYPE_EVENT_EXTRA_ITEM_REMOVED", LogIdTypeDefintion::LOG_TYPE_EVENT_EXTRA_ITEM_REMOVED},
    {"LOG_TYPE_EVENT_BOTTLE_DEPOSIT_NOT_COLLECTED", LogIdTypeDefintion::LOG_TYPE_EVENT_BOTTLE_DEPOSIT_NOT_COLLECTED},
    {"LOG_TYPE_EVENT_BOTTLE_DEPOSIT_COLLECTED", LogIdTypeDefintion::LOG_TYPE_EVENT_BOTTLE_DEPOSIT_COLLECTED},
    {"LOG_TYPE_EVENT_CASH_VOUCHER_PRINTED", LogIdTypeDefintion::LOG_TYPE_EVENT_CASH_VOUCHER_PRINTED},
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

constexpr Framework::EnumerationWord kScanDataTypeEnumWords[] = {
    {"SCAN_SDT_UPCA", ScanDataTypeEnum::SCAN_SDT_UPCA},
    {"SCAN_SDT_UPCA_S", ScanDataTypeEnum::SCAN_SDT_UPCA_S},
    {"SCAN_SDT_UPCE", ScanDataTypeEnum::SCAN_SDT_UPCE},
    {"SCAN_SDT_UPCE_S", ScanDataTypeEnum::SCAN_SDT_UPCE_S},
    {"SCAN_SDT_UPCD1", ScanDataTypeEnum::SCAN_SDT_UPCD1},
    {"SCAN_SDT_UPCD2", ScanDataTypeEnum::SCAN_SDT_UPCD2},
    {"SCAN_SDT_UPCD3", ScanDataTypeEnum::SCAN_SDT_UPCD3},
    {"SCAN_SDT_UPCD4", ScanDataTypeEnum::SCAN_SDT_UPCD4},
    {"SCAN_SDT_UPCD5", ScanDataTypeEnum::SCAN_SDT_UPCD5},
    {"SCAN_SDT_EAN8", ScanDataTypeEnum::SCAN_SDT_EAN8},
    {"SCAN_SDT_JAN8", ScanDataTypeEnum::SCAN_SDT_JAN8},
    {"SCAN_SDT_EAN8_S", ScanDataTypeEnum::SCAN_SDT_EAN8_S},
    {"SCAN_SDT_EAN13", ScanDataTypeEnum::SCAN_SDT_EAN13},
    {"SCAN_SDT_EAN128", ScanDataTypeEnum::SCAN_SDT_EAN128},
    {"SCAN_SDT_TF", ScanDataTypeEnum::SCAN_SDT_TF},
    {"SCAN_SDT_ITF", ScanDataTypeEnum::SCAN_SDT_ITF},
    {"SCAN_SDT_Codabar", ScanDataTypeEnum::SCAN_SDT_Codabar},
    {"SCAN_SDT_Code39", ScanDataTypeEnum::SCAN_SDT_Code39},
    {"SCAN_SDT_Code93", ScanDataTypeEnum::SCAN_SDT_Code93},
    {"SCAN_SDT_Code128", ScanDataTypeEnum::SCAN_SDT_Code128},
    {"SCAN_SDT_OCRA", ScanDataTypeEnum::SCAN_SDT_OCRA},
    {"SCAN_SDT_OCRB", ScanDataTypeEnum::SCAN_SDT_OCRB},
    {"SCAN_SDT_PDF417", ScanDataTypeEnum::SCAN_SDT_PDF417},
    {"SCAN_SDT_MAXICODE", ScanDataTypeEnum::SCAN_SDT_MAXICODE},
    {"SCAN_SDT_OTHER", ScanDataTypeEnum::SCAN_SDT_OTHER},
    {"SCAN_SDT_GS1DATABAR", ScanDataTypeEnum::SCAN_SDT_GS1DATABAR},
    {"SCAN_SDT_GS1DATABAR_E", ScanDataTypeEnum::SCAN_SDT_GS1DATABAR_E},
    {"SCAN_SDT_RSS14", ScanDataTypeEnum::SCAN_SDT_RSS14},
    {"SCAN_SDT_RSS_EXPANDED", ScanDataTypeEnum::SCAN_SDT_RSS_EXPANDED},
    {"HandKeyed", ScanDataTypeEnum::HandKeyed},
    {"SCAN_SDT_UNKNOWN", ScanDataTypeEnum::SCAN_SDT_UNKNOWN},
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

constexpr Framework::EnumerationWord kSystemEventIdEnumWords[] = {
    {"__NEW__", SystemEventIdEnum::__NEW__},
    {"OPEN_LANE_WARM", SystemEventIdEnum::OPEN_LANE_WARM},
    {"OPEN_LANE_COLD", SystemEventIdEnum::OPEN_LANE_COLD},
    {"CLOSE_LANE", SystemEventIdEnum::CLOSE_LANE},
    {"OPEN_DIAGNOSTICS", SystemEventIdEnum::OPEN_DIAGNOSTICS},
    {"CLOSE_DIAGNOSTICS", SystemEventIdEnum::CLOSE_DIAGNOSTICS},
    {"OPEN_EMULATOR", SystemEventIdEnum::OPEN_EMULATOR},
    {"CLOSE_EMULATOR", SystemEventIdEnum::CLOSE_EMULATOR},
    {"EXIT_TO_DESKTOP", SystemEventIdEnum::EXIT_TO_DESKTOP},
    {"POWER_FAIL", SystemEventIdEnum::POWER_FAIL},
    {"POWER_FAIL_RESUME", SystemEventIdEnum::POWER_FAIL_RESUME},
    {"POWER_FAIL_SHUTDOWN", SystemEventIdEnum::POWER_FAIL_SHUTDOWN},
    {"APPLICATION_STATUS", SystemEventIdEnum::APPLICATION_STATUS},
    {"DEVICE_STATUS", SystemEventIdEnum::DEVICE_STATUS},
    {"EXTRACT_AUTO", SystemEventIdEnum::EXTRACT_AUTO},
    {"EXTRACT_MANUAL", SystemEventIdEnum::EXTRACT_MANUAL},
    {"EXTRACT_RMA_REQUESTED", SystemEventIdEnum::EXTRACT_RMA_REQUESTED},
    {"REQUEST_ASSISTANCE_AUTO", SystemEventIdEnum::REQUEST_ASSISTANCE_AUTO},
    {"REQUEST_ASSISTANCE_MANUAL", SystemEventIdEnum::REQUEST_ASSISTANCE_MANUAL},
    {"REQUEST_ASSISTANCE_CANCEL_AUTO", SystemEventIdEnum::REQUEST_ASSISTANCE_CANCEL_AUTO},
    {"REQUEST_ASSISTANCE_CANCEL_MANUAL", SystemEventIdEnum::REQUEST_ASSISTANCE_CANCEL_MANUAL},
    {"ASSISTANCE_ARRIVE", SystemEventIdEnum::ASSISTANCE_ARRIVE},
    {"REAR_ARCH_BLOCKED", SystemEventIdEnum::REAR_ARCH_BLOCKED},
    {"BAGGING_AREA_FULL", SystemEventIdEnum::BAGGING_AREA_FULL},
    {"BAGGING_AREA_CLEARED", SystemEventIdEnum::BAGGING_AREA_CLEARED},
    {"FRONT_SAFETY_SENSOR_BLOCKED", SystemEventIdEnum::FRONT_SAFETY_SENSOR_BLOCKED},
    {"REAR_SAFETY_SENSOR_BLOCKED", SystemEventIdEnum::REAR_SAFETY_SENSOR_BLOCKED},
    {"FRONT_SAFETY_SENSOR_CLEARED", SystemEventIdEnum::FRONT_SAFETY_SENSOR_CLEARED},
    {"REAR_SAFETY_SENSOR_CLEARED", SystemEventIdEnum::REAR_SAFETY_SENSOR_CLEARED},
    {"CASHIER_CLEAR_ARCHES_OR_SENSORS", SystemEventIdEnum::CASHIER_CLEAR_ARCHES_OR_SENSORS},
    {"STOP_TO_WEIGH", SystemEventIdEnum::STOP_TO_WEIGH},
    {"VALIDATE_1_CLEAR_2", SystemEventIdEnum::VALIDATE_1_CLEAR_2},
    {"VERIFY_AGE", SystemEventIdEnum::VERIFY_AGE},
    {"REPRINT_RECEIPT", SystemEventIdEnum::REPRINT_RECEIPT},
    {"PRINT_REGZ", SystemEventIdEnum::PRINT_REGZ},
    {"PURGE_REGZ", SystemEventIdEnum::PURGE_REGZ},
    {"SUSPEND_ESCORT", SystemEventIdEnum::SUSPEND_ESCORT},
    {"AUDIT_IN_TRANSACTION", SystemEventIdEnum::AUDIT_IN_TRANSACTION},
    {"AUDIT_END_TRANSACTION", SystemEventIdEnum::AUDIT_END_TRANSACTION},
    {"AUDIT_ITEM_REJECTS", SystemEventIdEnum::AUDIT_ITEM_REJECTS},
    {"COUPON_REPORT", SystemEventIdEnum::COUPON_REPORT},
    {"COUPON_PICKUP", SystemEventIdEnum::COUPON_PICKUP},
    {"SA_SCAN", SystemEventIdEnum::SA_SCAN},
    {"VARIABLE_WEIGHT_OVERRIDE_WARNING", SystemEventIdEnum::VARIABLE_WEIGHT_OVERRIDE_WARNING},
    {"EARLY_BAG_REMOVAL", SystemEventIdEnum::EARLY_BAG_REMOVAL},
    {"EARLY_BAG_FORGIVENESS", SystemEventIdEnum::EARLY_BAG_FORGIVENESS},
    {"BAG_REMOVAL", SystemEventIdEnum::BAG_REMOVAL},
    {"ITEM_SECURITY_INFO", SystemEventIdEnum::ITEM_SECURITY_INFO},
    {"ITEM_SECURITY_ERROR", SystemEventIdEnum::ITEM_SECURITY_ERROR},
    {"ITEM_SECURITY_WARNING", SystemEventIdEnum::ITEM_SECURITY_WARNING},
    {"WEIGHT_MAX_WARNING", SystemEventIdEnum::WEIGHT_MAX_WARNING},
    {"WEIGHT_MAX_LIMIT", SystemEventIdEnum::WEIGHT_MAX_LIMIT},
    {"GREEN_BUTTON", SystemEventIdEnum::GREEN_BUTTON},
    {"RED_BUTTON", SystemEventIdEnum::RED_BUTTON},
    {"MEMBERSHIP_BLOCK", SystemEventIdEnum::MEMBERSHIP_BLOCK},
    {"EXTRA_ITEM_DETECTED", SystemEventIdEnum::EXTRA_ITEM_DETECTED},
    {"EXTRA_ITEM_REMOVED", SystemEventIdEnum::EXTRA_ITEM_REMOVED},
    {"EXTRA_ITEM_CORRECTED", SystemEventIdEnum::EXTRA_ITEM_CORRECTED},
    {"LATE_ITEM_VALIDATION", SystemEventIdEnum::LATE_ITEM_VALIDATION},
    {"ITEM_SKIP_BAGGING", SystemEventIdEnum::ITEM_SKIP_BAGGING},
    {"SKIPPED_SECURITY_CHECK", SystemEventIdEnum::SKIPPED_SECURITY_CHECK},
    {"SA_SECURITY_OVERRIDE", SystemEventIdEnum::SA_SECURITY_OVERRIDE},
    {"SHUTDOWN", SystemEventIdEnum::SHUTDOWN},
    {"ZERO_SECURITY_SCALE", SystemEventIdEnum::ZERO_SECURITY_SCALE},
    {"SECURITY_MODE_CHANGE", SystemEventIdEnum::SECURITY_MODE_CHANGE},
    {"TOSS_THROUGH", SystemEventIdEnum::TOSS_THROUGH},
    {"CONFUSED", SystemEventIdEnum::CONFUSED},
    {"VOID_TRANSACTION", SystemEventIdEnum::VOID_TRANSACTION},
    {"SUSPEND_TRANSACTION", SystemEventIdEnum::SUSPEND_TRANSACTION},
    {"EXTRACT_TAKEN", SystemEventIdEnum::EXTRACT_TAKEN},
    {"GUI_UPDATE_ERROR", SystemEventIdEnum::GUI_UPDATE_ERROR},
    {"ITEM_HANDLER_BUG", SystemEventIdEnum::ITEM_HANDLER_BUG},
    {"CASH_MAINTENANCE", SystemEventIdEnum::CASH_MAINTENANCE},
    {"POS_CONTROLLER_OFFLINE", SystemEventIdEnum::POS_CONTROLLER_OFFLINE},
    {"POS_CONTROLLER_ONLINE", SystemEventIdEnum::POS_CONTROLLER_ONLINE},
    {"CONFIGURATION_STATUS", SystemEventIdEnum::CONFIGURATION_STATUS},
    {"OPEN_LANE_HEALTH_CHECK", SystemEventIdEnum::OPEN_LANE_HEALTH_CHECK},
    {"CASH_VOUCHER_PRINT", SystemEventIdEnum::CASH_VOUCHER_PRINT},
    {"DATABASE_STATUS", SystemEventIdEnum::DATABASE_STATUS},
    {"ITEM_HANDLER_TRACE", SystemEventIdEnum::ITEM_HANDLER_TRACE},
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

LogIdTypeDefintion::LogIdTypeDefintion(LPCTSTR szValue) {
    LogIdTypeDefintion::AssignValue(szValue);
}

LogIdTypeDefintion::~LogIdTypeDefintion() {}

bool LogIdTypeDefintion::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kLogIdTypeDefintionWords, m_Value, _Cmp);
}

LogIdTypeDefintion& LogIdTypeDefintion::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString LogIdTypeDefintion::StringOf() const {
    return Framework::WordOf(kLogIdTypeDefintionWords, m_Value);
}

void LogIdTypeDefintion::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kLogIdTypeDefintionWords, pList);
}

void LogIdTypeDefintion::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kLogIdTypeDefintionWords, szVal);
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

ScanDataTypeEnum::ScanDataTypeEnum(LPCTSTR szValue) {
    ScanDataTypeEnum::AssignValue(szValue);
}

ScanDataTypeEnum::~ScanDataTypeEnum() {}

bool ScanDataTypeEnum::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kScanDataTypeEnumWords, m_Value, _Cmp);
}

ScanDataTypeEnum& ScanDataTypeEnum::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString ScanDataTypeEnum::StringOf() const {
    return Framework::WordOf(kScanDataTypeEnumWords, m_Value);
}

void ScanDataTypeEnum::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kScanDataTypeEnumWords, pList);
}

void ScanDataTypeEnum::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kScanDataTypeEnumWords, szVal);
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

SystemEventIdEnum::SystemEventIdEnum(LPCTSTR szValue) {
    SystemEventIdEnum::AssignValue(szValue);
}

SystemEventIdEnum::~SystemEventIdEnum() {}

bool SystemEventIdEnum::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kSystemEventIdEnumWords, m_Value, _Cmp);
}

SystemEventIdEnum& SystemEventIdEnum::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString SystemEventIdEnum::StringOf() const {
    return Framework::WordOf(kSystemEventIdEnumWords, m_Value);
}

void SystemEventIdEnum::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kSystemEventIdEnumWords, pList);
}

void SystemEventIdEnum::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kSystemEventIdEnumWords, szVal);
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
