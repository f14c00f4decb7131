#include "config/AutoMatrixStore.h"

#include "config/ConfigFiles.h"
#include "support/Boxes.h"
#include "support/HostPaths.h"
#include "support/UserDirectory.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QObject>

#include <algorithm>
#include <set>
#include <utility>

namespace KVCAM::UIAPI {
namespace {

constexpr ConfigFiles::LoadTexts texts = {"auto matrix json文件不存在！路径：",
                                          "auto matrix json文件打开失败!路径："};
constexpr char const * arrayKey = "template";
constexpr char const * nameKey = "name";
constexpr char const * prefixKey = "prefix";
constexpr char const * suffixKey = "suffix";

/// User templates start here regardless of how many are shipped: indices 0 and 1 belong to the shipped file.
constexpr int firstUserIndex = 2;

QString userFolder()
{
    QString const folder = Ext::userFile(QStringLiteral("autoMatrix"));
    return QDir::isAbsolutePath(folder) ? folder : QDir::currentPath() + QLatin1Char('/') + folder;
}

QString userFile(QString const & name)
{
    return userFolder() + QLatin1Char('/') + name + QStringLiteral(".json");
}

using RoleText = std::string AutoMatrixTmp::*Ext::AutoMatrixRole::*;

void readRoles(QJsonObject const & object, RoleText side, AutoMatrixTmp & out, JsonPlace const & place,
               FileDiagnostics const & diagnostics)
{
    for (auto member = object.constBegin(); member != object.constEnd(); ++member) {
        QString const key = member.key();
        auto const role = std::find_if(Ext::autoMatrixRoles.begin(), Ext::autoMatrixRoles.end(),
                                       [&](auto const & entry) { return key == QLatin1String(entry.key); });
        if (role == Ext::autoMatrixRoles.end()) {
            diagnostics.unknownKey(place, key);
            continue;
        }
        QJsonValue const value = member.value();
        diagnostics.checkType(value, QJsonValue::String, place, role->key);
        out.*((*role).*side) = ConfigFiles::textOf(value);
    }
}

// The prefix or suffix object of a template. If missing: reported, and undefined.
QJsonValue rolesObject(QJsonObject const & element, char const * key, JsonPlace const & place,
                       FileDiagnostics const & diagnostics)
{
    QJsonValue const value = element.value(QLatin1String(key));
    if (value.isUndefined()) {
        diagnostics.missingKey(place, key);
    }
    return diagnostics.checkType(value, QJsonValue::Object, place, key) ? value : QJsonValue::Undefined;
}

// False for an element that is not a template.
bool readTemplate(QJsonValue const & element, int position, FileDiagnostics const & diagnostics,
                  AutoMatrixTmp & out)
{
    JsonPlace const place{arrayKey, position};
    if (!diagnostics.checkType(element, QJsonValue::Object, place)) {
        return false;
    }
    QJsonObject const object = element.toObject();
    QJsonValue const prefixes = rolesObject(object, prefixKey, place, diagnostics);
    QJsonValue const suffixes = rolesObject(object, suffixKey, place, diagnostics);
    if (!prefixes.isObject() || !suffixes.isObject()) {
        return false;
    }
    QJsonValue const name = object.value(QLatin1String(nameKey));
    diagnostics.checkType(name, QJsonValue::String, place, nameKey);
    diagnostics.checkKeys(object, name.isUndefined() ? 2 : 3, {nameKey, prefixKey, suffixKey}, place);
    out.name = ConfigFiles::textOf(name);
    readRoles(prefixes.toObject(), &Ext::AutoMatrixRole::prefix, out, {arrayKey, position, prefixKey},
              diagnostics);
    readRoles(suffixes.toObject(), &Ext::AutoMatrixRole::suffix, out, {arrayKey, position, suffixKey},
              diagnostics);
    return true;
}

QJsonObject rolesToJson(AutoMatrixTmp const & tmpl, RoleText side)
{
    QJsonObject object;
    for (Ext::AutoMatrixRole const & role : Ext::autoMatrixRoles) {
        object[QLatin1String(role.key)] = QString::fromStdString(tmpl.*(role.*side));
    }
    return object;
}

} // namespace

bool isTemplateFileName(QString const & name)
{
    return name != QLatin1String("..") && std::none_of(name.cbegin(), name.cend(), [](QChar c) {
               return c == QLatin1Char('/') || c == QLatin1Char('\\') || c == QLatin1Char(':') ||
                      c.category() == QChar::Other_Control;
           });
}

QByteArray writeAutoMatrix(AutoMatrixTmp const & tmpl)
{
    QJsonObject const element{{QLatin1String(nameKey), QString::fromStdString(tmpl.name)},
                              {QLatin1String(prefixKey), rolesToJson(tmpl, &Ext::AutoMatrixRole::prefix)},
                              {QLatin1String(suffixKey), rolesToJson(tmpl, &Ext::AutoMatrixRole::suffix)}};
    return QJsonDocument(QJsonObject{{QLatin1String(arrayKey), QJsonArray{element}}})
        .toJson(QJsonDocument::Indented);
}

int AutoMatrixStore::getAutomatrixMatrixIndex(QString const & name) const
{
    std::string const wanted = name.toStdString();
    auto const found = std::find_if(m_templates.begin(), m_templates.end(),
                                    [&](auto const & entry) { return entry.second.name == wanted; });
    return found == m_templates.end() ? -1 : found->first;
}

void AutoMatrixStore::saveCurrentAutoMatrixTmp(int index, QString const & name, AutoMatrixTmp const & tmpl)
{
    m_templates.insert_or_assign(index, tmpl);
    if (saveAutoMatrixtoJson(name, tmpl)) {
        forgetContent(name);
        m_files[index] = {{name, true, true}, userFolder()};
    } else if (auto const file = m_files.find(index); file != m_files.end()) {
        file->second.file.isStored = false;
    }
}

std::optional<Ext::AutoMatrixFile> AutoMatrixStore::autoMatrixFile(int index) const
{
    auto const found = m_files.find(index);
    if (found == m_files.end()) {
        return std::nullopt;
    }
    Ext::AutoMatrixFile result = found->second.file;
    if (found->second.folder != userFolder()) { // no file of this name there has been read
        result.isStored = false;
        result.isAlone = !QFileInfo::exists(userFile(result.name));
    }
    return result;
}

void AutoMatrixStore::forgetContent(QString const & name)
{
    for (auto & [index, entry] : m_files) {
        entry.file.isStored = entry.file.isStored && entry.file.name != name;
    }
}

void AutoMatrixStore::deleteAutoMatrix(int index, QString const & name)
{
    m_templates.erase(index);
    m_files.erase(index);
    if (isTemplateFileName(name) && QFile::remove(userFile(name))) {
        forgetContent(name);
    }
}

void AutoMatrixStore::getAutoMatrixTmpMapFromJson()
{
    m_templateDirectory = HostPaths::configurationDirectory();
    int index = 0;
    readAutoMatrixFromJson(m_templateDirectory + QStringLiteral("automatrix.json"), index);
}

void AutoMatrixStore::getAutoMatrixUserTmpFromJson()
{
    QString const folder = userFolder();
    if (!QFileInfo(folder).isDir()) {
        return;
    }
    int const shippedEnd = m_templates.empty() ? 0 : m_templates.rbegin()->first + 1;
    int index = firstUserIndex; // one count over all files
    QFileInfoList const files = QDir(folder).entryInfoList(QDir::Files, QDir::Name); // no hidden ones
    for (QFileInfo const & file : files) {
        if (file.suffix() != QLatin1String("json")) {
            continue;
        }
        int const first = index;
        int const count = readAutoMatrixFromJson(file.filePath(), index);
        for (int i = std::max(first, shippedEnd); i < index; ++i) {
            m_files[i] = {{file.completeBaseName(), count == 1, true}, folder};
        }
    }
}

void AutoMatrixStore::selectFirst()
{
    if (!m_templates.empty()) {
        m_current = m_templates.begin()->second;
    }
}

int AutoMatrixStore::readAutoMatrixFromJson(QString const & path, int & index)
{
    int const first = index;
    FileDiagnostics const diagnostics(path);
    std::set<std::string> names;
    QJsonArray const array = ConfigFiles::loadArray(path, texts, arrayKey, diagnostics, QIODevice::Text);
    for (int i = 0; i < array.size(); ++i) {
        AutoMatrixTmp tmpl;
        if (!readTemplate(array.at(i), i, diagnostics, tmpl)) {
            continue; // uses no index
        }
        if (!tmpl.name.empty() && !names.insert(tmpl.name).second) {
            diagnostics.report(
                Ext::DiagnosticKind::DuplicateElement, JsonPlace{arrayKey, i}.key(),
                QStringLiteral("\"%1\" stands in the file already; its index is not found by name.")
                    .arg(QString::fromStdString(tmpl.name)));
        }
        // A template whose index is taken is skipped but still consumes the index.
        if (auto const [entry, isNew] = m_templates.try_emplace(index, std::move(tmpl)); !isNew) {
            diagnostics.report(Ext::DiagnosticKind::IndexTaken, JsonPlace{arrayKey, i}.key(),
                               QStringLiteral("The template was not added: index %1 belongs to \"%2\".")
                                   .arg(QString::number(index), QString::fromStdString(entry->second.name)));
        }
        ++index;
    }
    return index - first;
}

bool AutoMatrixStore::saveAutoMatrixtoJson(QString const & name, AutoMatrixTmp const & tmpl)
{
    Ext::Result result{false, QStringLiteral("The name would leave the folder of the templates.")};
    if (isTemplateFileName(name)) {
        QDir().mkpath(userFolder()); // if this fails, writing the file fails too
        result = WholeFile::replace(userFile(name), writeAutoMatrix(tmpl));
    }
    if (!result) {
        FileDiagnostics(userFile(name)).report(Ext::DiagnosticKind::SaveFailed, {}, result.reason);
        showInformation(nullptr, QObject::tr("File open failed"));
    }
    return result.ok;
}

} // namespace KVCAM::UIAPI
