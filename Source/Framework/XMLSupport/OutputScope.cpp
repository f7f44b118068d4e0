#include "Framework/XMLSupport/OutputScope.h"

namespace Framework {

namespace {

WrapperState& OpenOutput(FullFunctionXMLDataWrapper& output) {
    output.GetOutputDocument(); // turns a loaded document over to its DOM, which would drop the index later
    return WrapperAccess::State(output);
}

} // namespace

OutputScope::OutputScope(FullFunctionXMLDataWrapper& output) : m_state(OpenOutput(output)), m_outer(m_state.output) {
    if (m_outer == nullptr) {
        m_state.ForgetIndex();
    }
    m_state.output = this;
}

OutputScope::~OutputScope() {
    m_state.output = m_outer;
    if (m_outer == nullptr) {
        m_state.ForgetIndex();
    }
}

void OutputScope::StandOn(const std::string& query, const DOMNode* node) {
    m_query = query;
    m_node = DomTree::Ref(node);
}

} // namespace Framework
