// A program of a user: it sees only what the installed package gives.

#include <FrameworkDataContainers/ChildThreadType.h>
#include <FrameworkDataContainers/LoadConfigType.h>
#include <FrameworkDataContainers/ThreadChildListType.h>

#include <iostream>
#include <string>

int main(int argc, char* argv[]) {
    if (argc != 2) {
        std::cerr << "usage: Consumer <load document>\n";
        return 2;
    }
    LoadConfigType config(false);
    if (!config.LoadFromFile(nullptr, argv[1], false)) {
        const std::string error = config.GetLastError();
        std::cerr << error << '\n';
        return 1;
    }
    ThreadChildListType* devices = config.GetThreadChildList("Devices");
    if (devices == nullptr || devices->GetChildThreadLength() != 1) {
        std::cerr << "the list Devices with its one thread is not there\n";
        return 1;
    }
    const std::string library = devices->GetChildThread(0)->GetLibraryPath();
    std::cout << config.GetThreadChildListLength() << " thread lists, Devices loads " << library << '\n';
    return config.GetThreadChildListLength() == 2 && library == "libScannerDevice.so" ? 0 : 1;
}
