#include "catalog/SettingsCatalog.h"

#include <stdexcept>

#include "Proc/Settings/AllSettings.h"
#include "catalog/CatalogFields.h"

namespace Zorvan {

std::string SettingsCatalogEntry::Own() const
{
    if (!hasVirtualTable) {
        return "-";
    }
    std::string letters;
    letters += ownIsEqualTo ? "E" : "";
    letters += ownIsEmpty ? "M" : "";
    letters += ownDeserialize ? "D" : "";
    return letters.empty() ? "none" : letters;
}

nlohmann::ordered_json SettingsCatalogEntry::FieldsToJson(const Proc::Settings& record) const
{
    nlohmann::ordered_json object = nlohmann::ordered_json::object();
    for (const auto& field : fields) {
        object[field.name] = field.get(record);
    }
    return object;
}

namespace {

template <class C>
SettingsCatalogEntry Entry(const char* className, const char* base, const char* group, std::string_view own)
{
    SettingsCatalogEntry entry;
    entry.classId = C::CLASS_ID;
    entry.className = className;
    entry.base = base;
    entry.group = group;
    entry.hasVirtualTable = own != "-";
    entry.ownIsEqualTo = own.find('E') != std::string_view::npos;
    entry.ownIsEmpty = own.find('M') != std::string_view::npos;
    entry.ownDeserialize = own.find('D') != std::string_view::npos;
    entry.create = [] { return std::unique_ptr<Proc::Settings>(std::make_unique<C>()); };
    return entry;
}

std::vector<SettingsCatalogEntry> BuildEntries()
{
    // Grouped as the engine groups its stages, alphabetical within each group.
    std::vector<SettingsCatalogEntry> entries{
        Entry<Proc::SettingsAnalyzerAudioDetectShift>("SettingsAnalyzerAudioDetectShift", "Settings", "Analyzers", "D"),
        Entry<Proc::SettingsAnalyzerSilenceDetector>("SettingsAnalyzerSilenceDetector", "Settings", "Analyzers", "D"),
        Entry<Proc::SettingsAnalyzerSpeechToText>("SettingsAnalyzerSpeechToText", "Settings", "Analyzers", "D"),
        Entry<Proc::SettingsAnalyzerVideoTrackObjectBase>("SettingsAnalyzerVideoTrackObjectBase", "Settings",
                                                          "Analyzers", "D"),
        Entry<Proc::SettingsAnalyzerVideoTrackObjectOnnxRT>("SettingsAnalyzerVideoTrackObjectOnnxRT",
                                                            "SettingsAnalyzerVideoTrackObjectBase", "Analyzers", "D"),
        Entry<Proc::SettingsAnalyzerVideoTrackObjectOpenCV>("SettingsAnalyzerVideoTrackObjectOpenCV",
                                                            "SettingsAnalyzerVideoTrackObjectBase", "Analyzers", "D"),
        Entry<Proc::SettingsAudioChorus>("SettingsAudioChorus", "Settings", "Audio", "D"),
        Entry<Proc::SettingsAudioCompressor>("SettingsAudioCompressor", "Settings", "Audio", "D"),
        Entry<Proc::SettingsAudioDistortion>("SettingsAudioDistortion", "Settings", "Audio", "D"),
        Entry<Proc::SettingsAudioEcho>("SettingsAudioEcho", "Settings", "Audio", "ED"),
        Entry<Proc::SettingsAudioEqualizer>("SettingsAudioEqualizer", "Settings", "Audio", "D"),
        Entry<Proc::SettingsAudioFlanger>("SettingsAudioFlanger", "Settings", "Audio", "ED"),
        Entry<Proc::SettingsAudioGate>("SettingsAudioGate", "Settings", "Audio", "ED"),
        Entry<Proc::SettingsAudioGenerator>("SettingsAudioGenerator", "-", "Audio", "-"),
        Entry<Proc::SettingsAudioHistogram>("SettingsAudioHistogram", "-", "Audio", "-"),
        Entry<Proc::SettingsAudioNoiseGate>("SettingsAudioNoiseGate", "Settings", "Audio", "ED"),
        Entry<Proc::SettingsAudioNoiseSuppress>("SettingsAudioNoiseSuppress", "Settings", "Audio", "ED"),
        Entry<Proc::SettingsAudioPitch>("SettingsAudioPitch", "Settings", "Audio", "D"),
        Entry<Proc::SettingsAudioRadio>("SettingsAudioRadio", "Settings", "Audio", "D"),
        Entry<Proc::SettingsAudioReverb>("SettingsAudioReverb", "Settings", "Audio", "D"),
        Entry<Proc::SettingsAudioReverberationImpulseResponse>("SettingsAudioReverberationImpulseResponse", "Settings",
                                                               "Audio", "ED"),
        Entry<Proc::SettingsAudioRobot>("SettingsAudioRobot", "Settings", "Audio", "D"),
        Entry<Proc::SettingsAudioSpeechDenoiser>("SettingsAudioSpeechDenoiser", "Settings", "Audio", "ED"),
        Entry<Proc::SettingsAudioVibrato>("SettingsAudioVibrato", "Settings", "Audio", "ED"),
        Entry<Proc::SettingsEffect360Cylindrical>("SettingsEffect360Cylindrical", "Settings", "Effects", "EM"),
        Entry<Proc::SettingsEffectAddNoize>("SettingsEffectAddNoize", "Settings", "Effects", "D"),
        Entry<Proc::SettingsEffectAim>("SettingsEffectAim", "Settings", "Effects", "MD"),
        Entry<Proc::SettingsEffectAlphaChannelModifier>("SettingsEffectAlphaChannelModifier", "Settings", "Effects",
                                                        "D"),
        Entry<Proc::SettingsEffectAlphaExtractor>("SettingsEffectAlphaExtractor", "-", "Effects", "-"),
        Entry<Proc::SettingsEffectAlphaInserter>("SettingsEffectAlphaInserter", "-", "Effects", "-"),
        Entry<Proc::SettingsEffectAudioCrossfade>("SettingsEffectAudioCrossfade", "-", "Effects", "-"),
        Entry<Proc::SettingsEffectAudioMixer>("SettingsEffectAudioMixer", "-", "Effects", "-"),
        Entry<Proc::SettingsEffectAudioStereo2DualMono>("SettingsEffectAudioStereo2DualMono", "Settings", "Effects",
                                                        "D"),
        Entry<Proc::SettingsEffectAudioVolumeEnvelope>("SettingsEffectAudioVolumeEnvelope", "-", "Effects", "-"),
        Entry<Proc::SettingsEffectAutoContrast>("SettingsEffectAutoContrast", "Settings", "Effects", "ED"),
        Entry<Proc::SettingsEffectAutoWhiteBalance>("SettingsEffectAutoWhiteBalance", "Settings", "Effects", "ED"),
        Entry<Proc::SettingsEffectBalanceChroma>("SettingsEffectBalanceChroma", "Settings", "Effects", "EMD"),
        Entry<Proc::SettingsEffectBlurGaussian>("SettingsEffectBlurGaussian", "Settings", "Effects", "D"),
        Entry<Proc::SettingsEffectBlur>("SettingsEffectBlur", "Settings", "Effects", "EM"),
        Entry<Proc::SettingsEffectBokehBlur>("SettingsEffectBokehBlur", "Settings", "Effects", "D"),
        Entry<Proc::SettingsEffectBorder>("SettingsEffectBorder", "Settings", "Effects", "EM"),
        Entry<Proc::SettingsEffectCameraShake>("SettingsEffectCameraShake", "Settings", "Effects", "MD"),
        Entry<Proc::SettingsEffectCensored>("SettingsEffectCensored", "-", "Effects", "-"),
        Entry<Proc::SettingsEffectChannelMixer>("SettingsEffectChannelMixer", "Settings", "Effects", "EMD"),
        Entry<Proc::SettingsEffectChromakey>("SettingsEffectChromakey", "Settings", "Effects", "D"),
        Entry<Proc::SettingsEffectChromaticAberration>("SettingsEffectChromaticAberration", "Settings", "Effects",
                                                       "ED"),
        Entry<Proc::SettingsEffectColorBalance>("SettingsEffectColorBalance", "Settings", "Effects", "EMD"),
        Entry<Proc::SettingsEffectColorBlender>("SettingsEffectColorBlender", "Settings", "Effects", "EMD"),
        Entry<Proc::SettingsEffectColorBrush>("SettingsEffectColorBrush", "Settings", "Effects", "D"),
        Entry<Proc::SettingsEffectColorChannelMixer>("SettingsEffectColorChannelMixer", "Settings", "Effects", "EM"),
        Entry<Proc::SettingsEffectColorCurves>("SettingsEffectColorCurves", "Settings", "Effects", "EMD"),
        Entry<Proc::SettingsEffectColorFilter>("SettingsEffectColorFilter", "Settings", "Effects", "ED"),
        Entry<Proc::SettingsEffectColorMixBurn>("SettingsEffectColorMixBurn", "Settings", "Effects", "ED"),
        Entry<Proc::SettingsEffectColorMixExchange>("SettingsEffectColorMixExchange", "Settings", "Effects", "D"),
        Entry<Proc::SettingsEffectColorMixField>("SettingsEffectColorMixField", "-", "Effects", "-"),
        Entry<Proc::SettingsEffectColorSelect>("SettingsEffectColorSelect", "Settings", "Effects", "D"),
        Entry<Proc::SettingsEffectCrop>("SettingsEffectCrop", "Settings", "Effects", "EM"),
        Entry<Proc::SettingsEffectDenoiseChromaLuma>("SettingsEffectDenoiseChromaLuma", "Settings", "Effects", "EM"),
        Entry<Proc::SettingsEffectDenoiseDCT>("SettingsEffectDenoiseDCT", "Settings", "Effects", "EM"),
        Entry<Proc::SettingsEffectDenoiseOvercompleteWavelet>("SettingsEffectDenoiseOvercompleteWavelet", "Settings",
                                                              "Effects", "EM"),
        Entry<Proc::SettingsEffectDeshake>("SettingsEffectDeshake", "-", "Effects", "-"),
        Entry<Proc::SettingsEffectDiffuse>("SettingsEffectDiffuse", "Settings", "Effects", "D"),
        Entry<Proc::SettingsEffectDisplacementMap>("SettingsEffectDisplacementMap", "Settings", "Effects", "EMD"),
        Entry<Proc::SettingsEffectDisplayMatrix>("SettingsEffectDisplayMatrix", "-", "Effects", "-"),
        Entry<Proc::SettingsEffectEdgeDetect>("SettingsEffectEdgeDetect", "-", "Effects", "-"),
        Entry<Proc::SettingsEffectEmboss>("SettingsEffectEmboss", "-", "Effects", "-"),
        Entry<Proc::SettingsEffectErosion>("SettingsEffectErosion", "Settings", "Effects", "D"),
        Entry<Proc::SettingsEffectExtraAlphaExtractor>("SettingsEffectExtraAlphaExtractor", "-", "Effects", "-"),
        Entry<Proc::SettingsEffectFillBlurredBackground>("SettingsEffectFillBlurredBackground", "Settings", "Effects",
                                                         "D"),
        Entry<Proc::SettingsEffectFilmStrip>("SettingsEffectFilmStrip", "-", "Effects", "-"),
        Entry<Proc::SettingsEffectFindEdges>("SettingsEffectFindEdges", "Settings", "Effects", "D"),
        Entry<Proc::SettingsEffectFishEye>("SettingsEffectFishEye", "Settings", "Effects", "ED"),
        Entry<Proc::SettingsEffectFixVertVideo>("SettingsEffectFixVertVideo", "-", "Effects", "-"),
        Entry<Proc::SettingsEffectFlip>("SettingsEffectFlip", "SettingsEffectTransform", "Effects", "EMD"),
        Entry<Proc::SettingsEffectFlyingObjects>("SettingsEffectFlyingObjects", "Settings", "Effects", "D"),
        Entry<Proc::SettingsEffectGIMPBalanceChroma>("SettingsEffectGIMPBalanceChroma", "-", "Effects", "-"),
        Entry<Proc::SettingsEffectGIMPColorCorrection>("SettingsEffectGIMPColorCorrection", "Settings", "Effects",
                                                       "EMD"),
        Entry<Proc::SettingsEffectGIMPColorTemperature>("SettingsEffectGIMPColorTemperature", "Settings", "Effects",
                                                        "EMD"),
        Entry<Proc::SettingsEffectGIMPColorize>("SettingsEffectGIMPColorize", "Settings", "Effects", "EMD"),
        Entry<Proc::SettingsEffectGIMPHueSaturation>("SettingsEffectGIMPHueSaturation", "Settings", "Effects", "EMD"),
        Entry<Proc::SettingsEffectGIMPShadowsHightlights>("SettingsEffectGIMPShadowsHightlights", "Settings", "Effects",
                                                          "EMD"),
        Entry<Proc::SettingsEffectGlassMosaic>("SettingsEffectGlassMosaic", "Settings", "Effects", "D"),
        Entry<Proc::SettingsEffectGlitchMpeg>("SettingsEffectGlitchMpeg", "Settings", "Effects", "EMD"),
        Entry<Proc::SettingsEffectGlitchSecurityCam>("SettingsEffectGlitchSecurityCam", "Settings", "Effects", "ED"),
        Entry<Proc::SettingsEffectHalfTone>("SettingsEffectHalfTone", "Settings", "Effects", "ED"),
        Entry<Proc::SettingsEffectHumanMatting>("SettingsEffectHumanMatting", "Settings", "Effects", "D"),
        Entry<Proc::SettingsEffectISF>("SettingsEffectISF", "-", "Effects", "-"),
        Entry<Proc::SettingsEffectImageBlender>("SettingsEffectImageBlender", "SettingsEffectColorBlender", "Effects",
                                                "EMD"),
        Entry<Proc::SettingsEffectInvert>("SettingsEffectInvert", "Settings", "Effects", "ED"),
        Entry<Proc::SettingsEffectJalousie>("SettingsEffectJalousie", "-", "Effects", "-"),
        Entry<Proc::SettingsEffectLUT>("SettingsEffectLUT", "Settings", "Effects", "EMD"),
        Entry<Proc::SettingsEffectLensDistortion>("SettingsEffectLensDistortion", "Settings", "Effects", "EMD"),
        Entry<Proc::SettingsEffectLensFlare>("SettingsEffectLensFlare", "Settings", "Effects", "D"),
        Entry<Proc::SettingsEffectLightLeaks>("SettingsEffectLightLeaks", "Settings", "Effects", "ED"),
        Entry<Proc::SettingsEffectMagicEnhance2>("SettingsEffectMagicEnhance2", "Settings", "Effects", "EMD"),
        Entry<Proc::SettingsEffectMagicEnhance>("SettingsEffectMagicEnhance", "Settings", "Effects", "E"),
        Entry<Proc::SettingsEffectMask>("SettingsEffectMask", "Settings", "Effects", "D"),
        Entry<Proc::SettingsEffectMaskedMix>("SettingsEffectMaskedMix", "-", "Effects", "-"),
        Entry<Proc::SettingsEffectMidEqualizer>("SettingsEffectMidEqualizer", "-", "Effects", "-"),
        Entry<Proc::SettingsEffectMirror>("SettingsEffectMirror", "-", "Effects", "-"),
        Entry<Proc::SettingsEffectMosaic>("SettingsEffectMosaic", "Settings", "Effects", "D"),
        Entry<Proc::SettingsEffectMotionBlur>("SettingsEffectMotionBlur", "Settings", "Effects", "D"),
        Entry<Proc::SettingsEffectMultiInputISF>("SettingsEffectMultiInputISF", "-", "Effects", "-"),
        Entry<Proc::SettingsEffectNegateVideo>("SettingsEffectNegateVideo", "Settings", "Effects", "EM"),
        Entry<Proc::SettingsEffectNeonLamp>("SettingsEffectNeonLamp", "Settings", "Effects", "EMD"),
        Entry<Proc::SettingsEffectNoiseVideo>("SettingsEffectNoiseVideo", "Settings", "Effects", "EM"),
        Entry<Proc::SettingsEffectOilPaint>("SettingsEffectOilPaint", "Settings", "Effects", "EMD"),
        Entry<Proc::SettingsEffectOpacity>("SettingsEffectOpacity", "-", "Effects", "-"),
        Entry<Proc::SettingsEffectPad>("SettingsEffectPad", "Settings", "Effects", "EMD"),
        Entry<Proc::SettingsEffectPanAndZoom>("SettingsEffectPanAndZoom", "-", "Effects", "-"),
        Entry<Proc::SettingsEffectPopArt>("SettingsEffectPopArt", "Settings", "Effects", "ED"),
        Entry<Proc::SettingsEffectPosterize>("SettingsEffectPosterize", "Settings", "Effects", "EMD"),
        Entry<Proc::SettingsEffectRemoveGrain>("SettingsEffectRemoveGrain", "Settings", "Effects", "EMD"),
        Entry<Proc::SettingsEffectRetroArtefacts>("SettingsEffectRetroArtefacts", "Settings", "Effects", "ED"),
        Entry<Proc::SettingsEffectRetroColors>("SettingsEffectRetroColors", "Settings", "Effects", "ED"),
        Entry<Proc::SettingsEffectRotate>("SettingsEffectRotate", "-", "Effects", "-"),
        Entry<Proc::SettingsEffectSaturation>("SettingsEffectSaturation", "Settings", "Effects", "EMD"),
        Entry<Proc::SettingsEffectSharpen>("SettingsEffectSharpen", "Settings", "Effects", "ED"),
        Entry<Proc::SettingsEffectShiftLuma>("SettingsEffectShiftLuma", "Settings", "Effects", "ED"),
        Entry<Proc::SettingsEffectShiftUV>("SettingsEffectShiftUV", "Settings", "Effects", "EMD"),
        Entry<Proc::SettingsEffectSmartBlur>("SettingsEffectSmartBlur", "-", "Effects", "-"),
        Entry<Proc::SettingsEffectStabilizer>("SettingsEffectStabilizer", "-", "Effects", "-"),
        Entry<Proc::SettingsEffectStripes>("SettingsEffectStripes", "Settings", "Effects", "MD"),
        Entry<Proc::SettingsEffectSubFrame>("SettingsEffectSubFrame", "-", "Effects", "-"),
        Entry<Proc::SettingsEffectTelevision70s>("SettingsEffectTelevision70s", "Settings", "Effects", "ED"),
        Entry<Proc::SettingsEffectTemplateZES>("SettingsEffectTemplateZES", "Settings", "Effects", "ED"),
        Entry<Proc::SettingsEffectTiltShiftVEZ>("SettingsEffectTiltShiftVEZ", "Settings", "Effects", "D"),
        Entry<Proc::SettingsEffectTransform>("SettingsEffectTransform", "Settings", "Effects", "EM"),
        Entry<Proc::SettingsEffectTranspose>("SettingsEffectTranspose", "-", "Effects", "-"),
        Entry<Proc::SettingsEffectTwirl>("SettingsEffectTwirl", "Settings", "Effects", "D"),
        Entry<Proc::SettingsEffectVHS>("SettingsEffectVHS", "Settings", "Effects", "D"),
        Entry<Proc::SettingsEffectVertigo>("SettingsEffectVertigo", "Settings", "Effects", "D"),
        Entry<Proc::SettingsEffectVideoAlphaEnvelope>("SettingsEffectVideoAlphaEnvelope", "-", "Effects", "-"),
        Entry<Proc::SettingsEffectVignetteFilter>("SettingsEffectVignetteFilter", "Settings", "Effects", "ED"),
        Entry<Proc::SettingsEffectWatermark>("SettingsEffectWatermark", "-", "Effects", "-"),
        Entry<Proc::SettingsEffectZoom>("SettingsEffectZoom", "-", "Effects", "-"),
        Entry<Proc::SettingsFilterAudioFormatter>("SettingsFilterAudioFormatter", "-", "Filters", "-"),
        Entry<Proc::SettingsFilterAudioVolume>("SettingsFilterAudioVolume", "Settings", "Filters", "E"),
        Entry<Proc::SettingsFilterBitStream>("SettingsFilterBitStream", "Settings", "Filters", "E"),
        Entry<Proc::SettingsFilterBlurTransparentBorder>("SettingsFilterBlurTransparentBorder", "Settings", "Filters",
                                                         "E"),
        Entry<Proc::SettingsFilterCutController>("SettingsFilterCutController", "Settings", "Filters", "E"),
        Entry<Proc::SettingsFilterDurationTrimmer>("SettingsFilterDurationTrimmer", "Settings", "Filters", "E"),
        Entry<Proc::SettingsFilterFPSDoubler>("SettingsFilterFPSDoubler", "AIFrameGeneratorSettings, Settings",
                                              "Filters", "ED"),
        Entry<Proc::SettingsFilterFrameRate>("SettingsFilterFrameRate", "Settings", "Filters", "E"),
        Entry<Proc::SettingsFilterIntroLoopOutro>("SettingsFilterIntroLoopOutro", "-", "Filters", "-"),
        Entry<Proc::SettingsFilterLoop>("SettingsFilterLoop", "-", "Filters", "-"),
        Entry<Proc::SettingsFilterRepeatController>("SettingsFilterRepeatController", "-", "Filters", "-"),
        Entry<Proc::SettingsFilterRepeat>("SettingsFilterRepeat", "-", "Filters", "-"),
        Entry<Proc::SettingsFilterResample>("SettingsFilterResample", "-", "Filters", "-"),
        Entry<Proc::SettingsFilterReverse>("SettingsFilterReverse", "-", "Filters", "-"),
        Entry<Proc::SettingsFilterSlowMotion>("SettingsFilterSlowMotion", "AIFrameGeneratorSettings, Settings",
                                              "Filters", "ED"),
        Entry<Proc::SettingsFilterSpeedUpVideo>("SettingsFilterSpeedUpVideo", "SettingsFilterSpeedUp", "Filters",
                                                "EMD"),
        Entry<Proc::SettingsFilterSpeedUp>("SettingsFilterSpeedUp", "Settings", "Filters", "EMD"),
        Entry<Proc::SettingsFilterVideoMixer>("SettingsFilterVideoMixer", "-", "Filters", "-"),
        Entry<Proc::SettingsFilterVolumeDetect>("SettingsFilterVolumeDetect", "-", "Filters", "-"),
        Entry<Proc::SettingsTransitionBarnDoor>("SettingsTransitionBarnDoor", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionBlinds>("SettingsTransitionBlinds", "-", "Transitions", "-"),
        Entry<Proc::SettingsTransitionBlur>("SettingsTransitionBlur", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionCircle>("SettingsTransitionCircle", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionCross>("SettingsTransitionCross", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionCrossfade>("SettingsTransitionCrossfade", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionCube>("SettingsTransitionCube", "-", "Transitions", "-"),
        Entry<Proc::SettingsTransitionDisintegrate>("SettingsTransitionDisintegrate", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionFadeInFadeOut>("SettingsTransitionFadeInFadeOut", "-", "Transitions", "-"),
        Entry<Proc::SettingsTransitionFlash>("SettingsTransitionFlash", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionGlitch>("SettingsTransitionGlitch", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionISF>("SettingsTransitionISF", "-", "Transitions", "-"),
        Entry<Proc::SettingsTransitionKenBurns>("SettingsTransitionKenBurns", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionLens>("SettingsTransitionLens", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionMatrix>("SettingsTransitionMatrix", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionModifiedMotionSpin>("SettingsTransitionModifiedMotionSpin", "Settings",
                                                          "Transitions", "D"),
        Entry<Proc::SettingsTransitionMosaic>("SettingsTransitionMosaic", "-", "Transitions", "-"),
        Entry<Proc::SettingsTransitionMotionSpin>("SettingsTransitionMotionSpin", "Settings", "Transitions", "ED"),
        Entry<Proc::SettingsTransitionOrigamiFlips>("SettingsTransitionOrigamiFlips", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionOrigamiPleats>("SettingsTransitionOrigamiPleats", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionOrigamiValley>("SettingsTransitionOrigamiValley", "-", "Transitions", "-"),
        Entry<Proc::SettingsTransitionPageturn>("SettingsTransitionPageturn", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionParallax>("SettingsTransitionParallax", "Settings", "Transitions", "ED"),
        Entry<Proc::SettingsTransitionPieces>("SettingsTransitionPieces", "-", "Transitions", "-"),
        Entry<Proc::SettingsTransitionPinwheel>("SettingsTransitionPinwheel", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionPixels>("SettingsTransitionPixels", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionPush>("SettingsTransitionPush", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionPuzzle>("SettingsTransitionPuzzle", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionRadial>("SettingsTransitionRadial", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionRageZoom>("SettingsTransitionRageZoom", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionRippleSmooth>("SettingsTransitionRippleSmooth", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionRipple>("SettingsTransitionRipple", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionRoll>("SettingsTransitionRoll", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionScale>("SettingsTransitionScale", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionShatter>("SettingsTransitionShatter", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionSlice>("SettingsTransitionSlice", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionSlide>("SettingsTransitionSlide", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionSlidingDoor>("SettingsTransitionSlidingDoor", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionSmear>("SettingsTransitionSmear", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionSnake>("SettingsTransitionSnake", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionSpin>("SettingsTransitionSpin", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionSpiral>("SettingsTransitionSpiral", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionTemplateZES>("SettingsTransitionTemplateZES", "Settings", "Transitions", "ED"),
        Entry<Proc::SettingsTransitionThroughColor>("SettingsTransitionThroughColor", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionTwist>("SettingsTransitionTwist", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionWaterbrush>("SettingsTransitionWaterbrush", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionWhipe>("SettingsTransitionWhipe", "Settings", "Transitions", "ED"),
        Entry<Proc::SettingsTransitionWhoosh>("SettingsTransitionWhoosh", "Settings", "Transitions", "ED"),
        Entry<Proc::SettingsTransitionWipe>("SettingsTransitionWipe", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionWithEffects>("SettingsTransitionWithEffects", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionZoomBlur>("SettingsTransitionZoomBlur", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsTransitionZoom>("SettingsTransitionZoom", "Settings", "Transitions", "D"),
        Entry<Proc::SettingsColorSpaceConverter>("SettingsColorSpaceConverter", "Settings", "Others", "ED"),
        Entry<Proc::SettingsDeinterlace>("SettingsDeinterlace", "Settings", "Others", "ED"),
        Entry<Proc::SettingsFrameDownloader>("SettingsFrameDownloader", "-", "Others", "-"),
        Entry<Proc::SettingsFrameUploader>("SettingsFrameUploader", "-", "Others", "-"),
        Entry<Proc::SettingsLosslessDetect>("SettingsLosslessDetect", "-", "Others", "-"),
        Entry<Proc::SettingsParser>("SettingsParser", "-", "Others", "-"),
        Entry<Proc::SettingsPixelFormatConverter>("SettingsPixelFormatConverter", "-", "Others", "-"),
        Entry<Proc::SettingsResizer>("SettingsResizer", "Settings", "Others", "ED"),
        Entry<Proc::SettingsStreamMetadataUpdater>("SettingsStreamMetadataUpdater", "-", "Others", "-"),
        Entry<Proc::SettingsStreamOneFrame>("SettingsStreamOneFrame", "-", "Others", "-"),
        Entry<Proc::SettingsSubtitleDrawer>("SettingsSubtitleDrawer", "-", "Others", "-"),
        Entry<Proc::SettingsTwoPassEncoding>("SettingsTwoPassEncoding", "-", "Others", "-"),
        Entry<Proc::SettingsVideoDecoder>("SettingsVideoDecoder", "Settings", "Others", "ED"),
    };
    CatalogDetail::FieldMap fields;
    CatalogDetail::AddFieldsCore(fields);
    CatalogDetail::AddFieldsResizer(fields);
    CatalogDetail::AddFieldsCutController(fields);
    CatalogDetail::AddFieldsTimeFilters(fields);
    CatalogDetail::AddFieldsSubtitles(fields);
    CatalogDetail::AddFieldsSpeechToText(fields);
    CatalogDetail::AddFieldsVideoTracking(fields);
    CatalogDetail::AddFieldsAudioAnalyzers(fields);
    CatalogDetail::AddFieldsAudioDynamics(fields);
    CatalogDetail::AddFieldsAudioDelayModulation(fields);
    CatalogDetail::AddFieldsAudioReverberation(fields);
    CatalogDetail::AddFieldsAutoEnhancement(fields);
    CatalogDetail::AddFieldsColorBalance(fields);
    CatalogDetail::AddFieldsCurves(fields);
    CatalogDetail::AddFieldsStylising(fields);
    CatalogDetail::AddFieldsVignette(fields);
    CatalogDetail::AddFieldsHalfTonePopArt(fields);
    CatalogDetail::AddFieldsCameraShakeGlitchTiltShift(fields);
    CatalogDetail::AddFieldsStreamPipeline(fields);
    CatalogDetail::AddFieldsAudioEqualizer(fields);
    CatalogDetail::AddFieldsAudioVoice(fields);
    CatalogDetail::AddFieldsDenoise(fields);
    CatalogDetail::AddFieldsColorBlending(fields);
    CatalogDetail::AddFieldsChannelMixing(fields);
    CatalogDetail::AddFieldsImageEditor(fields);
    CatalogDetail::AddFieldsGeometryEffects(fields);
    CatalogDetail::AddFieldsTemplates(fields);
    CatalogDetail::AddFieldsSlice(fields);
    CatalogDetail::AddFieldsMotionTransitions(fields);
    CatalogDetail::AddFieldsOverlays(fields);
    CatalogDetail::AddFieldsTransitions(fields);
    for (auto& entry : entries) {
        if (auto found = fields.find(entry.className); found != fields.end()) {
            entry.fields = std::move(found->second);
            fields.erase(found);
        }
    }
    if (!fields.empty()) {
        throw std::logic_error("catalogue fields for an unknown class: " + fields.begin()->first);
    }
    return entries;
}

} // namespace

const std::vector<SettingsCatalogEntry>& SettingsCatalog::Entries()
{
    static const std::vector<SettingsCatalogEntry> entries = BuildEntries();
    return entries;
}

const SettingsCatalogEntry* SettingsCatalog::Find(std::string_view idOrClassName)
{
    for (const auto& entry : Entries()) {
        if (entry.classId == idOrClassName || entry.className == idOrClassName) {
            return &entry;
        }
    }
    return nullptr;
}

} // namespace Zorvan
