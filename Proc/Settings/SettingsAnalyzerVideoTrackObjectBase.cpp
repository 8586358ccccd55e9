#include "Proc/Settings/SettingsAnalyzerVideoTrackObjectBase.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

const std::string SettingsAnalyzerVideoTrackObjectBase::CLASS_ID ZORVAN_INIT_STRINGS =
    "SettingsAnalyzerVideoTrackObject";

namespace {

// In 0 to 1, bounds included; not-a-number is not.
bool InUnitRange(double value)
{
    return value >= 0.0 && value <= 1.0;
}

} // namespace

bool SettingsAnalyzerVideoTrackObjectBase::Result::TrackingInfo::operator==(const TrackingInfo& other) const
{
    return value0 == other.value0 && value1 == other.value1 && rect.left == other.rect.left &&
           rect.top == other.rect.top && rect.width == other.rect.width && rect.height == other.rect.height;
}

SettingsAnalyzerVideoTrackObjectBase::Result::~Result() = default;

void SettingsAnalyzerVideoTrackObjectBase::Result::AddTrackingInfo(long long value0, long long value1,
                                                                   const RectRel& rect)
{
    trackingInfos.push_back(TrackingInfo{value0, value1, rect});
}

const std::vector<SettingsAnalyzerVideoTrackObjectBase::Result::TrackingInfo>&
SettingsAnalyzerVideoTrackObjectBase::Result::GetResult() const
{
    return trackingInfos;
}

bool SettingsAnalyzerVideoTrackObjectBase::Result::operator==(const Result& other) const
{
    return trackingInfos == other.trackingInfos;
}

SettingsAnalyzerVideoTrackObjectBase::~SettingsAnalyzerVideoTrackObjectBase() = default;

const std::string& SettingsAnalyzerVideoTrackObjectBase::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAnalyzerVideoTrackObjectBase::Clone() const
{
    return std::make_unique<SettingsAnalyzerVideoTrackObjectBase>(*this);
}

void SettingsAnalyzerVideoTrackObjectBase::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"begin", "leftTopX", "leftTopY", "width", "height"});
    // "begin": a 32-bit integer, widened, without any scaling.
    if (const auto value = MapForm::Find<int>(map, "begin")) {
        begin = *value;
    }
    // The working rectangle starts as the whole frame, not as the field.
    RectRel working{0.0, 0.0, 1.0, 1.0};
    MapForm::Read(map, "leftTopX", working.left);
    MapForm::Read(map, "leftTopY", working.top);
    MapForm::Read(map, "width", working.width);
    MapForm::Read(map, "height", working.height);
    SetRect(working);
}

void SettingsAnalyzerVideoTrackObjectBase::SetBegin(avTime value)
{
    begin = value;
}

avTime SettingsAnalyzerVideoTrackObjectBase::GetBegin() const
{
    return begin;
}

void SettingsAnalyzerVideoTrackObjectBase::SetRect(const RectRel& value)
{
    if (!InUnitRange(value.left) || !InUnitRange(value.top) || !InUnitRange(value.left + value.width) ||
        !InUnitRange(value.top + value.height)) {
        ThrowSettings("Rect not in range [0, 1]");
    }
    rect = value;
}

RectRel SettingsAnalyzerVideoTrackObjectBase::GetRect() const
{
    return rect;
}

} // namespace Zorvan::Proc
