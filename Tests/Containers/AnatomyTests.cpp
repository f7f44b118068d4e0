// What a class is by its field table alone: names, defaults, predicates, property lists, reset, clones.

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
        EXPECT_FALSE(object->Valid());
        EXPECT_EQ(object->GetContainedDataPtr(), nullptr);
        EXPECT_EQ(dynamic_cast<StructuralConfigLoader*>(object.get()) != nullptr, type.IsStructuralConfigLoader());
        Samples::Sample fresh{type, std::string(type.ElementName()), {}};
        for (const CatalogField& field : type.Fields()) {
            fresh.fields.emplace_back(field);
        }
        Samples::Reset(fresh, false);
        EXPECT_EQ(Samples::Lines(*object), Samples::Lines(fresh));
    });
}

TEST(Anatomy, PredicateHoldsEveryAttributeToTheBlankAndPropertiesTheClassesOwnScalars) {
    ForEveryClass([](CatalogClass type) {
        const auto object = MakeLoaded(type, 1, true);
        std::string predicate;
        Pairs attributes, properties{{"kept", "before"}};
        for (const CatalogField& field : type.Fields()) {
            if (field.GetForm() == CatalogField::Attribute) {
                attributes.emplace_back(field.Name(), field.GetText(*object));
                const auto& [name, value] = attributes.back();
                predicate += (predicate.empty() ? "@" : " and @") + name + "='" + value + "' ";
            }
        }
        for (const CatalogField& field : type.OwnFields()) {
            if (field.IsScalar() && field.GetValue() != CatalogField::Enumeration) {
                properties.emplace_back(field.Name(), field.GetText(*object));
            }
        }
        EXPECT_EQ(object->GetAttributeList(), predicate);
        EXPECT_EQ(Contents(*std::unique_ptr<ParameterList>(object->GetPLAttributeList())), attributes);
        ParameterList list;
        const zelString before = "before";
        list.Add(&before, dcString, "kept", false);
        object->GetProperties(list);
        EXPECT_EQ(Contents(list), properties);
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
        EXPECT_EQ(object->GetFeatureID(), "F");
        EXPECT_NE(object->GetContainedDataPtr(), nullptr);
        EXPECT_TRUE(object->Valid());
        object->Clear();
        EXPECT_EQ(object->GetContainedDataPtr(), nullptr);
        EXPECT_FALSE(object->Valid());
    });
}

void ExpectClones(TypedDataContainer& object) {
    const std::unique_ptr<TypedDataContainer> clone(object.Clone());
    ASSERT_NE(clone, nullptr) << object.GetLastError();
    EXPECT_EQ(Samples::Lines(*clone), Samples::Lines(object));
    EXPECT_EQ(clone->GetFeatureID(), object.GetFeatureID());
    EXPECT_EQ(clone->Valid(), object.Valid());
}

/// Each part stands on its own node of the document, also when a merge brought it and the source is gone.
TEST(Anatomy, ClonesEqualWhatTheyWereMadeOfAndStandAlone) {
    for (const std::string_view root : ContainerCatalog::Roots()) {
        SCOPED_TRACE(std::string(root));
        const CatalogClass type = ContainerCatalog::FindRoot(root);
        auto loaded = MakeLoaded(type, 1, true, true);
        const auto merged = type.Create(false);
        ASSERT_TRUE(MergeText(*merged, "F", SampleText(type, 7, true)));
        ForEveryPart(*loaded, ExpectClones);
        ForEveryPart(*merged, ExpectClones);
        loaded->SetFeatureID("F");
        ExpectClones(*loaded);
        const std::vector<std::string> lines = Samples::Lines(*loaded);
        const std::unique_ptr<TypedDataContainer> clone(loaded->Clone());
        loaded.reset();
        EXPECT_EQ(Samples::Lines(*clone), lines);
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

TEST(Anatomy, ReadOnlyRefusesCloneAndUpdateAndReachesEverythingBelowAsTheFeatureDoes) {
    const auto expectReadOnly = [](TypedDataContainer& part) {
        EXPECT_EQ(part.GetFeatureID(), "F");
        EXPECT_EQ(part.Clone(), nullptr);
        EXPECT_EQ(part.GetLastError(), "Clone not supported for read only objects");
        EXPECT_EQ(part.GetLastErrorNum(), -1);
        EXPECT_FALSE(part.UpdateContainedData());
        EXPECT_EQ(part.GetLastError(), "Update not supported for read only objects");
    };
    ForEveryClass([&](CatalogClass type) {
        const auto object = type.Create(false);
        EXPECT_TRUE(object->UpdateContainedData()) << "what stands nowhere is passed over";
        object->SetFeatureID("F");
        ASSERT_TRUE(LoadText(*object, SampleText(type, 9, true, true), true));
        expectReadOnly(*object);
        ForEveryPart(*object, expectReadOnly);
    });
}

} // namespace
