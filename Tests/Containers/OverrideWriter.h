#pragma once

#include <string>
#include <vector>

#include "Containers/Sample.h"
#include "Containers/Values.h"

/// Writes a sample as an override by somebody who knows all words of merge control and makes every mistake.
class OverrideWriter {
public:
    explicit OverrideWriter(Samples::Random& random) : m_random(random) {}

    std::string Write(const Samples::Sample& sample) { return Element(sample, Chance(75) ? "" : Action(), {}); }

private:
    bool Chance(unsigned percent) { return m_random() % 100 < percent; }
    std::string OneOf(const std::vector<std::string>& texts) { return texts[m_random() % texts.size()]; }

    std::string Action() {
        return " MergeAction='" + OneOf({"Merge", "Add", "Replace", "Remove", "Clear", "Replace", "Clear", "Clera"}) +
               "'";
    }

    /// The neighbour may be the entry itself, or not be there.
    std::string Placement(const Samples::FieldSample& list) {
        const std::string order = OneOf({"First", "Last", "Before", "After", "Before", "After", "Top"});
        const std::string key = list.entries.empty() ? "none" : list.entries[m_random() % list.entries.size()].key;
        return " PlacementOrder='" + order + "'" +
               (order == "Before" || order == "After" || Chance(5)
                    ? " PlacementIndex=\"" + Samples::Escaped(Chance(90) ? key : "none") + "\""
                    : "") +
               (Chance(10) ? " PlacementFeature='Base'" : "");
    }

    std::string Words(const Samples::FieldSample& field, unsigned placements) {
        return (Chance(25) ? Action() : "") + (Chance(placements) ? Placement(field) : "");
    }

    std::string Text(const CatalogField& field, const std::string& text) {
        const bool isText = field.GetValue() == CatalogField::String;
        if (field.IsCData() && text.find("]]>") == std::string::npos) {
            return "beside<![CDATA[" + text + "]]>"; // only what is within counts
        }
        return isText || Chance(90) ? Samples::Escaped(text)
                                    : OneOf({"", "x", "99999999999", "-1e999", "YES", " 7 ", "0.30", "007"});
    }

    std::string Scalar(const Samples::FieldSample& field) {
        const std::string name(field.field.Name());
        const auto element = [&](const std::string& text) {
            return "<" + name + Words(field, 2) + ">" + Text(field.field, text) + "</" + name + ">\n";
        };
        return (Chance(10) ? element(OtherThan(field.field, field.text)) : "") + element(field.text);
    }

    std::string Entry(const Samples::FieldSample& list, const Samples::EntrySample& entry) {
        const std::string key(list.field.KeyAttribute());
        const bool isNumber = entry.key.find_first_not_of("0123456789") == std::string::npos; // then it stays one
        const bool hasKey = !key.empty() && !Chance(list.field.HasNumberedKeys() ? 50 : isNumber ? 0 : 3);
        if (entry.object != nullptr) {
            return Element(*entry.object, Words(list, 25), hasKey ? "" : key);
        }
        const std::string name(list.field.Name());
        return "<" + name + (hasKey ? " " + key + "=\"" + Samples::Escaped(entry.key) + "\"" : "") + Words(list, 25) +
               ">" + Text(list.field, entry.text) + "</" + name + ">\n";
    }

    std::string Inside(const Samples::FieldSample& field) {
        std::string xml = OneOf({"", "", "", "", "", "", "", "", "<Stranger a='1'/>\n", "stray\n"});
        for (const Samples::EntrySample& entry : field.entries) {
            xml += Entry(field, entry) + (Chance(10) ? Entry(field, entry) : "");
        }
        if (field.child != nullptr) {
            xml += Chance(10) ? Element(*field.child, Words(field, 2), {}) : "";
            xml += Element(*field.child, Words(field, 2), {});
        }
        return xml + (field.field.IsScalar() && field.present ? Scalar(field) : "");
    }

    /// An entry that loses its key is written without that attribute.
    std::string Element(const Samples::Sample& sample, const std::string& words, const std::string& withoutAttribute) {
        std::string tag = "<" + sample.name + words + (Chance(3) ? " stranger='1'" : "");
        std::string inside;
        for (const Samples::FieldSample& field : sample.fields) {
            if (field.field.GetForm() != CatalogField::Attribute) {
                inside += Inside(field);
            } else if (field.present && field.field.Name() != withoutAttribute) {
                const bool mayBeKey = field.field.GetValue() == CatalogField::Int; // then it is a plain number
                tag += " " + std::string(field.field.Name()) + "=\"" +
                       (mayBeKey ? field.text : Text(field.field, field.text)) + "\"";
            }
        }
        return tag + ">" + inside + "</" + sample.name + ">\n";
    }

    Samples::Random& m_random;
};
