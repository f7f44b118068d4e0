// The journal of merges: its entries alone make the merged tree of the base, and they know who set each value.

#include "Containers/AppliedJournal.h"
#include "Containers/OverrideWriter.h"

#include "FrameworkDataContainers/FrameworkDataContainers.h"

namespace {

using Action = MergeJournal::Action;
using Conflict = MergeJournal::Conflict;
using Entry = MergeJournal::Entry;
using Outcome = MergeJournal::Outcome;
using Writer = MergeJournal::Writer;

/// What stands in a text at a place.
std::string_view At(std::string_view text, const DocumentPlace& place) {
    for (unsigned int line = 1; line < place.Line && !text.empty(); ++line) {
        text.remove_prefix(std::min(text.find('\n'), text.size() - 1) + 1);
    }
    unsigned int column = 1;
    while (column < place.Column && !text.empty()) {
        text.remove_prefix(1);
        const bool isInside = !text.empty() && (text[0] & 0xC0) == 0x80; // of a code point
        column += isInside ? 0 : 1;
    }
    return text;
}

/// An edit stands at the element or the attribute of its name; that an attribute is absent stands at the element.
void ExpectStandsAtItsName(const DocumentPlace& place, const std::string& name, std::string_view text,
                           bool mayBeAbsent) {
    const std::string_view there = At(text, place);
    const bool isElement = there.starts_with("<" + name) && there.find_first_of(" >/", 1) == name.size() + 1;
    EXPECT_TRUE(place.IsKnown() && (isElement || there.starts_with(name + "=\"") || (mayBeAbsent && there[0] == '<')))
        << name << " at " << place.Line << ":" << place.Column << " stands " << there.substr(0, 40);
}

using Values = std::map<std::string, std::string>; ///< texts by path

Values ValuesOf(const Samples::Sample& sample, bool all) {
    Values values;
    Samples::ForEachPart(sample, "", [&](const auto& path, const Samples::FieldSample* field, const auto& text) {
        if (field != nullptr && (all || field->present || field->field.IsList())) {
            values[path] = text;
        }
    });
    return values;
}

/// A tree into which the overrides of several features are merged, one after the other.
struct Merges {
    Merges(CatalogClass type, const std::string& xml) : object(type.Create(false)), base(xml) {
        EXPECT_TRUE(LoadText(*object, base)) << object->GetLastError();
    }

    void Merge(const std::string& feature, const std::string& xml) {
        const MergeJournal::Recording recording(journal);
        MergeText(*object, feature, xml);
        features.push_back(feature);
    }

