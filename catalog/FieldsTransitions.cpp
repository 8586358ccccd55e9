#include <stdexcept>
#include <string>

#include "Proc/Settings/SettingsTransitionBarnDoor.h"
#include "Proc/Settings/SettingsTransitionBlur.h"
#include "Proc/Settings/SettingsTransitionCircle.h"
#include "Proc/Settings/SettingsTransitionCross.h"
#include "Proc/Settings/SettingsTransitionDisintegrate.h"
#include "Proc/Settings/SettingsTransitionKenBurns.h"
#include "Proc/Settings/SettingsTransitionLens.h"
#include "Proc/Settings/SettingsTransitionOrigamiFlips.h"
#include "Proc/Settings/SettingsTransitionOrigamiPleats.h"
#include "Proc/Settings/SettingsTransitionPageturn.h"
#include "Proc/Settings/SettingsTransitionPinwheel.h"
#include "Proc/Settings/SettingsTransitionPixels.h"
#include "Proc/Settings/SettingsTransitionPush.h"
#include "Proc/Settings/SettingsTransitionPuzzle.h"
#include "Proc/Settings/SettingsTransitionRadial.h"
#include "Proc/Settings/SettingsTransitionRipple.h"
#include "Proc/Settings/SettingsTransitionRippleSmooth.h"
#include "Proc/Settings/SettingsTransitionRoll.h"
#include "Proc/Settings/SettingsTransitionScale.h"
#include "Proc/Settings/SettingsTransitionShatter.h"
#include "Proc/Settings/SettingsTransitionSlide.h"
#include "Proc/Settings/SettingsTransitionSlidingDoor.h"
#include "Proc/Settings/SettingsTransitionSpin.h"
#include "Proc/Settings/SettingsTransitionSpiral.h"
#include "Proc/Settings/SettingsTransitionTwist.h"
#include "Proc/Settings/SettingsTransitionWaterbrush.h"
#include "Proc/Settings/SettingsTransitionZoom.h"
#include "catalog/CatalogFields.h"

