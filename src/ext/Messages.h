#pragma once

// Messages, language, log and threads.
//
//   setMessagePresenter()   replaces the QMessageBox behind every box of the library
//   showMessage()           shows one of the host's boxes through the same presenter
//   installTranslation()    the library's texts in Simplified Chinese, or in English again
//   startLogging()          starts the log: what goes to stderr, and a file if wanted
//   LogOptions              how
//   setThreadCheck()        reports calls from a second thread; for debug builds
//
// Every box of the library, from a rejected value to the question before undo(), goes through showMessage()
// to the current presenter. KVFileDialog::setAsksBeforeReplacing() (widgets/KVFileDialog.h) adds another such
// question.

#include "../support/Logging.h"
#include "../support/MessagePresenter.h"
#include "../support/ThreadCheck.h"
#include "../widgets/Translation.h"