    std::unique_ptr<TypedDataContainer> object;
    std::string base;
    MergeJournal journal;
    std::vector<std::string> features;
};

/// Who gave a value what it has, against its texts after the load and after each merge.
void CheckOrigin(const Merges& merges, const std::vector<Values>& states, const std::string& path) {
    const auto textAfter = [&](std::size_t merge) {
        const auto found = states[merge].find(path);
        return found == states[merge].end() ? std::optional<std::string>() : found->second;
    };
    std::size_t lastChange = merges.features.size();
    while (lastChange > 0 && textAfter(lastChange) == textAfter(lastChange - 1)) {
        --lastChange;
    }
    const Writer origin = merges.journal.OriginOf(*merges.object, path);
    const auto feature = std::find(merges.features.begin(), merges.features.end(), origin.FeatureID);
    EXPECT_EQ(origin.Value, *textAfter(merges.features.size()));
    // What gave the same once more may count, and so may what holds the value and is new.
    EXPECT_GE(feature == merges.features.end() ? 0 : feature - merges.features.begin() + 1, lastChange);
}

/// All who wrote a value, against the entries about it and what the base document gives.
void CheckWriters(const Merges& merges, const Values& given, const std::string& path, std::string_view name) {
    std::vector<std::size_t> edits, listed; // of the value itself
    bool isTouched = false;                 // it, or what holds it
    for (std::size_t number = 0; number < merges.journal.Size(); ++number) {
        const Entry entry = merges.journal.At(number);
        const bool isEdit = !entry.IsContainer && entry.Result != Outcome::Unchanged && entry.Result != Outcome::Moved;
        if (!entry.Problem.has_value() && entry.Path == path && isEdit && entry.Cause.empty()) {
            edits.push_back(number);
        }
        isTouched |= entry.Path.empty() || entry.Path == path || path.starts_with(entry.Path + "/");
    }
    const std::vector<Writer> writers = merges.journal.WritersOf(*merges.object, path);
    const Writer origin = merges.journal.OriginOf(*merges.object, path);
    ASSERT_FALSE(writers.empty());
    EXPECT_TRUE(isTouched || (writers.size() == 1 && origin.Who == writers[0].Who));
    EXPECT_EQ(writers[0].Who == Writer::Kind::Base, given.contains(path));
    if (writers[0].Who == Writer::Kind::Base) {
        EXPECT_EQ(writers[0].Value, given.at(path));
        ExpectStandsAtItsName(writers[0].Place, std::string(name), merges.base, false);
    }
    for (const Writer& writer : writers) {
        EXPECT_EQ(writer.Who == Writer::Kind::Feature, writer.Entry.has_value());
        EXPECT_TRUE(!writer.Wins || (writer.Who == origin.Who && writer.Entry == origin.Entry));
        if (!writer.Entry.has_value()) {
            continue;
        }
        const Entry entry = merges.journal.At(*writer.Entry);
        EXPECT_EQ(writer.FeatureID, entry.FeatureID);
        if (entry.Path != path) {
            EXPECT_TRUE(entry.IsContainer && (entry.Path.empty() || path.starts_with(entry.Path + "/")));
        } else if (entry.Result != Outcome::Unchanged) {
            listed.push_back(*writer.Entry);
        }
    }
    EXPECT_EQ(listed, edits);
}

/// As a text, of which a failure shows what differs.
std::string Text(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\n";
    }
    return text;
}

/// Which outcomes of which actions came up.
struct Variety {
    std::set<Outcome> outcomes;
    std::set<Action> actions;
};

/// Merges an override, and does to the model what the journal says of it.
void MergeAndApply(Merges& merges, AppliedJournal& applied, const std::string& feature, const std::string& xml,
                   Variety& variety) {
    const std::string root = merges.object->GetContainerName();
    std::size_t number = merges.journal.Size();
    merges.Merge(feature, xml);
    for (; number < merges.journal.Size(); ++number) {
        const Entry entry = merges.journal.At(number);
        EXPECT_EQ(entry.FeatureID, feature);
        variety.outcomes.insert(entry.Result);
        variety.actions.insert(entry.Asked);
        if (!entry.Problem.has_value()) {
            ExpectStandsAtItsName(entry.Place, entry.Path.empty() ? root : std::string(entry.Field), xml,
                                  entry.Result == Outcome::Changed);
            applied.Apply(number, entry);
        }
    }
    EXPECT_EQ(Text(Samples::Lines(applied.tree)), Text(Samples::Lines(*merges.object)));
}

