// An allocation or a call of the XML layer may fail at any moment. Each operation is run with chance number 0, 1, 2 and
// so on failing, until it gets through; after every failure the object must be whole, and good for all that comes next.

#include "Commands.h"
#include "Containers/EveryClass.h"
#include "Containers/Values.h"
#include "Robustness/FailingMemory.h"
#include "Robustness/Sizes.h"

#include <filesystem>
#include <limits>
#include <set>
#include <thread>

#include <unistd.h>
#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMException.hpp>
#include <xercesc/dom/DOMNamedNodeMap.hpp>
#include <xercesc/dom/impl/DOMCasts.hpp>
#include <xercesc/dom/impl/DOMNodeImpl.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>

#include "Framework/FrameworkDataContainers/Walks/TableIndex.h"
#include "Framework/XMLSupport/FaultPoint.h"
#include "Framework/XMLSupport/SpareParsers.h"
#include "Framework/XMLSupport/XmlRuntime.h"
#include "FrameworkDataContainers/FrameworkDataContainers.h"

namespace {

// --- what the operations work on

/// A document of one class, another one, and an override for it.
struct Content {
    CatalogClass type;
    zelString xml;
    zelString other;
    zelString override;
    std::vector<std::string> lines = {}; ///< what a load of the document gives
};

Content MadeUpContent(CatalogClass type, unsigned seed) {
    Samples::Random random(seed);
    const auto make = [&](int firstKey) {
        return Samples::ToXml(Samples::Make(type, std::string(type.ElementName()), random, firstKey), random, false);
    };
    return {type, make(1), make(5), make(2)};
}

/// Values that need memory of their own, every form of field, every control word.
std::vector<Content> LittleContents() {
    const auto root = [](const char* name) { return ContainerCatalog::FindRoot(name); };
    const std::string longText = "a text that is longer than what a string holds in itself";
    return {
        {root("LoadConfig"),
         "<LoadConfig><ThreadChildList UniqueName='the platform of the lane'><ChildThread UniqueName='PowerMonitor'/>"
         "<ChildThread UniqueName='the writer of the captures'><LibraryPath>" +
             longText +
             "</LibraryPath></ChildThread><ChildThread UniqueName='CommServer'/><DataStorageContainer>"
             "<LoadPath>a</LoadPath></DataStorageContainer></ThreadChildList></LoadConfig>",
         "<LoadConfig><ThreadChildList UniqueName='another one'/></LoadConfig>",
         "<LoadConfig><ThreadChildList UniqueName='the platform of the lane'><ChildThread UniqueName='PowerMonitor' "
         "MergeAction='Remove'/><ChildThread UniqueName='New' PlacementOrder='Before' PlacementIndex='CommServer'>"
         "<LibraryPath>l</LibraryPath></ChildThread><ChildThread UniqueName='the writer of the captures' "
         "MergeAction='Replace' PlacementOrder='First'/><ChildThread UniqueName='CommServer' MergeAction='Clear'>"
         "<LibraryPath>x</LibraryPath></ChildThread><ChildThread UniqueName='None' MergeAction='Remove'/>"
         "<DataStorageContainer/></ThreadChildList><ThreadChildList UniqueName='More' PlacementOrder='First'/>"
         "</LoadConfig>"},
        {root("StateProcessingRoot"),
         "<?xml version='1.0' encoding='ISO-8859-1'?><!-- caf\xe9 "
         "--><StateProcessingRoot Version='1'><RevisionHistory fileName='the file of the states.xml'>" +
             longText + "</RevisionHistory><StateTable Name='T'><State Name='Attract'><Doc>one</Doc><Doc>" + longText +
             "</Doc><PreStateTrigger Index='1'><ActionRef>r</ActionRef><ActionResp><PostActionResp Result='2'/>"
             "</ActionResp></PreStateTrigger></State></StateTable></StateProcessingRoot>",
         "<StateProcessingRoot Version='the other'/>",
         "<StateProcessingRoot Version='9'><RevisionHistory fileName='f' PlacementOrder='First'>h</RevisionHistory>"
         "<RevisionHistory fileName='the file of the states.xml' MergeAction='Clear'>later</RevisionHistory>"
         "<StateTable MergeAction='Clear'><State Name='Attract'><Doc>d</Doc><PreStateTrigger><ActionRef>r</ActionRef>"
         "</PreStateTrigger></State><State Name='Attract' MergeAction='Clear'/></StateTable></StateProcessingRoot>"},
        MadeUpContent(root("CaptureConfig"), 1),
        MadeUpContent(root("ConfigDefRoot"), 2),
    };
}

/// In memory where the system has files there: thousands of saves are forced to the disk.
std::string PathFor(const char* name) {
    const std::string folder = std::filesystem::exists("/dev/shm") ? "/dev/shm/" : testing::TempDir();
    return folder + "FaultTests." + std::to_string(::getpid()) + "." + name + ".xml";
}

// What an operation is given is made before memory runs out.
const std::string kIn = PathFor("in");
const std::string kOut = PathFor("out");
const zelString kNewValue = "a new value that is longer than what a string holds in itself";
const zelString kXPath = "//*[contains('a long text, ' , ', ') and last() >= 1]";

struct Scene {
    explicit Scene(const Content& which) : content(which), name(which.type.ElementName()) {
        EXPECT_TRUE(document.LoadXMLText(content.xml, false)) << document.GetLastError();
        EXPECT_TRUE(object->LoadFromDataPacket(nullptr, &document, false)) << object->GetLastError();
    }

