#include "Documents.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "PacketFields.h"
#include "Random.h"

using namespace Bench;

namespace {

constexpr std::array words = {
    "please",  "scan",  "your",   "item",  "bag",  "scale",  "attendant", "coupon", "card",   "cash",   "change",
    "receipt", "place", "in",     "the",   "area", "remove", "wait",      "help",   "is",     "coming", "approved",
    "weight",  "lane",  "closed", "price", "per",  "unit",   "total",     "and",    "select", "fruit",  "vegetables"};
constexpr std::array foreignWords = {
    "veuillez", "présenter", "votre", "article", "sac",  "balance", "à",        "caissière", "carte",     "espèces",
    "monnaie",  "reçu",      "poser", "dans",    "zone", "retirer", "attendre", "l'aide",    "arrive",    "accepté",
    "poids",    "fermée",    "prix",  "unité",   "et",   "choisir", "légumes",  "&amp;",     "« fruits »"};
constexpr std::array actions = {"GoTo",      "LampSet",     "ScreenShow", "LogWrite",     "SoundPlay",
                                "ScaleTare", "DeviceReset", "ItemQueue",  "TenderRecord", "AttendantCall"};
constexpr std::array values = {"Red", "Attract", "true", "15", "LaneBase", "FinishAndPay", "Bagging", "OutOfService"};
constexpr std::array sources = {"Literal", "State", "Trigger", "Session", "Config"};

template <class Words> std::string Sentence(Random& random, const Words& from, std::size_t length) {
    std::string text = from[random.Below(from.size())];
    for (std::size_t i = 1; i < length; ++i) {
        text.append(" ").append(from[random.Below(from.size())]);
    }
    return text;
}

std::string Number(std::size_t number, std::size_t digits) {
    const std::string text = std::to_string(number);
    return std::string(digits - std::min(digits, text.size()), '0') + text;
}

/// Writes elements with their indentation.
class Writer {
public:
    explicit Writer(std::string root, std::size_t bytes = 0) {
        m_text.reserve(bytes);
        m_text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
        Open(std::move(root));
    }
    void Open(std::string name, std::string_view attributes = {}) {
        Line().append("<").append(name).append(attributes).append(">\n");
        m_open.push_back(std::move(name));
    }
    void Close() {
        const std::string name = std::move(m_open.back());
        m_open.pop_back();
        Line().append("</").append(name).append(">\n");
    }
    void Leaf(std::string_view name, std::string_view text, std::string_view attributes = {}) {
        Line().append("<").append(name).append(attributes).append(">").append(text);
        m_text.append("</").append(name).append(">\n");
    }
    void Empty(std::string_view name, std::string_view attributes) {
        Line().append("<").append(name).append(attributes).append("/>\n");
    }
    std::size_t Size() const { return m_text.size(); }
    std::string Finish() {
        while (!m_open.empty()) {
            Close();
        }
        return std::move(m_text);
    }

private:
    std::string& Line() { return m_text.append(2 * m_open.size(), ' '); }

    std::string m_text;
    std::vector<std::string> m_open;
};

std::string Attribute(std::string_view name, std::string_view value) {
    return std::string(" ").append(name).append("=\"").append(value).append("\"");
}

/// Which entries a text has, and which values they have: an override has the same structure and other values.
struct Part {
    std::size_t every = 1;
    std::uint64_t salt = 0;
};
constexpr Part tenth = {10, 0x5EED};

void WriteTranslation(Writer& to, const TranslationShape& shape, std::size_t number, Part part) {
    Random structure(number);
    Random value(number + part.salt + 1);
    const std::string key = Sentence(structure, words, 2 + structure.Below(4)) +
                            (structure.Once(12) ? " &quot;now&quot; " : " ") + Number(number, 6);
    to.Open("Translation", Attribute("LookupData", key));
    to.Leaf("ResultValue",
            Sentence(value, foreignWords, shape.wordsPerText / 2 + value.Below(shape.wordsPerText + 1) + 1));
    const std::size_t notes = shape.notesPerEntry / part.every + (structure.Once(10) ? 1 : 0);
    for (std::size_t i = 0; i < notes; ++i) {
        to.Leaf("Doc", Sentence(structure, words, 8));
    }
    to.Close();
}

std::string TranslationText(const TranslationShape& shape, Part part) {
    Writer to("TranslationConfig", shape.entries / part.every * 200);
    to.Open("TranslationText");
    to.Open("TranslationKeyMap", Attribute("language", "fr-FR"));
    for (std::size_t i = 0; i < shape.entries; i += part.every) {
        WriteTranslation(to, shape, i, part);
        if (part.every > 1 && i / part.every % 10 == 0) {
            WriteTranslation(to, shape, shape.entries + i, part);
        }
    }
    return to.Finish();
}

class StateWriter {
public:
    StateWriter(Writer& to, const StateShape& shape, std::size_t number, Part part)
        : m_to(to), m_shape(shape), m_structure(number), m_value(number + part.salt + 1), m_number(number) {}