/// Some bases hold elements twice, some have children that no document holds: there the model does not know who gave
/// what at first.
void CheckRandomMerges(CatalogClass type, unsigned seed, Variety& variety) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    Samples::Random random(seed);
    const std::string name(type.ElementName());
    const Samples::Sample base = Samples::Make(type, name, random);
    const bool hasRepeats = seed % 4 == 3, hasMade = seed % 3 == 0;
    Merges merges(type,
                  hasRepeats ? Samples::ToXmlWithRepeats(base, random) : Samples::ToXml(base, random, seed % 2 == 0));
    for (const CatalogField& field : type.Fields()) {
        if (hasMade && field.GetForm() == CatalogField::Child) {
            field.MakeChild(*merges.object);
        }
    }
    AppliedJournal applied(*merges.object);
    std::vector<Values> states{ValuesOf(applied.tree, true)};
    for (const std::string feature : {"Night", "Coupons", "Loyalty"}) {
        const int firstKey = 1 + static_cast<int>(random() % 3);
        const std::string xml = OverrideWriter(random).Write(Samples::Make(type, name, random, firstKey));
        MergeAndApply(merges, applied, feature, xml, variety);
        states.push_back(ValuesOf(applied.tree, true));
        ASSERT_FALSE(testing::Test::HasFailure()) << merges.base << xml;
    }
    EXPECT_TRUE(merges.journal.IsComplete());
    std::size_t turn = seed;
    const Values given = ValuesOf(base, false);
    Samples::ForEachPart(applied.tree, "", [&](const auto& path, const Samples::FieldSample* field, const auto&) {
        if (!hasRepeats && !hasMade && field != nullptr && turn++ % 8 == 0) {
            SCOPED_TRACE(path);
            CheckOrigin(merges, states, path);
            CheckWriters(merges, given, path, field->field.Name());
        }
    });
    for (const auto& [path, text] : states[0]) {
        if (!hasRepeats && !hasMade && !states.back().contains(path)) {
            const std::vector<Writer> writers = merges.journal.WritersOf(*merges.object, path);
            EXPECT_TRUE(!writers.empty() && writers.back().IsRemoval && writers.back().Wins) << path;
        }
    }
}

TEST(Journal, EntriesMakeTheMergedTreeOfTheBaseAndKnowWhoSetEachValue) {
    const IssueRecorder quiet;
    Variety variety;
    ForEveryClass([&variety](CatalogClass type) {
        for (unsigned seed = 1; seed <= 12 && !testing::Test::HasFailure(); ++seed) {
            CheckRandomMerges(type, seed, variety);
        }
    });
    EXPECT_EQ(variety.outcomes.size(), 8U); // all there are
    EXPECT_EQ(variety.actions.size(), 6U);
}

/// Everything about the entries but their places and their order: a DOM has attributes in an order of its own.
std::vector<std::string> Described(const MergeJournal& journal) {
    std::vector<std::string> entries;
    for (std::size_t i = 0; i < journal.Size(); ++i) {
        const Entry entry = journal.At(i);
        entries.push_back(entry.FeatureID + "|" + std::string(ActionName(entry.Asked)) + "|" + entry.Path + "|" +
                          entry.Field + "|" + std::string(OutcomeName(entry.Result)) + "|" + entry.OldValue + "|" +
                          entry.NewValue + "|" + entry.Cause);
        if (entry.Problem.has_value()) {
            entries.back() += "|" + std::string(FindingName(entry.Problem->Code)) + "|" + entry.Problem->Text;
        }
    }
    std::sort(entries.begin(), entries.end());
    return entries;
}

TEST(Journal, OfADomHasTheSameEntriesWithoutPlaces) {
    ForEveryClass([](CatalogClass type) {
        Samples::Random random(7);
        const std::string name(type.ElementName());
        const std::string base = SampleText(type, 7);
        const std::string text = OverrideWriter(random).Write(Samples::Make(type, name, random, 2));
        Merges fromText(type, base), fromDom(type, base);
        fromText.Merge("Night", text);
        {
            XMLDataWrapper dom;
            ASSERT_TRUE(dom.LoadXMLText(text, false));
            const IssueRecorder quiet;
            const MergeJournal::Recording recording(fromDom.journal);
            fromDom.object->MergeFromDOMNode(nullptr, "Night", dom.GetDOMNode(true, false));
        }
        EXPECT_EQ(Text(Described(fromDom.journal)), Text(Described(fromText.journal)));
        for (std::size_t i = 0; i < fromDom.journal.Size(); ++i) {
            EXPECT_FALSE(fromDom.journal.At(i).Place.IsKnown());
        }
    });
}

