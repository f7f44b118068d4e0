#pragma once

#include <memory>

#include "Framework/XMLDataWrapper.h"

namespace Framework {

struct SharedReading;

/// What containers hold of the wrapper they stand on. All objects that stand on one wrapper share one attachment, so
/// that it can go on with a private wrapper over the same document when the caller's wrapper dies.
///
/// Over a read-only document each tree of objects has an attachment of its own, with a private wrapper from the start:
/// many threads may load from one such wrapper, so nothing of the caller's is touched, neither by the load nor by what
/// is done with the objects later. The caller's wrapper may die in one thread while others use their objects.
class Attachment {
public:
    /// The attachment that a part of a tree gets which is loaded from that wrapper.
    static std::shared_ptr<Attachment> Of(XMLDataWrapper& wrapper);
    /// The attachment that a tree gets which is loaded from a caller's wrapper.
    static std::shared_ptr<Attachment> ForTree(XMLDataWrapper& wrapper);
    /// That of another tree over the document of this one.
    static std::shared_ptr<Attachment> ForCopy(const std::shared_ptr<Attachment>& original);
    /// One for a caller's wrapper that the wrapper does not know of yet.
    static std::shared_ptr<Attachment> New(XMLDataWrapper& wrapper);
    /// An attachment that owns its wrapper from the start.
    static std::shared_ptr<Attachment> Owning(std::unique_ptr<XMLDataWrapper> wrapper);
    /// A new wrapper over the document of a read-only one, which is only looked at.
    static std::unique_ptr<XMLDataWrapper> AnotherWrapper(const XMLDataWrapper& readOnly);

    /// The wrapper that the library works through.
    XMLDataWrapper* Wrapper() const { return m_wrapper; }
    /// The wrapper that callers are shown: the one they gave, as long as it lives and holds the document.
    XMLDataWrapper* ShownWrapper() const { return m_givenLife.expired() ? m_wrapper : m_given; }
    /// No caller's wrapper is behind it, or none any more.
    bool IsPrivate() const { return m_wrapper == m_private.get(); }

    /// The caller's wrapper dies: its state moves to the private wrapper, which is there already, so that this cannot
    /// fail.
    void TakeOver(std::unique_ptr<WrapperState> state) noexcept;
    /// Leaves the caller's wrapper to itself and goes on with the private one over the same document.
    void MoveToPrivateWrapper() noexcept;

private:
    static std::shared_ptr<Attachment> ToReadOnly(XMLDataWrapper& wrapper);

    XMLDataWrapper* m_wrapper = nullptr;
    std::unique_ptr<XMLDataWrapper> m_private;
    XMLDataWrapper* m_given = nullptr; ///< over a read-only document, while `m_givenLife` says that it is there
    std::weak_ptr<SharedReading> m_givenLife;
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
