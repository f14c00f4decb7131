#pragma once

/// Marks what the host's engine library provides.
///
/// KVCAM_API_BUILD is defined while that library itself is compiled, KVCAM_API_STATIC where an engine is
/// linked in as objects (as the tests do with theirs). Everybody else imports.
#if defined(KVCAM_API_STATIC)
#define KVCAM_API_EXPORT
#elif defined(_WIN32)
#if defined(KVCAM_API_BUILD)
#define KVCAM_API_EXPORT __declspec(dllexport)
#else
#define KVCAM_API_EXPORT __declspec(dllimport)
#endif
#else
#define KVCAM_API_EXPORT __attribute__((visibility("default")))
#endif
