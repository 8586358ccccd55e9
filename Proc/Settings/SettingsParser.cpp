#include "Proc/Settings/SettingsParser.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsParser::CLASS_ID ZORVAN_INIT_STRINGS = "Parser";

const std::string& SettingsParser::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsParser::Clone() const
{
    return std::make_unique<SettingsParser>(*this);
}

} // namespace Zorvan::Proc
