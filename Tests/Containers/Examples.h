#pragma once

#include <algorithm>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Framework/ContainerCatalog.h"

/// A document of the examples with its overrides, all by their paths.
struct Example {
    std::filesystem::path document;
    std::vector<std::filesystem::path> overrides;
};

/// By root element. Two files are wrong by intent, and say so in their name.
inline std::map<std::string, Example> Examples() {
    std::map<std::string, Example> examples;
    for (const std::filesystem::directory_entry& entry : std::filesystem::directory_iterator(FRAMEWORK_EXAMPLES)) {
        const std::string name = entry.path().stem();
        const std::size_t dot = name.find('.');
        const std::string feature = dot == std::string::npos ? "" : name.substr(dot + 1);
        if (entry.path().extension() != ".xml" || feature == "broken" || feature == "mistakes") {
            continue;
        }
        Example& example = examples[name.substr(0, dot)];
        if (feature.empty()) {
            example.document = entry.path();
        } else {
            example.overrides.push_back(entry.path());
        }
    }
    for (auto& [root, example] : examples) {
        std::sort(example.overrides.begin(), example.overrides.end());
    }
    return examples;
}

inline void ForEveryExample(const std::function<void(CatalogClass, const Example&)>& check) {
    for (const auto& [root, example] : Examples()) {
        SCOPED_TRACE(root);
        check(ContainerCatalog::FindRoot(root), example);
    }
}
