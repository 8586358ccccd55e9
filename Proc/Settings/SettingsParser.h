#pragma once
#include <cstdint>
#include <string>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// What the engine needs to know to read a media file: how long the streams of the file
// last, and the subtitle text encoding that may ride on the file name.
class ZORVAN_SETTINGS_EXPORT SettingsParser : public Settings {
public:
    static const std::string CLASS_ID;

    enum class StreamDurationPolicy : std::int32_t {
        File = 0,     // "file"
        Minimal = 1,  // "min", "minimal"
        Maximal = 2,  // "max", "maximal"
        Original = 3, // "original"
    };

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;

    // Any letter case; another text throws std::invalid_argument.
    static StreamDurationPolicy GetStreamDurationPolicy(const std::string& text);

    // The file name without its additional parameters ("movie.mkv??sub_charenc=cp1251"
    // gives "movie.mkv"); of the parameters only the subtitle encoding is kept.
    std::string ParseAdditionalParameters(std::string text);

    const std::string& GetSubtitleEncoding() const;

private:
    std::string subtitleEncoding; // empty: the demuxer's own guess
};

} // namespace Zorvan::Proc
