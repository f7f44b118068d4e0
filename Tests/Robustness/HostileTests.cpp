// Every hostile document is loaded as the container that its root asks for, from a file, from memory, and as a merge
// into an object that holds something, each in a process of its own that may use little memory, little time, no file
// but the document and no socket.

#include "Commands.h"
#include "Containers/EveryClass.h"
#include "Containers/Values.h"
#include "Framework/LoadLimits.h"
#include "Fuzz/Target.h"
#include "Robustness/HostileDocuments.h"
#include "Robustness/HostileState.h"
#include "Robustness/HostileWatch.h"
#include "Robustness/Sizes.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <set>

namespace Robustness {
namespace {

namespace fs = std::filesystem;

using Lines = std::vector<std::string>;

std::string ShortOf(const std::string& text) {
    return text.size() <= 300 ? text : text.substr(0, 300) + "...";
}

/// A folder with the files that no load may open.
class HostileDocumentTests : public testing::Test {
protected:
    /// Done once, so that not every child process has to: the XML libraries start with the first document.
    static void SetUpTestSuite() {
        XMLDataWrapper wrapper;
        ASSERT_TRUE(wrapper.LoadXMLText("<a/>", false) && wrapper.GetDOMNode(true, false) != nullptr);
    }

    HostileDocumentTests() {
        const std::string word(kCanary);
        Framework::WriteText(m_folder / "canary.txt", word);
        Framework::WriteText(m_folder / "canary.xml", "<c>" + word + "</c>");
        Framework::WriteText(m_folder / "canary.dtd", "<!ENTITY c '" + word +
                                                          "'><!ATTLIST TranslationKeyMap language " + "CDATA '" + word +
                                                          "'>");
        fs::current_path(m_folder.Path()); // where names without a folder would lead
    }
    ~HostileDocumentTests() override { fs::current_path(m_folderBefore); }

    void Judge(const HostileDocuments& documents) const;

    const Framework::TemporaryFolder m_folder;

private:
    const fs::path m_folderBefore = fs::current_path();
};

// --- what is done with one document, in the watched process

class Judgement {
public:
    Judgement(Watch& watch, const HostileDocument& document, const std::string& path, const std::string& good)
        : m_watch(watch), m_document(document), m_path(path), m_good(good) {}

    void Run() {
        if (m_document.lifted) {
            LoadLimits::SetDefault(LoadLimits::None());
        }
        TypedDataContainer::SetOverrideIssueHandler([](void*, const OverrideIssue&) {}, nullptr);
        FromMemory();
        AsMerge();
        FromFile();
    }

private:
    void At(const std::string& step) { m_watch.At(m_document.name + ": " + step); }

    bool IsRefused() const { return !m_document.refusal.empty(); }

    void Check(bool holds, const std::string& failure) {
        if (!holds) {
            m_watch.Fail(failure);
        }
    }

    /// An object of the document's class that holds something.
    std::unique_ptr<TypedDataContainer> Holder() {
        auto object = ContainerCatalog::Create(m_document.root, false);
        XMLDataWrapper wrapper;
        Check(wrapper.LoadXMLText(m_good, false) && object->LoadFromDataPacket(nullptr, &wrapper, false),
              "the good document does not load");
        return object;
    }

    void CheckOutcome(bool success, const std::string& error, const std::string& source) {
        if (!IsRefused()) {
            Check(success, "refused: " + ShortOf(error));
            return;
        }
        Check(!success, "not refused");
        Check(error.rfind(source + ":" + m_document.refusal, 0) == 0,
              "refused otherwise: " + ShortOf(error) + "\n  expected " + m_document.refusal);
        Check(error.size() < 1000, "the error has " + std::to_string(error.size()) + " bytes");
    }

    /// Loads or merges; what is refused must leave no trace.
    void Try(TypedDataContainer& object, const std::string& source, const std::function<bool()>& load) {
        const Lines before = IsRefused() ? StateOf(object) : Lines();
        bool success = false;
        const double megabytes = m_watch.MegabytesOf([&] { success = load(); });
        CheckOutcome(success, object.GetLastError(), source);
        Check(!IsRefused() || StateOf(object) == before, "the refused document left a trace");
        Check(kSanitized || !IsRefused() || megabytes < m_document.mostMegabytes,
              "the refusal took " + std::to_string(megabytes) + " MB");
    }

