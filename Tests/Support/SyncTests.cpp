#include <algorithm>
#include <array>
#include <map>
#include <random>
#include <set>
#include <stdexcept>
#include <string>
#include <thread>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "Framework/SyncContainers.h"
#include "Framework/ZelString.h"

namespace {

/// Notes its end, and can fail while ending.
class Entry {
public:
    Entry(std::string name, std::vector<std::string>& ended, bool fails)
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

/// Waits for ever where somebody has kept the lock.
template <typename Map> void ExpectUnlocked(Map& map) {
    map.writeLock();
    map.unlock();
}

TEST(SyncMap, ClearDeletesOnceInKeyOrder) {
    // An array and a table, each as it is and as a std::map, with values under one key and under two.
    for (const auto& [count, isMap, isTwice] :
         {std::tuple(3, false, true), std::tuple(3, true, true), std::tuple(500, false, true),
          std::tuple(500, true, true), std::tuple(3, false, false), std::tuple(500, false, false)}) {
        std::vector<std::string> ended;
        std::vector<std::string> expected;
        Zelvon::SyncMap<zelString, Entry*> map;
        for (int i = 0; i < count; ++i) {
            const std::string name = "the same beginning " + std::to_string(i * 7919 % count);
            Entry* const entry = new Entry(name, ended, i % 3 == 0);
            map.setValue(name, entry, nullptr);
            if (isTwice) {
                map.setValue("z" + name, entry, nullptr);
                map.setValue("none", nullptr, nullptr);
            }
            expected.push_back(name);
        }
        if (isMap) {
            map.contents();
        }
        std::sort(expected.begin(), expected.end());
        map.clearMap(true);
        EXPECT_EQ(ended, expected);
        EXPECT_EQ(map.size(), 0U);
        map.clearMap(true);
        EXPECT_EQ(ended, expected);
        ExpectUnlocked(map);
    }
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
/// shrinks. The values are nobody's to delete.
TEST(SyncMap, HoldsWhatAMapWould) {
    std::mt19937 random(7);
    std::array<int, 5> values{};
    for (const unsigned keys : {3U, 9U, 60U, 2000U}) {
        Zelvon::SyncMap<zelString, int*> map;
        std::map<zelString, int*> model;
        for (unsigned step = 0; step < 20 * keys; ++step) {
            const zelString key = std::string(random() % 3, '\0') + std::to_string(random() % keys);
            int* const value = random() % 9 == 0 ? nullptr : &values[random() % values.size()];
            int* found = &values[0];
            const auto there = model.find(key);
            int* const expected = there == model.end() ? found : there->second;
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
            case 2:
                EXPECT_EQ(map.getValue(key, found, true), there != model.end());
                EXPECT_EQ(found, expected);
                break;
            default:
                EXPECT_EQ(map.setValue(key, value, &found), there != model.end());
                EXPECT_EQ(found, expected);
                model[key] = value;
            }
        }
        std::multiset<int*> inMap;
        std::multiset<int*> inModel;
        map.forEachValue([&](int* value) { inMap.insert(value); });
        for (const auto& [key, value] : model) {
            inModel.insert(value);
        }
        EXPECT_EQ(inMap, inModel);
        EXPECT_EQ(map.contents(), model);
        int* previous = nullptr;
        EXPECT_FALSE(map.setValue("another key", &values[0], nullptr));
        EXPECT_TRUE(map.setValue("another key", &values[1], &previous));
        EXPECT_EQ(previous, &values[0]);
        EXPECT_TRUE(map.removeKey("another key"));
        EXPECT_EQ(map.size(), model.size());
        map.clearMap(false);
        EXPECT_EQ(map.size(), 0U);
    }
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
