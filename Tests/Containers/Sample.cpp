#include "Containers/Sample.h"

#include <algorithm>

#include "Framework/FieldPath.h"

namespace Samples {

namespace {

enum class Noise { None, Strangers, Repeats };

bool Chance(Random& random, unsigned percent) {
    return random() % 100 < percent;
}

std::string MakeText(Random& random, const std::string& name) {
    static const char* const spice[] = {"",  "it's", "\"q\"", "<&>", "]]>", "\xC3\xA9\xE3\x81\x82", " and @x='y' ",
                                        " ", "a]b/c"};
    return name + spice[random() % std::size(spice)] + std::to_string(random() % 1000);
}

std::string MakeScalar(const CatalogField& field, Random& random) {
    switch (field.GetValue()) {
    case CatalogField::String:
        return MakeText(random, std::string(field.Name()));
    case CatalogField::Bool:
        return Chance(random, 50) ? "true" : "false";
    case CatalogField::Int:
        return std::to_string(static_cast<int>(random() % 100000) - 50000);
    case CatalogField::Double:
        return std::to_string(random() % 1000) + ".5";
    case CatalogField::Enumeration: {
        const std::vector<zelString> words = field.Words();
        return words[random() % words.size()];
    }
    case CatalogField::Container:
        break;
    }
    return {};
}

std::string MakeKey(const CatalogField& list, int number, bool numberOnly) {
    if (numberOnly || list.HasNumberedKeys()) {
        return std::to_string(number);
    }
    return "key '" + std::to_string(number) + "' <\"\xC3\xBC\">/]";
}

FieldSample& FieldOf(Sample& sample, std::string_view name) {
    return *std::find_if(sample.fields.begin(), sample.fields.end(),
                         [name](const FieldSample& field) { return field.field.Name() == name; });
}

void MakeEntries(FieldSample& sample, Random& random, int firstKey, bool everything) {
    const CatalogField& list = sample.field;
    const int count = everything ? 2 : static_cast<int>(random() % 4);
    for (int number = firstKey; number < firstKey + count; ++number) {
        EntrySample entry;
        if (list.GetValue() == CatalogField::Container) {
            const CatalogClass type = ContainerCatalog::FindClass(list.ClassName());
            entry.object = std::make_unique<Sample>(Make(type, std::string(list.Name()), random, firstKey, everything));
            if (list.GetForm() == CatalogField::KeyedList) {
                FieldSample& key = FieldOf(*entry.object, list.KeyAttribute());
                entry.key = MakeKey(list, number, key.field.GetValue() == CatalogField::Int);
                key.present = true;
                key.text = entry.key;
            }
        } else {
            entry.text = MakeScalar(list, random);
            entry.key = list.GetForm() == CatalogField::KeyedList ? MakeKey(list, number, false) : "";
        }
        sample.entries.push_back(std::move(entry));
    }
}

/// What a load leaves in a scalar of which the document says nothing.
std::string Absent(const CatalogField& field) {
    if (field.GetForm() == CatalogField::Attribute) {
        return field.GetValue() == CatalogField::Bool ? "false" : field.GetValue() == CatalogField::Int ? "0" : "";
    }
    return field.LoadText().empty() ? std::string(field.DefaultText()) : std::string(field.LoadText());
}

/// Of a CDATA element nothing may stand outside the section, where it would not be read.
std::string WriteText(const std::string& text, bool isCData, Random& random, Noise noise) {
    const bool canBeSection = text.find("]]>") == std::string::npos;
    if (noise != Noise::None && canBeSection && Chance(random, 30)) {
        const std::size_t half = isCData || text.find('&') == std::string::npos ? text.size() : text.find('&');
        return "<![CDATA[" + text.substr(0, half) + "]]>" + Escaped(text.substr(half));
    }
    return Escaped(text);
}

std::string WriteElement(const Sample& sample, Random& random, Noise noise);

void WriteField(const FieldSample& sample, Random& random, Noise noise, std::vector<std::string>& parts) {
    const std::string name(sample.field.Name());
    const bool isRepeated = noise == Noise::Repeats && Chance(random, 50);
    if (isRepeated && sample.child != nullptr) {
        parts.push_back(WriteElement(Make(sample.child->type, name, random, 50), random, noise));
    } else if (isRepeated && sample.field.IsScalar()) {
        parts.push_back("<" + name + ">" + Escaped(MakeScalar(sample.field, random)) + "</" + name + ">");
    }
    if (sample.child != nullptr) {
        parts.push_back(WriteElement(*sample.child, random, noise));
    } else if (sample.field.IsScalar() && sample.present) {
        parts.push_back("<" + name + ">" + WriteText(sample.text, sample.field.IsCData(), random, noise) + "</" + name +
                        ">");
    }
}

/// The entries of one list in their order: a list keeps the order of the document.
void WriteEntries(const FieldSample& sample, Random& random, Noise noise, std::vector<std::string>& parts) {
    const std::string name(sample.field.Name());
    int misleading = 90;
    for (const EntrySample& entry : sample.entries) {
        if (entry.object != nullptr) {
            parts.push_back(WriteElement(*entry.object, random, noise));
            continue;
        }
        const bool numbered = sample.field.HasNumberedKeys();
        const std::string key = numbered && noise != Noise::None ? std::to_string(misleading--) : entry.key;
        const std::string attribute =
            sample.field.KeyAttribute().empty()
                ? ""
                : " " + std::string(sample.field.KeyAttribute()) + "=\"" + Escaped(key) + "\"";
        parts.push_back("<" + name + attribute + ">" + WriteText(entry.text, false, random, noise) + "</" + name + ">");
    }
}

std::string Stranger(Random& random, const std::string& name) {
    std::string lower = name;
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? char(c + 32) : char(c ^ 32); });
    const std::string strangers[] = {"<!-- " + name + " -->",
                                     "<?" + name + " x?>",
                                     "<x:" + name + ">stray</x:" + name + ">",
                                     "<" + lower + ">stray</" + lower + ">",
                                     "stray",
                                     "\n\t",
                                     "<Stranger a='1'><b/></Stranger>"};
    return strangers[random() % std::size(strangers)];
}

