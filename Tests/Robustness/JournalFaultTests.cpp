// A merge never fails for its journal: where memory for an entry runs out, the entry is lost and the journal says so.

#include "Containers/EveryClass.h"
#include "Robustness/FailingMemory.h"

#include "Framework/MergeJournal.h"

namespace {

struct Attempt {
    bool failed = false;         ///< memory was refused
    bool merged = false;         ///< and yet nothing is amiss with the tree
    std::size_t entries = 0;     ///< of the journal
    bool isJournalWhole = false; ///< it says so
};

/// One merge in which allocation number `k` fails.
Attempt MergeOnce(CatalogClass type, const std::vector<std::string>& merged, bool hasJournal, long k) {
    const std::unique_ptr<TypedDataContainer> object = MakeLoaded(type, 1);
    XMLDataWrapper source;
    EXPECT_TRUE(source.LoadXMLText(SampleText(type, 2), false));
    zelString feature = "the feature of the night";
    MergeJournal journal;
    std::optional<MergeJournal::Recording> recording;
    if (hasJournal) {
        recording.emplace(journal);
    }
    Attempt attempt;
    {
        const FailingMemory memory(k, false);
        attempt.merged = object->MergeFromDataPacket(nullptr, std::move(feature), &source, false);
    }
    attempt.failed = FailingMemory::HasFailed();
    attempt.merged = attempt.merged && Samples::Lines(*object) == merged;
    attempt.entries = journal.Size();
    attempt.isJournalWhole = journal.IsComplete();
    return attempt;
}

TEST(JournalFaults, AMergeDoesNotFailForItsJournal) {
    IssueRecorder quiet;
    for (const char* const name : {"LoadConfig", "StateProcessingRoot"}) {
        const CatalogClass type = ContainerCatalog::FindRoot(name);
        const std::unique_ptr<TypedDataContainer> object = MakeLoaded(type, 1);
        ASSERT_TRUE(MergeText(*object, "F", SampleText(type, 2)));
        const std::vector<std::string> merged = Samples::Lines(*object);
        const Attempt whole = MergeOnce(type, merged, true, -1);
        ASSERT_TRUE(whole.merged && whole.isJournalWhole && !whole.failed);
        long spoilt = 0; // more merges that went wrong with a journal than without one
        long lost = 0;
        Attempt attempt;
        for (long k = 0; (attempt = MergeOnce(type, merged, false, k)).failed; ++k) {
            spoilt -= attempt.merged ? 0 : 1;
        }
        for (long k = 0; (attempt = MergeOnce(type, merged, true, k)).failed; ++k) {
            spoilt += attempt.merged ? 0 : 1;
            lost += attempt.isJournalWhole ? 0 : 1;
            EXPECT_TRUE(!attempt.merged || !attempt.isJournalWhole || attempt.entries == whole.entries) << k;
        }
        EXPECT_EQ(spoilt, 0) << name;
        EXPECT_GT(lost, 0) << name;
    }
}

} // namespace
