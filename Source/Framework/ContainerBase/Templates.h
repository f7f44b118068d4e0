#pragma once

#include <map>
#include <mutex>
#include <optional>
#include <utility>

#include "Framework/ZelString.h"

namespace Framework {

/// XML texts that the host registered, by store and XML name. Safe from any thread.
class TextStore {
public:
    /// `baseStore`: the store that gives an empty element where nothing is registered; null when there is none.
    explicit TextStore(const char* baseStore) : m_baseStore(baseStore) {}

    /// False when the text is no XML document.
    bool Register(const char* store, const char* xmlName, const zelString& xml);
    std::optional<zelString> Find(const char* store, const char* xmlName) const;

private:
    const char* m_baseStore;
    mutable std::mutex m_mutex;
    std::map<std::pair<zelString, zelString>, zelString> m_texts;
};

TextStore& Templates();
TextStore& Models();

} // namespace Framework