    void WriteState() {
        std::string attributes = Attribute("Name", "State" + Number(m_number, 6));
        if (m_structure.Once(4)) {
            attributes += Attribute("Transient", "true");
        }
        if (m_structure.Once(3)) {
            attributes += Attribute("CacheActions", "true");
        }
        m_to.Open("State", attributes + Attribute("BaseState", "LaneBase"));
        m_to.Leaf("Doc", Sentence(m_value, words, 9), Attribute("Index", "1"));
        if (m_structure.Once(2)) {
            WriteItem("PreStateTrigger", 1);
        }
        m_to.Open("StateTriggers");
        const std::size_t first = m_structure.Below(40);
        const std::size_t triggers = 2 + m_structure.Below(4);
        for (std::size_t i = 0; i < triggers; ++i) {
            WriteTrigger(first + i);
        }
        m_to.Close();
        if (m_structure.Once(4)) {
            WriteItem("PostStateTrigger", 1);
        }
        for (std::size_t i = 0; i < m_shape.unknownLevels; ++i) {
            m_to.Open("Level", Attribute("Number", Number(i, 3)));
        }
        for (std::size_t i = 0; i < m_shape.unknownLevels; ++i) {
            m_to.Close();
        }
        m_to.Close();
    }

private:
    std::string Key(const char* name, std::size_t number) {
        return name + (m_shape.distinctKeys == 0 ? Number(++m_keys, 3) + "Of" + Number(m_number, 6)
                                                 : Number(number % m_shape.distinctKeys, 2));
    }

    void WriteTrigger(std::size_t number) {
        m_to.Open("StateAction", Attribute("Trigger", Key("Trigger", number)));
        if (m_structure.Once(5)) {
            m_to.Leaf("Doc", Sentence(m_value, words, 7), Attribute("Index", "1"));
        }
        const std::size_t items = 1 + m_structure.Below(2);
        for (std::size_t i = 1; i <= items; ++i) {
            WriteItem("ActionItem", i);
        }
        if (m_structure.Once(8)) {
            m_to.Leaf("ActionListCached", "true");
        }
        m_to.Close();
    }

    void WriteItem(const char* name, std::size_t index) {
        m_to.Open(name, Attribute("Index", std::to_string(index)));
        WriteAction();
        if (m_structure.Once(3)) {
            m_to.Open("ActionResp");
            const std::size_t results = 1 + m_structure.Below(3);
            for (std::size_t i = 0; i < results; ++i) {
                m_to.Open("PostActionResp", Attribute("Result", std::to_string(static_cast<int>(i) - 1)));
                WriteAction();
                m_to.Close();
            }
            m_to.Close();
        }
        m_to.Close();
    }

    void WriteAction() {
        m_to.Leaf("ActionRef", actions[m_structure.Below(actions.size())]);
        m_to.Open("ActionData");
        const std::size_t data = m_shape.dataPerItem != 0 ? m_shape.dataPerItem : 1 + m_structure.Below(3);
        for (std::size_t i = 0; i < data; ++i) {
            WriteDatum(i);
        }
        m_to.Close();
    }

    void WriteDatum(std::size_t position) {
        std::string attributes = Attribute("Name", Key("Datum", position));
        if (m_shape.moreAttributes > 0) {
            attributes += Attribute("SourceType", "Literal") + Attribute("Source", "Screen of the lane") +
                          Attribute("PreProcess", "FormatCurrency") + Attribute("RootData", "true") +
                          Attribute("ReadOnly", "true") + Attribute("ExtraData", "none");
            for (std::size_t i = 0; i < m_shape.moreAttributes; ++i) {
                attributes += Attribute("More" + Number(i, 2), values[m_structure.Below(values.size())]);
            }
        } else if (m_structure.Once(4)) {
            attributes += Attribute("SourceType", sources[m_structure.Below(sources.size())]) +
                          Attribute("Source", "Balance" + Number(m_value.Below(100), 2));
            m_to.Empty("Data", attributes);
            return;
        }
        m_to.Open("Data", attributes);
        m_to.Leaf("Value", values[m_value.Below(values.size())] + Number(m_value.Below(1000), 3));
        if (m_shape.hasInputs) {
            WriteInputs();
        }
        if (m_structure.Once(20)) {
            WriteDataList();
        }
        m_to.Close();
    }

    void WriteDataList() {
        m_to.Open("DataList");
        for (const char* const language : {"en-US", "fr-FR", "de-DE"}) {
            m_to.Open("DataListItem", Attribute("Name", language) + Attribute("DataType", "Text"));
            m_to.Leaf("Value", Sentence(m_value, foreignWords, 5));
            m_to.Close();
        }
        m_to.Close();
    }

