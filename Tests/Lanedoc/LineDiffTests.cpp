// The tool is a program, not a library: the parts that are tested alone are compiled into this test.
#include "../../Tools/lanedoc/LineDiff.cpp"

#include <random>
#include <string>

#include <gtest/gtest.h>

namespace {

using namespace Lanedoc;
using Lines = std::vector<std::string_view>;

/// Lines in changes; checks that the changes make the one of the other, in order, with equal lines between any two.
std::size_t CheckChanges(const Lines& from, const Lines& to) {
    std::size_t changed = 0;
    std::size_t oldAt = 0;
    std::size_t newAt = 0;
    const auto passEqual = [&](std::size_t oldEnd, std::size_t newEnd) {
        EXPECT_EQ(oldEnd - oldAt, newEnd - newAt);
        for (; oldAt < oldEnd; ++oldAt, ++newAt) {
            ASSERT_EQ(from.at(oldAt), to.at(newAt));
        }
    };
    for (const LineChange& change : CompareLines(from, to)) {
        EXPECT_TRUE(change.oldBegin > oldAt || oldAt == 0) << "two changes that are one";
        passEqual(change.oldBegin, change.newBegin);
        oldAt = change.oldEnd;
        newAt = change.newEnd;
        changed += change.oldEnd - change.oldBegin + change.newEnd - change.newBegin;
    }
    passEqual(from.size(), to.size());
    return changed;
}

/// Lines in the shortest changes, by the longest common subsequence.
std::size_t FewestChanged(const Lines& from, const Lines& to) {
    std::vector<std::vector<std::size_t>> common(from.size() + 1, std::vector<std::size_t>(to.size() + 1, 0));
    for (std::size_t i = 1; i <= from.size(); ++i) {
        for (std::size_t j = 1; j <= to.size(); ++j) {
            common[i][j] =
                from[i - 1] == to[j - 1] ? common[i - 1][j - 1] + 1 : std::max(common[i - 1][j], common[i][j - 1]);
        }
    }
    return from.size() + to.size() - 2 * common[from.size()][to.size()];
}

TEST(LineDiff, FindsTheFewestLinesInShortTexts) {
    EXPECT_EQ(SplitLines("a\r\n\nb"), (Lines{"a\r\n", "\n", "b"}));
    std::mt19937 random(7);
    const Lines words = {"a\n", "b\n", "c\n", "d\n"};
    for (int round = 0; round < 3000; ++round) {
        const std::size_t kinds = 1 + random() % words.size();
        const auto some = [&] {
            Lines lines(random() % 16);
            std::generate(lines.begin(), lines.end(), [&] { return words[random() % kinds]; });
            return lines;
        };
        const Lines from = some();
        const Lines to = some();
        ASSERT_EQ(CheckChanges(from, to), FewestChanged(from, to));
    }
}

TEST(LineDiff, StaysExactAndQuickInLongTexts) {
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < 200'000; ++i) {
        texts.push_back(std::to_string(i % 150'000));
    }
    const Lines all(texts.begin(), texts.end());
    const Lines from(all.begin(), all.begin() + 100'000);
    Lines few = from;
    Lines many = from;
    for (std::size_t i = 1; i <= 5; ++i) {
        few[i * 16'000] = "changed";
        few.insert(few.begin() + static_cast<std::ptrdiff_t>(i * 16'000 + 3), "new");
    }
    for (std::size_t i = 0; i < many.size(); i += 9) {
        many[i] = "changed";
    }
    EXPECT_EQ(CheckChanges(from, few), 15U);
    EXPECT_EQ(CheckChanges(from, many), 2U * 11'112);
    EXPECT_EQ(CheckChanges(from, Lines(all.begin() + 100'000, all.end())), 100'000U) << "the second half moved away";
    EXPECT_EQ(CheckChanges(from, {}), 100'000U);
}

} // namespace
