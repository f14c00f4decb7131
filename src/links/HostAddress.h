#pragma once

#include <QHostAddress>
#include <QList>
#include <QNetworkInterface>

#include <string>

/// Name and address of this computer. Nothing is sent and no name is resolved.
namespace KVCAM::UIAPI::HostAddress {

/// The properties of a network interface needed to choose an address.
struct Candidate
{
    QNetworkInterface::InterfaceFlags flags;
    QList<QHostAddress> addresses;
};

/// The first IPv4 address of an interface that is up, running and not loopback, else 127.0.0.1.
QHostAddress choose(QList<Candidate> const & interfaces);

/// choose() applied to the computer's current interfaces, as text.
std::string getHostIP();

/// Compact JSON with the members "address" (as getHostIP()), "host" and "os".
std::string getLocalInfo();

} // namespace KVCAM::UIAPI::HostAddress
