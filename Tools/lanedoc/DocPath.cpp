#include "DocPath.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace Lanedoc {

namespace {

/// Reads a path from left to right.
class PathReader {
public:
    explicit PathReader(std::string_view text) : m_text(text) {}

    std::vector<PathStep> Read() {
        std::vector<PathStep> steps;
        if (m_text.empty()) {
            return steps;
        }
        if (Next() == '/') {
            Fail("a path starts with a field below the root, not with '/'");
        }
        while (true) {
            steps.push_back(ReadStep());
            if (AtEnd()) {
                return steps;
            }
            if (Next() != '/') {
                Fail(Next() == ']' ? "']' without '['; a key that holds it stands in double quotes"
                                   : "expected '/' or the end of the path");
            }
            if (steps.back().isAttribute) {
                Fail("an attribute has nothing below it");
            }
            ++m_at;
        }
    }

private:
    bool AtEnd() const { return m_at == m_text.size(); }
    char Next() const { return AtEnd() ? '\0' : m_text[m_at]; }
    bool Take(char character) {
        const bool taken = !AtEnd() && Next() == character;
        m_at += taken ? 1U : 0U;
        return taken;
    }
    [[noreturn]] void Fail(const std::string& text) const { throw PathError(m_at, text); }

    std::string ReadName(const char* what) {
        const std::size_t end = std::min(m_text.find_first_of("/[]=@\" \t\r\n", m_at), m_text.size());
        if (end == m_at) {
            Fail(std::string("expected ") + what);
        }
        std::string name(m_text.substr(m_at, end - m_at));
        m_at = end;
        return name;
    }

    PathStep ReadStep() {
        PathStep step;
        step.isAttribute = Take('@');
        step.name = ReadName("the name of a field");
        if (Next() == '[') {
            if (step.isAttribute) {
                Fail("an attribute has no entries");
            }
            ++m_at;
            ReadSelector(step);
        }
        return step;
    }

    void ReadSelector(PathStep& step) {
        if (Next() >= '0' && Next() <= '9') {
            step.selector = PathStep::Selector::Position;
            const auto [end, error] =
                std::from_chars(m_text.data() + m_at, m_text.data() + m_text.size(), step.position);
            if (error != std::errc() || step.position == 0) {
                Fail("expected a position from 1");
            }
            m_at = static_cast<std::size_t>(end - m_text.data());
        } else {
            step.selector = PathStep::Selector::Key;
            Take('@');
            step.keyAttribute = ReadName("a key, as in [Name=Idle], or a position, as in [3]");
            if (!Take('=')) {
                Fail("expected '=' and the key");
            }
            step.key = Next() == '"' ? ReadQuoted() : ReadPlain();
        }
        if (!Take(']')) {
            Fail("expected ']'");
        }
    }

    std::string ReadQuoted() {
        const std::size_t start = m_at++;
        std::string key;
        while (!AtEnd()) {
            if (!Take('"')) {
                key += m_text[m_at++];
            } else if (Take('"')) {
                key += '"';
            } else {
                return key;
            }
        }
        m_at = start;
        Fail("the double quote is not closed");
    }

    std::string ReadPlain() {
        const std::size_t end = std::min(m_text.find_first_of("]/\"", m_at), m_text.size());
        std::string key(m_text.substr(m_at, end - m_at));
        m_at = end;
        if (Next() == '/' || Next() == '"') {
            Fail("a key with '/', ']' or '\"' stands in double quotes, doubled inside");
        }
        return key;
    }

    std::string_view m_text;
    std::size_t m_at = 0;
};

} // namespace

std::vector<PathStep> ParsePath(std::string_view text) {
    return PathReader(text).Read();
}

std::string FormatStep(const PathStep& step) {
    switch (step.selector) {
    case PathStep::Selector::Key:
        return FieldPath::KeyStep(step.name, step.keyAttribute, step.key);
    case PathStep::Selector::Position:
        return FieldPath::PositionStep(step.name, step.position);
    case PathStep::Selector::None:
        break;
    }
    return step.name;
}

} // namespace Lanedoc
