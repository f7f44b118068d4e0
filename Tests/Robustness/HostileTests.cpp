// Every hostile document is loaded as the container that its root asks for, from a file, from memory, and as a merge
// into an object that holds something; with little memory, little time, no file but the document and no socket.

#include "Commands.h"
#include "Containers/EveryClass.h"
#include "Containers/Values.h"
#include "Framework/LoadLimits.h"
#include "Fuzz/Target.h"
#include "Fuzz/Trees.h"
#include "Robustness/HostileDocuments.h"
#include "Robustness/HostileWatch.h"
#include "Robustness/Sizes.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <optional>

#include <pthread.h>
#include <sys/socket.h>

namespace Robustness {
namespace {

namespace fs = std::filesystem;

using Lines = std::vector<std::string>;

std::string ShortOf(const std::string& text) {
    return text.size() <= 300 ? text : text.substr(0, 300) + "...";
}

/// Runs on a thread with a stack of 256 KB; a deeper recursion ends the process.
void OnLittleStack(const std::function<void()>& work) {
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, std::size_t{256} * 1024), 0);
    pthread_t thread{};
    const auto run = [](void* call) -> void* {
        (*static_cast<const std::function<void()>*>(call))();
        return nullptr;
    };
    ASSERT_EQ(pthread_create(&thread, &attributes, run, const_cast<std::function<void()>*>(&work)), 0);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
}

/// What is done with one document.
class Judgement {
public:
    Judgement(const HostileDocument& document, const std::string& path)
        : m_document(document), m_path(path), m_good(SampleText(ContainerCatalog::FindRoot(document.root), 7, true)) {}

    void Run() {
        if (m_document.refusal.empty()) {
            CheckWhole();
        } else {
            CheckRefused();
        }
    }
    /// Depth costs no stack then.
    void RunWithoutLimits() {
        OnLittleStack([this] {
            const LoadLimits::Scope lifted(LoadLimits::None());
            Run();
        });
    }

private:
    /// Opens nothing but the document and what stands in memory alone.
    void Reach(const std::function<void()>& work) const {
        const auto workOrFail = [&work] {
            try {
                work();
            } catch (const Fuzz::Violation& violation) {
                ADD_FAILURE() << ShortOf(violation.what);
            }
        };
        for (const std::string& each : ReachedBy(m_path + ".log", workOrFail)) {
            EXPECT_TRUE(each == m_path || each.starts_with("/proc/self/")) << "reached out: " << each;
        }
    }

    /// The load and the merge say what is wrong, take little memory, and leave no trace.
    void CheckRefused() const {
        const std::string error = m_path + ":" + m_document.refusal;
        const auto object = ContainerCatalog::Create(m_document.root, false);
        EXPECT_TRUE(LoadText(*object, m_good));
        const Lines before = Fuzz::StateOf(*object).lines;
        double megabytes = 0;
        Reach([&] {
            megabytes = MegabytesOf([&] { EXPECT_FALSE(object->LoadFromFile(nullptr, m_path.c_str(), false)); });
        });
        EXPECT_TRUE(object->GetLastError().starts_with(error)) << ShortOf(object->GetLastError());
        EXPECT_TRUE(kSanitized || megabytes < m_document.mostMegabytes) << megabytes;
        EXPECT_EQ(Fuzz::StateOf(*object).lines, before);
        EXPECT_FALSE(object->MergeFromFile(nullptr, m_path.c_str()));
        EXPECT_TRUE(object->GetLastError().starts_with(error)) << ShortOf(object->GetLastError());
        EXPECT_EQ(Fuzz::StateOf(*object).lines, before);
        const std::string bytes = Framework::ReadText(m_path);
        Reach([&] {
            Fuzz::Load(bytes);
            Fuzz::Merge(m_good + "\n====\n" + bytes);
        });
    }