    const Content& content;
    std::string name;
    XMLDataWrapper document; ///< that the object stands on
    XMLDataWrapper source;
    FullFunctionXMLDataWrapper output;
    std::unique_ptr<TypedDataContainer> object = content.type.Create(false);
    std::unique_ptr<TypedDataContainer> made;
    std::unique_ptr<XMLDataWrapper> madeContent;
    DOMNode* node = nullptr;
    zelString text;
    zelString feature = "the feature of the night";
    zelString path = "descendant-or-self::*[not(*)][last()]";
};

/// The keys of entries stay: two of them would get the same.
void ChangeValues(Scene& scene) {
    for (const Value& value : ValuesOf(*scene.object)) {
        if (value.field.GetForm() != CatalogField::Attribute || value.object == scene.object.get()) {
            value.Set(OtherThan(value.field, value.Get()));
        }
    }
}

/// Makes a tree like another one from nothing, by the catalogue alone.
void Build(TypedDataContainer& object, TypedDataContainer& like) {
    for (const CatalogField& field : ContainerCatalog::ClassOf(like).Fields()) {
        if (field.IsScalar()) {
            field.SetText(object, field.GetText(like));
        } else if (TypedDataContainer* const child = field.GetChild(like)) {
            Build(*field.MakeChild(object), *child);
        }
        for (std::size_t i = 0; i < field.Length(like); ++i) {
            const zelString key = field.EntryKey(like, i);
            if (TypedDataContainer* const entry = field.Entry(like, i)) {
                Build(*field.AddEntry(object, key), *entry);
            } else {
                field.AddText(object, field.EntryText(like, i), key);
            }
        }
    }
}

/// Takes every field's content out again, one way or the other.
void TakeApart(TypedDataContainer& object) {
    for (const CatalogField& field : ContainerCatalog::ClassOf(object).Fields()) {
        if (field.IsList() && field.Length(object) > 1) {
            field.RemoveEntry(object, 0);
        }
        field.Clear(object);
    }
}

/// Where map and vector of a keyed list, an entry's key and its key attribute, or a field and the element name of what
/// stands in it say different things.
void FindDisagreements(TypedDataContainer& object, std::vector<std::string>& found) {
    using namespace Framework;
    const auto compare = [&](const FieldRow& row, auto& map, auto& entries) {
        const std::string where = std::string(row.name) + " of " + object.GetBaseType();
        std::set<const void*> inMap;
        for (const auto& [key, entry] : map.contents()) {
            inMap.insert(entry);
            if constexpr (std::is_same_v<decltype(entry), TypedDataContainer* const>) {
                if (!row.list->keyEquals(*entry, key)) {
                    found.push_back(where + ": the entry under " + key + " has another key");
                }
            }
        }
        if (inMap != std::set<const void*>(entries.begin(), entries.end()) || inMap.size() != entries.size()) {
            found.push_back(where + ": map and vector differ");
        }
    };
    for (const FieldTable* table = TableOf(object); table != nullptr; table = table->parent) {
        for (const FieldRow& row : table->rows) {
            if (row.form == FieldForm::KeyedList && row.value == FieldValue::Container) {
                compare(row, object.*row.map.entries, object.*row.member.entries);
            } else if (row.form == FieldForm::KeyedList) {
                compare(row, object.*row.map.texts, object.*row.member.keyedTexts);
            }
            std::vector<TypedDataContainer*> below;
            if (row.child != nullptr && row.child->get(object) != nullptr) {
                below = {row.child->get(object)};
            } else if (row.list != nullptr && row.value == FieldValue::Container) {
                below = object.*row.member.entries;
            }
            for (TypedDataContainer* const each : below) {
                if (each->GetContainerName() != std::string_view(row.name)) {
                    found.push_back(std::string(row.name) + " is called " + each->GetContainerName());
                }
                FindDisagreements(*each, found);
            }
        }
    }
}

std::vector<std::string> Disagreements(TypedDataContainer& object) {
    std::vector<std::string> found;
    FindDisagreements(object, found);
    return found;
}

// --- the operations

constexpr const char* kPopulate = "Unknown Exception occured in PopulateDataMembers";
constexpr const char* kMerge = "Unknown Exception occured in MergeDataMembers";
constexpr const char* kUpdate = "Unknown Exception occured in UpdateContainedData"; // of both dumps as well

/// What is promised for the case that something fails within.
enum class Promise {
    EndsWithFalse, ///< no exception; false or null, an error, and nothing done
    EndsWithPart,  ///< the same, but what was done before stays
    EndsSomehow,   ///< no exception; the result may be true when it was only a part that failed
    MayThrow,      ///< or an exception, and nothing done
};
/// What a failure does to the object.
enum class Leaves {
    AsItWas,          ///< in any case
    AsItWasOrInvalid, ///< one that is still valid was not touched
    AsItWasOrMerged,  ///< one that notes no feature of a merge was not touched
    Whole,
};

struct Operation {
    const char* name;
    Promise promise;
    Leaves leaves;
    void (*prepare)(Scene& scene);
    bool (*run)(Scene& scene);
    /// What it made or changed beside the object. After a success it is what it is when nothing fails; after a failure
    /// it is good for something.
    zelString (*outcome)(Scene& scene) = nullptr;
    void (*check)(Scene& scene) = nullptr;
};

void LoadOther(Scene& scene) {
    EXPECT_TRUE(scene.source.LoadXMLText(scene.content.other, false)) << scene.source.GetLastError();
}
void LoadOverride(Scene& scene) {
    EXPECT_TRUE(scene.source.LoadXMLText(scene.content.override, false)) << scene.source.GetLastError();
}
void Nothing(Scene&) {}

void WriteFile(Scene& scene) {
    Framework::WriteText(kIn, scene.content.override);
    Framework::WriteText(kOut, "<old/>");
}
void TakeDomNode(Scene& scene) {
    LoadOverride(scene);
    scene.node = scene.source.GetDOMNode(true, false);
}
void StartOutput(Scene& scene) {
    EXPECT_TRUE(scene.output.CreateOutputDocument(scene.name.c_str())) << scene.output.GetLastError();
}
void ChangeOnDom(Scene& scene) {
    EXPECT_NE(scene.document.GetDOMNode(true, false), nullptr);
    ChangeValues(scene);
}
void UpdateSome(Scene& scene) {
    ChangeValues(scene);
    EXPECT_TRUE(scene.object->UpdateContainedData());
}
void UpdateSomeOnDom(Scene& scene) {
    ChangeOnDom(scene);
    EXPECT_TRUE(scene.object->UpdateContainedData());
}

void CheckUpdated(Scene& scene) {
    XMLDataWrapper half;
    EXPECT_TRUE(half.LoadXMLText(scene.document.GetXMLText(), false)) << half.GetLastError();
    EXPECT_TRUE(scene.object->UpdateContainedData());
    const auto fresh = scene.content.type.Create(false);
    EXPECT_TRUE(LoadText(*fresh, scene.document.GetXMLText()));
    EXPECT_EQ(Samples::Lines(*fresh), Samples::Lines(*scene.object));
}
void CheckClone(Scene& scene) {
    if (scene.made != nullptr) {
        Samples::Lines(*scene.made);
        EXPECT_EQ(Disagreements(*scene.made), std::vector<std::string>());
    }
}
void MakeAnew(Scene& scene) {
    scene.object = scene.content.type.Create(false);
}

zelString TextOf(XMLDataWrapper& wrapper) {
    const zelString text = wrapper.GetXMLText();
    EXPECT_FALSE(text.empty()) << wrapper.GetLastError();
    return text;
}
template <auto Wrapper> zelString TextIn(Scene& scene) {
    return TextOf(scene.*Wrapper);
}
zelString MadeText(Scene& scene) {
    return scene.madeContent == nullptr ? zelString() : TextOf(*scene.madeContent);
}
zelString OutBytes(Scene& scene) {
    const zelString bytes = Framework::ReadText(kOut);
    XMLDataWrapper saved;
    EXPECT_TRUE(saved.LoadXMLText(bytes, true)) << saved.GetLastError() << " of " << scene.name;
    return bytes;
}

const Operation operations[] = {
    {"LoadFromDataPacket", Promise::EndsSomehow, Leaves::AsItWasOrInvalid, &LoadOther,
     [](Scene& s) { return s.object->LoadFromDataPacket(nullptr, &s.source, false); }},
    {"LoadFromFile", Promise::EndsSomehow, Leaves::AsItWasOrInvalid, &WriteFile,
     [](Scene& s) { return s.object->LoadFromFile(nullptr, kIn.c_str(), true); }},
    {"LoadFromDOMNode", Promise::EndsSomehow, Leaves::AsItWasOrInvalid, &TakeDomNode,
     [](Scene& s) { return s.object->LoadFromDOMNode(nullptr, s.node, false); }},
    {"SetContainedDataPtr", Promise::EndsSomehow, Leaves::Whole, &LoadOther,
     [](Scene& s) { return s.object->SetContainedDataPtr(&s.source, nullptr, false, true); }},
    {"MergeFromDataPacket", Promise::EndsSomehow, Leaves::AsItWasOrMerged, &LoadOverride,
     [](Scene& s) { return s.object->MergeFromDataPacket(nullptr, std::move(s.feature), &s.source, false); }},
    {"MergeFromFile", Promise::EndsSomehow, Leaves::AsItWasOrMerged, &WriteFile,
     [](Scene& s) { return s.object->MergeFromFile(nullptr, kIn.c_str()); }},
    {"MergeFromDOMNode", Promise::EndsSomehow, Leaves::AsItWasOrMerged, &TakeDomNode,
     [](Scene& s) { return s.object->MergeFromDOMNode(nullptr, std::move(s.feature), s.node); }},
    {"UpdateContainedData", Promise::EndsSomehow, Leaves::AsItWas, &ChangeValues,
     [](Scene& s) { return s.object->UpdateContainedData(); }, nullptr, &CheckUpdated},
    {"UpdateContainedData on a DOM", Promise::EndsSomehow, Leaves::AsItWas, &ChangeOnDom,
     [](Scene& s) { return s.object->UpdateContainedData(); }, nullptr, &CheckUpdated},
    {"DumpMergeContents", Promise::EndsWithPart, Leaves::AsItWas, &StartOutput,
     [](Scene& s) { return s.object->DumpMergeContents("", &s.output, -1, true); }, &TextIn<&Scene::output>},
    {"DumpMergeContentsII", Promise::EndsWithPart, Leaves::AsItWas, &StartOutput,
     [](Scene& s) {
         DOMNode* passed = nullptr;
         return s.object->DumpMergeContentsII(nullptr, &s.output, passed, true);
     },
     &TextIn<&Scene::output>},
    {"BuildAndReturnDataContent", Promise::EndsWithFalse, Leaves::AsItWas, &Nothing,
     [](Scene& s) {
         s.madeContent.reset(s.object->BuildAndReturnDataContent());
         return s.madeContent != nullptr;
     },
     &MadeText},
    {"SaveContents", Promise::EndsWithFalse, Leaves::AsItWas, &WriteFile,
     [](Scene& s) { return s.object->SaveContents(kOut.c_str()); }, &OutBytes},
    {"Clone", Promise::MayThrow, Leaves::AsItWas, &Nothing,
     [](Scene& s) {
         s.made.reset(s.object->Clone());
         return s.made != nullptr;
     },
     nullptr, &CheckClone},
    {"LoadXMLText", Promise::EndsWithFalse, Leaves::AsItWas, &LoadOther,
     [](Scene& s) { return s.source.LoadXMLText(s.content.override, false); }, &TextIn<&Scene::source>},
    {"GetXMLText", Promise::EndsWithFalse, Leaves::AsItWas, &UpdateSome,
     [](Scene& s) {
         s.text = s.document.GetXMLText();
         return !s.text.empty();
     },
     [](Scene& s) { return s.text; }},
    {"GetXMLText of a DOM", Promise::EndsWithFalse, Leaves::AsItWas, &UpdateSomeOnDom,
     [](Scene& s) {
         s.text = s.document.GetXMLText();
         return !s.text.empty();
     },
     [](Scene& s) { return s.text; }},
    {"SaveXMLFile", Promise::EndsWithFalse, Leaves::AsItWas,
     [](Scene& s) {
         UpdateSome(s);
         WriteFile(s);
     },
     [](Scene& s) { return s.document.SaveXMLFile(kOut.c_str()); }, &OutBytes},
    {"CreateOutputDocument", Promise::EndsWithFalse, Leaves::AsItWas, &StartOutput,
     [](Scene& s) { return s.output.CreateOutputDocument("ARootWithANameThatIsLong"); }, &TextIn<&Scene::output>},
    {"GetDOMNode", Promise::MayThrow, Leaves::AsItWas, &Nothing,
     [](Scene& s) { return s.document.GetDOMNode(true, false) != nullptr; }, &TextIn<&Scene::document>},
    {"an XPath query", Promise::MayThrow, Leaves::AsItWas, &Nothing,
     [](Scene& s) { return s.document.NodeExists(kXPath, true); }, &TextIn<&Scene::document>},
    {"SetQueryValue", Promise::MayThrow, Leaves::AsItWas, &Nothing,
     [](Scene& s) { return s.document.SetQueryValue(s.path, kNewValue, false); }, &TextIn<&Scene::document>},
    {"SetQueryValue on a DOM", Promise::MayThrow, Leaves::AsItWas,
     [](Scene& s) { EXPECT_NE(s.document.GetDOMNode(true, false), nullptr); },
     [](Scene& s) { return s.document.SetQueryValue(s.path, kNewValue, false); }, &TextIn<&Scene::document>},
    {"building by the catalogue", Promise::MayThrow, Leaves::Whole,
     [](Scene& s) {
         s.made = std::move(s.object);
         s.object = s.content.type.Create(false);
     },
     [](Scene& s) {
         Build(*s.object, *s.made);
         return Samples::Lines(*s.object) == Samples::Lines(*s.made);
     }},
    {"taking apart by the catalogue", Promise::MayThrow, Leaves::Whole, &Nothing,
     [](Scene& s) {
         TakeApart(*s.object);
         return true;
     }},
    {"WriteBack", Promise::MayThrow, Leaves::AsItWas, &ChangeValues,
     [](Scene& s) {
         for (const Value& value : ValuesOf(*s.object)) {
             value.WriteBack();
         }
         return true;
     },
     nullptr, &CheckUpdated},
    {"ResetDataMembers", Promise::EndsSomehow, Leaves::Whole, &Nothing,
     [](Scene& s) {
         s.object->ResetDataMembers();
         return true;
     }},
    {"Clear", Promise::EndsSomehow, Leaves::Whole, &Nothing,
     [](Scene& s) {
         s.object->Clear();
         return true;
     }},
    {"the destructor", Promise::EndsSomehow, Leaves::Whole, &Nothing,
     [](Scene& s) {
         s.object.reset();
         s.object = nullptr;
         return true;
     },
     nullptr, &MakeAnew},
};

// --- the sweeps

/// What fails, and how: armed for one run of an operation with one chance.
struct Fault {
    std::function<void(long k)> arm;
    std::function<bool()> disarm;          ///< whether the chance came
    std::function<bool()> isExpectedThrow; ///< called in a handler: whether that exception may leave what may throw
    /// Whether it was what a write is refused with, which counts as that where texts of a keyed list are written.
    std::function<bool()> isRefusal = [] { return false; };
};

Fault MemoryFault(bool fromThenOn, FailingMemory::Level level = FailingMemory::Level::New) {
    const auto memory = std::make_shared<std::optional<FailingMemory>>();
    return {[=](long k) {
                if (!fromThenOn) { // else a spare parser is taken, so that both are tried
                    Framework::FreeSpareParsers();
                }
                memory->emplace(k, fromThenOn, level);
            },
            [=] {
                memory->reset();
                return FailingMemory::HasFailed();
            },
            [] {
                try {
                    throw;
                } catch (const std::bad_alloc&) {
                    return true;
                } catch (...) {
                    return false;
                }
            }};
}

thread_local long stepsLeft = -1;
thread_local int thrownKind = 0;
thread_local bool wasRefusal = false;

void FailAtStep(const char* where) {
    if (stepsLeft < 0 || stepsLeft-- > 0) {
        return;
    }
    wasRefusal = thrownKind == 0 && (std::string_view(where) == "WriteNode" || std::string_view(where) == "Find");
    switch (thrownKind) {
    case 0:
        throw std::runtime_error(where);
    case 1:
        throw std::bad_alloc();
    case 2:
        throw xercesc::DOMException(xercesc::DOMException::NO_MODIFICATION_ALLOWED_ERR, 0);
    case 3:
        throw xercesc::OutOfMemoryException();
    default:
        throw 42;
    }
}
constexpr int kKinds = 5;

Fault StepFault() {
    return {[](long k) {
                stepsLeft = k / kKinds;
                thrownKind = static_cast<int>(k % kKinds);
                wasRefusal = false;
                Framework::faultFunction = &FailAtStep;
            },
            [] {
                Framework::faultFunction = nullptr;
                return stepsLeft < 0;
            },
            [] { return true; }, [] { return wasRefusal; }};
}

/// The object can be read whole, merged, dumped, reset and loaded like a new one.
void CheckWhole(Scene& scene) {
    EXPECT_TRUE(MergeText(*scene.object, "G", scene.content.override)) << scene.object->GetLastError();
    const std::unique_ptr<XMLDataWrapper> dump(scene.object->BuildAndReturnDataContent());
    EXPECT_NE(dump, nullptr) << scene.object->GetLastError();
    scene.object->ResetDataMembers();
    EXPECT_TRUE(LoadText(*scene.object, scene.content.xml)) << scene.object->GetLastError();
    EXPECT_EQ(Samples::Lines(*scene.object), scene.content.lines);
    EXPECT_EQ(Disagreements(*scene.object), std::vector<std::string>());
}

/// The fixed text of the walk that the operation is about; empty when it is about none.
std::string WalkTextOf(const Operation& operation) {
    const std::string_view name = operation.name;
    const auto isOne = [name](auto... words) { return (name.starts_with(words) || ...); };
    return isOne("Load", "SetContained")              ? kPopulate
           : isOne("Merge")                           ? kMerge
           : isOne("Update", "Dump", "Build", "Save") ? kUpdate
                                                      : "";
}

/// What an object says after a failure: the text of its walk, or that of the outer operation.
void CheckError(Scene& scene, const Operation& operation, bool success) {
    static const std::set<std::string> texts = {"out of memory", "an exception of unknown kind", "the DOM refuses it"};
    const zelString error = scene.object->GetLastError();
    const std::string walk = WalkTextOf(operation);
    const bool isWalk = walk.empty() ? error.starts_with("Unknown Exception occured in ") : error == walk;
    const bool isStep = error.find(' ') == zelString::npos; // the name of the step that threw
    const bool isEntry = error.find(": the entry cannot be loaded: ") != zelString::npos;
    const bool isOfSystem = error.ends_with("Cannot allocate memory");
    EXPECT_TRUE(isWalk || isStep || isEntry || isOfSystem || texts.contains(error)) << error;
    EXPECT_EQ(scene.object->GetLastErrorNum(), error.empty() ? 0 : -1);
    // An update's result is as it stood by then; of a merge the class's own part decides, not the one that it inherits.
    const std::string_view name = operation.name;
    const bool isDerived(scene.content.type.Parent());
    const bool isDecided = !name.starts_with("Update") && !(name.starts_with("Merge") && isDerived);
    EXPECT_FALSE(isWalk && success && isDecided) << error;
}

/// The runs of one operation on one content.
class Runs {
public:
    Runs(const Operation& operation, const Content& content, const Fault& fault)
        : m_operation(operation), m_content(content), m_fault(fault) {
        EXPECT_FALSE(Fails(std::numeric_limits<long>::max()));
    }

