// Does one work of the library on a small document, for CheckCounts.sh to count the instructions of.
//   CountedWork load|update|merge|journal|dump FOLDER
#include <FrameworkDataContainers/FrameworkDataContainers.h>

#include <Framework/MergeJournal.h>
#include <Framework/XMLDataWrapper.h>

#include <functional>
#include <iostream>
#include <map>
#include <string>

namespace {

struct Documents {
    zelString base, override;
    XMLDataWrapper document;
    StateProcessingRootType tree{false};
};

bool Load(Documents& all) {
    return all.document.LoadXMLFile(all.base.c_str(), false) &&
           all.tree.LoadFromDataPacket(nullptr, &all.document, false);
}

bool Update(Documents& all) {
    return all.tree.UpdateContainedData();
}

bool Merge(Documents& all) {
    return all.tree.MergeFromFile(nullptr, all.override.c_str());
}

bool MergeWithJournal(Documents& all) {
    MergeJournal journal;
    const MergeJournal::Recording recording(journal);
    return Merge(all) && journal.IsComplete() && journal.Size() > 0;
}

bool Dump(Documents& all) {
    FullFunctionXMLDataWrapper output;
    DOMNode* passed = nullptr;
    return output.CreateOutputDocument("StateProcessingRoot") &&
           all.tree.DumpMergeContentsII(nullptr, &output, passed, true) && !output.GetXMLText().empty();
}

} // namespace

/// Where counting starts and ends; by its plain name the counter finds it.
extern "C" [[gnu::noinline, gnu::visibility("default")]] bool CountedWork(const std::function<bool()>& work) {
    return work();
}

int main(int argc, char* argv[]) {
    const std::map<std::string, bool (*)(Documents&)> works = {
        {"load", Load}, {"update", Update}, {"merge", Merge}, {"journal", MergeWithJournal}, {"dump", Dump}};
    const auto work = works.find(argc == 3 ? argv[1] : "");
    if (work == works.end()) {
        std::cerr << "usage: CountedWork load|update|merge|journal|dump FOLDER\n";
        return 2;
    }
    const std::string folder = std::string(argv[2]) + "/StateProcessingRoot";
    Documents all{folder + ".xml", folder + ".coupons.xml", {}, StateProcessingRootType(false)};
    // Once before, so that what the libraries do on first use is not counted.
    const bool isReady = Load(all) && Dump(all);
    const bool isDone = isReady && CountedWork([&] { return work->second(all); });
    if (!isDone) {
        std::cerr << "CountedWork: " << all.tree.GetLastError() << all.document.GetLastError() << '\n';
    }
    return isDone ? 0 : 1;
}
