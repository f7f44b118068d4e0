#include "Robustness/HostileDocuments.h"
#include "Robustness/HostileTexts.h"
#include "Robustness/Sizes.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace Robustness {

namespace {

using namespace std::literals;

/// Makes the text that a line of HostileDocuments.txt describes; the first lines there tell the language.
class Maker {
public:
    Maker(std::string_view text, std::size_t size, const std::string& folder)
        : m_rest(text), m_size(size), m_folder(folder) {}

    /// Up to the closing brace, or to the end.
    std::string Make() {
        std::string made;
        while (!m_rest.empty() && m_rest.front() != '}') {
            const char letter = Take();
            made += letter == '\\' ? std::string(1, Escaped()) : letter == '{' ? Braces() : std::string(1, letter);
        }
        return made;
    }

private:
    char Take() {
        const char letter = m_rest.at(0);
        m_rest.remove_prefix(1);
        return letter;
    }

    char Escaped() {
        const char letter = Take();
        if (letter == 'x') {
            const int code = std::stoi(std::string(m_rest.substr(0, 2)), nullptr, 16);
            m_rest.remove_prefix(2);
            return static_cast<char>(code);
        }
        constexpr std::string_view letters = "ntrbf0";
        const std::size_t which = letters.find(letter);
        return which == letters.npos ? letter : "\n\t\r\b\f\0"[which];
    }

    /// Behind the opening brace.
    std::string Braces() {
        const std::size_t length = m_rest.find_first_of("}:*#") + (m_rest.starts_with("alike148:") ? 1 : 0);
        const std::string head(m_rest.substr(0, length));
        m_rest.remove_prefix(length);
        const char kind = Take();
        std::string made;
        if (kind == '#') {
            made = Numbered(head);
        } else if (kind == '*') {
            made = Repeat(Make(), head == "N" ? m_size : std::stoul(head));
        } else if (kind == ':') {
            const std::string inside = Make();
            made = head == "value" ? InValue(inside) : head == "root" ? InRoot(inside) : InTag(inside);
        } else {
            return head == "folder" ? m_folder : head == "canary" ? std::string(kCanary) : "<?xml version='1.0'?>\n";
        }
        Take(); // the closing brace
        return made;
    }

    std::string Numbered(const std::string& head) {
        const bool isAlike = head.starts_with("alike");
        const std::size_t count = isAlike || head == "N" ? m_size : std::stoul(head);
        std::vector<std::string> names;
        if (isAlike && head.size() == 7) {
            names = CollidingByFactor(count, static_cast<unsigned>(std::stoul(head.substr(5))));
        } else if (isAlike) {
            names = CollidingByStandardHash(count, head.substr(5));
        }
        const std::string piece = Make();
        return Join(count, [&](std::size_t number) {
            std::string made = piece;
            for (std::size_t at = made.find('$'); at != made.npos; at = made.find('$', at + 1)) {
                const bool isNext = made.compare(at, 2, "$+") == 0;
                made.replace(at, isNext ? 2 : 1, isAlike ? names[number] : std::to_string(number + (isNext ? 1 : 0)));
            }
            return made;
        });
    }

    static std::string InValue(const std::string& inside) {
        return "<TranslationConfig><TranslationText><TranslationKeyMap><Translation LookupData='k'><ResultValue>\n" +
               inside + "</ResultValue></Translation></TranslationKeyMap></TranslationText></TranslationConfig>";
    }
    static std::string InRoot(const std::string& inside) {
        return "<TranslationConfig>\n" + inside +
               "<TranslationText><TranslationKeyMap language='v'/></TranslationText></TranslationConfig>";
    }
    static std::string InTag(const std::string& inside) {
        return "<TranslationConfig><TranslationText><TranslationKeyMap language='v'/></TranslationText><stranger\n" +
               inside + "/></TranslationConfig>";
    }

    std::string_view m_rest;
    std::size_t m_size;
    const std::string& m_folder;
};

/// Without the blanks around it.
std::string Cell(std::istream& line) {
    std::string cell;
    std::getline(line, cell, '|');
    const std::size_t begin = std::min(cell.find_first_not_of(' '), cell.size());
    return cell.substr(begin, cell.find_last_not_of(' ') + 1 - begin);
}

HostileDocument Read(const std::string& row, const std::string& folder) {
    HostileDocument document;
    std::istringstream cells(row);
    document.name = Cell(cells);
    std::istringstream options(Cell(cells));
    document.refusal = Maker(Cell(cells), 0, folder).Make();
    for (std::string option; options >> option;) {
        if (const std::size_t slash = option.find('/'); slash != option.npos) {
            document.small = std::stoul(option);
            document.full = std::stoul(option.substr(slash + 1));
        } else if (option == "bomb") {
            document.mostMegabytes = kBombMegabytes;
        } else if (option == "lifted") {
            document.lifted = true;
        } else if (!option.starts_with("tag@")) {
            document.root = option;
        } else if (FullSizes()) {
            document.refusal = option.substr(4) + ": a tag has too many bytes, the limit is 16777216; raise "
                                                  "LoadLimits::bytesPerTag";
        }
    }
    std::string text;
    std::getline(cells, text);
    text.erase(0, text.starts_with(' ') ? 1 : 0);
    document.text = [text, folder](std::size_t size) { return Maker(text, size, folder).Make(); };
    return document;
}

} // namespace

HostileDocuments DocumentsOf(std::string_view group, const std::string& folder) {
    std::ifstream file(FRAMEWORK_HOSTILE_DOCUMENTS, std::ios::binary);
    HostileDocuments documents;
    bool isIn = false;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("== ")) {
            isIn = line.substr(3) == group;
        } else if (isIn && !line.empty() && line.front() != '#') {
            documents.push_back(Read(line, folder));
        }
    }
    if (documents.empty()) {
        throw std::runtime_error("no hostile documents of the group " + std::string(group));
    }
    return documents;
}

} // namespace Robustness
