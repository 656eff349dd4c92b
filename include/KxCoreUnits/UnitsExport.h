#pragma once

#if defined(_WIN32)
#  if defined(KXCOREUNITS_BUILDING)
#    define KXCOREUNITS_EXPORT __declspec(dllexport)
#  else
#    define KXCOREUNITS_EXPORT __declspec(dllimport)
#  endif
#else
#  define KXCOREUNITS_EXPORT __attribute__((visibility("default")))
#endif
