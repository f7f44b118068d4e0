#include "Seeds.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <sstream>

#include "Containers/Sample.h"
#include "Files.h"
#include "Framework/ContainerCatalog.h"

namespace Fuzz {

namespace {

namespace fs = std::filesystem;

/// Large inputs make few runs: what they hold, smaller ones hold together.
constexpr std::size_t kLongestDocument = 5'000;

/// The files of a folder that is there, by name; hidden ones are not inputs.
std::vector<Seed> FilesIn(const fs::path& folder) {
    std::vector<Seed> files;
    if (fs::exists(folder)) {
        for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
            const std::string name = entry.path().filename();
            if (entry.is_regular_file() && name.front() != '.') {
                files.push_back({name, Framework::ReadText(entry.path())});
            }
        }
    }
    std::sort(files.begin(), files.end(), [](const Seed& left, const Seed& right) { return left.name < right.name; });
    return files;
}

std::vector<Seed> Examples() {
    std::vector<Seed> examples = FilesIn(FRAMEWORK_EXAMPLES);
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

std::vector<Seed> Documents() {
    std::vector<Seed> seeds = Examples();
    for (const CatalogClass& type : ContainerCatalog::Classes()) {
        if (const auto text = MadeUp(type, 1, 1)) {
            seeds.push_back({"made-" + std::string(type.Name()), *text});
        }
    }
    return seeds;
}

std::vector<Seed> Merges() {
    std::vector<Seed> seeds;
    const std::vector<Seed> examples = Examples();
    for (const Seed& base : examples) {
        const std::string start = base.name.substr(0, base.name.rfind("xml")); // of the names of its overrides
        for (const Seed& override : examples) {
            if (override.name.starts_with(start) && override.name != base.name) {
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

} // namespace

std::vector<Seed> SeedsOf(const Target& target) {
    std::vector<Seed> seeds = target.name == "Load"    ? Documents()
                              : target.name == "Merge" ? Merges()
                                                       : std::vector<Seed>();
    for (const Seed& file : FilesIn(fs::path(FRAMEWORK_FUZZ_FOLDER) / "Seeds" / target.name)) {
        if (file.name.ends_with(".lines")) {
            const std::vector<Seed> lines = LinesOf(file);
            seeds.insert(seeds.end(), lines.begin(), lines.end());
        } else {
            seeds.push_back(file);
        }
    }
    for (const Seed& file : FilesIn(fs::path(FRAMEWORK_FUZZ_FOLDER) / "Inputs" / target.name)) {
        seeds.push_back({"input-" + file.name, file.bytes});
    }
    return seeds;
}

} // namespace Fuzz