namespace Zorvan::CatalogDetail {

namespace {

// The one field of the transitions that hold a direction or a type alone.
template <class C, class Getter>
void OneField(FieldMap& fields, const char* className, const char* name, Getter getter)
{
    fields[className] = {Field<C>(name, getter)};
}

// A field that the record computes from a stored number, which may lie outside the table the
// computation knows: the record is still shown, with the computation's refusal in place of a value.
template <class C, class Getter>
SettingsCatalogField Computed(std::string name, Getter getter)
{
    return {std::move(name), [getter](const Proc::Settings& record) -> nlohmann::json {
                try {
                    return ToJsonValue(std::invoke(getter, dynamic_cast<const C&>(record)));
                } catch (const std::logic_error& failure) {
                    const std::string text = failure.what();
                    return {{"error", text.substr(0, text.find('\n'))}};
                }
            }};
}

} // namespace

// Flash, Crossfade and Smear have no readable field, Matrix, Snake and Wipe only setters: the
// catalogue lists nothing for them. OrigamiPleats' dir and KenBurns' direction are listed as their
// getters compute them; a stored number outside the directions shows the getter's refusal.
void AddFieldsTransitions(FieldMap& fields)
{
    using namespace Proc;
    OneField<SettingsTransitionBarnDoor>(fields, "SettingsTransitionBarnDoor", "direction",
                                         &SettingsTransitionBarnDoor::GetDirection);
    OneField<SettingsTransitionBlur>(fields, "SettingsTransitionBlur", "direction",
                                     &SettingsTransitionBlur::GetDirection);
    OneField<SettingsTransitionCircle>(fields, "SettingsTransitionCircle", "direction",
                                       &SettingsTransitionCircle::GetDirection);
    OneField<SettingsTransitionRadial>(fields, "SettingsTransitionRadial", "direction",
                                       &SettingsTransitionRadial::GetDirection);
    OneField<SettingsTransitionSlide>(fields, "SettingsTransitionSlide", "direction",
                                      &SettingsTransitionSlide::GetDirection);
    OneField<SettingsTransitionSlidingDoor>(fields, "SettingsTransitionSlidingDoor", "direction",
                                            &SettingsTransitionSlidingDoor::GetDirection);
    OneField<SettingsTransitionPush>(fields, "SettingsTransitionPush", "dir", &SettingsTransitionPush::GetDir);
    OneField<SettingsTransitionLens>(fields, "SettingsTransitionLens", "type", &SettingsTransitionLens::GetType);
    OneField<SettingsTransitionPixels>(fields, "SettingsTransitionPixels", "type", &SettingsTransitionPixels::GetType);
    OneField<SettingsTransitionPuzzle>(fields, "SettingsTransitionPuzzle", "type", &SettingsTransitionPuzzle::GetType);
    OneField<SettingsTransitionScale>(fields, "SettingsTransitionScale", "type", &SettingsTransitionScale::GetType);
    OneField<SettingsTransitionSpin>(fields, "SettingsTransitionSpin", "type", &SettingsTransitionSpin::GetType);
    OneField<SettingsTransitionSpiral>(fields, "SettingsTransitionSpiral", "type", &SettingsTransitionSpiral::GetType);
    OneField<SettingsTransitionTwist>(fields, "SettingsTransitionTwist", "type", &SettingsTransitionTwist::GetType);
    OneField<SettingsTransitionZoom>(fields, "SettingsTransitionZoom", "type", &SettingsTransitionZoom::GetType);
    OneField<SettingsTransitionCross>(fields, "SettingsTransitionCross", "cross", &SettingsTransitionCross::GetCross2);
    OneField<SettingsTransitionDisintegrate>(fields, "SettingsTransitionDisintegrate", "num",
                                             &SettingsTransitionDisintegrate::GetNum);
    OneField<SettingsTransitionOrigamiFlips>(fields, "SettingsTransitionOrigamiFlips", "num",
                                             &SettingsTransitionOrigamiFlips::GetNum);

    using Pleats = SettingsTransitionOrigamiPleats;
    fields["SettingsTransitionOrigamiPleats"] = {
        Field<Pleats>("num", &Pleats::GetNum),
        Computed<Pleats>("dir", &Pleats::GetDir),
    };
    using Pageturn = SettingsTransitionPageturn;
    fields["SettingsTransitionPageturn"] = {
        Field<Pageturn>("dir", &Pageturn::GetDir),
        Field<Pageturn>("type", &Pageturn::GetType),
    };
    using Shatter = SettingsTransitionShatter;
    fields["SettingsTransitionShatter"] = {
        Field<Shatter>("num", &Shatter::GetNum),
        Field<Shatter>("dir", &Shatter::GetDir),
    };
    using RippleSmooth = SettingsTransitionRippleSmooth;
    fields["SettingsTransitionRippleSmooth"] = {
        Field<RippleSmooth>("freq", &RippleSmooth::GetFreq),
        Field<RippleSmooth>("ampl", &RippleSmooth::GetAmpl),
    };
    using Roll = SettingsTransitionRoll;
    fields["SettingsTransitionRoll"] = {
        Field<Roll>("size", &Roll::GetSize),
        Field<Roll>("dir", &Roll::GetDir),
        Field<Roll>("type", &Roll::GetType),
    };
    using Waterbrush = SettingsTransitionWaterbrush;
    fields["SettingsTransitionWaterbrush"] = {
        Field<Waterbrush>("angle", &Waterbrush::GetAngle),
        Field<Waterbrush>("size", &Waterbrush::GetSize),
        Field<Waterbrush>("rough", &Waterbrush::GetRough),
        Field<Waterbrush>("type", &Waterbrush::GetType),
    };
    using Ripple = SettingsTransitionRipple;
    fields["SettingsTransitionRipple"] = {
        Field<Ripple>("mode", &Ripple::GetMode),
        Field<Ripple>("amplitude", &Ripple::GetAmplitude),
        Field<Ripple>("period", &Ripple::GetPeriod),
        Field<Ripple>("waveCount", &Ripple::GetWaveCount),
        FieldJson<Ripple>("point",
                          [](const Ripple& c) {
                              const auto [x, y] = c.GetPoint().GetCenter();
                              return nlohmann::json{{"x", x}, {"y", y}};
                          }),
    };
    using KenBurns = SettingsTransitionKenBurns;
    fields["SettingsTransitionKenBurns"] = {
        Computed<KenBurns>("direction", &KenBurns::GetDirection),
        Field<KenBurns>("fade", &KenBurns::GetFade),
        Field<KenBurns>("zoom", &KenBurns::GetZoom),
    };
    using Pinwheel = SettingsTransitionPinwheel;
    fields["SettingsTransitionPinwheel"] = {
        Field<Pinwheel>("num", &Pinwheel::GetNum),
        Field<Pinwheel>("freq", &Pinwheel::GetFreq),
        Field<Pinwheel>("ampl", &Pinwheel::GetAmpl),
        Field<Pinwheel>("smoothness", &Pinwheel::GetSmoothness),
    };
}

} // namespace Zorvan::CatalogDetail
