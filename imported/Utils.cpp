#include "imported/Utils.h"

namespace Zorvan::Core::Utils {

std::string RemoveQuotes(const std::string& text)
{
    if (text.size() >= 2 && text.front() == '"' && text.back() == '"') {
        return text.substr(1, text.size() - 2);
    }
    return text;
}

std::pair<std::string, std::string> CutString(std::string_view text, char separator)
{
    const auto position = text.find(separator);
    if (position == std::string_view::npos) {
        return {std::string(text), std::string()};
    }
    return {std::string(text.substr(0, position)), std::string(text.substr(position + 1))};
}

} // namespace Zorvan::Core::Utils

namespace Zorvan::Core {

bool Matrix3x3::operator==(const Matrix3x3& other) const
{
    return m == other.m;
}

} // namespace Zorvan::Core
