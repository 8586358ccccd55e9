#include "Proc/Settings/SettingsEffectFlyingObjects.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/Saturate.h"

namespace Zorvan::Proc {

namespace {

constexpr double kDegree = 0.017453292519943295; // radians per degree
constexpr double kMaxSpeed = 100500.0;

double Draw()
{
    return std::rand() / 2147483647.0;
}

std::int32_t WrapDegrees(int degrees)
{
    const int rest = degrees % 360;
    return rest < 0 ? rest + 360 : rest;
}

double ClampSpeed(double speed)
{
    return Saturate(speed, 0.0, kMaxSpeed);
}

} // namespace

// The initialisers run in declared order, which is the order of the draws.
InitialParams::InitialParams()
    : x(Draw())
    , y(Draw())
    , deviation((Draw() - 0.5) * 0.3490658503988659)
    , deviationCos(std::cos(deviation))
    , deviationSin(std::sin(deviation))
    , sizeFactor(Draw() + 0.5)
    , speedFactor(Draw() + 0.5)
    , angleSpread(2.0 * Draw() - 1.0)
    , rateFactor(Draw() / 5.0 + 0.9)
    , rotationSign(std::rand() % 2 == 0 ? -1.0 : 1.0)
{
}

const InitialParams params[200];

const std::string SettingsEffectFlyingObjects::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_FLYING_OBJECTS";

const std::string& SettingsEffectFlyingObjects::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectFlyingObjects::Clone() const
{
    return std::make_unique<SettingsEffectFlyingObjects>(*this);
}

void SettingsEffectFlyingObjects::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map =
        GetOptionsMap(options, {"n", "s", "d", "v", "a0", "ad", "rv", "samax", "srv", "w", "h", "intensity"});
    if (const auto count = MapForm::Find<int>(map, "n")) {
        objectsCount = Saturate(static_cast<unsigned int>(*count), 1U, 200U);
    }
    if (const auto value = MapForm::Find<double>(map, "s")) {
        SetScale(*value);
    }
    if (const auto value = MapForm::Find<int>(map, "d")) {
        SetMoveDirection(*value);
    }
    if (const auto value = MapForm::Find<double>(map, "v")) {
        SetMoveSpeed(*value);
    }
    if (const auto value = MapForm::Find<int>(map, "a0")) {
        startAngle = WrapDegrees(*value);
    }
    if (const auto value = MapForm::Find<int>(map, "ad")) {
        startAngleSpread = WrapDegrees(*value);
    }
    if (const auto value = MapForm::Find<double>(map, "rv")) {
        SetRotationSpeed(*value);
    }
    if (const auto value = MapForm::Find<int>(map, "samax")) {
        swingAmplitude = WrapDegrees(*value);
    }
    if (const auto value = MapForm::Find<double>(map, "srv")) {
        SetSwingRotationSpeed(*value);
    }
    if (const auto size = MapForm::FindAll<2>(map, {"w", "h"})) {
        frameWidth = MapForm::Convert<int>((*size)[0]);
        frameHeight = MapForm::Convert<int>((*size)[1]);
        aspectNum = 1;
        aspectDen = 1;
    }
    MapForm::Read(map, "intensity", intensity);
}

void SettingsEffectFlyingObjects::SetImage(const std::shared_ptr<const ImageHandler>& newImage)
{
    image = newImage ? newImage : std::make_shared<const ImageHandler>();
}

const std::shared_ptr<const ImageHandler>& SettingsEffectFlyingObjects::GetImage() const
{
    return image;
}

void SettingsEffectFlyingObjects::SetObjectsCount(unsigned long count)
{
    objectsCount = Saturate(count, 1UL, 200UL);
}

void SettingsEffectFlyingObjects::SetScale(double value)
{
    // Written so that a not-a-number scale takes the largest size.
    scale = value < 0.0 ? 0.0 : (value <= 2.0 ? value : 2.0);
}

void SettingsEffectFlyingObjects::SetMoveDirection(int degrees)
{
    moveDirection = WrapDegrees(degrees);
    moveCos = std::cos(moveDirection * kDegree);
    moveSin = std::sin(moveDirection * kDegree);
}

