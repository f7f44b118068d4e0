#include "Summary.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "DocPath.h"

namespace Lanedoc {

namespace {

/// Characters of a value that are shown; enough to tell it, and a line stays a line.
constexpr std::size_t shownOfValue = 48;

std::string JoinSteps(const std::vector<std::string>& path, std::size_t from, std::size_t to) {
    std::string joined;
    for (std::size_t i = from; i < to; ++i) {
        joined = FieldPath::Join(joined, path[i]);
    }
    return Printable(joined);
}

/// How many steps all differences from `begin` to `end` share.
std::size_t SharedSteps(const Difference* begin, const Difference* end) {
    std::size_t shared = begin->path.size();
    for (const Difference* other = begin + 1; other != end; ++other) {
        const std::size_t most = std::min(shared, other->path.size());
        const auto differing = std::mismatch(
            begin->path.begin(), begin->path.begin() + static_cast<std::ptrdiff_t>(most), other->path.begin());
        shared = static_cast<std::size_t>(differing.first - begin->path.begin());
    }
    return shared;
}

std::string Plural(std::size_t count, const std::string& noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

/// "2 added, 1 removed"
std::string Counts(const Difference* begin, const Difference* end, std::size_t refused) {
    constexpr std::array<const char*, 6> words = {"added", "changed", "replaced", "removed", "moved", "refused"};
    std::array<std::size_t, 6> counts = {};
    for (; begin != end; ++begin) {
        ++counts[static_cast<std::size_t>(begin->kind)];
    }
    counts.back() = refused;
    std::string text;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (counts[i] > 0) {
            text += (text.empty() ? "" : ", ") + std::to_string(counts[i]) + " " + words[i];
        }
    }
    return text;
}

/// Makes one difference, a change that tells the counts, of all that share their first `depth` steps and go deeper;
/// none of what is below something replaced.
std::vector<Difference> Collapse(const std::vector<Difference>& differences, std::size_t depth) {
    std::vector<Difference> collapsed;
    const Difference* const end = differences.data() + differences.size();
    for (const Difference* begin = differences.data(); begin != end;) {
        const Difference* next = begin;
        while (next != end && next->path.size() > depth &&
               std::equal(next->path.begin(), next->path.begin() + static_cast<std::ptrdiff_t>(depth),
                          begin->path.begin())) {
            ++next;
        }
        if (next == begin) {
            collapsed.push_back(*begin++);
            continue;
        }
        const std::vector<std::string> path(begin->path.begin(),
                                            begin->path.begin() + static_cast<std::ptrdiff_t>(depth));
        const bool isTold =
            !collapsed.empty() && collapsed.back().kind == Difference::Kind::Replaced && collapsed.back().path == path;
        if (!isTold) {
            Difference& difference = collapsed.emplace_back();
            difference.path = path;
            difference.after = Counts(begin, next, 0);
        }
        begin = next;
    }
    return collapsed;
}

/// Where two texts are shown from, so that one sees what differs: 0 while that is within what is shown anyway.
std::size_t StartOfShown(std::string_view before, std::string_view after) {
    constexpr std::size_t ahead = 16;
    const auto same = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    std::size_t start = static_cast<std::size_t>(same.first - before.begin());
    if (Width(before.substr(0, start)) + ahead <= shownOfValue) {
        return 0;
    }
    start -= std::min(start, ahead);
    while (start > 0 && (static_cast<unsigned char>(before[start]) & 0xC0U) == 0x80U) {
        --start; // within a character
    }
    return start;
}

std::string Shown(std::string_view text, std::size_t from) {
    const std::string shown = Quoted(text.substr(from), shownOfValue);
    return from == 0 ? shown : "\"…" + shown.substr(1);
}

class SummaryPrinter {
public:
    explicit SummaryPrinter(const Style& style) : m_style(style) {}

