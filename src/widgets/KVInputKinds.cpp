#include "widgets/KVInputKinds.h"

#include <QCoreApplication>

namespace KVCAM::UIAPI {

constexpr std::array<InputKind, 11> inputKinds{{
    {1, UnitTracking::Number, R"([-]?[1-9][0-9]{0,14}|[-]?[0][.][0-9]{0,5}|[-]?[1-9][0-9]{0,}[.][0-9]{1,5})",
     QT_TRANSLATE_NOOP(
         "KVCAM::UIAPI::KVLineEdit",
         "Type a number such as 12, -3.5 or 0.25: at most 15 digits or 5 decimals, and no zeros "
         "in front.")},
    {2, UnitTracking::None, R"(^[0-9.+\-*/]+$)",
     QT_TRANSLATE_NOOP("KVCAM::UIAPI::KVLineEdit",
                       "Type a number or a calculation such as 10+2.5: digits, points and + - * / only.")},
    {3, UnitTracking::Number, R"(^[+]?[1-9][0-9]{0,14}|[+]?[0][.][0-9]{0,5}|[+]?[1-9][0-9]{0,}[.][0-9]{1,5})",
     QT_TRANSLATE_NOOP("KVCAM::UIAPI::KVLineEdit",
                       "Type a positive number such as 12, 3.5 or 0.25: at most 15 digits or 5 decimals, and "
                       "no zeros in front.")},
    {4, UnitTracking::None, R"(^[a-z0-9_+.;-]{0,64}$)",
     QT_TRANSLATE_NOOP("KVCAM::UIAPI::KVLineEdit",
                       "Type at most 64 of these: lower-case letters, digits and _ + . ; -")},
    {5, UnitTracking::None, R"([a-z0-9_+-]{0,64}$)",
     QT_TRANSLATE_NOOP("KVCAM::UIAPI::KVLineEdit",
                       "Type at most 64 of these: lower-case letters, digits and _ + -")},
    {6, UnitTracking::None, u8"^[^\u4e00-\u9fa5]{0,}$",
     QT_TRANSLATE_NOOP("KVCAM::UIAPI::KVLineEdit", "Chinese characters cannot be used here.")},
    {7, UnitTracking::Symbol, R"(^[a-z0-9_.+-]*$)",
     QT_TRANSLATE_NOOP(
         "KVCAM::UIAPI::KVLineEdit",
         "Type a symbol name such as r10 or rect20x30: lower-case letters, digits and _ . + -")},
    // The blanks around the bars are part of the pattern, so only names with such a blank match ("r1 ").
    {8, UnitTracking::Symbol, R"([r][1-9]{1,6} | [r][1-9][0-9]{0,5}[.][0-9]{1,6} | [r0.][0-9]{1,6})",
     QT_TRANSLATE_NOOP("KVCAM::UIAPI::KVLineEdit",
                       "Type a round symbol: r, up to six digits 1 to 9 and a blank.")},
    // {1-6} is not a valid repetition: the pattern does not compile, and all typed input is rejected.
    {9, UnitTracking::Symbol, R"([s0.][0-9]{0,2} | [s][1-9]{1-6} | [s][1-9][0-9]{0,5}[.][0-9]{1,2})",
     QT_TRANSLATE_NOOP("KVCAM::UIAPI::KVLineEdit", "Nothing can be typed here.")},
    {10, UnitTracking::None, R"(^[a-zA-Z0-9~`!@#$%&^()_+={}*,.;']{1,36}$)",
     QT_TRANSLATE_NOOP(
         "KVCAM::UIAPI::KVLineEdit",
         "Type at most 36 of these: letters, digits and ~ ` ! @ # $ % & ^ ( ) _ + = { } * , . ; '")},
    {11, UnitTracking::None, R"([0-9. -]+$)",
     QT_TRANSLATE_NOOP("KVCAM::UIAPI::KVLineEdit", "Type digits, points, blanks and minus signs only.")},
}};

namespace {

constexpr bool isNumberedFromOne()
{
    for (std::size_t i = 0; i < inputKinds.size(); ++i) {
        if (inputKinds[i].kind != static_cast<int>(i) + 1) {
            return false;
        }
    }
    return true;
}
static_assert(isNumberedFromOne(), "a kind is its row's number, counted from one");

} // namespace

InputKind const * inputKind(int kind) noexcept
{
    return kind >= 1 && kind <= static_cast<int>(inputKinds.size())
               ? &inputKinds[static_cast<std::size_t>(kind) - 1]
               : nullptr;
}

} // namespace KVCAM::UIAPI
