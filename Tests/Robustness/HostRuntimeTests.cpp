// The library lives in processes that use Xerces and Xalan as well, and starts both at a moment when there may be no
// memory. Both are started once in a process: every case runs in a process of its own.

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string_view>
#include <vector>

#include <xalanc/XPath/XPathEvaluator.hpp>
#include <xalanc/XalanSourceTree/XalanSourceTreeDOMSupport.hpp>
#include <xalanc/XalanSourceTree/XalanSourceTreeInit.hpp>
#include <xalanc/XalanSourceTree/XalanSourceTreeParserLiaison.hpp>
#include <xalanc/XalanTransformer/XalanTransformer.hpp>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include "Commands.h"
#include "Robustness/FailingMemory.h"
#include "Robustness/Sizes.h"

#include "Framework/ContainerCatalog.h"

namespace {

constexpr std::string_view kXml = "<LoadConfig><ThreadChildList UniqueName='u'><ChildThread UniqueName='t'/>"
                                  "</ThreadChildList></LoadConfig>";

/// Everything that needs one of the libraries; what it made stays, and is used again by the next call.
struct Ours {
    XMLDataWrapper document;
    FullFunctionXMLDataWrapper output;
    std::unique_ptr<TypedDataContainer> object = ContainerCatalog::FindRoot("LoadConfig").Create(false);
    std::unique_ptr<XMLDataWrapper> content;

    bool Use() {
        content.reset();
        if (!document.IsDataLoaded() && !document.LoadXMLText(zelString(kXml), false)) {
            return false;
        }
        const bool isLoaded = object->LoadFromDataPacket(nullptr, &document, false);
        const bool isFound = document.NodeExists("//ChildThread[string-length(@UniqueName) = 1]", true);
        const bool isDumped =
            output.CreateOutputDocument("LoadConfig") && object->DumpMergeContents("", &output, -1, false);
        content.reset(object->BuildAndReturnDataContent());
        return isLoaded && isFound && isDumped && content != nullptr && document.GetDOMNode(true, false) != nullptr &&
               !document.GetXMLText().empty();
    }
    bool IsCleanError() const {
        const zelString errors = document.GetLastError() + output.GetLastError() + object->GetLastError();
        return errors.find("cannot be started") != zelString::npos;
    }
};

// --- a host that uses them too

void UseXerces() {
    xercesc::XercesDOMParser parser;
    parser.parse(xercesc::MemBufInputSource(reinterpret_cast<const XMLByte*>(kXml.data()), kXml.size(), "t"));
    EXPECT_NE(parser.getDocument()->getDocumentElement(), nullptr);
}

void UseXalan() {
    using namespace XALAN_CPP_NAMESPACE;
    const XalanSourceTreeInit sourceTree;
    XalanSourceTreeDOMSupport support;
    XalanSourceTreeParserLiaison liaison(support);
    support.setParserLiaison(&liaison);
    const xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(kXml.data()), kXml.size(), "t");
    XalanDocument* const document = liaison.parseXMLStream(source);
    XPathEvaluator evaluator;
    EXPECT_NE(evaluator.selectSingleNode(support, document, XalanDOMString("//ChildThread[last()]").c_str()), nullptr);
}

/// One letter for each thing that happens: small for the end of what the capital letter starts.
void Live(const char* life) {
    static Ours ours; // destroyed at the very end
    static const std::map<char, void (*)()> steps = {
        {'X', [] { xercesc::XMLPlatformUtils::Initialize(); }},
        {'x', [] { xercesc::XMLPlatformUtils::Terminate(); }},
        {'P', [] { XALAN_CPP_NAMESPACE::XPathEvaluator::initialize(); }},
        {'p', [] { XALAN_CPP_NAMESPACE::XPathEvaluator::terminate(); }},
        {'T', [] { XALAN_CPP_NAMESPACE::XalanTransformer::initialize(); }},
        {'t', [] { XALAN_CPP_NAMESPACE::XalanTransformer::terminate(); }},
        {'h', &UseXerces},
        {'e', &UseXalan},
        {'o', [] { EXPECT_TRUE(ours.Use()) << ours.document.GetLastError() << ours.object->GetLastError(); }},
    };
    for (const char* step = life; *step != '\0'; ++step) {
        SCOPED_TRACE(step);
        steps.at (*step)();
    }
    std::exit(testing::Test::HasFailure() ? 1 : 0);
}

class HostRuntime : public testing::Test {
protected:
    void SetUp() override { testing::FLAGS_gtest_death_test_style = "threadsafe"; }
};

TEST_F(HostRuntime, AHostStartsAndEndsTheLibrariesAroundUs) {
    for (const char* const life : {
             "o",                // nobody else
             "XhoxoXhxo",        // before us, and once more
             "oXhxoXxo",         // after us
             "oXoho",            // and forgets the end
             "XPeopxoXPeopxo",   // XPath before us
             "oXPeopxoXPepxo",   // and after
             "XTeotxoXTetxo",    // XSLT before us
             "oXTeotxoXTPepteo", // and after, and both
         }) {
        EXPECT_EXIT(Live(life), testing::ExitedWithCode(0), "") << life;
    }
}

// --- starts that fail

enum Answer { NothingFailed, Recovered, CleanError, Broken };

/// In a process of its own: request number k is refused during the first use. What a second use says.
Answer StartWithout(long k, bool fromThenOn, FailingMemory::Level level) {
    const int status = Framework::RunApart([&] {
        Ours ours;
        {
            const FailingMemory memory(k, fromThenOn, level);
            try {
                ours.Use();
            } catch (const std::bad_alloc&) { // as the header says
            }
        }
        const bool failed = FailingMemory::HasFailed();
        ::_exit(ours.Use() ? failed ? Recovered : NothingFailed : ours.IsCleanError() ? CleanError : Broken);
    });
    return WIFEXITED(status) ? static_cast<Answer>(WEXITSTATUS(status)) : Broken;
}

/// Xerces allocates twice past its memory manager while it starts, the C libraries may as well: only there a start
/// fails for good.
void SweepStart(FailingMemory::Level level) {
    const long step = Robustness::FullSizes() ? 1 : 701;
    for (const bool fromThenOn : {false, true}) {
        std::map<Answer, int> answers;
        for (long k = 0;; k += step) {
            const Answer answer = StartWithout(k, fromThenOn, level);
            ++answers[answer];
            EXPECT_NE(answer, Broken) << "when request " << k << " is refused";
            if (answer == NothingFailed || answer == Broken) {
                break;
            }
        }
        EXPECT_GT(answers[Recovered], 1);
        EXPECT_TRUE(fromThenOn || answers[CleanError] <= 4);
        std::fprintf(stderr, "%d recovered, %d ended in a clean error\n", answers[Recovered], answers[CleanError]);
    }
    std::exit(testing::Test::HasFailure() ? 1 : 0);
}

TEST_F(HostRuntime, AStartThatFailsIsTriedAgainOrACleanError) {
    EXPECT_EXIT(SweepStart(FailingMemory::Level::New), testing::ExitedWithCode(0), "");
    if (FailingMemory::CanFailMalloc()) {
        EXPECT_EXIT(SweepStart(FailingMemory::Level::Malloc), testing::ExitedWithCode(0), "");
    }
}

} // namespace
