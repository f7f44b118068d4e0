// The library itself, through its public headers, as an application uses it.
#include "Works.h"

#include <FrameworkDataContainers/FrameworkDataContainers.h>

#include <Framework/ContainerCatalog.h>
#include <Framework/LoadLimits.h>
#include <Framework/XMLDataWrapper.h>

#include <fstream>
#include <memory>
#include <sstream>
#include <stdexcept>

#include "PacketFields.h"
#include "Random.h"

using namespace Bench;

namespace {

/// A document and the typed tree over it; both live as long as the tree is to be edited.
struct Loaded {
    XMLDataWrapper document;
    std::unique_ptr<TypedDataContainer> root;

    Loaded(const zelString& text, bool isReadOnly) {
        Require(document.LoadXMLText(text, isReadOnly), document.GetLastError());
        root = ContainerCatalog::Create(ContainerCatalog::RootElement(document), false);
        Require(root->LoadFromDataPacket(nullptr, &document, isReadOnly), root->GetLastError());
    }
};

std::shared_ptr<Loaded> LoadEditable(const std::string& text) {
    return std::make_shared<Loaded>(zelString(text), false);
}

Work OfferLoad(const Document& document, bool isReadOnly) {
    auto loaded = std::make_shared<std::unique_ptr<Loaded>>();
    return {[=] { loaded->reset(); },
            [=, text = zelString(document.text)] { *loaded = std::make_unique<Loaded>(text, isReadOnly); }};
}

// --- look-up

using Keys = std::vector<zelString>;

/// All keys of a keyed list in an order that is not that of the document.
template <class List> Keys ShuffledKeys(int length, const List& keyAt) {
    Keys keys;
    for (int i = 0; i < length; ++i) {
        keys.push_back(keyAt(i));
    }
    Shuffle(keys);
    return keys;
}

Work OfferTranslationLookUp(std::shared_ptr<Loaded> loaded) {
    auto* const texts = dynamic_cast<TranslationConfigType&>(*loaded->root).GetTranslationText();
    const zelString language = texts->GetTranslationKeyMap(0)->Getlanguage();
    auto* const list = texts->GetTranslationKeyMap(0);
    Keys keys =
        ShuffledKeys(list->GetTranslationLength(), [&](int i) { return list->GetTranslation(i)->GetLookupData(); });
    return {{}, [=] {
                auto* const map = texts->GetTranslationKeyMap(language);
                for (const zelString& key : keys) {
                    Require(map->GetTranslation(key) != nullptr, "an entry is not found by its key");
                }
            }};
}

/// A keyed entry of a state table and those below it, by their keys alone.
struct KeyTree {
    zelString key;
    std::vector<KeyTree> below;
};

std::vector<KeyTree> KeysOfItem(ActionItemType* item) {
    std::vector<KeyTree> data;
    StateActionDataType* const all = item->GetActionData();
    for (int i = 0; all != nullptr && i < all->GetDataLength(); ++i) {
        data.push_back({all->GetData(i)->GetName(), {}});
    }
    return data;
}

std::vector<KeyTree> KeysOfState(StateDefinitionType* state) {
    std::vector<KeyTree> triggers;
    StateTriggersListType* const all = state->GetStateTriggers();
    for (int i = 0; i < all->GetStateActionLength(); ++i) {
        StateActionListType* const trigger = all->GetStateAction(i);
        KeyTree keys{trigger->GetTrigger(), {}};
        for (int j = 0; j < trigger->GetActionItemLength(); ++j) {
            keys.below.push_back({trigger->GetActionItem(j)->GetIndex(), KeysOfItem(trigger->GetActionItem(j))});
        }
        triggers.push_back(std::move(keys));
    }
    return triggers;
}

void LookUpState(StateDefinitionType* state, const KeyTree& stateKey) {
    Require(state != nullptr, "a state is not found by its key");
    for (const KeyTree& triggerKey : stateKey.below) {
        StateActionListType* const trigger = state->GetStateTriggers()->GetStateAction(triggerKey.key);
        Require(trigger != nullptr, "a trigger is not found by its key");
        for (const KeyTree& itemKey : triggerKey.below) {
            ActionItemType* const item = trigger->GetActionItem(itemKey.key);
            Require(item != nullptr, "an action item is not found by its key");
            for (const KeyTree& dataKey : itemKey.below) {
                Require(item->GetActionData()->GetData(dataKey.key) != nullptr, "a datum is not found by its key");
            }
        }
    }
}

Work OfferStateLookUp(std::shared_ptr<Loaded> loaded) {
    StateTableType* const table = dynamic_cast<StateProcessingRootType&>(*loaded->root).GetStateTable();
    const Keys names = ShuffledKeys(table->GetStateLength(), [&](int i) { return table->GetState(i)->GetName(); });
    std::vector<KeyTree> keys;
    for (const zelString& name : names) {
        keys.push_back({name, KeysOfState(table->GetState(name))});
    }
    return {{}, [=, keys = std::move(keys)] {
                for (const KeyTree& key : keys) {
                    LookUpState(table->GetState(key.key), key);
                }
            }};
}

Work OfferLookUp(const Document& document) {
    const auto loaded = LoadEditable(document.text);
    Work work = document.kind == Kind::Translations ? OfferTranslationLookUp(loaded) : OfferStateLookUp(loaded);
    return {[loaded] {}, std::move(work.run)};
}

// --- update and save

/// Texts of a tree that take turns between what was loaded and something else.
class Changes {
public:
    explicit Changes(TypedDataContainer& root) {
        Collect(root);
        const std::size_t step = std::max<std::size_t>(1, m_texts.size() * 10 / std::max<std::size_t>(1, m_values));
        std::vector<Text> chosen;
        for (std::size_t i = 0; i < m_texts.size(); i += step) {
            chosen.push_back(std::move(m_texts[i]));
        }
        m_texts = std::move(chosen);
    }
    void TakeTurns() {
        m_isChanged = !m_isChanged;
        for (const Text& text : m_texts) {
            const zelString value = m_isChanged ? zelString(text.loaded + " changed") : text.loaded;
            Require(text.field.SetText(*text.object, value), "a text cannot be set");
        }
    }

private:
    struct Text {
        CatalogField field;
        TypedDataContainer* object;
        zelString loaded;
    };

