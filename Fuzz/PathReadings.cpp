#include "PathReadings.h"

#include <algorithm>
#include <charconv>

namespace Fuzz {

namespace {

using namespace Framework;

constexpr std::size_t npos = std::string_view::npos;
constexpr std::string_view kDigits = "0123456789";

/// All ways to read a query, the best of them kept.
class Readings {
public:
    explicit Readings(std::string_view query) : m_query(query) {}

    std::optional<ParsedPath> Best() {
        QueryPath path;
        path.fromDocument = m_query.starts_with("//");
        Step(path, path.fromDocument ? 2 : 0, 0, path.fromDocument);
        if (m_tries > kMostTries) {
            return std::nullopt;
        }
        const PathKind kind = m_ways == 0 ? PathKind::Other : m_ways == 1 ? PathKind::Simple : PathKind::Ambiguous;
        return ParsedPath{kind, kind == PathKind::Simple ? m_best : QueryPath()};
    }

private:
    static constexpr int kMostTries = 20'000;

    std::string_view Rest(std::size_t at) const { return m_query.substr(std::min(at, m_query.size())); }

    std::string_view NameAt(std::size_t at) const {
        const std::string_view rest = Rest(at);
        const auto isOfName = [](char c) {
            return static_cast<unsigned char>(c) >= 0x80 || std::string_view("_-.:").find(c) != npos ||
                   kDigits.find(c) != npos || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
        };
        const auto end = std::find_if_not(rest.begin(), rest.end(), isOfName);
        const std::string_view name = rest.substr(0, static_cast<std::size_t>(end - rest.begin()));
        const bool isName =
            !name.empty() && std::string_view("-.0123456789").find(name[0]) == npos && name.find("::") == npos;
        return isName ? name : std::string_view();
    }

    void End(const QueryPath& path, int quoted) {
        if (m_ways == 0 || quoted > m_quoted) {
            m_ways = 1;
            m_quoted = quoted;
            m_best = path;
        } else if (quoted == m_quoted) {
            ++m_ways;
        }
    }

    void Step(const QueryPath& path, std::size_t at, int quoted, bool isHead) {
        if (++m_tries > kMostTries) {
            return;
        }
        const bool isAttribute = !isHead && Rest(at).starts_with('@');
        const std::string_view name = NameAt(at + (isAttribute ? 1 : 0));
        const std::size_t end = at + (isAttribute ? 1 : 0) + name.size();
        if (name.empty() || (isAttribute && end != m_query.size())) {
            return;
        }
        QueryPath longer = path;
        longer.steps.push_back({std::string(name), isAttribute, 0, {}});
        if (Rest(end).starts_with("[@")) {
            Condition(longer, end + 2, quoted);
        } else if (Rest(end).starts_with('[')) {
            Position(longer, end + 1, quoted);
        } else {
            Tail(longer, end, quoted);
        }
    }

    void Position(QueryPath path, std::size_t at, int quoted) {
        const std::size_t digits = std::min(Rest(at).find_first_not_of(kDigits), Rest(at).size());
        if (digits == 0 || !Rest(at + digits).starts_with(']')) {
            return;
        }
        std::size_t position = 0;
        const char* const end = m_query.data() + at + digits;
        const bool fits = std::from_chars(m_query.data() + at, end, position).ec == std::errc();
        path.steps.back().position = fits && position != 0 ? position : PathStep::nowhere;
        if (Rest(at + digits + 1).starts_with("[@")) {
            Condition(path, at + digits + 3, quoted);
        } else {
            Tail(path, at + digits + 1, quoted);
        }
    }

    /// Behind the "@".
    void Condition(const QueryPath& path, std::size_t at, int quoted) {
        const std::string_view name = NameAt(at);
        const std::size_t begin = at + name.size() + 1;
        if (name.empty() || !Rest(begin - 1).starts_with('=')) {
            return;
        }
        const auto with = [&](std::size_t from, std::size_t end) {
            QueryPath longer = path;
            longer.steps.back().conditions.push_back(
                {std::string(name), std::string(m_query.substr(from, end - from))});
            return longer;
        };
        const char first = begin < m_query.size() ? m_query[begin] : '\0';
        const bool isQuoted = (first == '\'' || first == '"') && m_query.find(first, begin + 1) != npos;
        if (!isQuoted) {
            const std::size_t last = m_query.rfind(']');
            if (last != npos && last >= begin) {
                Tail(with(begin, last), last + 1, quoted);
            }
            return;
        }
        for (std::size_t close = begin + 1; (close = m_query.find(first, close)) != npos; ++close) {
            const std::size_t next = std::min(m_query.find_first_not_of(' ', close + 1), m_query.size());
            if (Rest(next).starts_with(']')) {
                Tail(with(begin + 1, close), next + 1, quoted + 1);
            } else if (next > close + 1 && Rest(next).starts_with("and ")) {
                const std::size_t at2 = std::min(m_query.find_first_not_of(' ', next + 4), m_query.size());
                if (Rest(at2).starts_with('@')) {
                    Condition(with(begin + 1, close), at2 + 1, quoted + 1);
                }
            }
        }
    }

    void Tail(const QueryPath& path, std::size_t at, int quoted) {
        if (at == m_query.size()) {
            End(path, quoted);
        } else if (m_query[at] == '/') {
            Step(path, at + 1, quoted, false);
        }
    }

    std::string_view m_query;
    int m_tries = 0;
    int m_ways = 0; ///< that have as many quoted values as the best
    int m_quoted = 0;
    QueryPath m_best;
};

} // namespace

std::optional<ParsedPath> ReadByTryingAll(std::string_view query) {
    return Readings(query).Best();
}

std::string Written(const QueryPath& path) {
    std::string text = path.fromDocument ? "//" : "";
    for (const PathStep& step : path.steps) {
        text += (step.isAttribute ? "/@" : "/") + step.name + "#" + std::to_string(step.position);
        for (const PathCondition& condition : step.conditions) {
            text +=
                "{" + condition.attribute + "=" + std::to_string(condition.value.size()) + ":" + condition.value + "}";
        }
    }
    return text;
}

} // namespace Fuzz
