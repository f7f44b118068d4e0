#pragma once

#include <charconv>
#include <string>

#include "Model.h"

// The structs of Model.h to and from the nodes of any tree. A node type offers FirstElement, NextElement, Is,
// ReadAttribute and ReadText to be read; Add, SetAttribute and SetText to be written.
namespace Bench::Model {

inline void Parse(std::string& text, std::string& value) {
    value = std::move(text);
}
inline void Parse(const std::string& text, bool& value) {
    value = text == "true" || text == "1";
}
template <class Number>
requires std::is_arithmetic_v<Number>
void Parse(const std::string& text, Number& value) {
    std::from_chars(text.data(), text.data() + text.size(), value);
}

inline const std::string& TextOf(const std::string& value) {
    return value;
}
inline std::string TextOf(bool value) {
    return value ? "true" : "false";
}
template <class Number>
requires std::is_arithmetic_v<Number> std::string TextOf(Number value) {
    char buffer[32];
    return std::string(buffer, std::to_chars(buffer, buffer + sizeof(buffer), value).ptr);
}

template <class Node, class Object> void Bind(const Node& node, Object& object);

/// Reads the attributes of an element, and its text where that is a field.
template <class Node> struct AttributeReader {
    const Node& node;

    template <class Value> void Attribute(Name name, Value& value) {
        std::string text;
        if (node.ReadAttribute(name, text)) {
            Parse(text, value);
        }
    }
    void Content(std::string& value) { node.ReadText(value); }
    template <class Value> void Element(Name, Value&) {}
    template <class Value> void Texts(Name, Value&) {}
    template <class Value> void Child(Name, Value&) {}
    template <class Value> void List(Name, Value&) {}
};

/// Reads one element into the field that bears its name.
template <class Node> struct ElementReader {
    const Node& node;
    bool isDone = false;

    bool IsIt(Name name) { return !isDone && node.Is(name) && (isDone = true); }
    template <class Value> void Attribute(Name, Value&) {}
    void Content(std::string&) {}
    template <class Value> void Element(Name name, Value& value) {
        if (IsIt(name)) {
            std::string text;
            node.ReadText(text);
            Parse(text, value);
        }
    }
    void Texts(Name name, std::vector<std::string>& texts) {
        if (IsIt(name)) {
            node.ReadText(texts.emplace_back());
        }
    }
    template <class Value> void Child(Name name, Optional<Value>& child) {
        if (IsIt(name)) {
            child = std::make_unique<Value>();
            Bind(node, *child);
        }
    }
    template <class Value> void List(Name name, KeyedList<Value>& list) {
        if (IsIt(name)) {
            auto entry = std::make_unique<Value>();
            Bind(node, *entry);
            list.Add(std::move(entry));
        }
    }
};

template <class Node, class Object> void Bind(const Node& node, Object& object) {
    AttributeReader<Node> attributes{node};
    Describe(attributes, object);
    for (Node child = node.FirstElement(); child; child = child.NextElement()) {
        ElementReader<Node> element{child};
        Describe(element, object);
    }
}

/// Makes the attributes and elements of an object in a new tree; an empty text is left out.
template <class Node> struct Builder {
    Node node;

    template <class Value> void Attribute(Name name, const Value& value) {
        if (const std::string& text = TextOf(value); !text.empty()) {
            node.SetAttribute(name, text);
        }
    }
    void Content(const std::string& value) { node.SetText(value); }
    template <class Value> void Element(Name name, const Value& value) {
        if (const std::string& text = TextOf(value); !text.empty()) {
            node.Add(name).SetText(text);
        }
    }
    void Texts(Name name, const std::vector<std::string>& texts) {
        for (const std::string& text : texts) {
            node.Add(name).SetText(text);
        }
    }
    template <class Value> void Child(Name name, const Optional<Value>& child) {
        if (child != nullptr) {
            Builder below{node.Add(name)};
            Describe(below, *child);
        }
    }
    template <class Value> void List(Name name, const KeyedList<Value>& list) {
        for (const auto& entry : list.entries) {
            Builder below{node.Add(name)};
            Describe(below, *entry);
        }
    }
};

/// Takes over what another object of the type holds.
struct Merger {
    void Attribute(Name, std::string& value, std::string& other) { Content(value, other); }
    template <class Value> void Attribute(Name, Value& value, Value& other) { Take(value, other); }
    void Content(std::string& value, std::string& other) {
        if (!other.empty()) {
            value = std::move(other);
        }
    }
    void Element(Name, std::string& value, std::string& other) { Content(value, other); }
    template <class Value> void Element(Name, Value& value, Value& other) { Take(value, other); }
    void Texts(Name, std::vector<std::string>& texts, std::vector<std::string>& others) {
        for (std::string& text : others) {
            texts.push_back(std::move(text));
        }
    }
    template <class Value> void Child(Name, Optional<Value>& child, Optional<Value>& other) {
        if (child == nullptr) {
            child = std::move(other);
        } else if (other != nullptr) {
            Describe(*this, *child, *other);
        }
    }
    template <class Value> void List(Name, KeyedList<Value>& list, KeyedList<Value>& other) {
        for (auto& entry : other.entries) {
            const auto found = list.byKey.find(entry->Key());
            if (found == list.byKey.end()) {
                list.Add(std::move(entry));
            } else {
                Describe(*this, *found->second, *entry);
            }
        }
    }

private:
    template <class Value> void Take(Value& value, const Value& other) {
        if (other != Value()) {
            value = other;
        }
    }
};

/// Reads every field of an object that has no lists.
struct Reader {
    std::size_t sum = 0;

    void Element(Name, const std::string& value) { sum += value.size(); }
    template <class Value> void Element(Name, const Value& value) { sum += static_cast<std::size_t>(value); }
    template <class Value> void Child(Name, const Optional<Value>& child) { Describe(*this, *child); }
};

/// Looks up every entry of every list by its key.
struct Finder {
    std::size_t missing = 0;

    template <class Value> void Attribute(Name, const Value&) {}
    void Content(const std::string&) {}
    template <class Value> void Element(Name, const Value&) {}
    void Texts(Name, const std::vector<std::string>&) {}
    template <class Value> void Child(Name, const Optional<Value>& child) {
        if (child != nullptr) {
            Describe(*this, *child);
        }
    }
    template <class Value> void List(Name, const KeyedList<Value>& list) {
        for (const auto& entry : list.entries) {
            const auto found = list.byKey.find(entry->Key());
            missing += found == list.byKey.end();
            Describe(*this, *found->second);
        }
    }
};

} // namespace Bench::Model
