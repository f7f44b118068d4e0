#pragma once

#include <string>
#include <string_view>

#include "Framework/XMLSupport/WrapperState.h"

namespace Framework {

/// A walk that writes into an output document by query. As long as one lives, nobody but the library adds to the
/// document, and only behind what is there: so the wrapper keeps its index from query to query, and a query that goes
/// on from the walk's own is answered from the walk's node. That costs the step and not the path, and a parent's values
/// are not read again. Scopes nest as the walks do.
class OutputScope {
public:
    explicit OutputScope(FullFunctionXMLDataWrapper& output);
    ~OutputScope();
    OutputScope(const OutputScope&) = delete;
    OutputScope& operator=(const OutputScope&) = delete;

    /// The walk has found its node by that query.
    void StandOn(const std::string& query, const DOMNode* node);

    /// Whether the path is the walk's query or goes on from it.
    bool IsAbove(std::string_view path) const {
        return !m_query.empty() && path.starts_with(m_query) &&
               (path.size() == m_query.size() || path[m_query.size()] == '/');
    }
    const std::string& Query() const { return m_query; }
    NodeRef Node() const { return m_node; }

private:
    WrapperState& m_state;
    const OutputScope* m_outer;
    std::string m_query;
    NodeRef m_node = NodeRef::None;
};

} // namespace Framework
