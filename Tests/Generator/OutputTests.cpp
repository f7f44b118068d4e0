#include "Generator/RunGenerator.h"

namespace Framework {
namespace {

namespace fs = std::filesystem;

const fs::path kCases = FRAMEWORK_CASES_FOLDER;

/// What is checked in is what the generator makes; the output of a failure ends in the command that mends it.
TEST(Output, CheckedInFilesAreWhatTheSchemaSays) {
    const CommandResult classes = RunGenerator(FRAMEWORK_SCHEMA_FOLDER, FRAMEWORK_GENERATED_FOLDER, "--check");
    EXPECT_EQ(classes.exitCode, 0) << classes.output;
    const CommandResult cases = RunGenerator(kCases / "Schema", kCases / "Generated", "--check");
    EXPECT_EQ(cases.exitCode, 0) << cases.output;
}

/// The cases hold names long enough to be wrapped in every way.
TEST(Output, HasTheLayoutOfTheFormatter) {
    for (const fs::path& folder : {fs::path(FRAMEWORK_GENERATED_FOLDER), kCases / "Generated"}) {
        const CommandResult result =
            RunCommand("cd " + Quoted(folder) + " && clang-format --style=file --dry-run -Werror *.h *.cpp");
        EXPECT_EQ(result.exitCode, 0) << result.output;
    }
}

TEST(Output, OnlyWhatChangedIsWritten) {
    const TemporaryFolder folder;
    ASSERT_EQ(RunGenerator(kCases / "Schema", folder / "out").exitCode, 0);
    const fs::path kept = folder / "out/EmptyType.h";
    const fs::path changed = folder / "out/EmptyType.cpp";
    const fs::path stray = folder / "out/Notes.txt";
    const fs::path left = folder / "out/GoneType.h";
    const fs::file_time_type longAgo = fs::last_write_time(kept) - std::chrono::hours(1);
    fs::last_write_time(kept, longAgo);
    WriteText(changed, "changed by hand");
    WriteText(stray, "somebody's notes");
    WriteText(left, ReadText(kept));

    const CommandResult check = RunGenerator(kCases / "Schema", folder / "out", "--check");
    EXPECT_EQ(check.exitCode, 1);
    EXPECT_EQ(check.output, "differs: EmptyType.cpp\n"
                            "no longer generated: GoneType.h\n"
                            "not generated: Notes.txt\n"
                            "mend with: " FRAMEWORK_CONTAINER_GENERATOR " " +
                                (kCases / "Schema").string() + " " + (folder / "out").string() + "\n");
    EXPECT_EQ(ReadText(changed), "changed by hand") << "--check must not write";

    const CommandResult mend = RunGenerator(kCases / "Schema", folder / "out");
    EXPECT_EQ(mend.exitCode, 0);
    EXPECT_EQ(mend.output, "not generated, left alone: Notes.txt\n");
    EXPECT_EQ(ReadText(changed), ReadText(kCases / "Generated" / "EmptyType.cpp"));
    EXPECT_EQ(fs::last_write_time(kept), longAgo);
    EXPECT_EQ(ReadText(stray), "somebody's notes");
    EXPECT_FALSE(fs::exists(left));
}

/// Neither the place of the folders nor the order of declarations within a file may show.
TEST(Output, FollowsFromTheDeclarationsAlone) {
    const TemporaryFolder folder;
    fs::copy(kCases / "Schema", folder / "elsewhere");
    const fs::path parents = folder / "elsewhere/Parents.xsd";
    std::string text = ReadText(parents);
    const std::string type = "  <xs:complexType name=\"EmptyType\" fdc:element=\"Empty\">\n"
                             "    <xs:attributeGroup ref=\"MergeControl\"/>\n"
                             "  </xs:complexType>\n";
    const std::size_t position = text.find(type);
    ASSERT_NE(position, std::string::npos);
    text.erase(position, type.size());
    text.insert(text.find("  <xs:complexType"), type);
    WriteText(parents, text);
    fs::copy(kCases / "Generated", folder / "out");
    const CommandResult check = RunGenerator(folder / "elsewhere", folder / "out", "--check");
    EXPECT_EQ(check.exitCode, 0) << check.output;
}

CommandResult Validate(const fs::path& schema, const fs::path& document) {
    return RunCommand("xmllint --noout --schema " + Quoted(fs::path(FRAMEWORK_SCHEMA_FOLDER) / schema) + " " +
                      Quoted(document));
}

TEST(Output, SchemaTellsDocumentsApart) {
    const struct {
        const char* document;
        bool isValid;
    } cases[] = {
        {"<CommConfig/>", true},
        {"<CommConfig FeatureID='A'><CommEntry name='b' MergeAction='Remove'/></CommConfig>", true},
        {"<CommConfig><CommEntry><Parameters><Mode/></Parameters></CommEntry></CommConfig>", true}, // an unset word
        {"<CommConfig><CommEntry><Parameters><Mode>CLIENT</Mode></Parameters></CommEntry></CommConfig>", true},
        {"<CommConfig><CommEntry><Parameters><Mode>Client</Mode></Parameters></CommEntry></CommConfig>", false},
        {"<CommConfig><CommEntry><Parameters><Port>x</Port></Parameters></CommEntry></CommConfig>", false},
        {"<CommConfig><CommEntry nmae='b'/></CommConfig>", false},
        {"<CommConfig><CommEntry MergeAction='Delete'/></CommConfig>", false},
        {"<CommConfig><CommEntry><Paramters/></CommEntry></CommConfig>", false},
        {"<CommEntry/>", false},
    };
    const TemporaryFolder folder;
    for (const auto& [document, isValid] : cases) {
        WriteText(folder / "document.xml", document);
        EXPECT_EQ(Validate("CommConfig.xsd", folder / "document.xml").exitCode == 0, isValid) << document;
    }
}

} // namespace
} // namespace Framework
