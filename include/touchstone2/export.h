/// TOUCHSTONE2_EXPORT marks what a caller of the shared library may link to. The library is
/// compiled with everything else hidden, so a public class or function without the mark
/// compiles in a caller and then fails to link.
///
/// Two macros steer it. Neither has to be defined by hand: the CMake target and the
/// pkg-config file carry the one that a caller may need.
///   TOUCHSTONE2_STATIC    the library is, or is used as, a static one: no mark.
///   TOUCHSTONE2_BUILDING  the library itself is being compiled.
#ifndef TOUCHSTONE2_EXPORT_H
#define TOUCHSTONE2_EXPORT_H

#if defined(TOUCHSTONE2_STATIC)
#define TOUCHSTONE2_EXPORT
#elif defined(_WIN32) && defined(TOUCHSTONE2_BUILDING)
#define TOUCHSTONE2_EXPORT __declspec(dllexport)
#elif defined(_WIN32)
#define TOUCHSTONE2_EXPORT __declspec(dllimport)
#else
/// The mark stands in callers' code as well: it keeps the type of an exception that the
/// library throws and its caller catches one and the same, even if callers hide theirs.
#define TOUCHSTONE2_EXPORT __attribute__((visibility("default")))
#endif

#endif
