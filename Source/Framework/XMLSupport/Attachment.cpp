#include "Framework/XMLSupport/Attachment.h"

#include <utility>

#include "Framework/XMLSupport/WrapperState.h"

namespace Framework {

std::shared_ptr<Attachment> Attachment::Of(XMLDataWrapper& wrapper) {
    WrapperState& state = WrapperAccess::State(wrapper);
    std::shared_ptr<Attachment> attachment = state.attachment.lock();
    if (attachment != nullptr) {
        return attachment;
    }
    if (state.readOnly) {
        return ToReadOnly(wrapper);
    }
    state.attachment = attachment = New(wrapper);
    return attachment;
}

std::shared_ptr<Attachment> Attachment::New(XMLDataWrapper& wrapper) {
    auto attachment = std::make_shared<Attachment>();
    attachment->m_private = std::make_unique<XMLDataWrapper>();
    attachment->m_wrapper = &wrapper;
    return attachment;
}

std::shared_ptr<Attachment> Attachment::ForTree(XMLDataWrapper& wrapper) {
    return WrapperAccess::State(wrapper).readOnly ? ToReadOnly(wrapper) : Of(wrapper);
}

std::shared_ptr<Attachment> Attachment::ForCopy(const std::shared_ptr<Attachment>& original) {
    if (!WrapperAccess::State(*original->m_wrapper).readOnly) {
        return original;
    }
    std::shared_ptr<Attachment> attachment = ToReadOnly(*original->m_wrapper);
    if (original->m_given != nullptr) {
        attachment->m_given = original->m_given;
        attachment->m_givenLife = original->m_givenLife;
    }
    return attachment;
}

std::shared_ptr<Attachment> Attachment::ToReadOnly(XMLDataWrapper& wrapper) {
    std::shared_ptr<Attachment> attachment = Owning(AnotherWrapper(wrapper));
    attachment->m_given = &wrapper;
    attachment->m_givenLife = WrapperAccess::State(wrapper).reading;
    return attachment;
}

std::unique_ptr<XMLDataWrapper> Attachment::AnotherWrapper(const XMLDataWrapper& readOnly) {
    auto wrapper = std::make_unique<XMLDataWrapper>();
    WrapperState& state = WrapperAccess::State(*wrapper);
    WrapperAccess::State(readOnly).Share(state);
    state.reading = std::make_shared<SharedReading>(); // objects may lend it to callers some day
    return wrapper;
}

std::shared_ptr<Attachment> Attachment::Owning(std::unique_ptr<XMLDataWrapper> wrapper) {
    auto attachment = std::make_shared<Attachment>();
    WrapperAccess::State(*wrapper).attachment = attachment;
    attachment->m_wrapper = wrapper.get();
    attachment->m_private = std::move(wrapper);
    return attachment;
}

void Attachment::TakeOver(std::unique_ptr<WrapperState> state) noexcept {
    m_wrapper = m_private.get();
    WrapperAccess::Pointer(*m_private) = std::move(state);
}

void Attachment::MoveToPrivateWrapper() noexcept {
    if (IsPrivate()) {
        return;
    }
    WrapperState& own = WrapperAccess::State(*m_private);
    WrapperAccess::State(*m_wrapper).Share(own);
    own.attachment = std::exchange(WrapperAccess::State(*m_wrapper).attachment, {});
    m_wrapper = m_private.get();
}

AttachmentScope::AttachmentScope(XMLDataWrapper& wrapper)
    : m_state(WrapperAccess::State(wrapper)), m_before(m_state.attachment), m_during(Attachment::New(wrapper)) {
    m_state.attachment = m_during;
}

AttachmentScope::~AttachmentScope() {
    if (m_during.use_count() > 1) {
        m_during->MoveToPrivateWrapper();
    }
    m_state.attachment = m_before;
}

} // namespace Framework