/// A host's class makes its entries through the virtual operations.
class HostList : public ThreadChildListType {
    class Part : public DataStorageContainerType {
    public:
        Part() : DataStorageContainerType(false) {}
    };

public:
    HostList() : ThreadChildListType(false) {}
    void AddDataStorageContainer(XMLDataWrapper* data, XalanNode* node) override {
        auto* const part = new Part;
        AddNewDataStorageContainer(part);
        EXPECT_TRUE(part->SetContainedDataPtr(data, node, false, true));
    }
};

TEST(Journal, OfAHostsClassHasTheSameEntries) {
    HostList host;
    ThreadChildListType generated(false);
    MergeJournal ofHost, ofGenerated;
    for (const auto& [object, journal] :
         std::map<TypedDataContainer*, MergeJournal*>{{&host, &ofHost}, {&generated, &ofGenerated}}) {
        const MergeJournal::Recording recording(*journal);
        ASSERT_TRUE(
            MergeText(*object, "Night",
                      "<ThreadChildList><ChildThread UniqueName='A'/><DataStorageContainer><LoadPath>a</LoadPath>"
                      "<LoadPath>b</LoadPath></DataStorageContainer></ThreadChildList>"));
    }
    EXPECT_EQ(Text(Described(ofHost)), Text(Described(ofGenerated)));
    EXPECT_GE(ofHost.Size(), 5U);
}

/// Of values that stand twice the last counts.
const char* const threads =
    "<LoadConfig>\n<ThreadChildList UniqueName='L'>\n<ChildThread UniqueName='A'><LibraryPath>x</LibraryPath>"
    "<LibraryPath>a</LibraryPath></ChildThread>\n<ChildThread UniqueName='B'/></ThreadChildList></LoadConfig>";

std::string Thread(const std::string& words, const std::string& path = "") {
    const std::string inside = path.empty() ? "" : "<LibraryPath>" + path + "</LibraryPath>";
    return "<LoadConfig><ThreadChildList UniqueName='L'>\n<ChildThread UniqueName=" + words + ">" + inside +
           "</ChildThread></ThreadChildList></LoadConfig>";
}

/// "Day LibraryPath", with the key for an object: "Day A".
std::string Named(const MergeJournal& journal, std::size_t number) {
    const Entry entry = journal.At(number);
    const std::string path = entry.Path, key = path.substr(path.find_last_of('=') + 1);
    return entry.FeatureID + " " + (path.ends_with(']') ? key.substr(0, key.size() - 1) : std::string(entry.Field));
}

std::set<std::string> DisputesIn(const MergeJournal& journal) {
    std::set<std::string> disputes;
    for (const Conflict& conflict : journal.Conflicts()) {
        const char* const kinds[] = {"both give: ", "gone: ", "back: "};
        disputes.insert(kinds[static_cast<int>(conflict.What)] + Named(journal, conflict.First) + ", " +
                        Named(journal, conflict.Second));
    }
    for (const MergeJournal::Lost& edit : journal.WithoutEffect()) {
        disputes.insert("lost: " + Named(journal, edit.Entry) +
                        (edit.By.has_value() ? ", " + Named(journal, *edit.By) : std::string()));
    }
    return disputes;
}

