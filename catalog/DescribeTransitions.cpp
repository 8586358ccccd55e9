#include "catalog/DescribeKeys.h"

namespace Zorvan::DescribeDetail {

// Most transitions hold whole numbers only, stored as std::stoi reads them and unchecked: the
// renderer gives them their meaning. A negative number in an unsigned field keeps its bits.
void DescribeTransitions(DescriptionMap& descriptions)
{
    constexpr auto Map = OptionReader::Map;
    const auto add = [&descriptions](OptionDescription description) {
        descriptions[description.className] = std::move(description);
    };
    add(Described("SettingsTransitionBarnDoor", Map, {Int("direction")}));
    add(Described("SettingsTransitionBlur", Map, {Int("direction")}));
    add(Described("SettingsTransitionCircle", Map, {Int("direction")}));
    add(Described("SettingsTransitionDisintegrate", Map, {Int("n", "num")}));
    add(Described("SettingsTransitionLens", Map, {Int("type")}));
    add(Described("SettingsTransitionOrigamiFlips", Map, {Int("n", "num")}));
    add(Described(
        "SettingsTransitionOrigamiPleats", Map,
        {Int("n", "num"),
         Int("direction", "dir", -1)
             .Example("1", 1)
             .Note("stored as given; the field shows 0 as -1 and 1 as 1, and its getter refuses any other number")}));
    add(Described("SettingsTransitionPageturn", Map, {Int("type"), Int("direction", "dir")}));
    add(Described("SettingsTransitionPinwheel", Map, {Int("n", "num"), Int("freq"), Int("ampl"), Int("smoothness")}));
    add(Described("SettingsTransitionPixels", Map, {Int("type")}));
    add(Described("SettingsTransitionPush", Map, {Int("direction", "dir")}));
    add(Described("SettingsTransitionPuzzle", Map, {Int("type")}));
    add(Described("SettingsTransitionRadial", Map, {Int("direction")}));
    add(Described("SettingsTransitionRippleSmooth", Map, {Int("freq"), Int("ampl")}));
    add(Described("SettingsTransitionRoll", Map, {Int("size"), Int("direction", "dir"), Int("type")}));
    add(Described("SettingsTransitionScale", Map, {Int("type")}));
    add(Described("SettingsTransitionShatter", Map, {Int("n", "num"), Int("direction", "dir")}));
    add(Described("SettingsTransitionSlide", Map, {Int("direction")}));
    add(Described("SettingsTransitionSlidingDoor", Map, {Int("direction")}));
    add(Described("SettingsTransitionSpin", Map, {Int("type")}));
    add(Described("SettingsTransitionSpiral", Map, {Int("type")}));
    add(Described("SettingsTransitionTwist", Map, {Int("type")}));
    add(Described("SettingsTransitionWaterbrush", Map, {Int("angle"), Int("size"), Int("rough"), Int("type")}));
    add(Described("SettingsTransitionZoom", Map, {Int("type")}));
    add(IgnoresItsString("SettingsTransitionCrossfade"));
    add(IgnoresItsString("SettingsTransitionFlash"));
}

} // namespace Zorvan::DescribeDetail
