// Writes what `./fuzz` starts from: MakeSeeds <folder> makes <folder>/<target>/.

#include <filesystem>

#include "Files.h"
#include "Seeds.h"

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        return 2;
    }
    for (const Fuzz::Target& target : Fuzz::Targets()) {
        const std::filesystem::path folder = std::filesystem::path(arguments[1]) / target.name;
        std::filesystem::create_directories(folder);
        for (const Fuzz::Seed& seed : Fuzz::SeedsOf(target)) {
            Framework::WriteText(folder / seed.name, seed.bytes);
        }
    }
    return 0;
}
