#pragma once

/// Export macro of the host's engine library.
///
/// Define KVCAM_API_BUILD while compiling that library, and KVCAM_API_STATIC to link an engine in as objects
/// (as the tests do with theirs). Otherwise the declarations are imported.
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