void SettingsEffectFlyingObjects::SetMoveSpeed(double speed)
{
    moveSpeed = ClampSpeed(speed);
}

void SettingsEffectFlyingObjects::SetRotationSpeed(double speed)
{
    rotationSpeed = ClampSpeed(speed);
}

void SettingsEffectFlyingObjects::SetSwingRotationSpeed(double speed)
{
    swingRotationSpeed = ClampSpeed(speed);
}

void SettingsEffectFlyingObjects::SetIntensity(float value)
{
    intensity = value;
}

// The renderer draws from these numbers frame after frame: the order of the operations, and
// which of them are fused, stay as they are so that paths come out the same on every device.
FlyingObjectDescription SettingsEffectFlyingObjects::GetDescription(unsigned long index, double time,
                                                                    double aspect) const
{
    const InitialParams& p = params[std::min(index, 199UL)];
    const double size = p.sizeFactor * 0.1 * scale;

    // The swing is a triangle wave between 0 and the amplitude; no guard against an amplitude of 0.
    const double amplitude = swingAmplitude * kDegree;
    const double w = swingRotationSpeed * time * p.rateFactor / (amplitude + amplitude) + 0.5;
    const double swing = amplitude * 2 * std::abs(w - std::floor(w) - 0.5);
    const double turned = std::fma(rotationSpeed * time, p.rateFactor, swing);
    const double base =
        std::fma(static_cast<double>(startAngleSpread), p.angleSpread, static_cast<double>(startAngle)) * kDegree;
    const double angle = std::fma(turned, p.rotationSign, base);

    // The common direction turned by the object's deviation.
    const double dx = moveCos * p.deviationCos - moveSin * p.deviationSin;
    const double dy = moveCos * p.deviationSin + p.deviationCos * moveSin;

    // Objects wrap round a field larger than the frame by their margin on every side: the
    // horizontal margin is half the object's diagonal, the vertical one follows the aspect.
    const double marginX = size * 0.7071067811865476;
    const double marginY = size * aspect * 0.5;
    const double wrapX = 1 + 2 * marginX;
    const double wrapY = 1 + 2 * marginY;
    const double distance = moveSpeed * time * p.speedFactor;
    const double u = (p.x + distance * dx) / wrapX;
    const double v = (p.y + distance * dy) / wrapY;
    return {(u - std::floor(u)) * wrapX - marginX, (v - std::floor(v)) * wrapY - marginY, angle};
}

std::int32_t SettingsEffectFlyingObjects::GetFrameWidth() const
{
    return frameWidth;
}

std::int32_t SettingsEffectFlyingObjects::GetFrameHeight() const
{
    return frameHeight;
}

std::int32_t SettingsEffectFlyingObjects::GetAspectNum() const
{
    return aspectNum;
}

std::int32_t SettingsEffectFlyingObjects::GetAspectDen() const
{
    return aspectDen;
}

std::uint64_t SettingsEffectFlyingObjects::GetObjectsCount() const
{
    return objectsCount;
}

double SettingsEffectFlyingObjects::GetScale() const
{
    return scale;
}

std::int32_t SettingsEffectFlyingObjects::GetMoveDirection() const
{
    return moveDirection;
}

double SettingsEffectFlyingObjects::GetMoveCos() const
{
    return moveCos;
}

double SettingsEffectFlyingObjects::GetMoveSin() const
{
    return moveSin;
}

double SettingsEffectFlyingObjects::GetMoveSpeed() const
{
    return moveSpeed;
}

std::int32_t SettingsEffectFlyingObjects::GetStartAngle() const
{
    return startAngle;
}

std::int32_t SettingsEffectFlyingObjects::GetStartAngleSpread() const
{
    return startAngleSpread;
}

double SettingsEffectFlyingObjects::GetRotationSpeed() const
{
    return rotationSpeed;
}

std::int32_t SettingsEffectFlyingObjects::GetSwingAmplitude() const
{
    return swingAmplitude;
}

double SettingsEffectFlyingObjects::GetSwingRotationSpeed() const
{
    return swingRotationSpeed;
}

float SettingsEffectFlyingObjects::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc
