#include <map>
#include <vector>

#include <nlohmann/json.hpp>

#include "Containers/Examples.h"
#include "Containers/Values.h"
#include "Framework/MergeJournal.h"
#include "LanedocRuns.h"

namespace {

using Json = nlohmann::json;

class LanedocExplain : public LanedocRuns {
protected:
    void SetUp() override {
        LanedocRuns::SetUp();
        Put("base.xml", Table("<State Name='A' BaseState='X'><Doc>one</Doc></State><State Name='B'/>"));
        Put("day.xml", Table("<State Name='A' BaseState='Y'/><State Name='C' BaseState='Q' Transient='true'/>"));
        Put("night.xml", Table("<State Name='A' BaseState='Z'/>\n<State Name='C' MergeAction='Remove'/>"));
        Put("bad.xml", Table("<State Name='A' MergeAction='Add'/>\n<State Name='Z' MergeAction='Remove'/>"));
    }

    static std::string Table(const std::string& states) {
        return "<StateProcessingRoot>\n<StateTable>\n" + states + "\n</StateTable></StateProcessingRoot>\n";
    }

    static std::string ArgumentsOf(const Example& example) {
        std::string arguments = Framework::Quoted(example.document);
        for (const std::filesystem::path& change : example.overrides) {
            arguments += " " + Framework::Quoted(change);
        }
        return arguments;
    }

