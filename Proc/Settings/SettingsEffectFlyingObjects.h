#pragma once
#include <cstdint>
#include <memory>

#include "Proc/Settings/ImageHandler.h"
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// The random starting state of one flying object. Each field draws one fresh rand() divided by
// 2147483647, in declared order, except the cosine and sine, which reuse the drawn deviation:
// eight draws per record.
struct ZORVAN_SETTINGS_EXPORT InitialParams {
    InitialParams();

    double x;
    double y;
    double deviation; // radians, up to 10 degrees either way of the common direction
    double deviationCos;
    double deviationSin;
    double sizeFactor;   // 0.5 to 1.5
    double speedFactor;  // 0.5 to 1.5
    double angleSpread;  // -1 to 1
    double rateFactor;   // 0.9 to 1.1
    double rotationSign; // -1 for an even draw, else 1
};

// The starting states of objects 0 to 199, drawn from the C library's generator as the library
// loads, in index order, and never changed: object i follows the same path in every record of
// the process.
extern ZORVAN_SETTINGS_EXPORT const InitialParams params[200];

// Where an object is at a moment: its position relative to the frame and its angle in radians.
struct ZORVAN_SETTINGS_EXPORT FlyingObjectDescription {
    double x = 0.0;
    double y = 0.0;
    double angle = 0.0;
};

// Up to 200 copies of an image flying over the frame; GetDescription places each of them at a
// time. Angles are whole degrees, wrapped into 0..359; speeds are clamped to 0..100500. Keeps
// the base's IsEqualTo and IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectFlyingObjects : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Keys in order: "n", "s", "d", "v", "a0", "ad", "rv", "samax", "srv", "w" with "h",
    // "intensity", clamped and wrapped as by the setters. "n" is a 32-bit unsigned count, so a
    // negative one gives 200. "w" and "h" count only together, and then set the aspect to 1:1.
    void Deserialize(const std::string& options) override;

    // An empty pointer is replaced by a new default ImageHandler: never empty afterwards.
    void SetImage(const std::shared_ptr<const ImageHandler>& image);
    const std::shared_ptr<const ImageHandler>& GetImage() const;
    // Clamped to 1..200.
    void SetObjectsCount(unsigned long count);
    // Clamped to 0..2; not-a-number gives 2.
    void SetScale(double scale);
    // Wrapped into 0..359; also keeps its cosine and sine.
    void SetMoveDirection(int degrees);
    void SetMoveSpeed(double speed);
    void SetRotationSpeed(double speed);
    void SetSwingRotationSpeed(double speed);
    void SetIntensity(float intensity);

    // Object `index` (past 199 the last one) at `time`; `aspect` scales the vertical margin.
    // A swing amplitude of 0 gives a not-a-number angle.
    FlyingObjectDescription GetDescription(unsigned long index, double time, double aspect) const;

    std::int32_t GetFrameWidth() const;
    std::int32_t GetFrameHeight() const;
    std::int32_t GetAspectNum() const;
    std::int32_t GetAspectDen() const;
    std::uint64_t GetObjectsCount() const;
    double GetScale() const;
    std::int32_t GetMoveDirection() const;
    double GetMoveCos() const;
    double GetMoveSin() const;
    double GetMoveSpeed() const;
    std::int32_t GetStartAngle() const;
    std::int32_t GetStartAngleSpread() const;
    double GetRotationSpeed() const;
    std::int32_t GetSwingAmplitude() const;
    double GetSwingRotationSpeed() const;
    float GetIntensity() const;

private:
    std::shared_ptr<const ImageHandler> image; // no image until SetImage
    std::int32_t frameWidth = 0;
    std::int32_t frameHeight = 0;
    std::int32_t aspectNum = 1;
    std::int32_t aspectDen = 1;
    std::uint64_t objectsCount = 1; // the fewest objects
    double scale = 1.0;             // the image's own size
    std::int32_t moveDirection = 0;
    double moveCos = 1.0;
    double moveSin = 0.0;
    // Neutral defaults: nothing moves or turns.
    double moveSpeed = 0.0;
    std::int32_t startAngle = 0;
    std::int32_t startAngleSpread = 0;
    double rotationSpeed = 0.0;
    std::int32_t swingAmplitude = 0;
    double swingRotationSpeed = 0.0;
    float intensity = 0.0F; // neutral: nothing is drawn
};

} // namespace Zorvan::Proc
