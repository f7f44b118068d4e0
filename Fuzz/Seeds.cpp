#include "Seeds.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>
#include <set>
#include <sstream>
#include <stdexcept>

#include "Containers/Sample.h"
#include "Framework/ContainerCatalog.h"
#include "Framework/XMLSupport/TextEncoding.h"

namespace Fuzz {

namespace {

namespace fs = std::filesystem;

/// Large inputs make few runs: what they hold, smaller ones hold together.
constexpr std::size_t kLongestDocument = 5'000;

const fs::path kFuzzFolder = FRAMEWORK_FUZZ_FOLDER;
const fs::path kExamples = FRAMEWORK_EXAMPLES;

std::string ReadText(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        throw std::runtime_error("cannot read " + path.string());
    }
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

/// The files of a folder that is there, by name; hidden ones are not inputs.
std::vector<Seed> FilesIn(const fs::path& folder) {
    std::vector<Seed> files;
    if (fs::exists(folder)) {
        for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
            const std::string name = entry.path().filename();
            if (entry.is_regular_file() && name.front() != '.') {
                files.push_back({name, ReadText(entry.path())});
            }
        }
    }
    std::sort(files.begin(), files.end(), [](const Seed& left, const Seed& right) { return left.name < right.name; });
    return files;
}

std::string RootOf(const Seed& example) {
    return example.name.substr(0, example.name.find('.'));
}

bool IsOverride(const Seed& example) {
    return example.name.find('.') != example.name.rfind('.');
}

std::vector<Seed> Examples() {
    std::vector<Seed> examples = FilesIn(kExamples);
    std::erase_if(examples, [](const Seed& each) {
        return !each.name.ends_with(".xml") || each.bytes.size() > kLongestDocument;
    });
    return examples;
}

/// A document of the class, of several the first that is not too large.
std::optional<std::string> MadeUp(CatalogClass type, unsigned firstSeed, int firstKey) {
    for (unsigned seed = firstSeed; seed < firstSeed + 8; ++seed) {
        Samples::Random random(seed);
        const Samples::Sample sample = Samples::Make(type, std::string(type.ElementName()), random, firstKey);
        const std::string text = Samples::ToXml(sample, random, true);
        if (text.size() <= kLongestDocument / 3) {
            return text;
        }
    }
    return std::nullopt;
}

std::vector<Seed> InOtherEncodings() {
    const std::string body = "<LoadConfig><ThreadChildList UniqueName=\"\xC3\xA9\"><ChildThread UniqueName=\"a\">"
                             "<LibraryPath>\xC3\xBC</LibraryPath></ChildThread></ThreadChildList></LoadConfig>\n";
    std::vector<Seed> seeds;
    for (const char* const name : {"UTF-16LE", "UTF-16BE", "UTF-32LE", "UTF-32BE", "UTF-8", "ISO-8859-1",
                                   "Windows-1252", "ISO-8859-15", "GB18030", "EUC-JP"}) {
        const std::string encoding = name;
        const bool hasMark = encoding.starts_with("UTF-");
        const std::string declaration = hasMark ? "" : "<?xml version=\"1.0\" encoding=\"" + encoding + "\"?>";
        if (const auto bytes = Framework::EncodeDocument(declaration + body, encoding, hasMark)) {
            seeds.push_back({"encoding-" + encoding, *bytes});
        }
    }
    return seeds;
}

std::vector<Seed> Documents() {
    std::vector<Seed> documents = Examples();
    for (const CatalogClass& type : ContainerCatalog::Classes()) {
        if (const auto text = MadeUp(type, 1, 1)) {
            documents.push_back({"made-" + std::string(type.Name()), *text});
        }
    }
    for (Seed& seed : InOtherEncodings()) {
        documents.push_back(std::move(seed));
    }
    return documents;
}

std::vector<Seed> SavedDocuments() {
    std::vector<Seed> seeds = Documents();
    for (std::size_t i = 0; i < seeds.size(); ++i) {
        const char choice = static_cast<char>('0' + i % 64); // one value here, another there
        seeds[i].bytes.insert(0, choice + std::string("new <&> text\n"));
    }
    return seeds;
}

std::vector<Seed> Merges() {
    std::vector<Seed> seeds;
    const std::vector<Seed> examples = Examples();
    for (const Seed& base : examples) {
        for (const Seed& override : examples) {
            if (!IsOverride(base) && IsOverride(override) && RootOf(base) == RootOf(override)) {
                seeds.push_back({override.name, base.bytes + "\n====\n" + override.bytes});
            }
        }
    }
    for (const CatalogClass& type : ContainerCatalog::Classes()) {
        const auto base = MadeUp(type, 1, 1);
        const auto override = MadeUp(type, 20, 2);
        if (base && override) {
            seeds.push_back({"made-" + std::string(type.Name()), *base + "\n====\n" + *override});
        }
    }
    return seeds;
}

std::vector<Seed> LinesOf(const Seed& file) {
    std::vector<Seed> seeds;
    std::istringstream lines(file.bytes);
    for (std::string line; std::getline(lines, line);) {
        seeds.push_back({file.name + "-" + std::to_string(seeds.size() + 1), line});
    }
    return seeds;
}

std::vector<Seed> Schemas() {
    const auto asInput = [](const Seed& file) { return "==== " + file.name + "\n" + file.bytes; };
    const auto withFirst = [&](const fs::path& folder, std::string_view first) {
        std::vector<Seed> files = FilesIn(folder);
        std::erase_if(files, [](const Seed& file) { return !file.name.ends_with(".xsd"); });
        std::stable_partition(files.begin(), files.end(), [first](const Seed& file) { return file.name == first; });
        return files;
    };
    std::vector<Seed> seeds;
    const std::vector<Seed> cases = withFirst(FRAMEWORK_CASES_SCHEMAS, "Common.xsd");
    const std::string common = asInput(cases.at(0)) + "\n";
    for (const Seed& file : cases) {
        seeds.push_back({"case-" + file.name, &file == cases.data() ? asInput(file) : common + asInput(file)});
    }
    for (const Seed& file : withFirst(FRAMEWORK_BAD_FOLDER, "")) {
        seeds.push_back({"bad-" + file.name, common + asInput(file)});
    }
    std::string all;
    for (const Seed& file : withFirst(FRAMEWORK_SCHEMA_FOLDER, "")) {
        all += asInput(file) + "\n";
    }
    seeds.push_back({"all", all});
    return seeds;
}

std::vector<Seed> MadeSeeds(std::string_view target) {
    return target == "Load"     ? Documents()
           : target == "Merge"  ? Merges()
           : target == "Save"   ? SavedDocuments()
           : target == "Schema" ? Schemas()
                                : std::vector<Seed>();
}

std::string Quoted(std::string_view word) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text = "\"";
    for (const char c : word) {
        const auto byte = static_cast<unsigned char>(c);
        const bool isPlain = byte > 0x20 && byte < 0x7F && c != '"' && c != '\\';
        text += isPlain ? std::string(1, c) : std::string("\\x") + digits[byte >> 4U] + digits[byte & 15U];
    }
    return text + "\"\n";
}

} // namespace