std::string WriteElement(const Sample& sample, Random& random, Noise noise) {
    std::string text = "<" + sample.name;
    std::vector<std::vector<std::string>> fields; // what may change places as a whole
    for (const FieldSample& field : sample.fields) {
        if (field.field.GetForm() == CatalogField::Attribute) {
            if (field.present) {
                text += " " + std::string(field.field.Name()) + "=\"" + Escaped(field.text) + "\"";
            }
            continue;
        }
        std::vector<std::string> parts;
        if (field.field.IsList()) {
            WriteEntries(field, random, noise, parts);
        } else {
            WriteField(field, random, noise, parts);
        }
        fields.push_back(std::move(parts));
    }
    text += ">";
    if (noise != Noise::None) {
        std::shuffle(fields.begin(), fields.end(), random);
    }
    for (const std::vector<std::string>& parts : fields) {
        for (const std::string& part : parts) {
            text += noise != Noise::None && Chance(random, 40)
                        ? Stranger(random, std::string(sample.fields[0].field.Name()))
                        : "";
            text += part;
        }
    }
    return text + "</" + sample.name + ">";
}

/// What a load makes of a sample: numbered lists are numbered anew.
std::unique_ptr<Sample> LoadedCopy(const Sample& sample) {
    auto copy = std::make_unique<Sample>(Sample{sample.type, sample.name, {}});
    for (const FieldSample& field : sample.fields) {
        FieldSample& made = copy->fields.emplace_back(field.field);
        made.present = field.present;
        made.text = field.text;
        made.child = field.child == nullptr ? nullptr : LoadedCopy(*field.child);
        for (const EntrySample& entry : field.entries) {
            const std::string key = field.field.HasNumberedKeys() ? std::to_string(made.entries.size() + 1) : entry.key;
            made.entries.push_back({key, entry.text, entry.object == nullptr ? nullptr : LoadedCopy(*entry.object)});
        }
    }
    return copy;
}

} // namespace

std::string Escaped(const std::string& text) {
    std::string escaped;
    for (const char c : text) {
        escaped += c == '<' ? "&lt;" : c == '&' ? "&amp;" : c == '"' ? "&quot;" : c == '>' ? "&gt;" : std::string(1, c);
    }
    return escaped;
}

Sample Make(CatalogClass type, const std::string& name, Random& random, int firstKey, bool everything) {
    Sample sample{type, name, {}};
    for (const CatalogField& field : type.Fields()) {
        FieldSample made(field);
        made.present = everything || Chance(random, 75);
        if (field.IsScalar()) {
            made.text = MakeScalar(field, random);
        } else if (field.GetForm() == CatalogField::Child) {
            if (made.present) {
                made.child = std::make_unique<Sample>(Make(ContainerCatalog::FindClass(field.ClassName()),
                                                           std::string(field.Name()), random, firstKey, everything));
            }
        } else {
            MakeEntries(made, random, firstKey, everything);
        }
        sample.fields.push_back(std::move(made));
    }
    return sample;
}

Sample Read(TypedDataContainer& object) {
    Sample sample{ContainerCatalog::ClassOf(object), object.GetContainerName(), {}};
    for (const CatalogField& field : sample.type.Fields()) {
        FieldSample& read = sample.fields.emplace_back(field);
        read.present = true;
        read.text = field.GetText(object);
        if (TypedDataContainer* const child = field.GetChild(object)) {
            read.child = std::make_unique<Sample>(Read(*child));
        }
        for (std::size_t i = 0; i < field.Length(object); ++i) {
            TypedDataContainer* const entry = field.Entry(object, i);
            read.entries.push_back({field.EntryKey(object, i), field.EntryText(object, i),
                                    entry == nullptr ? nullptr : std::make_unique<Sample>(Read(*entry))});
        }
    }
    return sample;
}

