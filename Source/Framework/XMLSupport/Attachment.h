#pragma once

#include <memory>

#include "Framework/XMLDataWrapper.h"

namespace Framework {

/// What containers hold of the wrapper they stand on. All objects that stand on one wrapper share one attachment, so
/// that it can go on with a private wrapper over the same document when the caller's wrapper dies.
class Attachment {
public:
    /// The attachment of a caller's wrapper; made when there is none.
    static std::shared_ptr<Attachment> Of(XMLDataWrapper& wrapper);
    /// An attachment that owns its wrapper from the start.
    static std::shared_ptr<Attachment> Owning(std::unique_ptr<XMLDataWrapper> wrapper);

    XMLDataWrapper* Wrapper() const { return m_wrapper; }
    /// No caller's wrapper is behind it, or none any more.
    bool IsPrivate() const { return m_wrapper == m_private.get(); }

    /// The caller's wrapper dies: its state moves to the private wrapper, which is there already, so that this cannot
    /// fail.
    void TakeOver(std::unique_ptr<WrapperState> state) noexcept;
    /// Leaves the caller's wrapper to itself and goes on with the private one over the same document.
    void MoveToPrivateWrapper() noexcept;

private:
    XMLDataWrapper* m_wrapper = nullptr;
    std::unique_ptr<XMLDataWrapper> m_private;
};

/// Gives a wrapper a fresh attachment for as long as this lives, and its old one back at the end. What was attached in
/// between is moved to a private wrapper, so that the caller's further use of its own does not disturb it.
class AttachmentScope {
public:
    explicit AttachmentScope(XMLDataWrapper& wrapper);
    ~AttachmentScope();
    AttachmentScope(const AttachmentScope&) = delete;
    AttachmentScope& operator=(const AttachmentScope&) = delete;

private:
    WrapperState& m_state;
    std::weak_ptr<Attachment> m_before;
    std::shared_ptr<Attachment> m_during;
};

} // namespace Framework
