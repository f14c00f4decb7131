#pragma once

// Messages, language and threads: how the library speaks to the user and to the host.
//
//   setMessagePresenter()   replaces the QMessageBox behind every box of the library
//   showMessage()           shows a box of the host's through the same presenter
//   installTranslation()    the library's texts in Simplified Chinese, or in English again
//   setThreadCheck()        reports calls from a second thread; for debug builds
//
// What the library asks and tells, from a refused value to "undo?", goes through showMessage() to the
// presenter in force. KVFileDialog::setAsksBeforeReplacing() (widgets/KVFileDialog.h) is one more of these
// questions.

#include "../support/MessagePresenter.h"
#include "../support/ThreadCheck.h"
#include "../widgets/Translation.h"
