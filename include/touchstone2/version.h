/// The version of the library whose headers are being compiled. The number is written here
/// and nowhere else; the build reads it from this file.
///
/// While the major number is 0, a new minor number may break callers; a new patch number
/// never does.
#ifndef TOUCHSTONE2_VERSION_H
#define TOUCHSTONE2_VERSION_H

/// The first of the three numbers.
#define TOUCHSTONE2_VERSION_MAJOR 0
/// The second one.
#define TOUCHSTONE2_VERSION_MINOR 1
/// The third one.
#define TOUCHSTONE2_VERSION_PATCH 0

/// The same as text, "major.minor.patch": a string literal.
#define TOUCHSTONE2_VERSION_STRING                                               \
  TOUCHSTONE2_VERSION_JOIN(TOUCHSTONE2_VERSION_MAJOR, TOUCHSTONE2_VERSION_MINOR, \
                           TOUCHSTONE2_VERSION_PATCH)

/// Private. Two steps, because # takes its argument before the macros in it are replaced.
#define TOUCHSTONE2_VERSION_JOIN(major, minor, patch) TOUCHSTONE2_VERSION_TEXT(major, minor, patch)
/// Private, the second step.
#define TOUCHSTONE2_VERSION_TEXT(major, minor, patch) #major "." #minor "." #patch

#endif
