#pragma once

// What is said to one compiler or another. All of them know these or do without.

/// As a default argument: the line of the caller.
#if defined(__GNUC__) || defined(__clang__) || (defined(_MSC_VER) && _MSC_VER >= 1926)
#define UIAPI_CALLER_LINE __builtin_LINE()
#else
#define UIAPI_CALLER_LINE 0
#endif

///@{
/// Around the use of something deprecated that has no successor.
#if defined(__GNUC__)
#define UIAPI_DEPRECATED_USE_BEGIN                                                                           \
    _Pragma("GCC diagnostic push") _Pragma("GCC diagnostic ignored \"-Wdeprecated-declarations\"")
#define UIAPI_DEPRECATED_USE_END _Pragma("GCC diagnostic pop")
#elif defined(_MSC_VER)
#define UIAPI_DEPRECATED_USE_BEGIN __pragma(warning(push)) __pragma(warning(disable : 4996))
#define UIAPI_DEPRECATED_USE_END __pragma(warning(pop))
#else
#define UIAPI_DEPRECATED_USE_BEGIN
#define UIAPI_DEPRECATED_USE_END
#endif
///@}

namespace KVCAM::UIAPI {

/// Starts to load the memory at an address that will be read soon.
inline void prefetch([[maybe_unused]] void const * address)
{
#if defined(__GNUC__)
    __builtin_prefetch(address);
#endif
}

} // namespace KVCAM::UIAPI
