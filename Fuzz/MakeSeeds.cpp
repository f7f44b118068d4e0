// Writes what `./fuzz` starts from: MakeSeeds <folder> makes <folder>/<target>/.

#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "Seeds.h"

namespace {

void WriteText(const std::filesystem::path& path, const std::string& text) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << text;
    if (!file.flush()) {
        throw std::runtime_error("cannot write " + path.string());
    }
}

void WriteSeeds(const std::filesystem::path& folder) {
    for (const Fuzz::Target& target : Fuzz::Targets()) {
        const std::string name(target.name);
        std::filesystem::create_directories(folder / name);
        for (const Fuzz::Seed& seed : Fuzz::SeedsOf(target)) {
            WriteText(folder / name / seed.name, seed.bytes);
        }
    }
}

} // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        std::cerr << "usage: MakeSeeds <folder>\n";
        return 2;
    }
    try {
        WriteSeeds(arguments[1]);
    } catch (const std::exception& failure) {
        std::cerr << "MakeSeeds: " << failure.what() << '\n';
        return 1;
    }
    return 0;
}
