#pragma once

#include <array>
#include <cstddef>

/// What each input kind of KVLineEdit accepts, in one table.
namespace KVCAM::UIAPI {

/// What a unit switch does with a field of the kind.
enum class UnitTracking
{
    None,   ///< the text stays
    Number, ///< both units' texts are kept; the other one is computed at every edit
    Symbol  ///< both units' texts are kept; the other one is computed when it is asked for
};

struct InputKind
{
    int kind;
    UnitTracking tracking;
    char const * pattern; ///< UTF-8, as QRegExp takes it
    char const * hint;    ///< plain words for who typed something else; translatable
};

/// The kinds 1 to 11, in order.
extern std::array<InputKind, 11> const inputKinds;

/// The context under which the hints are translated.
inline constexpr char const * inputHintContext = "KVCAM::UIAPI::KVLineEdit";

/// The row of a kind; null outside the table.
InputKind const * inputKind(int kind) noexcept;

} // namespace KVCAM::UIAPI
