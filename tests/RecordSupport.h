#pragma once
// Shared test helpers for records read back through the catalogue: their fields as JSON or as
// a list of values, how a call ends, bounds and option tables, records built step by step.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <array>
#include <cmath>
#include <functional>
#include <initializer_list>
#include <limits>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <typeinfo>
#include <vector>

#include "Proc/Settings/ProcException.h"
#include "Proc/Settings/Settings.h"
#include "TestSupport.h"
#include "catalog/SettingsCatalog.h"

namespace ZorvanTest {

// "" when the call returns, else the exact class thrown, with the library's own description.
inline std::string Outcome(const std::function<void()>& call)
{
    using Zorvan::Proc::EffectException;
    using Zorvan::Proc::SettingsException;
    try {
        call();
        return "";
    } catch (const EffectException&) {
        return "EffectException: " + FormADescription<EffectException>([] { throw; });
    } catch (const SettingsException&) {
        return "SettingsException: " + FormADescription<SettingsException>([] { throw; });
    } catch (const std::exception& e) {
        return typeid(e).name();
    }
}

// The record's fields by key, as the catalogue writes them.
inline nlohmann::ordered_json Fields(const Zorvan::Proc::Settings& record)
{
    const auto* entry = Zorvan::SettingsCatalog::Find(record.GetClassId());
    return entry ? entry->FieldsToJson(record) : nlohmann::ordered_json("no catalogue entry");
}

// Inclusive bounds, the setter's and its key's; a refusal keeps the field, a not-a-number passes.
template <class R>
struct Bounds {
    const char* key;
    void (R::*set)(float);
    float (R::*get)() const;
    float low, high;
    const char* message;
};

template <class R>
void CheckBounds(const std::vector<Bounds<R>>& rows)
{
    for (const auto& row : rows) {
        const std::string refused = std::string("EffectException: ") + row.message;
        R record;
        (record.*row.set)(row.low);
        (record.*row.set)(row.high);
        const float held = (record.*row.get)();
        EXPECT_EQ(Outcome([&] { (record.*row.set)(std::nextafter(row.low, row.low - 1)); }), refused) << row.key;
        EXPECT_EQ(Outcome([&] { (record.*row.set)(std::nextafter(row.high, row.high + 1)); }), refused) << row.key;
        EXPECT_EQ(Outcome([&] { record.Deserialize(row.key + ("=" + std::to_string(row.high + 1))); }), refused);
        EXPECT_EQ((record.*row.get)(), held) << row.key;
        (record.*row.set)(std::numeric_limits<float>::quiet_NaN());
        EXPECT_TRUE(std::isnan((record.*row.get)())) << row.key;
    }
}

// Options applied to a copy of `start`: how the call ends (as `outcome` tells it) and, as a
// JSON merge patch, what changed.
using Parse = std::array<std::string, 3>;
using OutcomeOf = std::function<std::string(const std::function<void()>&)>;

template <class R>
void CheckParses(const R& start, const std::vector<Parse>& rows, const OutcomeOf& outcome = Outcome)
{
    for (const auto& [options, ends, changed] : rows) {
        R record = start;
        EXPECT_EQ(outcome([&] { record.Deserialize(options); }), ends) << options;
        nlohmann::ordered_json expected = Fields(start);
        expected.merge_patch(nlohmann::ordered_json::parse(changed));
        EXPECT_EQ(Fields(record), expected) << options;
    }
    EXPECT_EQ(Fields(*start.Clone()), Fields(start)); // a clone keeps every field
}

// What operator<< writes, then how it failed; it hands back the stream it was given.
template <class E>
std::string Written(std::initializer_list<int> values)
{
    std::ostringstream stream;
    const std::string failure = Outcome([&] {
        for (const int value : values) {
            EXPECT_EQ(&(stream << static_cast<E>(value)), &stream);
        }
    });
    return stream.str() + failure;
}

// A step in building a record: options read, or a setter called through the record's class.
using Change = std::function<void(Zorvan::Proc::Settings&)>;

inline Change Opts(const std::string& options)
{
    return [options](Zorvan::Proc::Settings& s) { s.Deserialize(options); };
}

template <class C, class... A, class... V>
Change Call(void (C::*set)(A...), V... values)
{
    return [=](Zorvan::Proc::Settings& s) { (dynamic_cast<C&>(s).*set)(values...); };
}

// A record made by the catalogue from its id, after the steps.
inline std::unique_ptr<Zorvan::Proc::Settings> Make(const std::string& id, const std::vector<Change>& steps = {})
{
    auto record = Zorvan::SettingsCatalog::Find(id)->create();
    for (const Change& step : steps) {
        step(*record);
    }
    return record;
}

// The record's fields in field order.
inline std::string Values(const Zorvan::Proc::Settings& s)
{
    nlohmann::ordered_json values = nlohmann::ordered_json::array();
    for (const auto& value : Zorvan::SettingsCatalog::Find(s.GetClassId())->FieldsToJson(s)) {
        values.push_back(value);
    }
    return values.dump();
}

enum class Fails { No, Invalid, Range };

// Reads the options into the record, which must end as `fails` says.
inline void Read(Zorvan::Proc::Settings& record, const std::string& options, Fails fails)
{
    if (fails == Fails::No) {
        record.Deserialize(options);
    } else if (fails == Fails::Invalid) {
        EXPECT_THROW(record.Deserialize(options), std::invalid_argument);
    } else {
        EXPECT_THROW(record.Deserialize(options), std::out_of_range);
    }
}

// The record's values, and its clone's, which is of the same class.
inline void CheckValues(const Zorvan::Proc::Settings& record, const std::string& values)
{
    EXPECT_EQ(Values(record), values);
    const auto copy = record.Clone();
    EXPECT_EQ(typeid(*copy), typeid(record));
    EXPECT_EQ(Values(*copy), values);
}

// One row of a key table: a record of class `id` filled with `before`, then `options` read,
// ending as `fails` says, or, with `message`, failing in the typed reader with that text.
struct KeyCase {
    const char* id;
    std::string before;
    std::string options;
    Fails fails;
    const char* values;
    const char* message = nullptr;
};

inline void CheckKeyCases(const std::vector<KeyCase>& cases)
{
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.id) + " " + c.options);
        const auto record = Make(c.id, {Opts(c.before)});
        if (c.message != nullptr) {
            EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { record->Deserialize(c.options); }, false),
                      c.message);
        } else {
            Read(*record, c.options, c.fails);
        }
        CheckValues(*record, c.values);
    }
}

} // namespace ZorvanTest