    void WriteInputs() {
        m_to.Open("VarInput");
        m_to.Open("InputSource");
        m_to.Leaf("PreProcessRef", "DeviceList");
        m_to.Open("PreProcessData");
        m_to.Open("ProcessData", Attribute("Name", "Kind"));
        m_to.Leaf("Value", "Serial" + Number(m_value.Below(1000), 3));
        for (int i = 0; i < 4; ++i) {
            m_to.Close();
        }
    }

    Writer& m_to;
    const StateShape& m_shape;
    Random m_structure;
    Random m_value;
    std::size_t m_number;
    std::size_t m_keys = 0;
};

std::string StateText(const StateShape& shape, Part part) {
    Writer to("StateProcessingRoot", shape.bytes / part.every * 12 / 10);
    to.Open("StateTable", Attribute("Name", "LaneStates") + Attribute("InitialState", "State000000"));
    for (std::size_t i = 0; to.Size() < shape.bytes / part.every; ++i) {
        StateWriter(to, shape, i * part.every, part).WriteState();
        if (part.every > 1 && i % 10 == 0) {
            StateWriter(to, shape, 500'000 + i, part).WriteState();
        }
    }
    return to.Finish();
}

std::string PacketText(std::size_t number) {
    Random random(number);
    Writer to("LoggingInformationPacket", 2000);
    to.Leaf("PacketType", "END_TRANSACTION");
    to.Leaf("Lane", std::to_string(1 + random.Below(20)));
    to.Leaf("TimeStamp", "2024-05-17T18:42:07." + Number(random.Below(1000), 3));
    to.Open("ItemInformation");
    const auto price = [&] { return Number(random.Below(99), 1) + "." + Number(1 + 2 * random.Below(5), 1) + "5"; };
#define BENCH_WORD(name, word) to.Leaf(#name, word);
#define BENCH_TEXT(name) to.Leaf(#name, "L04-" + Number(random.Below(10'000'000), 7));
#define BENCH_INT(name) to.Leaf(#name, std::to_string(1 + random.Below(5000)));
#define BENCH_BOOL(name) to.Leaf(#name, random.Once(2) ? "true" : "false");
#define BENCH_DOUBLE(name) to.Leaf(#name, price());
    BENCH_ITEM_FIELDS(BENCH_WORD, BENCH_TEXT, BENCH_INT, BENCH_BOOL, BENCH_DOUBLE)
#undef BENCH_WORD
#undef BENCH_TEXT
#undef BENCH_INT
#undef BENCH_BOOL
#undef BENCH_DOUBLE
    return to.Finish();
}

} // namespace

Document Bench::MakeTranslations(std::string name, const TranslationShape& shape) {
    return {std::move(name), Kind::Translations, TranslationText(shape, {}), TranslationText(shape, tenth), {}};
}

Document Bench::MakeStates(std::string name, const StateShape& shape) {
    return {std::move(name), Kind::States, StateText(shape, {}), StateText(shape, tenth), {}};
}

Document Bench::MakePackets(std::string name, std::size_t count) {
    Document packets{std::move(name), Kind::Packets, PacketText(0), {}, {}};
    for (std::size_t i = 0; i < count; ++i) {
        packets.packets.push_back(PacketText(i));
    }
    return packets;
}

std::vector<Document> Bench::MakeWorkloads(bool isQuick) {
    std::vector<Document> documents;
    documents.push_back(MakeTranslations("W1 1k", {.entries = 1000}));
    documents.push_back(MakeTranslations("W1 10k", {.entries = 10'000}));
    if (!isQuick) {
        documents.push_back(MakeTranslations("W1 100k", {.entries = 100'000}));
    }
    documents.push_back(MakeStates("W2 1MB", {.bytes = 1'000'000}));
    if (!isQuick) {
        documents.push_back(MakeStates("W2 10MB", {.bytes = 10'000'000}));
        documents.push_back(MakeStates("W2 40MB", {.bytes = 40'000'000}));
    }
    documents.push_back(MakePackets("W3", 200));
    return documents;
}

std::vector<Document> Bench::MakeShapes() {
    std::vector<Document> documents;
    documents.push_back(MakeStates("deep", {.hasInputs = true, .unknownLevels = 200}));
    documents.push_back(MakeTranslations("one list", {.entries = 1, .notesPerEntry = 30'000}));
    documents.push_back(MakeTranslations("long texts", {.entries = 300, .wordsPerText = 2000}));
    documents.push_back(MakeStates("attributes", {.moreAttributes = 20}));
    documents.push_back(MakeStates("few keys", {.distinctKeys = 6, .dataPerItem = 6}));
    documents.push_back(MakeStates("many keys", {.distinctKeys = 0, .dataPerItem = 6}));
    return documents;
}
