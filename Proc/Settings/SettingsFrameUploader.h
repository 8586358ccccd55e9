#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Identifier-only class (Part 1.5, hyphen row): it bears its identifier and keeps
// the base operations of Part 1.1.
class ZORVAN_SETTINGS_EXPORT SettingsFrameUploader : public Settings {
public:
    static const std::string CLASS_ID;
    // Part 1.6: a public writable static, initially true. The library defines it and reads
    // it nowhere; the engine owns its meaning.
    static bool s_metalHasHigherPriority;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
};

} // namespace Zorvan::Proc
