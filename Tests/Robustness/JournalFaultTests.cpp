// A merge never fails for its journal: where memory for an entry runs out, the entry is lost and the journal says so.

#include "Containers/EveryClass.h"
#include "Robustness/FailingMemory.h"

#include "Framework/MergeJournal.h"

namespace {

struct Attempt {
    bool failed = false; ///< memory was refused
    bool merged = false; ///< and yet nothing is amiss with the tree
    bool isComplete = false;
    std::size_t entries = 0;
};

struct Content {
    CatalogClass type;
    std::string xml;
    std::string override;
    std::vector<std::string> merged = {};
};

/// One merge in which allocation number `k` fails.
Attempt MergeOnce(const Content& content, bool hasJournal, long k) {
    const auto object = content.type.Create(false);
    EXPECT_TRUE(LoadText(*object, content.xml));
    XMLDataWrapper source;
    EXPECT_TRUE(source.LoadXMLText(content.override, false));
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
    attempt.merged = attempt.merged && Samples::Lines(*object) == content.merged;
    attempt.isComplete = journal.IsComplete();
    attempt.entries = journal.Size();
    return attempt;
}

TEST(JournalFaults, AMergeDoesNotFailForItsJournal) {
    IssueRecorder quiet;
    for (const char* const name : {"LoadConfig", "StateProcessingRoot"}) {
        const CatalogClass type = ContainerCatalog::FindRoot(name);
        Content content{type, SampleText(type, 1), SampleText(type, 2)};
        const auto object = type.Create(false);
        ASSERT_TRUE(LoadText(*object, content.xml) && MergeText(*object, "F", content.override));
        content.merged = Samples::Lines(*object);
        const Attempt whole = MergeOnce(content, true, -1);
        ASSERT_TRUE(whole.merged && whole.isComplete && !whole.failed);
        long spoilt[2] = {0, 0}; // merges that went wrong, without a journal and with one
        long lost = 0;
        for (const bool hasJournal : {false, true}) {
            Attempt attempt;
            for (long k = 0; (attempt = MergeOnce(content, hasJournal, k)).failed; ++k) {
                spoilt[hasJournal ? 1 : 0] += attempt.merged ? 0 : 1;
                lost += attempt.isComplete ? 0 : 1;
                EXPECT_TRUE(!attempt.merged || !attempt.isComplete || attempt.entries == whole.entries || !hasJournal)
                    << k;
                EXPECT_TRUE(hasJournal || attempt.isComplete);
            }
        }
        EXPECT_EQ(spoilt[1], spoilt[0]) << name;
        EXPECT_GT(lost, 0) << name;
    }
}

} // namespace
