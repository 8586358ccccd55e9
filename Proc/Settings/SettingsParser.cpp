#include "Proc/Settings/SettingsParser.h"

#include <map>

#include <boost/tokenizer.hpp>
#include <fmt/format.h>

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/ProcException.h"
#include "Proc/Settings/Spellings.h"
#include "imported/ConfInt.h"

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

SettingsParser::StreamDurationPolicy SettingsParser::GetStreamDurationPolicy(const std::string& text)
{
    static const SpellingTable<StreamDurationPolicy> table{
        {"file", StreamDurationPolicy::File},       {"min", StreamDurationPolicy::Minimal},
        {"minimal", StreamDurationPolicy::Minimal}, {"max", StreamDurationPolicy::Maximal},
        {"maximal", StreamDurationPolicy::Maximal}, {"original", StreamDurationPolicy::Original},
    };
    if (const auto policy = FindSpelling(table, text)) {
        return *policy;
    }
    ThrowInvalidArgument(fmt::format("Unknown stream duration policy: {}", text));
}

std::string SettingsParser::ParseAdditionalParameters(std::string text)
{
    const std::string& marker = Conf::IFormatFile::POSTFIX_ADDITIONAL_PARAMS;
    const std::size_t start = text.find(marker);
    if (start == std::string::npos) {
        return text;
    }
    const std::string parameters = text.substr(start + marker.size());
    text.resize(start);

    const boost::char_separator<char> separator(Conf::IFormatFile::POSTFIX_PARAMS_SEPARATOR.c_str(), "",
                                                boost::drop_empty_tokens);
    const boost::tokenizer<boost::char_separator<char>> tokens(parameters, separator);
    std::map<std::string, std::string> values;
    for (const std::string& token : tokens) {
        const std::size_t at = token.find(Conf::IFormatFile::POSTFIX_VALUE_SEPARATOR);
        if (at == std::string::npos) {
            continue;
        }
        // The value starts one character past the separator, whatever its length: names
        // written by the exporter use a one-character separator.
        std::string key = token.substr(0, at);
        std::string value = token.substr(at + 1);
        if (key.empty() || value.empty()) {
            continue;
        }
        values[std::move(key)] = std::move(value);
    }
    if (const auto found = values.find(Conf::IFormatCodecSubtitle::SUBTITLE_ENCODING_PREFIX); found != values.end()) {
        subtitleEncoding = found->second;
    }
    return text;
}

const std::string& SettingsParser::GetSubtitleEncoding() const
{
    return subtitleEncoding;
}

} // namespace Zorvan::Proc
