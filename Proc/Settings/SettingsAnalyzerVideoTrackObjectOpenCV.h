#pragma once
#include <cstdint>

#include "Proc/Settings/SettingsAnalyzerVideoTrackObjectBase.h"

namespace Zorvan::Proc {

// A tracker of OpenCV, chosen by number. Keeps the base's IsEqualTo and IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsAnalyzerVideoTrackObjectOpenCV : public SettingsAnalyzerVideoTrackObjectBase {
public:
    static const std::string CLASS_ID;

    // 32-bit, values 0 to 4: saved projects store the number. The trackers each selects are
    // the engine's to choose; the names only label them.
    enum Algorithm : std::int32_t {
        MIL = 0,
        KCF = 1,
        CSRT = 2,
        GOTURN = 3,
        DaSiamRPN = 4,
    };

    ~SettingsAnalyzerVideoTrackObjectOpenCV() override;
    SettingsAnalyzerVideoTrackObjectOpenCV() = default;
    SettingsAnalyzerVideoTrackObjectOpenCV(const SettingsAnalyzerVideoTrackObjectOpenCV&) = default;
    SettingsAnalyzerVideoTrackObjectOpenCV& operator=(const SettingsAnalyzerVideoTrackObjectOpenCV&) = default;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Map form: "algorithm" (std::stoi, 0 to 4, else SettingsException "Invalid algorithm
    // value"), then the base's Deserialize on the same string.
    void Deserialize(const std::string& options) override;

    // begin, the four numbers of rect, then algorithm, all exactly.
    bool operator==(const SettingsAnalyzerVideoTrackObjectOpenCV& other) const;
    bool operator!=(const SettingsAnalyzerVideoTrackObjectOpenCV& other) const;

    // Stores any value, unchecked.
    void SetAlgorithm(Algorithm value);
    Algorithm GetAlgorithm() const;

private:
    Algorithm algorithm = MIL; // neutral default: 0, the first tracker
};

} // namespace Zorvan::Proc