    std::string Print(const FeatureReport& report, std::size_t depth) {
        m_text = m_style.Bold("Feature " + Printable(report.feature)) + m_style.Dim(", " + Printable(report.document)) +
                 "\n";
        if (report.replacesAll) {
            m_text += "  " + m_style.Magenta("* the whole document") + "  replaced\n";
        }
        const std::vector<Difference>& all = report.differences;
        const std::vector<Difference> shown = depth == 0 ? all : Collapse(all, depth);
        PrintGroup(shown.data(), shown.data() + shown.size(), 0, 1);
        for (const std::string& refusal : report.refusals) {
            m_text += "  " + m_style.Red("! refused") + "  " + Printable(refusal) + "\n";
        }
        const std::string counts = Counts(all.data(), all.data() + all.size(), report.refusals.size());
        m_text += "  " + (counts.empty() ? "changes nothing" : m_style.Dim(counts)) + "\n";
        return std::move(m_text);
    }

private:
    /// Differences that share their first `skipped` steps. Two or more in a row that share the next one too become a
    /// group of their own, titled with all that they share: that alone, or what is told of the place itself.
    void PrintGroup(const Difference* begin, const Difference* end, std::size_t skipped, std::size_t depth) {
        while (begin != end) {
            const Difference* const next = std::find_if(begin + 1, end, [&](const Difference& other) {
                return other.path.size() <= skipped || other.path[skipped] != begin->path[skipped];
            });
            if (next - begin < 2) {
                PrintDifference(*begin, skipped, depth);
                begin = next;
                continue;
            }
            const std::size_t shared = SharedSteps(begin, next);
            if (begin->path.size() > shared) {
                m_text.append(2 * depth, ' ');
                m_text += m_style.Bold(JoinSteps(begin->path, skipped, shared)) + "\n";
            }
            for (; begin != next && begin->path.size() == shared; ++begin) {
                PrintDifference(*begin, skipped, depth);
            }
            PrintGroup(begin, next, shared, depth + 1);
            begin = next;
        }
    }

    void PrintDifference(const Difference& difference, std::size_t skipped, std::size_t depth) {
        const std::string path = JoinSteps(difference.path, skipped, difference.path.size());
        m_text.append(2 * depth, ' ');
        switch (difference.kind) {
        case Difference::Kind::Added:
            m_text += m_style.Green("+ " + path) + "  " +
                      Content(difference, difference.after, difference.valuesAfter) +
                      (difference.isPlaced ? m_style.Dim(", " + PlaceBehind(difference.behindAfter)) : "");
            break;
        case Difference::Kind::Changed:
            m_text += m_style.Yellow("~ " + path) + "  " + Change(difference);
            break;
        case Difference::Kind::Replaced:
            m_text += m_style.Magenta("* " + path) + "  replaced, " + Plural(difference.valuesBefore, "value") +
                      " -> " + std::to_string(difference.valuesAfter);
            break;
        case Difference::Kind::Removed:
            m_text += m_style.Red("- " + path) + "  " + Content(difference, difference.before, difference.valuesBefore);
            break;
        case Difference::Kind::Moved:
            m_text += m_style.Cyan("> " + path) + "  moved, " + m_style.Dim(PlaceBehind(difference.behindBefore)) +
                      " -> " + PlaceBehind(difference.behindAfter);
            break;
        }
        m_text += '\n';
    }

    static std::string PlaceBehind(const std::string& step) {
        return step.empty() ? "first" : "behind " + Printable(step);
    }

    std::string Content(const Difference& difference, const std::string& text, std::size_t values) const {
        return difference.isText ? Quoted(text, shownOfValue) : m_style.Dim(Plural(values, "value"));
    }

    std::string Change(const Difference& difference) const {
        if (!difference.isText) {
            return difference.after;
        }
        const std::size_t from = StartOfShown(difference.before, difference.after);
        return m_style.Dim(Before(difference, from)) + " -> " + Shown(difference.after, from);
    }

    static std::string Before(const Difference& difference, std::size_t from) {
        if (!difference.beforeIsDefault) {
            return Shown(difference.before, from);
        }
        return difference.before.empty() ? "(not set)" : Shown(difference.before, from) + " (default)";
    }

    const Style& m_style;
    std::string m_text;
};

} // namespace

std::string SummaryOf(const FeatureReport& report, std::size_t depth, const Style& style) {
    return SummaryPrinter(style).Print(report, depth);
}

} // namespace Lanedoc
