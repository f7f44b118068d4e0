#include "Framework/XMLSupport/QueryPath.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace Framework {

namespace {

constexpr std::size_t npos = std::string_view::npos;

bool IsNameCharacter(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x80 || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '-' || c == '.' || c == ':';
}

/// Not `..`, a number or an axis, which are made of the same characters.
bool IsName(std::string_view text) {
    return !text.empty() && std::string_view("-.0123456789").find(text.front()) == npos && text.find("::") == npos;
}

bool IsQuote(char c) {
    return c == '\'' || c == '"';
}

/// Reads a path. Where values in quotes end is open, since they may hold quotes: of all ways to read the text, the one
/// with the most conditions counts, which leaves the fewest quotes to the values. For each quote that may end a value,
/// from the last one back, it is worked out how the rest reads best; so the time stays linear in the text.
class PathReader {
public:
    explicit PathReader(std::string_view text)
        : m_text(text), m_lastBracket(text.rfind(']')), m_lastQuotes{text.rfind('\''), text.rfind('"')} {}

    ParsedPath Read();

private:
    enum class Expect { Step, Predicate, Condition, Tail, Value, End, Nothing };
    /// A place in the text and what must come there. Value is the text behind an opening quote.
    struct Cursor {
        Expect expect = Expect::Nothing;
        std::size_t at = 0;
    };
    /// The best that can be made of the text from a closing quote on, or from a later one of its kind.
    struct Rest {
        std::size_t from;
        std::size_t close; ///< the quote to close at
        std::size_t conditions;
        bool isAlone; ///< no other reading has as many conditions
    };

    std::size_t NameEnd(std::size_t at) const {
        return static_cast<std::size_t>(
            std::find_if_not(m_text.begin() + static_cast<std::ptrdiff_t>(at), m_text.end(), IsNameCharacter) -
            m_text.begin());
    }
    std::size_t SkipBlanks(std::size_t at) const { return std::min(m_text.find_first_not_of(' ', at), m_text.size()); }
    std::size_t LastOf(char quote) const { return m_lastQuotes[quote == '"' ? 1 : 0]; }
    std::vector<Rest>& RestsOf(char quote) { return m_rests[quote == '"' ? 1 : 0]; }

    Cursor Follow(Cursor cursor);
    Cursor ReadStep(std::size_t at);
    Cursor ReadPredicate(std::size_t at);
    Cursor ReadCondition(std::size_t at);
    Cursor ReadTail(std::size_t at) const;
    Cursor BehindQuote(std::size_t close) const;

    void Survey();
    const Rest* BestFrom(std::size_t valueBegin);

