#include "ValueSum.h"

#include <charconv>
#include <cstring>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

#include <expat.h>

using namespace Bench;

namespace {

struct Reading {
    ValueSum values;
    std::string text;
    bool isLeaf = false;

    void Add(std::string_view name, std::string_view value) {
        const std::hash<std::string_view> hashText;
        double number = 0;
        const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
        const bool isNumber = error == std::errc() && end == value.data() + value.size();
        if (value.empty() || value == "false" || (isNumber && number == 0)) {
            return;
        }
        const std::uint64_t hash = isNumber ? std::hash<double>()(number) : hashText(value);
        ++values.count;
        values.sum += (hash ^ (hashText(name) * 31)) * 0x9E3779B97F4A7C15;
    }
};

void StartElement(void* user, const XML_Char*, const XML_Char** attributes) {
    Reading& reading = *static_cast<Reading*>(user);
    reading.text.clear();
    reading.isLeaf = true;
    for (; *attributes != nullptr; attributes += 2) {
        if (std::strchr(attributes[0], ':') == nullptr) {
            reading.Add(attributes[0], attributes[1]);
        }
    }
}

void EndElement(void* user, const XML_Char* name) {
    Reading& reading = *static_cast<Reading*>(user);
    if (reading.isLeaf) {
        reading.Add(name, reading.text);
    }
    reading.isLeaf = false;
}

void Text(void* user, const XML_Char* text, int length) {
    static_cast<Reading*>(user)->text.append(text, static_cast<std::size_t>(length));
}

} // namespace

ValueSum Bench::SumOfValues(std::string_view xml) {
    Reading reading;
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(XML_ParserCreate(nullptr),
                                                                              XML_ParserFree);
    XML_SetUserData(parser.get(), &reading);
    XML_SetElementHandler(parser.get(), StartElement, EndElement);
    XML_SetCharacterDataHandler(parser.get(), Text);
    if (XML_Parse(parser.get(), xml.data(), static_cast<int>(xml.size()), 1) == XML_STATUS_ERROR) {
        throw std::runtime_error(XML_ErrorString(XML_GetErrorCode(parser.get())));
    }
    return reading.values;
}
