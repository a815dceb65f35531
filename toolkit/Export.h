#pragma once

// Marks the classes that the library exports. Where the linker takes a list of symbols, that list
// (library/exports.map) alone decides; elsewhere this mark does.
#if defined(_WIN32) && defined(QVDISCRIMINATOR_BUILD)
#define QVDISCRIMINATOR_EXPORT __declspec(dllexport)
#elif defined(_WIN32)
#define QVDISCRIMINATOR_EXPORT __declspec(dllimport)
#else
#define QVDISCRIMINATOR_EXPORT __attribute__((visibility("default")))
#endif
