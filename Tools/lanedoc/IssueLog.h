#pragma once

#include <string>
#include <vector>

#include "Framework/TypedDataContainer.h"
#include "Message.h"

namespace Lanedoc {

/// Collects what the library reports to its override log while this object lives. One at a time.
class IssueLog {
public:
    IssueLog();
    ~IssueLog();
    IssueLog(const IssueLog&) = delete;
    IssueLog& operator=(const IssueLog&) = delete;

    /// What was reported since the last call. `documentName` stands for the document where the report has no place.
    std::vector<Message> TakeMessages(Severity severity, const std::string& documentName);

private:
    std::vector<OverrideIssue> m_issues;
};

} // namespace Lanedoc
