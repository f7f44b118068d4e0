// Writes what `./fuzz` starts from: MakeSeeds <folder> makes <folder>/<target>/.

#include <filesystem>
#include <fstream>

#include "Seeds.h"

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        return 2;
    }
    for (const Fuzz::Target& target : Fuzz::Targets()) {
        const std::filesystem::path folder = std::filesystem::path(arguments[1]) / target.name;
        std::filesystem::create_directories(folder);
        for (const Fuzz::Seed& seed : Fuzz::SeedsOf(target)) {
            std::ofstream file(folder / seed.name, std::ios::binary);
            if (!(file << seed.bytes).flush()) {
                return 1;
            }
        }
    }
    return 0;
}
