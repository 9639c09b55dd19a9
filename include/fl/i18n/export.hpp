/// @file
/// FL_I18N_EXPORT marks what the shared library offers; every other symbol is hidden. Classes whose objects
/// cross the library boundary as exceptions carry it too, so that a handler in another module recognises
/// them.
#pragma once

#if defined(__GNUC__) || defined(__clang__)
#define FL_I18N_EXPORT __attribute__((visibility("default")))
#else
#define FL_I18N_EXPORT
#endif
