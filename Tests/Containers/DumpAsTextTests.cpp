// The two roads of a dump: what the outer operations write at once is, byte for byte, what a dump into a DOM gives.

#include "Commands.h"
#include "Containers/EveryClass.h"
#include "Containers/Values.h"

#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/LoadLimits.h"
#include "Framework/XMLSupport/FaultPoint.h"
#include "FrameworkDataContainers/FrameworkDataContainers.h"

namespace {

using Framework::DumpAsText;
using Framework::DumpedText;
using namespace std::literals;

/// The error that the object kept, as what a road came to instead of a text.
std::string ErrorOf(TypedDataContainer& object) {
    const std::string error = std::to_string(object.GetLastErrorNum()) + " " + object.GetLastError();
    object.SetLastError(0, "%s", "");
    return error;
}

std::string ByDom(TypedDataContainer& object, bool withMergeAttributes) {
    FullFunctionXMLDataWrapper output;
    DOMNode* passed = nullptr;
    zelString text;
    if (output.CreateOutputDocument(object.GetContainerName())) {
        if (!object.DumpMergeContentsII(nullptr, &output, passed, withMergeAttributes)) {
            return ErrorOf(object);
        }
        text = output.GetXMLText();
    }
    return text.empty() ? "-1 " + std::string(output.GetLastError()) : std::string(text);
}

std::string ByFile(TypedDataContainer& object, bool withMergeAttributes) {
    const Framework::TemporaryFolder folder;
    const std::string file = folder / "dump.xml";
    const bool success =
        withMergeAttributes ? object.DumpMergeResults(file.c_str()) : object.SaveContents(file.c_str());
    return success ? Framework::ReadText(file) : ErrorOf(object);
}

std::string ByWrapper(TypedDataContainer& object) {
    const std::unique_ptr<XMLDataWrapper> content(object.BuildAndReturnDataContent());
    return content == nullptr ? ErrorOf(object) : std::string(content->GetXMLText());
}

/// Both roads, where the short one is open.
void ExpectSameText(TypedDataContainer& object) {
    for (const bool withMergeAttributes : {false, true}) {
        zelString atOnce;
        ASSERT_EQ(DumpAsText(object, withMergeAttributes, atOnce), DumpedText::Whole);
        ASSERT_EQ(std::string(atOnce), ByDom(object, withMergeAttributes));
    }
}

/// The operations, whichever road they take.
void ExpectSameOutcome(TypedDataContainer& object) {
    for (const bool withMergeAttributes : {false, true}) {
        EXPECT_EQ(ByFile(object, withMergeAttributes), ByDom(object, withMergeAttributes));
    }
    EXPECT_EQ(ByWrapper(object), ByDom(object, false));
}

const std::string texts[] = {"",
                             " ",
                             "\t\r\n",
                             " \n x\r\n ",
                             "]]>",
                             "]]]]>>\r]]>",
                             "<a b='c'>&amp;&#13;\"'</a>",
                             "\xC2\x85\xE2\x80\xA8\xEF\xBF\xBD",
                             "\xF0\x9F\x98\x80 \xF4\x8F\xBF\xBF",
                             "seven &bytes then eight <more> of \"them\"\x7F",
                             "%s%n{}\\0"};

/// Gives every text that a value can have another of the special ones, those of attributes and keys numbered.
void SetSpecialTexts(TypedDataContainer& object, std::size_t shift) {
    std::size_t number = shift;
    for (const Value& value : ValuesOf(object)) {
        if (value.field.GetValue() == CatalogField::String) {
            const bool mayBeKey = value.field.GetForm() == CatalogField::Attribute;
            const std::string& text = texts[number++ % std::size(texts)];
            ASSERT_TRUE(value.Set(text + (mayBeKey ? std::to_string(number) : std::string())));
        }
    }
}

TEST(DumpAsText, GivesTheBytesOfTheDomForEveryClass) {
    ForEveryClass([](CatalogClass type) {
        ExpectSameText(*type.Create(true));
        for (unsigned seed = 1; seed <= 2; ++seed) {
            const auto object = MakeLoaded(type, seed, seed == 1);
            ExpectSameText(*object);
            ASSERT_TRUE(MergeText(*object, "the \"feature\" <&>", SampleText(type, seed + 2, true)));
            for (std::size_t shift = seed; shift < std::size(texts); shift += 4) {
                SetSpecialTexts(*object, shift);
                ExpectSameText(*object);
            }
        }
    });
}

/// A tree of three levels, with an entry of the given class in the middle.
template <class Thread> LoadConfigType& MakeTree(LoadConfigType& root, Thread* middle) {
    EXPECT_TRUE(LoadText(root, "<LoadConfig><ThreadChildList UniqueName='A'><ChildThread UniqueName='1'/>"
                               "</ThreadChildList></LoadConfig>"));
    middle->SetContainerName("ChildThread");
    middle->SetUniqueName("2");
    root.GetThreadChildList("A")->AddNewChildThread(middle, "2");
    auto* const last = new ChildThreadType(false);
    last->SetUniqueName("3");
    root.GetThreadChildList("A")->AddNewChildThread(last, "3");
    return root;
}

TEST(DumpAsText, FailsWithTheErrorsOfTheDom) {
    const std::string bad[] = {"a\x01", "\xFF", "\xED\xA0\x80", "\xEF\xBF\xBE"};
    for (const std::string& text : bad) {
        LoadConfigType root(false);
        auto* const thread = new ChildThreadType(false);
        MakeTree(root, thread);
        for (const bool isAttribute : {false, true}) {
            isAttribute ? thread->SetConfigLogic(text.c_str()) : thread->SetLibraryPath(text.c_str());
            ExpectSameOutcome(root);
            EXPECT_TRUE(ByFile(root, false).starts_with("-1 "));
            isAttribute ? thread->SetConfigLogic("") : thread->SetLibraryPath("");
        }
    }
    // Names come from the table, or from a host.
    for (const char* const name : {"", "a b", "1", "\xC3\x84mter", "p:q", "x\x01", "_.-"}) {
        LoadConfigType root(false);
        auto* const thread = new ChildThreadType(false);
        MakeTree(root, thread);
        thread->SetContainerName(name);
        ExpectSameOutcome(root);
        thread->SetContainerName("ChildThread");
        root.SetContainerName(name);
        ExpectSameOutcome(root);
    }
}

TEST(DumpAsText, KeepsTheLimitsOfWhatLoadsAgain) {
    LoadConfigType root(false);
    MakeTree(root, new ChildThreadType(false));
    LoadLimits limits = LoadLimits::Current();
    const auto expectRefused = [&root](const LoadLimits& lowered) {
        const LoadLimits::Scope scope(lowered);
        ExpectSameOutcome(root);
        EXPECT_NE(ByFile(root, true).find("that can be loaded again"), std::string::npos);
    };
    limits.bytes = 100;
    expectRefused(limits);
    limits = LoadLimits::Current();
    limits.attributesPerElement = 1;
    expectRefused(limits);
}

/// A host's class that writes something of its own in one of the ways there are.
class HostsThread : public ChildThreadType {
public:
    enum Own { Elements, Texts, Attributes };
    explicit HostsThread(Own own) : ChildThreadType(false), m_own(own) {}

