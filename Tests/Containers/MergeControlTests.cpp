// Merge control: what the words do, for every class and against a model that takes them one after the other.

#include "Containers/EveryClass.h"

#include <algorithm>

#include "Framework/MergeJournal.h"
#include "FrameworkDataContainers/FrameworkDataContainers.h"

namespace {

using Samples::EntrySample;
using Samples::FieldSample;
using Samples::Random;
using Samples::Sample;

std::string OneOf(Random& random, const std::vector<std::string>& words) {
    return words[random() % words.size()];
}

/// The sample's element with control attributes in its tag.
std::string Element(const Sample& sample, const std::string& words, Random& random) {
    std::string xml = Samples::ToXml(sample, random, false);
    xml.erase(0, xml.find('\n') + 1);
    return xml.insert(1 + sample.name.size(), words);
}

/// Makes overrides with control words and does to a sample what they ask for, as literally as can be.
class Model {
public:
    Model(Sample& tree, Random& random) : m_tree(tree), m_random(random) {}

    /// The inside of an override for one field of `over`. Counts what must be reported.
    std::string Take(std::size_t index, Sample& over) {
        FieldSample& from = over.fields[index];
        FieldSample& into = m_tree.fields[index];
        if (from.child != nullptr) {
            return TakeChild(into, from);
        }
        std::string xml;
        for (EntrySample& entry : from.entries) {
            FieldSample one(from.field);
            one.entries.push_back(std::move(entry));
            xml += from.field.GetForm() == CatalogField::KeyedList ? TakeKeyed(into, one) : TakePlain(into, one);
        }
        return xml;
    }

    std::size_t issues = 0;

private:
    std::string Xml(const FieldSample& one, const std::string& words) {
        const EntrySample& entry = one.entries[0];
        const std::string name(one.field.Name()), key(one.field.KeyAttribute());
        if (entry.object != nullptr) {
            return Element(*entry.object, words, m_random);
        }
        const std::string attribute = key.empty() ? "" : " " + key + "=\"" + Samples::Escaped(entry.key) + "\"";
        return "<" + name + attribute + words + ">" + Samples::Escaped(entry.text) + "</" + name + ">";
    }

    std::string TakeChild(FieldSample& into, const FieldSample& from) {
        const std::string action = OneOf(m_random, {"Merge", "Replace", "Remove", "Clear", "Add", "clear"});
        const std::string xml = Element(*from.child, " MergeAction='" + action + "'", m_random);
        if (action == "Add" || action == "clear" || (action != "Merge" && into.child == nullptr)) {
            ++issues;
            return xml;
        }
        if (action == "Replace" || action == "Remove") {
            into.child.reset();
        } else if (action == "Clear") {
            Samples::Reset(*into.child, true);
        }
        if (action != "Remove") {
            MergeField(into, from);
        }
        return xml;
    }

    std::string TakePlain(FieldSample& into, const FieldSample& one) {
        const std::string action = OneOf(m_random, {"Merge", "Add", "Remove", "Clear"});
        const std::string xml = Xml(one, " MergeAction='" + action + "'");
        if (action == "Merge" || action == "Add") {
            MergeField(into, one);
        } else {
            ++issues;
        }
        return xml;
    }

    using Entries = std::vector<EntrySample>;
    static Entries::iterator Find(Entries& entries, const std::string& key) {
        return std::find_if(entries.begin(), entries.end(),
                            [&key](const EntrySample& entry) { return entry.key == key; });
    }