    /// One run with that chance failing; whether it came.
    bool Fails(long k) {
        Scene scene(m_content);
        m_operation.prepare(scene);
        const std::vector<std::string> before = Samples::Lines(*scene.object);
        const std::vector<std::string> disagreements = Disagreements(*scene.object);
        const zelString outcomeBefore = Outcome(scene);
        bool success = false;
        bool threw = false;
        m_fault.arm(k);
        try {
            success = m_operation.run(scene);
        } catch (...) {
            threw = true;
            m_fault.disarm();
            EXPECT_TRUE(m_fault.isExpectedThrow());
            EXPECT_EQ(m_operation.promise, Promise::MayThrow);
        }
        const bool failed = m_fault.disarm();
        EXPECT_TRUE(failed || (success && !threw));
        if (failed && scene.object != nullptr && scene.object->GetLastErrorNum() != -2) {
            CheckError(scene, m_operation, success);
        }
        CheckOutcome(scene, failed, success, outcomeBefore);
        if (m_operation.check != nullptr) {
            m_operation.check(scene);
        }
        const std::vector<std::string> after = Samples::Lines(*scene.object);
        if (m_operation.leaves == Leaves::AsItWas ||
            (m_operation.leaves == Leaves::AsItWasOrInvalid && !success && scene.object->Valid()) ||
            (m_operation.leaves == Leaves::AsItWasOrMerged && scene.object->GetMergeAttributes().empty())) {
            EXPECT_EQ(after, before);
            EXPECT_EQ(Disagreements(*scene.object), disagreements);
        } else {
            EXPECT_EQ(Disagreements(*scene.object), std::vector<std::string>());
        }
        CheckWhole(scene);
        return failed;
    }

private:
    zelString Outcome(Scene& scene) {
        return m_operation.outcome == nullptr ? zelString() : m_operation.outcome(scene);
    }