    std::string_view m_text;
    std::size_t m_lastBracket;
    std::array<std::size_t, 2> m_lastQuotes;
    bool m_readsToEnd = false; ///< from behind the last bracket
    std::array<std::vector<Rest>, 2> m_rests;
    QueryPath* m_path = nullptr; ///< what is read goes here; null during the survey
    std::string_view m_attribute;
};

PathReader::Cursor PathReader::Follow(Cursor cursor) {
    for (;;) {
        switch (cursor.expect) {
        case Expect::Step:
            cursor = ReadStep(cursor.at);
            break;
        case Expect::Predicate:
            cursor = ReadPredicate(cursor.at);
            break;
        case Expect::Condition:
            cursor = ReadCondition(cursor.at);
            break;
        case Expect::Tail:
            cursor = ReadTail(cursor.at);
            break;
        default:
            return cursor;
        }
    }
}

PathReader::Cursor PathReader::ReadStep(std::size_t at) {
    const bool isHead = at == 2 && m_text.starts_with("//");
    const bool isAttribute = !isHead && at < m_text.size() && m_text[at] == '@';
    at += isAttribute ? 1 : 0;
    const std::size_t end = NameEnd(at);
    const std::string_view name = m_text.substr(at, end - at);
    if (!IsName(name) || (isAttribute && end != m_text.size())) {
        return {};
    }
    if (m_path != nullptr) {
        m_path->steps.push_back({std::string(name), isAttribute, 0, {}});
    }
    return end < m_text.size() && m_text[end] == '[' ? Cursor{Expect::Predicate, end + 1} : Cursor{Expect::Tail, end};
}

PathReader::Cursor PathReader::ReadPredicate(std::size_t at) {
    const std::size_t end = std::min(m_text.find_first_not_of("0123456789", at), m_text.size());
    if (end == at) {
        return {Expect::Condition, at};
    }
    if (end == m_text.size() || m_text[end] != ']') {
        return {};
    }
    if (m_path != nullptr) {
        // Nothing stands at 0, nor at what is too large to count to.
        std::size_t position = 0;
        const auto result = std::from_chars(m_text.data() + at, m_text.data() + end, position);
        const bool isPlace = result.ec == std::errc() && position != 0;
        m_path->steps.back().position = isPlace ? position : PathStep::nowhere;
    }
    const bool hasConditions = m_text.substr(end + 1).starts_with("[@");
    return hasConditions ? Cursor{Expect::Condition, end + 2} : Cursor{Expect::Tail, end + 1};
}

/// `@name='value'` up to the value, or all of `@name=value`, which goes up to the last bracket. A quote that stands
/// alone is part of such a value.
PathReader::Cursor PathReader::ReadCondition(std::size_t at) {
    if (at >= m_text.size() || m_text[at] != '@') {
        return {};
    }
    const std::size_t nameEnd = NameEnd(at + 1);
    m_attribute = m_text.substr(at + 1, nameEnd - at - 1);
    if (!IsName(m_attribute) || nameEnd == m_text.size() || m_text[nameEnd] != '=') {
        return {};
    }
    const std::size_t valueBegin = nameEnd + 1;
    if (valueBegin < m_text.size() && IsQuote(m_text[valueBegin]) && LastOf(m_text[valueBegin]) != valueBegin) {
        return {Expect::Value, valueBegin + 1};
    }
    if (m_lastBracket == npos || m_lastBracket < valueBegin || !m_readsToEnd) {
        return {};
    }
    if (m_path == nullptr) {
        return {Expect::End, m_text.size()};
    }
    const std::string_view value = m_text.substr(valueBegin, m_lastBracket - valueBegin);
    m_path->steps.back().conditions.push_back({std::string(m_attribute), std::string(value)});
    return {Expect::Tail, m_lastBracket + 1};
}

PathReader::Cursor PathReader::ReadTail(std::size_t at) const {
    if (at == m_text.size()) {
        return {Expect::End, at};
    }
    return m_text[at] == '/' ? Cursor{Expect::Step, at + 1} : Cursor{};
}

/// What must come behind a quote that ends a value; Nothing when it cannot be one.
PathReader::Cursor PathReader::BehindQuote(std::size_t close) const {
    const std::size_t at = SkipBlanks(close + 1);
    if (at < m_text.size() && m_text[at] == ']') {
        return {Expect::Tail, at + 1};
    }
    const bool goesOn = at > close + 1 && m_text.substr(at, 4) == "and ";
    return goesOn ? Cursor{Expect::Condition, SkipBlanks(at + 4)} : Cursor{};
}

void PathReader::Survey() {
    m_readsToEnd = m_lastBracket != npos && Follow({Expect::Tail, m_lastBracket + 1}).expect == Expect::End;
    for (std::size_t at = m_text.size(); at-- > 0;) {
        if (!IsQuote(m_text[at])) {
            continue;
        }
        const Cursor next = Follow(BehindQuote(at));
        const Rest* const later = next.expect == Expect::Value ? BestFrom(next.at) : nullptr;
        if (next.expect != Expect::End && later == nullptr) {
            continue;
        }
        Rest rest{at, at, 1, true};
        if (later != nullptr) {
            rest.conditions += later->conditions;
            rest.isAlone = later->isAlone;
        }
        std::vector<Rest>& rests = RestsOf(m_text[at]);
        if (!rests.empty() && rests.back().conditions >= rest.conditions) {
            const bool isTie = rests.back().conditions == rest.conditions;
            rest = rests.back();
            rest.from = at;
            rest.isAlone = rest.isAlone && !isTie;
        }
        rests.push_back(rest);
    }
}

/// How a value that begins there is best closed; null when it cannot be.
const PathReader::Rest* PathReader::BestFrom(std::size_t valueBegin) {
    const std::vector<Rest>& rests = RestsOf(m_text[valueBegin - 1]);
    const auto before = std::partition_point(rests.begin(), rests.end(),
                                             [valueBegin](const Rest& rest) { return rest.from >= valueBegin; });
    return before == rests.begin() ? nullptr : &*std::prev(before);
}

ParsedPath PathReader::Read() {
    Survey();
    ParsedPath result;
    result.path.fromDocument = m_text.starts_with("//");
    m_path = &result.path;
    Cursor cursor = Follow({Expect::Step, result.path.fromDocument ? std::size_t{2} : 0});
    while (cursor.expect == Expect::Value) {
        const Rest* const rest = BestFrom(cursor.at);
        if (rest == nullptr) {
            return {};
        }
        if (!rest->isAlone) {
            return {PathKind::Ambiguous, {}};
        }
        const std::string_view value = m_text.substr(cursor.at, rest->close - cursor.at);
        m_path->steps.back().conditions.push_back({std::string(m_attribute), std::string(value)});
        cursor = Follow(BehindQuote(rest->close));
    }
    if (cursor.expect != Expect::End) {
        return {};
    }
    result.kind = PathKind::Simple;
    return result;
}

} // namespace

ParsedPath ParseQueryPath(std::string_view text) {
    return PathReader(text).Read();
}

} // namespace Framework
