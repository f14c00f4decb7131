#pragma once

#include <QHostAddress>
#include <QList>
#include <QNetworkInterface>

#include <string>

/// What this computer is called and where it is reached. Nothing is sent and no name is resolved.
namespace KVCAM::UIAPI::HostAddress {

/// What the choice of an address needs to know of a network interface.
struct Candidate
{
    QNetworkInterface::InterfaceFlags flags;
    QList<QHostAddress> addresses;
};

/// The first IPv4 address of an interface that is up, running and not the loopback one, else 127.0.0.1.
QHostAddress choose(QList<Candidate> const & interfaces);

/// The choice among the interfaces that the computer has now, as text.
std::string getHostIP();

/// Compact JSON with the members "address" (as getHostIP()), "host" and "os".
std::string getLocalInfo();

} // namespace KVCAM::UIAPI::HostAddress