    void CheckOutcome(Scene& scene, bool failed, bool success, const zelString& before) {
        const zelString outcome = Outcome(scene);
        if (!failed) {
            m_expected = outcome;
        } else if (success && !m_fault.isRefusal()) {
            EXPECT_EQ(outcome, m_expected);
        } else if (!success && m_operation.promise != Promise::EndsWithPart) {
            EXPECT_EQ(outcome, before);
        }
    }

    const Operation& m_operation;
    const Content& m_content;
    const Fault& m_fault;
    zelString m_expected;
};

/// Every chance up to a number of them, and from there on ever more apart, so that there are about twice as many runs.
void SweepOne(const Operation& operation, const Content& content, const Fault& fault, long most) {
    SCOPED_TRACE(std::string(operation.name) + " on " + std::string(content.type.Name()));
    const testing::TestResult& result = *testing::UnitTest::GetInstance()->current_test_info()->result();
    const int failuresBefore = result.total_part_count();
    Runs runs(operation, content, fault);
    for (long k = 0, run = 0; runs.Fails(k); ++run) {
        if (result.total_part_count() > failuresBefore) {
            ADD_FAILURE() << "when chance " << k << " fails";
            return;
        }
        k += run < most ? 1 : 1 + (k - most) / 8 + k % 3;
    }
}

/// In the small size every operation takes its turn with every second content.
void Sweep(const Fault& fault, std::vector<Content> contents, long most) {
    static_assert(std::size(operations) % 2 == 1, "else the same operations would be left out every time");
    std::size_t turn = 0;
    Framework::EnsureXPathRuntime(); // how that fails is another matter
    TypedDataContainer::SetOverrideIssueHandler([](void*, const OverrideIssue&) {}, nullptr);
    for (Content& content : contents) {
        const auto object = content.type.Create(false);
        ASSERT_TRUE(LoadText(*object, content.xml));
        content.lines = Samples::Lines(*object);
        for (const Operation& operation : operations) {
            if (Robustness::FullSizes() || ++turn % 2 == 0) {
                SweepOne(operation, content, fault, most);
            }
        }
    }
}

void SweepAll(const Fault& fault) {
    const bool full = Robustness::FullSizes();
    const long most = full ? 1000000 : 12;
    Sweep(fault, LittleContents(), most);
    if (full) {
        std::vector<Content> contents;
        unsigned seed = 0;
        ForEveryClass([&](CatalogClass type) { contents.push_back(MadeUpContent(type, ++seed)); });
        Sweep(fault, std::move(contents), 12);
    }
}

/// A host may make nodes of its DOM read only; Xerces then throws what is no std::exception.
TEST(Faults, WhatADomRefusesIsAnError) {
    const auto object = ContainerCatalog::FindRoot("StateProcessingRoot").Create(false);
    XMLDataWrapper document;
    ASSERT_TRUE(document.LoadXMLText("<StateProcessingRoot Version='1'><a>t</a></StateProcessingRoot>", false));
    ASSERT_TRUE(object->LoadFromDataPacket(nullptr, &document, false));
    DOMNode* const root = document.GetDOMNode(true, false);
    static_cast<StateProcessingRootType&>(*object).SetVersion("2");
    for (const bool readOnly : {true, false}) {
        castToNodeImpl(root)->setReadOnly(readOnly, true);
        castToNodeImpl(root->getAttributes()->item(0))->setReadOnly(readOnly, true);
        EXPECT_EQ(document.SetQueryValue("a", "new", false), !readOnly);
        EXPECT_EQ(document.SetQueryValue("@Version", "new", false), !readOnly);
        EXPECT_EQ(object->UpdateContainedData(), !readOnly);
        EXPECT_EQ(object->CreateTextNode(root, root->getOwnerDocument(), "b", "text"), !readOnly);
        EXPECT_EQ(document.GetStringValue("a", false), readOnly ? "t" : "new");
        EXPECT_EQ(document.GetStringValue("@Version", false), readOnly ? "1" : "2");
        EXPECT_NE(document.GetLastError().find("the DOM refuses it"), zelString::npos) << document.GetLastError();
    }
}

TEST(Faults, AnyAllocationMayFail) {
    SweepAll(MemoryFault(false));
}

TEST(Faults, AnyAllocationAndAllBehindItMayFail) {
    SweepAll(MemoryFault(true));
}

/// What the C libraries ask for: the parser, the conversion of encodings, files.
TEST(Faults, AnyMallocMayFail) {
    if (!FailingMemory::CanFailMalloc()) {
        GTEST_SKIP() << "the sanitizers have a malloc of their own";
    }
    SweepAll(MemoryFault(false, FailingMemory::Level::Malloc));
    if (Robustness::FullSizes()) {
        SweepAll(MemoryFault(true, FailingMemory::Level::Malloc));
    }
}

/// What a thread does for the first time may need more than what others have done before.
TEST(Faults, AThreadMayBeginWithoutMemory) {
    if (!FailingMemory::CanFailMalloc()) {
        GTEST_SKIP() << "the sanitizers have a malloc of their own";
    }
    long failures = 0;
    for (bool hasFailed = true; hasFailed; failures += hasFailed ? 1 : 0) {
        std::thread([&] {
            TranslationConfigType object(false);
            zelString expected = "a name of the host's own";
            try {
                const FailingMemory memory(failures, false, FailingMemory::Level::Malloc);
                object.SetContainerName("a name of the host's own");
            } catch (const std::bad_alloc&) {
                expected = "TranslationConfig";
            }
            hasFailed = FailingMemory::HasFailed();
            EXPECT_EQ(object.GetContainerName(), expected);
        }).join();
    }
    EXPECT_GE(failures, 2);
}

/// A list must come empty also when there is no memory, and in the order of its keys.
TEST(Faults, AMapEndsItsValuesInOrderWithoutMemory) {
    struct Value {
        ~Value() { ended->push_back(number); }
        int number;
        std::vector<int>* ended;
    };
    std::vector<int> ended;
    std::vector<int> expected;
    ended.reserve(1000);
    Zelvon::SyncMap<zelString, Value*> map;
    for (int i = 0; i < 1000; ++i) {
        const int number = i * 7919 % 1000;
        auto* const value = new Value{number, &ended};
        map.setValue("the same beginning " + std::to_string(1000 + number), value, nullptr);
        map.setValue(std::to_string(number), i % 2 == 0 ? value : nullptr, nullptr);
    }
    std::map<std::string, int> ofEven; // under their other key, which comes before "the ..."
    for (int i = 0; i < 1000; i += 2) {
        ofEven.emplace(std::to_string(i * 7919 % 1000), i * 7919 % 1000);
    }
    for (const auto& [key, number] : ofEven) {
        expected.push_back(number);
    }
    for (int number = 0; number < 1000; ++number) {
        if (!ofEven.contains(std::to_string(number))) {
            expected.push_back(number);
        }
    }
    {
        const FailingMemory memory(0, true);
        map.clearMap(true);
    }
    EXPECT_EQ(ended, expected);
}

TEST(Faults, AnyStepOfTheXmlLayerMayFail) {
    SweepAll(StepFault());
}

} // namespace