    std::string TakeKeyed(FieldSample& into, const FieldSample& one) {
        const std::string key = one.entries[0].key;
        const std::string action = OneOf(m_random, {"", "Merge", "Add", "Replace", "Remove", "Clear", "Nil"});
        const std::string order = OneOf(m_random, {"", "", "First", "Last", "Before", "After"});
        const bool beside = order == "Before" || order == "After";
        const std::string index = into.entries.empty() ? "none" : into.entries[m_random() % into.entries.size()].key;
        const std::string xml = Xml(one, (action.empty() ? "" : " MergeAction='" + action + "'") +
                                             (order.empty() ? "" : " PlacementOrder='" + order + "'") +
                                             (beside ? " PlacementIndex=\"" + Samples::Escaped(index) + "\"" : ""));
        const auto present = Find(into.entries, key);
        const bool isThere = present != into.entries.end();
        const bool needs = action == "Replace" || action == "Remove" || action == "Clear";
        if (action == "Nil" || (needs && !isThere) || (action == "Add" && isThere) ||
            (action == "Remove" && !order.empty()) || (beside && (index == key || into.entries.empty()))) {
            ++issues;
            return xml;
        }
        const std::ptrdiff_t position = present - into.entries.begin();
        if (action == "Remove" || action == "Replace") {
            into.entries.erase(present);
        } else if (action == "Clear" && present->object != nullptr) {
            Samples::Reset(*present->object, true);
        }
        if (action != "Remove") {
            MergeField(into, one);
        }
        if (action == "Replace") { // it stands where the old one stood
            std::rotate(into.entries.begin() + position, into.entries.end() - 1, into.entries.end());
        }
        if (!order.empty() && action != "Remove") {
            const auto stands = static_cast<std::size_t>(Find(into.entries, key) - into.entries.begin());
            Samples::Move(into.entries, stands, beside ? order + " " + index : order);
        }
        return xml;
    }

