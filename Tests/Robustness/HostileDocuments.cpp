#include "Robustness/HostileDocuments.h"

#include <utility>

namespace Robustness {

HostileDocument Fixed(std::string name, std::string refusal, std::string text) {
    return {std::move(name), std::move(refusal), [text = std::move(text)](std::size_t) { return text; }};
}

std::string InValue(std::string_view inside) {
    return "<TranslationConfig><TranslationText><TranslationKeyMap><Translation LookupData='k'><ResultValue>\n" +
           std::string(inside) +
           "</ResultValue></Translation></TranslationKeyMap></TranslationText></TranslationConfig>";
}

std::string InRoot(std::string_view inside) {
    return "<TranslationConfig>\n" + std::string(inside) +
           "<TranslationText><TranslationKeyMap language='v'/>"
           "</TranslationText></TranslationConfig>";
}

std::string InTag(std::string_view inside) {
    return "<TranslationConfig><TranslationText><TranslationKeyMap language='v'/></TranslationText><stranger\n" +
           std::string(inside) + "/></TranslationConfig>";
}

std::string InProlog(std::string_view inside, std::string_view rest) {
    return "<?xml version='1.0'?>\n" + std::string(inside) + std::string(rest);
}

} // namespace Robustness
