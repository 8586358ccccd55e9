#include "Proc/Settings/SettingsEffect360Cylindrical.h"
#include "Proc/Settings/SettingsEffectBorder.h"
#include "Proc/Settings/SettingsEffectCrop.h"
#include "Proc/Settings/SettingsEffectDeshake.h"
#include "Proc/Settings/SettingsEffectDisplayMatrix.h"
#include "Proc/Settings/SettingsEffectFillBlurredBackground.h"
#include "Proc/Settings/SettingsEffectFlip.h"
#include "Proc/Settings/SettingsEffectPad.h"
#include "Proc/Settings/SettingsEffectRotate.h"
#include "Proc/Settings/SettingsEffectStabilizer.h"
#include "Proc/Settings/SettingsEffectTransform.h"
#include "Proc/Settings/SettingsEffectTranspose.h"
#include "Proc/Settings/SettingsEffectZoom.h"
#include "catalog/CatalogFields.h"
#include "catalog/JsonValues.h"

namespace Zorvan::CatalogDetail {

namespace {

// {left, right, top, bottom}, the order of CropInfoF.
nlohmann::json FromCropF(const Proc::CropInfoF& crop)
{
    return nlohmann::json{{"left", crop.left}, {"right", crop.right}, {"top", crop.top}, {"bottom", crop.bottom}};
}

// The nine values m[0]..m[8], row by row.
nlohmann::json FromMatrix(const Core::Matrix3x3& matrix)
{
    return nlohmann::json(matrix.m);
}

// The fields that the transform records share, in their declared order.
template <class C>
std::vector<SettingsCatalogField> TransformFields()
{
    return {
        Field<C>("oddSizeAllowed", &C::IsOddSizeAllowed),
        Field<C>("mode", &C::GetMode),
        Field<C>("source", &C::GetSource),
        FieldJson<C>("matrix", [](const C& c) { return FromMatrix(c.GetMatrix()); }),
        Field<C>("scale", &C::GetScale),
    };
}

} // namespace

void AddFieldsGeometryEffects(FieldMap& fields)
{
    using Proc::SettingsEffect360Cylindrical;
    using Proc::SettingsEffectBorder;
    using Proc::SettingsEffectCrop;
    using Proc::SettingsEffectDeshake;
    using Proc::SettingsEffectDisplayMatrix;
    using Proc::SettingsEffectFillBlurredBackground;
    using Proc::SettingsEffectFlip;
    using Proc::SettingsEffectPad;
    using Proc::SettingsEffectRotate;
    using Proc::SettingsEffectStabilizer;
    using Proc::SettingsEffectTranspose;
    using Proc::SettingsEffectZoom;
    fields["SettingsEffectTransform"] = TransformFields<Proc::SettingsEffectTransform>();
    fields["SettingsEffectFlip"] = TransformFields<SettingsEffectFlip>();
    fields["SettingsEffectFlip"].push_back(
        Field<SettingsEffectFlip>("horizontalFlip", &SettingsEffectFlip::GetHorizontalFlip));
    fields["SettingsEffectFlip"].push_back(
        Field<SettingsEffectFlip>("verticalFlip", &SettingsEffectFlip::GetVerticalFlip));
    fields["SettingsEffectTranspose"] = TransformFields<SettingsEffectTranspose>();
    fields["SettingsEffectTranspose"].push_back(
        Field<SettingsEffectTranspose>("rotation", &SettingsEffectTranspose::GetRotation));
    fields["SettingsEffectDisplayMatrix"] = TransformFields<SettingsEffectDisplayMatrix>();
    fields["SettingsEffectDisplayMatrix"].push_back(FieldJson<SettingsEffectDisplayMatrix>(
        "displayMatrix", [](const SettingsEffectDisplayMatrix& c) { return c.GetDisplayMatrix().values; }));
    fields["SettingsEffectPad"] = {
        Field<SettingsEffectPad>("mode", &SettingsEffectPad::GetMode),
        FieldJson<SettingsEffectPad>("crop",
                                     [](const SettingsEffectPad& c) { return CatalogJson::FromCrop(c.GetCrop()); }),
        Field<SettingsEffectPad>("color", &SettingsEffectPad::GetColor),
        Field<SettingsEffectPad>("gapX", &SettingsEffectPad::GetGapX),
        Field<SettingsEffectPad>("gapY", &SettingsEffectPad::GetGapY),
    };
    fields["SettingsEffectCrop"] = {
        Field<SettingsEffectCrop>("left", &SettingsEffectCrop::GetLeft),
        Field<SettingsEffectCrop>("right", &SettingsEffectCrop::GetRight),
        Field<SettingsEffectCrop>("top", &SettingsEffectCrop::GetTop),
        Field<SettingsEffectCrop>("bottom", &SettingsEffectCrop::GetBottom),
    };
    fields["SettingsEffectBorder"] = {
        Field<SettingsEffectBorder>("relative", &SettingsEffectBorder::GetRelative),
        FieldJson<SettingsEffectBorder>(
            "sizes", [](const SettingsEffectBorder& c) { return CatalogJson::FromCrop(c.GetSizes()); }),
        FieldJson<SettingsEffectBorder>("relativeSizes",
                                        [](const SettingsEffectBorder& c) { return FromCropF(c.GetRelativeSizes()); }),
        Field<SettingsEffectBorder>("color", &SettingsEffectBorder::GetColor),
    };
    fields["SettingsEffect360Cylindrical"] = {
        Field<SettingsEffect360Cylindrical>("enabled", &SettingsEffect360Cylindrical::GetEnabled),
        Field<SettingsEffect360Cylindrical>("fi", &SettingsEffect360Cylindrical::GetFi),
        Field<SettingsEffect360Cylindrical>("tetta", &SettingsEffect360Cylindrical::GetTetta),
        Field<SettingsEffect360Cylindrical>("zoom", &SettingsEffect360Cylindrical::GetZoom),
    };
    fields["SettingsEffectFillBlurredBackground"] = {
        Field<SettingsEffectFillBlurredBackground>("radius", &SettingsEffectFillBlurredBackground::GetRadius),
        FieldJson<SettingsEffectFillBlurredBackground>(
            "rect", [](const SettingsEffectFillBlurredBackground& c) { return FromCropF(c.GetRect()); }),
    };
    fields["SettingsEffectZoom"] = {
        Field<SettingsEffectZoom>("in", &SettingsEffectZoom::GetIn),
        Field<SettingsEffectZoom>("out", &SettingsEffectZoom::GetOut),
    };
    fields["SettingsEffectRotate"] = {
        Field<SettingsEffectRotate>("angle", &SettingsEffectRotate::GetAngle),
        Field<SettingsEffectRotate>("type", &SettingsEffectRotate::GetType),
        Field<SettingsEffectRotate>("outputWidth", &SettingsEffectRotate::GetOutputWidth),
        Field<SettingsEffectRotate>("outputHeight", &SettingsEffectRotate::GetOutputHeight),
        Field<SettingsEffectRotate>("color", &SettingsEffectRotate::GetColor),
        Field<SettingsEffectRotate>("bilinear", &SettingsEffectRotate::GetBilinear),
    };
    fields["SettingsEffectStabilizer"] = {
        Field<SettingsEffectStabilizer>("tripod", &SettingsEffectStabilizer::GetTripod),
        Field<SettingsEffectStabilizer>("relative", &SettingsEffectStabilizer::GetRelative),
        Field<SettingsEffectStabilizer>("transformsPath", &SettingsEffectStabilizer::GetTransformsPath),
        Field<SettingsEffectStabilizer>("smoothing", &SettingsEffectStabilizer::GetSmoothing),
        Field<SettingsEffectStabilizer>("zoom", &SettingsEffectStabilizer::GetZoom),
    };
    fields["SettingsEffectDeshake"] = {
        Field<SettingsEffectDeshake>("rangeX", &SettingsEffectDeshake::GetRangeX),
        Field<SettingsEffectDeshake>("rangeY", &SettingsEffectDeshake::GetRangeY),
        Field<SettingsEffectDeshake>("edgeMode", &SettingsEffectDeshake::GetEdgeMode),
    };
}

} // namespace Zorvan::CatalogDetail
