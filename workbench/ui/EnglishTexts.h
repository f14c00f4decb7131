#pragma once

#include <QString>

#include <functional>

namespace Workbench {

/// Gives the translation of a pattern, or an empty text.
using PatternSource = std::function<QString(QString const & pattern)>;

/// A sentence of the engine or the library, which speak English, in the language of the screen. What it
/// quotes (names, numbers) stays. A sentence that is not known stays as it is.
QString inScreenLanguage(QString const & english);
/// The same with another source of translations; empty if the sentence is not known.
QString translatedSentence(QString const & english, PatternSource const & source);

} // namespace Workbench
