#include "tools/Failure.h"

#include <exception>
#include <iostream>
#include <regex>
#include <stdexcept>
#include <typeinfo>

#include <boost/exception/get_error_info.hpp>
#include <boost/rational.hpp>

#include "Proc/Settings/ProcException.h"

namespace ZorvanTool {

namespace {

std::string Description(const Zorvan::Exception& e)
{
    const std::string* text = boost::get_error_info<Zorvan::ErrorInfoDescription>(e);
    return text != nullptr ? *text : std::string();
}

} // namespace

std::string FirstLine(const char* text)
{
    const std::string all(text);
    return all.substr(0, all.find('\n'));
}

nlohmann::ordered_json ReportFailure(const Failure& failure, const nlohmann::ordered_json& where)
{
    nlohmann::ordered_json error{{"exception", failure.exception}, {"description", failure.description}};
    for (const auto& [key, value] : where.items()) {
        error[key] = value;
    }
    std::cerr << "error: " << failure.exception << ": " << failure.description << '\n';
    return error;
}

// Names the exception in flight, most derived classes first.
Failure DescribeCurrentException()
{
    using namespace Zorvan::Proc;
    try {
        throw;
    } catch (const SettingsException& e) {
        return {"SettingsException", Description(e)};
    } catch (const EffectException& e) {
        return {"EffectException", Description(e)};
    } catch (const AnalyzerException& e) {
        return {"AnalyzerException", Description(e)};
    } catch (const ProcException& e) {
        return {"ProcException", Description(e)};
    } catch (const std::invalid_argument& e) {
        return {"std::invalid_argument", FirstLine(e.what())};
    } catch (const std::out_of_range& e) {
        return {"std::out_of_range", FirstLine(e.what())};
    } catch (const boost::bad_rational& e) { // a std::domain_error, hence before std::logic_error
        return {"boost::bad_rational", FirstLine(e.what())};
    } catch (const std::logic_error& e) {
        return {"std::logic_error", FirstLine(e.what())};
    } catch (const std::bad_cast& e) {
        return {"std::bad_cast", FirstLine(e.what())};
    } catch (const std::regex_error& e) {
        return {"std::regex_error", FirstLine(e.what())};
    } catch (const std::exception& e) {
        return {"std::exception", FirstLine(e.what())};
    } catch (...) {
        return {"unknown", ""};
    }
}

} // namespace ZorvanTool
