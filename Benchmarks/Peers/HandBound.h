#pragma once

#include <memory>
#include <string>
#include <utility>

#include "Binding.h"
#include "Peer.h"

namespace Bench {

/// A peer that reads XML into nodes, with the structs of Model.h bound to them by hand. The parser is a type with:
///   auto Parse(const std::string&)  a tree that frees itself, and offers Root() for a node
///   auto Make(Name)                 a new one with that root, and Text() for what it is as XML
/// The nodes live only while the structs are filled, and their end is timed with it.
template <class Parser> struct HandBound {
    using Translations = Model::Translations;
    using States = Model::States;
    using Packet = Model::Packet;

    template <class Root> class Tree {
    public:
        Tree(HandBound& library, const std::string& text) : m_parser(library.parser), m_root(Load(text)) {}

        std::string Text() const {
            auto tree = m_parser.Make(Root::root);
            Model::Builder<decltype(tree.Root())> builder{tree.Root()};
            Model::Describe(builder, std::as_const(*m_root));
            return tree.Text();
        }
        void Merge(const std::string& overrideText) {
            const auto source = Load(overrideText);
            Model::Merger merger;
            Model::Describe(merger, *m_root, *source);
        }
        std::size_t SumOfFields() const {
            Model::Reader reader;
            Model::Describe(reader, std::as_const(*m_root));
            return reader.sum;
        }
        std::size_t MissingKeys() const {
            Model::Finder finder;
            Model::Describe(finder, std::as_const(*m_root));
            return finder.missing;
        }

    private:
        std::unique_ptr<Root> Load(const std::string& text) {
            auto root = std::make_unique<Root>();
            auto tree = m_parser.Parse(text);
            Model::Bind(tree.Root(), *root);
            return root;
        }

        Parser& m_parser;
        std::unique_ptr<Root> m_root;
    };

    Parser parser;
};

} // namespace Bench
