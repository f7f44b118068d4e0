#include "Framework/ContainerBase/Templates.h"

#include "Framework/TypedDataContainer.h"

namespace Framework {

bool TextStore::Register(const char* store, const char* xmlName, const zelString& xml) {
    XMLDataWrapper check;
    if (store == nullptr || xmlName == nullptr || !check.LoadXMLText(xml, true)) {
        return false;
    }
    std::pair<zelString, zelString> key(store, xmlName);
    zelString text = xml;
    const std::lock_guard lock(m_mutex);
    m_texts.insert_or_assign(std::move(key), std::move(text));
    return true;
}

std::optional<zelString> TextStore::Find(const char* store, const char* xmlName) const {
    const std::lock_guard lock(m_mutex);
    if (const auto found = m_texts.find({store, xmlName}); found != m_texts.end()) {
        return found->second;
    }
    if (m_baseStore != nullptr && zelString(store) == m_baseStore) {
        return zelString("<" + zelString(xmlName) + "/>");
    }
    return std::nullopt;
}

// Both stay for ever: threads may still load while the process ends.

TextStore& Templates() {
    static auto& templates = *new TextStore(TypedDataContainer::TDC_BASE_DATA_TEMPLATE);
    return templates;
}

TextStore& Models() {
    static auto& models = *new TextStore(nullptr);
    return models;
}

} // namespace Framework

bool TypedDataContainer::RegisterTemplate(const char* sStore, const char* sXMLName, const zelString& sXML) {
    return Framework::Templates().Register(sStore, sXMLName, sXML);
}

bool TypedDataContainer::RegisterModel(const char* sModel, const char* sXMLName, const zelString& sXML) {
    return Framework::Models().Register(sModel, sXMLName, sXML);
}
