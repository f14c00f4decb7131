#pragma once

#include "config/AutoMatrixFile.h"
#include "config/AutoMatrixTmp.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <optional>

class QJsonObject;

namespace KVCAM::UIAPI {

class FileDiagnostics;

/// The auto-matrix templates by index, and the selected one. Shipped templates come from "automatrix.json" in
/// the configuration directory, which is only read. User templates are stored one per file in the folder
/// "autoMatrix" below the current directory.
class AutoMatrixStore
{
public:
    std::map<int, AutoMatrixTmp> const & getAutoMatrixTmpMap() const { return m_templates; }
    AutoMatrixTmp const & getCurrentAutoMatrixTmp() const { return m_current; }
    void setCurrentAutoMatrixTmp(AutoMatrixTmp const & tmpl) { m_current = tmpl; }
    /// The smallest index of a template with this name, compared byte for byte; -1 if there is none.
    int getAutomatrixMatrixIndex(QString const & name) const;
    /// Nothing for a shipped template, an index without a template, and a template without a file.
    std::optional<Ext::AutoMatrixFile> autoMatrixFile(int index) const;
    /// Stores the template under the index and writes its file.
    void saveCurrentAutoMatrixTmp(int index, QString const & name, AutoMatrixTmp const & tmpl);
    /// Removes the entry and the file of this name, if they exist.
    void deleteAutoMatrix(int index, QString const & name);

    // Loading: first the shipped set, then the user's, then the selection.

    /// Exceptions from the host's path helpers propagate.
    void getAutoMatrixTmpMapFromJson();
    void getAutoMatrixUserTmpFromJson();
    /// Selects the template with the smallest index, if there is one.
    void selectFirst();

    /// Adds the templates of one file, starting at `index`, which is advanced. Returns their number,
    /// including those whose index is taken. Failures are logged.
    int readAutoMatrixFromJson(QString const & path, int & index);
    /// Writes a template to the user's file of this name. If the file cannot be written or the name would
    /// leave the folder, the result is a finding, the box "File open failed", and false.
    bool saveAutoMatrixtoJson(QString const & name, AutoMatrixTmp const & tmpl);

private:
    // Records that the content of the file of this name is gone.
    void forgetContent(QString const & name);

    std::map<int, AutoMatrixTmp> m_templates;
    struct UserFile
    {
        Ext::AutoMatrixFile file;
        QString folder; ///< which another user directory leaves behind
    };
    std::map<int, UserFile> m_files; ///< of user templates
    AutoMatrixTmp m_current;
    QString m_templateDirectory;
};

/// The content of a file with this single template: all 25 texts, indented.
QByteArray writeAutoMatrix(AutoMatrixTmp const & tmpl);

/// Whether name + ".json" is a file directly in its folder on every platform: no "/", "\", ":" or control
/// character, and not "..".
bool isTemplateFileName(QString const & name);

} // namespace KVCAM::UIAPI
