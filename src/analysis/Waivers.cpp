#include "analysis/Waivers.h"

#include "analysis/ReportJsonParts.h"
#include "analysis/ViolationId.h"
#include "support/JsonMembers.h"
#include "support/WholeFile.h"

#include <QDate>
#include <QObject>

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace KVCAM::UIAPI::Ext {
namespace {

constexpr int formatVersion = 1;
constexpr char const * formatName = "report-waivers";

bool isBlank(std::string const & text)
{
    return QString::fromStdString(text).trimmed().isEmpty();
}

// Dates are compared as texts: exactly "2026-11-22".
bool isDay(std::string const & text)
{
    QString const day = QString::fromStdString(text);
    QDate const date = QDate::fromString(day, Qt::ISODate);
    return date.isValid() && date.toString(Qt::ISODate) == day;
}

/// A member of a waiver, and what is wrong with its text; null if nothing is.
struct WaiverMember
{
    char const * key;
    std::string Waiver::*text;
    bool isRequired;
    char const * (*fault)(std::string const & text);
};

char const * faultOfId(std::string const & text)
{
    return parseViolationId(text) ? nullptr
                                  : QT_TRANSLATE_NOOP("QObject", "This is not the id of a violation.");
}

char const * faultOfText(std::string const & text)
{
    return isBlank(text) ? QT_TRANSLATE_NOOP("QObject", "A waiver needs a reason and an author.") : nullptr;
}

char const * faultOfDay(std::string const & text)
{
    return isDay(text) ? nullptr : QT_TRANSLATE_NOOP("QObject", "A day is written as 2026-11-22.");
}

constexpr std::array<WaiverMember, 5> waiverMembers = {{
    {"id", &Waiver::id, true, faultOfId},
    {"reason", &Waiver::reason, true, faultOfText},
    {"author", &Waiver::author, true, faultOfText},
    {"date", &Waiver::date, true, faultOfDay},
    {"expires", &Waiver::expires, false, faultOfDay},
}};

bool readWaiver(JsonReader & json, std::vector<Waiver> & out)
{
    Waiver waiver;
    std::vector<JsonMember> members;
    members.reserve(waiverMembers.size());
    for (WaiverMember const & member : waiverMembers) {
        members.push_back({member.key,
                           [&] {
                               std::string & text = waiver.*member.text;
                               if (!json.text(text)) {
                                   return false;
                               }
                               char const * const fault = member.fault(text);
                               return fault == nullptr || json.fail(QObject::tr(fault));
                           },
                           member.isRequired});
    }
    if (!readMembers(json, members, UnknownMember::Refused)) {
        return false;
    }
    out.push_back(std::move(waiver));
    return true;
}

bool readHead(JsonReader & json)
{
    std::string name;
    return json.text(name) &&
           (name == formatName ||
            json.fail(QObject::tr("\"%1\" is unknown here.").arg(QString::fromStdString(name))));
}

bool readVersion(JsonReader & json)
{
    int version = 0;
    return json.number(version) &&
           (version == formatVersion || json.fail(QObject::tr("The version is not known.")));
}

// The member that parseWaivers() would refuse.
WaiverMember const * faultyMember(Waiver const & waiver)
{
    auto const found =
        std::find_if(waiverMembers.begin(), waiverMembers.end(), [&](WaiverMember const & member) {
            std::string const & text = waiver.*member.text;
            return (member.isRequired || !text.empty()) && member.fault(text) != nullptr;
        });
    return found == waiverMembers.end() ? nullptr : &*found;
}

} // namespace

Result parseWaivers(QByteArray const & bytes, std::vector<Waiver> & out)
{
    JsonReader json(bytes);
    std::vector<Waiver> waivers;
    bool const isRead =
        readMembers(json,
                    {{"format", [&] { return readHead(json); }},
                     {"version", [&] { return readVersion(json); }},
                     {"waivers", [&] { return json.array([&] { return readWaiver(json, waivers); }); }}},
                    UnknownMember::Refused) &&
        json.end();
    if (!isRead) {
        return {false, json.error()};
    }
    out = std::move(waivers);
    return {};
}

Result readWaivers(QString const & path, std::vector<Waiver> & out)
{
    WholeFile::Content const content = WholeFile::read(path);
    Result const result = content.status == WholeFile::ReadStatus::Ok ? parseWaivers(content.bytes, out)
                                                                      : Result{false, content.reason};
    return result
               ? result
               : Result{false, QObject::tr("The waivers \"%1\" cannot be read: %2").arg(path, result.reason)};
}

QByteArray waiversText(std::vector<Waiver> const & waivers)
{
    QByteArray out = QByteArray("{\"format\": \"") + formatName +
                     "\", \"version\": " + QByteArray::number(formatVersion) + ", \"waivers\": [";
    char const * separator = "\n";
    for (Waiver const & waiver : waivers) {
        out += separator;
        char const * before = "{\"";
        for (WaiverMember const & member : waiverMembers) {
            std::string const & text = waiver.*member.text;
            if (member.isRequired || !text.empty()) {
                out += QByteArray(before) + member.key + "\": " + Formats::quoted(text);
                before = ", \"";
            }
        }
        out += '}';
        separator = ",\n";
    }
    return out + "\n]}\n";
}

Result writeWaivers(std::vector<Waiver> const & waivers, QString const & path)
{
    for (Waiver const & waiver : waivers) {
        if (WaiverMember const * const member = faultyMember(waiver)) {
            return {false, QObject::tr(member->fault(waiver.*member->text))};
        }
    }
    if (!WholeFile::replace(path, waiversText(waivers))) {
        return {false, QObject::tr("The file \"%1\" cannot be written.").arg(path)};
    }
    return {};
}

} // namespace KVCAM::UIAPI::Ext
