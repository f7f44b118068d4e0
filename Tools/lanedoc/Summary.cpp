#include "Summary.h"

#include <algorithm>
#include <array>

#include "DocPath.h"

namespace Lanedoc {

namespace {

/// Characters of a value that are shown; enough to tell it, and a line stays a line.
constexpr std::size_t shownOfValue = 48;

std::string JoinSteps(const std::vector<std::string>& path, std::size_t from, std::size_t to) {
    std::string joined;
    for (std::size_t i = from; i < to; ++i) {
        joined = JoinPath(joined, path[i]);
    }
    return Printable(joined);
}

/// How many steps all differences from `begin` to `end` share, one of each left over.
std::size_t SharedSteps(const Difference* begin, const Difference* end) {
    std::size_t shared = begin->path.size() - 1;
    for (const Difference* other = begin + 1; other != end; ++other) {
        const std::size_t most = std::min(shared, other->path.size() - 1);
        const auto differing = std::mismatch(
            begin->path.begin(), begin->path.begin() + static_cast<std::ptrdiff_t>(most), other->path.begin());
        shared = static_cast<std::size_t>(differing.first - begin->path.begin());
    }
    return shared;
}

std::string Plural(std::size_t count, const std::string& noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

class SummaryPrinter {
public:
    explicit SummaryPrinter(const Style& style) : m_style(style) {}

    std::string Print(const std::string& feature, const std::vector<Difference>& differences) {
        m_text = m_style.Bold("Feature " + Printable(feature)) + "\n";
        PrintGroup(differences.data(), differences.data() + differences.size(), 0, 1);
        PrintCounts(differences);
        return std::move(m_text);
    }

private:
    /// Differences that share their first `skipped` steps. Two or more in a row that share the next one too become a
    /// group of their own, titled with all that they share.
    void PrintGroup(const Difference* begin, const Difference* end, std::size_t skipped, std::size_t depth) {
        while (begin != end) {
            const Difference* next = begin + 1;
            if (begin->path.size() > skipped + 1) {
                next = std::find_if(next, end, [&](const Difference& other) {
                    return other.path.size() <= skipped + 1 || other.path[skipped] != begin->path[skipped];
                });
            }
            if (next - begin < 2) {
                PrintDifference(*begin, skipped, depth);
            } else {
                const std::size_t shared = SharedSteps(begin, next);
                m_text.append(2 * depth, ' ');
                m_text += m_style.Bold(JoinSteps(begin->path, skipped, shared)) + "\n";
                PrintGroup(begin, next, shared, depth + 1);
            }
            begin = next;
        }
    }

    void PrintDifference(const Difference& difference, std::size_t skipped, std::size_t depth) {
        const std::string path = JoinSteps(difference.path, skipped, difference.path.size());
        const std::string indent(2 * depth, ' ');
        switch (difference.kind) {
        case Difference::Kind::Added:
            m_text += indent + m_style.Green("+ " + path) + "  " + Content(difference, difference.after);
            break;
        case Difference::Kind::Removed:
            m_text += indent + m_style.Red("- " + path) + "  " + Content(difference, difference.before);
            break;
        case Difference::Kind::Changed:
            m_text += indent + m_style.Yellow("~ " + path) + "  " + m_style.Dim(Before(difference)) + " -> " +
                      Quoted(difference.after, shownOfValue);
            break;
        case Difference::Kind::Moved:
            m_text += indent + m_style.Cyan("> " + path) + "  " +
                      m_style.Dim(difference.behind.empty() ? "moved to the front"
                                                            : "moved behind " + Printable(difference.behind));
            break;
        }
        m_text += '\n';
    }

    std::string Content(const Difference& difference, const std::string& text) const {
        return difference.isText ? Quoted(text, shownOfValue) : m_style.Dim(Plural(difference.values, "value"));
    }

    static std::string Before(const Difference& difference) {
        if (!difference.beforeIsDefault) {
            return Quoted(difference.before, shownOfValue);
        }
        return difference.before.empty() ? "(not set)" : Quoted(difference.before, shownOfValue) + " (default)";
    }

    void PrintCounts(const std::vector<Difference>& differences) {
        if (differences.empty()) {
            m_text += "  changes nothing\n";
            return;
        }
        constexpr std::array<const char*, 4> words = {"added", "removed", "changed", "moved"};
        std::array<std::size_t, 4> counts = {};
        for (const Difference& difference : differences) {
            ++counts[static_cast<std::size_t>(difference.kind)];
        }
        std::string line;
        for (std::size_t i = 0; i < words.size(); ++i) {
            if (counts[i] > 0) {
                line += (line.empty() ? "" : ", ") + std::to_string(counts[i]) + " " + words[i];
            }
        }
        m_text += "  " + m_style.Dim(line) + "\n";
    }

    const Style& m_style;
    std::string m_text;
};

} // namespace

std::string SummaryOf(const std::string& feature, const std::vector<Difference>& differences, const Style& style) {
    return SummaryPrinter(style).Print(feature, differences);
}

} // namespace Lanedoc
