#include "Framework/XMLSupport/XmlRuntime.h"

#include <atomic>
#include <exception>
#include <mutex>
#include <new>
#include <stdexcept>
#include <string>

#include <xalanc/XPath/XPathInit.hpp>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/util/PanicHandler.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include "Framework/XMLSupport/CaughtFailure.h"
#include "Framework/XMLSupport/DomTree.h"
#include "Framework/XMLSupport/XmlMemory.h"

namespace Framework {

namespace {

class Panic final : public std::exception {
public:
    explicit Panic(const char* reason) : m_reason(reason) {}
    const char* what() const noexcept override { return m_reason; }

private:
    const char* m_reason; // a literal of Xerces
};

/// The handler that Xerces brings along ends the process.
class ThrowingPanicHandler final : public xercesc::PanicHandler {
public:
    [[noreturn]] void panic(const PanicReasons reason) override { throw Panic(getPanicReasonString(reason)); }
};

/// Runs a start once. A failure is kept: the libraries count a start that failed and would take the next one for done.
/// Only while there is no memory to set aside for it, it has not begun, and is tried again by the next call.
class OneStart {
public:
    template <class Function> void Run(const char* library, std::size_t memory, Function start) {
        if (m_isStarted.load(std::memory_order_acquire)) {
            return;
        }
        const std::lock_guard lock(m_mutex);
        if (!m_isStarted && !m_hasFailed) {
            StartMemory::Instance().SetAside(memory);
            try {
                start();
                m_isStarted.store(true, std::memory_order_release);
            } catch (...) {
                m_hasFailed = true;
                Keep(library, CaughtFailure().Text());
            }
            StartMemory::Instance().GiveBack();
        }
        if (m_hasFailed) {
            throw std::runtime_error(m_failure.empty() ? "an XML library cannot be started" : m_failure);
        }
    }

private:
    void Keep(const char* library, const char* reason) noexcept {
        try {
            m_failure = std::string(library) + " cannot be started: " + reason;
        } catch (const std::bad_alloc&) { // then without its reason
        }
    }

    std::mutex m_mutex; // not std::call_once, see Lazy
    std::atomic<bool> m_isStarted = false;
    bool m_hasFailed = false;
    std::string m_failure;
};

/// Xerces fills the table of what may stand below what when the first node is appended in the process, and has no lock
/// for it.
void AppendFirstNode() {
    const DomDocumentPtr document(
        xercesc::DOMImplementation::getImplementation()->createDocument(&StartMemory::Instance()));
    document->appendChild(document->createElement(u"first"));
}

/// What stays for ever, and needs no memory to come to life: objects that are destroyed at exit may still come here.
struct Runtime {
    ThrowingPanicHandler panicHandler; // to which Xerces keeps a pointer
    OneStart xerces;
    OneStart xpath;
    alignas(XALAN_CPP_NAMESPACE::XPathInit) char xpathInit[sizeof(XALAN_CPP_NAMESPACE::XPathInit)];

    static Runtime& Instance() {
        alignas(Runtime) static char room[sizeof(Runtime)];
        static Runtime& runtime = *new (room) Runtime;
        return runtime;
    }

private:
    Runtime() = default;
};

} // namespace

void EnsureXmlRuntime() {
    constexpr std::size_t memory = std::size_t{1} << 20U; // three quarters of it are needed
    Runtime& runtime = Runtime::Instance();
    runtime.xerces.Run("Xerces-C", memory, [&] {
        xercesc::XMLPlatformUtils::Initialize(xercesc::XMLUni::fgXercescDefaultLocale, nullptr, &runtime.panicHandler,
                                              &StartMemory::Instance());
        AppendFirstNode();
    });
}

// Not by XPathEvaluator::initialize: that keeps the one object by which Xalan is counted where a host's own call puts
// its own.
void EnsureXPathRuntime() {
    constexpr std::size_t memory = std::size_t{1} << 16U; // a fiftieth of it is needed
    EnsureXmlRuntime();
    Runtime& runtime = Runtime::Instance();
    runtime.xpath.Run("Xalan-C", memory,
                      [&] { new (runtime.xpathInit) XALAN_CPP_NAMESPACE::XPathInit(StartMemory::Instance()); });
}

} // namespace Framework
