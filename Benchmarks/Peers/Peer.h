#pragma once

#include <memory>
#include <optional>
#include <string>
#include <type_traits>

#include "Works.h"

// The works of a library that makes typed trees, by hand or by a generator. The library is described by a type with:
//   Translations, States, Packet  what stands for the roots of the documents
//   Tree<Root>                    made from the library and a text; offers Text, Merge, SumOfFields and MissingKeys
// A tree is freed before its library, and untimed.
namespace Bench {

template <class Library> class Peer {
public:
    static Work Load(const Document& document) {
        return WithRootOf(document, [&]<class Root>(std::type_identity<Root>) -> Work {
            auto held = std::make_shared<Held<Root>>();
            return {[=] { held->tree.reset(); }, [=, &document] { held->Load(document.text); }};
        });
    }
    static Work Dump(const Document& document) {
        return WithRootOf(document, [&]<class Root>(std::type_identity<Root>) -> Work {
            const auto held = Hold<Root>(document);
            return {{}, [=] { Require(!held->tree->Text().empty(), "nothing written"); }};
        });
    }
    static Work Merge(const Document& document) {
        return WithRootOf(document, [&]<class Root>(std::type_identity<Root>) -> Work {
            auto held = std::make_shared<Held<Root>>();
            return {[=, &document] { held->Load(document.text); },
                    [=, &document] { held->tree->Merge(document.overrideText); }};
        });
    }
    static Work Packets(const Document& document) {
        auto library = std::make_shared<Library>();
        return {{}, [=, &document] {
                    for (const std::string& text : document.packets) {
                        Tree<typename Library::Packet> packet(*library, text);
                        Require(packet.SumOfFields() > 0 && !packet.Text().empty(), "a packet is empty");
                    }
                }};
    }
    static Work LookUp(const Document& document) {
        return WithRootOf(document, [&]<class Root>(std::type_identity<Root>) -> Work {
            const auto held = Hold<Root>(document);
            return {{}, [=] { Require(held->tree->MissingKeys() == 0, "an entry is not found by its key"); }};
        });
    }
    static std::string Loaded(const Document& document) {
        return WithRootOf(document,
                          [&]<class Root>(std::type_identity<Root>) { return Hold<Root>(document)->tree->Text(); });
    }
    static std::string Merged(const Document& document) {
        return WithRootOf(document, [&]<class Root>(std::type_identity<Root>) {
            const auto held = Hold<Root>(document);
            held->tree->Merge(document.overrideText);
            return held->tree->Text();
        });
    }
    /// All that such a peer does, but for look-ups.
    static void Offer(Works& works, const std::string& contender) {
        works.offers.push_back({loadWork, contender, allKinds, Load});
        works.offers.push_back({dumpWork, contender, documentKinds, Dump});
        works.offers.push_back({mergeWork, contender, documentKinds, Merge});
        works.offers.push_back({packetWork, contender, {Kind::Packets}, Packets});
        works.proofs.push_back({contender, allKinds, Loaded, Merged});
    }
    static void OfferLookUp(Works& works, const std::string& contender) {
        works.offers.push_back({lookUpWork, contender, documentKinds, LookUp});
    }

private:
    template <class Root> using Tree = typename Library::template Tree<Root>;

    template <class Root> struct Held {
        Library library;
        std::optional<Tree<Root>> tree;

        void Load(const std::string& text) {
            tree.reset(); // first, as some libraries free all their trees at once
            tree.emplace(library, text);
        }
    };
    template <class Root> static std::shared_ptr<Held<Root>> Hold(const Document& document) {
        auto held = std::make_shared<Held<Root>>();
        held->Load(document.text);
        return held;
    }

    /// Calls with what stands for the root of a document.
    template <class Call> static auto WithRootOf(const Document& document, const Call& call) {
        switch (document.kind) {
        case Kind::Translations:
            return call(std::type_identity<typename Library::Translations>());
        case Kind::States:
            return call(std::type_identity<typename Library::States>());
        case Kind::Packets:
            break;
        }
        return call(std::type_identity<typename Library::Packet>());
    }
};

} // namespace Bench