    void Collect(TypedDataContainer& object) {
        for (const CatalogField& field : ContainerCatalog::ClassOf(object).Fields()) {
            if (field.IsScalar() && !field.GetText(object).empty()) {
                ++m_values;
                if (field.GetForm() == CatalogField::Element && field.GetValue() == CatalogField::String) {
                    m_texts.push_back({field, &object, field.GetText(object)});
                }
            }
            if (TypedDataContainer* const child = field.GetChild(object)) {
                Collect(*child);
            }
            for (std::size_t i = 0; i < field.Length(object); ++i) {
                if (TypedDataContainer* const entry = field.Entry(object, i)) {
                    Collect(*entry);
                }
            }
        }
    }

    std::vector<Text> m_texts;
    std::size_t m_values = 0;
    bool m_isChanged = false;
};

Work OfferUpdateNone(const Document& document) {
    const auto loaded = LoadEditable(document.text);
    return {{}, [=] { Require(loaded->root->UpdateContainedData(), loaded->document.GetLastError()); }};
}

Work OfferUpdateTenth(const Document& document) {
    const auto loaded = LoadEditable(document.text);
    const auto changes = std::make_shared<Changes>(*loaded->root);
    return {[=] { changes->TakeTurns(); },
            [=] { Require(loaded->root->UpdateContainedData(), loaded->document.GetLastError()); }};
}

Work OfferSave(const Document& document) {
    const auto loaded = LoadEditable(document.text);
    const auto changes = std::make_shared<Changes>(*loaded->root);
    return {[=] {
                changes->TakeTurns();
                Require(loaded->root->UpdateContainedData(), loaded->document.GetLastError());
            },
            [=] { Require(!loaded->document.GetXMLText().empty(), loaded->document.GetLastError()); }};
}

// --- merge

void Merge(Loaded& base, const zelString& overrideText) {
    XMLDataWrapper source;
    Require(source.LoadXMLText(overrideText, true), source.GetLastError());
    Require(base.root->MergeFromDataPacket(nullptr, "Override", &source, false), base.root->GetLastError());
}

Work OfferMerge(const Document& document) {
    const auto loaded = std::make_shared<std::shared_ptr<Loaded>>();
    return {[=, &document] { // each merge has a base of its own, or new entries would be there the second time
                loaded->reset();
                *loaded = LoadEditable(document.text);
            },
            [=, text = zelString(document.overrideText)] { Merge(**loaded, text); }};
}

// --- dump

zelString DumpByNode(TypedDataContainer& root) {
    FullFunctionXMLDataWrapper output;
    Require(output.CreateOutputDocument(root.GetContainerName()), output.GetLastError());
    DOMNode* passed = nullptr;
    Require(root.DumpMergeContentsII(nullptr, &output, passed, false), root.GetLastError());
    zelString text = output.GetXMLText();
    Require(!text.empty(), output.GetLastError());
    return text;
}

void SaveContents(TypedDataContainer& root) {
    Require(root.SaveContents("/dev/shm/FrameworkBenchmark.xml"), root.GetLastError());
}

Work OfferDump(const Document& document) {
    const auto loaded = LoadEditable(document.text);
    return {{}, [=] { DumpByNode(*loaded->root); }};
}

Work OfferSaveContents(const Document& document) {
    const auto loaded = LoadEditable(document.text);
    return {{}, [=] { SaveContents(*loaded->root); }};
}

// --- packets

void Add(std::size_t& sum, const zelString& text) {
    sum += text.size();
}
void Add(std::size_t& sum, const TypedDataEnumeration& word) {
    sum += word.StringOf().size();
}
template <class Number>
requires std::is_arithmetic_v<Number>
void Add(std::size_t& sum, Number number) {
    sum += static_cast<std::size_t>(number);
}

std::size_t ReadEveryField(LoggingInformationPacketType& packet) {
    std::size_t sum = 0;
    Add(sum, packet.GetPacketType());
    Add(sum, packet.GetLane());
    Add(sum, packet.GetTimeStamp());
    ItemInformationType& item = *packet.GetItemInformation();
#define BENCH_READ(name, ...) Add(sum, item.Get##name());
    BENCH_ITEM_FIELDS(BENCH_READ, BENCH_READ, BENCH_READ, BENCH_READ, BENCH_READ)
#undef BENCH_READ
    return sum;
}

/// Load, read every field and write, with one object for all packets.
template <class Write> Work OfferPackets(const Document& document, Write write) {
    const std::vector<zelString> texts(document.packets.begin(), document.packets.end());
    const auto packet = std::make_shared<LoggingInformationPacketType>(false);
    return {{}, [=] {
                for (const zelString& text : texts) {
                    XMLDataWrapper source;
                    Require(source.LoadXMLText(text, false), source.GetLastError());
                    Require(packet->LoadFromDataPacket(nullptr, &source, false), packet->GetLastError());
                    Require(ReadEveryField(*packet) > 0, "nothing read");
                    Require(!write(*packet, source).empty(), "nothing written");
                }
            }};
}

zelString WriteBack(TypedDataContainer& packet, XMLDataWrapper& source) {
    Require(packet.UpdateContainedData(), source.GetLastError());
    return source.GetXMLText();
}

} // namespace

