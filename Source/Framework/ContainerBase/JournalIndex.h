#pragma once

#include <map>

#include "Framework/ContainerBase/JournalData.h"
#include "Framework/ContainerBase/NumberKeys.h"

namespace Framework {

/// The entries of a journal by path: the steps that its merges took, as a tree, each with the entries about it.
class JournalIndex {
public:
    using Number = std::uint32_t;

    static constexpr Number kRoot = 0; ///< the object that the merges were called on
    static constexpr Number kNone = ~Number{0};

    /// Takes in what was written since.
    void TakeIn(const JournalData& journal);

    /// The place of a step below another one; kNone when nothing is written about it or what is below.
    Number Find(Number place, std::string_view step) const;
    /// The place that an entry is about.
    Number PlaceOf(std::size_t record) const { return m_placeOfRecord[record]; }
    /// The entries about a place itself, in order.
    const std::vector<Number>& RecordsAt(Number place) const { return m_places[place].records; }
    Number Parent(Number place) const { return m_places[place].parent; }
    const std::vector<Number>& Below(Number place) const { return m_places[place].below; }
    std::size_t PlaceCount() const { return m_places.size(); }

    /// A document to look elements up in, which is kept from now on and so does not change.
    ChildIndex& ChildrenIn(const std::shared_ptr<const Document>& document);
    /// The lists of the tree and of such documents whose keys are numbers. The tree is as the last merge left it.
    NumberKeys& Numbers() { return m_numbers; }

private:
    struct PlaceRecords {
        Number parent = kNone;
        std::vector<Number> below;
        std::vector<Number> records;
    };
    struct Kept {
        std::shared_ptr<const Document> document;
        ChildIndex children;
    };

    Number Make(Number place, std::string_view step);

    std::vector<PlaceRecords> m_places = std::vector<PlaceRecords>(1);
    HashedMap<std::string, Number> m_steps; ///< by the number of the upper place and the step
    std::vector<Number> m_placeOfScope{kRoot};
    std::vector<Number> m_placeOfRecord;
    std::map<const Document*, Kept> m_documents;
    NumberKeys m_numbers;
};

} // namespace Framework
