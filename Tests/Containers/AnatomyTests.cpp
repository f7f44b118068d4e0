// What a class is by its field table alone: names, defaults, predicates, property lists, reset.

#include "Containers/EveryClass.h"
#include "Containers/Values.h"

namespace {

using Pairs = std::vector<std::pair<std::string, std::string>>;

Pairs Contents(ParameterList& list) {
    Pairs pairs;
    for (std::size_t i = 0; i < list.size(); ++i) {
        EXPECT_EQ(list.ItemData(i)->dcType, dcString);
        pairs.emplace_back(list.ItemData(i)->ElementName, list.ItemData(i)->strValue);
    }
    return pairs;
}

TEST(Anatomy, NewObjectHoldsNamesAndDefaults) {
    ForEveryClass([](CatalogClass type) {
        const auto object = type.Create(false);
        EXPECT_EQ(object->GetBaseType(), type.Name());
        EXPECT_EQ(object->GetContainerName(), type.ElementName());
        EXPECT_FALSE(object->Valid());
        EXPECT_EQ(object->GetContainedDataPtr(), nullptr);
        EXPECT_EQ(dynamic_cast<StructuralConfigLoader*>(object.get()) != nullptr, type.IsStructuralConfigLoader());
        for (const CatalogField& field : type.Fields()) {
            EXPECT_EQ(field.GetText(*object), field.IsScalar() ? field.DefaultText() : zelString()) << field.Name();
            EXPECT_EQ(field.GetChild(*object), nullptr) << field.Name();
            EXPECT_EQ(field.Length(*object), 0U) << field.Name();
        }
    });
}

TEST(Anatomy, PredicateHoldsEveryAttributeToTheBlank) {
    ForEveryClass([](CatalogClass type) {
        const auto object = MakeLoaded(type, 1, true);
        std::string expected;
        Pairs expectedPairs;
        for (const CatalogField& field : type.Fields()) {
            if (field.GetForm() == CatalogField::Attribute) {
                const std::string name(field.Name());
                const std::string value = field.GetText(*object);
                expected += (expected.empty() ? "@" : " and @") + name + "='" + value + "' ";
                expectedPairs.emplace_back(name, value);
            }
        }
        EXPECT_EQ(object->GetAttributeList(), expected);
        const std::unique_ptr<ParameterList> list(object->GetPLAttributeList());
        EXPECT_EQ(Contents(*list), expectedPairs);
    });
}

TEST(Anatomy, PropertiesAreTheClassesOwnScalars) {
    ForEveryClass([](CatalogClass type) {
        const auto object = MakeLoaded(type, 1, true);
        Pairs expected{{"kept", "before"}};
        for (const CatalogField& field : type.OwnFields()) {
            if (field.IsScalar() && field.GetValue() != CatalogField::Enumeration) {
                expected.emplace_back(field.Name(), field.GetText(*object));
            }
        }
        ParameterList list;
        const zelString before = "before";
        list.Add(&before, dcString, "kept", false);
        object->GetProperties(list);
        EXPECT_EQ(Contents(list), expected);
    });
}

TEST(Anatomy, ResetEqualsNewAndKeepsChildrenNameFeatureAndData) {
    ForEveryClass([](CatalogClass type) {
        const auto object = MakeLoaded(type, 1, true);
        object->SetContainerName("Renamed");
        object->SetFeatureID("F");
        Samples::Sample expected = Samples::Read(*object);
        Samples::Reset(expected, false);
        object->ResetDataMembers();
        EXPECT_EQ(Samples::Lines(*object), Samples::Lines(expected));
        EXPECT_EQ(object->GetContainerName(), "Renamed");
        EXPECT_EQ(object->GetFeatureID(), "F");
        EXPECT_NE(object->GetContainedDataPtr(), nullptr);
        EXPECT_TRUE(object->Valid());
        object->Clear();
        EXPECT_EQ(object->GetContainedDataPtr(), nullptr);
        EXPECT_FALSE(object->Valid());
    });
}

TEST(Anatomy, CloneEqualsTheDocumentAndStandsAlone) {
    ForEveryClass([](CatalogClass type) {
        Samples::Random random(7);
        const Samples::Sample sample = Samples::Make(type, "Named", random);
        auto object = type.Create(true);
        object->SetContainerName("Named");
        object->SetFeatureID("F");
        ASSERT_TRUE(LoadText(*object, Samples::ToXml(sample, random, true))) << object->GetLastError();
        std::unique_ptr<TypedDataContainer> clone(object->Clone());
        ASSERT_NE(clone, nullptr) << object->GetLastError();
        object.reset();
        EXPECT_EQ(Samples::Lines(*clone), Samples::Lines(sample));
        EXPECT_EQ(clone->GetContainerName(), "Named");
        EXPECT_EQ(clone->GetFeatureID(), "F");
        EXPECT_TRUE(clone->Valid());
    });
}

/// Each stands on its own node of the document, also when a merge brought it and the source is gone.
TEST(Anatomy, EntriesAndChildrenCloneFromTheirOwnNode) {
    for (const std::string_view root : ContainerCatalog::Roots()) {
        SCOPED_TRACE(std::string(root));
        const CatalogClass type = ContainerCatalog::FindRoot(root);
        const auto loaded = MakeLoaded(type, 1, true), merged = type.Create(false);
        ASSERT_TRUE(MergeText(*merged, "F", SampleText(type, 7, true)));
        for (TypedDataContainer* const object : {loaded.get(), merged.get()}) {
            ForEveryPart(*object, [](TypedDataContainer& part) {
                const std::unique_ptr<TypedDataContainer> clone(part.Clone());
                ASSERT_NE(clone, nullptr) << part.GetLastError();
                EXPECT_EQ(Samples::Lines(*clone), Samples::Lines(part));
            });
        }
    }
}

TEST(Anatomy, CloneOfWhatWasNeverLoadedTakesTheMembers) {
    ForEveryClass([](CatalogClass type) {
        const auto object = type.Create(false);
        for (const CatalogField& field : type.Fields()) {
            if (field.IsScalar()) {
                ASSERT_TRUE(field.SetText(*object, OtherThan(field, field.GetText(*object))));
            }
        }
        const std::unique_ptr<TypedDataContainer> clone(object->Clone());
        ASSERT_NE(clone, nullptr) << object->GetLastError();
        EXPECT_EQ(object->GetContainedDataPtr(), nullptr);
        EXPECT_EQ(Samples::Lines(*clone), Samples::Lines(*object));
    });
}

TEST(Anatomy, ReadOnlyObjectsRefuseCloneAndUpdate) {
    ForEveryClass([](CatalogClass type) {
        const auto object = type.Create(false);
        EXPECT_TRUE(object->UpdateContainedData()) << "what stands nowhere is passed over";
        ASSERT_TRUE(LoadText(*object, "<" + std::string(type.ElementName()) + "/>", true));
        EXPECT_EQ(object->Clone(), nullptr);
        EXPECT_EQ(object->GetLastError(), "Clone not supported for read only objects");
        EXPECT_EQ(object->GetLastErrorNum(), -1);
        EXPECT_FALSE(object->UpdateContainedData());
        EXPECT_EQ(object->GetLastError(), "Update not supported for read only objects");
    });
}

} // namespace
