#pragma once
#include <cstdint>
#include <string>

#include <boost/rational.hpp>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// The frame rate a stream is converted to, and the implementation that converts it.
// Overrides IsEqualTo only: no option string, and the base's IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsFilterFrameRate : public Settings {
public:
    using Rational = boost::rational<std::int64_t>;

    static const std::string CLASS_ID;

    // 0/1: the stage keeps the source's rate.
    static const Rational MARK_USE_ORIGINAL_FRAMERATE;
    static const std::string IMPL_ADJUST;        // "ADJUST_IMPL"
    static const std::string IMPL_FFMPEG_BLEND;  // "framerate"
    static const std::string IMPL_FFMPEG_MOTION; // "minterpolate"
    // Copies of ImplNames::ZORVAN and ImplNames::FFMPEG, made when the library is loaded.
    static const std::string IMPL_DEFAULT;
    static const std::string IMPL_FFMPEG;

    SettingsFilterFrameRate();
    // With IMPL_FFMPEG_BLEND.
    explicit SettingsFilterFrameRate(const Rational& frameRate);
    SettingsFilterFrameRate(const Rational& frameRate, const std::string& implementationName);

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;

    // Numerator and denominator equal; the implementation does not count, so a running
    // stage is kept when only the implementation changes.
    bool operator==(const SettingsFilterFrameRate& other) const;

    // Plain stores, unchecked.
    void SetFrameRate(const Rational& frameRate);
    void SetImplementationName(const std::string& name);

    const Rational& GetFrameRate() const;
    const std::string& GetImplementationName() const;

private:
    Rational frameRate;
    std::string implementationName;
};

} // namespace Zorvan::Proc
