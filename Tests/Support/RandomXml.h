#pragma once

#include <cstddef>
#include <random>
#include <string>
#include <vector>

namespace Framework {

/// Writes random documents together with what TreeText makes of the tree that a reader must find in them.
class RandomWriter {
public:
    explicit RandomWriter(unsigned seed) : m_random(seed) {}

    void Element(std::size_t depth) {
        const std::string name = Pick({"a", "Item", "p:q", "\xC3\xA4_1"});
        m_text += "<" + name;
        m_tree += name + "(";
        const std::size_t attributes = Below(4);
        for (std::size_t number = 0; number < attributes; ++number) {
            const std::string attribute = "k" + std::to_string(number);
            const std::string quote = Pick({"'", "\""});
            m_text += Pick({" ", "\n\t", "\r\n"}) + attribute + Pick({"=", " = ", "\r="}) + quote;
            m_tree += attribute + "=\"";
            Pieces(true);
            m_text += quote;
            m_tree += "\" ";
        }
        m_text += Pick({"", " ", "\n"});
        m_tree += ")[";
        if (Below(4) == 0) {
            m_text += "/>";
        } else {
            m_text += ">";
            Content(depth);
            m_text += "</" + name + Pick({"", " "}) + ">";
        }
        m_tree += "]";
    }

    const std::string& Text() const { return m_text; }
    const std::string& Tree() const { return m_tree; }

private:
    std::size_t Below(std::size_t count) { return m_random() % count; }
    std::string Pick(const std::vector<std::string>& choices) { return choices[Below(choices.size())]; }

    void Pieces(bool isAttribute) {
        struct Piece {
            std::string written, read, inAttribute;
        };
        static const std::vector<Piece> pieces{
            {"word", "word", "word"},
            {"plain words \xC3\xA9t\xC3\xA9", "plain words \xC3\xA9t\xC3\xA9", "plain words \xC3\xA9t\xC3\xA9"},
            {"&lt;", "<", "<"},
            {"&#10;", "\n", "\n"},
            {"\r\n", "\n", " "},
            {"\rx", "\nx", " x"},
            {"\n", "\n", " "},
            {"\t", "\t", " "},
            {"&#13;", "\r", "\r"},
            {"]", "]", "]"},
            {"&amp;", "&", "&"},
            {"&#x20AC;", "\xE2\x82\xAC", "\xE2\x82\xAC"},
            {"\xF0\x9F\x99\x82", "\xF0\x9F\x99\x82", "\xF0\x9F\x99\x82"}};
        for (std::size_t count = 1 + Below(5); count > 0; --count) {
            const Piece& piece = pieces[Below(pieces.size())];
            m_text += piece.written;
            m_tree += isAttribute ? piece.inAttribute : piece.read;
        }
    }

    void Content(std::size_t depth) {
        bool afterText = false;
        for (std::size_t count = Below(7); count > 0; --count) {
            const std::size_t choice = Below(6);
            if (choice == 0 && !afterText) {
                m_tree += "'";
                Pieces(false);
                m_tree += "'";
            } else if (choice == 1) {
                Marked("<![CDATA[", "]]>", "{", "}");
            } else if (choice == 2) {
                Marked("<!--", "-->", "!", "!");
            } else if (choice == 3) {
                Marked("<?t ", "?>", "?t ", "?");
            } else if (depth > 0) {
                Element(depth - 1);
            } else {
                continue;
            }
            afterText = choice == 0;
        }
    }

    void Marked(const std::string& opening, const std::string& closing, const std::string& before,
                const std::string& after) {
        m_text += opening;
        m_tree += before;
        for (std::size_t count = Below(3); count > 0; --count) {
            const std::size_t choice = Below(5);
            m_text += std::vector<std::string>{"x&lt;", "1\r\n2", "3\r4", "\xC3\xA4>", "some more plain words"}[choice];
            m_tree += std::vector<std::string>{"x&lt;", "1\n2", "3\n4", "\xC3\xA4>", "some more plain words"}[choice];
        }
        m_text += closing;
        m_tree += after;
    }

    std::mt19937 m_random;
    std::string m_text;
    std::string m_tree;
};

} // namespace Framework
