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

/// Steps up to the outermost entry of a list, by which differences are grouped; 0 when none is on the way.
std::size_t GroupLength(const Difference& difference) {
    const auto isEntry = [](const std::string& step) { return step.find('[') != std::string::npos; };
    const auto entry = std::find_if(difference.path.begin(), difference.path.end(), isEntry);
    return entry == difference.path.end() ? 0 : static_cast<std::size_t>(entry - difference.path.begin()) + 1;
}

/// Whether the difference stands below the entry that the group is named after.
bool IsInGroup(const Difference& difference, const std::vector<std::string>& group) {
    return difference.path.size() > group.size() && std::equal(group.begin(), group.end(), difference.path.begin());
}

std::string Plural(std::size_t count, const std::string& noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

class SummaryPrinter {
public:
    explicit SummaryPrinter(const Style& style) : m_style(style) {}

    std::string Print(const std::string& feature, const std::vector<Difference>& differences) {
        m_text = m_style.Bold("Feature " + Printable(feature)) + "\n";
        std::vector<std::string> group;
        for (const Difference& difference : differences) {
            if (group.empty() || !IsInGroup(difference, group)) {
                const auto length = static_cast<std::ptrdiff_t>(GroupLength(difference));
                group.assign(difference.path.begin(), difference.path.begin() + length);
                if (IsInGroup(difference, group) && !group.empty()) {
                    m_text += "  " + m_style.Bold(JoinSteps(group, 0, group.size())) + "\n";
                } else {
                    group.clear();
                }
            }
            PrintDifference(difference, group.size());
        }
        PrintCounts(differences);
        return std::move(m_text);
    }

private:
    void PrintDifference(const Difference& difference, std::size_t skipped) {
        const std::string path = JoinSteps(difference.path, skipped, difference.path.size());
        const std::string indent(skipped == 0 ? 2 : 4, ' ');
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
