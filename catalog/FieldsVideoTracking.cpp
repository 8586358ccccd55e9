#include "Proc/Settings/SettingsAnalyzerVideoTrackObjectBase.h"
#include "Proc/Settings/SettingsAnalyzerVideoTrackObjectOnnxRT.h"
#include "Proc/Settings/SettingsAnalyzerVideoTrackObjectOpenCV.h"
#include "catalog/CatalogFields.h"
#include "catalog/JsonValues.h"

namespace Zorvan::CatalogDetail {

namespace {

// {left, top, width, height}, the order of RectRel.
nlohmann::json RectToJson(const Proc::RectRel& rect)
{
    return nlohmann::json{{"left", rect.left}, {"top", rect.top}, {"width", rect.width}, {"height", rect.height}};
}

} // namespace

void AddFieldsVideoTracking(FieldMap& fields)
{
    using Proc::SettingsAnalyzerVideoTrackObjectBase;
    using Proc::SettingsAnalyzerVideoTrackObjectOnnxRT;
    using Proc::SettingsAnalyzerVideoTrackObjectOpenCV;
    fields["SettingsAnalyzerVideoTrackObjectBase"] = {
        Field<SettingsAnalyzerVideoTrackObjectBase>("begin", &SettingsAnalyzerVideoTrackObjectBase::GetBegin),
        FieldJson<SettingsAnalyzerVideoTrackObjectBase>(
            "rect", [](const SettingsAnalyzerVideoTrackObjectBase& c) { return RectToJson(c.GetRect()); }),
    };
    fields["SettingsAnalyzerVideoTrackObjectOpenCV"] = {
        Field<SettingsAnalyzerVideoTrackObjectOpenCV>("begin", &SettingsAnalyzerVideoTrackObjectOpenCV::GetBegin),
        FieldJson<SettingsAnalyzerVideoTrackObjectOpenCV>(
            "rect", [](const SettingsAnalyzerVideoTrackObjectOpenCV& c) { return RectToJson(c.GetRect()); }),
        Field<SettingsAnalyzerVideoTrackObjectOpenCV>("algorithm",
                                                      &SettingsAnalyzerVideoTrackObjectOpenCV::GetAlgorithm),
    };
    fields["SettingsAnalyzerVideoTrackObjectOnnxRT"] = {
        Field<SettingsAnalyzerVideoTrackObjectOnnxRT>("begin", &SettingsAnalyzerVideoTrackObjectOnnxRT::GetBegin),
        FieldJson<SettingsAnalyzerVideoTrackObjectOnnxRT>(
            "rect", [](const SettingsAnalyzerVideoTrackObjectOnnxRT& c) { return RectToJson(c.GetRect()); }),
        FieldJson<SettingsAnalyzerVideoTrackObjectOnnxRT>("backboneModelInfo",
                                                          [](const SettingsAnalyzerVideoTrackObjectOnnxRT& c) {
                                                              return CatalogJson::FromModel(c.GetBackboneModelInfo());
                                                          }),
        FieldJson<SettingsAnalyzerVideoTrackObjectOnnxRT>("headModelInfo",
                                                          [](const SettingsAnalyzerVideoTrackObjectOnnxRT& c) {
                                                              return CatalogJson::FromModel(c.GetHeadModelInfo());
                                                          }),
        Field<SettingsAnalyzerVideoTrackObjectOnnxRT>("confidenceThreshold",
                                                      &SettingsAnalyzerVideoTrackObjectOnnxRT::GetConfidenceThreshold),
    };
}

} // namespace Zorvan::CatalogDetail
