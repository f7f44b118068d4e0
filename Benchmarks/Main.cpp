// Times the library and its peers on the same documents, and prints one table. See ./bench and Docs/Performance.md.
#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include <malloc.h>
#include <xercesc/util/PlatformUtils.hpp>

#include "Memory.h"
#include "Report.h"
#include "Timing.h"
#include "ValueSum.h"
#include "Works.h"

using namespace Bench;

namespace {

struct Options {
    bool isQuick = false;
    bool hasShapes = false;
    std::string filter;
    Format format = Format::Text;
};

[[noreturn]] void Usage() {
    std::cerr << "usage: ./bench [--quick | --shapes] [--filter TEXT] [--format text | markdown]\n";
    std::exit(2);
}

Options Parse(const std::vector<std::string>& words) {
    Options options;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const bool hasValue = i + 1 < words.size();
        if (words[i] == "--quick") {
            options.isQuick = true;
        } else if (words[i] == "--shapes") {
            options.hasShapes = true;
        } else if (words[i] == "--filter" && hasValue) {
            options.filter = words[++i];
        } else if (words[i] == "--format" && hasValue && (words[i + 1] == "text" || words[i + 1] == "markdown")) {
            options.format = words[++i] == "text" ? Format::Text : Format::Markdown;
        } else {
            Usage();
        }
    }
    return options;
}

/// Everyone whose content can be checked; for shapes, which the hand-written structs do not cover, ourselves and the
/// base.
Works AllWorks(bool onlyOurs) {
    Works works;
    OfferOurs(works);
    OfferXerces(works);
    if (onlyOurs) {
        std::erase_if(works.offers, [](const Offer& offer) {
            return offer.contender != ours && (offer.contender != baseContender || offer.work != loadWork);
        });
        std::erase_if(works.proofs, [](const Proof& proof) { return proof.contender != ours; });
        return works;
    }
    OfferFloors(works);
    OfferParsersAlone(works);
    OfferLibxml2(works);
    OfferPugixml(works);
    OfferXsdTree(works);
    OfferGsoap(works);
    return works;
}

/// Whoever reads less than the document holds is no peer. Ours stands first and is held to the document's own text;
/// after a merge the others are held to ours.
void Check(const Works& works, const Document& document) {
    const ValueSum all = SumOfValues(document.text);
    ValueSum merged;
    for (const Proof& proof : works.proofs) {
        if (std::ranges::count(proof.kinds, document.kind) == 0) {
            continue;
        }
        Require(SumOfValues(proof.loaded(document)) == all,
                proof.contender + " does not hold all values of " + document.name);
        if (!proof.merged || document.overrideText.empty()) {
            continue;
        }
        const ValueSum sum = SumOfValues(proof.merged(document));
        if (merged == ValueSum()) {
            merged = sum;
        }
        Require(sum == merged && !(sum == all), proof.contender + " merges " + document.name + " to something else");
    }
    std::cerr << document.name << ": " << all.count << " values in " << document.text.size()
              << " bytes, held by every contender\n";
}

/// The heap keeps what was freed, for all alike: else fresh pages from the system would be most of what is timed.
void KeepFreedMemory() {
    mallopt(M_MMAP_THRESHOLD, 1 << 30);
    mallopt(M_TRIM_THRESHOLD, 1 << 30);
    mallopt(M_TOP_PAD, 64 << 20);
}

int Run(const Options& options) {
    const Works works = AllWorks(options.hasShapes);
    const std::vector<Document> documents = options.hasShapes ? MakeShapes() : MakeWorkloads(options.isQuick);
    if (!options.hasShapes) {
        for (const Document& document : documents) {
            if (document.text.size() < 2'000'000) { // the larger ones come from the same makers
                Check(works, document);
            }
        }
    }
    Results results = TimeAll(works, documents, options.filter);
    MeasureMemory(works, documents, options.filter, results);
    PrintReport(std::cout, results, works, documents, options.format);
    return 0;
}

} // namespace

int main(int argc, char* argv[]) {
    std::vector<std::string> words(argv + 1, argv + argc);
    try {
        xercesc::XMLPlatformUtils::Initialize();
        if (!words.empty() && words[0] == memoryFlag) {
            words.erase(words.begin());
            return MeasureMemoryHere(AllWorks(false), words);
        }
        const Options options = Parse(words);
        KeepFreedMemory();
        return Run(options);
    } catch (const std::exception& error) {
        std::cerr << "Benchmarks: " << error.what() << '\n';
    }
    return 1;
}
