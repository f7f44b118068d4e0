#include "Commands.h"
#include "Containers/EveryClass.h"
#include "Containers/Examples.h"

#include "Framework/MergeJournal.h"
#include "Framework/XMLDataWrapper.h"

namespace {

namespace fs = std::filesystem;
using Framework::CommandResult;
using Framework::Quoted;
using Framework::ReadText;

/// The schema file that declares the root.
fs::path SchemaOf(CatalogClass type) {
    const std::string declaration = "\n  <xs:element name=\"" + std::string(type.ElementName()) + "\" ";
    for (const fs::directory_entry& entry : fs::directory_iterator(FRAMEWORK_SCHEMA_FOLDER)) {
        if (ReadText(entry.path()).find(declaration) != std::string::npos) {
            return entry.path();
        }
    }
    return {};
}

void ExpectValid(CatalogClass type, const fs::path& document) {
    const CommandResult result =
        Framework::RunCommand("xmllint --noout --schema " + Quoted(SchemaOf(type)) + " " + Quoted(document));
    EXPECT_EQ(result.exitCode, 0) << result.output;
}

std::unique_ptr<TypedDataContainer> LoadFile(CatalogClass type, const fs::path& path) {
    std::unique_ptr<TypedDataContainer> object = type.Create(false);
    EXPECT_TRUE(object->LoadFromFile(nullptr, path.c_str(), false)) << object->GetLastError();
    return object;
}

TEST(Examples, EveryRootHasADocumentAndAnOverride) {
    const std::map<std::string, Example> examples = Examples();
    const std::vector<std::string_view> roots = ContainerCatalog::Roots();
    EXPECT_EQ(examples.size(), roots.size());
    for (const std::string_view root : roots) {
        const auto example = examples.find(std::string(root));
        ASSERT_NE(example, examples.end()) << root;
        EXPECT_FALSE(example->second.document.empty()) << root;
        EXPECT_FALSE(example->second.overrides.empty()) << root;
    }
}

/// Other tools read the schema files too, and find nothing wrong in the documents.
TEST(Examples, AreValidAndLoadWithoutAWord) {
    ForEveryExample([](CatalogClass type, const Example& example) {
        ExpectValid(type, example.document);
        const IssueRecorder log;
        LoadFile(type, example.document);
        for (const fs::path& path : example.overrides) {
            ExpectValid(type, path);
            LoadFile(type, path);
        }
        EXPECT_TRUE(log.issues.empty()) << log.issues.front().ErrorText.c_str();
    });
}

TEST(Examples, MergeWithoutAWordAndComeBackFromTheirDump) {
    const Framework::TemporaryFolder folder;
    ForEveryExample([&folder](CatalogClass type, const Example& example) {
        const IssueRecorder log;
        MergeJournal journal; // whoever records one is told also of what a merge passes over
        const MergeJournal::Recording recording(journal);
        const std::unique_ptr<TypedDataContainer> object = LoadFile(type, example.document);
        std::vector<std::string> lines = Samples::Lines(*object);
        const fs::path dump = folder / "dump.xml";
        const auto expectDumped = [&] {
            ASSERT_TRUE(object->SaveContents(dump.c_str())) << object->GetLastError();
            EXPECT_EQ(Samples::Lines(*LoadFile(type, dump)), lines);
            ExpectValid(type, dump);
        };
        expectDumped();
        for (const fs::path& path : example.overrides) {
            SCOPED_TRACE(path.filename());
            ASSERT_TRUE(object->MergeFromFile(nullptr, path.c_str())) << object->GetLastError();
            std::vector<std::string> merged = Samples::Lines(*object);
            EXPECT_NE(merged, lines) << "the override changes nothing";
            lines = std::move(merged);
            expectDumped();
        }
        EXPECT_TRUE(log.issues.empty()) << log.issues.front().ErrorText.c_str();
    });
}

} // namespace