std::vector<Seed> SeedsOf(const Target& target) {
    std::vector<Seed> seeds = MadeSeeds(target.name);
    for (const Seed& file : FilesIn(kFuzzFolder / "Seeds" / target.name)) {
        if (file.name.ends_with(".lines")) {
            const std::vector<Seed> lines = LinesOf(file);
            seeds.insert(seeds.end(), lines.begin(), lines.end());
        } else {
            seeds.push_back(file);
        }
    }
    for (const Seed& file : FilesIn(kFuzzFolder / "Inputs" / target.name)) {
        seeds.push_back({"input-" + file.name, file.bytes});
    }
    return seeds;
}

std::string DictionaryOf(const Target& target) {
    const bool ofDocuments = target.name != "Paths" && target.name != "Schema";
    const std::string own = ofDocuments ? "Documents" : std::string(target.name);
    std::string text = ReadText(kFuzzFolder / "Dictionaries" / (own + ".dict"));
    if (target.name == "Paths") {
        return text;
    }
    text += target.name == "Schema" ? ReadText(kFuzzFolder / "Dictionaries" / "Documents.dict") : "";
    std::set<std::string_view> names;
    for (const CatalogClass& type : ContainerCatalog::Classes()) {
        names.insert(type.ElementName());
        for (const CatalogField& field : type.Fields()) {
            names.insert(field.Name());
        }
    }
    for (const std::string_view name : names) {
        text += ofDocuments ? Quoted(name) : "";
    }
    return text;
}

} // namespace Fuzz
