#pragma once

#include <algorithm>
#include <functional>

#include "Containers/EveryClass.h"
#include "Containers/ValueOrigins.h"
#include "Framework/FieldPath.h"

/// The tree that the entries of a journal make of a base. Made from what the entries say and from the catalogue alone,
/// as literally as can be.
class AppliedJournal {
public:
    /// `made` says which values stand in the document that the object was loaded from.
    AppliedJournal(TypedDataContainer& object, const Samples::Sample& made) : tree(Samples::Read(object)) {
        ForEachValue(made, "", [this](const auto& path, const Samples::FieldSample& field, const std::string& text) {
            if (field.present || field.field.IsList()) {
                origins.NoteBase(path, text);
            }
        });
    }

    void Apply(std::size_t number, const MergeJournal::Entry& edit) {
        SCOPED_TRACE("entry " + std::to_string(number) + " of " + edit.FeatureID + ": " +
                     std::string(ActionName(edit.Asked)) + " " + edit.Path + " " +
                     std::string(OutcomeName(edit.Result)));
        const ValueOrigins::Values before = ObjectValues(edit);
        if (edit.Path.empty()) {
            ApplyToRoot(edit);
        } else {
            ApplyToField(edit);
        }
        if (edit.IsContainer) {
            origins.NoteObject(number, edit, before, ObjectValues(edit));
        } else if (edit.Result != Outcome::Unchanged && edit.Result != Outcome::Moved) {
            origins.NoteValue(number, edit);
        }
    }

    using ValueVisit =
        std::function<void(const std::string& path, const Samples::FieldSample& field, const std::string& text)>;
    /// Every scalar and text, with its path.
    static void ForEachValue(const Samples::Sample& sample, const std::string& above, const ValueVisit& visit) {
        for (const Samples::FieldSample& field : sample.fields) {
            const std::string path = above + std::string(field.field.Name());
            if (field.field.IsScalar()) {
                visit(path, field, field.text);
            } else if (field.child != nullptr) {
                ForEachValue(*field.child, path + "/", visit);
            }
            for (std::size_t i = 0; i < field.entries.size(); ++i) {
                if (const Samples::EntrySample& entry = field.entries[i]; entry.object == nullptr) {
                    visit(above + Step(field, i), field, entry.text);
                } else {
                    ForEachValue(*entry.object, above + Step(field, i) + "/", visit);
                }
            }
        }
    }

    Samples::Sample tree;
    ValueOrigins origins;

private:
    using Outcome = MergeJournal::Outcome;
    using Action = MergeJournal::Action;

    static std::string Step(const Samples::FieldSample& field, std::size_t position) {
        return field.field.GetForm() == CatalogField::KeyedList
                   ? FieldPath::KeyStep(field.field.Name(), field.field.KeyAttribute(), field.entries[position].key)
                   : FieldPath::PositionStep(field.field.Name(), position + 1);
    }

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

    static Target Find(Samples::Sample& owner, const std::string& path) {
        for (Samples::FieldSample& field : owner.fields) {
            const std::string name(field.field.Name());
            const std::size_t count = field.field.IsList() ? field.entries.size() : 1;
            for (Target target{&field, 0, name}; target.position < count; ++target.position) {
                target.step = field.field.IsList() ? Step(field, target.position) : name;
                if (path == target.step) {
                    return target;
                }
                if (path.starts_with(target.step + "/") && target.Object() != nullptr) {
                    return Find(*target.Object(), path.substr(target.step.size() + 1));
                }
            }
            if (field.field.IsList() && path.starts_with(name + "[") && path.ends_with(']')) {
                return {&field, count, path};
            }
        }
        return {};
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
            EXPECT_TRUE(Move(target, edit.NewValue));
            break;
        case Outcome::Unchanged:
            EXPECT_FALSE(edit.Asked == Action::Place ? Move(target, edit.NewValue) : edit.NewValue != edit.OldValue);
            break;
        default:
            ADD_FAILURE() << "there is no problem that would tell why";
        }
    }

    static void AddEntry(const Target& target) {
        if (!target.IsThere() && target.field->field.IsList()) {
            std::string key = target.step.substr(target.step.find('=') + 1);
            key.pop_back();
            for (std::size_t at = key.starts_with('"') ? 0 : std::string::npos; at < key.size();
                 at = key.find('"', at + 1)) {
                key.erase(at, 1);
            }
            target.field->entries.push_back({target.field->field.KeyAttribute().empty() ? "" : key, {}, nullptr});
            EXPECT_EQ(Step(*target.field, target.position), target.step);
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

    /// Whether the entry stands elsewhere now.
    static bool Move(const Target& target, const std::string& where) {
        std::vector<Samples::EntrySample>& entries = target.field->entries;
        Samples::EntrySample entry = std::move(entries[target.position]);
        Remove(target);
        const std::string neighbour = where.substr(where.find(' ') + 1);
        auto to = std::find_if(entries.begin(), entries.end(),
                               [&](const Samples::EntrySample& each) { return each.key == neighbour; });
        if (where.starts_with("Before ") || where.starts_with("After ")) {
            EXPECT_NE(to, entries.end()) << where;
            to += where.starts_with("After ") && to != entries.end() ? 1 : 0;
        } else {
            EXPECT_TRUE(where == "First" || where == "Last") << where;
            to = where == "First" ? entries.begin() : entries.end();
        }
        const std::ptrdiff_t position = to - entries.begin();
        entries.insert(to, std::move(entry));
        return position != static_cast<std::ptrdiff_t>(target.position);
    }

    /// All values that an edit of an object may touch.
    ValueOrigins::Values ObjectValues(const MergeJournal::Entry& edit) const {
        ValueOrigins::Values values;
        if (edit.IsContainer && edit.Asked != Action::Place) {
            ForEachValue(tree, "", [&](const std::string& path, const Samples::FieldSample&, const std::string& text) {
                if (edit.Path.empty() || path.starts_with(edit.Path + "/")) {
                    values[path] = text;
                }
            });
        }
        return values;
    }
};