    /// Everything that a host may do with a document that loads.
    void CheckWhole() const {
        const std::string bytes = Framework::ReadText(m_path);
        const auto object = ContainerCatalog::Create(m_document.root, false);
        const auto other = ContainerCatalog::Create(m_document.root, false);
        Reach([&] {
            EXPECT_TRUE(object->LoadFromFile(nullptr, m_path.c_str(), false)) << ShortOf(object->GetLastError());
            CheckReadable(*object);
            CheckEdit(*object, bytes);
            CheckQueries(*object);
            if (m_document.lifted) {
                CheckDeepest(*object->GetContainedDataPtr());
            }
            EXPECT_TRUE(LoadText(*other, m_good) && other->MergeFromFile(nullptr, m_path.c_str()));
            CheckReadable(*other);
            EXPECT_TRUE(MergeText(*object, "Good", m_good) && object->UpdateContainedData())
                << ShortOf(object->GetLastError());
            Fuzz::Load(bytes);
        });
    }

    static void CheckReadable(TypedDataContainer& object) {
        for (const std::string& line : Samples::Lines(object)) {
            EXPECT_EQ(line.find(kCanary), line.npos) << ShortOf(line);
        }
    }

    void CheckQueries(TypedDataContainer& object) const {
        for (const CatalogField& list : ContainerCatalog::ClassOf(object).Fields()) {
            if (list.GetForm() == CatalogField::KeyedList && list.Length(object) > 0) {
                const zelString key = list.EntryKey(object, list.Length(object) - 1);
                const std::string query = "//" + m_document.root + "/" + std::string(list.Name()) + "[@" +
                                          std::string(list.KeyAttribute()) + "='" + key + "']";
                EXPECT_NE(object.GetContainedDataPtr()->GetXalanNode(query, true), nullptr) << ShortOf(query);
            }
        }
    }

    /// By the XPath engine, and with the place of a node in an error.
    static void CheckDeepest(XMLDataWrapper& wrapper) {
        const zelString deepest = "//*[not(*)][last()]";
        ASSERT_TRUE(wrapper.SetQueryValue(deepest, "new", true)) << wrapper.GetLastError();
        EXPECT_EQ(wrapper.GetStringValue(deepest, true), "new");
        EXPECT_FALSE(wrapper.SetQueryValue(deepest, "\x01", true));
        EXPECT_NE(wrapper.GetLastError().find(": character U+0001"), zelString::npos) << wrapper.GetLastError();
    }

    /// Changes the longest text: what is hostile mostly sits there.
    void CheckEdit(TypedDataContainer& object, const std::string& bytes) const {
        std::optional<Value> longest;
        std::size_t length = 0;
        for (const Value& value : ValuesOf(object)) {
            if (value.field.GetValue() == CatalogField::String && value.Get().size() >= length &&
                value.field.GetForm() != CatalogField::Attribute) {
                length = value.Get().size();
                longest = value;
            }
        }
        if (!longest || !longest->Set("edited")) {
            return;
        }
        const Lines lines = Samples::Lines(object);
        XMLDataWrapper& wrapper = *object.GetContainedDataPtr();
        EXPECT_TRUE(object.UpdateContainedData()) << ShortOf(wrapper.GetLastError());
        const std::string saved = wrapper.GetXMLText();
        EXPECT_NE(saved, bytes);
        const auto again = ContainerCatalog::Create(m_document.root, false);
        EXPECT_TRUE(LoadText(*again, saved));
        EXPECT_EQ(Samples::Lines(*again), lines);
    }

    const HostileDocument& m_document;
    const std::string& m_path;
    const std::string m_good;
};

/// A folder with the files that no load may open.
class HostileDocumentTests : public testing::Test {
protected:
    HostileDocumentTests() {
        const std::string word(kCanary);
        Framework::WriteText(m_folder / "canary.txt", word);
        Framework::WriteText(m_folder / "canary.xml", "<c>" + word + "</c>");
        Framework::WriteText(m_folder / "canary.dtd", "<!ENTITY c '" + word +
                                                          "'><!ATTLIST TranslationKeyMap language " + "CDATA '" + word +
                                                          "'>");
        fs::current_path(m_folder.Path()); // where names without a folder would lead
        // The XML libraries start with the first document: that shall not count as its memory.
        XMLDataWrapper wrapper;
        EXPECT_TRUE(wrapper.LoadXMLText("<a/>", false) && wrapper.GetDOMNode(true, false) != nullptr);
    }
    ~HostileDocumentTests() override { fs::current_path(m_folderBefore); }

