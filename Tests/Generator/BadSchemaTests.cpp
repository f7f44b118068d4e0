#include "Generator/RunGenerator.h"

#include <set>

namespace Framework {
namespace {

namespace fs = std::filesystem;

/// Each schema in Bad holds one fault and says in its first line how it is refused: place and text.
TEST(BadSchema, IsRefusedAtItsPlace) {
    std::set<std::string> messages;
    for (const auto& entry : fs::directory_iterator(FRAMEWORK_BAD_FOLDER)) {
        const std::string name = entry.path().filename().string();
        SCOPED_TRACE(name);
        const std::string text = ReadText(entry.path());
        const std::size_t end = text.find(" -->\n");
        ASSERT_TRUE(text.starts_with("<!-- ") && end != std::string::npos);
        const std::string expected = name + ":" + text.substr(5, end - 5) + "\n";

        const TemporaryFolder folder;
        fs::create_directory(folder / "schema");
        fs::copy(fs::path(FRAMEWORK_CASES_FOLDER) / "Schema" / "Common.xsd", folder / "schema");
        fs::copy(entry.path(), folder / "schema");
        const CommandResult result = RunGenerator(folder / "schema", folder / "output");
        EXPECT_EQ(result.output, expected);
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_FALSE(fs::exists(folder / "output")) << "a refused schema must not write anything";
        messages.insert(expected.substr(expected.find(": ")));
    }
    EXPECT_GT(messages.size(), 60U) << "the folder of bad schemas is not all there";
}

TEST(BadSchema, WrongUsageIsExplained) {
    EXPECT_EQ(RunCommand(Quoted(FRAMEWORK_CONTAINER_GENERATOR)).exitCode, 2);
    EXPECT_EQ(RunGenerator("a", "b", "--chekc").exitCode, 2);
    const TemporaryFolder folder;
    const CommandResult missing = RunGenerator(folder / "none", folder / "output");
    EXPECT_EQ(missing.exitCode, 1);
    EXPECT_NE(missing.output.find("none"), std::string::npos) << missing.output;
    fs::create_directory(folder / "empty");
    EXPECT_EQ(RunGenerator(folder / "empty", folder / "output").exitCode, 1);
}

} // namespace
} // namespace Framework
