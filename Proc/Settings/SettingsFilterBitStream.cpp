#include "Proc/Settings/SettingsFilterBitStream.h"

#include "Proc/Settings/InitOrder.h"
#include "imported/ConfInt.h"

namespace Zorvan::Proc {

namespace {

SettingsFilterBitStream::StreamFormat FormatOf(const std::string& codecId, bool flag)
{
    using Format = SettingsFilterBitStream::StreamFormat;
    if (codecId == Conf::IFormatCodecVideo::CODEC_ID_H264 || codecId == Conf::IFormatCodecVideo::CODEC_ID_H265) {
        return flag ? Format::VideoFlagOn : Format::VideoFlagOff;
    }
    if (codecId == Conf::IFormatCodecAudio::CODEC_ID_AAC || codecId == Conf::IFormatCodecAudio::CODEC_ID_AAC_LATM) {
        return flag ? Format::AudioFlagOn : Format::AudioFlagOff;
    }
    return Format::Other;
}

} // namespace

const std::string SettingsFilterBitStream::CLASS_ID ZORVAN_INIT_STRINGS = "FilterBitStream";

SettingsFilterBitStream::SettingsFilterBitStream(StreamFormat format)
    : streamFormatNeeded(format)
{
}

SettingsFilterBitStream::SettingsFilterBitStream(const std::string& codecId, bool flag)
    : streamFormatNeeded(FormatOf(codecId, flag))
{
}

const std::string& SettingsFilterBitStream::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFilterBitStream::Clone() const
{
    return std::make_unique<SettingsFilterBitStream>(*this);
}

bool SettingsFilterBitStream::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsFilterBitStream&>(other);
}

bool SettingsFilterBitStream::operator==(const SettingsFilterBitStream& other) const
{
    return streamFormatNeeded == other.streamFormatNeeded;
}

void SettingsFilterBitStream::SetStreamFormatNeeded(StreamFormat format)
{
    streamFormatNeeded = format;
}

SettingsFilterBitStream::StreamFormat SettingsFilterBitStream::GetStreamFormatNeeded() const
{
    return streamFormatNeeded;
}

} // namespace Zorvan::Proc
