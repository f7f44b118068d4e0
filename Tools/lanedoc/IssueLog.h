#pragma once

#include <string>
#include <vector>

#include "Framework/TypedDataContainer.h"

namespace Lanedoc {

/// Collects what the library reports to its override log while this object lives. One at a time.
class IssueLog {
public:
    IssueLog();
    ~IssueLog();
    IssueLog(const IssueLog&) = delete;
    IssueLog& operator=(const IssueLog&) = delete;

    std::size_t Count() const { return m_issues.size(); }
    void Forget() { m_issues.clear(); }
    /// What was refused, each as `line:column: text`.
    std::vector<std::string> Texts() const;
    /// Prints them as `file:line:col: severity: text` and forgets them; issues without a place get the document's name.
    /// Behind `most` lines, 0 for all, only their number is told.
    void Report(const std::string& severity, const std::string& documentName, std::size_t most = 0);

private:
    std::vector<OverrideIssue> m_issues;
};

} // namespace Lanedoc
