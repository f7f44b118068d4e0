#pragma once

#include <algorithm>

#include "Containers/EveryClass.h"
#include "Framework/ContainerBase/FieldSteps.h"
#include "Framework/MergeJournal.h"

/// The tree that the entries of a journal make of a base. Made from what the entries say and from the catalogue alone,
/// as literally as can be.
class AppliedJournal {
public:
    explicit AppliedJournal(TypedDataContainer& object) : tree(Samples::Read(object)) {}

    void Apply(std::size_t number, const MergeJournal::Entry& edit) {
        SCOPED_TRACE("entry " + std::to_string(number) + " of " + edit.FeatureID + ": " +
                     std::string(ActionName(edit.Asked)) + " " + edit.Path + " " +
                     std::string(OutcomeName(edit.Result)));
        if (edit.Path.empty()) {
            ApplyToRoot(edit);
        } else {
            ApplyToField(edit);
        }
    }

    Samples::Sample tree;

private:
    using Outcome = MergeJournal::Outcome;
    using Action = MergeJournal::Action;

    /// What a path leads to. Of an entry that is not there the list, and the step by which it would be found.
    struct Target {
        Samples::FieldSample* field = nullptr;
        std::size_t position = 0;
        std::string step;

        bool IsThere() const {
            return field->field.IsList() ? position < field->entries.size()
                                         : field->field.IsScalar() || field->child != nullptr;
        }
        std::string& Text() const { return field->field.IsList() ? field->entries[position].text : field->text; }
        std::unique_ptr<Samples::Sample>& Object() const {
            return field->field.IsList() ? field->entries[position].object : field->child;
        }
    };

    static Target Find(Samples::Sample& root, const std::string& path) {
        Samples::Sample* owner = &root;
        Target target;
        for (const std::string_view step : Framework::StepsOf(path)) {
            const std::string_view name = Framework::ReadStep(step).name;
            const auto isNamed = [name](const Samples::FieldSample& field) { return field.field.Name() == name; };
            if (owner == nullptr || std::none_of(owner->fields.begin(), owner->fields.end(), isNamed)) {
                return {};
            }
            target = {&*std::find_if(owner->fields.begin(), owner->fields.end(), isNamed), 0, std::string(step)};
            const bool isList = target.field->field.IsList();
            while (isList && target.IsThere() && Samples::EntryStep(*target.field, target.position) != step) {
                ++target.position;
            }
            owner = target.IsThere() ? target.Object().get() : nullptr;
        }
        return target;
    }

    void ApplyToRoot(const MergeJournal::Entry& edit) {
        EXPECT_TRUE(edit.IsContainer && edit.Field.empty());
        ASSERT_TRUE((edit.Result == Outcome::Changed && edit.Asked == Action::Clear) ||
                    (edit.Result == Outcome::Replaced && edit.Asked == Action::Replace));
        Samples::Reset(tree, edit.Asked == Action::Clear);
        for (Samples::FieldSample& field : tree.fields) {
            field.child = edit.Asked == Action::Replace ? nullptr : std::move(field.child);
        }
    }

    void ApplyToField(const MergeJournal::Entry& edit) {
        const Target target = Find(tree, edit.Path);
        ASSERT_NE(target.field, nullptr) << "there is no such place";
        EXPECT_EQ(edit.Field, target.field->field.Name());
        EXPECT_EQ(edit.IsContainer, target.field->field.GetValue() == CatalogField::Container);
        ASSERT_EQ(target.IsThere(), target.field->field.IsScalar() || edit.Result != Outcome::Added);
        const bool hadText = !edit.IsContainer && target.IsThere() && edit.Asked != Action::Place;
        EXPECT_EQ(edit.OldValue, hadText ? target.Text() : std::string());
        switch (edit.Result) {
        case Outcome::Added:
            AddEntry(target);
            [[fallthrough]];
        case Outcome::Changed:
        case Outcome::Replaced:
            Change(target, edit);
            break;
        case Outcome::Removed:
            EXPECT_EQ(edit.NewValue, "");
            Remove(target);
            break;
        case Outcome::Moved:
            EXPECT_TRUE(Samples::Move(target.field->entries, target.position, edit.NewValue));
            break;
        case Outcome::Unchanged:
            EXPECT_FALSE(edit.Asked == Action::Place
                             ? Samples::Move(target.field->entries, target.position, edit.NewValue)
                             : edit.NewValue != edit.OldValue);
            break;
        default:
            ADD_FAILURE() << "there is no problem that would tell why";
        }
    }

    static void AddEntry(const Target& target) {
        if (!target.IsThere() && target.field->field.IsList()) {
            target.field->entries.push_back({Framework::ReadStep(target.step).key, {}, nullptr});
            EXPECT_EQ(Samples::EntryStep(*target.field, target.position), target.step);
        }
    }

    static void Change(const Target& target, const MergeJournal::Entry& edit) {
        if (!edit.IsContainer) {
            EXPECT_TRUE(edit.Result != Outcome::Changed || edit.NewValue != edit.OldValue);
            target.Text() = edit.NewValue;
        } else if (edit.Result == Outcome::Changed) {
            EXPECT_EQ(edit.Asked, Action::Clear);
            Samples::Reset(*target.Object(), true);
        } else {
            target.Object() = NewObject(target.field->field);
        }
    }

    static std::unique_ptr<Samples::Sample> NewObject(const CatalogField& field) {
        const auto object = ContainerCatalog::FindClass(field.ClassName()).Create(false);
        auto made = std::make_unique<Samples::Sample>(Samples::Read(*object));
        made->name = field.Name();
        return made;
    }

    static void Remove(const Target& target) {
        if (target.field->field.IsList()) {
            target.field->entries.erase(target.field->entries.begin() + static_cast<std::ptrdiff_t>(target.position));
        } else {
            target.field->child.reset();
        }
    }
};
