#include <algorithm>
#include <array>
#include <atomic>
#include <map>
#include <memory>
#include <random>
#include <set>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "Framework/SyncContainers.h"
#include "Framework/SyncTools.h"
#include "Framework/ZelString.h"

namespace {

/// Notes its end, and can fail while ending.
class Entry {
public:
    Entry(std::string name, std::vector<std::string>& ended, bool fails = false)
        : m_Name(std::move(name)), m_Ended(ended), m_Fails(fails) {}
    ~Entry() noexcept(false) {
        m_Ended.push_back(m_Name);
        if (m_Fails) {
            throw std::runtime_error(m_Name);
        }
    }

private:
    std::string m_Name;
    std::vector<std::string>& m_Ended;
    bool m_Fails;
};

using EntryMap = Zelvon::SyncMap<zelString, Entry*>;
using Names = std::vector<std::string>;

/// Whether another thread gets the lock, with a lookup that would wait for it.
template <typename Map> void ExpectUnlocked(Map& map) {
    std::atomic<bool> passed = false;
    std::thread other([&] {
        map.writeLock();
        map.unlock();
        passed = true;
    });
    other.join();
    EXPECT_TRUE(passed);
}

TEST(SyncMap, SetAndGet) {
    Names ended;
    EntryMap map;
    const auto a = std::make_unique<Entry>("a", ended);
    const auto b = std::make_unique<Entry>("b", ended);
    Entry* found = b.get();
    EXPECT_FALSE(map.getValue("x", found, true));
    EXPECT_EQ(found, b.get());
    EXPECT_FALSE(map.setValue("x", a.get(), &found));
    EXPECT_EQ(found, b.get());
    EXPECT_TRUE(map.getValue("x", found, true));
    EXPECT_EQ(found, a.get());

    Entry* previous = nullptr;
    EXPECT_TRUE(map.setValue("x", b.get(), &previous));
    EXPECT_EQ(previous, a.get());
    EXPECT_TRUE(map.setValue("x", a.get(), nullptr));
    map.readLock();
    EXPECT_TRUE(map.getValue("x", found, false));
    map.unlock();
    EXPECT_EQ(found, a.get());
    EXPECT_EQ(map.size(), 1U);
    EXPECT_TRUE(ended.empty());
    ExpectUnlocked(map);
}

TEST(SyncMap, ClearDeletesOnceInKeyOrder) {
    Names ended;
    EntryMap map;
    Entry* const shared = new Entry("shared", ended);
    map.setValue("2", shared, nullptr);
    map.setValue("3", new Entry("c", ended), nullptr);
    map.setValue("10", new Entry("a", ended, true), nullptr);
    map.setValue("4", shared, nullptr);
    map.setValue("1", nullptr, nullptr);
    map.setValue("5", new Entry("d", ended, true), nullptr);
    map.setValue("6", new Entry("e", ended), nullptr);
    map.clearMap(true);
    EXPECT_EQ(ended, (Names{"a", "shared", "c", "d", "e"}));
    EXPECT_EQ(map.size(), 0U);
    map.clearMap(true);
    EXPECT_EQ(ended.size(), 5U);
    ExpectUnlocked(map);
}

TEST(SyncMap, OnlyClearTrueDeletes) {
    Names ended;
    const auto kept = std::make_unique<Entry>("kept", ended);
    {
        EntryMap map;
        map.setValue("x", kept.get(), nullptr);
        map.clearMap(false);
        EXPECT_EQ(map.size(), 0U);
        map.setValue("x", kept.get(), nullptr);
    }
    EXPECT_TRUE(ended.empty());
}

/// A key whose comparison can fail, as one that runs out of memory would.
struct FailingKey {
    int number;
    bool operator<(const FailingKey& other) const {
        if (number < 0 || other.number < 0) {
            throw std::runtime_error("comparison");
        }
        return number < other.number;
    }
};

TEST(SyncMap, GivesTheLockBackAfterAnException) {
    Zelvon::SyncMap<FailingKey, int*> map;
    int number = 0;
    int* found = nullptr;
    map.setValue({1}, &number, nullptr);
    EXPECT_THROW(map.setValue({-1}, &number, nullptr), std::runtime_error);
    ExpectUnlocked(map);
    EXPECT_THROW(map.getValue({-1}, found, true), std::runtime_error);
    ExpectUnlocked(map);
    EXPECT_EQ(map.size(), 1U);
}

/// The same steps on a SyncMap and on a std::map, through sizes where it is an array, a table, and a table that
/// shrinks.
TEST(SyncMap, HoldsWhatAMapWould) {
    std::mt19937 random(7);
    std::array<int, 5> values{};
    for (const unsigned keys : {3U, 9U, 60U, 2000U}) {
        Zelvon::SyncMap<zelString, int*> map;
        std::map<zelString, int*> model;
        for (unsigned step = 0; step < 20 * keys; ++step) {
            const zelString key = std::string(random() % 3, '\0') + std::to_string(random() % keys);
            int* const value = random() % 9 == 0 ? nullptr : &values[random() % values.size()];
            switch (random() % (step > 15 * keys ? 3 : 8)) {
            case 0:
                EXPECT_EQ(map.removeKey(key), model.erase(key) != 0);
                break;
            case 1:
                if (random() % (keys / 2) == 0) {
                    map.removeValuesIf([&](const int* each) { return each == value; });
                    std::erase_if(model, [&](const auto& item) { return item.second == value; });
                }
                break;
            default:
                EXPECT_EQ(map.setValue(key, value, nullptr), model.contains(key));
                model[key] = value;
            }
            int* found = &values[0];
            EXPECT_EQ(map.getValue(key, found, true), model.contains(key));
            EXPECT_EQ(found, model.contains(key) ? model[key] : &values[0]);
        }
        std::multiset<int*> inMap;
        std::multiset<int*> inModel;
        map.forEachValue([&](int* value) { inMap.insert(value); });
        for (const auto& [key, value] : model) {
            inModel.insert(value);
        }
        EXPECT_EQ(inMap, inModel);
        EXPECT_EQ(map.contents(), model);
        EXPECT_FALSE(map.setValue("another key", &values[0], nullptr));
        EXPECT_TRUE(map.removeKey("another key"));
        EXPECT_EQ(map.size(), model.size());
    }
}

/// With many keys too, a value under several is deleted once, when the first comes.
TEST(SyncMap, ClearDeletesManyInKeyOrder) {
    Names ended;
    EntryMap map;
    Names expected;
    for (int i = 0; i < 500; ++i) {
        const std::string name = "the same beginning " + std::to_string(i * 7919 % 500);
        Entry* const entry = new Entry(name, ended);
        map.setValue(name, entry, nullptr);
        map.setValue("z" + name, entry, nullptr);
        expected.push_back(name);
    }
    std::sort(expected.begin(), expected.end());
    map.clearMap(true);
    EXPECT_EQ(ended, expected);
}

TEST(SyncMap, LookupsAreSafeAgainstChanges) {
    constexpr int Count = 3000;
    Zelvon::SyncMap<zelString, int*> map;
    std::vector<int> numbers(Count);
    std::atomic<bool> done = false;
    std::thread writer([&] {
        for (int i = 0; i < Count; ++i) {
            map.setValue(std::to_string(i), &numbers[static_cast<std::size_t>(i)], nullptr);
        }
        done = true;
    });
    int wrong = 0;
    while (!done) {
        for (int i = 0; i < Count; i += 97) {
            int* found = nullptr;
            if (map.getValue(std::to_string(i), found, true) && found != &numbers[static_cast<std::size_t>(i)]) {
                ++wrong;
            }
        }
        Zelvon::LinuxThreadTools::LinuxYieldThread();
    }
    writer.join();
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(map.size(), static_cast<std::size_t>(Count));
}

TEST(SyncMutex, ExcludesUnderEitherName) {
    Zelvon::SyncMutex mutex;
    int counter = 0;
    const auto work = [&](void (Zelvon::SyncMutex::*take)()) {
        for (int i = 0; i < 20000; ++i) {
            (mutex.*take)();
            ++counter;
            mutex.unlock();
        }
    };
    std::thread reader(work, &Zelvon::SyncMutex::readLock);
    work(&Zelvon::SyncMutex::writeLock);
    reader.join();
    EXPECT_EQ(counter, 40000);
}

} // namespace