    void FromFile() {
        At("load from a file");
        const auto object = Holder();
        Try(*object, m_path, [&] { return object->LoadFromFile(nullptr, m_path.c_str(), false); });
        if (!IsRefused()) {
            CheckWhole(*object);
        }
    }

    void FromMemory() {
        At("load from memory");
        XMLDataWrapper wrapper;
        Check(wrapper.LoadXMLText(m_good, false), "the good document does not load");
        bool success = false;
        {
            const std::string bytes = Bytes();
            success = wrapper.LoadXMLText(bytes, false);
        }
        const bool isOtherRoot = m_document.refusal.rfind("1:1: no element ", 0) == 0;
        if (!success && !isOtherRoot) {
            CheckOutcome(success, wrapper.GetLastError(), "<text>");
            Check(wrapper.GetXMLText() == m_good, "the wrapper lost what it held");
            return;
        }
        const auto object = Holder();
        Try(*object, "<text>", [&] { return object->LoadFromDataPacket(nullptr, &wrapper, true); });
    }

    void AsMerge() {
        At("merge from a file");
        const auto object = Holder();
        Try(*object, m_path, [&] { return object->MergeFromFile(nullptr, m_path.c_str()); });
        if (!IsRefused()) {
            CheckReadable(*object);
        }
    }

    std::string Bytes() const { return Framework::ReadText(m_path); }

    void CheckReadable(TypedDataContainer& object) {
        const Lines lines = Samples::Lines(object);
        Check(std::none_of(lines.begin(), lines.end(),
                           [](const std::string& line) { return line.find(kCanary) != line.npos; }),
              "a value holds the word of the canary file");
    }

    /// Everything that a host may do next with an object that was loaded.
    void CheckWhole(TypedDataContainer& object) {
        const std::string bytes = Bytes();
        CheckReadable(object);
        At("edit and save");
        XMLDataWrapper& wrapper = *object.GetContainedDataPtr();
        CheckEdit(object, wrapper, bytes);
        At("find an entry by its key");
        CheckQueries(object, wrapper);
        At("merge something and update");
        XMLDataWrapper good;
        Check(good.LoadXMLText(m_good, false) && object.MergeFromDataPacket(nullptr, "Good", &good, false) &&
                  object.UpdateContainedData(),
              "nothing can be merged into it: " + ShortOf(object.GetLastError()));
        CheckReadable(object);
        At("dump, clone, turn into a DOM, update");
        try {
            Fuzz::Load(bytes);
        } catch (const Fuzz::Violation& violation) {
            m_watch.Fail(ShortOf(violation.what));
        }
    }

    void CheckQueries(TypedDataContainer& object, XMLDataWrapper& wrapper) {
        for (const CatalogField& list : ContainerCatalog::ClassOf(object).Fields()) {
            if (list.GetForm() == CatalogField::KeyedList && list.Length(object) > 0) {
                const zelString key = list.EntryKey(object, list.Length(object) - 1);
                const std::string query = "//" + m_document.root + "/" + std::string(list.Name()) + "[@" +
                                          std::string(list.KeyAttribute()) + "='" + key + "']";
                Check(wrapper.GetXalanNode(query, true) != nullptr, "an entry is not found: " + ShortOf(query));
            }
        }
    }

    /// Changes the longest text: what is hostile mostly sits there.
    void CheckEdit(TypedDataContainer& object, XMLDataWrapper& wrapper, const std::string& bytes) {
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
        Check(object.UpdateContainedData(), "the edit cannot be written: " + ShortOf(wrapper.GetLastError()));
        const std::string saved = wrapper.GetXMLText();
        const auto again = ContainerCatalog::Create(m_document.root, false);
        XMLDataWrapper reload;
        Check(saved != bytes && reload.LoadXMLText(saved, false) &&
                  again->LoadFromDataPacket(nullptr, &reload, false) && Samples::Lines(*again) == lines,
              "the edited document loads otherwise: " + ShortOf(reload.GetLastError()));
    }

