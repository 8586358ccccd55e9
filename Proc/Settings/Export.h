#pragma once
// The one export-macro header of the library. The shared library is built with
// hidden visibility; ZORVAN_SETTINGS_EXPORT marks what is public: the classes of the
// catalogue (with their members and CLASS_ID data symbols), the value types, the
// exception classes and the free helpers of option strings and failure reporting.
#if defined(_WIN32)
#if defined(ZORVAN_SETTINGS_BUILDING)
#define ZORVAN_SETTINGS_EXPORT __declspec(dllexport)
#else
#define ZORVAN_SETTINGS_EXPORT __declspec(dllimport)
#endif
#else
#define ZORVAN_SETTINGS_EXPORT __attribute__((visibility("default")))
#endif