void Reset(Sample& sample, bool keepAttributes) {
    for (FieldSample& field : sample.fields) {
        if (!keepAttributes || field.field.GetForm() != CatalogField::Attribute) {
            field.present = true; // with the constructor's text, which a load may not give
            field.text = field.field.IsScalar() ? field.field.DefaultText() : "";
        }
        field.entries.clear();
        if (field.child != nullptr) {
            Reset(*field.child, false);
        }
    }
}

void MergeField(FieldSample& into, const FieldSample& from) {
    if (into.field.IsScalar() && from.present) {
        into.present = true;
        into.text = from.text;
    }
    if (from.child != nullptr && into.child != nullptr) {
        Merge(*into.child, *from.child);
    } else if (from.child != nullptr) {
        into.child = LoadedCopy(*from.child);
    }
    for (const EntrySample& entry : from.entries) {
        const auto known = std::find_if(into.entries.begin(), into.entries.end(), [&](const EntrySample& candidate) {
            return into.field.GetForm() == CatalogField::KeyedList && candidate.key == entry.key;
        });
        if (known == into.entries.end()) {
            into.entries.push_back({entry.key, entry.text, entry.object ? LoadedCopy(*entry.object) : nullptr});
        } else if (entry.object != nullptr) {
            Merge(*known->object, *entry.object);
        } else {
            known->text = entry.text;
        }
    }
}

void Merge(Sample& base, const Sample& over) {
    for (std::size_t i = 0; i < base.fields.size(); ++i) {
        MergeField(base.fields[i], over.fields[i]);
    }
}

bool Move(std::vector<EntrySample>& entries, std::size_t position, const std::string& where) {
    EntrySample entry = std::move(entries[position]);
    entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(position));
    std::ptrdiff_t to = where == "First" ? 0 : static_cast<std::ptrdiff_t>(entries.size());
    if (where != "First" && where != "Last") {
        const bool isBehind = where.starts_with("After ");
        const std::string neighbour = where.substr(isBehind ? 6 : 7); // behind "After " or "Before "
        const auto found = std::find_if(entries.begin(), entries.end(),
                                        [&](const EntrySample& each) { return each.key == neighbour; });
        to = found - entries.begin() + (isBehind && found != entries.end() ? 1 : 0);
    }
    entries.insert(entries.begin() + to, std::move(entry));
    return to != static_cast<std::ptrdiff_t>(position);
}

std::string ToXml(const Sample& sample, Random& random, bool noise) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" +
           WriteElement(sample, random, noise ? Noise::Strangers : Noise::None) + "\n";
}

std::string ToXmlWithRepeats(const Sample& sample, Random& random) {
    return WriteElement(sample, random, Noise::Repeats);
}

std::string EntryStep(const FieldSample& list, std::size_t position) {
    const CatalogField& field = list.field;
    return field.GetForm() == CatalogField::KeyedList
               ? FieldPath::KeyStep(field.Name(), field.KeyAttribute(), list.entries[position].key)
               : FieldPath::PositionStep(field.Name(), position + 1);
}

void ForEachPart(const Sample& sample, const std::string& path, const Visit& visit) {
    visit(path, nullptr, sample.name);
    for (const FieldSample& field : sample.fields) {
        const std::string here = FieldPath::Join(path, field.field.Name());
        if (field.field.IsScalar()) {
            visit(here, &field, field.text);
        } else if (field.child != nullptr) {
            ForEachPart(*field.child, here, visit);
        }
        for (std::size_t i = 0; i < field.entries.size(); ++i) {
            const std::string entryPath = FieldPath::Join(path, EntryStep(field, i));
            if (const EntrySample& entry = field.entries[i]; entry.object == nullptr) {
                visit(entryPath, &field, entry.text);
            } else {
                ForEachPart(*entry.object, entryPath, visit);
            }
        }
    }
}

std::vector<std::string> Lines(const Sample& sample) {
    std::vector<std::string> lines;
    ForEachPart(sample, "", [&lines](const std::string& path, const FieldSample* field, const std::string& text) {
        const bool isAbsent = field != nullptr && field->field.IsScalar() && !field->present;
        lines.push_back(path + (field == nullptr ? " is " : "=") + (isAbsent ? Absent(field->field) : text));
    });
    return lines;
}

std::vector<std::string> Lines(TypedDataContainer& object) {
    return Lines(Read(object));
}

} // namespace Samples
