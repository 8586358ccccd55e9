// Uses the library as an outside project would: a record from an option string, a
// failure caught by its class, and the catalogue.
#include <iostream>

#include "Proc/Settings/AllSettings.h"
#include "catalog/SettingsCatalog.h"

int main()
{
    Zorvan::Proc::SettingsEffectBlurGaussian blur;
    blur.Deserialize("scale=2.5:fast=1");
    if (blur.GetScale() != 2.5 || blur.GetFast()) {
        std::cerr << "unexpected record\n";
        return 1;
    }
    try {
        Zorvan::Proc::SettingsEffectBlur plain;
        plain.Deserialize("");
        std::cerr << "no exception\n";
        return 1;
    } catch (const Zorvan::Proc::SettingsException&) {
    }
    if (Zorvan::SettingsCatalog::Entries().size() != 220 || Zorvan::SettingsCatalog::Find("$$RESIZE$$") == nullptr) {
        std::cerr << "unexpected catalogue\n";
        return 1;
    }
    std::cout << "consumer ok: " << Zorvan::Proc::SettingsEffectBlurGaussian::CLASS_ID << " scale " << blur.GetScale()
              << '\n';
    return 0;
}
