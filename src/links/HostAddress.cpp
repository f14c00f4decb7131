#include "links/HostAddress.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSysInfo>

namespace KVCAM::UIAPI::HostAddress {

QHostAddress choose(QList<Candidate> const & interfaces)
{
    for (Candidate const & candidate : interfaces) {
        bool const usable = candidate.flags.testFlag(QNetworkInterface::IsUp) &&
                            candidate.flags.testFlag(QNetworkInterface::IsRunning) &&
                            !candidate.flags.testFlag(QNetworkInterface::IsLoopBack);
        for (QHostAddress const & address : candidate.addresses) {
            if (usable && address.protocol() == QAbstractSocket::IPv4Protocol) {
                return address;
            }
        }
    }
    return QHostAddress(QHostAddress::LocalHost);
}

std::string getHostIP()
{
    QList<Candidate> interfaces;
    QList<QNetworkInterface> const all = QNetworkInterface::allInterfaces();
    for (QNetworkInterface const & found : all) {
        Candidate candidate{found.flags(), {}};
        QList<QNetworkAddressEntry> const entries = found.addressEntries();
        for (QNetworkAddressEntry const & entry : entries) {
            candidate.addresses.append(entry.ip());
        }
        interfaces.append(candidate);
    }
    return choose(interfaces).toString().toStdString();
}

// No serial numbers: only what a colleague at the next desk can see leaves the library.
std::string getLocalInfo()
{
    QJsonObject const info{{QStringLiteral("address"), QString::fromStdString(getHostIP())},
                           {QStringLiteral("host"), QSysInfo::machineHostName()},
                           {QStringLiteral("os"), QSysInfo::prettyProductName()}};
    return QJsonDocument(info).toJson(QJsonDocument::Compact).toStdString();
}

} // namespace KVCAM::UIAPI::HostAddress
