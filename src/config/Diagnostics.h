#pragma once

#include "../support/Finding.h"
#include "UIAPICommonExport.h"

#include <QString>

#include <vector>

/// \addtogroup configuration_files
namespace KVCAM::UIAPI::Ext {

/// What is wrong with a file.
enum class DiagnosticKind : int
{
    MissingFile,      ///< no such file; its content counts as empty
    OpenFailed,       ///< exists, but cannot be opened, is not a regular file, or is over 64 MiB
    ParseError,       ///< not JSON; the text names the byte offset
    MissingKey,       ///< a key that the loader looks for is absent
    WrongType,        ///< a value of a JSON type the loader does not accept, read as its neutral value
    UnknownKey,       ///< a key that no loader reads
    DuplicateElement, ///< an element with the name of an earlier element of the file
    KeyNotReadBack,   ///< a key that is written on save but not read at start
    IndexTaken,       ///< a template not added because its index is in use
    BackupFailed,     ///< the old file could not be kept before a save replaced it
    SaveFailed        ///< "server.json" or a template was not written; the text says why
};

/// What is wrong at one place of a file. `where` is the key, "TotalAttributes[3].unit".
struct Diagnostic : Finding<DiagnosticKind>
{
    QString file; ///< the path as opened
};

/// The findings of the loaders of the configuration and range files since the process started, and the failed
/// saves, in order. Empty until something is loaded: the call creates no singleton and reads no file. GUI
/// thread only.
/// \since 0.1
[[nodiscard]] UIAPICOMMON_EXPORT std::vector<Diagnostic> diagnostics();

/// Whether the first save of the process that writes "server.json" keeps the old file beside it as
/// "server.json.bak" (an older one is replaced), when the last load failed or the file holds keys that the
/// save would drop. Off by default. A backup that cannot be written is skipped and reported by diagnostics().
UIAPICOMMON_EXPORT void setKeepSettingsBackup(bool keep);

} // namespace KVCAM::UIAPI::Ext
