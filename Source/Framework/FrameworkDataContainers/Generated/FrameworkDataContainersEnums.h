// Generated from the schemas; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataEnumeration.h"

#include <vector>

// The enumeration classes. A default constructed object is VALUE_UNKNOWN; numbers are taken unchecked, and one outside
// of the vocabulary has the empty text.

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wignored-qualifiers" // conversions to const types

/// How far an action has come.
class FRAMEWORK_API ActionStatusDefinition : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        ACTION_INIT = 1,
        ACTION_START = 2,
        ACTION_IDLE = 3,
        ACTION_ACTIVE = 4,
        ACTION_PENDING = 5,
        ACTION_COMPLETE = 6,
        ACTION_ERROR = 7,
        VALUE_END_OF_LIST = 8,
    };

    ActionStatusDefinition() noexcept = default;
    ActionStatusDefinition(const int& iValue) noexcept : m_Value(iValue) {}
    ActionStatusDefinition(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    ActionStatusDefinition(LPCTSTR szValue);
    ActionStatusDefinition(const ActionStatusDefinition& other) noexcept = default;
    ~ActionStatusDefinition() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const ActionStatusDefinition& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    ActionStatusDefinition& operator=(LPCTSTR sVal) override;
    ActionStatusDefinition& operator=(const ActionStatusDefinition& other) noexcept = default;
    ActionStatusDefinition& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    ActionStatusDefinition& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

/// Priority of a spoken or played text.
class FRAMEWORK_API AudioPriorityEnum : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        low = 1,
        normal = 2,
        high = 3,
        VALUE_END_OF_LIST = 4,
    };

    AudioPriorityEnum() noexcept = default;
    AudioPriorityEnum(const int& iValue) noexcept : m_Value(iValue) {}
    AudioPriorityEnum(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    AudioPriorityEnum(LPCTSTR szValue);
    AudioPriorityEnum(const AudioPriorityEnum& other) noexcept = default;
    ~AudioPriorityEnum() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const AudioPriorityEnum& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    AudioPriorityEnum& operator=(LPCTSTR sVal) override;
    AudioPriorityEnum& operator=(const AudioPriorityEnum& other) noexcept = default;
    AudioPriorityEnum& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    AudioPriorityEnum& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

/// Whether a lane is open, busy or closed, and how fully it works.
class FRAMEWORK_API AvailabilityStateEnum : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        __NEW__ = 1,
        OFFLINE = 2,
        OFFLINE_ERROR = 3,
        OPENING = 4,
        IDLE = 5,
        IDLE_SA_HALTED = 6,
        IDLE_LIMITED = 7,
        BUSY = 8,
        BUSY_SA_HALTED = 9,
        BUSY_LIMITED = 10,
        CLOSING = 11,
        CLOSED = 12,
        CLOSED_LIMITED = 13,
        CLOSED_ERROR = 14,
        SOFTWARE_DISTRIBUTION = 15,
        SUPPORT_APPLICATION = 16,
        __REFRESH__ = 17,
        __CLEAR__ = 18,
        UNAVAILABLE = 19,
        VALUE_END_OF_LIST = 20,
    };

    AvailabilityStateEnum() noexcept = default;
    AvailabilityStateEnum(const int& iValue) noexcept : m_Value(iValue) {}
    AvailabilityStateEnum(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    AvailabilityStateEnum(LPCTSTR szValue);
    AvailabilityStateEnum(const AvailabilityStateEnum& other) noexcept = default;
    ~AvailabilityStateEnum() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const AvailabilityStateEnum& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    AvailabilityStateEnum& operator=(LPCTSTR sVal) override;
    AvailabilityStateEnum& operator=(const AvailabilityStateEnum& other) noexcept = default;
    AvailabilityStateEnum& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    AvailabilityStateEnum& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

/// Kinds of diagnostic output.
class FRAMEWORK_API CaptureLevelType : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        CAPTURE_LEVEL_ERROR = 1,
        CAPTURE_LEVEL_WARNING = 2,
        CAPTURE_LEVEL_NORMAL = 3,
        CAPTURE_LEVEL_DEBUG = 4,
        CAPTURE_LEVEL_EXTERNAL_INTERFACE = 5,
        CAPTURE_LEVEL_INTERNAL_INTERFACE = 6,
        CAPTURE_LEVEL_HARDWARE_INTERFACE = 7,
        CAPTURE_LEVEL_FIRMWARE_INTERFACE = 8,
        CAPTURE_LEVEL_MARKPOINT = 9,
        CAPTURE_LEVEL_ERROR_SHUTDOWN = 10,
        VALUE_END_OF_LIST = 11,
    };

    CaptureLevelType() noexcept = default;
    CaptureLevelType(const int& iValue) noexcept : m_Value(iValue) {}
    CaptureLevelType(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    CaptureLevelType(LPCTSTR szValue);
    CaptureLevelType(const CaptureLevelType& other) noexcept = default;
    ~CaptureLevelType() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const CaptureLevelType& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    CaptureLevelType& operator=(LPCTSTR sVal) override;
    CaptureLevelType& operator=(const CaptureLevelType& other) noexcept = default;
    CaptureLevelType& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    CaptureLevelType& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

/// Which end of a channel the lane is.
class FRAMEWORK_API CommModeType : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        CLIENT = 1,
        SERVER = 2,
        VALUE_END_OF_LIST = 3,
    };

    CommModeType() noexcept = default;
    CommModeType(const int& iValue) noexcept : m_Value(iValue) {}
    CommModeType(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    CommModeType(LPCTSTR szValue);
    CommModeType(const CommModeType& other) noexcept = default;
    ~CommModeType() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const CommModeType& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    CommModeType& operator=(LPCTSTR sVal) override;
    CommModeType& operator=(const CommModeType& other) noexcept = default;
    CommModeType& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    CommModeType& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

/// Who issued a coupon.
class FRAMEWORK_API CouponType : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        Store = 1,
        Manufacturer = 2,
        VALUE_END_OF_LIST = 3,
    };

    CouponType() noexcept = default;
    CouponType(const int& iValue) noexcept : m_Value(iValue) {}
    CouponType(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    CouponType(LPCTSTR szValue);
    CouponType(const CouponType& other) noexcept = default;
    ~CouponType() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const CouponType& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    CouponType& operator=(LPCTSTR sVal) override;
    CouponType& operator=(const CouponType& other) noexcept = default;
    CouponType& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    CouponType& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

/// Flow control of a serial line.
class FRAMEWORK_API FlowControlType : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        NONE = 1,
        HARDWARE = 2,
        SOFTWARE = 3,
        VALUE_END_OF_LIST = 4,
    };

    FlowControlType() noexcept = default;
    FlowControlType(const int& iValue) noexcept : m_Value(iValue) {}
    FlowControlType(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    FlowControlType(LPCTSTR szValue);
    FlowControlType(const FlowControlType& other) noexcept = default;
    ~FlowControlType() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const FlowControlType& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    FlowControlType& operator=(LPCTSTR sVal) override;
    FlowControlType& operator=(const FlowControlType& other) noexcept = default;
    FlowControlType& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    FlowControlType& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

/// How an item in the bagging area was put right.
class FRAMEWORK_API ItemHandlerCorrectionType : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        ICS_NORMAL = 1,
        ICS_INVALID = 2,
        ICS_NOT_IN_BAG = 3,
        ICS_PASS_AROUND = 4,
        ICS_EARLY_BAG_REMOVAL = 5,
        VALUE_END_OF_LIST = 6,
    };

    ItemHandlerCorrectionType() noexcept = default;
    ItemHandlerCorrectionType(const int& iValue) noexcept : m_Value(iValue) {}
    ItemHandlerCorrectionType(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    ItemHandlerCorrectionType(LPCTSTR szValue);
    ItemHandlerCorrectionType(const ItemHandlerCorrectionType& other) noexcept = default;
    ~ItemHandlerCorrectionType() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const ItemHandlerCorrectionType& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    ItemHandlerCorrectionType& operator=(LPCTSTR sVal) override;
    ItemHandlerCorrectionType& operator=(const ItemHandlerCorrectionType& other) noexcept = default;
    ItemHandlerCorrectionType& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    ItemHandlerCorrectionType& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

/// What looking an item up gave.
class FRAMEWORK_API ItemLookupEnum : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        UNKNOWN_ITEM = 1,
        NORMAL_ITEM = 2,
        COUPON_ITEM = 3,
        ASSISTANT_REQUIRED_ITEM = 4,
        UNSELLABLE_ITEM = 5,
        SHOPPER_ASSISTANT = 6,
        VALUE_END_OF_LIST = 7,
    };

    ItemLookupEnum() noexcept = default;
    ItemLookupEnum(const int& iValue) noexcept : m_Value(iValue) {}
    ItemLookupEnum(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    ItemLookupEnum(LPCTSTR szValue);
    ItemLookupEnum(const ItemLookupEnum& other) noexcept = default;
    ~ItemLookupEnum() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const ItemLookupEnum& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    ItemLookupEnum& operator=(LPCTSTR sVal) override;
    ItemLookupEnum& operator=(const ItemLookupEnum& other) noexcept = default;
    ItemLookupEnum& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    ItemLookupEnum& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

/// How an item is handled.
class FRAMEWORK_API ItemProcessingEnum : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        NormalItem = 1,
        ShopperAssistant = 2,
        Coupon = 3,
        FrequentShopper = 4,
        VariableWeightPrice = 5,
        RequiresShopperAssistant = 6,
        DoNotProcess = 7,
        GiftCardItem = 8,
        PriceDepartmentEntry = 9,
        VALUE_END_OF_LIST = 10,
    };

    ItemProcessingEnum() noexcept = default;
    ItemProcessingEnum(const int& iValue) noexcept : m_Value(iValue) {}
    ItemProcessingEnum(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    ItemProcessingEnum(LPCTSTR szValue);
    ItemProcessingEnum(const ItemProcessingEnum& other) noexcept = default;
    ~ItemProcessingEnum() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const ItemProcessingEnum& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    ItemProcessingEnum& operator=(LPCTSTR sVal) override;
    ItemProcessingEnum& operator=(const ItemProcessingEnum& other) noexcept = default;
    ItemProcessingEnum& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    ItemProcessingEnum& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

/// What became of an item.
class FRAMEWORK_API ItemResultEnum : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        __NEW__ = 1,
        SECURITY_VALIDATED = 2,
        VOIDED = 3,
        SECURITY_REJECT = 4,
        POS_EXCEPTION = 5,
        ABORTED = 6,
        VALUE_END_OF_LIST = 7,
    };

    ItemResultEnum() noexcept = default;
    ItemResultEnum(const int& iValue) noexcept : m_Value(iValue) {}
    ItemResultEnum(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    ItemResultEnum(LPCTSTR szValue);
    ItemResultEnum(const ItemResultEnum& other) noexcept = default;
    ~ItemResultEnum() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const ItemResultEnum& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    ItemResultEnum& operator=(LPCTSTR sVal) override;
    ItemResultEnum& operator=(const ItemResultEnum& other) noexcept = default;
    ItemResultEnum& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    ItemResultEnum& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

/// Kinds of item.
class FRAMEWORK_API ItemTypeDefinitionEnum : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        NOT_FILLED_IN = 1,
        NORMAL = 2,
        VARIABLE_WEIGHT = 3,
        QUANTITY_REQUIRED = 4,
        WEIGHT_REQUIRED = 5,
        PRICE_DEPT = 6,
        COUPON = 7,
        FREQUENT_SHOPPER = 8,
        MEMBERSHIP_CARD = 9,
        DATA_ENTRY = 10,
        VALUE_END_OF_LIST = 11,
    };

    ItemTypeDefinitionEnum() noexcept = default;
    ItemTypeDefinitionEnum(const int& iValue) noexcept : m_Value(iValue) {}
    ItemTypeDefinitionEnum(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    ItemTypeDefinitionEnum(LPCTSTR szValue);
    ItemTypeDefinitionEnum(const ItemTypeDefinitionEnum& other) noexcept = default;
    ~ItemTypeDefinitionEnum() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const ItemTypeDefinitionEnum& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    ItemTypeDefinitionEnum& operator=(LPCTSTR sVal) override;
    ItemTypeDefinitionEnum& operator=(const ItemTypeDefinitionEnum& other) noexcept = default;
    ItemTypeDefinitionEnum& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    ItemTypeDefinitionEnum& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

/// Whether the security check let an item pass, and why not.
class FRAMEWORK_API ItemValidationStatusType : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        NOT_APPLICABLE = 1,
        VALIDATED = 2,
        VALIDATED_NO_CHECK = 3,
        VALIDATED_NO_SECURITY = 4,
        VALIDATED_AND_CLEAR = 5,
        REJECT_WEIGHT = 6,
        REJECT_HEIGHT = 7,
        REJECT_MULTI_BREAK = 8,
        REJECT_NOT_ON_BELT = 9,
        REJECT_LONG_ITEM = 10,
        REJECT_OTHER_ITEM = 11,
        VALIDATED_WEIGHT_ERROR = 12,
        VALIDATED_NOT_IN_BAG = 13,
        REJECT_POS_ABORT_IH_IGNORE = 14,
        VALUE_END_OF_LIST = 15,
    };

    ItemValidationStatusType() noexcept = default;
    ItemValidationStatusType(const int& iValue) noexcept : m_Value(iValue) {}
    ItemValidationStatusType(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    ItemValidationStatusType(LPCTSTR szValue);
    ItemValidationStatusType(const ItemValidationStatusType& other) noexcept = default;
    ~ItemValidationStatusType() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const ItemValidationStatusType& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    ItemValidationStatusType& operator=(LPCTSTR sVal) override;
    ItemValidationStatusType& operator=(const ItemValidationStatusType& other) noexcept = default;
    ItemValidationStatusType& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    ItemValidationStatusType& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

/// What the lane manager is asked to do.
class FRAMEWORK_API LaneManagerActionsEnums : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        RESET = 1,
        SHUTDOWN = 2,
        POWEREVENT_MONITORING_ON = 3,
        POWEREVENT_MONITORING_OFF = 4,
        POWEREVENT_MONITORING_RESUME = 5,
        POWEREVENT_MONITORING_SHUTDOWN = 6,
        VALUE_END_OF_LIST = 7,
    };

    LaneManagerActionsEnums() noexcept = default;
    LaneManagerActionsEnums(const int& iValue) noexcept : m_Value(iValue) {}
    LaneManagerActionsEnums(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    LaneManagerActionsEnums(LPCTSTR szValue);
    LaneManagerActionsEnums(const LaneManagerActionsEnums& other) noexcept = default;
    ~LaneManagerActionsEnums() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const LaneManagerActionsEnums& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    LaneManagerActionsEnums& operator=(LPCTSTR sVal) override;
    LaneManagerActionsEnums& operator=(const LaneManagerActionsEnums& other) noexcept = default;
    LaneManagerActionsEnums& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    LaneManagerActionsEnums& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

/// Kinds of lane.
class FRAMEWORK_API LaneTypeEnum : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        LTYPE_UNKNOWN = 1,
        LTYPE_FULL_LANE = 2,
        LTYPE_MINI_LANE = 3,
        LTYPE_KIOSK = 4,
        VALUE_END_OF_LIST = 5,
    };

    LaneTypeEnum() noexcept = default;
    LaneTypeEnum(const int& iValue) noexcept : m_Value(iValue) {}
    LaneTypeEnum(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    LaneTypeEnum(LPCTSTR szValue);
    LaneTypeEnum(const LaneTypeEnum& other) noexcept = default;
    ~LaneTypeEnum() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const LaneTypeEnum& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    LaneTypeEnum& operator=(LPCTSTR sVal) override;
    LaneTypeEnum& operator=(const LaneTypeEnum& other) noexcept = default;
    LaneTypeEnum& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    LaneTypeEnum& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

/// How an item hangs together with another.
class FRAMEWORK_API LinkTypeEnum : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        LINK_TYPE_GENERAL = 1,
        LINK_TYPE_PREVENT = 2,
        LINK_TYPE_SUSPEND = 3,
        VALUE_END_OF_LIST = 4,
    };

    LinkTypeEnum() noexcept = default;
    LinkTypeEnum(const int& iValue) noexcept : m_Value(iValue) {}
    LinkTypeEnum(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    LinkTypeEnum(LPCTSTR szValue);
    LinkTypeEnum(const LinkTypeEnum& other) noexcept = default;
    ~LinkTypeEnum() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const LinkTypeEnum& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    LinkTypeEnum& operator=(LPCTSTR sVal) override;
    LinkTypeEnum& operator=(const LinkTypeEnum& other) noexcept = default;
    LinkTypeEnum& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    LinkTypeEnum& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

class FRAMEWORK_API LogIdTypeDefintion : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        LOG_TYPE_UNKNOWN = 1,
        LOG_TYPE_TRANSACTION = 2,
        LOG_TYPE_CASH = 3,
        LOG_TYPE_SECURITY_RECORD_ADDED = 4,
        LOG_TYPE_SECURITY_RECORD_DELETED = 5,
        LOG_TYPE_SECURITY_RECORD_MODIFIED = 6,
        LOG_TYPE_WEIGHT_REJECT = 7,
        LOG_TYPE_WEIGHT_CHANGED_REJECT = 8,
        LOG_TYPE_WEIGHT_HEIGHT_REJECT = 9,
        LOG_TYPE_HEIGHT_REJECT = 10,
        LOG_TYPE_EXTRA_BREAK_REJECT = 11,
        LOG_TYPE_NOT_ON_BELT_REJECT = 12,
        LOG_TYPE_ABORT_REJECT = 13,
        LOG_TYPE_OTHER_ITEM_REJECT = 14,
        LOG_TYPE_UNKNOWN_REJECT = 15,
        LOG_TYPE_NOF_REJECT = 16,
        LOG_TYPE_POS_RESTRICTED_REJECT = 17,
        LOG_TYPE_POS_WGT_QTY_REJECT = 18,
        LOG_TYPE_POS_LIMIT_REJECT = 19,
        LOG_TYPE_POS_ITEM_DATA_REJECT = 20,
        LOG_TYPE_POS_BAD_COUPON_REJECT = 21,
        LOG_TYPE_POS_OTHER_REJECT = 22,
        LOG_TYPE_POS_TIMEOUT_REJECT = 23,
        LOG_TYPE_OVERRIDE_SECURITY = 24,
        LOG_TYPE_LEARN_NOF = 25,
        LOG_TYPE_DEPT_KEY_IN = 26,
        LOG_TYPE_NEW_ITEM = 27,
        LOG_TYPE_ITEM_VOID = 28,
        LOG_TYPE_PROCESSED_NOF = 29,
        LOG_TYPE_PROCESSED_TYPE2_OVRIDE = 30,
        LOG_TYPE_CLEAR_LEARN_NOF = 31,
        LOG_TYPE_ACCEPT_COUPON = 32,
        LOG_TYPE_TRANSACTION_VOID = 33,
        LOG_TYPE_COUPON_CANCEL_NOT_IN_BOX = 34,
        LOG_TYPE_COUPON_VOID = 35,
        LOG_TYPE_ACCEPT_COUPON_CASHIER_ASSISTED = 36,
        LOG_TYPE_PRICE_OVERRIDE_NORMAL = 37,
        LOG_TYPE_PRICE_OVERRIDE_WGT_REQ = 38,
        LOG_TYPE_LONG_ITEM_REJECT = 39,
        LOG_TYPE_VALIDATE_SECURITY_FAILED = 40,
        LOG_TYPE_VALIDATE_NOT_IN_BAG = 41,
        LOG_TYPE_CASHIER_QUANTITY_ENTRY = 42,
        LOG_TYPE_MINI_LEARN = 43,
        LOG_TYPE_HAND_HELD_SCANNER = 44,
        LOG_TYPE_OVERRIDE_SECURITY_NEEDED = 45,
        LOG_TYPE_OVERRIDE_SECUIRTY_NOT_REJECTED = 46,
        LOG_TYPE_OVERRIDE_SECURITY_DB_SEC_OK = 47,
        LOG_TYPE_OVERRIDE_NOT_ON_BELT = 48,
        LOG_TYPE_EVENT_CRITICAL_ERROR = 49,
        LOG_TYPE_EVENT_TRAP_ERROR = 50,
        LOG_TYPE_EVENT_OPEN_LANE_COLD = 51,
        LOG_TYPE_EVENT_OPEN_LANE_WARM = 52,
        LOG_TYPE_EVENT_CLOSE_LANE = 53,
        LOG_TYPE_EVENT_CONFIG_INFO_CHANGED = 54,
        LOG_TYPE_EVENT_LANE_POWER_FAILURE = 55,
        LOG_TYPE_EVENT_TARN_POWER_FAILURE = 56,
        LOG_TYPE_EVENT_LAN_FAILURE = 57,
        LOG_TYPE_EVENT_PRINTER_ERROR = 58,
        LOG_TYPE_EVENT_TAKE_EXTRACT = 59,
        LOG_TYPE_EVENT_ZERO_SCALE = 60,
        LOG_TYPE_EVENT_TOUCHED_NEED_ASSISTANT = 61,
        LOG_TYPE_EVENT_TOUCHED_HOW_TO_USE = 62,
        LOG_TYPE_EVENT_AUTOMATIC_HELP = 63,
        LOG_TYPE_EVENT_REPRINT_RECEIPT = 64,
        LOG_TYPE_EVENT_TARN_ISP_CONNECT_ERROR = 65,
        LOG_TYPE_EVENT_TARN_FILE_UPDATE_ERROR = 66,
        LOG_TYPE_EVENT_TARN_MGR_RESTARTS = 67,
        LOG_TYPE_EVENT_ASSISTANCE_CARD_SCANNED = 68,
        LOG_TYPE_EVENT_LAST_ALTERNATE_RECORD_USED = 69,
        LOG_TYPE_EVENT_TARN_SEC_DB_UPDATE_FAILURE = 70,
        LOG_TYPE_EVENT_BEGIN_TRANSACTION_UNEXPECTED = 71,
        LOG_TYPE_EVENT_END_TRANSACTION_UNEXPECTED = 72,
        LOG_TYPE_EVENT_ITEM_INFORMATION_UNEXPECTED = 73,
        LOG_TYPE_EVENT_TARN_PENDING_FILE_ERROR = 74,
        LOG_TYPE_EVENT_LANE_PENDING_FILE_ERROR = 75,
        LOG_TYPE_EVENT_LOG_OBJECT_RECOVERY_FAILURE = 76,
        LOG_TYPE_EVENT_BAGGING_AREA_FULL = 77,
        LOG_TYPE_EVENT_CONFUSED_DIALOG = 78,
        LOG_TYPE_EVENT_STOPPED_BELT_TO_WEIGH = 79,
        LOG_TYPE_EVENT_SEC_MODULE_FAILURE = 80,
        LOG_TYPE_EVENT_SCANNER_SCALE_FAILURE = 81,
        LOG_TYPE_EVENT_SIGNATURE_CAP_FAILURE = 82,
        LOG_TYPE_EVENT_SEC_SCALE_EXCEED_MAX_WEIGHT = 83,
        LOG_TYPE_EVENT_COUPON_PICKUP = 84,
        LOG_TYPE_EVENT_AGE_CHECK = 85,
        LOG_TYPE_EVENT_PRINT_REG_Z_DATA = 86,
        LOG_TYPE_EVENT_PURGE_REG_Z_DATA = 87,
        LOG_TYPE_EVENT_CASH_INCOMPLETIONS = 88,
        LOG_TYPE_EVENT_EFT_TENDER_CANCELED = 89,
        LOG_TYPE_EVENT_EFT_TENDER_FAILED = 90,
        LOG_TYPE_EVENT_EFT_TENDER_INSUFFICIENT_FUNDS = 91,
        LOG_TYPE_EVENT_EFT_TENDER_USER_PARTIAL = 92,
        LOG_TYPE_EVENT_CHECK_COLLECTED = 93,
        LOG_TYPE_EVENT_CHECK_NOT_COLLECTED = 94,
        LOG_TYPE_EVENT_SECURITY_MOD_UPLOAD = 95,
        LOG_TYPE_EVENT_SUSPEND_ESCORT = 96,
        LOG_TYPE_EVENT_END_ORDER_ITEM_AUDIT = 97,
        LOG_TYPE_EVENT_IN_TRANS_SECURITY_AUDIT = 98,
        LOG_TYPE_EVENT_END_TRANS_SECURITY_AUDIT = 99,
        LOG_TYPE_EVENT_COUPON_LIMIT_INTERVENTION = 100,
        LOG_TYPE_EVENT_SA_SCAN_WITH_NO_ACTION = 101,
        LOG_TYPE_EVENT_LAST_ITEM_CORRECTED = 102,
        LOG_TYPE_EVENT_EARLY_BAG_REMOVAL = 103,
        LOG_TYPE_EVENT_EARLY_BAG_FORGIVENESS = 104,
        LOG_TYPE_EVENT_BAG_REMOVAL = 105,
        LOG_TYPE_EVENT_MAX_WEIGHT_WARNING = 106,
        LOG_TYPE_EVENT_MAX_WEIGHT_LIMIT = 107,
        LOG_TYPE_EVENT_EXTRA_ITEM = 108,
        LOG_TYPE_EVENT_LANGUAGE_SELECT = 109,
        LOG_TYPE_EVENT_GREEN_BUTTON = 110,
        LOG_TYPE_EVENT_RED_BUTTON = 111,
        LOG_TYPE_EVENT_SA_SCANNED_DURING_TRANSACTION = 112,
        LOG_TYPE_EVENT_MEMBERSHIP_BLOCK_OVERRIDE = 113,
        LOG_TYPE_EVENT_EXTRA_ITEM_REMOVED = 114,
        LOG_TYPE_EVENT_BOTTLE_DEPOSIT_NOT_COLLECTED = 115,
        LOG_TYPE_EVENT_BOTTLE_DEPOSIT_COLLECTED = 116,
        LOG_TYPE_EVENT_CASH_VOUCHER_PRINTED = 117,
        VALUE_END_OF_LIST = 118,
    };

    LogIdTypeDefintion() noexcept = default;
    LogIdTypeDefintion(const int& iValue) noexcept : m_Value(iValue) {}
    LogIdTypeDefintion(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    LogIdTypeDefintion(LPCTSTR szValue);
    LogIdTypeDefintion(const LogIdTypeDefintion& other) noexcept = default;
    ~LogIdTypeDefintion() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const LogIdTypeDefintion& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    LogIdTypeDefintion& operator=(LPCTSTR sVal) override;
    LogIdTypeDefintion& operator=(const LogIdTypeDefintion& other) noexcept = default;
    LogIdTypeDefintion& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    LogIdTypeDefintion& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

/// Kinds of log record.
class FRAMEWORK_API LogInformationTypeDefintion : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        REPORT_APPLICATION_STATUS = 1,
        SYSTEM_EVENT = 2,
        BEGIN_TRANSACTION = 3,
        ITEM_INFORMATION = 4,
        END_TRANSACTION = 5,
        AVAILABILITY_STATUS = 6,
        VALUE_END_OF_LIST = 7,
    };

    LogInformationTypeDefintion() noexcept = default;
    LogInformationTypeDefintion(const int& iValue) noexcept : m_Value(iValue) {}
    LogInformationTypeDefintion(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    LogInformationTypeDefintion(LPCTSTR szValue);
    LogInformationTypeDefintion(const LogInformationTypeDefintion& other) noexcept = default;
    ~LogInformationTypeDefintion() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const LogInformationTypeDefintion& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    LogInformationTypeDefintion& operator=(LPCTSTR sVal) override;
    LogInformationTypeDefintion& operator=(const LogInformationTypeDefintion& other) noexcept = default;
    LogInformationTypeDefintion& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    LogInformationTypeDefintion& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

/// Breaks seen behind an item on the belt.
class FRAMEWORK_API MultiBreakDefinition : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        NONE = 1,
        SHORT = 2,
        LONG = 3,
        VALUE_END_OF_LIST = 4,
    };

    MultiBreakDefinition() noexcept = default;
    MultiBreakDefinition(const int& iValue) noexcept : m_Value(iValue) {}
    MultiBreakDefinition(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    MultiBreakDefinition(LPCTSTR szValue);
    MultiBreakDefinition(const MultiBreakDefinition& other) noexcept = default;
    ~MultiBreakDefinition() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const MultiBreakDefinition& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    MultiBreakDefinition& operator=(LPCTSTR sVal) override;
    MultiBreakDefinition& operator=(const MultiBreakDefinition& other) noexcept = default;
    MultiBreakDefinition& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    MultiBreakDefinition& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

/// Where a rejected item was let pass.
class FRAMEWORK_API OverrideModeDefinition : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        OVERRIDE_MODE_NONE = 1,
        OVERRIDE_MODE_CUSTOMER_SCREEN = 2,
        OVERRIDE_MODE_CASHIER_SCREEN = 3,
        TRANSPORT_METHOD_HAND_SCANNER_OVERRIDE = 4,
        VALUE_END_OF_LIST = 5,
    };

    OverrideModeDefinition() noexcept = default;
    OverrideModeDefinition(const int& iValue) noexcept : m_Value(iValue) {}
    OverrideModeDefinition(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    OverrideModeDefinition(LPCTSTR szValue);
    OverrideModeDefinition(const OverrideModeDefinition& other) noexcept = default;
    ~OverrideModeDefinition() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const OverrideModeDefinition& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    OverrideModeDefinition& operator=(LPCTSTR sVal) override;
    OverrideModeDefinition& operator=(const OverrideModeDefinition& other) noexcept = default;
    OverrideModeDefinition& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    OverrideModeDefinition& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

/// Parity of a serial line.
class FRAMEWORK_API ParityType : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        NONE = 0,
        ODD = 1,
        EVEN = 2,
        VALUE_END_OF_LIST = 3,
    };

    ParityType() noexcept = default;
    ParityType(const int& iValue) noexcept : m_Value(iValue) {}
    ParityType(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    ParityType(LPCTSTR szValue);
    ParityType(const ParityType& other) noexcept = default;
    ~ParityType() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const ParityType& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    ParityType& operator=(LPCTSTR sVal) override;
    ParityType& operator=(const ParityType& other) noexcept = default;
    ParityType& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    ParityType& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

/// When a data store is written to disk.
class FRAMEWORK_API PersistenceModelEnum : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        Selective = 1,
        Automatic = 2,
        Never = 3,
        VALUE_END_OF_LIST = 4,
    };

    PersistenceModelEnum() noexcept = default;
    PersistenceModelEnum(const int& iValue) noexcept : m_Value(iValue) {}
    PersistenceModelEnum(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    PersistenceModelEnum(LPCTSTR szValue);
    PersistenceModelEnum(const PersistenceModelEnum& other) noexcept = default;
    ~PersistenceModelEnum() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const PersistenceModelEnum& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    PersistenceModelEnum& operator=(LPCTSTR sVal) override;
    PersistenceModelEnum& operator=(const PersistenceModelEnum& other) noexcept = default;
    PersistenceModelEnum& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    PersistenceModelEnum& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

class FRAMEWORK_API ScanDataTypeEnum : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        SCAN_SDT_UPCA = 1,
        SCAN_SDT_UPCA_S = 2,
        SCAN_SDT_UPCE = 3,
        SCAN_SDT_UPCE_S = 4,
        SCAN_SDT_UPCD1 = 5,
        SCAN_SDT_UPCD2 = 6,
        SCAN_SDT_UPCD3 = 7,
        SCAN_SDT_UPCD4 = 8,
        SCAN_SDT_UPCD5 = 9,
        SCAN_SDT_EAN8 = 10,
        SCAN_SDT_JAN8 = 11,
        SCAN_SDT_EAN8_S = 12,
        SCAN_SDT_EAN13 = 13,
        SCAN_SDT_EAN128 = 14,
        SCAN_SDT_TF = 15,
        SCAN_SDT_ITF = 16,
        SCAN_SDT_Codabar = 17,
        SCAN_SDT_Code39 = 18,
        SCAN_SDT_Code93 = 19,
        SCAN_SDT_Code128 = 20,
        SCAN_SDT_OCRA = 21,
        SCAN_SDT_OCRB = 22,
        SCAN_SDT_PDF417 = 23,
        SCAN_SDT_MAXICODE = 24,
        SCAN_SDT_OTHER = 25,
        SCAN_SDT_GS1DATABAR = 26,
        SCAN_SDT_GS1DATABAR_E = 27,
        SCAN_SDT_RSS14 = 28,
        SCAN_SDT_RSS_EXPANDED = 29,
        HandKeyed = 30,
        SCAN_SDT_UNKNOWN = 31,
        VALUE_END_OF_LIST = 32,
    };

    ScanDataTypeEnum() noexcept = default;
    ScanDataTypeEnum(const int& iValue) noexcept : m_Value(iValue) {}
    ScanDataTypeEnum(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    ScanDataTypeEnum(LPCTSTR szValue);
    ScanDataTypeEnum(const ScanDataTypeEnum& other) noexcept = default;
    ~ScanDataTypeEnum() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const ScanDataTypeEnum& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    ScanDataTypeEnum& operator=(LPCTSTR sVal) override;
    ScanDataTypeEnum& operator=(const ScanDataTypeEnum& other) noexcept = default;
    ScanDataTypeEnum& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    ScanDataTypeEnum& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

/// How strictly items are checked.
class FRAMEWORK_API SecurityModeEnum : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        FULL_SECURITY = 1,
        CUSTOMER_SPEED_MODE = 2,
        CASHIER_SPEED_MODE = 3,
        VALUE_END_OF_LIST = 4,
    };

    SecurityModeEnum() noexcept = default;
    SecurityModeEnum(const int& iValue) noexcept : m_Value(iValue) {}
    SecurityModeEnum(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    SecurityModeEnum(LPCTSTR szValue);
    SecurityModeEnum(const SecurityModeEnum& other) noexcept = default;
    ~SecurityModeEnum() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const SecurityModeEnum& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    SecurityModeEnum& operator=(LPCTSTR sVal) override;
    SecurityModeEnum& operator=(const SecurityModeEnum& other) noexcept = default;
    SecurityModeEnum& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    SecurityModeEnum& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

/// What an item asks for beyond the usual.
class FRAMEWORK_API SpecialHandlingEnum : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        Default = 1,
        HoldCoupon = 2,
        CustomerPriceEntry = 3,
        ItemAtPaystation = 4,
        VALUE_END_OF_LIST = 5,
    };

    SpecialHandlingEnum() noexcept = default;
    SpecialHandlingEnum(const int& iValue) noexcept : m_Value(iValue) {}
    SpecialHandlingEnum(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    SpecialHandlingEnum(LPCTSTR szValue);
    SpecialHandlingEnum(const SpecialHandlingEnum& other) noexcept = default;
    ~SpecialHandlingEnum() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const SpecialHandlingEnum& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    SpecialHandlingEnum& operator=(LPCTSTR sVal) override;
    SpecialHandlingEnum& operator=(const SpecialHandlingEnum& other) noexcept = default;
    SpecialHandlingEnum& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    SpecialHandlingEnum& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

/// Stop bits of a serial line.
class FRAMEWORK_API StopBitsType : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        ONE = 0,
        TWO = 2,
        VALUE_END_OF_LIST = 3,
    };

    StopBitsType() noexcept = default;
    StopBitsType(const int& iValue) noexcept : m_Value(iValue) {}
    StopBitsType(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    StopBitsType(LPCTSTR szValue);
    StopBitsType(const StopBitsType& other) noexcept = default;
    ~StopBitsType() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const StopBitsType& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    StopBitsType& operator=(LPCTSTR sVal) override;
    StopBitsType& operator=(const StopBitsType& other) noexcept = default;
    StopBitsType& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    StopBitsType& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

/// Severity of an event that is reported to systems management.
class FRAMEWORK_API SysmgmtLogEventSeverityDefinition : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        SYSMGMT_CRITICAL = 0,
        SYSMGMT_EMERGENCY = 1,
        SYSMGMT_ALERT = 2,
        SYSMGMT_WARNING = 3,
        SYSMGMT_NOTICE = 4,
        SYSMGMT_ERROR = 5,
        SYSMGMT_INFO = 6,
        SYSMGMT_CONSUMER = 7,
        SYSMGMT_DEBUG = 8,
        SYSMGMT_TRACEPOINT = 9,
        VALUE_END_OF_LIST = 10,
    };

    SysmgmtLogEventSeverityDefinition() noexcept = default;
    SysmgmtLogEventSeverityDefinition(const int& iValue) noexcept : m_Value(iValue) {}
    SysmgmtLogEventSeverityDefinition(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    SysmgmtLogEventSeverityDefinition(LPCTSTR szValue);
    SysmgmtLogEventSeverityDefinition(const SysmgmtLogEventSeverityDefinition& other) noexcept = default;
    ~SysmgmtLogEventSeverityDefinition() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const SysmgmtLogEventSeverityDefinition& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    SysmgmtLogEventSeverityDefinition& operator=(LPCTSTR sVal) override;
    SysmgmtLogEventSeverityDefinition& operator=(const SysmgmtLogEventSeverityDefinition& other) noexcept = default;
    SysmgmtLogEventSeverityDefinition& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    SysmgmtLogEventSeverityDefinition& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

class FRAMEWORK_API SystemEventIdEnum : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        __NEW__ = 1,
        OPEN_LANE_WARM = 2,
        OPEN_LANE_COLD = 3,
        CLOSE_LANE = 4,
        OPEN_DIAGNOSTICS = 5,
        CLOSE_DIAGNOSTICS = 6,
        OPEN_EMULATOR = 7,
        CLOSE_EMULATOR = 8,
        EXIT_TO_DESKTOP = 9,
        POWER_FAIL = 10,
        POWER_FAIL_RESUME = 11,
        POWER_FAIL_SHUTDOWN = 12,
        APPLICATION_STATUS = 13,
        DEVICE_STATUS = 14,
        EXTRACT_AUTO = 15,
        EXTRACT_MANUAL = 16,
        EXTRACT_RMA_REQUESTED = 17,
        REQUEST_ASSISTANCE_AUTO = 18,
        REQUEST_ASSISTANCE_MANUAL = 19,
        REQUEST_ASSISTANCE_CANCEL_AUTO = 20,
        REQUEST_ASSISTANCE_CANCEL_MANUAL = 21,
        ASSISTANCE_ARRIVE = 22,
        REAR_ARCH_BLOCKED = 23,
        BAGGING_AREA_FULL = 24,
        BAGGING_AREA_CLEARED = 25,
        FRONT_SAFETY_SENSOR_BLOCKED = 26,
        REAR_SAFETY_SENSOR_BLOCKED = 27,
        FRONT_SAFETY_SENSOR_CLEARED = 28,
        REAR_SAFETY_SENSOR_CLEARED = 29,
        CASHIER_CLEAR_ARCHES_OR_SENSORS = 30,
        STOP_TO_WEIGH = 31,
        VALIDATE_1_CLEAR_2 = 32,
        VERIFY_AGE = 33,
        REPRINT_RECEIPT = 34,
        PRINT_REGZ = 35,
        PURGE_REGZ = 36,
        SUSPEND_ESCORT = 37,
        AUDIT_IN_TRANSACTION = 38,
        AUDIT_END_TRANSACTION = 39,
        AUDIT_ITEM_REJECTS = 40,
        COUPON_REPORT = 41,
        COUPON_PICKUP = 42,
        SA_SCAN = 43,
        VARIABLE_WEIGHT_OVERRIDE_WARNING = 44,
        EARLY_BAG_REMOVAL = 45,
        EARLY_BAG_FORGIVENESS = 46,
        BAG_REMOVAL = 47,
        ITEM_SECURITY_INFO = 48,
        ITEM_SECURITY_ERROR = 49,
        ITEM_SECURITY_WARNING = 50,
        WEIGHT_MAX_WARNING = 51,
        WEIGHT_MAX_LIMIT = 52,
        GREEN_BUTTON = 53,
        RED_BUTTON = 54,
        MEMBERSHIP_BLOCK = 55,
        EXTRA_ITEM_DETECTED = 56,
        EXTRA_ITEM_REMOVED = 57,
        EXTRA_ITEM_CORRECTED = 58,
        LATE_ITEM_VALIDATION = 59,
        ITEM_SKIP_BAGGING = 60,
        SKIPPED_SECURITY_CHECK = 61,
        SA_SECURITY_OVERRIDE = 62,
        SHUTDOWN = 63,
        ZERO_SECURITY_SCALE = 64,
        SECURITY_MODE_CHANGE = 65,
        TOSS_THROUGH = 66,
        CONFUSED = 67,
        VOID_TRANSACTION = 68,
        SUSPEND_TRANSACTION = 69,
        EXTRACT_TAKEN = 70,
        GUI_UPDATE_ERROR = 71,
        ITEM_HANDLER_BUG = 72,
        CASH_MAINTENANCE = 73,
        POS_CONTROLLER_OFFLINE = 74,
        POS_CONTROLLER_ONLINE = 75,
        CONFIGURATION_STATUS = 76,
        OPEN_LANE_HEALTH_CHECK = 77,
        CASH_VOUCHER_PRINT = 78,
        DATABASE_STATUS = 79,
        ITEM_HANDLER_TRACE = 80,
        VALUE_END_OF_LIST = 81,
    };

    SystemEventIdEnum() noexcept = default;
    SystemEventIdEnum(const int& iValue) noexcept : m_Value(iValue) {}
    SystemEventIdEnum(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    SystemEventIdEnum(LPCTSTR szValue);
    SystemEventIdEnum(const SystemEventIdEnum& other) noexcept = default;
    ~SystemEventIdEnum() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const SystemEventIdEnum& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    SystemEventIdEnum& operator=(LPCTSTR sVal) override;
    SystemEventIdEnum& operator=(const SystemEventIdEnum& other) noexcept = default;
    SystemEventIdEnum& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    SystemEventIdEnum& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

/// Kinds of packet for systems management.
class FRAMEWORK_API SystemsManagementPacketTypeEnum : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        LANE_EVENT = 1,
        LANE_AVAILABILITY = 2,
        LANE_ITEM = 3,
        LANE_TENDER = 4,
        LANE_TRANSACTION = 5,
        LANE_CASH_ACTIVITY = 6,
        VALUE_END_OF_LIST = 7,
    };

    SystemsManagementPacketTypeEnum() noexcept = default;
    SystemsManagementPacketTypeEnum(const int& iValue) noexcept : m_Value(iValue) {}
    SystemsManagementPacketTypeEnum(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    SystemsManagementPacketTypeEnum(LPCTSTR szValue);
    SystemsManagementPacketTypeEnum(const SystemsManagementPacketTypeEnum& other) noexcept = default;
    ~SystemsManagementPacketTypeEnum() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const SystemsManagementPacketTypeEnum& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    SystemsManagementPacketTypeEnum& operator=(LPCTSTR sVal) override;
    SystemsManagementPacketTypeEnum& operator=(const SystemsManagementPacketTypeEnum& other) noexcept = default;
    SystemsManagementPacketTypeEnum& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    SystemsManagementPacketTypeEnum& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

/// What became of a tender.
class FRAMEWORK_API TenderResultEnum : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        __NEW__ = 1,
        TENDER_RESULT_VALIDATED = 2,
        TENDER_RESULT_VOIDED = 3,
        VALUE_END_OF_LIST = 4,
    };

    TenderResultEnum() noexcept = default;
    TenderResultEnum(const int& iValue) noexcept : m_Value(iValue) {}
    TenderResultEnum(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    TenderResultEnum(LPCTSTR szValue);
    TenderResultEnum(const TenderResultEnum& other) noexcept = default;
    ~TenderResultEnum() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const TenderResultEnum& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    TenderResultEnum& operator=(LPCTSTR sVal) override;
    TenderResultEnum& operator=(const TenderResultEnum& other) noexcept = default;
    TenderResultEnum& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    TenderResultEnum& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

/// Kinds of tender.
class FRAMEWORK_API TenderTypeDefinition : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        TENDER_UNKNOWN = 1,
        TENDER_NO_SALE = 2,
        TENDER_VOIDED = 3,
        TENDER_SUSPENDED = 4,
        TENDER_CREDIT = 5,
        TENDER_DEBIT = 6,
        TENDER_CHECK = 7,
        TENDER_CASH = 8,
        TENDER_EBT_FOOD_STAMP = 9,
        TENDER_EBT_NO_TYPE = 10,
        TENDER_EFT_NO_TYPE = 11,
        TENDER_GIFT_CARD = 12,
        TENDER_POINTS = 13,
        TENDER_MULTIPLE_TYPES = 14,
        VALUE_END_OF_LIST = 15,
    };

    TenderTypeDefinition() noexcept = default;
    TenderTypeDefinition(const int& iValue) noexcept : m_Value(iValue) {}
    TenderTypeDefinition(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    TenderTypeDefinition(LPCTSTR szValue);
    TenderTypeDefinition(const TenderTypeDefinition& other) noexcept = default;
    ~TenderTypeDefinition() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const TenderTypeDefinition& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    TenderTypeDefinition& operator=(LPCTSTR sVal) override;
    TenderTypeDefinition& operator=(const TenderTypeDefinition& other) noexcept = default;
    TenderTypeDefinition& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    TenderTypeDefinition& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

/// Priority of a thread.
class FRAMEWORK_API ThreadPriorityType : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        PRIORITY_LOWEST = 1,
        PRIORITY_LOW = 2,
        PRIORITY_NORMAL = 3,
        PRIORITY_HIGH = 4,
        PRIORITY_HIGHEST = 5,
        VALUE_END_OF_LIST = 6,
    };

    ThreadPriorityType() noexcept = default;
    ThreadPriorityType(const int& iValue) noexcept : m_Value(iValue) {}
    ThreadPriorityType(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    ThreadPriorityType(LPCTSTR szValue);
    ThreadPriorityType(const ThreadPriorityType& other) noexcept = default;
    ~ThreadPriorityType() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const ThreadPriorityType& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    ThreadPriorityType& operator=(LPCTSTR sVal) override;
    ThreadPriorityType& operator=(const ThreadPriorityType& other) noexcept = default;
    ThreadPriorityType& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    ThreadPriorityType& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

/// What became of a transaction.
class FRAMEWORK_API TransactionResultEnum : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        __NEW__ = 1,
        TRANSACTION_VALIDATED = 2,
        TRANSACTION_VOID_SA = 3,
        TRANSACTION_VOID_COLD = 4,
        TRANSACTION_VOID_ABORT = 5,
        TRANSACTION_SUSPENDED = 6,
        VALUE_END_OF_LIST = 7,
    };

    TransactionResultEnum() noexcept = default;
    TransactionResultEnum(const int& iValue) noexcept : m_Value(iValue) {}
    TransactionResultEnum(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    TransactionResultEnum(LPCTSTR szValue);
    TransactionResultEnum(const TransactionResultEnum& other) noexcept = default;
    ~TransactionResultEnum() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const TransactionResultEnum& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    TransactionResultEnum& operator=(LPCTSTR sVal) override;
    TransactionResultEnum& operator=(const TransactionResultEnum& other) noexcept = default;
    TransactionResultEnum& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    TransactionResultEnum& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

/// How an item travels to the bagging area, and whether it is checked on the way.
class FRAMEWORK_API TransportMethodDefinition : public TypedDataEnumeration {
public:
    enum ContainedValues : int {
        VALUE_UNKNOWN = -1,
        TRANSPORT_METHOD_VALIDATION_REQUIRED = 1,
        TRANSPORT_METHOD_OPTIONAL = 2,
        TRANSPORT_METHOD_PASS_AROUND = 3,
        TRANSPORT_METHOD_NO_ITEM_SECURITY = 4,
        TRANSPORT_METHOD_SKIP_SECURITY_CHECK = 5,
        TRANSPORT_METHOD_HAND_SCANNER_OVERRIDE = 6,
        VALUE_END_OF_LIST = 7,
    };

    TransportMethodDefinition() noexcept = default;
    TransportMethodDefinition(const int& iValue) noexcept : m_Value(iValue) {}
    TransportMethodDefinition(const ContainedValues& eValue) noexcept : m_Value(eValue) {}
    TransportMethodDefinition(LPCTSTR szValue);
    TransportMethodDefinition(const TransportMethodDefinition& other) noexcept = default;
    ~TransportMethodDefinition() override;

    bool operator==(LPCTSTR _Cmp) const override;
    bool operator==(const TransportMethodDefinition& other) const noexcept { return m_Value == other.m_Value; }
    bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }
    bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }
    TransportMethodDefinition& operator=(LPCTSTR sVal) override;
    TransportMethodDefinition& operator=(const TransportMethodDefinition& other) noexcept = default;
    TransportMethodDefinition& operator=(const int& iValue) noexcept {
        m_Value = iValue;
        return *this;
    }
    TransportMethodDefinition& operator=(const ContainedValues& eValue) noexcept {
        m_Value = eValue;
        return *this;
    }
    zelString StringOf() const override;

    int Value() const noexcept { return m_Value; }
    operator const int() const noexcept { return m_Value; }
    operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }

    /// Appends every word, in order.
    static void GetContainedValueList(std::vector<zelString>& pList);

protected:
    void AssignValue(LPCTSTR szVal) override;

    int m_Value = VALUE_UNKNOWN;
};

#pragma GCC diagnostic pop
