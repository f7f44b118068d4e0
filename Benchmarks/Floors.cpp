// What nobody who does a work can go below, because of the memory that it has to touch: a save gives a text as long as
// the document, and a look-up has to compare the key with the one that was kept. Their growth is the machine's.
#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "Random.h"
#include "Works.h"

using namespace Bench;

namespace {

Work OfferCopy(const Document& document) {
    const auto copy = std::make_shared<std::string>();
    return {[=] { std::string().swap(*copy); },
            [=, &document] {
                copy->assign(document.text);
                Require(copy->size() == document.text.size(), "nothing is copied");
            }};
}

/// A key as the document has it, kept once, and once more where a caller has it.
struct KeyTwice {
    std::string asked;
    const std::string* kept;
};

Work OfferComparison(const Document& document) {
    const auto kept = std::make_shared<std::vector<std::string>>();
    const std::string_view begin = "LookupData=\"";
    for (std::size_t at = document.text.find(begin); at != std::string::npos; at = document.text.find(begin, at)) {
        at += begin.size();
        kept->push_back(document.text.substr(at, document.text.find('"', at) - at));
    }
    std::vector<KeyTwice> keys;
    for (const std::string& key : *kept) {
        keys.push_back({key, &key});
    }
    Shuffle(keys);
    Require(!keys.empty(), "the document has no keys");
    return {{}, [kept, keys = std::move(keys)] {
                for (const KeyTwice& key : keys) {
                    Require(key.asked == *key.kept, "a key is not the one that was kept");
                }
            }};
}

} // namespace

void Bench::OfferFloors(Works& works) {
    works.offers.push_back({saveWork, "a copy of the text", documentKinds, OfferCopy});
    works.offers.push_back(
        {lookUpWork, "the keys compared, their places known", {Kind::Translations}, OfferComparison});
}
