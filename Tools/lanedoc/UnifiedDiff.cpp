#include "UnifiedDiff.h"

#include <algorithm>

#include "LineDiff.h"

namespace Lanedoc {

namespace {

/// The file as `patch` reads it behind "--- ": one with control characters, quotes or backslashes in quotes, one with
/// blanks ended by a tab.
std::string HeaderName(const std::string& file) {
    const auto needsEscape = [](char character) {
        return static_cast<unsigned char>(character) < 0x20 || character == 0x7F || character == '"' ||
               character == '\\';
    };
    if (std::none_of(file.begin(), file.end(), needsEscape)) {
        return file.find(' ') == std::string::npos ? file : file + '\t';
    }
    std::string quoted = "\"";
    for (const char character : file) {
        if (!needsEscape(character)) {
            quoted += character;
        } else {
            const auto byte = static_cast<unsigned char>(character);
            quoted += {'\\', static_cast<char>('0' + (byte >> 6U)), static_cast<char>('0' + ((byte >> 3U) & 7U)),
                       static_cast<char>('0' + (byte & 7U))};
        }
    }
    return quoted + '"';
}

/// `first,count` as a hunk's head has it: of no lines, the line before them.
std::string Range(std::size_t begin, std::size_t end) {
    const std::size_t count = end - begin;
    return std::to_string(count == 0 ? begin : begin + 1) + (count == 1 ? "" : "," + std::to_string(count));
}

class DiffPrinter {
public:
    DiffPrinter(std::string_view before, std::string_view after, const DiffLook& look)
        : m_old(SplitLines(before)), m_new(SplitLines(after)), m_look(look) {}

    std::string Print(const std::string& file) {
        const std::vector<LineChange> changes = CompareLines(m_old, m_new);
        if (changes.empty()) {
            return {};
        }
        const std::string name = m_look.forTerminal ? Printable(file) : HeaderName(file);
        m_text = m_look.style.Bold("--- " + name) + "\n" + m_look.style.Bold("+++ " + name) + "\n";
        for (std::size_t first = 0; first < changes.size();) {
            std::size_t last = first;
            // Changes whose lines around them would meet are shown as one.
            while (last + 1 < changes.size() &&
                   (changes[last + 1].oldBegin - changes[last].oldEnd + 1) / 2 <= m_look.context) {
                ++last;
            }
            PrintHunk(changes.data() + first, changes.data() + last + 1);
            first = last + 1;
        }
        return std::move(m_text);
    }

private:
    void PrintHunk(const LineChange* begin, const LineChange* end) {
        const LineChange& first = *begin;
        const LineChange& last = *(end - 1);
        const std::size_t ahead = std::min(m_look.context, first.oldBegin);
        const std::size_t behind = std::min(m_look.context, m_old.size() - last.oldEnd);
        m_text += m_look.style.Cyan("@@ -" + Range(first.oldBegin - ahead, last.oldEnd + behind) + " +" +
                                    Range(first.newBegin - ahead, last.newEnd + behind) + " @@") +
                  "\n";
        std::size_t oldAt = first.oldBegin - ahead;
        for (const LineChange* change = begin; change != end; ++change) {
            PrintLines(' ', m_old, oldAt, change->oldBegin);
            PrintLines('-', m_old, change->oldBegin, change->oldEnd);
            PrintLines('+', m_new, change->newBegin, change->newEnd);
            oldAt = change->oldEnd;
        }
        PrintLines(' ', m_old, oldAt, oldAt + behind);
    }

    void PrintLines(char mark, const std::vector<std::string_view>& lines, std::size_t begin, std::size_t end) {
        for (std::size_t i = begin; i < end; ++i) {
            PrintLine(mark, lines[i]);
        }
    }

    void PrintLine(char mark, std::string_view line) {
        const std::size_t length = std::min(line.find('\n'), line.size());
        const std::string shown = mark + Shown(line.substr(0, length));
        m_text += mark == '-' ? m_look.style.Red(shown) : mark == '+' ? m_look.style.Green(shown) : shown;
        m_text += length == line.size() ? "\n\\ No newline at end of file\n" : "\n";
    }

    std::string Shown(std::string_view line) const {
        if (!m_look.forTerminal) {
            return std::string(line);
        }
        // Tabs, and carriage returns before a line end, steer no terminal, and escaped they would hide the text.
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        std::string shown;
        while (true) {
            const std::size_t tab = std::min(line.find('\t'), line.size());
            shown += Printable(line.substr(0, tab));
            if (tab == line.size()) {
                return shown;
            }
            shown += '\t';
            line.remove_prefix(tab + 1);
        }
    }

    std::vector<std::string_view> m_old;
    std::vector<std::string_view> m_new;
    DiffLook m_look;
    std::string m_text;
};

} // namespace

std::string UnifiedDiff(const std::string& file, std::string_view before, std::string_view after,
                        const DiffLook& look) {
    return DiffPrinter(before, after, look).Print(file);
}

} // namespace Lanedoc
