#pragma once

/// Marks what the shared library exports. A static build leaves it empty;
/// CORVANE_SHARED is set by the build and by the installed package.
#if !defined(CORVANE_SHARED)
#define CORVANE_EXPORT
#elif defined(_WIN32) && defined(CORVANE_BUILDING)
#define CORVANE_EXPORT __declspec(dllexport)
#elif defined(_WIN32)
#define CORVANE_EXPORT __declspec(dllimport)
#else
#define CORVANE_EXPORT __attribute__((visibility("default")))
#endif
