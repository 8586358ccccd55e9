// The catalogue against the classes themselves: every identifier unique and the one each record
// reports, the class name that of the record's type, clones of the same type, and the E/M/D column
// true to what a default record does. docs/catalogue.md and its drift test pin the rows' texts.
#include <gtest/gtest.h>

#include <cxxabi.h>

#include <cstdlib>
#include <memory>
#include <set>
#include <string>
#include <type_traits>
#include <typeinfo>

#include "Proc/Settings/AllSettings.h"
#include "TestSupport.h"
#include "catalog/SettingsCatalog.h"

using namespace Zorvan::Proc;
using Zorvan::SettingsCatalog;

namespace {

std::string Demangled(const std::type_info& type)
{
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> name(abi::__cxa_demangle(type.name(), nullptr, nullptr, &status),
                                                           &std::free);
    return status == 0 ? name.get() : type.name();
}

} // namespace

// The derived classes of the catalogue.
static_assert(std::is_base_of_v<SettingsAnalyzerVideoTrackObjectBase, SettingsAnalyzerVideoTrackObjectOnnxRT>);
static_assert(std::is_base_of_v<SettingsAnalyzerVideoTrackObjectBase, SettingsAnalyzerVideoTrackObjectOpenCV>);
static_assert(std::is_base_of_v<SettingsEffectTransform, SettingsEffectFlip>);
static_assert(std::is_base_of_v<SettingsEffectColorBlender, SettingsEffectImageBlender>);
static_assert(std::is_base_of_v<SettingsFilterSpeedUp, SettingsFilterSpeedUpVideo>);
// The frame generators name the non-public value base first, then Settings.
static_assert(std::is_base_of_v<AIFrameGeneratorSettings, SettingsFilterFPSDoubler> &&
              !std::is_convertible_v<SettingsFilterFPSDoubler*, AIFrameGeneratorSettings*>);
static_assert(std::is_base_of_v<AIFrameGeneratorSettings, SettingsFilterSlowMotion> &&
              !std::is_convertible_v<SettingsFilterSlowMotion*, AIFrameGeneratorSettings*>);

TEST(Catalogue, EveryEntryIsTrueToItsClass)
{
    const auto& entries = SettingsCatalog::Entries();
    ASSERT_EQ(entries.size(), 220u);
    std::set<std::string> ids;
    std::set<std::string> names;
    for (const auto& entry : entries) {
        SCOPED_TRACE(entry.className);
        EXPECT_TRUE(ids.insert(entry.classId).second);
        EXPECT_TRUE(names.insert(entry.className).second);
        EXPECT_EQ(SettingsCatalog::Find(entry.classId), &entry);
        EXPECT_EQ(SettingsCatalog::Find(entry.className), &entry);
        const auto record = entry.create();
        const auto clone = record->Clone();
        EXPECT_EQ(Demangled(typeid(*record)), "Zorvan::Proc::" + entry.className);
        EXPECT_EQ(typeid(*clone), typeid(*record));
        EXPECT_EQ(record->GetClassId(), entry.classId);
        EXPECT_EQ(&clone->GetClassId(), &record->GetClassId()); // one constant per class, not a copy
        EXPECT_EQ(entry.base == "-", !entry.hasVirtualTable);
    }
    EXPECT_EQ(SettingsCatalog::Find("settingsresizer"), nullptr);
}

// What the engine relies on: without its own IsEqualTo or Deserialize a class throws the base's text
// (also for "" and for a record compared with itself), without its own IsEmpty it is never left out
// of the graph, and no comparison answers false for a foreign class. The "-" rows behave as the base.
TEST(Catalogue, OverriddenOperationsMatchWhatADefaultRecordDoes)
{
    const SettingsEffectBlurGaussian foreign;
    for (const auto& entry : SettingsCatalog::Entries()) {
        SCOPED_TRACE(entry.className);
        const auto record = entry.create();
        const auto other = entry.create();
        const std::string before = entry.FieldsToJson(*record).dump();
        if (entry.ownDeserialize) {
            EXPECT_NO_THROW(record->Deserialize(""));
        } else {
            EXPECT_EQ(ZorvanTest::FormADescription<SettingsException>([&] { record->Deserialize(""); }),
                      "Not implemented fill from string for settings CLASS_ID = " + entry.classId);
        }
        if (entry.ownIsEqualTo) {
            EXPECT_NO_THROW(EXPECT_TRUE(record->IsEqualTo(*other) && record->IsEqualTo(*record->Clone())));
            EXPECT_THROW((void)record->IsEqualTo(foreign), std::bad_cast);
        } else {
            EXPECT_EQ(ZorvanTest::FormADescription<SettingsException>([&] { (void)record->IsEqualTo(*record); }),
                      "Not implemented comparison for settings CLASS_ID = " + entry.classId);
        }
        if (!entry.ownIsEmpty) {
            EXPECT_FALSE(record->IsEmpty());
        }
        EXPECT_EQ(entry.FieldsToJson(*record).dump(), before);
    }
}