TEST(Journal, TellsConflictsAndEditsWithoutEffect) {
    using Override = std::pair<const char*, std::string>;
    const auto edit = [](const char* feature, const char* value) { return Override(feature, Thread("'A'", value)); };
    const auto order = [](const char* feature, const std::string& words) {
        return Override(feature, Thread("'A' " + words));
    };
    const struct {
        std::vector<Override> overrides;
        std::set<std::string> disputes;
    } cases[] = {
        {{edit("Day", "d"), edit("Night", "n"), edit("Late", "l")},
         {"both give: Day LibraryPath, Night LibraryPath", "lost: Day LibraryPath, Night LibraryPath",
          "both give: Night LibraryPath, Late LibraryPath", "lost: Night LibraryPath, Late LibraryPath"}},
        {{edit("Day", "d"), edit("Day", "n")}, {}},
        {{edit("Day", "d"), edit("Night", "d")}, {"lost: Night LibraryPath"}},
        {{edit("Day", "a")}, {"lost: Day LibraryPath"}}, // the base has it
        {{edit("Day", "d"), {"Night", Thread("'B'", "n")}}, {}},
        {{edit("Day", "d"), order("Night", "MergeAction='Remove'")},
         {"gone: Day LibraryPath, Night A", "lost: Day LibraryPath, Night A"}},
        {{edit("Day", "d"), order("Night", "MergeAction='Replace'")},
         {"gone: Day LibraryPath, Night A", "lost: Day LibraryPath, Night A"}},
        {{edit("Day", "d"), order("Night", "MergeAction='Clear'")},
         {"gone: Day LibraryPath, Night A", "lost: Day LibraryPath, Night A"}},
        {{order("Day", "ConfigValue='c'"), order("Night", "MergeAction='Clear'")}, {}}, // attributes stay
        {{order("Day", "MergeAction='Remove'"), order("Night", "")}, {"back: Day A, Night A", "lost: Day A, Night A"}},
        {{order("Day", "PlacementOrder='Last'"), order("Night", "PlacementOrder='First'")},
         {"both give: Day A, Night A", "lost: Day A, Night A"}},
        {{order("Day", "MergeAction='Add'"), {"Night", Thread("'X' MergeAction='Clear'")}},
         {"lost: Day A", "lost: Night X"}}, // refused
    };
    for (const auto& each : cases) {
        Merges merges(ContainerCatalog::FindRoot("LoadConfig"), threads);
        for (const auto& [feature, xml] : each.overrides) {
            merges.Merge(feature, xml);
        }
        EXPECT_EQ(DisputesIn(merges.journal), each.disputes) << each.overrides.back().second;
    }
}

TEST(Journal, WritersOfAValueTellItsWholeStory) {
    Merges merges(ContainerCatalog::FindRoot("LoadConfig"), threads);
    const zelString path = "ThreadChildList[UniqueName=L]/ChildThread[UniqueName=A]/LibraryPath";
    merges.Merge("Day", Thread("'A'", "d"));
    merges.Merge("Night", Thread("'A' MergeAction='Remove'"));
    merges.Merge("Late", Thread("'A'", "l"));
    merges.Merge("Last", Thread("'A' MergeAction='Clear'"));
    const std::vector<Writer> writers = merges.journal.WritersOf(*merges.object, path);
    ASSERT_EQ(writers.size(), 5U);
    EXPECT_EQ(writers[0].Who, Writer::Kind::Base);
    EXPECT_EQ(writers[0].Value, "a");
    EXPECT_TRUE(At(threads, writers[0].Place).starts_with("<LibraryPath>a"));
    EXPECT_EQ(writers[1].FeatureID, "Day");
    EXPECT_EQ(writers[1].Value, "d");
    EXPECT_TRUE(writers[2].IsRemoval && !writers[1].IsRemoval);
    EXPECT_EQ(writers[3].Value, "l");
    EXPECT_TRUE(writers[4].IsReset && writers[4].Wins && !writers[3].Wins && !writers[3].IsReset);
    EXPECT_EQ(writers[4].Place.Line, 2U);
    merges.Merge("End", Thread("'A' MergeAction='Remove'"));
    const std::vector<Writer> gone = merges.journal.WritersOf(*merges.object, path);
    ASSERT_EQ(gone.size(), 6U); // it was in the tree
    EXPECT_TRUE(gone[5].IsRemoval);
    for (const char* const none :
         {"", "ThreadChildList[UniqueName=L]", "Nothing", "ThreadChildList[UniqueName=X]/UniqueName",
          "ThreadChildList[UniqueName=", "ThreadChildList[1]/UniqueName/"}) {
        EXPECT_TRUE(merges.journal.WritersOf(*merges.object, none).empty()) << none;
    }
}

