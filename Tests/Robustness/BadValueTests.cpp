// A text that XML cannot hold is refused by the name of its element, whatever field it stands in.

#include "Containers/EveryClass.h"
#include "Containers/Values.h"

#include <set>

#include "Framework/FrameworkDataContainers/Walks/Scalars.h"
#include "Framework/FrameworkDataContainers/Walks/TableIndex.h"

namespace {

using namespace std::literals;

const std::string badTexts[] = {"a\x01",        "\x1F",
                                "a\0b"s,        "\xFF",
                                "\xC3",         "\xC0\x80",
                                "\xED\xA0\x80", "\xED\xB0\x80x",
                                "\xEF\xBF\xBE", "\xF5\x80\x80\x80",
                                "\xE2\x82",     "\xF0\x80\x80\x80"};

bool IsText(const Value& value) {
    return value.field.GetValue() == CatalogField::String;
}

/// As a setter of the class does: the catalogue itself refuses such texts.
void SetPastTheCatalogue(const Value& value, const std::string& text) {
    for (const auto* table = Framework::TableOf(*value.object); table != nullptr; table = table->parent) {
        for (const Framework::FieldRow& row : table->rows) {
            if (row.name == value.field.Name()) {
                Framework::SetScalar(*value.object, row, zelString(text));
            }
        }
    }
    ASSERT_EQ(value.Get(), text);
}

TEST(EveryValue, ThatXmlCannotHoldIsRefusedByName) {
    std::set<std::pair<std::string, std::string_view>> seen; // by class and field
    ForEveryClass([&](CatalogClass type) {
        const std::string text = SampleText(type, 7);
        Loaded loaded(type, text);
        std::size_t number = 0;
        for (const Value& value : ValuesOf(*loaded.object)) {
            const std::string owner(ContainerCatalog::ClassOf(*value.object).Name());
            if (!IsText(value) || value.position || !seen.emplace(owner, value.field.Name()).second) {
                continue;
            }
            const std::string before = loaded.Text();
            const zelString old = value.Get();
            const std::string& bad = badTexts[number++ % std::size(badTexts)];
            const std::string name(value.field.Name());
            SCOPED_TRACE(name);
            SetPastTheCatalogue(value, bad);
            // The result of an update is that of its last write; what was refused, the document says.
            value.object->UpdateContainedData();
            const std::string sign = value.field.GetForm() == CatalogField::Attribute ? "/@" : "/";
            EXPECT_NE(loaded.wrapper.GetLastError().find(sign + name + ": "), std::string::npos)
                << loaded.wrapper.GetLastError();
            EXPECT_EQ(loaded.Text(), before);
            const std::unique_ptr<XMLDataWrapper> dump(loaded.object->BuildAndReturnDataContent());
            EXPECT_TRUE(dump == nullptr || dump->GetXMLText().empty());
            const zelString error = dump == nullptr ? loaded.object->GetLastError() : dump->GetLastError();
            EXPECT_NE(error.find(name), std::string::npos) << error;
            ASSERT_TRUE(value.Set(old));
        }
        EXPECT_TRUE(loaded.object->UpdateContainedData());
    });
    EXPECT_GT(seen.size(), 300U);
}

} // namespace
