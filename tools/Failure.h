#pragma once
// How the tool names a failure: the exact exception class and its description.
#include <string>

namespace ZorvanTool {

struct Failure {
    std::string exception;   // the exact class name, e.g. "SettingsException", "std::invalid_argument"
    std::string description; // TagDescription for ProcException kinds, else what() up to its first newline
};

// Names the exception in flight (call inside a catch block), most derived classes first.
Failure DescribeCurrentException();

// The text up to its first newline (form B exceptions carry a call stack behind it).
std::string FirstLine(const char* text);

} // namespace ZorvanTool