/// Whoever reads a field of it by name asks for its class.
class CountingEntry : public StateActionRespType {
public:
    explicit CountingEntry(int result) : StateActionRespType(false) { SetResult(result); }
    zelString GetBaseType() override {
        ++asked;
        return StateActionRespType::GetBaseType();
    }

    static inline long asked = 0;
};

TEST(Journal, FindsAnEntryByTheNumberThatItsKeyIsReadAs) {
    const auto path = [](int number) {
        return zelString("PostActionResp[Result=" + std::to_string(number) + "]/ActionRef");
    };
    Merges merges(ContainerCatalog::FindClass("ActionRespType"),
                  "<ActionResp>\n<PostActionResp Result='007'><ActionRef>a</ActionRef></PostActionResp></ActionResp>");
    merges.Merge("Day", "<ActionResp MergeAction='Replace'>"
                        "<PostActionResp Result='+7'><ActionRef>b</ActionRef></PostActionResp></ActionResp>");
    const std::vector<Writer> writers = merges.journal.WritersOf(*merges.object, path(7));
    ASSERT_GE(writers.size(), 2U);
    EXPECT_TRUE(writers.back().Wins && writers.back().Value == "b");
    EXPECT_EQ(writers[0].Value, "a");
    EXPECT_TRUE(At(merges.base, writers[0].Place).starts_with("<ActionRef>a"));

    // A list is not gone through for every entry that somebody asks about.
    constexpr int count = 300;
    const MergeJournal journal;
    ActionRespType list(true);
    for (int i = 1; i <= count; ++i) {
        list.AddNewPostActionResp(new CountingEntry(i), ("0" + std::to_string(i)).c_str());
    }
    CountingEntry::asked = 0;
    for (int i = 1; i <= count; ++i) {
        ASSERT_EQ(journal.WritersOf(list, path(i)).size(), 1U) << i;
        ASSERT_TRUE(journal.WritersOf(list, path(-i)).empty()) << i;
    }
    EXPECT_LT(CountingEntry::asked, 10 * count);
    list.ClearPostActionResp();
    EXPECT_TRUE(journal.WritersOf(list, path(1)).empty());
}

TEST(Journal, KeepsWhatWasReadWhateverBecomesOfTheDocuments) {
    LoadConfigType config(false);
    XMLDataWrapper base, source;
    ASSERT_TRUE(base.LoadXMLText(threads, false) && source.LoadXMLText(Thread("'A'", "s"), false));
    ASSERT_TRUE(config.LoadFromDataPacket(nullptr, &base, false));
    MergeJournal journal;
    {
        const MergeJournal::Recording recording(journal);
        ASSERT_TRUE(config.MergeFromDataPacket(nullptr, "Night", &source, false));
    }
    const zelString path = "ThreadChildList[UniqueName=L]/ChildThread[UniqueName=A]/LibraryPath";
    const auto expectKept = [&] {
        const std::vector<Writer> writers = journal.WritersOf(config, path);
        ASSERT_EQ(writers.size(), 2U);
        EXPECT_EQ(writers[0].Value, "a");
        EXPECT_TRUE(At(threads, writers[0].Place).starts_with("<LibraryPath>a"));
        EXPECT_EQ(writers[1].Value, "s");
        EXPECT_TRUE(writers[1].Wins);
    };
    ASSERT_TRUE(source.SetQueryValue("ThreadChildList/ChildThread/LibraryPath", zelString("longer"), false));
    ASSERT_TRUE(config.UpdateContainedData()) << config.GetLastError();
    EXPECT_NE(base.GetXMLText().find("<LibraryPath>s"), std::string::npos);
    expectKept();
    ASSERT_NE(source.GetDOMNode(true, false), nullptr);
    ASSERT_TRUE(source.LoadXMLText("<other/>", false) && base.LoadXMLText("<other/>", false));
    expectKept();
}

