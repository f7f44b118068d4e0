#include <algorithm>
#include <memory>
#include <optional>

#include "Containers/Values.h"
#include "Framework/XMLDataWrapper.h"
#include "Target.h"
#include "Trees.h"

namespace Fuzz {

namespace {

/// Whether the value is the key of an entry below the object.
bool IsKey(TypedDataContainer& object, const Value& value) {
    for (const CatalogField& field : ContainerCatalog::ClassOf(object).Fields()) {
        if (TypedDataContainer* const child = field.GetChild(object); child != nullptr && IsKey(*child, value)) {
            return true;
        }
        for (std::size_t i = 0; i < field.Length(object); ++i) {
            TypedDataContainer* const entry = field.Entry(object, i);
            if (entry != nullptr &&
                ((entry == value.object && field.KeyAttribute() == value.field.Name()) || IsKey(*entry, value))) {
                return true;
            }
        }
    }
    return false;
}

/// Why a value may be refused although it is legal: the document could not hold it.
bool IsGoodReason(const zelString& error) {
    for (const char* const reason : {"does not give the bytes of the document back", "could not be loaded again",
                                     "a name holds a character that the encoding"}) {
        if (error.find(reason) != zelString::npos) {
            return true;
        }
    }
    return false;
}

class SaveRun {
public:
    SaveRun(std::string_view bytes, unsigned char choice) : m_bytes(bytes), m_updatesAll(choice % 2 == 1) {}

    bool Load() {
        if (!m_wrapper.LoadXMLText(m_bytes, false)) {
            return false;
        }
        m_object = ObjectFor(ContainerCatalog::RootElement(m_wrapper));
        Expect(m_object->LoadFromDataPacket(nullptr, &m_wrapper, false), "a document does not load into its class",
               m_object->GetLastError());
        Expect(m_wrapper.GetXMLText() == m_bytes, "an unedited document does not give its bytes back");
        if (m_updatesAll && ReadAll(*m_object).hasStrangeWords) {
            m_object->UpdateContainedData();
            m_bytes = m_wrapper.GetXMLText();
        }
        return !m_bytes.empty();
    }

    TypedDataContainer& Object() { return *m_object; }

    /// Sets the value and writes it. What the document cannot hold leaves it as it is, and ends the comparisons.
    void Write(const Value& value, const zelString& text) {
        const zelString before = m_wrapper.GetXMLText();
        Expect(value.Set(text), "a legal text is refused", value.field.Name());
        if (m_updatesAll) {
            m_object->UpdateContainedData();
        } else if (!value.WriteBack()) {
            Expect(m_wrapper.GetXMLText() == before, "a value that is refused changes the document");
        }
        if (!m_wrapper.GetLastError().empty()) {
            Expect(IsGoodReason(m_wrapper.GetLastError()), "a value cannot be written", m_wrapper.GetLastError());
            m_isRefused = true;
        }
        m_hasNewKeys |= IsKey(*m_object, value);
    }

    void ExpectLoadsAsItIs() {
        if (m_isRefused) {
            return;
        }
        XMLDataWrapper again;
        const zelString text = m_wrapper.GetXMLText();
        Expect(again.LoadXMLText(text, true), "a changed document does not load",
               m_wrapper.GetLastError() + again.GetLastError());
        const std::unique_ptr<TypedDataContainer> other = Another(*m_object);
        Expect(other->LoadFromDataPacket(nullptr, &again, true), "a changed document does not load into an object",
               other->GetLastError());
        // A new key may be that of another entry, or no longer that of an entry that was left out.
        if (!m_hasNewKeys || m_log.Count() == 0) {
            ExpectEqual(ReadAll(*other), ReadAll(*m_object), "a changed document loads differently");
        }
    }

    void ExpectBytesAreBack() {
        Expect(m_isRefused || m_wrapper.GetXMLText() == m_bytes,
               "a value that was set back does not give the bytes back", m_wrapper.GetLastError());
    }

private:
    zelString m_bytes;
    bool m_updatesAll; ///< by UpdateContainedData, else the one value by WriteBack
    OverrideLog m_log;
    XMLDataWrapper m_wrapper;
    std::unique_ptr<TypedDataContainer> m_object;
    bool m_isRefused = false;
    bool m_hasNewKeys = false;
};

} // namespace

std::vector<std::string_view> DocumentsOfSave(std::string_view input) {
    const std::size_t line = input.find('\n');
    return line == std::string_view::npos ? std::vector<std::string_view>() : std::vector{input.substr(line + 1)};
}

namespace {

/// A value with what stands there and what is to stand there for a while.
struct Edit {
    Value value;
    zelString old;
    zelString text;
};

/// Nothing for a word that is none: the vocabulary has none to set back.
std::optional<Edit> EditOf(const Value& value, const zelString& wanted) {
    Edit edit{value, value.Get(), wanted};
    if (value.field.GetValue() == CatalogField::Enumeration && edit.old.empty()) {
        return std::nullopt;
    }
    if (!value.Set(wanted)) {
        edit.text = OtherThan(value.field, edit.old);
    }
    Expect(value.Set(edit.old), "a value that stands there is refused", value.field.Name());
    return edit;
}

} // namespace

void Save(std::string_view input) {
    const std::size_t line = input.find('\n');
    if (line == 0 || line == std::string_view::npos) {
        return;
    }
    const auto choice = static_cast<unsigned char>(input[0]);
    SaveRun run(input.substr(line + 1), choice);
    if (!run.Load()) {
        return;
    }
    const std::vector<Value> values = ValuesOf(run.Object());
    if (values.empty()) {
        return;
    }
    const zelString wanted(input.substr(1, line - 1));
    const std::optional<Edit> one = EditOf(values[choice % values.size()], wanted);
    const std::optional<Edit> other = EditOf(values[(choice + choice / 8U) % values.size()], wanted + "!");
    if (!one || !other) {
        return;
    }
    const bool isOneValue = one->value.object == other->value.object && one->value.position == other->value.position &&
                            one->value.field.Name() == other->value.field.Name();
    run.Write(one->value, one->text);
    run.ExpectLoadsAsItIs();
    if (!isOneValue) {
        run.Write(other->value, other->text);
        run.ExpectLoadsAsItIs();
    }
    run.Write(one->value, one->old);
    if (!isOneValue) {
        run.ExpectLoadsAsItIs();
        run.Write(other->value, other->old);
    }
    run.ExpectBytesAreBack();
}

} // namespace Fuzz
