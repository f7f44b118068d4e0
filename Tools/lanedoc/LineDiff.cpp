#include "LineDiff.h"

#include <algorithm>

namespace Lanedoc {

namespace {

/// Equal lines in a row after which the two texts count as being in step again.
constexpr std::size_t linesInStep = 64;

/// Changed lines after which the best way so far is taken. It bounds the time where texts have little in common.
constexpr std::size_t mostSteps = 512;

/// Greedy search for the shortest edit script, started anew wherever the texts are in step.
///
/// A way leads from the place where the texts fall out of step and takes old lines out or new lines in, one a step, and
/// passes equal lines for nothing. Ways of `steps` steps are told apart by how many of them took lines out, and only
/// the farthest way of each kind is kept, as the number of old lines it has passed.
class LineComparison {
public:
    LineComparison(const std::vector<std::string_view>& oldLines, const std::vector<std::string_view>& newLines)
        : m_old(oldLines), m_new(newLines) {}

    std::vector<LineChange> Run() {
        while (true) {
            const std::size_t equal = EqualLines(0, 0);
            m_oldAt += equal;
            m_newAt += equal;
            if (IsEnd(0, 0)) {
                return std::move(m_changes);
            }
            GetInStep();
        }
    }

private:
    static constexpr std::size_t nowhere = static_cast<std::size_t>(-1);

    /// Equal lines from so many old and new lines behind the place reached.
    std::size_t EqualLines(std::size_t oldPassed, std::size_t newPassed) const {
        const auto from = m_old.begin() + static_cast<std::ptrdiff_t>(m_oldAt + oldPassed);
        const auto end = std::mismatch(from, m_old.end(),
                                       m_new.begin() + static_cast<std::ptrdiff_t>(m_newAt + newPassed), m_new.end());
        return static_cast<std::size_t>(end.first - from);
    }

    bool IsEnd(std::size_t oldPassed, std::size_t newPassed) const {
        return m_oldAt + oldPassed == m_old.size() && m_newAt + newPassed == m_new.size();
    }

    /// New lines passed by a way that passed so many old ones: what was not taken out or in was passed in both.
    static std::size_t NewPassed(std::size_t steps, std::size_t taken, std::size_t oldPassed) {
        return oldPassed + steps - 2 * taken;
    }

    std::size_t& Way(std::size_t steps, std::size_t taken) { return m_ways[steps * (steps + 1) / 2 + taken]; }

    struct Step {
        bool takesOut;
        std::size_t oldPassed; ///< behind it; nowhere when no way leads there
    };

    /// The last step of a way, before the equal lines that follow it.
    Step LastStep(std::size_t steps, std::size_t taken) {
        Step best{true, nowhere};
        if (taken > 0) {
            const std::size_t passed = Way(steps - 1, taken - 1);
            if (passed != nowhere && m_oldAt + passed < m_old.size()) {
                best.oldPassed = passed + 1;
            }
        }
        if (taken < steps) {
            const std::size_t passed = Way(steps - 1, taken);
            if (passed != nowhere && m_newAt + NewPassed(steps - 1, taken, passed) < m_new.size() &&
                (best.oldPassed == nowhere || passed > best.oldPassed)) {
                best = {false, passed};
            }
        }
        return best;
    }

    void GetInStep() {
        m_ways.assign(1, 0);
        for (std::size_t steps = 1;; ++steps) {
            m_ways.resize(m_ways.size() + steps + 1, nowhere);
            std::size_t farthest = nowhere;
            std::size_t sum = 0;
            for (std::size_t taken = 0; taken <= steps; ++taken) {
                const std::size_t oldPassed = LastStep(steps, taken).oldPassed;
                if (oldPassed == nowhere) {
                    continue;
                }
                const std::size_t newPassed = NewPassed(steps, taken, oldPassed);
                const std::size_t equal = EqualLines(oldPassed, newPassed);
                Way(steps, taken) = oldPassed + equal;
                if (equal >= linesInStep || IsEnd(oldPassed + equal, newPassed + equal)) {
                    Take(steps, taken);
                    return;
                }
                if (farthest == nowhere || oldPassed + newPassed + 2 * equal > sum) {
                    farthest = taken;
                    sum = oldPassed + newPassed + 2 * equal;
                }
            }
            if (steps == mostSteps) {
                Take(steps, farthest);
                return;
            }
        }
    }

    /// Makes the changes of a way, found from its end, and goes on from there.
    void Take(std::size_t steps, std::size_t taken) {
        const std::size_t oldReached = m_oldAt + Way(steps, taken);
        const std::size_t newReached = m_newAt + NewPassed(steps, taken, Way(steps, taken));
        std::vector<LineChange> single;
        for (; steps > 0; --steps) {
            const Step step = LastStep(steps, taken);
            const std::size_t oldEnd = m_oldAt + step.oldPassed;
            const std::size_t newEnd = m_newAt + NewPassed(steps, taken, step.oldPassed);
            single.push_back({oldEnd - (step.takesOut ? 1U : 0U), oldEnd, newEnd - (step.takesOut ? 0U : 1U), newEnd});
            taken -= step.takesOut ? 1U : 0U;
        }
        std::reverse(single.begin(), single.end());
        for (const LineChange& change : single) {
            LineChange* const last = m_changes.empty() ? nullptr : &m_changes.back();
            if (last != nullptr && last->oldEnd == change.oldBegin && last->newEnd == change.newBegin) {
                last->oldEnd = change.oldEnd;
                last->newEnd = change.newEnd;
            } else {
                m_changes.push_back(change);
            }
        }
        m_oldAt = oldReached;
        m_newAt = newReached;
    }

    const std::vector<std::string_view>& m_old;
    const std::vector<std::string_view>& m_new;
    std::size_t m_oldAt = 0;
    std::size_t m_newAt = 0;
    /// Of 0 steps one way, of 1 step two, and so on.
    std::vector<std::size_t> m_ways;
    std::vector<LineChange> m_changes;
};

} // namespace

std::vector<std::string_view> SplitLines(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size() - 1);
        lines.push_back(text.substr(0, end + 1));
        text.remove_prefix(end + 1);
    }
    return lines;
}

std::vector<LineChange> CompareLines(const std::vector<std::string_view>& oldLines,
                                     const std::vector<std::string_view>& newLines) {
    return LineComparison(oldLines, newLines).Run();
}

} // namespace Lanedoc
