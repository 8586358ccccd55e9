#pragma once
// Order of static initialisation at library load: constant strings first (the CLASS_ID
// and s_<role> strings), then the s_params vectors built from them, then everything else
// (copies of imported names, the flying objects' table of starting parameters) at the default
// priority. GCC's init_priority orders these across the library's translation units.
// Only for the library's own sources: it is not installed with the public headers.
#define ZORVAN_INIT_STRINGS __attribute__((init_priority(1000)))
#define ZORVAN_INIT_PARAMS __attribute__((init_priority(2000)))