    Sample& m_tree;
    Random& m_random;
};

TEST(MergeControl, EveryFormObeysItsWordsOneAfterTheOther) {
    std::size_t reported = 0;
    ForEveryClass([&reported](CatalogClass type) {
        for (unsigned seed = 1; seed <= 12; ++seed) {
            Random random(seed);
            const std::string name(type.ElementName());
            Sample tree = Samples::Make(type, name, random);
            const auto object = type.Create(false);
            ASSERT_TRUE(LoadText(*object, Samples::ToXml(tree, random, false)));
            for (int round = 0; round < 3; ++round) {
                std::string xml;
                Model model(tree, random);
                for (int firstKey = 1; firstKey <= 5; ++firstKey) {
                    Sample over = Samples::Make(type, name, random, firstKey);
                    for (std::size_t i = 0; i < over.fields.size(); ++i) {
                        // A child that stands twice in an override counts once.
                        const bool isTaken = firstKey == 1 || over.fields[i].child == nullptr;
                        xml += isTaken ? model.Take(i, over) : "";
                    }
                }
                IssueRecorder recorder;
                ASSERT_TRUE(MergeText(*object, "Night", "<" + name + ">" + xml + "</" + name + ">"));
                ASSERT_EQ(Samples::Lines(*object), Samples::Lines(tree)) << "seed " << seed << ", round " << round;
                ASSERT_EQ(recorder.issues.size(), model.issues);
                reported += model.issues;
            }
        }
    });
    EXPECT_GT(reported, 100U);
}

TEST(MergeControl, RootIsClearedOrReplacedAndKeepsItsOwnWrapper) {
    ForEveryClass([](CatalogClass type) {
        for (unsigned seed = 1; seed <= 9; ++seed) {
            const std::string action = std::vector{"Merge", "Clear", "Replace"}[seed % 3];
            Random random(seed);
            Sample tree = Samples::Make(type, std::string(type.ElementName()), random, 1, seed > 3);
            const Sample over = Samples::Make(type, tree.name, random, 2); // shares some keys, brings others
            const auto object = type.Create(false);
            ASSERT_TRUE(LoadText(*object, Samples::ToXml(tree, random, false)));
            const XMLDataWrapper* const own = object->GetContainedDataPtr();
            ASSERT_TRUE(MergeText(*object, "F", Element(over, " MergeAction='" + action + "'", random)));
            if (action != "Merge") {
                Samples::Reset(tree, action == "Clear");
            }
            for (FieldSample& field : tree.fields) {
                field.child = action == "Replace" ? nullptr : std::move(field.child);
            }
            Samples::Merge(tree, over);
            EXPECT_EQ(Samples::Lines(*object), Samples::Lines(tree)) << action;
            EXPECT_EQ(object->GetContainedDataPtr(), own);
        }
    });
}

/// "T U".
std::string Threads(ThreadChildListType& list) {
    std::string text;
    for (int i = 0; i < list.GetChildThreadLength(); ++i) {
        ChildThreadType& thread = *list.GetChildThread(i);
        text += (text.empty() ? "" : " ") + thread.GetUniqueName();
        EXPECT_EQ(list.GetChildThread(thread.GetUniqueName()), &thread);
    }
    return text;
}

std::string List(const std::string& inside) {
    return "<LoadConfig>\n<ThreadChildList UniqueName='L'>\n" + inside + "</ThreadChildList></LoadConfig>";
}

std::string Thread(const std::string& words) {
    return "<ChildThread UniqueName=" + words + "/>";
}

TEST(MergeControl, WhatCannotBeDoneIsReportedWithItsPlaceAndTheRestGoesOn) {
    const std::pair<const char*, const char*> cases[] = {
        // words of an entry on line 3, and what is said of them
        {"'A' MergeAction='remove'",
         "[A] of feature \"Night\": MergeAction=\"remove\" is no such word on an entry of a keyed list, expected "
         "Merge, Add, Replace, Remove or Clear"},
        {"'X' MergeAction='Remove'", "[X] of feature \"Night\": MergeAction=\"Remove\": there is no such entry"},
        {"'X' MergeAction='Clear'", "MergeAction=\"Clear\": there is no such entry"},
        {"'A' MergeAction='Add'", "MergeAction=\"Add\": the entry is there already"},
        {"'A' PlacementOrder='Top'", "PlacementOrder=\"Top\" is no such word, expected First, Last, Before or After"},
        {"'A' PlacementOrder='Before'", "PlacementOrder=\"Before\" names no neighbour, expected its key as"},
        {"'A' PlacementOrder='First' PlacementIndex='B'", "PlacementIndex=\"B\" has no meaning without PlacementOrder"},
        {"'A' PlacementFeature='Base'", "PlacementFeature=\"Base\" has no meaning without"},
        {"'A' PlacementOrder='After' PlacementIndex='X'", "PlacementIndex=\"X\": there is no such entry to stand"},
        {"'A' PlacementOrder='After' PlacementIndex='A'", "PlacementIndex=\"A\": an entry cannot stand beside itself"},
        {"'A' PlacementOrder='After' PlacementIndex='B' PlacementFeature='Day'",
         "PlacementFeature=\"Day\": the entry B belongs to feature \"Base\""},
        {"'A' MergeAction='Remove' PlacementOrder='First'", "contradicts MergeAction=\"Remove\""},
        {"''", nullptr}, // an empty key is a key
    };
    for (const auto& [words, text] : cases) {
        SCOPED_TRACE(words);
        LoadConfigType object(false); // without a feature: that counts as "Base"
        ASSERT_TRUE(LoadText(object, List(Thread("'A'") + Thread("'B'"))));
        const IssueRecorder recorder;
        EXPECT_TRUE(MergeText(object, "Night", List(Thread(words) + Thread("'Z'"))));
        EXPECT_EQ(Threads(*object.GetThreadChildList("L")), text == nullptr ? "A B  Z" : "A B Z");
        ASSERT_EQ(recorder.issues.size(), text == nullptr ? 0U : 1U);
        for (const OverrideIssue& issue : recorder.issues) {
            EXPECT_NE(issue.ErrorText.find(text), std::string::npos) << issue.ErrorText;
            EXPECT_EQ(issue.ErrorText.find("ChildThread["), 0U);
            EXPECT_EQ(issue.Line, 3U);
            EXPECT_EQ(issue.Column, 1U);
        }
    }
}

TEST(MergeControl, FeaturesOfWhatIsPlacedReplacedAndCleared) {
    LoadConfigType object(false);
    object.SetFeatureID("Base");
    ASSERT_TRUE(LoadText(object, List(Thread("'A'") + Thread("'B'"))));
    ASSERT_TRUE(MergeText(object, "Day", List(Thread("'D' PlacementOrder='First'"))));
    IssueRecorder recorder;
    ASSERT_TRUE(MergeText(object, "Night",
                          List(Thread("'N' PlacementOrder='After' PlacementIndex='D' PlacementFeature='Day'") +
                               Thread("'B' PlacementOrder='Before' PlacementIndex='A' PlacementFeature='Base'") +
                               Thread("'A' MergeAction='Clear'") + Thread("'D' MergeAction='Replace'"))));
    EXPECT_TRUE(recorder.issues.empty());
    ThreadChildListType& list = *object.GetThreadChildList("L");
    ASSERT_EQ(Threads(list), "D N B A");
    EXPECT_EQ(list.GetChildThread("D")->GetFeatureID(), "Night"); // it added what stands there now
    EXPECT_EQ(list.GetChildThread("N")->GetFeatureID(), "Night");
    EXPECT_EQ(list.GetChildThread("N")->GetMergeAttributes(), " and @FeatureID='Night' ");
    for (TypedDataContainer* const kept :
         {static_cast<TypedDataContainer*>(list.GetChildThread("A")), static_cast<TypedDataContainer*>(&list),
          static_cast<TypedDataContainer*>(&object)}) {
        EXPECT_EQ(kept->GetFeatureID(), "Base");
        EXPECT_EQ(kept->GetMergeAttributes(), " and @FeatureID='Night' ");
    }
    ASSERT_TRUE(MergeText(object, "Late", "<LoadConfig><ThreadChildList UniqueName='M'/></LoadConfig>"));
    EXPECT_EQ(object.GetThreadChildList("M")->GetFeatureID(), "Late");
    EXPECT_EQ(object.GetThreadChildList("M")->GetContainerName(), "ThreadChildList");
}

TEST(MergeControl, BelowSomethingNewWordsAreReportedAndWhatBearsThemIsLeftOut) {
    const std::string inside =
        "<StateTable InitialState='i' %><State Name='S' MergeAction='Add'/>"
        "<State Name='T' MergeAction='Remove'/><State Name='U' PlacementOrder='First'/>"
        "<State Name='V'><PreStateTrigger MergeAction='Replace'><ActionRef>r</ActionRef>"
        "</PreStateTrigger><Doc MergeAction='Clear'>d</Doc></State>"
        "<State Name='W' MergeAction='Merge'>\n<PostStateTrigger><ActionRef MergeAction='Remove'>"
        "c</ActionRef></PostStateTrigger></State>"
        "</StateTable>";
    for (const bool isThere : {false, true}) {
        StateProcessingRootType root(false);
        ASSERT_TRUE(LoadText(root, isThere ? "<StateProcessingRoot><StateTable/></StateProcessingRoot>"
                                           : "<StateProcessingRoot/>"));
        IssueRecorder recorder;
        std::string over = inside;
        over.replace(over.find('%'), 1, isThere ? "MergeAction='Replace'" : "");
        ASSERT_TRUE(MergeText(root, "F", "<StateProcessingRoot>" + over + "</StateProcessingRoot>"));
        StateTableType& table = *root.GetStateTable();
        ASSERT_EQ(table.GetStateLength(), 3);
        EXPECT_EQ(table.GetState(1)->GetName(), "V");
        EXPECT_EQ(table.GetState(1)->GetPreStateTrigger(), nullptr);
        EXPECT_EQ(table.GetState(1)->GetDocLength(), 0);
        EXPECT_EQ(table.GetState(2)->GetPostStateTrigger()->GetActionRef(), "c");
        ASSERT_EQ(recorder.issues.size(), 5U);
        EXPECT_EQ(
            recorder.issues[0].ErrorText,
            "State of feature \"F\": MergeAction=\"Remove\" is not possible on what is loaded as part of something "
            "new, expected Merge or Add");
        EXPECT_EQ(recorder.issues[4].Line, 2U);
        EXPECT_EQ(recorder.issues[4].Column, 19U);
    }
    StateProcessingRootType plain(false); // no merge: the attributes are strangers
    IssueRecorder recorder;
    std::string text = inside;
    ASSERT_TRUE(LoadText(plain, "<StateProcessingRoot>" + text.erase(text.find('%'), 1) + "</StateProcessingRoot>"));
    EXPECT_EQ(plain.GetStateTable()->GetStateLength(), 5);
    EXPECT_TRUE(recorder.issues.empty());
}

/// A host's class that does something of its own to list and source while a merge walks them.
class MeddlingList : public ThreadChildListType {
    using EntryMap = Zelvon::SyncMap<zelString, TypedDataContainer*>;
    using Entries = std::vector<TypedDataContainer*>;

public:
    MeddlingList() : ThreadChildListType(false) {}
    bool MergeElement(zelString feature, EntryMap& map, Entries& entries, XMLDataWrapper* source,
                      TypedDataContainer* fresh, zelString key, zelString keyName, zelString name) override {
        const bool success =
            ThreadChildListType::MergeElement(feature, map, entries, source, fresh, key, keyName, name);
        if (key == "B") {
            EXPECT_NE(source->GetDOMNode(false, false), nullptr); // from here on the source is a DOM
            RemoveChildThread("C", "");
            auto* const own = new ChildThreadType(false);
            own->SetUniqueName("Own");
            AddNewChildThread(own, "Own");
        }
        return success;
    }
};

TEST(MergeControl, ListThatIsChangedByOthersDuringTheWalkStaysWhole) {
    MeddlingList list;
    ASSERT_TRUE(LoadText(list, "<ThreadChildList>" + Thread("'A'") + Thread("'B'") + Thread("'C'") + Thread("'D'") +
                                   "</ThreadChildList>"));
    ASSERT_TRUE(MergeText(
        list, "F",
        "<ThreadChildList>" + Thread("'D' PlacementOrder='First'") + Thread("'B' MergeAction='Remove'") +
            Thread("'E' PlacementOrder='Before' PlacementIndex='Own'") + "<DataStorageContainer/></ThreadChildList>"));
    EXPECT_EQ(Threads(list), "D A E Own");
    EXPECT_EQ(list.GetDataStorageContainerLength(), 1);
}

TEST(MergeControl, EntryUnderTwoKeysGoesOnceAndWithBoth) {
    for (const std::string action : {"Remove", "Replace"}) {
        ThreadChildListType list(false);
        ASSERT_TRUE(LoadText(list, "<ThreadChildList><ChildThread UniqueName='A'/></ThreadChildList>"));
        list.AddNewChildThread(list.GetChildThread("A"), "Alias");
        list.AddNewChildThread(new ChildThreadType(false), "Z");
        IssueRecorder recorder;
        ASSERT_TRUE(MergeText(list, "F",
                              "<ThreadChildList>" + Thread("'A' MergeAction='" + action + "'") +
                                  Thread("'Alias' MergeAction='Clear'") + "</ThreadChildList>"));
        EXPECT_EQ(recorder.issues.size(), 1U); // the other key led to what is gone
        EXPECT_EQ(list.GetChildThread("Alias"), nullptr);
        EXPECT_EQ(list.GetChildThread("A") != nullptr, action == "Replace");
        EXPECT_EQ(list.GetChildThreadLength(), action == "Replace" ? 3 : 1);
        EXPECT_EQ(list.GetChildThread(list.GetChildThreadLength() - 1), list.GetChildThread("Z"));
    }
}

TEST(MergeControl, MergeElementByItselfIsDoneWhenItReturns) {
    ThreadChildListType list(false);
    Zelvon::SyncMap<zelString, TypedDataContainer*> map;
    std::vector<TypedDataContainer*> entries;
    XMLDataWrapper source;
    ASSERT_TRUE(source.LoadXMLText("<L>" + Thread("'A'") + Thread("'B' PlacementOrder='First'") +
                                       Thread("'A' MergeAction='Replace'") + Thread("'B' MergeAction='Remove'") +
                                       "</L>",
                                   false));
    const auto merge = [&](int position) {
        EXPECT_TRUE(source.LoadNodeList("ChildThread", "q", 0));
        EXPECT_NE(source.SelectNodeListItem(position, "q"), nullptr);
        const bool success =
            list.MergeElement("F", map, entries, &source, new ChildThreadType(false),
                              source.GetStringValue("@UniqueName", false), "UniqueName", "ChildThread");
        source.SetCurrentNode(nullptr);
        return success;
    };
    MergeJournal journal; // takes part, with paths below the object
    const MergeJournal::Recording recording(journal);
    ASSERT_TRUE(merge(0) && merge(1));
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0], map.contents().at("B"));
    EXPECT_EQ(journal.At(0).Path, "ChildThread[UniqueName=A]");
    EXPECT_EQ(journal.At(0).FeatureID, "F");
    TypedDataContainer* const before = entries[1];
    ASSERT_TRUE(merge(2) && merge(3));
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(map.contents().size(), 1U);
    EXPECT_EQ(entries[0], map.contents().at("A"));
    EXPECT_NE(entries[0], before);
    XMLDataWrapper empty;
    IssueRecorder recorder;
    EXPECT_FALSE(list.MergeElement("F", map, entries, &empty, new ChildThreadType(false), "K", "UniqueName", "X"));
    EXPECT_EQ(list.GetLastError(), "MergeSource Not Loaded");
    map.clearMap(true);
}

} // namespace