    static Json RunJson(const std::string& arguments) {
        const Result result = Run(arguments);
        EXPECT_EQ(result.errors, "") << arguments;
        Json json = Json::parse(result.out, nullptr, false);
        EXPECT_EQ(json.value("format", 0), 1) << arguments;
        return json;
    }
};

TEST_F(LanedocExplain, BlamesOfEveryValueWhomTheJournalOfTheMergesNames) {
    using Writer = MergeJournal::Writer;
    const std::map<Writer::Kind, std::string> names = {
        {Writer::Kind::Default, "default"}, {Writer::Kind::Base, "base"}, {Writer::Kind::Feature, "feature"}};
    ForEveryExample([&](CatalogClass type, const Example& example) {
        const std::unique_ptr<TypedDataContainer> tree = type.Create(false);
        ASSERT_TRUE(tree->LoadFromFile(nullptr, example.document.c_str(), false));
        MergeJournal journal;
        const MergeJournal::Recording recording(journal);
        for (const std::filesystem::path& change : example.overrides) {
            ASSERT_TRUE(tree->MergeFromFile(nullptr, change.c_str()));
        }
        const Json values = RunJson("blame --quiet --format json " + ArgumentsOf(example)).at("values");
        EXPECT_EQ(values.size(), ValuesOf(*tree).size());
        for (const Json& value : values) {
            SCOPED_TRACE(value);
            const Writer origin = journal.OriginOf(*tree, value.at("path").get<std::string>());
            EXPECT_EQ(value.at("value"), std::string(origin.Value));
            EXPECT_EQ(value.at("who"), names.at(origin.Who));
            EXPECT_EQ(value.at("feature").is_null(), origin.FeatureID.empty());
            EXPECT_EQ(value.at("line").is_null(), !origin.Place.IsKnown());
            EXPECT_TRUE(value.at("line").is_null() ||
                        (value.at("line") == origin.Place.Line && value.at("column") == origin.Place.Column));
            EXPECT_EQ(value.at("isReset"), origin.IsReset);
        }
    });
}

TEST_F(LanedocExplain, ExplainsRefusalsRemovalsAndParts) {
    const std::string all = "explain --quiet base.xml day.xml night.xml bad.xml --path ";
    const Result value = Run(all + "StateTable/State[Name=A]/@BaseState 2>/dev/null");
    EXPECT_EQ(value.code, 0);
    EXPECT_EQ(value.out, R"(StateTable/State[Name=A]/BaseState is "Z"
  base.xml:3:17   base   "X"
  day.xml:3:17    day    "Y"
* night.xml:3:17  night  "Z"
)");
    const Result container = Run(all + "StateTable/State[Name=A] 2>/dev/null");
    EXPECT_EQ(container.code, 0);
    EXPECT_EQ(container.out, R"(StateTable/State[Name=A]
  bad.xml:3:1  bad  refused: MergeAction="Add": the entry is there already
)");
    const Result removed = Run(all + "StateTable/State[Name=C]/BaseState 2>/dev/null");
    EXPECT_EQ(removed.code, 1);
    EXPECT_EQ(removed.out, R"(StateTable/State[Name=C]/BaseState is not there
  day.xml:3:48   day    "Q"
* night.xml:4:1  night  removed
)");
    EXPECT_TRUE(Holds(Run(all + "StateTable/State").out, R"(
  day.xml:3:32   day    added StateTable/State[Name=C]
  night.xml:4:1  night  removed StateTable/State[Name=C]
)"));
    Put("doc.xml", Table("<State Name='A'><Doc Index='1' MergeAction='Add'>no</Doc></State>"));
    Put("late.xml", Table("<State Name='A'><Doc Index='1'>two</Doc></State>"));
    EXPECT_EQ(Run("explain base.xml doc.xml late.xml --path StateTable/State[Name=A]/Doc[1]").out,
              R"(StateTable/State[Name=A]/Doc[Index=1] is "two"
  base.xml:3:31  base  "one"
  doc.xml:3:17   doc   refused: MergeAction="Add": the entry is there already
* late.xml:3:17  late  "two"
)");
    EXPECT_EQ(Run("blame --quiet --no-defaults base.xml day.xml | cut -f 1,2,4").out,
              "base.xml:3:31\tBase\tone\nbase.xml:3:8\tBase\tA\nday.xml:3:17\tday\tY\nbase.xml:3:60\tBase\tB\n"
              "day.xml:3:39\tday\tC\nday.xml:3:62\tday\ttrue\nday.xml:3:48\tday\tQ\n");
    EXPECT_EQ(Run("blame base.xml day.xml night.xml --feature day --quiet").out, "");
}

TEST_F(LanedocExplain, TellsConflictsAndHeedsThePolicy) {
    const std::string merge = "merge base.xml day.xml night.xml -o out.xml ";
    const Result warned = Run(merge);
    EXPECT_EQ(warned.code, 0);
    EXPECT_EQ(
        WithoutExcerpts(warned.errors),
        R"(night.xml:3:17: warning: StateTable/State[Name=A]/BaseState is set by two features: "night" wins over "day" and sets it to "Z" [conflict]
day.xml:3:17: note: feature "day" sets it to "Y"
base.xml:3:17: note: the base has "X"
help: lanedoc explain base.xml day.xml night.xml --path 'StateTable/State[Name=A]/BaseState'
night.xml:4:1: warning: StateTable/State[Name=C] is edited by "day", and then feature "night" removes it [conflict]
day.xml:3:32: note: feature "day" adds it: StateTable/State[Name=C]
help: lanedoc explain base.xml day.xml night.xml --path 'StateTable/State[Name=C]'
2 warnings
)");
    EXPECT_EQ(Run(merge + "--on-conflict last").errors, "");
    EXPECT_EQ(Run(merge + "--quiet").errors, "");
    EXPECT_EQ(Get("out.xml"), Run("merge -q base.xml day.xml night.xml").out);
    const Result refused = Run("merge base.xml day.xml night.xml -o never.xml --quiet --on-conflict error");
    EXPECT_EQ(refused.code, 4);
    EXPECT_TRUE(Holds(refused.errors, "nothing is written: 2 problems")) << refused.errors;
    EXPECT_EQ(Get("never.xml"), "");
    EXPECT_EQ(Run("merge base.xml day.xml -o out.xml --on-conflict error").code, 0);
    EXPECT_TRUE(Holds(Run("merge base.xml night.xml day.xml -o out.xml --keep-going").errors, "[missing-target]"));
}

TEST_F(LanedocExplain, ReportsEveryEdit) {
    const std::string merge = "merge -q base.xml day.xml night.xml bad.xml ";
    EXPECT_EQ(Run(merge + "-o out.xml --report report.json").code, 4);
    const Json report = Json::parse(Get("report.json"));
    EXPECT_EQ(report.at("format"), 1);
    EXPECT_EQ(report.at("refused"), 2);
    std::vector<Json> entries;
    for (const Json& change : report.at("overrides")) {
        for (const Json& entry : change.at("entries")) {
            EXPECT_EQ(entry.at("entry"), entries.size());
            EXPECT_EQ(entry.at("file"), change.at("document"));
            entries.push_back(entry);
        }
    }
    const auto isBaseState = [](const Json& entry) { return entry.at("path") == "StateTable/State[Name=A]/BaseState"; };
    const auto edit = std::find_if(entries.begin(), entries.end(), isBaseState);
    ASSERT_NE(edit, entries.end());
    EXPECT_EQ(edit->at("outcome"), "changed");
    EXPECT_EQ(edit->at("old"), "X");
    EXPECT_EQ(edit->at("new"), "Y");
    EXPECT_EQ(edit->at("column"), 17);
    EXPECT_EQ(entries.back().at("problem").at("code"), "missing-target");
    ASSERT_EQ(report.at("conflicts").size(), 2U);
    EXPECT_EQ(report.at("conflicts")[0].at("kind"), "values");
    EXPECT_EQ(entries[report.at("conflicts")[0].at("first")], *edit);
    const Json undone = {{"entry", edit->at("entry")}, {"by", report.at("conflicts")[0].at("second")}};
    EXPECT_EQ(std::count(report.at("withoutEffect").begin(), report.at("withoutEffect").end(), undone), 1);

    const std::string line = "  changed    night.xml:3:17  StateTable/State[Name=A]/BaseState  \"Y\" -> \"Z\"\n";
    EXPECT_TRUE(Holds(Run(merge + "-o out.xml --report -").out, line));
    const Result plan = Run("plan -q base.xml day.xml night.xml");
    EXPECT_EQ(plan.code, 1);
    EXPECT_TRUE(Holds(plan.out, line)) << plan.out;
    EXPECT_FALSE(Holds(plan.out, "unchanged")) << plan.out;
    EXPECT_EQ(Run("plan base.xml base.xml").code, 0);
    EXPECT_EQ(Run("plan base.xml bad.xml").code, 4);
}

TEST_F(LanedocExplain, PutsProvenanceInAndNothingElse) {
    const std::regex comments("\n *<!-- [^\n]* -->(?=\n)");
    const std::regex attributes(" (xmlns:prov|prov:[^=\"]+)=\"[^\"]*\"");
    const auto check = [&](const std::string& root, const std::string& arguments) {
        Put("empty.xml", "<" + root + "/>");
        SCOPED_TRACE(arguments);
        const std::string plain = Run("merge -q " + arguments).out;
        std::size_t set = 0;
        const Json blame = RunJson("blame -q --format json " + arguments);
        for (const Json& value : blame.at("values")) {
            set += value.at("who") == "feature" && !value.at("isReset") ? 1U : 0U;
        }
        const auto count = [](const std::string& text, const std::regex& added) {
            return static_cast<std::size_t>(
                std::distance(std::sregex_iterator(text.begin(), text.end(), added), std::sregex_iterator()));
        };
        ASSERT_EQ(Run("merge -q " + arguments + " --provenance comments -o comments.xml").code, 0);
        EXPECT_EQ(count(Get("comments.xml"), comments), set);
        EXPECT_EQ(std::regex_replace(Get("comments.xml"), comments, ""), plain);
        ASSERT_EQ(Run("merge -q " + arguments + " --provenance attributes -o attributes.xml").code, 0);
        EXPECT_EQ(count(Get("attributes.xml"), attributes) - count(Get("attributes.xml"), std::regex(" prov:at=")),
                  set + 1);
        EXPECT_EQ(std::regex_replace(Get("attributes.xml"), attributes, ""), plain);
        for (const char* const file : {"comments.xml", "attributes.xml"}) {
            EXPECT_EQ(Run(std::string("merge -q ") + file + " empty.xml").out, plain) << file;
        }
    };
    ForEveryExample([&](CatalogClass type, const Example& example) {
        check(std::string(type.ElementName()), ArgumentsOf(example));
    });

    Put("a--b.xml",
        "<StateProcessingRoot Version='-&lt;--&amp;\"--->' FeatureID='&lt;--&quot;&amp;'><StateTable><State "
        "Name='A'><Doc>two---</Doc></State></StateTable></StateProcessingRoot>");
    check("StateProcessingRoot", "base.xml a--b.xml");
    EXPECT_TRUE(Holds(Get("comments.xml"), "\n<!-- @Version: \"-<- -&\\\"- - ->\" <- -\"& a- -b.xml:1:22 -->\n"))
        << Get("comments.xml");
    EXPECT_TRUE(Holds(Get("attributes.xml"), "prov:from=\"&lt;--&quot;&amp;\" prov:at=\"a--b.xml:1:"));
    const std::string noText = "\xFF\xEF\xBF\xBF.xml"; // no UTF-8, and no character of XML
    std::filesystem::copy_file("day.xml", noText);
    check("StateProcessingRoot", "base.xml " + noText);
}

} // namespace
