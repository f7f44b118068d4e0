#pragma once

#include <memory>
#include <string>
#include <utility>

#include "Binding.h"
#include "Works.h"

// What a library that reads XML into a tree, with the structs of Model.h bound to it by hand, offers. The library is
// described by a type with:
//   Tree Parse(const std::string&)  a tree that frees itself, and offers Root() for a node
//   Tree Make(Name)                 a new one with that root, and Text() for what it is as XML
// The tree lives only while the structs are filled, and its end is timed with it; the structs are freed untimed.
namespace Bench {

template <class Root, class Library> std::unique_ptr<Root> LoadModel(Library& library, const std::string& text) {
    auto root = std::make_unique<Root>();
    auto tree = library.Parse(text);
    Model::Bind(tree.Root(), *root);
    return root;
}

template <class Root, class Library> std::string WriteModel(Library& library, const Root& root) {
    auto tree = library.Make(Root::root);
    Model::Builder<decltype(tree.Root())> builder{tree.Root()};
    Model::Describe(builder, root);
    return tree.Text();
}

template <class Root, class Library> void MergeModel(Library& library, Root& root, const std::string& overrideText) {
    const auto source = LoadModel<Root>(library, overrideText);
    Model::Merger merger;
    Model::Describe(merger, root, *source);
}

/// Calls with the struct that stands for the root of a document.
template <class Call> auto WithRootOf(const Document& document, const Call& call) {
    switch (document.kind) {
    case Kind::Translations:
        return call(std::type_identity<Model::Translations>());
    case Kind::States:
        return call(std::type_identity<Model::States>());
    case Kind::Packets:
        break;
    }
    return call(std::type_identity<Model::Packet>());
}

template <class Library> class TreePeer {
public:
    static Work Load(const Document& document) {
        return WithRootOf(document, [&]<class Root>(std::type_identity<Root>) -> Work {
            auto library = std::make_shared<Library>();
            auto root = std::make_shared<std::unique_ptr<Root>>();
            return {[=] { root->reset(); }, [=, &document] { *root = LoadModel<Root>(*library, document.text); }};
        });
    }
    static Work Dump(const Document& document) {
        return WithRootOf(document, [&]<class Root>(std::type_identity<Root>) -> Work {
            auto library = std::make_shared<Library>();
            const std::shared_ptr<Root> root = LoadModel<Root>(*library, document.text);
            return {{}, [=] { Require(!WriteModel(*library, *root).empty(), "nothing written"); }};
        });
    }
    static Work Merge(const Document& document) {
        return WithRootOf(document, [&]<class Root>(std::type_identity<Root>) -> Work {
            auto library = std::make_shared<Library>();
            auto root = std::make_shared<std::unique_ptr<Root>>();
            return {[=, &document] { *root = LoadModel<Root>(*library, document.text); },
                    [=, &document] { MergeModel(*library, **root, document.overrideText); }};
        });
    }
    static Work Packets(const Document& document) {
        auto library = std::make_shared<Library>();
        return {{}, [=, &document] {
                    for (const std::string& text : document.packets) {
                        const auto packet = LoadModel<Model::Packet>(*library, text);
                        Model::Reader reader;
                        Model::Describe(reader, std::as_const(*packet));
                        Require(reader.sum > 0 && !WriteModel(*library, *packet).empty(), "a packet is empty");
                    }
                }};
    }
    static Work LookUp(const Document& document) {
        return WithRootOf(document, [&]<class Root>(std::type_identity<Root>) -> Work {
            Library library;
            const std::shared_ptr<Root> root = LoadModel<Root>(library, document.text);
            return {{}, [=] {
                        Model::Finder finder;
                        Model::Describe(finder, std::as_const(*root));
                        Require(finder.missing == 0, "an entry is not found by its key");
                    }};
        });
    }
    static std::string Loaded(const Document& document) {
        return WithRootOf(document, [&]<class Root>(std::type_identity<Root>) {
            Library library;
            return WriteModel(library, *LoadModel<Root>(library, document.text));
        });
    }
    static std::string Merged(const Document& document) {
        return WithRootOf(document, [&]<class Root>(std::type_identity<Root>) {
            Library library;
            const auto root = LoadModel<Root>(library, document.text);
            MergeModel(library, *root, document.overrideText);
            return WriteModel(library, *root);
        });
    }
    /// All that such a peer does.
    static void Offer(Works& works, const std::string& contender) {
        works.offers.push_back({loadWork, contender, allKinds, Load});
        works.offers.push_back({dumpWork, contender, documentKinds, Dump});
        works.offers.push_back({mergeWork, contender, documentKinds, Merge});
        works.offers.push_back({packetWork, contender, {Kind::Packets}, Packets});
        works.proofs.push_back({contender, allKinds, Loaded, Merged});
    }
};

} // namespace Bench