void Bench::OfferOurs(Works& works) {
    const auto offer = [&](const std::string& work, const std::vector<Kind>& kinds, auto make) {
        works.offers.push_back({work, ours, kinds, make});
    };
    offer(loadWork, allKinds, [](const Document& document) { return OfferLoad(document, false); });
    offer(readOnlyWork, allKinds, [](const Document& document) { return OfferLoad(document, true); });
    offer(lookUpWork, documentKinds, OfferLookUp);
    offer(updateNoneWork, documentKinds, OfferUpdateNone);
    offer(updateTenthWork, documentKinds, OfferUpdateTenth);
    offer(saveWork, documentKinds, OfferSave);
    offer(mergeWork, documentKinds, OfferMerge);
    offer(dumpWork, documentKinds, OfferDump);
    offer(saveContentsWork, documentKinds, OfferSaveContents);
    offer(packetWork, {Kind::Packets}, [](const Document& document) {
        return OfferPackets(document, [](auto& packet, auto&) { return DumpByNode(packet); });
    });
    works.offers.push_back(
        {packetWork, "ours, written back into the packet", {Kind::Packets}, [](const Document& document) {
             return OfferPackets(document, WriteBack);
         }});

    works.proofs.push_back({ours, allKinds,
                            [](const Document& document) { return DumpByNode(*LoadEditable(document.text)->root); },
                            [](const Document& document) {
                                const auto base = LoadEditable(document.text);
                                Merge(*base, document.overrideText);
                                return DumpByNode(*base->root);
                            }});
}
