#pragma once
// Export macro of this project's stand-in for the closed sibling libraries
// (FndException, Utils, ConfInt, ColorUtils, LUTInt).
#define ZORVAN_IMPORTED_EXPORT __attribute__((visibility("default")))
