#include "Framework/ZelStringToWideChar.h"

#include <stdexcept>

#include <xercesc/framework/MemoryManager.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLString.hpp>

#include "Framework/XMLSupport/Utf.h"

zelStringToWideChar::zelStringToWideChar(const zelString& text) {
    xercesc::MemoryManager* const pMemory = xercesc::XMLPlatformUtils::fgMemoryManager;
    if (!pMemory) {
        throw std::logic_error("zelStringToWideChar needs Xerces-C to be initialised");
    }
    const std::size_t length = Framework::Utf16Length(text);
    m_pText = static_cast<XMLCh*>(pMemory->allocate((length + 1) * sizeof(XMLCh)));
    Framework::CopyUtf16(text, m_pText);
    m_pText[length] = 0;
}

zelStringToWideChar::~zelStringToWideChar() {
    xercesc::XMLString::release(&m_pText);
}
