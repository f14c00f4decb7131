#pragma once

#include <UIAPICommon.h>

#include <QString>

#include <map>

namespace Workbench {

/// Where a template of the user's was read from.
struct UserTemplate
{
    QString file;        ///< name without ".json", in the folder of userTemplatesFolder()
    bool isAlone = true; ///< the file holds no other template
};

/// Where the library looks for the user's templates.
QString userTemplatesFolder();
/// The path of a file there by its name without ".json".
QString userTemplatePath(QString const & file);
/// Whether a file there holds this template and no other: the library is silent about a save that failed.
bool isStored(KVCAM::UIAPI::AutoMatrixTmp const & tmpl, QString const & file);

/// Which of the library's templates stand in which file, by index. The library does not tell, so this counts
/// as it does; it must be asked before the templates or the files are changed. Templates of which it is not
/// certain are left out, as are the shipped ones.
std::map<int, UserTemplate> userTemplates(std::map<int, KVCAM::UIAPI::AutoMatrixTmp> const & templates);

} // namespace Workbench
