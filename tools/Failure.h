#pragma once
// How the tool names a failure: the exact exception class and its description.
#include <string>

#include <nlohmann/json.hpp>

namespace ZorvanTool {

struct Failure {
    std::string exception;   // the exact class name, e.g. "SettingsException", "std::invalid_argument"
    std::string description; // TagDescription for ProcException kinds, else what() up to its first newline
};

// Names the exception in flight (call inside a catch block), most derived classes first.
Failure DescribeCurrentException();

// The error object {exception, description, then the members of `where`, an object such as
// {"option": ...}}; also prints "error: <exception>: <description>" on standard error.
// The exit code of a failure is exitFailure.
nlohmann::ordered_json ReportFailure(const Failure& failure, const nlohmann::ordered_json& where = nullptr);
constexpr int exitFailure = 1;
// Arguments that the tool cannot read (not the library's failures).
constexpr int exitUsage = 2;

// The text up to its first newline (form B exceptions carry a call stack behind it).
std::string FirstLine(const char* text);

} // namespace ZorvanTool
