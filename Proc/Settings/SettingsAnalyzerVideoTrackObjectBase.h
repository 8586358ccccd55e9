#pragma once
#include <cstdint>
#include <vector>

#include "Proc/Settings/IAnalyzerResult.h"
#include "Proc/Settings/Settings.h"
#include "Proc/Settings/Types.h"

namespace Zorvan::Proc {

// What all object trackers share: where tracking starts and the rectangle it
// starts from. Keeps the base's IsEqualTo and IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsAnalyzerVideoTrackObjectBase : public Settings {
public:
    static const std::string CLASS_ID;

    // The tracker's output, a list of rectangles in the order of insertion.
    class ZORVAN_SETTINGS_EXPORT Result : public IAnalyzerResult {
    public:
        struct ZORVAN_SETTINGS_EXPORT TrackingInfo {
            std::int64_t value0 = 0;
            std::int64_t value1 = 0;
            RectRel rect;

            // Exact comparison of value0, value1 and the four numbers of rect.
            bool operator==(const TrackingInfo& other) const;
        };

        Result() = default;
        Result(const Result&) = default;
        Result& operator=(const Result&) = default;
        ~Result() override;

        // Appends at the end: no check, no sorting, no merging of duplicates.
        void AddTrackingInfo(long long value0, long long value1, const RectRel& rect);
        const std::vector<TrackingInfo>& GetResult() const;

        // Same length and equal elements pairwise in order.
        bool operator==(const Result& other) const;

    private:
        std::vector<TrackingInfo> trackingInfos;
    };

    ~SettingsAnalyzerVideoTrackObjectBase() override;
    SettingsAnalyzerVideoTrackObjectBase() = default;
    SettingsAnalyzerVideoTrackObjectBase(const SettingsAnalyzerVideoTrackObjectBase&) = default;
    SettingsAnalyzerVideoTrackObjectBase& operator=(const SettingsAnalyzerVideoTrackObjectBase&) = default;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Map form: "begin" (std::stoi, stored unscaled), then the rectangle from "leftTopX",
    // "leftTopY", "width", "height" (std::stod) over 0, 0, 1, 1, always through SetRect.
    void Deserialize(const std::string& options) override;

    void SetBegin(avTime value);
    avTime GetBegin() const;
    // SettingsException "Rect not in range [0, 1]" unless left, top, left + width and
    // top + height each lie in 0 to 1; the field keeps its value on failure.
    void SetRect(const RectRel& value);
    RectRel GetRect() const;

protected:
    avTime begin = 0;                 // neutral default: the start of the stream
    RectRel rect{0.0, 0.0, 1.0, 1.0}; // neutral default: the whole frame
};

} // namespace Zorvan::Proc
