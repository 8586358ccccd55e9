#pragma once
#include "Proc/Settings/Settings.h"
#include "Proc/Settings/Types.h"

namespace Zorvan::Proc {

// A dot screen in two colours. Overrides IsEqualTo (all six fields, exact) and Deserialize;
// keeps the base's IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectHalfTone : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    void Deserialize(const std::string& options) override;

    // All six fields exact, in field order.
    bool operator==(const SettingsEffectHalfTone& other) const;

    // Plain stores. The setters say "Colour" while the key and the getter say "color": both
    // spellings are kept on purpose, callers and saved presets use each.
    void SetParam(double colourSize, double threshold, double dotSize, int angle);
    void SetColourSize(double colourSize);
    void SetThreshold(double threshold);
    void SetDotSize(double dotSize);
    void SetAngle(int angle);
    void SetBackgroundColor(Color color);
    void SetDotColor(Color color);

    // Colours: red lowest; read from options the top byte is 0.
    Color GetBackgroundColor() const;
    Color GetDotColor() const;
    double GetColorSize() const;
    double GetThreshold() const;
    double GetDotSize() const;
    int GetAngle() const;

private:
    // The effect has no strength that would switch it off, so the record is value-initialised:
    // everything 0.
    Color backgroundColor = 0;
    Color dotColor = 0;
    double colorSize = 0.0;
    double threshold = 0.0;
    double dotSize = 0.0;
    int angle = 0;
};

} // namespace Zorvan::Proc
