#include "Framework/XMLSupport/XmlRuntime.h"

#include <exception>
#include <mutex>
#include <stdexcept>
#include <string>

#include <xalanc/XPath/XPathEvaluator.hpp>
#include <xercesc/util/PanicHandler.hpp>
#include <xercesc/util/PlatformUtils.hpp>

namespace Framework {

namespace {

/// The handler that Xerces brings along ends the process.
class ThrowingPanicHandler final : public xercesc::PanicHandler {
public:
    [[noreturn]] void panic(const PanicReasons reason) override {
        throw std::runtime_error(getPanicReasonString(reason));
    }
};

/// Runs a start once. A failure is kept: the libraries count a start that failed and would take the next one for done.
class OneStart {
public:
    template <class Function> void Run(const char* library, Function start) {
        std::call_once(m_once, [&] {
            try {
                start();
            } catch (const std::exception& error) {
                m_failure = std::string(library) + " cannot be started: " + error.what();
            } catch (...) {
                m_failure = std::string(library) + " cannot be started";
            }
        });
        if (!m_failure.empty()) {
            throw std::runtime_error(m_failure);
        }
    }

private:
    std::once_flag m_once;
    std::string m_failure;
};

} // namespace

void EnsureXmlRuntime() {
    // Both stay for ever: Xerces keeps a pointer to the handler, and objects that are destroyed at exit may still come
    // here.
    static auto& handler = *new ThrowingPanicHandler;
    static auto& start = *new OneStart;
    start.Run("Xerces-C", [] {
        xercesc::XMLPlatformUtils::Initialize(xercesc::XMLUni::fgXercescDefaultLocale, nullptr, &handler);
    });
}

void EnsureXPathRuntime() {
    EnsureXmlRuntime();
    static auto& start = *new OneStart;
    start.Run("Xalan-C", [] { XALAN_CPP_NAMESPACE::XPathEvaluator::initialize(); });
}

} // namespace Framework
