#pragma once

// The 34 scalars of a packet's ItemInformation, in the order of the schema. With the three of the packet itself
// (PacketType, Lane and TimeStamp) they are the 37 that every contender reads and writes. Words come with the one that
// stands in the packets.
#define BENCH_ITEM_FIELDS(WORD, TEXT, INT, BOOL, DOUBLE)                                                               \
    WORD(LaneType, "LTYPE_FULL_LANE")                                                                                  \
    TEXT(LaneTransId)                                                                                                  \
    TEXT(TimeStamp)                                                                                                    \
    TEXT(ItemId)                                                                                                       \
    TEXT(ExtendedBarCode)                                                                                              \
    TEXT(ItemDesc)                                                                                                     \
    DOUBLE(ItemPrice)                                                                                                  \
    WORD(ItemType, "WEIGHT_REQUIRED")                                                                                  \
    BOOL(MiniPassAround)                                                                                               \
    INT(ItemQuantity)                                                                                                  \
    INT(MeasuredWeight)                                                                                                \
    INT(ScannerScaleWeight)                                                                                            \
    INT(MeasuredHeight)                                                                                                \
    WORD(BreadTail, "LONG")                                                                                            \
    WORD(ValidationStatus, "VALIDATED_WEIGHT_ERROR")                                                                   \
    INT(SecurityAlert)                                                                                                 \
    BOOL(OldInformationInSecRecord)                                                                                    \
    BOOL(PassAround)                                                                                                   \
    BOOL(FlagWithCheckCart)                                                                                            \
    BOOL(SkippedItemSecurityCheck)                                                                                     \
    BOOL(LongItem)                                                                                                     \
    BOOL(NewItem)                                                                                                      \
    WORD(OverrideMode, "OVERRIDE_MODE_CASHIER_SCREEN")                                                                 \
    BOOL(AssistantVoid)                                                                                                \
    BOOL(UsedNofInformation)                                                                                           \
    BOOL(NewNofInformation)                                                                                            \
    TEXT(AssistantId)                                                                                                  \
    TEXT(NofDepartment)                                                                                                \
    DOUBLE(NofPrice)                                                                                                   \
    INT(NofMod1)                                                                                                       \
    INT(NofMod2)                                                                                                       \
    DOUBLE(PricePerUnitUsed)                                                                                           \
    INT(ByCountQuantityUsed)                                                                                           \
    INT(Type2SluUsed)
