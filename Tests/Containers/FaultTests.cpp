// Merging and updating that fail half way, at every step at which the XML layer or the allocator can fail.

#include "Containers/EveryClass.h"
#include "Containers/Values.h"

#include <cstdlib>
#include <fstream>
#include <new>
#include <sstream>

#include "Framework/XMLSupport/FaultPoint.h"

namespace {

thread_local long stepsLeft = -1;       // below 0: nothing fails
thread_local long allocationsLeft = -1; // likewise

void FailAtStep(const char* where) {
    if (stepsLeft >= 0 && stepsLeft-- == 0) {
        throw std::runtime_error(where);
    }
}

} // namespace

// Not inline: the compiler would see a mismatch between one half that it inlined and one that it did not.
[[gnu::noinline]] void* operator new(std::size_t size) {
    if (allocationsLeft >= 0 && allocationsLeft-- == 0) {
        throw std::bad_alloc();
    }
    if (void* const memory = std::malloc(size == 0 ? 1 : size)) {
        return memory;
    }
    throw std::bad_alloc();
}

// A sanitizer brings its own of these otherwise, which must not meet our delete.
[[gnu::noinline]] void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    try {
        return operator new(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

[[gnu::noinline]] void operator delete(void* memory) noexcept {
    std::free(memory);
}

[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace {

struct Case {
    const char* root;   ///< of an example document
    const char* little; ///< a document of that root for which every allocation can be tried
    const char* override;
};

const Case cases[] = {
    {"LoadConfig",
     "<LoadConfig><ThreadChildList UniqueName='Platform'><ChildThread UniqueName='PowerMonitor'/><ChildThread "
     "UniqueName='CaptureWriter'/><ChildThread UniqueName='CommServer'/></ThreadChildList></LoadConfig>",
     "<LoadConfig><ThreadChildList UniqueName='Platform'><ChildThread UniqueName='PowerMonitor' MergeAction='Remove'/>"
     "<ChildThread UniqueName='New' PlacementOrder='Before' PlacementIndex='CommServer'><LibraryPath>l</LibraryPath>"
     "</ChildThread><ChildThread UniqueName='CaptureWriter' MergeAction='Replace' PlacementOrder='First'/>"
     "<ChildThread UniqueName='CommServer' MergeAction='Clear'><LibraryPath>x</LibraryPath></ChildThread>"
     "<ChildThread UniqueName='None' MergeAction='Remove'/><DataStorageContainer/></ThreadChildList>"
     "<ThreadChildList UniqueName='More' PlacementOrder='First'><ChildThread UniqueName='a' MergeAction='Clear'/>"
     "</ThreadChildList></LoadConfig>"},
    {"StateProcessingRoot",
     "<StateProcessingRoot><RevisionHistory fileName='a'/><StateTable Name='T'><State Name='Attract'/></StateTable>"
     "</StateProcessingRoot>",
     "<StateProcessingRoot Version='9'><RevisionHistory fileName='f' PlacementOrder='First'>h</RevisionHistory>"
     "<StateTable MergeAction='Clear'><State Name='Attract'><Doc>d</Doc><PreStateTrigger><ActionRef>r</ActionRef>"
     "</PreStateTrigger></State></StateTable></StateProcessingRoot>"},
    {"CommConfig", "<CommConfig><CommEntry name='c'/></CommConfig>", "<CommConfig MergeAction='Replace'/>"},
    {"CaptureConfig", "<CaptureConfig/>", "<CaptureConfig MergeAction='Clear'/>"},
};

std::string ExampleText(const Case& c) {
    std::ostringstream text;
    text << std::ifstream(std::string(FRAMEWORK_EXAMPLES "/") + c.root + ".xml").rdbuf();
    return text.str();
}

/// Merges with the counter set to fail at the k-th chance; true when that chance came.
bool MergeFails(const Case& c, const std::string& base, long k, long& counter) {
    const std::unique_ptr<TypedDataContainer> object = ContainerCatalog::FindRoot(c.root).Create(false);
    IssueRecorder recorder;
    XMLDataWrapper source;
    EXPECT_TRUE(LoadText(*object, base) && source.LoadXMLText(c.override, false));
    counter = k;
    const bool success = object->MergeFromDataPacket(nullptr, "F", &source, false);
    const bool failed = counter < 0;
    counter = -1;
    if (!success) { // a failure further down stays there
        const zelString error = object->GetLastError();
        const bool isInWalk = error == "Unknown Exception occured in MergeDataMembers";
        EXPECT_TRUE(isInWalk || error == "Find" || error == "out of memory" || error == "IsDataLoaded") << error;
    }
    EXPECT_TRUE(success || failed);
    Samples::Lines(*object); // whole: every entry can be read
    EXPECT_TRUE(MergeText(*object, "G", c.override)) << object->GetLastError();
    object->ResetDataMembers();
    EXPECT_TRUE(LoadText(*object, base));
    const auto fresh = ContainerCatalog::FindRoot(c.root).Create(false);
    EXPECT_TRUE(LoadText(*fresh, base));
    EXPECT_EQ(Samples::Lines(*object), Samples::Lines(*fresh));
    return failed;
}

/// The same for an update after every value was changed.
bool UpdateFails(const Case& c, const std::string& base, long k, long& counter) {
    const std::unique_ptr<TypedDataContainer> object = ContainerCatalog::FindRoot(c.root).Create(false);
    XMLDataWrapper document;
    EXPECT_TRUE(document.LoadXMLText(base, false) && object->LoadFromDataPacket(nullptr, &document, false));
    for (const Value& value : ValuesOf(*object)) {
        EXPECT_TRUE(value.Set(OtherThan(value.field, value.Get())));
    }
    counter = k;
    object->UpdateContainedData(); // the result of an update that failed half way is that of its last write
    const bool failed = counter < 0;
    counter = -1;
    if (const zelString error = object->GetLastError(); !error.empty()) {
        EXPECT_TRUE(failed);
        EXPECT_EQ(error, "Unknown Exception occured in UpdateContainedData");
    }
    XMLDataWrapper half;
    EXPECT_TRUE(half.LoadXMLText(document.GetXMLText(), false)) << half.GetLastError();
    EXPECT_TRUE(object->UpdateContainedData());
    const auto fresh = ContainerCatalog::FindRoot(c.root).Create(false);
    EXPECT_TRUE(LoadText(*fresh, document.GetXMLText()));
    EXPECT_EQ(Samples::Lines(*object), Samples::Lines(*fresh));
    return failed;
}

using Attempt = bool (*)(const Case& c, const std::string& base, long k, long& counter);

void FailEverywhere(Attempt attempt, long& counter, bool little, long atLeast) {
    for (const Case& c : cases) {
        const std::string base = little ? c.little : ExampleText(c);
        long k = 0;
        while (attempt(c, base, k, counter)) {
            ++k;
        }
        EXPECT_GE(k, atLeast) << c.root;
    }
}

TEST(Faults, FailureOfAnyStepOfAMergeLeavesAWholeObject) {
    Framework::faultFunction = &FailAtStep;
    FailEverywhere(&MergeFails, stepsLeft, false, 3);
    Framework::faultFunction = nullptr;
}

TEST(Faults, FailureOfAnyAllocationInAMergeLeavesAWholeObject) {
    FailEverywhere(&MergeFails, allocationsLeft, true, 5);
}

TEST(Faults, FailureOfAnyStepOfAnUpdateLeavesAWholeDocument) {
    Framework::faultFunction = &FailAtStep;
    FailEverywhere(&UpdateFails, stepsLeft, true, 3);
    Framework::faultFunction = nullptr;
}

TEST(Faults, FailureOfAnyAllocationInAnUpdateLeavesAWholeDocument) {
    FailEverywhere(&UpdateFails, allocationsLeft, true, 5);
}

} // namespace
