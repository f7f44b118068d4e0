#include "Framework/XMLSupport/CaughtFailure.h"

#include <new>

#include <xercesc/dom/DOMException.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>

namespace Framework {

CaughtFailure::CaughtFailure() noexcept {
    try {
        throw;
    } catch (const std::bad_alloc&) {
        m_text = "out of memory";
    } catch (const xercesc::OutOfMemoryException&) {
        m_text = "out of memory";
    } catch (const std::exception& failure) {
        m_exception = std::current_exception();
        m_text = failure.what();
    } catch (const xercesc::DOMException&) {
        m_text = "the DOM refuses it";
    } catch (...) { // the text says so
    }
}

} // namespace Framework