    void Judge(const HostileDocuments& documents) const {
        const IssueRecorder quiet;
        for (const HostileDocument& document : documents) {
            const std::size_t size = FullSizes() ? document.full : document.small;
            if (document.full != 0 && size == 0) {
                continue;
            }
            std::cout << document.name << std::endl; // the last one is known even when it takes the program down
            SCOPED_TRACE(document.name);
            m_limits.GiveSeconds(kSanitized ? 300 : 60);
            const std::string path = m_folder / "document.xml";
            Framework::WriteText(path, document.text(size));
            Judgement judgement(document, path);
            document.lifted ? judgement.RunWithoutLimits() : judgement.Run();
            fs::remove(path);
        }
    }

    const Framework::TemporaryFolder m_folder;
    const ProcessLimits m_limits;

private:
    const fs::path m_folderBefore = fs::current_path();
};

TEST_F(HostileDocumentTests, WouldBeSeenToReachOut) {
    const Lines reached = ReachedBy(m_folder / "log", [] {
        std::ifstream file("/etc/passwd");
        ::close(::socket(AF_INET, SOCK_STREAM, 0));
    });
    EXPECT_EQ(reached, (Lines{"/etc/passwd", "*"}));
}

/// The name of a file is a path and nothing else, and one that is too large is not read.
TEST_F(HostileDocumentTests, FilesThatAreNoneAreRefused) {
    LoadLimits limits;
    limits.bytes = 1000;
    const LoadLimits::Scope scope(limits);
    const std::string folder = m_folder.Path();
    Framework::WriteText(m_folder / "large.xml", std::string(1001, ' '));
    const std::string tooLarge =
        ":1:1: the document has more than 1000 bytes, the limit is 1000; raise LoadLimits::bytes";
    const std::pair<std::string, std::string> files[] = {
        {"http://127.0.0.1/canary.xml", ": cannot open"},
        {"file://" + folder + "/canary.xml", ": cannot open"},
        {"", ": cannot open"},
        {folder, ": cannot read"},
        {folder + "/large.xml", tooLarge},
        {"/dev/zero", tooLarge},
    };
    for (const auto& [path, refusal] : files) {
        SCOPED_TRACE(path);
        const std::string error = path + refusal;
        const auto object = ContainerCatalog::Create("TranslationConfig", false);
        const Lines before = Fuzz::StateOf(*object).lines;
        m_limits.GiveSeconds(10);
        const Lines reached = ReachedBy(m_folder / "log", [&, name = path.c_str()] {
            EXPECT_FALSE(object->LoadFromFile(nullptr, name, false));
            EXPECT_TRUE(object->GetLastError().starts_with(error)) << object->GetLastError();
            EXPECT_FALSE(object->MergeFromFile(nullptr, name));
            EXPECT_TRUE(object->GetLastError().starts_with(error)) << object->GetLastError();
        });
        EXPECT_EQ(Fuzz::StateOf(*object).lines, before);
        EXPECT_EQ(reached, path.empty() ? Lines() : Lines(2, path));
    }
}

TEST_F(HostileDocumentTests, EntitiesAreRefused) {
    Judge(DocumentsOf("Entities"));
}
TEST_F(HostileDocumentTests, NothingReachesOut) {
    Judge(DocumentsOf("Reaching", m_folder.Path()));
}
TEST_F(HostileDocumentTests, DepthIsLimited) {
    Judge(DocumentsOf("Depth"));
}
TEST_F(HostileDocumentTests, FloodsAreRefusedOrLinear) {
    Judge(DocumentsOf("Floods"));
}
TEST_F(HostileDocumentTests, CollisionsCostNothing) {
    Judge(DocumentsOf("Collisions"));
}
TEST_F(HostileDocumentTests, HugePartsAreRefusedOrLinear) {
    Judge(DocumentsOf("Huge"));
}
TEST_F(HostileDocumentTests, BadCharactersAreRefused) {
    Judge(DocumentsOf("Characters"));
}
TEST_F(HostileDocumentTests, BadMarkupIsRefused) {
    Judge(DocumentsOf("Markup"));
}

} // namespace
} // namespace Robustness