    Watch& m_watch;
    const HostileDocument& m_document;
    const std::string& m_path;
    const std::string& m_good;
};

// --- the judge of a whole table

/// What the system itself reads to turn another encoding into UTF-8.
bool IsConversion(const std::string& call) {
    return call.find("/gconv/") != call.npos || call == "openat /etc/ld.so.cache";
}

struct Case {
    const HostileDocument* document;
    std::size_t size;
    std::string path;
};

/// Whether the call only looks where a link on the way to the file leads.
bool IsOnTheWay(const std::string& call, const std::string& path) {
    const std::string looked = call.rfind("readlink ", 0) == 0 ? call.substr(9) : std::string();
    return !looked.empty() && (path == looked || path.rfind(looked + "/", 0) == 0);
}

/// Judges the documents in one process after the other.
void JudgeTogether(const std::vector<Case>& cases) {
    std::set<std::string> mayBeOpened;
    const auto isOnTheWay = [&](const std::string& call) {
        return std::any_of(cases.begin(), cases.end(), [&](const Case& each) { return IsOnTheWay(call, each.path); });
    };
    std::map<std::string, std::string> good; // by root
    for (const Case& each : cases) {
        std::ofstream(each.path, std::ios::binary) << each.document->text(each.size);
        mayBeOpened.insert("openat " + each.path);
        if (good.find(each.document->root) == good.end()) {
            good[each.document->root] = SampleText(ContainerCatalog::FindRoot(each.document->root), 7, true);
        }
    }
    const Watched watched = RunWatched(kSanitized ? 300 : 60, [&](Watch& watch) {
        for (const Case& each : cases) {
            Judgement(watch, *each.document, each.path, good[each.document->root]).Run();
        }
    });
    for (const std::string& failure : watched.failures) {
        ADD_FAILURE() << failure;
    }
    for (const std::string& call : watched.reached) {
        EXPECT_TRUE(mayBeOpened.count(call) != 0 || isOnTheWay(call) || IsConversion(call)) << "reached out: " << call;
    }
}

/// Those of one size are small and share a process; every other has one to itself.
void HostileDocumentTests::Judge(const HostileDocuments& documents) const {
    std::vector<Case> small;
    for (const HostileDocument& document : documents) {
        const std::size_t size = FullSizes() ? document.full : document.small;
        const Case one{&document, size, m_folder / (std::to_string(&document - documents.data()) + ".xml")};
        if (document.full == 0) {
            small.push_back(one);
        } else if (size != 0) {
            JudgeTogether({one});
            fs::remove(one.path);
        }
    }
    JudgeTogether(small);
}

/// The name of a file is a path and nothing else, and one that is too large is not read.
TEST_F(HostileDocumentTests, FilesThatAreNoneAreRefused) {
    LoadLimits limits;
    limits.bytes = 1000;
    LoadLimits::SetDefault(limits);
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
        const Watched watched = RunWatched(10, [&](Watch& watch) {
            const auto object = ContainerCatalog::Create("TranslationConfig", false);
            const Lines before = StateOf(*object);
            if (object->LoadFromFile(nullptr, path.c_str(), false) || !object->GetLastError().starts_with(error) ||
                object->MergeFromFile(nullptr, path.c_str()) || !object->GetLastError().starts_with(error) ||
                StateOf(*object) != before) {
                watch.Fail(object->GetLastError());
            }
        });
        EXPECT_EQ(watched.failures, Lines());
        Lines reached = watched.reached;
        std::erase_if(reached, [&](const std::string& call) { return IsOnTheWay(call, path); });
        EXPECT_EQ(reached, Lines(2, "openat " + std::string(path.c_str())));
    }
    LoadLimits::SetDefault(LoadLimits());
}

/// In this process, where a sanitizer looks for leaks at the end.
TEST_F(HostileDocumentTests, RefusalsLeakNothing) {
    for (const char* const group : {"Entities", "Characters", "Markup"}) {
        for (const HostileDocument& document : DocumentsOf(group)) {
            XMLDataWrapper wrapper;
            const bool success = wrapper.LoadXMLText(document.text(10), false);
            EXPECT_EQ(success, wrapper.GetLastError().empty()) << document.name;
        }
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
    Judge(BadUtf8());
}
TEST_F(HostileDocumentTests, BadMarkupIsRefused) {
    Judge(DocumentsOf("Markup"));
}

} // namespace
} // namespace Robustness