    bool DumpMergeContentsII(DOMNode* parent, FullFunctionXMLDataWrapper* output, DOMNode*& passed,
                             bool withMergeAttributes) override {
        return ChildThreadType::DumpMergeContentsII(parent, output, passed, withMergeAttributes) &&
               (m_own != Elements || CreateTextNode(passed != nullptr ? passed : output->GetDOMNode(true, false),
                                                    output->GetOutputDocument(), "Own", "by the host"));
    }
    bool CreateTextNode(DOMNode* parent, DOMDocument* document, zelString name, zelString value) override {
        return ChildThreadType::CreateTextNode(parent, document, name, m_own == Texts ? value + " by the host" : value);
    }
    ParameterList* GetPLAttributeList() override {
        ParameterList* const list = ChildThreadType::GetPLAttributeList();
        const zelString value = "by the host";
        if (m_own == Attributes) {
            list->Add(&value, dcString, "Own", false);
        }
        return list;
    }

private:
    Own m_own;
};

TEST(DumpAsText, LeavesClassesOfAHostToTheDom) {
    for (const auto own : {HostsThread::Elements, HostsThread::Texts, HostsThread::Attributes}) {
        auto* const each = new HostsThread(own);
        LoadConfigType root(false);
        MakeTree(root, each);
        ExpectSameOutcome(root);
        EXPECT_NE(ByFile(root, false).find("by the host"), std::string::npos);
        EXPECT_NE(ByFile(*each, true).find("by the host"), std::string::npos);
    }
}

thread_local long fieldsLeft;

/// An exception at any field is the error of all objects from there up, and nothing is saved.
TEST(DumpAsText, EndsWithTheErrorOfTheDomWhenAFieldThrows) {
    LoadConfigType root(false);
    auto* const thread = new ChildThreadType(false);
    MakeTree(root, thread);
    const auto run = [&](auto road, long field) {
        fieldsLeft = field;
        Framework::faultFunction = [](const char* where) {
            if (where == "DumpByNode"sv && fieldsLeft-- == 0) {
                throw std::bad_alloc();
            }
        };
        const std::string outcome = road();
        Framework::faultFunction = nullptr;
        return std::vector<std::string>{outcome, ErrorOf(*thread), ErrorOf(*root.GetThreadChildList("A"))};
    };
    std::size_t failures = 0;
    for (long field = 0; field <= 40; ++field) {
        const auto expected = run([&] { return ByDom(root, true); }, field);
        EXPECT_EQ(run([&] { return ByFile(root, true); }, field), expected) << field;
        failures += expected[0].starts_with("<") ? 0 : 1;
    }
    EXPECT_GT(failures, 10U);
    EXPECT_LT(failures, 40U);
}

} // namespace
