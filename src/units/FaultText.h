#pragma once

#include <QString>
#include <QStringView>

#include <algorithm>
#include <cstddef>

/// The sentences about faulty texts.
namespace KVCAM::UIAPI {

/// A fault and its sentence, to be translated; %1 in it is the faulty part.
template <class Fault>
struct FaultText
{
    Fault fault;
    char const * sentence;
};

/// Whether a table of these can be indexed by fault.
template <class Rows>
constexpr bool isByFault(Rows const & rows)
{
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (static_cast<std::size_t>(rows[i].fault) != i) {
            return false;
        }
    }
    return true;
}

/// The translated sentence with the faulty part in it, cut after 40 characters.
inline QString withFaultyPart(QString const & sentence, QStringView part)
{
    constexpr qsizetype longest = 40;
    return sentence.contains(QLatin1String("%1"))
               ? sentence.arg(part.left(std::min<qsizetype>(part.size(), longest)).toString())
               : sentence;
}

} // namespace KVCAM::UIAPI
