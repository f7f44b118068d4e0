#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "Framework/MergeJournal.h"

/// Who gave a value what it has, by the edits of a journal one after the other.
struct ValueOrigin {
    std::optional<std::string> baseText; ///< that the base document gave it
    bool isFromBase = false;             ///< and that it still has
    std::optional<std::size_t> writer;   ///< the entry that gave it what it has; none for the base and for defaults
    std::vector<std::size_t> history;    ///< the entries that gave it another value or took it away

    // Of the last time that an object which holds it was emptied, replaced or taken away.
    std::string emptiedBy; ///< the feature
    std::string textBefore;
    std::size_t madeBy = 0; ///< the entry by which the present object came to be as it is

    void Forget() {
        isFromBase = false;
        writer.reset();
    }
};

/// The origins of all values of a tree, by path.
class ValueOrigins {
public:
    using Values = std::map<std::string, std::string>; ///< texts by path

    void NoteBase(const std::string& path, const std::string& text) {
        m_origins[path].baseText = text;
        m_origins[path].isFromBase = true;
    }

    const ValueOrigin& Of(const std::string& path) { return m_origins[path]; }

    /// An edit of the value itself.
    void NoteValue(std::size_t number, const MergeJournal::Entry& edit) {
        ValueOrigin& origin = m_origins[edit.Path];
        origin.Forget();
        if (!edit.Cause.empty()) { // the override does not name it: it follows from something new
            if (origin.emptiedBy == edit.FeatureID && origin.textBefore != edit.NewValue) {
                origin.writer = origin.madeBy;
            }
            return;
        }
        origin.emptiedBy.clear();
        origin.history.push_back(number);
        if (edit.Result != MergeJournal::Outcome::Removed) {
            origin.writer = number;
        }
    }

    /// An edit of an object, with the values in it before and after.
    void NoteObject(std::size_t number, const MergeJournal::Entry& edit, const Values& before, const Values& after) {
        for (const auto& [path, text] : before) {
            const auto now = after.find(path);
            ValueOrigin& origin = m_origins[path];
            origin.emptiedBy = edit.FeatureID;
            origin.textBefore = text;
            origin.madeBy = number;
            if (now == after.end()) {
                origin.Forget();
                origin.history.push_back(number);
            } else if (now->second != text) {
                origin.Forget();
                origin.writer = number;
            } else if (edit.Result == MergeJournal::Outcome::Replaced) { // in something new, where nobody gave it
                origin.Forget();
            }
        }
        if (edit.Result == MergeJournal::Outcome::Added) {
            for (const auto& [path, text] : after) {
                NoteBack(number, edit, m_origins[path], text);
            }
        }
    }

private:
    /// What one merge takes away and brings back without the value is reset.
    static void NoteBack(std::size_t number, const MergeJournal::Entry& edit, ValueOrigin& origin,
                         const std::string& text) {
        if (origin.emptiedBy == edit.FeatureID) {
            origin.madeBy = number;
            if (origin.textBefore != text) {
                origin.writer = number;
            }
        }
    }

    std::map<std::string, ValueOrigin> m_origins;
};
