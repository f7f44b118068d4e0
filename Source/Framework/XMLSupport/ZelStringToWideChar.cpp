#include "Framework/ZelStringToWideChar.h"

#include <xercesc/framework/MemoryManager.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLString.hpp>

#include "Framework/XMLSupport/Utf.h"
#include "Framework/XMLSupport/XmlRuntime.h"

zelStringToWideChar::zelStringToWideChar(const zelString& text) {
    Framework::EnsureXmlRuntime();
    xercesc::MemoryManager* const pMemory = xercesc::XMLPlatformUtils::fgMemoryManager;
    const std::size_t length = Framework::Utf16Length(text);
    m_pText = static_cast<XMLCh*>(pMemory->allocate((length + 1) * sizeof(XMLCh)));
    Framework::CopyUtf16(text, m_pText);
    m_pText[length] = 0;
}

zelStringToWideChar::~zelStringToWideChar() {
    xercesc::XMLString::release(&m_pText);
}