TEST(Journal, TellsOfAnOverrideOfWhichNothingCanBeMerged) {
    XMLDataWrapper nothing, other;
    ASSERT_TRUE(other.LoadXMLText("<Other/>", true));
    using Merge = std::function<bool(TypedDataContainer&)>;
    const std::pair<const char*, Merge> merges[] = {
        {"Night", [](auto& object) { return object.MergeFromFile(nullptr, "nowhere/Night.xml"); }},
        {"", [](auto& object) { return object.MergeFromFile(nullptr, nullptr); }},
        {"Store", [](auto& object) { return object.MergeFromTemplate(nullptr, "Store", "LoadConfig"); }},
        {"Model", [](auto& object) { return object.MergeFromModel(nullptr, "Model", "LoadConfig"); }},
        {"Dom", [](auto& object) { return object.MergeFromDOMNode(nullptr, "Dom", nullptr); }},
        {"Packet", [&](auto& object) { return object.MergeFromDataPacket(nullptr, "Packet", &nothing, false); }},
        {"Other", [&](auto& object) { return object.MergeFromDataPacket(nullptr, "Other", &other, false); }},
    };
    for (const auto& [feature, merge] : merges) {
        SCOPED_TRACE(feature);
        LoadConfigType config(false);
        ASSERT_TRUE(LoadText(config, threads));
        const IssueRecorder log;
        EXPECT_FALSE(merge(config));
        const std::size_t unwatched = log.issues.size();
        EXPECT_LE(unwatched, 1U);
        MergeJournal journal;
        {
            const MergeJournal::Recording recording(journal);
            EXPECT_FALSE(merge(config));
        }
        ASSERT_EQ(journal.Problems(), std::vector<std::size_t>{0});
        EXPECT_EQ(journal.EntriesOf(feature).size(), 1U);
        const Entry entry = journal.At(0);
        EXPECT_EQ(entry.Result, Outcome::Refused);
        EXPECT_EQ(entry.Path, "");
        EXPECT_EQ(entry.Problem->Code, FindingCode::NotLoaded);
        EXPECT_EQ(entry.Problem->Text, config.GetLastError());
        EXPECT_FALSE(entry.Cause.empty());
        MergeJournal::SetStrict(true);
        EXPECT_FALSE(merge(config));
        MergeJournal::SetStrict(false);
        EXPECT_EQ(log.issues.size(), unwatched + 2);
    }
}

TEST(Journal, RecordsWhatIsMergedWhileItIsInstalledAndOnlyThat) {
    Merges merges(ContainerCatalog::FindRoot("LoadConfig"), threads);
    merges.Merge("Day", Thread("'A'", "d"));
    const std::size_t size = merges.journal.Size();
    ASSERT_GT(size, 0U);
    MergeJournal inner;
    {
        const MergeJournal::Recording outer(merges.journal);
        {
            const MergeJournal::Recording recording(inner);
            ASSERT_TRUE(MergeText(*merges.object, "Night", Thread("'A'", "n")));
        }
        EXPECT_EQ(merges.journal.Size(), size);
        ASSERT_TRUE(MergeText(*merges.object, "Night", Thread("'C'", "c")));
    }
    ASSERT_TRUE(MergeText(*merges.object, "Late", Thread("'A'", "l")));
    const std::vector<std::size_t> added = merges.journal.EntriesOf("Night");
    EXPECT_EQ(added.size(), merges.journal.Size() - size);
    ASSERT_FALSE(added.empty());
    EXPECT_EQ(added[0], size);
    EXPECT_EQ(merges.journal.EntriesOf("Day").size(), size);
    EXPECT_TRUE(merges.journal.EntriesOf("Late").empty());
    ASSERT_GT(inner.Size(), 0U);
    EXPECT_EQ(inner.EntriesOf("Night").size(), inner.Size());
    EXPECT_EQ(inner.At(inner.Size()).Path, "");
    inner.Clear();
    EXPECT_EQ(inner.Size(), 0U);
    EXPECT_EQ(inner.At(0).NewValue, "");
    EXPECT_TRUE(inner.IsComplete());
}

} // namespace
